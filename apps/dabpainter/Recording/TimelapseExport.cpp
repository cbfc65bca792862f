// SPDX-License-Identifier: MIT
#include "Recording/TimelapseExport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <new>

#include "Canvas/CanvasLayers.h"
#include "Canvas/QDDrawCanvas.h"
#include "FrameTaker.h"
#include "Recording/RecordingPlayer.h"
#include "Recording/RecordingReader.h"
#include "WebpPicture.h"
#include "Window/Translations.h"

namespace dabcanvas::dabpainter {

namespace {

int strokesOf(const Recording& recording) {
    return int(
        std::count_if(recording.events.begin(), recording.events.end(), [](const RecordedEvent& event) {
            const auto* part = std::get_if<StrokePart>(&event.what);
            return part != nullptr && part->end == StrokePart::End::ended;
        }));
}

std::unique_ptr<QDDrawCanvas> canvasOf(const RecordingHeader& header) {
    return QDDrawCanvas::initWithFrame(
        QRectF(QPointF(), QSizeF(header.size)),
        {.kind = SurfaceKind::processor, .canvasDepth = header.canvasDepth, .layerDepth = header.layerDepth});
}

}  // namespace

QString TimelapseExport::suggestedPath(const QString& picture) {
    const QString suffix = hasWebp() ? QStringLiteral(".webp") : QString();
    if (picture.isEmpty())
        return QStringLiteral("session") + suffix;
    const QFileInfo file(picture);
    const QString name = file.completeBaseName();
    const QString path = file.dir().filePath(name + suffix);
    return path == picture ? file.dir().filePath(name + QStringLiteral("-timelapse") + suffix) : path;
}

TimelapseExport::TimelapseExport(SessionRecorder::Recorded recorded, QString path, QObject* parent)
    : QObject(parent), _recorded(std::move(recorded)), _path(std::move(path)) {}

TimelapseExport::~TimelapseExport() {
    cancel();
    if (_thread.joinable())
        _thread.join();
}

void TimelapseExport::start() {
    _thread = std::thread([this] {
        const QString fault = [this] {
            try {
                return write();
            } catch (const std::bad_alloc&) {
                return tr("There is no memory for the time-lapse.");
            }
        }();
        QMetaObject::invokeMethod(
            this, [this, fault] { emit finished(fault); }, Qt::QueuedConnection);
    });
}

QString TimelapseExport::write() {
    QFile file(_recorded.path);
    const auto recording =
        readRecording(file.open(QIODevice::ReadOnly) ? file.read(_recorded.bytes) : QByteArray());
    if (!recording)
        return recording.problem().text(tr("The recording"));
    const auto canvas = canvasOf(recording->header);
    std::unique_ptr<FrameTaker> frames;
    if (!canvas)
        return tr("There is no memory for the time-lapse.");
    if (const QString wrong = makeFrameTaker(_path, frames); !wrong.isEmpty())
        return wrong;
    RecordingPlayer player(*recording, *canvas);
    QString fault = paint(player, *canvas, strokesOf(*recording), *frames);
    if (fault.isEmpty() && !_isCancelled)
        fault = frames->finish();
    if (!fault.isEmpty() || _isCancelled)
        frames->discard();
    return fault;
}

// Stroke by stroke, unless it is cancelled.
QString TimelapseExport::paint(RecordingPlayer& player, QDDrawCanvas& canvas, int strokes,
                               FrameTaker& frames) {
    const int every = strokes / kMostFrames + 1;
    for (int stroke = 1; !_isCancelled && player.playStroke(); ++stroke) {
        const QString wrong = stroke % every == 0 ? frames.add(canvas.layers().flattened()) : QString();
        if (!wrong.isEmpty())
            return wrong;
        emit progressed(stroke, strokes);
    }
    if (!player.problem().isEmpty() || _isCancelled)
        return player.problem();
    // What came after the last stroke shows in the last frame.
    return frames.add(canvas.layers().flattened());
}

}  // namespace dabcanvas::dabpainter
