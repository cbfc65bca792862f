// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include "Documents/CanvasPlan.h"

class QComboBox;
class QLabel;
class QPushButton;
class QSpinBox;

namespace dabcanvas::dabpainter {

class SwatchButton;

class NewCanvasDialog : public QDialog {
    Q_OBJECT

public:
    explicit NewCanvasDialog(const CanvasPlan& plan, QWidget* parent = nullptr);
    CanvasPlan plan() const;

private:
    void refresh();

    QSpinBox *_width, *_height;
    QComboBox* _background;
    SwatchButton* _color;
    QLabel* _note;
    QPushButton* _create;
};

}  // namespace dabcanvas::dabpainter
