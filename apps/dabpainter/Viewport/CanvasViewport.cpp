// SPDX-License-Identifier: MIT
#include "Viewport/CanvasViewport.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QLineEdit>
#include <algorithm>
#include <utility>

#include "QDEAGLView/QDDrawView.h"
#include "Window/Widgets.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr double kFitMargin = 16;

}  // namespace

CanvasViewport::CanvasViewport(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Canvas"));
    setMinimumSize(200, 150);
}

// What stands on it and hears all events goes while this is still what they ask, those first that know of the others.
CanvasViewport::~CanvasViewport() {
    dropView();
    while (!children().isEmpty())
        delete children().last();
}

// Nobody who hears that it goes (the pointer leaves it, the focus) may ask it for anything any more.
void CanvasViewport::dropView() {
    delete std::exchange(_view, nullptr);
}

void CanvasViewport::setView(std::unique_ptr<QDDrawView> view) {
    dropView();
    _view = view.release();
    _view->setParent(this);
    _view->setNavigable(true);
    setGround();
    _view->setFit(ViewFit::free);
    _view->setGeometry(rect());
    _view->lower();
    _view->show();
    connect(_view, &QDDrawView::viewChanged, this, [this] { emit zoomChanged(zoom()); });
    connect(_view, &QDDrawView::canvasSizeChanged, this, &CanvasViewport::fit);
    fit();
}

double CanvasViewport::zoom() const {
    return _view ? _view->zoom() : 1;
}

double CanvasViewport::scale() const {
    return zoom() / devicePixelRatioF();
}

QPointF CanvasViewport::bufferPoint(QPointF at) const {
    return _view ? _view->viewToBuffer().map(at) : QPointF();
}

QPointF CanvasViewport::pointOfBuffer(QPointF bufferPoint) const {
    return _view ? _view->bufferToView().map(bufferPoint) : QPointF();
}

void CanvasViewport::zoomAbout(double zoom, QPointF anchor) {
    if (_view)
        _view->zoomAbout(zoom, anchor);
}

void CanvasViewport::fit() {
    if (!_view)
        return;
    _view->setViewRotation(0);
    const QSizeF room = QSizeF(size()) - QSizeF(2 * kFitMargin, 2 * kFitMargin);
    const QSizeF canvas =
        _view->bufferToView().mapRect(QRectF(QPointF(), _view->bufferSize())).size() / zoom();
    setZoom(std::min({1.0, room.width() / canvas.width(), room.height() / canvas.height()}));
    _view->setViewCentre({_view->bufferSize().width() / 2, _view->bufferSize().height() / 2});
    _fitZoom = zoom();
}

bool CanvasViewport::takesKeys() const {
    const QWidget* focus = QApplication::focusWidget();
    const bool isTyping =
        qobject_cast<const QLineEdit*>(focus) || qobject_cast<const QAbstractSpinBox*>(focus);
    return !isTyping && !QApplication::activeModalWidget() && !QApplication::activePopupWidget() &&
           (underMouse() || hasFocus());
}

void CanvasViewport::pan(QPointF by) {
    if (_view)
        _view->panBy(by);
}

void CanvasViewport::turnBy(double radians) {
    if (_view)
        _view->setViewRotation(_view->viewRotation() + radians);
}

void CanvasViewport::turnUpright() {
    if (_view)
        _view->setViewRotation(0);
}

bool CanvasViewport::isMirrored() const {
    return _view && _view->isViewMirrored();
}

void CanvasViewport::setMirrored(bool mirrored) {
    if (_view)
        _view->setViewMirrored(mirrored);
}

void CanvasViewport::setGround() {
    if (_view)
        _view->setGround(checkerBrush(), palette().color(QPalette::Window).darker(130));
}

void CanvasViewport::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange)
        setGround();
    QWidget::changeEvent(event);
}

void CanvasViewport::resizeEvent(QResizeEvent*) {
    if (!_view)
        return;
    const bool isFitted = zoom() == _fitZoom && _view->viewRotation() == 0;
    _view->setGeometry(rect());
    if (isFitted)
        fit();
}

void letEventsThrough(QWidget& pane) {
    pane.setAttribute(Qt::WA_TransparentForMouseEvents);
    pane.setAttribute(Qt::WA_NoSystemBackground);
    pane.setFocusPolicy(Qt::NoFocus);
}

}  // namespace dabcanvas::dabpainter
