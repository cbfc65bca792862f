// SPDX-License-Identifier: MIT
#include "BrushImports.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <set>

#include "BrushFile.h"
#include "Console.h"
#include "LogCatcher.h"
#include "OutputFile.h"
#include "Preset/QDBrushManager.h"

namespace dabcanvas::dabpaint {

namespace {

// Where each file's preset goes when the output is a folder; the message when two would meet.
QString placesInFolder(const PresetImportOptions& options, QStringList& places) {
    std::set<QString> taken;
    for (const QString& path : options.files) {
        const QString name = QFileInfo(path).completeBaseName() + QStringLiteral(".xbf");
        const QString place = QDir(options.output).filePath(name);
        if (!taken.insert(name).second)
            return QStringLiteral("two brushes would be written to %1").arg(place);
        places << place;
    }
    return {};
}

int importFile(const QString& path, const std::optional<QString>& name, const QString& output) {
    const auto brush = importedFile(path, importBrush);
    if (!brush)
        return fail(brush.problem().text(path));
    const auto params = brush->params();
    if (!params)
        return fail(QStringLiteral("%1: there is no memory for it").arg(path));
    const int status = saveBrush(*params, name.value_or(brush->name), output);
    if (status == kDone)
        tellLosses(path, *brush);
    return status;
}

}  // namespace

Result<ImportedBrush> importedFile(const QString& path, const ImportOf& import) {
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        return Problem{0, {}, QStringLiteral("cannot be read: it is not a plain file")};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Problem{0, {}, QStringLiteral("cannot be read: %1").arg(file.errorString())};
    if (file.size() > kMostImportedBytes)
        return Problem{0, {}, QStringLiteral("cannot be read: it is too large")};
    const LogCatcher log;  // the problem says it
    QString problem;
    auto brush = import(file.readAll(), &problem);
    if (!brush)
        return Problem{0, {}, QStringLiteral("cannot be imported: %1").arg(problem)};
    if (brush->name.isEmpty())
        brush->name = info.completeBaseName();
    return std::move(*brush);
}

void tellLosses(const QString& path, const ImportedBrush& brush) {
    for (const QString& what : brush.lost)
        printOut(QStringLiteral("%1: not carried over: %2\n").arg(path, what.simplified()).toStdString());
}

int saveBrush(const BrushParams& params, const QString& name, const QString& output) {
    QString wrong;
    const auto save = [&](const QString& path) {
        return QDBrushManager::saveParams(params, QDBrushManager::kVersion, name, path, &wrong);
    };
    const LogCatcher log;  // the messages below say it
    // What would not be read again takes no place: read first, from elsewhere.
    const QTemporaryDir elsewhere;
    const QString trial = elsewhere.filePath(QStringLiteral("trial.xbf"));
    if (!save(trial))
        return fail(QStringLiteral("%1: cannot be written: %2").arg(output, wrong));
    if (const auto again = readBrush(trial); !again)
        return fail(QStringLiteral("%1: could not be read again: %2").arg(output, again.problem().what));
    if (!save(output))
        return fail(QStringLiteral("%1: cannot be written: %2").arg(output, wrong));
    return kDone;
}

int runPresetImport(const PresetImportOptions& options) {
    QStringList places(options.output);
    QString wrong;
    if (QFileInfo(options.output).isDir()) {
        places.clear();
        wrong = placesInFolder(options, places);
    } else if (options.files.size() > 1) {
        wrong = QStringLiteral("%1: several brushes need a folder that exists").arg(options.output);
    } else if (OutputFile file(options.output); !file.check()) {
        wrong = QStringLiteral("%1: cannot be written: %2").arg(options.output, file.errorString());
    }
    if (!wrong.isEmpty())
        return fail(wrong);
    wrong = overwritingRefusal(places, options.files);
    if (!wrong.isEmpty())
        return refuse(wrong);
    int status = kDone;
    for (qsizetype i = 0; i < options.files.size(); ++i) {
        if (importFile(options.files[i], options.name, places[i]) != kDone)
            status = kFailed;
    }
    const int printed = finishOut();
    return printed == kDone ? status : printed;
}

}  // namespace dabcanvas::dabpaint
