// SPDX-License-Identifier: MIT
// Strokes that keep to what is selected.
#include <QPainter>
#include <array>
#include <limits>

#include "support/CanvasTest.h"

namespace {

using namespace dabcanvas;

constexpr int kWidth = 200, kHeight = 150;

// A slanted edge, a hole, and tiles that lie outside, inside and across.
QPainterPath lens() {
    QPainterPath path;
    path.addEllipse(QPointF(95.3, 70), 71, 55);
    path.addRect(88, 60, 20, 30);
    return path;
}

struct Row {
    const char* name;
    void (*prepare)(QDDrawCanvas& canvas);
    int depth = 8;
    void (*paint)(QDDrawCanvas& canvas) = [](QDDrawCanvas& canvas) { paintWave(canvas); };
};

const Row kRows[] = {
    {"Paint", [](QDDrawCanvas&) {}},
    {"PaintIn16Bits", [](QDDrawCanvas& canvas) { canvas.setOpacity(0.3f); }, 16},
    {"Erase", [](QDDrawCanvas& canvas) { canvas.setBlendType(ESBlendTypeErase); }},
    {"Multiply", [](QDDrawCanvas& canvas) { canvas.setBlendType(ESBlendTypeMultiply); }},
    {"Replace", [](QDDrawCanvas& canvas) { canvas.setBlendType(ESBlendTypeReplace); }},
    {"WetEdge",
     [](QDDrawCanvas& canvas) {
         canvas.setWetEdge(0.8f);
         canvas.setWetEdgeWidth(9);
     }},
    {"SecondLine", [](QDDrawCanvas& canvas) { canvas.setRepeatedlyRenderEnabled(true); }},
    {"Smudge", [](QDDrawCanvas& canvas) { canvas.setBrushType(3); }},
    {"Symmetry",
     [](QDDrawCanvas& canvas) {
         canvas.setSymmetry({SymmetryKind::horizontal, 100, 60});
     }},
    {"Preview", [](QDDrawCanvas& canvas) { canvas.setBrushType(4); }, 8,
     [](QDDrawCanvas& canvas) {
         paintThrough(canvas, {{5, 5}, {190, 20}, {180, 140}, {20, 120}});
     }},
    {"Shape", [](QDDrawCanvas&) {}, 8,
     [](QDDrawCanvas& canvas) {
         ShapeRecord line;
         line.kind = ShapeKind::line;
         line.corners = {{10, 20}, {190, 130}};
         canvas.drawShape(line);
     }},
};

class CanvasSelectionTest : public CanvasTest,
                            public ::testing::WithParamInterface<std::tuple<SurfaceKind, Row>> {
protected:
    static std::unique_ptr<QDDrawCanvas> painted() {
        const auto& [surface, row] = GetParam();
        auto canvas = makeCanvas(kWidth, kHeight, surface, row.depth);
        canvas->setImage(patternImage({kWidth, kHeight}), QRectF(0, 0, kWidth, kHeight));
        canvas->setRadius(44);
        canvas->setFlow(0.7f);
        canvas->setRenderColor(ESColor::rgba(0.1f, 0.7f, 0.3f));
        row.prepare(*canvas);
        return canvas;
    }
};

// How much of each pixel a path covers.
QImage sharesOf(const QPainterPath& path) {
    QImage shares(kWidth, kHeight, QImage::Format_Alpha8);
    shares.fill(0);
    QPainter painter(&shares);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(path, Qt::black);
    return shares;
}

TEST_P(CanvasSelectionTest, PaintComesAsFarAsPixelsAreSelected) {
    const Row& row = std::get<Row>(GetParam());
    auto free = painted(), kept = painted();
    const QImage before = free->image();
    row.paint(*free);
    const QImage all = free->image(), shares = sharesOf(lens());
    kept->setSelection(lens());
    row.paint(*kept);
    const QImage seen = kept->image();
    std::array<int, 3> changed{};  // outside, at the edge, inside
    for (int y = 0; y < kHeight; ++y) {
        for (int i = 0; i < 4 * kWidth; ++i) {
            const int share = shares.constScanLine(y)[i / 4];
            const int was = before.constScanLine(y)[i], is = seen.constScanLine(y)[i];
            const double due = was + (all.constScanLine(y)[i] - was) * share / 255.0;
            // What is a share of a pixel was rounded once more.
            ASSERT_LE(std::abs(is - due), share > 0 && share < 255 ? 1.6 : 0.0)
                << "channel " << i << " of row " << y << ", share " << share;
            changed[share == 0 ? 0u : share < 255 ? 1u : 2u] += all.constScanLine(y)[i] != was;
        }
    }
    EXPECT_GT(changed[1], 150);
    EXPECT_GT(changed[2], 5000);
}

// Composites overlap, and what is looked at is composited sooner.
TEST_P(CanvasSelectionTest, LooksChangeNothing) {
    if (std::get<Row>(GetParam()).paint != kRows[0].paint) {
        return;
    }
    auto blind = painted(), watched = painted();
    for (auto* canvas : {&blind, &watched}) {
        (*canvas)->setSelection(lens());
    }
    paintWave(*blind);
    paintWave(*watched, 75, 30, [&](int) { watched->image(); });
    EXPECT_EQ(bitsOf(*blind), bitsOf(*watched));
}

std::string nameOf(const ::testing::TestParamInfo<std::tuple<SurfaceKind, Row>>& test) {
    return std::string(std::get<Row>(test.param).name) +
           (std::get<SurfaceKind>(test.param) == SurfaceKind::gpu ? "OnGL" : "OnTheProcessor");
}

INSTANTIATE_TEST_SUITE_P(All, CanvasSelectionTest,
                         ::testing::Combine(::testing::Values(SurfaceKind::processor, SurfaceKind::gpu),
                                            ::testing::ValuesIn(kRows)),
                         nameOf);

using CanvasSelectionCallsTest = CanvasTest;

TEST_F(CanvasSelectionCallsTest, ChangesWithCanvasAndStroke) {
    QPainterPath left, right, nowhere, broken, far;
    left.addRect(0, 0, 100, 150);
    right.addRect(100, 0, 300, 150);
    nowhere.addRect(500, 500, 10, 10);
    broken.moveTo(0, 0);
    broken.lineTo(10, 0);
    broken.setElementPositionAt(1, std::numeric_limits<double>::quiet_NaN(), 0);
    far.addRect(0, 0, 1e9, 1);
    for (const SurfaceKind surface : {SurfaceKind::processor, SurfaceKind::gpu}) {
        auto canvas = makeCanvas(kWidth, kHeight, surface);
        const auto alphaAt = [&](int x, int y) { return canvas->image().pixelColor(x, y).alpha(); };
        canvas->setRadius(30);
        canvas->setSelection(nowhere);
        canvas->setSelection(broken);  // refused, as the next one
        canvas->setSelection(far);
        EXPECT_EQ(canvas->selection().boundingRect(), nowhere.boundingRect());
        paintThrough(*canvas, {{20, 40}, {100, 40}, {180, 40}});
        EXPECT_EQ(alphaAt(60, 40), 0);

        // In mid-stroke: what was drawn stays, what follows keeps to the other side.
        canvas->setSelection(left);
        beginThrough(*canvas, {{20, 40}, {60, 40}, {90, 40}, {99, 40}});
        canvas->setSelection(right);
        for (const double x : {120.0, 150.0, 120.0, 60.0}) {
            canvas->drawingWithMoveToPoint({x, 80});
        }
        canvas->drawingWithEndPoint({50, 80});
        EXPECT_GT(alphaAt(60, 40), 200);
        EXPECT_GT(alphaAt(130, 80), 200);
        EXPECT_EQ(alphaAt(70, 80), 0);

        // A larger canvas has more of it; images, and strokes without a selection, go anywhere.
        ASSERT_TRUE(canvas->setCanvasArea(QRect(0, 0, 300, 150)));
        paintThrough(*canvas, {{30, 120}, {150, 120}, {280, 120}});
        EXPECT_EQ(alphaAt(50, 120), 0);
        EXPECT_GT(alphaAt(250, 120), 200);
        canvas->setImage(patternImage({10, 10}), QRectF(10, 130, 10, 10));
        EXPECT_GT(alphaAt(15, 135), 0);
        canvas->setSelection({});
        paintThrough(*canvas, {{30, 120}, {90, 120}, {150, 120}});
        EXPECT_GT(alphaAt(50, 120), 200);
    }
}

}  // namespace
