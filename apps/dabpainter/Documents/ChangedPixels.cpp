// SPDX-License-Identifier: MIT
#include "Documents/ChangedPixels.h"

#include <cstdint>
#include <cstring>

#include "Canvas/CanvasLayers.h"
#include "Canvas/QDDrawCanvas.h"

namespace dabcanvas::dabpainter {

namespace {

void widenChanged(const std::uint8_t* before, const std::uint8_t* after, std::uint16_t* deep, int pixels) {
    for (int x = 0; x < pixels; ++x, before += 4, after += 4, deep += 4) {
        if (std::memcmp(before, after, 4) == 0)
            continue;
        for (int i = 0; i < 4; ++i)
            deep[i] = std::uint16_t(after[i] * 257);
    }
}

}  // namespace

bool putChanged(QDDrawCanvas& canvas, const QRect& area, const QImage& before, const QImage& after) {
    if (canvas.surfaceOptions().canvasDepth == 8)
        return canvas.setImageInBufferRect(after, QRectF(area));
    QImage deep = canvas.layers().deepImage(canvas.layers().active(), area);
    if (deep.isNull())
        return false;
    for (int y = 0; y < deep.height(); ++y)
        widenChanged(before.constScanLine(y), after.constScanLine(y),
                     reinterpret_cast<std::uint16_t*>(deep.scanLine(y)), deep.width());
    return canvas.setImageInBufferRect(deep, QRectF(area));
}

}  // namespace dabcanvas::dabpainter
