// SPDX-License-Identifier: MIT
#include <epoxy/egl.h>

#include <string>

#include "LineProcess/LPProperties.h"
#include "LineProcess/LPTrace.h"
#include "QDEAGLView/QDDrawView.h"
#include "support/CanvasTest.h"
#include "support/Hearer.h"

namespace {

using CanvasStrokeTest = CanvasTest;

TEST_F(CanvasStrokeTest, PointsScaleFromViewToBufferAndRedisplayBack) {
    ShownCanvas canvas({200, 150}, {400, 300});
    EXPECT_EQ(canvas.scale(), QSizeF(2, 2));
    Hearer hearer;
    std::string told;
    hearer.hear = [&](const char* what, QPointF& p) {
        told += std::string(what) + ' ' + std::to_string(std::lround(p.x())) + ", ";
        p.rx() += p.x() == 90 ? 10 : 0;
    };
    canvas.setDelegate(&hearer);
    canvas.drawingWithBeginPoint({90, 100});  // moved by 10
    canvas.drawingWithMoveToPoint({200, 100});
    canvas.drawingWithMoveToPoint({300, 100});
    canvas.drawingWithEndPoint({300, 200}, -1, -1, false);
    EXPECT_EQ(told,
              "should begin 90, will begin 100, did begin 50, should move 200, will move 200, did move 100, "
              "should move 300, will move 300, did move 150, should end 300, will end 300, undo 0, "
              "did end 150, ");
    ASSERT_EQ(canvas.redisplayed.size(), 2u) << "one a segment, none for the end that was not online";
    // The first segment's dabs lie from x 50 to 75 of the buffer, at y 50.
    EXPECT_TRUE(canvas.redisplayed[0].contains(QPointF(120, 100)));
    EXPECT_FALSE(canvas.redisplayed[0].contains(QPointF(60, 50)));
    const QRect drawn = painted(canvas.image());
    EXPECT_GT(drawn.left(), 25);
    EXPECT_LT(drawn.right(), 175);
}

// Dabs

// Against a canvas that more of them lie on. Divided by other sides, a dab's edge may come to lie beyond a pixel's middle.
TEST_F(CanvasStrokeTest, DabsOffTheCanvasChangeNothingOnIt) {
    const std::unique_ptr<QDDrawCanvas> canvases[] = {makeCanvas(256, 128), makeCanvas(1024, 512)};
    for (const auto& canvas : canvases) {
        canvas->setDistributionCount(8);
        canvas->setDistribution(1.5f);
        canvas->setRadianTingle(1);
        canvas->setRoundness(0.4f);
        canvas->setHueTingle(1);
        paintThrough(*canvas, {{20, 20}, {240, 100}, {300, 150}, {280, 60}, {1e10, 90}, {100, 80}, {90, 20}});
        EXPECT_GT(canvas->strokeStats().dabs, 3'000'000u);
    }
    const QImage small = canvases[0]->image();
    const QImage large = canvases[1]->image();
    int differing = 0;
    for (int i = 0; i < 256 * 128; ++i) {
        differing +=
            std::abs(qAlpha(small.pixel(i % 256, i / 256)) - qAlpha(large.pixel(i % 256, i / 256))) > 4;
    }
    EXPECT_LT(differing, 50);
}

// A device that gives no tilt is held upright, also where others of the stroke's samples have one.
TEST_F(CanvasStrokeTest, NoTiltIsAnUprightPen) {
    QImage pictures[2];
    for (const float none : {0.0f, -1.0f}) {
        auto canvas = makeCanvas();
        canvas->setRadiusControl({0, 1, 0});
        canvas->drawingWithBeginPoint({20, 75}, 1, none);
        canvas->drawingWithMoveToPoint({80, 75}, 1, 1);
        canvas->drawingWithMoveToPoint({120, 75}, 1, none);
        canvas->drawingWithEndPoint({180, 75}, 1, 1);
        pictures[none < 0] = canvas->image();
    }
    EXPECT_TRUE(imagesMatch(pictures[0], pictures[1]));
}

// Strokes that do not go as they should

void across(QDDrawCanvas& canvas, double y) {
    paintThrough(canvas, {{20, y}, {60, y + 5}, {120, y}, {180, y + 8}});
}

TEST_F(CanvasStrokeTest, NoStrokeLeavesAnythingToTheNext) {
    const auto half = [](QDDrawCanvas& c) { beginThrough(c, {{20, 25}, {90, 30}}); };
    const std::pair<const char*, std::function<void(QDDrawCanvas&)>> mishaps[] = {
        {"none", [](QDDrawCanvas&) {}},
        {"ended", [](QDDrawCanvas& c) { across(c, 25); }},
        {"never ended", half},
        {"end refused",
         [&](QDDrawCanvas& c) {
             half(c), c.drawingWithEndPoint({std::nan(""), 0});
         }},
        {"sub-line switched off",
         [&](QDDrawCanvas& c) {
             c.setRepeatedlyRenderEnabled(true);
             half(c);
             c.setRepeatedlyRenderEnabled(false);
             c.drawingWithEndPoint({120, 25});
         }},
    };
    QImage alone;
    for (const auto& [name, happen] : mishaps) {
        SCOPED_TRACE(name);
        auto canvas = makeCanvas();
        jitter(*canvas);
        happen(*canvas);
        const QImage first = canvas->image();
        // The next stroke, with and without a mask, changes only its own neighbourhood.
        canvas->setRepeatedlyRenderEnabled(true);
        across(*canvas, 118);
        canvas->setRepeatedlyRenderEnabled(false);
        across(*canvas, 120);
        EXPECT_TRUE(imagesMatch(canvas->image().copy(0, 0, 200, 80), first.copy(0, 0, 200, 80)));
        alone = alone.isNull() ? canvas->image() : alone;
        EXPECT_TRUE(imagesMatch(canvas->image().copy(0, 80, 200, 70), alone.copy(0, 80, 200, 70)));
        EXPECT_EQ(painted(first).isNull(), &happen == &mishaps[0].second);
    }
}

// The host's generators are neither moved nor listened to, and a seed begins a canvas's own.
TEST_F(CanvasStrokeTest, ChanceIsTheCanvassOwn) {
    std::srand(3);
    srand48(3);
    const int first = std::rand();
    const double other = drand48();
    ShapeRecord line;
    line.kind = ShapeKind::line;
    line.corners = {{20, 110}, {150, 130}};
    QImage pictures[5];
    const std::uint32_t seeds[] = {5, 5, 6, 6, 5};
    std::srand(3);
    srand48(3);
    for (int i = 0; i < 5; ++i) {
        auto canvas = makeCanvas();
        canvas->setRepeatableRandom(i == 2);
        jitter(*canvas);
        if (i == 1 || i == 4) {
            across(*canvas, 60);
            canvas->drawPoint({50, 60}, 30);
            i == 1 ? canvas->clear()
                   : static_cast<void>(canvas->setImage(solidImage({200, 150}), QRectF(0, 0, 200, 150)));
        }
        canvas->setRandomSeed(seeds[i]);
        canvas->drawShape(line);
        across(*canvas, 60);
        const QRectF touched = canvas->drawPoint({50, 60}, 30);
        EXPECT_FALSE(touched.isEmpty());
        canvas->updateImage(true);
        pictures[i] = canvas->image();
    }
    EXPECT_EQ(std::rand(), first);
    EXPECT_EQ(drand48(), other);
    EXPECT_TRUE(imagesMatch(pictures[0], pictures[1])) << "whatever was painted before";
    EXPECT_TRUE(imagesMatch(pictures[0], pictures[4])) << "and then replaced";
    EXPECT_NE(pictures[0], pictures[3]) << "another seed";
    EXPECT_NE(pictures[2], pictures[3]) << "fixed values";
}

TEST_F(CanvasStrokeTest, TheHostHasItsContextAndRecordAndADelegateMayTakeItselfOff) {
    struct Leaver : QDDrawViewDelegate {
        QPointF drawViewShouldDrawBegin(QDDrawCanvas& canvas, QPointF p) override {
            context = eglGetCurrentContext();
            canvas.setDelegate(nullptr);
            return p;
        }
        void drawViewWillDrawBegin(QDDrawCanvas&, QPointF) override {
            ADD_FAILURE() << "called after leaving";
        }
        EGLContext context = nullptr;
    } leaver;
    leaver.context = &leaver;
    auto canvas = makeCanvas();
    canvas->setDelegate(&leaver);
    across(*canvas, 60);
    EXPECT_EQ(leaver.context, EGL_NO_CONTEXT);
    canvas->setTextureType(2);
    EXPECT_FALSE(painted(canvas->image()).isNull());
    canvas->clear();
    EXPECT_EQ(eglGetCurrentContext(), EGL_NO_CONTEXT);
    canvas.reset();
    EXPECT_EQ(eglGetCurrentContext(), EGL_NO_CONTEXT);
    EXPECT_EQ(lpSetParaObj(nullptr), &_lpDefaultParaObj);
}

// Several canvases, and the host's own context

TEST_F(CanvasStrokeTest, StrokesOfTwoCanvasesMayInterleave) {
    // The tapers' flags are one set for the whole thread: only one canvas tapers at its start.
    const auto made = [](float radius, float taper) {
        auto canvas = makeCanvas();
        jitter(*canvas);
        canvas->setRadius(radius);
        canvas->setStrokeControlValue(taper);
        canvas->setStartRadius(taper > 0 ? 0.05f : 0.0f);
        canvas->setEndRadius(0.3f);
        canvas->setMoveRadianEnable(true);
        canvas->setRadiusControl({0, 0, 0.8f});
        // Values that stay the same for all of a canvas's dabs are its own, too.
        canvas->setRoundness(radius / 60);
        canvas->setFlow(radius / 40);
        canvas->setTextureType(radius > 30 ? 2 : 0);
        return canvas;
    };
    QImage pictures[2][2];
    for (const bool together : {false, true}) {
        const auto first = made(20, 90), second = made(33, 0);
        // The second canvas's whole stroke lies within the first one's, call by call.
        for (int i = 0; i <= 30; ++i) {
            paintWaveSample(*first, 75, 30, i);
            if (together && i >= 2 && i <= 14) {
                paintWaveSample(*second, 60, 12, i - 2);
            }
        }
        first->drawPoint({60, 120}, 30);
        first->updateImage(false);
        if (!together) {
            paintWave(*second, 60, 12);
        }
        pictures[together][0] = first->image();
        pictures[together][1] = second->image();
    }
    EXPECT_TRUE(imagesMatch(pictures[true][0], pictures[false][0]));
    EXPECT_TRUE(imagesMatch(pictures[true][1], pictures[false][1]));
}

TEST_F(CanvasStrokeTest, BadFramesAreRefused) {
    for (const QSizeF& size :
         {QSizeF(0, 0), QSizeF(100, 0), QSizeF(-5, 20), QSizeF(1e6, 10), QSizeF(std::nan(""), 10)}) {
        EXPECT_EQ(QDDrawCanvas::initWithFrame(QRectF(QPointF(), size)), nullptr);
        EXPECT_EQ(QDDrawView::initWithFrame(QRectF(QPointF(), size)), nullptr);
    }
}

}  // namespace
