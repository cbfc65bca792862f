// SPDX-License-Identifier: MIT
#include <limits>
#include <random>
#include <string>

#include "ESRender/ESImageRender.h"
#include "GLSurface/GLSurface.h"
#include "support/CanvasTest.h"
#include "support/FailingDriver.h"
#include "support/LogCapture.h"

namespace {

using CanvasLayersTest = CanvasTest;
using dabcanvas::SurfaceKind;
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kEndless = std::numeric_limits<double>::infinity();

TEST_F(CanvasLayersTest, AStrokeWithoutMemoryForItsLayerIsRefused) {
    for (const auto& [brush, masked] : {std::pair{0, true}, {3, false}}) {
        SCOPED_TRACE(::testing::Message() << "brush " << brush << (masked ? ", masked" : ""));
        auto canvas = makeCanvas(200, 150, SurfaceKind::gpu);
        paintWave(*canvas, 40);
        canvas->setBrushType(brush);
        canvas->setRepeatedlyRenderEnabled(masked);
        const QImage before = canvas->image();
        {
            const FailingDriver driver(FailingDriver::Fault::noTextureMemory);
            const LogCapture log;
            paintWave(*canvas, 60);
            EXPECT_EQ(log.lines().size(), 1) << qPrintable(log.lines().join('\n'));
            EXPECT_TRUE(imagesMatch(canvas->image(), before));
        }
        paintWave(*canvas, 60);
        EXPECT_NE(canvas->image(), before) << "there is memory again";
    }
}

TEST_F(CanvasLayersTest, MovesToOpenGLBetweenStrokesAsItIs) {
    for (const auto& [depth, pictureAlone] : {std::pair{8, false}, {8, true}, {16, false}, {16, true}}) {
        auto canvas = makeCanvas(300, 700, SurfaceKind::processor, depth);
        paintWave(*canvas, 60);
        canvas->drawingWithBeginPoint({20, 300});
        canvas->drawingWithMoveToPoint({150, 350});
        {
            const LogCapture log;
            EXPECT_EQ(canvas->glSurface(), nullptr) << "in mid-stroke";
            EXPECT_EQ(log.lines().size(), 1);
        }
        canvas->drawingWithEndPoint({250, 300});
        const auto strokes = bitsOf(*canvas);
        canvas->setNeglectTextureUpdate(pictureAlone);  // the image is on the picture, not in its background
        ASSERT_TRUE(canvas->drawImage(patternImage({90, 400}), QSizeF(90, 400), QPointF(150, 350), 0.2));
        const auto before = bitsOf(*canvas);
        const QImage shown = canvas->image();
        ASSERT_NE(canvas->glSurface(), nullptr);
        EXPECT_EQ(bitsOf(*canvas), before);
        EXPECT_TRUE(imagesMatch(canvas->image(), shown));
        const dabcanvas::SurfaceScope scope(canvas->surface());
        canvas->surface().revert(dabcanvas::PictureId::first, {0, 0, 300, 700});
        EXPECT_EQ(bitsOf(*canvas), pictureAlone ? strokes : before) << "the background moved, too";
    }
}

// Withdrawing and backgrounds

TEST_F(CanvasLayersTest, OnlyWithinTheRectangleIsAStrokeTakenBack) {
    auto canvas = makeCanvas();
    canvas->clearWithColor(ESColor::rgba(0.2f, 0.6f, 0.9f, 1), false);
    const QImage before = canvas->image();
    beginThrough(*canvas, {{10, 10}, {100, 120}, {180, 20}});
    const QImage drawn = canvas->image();
    for (const QRectF none : {QRectF(10, 10, 20, 0), QRectF(10, kNaN, 20, 20),
                              QRectF(-kEndless, 0, kEndless, 9), QRectF(0, 0, kEndless, kEndless)}) {
        canvas->resetWithRenderRect(none);
        EXPECT_TRUE(imagesMatch(canvas->image(), drawn)) << "an empty rectangle withdraws nothing";
    }
    canvas->resetWithRenderRect(QRectF(0, 0, 1e-300, 9));  // of which single precision makes nothing
    canvas->resetWithRenderRect(QRectF(-1e10, -1e10, 2e10, 2e10));
    EXPECT_TRUE(imagesMatch(canvas->image(), before));
}

// What may happen to a stroke before it is next looked at.
const std::function<void(QDDrawCanvas&, QPointF)> kHappenings[] = {
    [](QDDrawCanvas& c, QPointF at) { c.setOpacity(static_cast<float>(0.2 + at.x() / 300)); },
    [](QDDrawCanvas& c, QPointF at) { c.setBlendType(static_cast<int>(at.y()) % 10); },
    [](QDDrawCanvas& c, QPointF at) { c.setRepeatedlyRenderEnabled(at.x() < 90); },
    [](QDDrawCanvas& c, QPointF at) { c.setWetEdgeWidth(static_cast<float>(at.y() / 5)); },
    [](QDDrawCanvas& c, QPointF at) { c.setBrushType(at.x() < 80 ? 3 : 0); },
    [](QDDrawCanvas& c, QPointF) { c.clearESBufferWithColor(ESColor::rgba(0.2f, 0.5f, 0.9f, 0.6f), false); },
    [](QDDrawCanvas& c, QPointF) { c.clear(); },
    [](QDDrawCanvas& c, QPointF) { c.clearExtenBuffer(); },
    [](QDDrawCanvas& c, QPointF) { c.updateBGImage(); },
    [](QDDrawCanvas& c, QPointF at) { c.resetWithRenderRect(QRectF(at, QSizeF(30.5, 20))); },
    [](QDDrawCanvas& c, QPointF at) { c.drawPoint(at, 25); },  // and not composited
    [](QDDrawCanvas& c, QPointF at) {
        c.drawPoint(at, 25);
        c.updateImage(false);
    },
    [](QDDrawCanvas& c, QPointF at) {
        const LPPoint dab{{static_cast<float>(at.x()), 60}, 30, {1, 1, 1}};
        c.drawPoints(&dab, 1, at.y() < 75 ? ESRenderTypeCanvas : ESRenderTypeSubLine);
    },
    [](QDDrawCanvas& c, QPointF at) {
        c.setNeglectTextureUpdate(at.y() < 75);
        c.drawImage(patternImage({30, 20}), QRectF(at, QSizeF(33, 20)));
        c.setNeglectTextureUpdate(false);
    },
    [](QDDrawCanvas& c, QPointF at) {
        c.mouseDown({at});
        c.mouseDragged({at + QPointF(25, 9)});
        c.mouseDragged({at + QPointF(40, 0)});
        c.mouseUp({at});  // withdrawn
        c.drawingWithBeginPoint(at);
    },
};

// Looking at the canvas now and then, or never: composites that wait must give the same pixels.
class CanvasBlendTest : public CanvasTest, public ::testing::WithParamInterface<int> {};
TEST_P(CanvasBlendTest, ComposingLateGivesTheSamePixels) {
    const std::unique_ptr<QDDrawCanvas> canvases[] = {makeCanvas(211, 133), makeCanvas(211, 133)};
    for (std::size_t mostly = 0; mostly < std::size(kHappenings); ++mostly) {
        SCOPED_TRACE(mostly);
        const auto paint = [&](QDDrawCanvas& canvas, bool look) {
            canvas.setBrushType(0);
            canvas.setBlendType(GetParam());
            canvas.setOpacity(0.8f);
            canvas.setFlow(0.4f);
            canvas.setWetEdge(mostly % 2 == 0 ? 0 : 0.7f);
            canvas.setRadius(14);
            canvas.setRenderColor(ESColor::rgba(0.1f, 0.3f, 0.8f));
            canvas.clearWithColor(ESColor::rgba(0.9f, 0.7f, 0.3f, 0.8f), false);
            std::mt19937 random(static_cast<unsigned>(mostly));
            const auto next = [&] { return QPointF(random() % 190 + 10, random() % 110 + 10); };
            canvas.drawingWithBeginPoint(next());
            for (int move = 0; move < 20; ++move) {
                canvas.drawingWithMoveToPoint(next());
                const QPointF at = next();
                const auto other = random() % std::size(kHappenings);
                if (const auto dice = random() % 10; dice < 3) {
                    kHappenings[dice == 0 ? other : mostly](canvas, at);
                }
                if (random() % 3 == 0 && look) {
                    canvas.displayImage();
                }
            }
            canvas.drawingWithEndPoint(next());
            EXPECT_TRUE(imagesMatch(canvas.displayImage(), canvas.image()));
        };
        paint(*canvases[0], false);
        paint(*canvases[1], true);
        EXPECT_TRUE(imagesMatch(canvases[0]->image(), canvases[1]->image()));
    }
}
INSTANTIATE_TEST_SUITE_P(Types, CanvasBlendTest, ::testing::Values(0, 1, 2, 3, 4, 5, 6, 7, 8, 9),
                         [](const auto& row) { return "Blend" + std::to_string(row.param); });

// Of strokes after one another on any surface, looked at after every event or never.
struct LookedAt {
    SurfaceKind kind;
    int canvasDepth, layerDepth;
};
class CanvasLooksTest : public CanvasTest, public ::testing::WithParamInterface<LookedAt> {
protected:
    static void paint(QDDrawCanvas& canvas, unsigned seed, bool look) {
        std::mt19937 random(seed);
        const auto within = [&](int most) {
            return static_cast<float>(random() % 1000) / 999 * static_cast<float>(most);
        };
        canvas.setBrushType(seed % 3 == 0 ? 3 : 0);
        canvas.setMixQuantity(within(1));
        canvas.setMoistQuantity(within(1));
        canvas.setBlendType(static_cast<int>(seed % 10));
        canvas.setWetEdge(seed % 4 < 2 ? 0 : within(1));
        canvas.setWetEdgeWidth(within(64));
        canvas.setRepeatedlyRenderEnabled(seed % 5 == 0);
        canvas.setRadius(1 + within(40));
        canvas.setFlow(0.1f + within(1));
        canvas.setOpacity(0.3f + within(1));
        canvas.setRenderColor(ESColor::rgba(within(1), within(1), within(1)));
        QPointF at(within(300), within(200));
        canvas.drawingWithBeginPoint(at, within(1));
        for (int move = 0; move < 9; ++move) {
            at += QPointF(within(90) - 45, within(90) - 45);
            canvas.drawingWithMoveToPoint(at, within(1));
            if (look) {
                canvas.displayImage();
            }
        }
        canvas.drawingWithEndPoint(at, within(1));
    }
};
TEST_P(CanvasLooksTest, ALookInMidStrokeChangesNothing) {
    const auto& [kind, canvasDepth, layerDepth] = GetParam();
    const auto make = [&] { return makeCanvas(300, 200, kind, canvasDepth, layerDepth); };
    const auto plain = make(), lookedAt = make();
    for (unsigned seed = 0; seed < 60; ++seed) {
        for (QDDrawCanvas* canvas : {plain.get(), lookedAt.get()}) {
            if (seed % 6 == 0) {
                canvas->drawImage(patternImage({300, 200}), QRectF(0, 0, 300, 200));
            }
            paint(*canvas, seed, canvas == lookedAt.get());
        }
        EXPECT_TRUE(bitsOf(*plain) == bitsOf(*lookedAt)) << "stroke " << seed;
    }
}
INSTANTIATE_TEST_SUITE_P(Surfaces, CanvasLooksTest,
                         ::testing::Values(LookedAt{SurfaceKind::gpu, 8, 16},
                                           LookedAt{SurfaceKind::gpu, 16, 8},
                                           LookedAt{SurfaceKind::processor, 8, 16},
                                           LookedAt{SurfaceKind::processor, 16, 8},
                                           LookedAt{SurfaceKind::processor, 16, 16}),
                         [](const auto& of) {
                             return std::string(of.param.kind == SurfaceKind::gpu ? "Gpu" : "Processor") +
                                    std::to_string(of.param.canvasDepth) + "Layer" +
                                    std::to_string(of.param.layerDepth);
                         });

// A stroke that dries changes pixels beyond its dabs: the host hears of them, and taking it back leaves none.
TEST_F(CanvasLayersTest, ADryingStrokeIsShownAndTakenBackAsFarAsItReaches) {
    ShownCanvas canvas({300, 200});
    canvas.clearWithColor(ESColor::rgba(0.9f, 0.8f, 0.6f, 1), false);
    canvas.setRadius(50);
    canvas.setWetEdge(0.8f);
    canvas.setWetEdgeWidth(40);
    canvas.resetUndoManager();
    const auto before = bitsOf(canvas);
    QImage shown = canvas.displayImage().copy();
    for (int move = 0; move < 8; ++move) {
        canvas.redisplayed.clear();
        const QDDrawTouch at{QPointF(60 + 20 * move, 90 + 9 * (move % 2)), 1};
        move == 0 ? canvas.mouseDown(at) : canvas.mouseDragged(at);
        const QImage now = canvas.displayImage().copy();
        QRect changed;
        for (int y = 0; y < 200; ++y) {
            for (int x = 0; x < 300; ++x) {
                changed = now.pixel(x, y) != shown.pixel(x, y) ? changed | QRect(x, y, 1, 1) : changed;
            }
        }
        EXPECT_TRUE(changed.isNull() || canvas.redisplayedArea().contains(changed)) << move;
        shown = now;
    }
    canvas.mouseUp({QPointF(200, 90), 1});  // so early that it is withdrawn
    EXPECT_EQ(bitsOf(canvas), before);
    paintWave(canvas, 90);
    EXPECT_NE(bitsOf(canvas), before);
    canvas.undo();
    EXPECT_EQ(bitsOf(canvas), before);
}

TEST_F(CanvasLayersTest, WithoutMemoryToDryAStrokeItIsDrawnAsItIs) {
    const std::unique_ptr<QDDrawCanvas> canvases[] = {makeCanvas(200, 150, SurfaceKind::gpu),
                                                      makeCanvas(200, 150, SurfaceKind::gpu)};
    paintWave(*canvases[0], 40);
    paintWave(*canvases[1], 40);  // which takes up the brush's tip
    paintWave(*canvases[0]);
    canvases[1]->setWetEdge(0.8f);
    const FailingDriver driver(FailingDriver::Fault::noTextureMemory);
    const LogCapture log;
    paintWave(*canvases[1]);
    EXPECT_TRUE(imagesMatch(canvases[1]->image(), canvases[0]->image()));
    EXPECT_EQ(log.lines().size(), 1) << qPrintable(log.lines().join('\n'));
}

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

}  // namespace
