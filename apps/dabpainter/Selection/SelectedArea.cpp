// SPDX-License-Identifier: MIT
#include "Selection/SelectedArea.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace dabcanvas::dabpainter {

namespace {

QPainterPath pathOf(const QRectF& rect) {
    QPainterPath path;
    path.addRect(rect);
    return path;
}

bool isRectangle(const QPainterPath& path) {
    const QRectF box = path.boundingRect();
    return path.elementCount() == 5 && path.contains(box.adjusted(0.25, 0.25, -0.25, -0.25));
}

// A rounding error of the clipper must not make a pixel's cover 254 of 255.
QPainterPath onWholePixels(QPainterPath path) {
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element at = path.elementAt(i);
        const QPointF whole(std::round(at.x), std::round(at.y));
        const auto near = [](double one, double other) { return std::abs(one - other) < 1e-3; };
        path.setElementPositionAt(i, near(at.x, whole.x()) ? whole.x() : at.x,
                                  near(at.y, whole.y()) ? whole.y() : at.y);
    }
    return path;
}

}  // namespace

QPainterPath rectangleArea(QPointF from, QPointF to) {
    const QRectF box = QRectF(from, to).normalized();
    constexpr double kRounding = 1e-6;  // what the way through the view leaves beside a pixel's edge
    const auto down = [](double edge) { return std::floor(edge + kRounding); };
    const auto up = [](double edge) { return std::ceil(edge - kRounding); };
    return pathOf({QPointF(down(box.left()), down(box.top())), QPointF(up(box.right()), up(box.bottom()))});
}

QPainterPath lassoArea(const QPolygonF& way) {
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    path.addPolygon(way);
    path.closeSubpath();
    return path.simplified();
}

QPainterPath joinedArea(const QPainterPath& area, const QPainterPath& with, AreaMode mode, QSize canvas) {
    const QRectF whole(0, 0, canvas.width(), canvas.height());
    const QPainterPath within = isRectangle(with) ? pathOf(with.boundingRect() & whole)
                                                  : onWholePixels(with.intersected(pathOf(whole)));
    if (mode == AreaMode::replace || (area.isEmpty() && mode == AreaMode::add))
        return within.boundingRect().isEmpty() ? QPainterPath() : within;
    // Simplified, or what was taken away would stay as an outline of its own over the other.
    return onWholePixels(mode == AreaMode::add ? area.united(within) : area.subtracted(within).simplified());
}

QRect pixelsOf(const QPainterPath& area) {
    return area.isEmpty() ? QRect() : area.boundingRect().toAlignedRect();
}

QImage coverageOf(const QPainterPath& area, const QRect& pixels) {
    QImage coverage(pixels.size(), QImage::Format_Alpha8);
    coverage.fill(0);
    QPainter painter(&coverage);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-pixels.topLeft());
    painter.fillPath(area, Qt::black);
    return coverage;
}

}  // namespace dabcanvas::dabpainter
