// SPDX-License-Identifier: MIT
// The part of the surface where pictures and rows come in and go out.
#include <epoxy/gl.h>

#include <algorithm>
#include <cmath>
#include <new>
#include <numbers>

#include "Dabs/MipLevels.h"
#include "ESRender/ESImageRender.h"
#include "ESRender/Texture/GLPictures.h"
#include "ESRender/Utilities/ESGLErrors.h"
#include "GLSurface/GLSurface.h"
#include "Maths/Rounding.h"
#include "Surface/DepthRows.h"
#include "Surface/Placement.h"

namespace dabcanvas {
namespace {

// Rows whose order must be turned go through a band of about as many bytes, never a second picture.
constexpr std::ptrdiff_t kBandBytes = 1 << 20;

int bandRows(const Rect& rect) {
    return static_cast<int>(
        std::clamp<std::ptrdiff_t>(kBandBytes / (std::ptrdiff_t{rect.width} * 4), 1, rect.height));
}

QRectF qRectOf(const Rect& rect) {
    return {static_cast<double>(rect.x), static_cast<double>(rect.y), static_cast<double>(rect.width),
            static_cast<double>(rect.height)};
}

// What is reduced is averaged here, as on every surface: a driver's levels would blur it. Null for a picture that is not, and
// without the memory.
QImage reducedFor(const Placed& placed) try {
    const Size& from = placed.pixels.size;
    const Placement placement({placed.centreX, placed.centreY}, placed.width, placed.height, placed.radian);
    const Size to = placement.reducedSize(from);
    if (to == from) {
        return {};
    }
    const Pixels small = reduced(pixelsOf(placed.pixels), to);
    return imageOf(PixelView::topRowFirst(small.bytes.data(), small.size)).copy();
} catch (const std::bad_alloc&) {
    return {};
}

}  // namespace

// Room for rows on their way; false without the memory.
bool GLSurface::provideBand(std::size_t bytes) {
    try {
        _band.resize(std::max(bytes, _band.size()));
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

// 16 bits are rounded here, as drivers differ in it.
bool GLSurface::read(PictureId, const Rect& rect, const MutablePixelView& rows) {
    if (!isPart(rect, rows)) {
        return false;
    }
    const int depth = _context->canvasDepth(), bytes = pixelBytes();
    if (rows.isBottomUpBlock() && rows.pixelBytes == bytes) {
        _context->readData(rows.row(rect.height - 1), qRectOf(rect), depth);
        return !isLost();
    }
    const int most = bandRows(rect);
    if (!provideBand(static_cast<std::size_t>(rect.width) * static_cast<std::size_t>(bytes * most))) {
        return false;
    }
    for (int y = 0; y < rect.height; y += most) {
        const Rect part{0, y, rect.width, std::min(most, rect.height - y)};
        _context->readData(_band.data(), qRectOf({rect.x, rect.y + y, part.width, part.height}), depth);
        if (isLost()) {
            return false;  // with no pixels
        }
        const PixelView from =
            MutablePixelView::bottomRowFirst(_band.data(), {part.width, part.height}, bytes);
        const MutablePixelView to = rows.part(part);
        to.pixelBytes == bytes ? copyRows(from, to) : roundRows(from, to, rect.x, rect.y + y);
    }
    return true;
}

bool GLSurface::write(PictureId picture, const Rect& rect, const PixelView& rows) {
    if (!isPart(rect, rows)) {
        return false;
    }
    const bool sent = send(rect, rows, false);
    _kept.forget(rect);
    noteChanged(picture, rect);
    return sent;
}

bool GLSurface::writeBackground(PictureId, const Rect& rect, const PixelView& rows) {
    _smudgeStale = _smudgeStale.united(rect);
    return isPart(rect, rows) && send(rect, rows, true);
}

bool GLSurface::send(const Rect& rect, const PixelView& rows, bool onlyBackground) {
    _context->beginRenderForType(ESRenderTypeCanvas);
    const auto sendBlock = [&](const PixelView& block, const Rect& to) {
        return _compositor->copyToBG(imageOf(block), QRect(to.x, to.y, to.width, to.height), onlyBackground);
    };
    bool sent = true;
    if (rows.isBottomUpBlock()) {
        sent = sendBlock(rows, rect);
    } else {
        const int most = bandRows(rect);
        sent = provideBand(static_cast<std::size_t>(rect.width) *
                           static_cast<std::size_t>(rows.pixelBytes * most));
        for (int y = 0; sent && y < rect.height; y += most) {
            const Rect part{0, y, rect.width, std::min(most, rect.height - y)};
            const auto band =
                MutablePixelView::bottomRowFirst(_band.data(), {part.width, part.height}, rows.pixelBytes);
            copyRows(rows.part(part), band);
            sent = sendBlock(band, {rect.x, rect.y + y, part.width, part.height});
        }
    }
    _context->finishRender();
    return sent && !_context->checkLost();
}

bool GLSurface::place(PictureId picture, const Placed& placed) {
    const Rect clip = placed.clip.intersected(Rect::of(size()));
    if (placed.pixels.isNull() || clip.isEmpty()) {
        return false;
    }
    ESImageRender& render = *_compositor;
    const QImage small = reducedFor(placed);
    render.setTextureImage(small.isNull() ? imageOf(placed.pixels) : small, GL_TEXTURE0);
    const LPPoint dab{{static_cast<float>(placed.centreX), static_cast<float>(placed.centreY)},
                      static_cast<float>(placed.width),
                      {1.0f, 1.0f, 1.0f}};
    render.setRadian(static_cast<float>(std::remainder(placed.radian, 2 * std::numbers::pi)));
    render.setRoundness(static_cast<float>(placed.height / placed.width));
    if (!render.isReadyToPlace(dab)) {
        _context->checkLost();
        return false;  // or there was no room for it
    }
    _context->beginRenderForType(ESRenderTypeCanvas);
    _context->setBlendWithSCFactor(GL_ONE, GL_ZERO, GL_ONE, GL_ZERO);
    render.setNoiseTurn({});
    render.setBlendType(placed.replaces ? ESBlendTypeReplace : ESBlendTypeNormal);
    render.setFlipX(false);
    render.setFlipY(placed.pixels.stride > 0 || !small.isNull());
    render.setUseLargeTexture(true);
    render.setOpacity(1);
    render.setRepeatedlyRenderEnabled(false);
    if (clip != Rect::of(size())) {
        glEnable(GL_SCISSOR_TEST);
        glScissor(clip.x, size().height - clip.bottom(), clip.width, clip.height);
    }
    const QRectF touched = render.drawPoints(&dab, 1);
    _context->finishRender();
    noteChanged(picture, clip.intersected(Rect::covering(touched.left(), touched.top(), touched.right(),
                                                         touched.bottom())));
    return true;
}

}  // namespace dabcanvas
