// SPDX-License-Identifier: MIT
#include "Recognition/ShapePlaces.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <memory>

#include "Recognition/ShapeRuns.h"

namespace {

constexpr double kPi = 3.141592653589793;
// Gaps in an ellipse that are no gaps: a tenth of a unit where it is a hundred large.
constexpr double kNearlyWhole = 0.001;
// Rotations that the outlines refuse, and as much again for the rounding to a float.
constexpr double kUnrotated = 0.002;

using Places = std::vector<LPPosition>;
using Points = std::vector<ShapePoint>;

Points pointsOf(const ShapeRun& run) {
    const std::unique_ptr<LPPoint[], decltype(&std::free)> owned(run.points, &std::free);
    Points points(run.count);
    std::transform(run.points, run.points + run.count, points.begin(), [](const LPPoint& dab) {
        return ShapePoint{dab.position.x, dab.position.y};
    });
    return points;
}

double distance(const ShapePoint& a, const ShapePoint& b) {
    return std::hypot(b.x - a.x, b.y - a.y);
}

// Appends places that divide the way through the points evenly. Its last point is left to what follows.
void appendEvenly(const Points& points, double spacing, Places& places) {
    double length = 0;
    for (std::size_t i = 1; i < points.size(); ++i) {
        length += distance(points[i - 1], points[i]);
    }
    const double wanted =
        std::clamp(std::round(length / spacing), 1.0, static_cast<double>(dabcanvas::kMostShapePoints));
    const auto pieces = static_cast<std::size_t>(wanted);
    double walked = 0;
    std::size_t placed = 0;
    for (std::size_t i = 1; i < points.size(); ++i) {
        const ShapePoint& from = points[i - 1];
        const ShapePoint& to = points[i];
        const double step = distance(from, to);
        for (; placed < pieces; ++placed) {
            const double next = length * static_cast<double>(placed) / wanted;
            if (!(next < walked + step)) {
                break;
            }
            const double share = (next - walked) / step;
            places.push_back({static_cast<float>(from.x + (to.x - from.x) * share),
                              static_cast<float>(from.y + (to.y - from.y) * share)});
        }
        walked += step;
    }
}

void appendPoint(const ShapePoint& point, Places& places) {
    places.push_back({static_cast<float>(point.x), static_cast<float>(point.y)});
}

// Leg by leg, each with a dab at its beginning. Empty when a leg cannot be drawn.
Places alongCorners(Points corners, bool closed, double spacing) {
    if (closed) {
        corners.push_back(corners.front());
    }
    Places places;
    for (std::size_t i = 1; i < corners.size(); ++i) {
        Points leg = pointsOf(LineProcess::processLineWithType(3, &corners[i - 1], 1, 2));
        if (leg.empty()) {
            return {};
        }
        leg.push_back(corners[i]);
        appendEvenly(leg, spacing, places);
    }
    if (!closed) {
        appendPoint(corners.back(), places);
    }
    return places;
}

// An ellipse's or arc's numbers as the outlines take them.
struct Round {
    ShapePoint centre;
    double a, b, rotation, start, end;

    ShapePoint at(double t) const {
        const double x = a * std::cos(t);
        const double y = b * std::sin(t);
        const double sr = std::sin(rotation);
        const double cr = std::cos(rotation);
        return {centre.x + x * cr + y * sr, centre.y - x * sr + y * cr};
    }
    // Appends points from one angle to another.
    void append(double from, double to, int pieces, Points& points) const {
        for (int i = 0; i <= pieces; ++i) {
            points.push_back(at(from + (to - from) * i / pieces));
        }
    }
};

// Unrotated outlines are refused: the same ellipse, its axes exchanged, is turned by a quarter.
Round rounded(const ShapeRecord& shape) {
    Round round{shape.centre,     shape.a,       shape.b, std::fmod(shape.rotation, 2 * kPi),
                shape.startAngle, shape.endAngle};
    if (round.rotation < 0) {
        round.rotation += 2 * kPi;
    }
    if (round.rotation < kUnrotated) {
        std::swap(round.a, round.b);
        round.rotation += kPi / 2;
        round.start += kPi / 2;
        round.end += kPi / 2;
    }
    // A turn or more up: an arc's samples go by its end angle, which is limited to a turn.
    const double turns = 2 * kPi * (1 - std::floor(round.start / (2 * kPi)));
    round.start += turns;
    round.end += turns;
    return round;
}

// For outlines too small to have runs; those of a larger ellipse or arc have none when they are too long.
constexpr int kFewPieces = 16;
constexpr double kSmall = 4;

bool isTooLong(const Round& round, const Points& run) {
    return run.empty() && round.a + round.b > kSmall;
}

Places aroundEllipse(const Round& round, double spacing) {
    Points outline = pointsOf(LineProcess::processEllipsesWithCenter(
        round.centre, static_cast<float>(round.a), static_cast<float>(round.b),
        static_cast<float>(round.rotation), 1));
    if (isTooLong(round, outline)) {
        return {};
    }
    if (outline.empty()) {
        round.append(0, 2 * kPi, kFewPieces, outline);
    } else {
        outline.push_back(outline.front());
    }
    Places places;
    appendEvenly(outline, spacing, places);
    return places;
}

Places alongArc(const Round& round, double spacing) {
    Points outline = pointsOf(
        LineProcess::processArcWithCenter(round.centre, static_cast<float>(round.a),
                                          static_cast<float>(round.b), static_cast<float>(round.rotation),
                                          static_cast<float>(round.start), static_cast<float>(round.end), 1));
    if (isTooLong(round, outline)) {
        return {};
    }
    // A run stops short of its last sample, which is one short of the end.
    const double samples = std::floor((round.a + round.b) * kPi / 2);
    const double left = outline.empty() ? 1 : 1 / samples;
    round.append(round.end - (round.end - round.start) * left, round.end, kFewPieces, outline);
    Places places;
    appendEvenly(outline, spacing, places);
    appendPoint(outline.back(), places);
    return places;
}

bool isDrawableRound(const ShapeRecord& shape) {
    return std::isfinite(shape.centre.x) && std::isfinite(shape.centre.y) && shape.a > 0 && shape.b > 0 &&
           shape.a + shape.b < static_cast<double>(dabcanvas::kMostShapePoints) &&
           std::isfinite(shape.rotation);
}

bool isDrawable(const ShapeRecord& shape) {
    const auto fits = [&](std::size_t least, std::size_t most) {
        return shape.corners.size() >= least && shape.corners.size() <= most &&
               std::all_of(shape.corners.begin(), shape.corners.end(), [](const ShapePoint& corner) {
                   return std::isfinite(corner.x) && std::isfinite(corner.y);
               });
    };
    switch (shape.kind) {
        case ShapeKind::none:
            break;
        case ShapeKind::line:
            return fits(2, 2);
        case ShapeKind::foldLine:
            return fits(2, dabcanvas::kMostShapePoints);
        case ShapeKind::triangle:
            return fits(3, 3);
        case ShapeKind::rectangle:
        case ShapeKind::parallelogram:
        case ShapeKind::arrow:
            return fits(4, 4);
        case ShapeKind::ellipse:
            return isDrawableRound(shape);
        case ShapeKind::arc:
            return isDrawableRound(shape) && std::isfinite(shape.startAngle) &&
                   std::isfinite(shape.endAngle) && shape.endAngle > shape.startAngle;
    }
    return false;  // none, or a number that is no kind
}

}  // namespace

std::vector<std::vector<LPPosition>> placesOnShape(const ShapeRecord& shape, double spacing) {
    if (!isDrawable(shape) || !(spacing > 0) || !std::isfinite(spacing)) {
        return {};
    }
    std::vector<Places> strokes;
    if (shape.kind == ShapeKind::arrow) {
        const ShapePoint& tip = shape.corners[1];
        strokes.push_back(alongCorners({shape.corners[0], tip}, false, spacing));
        strokes.push_back(alongCorners({shape.corners[2], tip, shape.corners[3]}, false, spacing));
        if (strokes.front().size() > 1) {
            strokes.front().pop_back();  // the head has a dab at the tip
        }
    } else if (!shape.isRound()) {
        strokes.push_back(alongCorners(shape.corners, shape.isClosed(), spacing));
    } else {
        const Round round = rounded(shape);
        const bool whole =
            shape.kind == ShapeKind::ellipse || round.end - round.start > 2 * kPi - kNearlyWhole;
        strokes.push_back(whole ? aroundEllipse(round, spacing) : alongArc(round, spacing));
    }
    const bool complete =
        std::none_of(strokes.begin(), strokes.end(), [](const Places& places) { return places.empty(); });
    return complete ? strokes : std::vector<Places>();
}
