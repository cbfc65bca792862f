// SPDX-License-Identifier: MIT
#include <string>

#include "ESRender/ESImageRender.h"
#include "support/CanvasTest.h"

namespace {

using CanvasLayersTest = CanvasTest;

// Withdrawing and backgrounds

TEST_F(CanvasLayersTest, AWithdrawnStrokeDisappears) {
    for (const int blendType : {1, 2, 5, 9}) {
        auto canvas = makeCanvas();
        canvas->clearWithColor(ESColor::rgba(0.2f, 0.6f, 0.9f, 1), false);
        paintWave(*canvas, 40);
        const QImage before = canvas->image();
        canvas->setBlendType(blendType);
        canvas->setOpacity(0.7f);
        canvas->drawingWithBeginPoint({10, 10});
        canvas->drawingWithMoveToPoint({100, 120});
        canvas->drawingWithMoveToPoint({180, 20});
        if (blendType != ESBlendTypeReset) {
            EXPECT_NE(canvas->image(), before) << "blend type " << blendType;
        }
        const QImage drawn = canvas->image();
        canvas->resetWithRenderRect(QRectF(10, 10, 20, 0));
        EXPECT_TRUE(imagesMatch(canvas->image(), drawn)) << "an empty rectangle withdraws nothing";
        canvas->resetWithRenderRect(QRectF(0, 0, 200, 150));
        EXPECT_TRUE(imagesMatch(canvas->image(), before)) << "blend type " << blendType;
        EXPECT_EQ(canvas->blendType(), blendType);
    }
}

TEST_F(CanvasLayersTest, EveryChangeIsShownAgain) {
    class Shown : public QDDrawCanvas {
    public:
        Shown() : QDDrawCanvas(QRectF(0, 0, 200, 150)) {}
        bool make() { return initCanvas(); }
        QRectF asked;

    protected:
        void redisplayRect(const QRectF& rect) override { asked = asked.united(rect); }
    } canvas;
    ASSERT_TRUE(canvas.make());
    canvas.mouseDown({{30, 40}});
    for (int i = 1; i < 6; ++i) {
        canvas.mouseDragged({{30.0 + i * 20, 40}});
    }
    const QRect stroke = painted(canvas.displayImage());
    ASSERT_FALSE(stroke.isEmpty());
    canvas.asked = QRectF();
    canvas.mouseUp({{130, 40}});
    EXPECT_TRUE(canvas.asked.contains(QRectF(stroke))) << "a withdrawn stroke leaves the screen";
    EXPECT_TRUE(painted(canvas.displayImage()).isEmpty());

    const LPPoint dab{{100, 100}, 20, {1, 1, 1}};  // straight into the canvas
    canvas.drawPoints(&dab, 1, ESRenderTypeCanvas);
    EXPECT_TRUE(imagesMatch(canvas.displayImage(), canvas.image()));
    EXPECT_FALSE(painted(canvas.displayImage()).isEmpty());
}

TEST_F(CanvasLayersTest, TheNextStrokeStartsFromWhatTheLastOneLeft) {
    auto canvas = makeCanvas();
    canvas->setOpacity(0.5f);
    canvas->setHardness(1);
    const auto across = [&] {
        canvas->drawingWithBeginPoint({10, 75});
        canvas->drawingWithMoveToPoint({100, 75});
        canvas->drawingWithMoveToPoint({150, 75});
        canvas->drawingWithEndPoint({195, 75});
    };
    across();
    const int once = canvas->image().pixelColor(100, 75).alpha();
    across();
    const int twice = canvas->image().pixelColor(100, 75).alpha();
    EXPECT_NEAR(once, 128, 2) << "dabs of one stroke do not add up beyond its opacity";
    EXPECT_NEAR(twice, 192, 2) << "two strokes do";
}

// Looking at the canvas after every segment, or never: composites that wait must give the same pixels.
class CanvasBlendTest : public CanvasTest, public ::testing::WithParamInterface<int> {};
TEST_P(CanvasBlendTest, ComposingLateGivesTheSamePixels) {
    const auto paint = [&](bool look) {
        auto canvas = makeCanvas();
        canvas->clearWithColor(ESColor::rgba(0.9f, 0.7f, 0.3f, 0.8f), false);
        canvas->setRenderColor(ESColor::rgba(0.1f, 0.3f, 0.8f));
        canvas->setBlendType(GetParam());
        canvas->setFlow(0.4f);
        canvas->setOpacity(0.8f);
        paintWave(*canvas, 75, 30, [&](int i) {
            if (look) {
                canvas->image();
            }
            if (i == 15) {
                canvas->setOpacity(0.5f);  // what is drawn keeps the old settings
            } else if (i == 22) {
                canvas->setBlendType(5);
            }
        });
        return canvas->image();
    };
    EXPECT_TRUE(imagesMatch(paint(false), paint(true)));
}
TEST_P(CanvasBlendTest, ShownPixelsAreTheCanvas) {
    auto canvas = makeCanvas(211, 133);
    canvas->setBlendType(GetParam());
    canvas->clearWithColor(ESColor::grey(0.5f, 1), true);
    paintWave(*canvas, 60, 20, [&](int i) {
        if (i % 3 == 0) {
            canvas->displayImage();
        }
    });
    EXPECT_TRUE(imagesMatch(canvas->displayImage(), canvas->image()));
    canvas->resetWithRenderRect(QRectF(20, 20, 40, 40));
    EXPECT_TRUE(imagesMatch(canvas->displayImage(), canvas->image()));
    canvas->clear();
    EXPECT_TRUE(imagesMatch(canvas->displayImage(), canvas->image()));
}
INSTANTIATE_TEST_SUITE_P(Types, CanvasBlendTest, ::testing::Values(0, 1, 2, 3, 4, 5, 6, 7, 8, 9),
                         [](const auto& row) { return "Blend" + std::to_string(row.param); });

// Clearing

TEST_F(CanvasLayersTest, ClearsToTheColourGiven) {
    auto canvas = makeCanvas(64, 40);
    for (const auto& [color, pixel] : {std::pair{ESColor::grey(0.5f, 1), QColor(128, 128, 128)},
                                       {ESColor(), QColor(Qt::transparent)},
                                       {ESColor::rgba(1, 0, 0.2f, 1), QColor(255, 0, 51)},
                                       {ESColor::rgba(1, 1, 1, 0.5f), QColor(255, 255, 255, 128)}}) {
        canvas->clearWithColor(color, false);
        EXPECT_TRUE(imagesMatch(canvas->image(), solidImage({64, 40}, pixel)));
    }
}

TEST_F(CanvasLayersTest, ClearEmptiesTheLayersToo) {
    auto fresh = makeCanvas();
    paintWave(*fresh);
    auto canvas = makeCanvas();
    canvas->drawingWithBeginPoint({20, 20});
    canvas->drawingWithMoveToPoint({100, 100});
    canvas->clear();
    EXPECT_TRUE(painted(canvas->image()).isNull());
    paintWave(*canvas);
    EXPECT_TRUE(imagesMatch(canvas->image(), fresh->image()))
        << "dabs of the stroke that was cleared came back";
}

}  // namespace
