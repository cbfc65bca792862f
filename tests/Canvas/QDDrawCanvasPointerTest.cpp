// SPDX-License-Identifier: MIT
#include <limits>

#include "support/CanvasTest.h"

namespace {

using CanvasPointerTest = CanvasTest;

QDDrawTouch at(double x, double y = 75) {
    return {{x, y}, 1};
}

TEST_F(CanvasPointerTest, AWithdrawnStrokeLeavesNoBitBehind) {
    auto canvas = makeCanvas();
    canvas->setHardness(1);
    paintWave(*canvas);
    EXPECT_TRUE(canvas->edited());
    canvas->markAction();
    const struct {
        int type, blend;
        bool secondLine;
    } rows[] = {{0, 1, false}, {0, 1, true}, {0, 2, false}, {0, 2, true},
                {0, 5, false}, {0, 8, true}, {0, 9, false}, {3, 1, false}};
    for (const auto& [type, blend, secondLine] : rows) {
        SCOPED_TRACE(::testing::Message()
                     << "type " << type << ", blend type " << blend << ' ' << secondLine);
        canvas->setBrushType(type);
        canvas->setBlendType(blend);
        canvas->setOpacity(0.7f);
        canvas->setRepeatedlyRenderEnabled(secondLine);
        const QImage before = canvas->image();
        dragMouse(*canvas, {20, 75}, {20, 0}, 5);
        EXPECT_EQ(canvas->displayImage() == before, blend == 9);  // it was on screen
        canvas->mouseDragged(at(50));
        canvas->mouseUp(at(90));
        EXPECT_TRUE(imagesMatch(canvas->image(), before));
        EXPECT_TRUE(imagesMatch(canvas->displayImage(), before));
        EXPECT_FALSE(canvas->edited());
        EXPECT_EQ(canvas->blendType(), blend);
    }
    // It leaves the screen, and nothing of it comes back with the next stroke.
    auto fresh = makeCanvas();
    ShownCanvas shown({200, 150});
    shown.setRepeatableRandom(true);
    dragMouse(shown, {20, 20}, {20, 11}, 5);
    const QRect stroke = painted(shown.displayImage());
    shown.redisplayed.clear();
    shown.mouseUp(at(120));
    EXPECT_TRUE(shown.redisplayedArea().contains(QRectF(stroke)));
    paintWave(shown, 90);
    paintWave(*fresh, 90);
    EXPECT_TRUE(imagesMatch(shown.image(), fresh->image()));
}

TEST_F(CanvasPointerTest, PositionsCountFromTheFrame) {
    auto placed = QDDrawCanvas::initWithFrame(QRectF(30, 40, 100, 80));
    ASSERT_TRUE(placed);
    EXPECT_EQ(placed->localPointWithTouch(at(35, 60)), QPointF(5, 20));
    placed->beginWithTouch(at(std::numeric_limits<double>::quiet_NaN()));
    placed->moveWithTouch(at(80, 80));  // begins instead
    placed->moveWithTouch(at(110, 80));
    placed->endWithTouches({at(115, 80), at(1, 1)});
    const QRect mark = painted(placed->image());
    EXPECT_GT(mark.left(), 30);
    EXPECT_NEAR(mark.center().y(), 40, 2);
}

}  // namespace
