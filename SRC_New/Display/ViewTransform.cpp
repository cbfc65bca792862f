// SPDX-License-Identifier: MIT
#include "Display/ViewTransform.h"

#include <QRectF>
#include <algorithm>
#include <cmath>
#include <numbers>

namespace dabcanvas {
namespace {

constexpr double kQuarter = std::numbers::pi / 2;

QSizeF atLeastOne(const QSizeF& size) {
    return {std::max(size.width(), 1.0), std::max(size.height(), 1.0)};
}

// Quarters exactly, so that their pixels lie on the screen's.
double tidied(double radians) {
    constexpr double kNear = 1e-6;
    const double turned = std::remainder(radians, 4 * kQuarter);
    const double quarters = std::round(turned / kQuarter);
    return std::abs(turned - quarters * kQuarter) < kNear ? quarters * kQuarter : turned;
}

bool isFinite(QPointF point) {
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

}  // namespace

void ViewTransform::setSizes(const QSizeF& canvas, const QSizeF& view, double pixelRatio) {
    const QSizeF before = _canvas;
    _canvas = atLeastOne(canvas);
    _view = atLeastOne(view);
    _pixelRatio = pixelRatio > 0 ? pixelRatio : 1;
    if (_canvas != before) {
        _centre = {_canvas.width() / 2, _canvas.height() / 2};
    }
    update();
}

void ViewTransform::setFit(ViewFit fit) {
    if (fit == ViewFit::free && _fit != fit) {
        _zoom = zoom();
        _centre = _toCanvas.map(QPointF(_view.width() / 2, _view.height() / 2));
    }
    _fit = fit;
    update();
}

double ViewTransform::zoom() const {
    return scale() * _pixelRatio;
}

double ViewTransform::scale() const {
    switch (_fit) {
        case ViewFit::stretch:
            return std::max(_view.width() / _canvas.width(), _view.height() / _canvas.height());
        case ViewFit::whole:
            return wholeScale();
        case ViewFit::free:
            break;
    }
    return _zoom / _pixelRatio;
}

double ViewTransform::wholeScale() const {
    const double cosine = std::abs(std::cos(_rotation)), sine = std::abs(std::sin(_rotation));
    const double wide = _canvas.width() * cosine + _canvas.height() * sine;
    const double high = _canvas.width() * sine + _canvas.height() * cosine;
    return std::min(_view.width() / wide, _view.height() / high);
}

// What of it neither pans.
QTransform ViewTransform::linear() const {
    const double cosine = std::cos(_rotation) * scale(), sine = std::sin(_rotation) * scale();
    const double side = _mirrored ? -1 : 1;
    return {side * cosine, -side * sine, sine, cosine, 0, 0};
}

void ViewTransform::zoomAbout(double zoom, QPointF anchor) {
    if (!std::isfinite(zoom) || !isFinite(anchor)) {
        return;
    }
    const QPointF held = _toCanvas.map(anchor);
    _fit = ViewFit::free;
    _zoom = std::clamp(zoom, kLeastZoom, kMostZoom);
    moveTo(held, anchor);
}

void ViewTransform::turnAbout(double rotation, QPointF anchor) {
    if (!std::isfinite(rotation) || !isFinite(anchor)) {
        return;
    }
    const QPointF held = _toCanvas.map(anchor);
    _rotation = tidied(rotation);
    _fit == ViewFit::free ? moveTo(held, anchor) : update();
}

void ViewTransform::setMirrored(bool mirrored, QPointF anchor) {
    const QPointF held = _toCanvas.map(anchor);
    _mirrored = mirrored;
    _fit == ViewFit::free ? moveTo(held, anchor) : update();
}

void ViewTransform::panBy(QPointF points) {
    const QPointF middle(_view.width() / 2, _view.height() / 2);
    if (isFinite(points)) {
        setCentre(_toCanvas.map(middle - points));
    }
}

void ViewTransform::setCentre(QPointF canvasPoint) {
    if (isFinite(canvasPoint) && _fit == ViewFit::free) {
        _centre = canvasPoint;
        update();
    }
}

void ViewTransform::moveTo(QPointF canvasPoint, QPointF viewPoint) {
    const QPointF middle(_view.width() / 2, _view.height() / 2);
    _centre = canvasPoint - linear().inverted().map(viewPoint - middle);
    update();
}

// A canvas smaller than the view stays in its middle; a larger one may be moved until half the view is empty.
void ViewTransform::keepInSight() {
    const QTransform turned = linear();
    const QPointF middle(_canvas.width() / 2, _canvas.height() / 2);
    const QSizeF shown = turned.mapRect(QRectF(QPointF(), _canvas)).size();
    const QPointF away = turned.map(middle - _centre);
    const auto bounded = [](double distance, double size, double room) {
        return size <= room ? 0.0 : std::clamp(distance, -size / 2, size / 2);
    };
    const QPointF kept(bounded(away.x(), shown.width(), _view.width()),
                       bounded(away.y(), shown.height(), _view.height()));
    if (kept != away) {
        _centre = middle - turned.inverted().map(kept);
    }
}

// Onto whole device pixels where the canvas lies straight, so that nothing is drawn between pixels.
QTransform ViewTransform::snapped(const QTransform& transform) const {
    if (std::remainder(_rotation, kQuarter) != 0) {
        return transform;
    }
    const auto whole = [&](double place) { return std::round(place * _pixelRatio) / _pixelRatio; };
    return {transform.m11(), transform.m12(),       transform.m21(),
            transform.m22(), whole(transform.dx()), whole(transform.dy())};
}

void ViewTransform::update() {
    if (_fit == ViewFit::stretch) {
        _toView = QTransform::fromScale(_view.width() / _canvas.width(), _view.height() / _canvas.height());
    } else {
        if (_fit == ViewFit::whole) {
            _centre = {_canvas.width() / 2, _canvas.height() / 2};
        }
        keepInSight();
        const QPointF to = QPointF(_view.width() / 2, _view.height() / 2) - linear().map(_centre);
        _toView = snapped(linear() * QTransform::fromTranslate(to.x(), to.y()));
    }
    _toCanvas = _toView.inverted();
}

}  // namespace dabcanvas
