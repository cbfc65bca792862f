// SPDX-License-Identifier: MIT
// A canvas to paint on, headless.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <memory>
#include <vector>

#include "Canvas/QDDrawCanvas.h"
#include "ESRender/Utilities/ESGLErrors.h"
#include "Surface/PaintSurface.h"
#include "support/Images.h"

class CanvasTest : public ::testing::Test {
protected:
    // Without OpenGL nothing of a canvas can be tested: the program fails at once.
    using SurfaceKind = dabcanvas::SurfaceKind;
    static std::unique_ptr<QDDrawCanvas> makeCanvas(int width = 200, int height = 150,
                                                    SurfaceKind surface = SurfaceKind::automatic,
                                                    int canvasDepth = 8, int layerDepth = 16) {
        auto canvas = QDDrawCanvas::initWithFrame(
            QRectF(0, 0, width, height),
            {.kind = surface, .canvasDepth = canvasDepth, .layerDepth = layerDepth});
        if (!canvas) {
            ADD_FAILURE() << "no canvas could be made; no test of this program can run without OpenGL";
            std::abort();
        }
        canvas->setRepeatableRandom(true);
        return canvas;
    }

    void SetUp() override { _errors = dabcanvas::drainedGLErrors(); }
    void TearDown() override { EXPECT_EQ(dabcanvas::drainedGLErrors(), _errors) << "GL errors were logged"; }

private:
    std::uint64_t _errors = 0;
};

// The picture with all its bits.
inline std::vector<std::uint8_t> bitsOf(QDDrawCanvas& canvas) {
    canvas.image();  // what waits to be drawn is drawn
    dabcanvas::PaintSurface& surface = canvas.surface();
    const dabcanvas::SurfaceScope scope(surface);
    const dabcanvas::Size size = surface.size();
    std::vector<std::uint8_t> bytes(
        static_cast<std::size_t>(size.width * size.height * surface.pixelBytes()));
    EXPECT_TRUE(
        surface.read(dabcanvas::PictureId::first, dabcanvas::Rect::of(size),
                     dabcanvas::MutablePixelView::topRowFirst(bytes.data(), size, surface.pixelBytes())));
    return bytes;
}

// A canvas shown at another size than its buffer's, and what it asks to be shown again.
class ShownCanvas : public QDDrawCanvas {
public:
    explicit ShownCanvas(const QSize& buffer, const QSize& shown = {})
        : QDDrawCanvas(QRectF(QPointF(), buffer)) {
        EXPECT_TRUE(initCanvas());
        _shown = QRectF(QPointF(), shown.isEmpty() ? buffer : shown);
        updateScaleInfo();
        redisplayed.clear();
    }
    QRectF displayFrame() const override { return _shown.isNull() ? QDDrawCanvas::displayFrame() : _shown; }
    void redisplayRect(const QRectF& rect) override { redisplayed.push_back(rect); }
    QRectF redisplayedArea() const {
        QRectF area;
        for (const QRectF& rect : redisplayed) {
            area |= rect;
        }
        return area;
    }
    std::vector<QRectF> redisplayed;

private:
    QRectF _shown;
};

// The whole canvas, bottom row first.
inline QByteArray bytesOf(QDDrawCanvas& canvas) {
    const QRectF whole(QPointF(0, 0), canvas.bufferSize());
    QByteArray bytes(canvas.image().sizeInBytes(), 0);
    EXPECT_TRUE(canvas.readDataBufferRect(reinterpret_cast<unsigned char*>(bytes.data()), whole));
    return bytes;
}

// What is drawn by chance for the lines and for the dabs, a point's copies apart from it.
inline void jitter(QDDrawCanvas& canvas) {
    canvas.setRadius(20);
    canvas.setRadiusTingle(0.6f);
    canvas.setRenderColor(ESColor::rgba(0.8f, 0.3f, 0.2f));
    canvas.setHueTingle(0.7f);
    canvas.setStartRadianEnable(true);
    canvas.setFlipXTingle(true);
    canvas.setColorFul(true);
    canvas.setDistribution(0.2f);
    canvas.setDistributionCount(2);
}

// A stroke without its end, or with it.
inline void beginThrough(QDDrawCanvas& canvas, const std::vector<QPointF>& points) {
    canvas.drawingWithBeginPoint(points.front());
    std::for_each(points.begin() + 1, points.end(), [&](QPointF to) { canvas.drawingWithMoveToPoint(to); });
}
inline void paintThrough(QDDrawCanvas& canvas, std::vector<QPointF> points) {
    const QPointF last = points.back();
    points.pop_back();
    beginThrough(canvas, points);
    canvas.drawingWithEndPoint(last);
}
// A mouse's, before its button goes up.
inline void dragMouse(QDDrawCanvas& canvas, QPointF from, QPointF step, int moves) {
    for (int i = 0; i <= moves; ++i) {
        const QDDrawTouch at{from + i * step, 1};
        i == 0 ? canvas.mouseDown(at) : canvas.mouseDragged(at);
    }
}

// One sample of the stroke below, from 0, its begin, to its end.
inline void paintWaveSample(QDDrawCanvas& canvas, double y, int moves, int i) {
    const QPointF at(20 + (canvas.bufferSize().width() - 40) * i / moves, y + 25 * std::sin(i * 0.35));
    const float pressure = 0.2f + 0.7f * static_cast<float>(std::sin(3.14159 * i / moves));
    if (i == 0) {
        canvas.drawingWithBeginPoint(at, pressure, 0.2f);
    } else if (i < moves) {
        canvas.drawingWithMoveToPoint(at, pressure, 0.2f);
    } else {
        canvas.drawingWithEndPoint(at, pressure, 0.2f);
    }
}

// A wavy stroke across the canvas; online as the caller likes, with a look at the canvas after every move if
// wanted.
inline void paintWave(QDDrawCanvas& canvas, double y = 75, int moves = 30,
                      const std::function<void(int)>& afterMove = {}) {
    for (int i = 0; i <= moves; ++i) {
        paintWaveSample(canvas, y, moves, i);
        if (afterMove && i > 0 && i < moves) {
            afterMove(i);
        }
    }
}
