// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <array>

#include "Documents/CanvasArea.h"

class QButtonGroup;
class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QPushButton;

namespace dabcanvas::dabpainter {

// Asks for another size of a canvas, in pixels or in parts of the present one, and for what keeps its place then.
class CanvasSizeDialog : public QDialog {
    Q_OBJECT

public:
    explicit CanvasSizeDialog(const QSize& now, QWidget* parent = nullptr);
    QRect area() const;  // of the present canvas

private:
    QLayout* makeSides();
    QWidget* makeAnchors();
    QSize size() const;
    bool isInPercent() const;
    void takeUnit();
    void refresh();

    const QSize _now;
    QDoubleSpinBox *_width, *_height;
    QComboBox* _unit;
    QButtonGroup* _anchor;
    QLabel* _note;
    QPushButton* _accept;
};

}  // namespace dabcanvas::dabpainter
