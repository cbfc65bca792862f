// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <optional>

class QTouchEvent;

namespace dabcanvas::dabpainter {

class ColorPicker;

inline constexpr double kTap = 12;  // points that a finger may slip

// One finger that picks a colour while the picker is on. Where fingers paint it does what the mouse does; where they move the
// canvas, and palms rest on it, a tap picks. A second finger gives it up.
class FingerPick {
public:
    explicit FingerPick(ColorPicker& picker) : _picker(picker) {}

    // Whether nobody else is to hear of the event. at: of the first finger, in the viewport's points.
    bool filter(const QTouchEvent& event, QPointF at, bool fingersPaint);
    // It was a palm's.
    void forget() { _from.reset(); }

private:
    ColorPicker& _picker;
    std::optional<QPointF> _from;
};

}  // namespace dabcanvas::dabpainter
