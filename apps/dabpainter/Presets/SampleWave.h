// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QSize>
#include <memory>

class QDDrawCanvas;

namespace dabcanvas::dabpainter {

// A wave that shows how a brush paints, on a canvas of its own. It is painted a few samples at a time, so
// that the user's own stroke need not wait for it.
//
// Sizes   buffer pixels.
class SampleWave {
public:
    SampleWave();
    ~SampleWave();
    SampleWave(const SampleWave&) = delete;
    SampleWave& operator=(const SampleWave&) = delete;

    // Null while prepare() has not made one.
    QDDrawCanvas* canvas() const { return _canvas.get(); }
    // Makes a canvas of this size when there is none yet. False when it cannot be had, now and from then on.
    bool prepare(QSize size);

    // Begins the wave with the canvas's brush, in whose place one of dots times its size is set, or one as
    // large as there is room for.
    void begin(float dots);
    // Goes on for about these milliseconds. True when the wave is complete.
    bool paint(int milliseconds);
    void abandon();
    QImage image() const;

private:
    void fitBrush(float dots);
    void paintBackground();
    void enterSample(int i);

    std::unique_ptr<QDDrawCanvas> _canvas;
    bool _unavailable = false;
    int _next = 0;  // sample of the wave; 0 while none is being painted
};

}  // namespace dabcanvas::dabpainter
