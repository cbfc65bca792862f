// SPDX-License-Identifier: MIT
// A canvas to paint on, headless.
#pragma once

#include <cmath>
#include <cstdlib>
#include <functional>
#include <memory>

#include "Canvas/QDDrawCanvas.h"
#include "ESRender/Utilities/ESGLErrors.h"
#include "support/Images.h"

class CanvasTest : public ::testing::Test {
protected:
    // Without OpenGL nothing of a canvas can be tested: the program fails at once.
    static std::unique_ptr<QDDrawCanvas> makeCanvas(int width = 200, int height = 150) {
        auto canvas = QDDrawCanvas::initWithFrame(QRectF(0, 0, width, height));
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
