// SPDX-License-Identifier: MIT
#include "Selection/SelectionPane.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <cmath>

#include "QDEAGLView/QDDrawView.h"
#include "Selection/FloatFrame.h"
#include "Selection/SelectionEditor.h"
#include "Viewport/CanvasViewport.h"
#include "Window/Widgets.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr double kSquares = 2.5;  // the view shows pixels as squares from this zoom on
constexpr double kHandle = 4;     // half of one, in points
const QColor kDark(0, 0, 0, 220), kLight(255, 255, 255, 240);

// Dark and light in turn, so that it shows on anything.
template <typename Draw>
void twoTone(QPainter& painter, const Draw& draw) {
    QPen pen(kLight, 1);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(pen);
    draw();
    pen.setColor(kDark);
    pen.setDashPattern({4, 4});
    painter.setPen(pen);
    draw();
}

// As often halved as the zoom needs for interpolation to miss no pixel.
QImage halved(QImage image, double zoom) {
    for (; zoom <= 0.5 && image.width() > 1 && image.height() > 1; zoom *= 2)
        image = image.scaled((image.width() + 1) / 2, (image.height() + 1) / 2, Qt::IgnoreAspectRatio,
                             Qt::SmoothTransformation);
    return image;
}

}  // namespace

SelectionPane::SelectionPane(SelectionEditor& editor, CanvasViewport& viewport)
    : QWidget(&viewport), _editor(editor), _viewport(viewport) {
    letEventsThrough(*this);
    resize(viewport.size());
    viewport.installEventFilter(this);  // it covers all of it
    connect(&editor, &SelectionEditor::changed, this, &SelectionPane::refresh);
    connect(&viewport, &CanvasViewport::zoomChanged, this, &SelectionPane::refresh);
}

bool SelectionPane::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::Resize)
        resize(_viewport.size());
    return false;
}

void SelectionPane::setDraft(const QPainterPath& draft) {
    _draft = draft;
    refresh();
}

void SelectionPane::refresh() {
    const QRegion now = surroundings();
    update(_painted | now);
    _painted = now;
}

QRegion SelectionPane::surroundings() const {
    const QDDrawView* view = _viewport.view();
    if (!view)
        return {};
    constexpr int kMore = 12;
    const QTransform& toView = view->bufferToView();
    const auto around = [&](const QRectF& rect) {
        return rect.isNull() ? QRect()
                             : toView.mapRect(rect).toAlignedRect().adjusted(-kMore, -kMore, kMore, kMore);
    };
    QRegion region(around(_editor.shownArea().boundingRect()));
    region |= around(_draft.boundingRect());
    for (const SelectionEditor::Seen& seen : _editor.seen())
        region |= around(QRectF(seen.area));
    if (const FloatingPicture* floating = _editor.floating()) {
        const FloatFrame frame(*floating, toView);
        QRectF box = frame.outline().boundingRect();
        for (const FloatFrame::Handle& handle : frame.handles())
            box |= QRectF(handle.at, QSizeF(1, 1));
        region |= box.toAlignedRect().adjusted(-kMore, -kMore, kMore, kMore);
    }
    return region & rect();
}

// ---- Painting

void SelectionPane::paintEvent(QPaintEvent* event) {
    if (!_viewport.view())
        return;
    QPainter painter(this);
    painter.setClipRegion(event->region());
    paintSeen(painter);
    painter.setRenderHint(QPainter::Antialiasing);
    const QTransform& toView = _viewport.view()->bufferToView();
    for (const QPainterPath& path : {_editor.shownArea(), _draft}) {
        if (!path.isEmpty())
            twoTone(painter, [&, seen = toView.map(path)] { painter.drawPath(seen); });
    }
    paintFrame(painter);
}

// In place of what the view shows there, as that would show it.
void SelectionPane::paintSeen(QPainter& painter) {
    QDDrawView& view = *_viewport.view();
    const QTransform& toView = view.bufferToView();
    const double zoom = _viewport.zoom();
    const bool isTurned = !qFuzzyIsNull(std::remainder(view.viewRotation(), std::acos(0)));
    const QPointF origin = toView.mapRect(QRectF(QPointF(), view.bufferSize())).topLeft();
    for (const SelectionEditor::Seen& seen : _editor.seen()) {
        const QRectF area(seen.area);
        QPainterPath outline;
        outline.addPolygon(toView.map(QPolygonF(area)));
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing, isTurned);
        if (!seen.isOpaque) {  // else its smooth edge would show the ground
            painter.setBrushOrigin(origin);
            painter.fillPath(outline, checkerBrush());
        }
        painter.setRenderHint(QPainter::SmoothPixmapTransform, zoom != 1 && (zoom < kSquares || isTurned));
        painter.setTransform(toView, true);
        const QImage image = halved(seen.image, zoom);
        painter.drawImage(area, image, QRectF(image.rect()));
        painter.restore();
    }
}

void SelectionPane::paintFrame(QPainter& painter) const {
    const FloatingPicture* floating = _editor.floating();
    if (!floating)
        return;
    const FloatFrame frame(*floating, _viewport.view()->bufferToView());
    const FloatFrame::Handle& turn = frame.handles().back();
    painter.setBrush(Qt::NoBrush);
    for (const auto& [color, width] : {std::pair(kDark, 3.0), std::pair(kLight, 1.0)}) {
        painter.setPen(QPen(color, width));
        painter.drawPolygon(frame.outline());
        painter.drawLine(frame.stem(), turn.at);
    }
    painter.setPen(QPen(kDark, 1));
    painter.setBrush(kLight);
    for (const FloatFrame::Handle& handle : frame.handles()) {
        const QRectF box(handle.at - QPointF(kHandle, kHandle), QSizeF(2 * kHandle, 2 * kHandle));
        if (handle.grip.kind == Grip::turn)
            painter.drawEllipse(box.adjusted(-1, -1, 1, 1));
        else
            painter.drawRect(box);
    }
}

}  // namespace dabcanvas::dabpainter
