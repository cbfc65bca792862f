// SPDX-License-Identifier: MIT
#include "PaintCommand.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <memory>
#include <numeric>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#endif

#include "BrushPlan.h"
#include "Canvas/QDDrawCanvas.h"
#include "Console.h"
#include "DabEstimate.h"
#include "History/ImagesUndoManager.h"
#include "OutputFile.h"
#include "PictureKinds.h"
#include "Progress.h"
#include "Recording/StrokesFile.h"
#include "Surface/PaintSurface.h"
#include "ToolCanvas.h"

namespace dabcanvas::dabpaint {

namespace {

struct Job {
    std::vector<RecordedStrokes> recordings;
    BrushPlan plan;
    QSize size;
    QColor background = Qt::white;
    qint64 strokes = 0;
    qint64 samples = 0;
    std::vector<std::vector<double>> dabs;  // estimated, by recording and stroke
    double allDabs = 0;
};

constexpr qint64 kUndoBytes = qint64(256) << 20;  // of steps to be undone in memory; the others go to files

struct Painting {
    QImage image;
    StrokeStats stats;
    QString renderer;
};

QString readRecordings(const PaintOptions& options, Job& job) {
    for (const QString& path : options.recordings) {
        const auto bytes = readFile(path);
        if (!bytes)
            return bytes.problem().text(path);
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

class Painter {
public:
    Painter(const PaintOptions& options, const Job& job) : _options(options), _job(job) {}

    // The message when it could not be done.
    QString run(Painting& painting) {
        QString wrong = begin();
        if (wrong.isEmpty())
            wrong = paintAll();
        if (wrong.isEmpty())
            wrong = undoLast();
        if (!wrong.isEmpty())
            return wrong;
        painting = {_canvas->image(), _canvas->strokeStats(), _canvas->rendererName()};
        return painting.image.isNull() ? QStringLiteral("the canvas could not be read back") : QString();
    }

private:
    QString begin() {
        auto canvas = makeCanvas(_job.size, _options.surface);
        if (!canvas)
            return canvas.problem().what;
        _canvas = std::move(*canvas);
        if (_options.undo > 0)
            _canvas->undoManager();  // takes a random number, which the strokes' must not depend on
        if (_options.repeatable)
            _canvas->setRepeatableRandom(true);
        _canvas->setProfiling(_options.stats);
        _canvas->clearWithColor(ESColor(_job.background), false);
        _canvas->setEnableRecogition(_options.recognise);
        for (const BrushProperty& property : brushProperties())
            _created.emplace_back(&property, _canvas->brushValue(property));
        const QString wrong = _job.plan.brush() ? useBrush(_job.plan.brush()) : apply(_job.plan.fixed());
        for (const BrushProperty* property : _job.plan.touched())
            _base.insert_or_assign(property, _canvas->brushValue(*property));
        return wrong;
    }

    // Makes a preset the brush, or the one of a new canvas, with the command line's settings.
    QString useBrush(const std::shared_ptr<const Brush>& brush) {
        // First, as a preset need not name everything.
        if (!useCreatedBrush())
            return QStringLiteral("the canvas does not take its first brush again");
        if (brush)
            brush->applyTo(*_canvas);
        return apply(_job.plan.fixed());
    }

    bool useCreatedBrush() {
        for (const auto& [property, value] : _created) {
            // A drawn tip is no image to hand in: that would stay when the radius changes.
            if (property->key != BrushKey::textureImages && !_canvas->setBrushValue(*property, value))
                return false;
        }
        return true;
    }

    QString apply(const std::vector<BrushPlan::Step>& steps) {
        for (const auto& [property, value] : steps) {
            if (!_canvas->setBrushValue(*property, value ? *value : _base.at(property)))
                return QStringLiteral("the canvas does not take this value of %1")
                    .arg(QLatin1String(property->name));
        }
        return {};
    }

    QString paintAll() {
        const SurfaceScope current(_canvas->surface());  // nobody else draws meanwhile
        Progress progress(_job.allDabs);
        std::size_t left = 0;
        for (const RecordedStrokes& recording : _job.recordings)
            left += recording.strokes.size();
        const auto undone = static_cast<std::size_t>(_options.undo);
        if (undone > 0) {
            _canvas->undoManager().setUndoStepCount(static_cast<unsigned>(_options.undo));
            _canvas->undoManager().setDropsSteps(false);
            _canvas->undoManager().setCacheByteBudget(kUndoBytes);
            _canvas->resetUndoManager();
        }
        for (std::size_t i = 0; i < _job.recordings.size(); ++i) {
            // Every recording starts afresh.
            QString wrong = i > 0 ? useBrush(_job.plan.brush()) : QString();
            const auto& strokes = _job.recordings[i].strokes;
            for (std::size_t j = 0; j < strokes.size() && wrong.isEmpty(); ++j) {
                const BrushPlan::Change& change = _job.plan.before(i, j);
                if (change.brush)
                    wrong = useBrush(change.brush);
                if (wrong.isEmpty())
                    wrong = apply(change.steps);
                if (!wrong.isEmpty())
                    break;
                const double work =
                    _job.dabs[i][j] / double(std::max<std::size_t>(strokes[j].samples.size(), 1));
                paintSamples(*_canvas, strokes[j].samples, [&] { progress.advance(work); });
                --left;
                if (undone > 0 && left == undone)
                    _canvas->resetUndoManager();  // what remains
                else if (left < undone)
                    _isStep.push_back(!_canvas->markAction().isNull());
            }
            if (!wrong.isEmpty())
                return wrong;
        }
        return {};
    }

    // A stroke that drew nothing is no step.
    QString undoLast() {
        for (const bool isStep : _isStep) {
            if (isStep && _canvas->undo().isNull())
                return QStringLiteral("a stroke cannot be undone");
        }
        // A lost step clears the canvas, which the next one to be undone makes good.
        return _isStep.empty() || _canvas->undoManager().hasCurrentImage()
                   ? QString()
                   : QStringLiteral("the picture before the undone strokes is lost");
    }

    const PaintOptions& _options;
    const Job& _job;
    std::vector<bool> _isStep;  // of the strokes to be undone
    std::unique_ptr<QDDrawCanvas> _canvas;
    std::vector<std::pair<const BrushProperty*, QVariant>> _created;  // the brush of a new canvas
    std::map<const BrushProperty*, QVariant> _base;  // what recordings' settings are undone to
};

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
    const QJsonObject canvas{{QStringLiteral("width"), job.size.width()},
                             {QStringLiteral("height"), job.size.height()}};
    const QJsonObject all{
        {QStringLiteral("strokes"), job.strokes},         {QStringLiteral("samples"), job.samples},
        {QStringLiteral("dabs"), qint64(stats.dabs)},     {QStringLiteral("canvas"), canvas},
        {QStringLiteral("renderer"), painting.renderer},  {QStringLiteral("seconds"), seconds},
        {QStringLiteral("peakMemoryBytes"), peakMemory()}};
    const QByteArray text = QJsonDocument(all).toJson(QJsonDocument::Compact) + '\n';
    printOut(std::string_view(text.constData(), std::size_t(text.size())));
    return finishOut();
}

}  // namespace

int runPaint(const PaintOptions& options) {
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
    wrong = readRecordings(options, job);
    if (!wrong.isEmpty())
        return fail(wrong);
    wrong = overwritingRefusal({options.output},
                               options.recordings + job.plan.files() + QStringList(options.brush));
    if (!wrong.isEmpty())
        return refuse(wrong);
    for (const auto step : {&estimateWork, &chooseSize, &chooseBackground}) {
        wrong = step(options, job);
        if (!wrong.isEmpty())
            return fail(wrong);
    }
    Painting painting;
    wrong = Painter(options, job).run(painting);
    if (!wrong.isEmpty())
        return fail(wrong);

    QElapsedTimer encodingClock;
    encodingClock.start();
    QByteArray bytes;
    wrong = encodePicture(painting.image, options.output, bytes);
    const double encoding = double(encodingClock.nsecsElapsed()) * 1e-9;
    if (!wrong.isEmpty())
        return fail(wrong);
    if (!output.write(bytes))
        return fail(QStringLiteral("%1: cannot be written: %2").arg(options.output, output.errorString()));
    return options.stats ? printStats(job, painting, encoding, double(clock.nsecsElapsed()) * 1e-9) : kDone;
}

}  // namespace dabcanvas::dabpaint
