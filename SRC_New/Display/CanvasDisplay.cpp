// SPDX-License-Identifier: MIT
#include "Display/CanvasDisplay.h"

#include <QPainter>
#include <QPainterPath>
#include <QRegularExpression>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "Display/DevicePointers.h"
#include "Display/HalvedCopies.h"

namespace dabcanvas {
namespace {

// From here on pixels are shown as squares.
constexpr double kSquares = 2.5;

// What style sheets, Designer and QML hand in for an influence: pressure, altitude and speed.
LPControlParams controlOf(const QStringList& numbers) {
    const auto at = [&](qsizetype i) { return i < numbers.size() ? numbers[i].toFloat() : 0.0f; };
    return {at(0), at(1), at(2)};
}

void registerConversions() {
    static const bool registered = [] {
        QMetaType::registerConverter<QColor, ESColor>();
        QMetaType::registerConverter<ESColor, QColor>(&ESColor::toQColor);
        QMetaType::registerConverter<QStringList, LPControlParams>(&controlOf);
        QMetaType::registerConverter<QString, LPControlParams>([](const QString& text) {
            static const QRegularExpression separator(QStringLiteral("[,;\\s]+"));
            return controlOf(text.split(separator, Qt::SkipEmptyParts));
        });
        QMetaType::registerConverter<QVariantList, LPControlParams>(
            [](const QVariantList& list) { return controlOf(QVariant(list).toStringList()); });
        QMetaType::registerConverter<LPControlParams, QVariantList>([](const LPControlParams& control) {
            return QVariantList{control.pressure, control.altitude, control.speed};
        });
        return true;
    }();
    Q_UNUSED(registered);
}

}  // namespace

CanvasDisplay::CanvasDisplay(const QRectF& frame)
    : QDDrawCanvas(frame),
      _madeFrame(frame),
      _copies(std::make_unique<HalvedCopies>()),
      _pointers(std::make_unique<DevicePointers>(*this)) {
    registerConversions();
}

CanvasDisplay::~CanvasDisplay() = default;

void CanvasDisplay::initCanvasOrSayWhy(const SurfaceOptions& options) {
    if (!initCanvas(options)) {
        _problem = QStringLiteral("There is no surface to paint on, or not in this size.");
        _madeFrame = QRectF(0, 0, 1, 1);
        if (!initCanvas({.kind = SurfaceKind::processor})) {
            qFatal("there is no memory for a canvas of one pixel");
        }
    }
}

void CanvasDisplay::resetBrushValue(BrushKey key) {
    const BrushProperty& row = brushProperty(key);
    setBrushValue(row, brushDefault(row));
}

// ---- Where the canvas lies

void CanvasDisplay::viewWasResized() {
    _isMade = true;
    _transform.setSizes(bufferSize(), viewSize(), viewPixelRatio());
    viewChanged();
}

void CanvasDisplay::viewChanged() {
    updateScaleInfo();
    setViewTurn(viewRotation(), isViewMirrored());
    updateView(QRectF(QPointF(), viewSize()));
    viewDidChange();
}

QPointF CanvasDisplay::middle() const {
    const QSizeF size = viewSize();
    return {size.width() / 2, size.height() / 2};
}

void CanvasDisplay::setFit(ViewFit fit) {
    _transform.setFit(fit);
    viewChanged();
}

void CanvasDisplay::setZoom(double zoom) {
    zoomAbout(zoom, middle());
}

void CanvasDisplay::zoomAbout(double zoom, QPointF viewPoint) {
    _transform.zoomAbout(zoom, viewPoint);
    viewChanged();
}

void CanvasDisplay::setViewRotation(double radians) {
    turnAbout(radians, middle());
}

void CanvasDisplay::turnAbout(double radians, QPointF viewPoint) {
    _transform.turnAbout(radians, viewPoint);
    viewChanged();
}

void CanvasDisplay::setViewMirrored(bool mirrored) {
    _transform.setMirrored(mirrored, middle());
    viewChanged();
}

void CanvasDisplay::setViewCentre(QPointF bufferPoint) {
    _transform.setCentre(bufferPoint);
    viewChanged();
}

void CanvasDisplay::panBy(QPointF viewPoints) {
    _transform.panBy(viewPoints);
    viewChanged();
}

QRectF CanvasDisplay::displayFrame() const {
    if (!_isMade) {
        return _madeFrame;
    }
    return QRectF(QPointF(), fit() == ViewFit::stretch ? viewSize() : bufferSize());
}

double CanvasDisplay::pointScale() const {
    return fit() == ViewFit::stretch ? 1 : viewPixelRatio() / zoom();
}

QPointF CanvasDisplay::localPointWithTouch(const QDDrawTouch& touch) const {
    const QPointF inView = fromWindow(touch.locationInWindow);
    return fit() == ViewFit::stretch ? inView : viewToBuffer().map(inView);
}

QPointF CanvasDisplay::inView(QPointF canvasPoint) const {
    return fit() == ViewFit::stretch ? canvasPoint : bufferToView().map(canvasPoint);
}

// ---- How it is drawn

void CanvasDisplay::redisplayRect(const QRectF& rect) {
    // A little more on each side: a picture that is not shown pixel by pixel is interpolated across the edge.
    const QRectF inView = fit() == ViewFit::stretch ? rect : bufferToView().mapRect(rect);
    const double more = fit() == ViewFit::stretch ? 1 : std::max(2.0, 1 / pointScale());
    updateView(inView.adjusted(-more, -more, more, more));
}

void CanvasDisplay::pictureDidChange(const QRect& bufferPixels) {
    _copies->change(bufferPixels);
}

void CanvasDisplay::setGround(const QBrush& underCanvas, const QBrush& around) {
    _underCanvas = underCanvas;
    _around = around;
    updateView(QRectF(QPointF(), viewSize()));
}

bool CanvasDisplay::hasGround() const {
    return _underCanvas.style() != Qt::NoBrush || _around.style() != Qt::NoBrush;
}

CanvasDisplay::ShownPicture CanvasDisplay::shownPicture() {
    const bool isTurned = std::remainder(viewRotation(), std::numbers::pi / 2) != 0;
    const QImage& picture = displayImage();
    const QTransform& map = bufferToView();
    const double dots = viewPixelRatio();
    const double least = std::min(std::hypot(map.m11(), map.m12()), std::hypot(map.m21(), map.m22())) * dots;
    const int level = HalvedCopies::levelFor(least);
    const QImage& copy = _copies->at(level, picture);
    // The copy that there is may be a larger one.
    const double side = std::exp2(std::round(std::log2(double(picture.width()) / copy.width())));
    const bool isAsItIs = map.m11() * dots == 1 && map.m22() * dots == 1;
    // Interpolating an unscaled picture would cost time and change nothing.
    const bool isSmooth = !isAsItIs && (fit() == ViewFit::stretch || least < kSquares || isTurned);
    return {copy, QRectF(QPointF(), bufferSize() / side), QTransform::fromScale(side, side) * map, isSmooth,
            isTurned};
}

void CanvasDisplay::paintCanvas(QPainter& painter, const QRectF& exposed) {
    painter.save();
    painter.setClipRect(exposed, Qt::IntersectClip);
    const ShownPicture picture = shownPicture();
    painter.setRenderHint(QPainter::Antialiasing, picture.isTurned);
    if (hasGround()) {
        paintGround(painter, exposed);
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform, picture.isSmooth);
    painter.setTransform(picture.toView, true);
    painter.drawImage(picture.area, picture.image, picture.area);
    painter.restore();
    paintProblem(painter);
}

void CanvasDisplay::paintGround(QPainter& painter, const QRectF& exposed) const {
    QPainterPath outline;
    outline.addPolygon(bufferToView().map(QPolygonF(QRectF(QPointF(), bufferSize()))));
    if (_around.style() != Qt::NoBrush) {
        QPainterPath around;
        around.addRect(exposed);
        painter.fillPath(around.subtracted(outline), _around);
    }
    if (_underCanvas.style() != Qt::NoBrush) {
        painter.setBrushOrigin(outline.boundingRect().topLeft());
        painter.fillPath(outline, _underCanvas);
    }
}

QString CanvasDisplay::problem() const {
    return isContextLost() ? QStringLiteral("The graphics device is gone; nothing can be painted any more.")
                           : _problem;
}

void CanvasDisplay::paintProblem(QPainter& painter) const {
    if (const QString words = problem(); !words.isEmpty()) {
        painter.save();
        const QRectF all(QPointF(), viewSize());
        painter.fillRect(all, QColor(40, 40, 40, 200));
        painter.setPen(Qt::white);
        painter.drawText(all.adjusted(8, 8, -8, -8), Qt::AlignCenter | Qt::TextWordWrap, words);
        painter.restore();
    }
}

}  // namespace dabcanvas
