// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <atomic>
#include <thread>

#include "Recording/SessionRecorder.h"

class QDDrawCanvas;

namespace dabcanvas {
class FrameTaker;
class RecordingPlayer;
}  // namespace dabcanvas

namespace dabcanvas::dabpainter {

// Paints a recording again, in a thread of its own, and writes the pictures on the way: an animated WebP, or a folder of
// numbered pictures. One that is cancelled, or cannot be written, leaves nothing behind.
//
// Pixels   painted by the processor: within 3/255 of what a graphics card made.
// Thread   the application's main thread, which the signals come in.
class TimelapseExport : public QObject {
    Q_OBJECT

public:
    static constexpr int kMostFrames = 600;

    // Of the picture at this path, beside it; an untitled one has none.
    static QString suggestedPath(const QString& picture);

    TimelapseExport(SessionRecorder::Recorded recorded, QString path, QObject* parent = nullptr);
    ~TimelapseExport() override;  // of one that goes on: cancels it
    void start();
    void cancel() { _isCancelled = true; }

signals:
    void progressed(int strokes, int all);
    void finished(const QString& fault);  // empty when it is written, or was cancelled

private:
    QString write();
    QString paint(RecordingPlayer& player, QDDrawCanvas& canvas, int strokes, FrameTaker& frames);

    const SessionRecorder::Recorded _recorded;
    const QString _path;
    std::atomic<bool> _isCancelled = false;
    std::thread _thread;
};

}  // namespace dabcanvas::dabpainter
