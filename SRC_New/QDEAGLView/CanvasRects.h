// SPDX-License-Identifier: MIT
// Dirty rectangles of a canvas, in buffer pixels. One rule everywhere: a zero rectangle is replaced, any
// other united.
#pragma once

#include <QRectF>
#include <algorithm>
#include <cmath>

#include "LineProcess/LPTypes.h"

namespace dabcanvas {

inline bool isZero(const QRectF& rect) {
    return rect.x() == 0 && rect.y() == 0 && rect.width() == 0 && rect.height() == 0;
}

// An empty part covers no pixel and changes nothing.
inline void mergeRect(QRectF& whole, const QRectF& part) {
    if (part.width() <= 0 || part.height() <= 0) {
        return;
    }
    whole = isZero(whole) ? part : whole.united(part);
}

// Each of the four numbers rounded to the nearest integer, ties to even.
inline QRectF roundedRect(const QRectF& rect) {
    const auto rounded = [](double value) {
        return static_cast<double>(std::nearbyint(static_cast<float>(value)));
    };
    return QRectF(rounded(rect.x()), rounded(rect.y()), rounded(rect.width()), rounded(rect.height()));
}

// The one dab that covers a rectangle when its renderer's roundness is the rectangle's height over its width.
inline LPPoint dabOf(const QRectF& rect) {
    const QPointF centre = rect.center();
    return {{static_cast<float>(centre.x()), static_cast<float>(centre.y())},
            static_cast<float>(rect.width()),
            {1.0f, 1.0f, 1.0f}};
}

}  // namespace dabcanvas
