// SPDX-License-Identifier: MIT
#include "Selection/FloatFrame.h"

#include <QLineF>
#include <cmath>
#include <numbers>

namespace dabcanvas::dabpainter {

namespace {

constexpr double kStem = 28;       // from the frame to the turning handle
constexpr double kLeastSide = 40;  // with a handle in its middle
constexpr double kTurnStep = std::numbers::pi / 12;

double angleOf(QPointF way) {
    return std::atan2(way.y(), way.x());
}

}  // namespace

FloatFrame::FloatFrame(const FloatingPicture& picture, const QTransform& bufferToView) {
    const auto seen = [&](QPointF side) { return bufferToView.map(picture.at(side)); };
    _outline << seen({-1, -1}) << seen({1, -1}) << seen({1, 1}) << seen({-1, 1});
    const bool isWide = QLineF(_outline[0], _outline[1]).length() >= kLeastSide;
    const bool isHigh = QLineF(_outline[1], _outline[2]).length() >= kLeastSide;
    // Off the upper side, and above it as long as that has no direction.
    _stem = seen({0, -1});
    const QPointF centre = seen({0, 0});
    const double length = QLineF(centre, _stem).length();
    const QPointF up = length > 0 ? (_stem - centre) / length : QPointF(0, -1);
    for (int y = -1; y <= 1; ++y) {
        for (int x = -1; x <= 1; ++x) {
            const bool isCorner = x != 0 && y != 0;
            if (isCorner || (x != 0 && isHigh) || (y != 0 && isWide))
                _handles.push_back({{Grip::stretch, QPoint(x, y)}, seen(QPointF(x, y))});
        }
    }
    _handles.push_back({{Grip::turn, QPoint()}, _stem + up * kStem});
}

std::optional<Grip> FloatFrame::gripAt(QPointF at) const {
    std::optional<Grip> nearest;
    double distance = kReach;
    const bool isInside = _outline.containsPoint(at, Qt::OddEvenFill);
    for (const Handle& handle : _handles) {
        if (const double here = QLineF(handle.at, at).length(); here < distance) {
            distance = here;
            nearest = handle.grip;
        }
    }
    // A small picture is to be moved, too: its middle is no handle's.
    const QPointF centre = (_outline[0] + _outline[2]) / 2;
    const bool isMiddle = isInside && QLineF(centre, at).length() < distance;
    if (nearest && !isMiddle)
        return nearest;
    if (isInside)
        return Grip();
    for (const QPointF& corner : _outline) {
        if (QLineF(corner, at).length() < kTurnReach)
            return Grip{Grip::turn, {}};
    }
    return std::nullopt;
}

FloatingPicture pulled(const FloatingPicture& picture, const Grip& grip, const Pull& pull) {
    FloatingPicture result = picture;
    QPointF way = pull.to - pull.from;
    switch (grip.kind) {
        case Grip::move:
            if (pull.constrained)
                (std::abs(way.x()) < std::abs(way.y()) ? way.rx() : way.ry()) = 0;
            result.moveBy(way);
            break;
        case Grip::stretch:
            result.stretch(grip.side, picture.at(grip.side) + way,
                           {.keepsAspect = pull.constrained, .aboutCentre = pull.aboutCentre});
            break;
        case Grip::turn: {
            const QPointF centre = picture.centre();
            double radian = picture.radian() + angleOf(pull.to - centre) - angleOf(pull.from - centre);
            if (pull.constrained)
                radian = std::round(radian / kTurnStep) * kTurnStep;
            result.turnTo(radian);
            break;
        }
    }
    return result;
}

}  // namespace dabcanvas::dabpainter
