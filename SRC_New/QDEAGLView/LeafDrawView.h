// SPDX-License-Identifier: MIT
#pragma once

#include <QTransform>
#include <QWidget>
#include <memory>
#include <optional>

#include "Preview/LeafDrawing.h"

// The live preview on screen: a transparent widget over a canvas view, whose child it is. It shows what its
// LeafDrawing holds, stretched into its bounds, and lets all pointer events through.
//
// Size     the bitmap follows the frame at creation, which is the canvas's buffer in pixels, and keeps its
//          size; the widget may then get any geometry.
// Owner    whoever holds the unique_ptr; with a parent release() it: the parent owns.
// Thread   the application's main thread, as for every widget.
class LeafDrawView : public QWidget, public LeafDrawing {
    Q_OBJECT

public:
    // Frame: place in the parent in view points, and size; an empty one is fine. Null, after one log line,
    // when a number of it is not finite or beyond what a widget can have.
    static std::unique_ptr<LeafDrawView> initWithFrame(const QRectF& frame, QWidget* parent = nullptr);

    // How the canvas lies in this widget, from buffer pixels; at first over all of it, whatever its geometry.
    void setTransform(const QTransform& bufferToView);

protected:
    explicit LeafDrawView(const QRectF& frame, QWidget* parent = nullptr);

    void paintEvent(QPaintEvent* event) override;

    QSizeF frameSize() const override { return _buffer; }
    void redisplayRect(const QRectF& rect) override;

private:
    QTransform transform() const;

    QSizeF _buffer;
    std::optional<QTransform> _transform;
};
