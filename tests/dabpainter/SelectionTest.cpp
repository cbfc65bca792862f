// SPDX-License-Identifier: MIT
#include "Selection/SelectionEditor.h"

#include <gtest/gtest.h>

#include <QColor>
#include <cmath>
#include <numbers>

#include "Canvas/CanvasLayers.h"
#include "Canvas/QDDrawCanvas.h"
#include "History/ImagesUndoManager.h"
#include "Selection/FloatFrame.h"
#include "Selection/PictureMime.h"
#include "Surface/PaintSurface.h"
#include "support/Images.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr QSize kSize(200, 150);
const QRectF kBox(20, 30, 40, 25);
const QPolygonF kLoop({{20.5, 30}, {90.3, 40.7}, {70, 100.2}, {15, 80}, {60.1, 60.9}});

struct Case {
    const char* name;
    SurfaceKind kind;
    int depth;
};

class SelectionTest : public ::testing::TestWithParam<Case> {
protected:
    void SetUp() override {
        canvas = QDDrawCanvas::initWithFrame(QRectF(QPointF(), QSizeF(kSize)),
                                             {.kind = GetParam().kind, .canvasDepth = GetParam().depth});
        ASSERT_TRUE(canvas);
        QImage picture = patternImage(kSize);
        for (int y = 0; y < kSize.height(); ++y)
            for (int x = 0; x < kSize.width(); ++x) {
                QColor color = picture.pixelColor(x, y);
                color.setAlpha((x * 7 + y * 3) % 256);
                picture.setPixelColor(x, y, color);
            }
        canvas->setImageInBufferRect(picture, QRectF(picture.rect()));
        canvas->resetUndoManager();
        canvas->setAutoMark(true);
        before = canvas->image();
        editor.setCanvas(canvas.get());
    }
    void moveBy(QPointF by) {
        FloatingPicture to = *editor.floating();
        to.moveBy(by);
        editor.change(to);
    }
    qsizetype steps() { return canvas->undoManager().undoItems().size(); }
    std::unique_ptr<QDDrawCanvas> canvas;
    SelectionEditor editor;
    QImage before;
};

TEST_P(SelectionTest, WhatIsLiftedAndWhatStaysAddUp) {
    for (const QPainterPath& area : {rectangleArea(kBox.topLeft(), kBox.bottomRight()), lassoArea(kLoop)}) {
        const auto made = LayerFloat::lifted(*canvas, area, {});
        ASSERT_TRUE(made);
        made->picture().moveBy({500, 0});
        const QImage stays = made->layer(before.rect());
        made->picture().moveBy({-500, 0});
        const QImage lifted = made->picture().drawn(before.rect()), put = made->layer(before.rect());
        EXPECT_TRUE(imagesMatch(put, before));
        int inPart = 0;
        for (int y = 0; y < kSize.height(); ++y) {
            for (int x = 0; x < 4 * kSize.width(); ++x)
                ASSERT_EQ(lifted.constScanLine(y)[x] + stays.constScanLine(y)[x], before.constScanLine(y)[x]);
            for (int x = 0; x < kSize.width(); ++x)
                inPart += lifted.pixelColor(x, y).alpha() != 0 && stays.pixelColor(x, y).alpha() != 0;
        }
        EXPECT_EQ(inPart > 50, area.elementCount() != 5)
            << "edges of a lasso are smooth, a rectangle's whole";
    }
}

TEST_P(SelectionTest, MovingIsOneStepAndTheCanvasWaits) {
    editor.select(rectangleArea(kBox.topLeft(), kBox.bottomRight()), AreaMode::replace);
    editor.nudge({7, 0});
    editor.nudge({-7, 0});
    EXPECT_TRUE(imagesMatch(canvas->image(), before));
    editor.settle();
    EXPECT_EQ(steps(), 0) << "it is where it was";
    editor.nudge({70, 50});
    EXPECT_TRUE(imagesMatch(canvas->image(), before)) << "so that a process that dies loses nothing";
    editor.settle();
    EXPECT_EQ(steps(), 1);
    const QImage after = canvas->image();
    EXPECT_EQ(after.copy(kBox.toRect()), solidImage(kBox.size().toSize()));
    EXPECT_EQ(editor.area().boundingRect(), kBox.translated(70, 50));
    QImage rest = after;
    fillRect(rest, kBox.toRect(), Qt::red);
    fillRect(rest, kBox.toRect().translated(70, 50), Qt::red);
    QImage restBefore = before;
    fillRect(restBefore, kBox.toRect(), Qt::red);
    fillRect(restBefore, kBox.toRect().translated(70, 50), Qt::red);
    EXPECT_TRUE(imagesMatch(rest, restBefore));
    canvas->undo();
    EXPECT_TRUE(imagesMatch(canvas->image(), before));
    canvas->redo();
    EXPECT_TRUE(imagesMatch(canvas->image(), after));
    editor.nudge({5, 5});
    editor.giveUp();
    EXPECT_TRUE(editor.remove());
    EXPECT_EQ(steps(), 2);
}

TEST_P(SelectionTest, LayersKeepWhatTheyPromise) {
    const QRect hole = kBox.toRect();
    const QImage clear = solidImage(hole.size()), white = solidImage(hole.size(), Qt::white);
    struct Row {
        const char* what;
        bool locks, hasPaper, isHidden;
        std::optional<QImage> left;  // none: as it was
    };
    for (const Row& row :
         {Row{"plain", false, false, false, clear}, Row{"paper", false, true, false, white},
          Row{"locked", true, false, false, {}}, Row{"locked paper", true, true, false, white},
          Row{"hidden", false, false, true, {}}}) {
        SCOPED_TRACE(row.what);
        canvas->layers().setSettings(0, {});
        canvas->clearWithColor(ESColor(QColor(Qt::white)), false);
        canvas->setImageInBufferRect(patternImage({60, 60}), QRectF(10, 10, 60, 60));
        canvas->setImageInBufferRect(clear, QRectF(100, 100, 40, 25));
        canvas->layers().setSettings(0, {.name = {}, .isVisible = !row.isHidden, .locksAlpha = row.locks});
        const QImage was = canvas->image();
        editor.setPaper(row.hasPaper ? QColor(Qt::white) : QColor());
        editor.select(rectangleArea(kBox.topLeft(), kBox.bottomRight()), AreaMode::replace);
        EXPECT_EQ(editor.lift(), !row.isHidden);
        if (editor.floating())
            moveBy({80, 70});
        editor.settle();
        const QImage image = canvas->image();
        EXPECT_TRUE(imagesMatch(image.copy(hole), row.left.value_or(was.copy(hole))));
        EXPECT_EQ(image.pixelColor(120, 110).alpha(), row.locks || row.isHidden ? 0 : 255);
    }
}

// All bits of it where the lasso is not, though it goes around that.
TEST_P(SelectionTest, WhatIsNotTouchedKeepsItsDepth) {
    canvas->drawImage(patternImage({30, 20}), QRectF(-7.3, -5.1, 220.7, 160.3));
    const int bytes = canvas->surface().pixelBytes();
    const auto deep = [&] {
        QByteArray rows(kSize.width() * kSize.height() * bytes, 0);
        const SurfaceScope scope(canvas->surface());
        canvas->surface().read(PictureId::first, {0, 0, kSize.width(), kSize.height()},
                               {reinterpret_cast<std::uint8_t*>(rows.data()),
                                {kSize.width(), kSize.height()},
                                kSize.width() * bytes,
                                bytes});
        return rows;
    };
    const QByteArray was = deep();
    editor.select(lassoArea(QPolygonF({{10, 10}, {150, 10}, {150, 20}, {20, 20}, {20, 140}, {10, 140}})),
                  AreaMode::replace);
    editor.nudge({5, 0});
    editor.settle();
    const QByteArray is = deep();
    EXPECT_NE(is, was);
    for (int y = 75; y < kSize.height(); ++y) {
        const auto right = [&](const QByteArray& rows) {
            return rows.mid((y * kSize.width() + 75) * bytes, (kSize.width() - 75) * bytes);
        };
        ASSERT_EQ(right(is), right(was)) << y;
    }
}

QImage small(const QImage& image) {
    return image.scaled(image.size() / 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_RGBA8888_Premultiplied);
}

double meanDifference(const QImage& one, const QImage& other) {
    double sum = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int i = 0; i < 4 * one.width(); ++i)
            sum += std::abs(one.constScanLine(y)[i] - other.constScanLine(y)[i]);
    }
    return sum / double(4 * one.width() * one.height());
}

// What is seen before it is put down is what is seen after.
TEST_P(SelectionTest, ItIsSeenAsItWillBe) {
    CanvasLayers layers = canvas->layers();
    layers.add(1, {.name = {}, .opacity = 0.7f, .blendType = ESBlendTypeMultiply},
               patternImage({120, 90}, 3));
    layers.add(2, {.name = {}, .opacity = 0.5f}, patternImage(kSize, 9));
    layers.setActive(1);
    editor.select(lassoArea(kLoop), AreaMode::replace);
    for (const QPointF by : {QPointF(90, 20), QPointF(-60, 40), QPointF(20, -30)}) {
        ASSERT_TRUE(editor.lift());
        moveBy(by);
        moveBy({3, 2});
        const QImage seen = editor.seenIn(layers.flattened());
        const QRect part(30, 20, 70, 50);
        const QImage draft = editor.look()->draft(0.5, part);
        editor.settle();
        const QImage put = layers.flattened();
        EXPECT_TRUE(imagesMatch(seen, put, 1));
        EXPECT_TRUE(editor.seenRegion().isEmpty());
        ASSERT_EQ(draft.size(), part.size());
        EXPECT_LT(meanDifference(draft, small(put).copy(part)), 6);
        EXPECT_GT(meanDifference(draft, small(put).copy(part.translated(2, 0))), 12)
            << "it tells places apart";
    }
}

INSTANTIATE_TEST_SUITE_P(All, SelectionTest,
                         ::testing::Values(Case{"gpu", SurfaceKind::gpu, 8},
                                           Case{"processor", SurfaceKind::processor, 8},
                                           Case{"deep", SurfaceKind::processor, 16}),
                         [](const auto& row) { return row.param.name; });

// ---- The picture that floats

TEST(FloatingPictureTest, QuartersAndMirrorsAreExact) {
    const QImage picture = patternImage({31, 20});
    const FloatingPicture placed(picture, {10, 12});
    for (int quarter = 0; quarter < 4; ++quarter) {
        FloatingPicture turned = placed;
        turned.turnTo(quarter * std::numbers::pi / 2);
        EXPECT_EQ(turned.drawn(turned.bounds()), picture.transformed(QTransform().rotate(90.0 * quarter)));
        turned.turnTo(0);
        EXPECT_NEAR(QLineF(turned.centre(), placed.centre()).length(), 0, 1);
    }
    FloatingPicture mirrored = placed;
    mirrored.stretch({1, 0}, mirrored.at({-1, 0}) - QPointF(31, 0), {});
    EXPECT_EQ(mirrored.drawn(mirrored.bounds()), picture.mirrored(true, false));
}

TEST(FloatingPictureTest, NoOtherColourComesInAndNoPaintGetsLost) {
    const QColor ink(200, 60, 20);
    for (const double factor : {3.0, 1.0, 0.37}) {
        for (const double degrees : {0.0, 20.0, 45.0}) {
            SCOPED_TRACE(std::to_string(factor) + " " + std::to_string(degrees));
            FloatingPicture floating(solidImage({60, 40}, ink), {100, 100});
            floating.turnTo(degrees * std::numbers::pi / 180);
            floating.stretch(
                {1, 1}, floating.at({-1, -1}) + (floating.at({1, 1}) - floating.at({-1, -1})) * factor, {});
            const QRect area = floating.bounds().adjusted(-3, -3, 3, 3);
            const QImage drawn = floating.drawn(area);
            double paint = 0;
            for (int y = 0; y < area.height(); ++y)
                for (int x = 0; x < area.width(); ++x) {
                    const std::uint8_t* p = drawn.constScanLine(y) + 4 * x;
                    paint += p[3] / 255.0;
                    ASSERT_NEAR(p[0], p[3] * ink.redF(), 1.5) << x << ", " << y;
                    ASSERT_NEAR(p[2], p[3] * ink.blueF(), 1.5) << x << ", " << y;
                }
            const double size = std::abs(floating.size().width() * floating.size().height());
            EXPECT_NEAR(paint / size, 1, 0.01);
        }
    }
    // Lines of a pixel that are made smaller come out grey, whichever of them a pixel's middle hits.
    QImage lines = solidImage({300, 60}, Qt::white);
    for (int x = 0; x < 300; x += 2)
        fillRect(lines, QRect(x, 0, 1, 60), Qt::black);
    FloatingPicture floating(lines, {0, 0});
    floating.stretch({1, 0}, {47, 30}, {});
    const QImage drawn = floating.drawn({5, 10, 30, 30});
    for (int x = 0; x < 30; ++x)
        EXPECT_NEAR(drawn.pixelColor(x, 15).red(), 128, 24) << x;
}

// ---- Handles

TEST(FloatFrameTest, GripsDoWhatTheirPlaceSays) {
    const FloatingPicture placed(patternImage({100, 60}), {50, 40});
    QTransform view;  // mirrored, turned and enlarged
    view.rotate(35).scale(-2, 2);
    struct Row {
        Grip grip;
        QPointF by;
        bool shift, centre;
        QRectF becomes;
    };
    const Grip corner{Grip::stretch, {1, 1}}, left{Grip::stretch, {-1, 0}};
    for (const Row& row : {Row{{}, {10.4, -3.3}, false, false, {60, 37, 100, 60}},
                           Row{{}, {10.4, -3.3}, true, false, {60, 40, 100, 60}},
                           Row{corner, {50, 0}, false, false, {50, 40, 150, 60}},
                           Row{corner, {100, 60}, true, false, {50, 40, 200, 120}},
                           Row{corner, {10, 5}, false, true, {40, 35, 120, 70}},
                           Row{left, {20, 9}, false, false, {70, 40, 80, 60}},
                           Row{left, {-100, 9}, true, false, {-50, 10, 200, 120}}}) {
        const QPointF at = placed.at(row.grip.side) + QPointF(0, row.grip == Grip() ? 4 : 0);
        ASSERT_EQ(FloatFrame(placed, view).gripAt(view.map(at)), row.grip);
        const FloatingPicture now = pulled(placed, row.grip, {at, at + row.by, row.shift, row.centre});
        EXPECT_EQ(QRectF(now.bounds()), row.becomes);
    }
    const FloatFrame frame(placed, view);
    const QPointF turn = frame.handles().back().at;
    EXPECT_EQ(frame.gripAt(turn), (Grip{Grip::turn, {}}));
    EXPECT_EQ(frame.gripAt(view.map(QPointF(157, 107))), (Grip{Grip::turn, {}})) << "outside of a corner";
    EXPECT_FALSE(frame.gripAt(view.map(QPointF(300, 300))));
    const QPointF middle = placed.centre();
    EXPECT_NEAR(
        pulled(placed, {Grip::turn, {}}, {middle + QPointF(0, -9), middle + QPointF(9, 1), true, false})
            .radian(),
        std::numbers::pi / 2, 1e-9);
}

// ---- Pictures that come and go

TEST(PictureMimeTest, APictureComesBackAsItWas) {
    QImage picture = patternImage({40, 30});
    fillRect(picture, {5, 5, 20, 10}, QColor(200, 100, 50, 77));
    EXPECT_EQ(pictureOf(*mimeOf(picture)).image, picture);
    QMimeData bytes, image, words;
    bytes.setData("image/png", mimeOf(picture)->data("image/png"));
    EXPECT_EQ(pictureOf(bytes).image, picture);
    image.setImageData(picture);
    EXPECT_EQ(pictureOf(image).image, picture);
    words.setText("no picture");
    EXPECT_FALSE(hasPicture(words));
}

}  // namespace

}  // namespace dabcanvas::dabpainter
