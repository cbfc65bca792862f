// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QTimer>
#include <QWidget>
#include <memory>
#include <vector>

#include "BrushModel.h"

class QDDrawCanvas;

namespace dabcanvas::dabpainter {

// A wave painted with the present brush, on a canvas of its own. It is painted again shortly after the brush
// has changed, a few samples at a time between other events; until it is done the one before stays in sight.
class SampleStroke : public QWidget {
    Q_OBJECT

public:
    explicit SampleStroke(const BrushModel& model, QWidget* parent = nullptr);
    ~SampleStroke() override;
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
    void begin();
    bool prepareCanvas();
    void takeBrush();
    void paintBackground();
    void paintSome();
    void enterSample(int i);
    void abandon();

    const BrushModel& _model;
    std::unique_ptr<QDDrawCanvas> _canvas;
    bool _unavailable = false;
    std::vector<BrushKey> _toTake;
    int _next = 0;  // sample of the wave; 0 while none is being painted
    QTimer _wait;   // until the brush has come to rest
    QTimer _paint;
    QImage _shown;
};

}  // namespace dabcanvas::dabpainter
