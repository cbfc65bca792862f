// SPDX-License-Identifier: MIT
#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <set>

#include "Console.h"
#include "OutputFile.h"
#include "PictureKinds.h"
#include "PresetCommand.h"
#include "SampleSheet.h"
#include "ToolCanvas.h"

namespace dabcanvas::dabpaint {

namespace {

const QSize kPreviewSize(480, 180), kSampleSize(176, 112);
constexpr int kFewPresets = 10;  // one below the other

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

// Whether a picture may be written there; tells it where it may not.
int checkPicture(const QString& path) {
    if (const QString kind = pictureKindRefusal(path); !kind.isEmpty())
        return refuse(QStringLiteral("%1: %2").arg(path, kind));
    if (OutputFile file(path); !file.check())
        return fail(QStringLiteral("%1: cannot be written: %2").arg(path, file.errorString()));
    return kDone;
}

// Paints each file's brush: `paint` takes its place in the list and the brush. What cannot be read is told and left
// out.
template <typename Paint>
int withBrushes(const QStringList& files, const Paint& paint) {
    int status = kDone;
    for (qsizetype i = 0; i < files.size(); ++i) {
        const auto brush = readBrush(files[i]);
        if (!brush)
            status = fail(brush.problem().text(files[i]));
        else if (paint(i, **brush) != kDone)
            status = kFailed;
    }
    return status;
}

}  // namespace

int runPresetPreview(const PresetPreviewOptions& options) {
    BrushPlan plan;
    if (const QString wrong = plan.fix(options.settings); !wrong.isEmpty())
        return refuse(wrong);
    QStringList places;
    if (QFileInfo(options.output).isDir()) {
        if (const QString wrong = placesInFolder(options, places); !wrong.isEmpty())
            return fail(wrong);
    } else if (const int status = checkPicture(options.output); status != kDone) {
        return status;
    } else if (options.files.size() > 1) {
        return fail(QStringLiteral("%1: several previews need a folder that exists").arg(options.output));
    } else {
        places << options.output;
    }
    if (const QString wrong = overwritingRefusal(places, options.files + plan.files()); !wrong.isEmpty())
        return refuse(wrong);
    return withBrushes(options.files, [&](qsizetype i, const Brush& brush) {
        const auto sample =
            brushSample(brush, plan.fixed(), options.size.isValid() ? options.size : kPreviewSize);
        return sample ? writePicture(*sample, places[i]) : fail(sample.problem().text(options.files[i]));
    });
}

int runPresetSheet(const PresetSheetOptions& options) {
    BrushPlan plan;
    if (const QString wrong = plan.fix(options.settings); !wrong.isEmpty())
        return refuse(wrong);
    const QSize size = options.size.isValid() ? options.size : kSampleSize;
    const int count = int(options.files.size());
    const int across = std::min(count, options.across > 0 ? options.across : count > kFewPresets ? 2 : 1);
    const auto sheet = sheetSize(size, count, across);
    if (const QString wrong = sizeRefusal(sheet.width(), sheet.height()); !wrong.isEmpty())
        return refuse(QStringLiteral("the sheet would be too large: %1").arg(wrong));
    if (const int status = checkPicture(options.output); status != kDone)
        return status;
    if (const QString wrong = overwritingRefusal({options.output}, options.files + plan.files());
        !wrong.isEmpty())
        return refuse(wrong);

    std::vector<SheetRow> rows;
    const int status = withBrushes(options.files, [&](qsizetype i, const Brush& brush) {
        auto row = sheetRow(brush, plan.fixed(), size);
        if (!row)
            return fail(row.problem().text(options.files[i]));
        if (row->name.isEmpty())
            row->name = QFileInfo(options.files[i]).completeBaseName();
        rows.push_back(std::move(*row));
        return int(kDone);
    });
    const bool written = rows.empty() || writePicture(sampleSheet(rows, std::min(across, int(rows.size()))),
                                                      options.output) == kDone;
    return written ? status : int(kFailed);
}

}  // namespace dabcanvas::dabpaint
