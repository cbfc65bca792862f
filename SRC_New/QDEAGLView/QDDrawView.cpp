// SPDX-License-Identifier: MIT
#include "QDEAGLView/QDDrawView.h"

#include <QPaintEvent>
#include <QPainter>
#include <QWidget>

#include "Canvas/CanvasLog.h"
#include "QDEAGLView/LeafDrawView.h"

namespace {

// So that colour properties take a QColor through setProperty() and style sheets, and give one.
void registerColorConversions() {
    static const bool registered = QMetaType::registerConverter<QColor, ESColor>() &&
                                   QMetaType::registerConverter<ESColor, QColor>(&ESColor::toQColor);
    Q_UNUSED(registered);
}

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
    registerColorConversions();
    std::unique_ptr<QDDrawView> view(new QDDrawView(frame, parent));
    return view->initCanvas(options) ? std::move(view) : nullptr;
}

QDDrawView::QDDrawView(const QRectF& frame, QWidget* parent) : QWidget(parent), QDDrawCanvas(frame) {
    setGeometry(frame.toRect());
    setAttribute(Qt::WA_AcceptTouchEvents);
}

QSize QDDrawView::sizeHint() const {
    return bufferSize().toSize();
}

void QDDrawView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setClipRegion(event->region());
    const QImage& canvas = displayImage();
    // Interpolating an unscaled picture would cost time and change nothing.
    painter.setRenderHint(QPainter::SmoothPixmapTransform, canvas.size() != size() * devicePixelRatioF());
    painter.drawImage(QRectF(rect()), canvas);
}

void QDDrawView::resizeEvent(QResizeEvent* event) {
    const MustStay stays(*this);
    QWidget::resizeEvent(event);
    updateScaleInfo();
    if (rect().isEmpty()) {
        forgetPointer();
    }
    if (_leafWidget != nullptr) {
        _leafWidget->setGeometry(rect());
    }
}

// The canvas owns it, which is destroyed before this widget's children are.
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

void QDDrawView::redisplayRect(const QRectF& viewRect) {
    // One more point on each side: a stretched picture is interpolated across the edge.
    update(viewRect.toAlignedRect().adjusted(-1, -1, 1, 1));
}
