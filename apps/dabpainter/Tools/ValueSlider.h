// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QSlider>

#include "Brush/BrushPresentation.h"

class QDoubleSpinBox;

namespace dabcanvas::dabpainter {

// A slim slider that says within itself what it is of and how much: dragged, scrolled, moved by the keys, or typed after a
// double click, F2 or Enter. Numbers come and go as they are stored.
class ValueSlider : public QSlider {
    Q_OBJECT

public:
    // logarithmic: every step is the same part of the value, from the least one above 0.
    ValueSlider(const BrushPresentation& shown, bool logarithmic, QWidget* parent = nullptr);

    void setStored(double stored);  // does not report back
    double stored() const { return _number / _shown.scale; }
    QString numberText() const;
    double numberAt(int position) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void edited(double stored);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int positionOf(double number) const;
    void moveTo(double x);
    void setNumber(double number);
    void beginTyping();
    void endTyping(bool takes);

    const BrushPresentation _shown;
    const bool _logarithmic;
    double _number = 0, _beforePress = 0, _typedFrom = 0;
    QDoubleSpinBox* _field = nullptr;  // while a number is typed
    QPointer<QWidget> _focusBefore;
};

}  // namespace dabcanvas::dabpainter
