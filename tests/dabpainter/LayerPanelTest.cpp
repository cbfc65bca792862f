// SPDX-License-Identifier: MIT
#include "Layers/LayerPanel.h"

#include <QAction>
#include <QFileInfo>
#include <QListWidget>
#include <QSlider>

#include "Canvas/CanvasLayers.h"
#include "History/ImagesUndoManager.h"
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

TEST_F(LayerPanelTest, LayersAreSavedTogetherOnceTheUserKnows) {
    panel->addLayer();
    paint();
    list->setCurrentRow(1);
    _saveName = path("both.png");
    _confirmed = false;
    const auto save = [this] {
        for (QAction* action : _window->findChildren<QAction*>())
            if (action->shortcut() == QKeySequence(QKeySequence::Save))
                action->trigger();
    };
    save();
    EXPECT_FALSE(QFileInfo::exists(_saveName));
    _confirmed = true;
    save();
    const QImage written = QImage(_saveName).convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    EXPECT_TRUE(imagesMatch(written, layers().flattened(), 1));
    save();
    EXPECT_EQ(_questions.size(), 2) << "and then not again";
}

}  // namespace

}  // namespace dabcanvas::dabpainter
