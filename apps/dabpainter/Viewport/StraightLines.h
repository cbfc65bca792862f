// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <optional>

class QDDrawView;
class QSinglePointEvent;

namespace dabcanvas::dabpainter {

class CanvasViewport;

// With Shift, a press draws a straight line from where the last stroke ended. It is shown while the button or the pen is
// down, and drawn with the firmest pressure of that time when it goes up; Escape gives it up.
class StraightLines : public QWidget {
    Q_OBJECT

public:
    explicit StraightLines(CanvasViewport& viewport);

    // To be called with every new view.
    void watchView();
    // Off while the pointer draws nothing.
    void setOn(bool on) { _on = on; }

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool filterPress(const QSinglePointEvent& event, float pressure);
    void draw(QDDrawView& view) const;
    void finish();

    CanvasViewport& _viewport;
    std::optional<QPointF> _last;  // end, in buffer pixels
    struct Line {
        QPointF to;  // in the viewport's points
        float pressure;
    };
    std::optional<Line> _line;
    bool _on = true;
    bool _givenUp = false;  // and the release is still to come
};

}  // namespace dabcanvas::dabpainter
