// SPDX-License-Identifier: MIT
#include <QDir>
#include <QFileInfo>
#include <set>

#include "BrushSample.h"
#include "Console.h"
#include "OutputFile.h"
#include "PictureKinds.h"
#include "PresetCommand.h"
#include "ToolCanvas.h"

namespace dabcanvas::dabpaint {

namespace {

const QSize kSampleSize(480, 180);

int writePicture(const QImage& image, const QString& path) {
    QByteArray bytes;
    const QString wrong = encodePicture(image, path, bytes);
    if (!wrong.isEmpty())
        return fail(wrong);
    OutputFile file(path);
    return file.write(bytes)
               ? kDone
               : fail(QStringLiteral("%1: cannot be written: %2").arg(path, file.errorString()));
}

// Where each preset's picture goes when the output is a folder; the message when two would meet.
QString placesInFolder(const PresetPreviewOptions& options, QStringList& places) {
    std::set<QString> taken;
    for (const QString& path : options.files) {
        const QString name = QFileInfo(path).completeBaseName() + QStringLiteral(".png");
        if (!taken.insert(name).second)
            return QStringLiteral("two previews would be written to %1")
                .arg(QDir(options.output).filePath(name));
        places << QDir(options.output).filePath(name);
    }
    return {};
}

}  // namespace

int runPresetPreview(const PresetPreviewOptions& options) {
    BrushPlan plan;
    QString wrong = plan.fix(options.settings);
    if (!wrong.isEmpty())
        return refuse(wrong);
    QStringList places;
    const bool toFolder = !options.sheet && QFileInfo(options.output).isDir();
    if (toFolder)
        wrong = placesInFolder(options, places);
    else if (const QString kind = pictureKindRefusal(options.output); !kind.isEmpty())
        return refuse(QStringLiteral("%1: %2").arg(options.output, kind));
    else if (!options.sheet && options.files.size() > 1)
        wrong =
            QStringLiteral("%1: several previews need a folder that exists, or --sheet").arg(options.output);
    else if (OutputFile file(options.output); !file.check())
        wrong = QStringLiteral("%1: cannot be written: %2").arg(options.output, file.errorString());
    if (!wrong.isEmpty())
        return fail(wrong);
    wrong = overwritingRefusal(toFolder ? places : QStringList(options.output), options.files + plan.files());
    if (!wrong.isEmpty())
        return refuse(wrong);

    int status = kDone;
    std::vector<NamedSample> samples;
    for (qsizetype i = 0; i < options.files.size(); ++i) {
        const QString& path = options.files[i];
        const auto brush = readBrush(path);
        if (!brush) {
            status = fail(brush.problem().text(path));
            continue;
        }
        const auto sample =
            brushSample(**brush, plan.fixed(), options.size.isValid() ? options.size : kSampleSize);
        if (!sample)
            return fail(sample.problem().text(path));
        if (options.sheet) {
            const QString& name = (*brush)->name;
            samples.push_back({name.isEmpty() ? QFileInfo(path).completeBaseName() : name, *sample});
        } else if (writePicture(*sample, places.isEmpty() ? options.output : places[i]) != kDone) {
            status = kFailed;
        }
    }
    if (!samples.empty() && writePicture(sampleSheet(samples), options.output) != kDone)
        status = kFailed;
    return status;
}

}  // namespace dabcanvas::dabpaint
