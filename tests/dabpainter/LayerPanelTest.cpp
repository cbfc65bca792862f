// SPDX-License-Identifier: MIT
#include "Layers/LayerPanel.h"

#include <QDockWidget>
#include <QListWidget>
#include <QSlider>

#include "Canvas/CanvasLayers.h"
#include "History/ImagesUndoManager.h"
#include "Layers/LayerThumbnails.h"
#include "PainterTest.h"
#include "support/Images.h"

namespace dabcanvas::dabpainter {

namespace {

class LayerPanelTest : public PainterTest {
protected:
    void SetUp() override {
        PainterTest::SetUp();
        panel = _window->findChild<LayerPanel*>();
        list = panel->findChild<QListWidget*>();
        opacity = panel->findChild<QSlider*>();
    }
    CanvasLayers layers() { return _window->view()->layers(); }
    qsizetype steps() { return _window->view()->undoManager().undoItems().size(); }
    // All that paint() has painted.
    void erase() {
        BrushModel& brush = _window->brush();
        brush.setValue(BrushKey::blendType, int(ESBlendTypeErase));
        brush.setValue(BrushKey::radius, 80.0f);
        brush.setValue(BrushKey::hardness, 1.0f);
        paint();
        brush.setValue(BrushKey::blendType, int(ESBlendTypeNormal));
        brush.setValue(BrushKey::radius, 32.0f);
    }

    LayerPanel* panel;
    QListWidget* list;
    QSlider* opacity;
};

TEST_F(LayerPanelTest, LayersArePaintedOnApart) {
    const QImage paper = layers().image(0);
    panel->addLayer();
    ASSERT_EQ(list->count(), 2);
    EXPECT_EQ(list->currentRow(), 0) << "the topmost is first, and painted on";
    paint();
    EXPECT_FALSE(painted(layers().image(1)).isEmpty());
    EXPECT_TRUE(imagesMatch(layers().image(0), paper));
    erase();
    EXPECT_TRUE(painted(layers().image(1)).isEmpty()) << "paper is the lowest layer's alone";
    list->setCurrentRow(1);
    paint();
    erase();
    EXPECT_TRUE(imagesMatch(layers().image(0), paper, 1)) << "erased to what it was painted on";
}

TEST_F(LayerPanelTest, WhatIsSetIsAStepAndShown) {
    panel->addLayer();
    paint();
    const QImage both = _window->view()->displayImage();
    const auto before = steps();
    opacity->setSliderDown(true);
    opacity->setValue(70);
    opacity->setValue(40);
    opacity->setSliderDown(false);
    EXPECT_EQ(layers().settings(1).opacity, 0.4f);
    EXPECT_EQ(steps(), before + 1) << "one for all of the way";
    list->item(0)->setCheckState(Qt::Unchecked);
    list->item(1)->setText("Paper");
    EXPECT_EQ(layers().settings(0).name, "Paper");
    EXPECT_TRUE(imagesMatch(_window->view()->displayImage(), layers().image(0)));
    for (int i = 0; i < 3; ++i)
        _window->view()->undo();
    EXPECT_TRUE(imagesMatch(_window->view()->displayImage(), both));
    EXPECT_EQ(opacity->value(), 100);
    panel->duplicateLayer();
    panel->moveLayer(-1);
    panel->mergeDown();
    panel->removeLayer();
    EXPECT_EQ(list->count(), layers().count());
    while (!_window->view()->undo().isNull()) {
    }
    EXPECT_EQ(list->count(), 1);
}

TEST_F(LayerPanelTest, ThumbnailsShowEachLayerOnceAtRest) {
    _window->findChild<QDockWidget*>("layerDock")->raise();
    panel->addLayer();
    const auto picture = [&](int row) { return list->item(row)->icon().pixmap(list->iconSize()).toImage(); };
    // In the middle, where paint() leaves its mark, beside it, and two places of a chequerboard.
    const auto dark = [&](int row) { return picture(row).pixelColor(20, 15).lightness() < 100; };
    const auto comesToBe = [&](const auto& holds) { return waitFor(holds, 10 * LayerThumbnails::kRest); };
    EXPECT_TRUE(comesToBe([&] { return picture(1).pixelColor(8, 8) == QColor(Qt::white); }));
    EXPECT_TRUE(comesToBe([&] { return picture(0).pixelColor(6, 8) != picture(0).pixelColor(10, 8); }))
        << "a hole";
    const QSizeF scale = _window->view()->scale();
    _window->view()->drawingWithBeginPoint({20 * scale.width(), 75 * scale.height()});
    for (int x = 30; x < 180; x += 10)
        _window->view()->drawingWithMoveToPoint({x * scale.width(), 75 * scale.height()});
    EXPECT_FALSE(waitFor([&] { return dark(0); }, 2 * LayerThumbnails::kRest)) << "a stroke is in progress";
    _window->view()->drawingWithEndPoint({180 * scale.width(), 75 * scale.height()});
    EXPECT_TRUE(comesToBe([&] { return dark(0); }));
    EXPECT_FALSE(dark(1));
    list->setCurrentRow(1);
    _window->view()->undo();
    EXPECT_TRUE(comesToBe([&] { return !dark(0); })) << "undo changes the layer that is not painted on";
}

TEST_F(LayerPanelTest, CopiesHaveNamesOfTheirOwn) {
    const auto before = steps();
    for (const char* name : {"Background copy", "Background copy 2", "Background copy 3"}) {
        panel->duplicateLayer();
        EXPECT_EQ(list->currentItem()->text(), name);
    }
    EXPECT_EQ(steps(), before + 3) << "each with its name is one";
}

TEST_F(LayerPanelTest, OneLayerIsAlwaysHighlighted) {
    panel->addLayer();
    list->setCurrentRow(1);
    const auto isMarked = [&] {
        settle();
        return list->selectedItems() == QList{list->item(1)} && layers().active() == 0;
    };
    QWidget& rows = *list->viewport();
    const QPoint row = list->visualItemRect(list->item(1)).center(), below(row.x(), rows.height() - 3);
    sendMouse(rows, QEvent::MouseButtonPress, row, Qt::ControlModifier);
    sendMouse(rows, QEvent::MouseButtonRelease, row, Qt::ControlModifier);
    EXPECT_TRUE(isMarked()) << "as Ctrl takes a selection back";
    sendMouse(rows, QEvent::MouseButtonPress, below);
    sendMouse(rows, QEvent::MouseMove, below - QPoint(30, 9));
    sendMouse(rows, QEvent::MouseButtonRelease, below - QPoint(30, 9));
    EXPECT_TRUE(isMarked()) << "with no row pressed";
    sendKey(*list, Qt::Key_Space, Qt::ControlModifier);
    EXPECT_TRUE(isMarked());
}

}  // namespace

}  // namespace dabcanvas::dabpainter
