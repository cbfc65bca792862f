// SPDX-License-Identifier: MIT
#include "Presets/PresetLibrary.h"

#include <QCollator>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <algorithm>

#include "Brush/BrushDrops.h"
#include "Documents/ImageFiles.h"
#include "Import/BrushImport.h"
#include "OutputFile.h"
#include "Preset/PresetInfo.h"
#include "Preset/QDBrushManager.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr char kSuffix[] = ".xbf";
constexpr int kMostFileName = 80;  // characters; of at most three bytes each, which file systems take

QString fault(const QString& path, const QString& problem) {
    return PresetLibrary::tr("\"%1\" is no usable brush file: %2.").arg(QFileInfo(path).fileName(), problem);
}

QString unwritable(const QString& path, const QString& problem) {
    return PresetLibrary::tr("\"%1\" could not be written: %2.").arg(QDir::toNativeSeparators(path), problem);
}

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The brushes of a file by their names, without reading the values.
std::vector<Preset> presetsOfFile(const QFileInfo& file, bool own) {
    QString problem;
    const auto names = QDBrushManager::brushNamesWithXBFPath(file.filePath(), nullptr, &problem);
    if (names && names->isEmpty() && problem.isEmpty())
        problem = PresetLibrary::tr("it holds no brush");
    std::vector<Preset> presets;
    const int count = names ? int(names->size()) : 0;
    for (int i = 0; i < std::max(count, 1); ++i) {
        Preset preset;
        preset.id = {file.filePath(), i};
        preset.siblings = std::max(count - 1, 0);
        preset.own = own;
        preset.size = file.size();
        preset.time = file.lastModified().toMSecsSinceEpoch();
        if (i < count)
            preset.name = names->at(i).simplified();
        if (preset.name.isEmpty())
            preset.name = file.completeBaseName().isEmpty() ? file.fileName() : file.completeBaseName();
        if (i + 1 >= count)
            preset.problem = problem;  // those before what is damaged are whole
        presets.push_back(preset);
    }
    return presets;
}

}  // namespace

PresetFolders standardPresetFolders() {
    const QString data = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    const QDir program(QCoreApplication::applicationDirPath());
    return {QDir(data).filePath(QStringLiteral("brushes")),
            {QDir::cleanPath(program.filePath(QStringLiteral("../share/dabcanvas/brushes")))}};
}

QString presetFileName(const QString& name) {
    static const QString kForbidden = QStringLiteral("<>:\"/\\|?*");
    static const QStringList kDevices = {QStringLiteral("con"), QStringLiteral("prn"), QStringLiteral("aux"),
                                         QStringLiteral("nul")};
    QString file;
    for (const QChar c : name.simplified().left(kMostFileName))
        file += c.category() == QChar::Other_Control || c.isSurrogate() || kForbidden.contains(c)
                    ? QLatin1Char('_')
                    : c;
    while (file.startsWith(QLatin1Char('.')))
        file[0] = QLatin1Char('_');
    while (file.endsWith(QLatin1Char('.')) || file.endsWith(QLatin1Char(' ')))
        file.chop(1);
    const QString stem = file.section(QLatin1Char('.'), 0, 0).toLower();
    const bool isPort = stem.size() == 4 && stem[3].isDigit() &&
                        (stem.startsWith(QLatin1String("com")) || stem.startsWith(QLatin1String("lpt")));
    if (file.isEmpty() || isPort || kDevices.contains(stem))
        file.prepend(QLatin1Char('_'));
    return file;
}

// ---- Listing

void PresetLibrary::listFolder(const QString& folder, bool own, QHash<QString, std::vector<Preset>>& found) {
    const auto files =
        QDir(folder).entryInfoList({QStringLiteral("*") + QLatin1String(kSuffix)}, QDir::Files);
    for (const QFileInfo& file : files) {
        std::vector<Preset> presets = _files.value(file.filePath());
        if (presets.empty() || presets[0].size != file.size() ||
            presets[0].time != file.lastModified().toMSecsSinceEpoch())
            presets = presetsOfFile(file, own);
        found.insert(file.filePath(), presets);
        _presets.insert(_presets.end(), presets.begin(), presets.end());
    }
}

void PresetLibrary::refresh() {
    QHash<QString, std::vector<Preset>> found;
    _presets.clear();
    listFolder(_folders.own, true, found);
    for (const QString& folder : _folders.installed)
        listFolder(folder, false, found);
    _files = found;
    QCollator collator;
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::stable_sort(_presets.begin(), _presets.end(), [&](const Preset& a, const Preset& b) {
        return a.own != b.own ? a.own : collator.compare(a.name, b.name) < 0;
    });
}

const Preset* PresetLibrary::find(const PresetId& id) const {
    const auto found =
        std::find_if(_presets.begin(), _presets.end(), [&](const Preset& preset) { return preset.id == id; });
    return found == _presets.end() ? nullptr : &*found;
}

const Preset* PresetLibrary::findOwn(const QString& name) const {
    const auto found = std::find_if(_presets.begin(), _presets.end(), [&](const Preset& preset) {
        return preset.own && preset.name.compare(name.simplified(), Qt::CaseInsensitive) == 0;
    });
    return found == _presets.end() ? nullptr : &*found;
}

void PresetLibrary::setProblem(const PresetId& id, const QString& problem) {
    const auto set = [&](std::vector<Preset>& presets) {
        for (Preset& preset : presets) {
            if (preset.id == id)
                preset.problem = problem;
        }
    };
    set(_presets);
    if (const auto file = _files.find(id.path); file != _files.end())
        set(*file);
}

QString PresetLibrary::read(const PresetId& id, BrushPreset& preset) {
    QString problem;
    int version = 0;
    const auto brushes = QDBrushManager::brushesWithXBFPath(id.path, &version, &problem);
    // Of a damaged file, only the last brush that was read may be damaged itself.
    const bool isWhole =
        brushes && (id.index + 1 < brushes->size() || (id.index + 1 == brushes->size() && problem.isEmpty()));
    if (!isWhole)
        return fault(id.path, problem.isEmpty() ? tr("it does not hold this brush") : problem);
    preset = {BrushRecords::brushParams(brushes->at(id.index)), version};
    const QString flaw = QDBrushManager::flawOfParams(preset.params);
    return flaw.isEmpty() ? QString() : fault(id.path, flaw);
}

// ---- The user's folder

QString PresetLibrary::makeOwnFolder() const {
    if (QDir().mkpath(_folders.own))
        return {};
    return tr("The folder \"%1\" could not be made.").arg(QDir::toNativeSeparators(_folders.own));
}

QString PresetLibrary::freePath(const QString& name) const {
    const QString stem = QDir(_folders.own).filePath(presetFileName(name));
    QString path = stem + QLatin1String(kSuffix);
    for (int i = 2; QFileInfo(path).exists() || QFileInfo(path).isSymLink(); ++i)
        path = QStringLiteral("%1 (%2)%3").arg(stem).arg(i).arg(QLatin1String(kSuffix));
    return path;
}

QString PresetLibrary::add(const QString& name, const BrushParams& params, PresetId& now) {
    if (const QString wrong = makeOwnFolder(); !wrong.isEmpty())
        return wrong;
    const QString path = freePath(name);
    QString problem;
    if (!QDBrushManager::saveParams(params, QDBrushManager::kVersion, name.simplified(), path, &problem))
        return unwritable(path, problem);
    now = {path, 0};
    refresh();
    return {};
}

QString PresetLibrary::replace(const Preset& preset, const BrushParams& params) {
    const QString path = preset.id.path;
    BrushParams kept = params;
    if (BrushPreset before; read(preset.id, before).isEmpty())
        setInfoOfParams(kept, infoOfParams(before.params));
    QString problem;
    if (!QDBrushManager::saveParams(kept, QDBrushManager::kVersion, preset.name, path, &problem))
        return unwritable(path, problem);
    _files.remove(path);  // it may be as large as before, within one tick of the clock
    refresh();
    return {};
}

QString PresetLibrary::rename(const Preset& preset, const QString& name, PresetId& now) {
    const QString before = preset.id.path;
    BrushPreset content;
    if (const QString wrong = read(preset.id, content); !wrong.isEmpty())
        return wrong;
    const bool sameFile = presetFileName(name) == QFileInfo(before).completeBaseName();
    const QString path = sameFile ? before : freePath(name);
    QString problem;
    if (!QDBrushManager::saveParams(content.params, content.version, name.simplified(), path, &problem))
        return unwritable(path, problem);
    if (!sameFile && !QFile::remove(before)) {
        QFile::remove(path);
        return tr("\"%1\" could not be renamed.").arg(preset.name);
    }
    now = {path, 0};
    _files.remove(path);
    refresh();
    return {};
}

QString PresetLibrary::removeFile(const Preset& preset) {
    QFile file(preset.id.path);
    if (!file.remove())
        return tr("\"%1\" could not be deleted: %2.")
            .arg(QDir::toNativeSeparators(file.fileName()), file.errorString());
    refresh();
    return {};
}

// The user's file of this content, but for one; empty for none.
QString PresetLibrary::sameAs(const QByteArray& content, const QString& but) const {
    const auto ownFiles =
        QDir(_folders.own).entryInfoList({QStringLiteral("*") + QLatin1String(kSuffix)}, QDir::Files);
    for (const QFileInfo& file : ownFiles) {
        if (file.filePath() != but && file.size() == content.size() && contentOf(file.filePath()) == content)
            return file.filePath();
    }
    return {};
}

QString PresetLibrary::importForeign(const QString& path, PresetId& now, QStringList& lost) {
    QFile file(path);
    QString problem;
    if (!file.open(QIODevice::ReadOnly))
        return fault(path, file.errorString());
    if (file.size() > kMostImportedBytes)
        return fault(path, tr("it is too large"));
    const auto brush = importBrush(file.readAll(), &problem);
    if (!brush)
        return fault(path, problem);
    const auto params = brush->params();
    if (!params)
        return fault(path, tr("there is no memory for it"));
    const QString name = brush->name.isEmpty() ? QFileInfo(path).completeBaseName() : brush->name;
    if (const QString wrong = add(name, *params, now); !wrong.isEmpty())
        return wrong;
    if (const QString same = sameAs(contentOf(now.path), now.path); !same.isEmpty()) {
        QFile::remove(now.path);
        now.path = same;
        refresh();
    }
    lost = brush->lost;
    return {};
}

QString PresetLibrary::importFile(const QString& path, PresetId& now, QStringList& lost) {
    const QFileInfo source(path);
    if (!source.isFile())
        return fault(path, tr("there is no such file"));
    if (isForeignBrush(path))
        return importForeign(path, now, lost);
    QString problem;
    const auto brushes = QDBrushManager::brushesWithXBFPath(path, nullptr, &problem);
    if (brushes && problem.isEmpty())
        problem = brushes->isEmpty()
                      ? tr("it holds no brush")
                      : QDBrushManager::flawOfParams(BrushRecords::brushParams(brushes->last()));
    if (!problem.isEmpty())
        return fault(path, problem);
    if (const QString wrong = makeOwnFolder(); !wrong.isEmpty())
        return wrong;
    now.index = int(brushes->size()) - 1;
    const QByteArray content = contentOf(path);
    if (now.path = sameAs(content, QString()); !now.path.isEmpty()) {
        refresh();
        return {};
    }
    const QString target = freePath(source.completeBaseName());
    OutputFile file(target);
    if (!file.write(content))
        return unwritable(target, file.errorString());
    now.path = target;
    refresh();
    return {};
}

QString PresetLibrary::exportTo(const PresetId& id, const QString& path) const {
    BrushPreset content;
    if (const QString wrong = read(id, content); !wrong.isEmpty())
        return wrong;
    const Preset* preset = find(id);
    const QString name = preset ? preset->name : QFileInfo(path).completeBaseName();
    QString problem;
    if (!QDBrushManager::saveParams(content.params, content.version, name, path, &problem))
        return unwritable(path, problem);
    return {};
}

}  // namespace dabcanvas::dabpainter
