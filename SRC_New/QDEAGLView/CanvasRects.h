// SPDX-License-Identifier: MIT
// Dirty rectangles of a canvas, in buffer pixels. One rule everywhere: a zero rectangle is replaced, any
// other united.
#pragma once

#include <QRectF>
#include <algorithm>
#include <cmath>

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

}  // namespace dabcanvas
