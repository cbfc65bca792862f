// SPDX-License-Identifier: MIT
#include "PaintJob.h"

#include <QFileInfo>
#include <algorithm>
#include <numeric>
#include <utility>

#include "DabEstimate.h"
#include "LogCatcher.h"
#include "Recording/RecordingPlayer.h"
#include "Recording/RecordingReader.h"

namespace dabcanvas::dabpaint {

namespace {

// A canvas's recording says all by itself, and is painted by itself.
QString readRecorded(const PaintOptions& options, const QString& path, const QByteArray& bytes, Job& job) {
    const std::pair<bool, const char*> kSaidByItself[] = {{!options.brush.isEmpty(), "--brush"},
                                                          {options.undo > 0, "--undo"},
                                                          {options.recognise, "--recognise"},
                                                          {options.repeatable, "--repeatable"}};
    for (const auto& [given, option] : kSaidByItself) {
        if (given)
            return QStringLiteral("%1: it is a canvas's recording, which takes no %2")
                .arg(path, QLatin1String(option));
    }
    if (options.recordings.size() > 1)
        return QStringLiteral(
                   "%1: it is a canvas's recording, of which each is a picture of its own: -o OUT/%n.png")
            .arg(path);
    const LogCatcher log;  // of pictures that cannot be decoded
    auto recording = readRecording(bytes);
    if (!recording)
        return recording.problem().text(path);
    const QSize own = recording->header.size;
    if (options.size.isValid())
        job.scale = std::min(double(options.size.width()) / own.width(),
                             double(options.size.height()) / own.height());
    job.size = playedSize(recording->header, job.scale);
    for (const RecordedEvent& event : recording->events) {
        if (const auto* part = std::get_if<StrokePart>(&event.what)) {
            job.strokes += part->begins ? 1 : 0;
            job.samples += qint64(part->samples.size());
        }
    }
    job.recording = std::move(*recording);
    return {};
}

QString readRecordings(const PaintOptions& options, Job& job) {
    for (const QString& path : options.recordings) {
        const auto bytes = readFile(path);
        if (!bytes)
            return bytes.problem().text(path);
        if (isRecording(*bytes))
            return readRecorded(options, path, *bytes, job);
        auto recording = readStrokes(*bytes);
        if (!recording)
            return recording.problem().text(path);
        if (const auto problem = job.plan.add(*recording, QFileInfo(path).path()))
            return problem->text(path);
        job.strokes += qint64(recording->strokes.size());
        for (const RecordedStroke& stroke : recording->strokes)
            job.samples += qint64(stroke.samples.size());
        job.recordings.push_back(std::move(*recording));
    }
    return {};
}

QString estimateWork(const PaintOptions& options, Job& job) {
    for (std::size_t i = 0; i < job.recordings.size(); ++i) {
        const auto& dabs = job.dabs.emplace_back(estimatedDabs(job.recordings[i], job.plan, i));
        job.allDabs = std::accumulate(dabs.begin(), dabs.end(), job.allDabs);
        if (job.allDabs > double(options.mostDabs))
            return QStringLiteral(
                       "%1: about %2 dabs would have to be drawn, more than %3; --most-dabs N allows N")
                .arg(options.recordings[qsizetype(i)])
                .arg(job.allDabs, 0, 'f', 0)
                .arg(options.mostDabs);
    }
    return {};
}

QString chooseSize(const PaintOptions& options, Job& job) {
    job.size = options.size;
    if (job.size.isValid())
        return {};
    for (std::size_t i = 0; i < job.recordings.size(); ++i) {
        job.size = job.size.expandedTo(neededSize(job.recordings[i], job.plan.largestRadius()));
        const QString refusal = sizeRefusal(job.size.width(), job.size.height());
        if (!refusal.isEmpty())
            return QStringLiteral("%1: %2; choose one with --size")
                .arg(options.recordings[qsizetype(i)], refusal);
    }
    return {};
}

QString chooseBackground(const PaintOptions& options, Job& job) {
    bool chosen = false;
    for (std::size_t i = 0; i < job.recordings.size(); ++i) {
        const RecordedStrokes& recording = job.recordings[i];
        if (recording.background.isEmpty())
            continue;
        const auto color = colorFromText(recording.background);
        if (!color)
            return Problem{recording.backgroundLine, QStringLiteral("canvas.background"),
                           QStringLiteral("expected a colour: #rrggbb, #rrggbbaa or transparent")}
                .text(options.recordings[qsizetype(i)]);
        if (!std::exchange(chosen, true))
            job.background = *color;
    }
    if (options.background)
        job.background = *options.background;
    return {};
}

}  // namespace

QString prepareJob(const PaintOptions& options, Job& job) {
    QString wrong = readRecordings(options, job);
    if (job.recording)
        return wrong;
    for (const auto step : {&estimateWork, &chooseSize, &chooseBackground}) {
        if (wrong.isEmpty())
            wrong = step(options, job);
    }
    return wrong;
}

}  // namespace dabcanvas::dabpaint
