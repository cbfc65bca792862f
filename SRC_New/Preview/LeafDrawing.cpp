// SPDX-License-Identifier: MIT
#include "Preview/LeafDrawing.h"

#include <QLoggingCategory>
#include <QPainter>
#include <QPointer>
#include <QScopedValueRollback>
#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <utility>

#include "Preview/ImageBlur.h"

namespace {

Q_LOGGING_CATEGORY(lcPreview, "dabcanvas.preview")

constexpr double kGraphScale = 0.6;  // bitmap pixels per buffer pixel
// Points further out are moved here, in bitmap pixels: the fill's fixed-point arithmetic ends somewhere.
constexpr double kFarthest = 32768;

double graphSide(double side) {
    return side > 0 && std::isfinite(side) ? std::max(1.0, std::round(side * kGraphScale)) : 1.0;
}

QPointF graphPoint(QPointF point) {
    const auto scaled = [](double value) { return std::clamp(value * kGraphScale, -kFarthest, kFarthest); };
    return {scaled(point.x()), scaled(point.y())};
}

// Around all points, each coordinate limited to the size.
QRectF boundsWithin(const QSizeF& size, std::initializer_list<QPointF> points) {
    double left = size.width(), top = size.height(), right = 0, bottom = 0;
    for (const QPointF& point : points) {
        const double x = std::clamp(point.x(), 0.0, size.width());
        const double y = std::clamp(point.y(), 0.0, size.height());
        left = std::min(left, x), right = std::max(right, x);
        top = std::min(top, y), bottom = std::max(bottom, y);
    }
    return {QPointF(left, top), QPointF(right, bottom)};
}

}  // namespace

LeafDrawing::LeafDrawing(const QSizeF& frame)
    : _frame(frame), _graphSize(graphSide(frame.width()), graphSide(frame.height())) {}

LeafDrawing::~LeafDrawing() {
    if (_inHook) {
        qFatal("A preview was destroyed by its own display hook, which is to note what changed");
    }
}

bool LeafDrawing::acceptsPoint(QPointF point) {
    if (std::isfinite(point.x()) && std::isfinite(point.y())) {
        return true;
    }
    if (!std::exchange(_refusedPoint, true)) {  // once a stroke: a broken device sends many
        qCWarning(lcPreview, "the preview ignores a point that is not finite: (%g, %g)", point.x(),
                  point.y());
    }
    return false;
}

bool LeafDrawing::makeBitmap(QPointF begin) {
    if (_bitmap.isNull() && std::max(_graphSize.width(), _graphSize.height()) <= kFarthest) {
        _bitmap = QImage(_graphSize.toSize(), QImage::Format_RGBA8888_Premultiplied);
        _bitmap.fill(Qt::transparent);
    }
    if (_bitmap.isNull() || !_fill.begin(_bitmap.size(), begin)) {
        qCWarning(lcPreview, "no memory for a preview of %g x %g pixels", _graphSize.width(),
                  _graphSize.height());
        return false;
    }
    return true;
}

// Strokes

void LeafDrawing::drawWithBegin(QPointF point) {
    const QPointer<QObject> alive(&_calls);
    finishPending();
    if (!alive) {
        return;  // its complention() destroyed the preview
    }
    letGo();
    _refusedPoint = false;
    const QPointF begin = graphPoint(point);
    if (!acceptsPoint(point) || !makeBitmap(begin) || !beginCopies(point)) {
        return;
    }
    _path.setFillRule(Qt::WindingFill);
    _path.moveTo(begin);
    _beginPoint = _lastPoint = _lastRenderPoint = begin;
    _updateRect = wholeRect();
}

QPointF LeafDrawing::placeOf(const Copy& copy, QPointF point) const {
    const LPPosition place =
        copy.map.of(LPPosition{static_cast<float>(point.x()), static_cast<float>(point.y())});
    return graphPoint({place.x, place.y});
}

bool LeafDrawing::beginCopies(QPointF point) {
    bool all = true;
    for (const dabcanvas::SymmetryMap& map : dabcanvas::copiesOf(_symmetry)) {
        Copy& copy = _copies.emplace_back(Copy{map, {}, {}, {}, {}});
        copy.begin = copy.last = copy.end = placeOf(copy, point);
        all = all && copy.fill.begin(_bitmap.size(), copy.begin);
    }
    if (!all) {
        qCWarning(lcPreview, "no memory for %zu copies of a preview", _copies.size());
        _copies.clear();
        _fill.clear();
    }
    return all;
}

void LeafDrawing::Copy::curveTo(QPointF middle, QPointF next) {
    fill.quadTo(last, middle);
    end = middle;
    last = next;
}

void LeafDrawing::setSymmetry(const dabcanvas::Symmetry& symmetry) {
    _symmetry = symmetry;
}

void LeafDrawing::drawWithMove(QPointF point) {
    if (!isDrawing() || !acceptsPoint(point)) {
        return;
    }
    const QPointF next = graphPoint(point);
    const QPointF middle = (_lastPoint + next) / 2;
    _path.quadTo(_lastPoint, middle);
    _fill.quadTo(_lastPoint, middle);
    // The curve and the two lines that close the path before and after it lie within these four.
    _updateRect = boundsWithin(_graphSize, {_beginPoint, _lastRenderPoint, _lastPoint, middle});
    _lastRenderPoint = middle;
    _isClear = false;
    _copiesUpdate = {};
    for (Copy& copy : _copies) {
        const QPointF copied = placeOf(copy, point), between = (copy.last + copied) / 2;
        _copiesUpdate |= boundsWithin(_graphSize, {copy.begin, copy.end, copy.last, between}).toAlignedRect();
        copy.curveTo(between, copied);
    }
    updateDrawView();
    _lastPoint = next;
}

void LeafDrawing::drawWithEnd(QPointF point) {
    if (!isDrawing()) {
        return;
    }
    const bool goesOn = acceptsPoint(point);
    const QPointF end = goesOn ? graphPoint(point) : _lastPoint;
    _path.quadTo(_lastPoint, end);
    _fill.quadTo(_lastPoint, end);
    for (Copy& copy : _copies) {
        const QPointF copied = goesOn ? placeOf(copy, point) : copy.last;
        copy.curveTo(copied, copied);
    }
    _lastPoint = _lastRenderPoint = end;
    _isClear = true;
    _updateRect = wholeRect();
    _pending = Pending{_renderColor, _gaussianRadius};
    updateDrawView();
    QMetaObject::invokeMethod(
        &_calls, [this] { finishPending(); }, Qt::QueuedConnection);
}

void LeafDrawing::drawWithCanceled(QPointF) {
    if (!isPending()) {
        letGo();
    }
}

void LeafDrawing::finishPending() {
    if (!isPending()) {
        return;
    }
    // Copies: the callee may begin a stroke, set another callee or destroy this.
    const Complention complention = _complention;
    const QSizeF size = _graphSize;
    const QImage blurred = complention ? boxblurImage(cgImage(), _pending->radius) : QImage();
    _pending.reset();
    letGo();
    if (complention) {
        complention(blurred, size);
    }
}

// Forgets the stroke. Its pixels are cleared when somebody looks, and leave the screen with its next frame.
void LeafDrawing::letGo() {
    if (_path.elementCount() == 0) {
        return;
    }
    _path = QPainterPath();
    _fill.clear();
    _copies.clear();
    _copiesUpdate = {};
    _isClear = true;
    _stale |= _inked;
    redisplay(wholeRect());
}

// Brush

void LeafDrawing::setRenderColor(const ESColor& color) {
    if (color == _renderColor) {
        return;
    }
    _renderColor = color;
    if (!_isClear) {
        _updateRect = wholeRect();
        updateDrawView();
    }
}

void LeafDrawing::setGaussianRadius(float radius) {
    if (!std::isfinite(radius)) {
        qCWarning(lcPreview, "a preview's blur radius cannot be %g", static_cast<double>(radius));
        return;
    }
    _gaussianRadius = std::max(radius, 1.0f);
}

// Drawing

void LeafDrawing::updateDrawViewForOnline(bool online) {
    _stale |= (_copiesUpdate | _updateRect.toAlignedRect()) & _bitmap.rect();
    if (online) {
        redisplay(_updateRect);
    }
    for (const QRect& copied : _copiesUpdate) {
        if (online) {
            redisplay(QRectF(copied));
        }
    }
}

void LeafDrawing::redisplay(const QRectF& bitmapRect) {
    // A display that interpolates mixes in the next pixel.
    const QRectF changed = QRectF(bitmapRect.toAlignedRect()).adjusted(-1, -1, 1, 1) & wholeRect();
    const QScopedValueRollback inHook(_inHook, true);
    const QSizeF shown = frameSize();
    const double x = shown.width() / _graphSize.width(), y = shown.height() / _graphSize.height();
    redisplayRect(QRectF(changed.x() * x, changed.y() * y, changed.width() * x, changed.height() * y));
}

const QImage& LeafDrawing::cgImage() {
    if (_stale.isEmpty()) {
        return _bitmap;
    }
    if (_path.elementCount() > 0) {
        std::vector<LeafFill*> outlines{&_fill};
        for (Copy& copy : _copies) {
            outlines.push_back(&copy.fill);
        }
        for (const QRect& part : _stale) {
            LeafFill::draw(outlines, _bitmap, part, _pending ? _pending->color : _renderColor);
        }
        _inked |= _stale.boundingRect();
    } else {
        QPainter painter(&_bitmap);
        painter.setCompositionMode(QPainter::CompositionMode_Clear);
        painter.fillRect(_stale.boundingRect(), Qt::transparent);
        _inked = QRect();
    }
    _stale = {};
    return _bitmap;
}

// Blurs

QImage LeafDrawing::boxblurImage(const QImage& image, float blurNumber) {
    return dabcanvas::boxBlurred(image, blurNumber);
}

QImage LeafDrawing::coreBlurImage(const QImage& image, float blurNumber) {
    return dabcanvas::gaussianBlurred(image, blurNumber);
}
