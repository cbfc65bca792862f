// SPDX-License-Identifier: MIT
#pragma once

#include <QSlider>
#include <array>
#include <functional>

class QSpinBox;

namespace dabcanvas::dabpainter {

class ColorChoice;

// A slider whose groove shows what moving it gives.
class GradientSlider : public QSlider {
    Q_OBJECT

public:
    explicit GradientSlider(int most, QWidget* parent = nullptr);
    // The colour at each share of the way, 0..1.
    void setRamp(std::function<QColor(double)> ramp);
    QSize sizeHint() const override { return QSize(120, 20); }
    QSize minimumSizeHint() const override { return QSize(40, 18); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QRectF groove() const;
    int valueAt(double x) const;

    std::function<QColor(double)> _ramp;
};

// Lightness, chroma and hue, each as a slider with a number.
class ColorSliders : public QWidget {
    Q_OBJECT

public:
    explicit ColorSliders(ColorChoice& choice, QWidget* parent = nullptr);
    struct Part {
        GradientSlider* slider;
        QSpinBox* box;
    };
    const std::array<Part, 3>& parts() const { return _parts; }

private:
    Part addPart(int row, const QString& name, int most, int steps, const QString& suffix);
    void take(int part, double share);
    void showChoice();

    ColorChoice& _choice;
    std::array<Part, 3> _parts;
};

}  // namespace dabcanvas::dabpainter
