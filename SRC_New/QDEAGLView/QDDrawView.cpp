// SPDX-License-Identifier: MIT
#include "QDEAGLView/QDDrawView.h"

#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QWidget>

#include "Canvas/CanvasLog.h"
#include "Display/DevicePointers.h"
#include "QDEAGLView/LeafDrawView.h"

namespace {

constexpr QRectF kUnseen(0, 0, 640, 480);  // until a view is shown

bool isUsable(double side) {
    return side >= 1 && side <= QWIDGETSIZE_MAX;
}

}  // namespace

std::unique_ptr<QDDrawView> QDDrawView::initWithFrame(const QRectF& frame, QWidget* parent,
                                                      const dabcanvas::SurfaceOptions& options) {
    if (!isUsable(frame.width()) || !isUsable(frame.height())) {
        qCWarning(lcDabcanvas, "a view cannot be %g x %g view points large", frame.width(), frame.height());
        return nullptr;
    }
    std::unique_ptr<QDDrawView> view(new QDDrawView(frame, parent));
    if (!view->initCanvas(options)) {
        return nullptr;
    }
    view->viewWasResized();
    return view;
}

QDDrawView::QDDrawView(const QRectF& frame, QWidget* parent)
    : QWidget(parent), CanvasDisplay(QRectF(QPointF(), frame.toRect().size())) {
    setGeometry(frame.toRect());
    setAttribute(Qt::WA_AcceptTouchEvents);
}

QDDrawView::QDDrawView(QWidget* parent, const dabcanvas::SurfaceOptions& options)
    : QDDrawView(kUnseen, parent) {
    initCanvasOrSayWhy(options);
    viewWasResized();
    _takesViewSize = problem().isEmpty();
}

QDDrawView::~QDDrawView() = default;

QSize QDDrawView::sizeHint() const {
    return (_takesViewSize ? kUnseen.size() : bufferSize()).toSize();
}

void QDDrawView::showEvent(QShowEvent* event) {
    const MustStay stays(*this);
    if (_takesViewSize) {
        _takesViewSize = false;
        if (!isModified()) {
            setCanvasArea(QRect(QPoint(), (QSizeF(size()) * devicePixelRatioF()).toSize()));
            if (canUndo()) {
                resetUndoManager();  // it is as if made so
            }
            setModified(false);
        }
        updateGeometry();
    }
    QWidget::showEvent(event);
    viewWasResized();  // a screen of another density
}

void QDDrawView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setClipRegion(event->region());
    paintCanvas(painter, event->rect());
}

void QDDrawView::resizeEvent(QResizeEvent* event) {
    const MustStay stays(*this);
    QWidget::resizeEvent(event);
    viewWasResized();
    if (rect().isEmpty()) {
        pointers().forget();
    }
    if (_leafWidget != nullptr) {
        _leafWidget->setGeometry(rect());
    }
}

void QDDrawView::updateView(const QRectF& viewRect) {
    update((viewRect & QRectF(rect())).toAlignedRect());
}

void QDDrawView::viewDidChange() {
    if (_leafWidget != nullptr) {
        _leafWidget->setTransform(bufferToView());
    }
    emit viewChanged();
}

void QDDrawView::layersDidChange() {
    emit layersChanged();
}

void QDDrawView::canvasSizeDidChange() {
    const QPointer<QDDrawView> alive(this);
    CanvasDisplay::canvasSizeDidChange();
    if (!alive) {
        return;
    }
    updateGeometry();
    emit canvasSizeChanged();
}

void QDDrawView::pictureDidChange(const QRect& bufferPixels) {
    CanvasDisplay::pictureDidChange(bufferPixels);
    emit canvasChanged(bufferPixels);
}

void QDDrawView::contextWasLost() {
    CanvasDisplay::contextWasLost();
    emit contextLost();
}

// ---- The live preview, which the canvas owns: it is destroyed before this widget's children are

std::unique_ptr<LeafDrawing> QDDrawView::makeLeafDrawView(const QRectF& frame) {
    std::unique_ptr<LeafDrawView> leaf = LeafDrawView::initWithFrame(frame, this);
    if (!leaf) {
        return QDDrawCanvas::makeLeafDrawView(frame);
    }
    _leafWidget = leaf.get();
    leaf->setGeometry(rect());
    leaf->hide();
    return leaf;
}

void QDDrawView::showLeafDrawView(bool shown) {
    if (_leafWidget != nullptr) {
        _leafWidget->setVisible(shown);
    }
}
