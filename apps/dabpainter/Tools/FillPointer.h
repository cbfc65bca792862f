// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QWidget>

namespace dabcanvas::dabpainter {

// While it is on, a press of mouse or pen on the canvas is a place to fill instead of the beginning of a stroke.
class FillPointer : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;
    // The widget that shows the canvas; not owned.
    void watch(QWidget* view);
    void setOn(bool on) { _on = on; }

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void fillAt(QPointF viewPoint);

private:
    QPointer<QWidget> _view;
    bool _on = false;
};

}  // namespace dabcanvas::dabpainter
