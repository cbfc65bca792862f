// SPDX-License-Identifier: MIT
#include "Documents/CanvasArea.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QToolButton>

#include "Canvas/CanvasLayers.h"
#include "Canvas/QDDrawCanvas.h"
#include "Documents/CanvasSizeDialog.h"
#include "History/ImagesUndoManager.h"

namespace dabcanvas::dabpainter {
namespace {

TEST(CanvasAreaTest, TheAnchorKeepsItsPlace) {
    const struct {
        Anchor anchor;
        QSize wanted;
        QRect area;
    } rows[] = {{{0, 0}, {10, 80}, {0, 0, 10, 80}},   {{1, 1}, {10, 80}, {25, -20, 10, 80}},
                {{2, 0}, {80, 20}, {-20, 0, 80, 20}}, {{0, 2}, {80, 20}, {0, 20, 80, 20}},
                {{1, 2}, {61, 41}, {0, -1, 61, 41}},  {{2, 1}, {59, 39}, {1, 0, 59, 39}}};
    for (const auto& row : rows)
        EXPECT_EQ(areaOfSize({60, 40}, row.wanted, row.anchor), row.area)
            << row.anchor.column << row.anchor.row;
}

TEST(CanvasAreaTest, WhatIsDrawnIsWhatDiffersFromThePaper) {
    QImage picture(60, 40, QImage::Format_RGBA8888_Premultiplied);
    for (const QColor& paper : {QColor(Qt::white), QColor(20, 40, 60), QColor(Qt::transparent)}) {
        picture.fill(paper);
        EXPECT_TRUE(drawnArea(picture, paper).isEmpty());
        picture.setPixelColor(7, 30, Qt::red);
        picture.setPixelColor(41, 5, QColor(0, 0, 1));
        EXPECT_EQ(drawnArea(picture, paper), QRect(QPoint(7, 5), QPoint(41, 30)));
    }
}

TEST(CanvasAreaTest, PaperIsAddedToTheLowestLayerInOneStep) {
    const auto canvas = QDDrawCanvas::initWithFrame(QRectF(0, 0, 60, 40), {.kind = SurfaceKind::processor});
    canvas->clearWithColor(ESColor::rgba(1, 0, 0, 1), false);
    QImage ink(60, 40, QImage::Format_RGBA8888_Premultiplied);
    ink.fill(QColor(0, 0, 255));
    canvas->layers().add(1, {.name = "Ink"}, ink);
    canvas->resetUndoManager();
    canvas->setAutoMark(true);
    canvas->layers().setActive(1);

    ASSERT_EQ(takeArea(*canvas, QRect(-10, 5, 100, 50), QColor(0, 255, 0)), QString());
    EXPECT_EQ(canvas->bufferSize(), QSizeF(100, 50));
    EXPECT_EQ(canvas->layers().active(), 1);
    const QImage lowest = canvas->layers().image(0), upper = canvas->layers().image(1);
    for (int y = 0; y < 50; ++y) {
        for (int x = 0; x < 100; ++x) {
            const bool isOld = x >= 10 && x < 70 && y < 35;
            ASSERT_EQ(lowest.pixelColor(x, y), isOld ? QColor(255, 0, 0) : QColor(0, 255, 0))
                << x << ' ' << y;
            ASSERT_EQ(upper.pixelColor(x, y), isOld ? QColor(0, 0, 255) : QColor(0, 0, 0, 0))
                << x << ' ' << y;
        }
    }
    EXPECT_FALSE(canvas->undo().isNull());
    EXPECT_FALSE(canvas->canUndo());
    EXPECT_EQ(canvas->bufferSize(), QSizeF(60, 40));
    EXPECT_EQ(canvas->layers().image(1), ink);
    EXPECT_FALSE(canvas->redo().isNull());
    EXPECT_EQ(canvas->layers().image(0), lowest);
}

TEST(CanvasAreaTest, WhatCannotBeIsRefusedInWords) {
    const auto canvas = QDDrawCanvas::initWithFrame(QRectF(0, 0, 60, 40), {.kind = SurfaceKind::processor});
    for (const QSize size : {QSize(0, 10), QSize(20000, 10), QSize(16000, 16000)})
        EXPECT_FALSE(takeArea(*canvas, QRect(QPoint(), size), Qt::white).isEmpty()) << size.width();
    EXPECT_EQ(canvas->bufferSize(), QSizeF(60, 40));
}

TEST(CanvasSizeDialogTest, UnitsAreOfTheSameSize) {
    CanvasSizeDialog dialog({600, 400});
    const auto boxes = dialog.findChildren<QDoubleSpinBox*>();
    ASSERT_EQ(boxes.size(), 2);
    EXPECT_EQ(dialog.area(), QRect(0, 0, 600, 400));
    boxes[0]->setValue(900);
    dialog.findChild<QComboBox*>()->setCurrentIndex(1);
    EXPECT_EQ(boxes[0]->value(), 150);
    EXPECT_EQ(dialog.area(), QRect(-150, 0, 900, 400));
    boxes[1]->setValue(50);
    dialog.findChildren<QToolButton*>().first()->click();
    EXPECT_EQ(dialog.area(), QRect(0, 0, 900, 200));
    boxes[1]->setValue(0.01);
    EXPECT_EQ(dialog.area().height(), 1);
}

}  // namespace
}  // namespace dabcanvas::dabpainter
