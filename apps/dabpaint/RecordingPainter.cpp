// SPDX-License-Identifier: MIT
#include "Canvas/CanvasLayers.h"
#include "Painting.h"
#include "Progress.h"
#include "Recording/RecordingPlayer.h"
#include "Surface/PaintSurface.h"
#include "ToolCanvas.h"

namespace dabcanvas::dabpaint {

namespace {

// Of the surface that it was recorded on, where that can be had and no other is asked for.
Result<std::unique_ptr<QDDrawCanvas>> canvasOf(const PaintOptions& options, const Job& job) {
    const RecordingHeader& header = job.recording->header;
    SurfaceOptions surface{
        .kind = options.surface.kind, .canvasDepth = header.canvasDepth, .layerDepth = header.layerDepth};
    if (surface.kind != SurfaceKind::automatic)
        return makeCanvas(job.size, surface);
    surface.kind = surfaceKindOf(header.surface.toStdString()).value_or(SurfaceKind::automatic);
    auto canvas = makeCanvas(job.size, surface);
    surface.kind = SurfaceKind::processor;
    return canvas ? std::move(canvas) : makeCanvas(job.size, surface);
}

QString playAll(const PaintOptions& options, const Job& job, QDDrawCanvas& canvas, Frames& frames) {
    PlayOptions play{.scale = job.scale, .seed = options.seed};
    for (const BrushPlan::Step& step : job.plan.fixed()) {
        play.fixed.insert(step.property->key);
        if (!canvas.setBrushValue(*step.property, *step.value))
            return QStringLiteral("the canvas does not take this value of %1")
                .arg(QLatin1String(step.property->name));
    }
    const SurfaceScope current(canvas.surface());  // nobody else draws meanwhile
    Progress progress(double(job.recording->events.size()) + 1);
    RecordingPlayer player(*job.recording, canvas, play);
    while (player.playStroke()) {
        if (const QString wrong = frames.strokePainted(canvas); !wrong.isEmpty())
            return wrong;
        progress.advance(double(player.eventsPlayed()) - progress.done());
        if (qint64(canvas.strokeStats().dabs) > options.mostDabs)
            return QStringLiteral("%1: more than %2 dabs would have to be drawn; --most-dabs N allows N")
                .arg(options.recordings.first())
                .arg(options.mostDabs);
    }
    return player.problem().isEmpty() ? QString()
                                      : QStringLiteral("%1: event %2: %3")
                                            .arg(options.recordings.first())
                                            .arg(player.eventsPlayed() + 1)
                                            .arg(player.problem());
}

}  // namespace

QString paintRecording(const PaintOptions& options, const Job& job, Frames& frames, Painting& painting) {
    auto canvas = canvasOf(options, job);
    if (!canvas)
        return canvas.problem().what;
    QDDrawCanvas& paints = **canvas;
    paints.setProfiling(options.stats);
    frames.setBackground(options.background);
    const QString wrong = playAll(options, job, paints, frames);
    if (!wrong.isEmpty())
        return wrong;
    painting = {paints.layers().flattened(), paints.strokeStats(), paints.rendererName()};
    if (painting.image.isNull())
        return QStringLiteral("the canvas could not be read back");
    painting.image = frames.onBackground(painting.image);
    return {};
}

}  // namespace dabcanvas::dabpaint
