// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>
#include <QRect>
#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace dabcanvas::dabpainter {

// Which pixels a flood covers, and how far: all of it, or at its rim, where a smooth line begins, the part that is not the
// line's. Without that rim a fringe of the old colour would stay along every smooth line.
struct FloodMask {
    QRect rect;        // pixels of the picture; empty: nothing
    QByteArray cover;  // of the rectangle, row by row: 255 inside, 1 to 254 at the rim, 0 outside

    const std::uint8_t* row(int y) const {
        return reinterpret_cast<const std::uint8_t*>(cover.constData()) +
               qsizetype{y - rect.top()} * rect.width();
    }
};

// How much two pixels of premultiplied RGBA differ, in the channel where they differ most: 0 to 255.
inline int pixelDifference(std::uint32_t a, std::uint32_t b) {
    int most = 0;
    for (int shift = 0; shift < 32; shift += 8)
        most = std::max(most, std::abs(int((a >> shift) & 255) - int((b >> shift) & 255)));
    return most;
}

// What hangs together with the seed and differs from it by the tolerance at most, 0 to 255. The picture has 32 bits a pixel;
// nothing for a seed that is not on it.
FloodMask floodMask(const QImage& picture, QPoint seed, int tolerance);

}  // namespace dabcanvas::dabpainter
