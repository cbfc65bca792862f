// SPDX-License-Identifier: MIT
#include "Canvas/SelectedPixels.h"

#include <QImage>
#include <QPainter>
#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <new>

#include "Canvas/CanvasLog.h"

namespace dabcanvas {
namespace {

constexpr double kFarthest = 1e6;  // buffer pixels

std::shared_ptr<const PaintMask> nothing() {
    qCWarning(lcDabcanvas, "there is no memory for a selection: nothing can be painted in it");
    return std::make_shared<PaintMask>();
}

}  // namespace

std::optional<QPainterPath> straightOutlines(const QPainterPath& path) {
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element& at = path.elementAt(i);
        if (!(std::abs(at.x) <= kFarthest && std::abs(at.y) <= kFarthest)) {
            return std::nullopt;
        }
    }
    QPainterPath straight;
    straight.setFillRule(path.fillRule());
    for (const QPolygonF& outline : path.toSubpathPolygons()) {
        straight.addPolygon(outline);
        straight.closeSubpath();
    }
    return straight;
}

std::shared_ptr<const PaintMask> maskOf(const QPainterPath& outlines, const Size& picture) try {
    const QRectF bounds = outlines.controlPointRect();
    auto mask = std::make_shared<PaintMask>();
    mask->area = Rect::covering(bounds.left(), bounds.top(), bounds.right(), bounds.bottom())
                     .intersected(Rect::of(picture));
    const Rect& area = mask->area;
    if (area.isEmpty()) {
        mask->area = {};
        return mask;
    }
    QImage image(area.width, area.height, QImage::Format_Alpha8);
    if (image.isNull()) {
        return nothing();
    }
    image.fill(0);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-area.x, -area.y);
    painter.fillPath(outlines, Qt::black);
    painter.end();
    mask->shares.resize(static_cast<std::size_t>(area.area()));
    for (int y = 0; y < area.height; ++y) {
        std::copy_n(image.constScanLine(y), area.width,
                    mask->shares.begin() + static_cast<std::ptrdiff_t>(y) * area.width);
    }
    return mask;
} catch (const std::bad_alloc&) {
    return nothing();
}

}  // namespace dabcanvas
