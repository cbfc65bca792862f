// SPDX-License-Identifier: MIT
// Images: parts of the canvas read back, and pictures and raw pixels placed on it.
#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "Maths/Geometry.h"
#include "Maths/Rounding.h"
#include "QDEAGLView/CanvasRects.h"
#include "QDEAGLView/LeafDrawing.h"
#include "QDEAGLView/QDDrawCanvasScopes.h"

using dabcanvas::mergeRect;
using dabcanvas::nearestInt;

namespace {

// Sides in buffer pixels between which single precision tells pixels apart.
constexpr double kSmallest = 1e-6, kLargest = 1e6;
constexpr QImage::Format kDataFormat = QImage::Format_RGBA8888_Premultiplied;

// An edge that means a whole pixel comes out of a division a rounding error off it, and off the canvas.
QRectF withWholeEdges(const QRectF& rect) {
    const auto whole = [](double edge) {
        const double nearest = std::nearbyint(edge);
        return std::fabs(edge - nearest) < 1e-6 ? nearest : edge;
    };
    const QPointF first(whole(rect.left()), whole(rect.top()));
    return QRectF(first, QPointF(whole(rect.right()), whole(rect.bottom())));
}

bool isOnCanvas(const ESContext& context, const QRectF& rect) {
    if (context.isEnableRect(rect)) {
        return true;
    }
    qCWarning(lcDabcanvas, "there is nothing to read at (%g, %g), %g x %g buffer pixels", rect.x(), rect.y(),
              rect.width(), rect.height());
    return false;
}

bool isPlaceable(const QSizeF& size, const QPointF& centre, double radian) {
    const auto isLength = [](double side) { return side >= kSmallest && side <= kLargest; };
    if (isLength(size.width()) && isLength(size.height()) && std::isfinite(centre.x()) &&
        std::isfinite(centre.y()) && std::isfinite(radian)) {
        return true;
    }
    qCWarning(lcDabcanvas, "no image can be placed %g x %g buffer pixels large at (%g, %g), turned by %g",
              size.width(), size.height(), centre.x(), centre.y(), radian);
    return false;
}

// The pixels of raw data, which are not copied; null, after a log line, when there are fewer than it claims.
QImage pictureOf(const QByteArray& data, const QSize& size) {
    if (size.isEmpty() || data.size() / 4 / size.width() < size.height()) {
        qCWarning(lcDabcanvas, "%lld bytes are no picture of %d x %d pixels",
                  static_cast<long long>(data.size()), size.width(), size.height());
        return {};
    }
    return QImage(reinterpret_cast<const uchar*>(data.constData()), size.width(), size.height(),
                  qsizetype{size.width()} * 4, kDataFormat);
}

// Mip levels shrink both axes alike. Of an image that is reduced much more on one axis they would blur the
// other, so that axis is brought to the other's measure first.
QImage evenlyReduced(const QImage& picture, const QSizeF& size) {
    const double across = picture.width() / size.width();
    const double down = picture.height() / size.height();
    const double least = std::max(std::min(across, down), 1.0);
    constexpr double kUneven = 1.5;
    if (std::max(across, down) <= least * kUneven) {
        return picture;
    }
    const auto side = [&](int pixels, double reduction) {
        return reduction > least * kUneven ? std::max(nearestInt(pixels * least / reduction), 1) : pixels;
    };
    const QImage reduced = picture.scaled(side(picture.width(), across), side(picture.height(), down),
                                          Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return reduced.isNull() ? picture : reduced;  // short of memory: blurred is better than nothing
}

}  // namespace

// What is placed, and how it meets the canvas.
struct QDDrawCanvas::Source {
    QImage picture;
    bool topRowFirst;
    ESBlendType blendType;
};

// A part of a source, counted from its picture's top, as the rows of the canvas lie: bottom row first.
QImage QDDrawCanvas::rowsOf(const Source& source, const QRect& part) {
    const QImage& picture = source.picture;
    QRect inRows = part;
    if (!source.topRowFirst) {
        inRows.moveTop(picture.height() - part.y() - part.height());
    }
    QImage rows = inRows == picture.rect() ? picture : picture.copy(inRows);
    rows = std::move(rows).convertToFormat(kDataFormat);
    return source.topRowFirst ? std::move(rows).mirrored() : rows;
}

// ---- Reading back

QImage QDDrawCanvas::imageWithRect(const QRectF& rect) {
    return newCGImageWithRect(rect);
}

QImage QDDrawCanvas::newCGImageWithRect(const QRectF& rect) {
    const Call call(*this);
    if (!finishPreview()) {
        return {};
    }
    const QRectF part = withWholeEdges(CGRectApplyScale(rect, scale()));
    const ESCurrentScope current(*_esContext);
    if (!current || !isOnCanvas(*_esContext, part)) {
        return {};
    }
    compositePending();
    return _esContext->newCGImageWithRect(part);
}

bool QDDrawCanvas::readData(unsigned char* bytes, const QRectF& rect) {
    return readDataBufferRect(bytes, CGRectApplyScale(rect, scale()));
}

bool QDDrawCanvas::readDataBufferRect(unsigned char* bytes, const QRectF& bufferRect) {
    const Call call(*this);
    return finishPreview() && readPixels(bytes, bufferRect);
}

bool QDDrawCanvas::readPixels(unsigned char* bytes, const QRectF& bufferRect) {
    const QRectF part = withWholeEdges(bufferRect);
    const ESCurrentScope current(*_esContext);
    if (!current || !isOnCanvas(*_esContext, part)) {
        return false;
    }
    if (bytes == nullptr) {
        qCWarning(lcDabcanvas, "there is no memory given to read the canvas into");
        return false;
    }
    compositePending();
    _esContext->readData(bytes, part);
    return !isContextLost();
}

// ---- The forms of placing

bool QDDrawCanvas::drawImage(const QImage& image, const QRectF& inRect, bool isUndo) {
    return drawImage(image, inRect.size(), inRect.center(), 0, isUndo);
}

bool QDDrawCanvas::drawImage(const QImage& image, const QSizeF& inSize, const QPointF& atCenter,
                             double radian, bool isUndo) {
    return placeInView({image, true, ESBlendTypeNormal}, inSize, atCenter, radian, isUndo);
}

bool QDDrawCanvas::drawImage(const QImage& image, const QSizeF& inSize, const QPointF& atCenter,
                             double radian, const QPointF& anchorPoint) {
    return drawImage(image, inSize, atCenter + offsetWithCenter(atCenter, anchorPoint, radian), radian);
}

bool QDDrawCanvas::drawData(const QByteArray& data, const QSize& dataSize, const QRectF& inRect,
                            bool isUndo) {
    return drawData(data, dataSize, inRect.size(), inRect.center(), 0, isUndo);
}

bool QDDrawCanvas::drawData(const QByteArray& data, const QSize& dataSize, const QSizeF& inSize,
                            const QPointF& atCenter, double radian, bool isUndo) {
    const QImage picture = pictureOf(data, dataSize);
    return !picture.isNull() &&
           placeInView({picture, false, ESBlendTypeNormal}, inSize, atCenter, radian, isUndo);
}

bool QDDrawCanvas::setImage(const QImage& image, const QRectF& inRect, bool isUndo) {
    return setImage(image, inRect.size(), inRect.center(), 0, isUndo);
}

bool QDDrawCanvas::setImage(const QImage& image, const QSizeF& inSize, const QPointF& atCenter, double radian,
                            bool isUndo) {
    return placeInView({image, true, ESBlendTypeReplace}, inSize, atCenter, radian, isUndo);
}

bool QDDrawCanvas::setImageInBufferRect(const QImage& image, const QRectF& rect, bool isUndo) {
    return setImageInBufferSize(image, rect.size(), rect.center(), 0, isUndo);
}

bool QDDrawCanvas::setImageInBufferSize(const QImage& image, const QSizeF& inBufferSize,
                                        const QPointF& atBufferCenter, double radian, bool isUndo) {
    return place({image, true, ESBlendTypeReplace}, inBufferSize, atBufferCenter, radian, isUndo);
}

bool QDDrawCanvas::setData(const QByteArray& data, const QSize& dataSize, const QRectF& inRect, bool isUndo) {
    return setData(data, dataSize, inRect.size(), inRect.center(), 0, isUndo);
}

bool QDDrawCanvas::setData(const QByteArray& data, const QSize& dataSize, const QSizeF& inSize,
                           const QPointF& atCenter, double radian, bool isUndo) {
    const QImage picture = pictureOf(data, dataSize);
    return !picture.isNull() &&
           placeInView({picture, false, ESBlendTypeReplace}, inSize, atCenter, radian, isUndo);
}

// ---- Placing

void QDDrawCanvas::setScissorRect(const QRectF& rect) {
    if (!std::isfinite(rect.x() + rect.width()) || !std::isfinite(rect.y() + rect.height())) {
        qCWarning(lcDabcanvas, "a scissor rectangle must be finite: (%g, %g), %g x %g refused", rect.x(),
                  rect.y(), rect.width(), rect.height());
        return;
    }
    _scissorRect = rect;
}

// The pixels that placing may touch, with a top-left origin.
QRect QDDrawCanvas::scissorBox() const {
    const QSize buffer = bufferSize().toSize();
    const QRect whole(QPoint(0, 0), buffer);
    if (!_globalScissor) {
        return whole;
    }
    const QSize size(nearestInt(_scissorRect.width()), nearestInt(_scissorRect.height()));
    if (size.isEmpty()) {
        return {};
    }
    const int bottomUp = nearestInt(buffer.height() - _scissorRect.bottom());
    const QPoint topLeft(nearestInt(_scissorRect.x()), buffer.height() - bottomUp - size.height());
    return QRect(topLeft, size) & whole;
}

// An image meets the canvas with what a stroke in progress has drawn.
void QDDrawCanvas::settleBeforePlacing() {
    compositePending();
    if (_neglectTextureUpdate) {
        _mayMergePending = false;  // what lies between later rectangles may be the image
        return;
    }
    settleLayers();
}

// What was recorded for undo is in buffer pixels already.
bool QDDrawCanvas::placeInView(const Source& source, const QSizeF& size, const QPointF& centre, double radian,
                               bool isUndo) {
    return isUndo ? place(source, size, centre, radian, isUndo)
                  : place(source, CGSizeApplyScale(size, _outScale), CGPointApplyScale(centre, _outScale),
                          radian, isUndo);
}

// All of it or, with false, nothing.
bool QDDrawCanvas::place(const Source& source, const QSizeF& size, const QPointF& centre, double radian,
                         bool isUndo) {
    const Call call(*this);
    if (source.picture.isNull()) {
        qCWarning(lcDabcanvas, "there is no image to place");
        return false;
    }
    if (!isPlaceable(size, centre, radian)) {
        return false;
    }
    if (!finishPreview() || !putOnCanvas(source, size, centre, radian)) {
        return false;
    }
    setEdited(_edited || !isUndo);
    redisplayAll();
    if (!_neglectTextureUpdate) {
        updateBGImage(isUndo ? _curImageData : autoMarked());
        if (!isUndo && isSmudgeType()) {
            updateSmudgeBGTexture();
        }
    }
    return true;
}

bool QDDrawCanvas::putOnCanvas(const Source& source, const QSizeF& size, const QPointF& centre,
                               double radian) {
    const ESCurrentScope current(*_esContext);
    if (!current) {
        return false;
    }
    ESImageRender& render = *_esRender;
    const LPPoint dab{{static_cast<float>(centre.x()), static_cast<float>(centre.y())},
                      static_cast<float>(size.width()),
                      {1.0f, 1.0f, 1.0f}};
    render.setRadian(static_cast<float>(std::remainder(radian, 2 * std::numbers::pi)));
    render.setRoundness(static_cast<float>(size.height() / size.width()));
    const QRect placed = render.placedRect(dab);
    const QRect touched = placed & scissorBox();
    if (touched.isEmpty()) {
        return false;  // no fault of the caller's: whatever is dragged about leaves the canvas at times
    }
    const bool copies = source.blendType == ESBlendTypeReplace && !_neglectTextureUpdate &&
                        render.isCopy(dab, source.picture.size());
    if (!(copies ? copyPlaced(source, placed, touched) : drawPlaced(source, dab, touched))) {
        if (!_esContext->checkLost()) {
            qCWarning(lcDabcanvas, "there is no memory to place an image of %d x %d pixels",
                      source.picture.width(), source.picture.height());
        }
        return false;
    }
    mergeRect(_drawRect, touched);
    noteChanged(touched);
    return true;
}

// What replaces the canvas pixel by pixel. The background takes it along.
bool QDDrawCanvas::copyPlaced(const Source& source, const QRect& placed, const QRect& touched) {
    const QImage rows = rowsOf(source, touched.translated(-placed.topLeft()));
    if (rows.isNull()) {
        return false;
    }
    settleBeforePlacing();
    const StageTimer timer(*this, Stage::compositing);
    _esContext->beginRenderForType(ESRenderTypeCanvas);
    const bool copied = _esRender->copyToBG(rows, touched);
    _esContext->finishRender();
    return copied;
}

// Draws with the radian and roundness that the compositor has, and leaves it as strokes need it.
bool QDDrawCanvas::drawPlaced(const Source& source, const LPPoint& dab, const QRect& touched) {
    ESImageRender& render = *_esRender;
    const double width = dab.radius;
    const float radian = render.radian();
    const float roundness = render.roundness();
    render.setTextureImage(evenlyReduced(source.picture, QSizeF(width, width * roundness)), GL_TEXTURE0);
    if (!render.isReadyToPlace(dab)) {
        return false;
    }
    settleBeforePlacing();
    const StageTimer timer(*this, Stage::compositing);
    const std::uint32_t blendType = render.blendType();
    const bool needScissor = render.needScissor();
    _esContext->beginRenderForType(ESRenderTypeCanvas);
    _esContext->setBlendWithSCFactor(GL_ONE, GL_ZERO, GL_ONE, GL_ZERO);
    render.setBlendType(source.blendType);
    render.setFlipX(false);
    render.setFlipY(source.topRowFirst);
    render.setUseLargeTexture(true);
    render.setRadian(radian);
    render.setRoundness(roundness);
    render.setOpacity(1);
    render.setFlow(1);
    render.setRepeatedlyRenderEnabled(false);
    if (_globalScissor) {
        const QRect box = scissorBox();
        glEnable(GL_SCISSOR_TEST);
        glScissor(box.x(), _esContext->backingHeight() - box.y() - box.height(), box.width(), box.height());
        render.setNeedScissor(false);
    }
    render.drawPoints(&dab, 1);
    _esContext->finishRender();
    render.setNeedScissor(needScissor);
    render.setBlendType(blendType);
    render.setRepeatedlyRenderEnabled(needRepeatedlyRender());
    mergeRect(_updateRect, touched);
    return true;
}
