// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>
#include <QTemporaryFile>
#include <memory>

class QDDrawCanvas;

namespace dabcanvas {
class CanvasRecorder;
class RecordingWriter;
}  // namespace dabcanvas

namespace dabcanvas::dabpainter {

// Records what is painted on a canvas into a temporary file, so that hours of it take no more memory than a stroke.
//
// Life     stop(), or the next start(), before the canvas goes.
// Thread   the canvas's.
// Errors   faults in words; empty for none.
class SessionRecorder {
    Q_DECLARE_TR_FUNCTIONS(dabcanvas::dabpainter::SessionRecorder)

public:
    // What was recorded so far, as it is now; its file stays as long as anybody holds it.
    struct Recorded {
        std::shared_ptr<QTemporaryFile> file;  // null: nothing
        QString path;
        qint64 bytes = 0;
    };

    SessionRecorder();
    ~SessionRecorder();

    // Anew, of this canvas, which nobody paints on just now.
    QString start(QDDrawCanvas& canvas);
    // What was recorded is there until the next start.
    void stop();
    bool isRecording() const { return _recorder != nullptr; }

    Recorded recorded();
    // Of what could not be written down, without which the rest is of no use.
    QString fault() const;
    // As lines, see docs/recordings.md; the file appears, or is replaced, only once it is whole.
    QString exportTo(const QString& path);

private:
    void settle();

    std::shared_ptr<QTemporaryFile> _file;
    std::unique_ptr<RecordingWriter> _writer;
    std::unique_ptr<CanvasRecorder> _recorder;
};

}  // namespace dabcanvas::dabpainter
