// SPDX-License-Identifier: MIT
#include "Tools/CanvasFill.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "Canvas/CanvasLayers.h"
#include "Canvas/QDDrawCanvas.h"
#include "Documents/ChangedPixels.h"
#include "Selection/SelectedArea.h"
#include "Tools/FloodFill.h"

namespace dabcanvas::dabpainter {

namespace {

using Pixel = const std::uint8_t*;

int divided255(int value) {
    return (value + 127) / 255;
}

// The colour of one layer's pixels below a flood.
class Paint {
public:
    Paint(const QColor& color, Pixel seed, int tolerance, bool locksAlpha)
        : _color{color.red(), color.green(), color.blue(), 255},
          _seed{seed[0], seed[1], seed[2], seed[3]},
          _tolerance(tolerance),
          _locksAlpha(locksAlpha) {}

    // selected: how much of the pixel, up to 255.
    void put(std::uint8_t* pixel, int cover, int selected) const {
        if (cover == 255 && selected == 255 && !_locksAlpha) {  // nearly always
            const std::uint8_t whole[4] = {std::uint8_t(_color[0]), std::uint8_t(_color[1]),
                                           std::uint8_t(_color[2]), 255};
            std::memcpy(pixel, whole, 4);
            return;
        }
        const std::uint8_t before[4] = {pixel[0], pixel[1], pixel[2], pixel[3]};
        put(pixel, cover);
        for (int i = 0; i < 4 && selected < 255; ++i)
            pixel[i] = std::uint8_t(divided255(pixel[i] * selected + before[i] * (255 - selected)));
    }

private:
    void put(std::uint8_t* pixel, int cover) const {
        // A line that is seen at the rim may be another layer's, above: this one is filled below it.
        if (cover == 255 || isAsSeed(pixel))
            return put(pixel);
        // Of this layer, such a pixel is the ground and the line by parts: the ground's becomes the colour's.
        const int alpha = pixel[3];
        for (int i = 0; i < 4; ++i)
            pixel[i] =
                std::uint8_t(std::clamp(pixel[i] + divided255(cover * (_color[i] - _seed[i])), 0, 255));
        for (int i = 0; i < 3; ++i)
            pixel[i] = std::min(pixel[i], pixel[3]);
        if (_locksAlpha)
            giveAlpha(pixel, alpha);
    }
    bool isAsSeed(Pixel pixel) const {
        for (int i = 0; i < 4; ++i) {
            if (std::abs(pixel[i] - _seed[i]) > _tolerance)
                return false;
        }
        return true;
    }
    void put(std::uint8_t* pixel) const {
        const int alpha = _locksAlpha ? pixel[3] : 255;
        for (int i = 0; i < 4; ++i)
            pixel[i] = std::uint8_t(divided255(_color[i] * alpha));
    }
    static void giveAlpha(std::uint8_t* pixel, int alpha) {
        const int now = std::max(1, int(pixel[3]));
        for (int i = 0; i < 3; ++i)
            pixel[i] = std::uint8_t(std::min(alpha, (pixel[i] * alpha + now / 2) / now));
        pixel[3] = std::uint8_t(alpha);
    }

    const int _color[4], _seed[4];  // premultiplied
    const int _tolerance;
    const bool _locksAlpha;
};

QImage layerImage(QDDrawCanvas& canvas, const QRect& rect) {
    const QSizeF scale = canvas.scale();
    return canvas.imageWithRect({rect.x() * scale.width(), rect.y() * scale.height(),
                                 rect.width() * scale.width(), rect.height() * scale.height()});
}

}  // namespace

FillOutcome fillCanvas(QDDrawCanvas& canvas, QPoint at, const QColor& color, int tolerance,
                       const QPainterPath& selected) {
    const LayerSettings layer = canvas.layers().settings(canvas.layers().active());
    if (!layer.isVisible)
        return FillOutcome::layerHidden;
    const bool isOutside = !selected.isEmpty() && !selected.contains(QPointF(at) + QPointF(0.5, 0.5));
    const FloodMask mask = isOutside ? FloodMask() : floodMask(canvas.displayImage(), at, tolerance);
    if (mask.rect.isEmpty())
        return FillOutcome::nothingToFill;
    const QImage before = layerImage(canvas, mask.rect);
    if (before.size() != mask.rect.size())
        return FillOutcome::failed;
    QImage picture = before.copy();
    const QPoint seed = at - mask.rect.topLeft();
    const Paint paint(color, picture.constScanLine(seed.y()) + 4 * seed.x(), tolerance, layer.locksAlpha);
    const QImage limits = selected.isEmpty() ? QImage() : coverageOf(selected, mask.rect);
    for (int y = 0; y < picture.height(); ++y) {
        std::uint8_t* row = picture.scanLine(y);
        Pixel limit = limits.isNull() ? nullptr : limits.constScanLine(y);
        const std::uint8_t* cover = mask.row(mask.rect.top() + y);
        for (int x = 0; x < picture.width(); ++x) {
            if (cover[x] != 0)
                paint.put(row + 4 * x, cover[x], limit ? limit[x] : 255);
        }
    }
    return putChanged(canvas, mask.rect, before, picture) ? FillOutcome::filled : FillOutcome::failed;
}

}  // namespace dabcanvas::dabpainter
