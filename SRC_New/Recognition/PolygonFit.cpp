// SPDX-License-Identifier: MIT
#include "Recognition/PolygonFit.h"

#include "Recognition/PathGeometry.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

namespace dabcanvas {

namespace {
constexpr double kTrim = 0.12;        // of a leg at each end: corners are rounded there
constexpr double kLeastTurn = 0.17;   // radians; lines that turn less have no sure crossing
constexpr double kCornerReach = 0.3;  // diagonals that a crossing may lie from where the path turns
constexpr double kSpike = 0.02;       // diagonals that a path may turn outside the crossing

// The line along the middle part of a leg, directed as the leg is drawn.
StraightLine trimmedLine(const PathMoments& moments, const Path& path, int first, int last) {
    const int trim = static_cast<int>((last - first) * kTrim);
    StraightLine line = moments.line(first + trim, last - trim);
    if (line.direction.dot(path[at(last)] - path[at(first)]) < 0) {
        line.direction = -line.direction;
    }
    return line;
}

void measure(PolygonFit& fit, const Path& path, bool closed) {
    double sum = 0;
    for (const Vec2& point : path) {
        const double nearest = distanceToOutline(point, fit.corners, closed);
        sum += nearest * nearest;
        fit.furthest = std::max(fit.furthest, nearest);
    }
    fit.rms = std::sqrt(sum / static_cast<double>(path.size()));
}

// The sides' lines, given where the stroke breaks. With one leg more than corners the stroke begins on a side,
// which its first and last leg share.
std::optional<PolygonFit> closedAlong(const Path& path, const LegFit& legs, const std::vector<int>& breaks,
                                      int corners) {
    const int count = static_cast<int>(breaks.size()) - 1;
    PolygonFit fit;
    std::vector<StraightLine> lines;
    for (int i = 0; i < corners; ++i) {
        lines.push_back(trimmedLine(legs.moments(), path, breaks[at(i)], breaks[at(i + 1)]));
        fit.sides.push_back({breaks[at(i)], breaks[at(i + 1)]});
    }
    std::vector<Vec2> turns;  // where the path turns from the side before into side i
    for (int i = 0; i < corners; ++i) {
        turns.push_back(path[at(breaks[at(i)])]);
    }
    if (count == corners) {
        turns[0] = (path.front() + path.back()) / 2;
    } else {
        const int first = breaks[at(count - 1)];
        const int last = breaks[at(count)];
        const StraightLine ending = trimmedLine(legs.moments(), path, first, last);
        turns[0] = path[at(first)];
        fit.sides[0].againFirst = first;
        fit.sides[0].againLast = last;
        // Of both pieces, the longer knows the direction better; their middles settle it when both are long.
        const double opening = (path[at(breaks[1])] - path[0]).norm();
        const double closing = (path[at(last)] - path[at(first)]).norm();
        if (ending.direction.dot(lines[0].direction) < 0.5 && std::min(opening, closing) > 0.1) {
            return {};  // they turn: no one side
        }
        if (std::min(opening, closing) > 0.25 * std::max(opening, closing)) {
            const Vec2 apart = lines[0].point - ending.point;
            if (apart.norm() > 1e-6) {
                lines[0].point = (lines[0].point * opening + ending.point * closing) / (opening + closing);
                lines[0].direction = apart.normalized();
            }
        } else if (closing > opening) {
            lines[0] = ending;
        }
    }
    for (int i = 0; i < corners; ++i) {
        const std::optional<Vec2> corner = crossing(lines[at((i + corners - 1) % corners)], lines[at(i)]);
        if (!corner || (*corner - turns[at(i)]).norm() > kCornerReach) {
            return {};
        }
        fit.corners.push_back(*corner);
    }
    measure(fit, path, true);
    return fit;
}
}  // namespace

std::optional<Vec2> crossing(const StraightLine& one, const StraightLine& other) {
    const double sine = one.direction.x() * other.direction.y() - one.direction.y() * other.direction.x();
    if (std::abs(sine) < std::sin(kLeastTurn)) {
        return {};
    }
    const Vec2 apart = other.point - one.point;
    const double along = (apart.x() * other.direction.y() - apart.y() * other.direction.x()) / sine;
    return one.point + along * one.direction;
}

double distanceToOutline(const Vec2& point, const std::vector<Vec2>& corners, bool closed) {
    const std::size_t sides = closed ? corners.size() : corners.size() - 1;
    double nearest = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < sides; ++i) {
        const Vec2& from = corners[i];
        const Vec2 side = corners[(i + 1) % corners.size()] - from;
        const double squared = side.squaredNorm();
        const double along = squared > 0 ? std::clamp((point - from).dot(side) / squared, 0.0, 1.0) : 0;
        nearest = std::min(nearest, (point - from - along * side).norm());
    }
    return nearest;
}

std::optional<PolygonFit> fitPolygon(const Path& path, const LegFit& legs, int corners) {
    std::optional<PolygonFit> best;
    for (const int count : {corners, corners + 1}) {
        if (count > LegFit::kMostLegs) {
            break;
        }
        std::optional<PolygonFit> fit = closedAlong(path, legs, legs.breaks(count), corners);
        if (fit && (!best || fit->rms < best->rms)) {
            best = std::move(fit);
        }
    }
    return best;
}

PolygonFit fitPolyline(const Path& path, const LegFit& legs, int count) {
    const std::vector<int> breaks = legs.breaks(count);
    PolygonFit fit;
    std::vector<StraightLine> lines;
    for (int i = 0; i < count; ++i) {
        lines.push_back(trimmedLine(legs.moments(), path, breaks[at(i)], breaks[at(i + 1)]));
        fit.sides.push_back({breaks[at(i)], breaks[at(i + 1)]});
    }
    fit.corners.push_back(lines.front().foot(path.front()));
    for (int i = 1; i < count; ++i) {
        const Vec2 turn = path[at(breaks[at(i)])];
        const std::optional<Vec2> corner = crossing(lines[at(i - 1)], lines[at(i)]);
        // Rounded corners turn within the crossing; where bent legs meet in a spike, its end was meant.
        const auto isSpike = [&] {
            const Vec2 outward = lines[at(i - 1)].direction - lines[at(i)].direction;
            return (turn - *corner).dot(outward.normalized()) > kSpike;
        };
        const bool meet = corner && (*corner - turn).norm() < kCornerReach / 2 && !isSpike();
        fit.corners.push_back(meet ? *corner : turn);
    }
    fit.corners.push_back(lines.back().foot(path.back()));
    measure(fit, path, false);
    return fit;
}

}  // namespace dabcanvas
