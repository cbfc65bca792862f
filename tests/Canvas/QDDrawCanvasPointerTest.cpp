// SPDX-License-Identifier: MIT
#include <functional>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "Canvas/QDDrawCanvas.h"
#include "support/CanvasTest.h"

namespace {

// Counts the ends that a stroke tells of.
class Ends : public QDDrawViewDelegate {
public:
    std::vector<QPointF> should, did;
    std::function<void(QDDrawCanvas&)> atBegin, atMove, atEnd;
    static void call(const std::function<void(QDDrawCanvas&)>& callback, QDDrawCanvas& canvas) {
        if (callback) {
            callback(canvas);
        }
    }
    void drawViewWillDrawBegin(QDDrawCanvas& canvas, QPointF) override { call(atBegin, canvas); }
    void drawViewWillDrawMove(QDDrawCanvas& canvas, QPointF) override { call(atMove, canvas); }
    void drawViewWillDrawEnd(QDDrawCanvas& canvas, QPointF) override { call(atEnd, canvas); }
    QPointF drawViewShouldDrawEnd(QDDrawCanvas&, QPointF p) override {
        should.push_back(p);
        return p;
    }
    void drawViewDidDrawEnd(QDDrawCanvas&, QPointF p) override { did.push_back(p); }
};

class CanvasPointerTest : public CanvasTest {
protected:
    void SetUp() override {
        CanvasTest::SetUp();
        canvas = makeCanvas();
        canvas->setDelegate(&ends);
        canvas->setHardness(1);
    }
    static QDDrawTouch at(double x, double y = 75, float pressure = 1) { return {{x, y}, pressure}; }
    void drag(int drags, double step = 8) {
        for (int i = 1; i <= drags; ++i) {
            canvas->mouseDragged(at(20 + i * step));
        }
    }
    bool isBlank() { return painted(canvas->image()).isEmpty(); }
    void expectIdle() {
        EXPECT_FALSE(canvas->isDrawing());
        EXPECT_FALSE(canvas->lineMove());
        EXPECT_EQ(canvas->moveCount(), 0u);
        EXPECT_FALSE(canvas->normalMoing());
        EXPECT_FALSE(canvas->digitPenMoving());
    }

    std::unique_ptr<QDDrawCanvas> canvas;
    Ends ends;
};

TEST_F(CanvasPointerTest, AShortMouseStrokeIsWithdrawnAndALongOneFinished) {
    struct Case {
        const char* name;
        int drags;
        bool adjust;
        bool stays;
        std::size_t ends;
    };
    for (const Case& c :
         {Case{"click", 0, true, false, 0}, Case{"one drag", 1, true, false, 1},
          Case{"nine drags", 9, true, false, 1}, Case{"ten drags", 10, true, true, 1},
          Case{"one drag, kept", 1, false, true, 1}, Case{"click, kept", 0, false, false, 0}}) {
        SCOPED_TRACE(c.name);
        canvas->clear();
        ends.did.clear();
        canvas->setAdjustCancelLine(c.adjust);
        canvas->mouseDown(at(20));
        EXPECT_TRUE(canvas->digitPenMoving());
        drag(c.drags, 15);
        EXPECT_EQ(canvas->isLining(), c.drags > 9);
        canvas->mouseUp(at(20 + c.drags * 15));
        EXPECT_EQ(!isBlank(), c.stays);
        EXPECT_EQ(ends.did.size(), c.ends);
        expectIdle();
    }
}

TEST_F(CanvasPointerTest, AWithdrawnStrokeLeavesNoBitBehind) {
    paintWave(*canvas);
    EXPECT_TRUE(canvas->edited());
    canvas->markAction();
    for (const bool secondLine : {false, true}) {
        for (const int blend : {1, 2, 5, 8}) {
            SCOPED_TRACE("blend type " + std::to_string(blend) + (secondLine ? " with a second line" : ""));
            canvas->setBlendType(blend);
            canvas->setRepeatedlyRenderEnabled(secondLine);
            const QImage before = canvas->image();
            canvas->mouseDown(at(20));
            drag(5, 20);
            canvas->displayImage();  // it was on screen
            drag(2, 30);
            canvas->mouseUp(at(90));
            EXPECT_TRUE(imagesMatch(canvas->image(), before));
            EXPECT_TRUE(imagesMatch(canvas->displayImage(), before));
            EXPECT_FALSE(canvas->edited());
        }
    }
    // And nothing of it comes back with the next stroke.
    auto fresh = makeCanvas();
    canvas = makeCanvas();
    canvas->mouseDown(at(20, 20));
    drag(5, 20);
    canvas->mouseUp(at(120));
    for (QDDrawCanvas* one : {canvas.get(), fresh.get()}) {
        paintWave(*one, 90);
    }
    EXPECT_TRUE(imagesMatch(canvas->image(), fresh->image()));
}

TEST_F(CanvasPointerTest, TouchStrokesEndThroughTheEndPath) {
    canvas->touchesBeganWithEvent(at(20));
    canvas->touchesMovedWithEvent(at(60));
    canvas->touchesMovedWithEvent(at(100));
    canvas->touchesEndedWithEvent(at(120));
    EXPECT_FALSE(isBlank());
    EXPECT_FALSE(canvas->normalMoing());

    // A press that slid three points without a move tells of its end and draws nothing.
    canvas->clear();
    ends = {};
    canvas->touchesBeganWithEvent(at(20));
    canvas->touchesEndedWithEvent(at(23));
    EXPECT_TRUE(isBlank());
    EXPECT_EQ(ends.did, (std::vector<QPointF>{{23, 75}}));
    EXPECT_TRUE(canvas->lineFinish());
    expectIdle();

    // Cancelled while short it is withdrawn, as a mouse's is.
    canvas->touchesBeganWithEvent(at(20));
    canvas->touchesMovedWithEvent(at(80));
    canvas->touchesCancelledWithEvent(at(80));
    EXPECT_TRUE(isBlank());
    expectIdle();
}

TEST_F(CanvasPointerTest, TwoKindsOfPointersNeverMix) {
    canvas->mouseDown(at(20, 20));
    canvas->touchesBeganWithEvent(at(20, 120));
    EXPECT_FALSE(canvas->normalMoing());
    canvas->touchesMovedWithEvent(at(150, 120));
    drag(12);
    canvas->touchesEndedWithEvent(at(150, 120));
    canvas->mouseUp(at(116));
    EXPECT_LT(painted(canvas->image()).bottom(), 100);
    EXPECT_EQ(ends.did.size(), 1u);

    canvas->clear();
    canvas->touchesBeganWithEvent(at(20, 20));
    canvas->mouseDown(at(20, 120));
    canvas->mouseDragged(at(150, 120));
    canvas->mouseUp(at(150, 120));
    EXPECT_TRUE(isBlank());
    canvas->touchesMovedWithEvent(at(100, 20));
    canvas->touchesEndedWithEvent(at(150, 20));
    EXPECT_LT(painted(canvas->image()).bottom(), 60);
    expectIdle();
}

TEST_F(CanvasPointerTest, APointerThatIsGoneEndsItsStroke) {
    canvas->mouseDown(at(20));
    drag(12);
    canvas->endPointerStroke();
    EXPECT_FALSE(isBlank());
    expectIdle();
    const QImage after = canvas->image();
    drag(5, 20);  // of a button still held
    canvas->mouseUp(at(120));
    EXPECT_TRUE(imagesMatch(canvas->image(), after));

    canvas->touchesBeganWithEvent(at(20, 20));
    for (int i = 1; i < 20; ++i) {
        canvas->touchesMovedWithEvent(at(20 + i * 8, 20));
    }
    canvas->withdrawPointerStroke();
    EXPECT_TRUE(imagesMatch(canvas->image(), after));
    expectIdle();
    canvas->endPointerStroke();  // nothing to end
    EXPECT_EQ(ends.did.size(), 2u);
}

// A dialogue opened in a callback takes the pointer away.
TEST_F(CanvasPointerTest, ACallbackMayEndThePointersStroke) {
    const auto leave = [](QDDrawCanvas& c) {
        EXPECT_TRUE(c.digitPenMoving());
        c.endPointerStroke();
    };
    for (const auto& [name, callback] : {std::pair{"begin", &Ends::atBegin}, std::pair{"move", &Ends::atMove},
                                         std::pair{"end", &Ends::atEnd}}) {
        for (const int brush : {0, 3, 4}) {
            for (const int drags : {5, 14}) {
                SCOPED_TRACE(std::string(name) + ", brush type " + std::to_string(brush));
                ends = {};
                ends.*callback = leave;
                canvas->setBrushType(brush);
                canvas->mouseDown(at(20));
                drag(drags);
                canvas->mouseUp(at(20 + drags * 8));
                expectIdle();
                EXPECT_EQ(ends.did.size(), callback == &Ends::atBegin ? 0u : 1u);
            }
        }
    }
    ends = {};
}

TEST_F(CanvasPointerTest, TheKindOfBrushMayChangeInMidStroke) {
    // Chosen at the beginning, a brush is the stroke's.
    for (const int from : {0, 3, 4}) {
        canvas->clear();
        canvas->setBrushType(from);
        ends.atBegin = [](QDDrawCanvas& c) { c.setBrushType(0); };
        canvas->mouseDown(at(20));
        drag(12);
        canvas->mouseUp(at(116));
        EXPECT_FALSE(isBlank()) << "from " << from;
    }
    ends = {};
    // A second line masks only what is drawn from then on.
    canvas->clear();
    canvas->setRepeatedlyRenderEnabled(true);
    paintWave(*canvas, 40);
    canvas->setRepeatedlyRenderEnabled(false);
    paintWave(*canvas, 100, 30, [&](int move) {
        if (move == 15) {
            const QImage half = canvas->image();
            canvas->setRepeatedlyRenderEnabled(true);
            EXPECT_TRUE(imagesMatch(canvas->image(), half));
        } else if (move == 25) {
            EXPECT_LT(painted(canvas->image().copy(0, 75, 200, 75)).left(), 30);
            EXPECT_GT(painted(canvas->image().copy(0, 75, 200, 75)).right(), 130);
        }
    });
    canvas->setRepeatedlyRenderEnabled(false);
    // What was drawn stays, whatever becomes of the next stroke.
    canvas->drawingWithBeginPoint({20, 75});
    canvas->drawingWithMoveToPoint({90, 75});
    canvas->drawingWithMoveToPoint({160, 75});
    canvas->setBrushType(4);
    canvas->drawingWithEndPoint({180, 75});
    canvas->setBrushType(0);
    const QImage before = canvas->image();
    canvas->mouseDown(at(20));
    drag(7, 20);
    canvas->mouseUp(at(160));
    EXPECT_TRUE(imagesMatch(canvas->image(), before));
}

TEST_F(CanvasPointerTest, RefusedStrokesLeaveEveryFlagIdle) {
    canvas->setEnableRecogition(true);
    canvas->mouseDown(at(20));
    drag(12);
    canvas->mouseUp(at(120));  // the next second is the recogniser's, if it were still at work
    EXPECT_FALSE(canvas->canAddPoint());
    canvas->mouseDragged(at(150));
    canvas->mouseUp(at(150));
    expectIdle();

    class Hidden : public QDDrawCanvas {
    public:
        Hidden() : QDDrawCanvas(QRectF(0, 0, 100, 80)) {}
        bool make() { return initCanvas(); }
        QRectF shown{0, 0, 100, 80};

    protected:
        QRectF displayFrame() const override { return shown; }
    } hidden;
    ASSERT_TRUE(hidden.make());
    hidden.shown = QRectF(0, 0, 0, 80);
    hidden.updateScaleInfo();
    EXPECT_EQ(hidden.bufferSize(), QSizeF(100, 80));
    hidden.mouseDown(at(20));
    hidden.mouseDragged(at(60));
    hidden.mouseUp(at(90));
    EXPECT_FALSE(hidden.digitPenMoving());
    EXPECT_FALSE(hidden.isDrawing());
    hidden.touchesBeganWithEvent(at(20));
    EXPECT_FALSE(hidden.normalMoing());
    EXPECT_TRUE(painted(hidden.image()).isEmpty());
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
