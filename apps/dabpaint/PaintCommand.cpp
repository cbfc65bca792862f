// SPDX-License-Identifier: MIT
#include "PaintCommand.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QImageWriter>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <cstdlib>
#include <memory>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#include <unistd.h>
#endif

#include "BrushPlan.h"
#include "Console.h"
#include "ESContext/ESCurrentScope.h"
#include "LineProcess/LPRandom.h"
#include "PictureFile.h"
#include "QDEAGLView/QDDrawCanvas.h"
#include "Recording.h"

namespace dabcanvas::dabpaint {

namespace {

// Keeps what the libraries log while it lives: a failure has one line of its own, which may quote it.
class LogCatcher {
public:
    LogCatcher() : _before(qInstallMessageHandler(&LogCatcher::take)) { lines().clear(); }
    ~LogCatcher() { qInstallMessageHandler(_before); }
    LogCatcher(const LogCatcher&) = delete;
    LogCatcher& operator=(const LogCatcher&) = delete;

    static QStringList& lines() {
        static QStringList lines;
        return lines;
    }

private:
    static void take(QtMsgType, const QMessageLogContext&, const QString& text) {
        if (lines().size() < 20)
            lines() << text.trimmed();
    }

    QtMessageHandler _before;
};

// A share on standard error while somebody watches and the work takes long.
class Progress {
public:
    explicit Progress(qint64 whole) : _whole(whole), _watched(isWatched()) { _clock.start(); }
    ~Progress() {
        if (_shown)
            write("\r\x1B[K");
    }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void advance() {
        ++_done;
        if (!_watched || _done % 64 != 0 || _clock.elapsed() < _next)
            return;
        _next = _clock.elapsed() + kBetween;
        _shown = true;
        write("\rdabpaint: painting, " + QByteArray::number(_done * 100 / _whole) + " %");
    }

private:
    static constexpr qint64 kPatience = 1000, kBetween = 200;  // milliseconds

    static bool isWatched() {
#ifdef Q_OS_UNIX
        return isatty(STDERR_FILENO) == 1;
#else
        return false;
#endif
    }
    static void write(const QByteArray& text) {
        std::fwrite(text.constData(), 1, std::size_t(text.size()), stderr);
    }

    QElapsedTimer _clock;
    qint64 _whole;
    qint64 _done = 0;
    qint64 _next = kPatience;
    bool _watched;
    bool _shown = false;
};

struct Job {
    std::vector<Recording> recordings;
    BrushPlan plan;
    QSize size;
    QColor background = Qt::white;
    qint64 strokes = 0;
    qint64 samples = 0;
};

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
        auto recording = readRecording(*bytes);
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
        const Recording& recording = job.recordings[i];
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
        QString wrong = makeCanvas();
        if (wrong.isEmpty())
            wrong = apply(_job.plan.fixed());
        for (const BrushProperty* property : _job.plan.touched())
            _base.insert_or_assign(property, _canvas ? _canvas->brushValue(*property) : QVariant());
        if (wrong.isEmpty())
            wrong = paintAll();
        if (!wrong.isEmpty())
            return wrong;
        painting = {_canvas->image(), _canvas->strokeStats(), _canvas->rendererName()};
        return painting.image.isNull() ? QStringLiteral("the canvas could not be read back") : QString();
    }

private:
    QString makeCanvas() {
        const LogCatcher log;
        _canvas = QDDrawCanvas::initWithFrame(QRectF(QPointF(), QSizeF(_job.size)));
        if (!_canvas) {
            QString wrong =
                QStringLiteral(
                    "cannot make a canvas of %1x%2; it needs an OpenGL 3.2 driver, such as Mesa's, "
                    "that takes this size")
                    .arg(_job.size.width())
                    .arg(_job.size.height());
            if (!log.lines().isEmpty())
                wrong += QStringLiteral(" (%1)").arg(log.lines().first());
            return wrong;
        }
        if (_options.repeatable) {
            _canvas->setRepeatableRandom(true);
            lpRandom();  // its first call seeds from the clock; after that the seed given here stays
            std::srand(1);
            ::srand48(1);
        }
        _canvas->setProfiling(_options.stats);
        _canvas->clearWithColor(ESColor(_job.background), false);
        return {};
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
        const ESCurrentScope current(_canvas->esContext());  // nobody else draws meanwhile
        Progress progress(_job.samples);
        for (std::size_t i = 0; i < _job.recordings.size(); ++i) {
            QString wrong = apply(_job.plan.undo(i));
            const auto& strokes = _job.recordings[i].strokes;
            for (std::size_t j = 0; j < strokes.size() && wrong.isEmpty(); ++j) {
                wrong = apply(_job.plan.before(i, j));
                if (wrong.isEmpty())
                    paintStroke(strokes[j].samples, progress);
            }
            if (!wrong.isEmpty())
                return wrong;
        }
        return {};
    }

    // Nobody watches the canvas, so nothing is shown on the way ("online" is off).
    void paintStroke(const std::vector<RecordedSample>& samples, Progress& progress) {
        for (std::size_t i = 0; i < samples.size(); ++i) {
            const RecordedSample& sample = samples[i];
            const QPointF point(sample.x, sample.y);
            if (i == 0)
                _canvas->drawingWithBeginPoint(point, sample.pressure, sample.altitude, false);
            else if (i + 1 < samples.size())
                _canvas->drawingWithMoveToPoint(point, sample.pressure, sample.altitude, false);
            if (i + 1 == samples.size())
                _canvas->drawingWithEndPoint(point, sample.pressure, sample.altitude, false);
            progress.advance();
        }
    }

    const PaintOptions& _options;
    const Job& _job;
    std::unique_ptr<QDDrawCanvas> _canvas;
    std::map<const BrushProperty*, QVariant> _base;  // what recordings' settings are undone to
};

QString encode(const QImage& image, QByteArray& bytes) {
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "png");
    return writer.write(image) ? QString()
                               : QStringLiteral("cannot encode the picture: %1").arg(writer.errorString());
}

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
    PictureFile output(options.output);
    if (!output.check())
        return fail(QStringLiteral("%1: cannot be written: %2").arg(options.output, output.errorString()));
    for (const auto step : {&readRecordings, &chooseSize, &chooseBackground}) {
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
    wrong = encode(painting.image, bytes);
    const double encoding = double(encodingClock.nsecsElapsed()) * 1e-9;
    if (!wrong.isEmpty())
        return fail(wrong);
    if (!output.write(bytes))
        return fail(QStringLiteral("%1: cannot be written: %2").arg(options.output, output.errorString()));
    return options.stats ? printStats(job, painting, encoding, double(clock.nsecsElapsed()) * 1e-9) : kDone;
}

}  // namespace dabcanvas::dabpaint
