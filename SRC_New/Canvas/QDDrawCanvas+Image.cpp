// SPDX-License-Identifier: MIT
// Pixels: looking, reading back, clearing, and the forms of placing pictures and raw pixels.
#include <algorithm>
#include <cmath>

#include "Canvas/CanvasLog.h"
#include "Canvas/QDDrawCanvasParts.h"
#include "Maths/Geometry.h"
#include "Maths/Rounding.h"

using namespace dabcanvas;

namespace {

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

// The whole pixels that are read for a rectangle, rows counted from the bottom; empty, after a log line, when it does not
// lie on the canvas.
Rect readPart(const QRectF& bufferRect, const Size& size) {
    const QRectF rect = withWholeEdges(bufferRect);
    const bool isOn = rect.width() >= 1 && rect.height() >= 1 && rect.left() >= 0 && rect.top() >= 0 &&
                      rect.right() <= size.width && rect.bottom() <= size.height;
    if (!isOn) {
        qCWarning(lcDabcanvas, "there is nothing to read at (%g, %g), %g x %g buffer pixels", rect.x(),
                  rect.y(), rect.width(), rect.height());
        return {};
    }
    const auto rowFromTop = [&](double y) { return size.height - truncatedInt(size.height - y); };
    return Rect::between(truncatedInt(rect.left()), rowFromTop(rect.top()), truncatedInt(rect.right()),
                         rowFromTop(rect.bottom()));
}

MutablePixelView viewOf(QImage& image) {
    return {image.bits(), {image.width(), image.height()}, image.bytesPerLine()};
}

// The pixels of raw data, which are not copied; null, after a log line, when there are fewer than it claims.
QImage pictureOfData(const QByteArray& data, const QSize& size) {
    if (size.isEmpty() || data.size() / 4 / size.width() < size.height()) {
        qCWarning(lcDabcanvas, "%lld bytes are no picture of %d x %d pixels",
                  static_cast<long long>(data.size()), size.width(), size.height());
        return {};
    }
    return QImage(reinterpret_cast<const uchar*>(data.constData()), size.width(), size.height(),
                  qsizetype{size.width()} * 4, kDataFormat);
}

Spot spotOf(const QSizeF& size, const QPointF& centre, double radian) {
    return {size.width(), size.height(), {centre.x(), centre.y()}, radian};
}

QRectF qRectOf(const Rect& rect) {
    return QRectF(rect.x, rect.y, rect.width, rect.height);
}

}  // namespace

// ---- Looking and reading back

QSizeF QDDrawCanvas::bufferSize() const {
    return _inside->parts->bufferSize();
}

QSizeF QDDrawCanvas::scale() const {
    return _inside->parts->view.perPixel;
}

void QDDrawCanvas::updateScaleInfo() {
    if (_inside->parts) {
        _inside->parts->updateScale();
    }
}

const QImage& QDDrawCanvas::displayImage() {
    return _inside->parts->layers.display();
}

QImage QDDrawCanvas::image() {
    return _inside->parts->imageOf(_inside->parts->layers.whole());
}

QImage QDDrawCanvas::imageWithRect(const QRectF& rect) {
    Parts& parts = *_inside->parts;
    return parts.imageOf(readPart(CGRectApplyScale(rect, scale()), parts.layers.size()));
}

QImage QDDrawCanvas::newCGImageWithRect(const QRectF& rect) {
    return imageWithRect(rect);
}

// Null for an empty part and where there is no memory.
QImage QDDrawCanvas::Parts::imageOf(const Rect& part) {
    return imageBy({part.width, part.height}, [&](const MutablePixelView& rows) { return read(part, rows); });
}

QImage QDDrawCanvas::Parts::imageBy(const Size& size,
                                    const std::function<bool(const MutablePixelView&)>& read) {
    const Host::Call call(host);
    if (size.width <= 0 || size.height <= 0 || !finishPreview()) {
        return {};
    }
    QImage image(size.width, size.height, kDataFormat);
    if (image.isNull()) {
        qCWarning(lcDabcanvas, "there is no memory for an image of %d x %d pixels", size.width, size.height);
        return image;
    }
    return read(viewOf(image)) ? image : QImage();
}

bool QDDrawCanvas::readData(unsigned char* bytes, const QRectF& rect) {
    return readDataBufferRect(bytes, CGRectApplyScale(rect, scale()));
}

bool QDDrawCanvas::readDataBufferRect(unsigned char* bytes, const QRectF& bufferRect) {
    const Host::Call call(_inside->host);
    if (!_inside->parts->finishPreview()) {
        return false;
    }
    const Rect part = readPart(bufferRect, _inside->parts->layers.size());
    if (part.isEmpty()) {
        return false;
    }
    if (bytes == nullptr) {
        qCWarning(lcDabcanvas, "there is no memory given to read the canvas into");
        return false;
    }
    return _inside->parts->read(part, MutablePixelView::bottomRowFirst(bytes, {part.width, part.height}));
}

QImage QDDrawCanvas::currentImage() {
    const RecordedCanvas& record = _inside->parts->record;
    if (!record.hasCanvasSize()) {
        return image();
    }
    return pictureOfData(record.data(), bufferSize().toSize()).mirrored();
}

// ---- Clearing

void QDDrawCanvas::clear() {
    clearOnline(true);
}

void QDDrawCanvas::clearOnline(bool online) {
    clearWithColor({}, online);
}

void QDDrawCanvas::clearWithColor(const ESColor& color, bool) {
    _inside->parts->clear(color);
}

void QDDrawCanvas::clearESBufferOnline(bool online) {
    clearESBufferWithColor({}, online);
}

void QDDrawCanvas::clearESBufferWithColor(const ESColor& color, bool) {
    _inside->parts->clearPicture(color);
}

void QDDrawCanvas::clearExtenBuffer() {
    _inside->parts->layers.empty(PaintLayer::line);
}

void QDDrawCanvas::clearSubBuffer() {
    _inside->parts->layers.empty(PaintLayer::subLine);
}

void QDDrawCanvas::clearSmudgeBuffer() {
    _inside->parts->layers.empty(PaintLayer::smudge);
}

// ---- Layers

QRectF QDDrawCanvas::drawPoints(const LPPoint* points, std::size_t count, ESRenderType layer) {
    const Host::Call call(_inside->host);
    const auto isFinite = [](const LPPoint& point) {
        return std::isfinite(point.position.x) && std::isfinite(point.position.y) &&
               std::isfinite(point.radius) && std::isfinite(point.params.pressure) &&
               std::isfinite(point.params.altitude) && std::isfinite(point.params.speed);
    };
    if (points == nullptr || layer < ESRenderTypeCanvas || layer >= kRenderTypeCount) {
        return {};
    }
    const std::span<const LPPoint> run(points, count);
    if (!std::all_of(run.begin(), run.end(), isFinite)) {
        qCWarning(lcDabcanvas, "a run of dabs with a number that is not finite was refused");
        return {};
    }
    if (!_inside->parts->finishPreview()) {
        return {};
    }
    return qRectOf(_inside->parts->drawPoints(run, static_cast<DrawTarget>(layer)));
}

QRectF QDDrawCanvas::drawPoints(const LPPoint* points, std::size_t count) {
    const Host::Call call(_inside->host);
    const Alive alive(_inside->host.life);
    const QRectF touched = drawPoints(points, count, ESRenderTypeLine);
    if (alive) {
        const QRect pixels = touched.toRect();
        _inside->parts->lastTouched = {pixels.x(), pixels.y(), pixels.width(), pixels.height()};
    }
    return touched;
}

QRectF QDDrawCanvas::drawPoint(QPointF point, float size) {
    const LPPoint dab{
        {static_cast<float>(point.x()), static_cast<float>(point.y())}, size, {1.0f, 1.0f, 1.0f}};
    return drawPoints(&dab, 1);
}

void QDDrawCanvas::updateImage(bool online) {
    updateImage(online, isSmudgeType());
}

void QDDrawCanvas::updateImage(bool online, bool smudge) {
    _inside->parts->updateImage(online, smudge);
}

void QDDrawCanvas::resetWithRenderRect(const QRectF& rect) {
    const Host::Call call(_inside->host);
    Parts& parts = *_inside->parts;
    if (!std::isfinite(rect.x() + rect.width()) || !std::isfinite(rect.y() + rect.height())) {
        return;
    }
    const Rect area = Rect::covering(rect.left(), rect.top(), rect.right(), rect.bottom())
                          .intersected(parts.layers.whole());
    parts.layers.revert(area);
    parts.redisplay(area);
}

void QDDrawCanvas::updateSmudgeBGTexture() {
    _inside->parts->prepareSmudge();
}

void QDDrawCanvas::updateBGImage(const QByteArray& mark) {
    _inside->parts->updateBackground(!mark.isNull());
}

QRectF QDDrawCanvas::drawRect() const {
    return qRectOf(_inside->parts->layers.painted());
}

// ---- The forms of placing

// What was recorded for undo is in buffer pixels already.
bool QDDrawCanvas::Parts::placeInView(const PlacedImage& image, const QSizeF& size, const QPointF& centre,
                                      double radian, bool isUndo) {
    return isUndo
               ? place(image, spotOf(size, centre, radian), true)
               : place(image,
                       spotOf(CGSizeApplyScale(size, outScale), CGPointApplyScale(centre, outScale), radian),
                       false);
}

bool QDDrawCanvas::drawImage(const QImage& image, const QRectF& inRect, bool isUndo) {
    return drawImage(image, inRect.size(), inRect.center(), 0, isUndo);
}

bool QDDrawCanvas::drawImage(const QImage& image, const QSizeF& inSize, const QPointF& atCenter,
                             double radian, bool isUndo) {
    return _inside->parts->placeInView({.image = image}, inSize, atCenter, radian, isUndo);
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
    const QImage picture = pictureOfData(data, dataSize);
    return !picture.isNull() && _inside->parts->placeInView({.image = picture, .topRowFirst = false}, inSize,
                                                            atCenter, radian, isUndo);
}

bool QDDrawCanvas::setImage(const QImage& image, const QRectF& inRect, bool isUndo) {
    return setImage(image, inRect.size(), inRect.center(), 0, isUndo);
}

bool QDDrawCanvas::setImage(const QImage& image, const QSizeF& inSize, const QPointF& atCenter, double radian,
                            bool isUndo) {
    return _inside->parts->placeInView({.image = image, .replaces = true}, inSize, atCenter, radian, isUndo);
}

bool QDDrawCanvas::setImageInBufferRect(const QImage& image, const QRectF& rect, bool isUndo) {
    return setImageInBufferSize(image, rect.size(), rect.center(), 0, isUndo);
}

bool QDDrawCanvas::setImageInBufferSize(const QImage& image, const QSizeF& inBufferSize,
                                        const QPointF& atBufferCenter, double radian, bool isUndo) {
    return _inside->parts->place({.image = image, .replaces = true},
                                 spotOf(inBufferSize, atBufferCenter, radian), isUndo);
}

bool QDDrawCanvas::setData(const QByteArray& data, const QSize& dataSize, const QRectF& inRect, bool isUndo) {
    return setData(data, dataSize, inRect.size(), inRect.center(), 0, isUndo);
}

bool QDDrawCanvas::setData(const QByteArray& data, const QSize& dataSize, const QSizeF& inSize,
                           const QPointF& atCenter, double radian, bool isUndo) {
    const QImage picture = pictureOfData(data, dataSize);
    return !picture.isNull() &&
           _inside->parts->placeInView({.image = picture, .topRowFirst = false, .replaces = true}, inSize,
                                       atCenter, radian, isUndo);
}

// ---- What placing is restricted by

bool QDDrawCanvas::globalScissor() const {
    return _inside->parts->placing.rules.scissors;
}

void QDDrawCanvas::setGlobalScissor(bool value) {
    _inside->parts->placing.rules.scissors = value;
}

bool QDDrawCanvas::neglectTextureUpdate() const {
    return _inside->parts->placing.rules.neglects;
}

void QDDrawCanvas::setNeglectTextureUpdate(bool value) {
    _inside->parts->placing.rules.neglects = value;
}

QRectF QDDrawCanvas::scissorRect() const {
    const ImagePlacing::Box& box = _inside->parts->placing.scissor;
    return {box.x, box.y, box.width, box.height};
}

void QDDrawCanvas::setScissorRect(const QRectF& rect) {
    if (!std::isfinite(rect.x() + rect.width()) || !std::isfinite(rect.y() + rect.height())) {
        qCWarning(lcDabcanvas, "a scissor rectangle must be finite: (%g, %g), %g x %g refused", rect.x(),
                  rect.y(), rect.width(), rect.height());
        return;
    }
    _inside->parts->placing.scissor = {rect.x(), rect.y(), rect.width(), rect.height()};
}
