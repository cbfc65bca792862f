// SPDX-License-Identifier: MIT
#include "Selection/SelectionPane.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <cmath>

#include "Documents/ImageFiles.h"
#include "QDEAGLView/QDDrawView.h"
#include "Selection/FloatFrame.h"
#include "Selection/SelectionEditor.h"
#include "Viewport/CanvasViewport.h"
#include "Window/Widgets.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr double kSquares = 2.5;  // the view shows pixels as squares from this zoom on
constexpr double kHandle = 4;     // half of one, in points
constexpr int kRest = 150;        // milliseconds
constexpr int kGrid = 64;         // what is halved is cut there, so that all halves are whole
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

QRect onGrid(const QRect& rect) {
    const auto down = [](int edge) { return edge / kGrid * kGrid; };
    return QRect(QPoint(down(rect.left()), down(rect.top())),
                 QPoint(down(rect.right()) + kGrid - 1, down(rect.bottom()) + kGrid - 1));
}

QRect mapped(const QRect& rect, double scale) {
    return QRectF(rect.x() * scale, rect.y() * scale, rect.width() * scale, rect.height() * scale)
        .toAlignedRect();
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
    _rest.setSingleShot(true);
    _rest.setInterval(kRest);
    connect(&_rest, &QTimer::timeout, this, &SelectionPane::refresh);
    connect(&editor, &SelectionEditor::changed, this, &SelectionPane::followFloat);
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

void SelectionPane::followFloat() {
    if (_editor.floating() && draftScale() < 1)
        _rest.start();
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
    for (const QRect& seen : _editor.seenRegion())
        region |= around(QRectF(seen));
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
    paintSeen(painter, event->region().boundingRect());
    painter.setRenderHint(QPainter::Antialiasing);
    const QTransform& toView = _viewport.view()->bufferToView();
    for (const QPainterPath& path : {_editor.shownArea(), _draft}) {
        if (!path.isEmpty())
            twoTone(painter, [&, seen = toView.map(path)] { painter.drawPath(seen); });
    }
    paintFrame(painter);
}

double SelectionPane::draftScale() const {
    return std::min(1.0, _viewport.zoom());
}

// In place of what the view shows there, as that would show it.
void SelectionPane::paintSeen(QPainter& painter, const QRect& exposed) {
    const QRect shown = _viewport.view()->viewToBuffer().mapRect(QRectF(exposed)).toAlignedRect();
    const double scale = _rest.isActive() ? draftScale() : 1;
    for (const QRect& rect : _editor.seenRegion()) {
        const QRect part = rect & shown;
        if (!part.isEmpty() && (scale == 1 || !paintDraft(painter, part, scale)))
            paintLook(painter, part);
    }
}

bool SelectionPane::paintDraft(QPainter& painter, const QRect& part, double scale) {
    const QRect area = mapped(part, scale) & QRect(QPoint(), _editor.look()->draftSize(scale));
    const QImage image = area.isEmpty() ? QImage() : _editor.look()->draft(scale, area);
    if (image.isNull())
        return false;
    paintImage(painter, image, QRectF(QPointF(area.topLeft()) / scale, QSizeF(area.size()) / scale));
    return true;
}

void SelectionPane::paintLook(QPainter& painter, const QRect& part) {
    const QRect area = onGrid(part) & QRect(QPoint(), _viewport.view()->bufferSize().toSize());
    painter.save();
    QPainterPath outline;
    outline.addPolygon(_viewport.view()->bufferToView().map(QPolygonF(QRectF(part))));
    painter.setClipPath(outline, Qt::IntersectClip);
    paintImage(painter, halved(_editor.look()->look(area), _viewport.zoom()), QRectF(area));
    painter.restore();
}

// area: of the canvas.
void SelectionPane::paintImage(QPainter& painter, const QImage& image, const QRectF& area) {
    QDDrawView& view = *_viewport.view();
    const QTransform& toView = view.bufferToView();
    const double zoom = _viewport.zoom();
    const bool isTurned = !qFuzzyIsNull(std::remainder(view.viewRotation(), std::acos(0)));
    QPainterPath outline;
    outline.addPolygon(toView.map(QPolygonF(area)));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, isTurned);
    if (!isOpaque(image)) {  // else its smooth edge would show the ground
        painter.setBrushOrigin(toView.mapRect(QRectF(QPointF(), view.bufferSize())).topLeft());
        painter.fillPath(outline, checkerBrush());
    }
    const QSizeF seen = area.size() * zoom;
    const bool isAsItIs =
        (seen - QSizeF(image.size())).isNull() || (seen.toSize() == image.size() && zoom < 1);
    if (isAsItIs && toView.m12() == 0 && toView.m21() == 0 && toView.m11() > 0 && toView.m22() > 0) {
        QImage dots = image;
        dots.setDevicePixelRatio(devicePixelRatioF());
        painter.drawImage(toView.map(area.topLeft()).toPoint(), dots);
    } else {
        painter.setRenderHint(QPainter::SmoothPixmapTransform, zoom != 1 && (zoom < kSquares || isTurned));
        painter.setTransform(toView, true);
        painter.drawImage(area, image, QRectF(image.rect()));
    }
    painter.restore();
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
