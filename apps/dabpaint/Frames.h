// SPDX-License-Identifier: MIT
// The pictures on the way: one after every so many strokes, into files of their own or into a timelapse.
#pragma once

#include <QColor>
#include <QImage>
#include <memory>
#include <optional>

#include "FrameTaker.h"
#include "PaintCommand.h"

class QDDrawCanvas;

namespace dabcanvas::dabpaint {

class Frames {
public:
    explicit Frames(const PaintOptions& options) : _options(options) {}

    // What the pictures are put onto, where the canvas itself has none.
    void setBackground(const std::optional<QColor>& color) { _background = color; }
    QImage onBackground(const QImage& image) const;

    // All of these give the message when it could not be done.
    QString begin();
    QString strokePainted(QDDrawCanvas& canvas);
    // The last picture goes in, too, unless it was the last frame.
    QString end(const QImage& last);

    qint64 strokes() const { return _strokes; }

private:
    QString add(const QImage& image);

    const PaintOptions& _options;
    std::optional<QColor> _background;
    std::unique_ptr<FrameTaker> _timelapse;
    qint64 _strokes = 0;
    bool _isNew = true;  // a stroke was painted since the last frame, or none is there yet
};

}  // namespace dabcanvas::dabpaint
