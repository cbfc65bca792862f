// SPDX-License-Identifier: MIT
#include "Viewport/ShownColor.h"

namespace dabcanvas::dabpainter {

QColor shownColor(const QImage& shown, QPoint pixel, int side) {
    if (!shown.rect().contains(pixel))
        return {};
    const QRect few(pixel - QPoint(side / 2, side / 2), QSize(side, side));
    const QImage pixels =
        shown.copy(few & shown.rect()).convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    double sums[4] = {};
    for (int y = 0; y < pixels.height(); ++y) {
        const uchar* row = pixels.constScanLine(y);
        for (int i = 0; i < 4 * pixels.width(); ++i)
            sums[i % 4] += row[i];
    }
    const double paint = sums[3];
    if (paint == 0)
        return {};
    const auto part = [&](int i) { return qBound(0, qRound(sums[i] * 255 / paint), 255); };
    return QColor(part(0), part(1), part(2));
}

}  // namespace dabcanvas::dabpainter
