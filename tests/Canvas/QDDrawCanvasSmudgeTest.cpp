// SPDX-License-Identifier: MIT
#include <string>

#include "support/CanvasTest.h"

namespace {

class CanvasSmudgeTest : public CanvasTest {
protected:
    // A finger: it only moves what is there, all of it, from the first dab on.
    static void useFinger(QDDrawCanvas& canvas, float size = 30) {
        canvas.setBrushType(3);
        canvas.setRadius(size);
        canvas.setMoistQuantity(1);
        canvas.setLoadQuantity(0);
        canvas.setMixQuantity(1);
        canvas.setSmudgeControl(false);
        canvas.setStartRadius(0);
        canvas.setEndRadius(0);
    }
    // Paint of several colours with transparency between and at some of the edges.
    static void paintStripes(QDDrawCanvas& canvas) {
        const QSize size = canvas.bufferSize().toSize();
        QImage stripes = solidImage(size);
        const QColor colors[] = {QColor(230, 25, 25), QColor(25, 200, 50), QColor(25, 50, 230)};
        for (int i = 0; i < 3; ++i) {
            fillRect(stripes, QRect((1 + 4 * i) * size.width() / 10 - 8, 0, 24, size.height()), colors[i]);
        }
        EXPECT_TRUE(canvas.setImage(stripes, QRectF(stripes.rect())));
    }
    static void drag(QDDrawCanvas& canvas, QPointF from, QPointF to, int moves = 14) {
        canvas.drawingWithBeginPoint(from, 0.5f);
        for (int i = 1; i <= moves; ++i) {
            canvas.drawingWithMoveToPoint(from + (to - from) * i / moves, 0.5f);
        }
        canvas.drawingWithEndPoint(to, 0.5f);
    }
};

TEST_F(CanvasSmudgeTest, PixelsThatNoDabCoveredKeepEveryBit) {
    for (const QSize size : {QSize(200, 150), QSize(201, 151), QSize(97, 1), QSize(3, 33), QSize(1, 1)}) {
        for (const float hardness : {0.0f, 1.0f}) {
            SCOPED_TRACE(std::to_string(size.width()) + " x " + std::to_string(size.height()) +
                         ", hardness " + std::to_string(hardness));
            auto canvas = makeCanvas(size.width(), size.height());
            auto covered = makeCanvas(size.width(), size.height());
            paintStripes(*canvas);
            const QImage before = canvas->image();
            for (QDDrawCanvas* one : {canvas.get(), covered.get()}) {
                const bool smudges = one == canvas.get();
                useFinger(*one, smudges ? 22 : 25);
                one->setBrushType(smudges ? 3 : 0);  // where a plain brush a little larger paints
                one->setHardness(smudges ? hardness : 1);
                drag(*one, {-5, size.height() * 0.3}, {size.width() + 5.0, size.height() * 0.7});
            }
            const QImage after = canvas->image();
            const QImage mark = covered->image();
            int changed = 0;
            for (int y = 0; y < size.height(); ++y) {
                for (int x = 0; x < size.width(); ++x) {
                    changed += after.pixel(x, y) != before.pixel(x, y);
                    if (mark.pixelColor(x, y).alpha() == 0) {
                        ASSERT_EQ(after.pixel(x, y), before.pixel(x, y)) << x << ", " << y;
                    }
                }
            }
            if (size.width() >= 200) {
                EXPECT_GT(changed, 500);
            }
        }
    }
}

TEST_F(CanvasSmudgeTest, TransparentEdgesGetNoDarkFringe) {
    auto canvas = makeCanvas(160, 100);
    canvas->clearWithColor(ESColor::rgba(0.8f, 0.4f, 0.2f), true);
    canvas->setBlendType(5);  // erase the right half
    canvas->setRadius(100);
    canvas->setHardness(1);
    drag(*canvas, {130, -20}, {130, 120});
    canvas->setBlendType(1);
    useFinger(*canvas);
    drag(*canvas, {40, 30}, {140, 30});
    drag(*canvas, {140, 70}, {40, 70});
    const QImage after = canvas->image();
    EXPECT_GT(after.pixelColor(95, 30).alpha(), 60) << "paint is pushed out";
    EXPECT_LT(after.pixelColor(60, 70).alpha(), 200) << "transparency is pushed in";
    for (int y = 0; y < after.height(); ++y) {
        for (int x = 0; x < after.width(); ++x) {
            const uchar* pixel = after.constScanLine(y) + 4 * x;
            // Premultiplied: each channel is its share of alpha, give or take what rounding can do to a dozen dabs.
            const double shares[] = {0.8, 0.4, 0.2};
            for (int i = 0; i < 3; ++i) {
                ASSERT_NEAR(pixel[i], shares[i] * pixel[3], 7) << x << ", " << y;
            }
        }
    }
}

TEST_F(CanvasSmudgeTest, LookingEarlyOrWithdrawingChangesNothing) {
    QImage pictures[2];
    for (const bool interrupted : {false, true}) {
        auto canvas = makeCanvas();
        paintStripes(*canvas);
        useFinger(*canvas);
        canvas->setOpacity(0.7f);
        if (interrupted) {
            dragMouse(*canvas, {20, 40}, {18, 0}, 8);
            canvas->mouseUp({{170, 40}});  // withdrawn
        }
        paintWave(*canvas, 75, 30, [&](int) {
            interrupted                            ? canvas->displayImage(), canvas->setBrushType(3),
                canvas->setEnableRecogition(false) : void();
        });
        paintWave(*canvas, 60);  // the second stroke meets what the first one left
        pictures[interrupted] = canvas->image();
        EXPECT_TRUE(imagesMatch(canvas->displayImage(), pictures[interrupted]));
    }
    EXPECT_TRUE(imagesMatch(pictures[0], pictures[1]));
}

TEST_F(CanvasSmudgeTest, SmudgesTheCanvasAsItIsNow) {
    auto canvas = makeCanvas();
    useFinger(*canvas);
    drag(*canvas, {20, 75}, {180, 75});
    canvas->clearWithColor(ESColor::rgba(1, 0, 0), true);
    drag(*canvas, {20, 75}, {180, 75});
    EXPECT_EQ(canvas->image().pixelColor(100, 75), QColor(255, 0, 0));

    // In the middle of a stroke, too, whose own past does not come back.
    canvas->clearWithColor(ESColor::rgba(0, 0, 1), true);
    beginThrough(*canvas, {{20, 75}, {60, 75}, {100, 75}});
    canvas->clearWithColor(ESColor::rgba(1, 0, 0), true);
    canvas->drawingWithMoveToPoint({100, 90});
    canvas->drawingWithEndPoint({60, 90});
    EXPECT_EQ(painted(canvas->image()), canvas->image().rect());
    EXPECT_EQ(canvas->image().pixelColor(60, 75), QColor(255, 0, 0));
}

TEST_F(CanvasSmudgeTest, AStrokeThatTurnsIntoASmudgePicksUpWhereItIs) {
    auto canvas = makeCanvas(300, 60);
    canvas->setRepeatableRandom(false);  // which begins anew with each stroke
    canvas->setHardness(1);
    canvas->clearWithColor(ESColor::rgba(0, 0, 1), true);
    canvas->setRenderColor(ESColor::rgba(1, 0, 0));
    drag(*canvas, {30, 0}, {30, 60});
    useFinger(*canvas);
    drag(*canvas, {20, 30}, {30, 30});  // ends in the red
    canvas->setBrushType(0);
    canvas->setRenderColor(ESColor::rgba(0, 0, 1));
    beginThrough(*canvas, {{180, 30}, {200, 30}, {220, 30}});
    canvas->setBrushType(3);
    for (int i = 1; i <= 6; ++i) {
        canvas->drawingWithMoveToPoint({220.0 + i * 10, 30});
    }
    canvas->drawingWithEndPoint({290, 30});
    for (int x = 150; x < 300; ++x) {
        EXPECT_EQ(canvas->image().pixelColor(x, 30).red(), 0) << x;
    }
}

}  // namespace
