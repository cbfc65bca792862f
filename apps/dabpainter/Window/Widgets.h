// SPDX-License-Identifier: MIT
// Small widgets of the brush panel.
#pragma once

#include <QBrush>
#include <QColor>
#include <QImage>
#include <QPolygonF>
#include <QToolButton>
#include <QWidget>

#include "Brush/BrushPresentation.h"

class QDoubleSpinBox;
class QSlider;

namespace dabcanvas::dabpainter {

// What shows through transparent pictures.
QBrush checkerBrush();

// In a square of 16 x 16.
QPolygonF starPolygon();

// Scrolling over a field of a long panel must not change it: the wheel counts only once it was clicked.
void guardFromWheel(QWidget* field);

// A field for a number, as a presentation has it; in it a point and a comma are both the decimal sign.
QDoubleSpinBox* makeNumberBox(const BrushPresentation& shown, QWidget* parent = nullptr);

enum class Glyph {
    reset,
    swap,
    eyedropper,
    add,
    menu,
    copy,
    up,
    down,
    merge,
    remove,
    wheel,
    sliders,
    palette,
    star
};

// A flat button with a sign drawn in the palette's colours.
class GlyphButton : public QToolButton {
    Q_OBJECT

public:
    GlyphButton(Glyph glyph, const QString& toolTip, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Glyph _glyph;
};

class SwatchButton : public QToolButton {
    Q_OBJECT

public:
    explicit SwatchButton(QWidget* parent = nullptr);
    void setColor(const QColor& color);
    QColor color() const { return _color; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor _color;
};

// A slider and a spin box for one number, as a presentation has it; numbers come and go as they are stored.
class NumberField : public QWidget {
    Q_OBJECT

public:
    explicit NumberField(const BrushPresentation& shown, QWidget* parent = nullptr);
    void setValue(double stored);  // does not report back

signals:
    void edited(double stored);

private:
    int sliderPosition(double number) const;
    double numberAt(int position) const;

    BrushPresentation _shown;
    QSlider* _slider;
    QDoubleSpinBox* _box;
};

// Pictures side by side, as many lines as they need.
class ThumbnailStrip : public QWidget {
    Q_OBJECT

public:
    explicit ThumbnailStrip(QWidget* parent = nullptr);
    void setImages(const QList<QImage>& images);
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int columns(int width) const;
    QList<QImage> _thumbnails;
};

}  // namespace dabcanvas::dabpainter
