// SPDX-License-Identifier: MIT
// The canvas of an item: what it asks goes to the item, what it tells becomes the item's signals.
#pragma once

#include <QQuickWindow>

#include "Display/CanvasDisplay.h"
#include "Preview/LeafDrawing.h"
#include "Quick/CanvasItem.h"

namespace dabcanvas {

class ItemDisplay : public CanvasDisplay {
public:
    ItemDisplay(CanvasItem& item, const QRectF& frame) : CanvasDisplay(frame), _item(item) {}

    using CanvasDisplay::hasGround;
    using CanvasDisplay::initCanvasOrSayWhy;
    using CanvasDisplay::MustStay;
    using CanvasDisplay::paintCanvas;
    using CanvasDisplay::pointers;
    using CanvasDisplay::ShownPicture;
    using CanvasDisplay::shownPicture;
    using CanvasDisplay::viewWasResized;

    QSizeF viewSize() const override { return _item.size(); }
    double viewPixelRatio() const override {
        return _item.window() != nullptr ? _item.window()->effectiveDevicePixelRatio() : 1;
    }
    // What shows brush type 4, while that paints; else null.
    LeafDrawing* preview() const { return _leafShown && _leaf->showsImage() ? _leaf : nullptr; }

protected:
    void updateView(const QRectF& viewRect) override;
    QPointF toWindow(QPointF viewPoint) const override { return _item.mapToScene(viewPoint); }
    QPointF fromWindow(QPointF windowPoint) const override { return _item.mapFromScene(windowPoint); }
    QPointF fromGlobal(QPointF globalPoint) const override { return _item.mapFromGlobal(globalPoint); }
    std::unique_ptr<LeafDrawing> makeLeafDrawView(const QRectF& frame) override;
    void showLeafDrawView(bool shown) override;

    void viewDidChange() override;
    void fingersDidTap(int fingers) override { Q_EMIT _item.fingersTapped(fingers); }
    void strokeDidBegin(QPointF place) override { Q_EMIT _item.strokeBegan(place); }
    void strokeDidMove(QPointF place) override { Q_EMIT _item.strokeMoved(place); }
    void strokeDidEnd(QPointF place) override { Q_EMIT _item.strokeEnded(place); }
    void strokeWasWithdrawn() override { Q_EMIT _item.strokeWithdrawn(); }
    void canvasSizeDidChange() override;
    void layersDidChange() override;
    void pictureDidChange(const QRect& bufferPixels) override;
    void canUndoDidChange(bool can) override { Q_EMIT _item.canUndoChanged(can); }
    void canRedoDidChange(bool can) override { Q_EMIT _item.canRedoChanged(can); }
    void modifiedDidChange(bool modified) override { Q_EMIT _item.modifiedChanged(modified); }
    void brushDidChange() override { Q_EMIT _item.brushChanged(); }
    void contextWasLost() override;

private:
    class Leaf;
    CanvasItem& _item;
    LeafDrawing* _leaf = nullptr;
    bool _leafShown = false;
};

}  // namespace dabcanvas
