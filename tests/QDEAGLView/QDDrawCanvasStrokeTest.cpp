// SPDX-License-Identifier: MIT
#include <epoxy/egl.h>

#include <limits>
#include <string>
#include <vector>

#include "LineProcess/LPProperties.h"
#include "LineProcess/LPStroke.h"
#include "LineProcess/LPTrace.h"
#include "support/CanvasTest.h"

namespace {

using CanvasStrokeTest = CanvasTest;

// Writes down every callback with its point; "should" may move the point.
class Recorder : public QDDrawViewDelegate {
public:
    std::vector<std::string> calls;
    QPointF beginAt{-1, -1};

    QPointF drawViewShouldDrawBegin(QDDrawCanvas&, QPointF p) override {
        note("should begin", p);
        return beginAt.x() < 0 ? p : beginAt;
    }
    void drawViewWillDrawBegin(QDDrawCanvas&, QPointF p) override { note("will begin", p); }
    void drawViewDidDrawBegin(QDDrawCanvas&, QPointF p) override { note("did begin", p); }
    QPointF drawViewShouldDrawMove(QDDrawCanvas&, QPointF p) override {
        note("should move", p);
        return p;
    }
    void drawViewWillDrawMove(QDDrawCanvas&, QPointF p) override { note("will move", p); }
    void drawViewDidDrawMove(QDDrawCanvas&, QPointF p) override { note("did move", p); }
    QPointF drawViewShouldDrawEnd(QDDrawCanvas&, QPointF p) override {
        note("should end", p);
        return p;
    }
    void drawViewWillDrawEnd(QDDrawCanvas&, QPointF p) override { note("will end", p); }
    void drawViewDidDrawEnd(QDDrawCanvas&, QPointF p) override { note("did end", p); }

private:
    void note(const char* what, QPointF p) {
        calls.push_back(std::string(what) + " " + std::to_string(std::lround(p.x())) + "," +
                        std::to_string(std::lround(p.y())));
    }
};

// A canvas shown at another size than its buffer's.
class ScaledCanvas : public QDDrawCanvas {
public:
    explicit ScaledCanvas(const QRectF& frame) : QDDrawCanvas(frame), shownAt(frame) {}
    bool make() { return initCanvas(); }
    QRectF shownAt;
    std::vector<QRectF> redisplayed;

protected:
    QRectF displayFrame() const override { return shownAt; }
    void redisplayRect(const QRectF& rect) override { redisplayed.push_back(rect); }
};

// Callbacks

TEST_F(CanvasStrokeTest, CallbacksComeInOrderAndAFilteredMoveEndsEarly) {
    auto canvas = makeCanvas();
    Recorder recorder;
    recorder.beginAt = QPointF(10, 10);
    canvas->setDelegate(&recorder);
    canvas->drawingWithBeginPoint({50, 50});
    canvas->drawingWithMoveToPoint({10.5, 10});  // within one pixel of the moved begin
    canvas->drawingWithMoveToPoint({30, 10});
    canvas->drawingWithEndPoint({40, 10});
    EXPECT_EQ(recorder.calls,
              (std::vector<std::string>{"should begin 50,50", "will begin 10,10", "did begin 10,10",
                                        "should move 11,10", "will move 11,10", "should move 30,10",
                                        "will move 30,10", "did move 30,10", "should end 40,10",
                                        "will end 40,10", "did end 40,10"}));
}

TEST_F(CanvasStrokeTest, AMoveOfExactlyOnePixelIsDropped) {
    auto canvas = makeCanvas();
    Recorder recorder;
    canvas->setDelegate(&recorder);
    canvas->drawingWithBeginPoint({50, 50});
    recorder.calls.clear();
    canvas->drawingWithMoveToPoint({51, 50});
    EXPECT_EQ(recorder.calls.size(), 2u);
    canvas->drawingWithMoveToPoint({51.01, 50});
    EXPECT_EQ(recorder.calls.size(), 5u);
}

TEST_F(CanvasStrokeTest, PointsScaleFromViewToBufferAndRedisplayBack) {
    ScaledCanvas canvas(QRectF(0, 0, 200, 150));
    ASSERT_TRUE(canvas.make());
    canvas.shownAt = QRectF(0, 0, 400, 300);
    canvas.updateScaleInfo();
    EXPECT_EQ(canvas.scale(), QSizeF(2, 2));
    Recorder recorder;
    canvas.setDelegate(&recorder);
    canvas.redisplayed.clear();
    canvas.drawingWithBeginPoint({100, 100});
    canvas.drawingWithMoveToPoint({200, 100});
    canvas.drawingWithMoveToPoint({300, 100});
    canvas.drawingWithEndPoint({300, 200}, -1, -1, false);
    EXPECT_EQ(recorder.calls[1], "will begin 100,100");
    EXPECT_EQ(recorder.calls[2], "did begin 50,50");
    ASSERT_EQ(canvas.redisplayed.size(), 2u) << "one a segment, none for the end that was not online";
    // The first segment's dabs lie from x 50 to 75 of the buffer, at y 50.
    EXPECT_TRUE(canvas.redisplayed[0].contains(QPointF(120, 100)));
    EXPECT_FALSE(canvas.redisplayed[0].contains(QPointF(60, 50)));
    const QRect drawn = painted(canvas.image());
    EXPECT_GT(drawn.left(), 25);
    EXPECT_LT(drawn.right(), 175);
}

// Dabs

// The dabs that a line of its own gives for a stroke, call by call.
std::vector<std::size_t> runsOf(QDDrawCanvas& canvas, const std::vector<QPointF>& points) {
    LPLineParams record = _lpDefaultParaObj;
    record.radius = canvas.radius();
    record.pointsDistance = canvas.pointsDistance();
    record.minRadius = canvas.minRadius();
    record.startRadius = canvas.startRadius();
    record.endRadius = canvas.endRadius();
    record.strokeControlValue = canvas.strokeControlValue();
    LPLineParams* before = lpSetParaObj(&record);
    std::vector<std::size_t> runs;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const LPPosition at{static_cast<float>(points[i].x()), static_cast<float>(points[i].y())};
        if (i == 0) {
            lpStartLineWithParams(at, -1, 0);
            continue;
        }
        const auto count = lpAppendingLineWithParams(at, -1, 0, i + 1 == points.size());
        LPPoint* dabs = nullptr;
        if (count > 0) {
            lpGetLastLineSegmentPoints1V(&dabs);
            std::free(dabs);
        }
        runs.push_back(static_cast<std::size_t>(count));
    }
    lpSetParaObj(before);
    return runs;
}

TEST_F(CanvasStrokeTest, OnlyTheFirstAcceptedMoveDropsItsFirstDab) {
    auto canvas = makeCanvas();
    const std::vector<QPointF> points{{20, 40}, {60, 45}, {100, 40}, {140, 60}};
    canvas->drawingWithBeginPoint(points[0]);
    EXPECT_EQ(canvas->strokeStats().dabs, 0u) << "nothing is drawn at begin";
    std::vector<std::size_t> drawn;
    for (std::size_t i = 1; i < points.size(); ++i) {
        const auto before = canvas->strokeStats().dabs;
        i + 1 < points.size() ? canvas->drawingWithMoveToPoint(points[i])
                              : canvas->drawingWithEndPoint(points[i]);
        drawn.push_back(canvas->strokeStats().dabs - before);
    }
    std::vector<std::size_t> expected = runsOf(*canvas, points);
    --expected[0];
    EXPECT_EQ(drawn, expected);
}

TEST_F(CanvasStrokeTest, SamplesThatAreNotFiniteAreRefusedAndTheStrokeGoesOn) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const float infinite = std::numeric_limits<float>::infinity();
    auto clean = makeCanvas();
    auto spoiled = makeCanvas();
    paintWave(*clean, 75, 12);
    paintWave(*spoiled, 75, 12, [&](int) {
        spoiled->drawingWithMoveToPoint({nan, 10});
        spoiled->drawingWithMoveToPoint({10, 1e300});
        spoiled->drawingWithMoveToPoint({10, 10}, infinite);
        spoiled->drawingWithMoveToPoint({10, 10}, 0.5f, -infinite);
    });
    EXPECT_TRUE(SamePixels(spoiled->image(), clean->image()));
}

// The first stage leaves pressure alone and takes a tilt of -1 as upright.
TEST_F(CanvasStrokeTest, AltitudeNotGivenIsUprightAndPressureNotGivenHasNoInfluence) {
    auto given = makeCanvas();
    auto without = makeCanvas();
    for (QDDrawCanvas* canvas : {given.get(), without.get()}) {
        canvas->setRadiusControl({0, 1, 0});  // only tilt acts
    }
    const auto paint = [](QDDrawCanvas& canvas, float altitude) {
        canvas.drawingWithBeginPoint({20, 75}, -1, altitude);
        canvas.drawingWithMoveToPoint({90, 75}, -1, altitude);
        canvas.drawingWithEndPoint({180, 75}, -1, altitude);
    };
    paint(*given, 0.0f);
    paint(*without, -0.99995f);
    EXPECT_TRUE(SamePixels(without->image(), given->image()));
    auto flat = makeCanvas();
    flat->setRadiusControl({0, 1, 0});
    paint(*flat, 1.0f);
    EXPECT_GT(painted(flat->image()).height(), painted(given->image()).height());
}

// Sub-line

TEST_F(CanvasStrokeTest, TheSubLineMasksTheLine) {
    const auto coverage = [&](bool masked) {
        auto canvas = makeCanvas();
        canvas->setHardness(1);
        canvas->setSlRadius(8);
        canvas->setRepeatedlyRenderEnabled(masked);
        paintWave(*canvas);
        return painted(canvas->image()).height();
    };
    EXPECT_LT(coverage(true), coverage(false) - 6);
    EXPECT_GT(coverage(true), 0);
}

// Several canvases, and the host's own context

TEST_F(CanvasStrokeTest, StrokesOfTwoCanvasesMayInterleave) {
    const auto prepare = [](QDDrawCanvas& canvas, float radius) {
        canvas.setRadius(radius);
        canvas.setStrokeControlValue(60);  // a start taper, whose flag the whole process shares
        canvas.setStartRadius(0.05f);
        canvas.setMoveRadianEnable(true);
        canvas.setRoundness(0.4f);
        canvas.setDistribution(0.4f);
        canvas.setDistributionCount(2);
    };
    auto alone = makeCanvas();
    auto otherAlone = makeCanvas();
    prepare(*alone, 20);
    prepare(*otherAlone, 33);
    paintWave(*alone);
    paintWave(*otherAlone, 60);

    auto first = makeCanvas();
    auto second = makeCanvas();
    prepare(*first, 20);
    prepare(*second, 33);
    // The second canvas's whole stroke, one call after each of the first one's.
    std::vector<std::function<void()>> calls;
    const auto at = [](int i) { return QPointF(20 + 160.0 * i / 30, 60 + 25 * std::sin(i * 0.35)); };
    const auto pressure = [](int i) { return 0.2f + 0.7f * static_cast<float>(std::sin(3.14159 * i / 30)); };
    second->drawingWithBeginPoint(at(0), pressure(0), 0.2f);
    paintWave(*first, 75, 30, [&](int i) { second->drawingWithMoveToPoint(at(i), pressure(i), 0.2f); });
    second->drawingWithEndPoint(at(30), pressure(30), 0.2f);
    EXPECT_TRUE(SamePixels(first->image(), alone->image()));
    EXPECT_TRUE(SamePixels(second->image(), otherAlone->image()));
}

TEST_F(CanvasStrokeTest, NoContextIsLeftCurrent) {
    auto canvas = makeCanvas();
    paintWave(*canvas);
    canvas->setTextureType(2);
    canvas->setRadius(50);
    canvas->image();
    canvas->clear();
    EXPECT_EQ(eglGetCurrentContext(), EGL_NO_CONTEXT);
    canvas.reset();
    EXPECT_EQ(eglGetCurrentContext(), EGL_NO_CONTEXT);
}

TEST_F(CanvasStrokeTest, ADestroyedCanvasLeavesNoRecordSelected) {
    auto canvas = makeCanvas();
    paintWave(*canvas);
    canvas.reset();
    EXPECT_EQ(lpSetParaObj(nullptr), &_lpDefaultParaObj);
}

struct BadFrame {
    const char* name;
    double width, height;
};
class CanvasFrameTest : public ::testing::TestWithParam<BadFrame> {};
TEST_P(CanvasFrameTest, IsRefused) {
    EXPECT_EQ(QDDrawCanvas::initWithFrame(QRectF(0, 0, GetParam().width, GetParam().height)), nullptr);
}
INSTANTIATE_TEST_SUITE_P(BadFrames, CanvasFrameTest,
                         ::testing::Values(BadFrame{"Empty", 0, 0}, BadFrame{"Flat", 100, 0},
                                           BadFrame{"Negative", -5, 20}, BadFrame{"Huge", 1e6, 10},
                                           BadFrame{"NotANumber", std::nan(""), 10}),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
