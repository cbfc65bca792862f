// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>
#include <vector>

#include "History/LayerSettings.h"
#include "Window/Widgets.h"

class QCheckBox;
class QComboBox;
class QDDrawView;
class QListWidget;
class QSlider;
class QToolButton;

namespace dabcanvas::dabpainter {

class LayerThumbnails;

// The layers of the picture, the topmost first: which one is painted on, what they are, and what becomes of them. All of it
// is the canvas's; this shows it, and is shown anew when it changes.
class LayerPanel : public QWidget {
    Q_OBJECT

public:
    explicit LayerPanel(QWidget* parent = nullptr);
    void setView(QDDrawView* view);  // not owned; null for none

    void addLayer();
    void duplicateLayer();
    void removeLayer();
    void mergeDown();
    void moveLayer(int by);  // up, or down below 0

signals:
    void aboutToEdit();  // so that a stroke in progress ends before
    void activeChanged(int layer);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void makeLayout();
    QToolButton* addButton(Glyph sign, const QString& toolTip, void (LayerPanel::*act)());
    void up() { moveLayer(1); }
    void down() { moveLayer(-1); }
    void connectEdits();
    void showLayers();
    void showThumbnail(int layer);
    void showActive();
    void keepSelected();
    int active() const;
    int layerOf(int row) const;
    void takeRow(int row);
    template <typename Change>
    void change(int layer, const Change& change);
    void takeOpacity(int percent);
    void endOpacity();

    QPointer<QDDrawView> _view;
    LayerThumbnails* _thumbnails;
    QListWidget* _list;
    QComboBox* _mode;
    QSlider* _opacity;
    QCheckBox* _lock;
    QToolButton *_remove, *_merge, *_up, *_down;
    bool _showing = false;  // what is shown is no edit
};

}  // namespace dabcanvas::dabpainter
