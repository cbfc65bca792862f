// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QTimer>
#include <QWidget>
#include <vector>

#include "Brush/BrushModel.h"
#include "Presets/SampleWave.h"

namespace dabcanvas::dabpainter {

// A wave painted with the present brush, on a canvas of its own. It is painted again shortly after the brush
// has changed, a few samples at a time between other events; until it is done the one before stays in sight.
class SampleStroke : public QWidget {
    Q_OBJECT

public:
    explicit SampleStroke(const BrushModel& model, QWidget* parent = nullptr);
    QSize sizeHint() const override;

    // Whether what is shown is the present brush.
    bool isUpToDate() const { return !_wait.isActive() && !_paint.isActive(); }
    const QImage& image() const { return _shown; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void brushChanged(BrushKey key);
    void takeEverything();
    void begin();
    void paintSome();
    void abandon();

    const BrushModel& _model;
    SampleWave _wave;
    std::vector<BrushKey> _toTake;
    QTimer _wait;  // until the brush has come to rest
    QTimer _paint;
    QImage _shown;
};

}  // namespace dabcanvas::dabpainter
