// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QPolygonF>
#include <QTransform>
#include <optional>
#include <vector>

#include "Selection/FloatingPicture.h"

namespace dabcanvas::dabpainter {

// By what a floating picture is taken hold of.
struct Grip {
    enum Kind { move, stretch, turn };
    Kind kind = move;
    QPoint side;  // of its frame, as FloatingPicture::at() has them; of a stretch

    friend bool operator==(const Grip&, const Grip&) = default;
};

// The frame of a floating picture as it is seen, with its handles: in points of the view, whatever that makes of the canvas.
class FloatFrame {
public:
    FloatFrame(const FloatingPicture& picture, const QTransform& bufferToView);

    struct Handle {
        Grip grip;
        QPointF at;
    };
    const QPolygonF& outline() const { return _outline; }
    const std::vector<Handle>& handles() const { return _handles; }  // sides that would touch are left out
    QPointF stem() const { return _stem; }                           // where the turning handle is held
    std::optional<Grip> gripAt(QPointF at) const;

    static constexpr double kReach = 9;  // around a handle
    static constexpr double kTurnReach =
        26;  // outside of a corner, as the turning handle may be out of sight

private:
    QPolygonF _outline;
    std::vector<Handle> _handles;
    QPointF _stem;
};

// What becomes of a picture when its grip is pulled from one place to another, both in buffer pixels.
struct Pull {
    QPointF from, to;
    bool constrained = false;  // Shift: keeps the aspect, one direction, or turns by 15 degrees
    bool aboutCentre = false;
};
FloatingPicture pulled(const FloatingPicture& picture, const Grip& grip, const Pull& pull);

}  // namespace dabcanvas::dabpainter
