// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <optional>

#include "Brush/BrushModel.h"
#include "Canvas/PointerOptions.h"

class QDDrawView;

namespace dabcanvas::dabpainter {

// A sheet to try a curve on: what is drawn here comes through it, in the present brush.
class PressureTester : public QWidget {
    Q_OBJECT

public:
    explicit PressureTester(const BrushModel& brush, QWidget* parent = nullptr);
    void setCurve(const PressureCurve& curve);
    void clear();
    QDDrawView* view() const { return _view; }

    QSize sizeHint() const override { return {320, 240}; }
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void pressed(std::optional<float> raw);  // as the device tells it; none when it is lifted

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QDDrawView* _view = nullptr;  // null where no canvas can be had
};

}  // namespace dabcanvas::dabpainter
