// SPDX-License-Identifier: MIT
#include "Display/HalvedCopies.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace dabcanvas {
namespace {

constexpr int kSmallest = 64;  // pixels; of what is smaller no more copies are made

QSize halved(const QSize& size) {
    return {(size.width() + 1) / 2, (size.height() + 1) / 2};
}

QRect halved(const QRect& area) {
    return QRect(QPoint(area.left() >> 1, area.top() >> 1), QPoint(area.right() >> 1, area.bottom() >> 1));
}

// A pixel beyond the right or lower edge is the one at the edge.
void halveRow(const std::uint8_t* upper, const std::uint8_t* lower, int width, std::uint8_t* to, int from,
              int until) {
    for (int x = from; x < until; ++x) {
        const std::ptrdiff_t left = std::ptrdiff_t{8} * x;
        const std::ptrdiff_t right = 2 * x + 1 < width ? left + 4 : left;
        for (int channel = 0; channel < 4; ++channel) {
            const int sum = upper[left + channel] + upper[right + channel] + lower[left + channel] +
                            lower[right + channel];
            to[std::ptrdiff_t{4} * x + channel] = static_cast<std::uint8_t>((sum + 2) >> 2);
        }
    }
}

void halve(const QImage& from, QImage& to, const QRect& area) {
    for (int y = area.top(); y <= area.bottom(); ++y) {
        halveRow(from.constScanLine(2 * y), from.constScanLine(std::min(2 * y + 1, from.height() - 1)),
                 from.width(), to.scanLine(y), area.left(), area.right() + 1);
    }
}

}  // namespace

int HalvedCopies::levelFor(double zoom) {
    // A little early, as interpolating what is shown at half its size takes some of its pixels for more than others.
    constexpr double kEarly = 0.4;
    return zoom >= 1 ? 0 : static_cast<int>(std::floor(kEarly - std::log2(std::max(zoom, 1e-6))));
}

const QImage& HalvedCopies::at(int level, const QImage& picture) {
    const QImage* above = &picture;
    for (int made = 0; made < level && std::min(above->width(), above->height()) > kSmallest; ++made) {
        if (static_cast<std::size_t>(made) == _copies.size()) {
            _copies.emplace_back();
        }
        Copy& copy = _copies[static_cast<std::size_t>(made)];
        const QSize size = halved(above->size());
        if (copy.image.size() != size) {
            copy.image = QImage(size, picture.format());
            copy.stale = QRect(QPoint(), size);
        }
        if (copy.image.isNull()) {
            return *above;
        }
        const QRect stale = copy.stale & QRect(QPoint(), size);
        if (!stale.isEmpty()) {
            halve(*above, copy.image, stale);
        }
        copy.stale = {};
        above = &copy.image;
    }
    return *above;
}

void HalvedCopies::change(const QRect& area) {
    QRect part = area;
    for (Copy& copy : _copies) {
        part = halved(part);
        copy.stale |= part;
    }
}

}  // namespace dabcanvas
