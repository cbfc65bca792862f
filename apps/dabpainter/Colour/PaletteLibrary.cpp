// SPDX-License-Identifier: MIT
#include "Colour/PaletteLibrary.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>

#include "OutputFile.h"
#include "Window/Translations.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr char kSuffix[] = ".gpl";

QString paletteFolder(const QString& brushes) {
    return QDir::cleanPath(brushes + QStringLiteral("/../palettes"));
}

// Without a name of its own, it has the file's.
std::optional<Palette> paletteIn(const QString& path, QString& problem) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        problem = file.errorString();
        return {};
    }
    std::optional<Palette> palette = readGimpPalette(file.read(kMostPaletteBytes + 1), problem);
    if (palette && palette->name.isEmpty())
        palette->name = QFileInfo(path).completeBaseName();
    return palette;
}

QString unwritable(const QString& path, const QString& problem) {
    return tr("\"%1\" could not be written: %2.").arg(QDir::toNativeSeparators(path), problem);
}

}  // namespace

PaletteLibrary PaletteLibrary::beside(const PresetFolders& brushes) {
    QStringList installed;
    for (const QString& folder : brushes.installed)
        installed << paletteFolder(folder);
    return {paletteFolder(brushes.own), installed};
}

void PaletteLibrary::listFolder(const QString& folder, bool own) {
    const auto files =
        QDir(folder).entryInfoList({QStringLiteral("*") + QLatin1String(kSuffix)}, QDir::Files);
    for (const QFileInfo& file : files) {
        const bool isHidden = std::any_of(_files.begin(), _files.end(), [&](const PaletteFile& other) {
            return QFileInfo(other.path).fileName() == file.fileName();
        });
        QString problem;
        if (auto palette = isHidden ? std::nullopt : paletteIn(file.filePath(), problem))
            _files.push_back({file.filePath(), own, *palette});
    }
}

void PaletteLibrary::refresh() {
    _files.clear();
    listFolder(_own, true);
    for (const QString& folder : _installed)
        listFolder(folder, false);
    std::stable_sort(_files.begin(), _files.end(), [](const PaletteFile& a, const PaletteFile& b) {
        return a.palette.name.localeAwareCompare(b.palette.name) < 0;
    });
}

const PaletteFile* PaletteLibrary::find(const QString& path) const {
    const auto found = std::find_if(_files.begin(), _files.end(),
                                    [&](const PaletteFile& file) { return file.path == path; });
    return found == _files.end() ? nullptr : &*found;
}

QString PaletteLibrary::freePath(const QString& name) const {
    const QString stem = presetFileName(name);
    const auto isTaken = [this](const QString& file) {
        const auto lies = [&](const QString& folder) {
            return QFileInfo::exists(folder + QLatin1Char('/') + file);
        };
        return lies(_own) || std::any_of(_installed.begin(), _installed.end(), lies);
    };
    QString file = stem + QLatin1String(kSuffix);
    for (int i = 2; isTaken(file); ++i)
        file = QStringLiteral("%1 (%2)%3").arg(stem).arg(i).arg(QLatin1String(kSuffix));
    return QDir(_own).filePath(file);
}

QString PaletteLibrary::write(const Palette& palette, const QString& path, QString& now) {
    if (!QDir().mkpath(_own))
        return tr("The folder \"%1\" could not be made.").arg(QDir::toNativeSeparators(_own));
    if (const QString wrong = exportTo(palette, path); !wrong.isEmpty())
        return wrong;
    now = path;
    refresh();
    return {};
}

QString PaletteLibrary::add(const Palette& palette, QString& now) {
    return write(palette, freePath(palette.name), now);
}

QString PaletteLibrary::replace(const PaletteFile& file, const Palette& palette, QString& now) {
    return write(palette, QDir(_own).filePath(QFileInfo(file.path).fileName()), now);
}

QString PaletteLibrary::remove(const PaletteFile& file) {
    QFile own(file.path);
    if (!own.remove())
        return tr("\"%1\" could not be deleted: %2.")
            .arg(QDir::toNativeSeparators(own.fileName()), own.errorString());
    refresh();
    return {};
}

QString PaletteLibrary::importFile(const QString& path, QString& now) {
    QString problem;
    const auto palette = paletteIn(path, problem);
    if (!palette)
        return tr("\"%1\" is no usable palette: %2.").arg(QFileInfo(path).fileName(), problem);
    for (const PaletteFile& file : _files) {
        now = file.path;
        if (file.palette == *palette)
            return {};
    }
    return add(*palette, now);
}

QString PaletteLibrary::exportTo(const Palette& palette, const QString& path) {
    OutputFile file(path);
    return file.write(writeGimpPalette(palette)) ? QString() : unwritable(path, file.errorString());
}

}  // namespace dabcanvas::dabpainter
