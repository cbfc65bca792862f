// SPDX-License-Identifier: MIT
#include "PaintCommand.h"

#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#endif

#include "Console.h"
#include "OutputFile.h"
#include "OutputPattern.h"
#include "PaintProcesses.h"
#include "Painting.h"
#include "PictureKinds.h"

namespace dabcanvas::dabpaint {

namespace {

qint64 peakMemory() {
#ifdef Q_OS_UNIX
    rusage usage{};
    if (getrusage(RUSAGE_SELF, &usage) == 0) {
#ifdef Q_OS_DARWIN
        return qint64(usage.ru_maxrss);
#else
        return qint64(usage.ru_maxrss) * 1024;
#endif
    }
#endif
    return 0;
}

int printStats(const Job& job, const Painting& painting, double encoding, double total) {
    const StrokeStats& stats = painting.stats;
    const QJsonObject seconds{{QStringLiteral("geometry"), stats.geometrySeconds},
                              {QStringLiteral("drawing"), stats.drawingSeconds},
                              {QStringLiteral("compositing"), stats.compositingSeconds},
                              {QStringLiteral("encoding"), encoding},
                              {QStringLiteral("total"), total}};
    const QJsonObject canvas{{QStringLiteral("width"), painting.image.width()},
                             {QStringLiteral("height"), painting.image.height()}};
    const QJsonObject all{
        {QStringLiteral("strokes"), job.strokes},         {QStringLiteral("samples"), job.samples},
        {QStringLiteral("dabs"), qint64(stats.dabs)},     {QStringLiteral("canvas"), canvas},
        {QStringLiteral("renderer"), painting.renderer},  {QStringLiteral("seconds"), seconds},
        {QStringLiteral("peakMemoryBytes"), peakMemory()}};
    const QByteArray text = QJsonDocument(all).toJson(QJsonDocument::Compact) + '\n';
    printOut(std::string_view(text.constData(), std::size_t(text.size())));
    return finishOut();
}

// Everything onto one canvas, and one picture of it.
int paintOne(const PaintOptions& options) {
    QElapsedTimer clock;
    clock.start();
    Job job;
    QString wrong = job.plan.fix(options.settings);
    if (!wrong.isEmpty())
        return refuse(wrong);
    wrong = pictureKindRefusal(options.output);
    if (!wrong.isEmpty())
        return refuse(QStringLiteral("%1: %2").arg(options.output, wrong));
    OutputFile output(options.output);
    if (!output.check())
        return fail(QStringLiteral("%1: cannot be written: %2").arg(options.output, output.errorString()));
    if (!options.brush.isEmpty()) {
        auto brush = readBrush(options.brush);
        if (!brush)
            return fail(brush.problem().text(options.brush));
        job.plan.begin(std::move(*brush));
    }
    wrong = prepareJob(options, job);
    if (!wrong.isEmpty())
        return fail(wrong);
    QStringList outputs{options.output};
    if (!options.timelapse.isEmpty())
        outputs << options.timelapse;
    wrong = overwritingRefusal(outputs, options.recordings + job.plan.files() + QStringList(options.brush));
    if (!wrong.isEmpty())
        return refuse(wrong);
    Painting painting;
    Frames frames(options);
    wrong = frames.begin();
    if (wrong.isEmpty())
        wrong = (job.recording ? paintRecording : paintStrokes)(options, job, frames, painting);
    if (wrong.isEmpty())
        wrong = frames.end(painting.image);
    if (!wrong.isEmpty())
        return fail(wrong);

    QElapsedTimer encodingClock;
    encodingClock.start();
    QByteArray bytes;
    const QString path = outputAfter(options.output, frames.strokes());
    wrong = encodePicture(painting.image, path, bytes);
    const double encoding = double(encodingClock.nsecsElapsed()) * 1e-9;
    if (!wrong.isEmpty())
        return fail(wrong);
    OutputFile last(path);
    if (!last.write(bytes))
        return fail(QStringLiteral("%1: cannot be written: %2").arg(path, last.errorString()));
    return options.stats ? printStats(job, painting, encoding, double(clock.nsecsElapsed()) * 1e-9) : kDone;
}

}  // namespace

QString paintRefusal(const PaintOptions& options) {
    const bool isEach = namesEach(options.output);
    if (options.stats && options.output == QLatin1String("-"))
        return QStringLiteral("--stats and -o - would both write to standard output");
    if (options.every > 0 && options.timelapse.isEmpty() && !namesStrokes(options.output))
        return QStringLiteral("--every needs --timelapse, or %s in the name of -o");
    if (options.jobs > 0 && !isEach)
        return QStringLiteral("--jobs needs %n or %i in the name of -o: a picture of each recording");
    if (isEach && options.recordings.size() > 1 && !options.timelapse.isEmpty() &&
        !namesEach(options.timelapse))
        return QStringLiteral("--timelapse needs %n or %i in its name, as -o has");
    return {};
}

std::vector<PaintOptions> paintedApart(const PaintOptions& options) {
    std::vector<PaintOptions> all;
    if (!namesEach(options.output))
        return {options};
    for (const QString& recording : options.recordings) {
        PaintOptions one = options;
        one.recordings = {recording};
        const auto number = qsizetype(all.size()) + 1;
        one.output = outputOf(options.output, recording, number);
        one.timelapse = outputOf(options.timelapse, recording, number);
        all.push_back(std::move(one));
    }
    return all;
}

int runPaint(const PaintOptions& options) {
    const auto all = paintedApart(options);
    QStringList outputs;
    for (const PaintOptions& one : all)
        outputs << one.output;
    // Of the same name, they would take each other's place.
    if (const QString wrong = overwritingRefusal(outputs, {}); !wrong.isEmpty())
        return refuse(wrong);
    if (options.jobs > 0)
        return paintByProcesses(all, options.jobs);
    int status = kDone;
    for (const PaintOptions& one : all) {
        if (const int ended = paintOne(one); ended != kDone)
            status = ended;
    }
    return status;
}

}  // namespace dabcanvas::dabpaint
