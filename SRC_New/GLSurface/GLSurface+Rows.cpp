// SPDX-License-Identifier: MIT
// The part of the surface where pictures and rows come in and go out.
#include <epoxy/gl.h>

#include <algorithm>
#include <cmath>
#include <new>
#include <numbers>

#include "ESRender/ESImageRender.h"
#include "ESRender/Texture/GLPictures.h"
#include "ESRender/Texture/ScaledPixels.h"
#include "ESRender/Utilities/ESGLErrors.h"
#include "GLSurface/GLSurface.h"
#include "Maths/Rounding.h"

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

// Mip levels shrink both axes alike. Of an image that is reduced much more on one axis they would blur the
// other, so that axis is brought to the other's measure first.
QImage evenlyReduced(const QImage& picture, double width, double height) {
    const double across = picture.width() / width;
    const double down = picture.height() / height;
    const double least = std::max(std::min(across, down), 1.0);
    constexpr double kUneven = 1.5;
    if (std::max(across, down) <= least * kUneven) {
        return picture;
    }
    const auto side = [&](int pixels, double reduction) {
        return reduction > least * kUneven ? std::max(nearestInt(pixels * least / reduction), 1) : pixels;
    };
    const QImage reduced =
        scaledPixels(picture, {side(picture.width(), across), side(picture.height(), down)});
    return reduced.isNull() ? picture : reduced;  // short of memory: blurred is better than nothing
}

}  // namespace

bool GLSurface::read(PictureId, const Rect& rect, const MutablePixelView& rows) {
    if (!isPart(rect, rows)) {
        return false;
    }
    if (rows.isBottomUpBlock()) {
        _context->readData(rows.row(rect.height - 1), qRectOf(rect));
        return !isLost();
    }
    const int most = bandRows(rect);
    try {
        _band.resize(static_cast<std::size_t>(rect.width) * 4 * static_cast<std::size_t>(most));
    } catch (const std::bad_alloc&) {
        return false;
    }
    for (int y = 0; y < rect.height; y += most) {
        const Rect part{0, y, rect.width, std::min(most, rect.height - y)};
        _context->readData(_band.data(), qRectOf({rect.x, rect.y + y, part.width, part.height}));
        if (isLost()) {
            return false;  // with no pixels
        }
        copyRows(MutablePixelView::bottomRowFirst(_band.data(), {part.width, part.height}), rows.part(part));
    }
    return true;
}

bool GLSurface::write(PictureId picture, const Rect& rect, const PixelView& rows) {
    if (!isPart(rect, rows)) {
        return false;
    }
    _context->beginRenderForType(ESRenderTypeCanvas);
    const auto send = [&](const PixelView& block, const Rect& to) {
        return _compositor->copyToBG(imageOf(block), QRect(to.x, to.y, to.width, to.height));
    };
    bool sent = true;
    if (rows.isBottomUpBlock()) {
        sent = send(rows, rect);
    } else {
        const int most = bandRows(rect);
        try {
            _band.resize(static_cast<std::size_t>(rect.width) * 4 * static_cast<std::size_t>(most));
        } catch (const std::bad_alloc&) {
            return false;
        }
        for (int y = 0; sent && y < rect.height; y += most) {
            const Rect part{0, y, rect.width, std::min(most, rect.height - y)};
            const auto band = MutablePixelView::bottomRowFirst(_band.data(), {part.width, part.height});
            copyRows(rows.part(part), band);
            sent = send(band, {rect.x, rect.y + y, part.width, part.height});
        }
    }
    _context->finishRender();
    _kept.forget(rect);
    noteChanged(picture, rect);
    return sent && !_context->checkLost();
}

bool GLSurface::place(PictureId picture, const Placed& placed) {
    const Rect clip = placed.clip.intersected(Rect::of(size()));
    if (placed.pixels.isNull() || clip.isEmpty()) {
        return false;
    }
    ESImageRender& render = *_compositor;
    render.setTextureImage(evenlyReduced(imageOf(placed.pixels), placed.width, placed.height), GL_TEXTURE0);
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
    render.setFlipY(placed.pixels.stride > 0);
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
