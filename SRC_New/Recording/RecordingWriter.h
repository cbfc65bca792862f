// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
#include <QIODevice>
#include <QString>
#include <string>

#include "Maths/Export.h"
#include "Recording/Recording.h"

namespace dabcanvas {

/// Recordings as JSON lines: a header, then a line for everything that entered the canvas; docs/recordings.md has the
/// form.
///
///     RecordingWriter writer(file);                       // a QIODevice that is open
///     writer.begin(header);
///     for (const RecordedEvent& event : events) writer.write(event);
///     if (!writer.finish()) complain(writer.problem());
///
/// Numbers come back as the same float or double. Pictures are embedded once, however often they come.
class DABCANVAS_RECORDING_API RecordingWriter {
public:
    /// The device must outlive it.
    explicit RecordingWriter(QIODevice& device) : _device(device) {}
    RecordingWriter(const RecordingWriter&) = delete;
    RecordingWriter& operator=(const RecordingWriter&) = delete;

    /// The header, first and once; then what happened, in its order.
    void begin(const RecordingHeader& header);
    void write(const RecordedEvent& event);
    /// Writes what is held back; false when anything could not be written.
    bool finish();
    /// What could not be written; empty for nothing.
    const QString& problem() const { return _problem; }

private:
    friend class EventText;
    void endLine();
    std::string picture(const QImage& image);

    QIODevice& _device;
    QString _problem;
    std::string _line;  // of brush changes, which share one while no property comes twice
    double _lineTime = 0;
    std::vector<BrushKey> _lineKeys;
    QHash<QByteArray, int> _pictures;  // by their sum
};

/// All of it; false when it could not be written.
DABCANVAS_RECORDING_API bool writeRecording(const Recording& recording, QIODevice& device);

}  // namespace dabcanvas
