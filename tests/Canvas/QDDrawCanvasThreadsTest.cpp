// SPDX-License-Identifier: MIT
// Canvases on threads of their own.
#include <thread>

#include "ESRender/Utilities/ESGLErrors.h"
#include "support/CanvasTest.h"

namespace {

using CanvasThreadsTest = CanvasTest;

// A session of everything that the line process, the jitters and the layers take part in.
QImage session(QDDrawCanvas& canvas, int number) {
    canvas.setAutoMark(true);
    canvas.setRandomSeed(static_cast<std::uint32_t>(number));
    jitter(canvas);
    canvas.setRadius(static_cast<float>(14 + 9 * number));
    canvas.setStrokeControlValue(60);
    canvas.setMoveRadianEnable(true);
    canvas.setRoundness(0.5f);
    for (int i = 0; i < 4; ++i) {
        canvas.setRepeatedlyRenderEnabled(i == 1);
        canvas.setBrushType(i == 2 ? 3 : 0);
        canvas.setBlendType(i == 3 ? 8 : 1);
        paintWave(canvas, 40 + 20 * i);
    }
    ShapeRecord shape;
    shape.kind = ShapeKind::rectangle;
    shape.corners = {{20, 20}, {90, 20}, {90, 80}, {20, 80}};
    canvas.drawShape(shape);
    canvas.drawImage(canvas.image(), QRectF(12.5, 20, 90, 70));
    canvas.undo();
    return canvas.image();
}

TEST_F(CanvasThreadsTest, TwoAtOncePaintWhatEachPaintsAlone) {
    QImage alone[2], together[4];
    for (int i = 0; i < 2; ++i) {
        alone[i] = session(*makeCanvas(), i);
        EXPECT_FALSE(painted(alone[i]).isNull());
    }
    // Made here, painted on over there; what canvases of a thread share is no matter.
    const auto handedOver = makeCanvas(), other = makeCanvas(), kept = makeCanvas();
    std::thread painters[] = {std::thread([&] { together[0] = session(*makeCanvas(), 0); }),
                              std::thread([&] { together[1] = session(*handedOver, 1); }),
                              std::thread([&] { together[2] = session(*other, 0); })};
    together[3] = session(*kept, 1);
    for (std::thread& painter : painters) {
        painter.join();
    }
    for (int i = 0; i < 4; ++i) {
        EXPECT_TRUE(imagesMatch(together[i], alone[i % 2])) << "canvas " << i;
    }
}

#if DABCANVAS_GL_CHECKS && !defined(__SANITIZE_THREAD__)
TEST_F(CanvasThreadsTest, OneUsedByTwoThreadsAtOnceEndsTheProgram) {
    // Another thread meddles while a segment is drawn.
    struct Shared : QDDrawCanvas {
        Shared() : QDDrawCanvas(QRectF(0, 0, 200, 150)) { initCanvas(); }
        void redisplayRect(const QRectF&) override {
            std::thread([this] { setRadiusTingle(0.5f); }).join();
        }
    };
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(
        {
            Shared canvas;
            paintWave(canvas);
        },
        "two threads at once");
}
#endif

}  // namespace
