// SPDX-License-Identifier: MIT
#include "Layers/LayerThumbnails.h"

#include <QPainter>
#include <utility>

#include "Canvas/CanvasLayers.h"
#include "QDEAGLView/QDDrawView.h"
#include "Window/Widgets.h"

namespace dabcanvas::dabpainter {

namespace {

QStringList namesOf(QDDrawView& view) {
    auto layers = view.layers();
    QStringList names;
    for (int i = 0; i < layers.count(); ++i)
        names << layers.settings(i).name;
    return names;
}

// Small enough for the chequerboard's squares to be seen as such.
QBrush finerChecker() {
    QBrush brush = checkerBrush();
    brush.setTransform(QTransform::fromScale(0.5, 0.5));
    return brush;
}

QImage thumbnailOf(const QImage& layer, QSize box, qreal ratio, const QBrush& ground) {
    const QSize size = layer.size().scaled(box * ratio, Qt::KeepAspectRatio).expandedTo(QSize(3, 3));
    QImage thumbnail(size, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&thumbnail);
    painter.scale(ratio, ratio);
    const QRectF whole(QPointF(), QSizeF(size) / ratio);
    painter.fillRect(whole, ground);
    painter.drawImage(whole, layer.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    painter.setPen(QPen(QColor(128, 128, 128), 1));
    painter.drawRect(whole.adjusted(0.5, 0.5, -0.5, -0.5));
    painter.end();
    thumbnail.setDevicePixelRatio(ratio);
    return thumbnail;
}

}  // namespace

LayerThumbnails::LayerThumbnails(QObject* parent) : QObject(parent) {
    _maker.setMaxThreadCount(1);
    _timer.setSingleShot(true);
    connect(&_timer, &QTimer::timeout, this, &LayerThumbnails::go);
}

void LayerThumbnails::setView(QDDrawView* view) {
    if (_view)
        disconnect(_view, nullptr, this, nullptr);
    _view = view;
    _images.clear();
    if (!_view)
        return;
    _couldRedo = _view->canRedo();
    connect(_view, &QDDrawView::canvasChanged, this, &LayerThumbnails::noteChange);
    connect(_view, &QDDrawView::layersChanged, this, &LayerThumbnails::noteLayers);
    _names = namesOf(*_view);
    makeStale(true);
}

void LayerThumbnails::setLook(QSize box, qreal ratio) {
    if (box == _box && ratio == _ratio)
        return;
    _box = box;
    _ratio = ratio;
    makeStale(true);
}

void LayerThumbnails::setOn(bool on) {
    _on = on;
    if (_on && !_stale.empty())
        _timer.start(0);
}

QImage LayerThumbnails::of(int layer) const {
    const auto at = static_cast<std::size_t>(layer);
    return at < _images.size() ? _images[at] : QImage();
}

// ---- What is out of date

// Only a step of the history changes what is not painted on.
void LayerThumbnails::noteChange() {
    const bool canRedo = _view->canRedo();
    if (std::exchange(_couldRedo, canRedo) || canRedo)
        return makeStale(false);
    _stale.insert(_view->layers().active());
    _timer.start(kRest);
}

// Other names are other layers, which must not be seen with the pictures of those before.
void LayerThumbnails::noteLayers() {
    const QStringList names = namesOf(*_view);
    makeStale(std::exchange(_names, names) != names);
}

void LayerThumbnails::makeStale(bool soon) {
    ++_look;
    for (int i = 0; _view && i < _view->layers().count(); ++i)
        _stale.insert(i);
    _timer.start(soon ? 0 : kRest);
}

// ---- Making them

// One, the layer that is painted on before the others.
void LayerThumbnails::go() {
    if (!_view || !_on || _making || _stale.empty())
        return;
    if (_view->isDrawing())
        return _timer.start(kRest);
    auto layers = _view->layers();
    const int layer = _stale.contains(layers.active()) ? layers.active() : *_stale.begin();
    _stale.erase(layer);
    if (layer >= layers.count())
        return _timer.start(0);
    _making = true;
    const auto work = [this, layer, look = _look, image = layers.image(layer), box = _box, ratio = _ratio,
                       ground = finerChecker()] {
        const QImage made = image.isNull() ? image : thumbnailOf(image, box, ratio, ground);
        QMetaObject::invokeMethod(this, [this, layer, look, made] { take(layer, look, made); });
    };
    _maker.start(work);
}

void LayerThumbnails::take(int layer, int look, const QImage& image) {
    _making = false;
    if (!_stale.empty() && !_timer.isActive())
        _timer.start(0);
    if (look != _look || image.isNull())
        return;
    const auto at = static_cast<std::size_t>(layer);
    if (at >= _images.size())
        _images.resize(at + 1);
    _images[at] = image;
    emit changed(layer);
}

}  // namespace dabcanvas::dabpainter
