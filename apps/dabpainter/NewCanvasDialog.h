// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QDialog>
#include <QSize>

class QComboBox;
class QLabel;
class QPushButton;
class QSpinBox;

namespace dabcanvas::dabpainter {

class SwatchButton;

// What a canvas is to begin with.
struct CanvasPlan {
    QSize size{1600, 1000};         // pixels
    QColor background = Qt::white;  // transparent: nothing
};

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
