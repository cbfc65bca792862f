// SPDX-License-Identifier: MIT
#include <QApplication>
#include <string>

#include "Preview/LeafDrawing.h"
#include "QDEAGLView/QDDrawView.h"
#include "support/CanvasTest.h"

namespace {

class CanvasPreviewTest : public CanvasTest {
protected:
    static void useLeaf(QDDrawCanvas& canvas) {
        canvas.setBrushType(4);
        canvas.setRenderColor(ESColor::rgba(1, 0, 0));
    }
    // A square, whose last corner the end closes.
    static void begin(QDDrawCanvas& canvas, const QRectF& square, bool looks = false) {
        canvas.drawingWithBeginPoint(square.topLeft());
        const QPointF corners[] = {square.topLeft(), square.topRight(), square.bottomRight(),
                                   square.bottomLeft()};
        for (int side = 0; side < 3; ++side) {
            for (int i = 1; i <= 20; ++i) {
                canvas.drawingWithMoveToPoint(corners[side] + (corners[side + 1] - corners[side]) * i / 20.0);
                looks ? static_cast<void>(canvas.leafDrawView().cgImage()) : void();
            }
        }
    }
    static void fill(QDDrawCanvas& canvas) {
        useLeaf(canvas);
        begin(canvas, QRectF(20, 20, 100, 100));
        canvas.drawingWithEndPoint({20, 120});
    }
    static QImage shown(QDDrawView& view) {
        return view.grab().toImage().convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    }
};

TEST_F(CanvasPreviewTest, IsPlacedExactlyWhereItWasShown) {
    for (const QSizeF viewSize : {QSizeF(200, 150), QSizeF(400, 300), QSizeF(130, 75)}) {
        SCOPED_TRACE(std::to_string(viewSize.width()) + " points for 200 pixels");
        auto view = QDDrawView::initWithFrame(QRectF(0, 0, 200, 150));
        ASSERT_TRUE(view);
        view->show();
        view->clearWithColor(ESColor::grey(1), true);
        view->resize(viewSize.toSize());
        useLeaf(*view);
        const QRectF square(viewSize.width() * 0.2, viewSize.height() * 0.2, viewSize.width() * 0.5,
                            viewSize.height() * 0.4);
        begin(*view, square);
        EXPECT_EQ(shown(*view).pixelColor(square.center().toPoint()), QColor(255, 0, 0));
        EXPECT_EQ(view->childAt(square.center().toPoint()), nullptr) << "the pointer meets what lies below";
        view->drawingWithEndPoint(square.bottomLeft());
        const QImage live = shown(*view);  // with the end, and no flicker
        EXPECT_TRUE(view->leafDrawView().isPending());
        QApplication::processEvents();
        EXPECT_FALSE(view->leafDrawView().isPending());
        const QImage placed = shown(*view);
        // The blur softens the rim; nothing moves, and away from the rim nothing changes.
        const QRectF inner = square.adjusted(8, 8, -8, -8), outer = square.adjusted(-8, -8, 8, 8);
        double liveX = 0, placedX = 0, liveY = 0, placedY = 0, liveSum = 0, placedSum = 0;
        for (int y = 0; y < live.height(); ++y) {
            for (int x = 0; x < live.width(); ++x) {
                const double a = 255 - live.pixelColor(x, y).green(),
                             b = 255 - placed.pixelColor(x, y).green();
                liveSum += a, liveX += a * x, liveY += a * y;
                placedSum += b, placedX += b * x, placedY += b * y;
                if (inner.contains(x, y) || !outer.contains(x, y)) {
                    ASSERT_EQ(placed.pixelColor(x, y), live.pixelColor(x, y)) << x << ", " << y;
                }
            }
        }
        EXPECT_NEAR(placedX / placedSum, liveX / liveSum, 0.1);
        EXPECT_NEAR(placedY / placedSum, liveY / liveSum, 0.1);
        EXPECT_NEAR(placedSum / liveSum, 1, 0.01);
    }
}

// While it is drawn and when it is placed, also of what lies beside the canvas; where copies overlap, once.
TEST_F(CanvasPreviewTest, IsMirroredWithTheStroke) {
    using namespace dabcanvas;
    struct Row {
        Symmetry symmetry;
        QRectF square;
        std::vector<QRect> filled;  // and as many pixels more or less
        double pixels;
    };
    const Row rows[] = {
        {{SymmetryKind::vertical, 100, 75}, {20, 20, 40, 60}, {{25, 25, 30, 50}, {145, 25, 30, 50}}, 4800},
        {{SymmetryKind::both, 100, 75}, {20, 20, 40, 30}, {{25, 25, 30, 20}, {145, 105, 30, 20}}, 4800},
        {{SymmetryKind::radial, 100, 75, 4}, {110, 85, 30, 20}, {{115, 90, 20, 10}, {75, 90, 10, 20}}, 2400},
        {{SymmetryKind::vertical, 100, 75}, {220, 20, 40, 60}, {}, 0},
        {{SymmetryKind::vertical, 140, 75}, {220, 20, 40, 60}, {{25, 25, 30, 50}}, 2400},
        {{SymmetryKind::vertical, 100, 75}, {80, 20, 30, 60}, {{85, 25, 30, 50}}, 2400},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(::testing::Message() << int(row.symmetry.kind) << " " << row.square.x());
        auto canvas = makeCanvas(200, 150);
        canvas->setSymmetry(row.symmetry);
        useLeaf(*canvas);
        canvas->setFlow(0.5f);
        begin(*canvas, row.square, true);
        LeafDrawing& leaf = canvas->leafDrawView();
        const QImage grown = leaf.cgImage().copy();
        leaf.setRenderColor(ESColor::grey(0));  // which draws all of it anew
        leaf.setRenderColor(ESColor::rgba(1, 0, 0, 0.5f));
        EXPECT_EQ(leaf.cgImage(), grown);
        canvas->drawingWithEndPoint(row.square.bottomLeft());
        const QImage live = canvas->leafDrawView().cgImage().scaled(200, 150);
        const QImage placed = canvas->image();
        double sum = 0;
        for (int i = 0; i < 200 * 150; ++i) {
            sum += placed.pixelColor(i % 200, i / 200).alphaF();
        }
        EXPECT_NEAR(sum, row.pixels / 2, row.pixels * 0.03);
        for (const QRect& part : row.filled) {
            for (const QPoint at : {part.topLeft(), part.center(), part.bottomRight()}) {
                EXPECT_NEAR(live.pixelColor(at).alpha(), 128, 1);
                EXPECT_NEAR(placed.pixelColor(at).alpha(), 128, 1);
            }
        }
    }
}

TEST_F(CanvasPreviewTest, ReachesTheCanvasInTheOrderOfStrokes) {
    auto canvas = makeCanvas();
    useLeaf(*canvas);
    begin(*canvas, QRectF(20, 20, 100, 100));
    EXPECT_TRUE(painted(canvas->image()).isEmpty()) << "nothing before the end";
    canvas->drawingWithEndPoint({20, 120});
    canvas->setRenderColor(ESColor::rgba(0, 0, 1));  // too late for the stroke
    canvas->setBrushType(0);
    canvas->setHardness(1);
    paintThrough(*canvas, {{10, 70}, {60, 70}, {140, 70}, {160, 70}});
    const QImage both = canvas->image();
    EXPECT_EQ(both.pixelColor(70, 70), QColor(0, 0, 255));
    EXPECT_EQ(both.pixelColor(70, 40), QColor(255, 0, 0));
    EXPECT_TRUE(canvas->edited());

    // Dabs drawn by hand lie above it, too.
    canvas->clear();
    fill(*canvas);
    canvas->setRenderColor(ESColor::rgba(0, 0, 1));
    canvas->drawPoint({70, 70}, 20);
    canvas->updateImage(false);
    EXPECT_EQ(canvas->image().pixelColor(70, 70), QColor(0, 0, 255));

    // A clear after the end clears the stroke, too; flow is its opacity.
    for (const bool layersToo : {true, false}) {
        fill(*canvas);
        layersToo ? canvas->clear() : canvas->clearESBufferOnline(true);
        EXPECT_TRUE(painted(canvas->image()).isEmpty()) << layersToo;
    }
    canvas->setFlow(0.5f);
    fill(*canvas);
    EXPECT_NEAR(canvas->image().pixelColor(70, 60).alpha(), 128, 1);
}

TEST_F(CanvasPreviewTest, WithdrawnOrAbandonedItLeavesNothing) {
    auto canvas = makeCanvas();
    useLeaf(*canvas);
    const auto drag = [&](int moves) {
        canvas->mouseDown({{20, 20}});
        for (int i = 1; i <= moves; ++i) {
            canvas->mouseDragged({{20.0 + i * 12, 20 + 100.0 * (i % 2)}});
        }
    };
    drag(8);
    EXPECT_FALSE(canvas->leafDrawView().isClear());
    canvas->mouseUp({{120, 20}});
    EXPECT_TRUE(canvas->leafDrawView().isClear());
    EXPECT_TRUE(painted(canvas->image()).isEmpty());

    drag(12);
    canvas->setBrushType(0);  // in the middle
    EXPECT_TRUE(canvas->leafDrawView().isClear());
    canvas->mouseUp({{150, 120}});
    EXPECT_TRUE(painted(canvas->image()).isEmpty());

    // That there is a step to go back from is told when the stroke has ended; a host may end the pointer's once more.
    struct Leaver : QDDrawViewDelegate {
        void drawViewDidUpdateUndoStatus(QDDrawCanvas& c, bool) override { c.endPointerStroke(), ++told; }
        int told = 0;
    } leaver;
    canvas->setDelegate(&leaver);
    canvas->setAutoMark(true);
    useLeaf(*canvas);
    drag(12);
    canvas->mouseUp({{150, 120}});
    EXPECT_EQ(leaver.told, 1);
    EXPECT_TRUE(canvas->canUndo());
    EXPECT_FALSE(canvas->isDrawing());
    EXPECT_FALSE(painted(canvas->image()).isEmpty());
}

}  // namespace
