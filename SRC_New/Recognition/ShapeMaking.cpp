// SPDX-License-Identifier: MIT
#include "Recognition/ShapeMaking.h"

#include "Recognition/PathGeometry.h"
#include "Recognition/ShapeTidying.h"

#include <Eigen/Eigenvalues>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <utility>

namespace dabcanvas {

namespace {
using namespace ShapeTidying;
constexpr double kPi = std::numbers::pi;
using Corners = std::vector<Vec2>;

double angleOf(const Vec2& direction) {
    return std::atan2(direction.y(), direction.x());
}

Vec2 along(double angle) {
    return {std::cos(angle), std::sin(angle)};
}

// The multiple of `step` when it is near.
double levelled(double angle, double step, double tolerance) {
    const double level = std::round(angle / step) * step;
    return std::abs(angle - level) <= tolerance ? level : angle;
}

double meanDistance(const Path& path, const Corners& corners, bool closed) {
    double sum = 0;
    for (const Vec2& point : path) {
        sum += distanceToOutline(point, corners, closed);
    }
    return sum / static_cast<double>(path.size());
}

// The tidy corners, unless they stray from what was drawn.
const Corners& nearEnough(const Corners& drawn, const Corners& tidy, const Path& path, bool closed) {
    for (const Vec2& corner : tidy) {
        if (!corner.allFinite()) {
            return drawn;
        }
    }
    return meanDistance(path, tidy, closed) <= meanDistance(path, drawn, closed) + kMostMoved ? tidy : drawn;
}

// The middle of a side's points and how they scatter around it; corners, which are rounded, left out.
struct SideCloud {
    Vec2 middle = Vec2::Zero();
    Eigen::Matrix2d scatter = Eigen::Matrix2d::Zero();
};

SideCloud cloudOf(const Path& path, const PolygonFit::Side& side) {
    Corners points;
    const auto take = [&](int first, int last) {
        const int trim = (last - first) / 8;
        for (int i = first + trim; i <= last - trim; ++i) {
            points.push_back(path[at(i)]);
        }
    };
    const int whole = side.last - side.first;
    const int again = side.againLast - side.againFirst;
    // Of a side drawn in two pieces a short one says little about its direction.
    if (again < 4 * whole) {
        take(side.first, side.last);
    }
    if (again > 0 && whole < 4 * again) {
        take(side.againFirst, side.againLast);
    }
    SideCloud cloud;
    for (const Vec2& point : points) {
        cloud.middle += point;
    }
    cloud.middle /= static_cast<double>(points.size());
    for (const Vec2& point : points) {
        cloud.scatter += (point - cloud.middle) * (point - cloud.middle).transpose();
    }
    return cloud;
}

double directionOf(const Eigen::Matrix2d& scatter) {
    return std::atan2(2 * scatter(0, 1), scatter(0, 0) - scatter(1, 1)) / 2;
}

Eigen::Matrix2d quarterTurned(const Eigen::Matrix2d& scatter) {
    Eigen::Matrix2d turned;
    turned << scatter(1, 1), -scatter(0, 1), -scatter(0, 1), scatter(0, 0);
    return turned;
}

Corners crossings(const std::vector<StraightLine>& lines) {
    Corners corners;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::optional<Vec2> corner = crossing(lines[(i + lines.size() - 1) % lines.size()], lines[i]);
        if (!corner) {
            return {};
        }
        corners.push_back(*corner);
    }
    return corners;
}

// A quadrangle whose sides keep two directions, and its middle, when both pairs of sides get the same length.
Corners withEqualSides(const Corners& corners) {
    const Vec2 middle = (corners[0] + corners[1] + corners[2] + corners[3]) / 4;
    const Vec2 one = (corners[1] - corners[0] + corners[2] - corners[3]) / 2;
    const Vec2 other = (corners[2] - corners[1] + corners[3] - corners[0]) / 2;
    const double side = (one.norm() + other.norm()) / 2;
    const Vec2 u = one.normalized() * side / 2;
    const Vec2 v = other.normalized() * side / 2;
    return {middle - u - v, middle + u - v, middle + u + v, middle - u + v};
}

double sideRatio(const Corners& corners) {
    const double one = (corners[1] - corners[0]).norm();
    const double other = (corners[2] - corners[1]).norm();
    return std::max(one, other) / std::max(std::min(one, other), 1e-9);
}

Corners tidyRectangle(const Path& path, const PolygonFit& fit) {
    std::array<SideCloud, 4> clouds;
    Eigen::Matrix2d scatter = Eigen::Matrix2d::Zero();
    for (int i = 0; i < 4; ++i) {
        clouds[at(i)] = cloudOf(path, fit.sides[at(i)]);
        scatter += i % 2 == 0 ? clouds[at(i)].scatter : quarterTurned(clouds[at(i)].scatter);
    }
    const double angle = levelled(directionOf(scatter), kPi / 4, kLevelShape);
    std::vector<StraightLine> lines;
    for (int i = 0; i < 4; ++i) {
        lines.push_back({clouds[at(i)].middle, along(angle + (i % 2) * kPi / 2)});
    }
    Corners corners = crossings(lines);
    if (corners.size() == 4 && sideRatio(corners) <= kEqualSides) {
        corners = withEqualSides(corners);
    }
    return corners;
}

Corners tidyParallelogram(const Path& path, const PolygonFit& fit) {
    std::array<SideCloud, 4> clouds;
    for (int i = 0; i < 4; ++i) {
        clouds[at(i)] = cloudOf(path, fit.sides[at(i)]);
    }
    std::array<double, 2> angles;
    for (int i = 0; i < 2; ++i) {
        angles[at(i)] =
            levelled(directionOf(clouds[at(i)].scatter + clouds[at(i + 2)].scatter), kPi / 2, kLevelShape);
    }
    std::vector<StraightLine> lines;
    for (int i = 0; i < 4; ++i) {
        lines.push_back({clouds[at(i)].middle, along(angles[at(i % 2)])});
    }
    Corners corners = crossings(lines);
    if (corners.size() == 4 && sideRatio(corners) <= kEqualSides) {
        corners = withEqualSides(corners);
        // A rhombus stands on its corner when it nearly does.
        const double angle = angleOf(corners[2] - corners[0]);
        const double turn = levelled(angle, kPi / 2, kLevelShape) - angle;
        const Vec2 middle = (corners[0] + corners[2]) / 2;
        for (Vec2& corner : corners) {
            corner = middle + Eigen::Rotation2Dd(turn) * (corner - middle);
        }
    }
    return corners;
}

void turnBy(Corners& corners, double angle) {
    Vec2 middle = Vec2::Zero();
    for (const Vec2& corner : corners) {
        middle += corner;
    }
    middle /= static_cast<double>(corners.size());
    for (Vec2& corner : corners) {
        corner = middle + Eigen::Rotation2Dd(angle) * (corner - middle);
    }
}

double cornerAngle(const Corners& corners, int corner) {
    const int count = static_cast<int>(corners.size());
    const Vec2 one = corners[at((corner + count - 1) % count)] - corners[at(corner)];
    const Vec2 other = corners[at((corner + 1) % count)] - corners[at(corner)];
    return std::abs(turnBetween(one, other));
}

Corners tidyTriangle(Corners corners) {
    // Equal sides first: the apex moves onto the middle line of its base.
    std::array<double, 3> sides;  // opposite to each corner
    for (int i = 0; i < 3; ++i) {
        sides[at(i)] = (corners[at((i + 1) % 3)] - corners[at((i + 2) % 3)]).norm();
    }
    const auto [least, most] = std::minmax_element(sides.begin(), sides.end());
    const auto isosceles = [&](int apex) {
        const Vec2& a = corners[at((apex + 1) % 3)];
        const Vec2& b = corners[at((apex + 2) % 3)];
        const Vec2 middle = (a + b) / 2;
        const Vec2 base = (b - a).normalized();
        corners[at(apex)] -= (corners[at(apex)] - middle).dot(base) * base;
    };
    if (*most <= *least * kEqualSidesOfTriangle) {
        const Vec2 middle = (corners[0] + corners[1] + corners[2]) / 3;
        const double radius = (sides[0] + sides[1] + sides[2]) / 3 / std::numbers::sqrt3;
        const Vec2 ab = corners[1] - corners[0];
        const Vec2 ac = corners[2] - corners[0];
        const double way = ab.x() * ac.y() - ab.y() * ac.x() > 0 ? 1 : -1;
        Vec2 sum = Vec2::Zero();
        for (int i = 0; i < 3; ++i) {
            sum += Eigen::Rotation2Dd(-way * i * 2 * kPi / 3) * (corners[at(i)] - middle);
        }
        for (int i = 0; i < 3; ++i) {
            corners[at(i)] = middle + radius * along(angleOf(sum) + way * i * 2 * kPi / 3);
        }
    } else {
        int apex = -1;
        double nearest = kEqualSidesOfTriangle;
        for (int i = 0; i < 3; ++i) {
            const double one = sides[at((i + 1) % 3)];
            const double other = sides[at((i + 2) % 3)];
            const double ratio = std::max(one, other) / std::max(std::min(one, other), 1e-9);
            if (ratio <= nearest) {
                nearest = ratio;
                apex = i;
            }
        }
        if (apex >= 0) {
            isosceles(apex);
        }
        for (int i = 0; i < 3; ++i) {
            if (std::abs(cornerAngle(corners, i) - kPi / 2) <= kRightCorner) {
                // Onto the circle over the opposite side, on which every angle is right.
                const Vec2 middle = (corners[at((i + 1) % 3)] + corners[at((i + 2) % 3)]) / 2;
                const double radius = (corners[at((i + 1) % 3)] - corners[at((i + 2) % 3)]).norm() / 2;
                corners[at(i)] = middle + radius * (corners[at(i)] - middle).normalized();
            }
        }
    }
    // One side level or upright: the one that nearly is.
    double turn = 0;
    double smallest = kLevelTriangle;
    for (int i = 0; i < 3; ++i) {
        const double angle = angleOf(corners[at((i + 1) % 3)] - corners[at(i)]);
        const double needed = std::round(angle / (kPi / 2)) * (kPi / 2) - angle;
        if (std::abs(needed) <= smallest) {
            smallest = std::abs(needed);
            turn = needed;
        }
    }
    turnBy(corners, turn);
    return corners;
}

// The corners of a triangle whose sides do not meet near them, so wide a gap the hand left: where the stroke turns.
Corners turnsOf(const Path& path, const LegFit& legs) {
    const std::vector<int> three = legs.breaks(3);
    const std::vector<int> four = legs.breaks(4);  // begun on a side
    const Corners fromCorner = {(path.front() + path.back()) / 2, path[at(three[1])], path[at(three[2])]};
    const Corners fromSide = {path[at(four[1])], path[at(four[2])], path[at(four[3])]};
    return meanDistance(path, fromCorner, true) <= meanDistance(path, fromSide, true) ? fromCorner : fromSide;
}

// Of a fold line: right angles where all are nearly right, and legs level where they nearly are.
Corners tidyFoldLine(const Path& path, const PolygonFit& fit) {
    const int count = static_cast<int>(fit.sides.size());
    bool allRight = true;
    for (int i = 1; i < count; ++i) {
        allRight = allRight && std::abs(cornerAngle(fit.corners, i) - kPi / 2) <= kRightCorners;
    }
    std::vector<StraightLine> lines;
    if (allRight) {
        Eigen::Matrix2d scatter = Eigen::Matrix2d::Zero();
        std::vector<SideCloud> clouds;
        for (int i = 0; i < count; ++i) {
            clouds.push_back(cloudOf(path, fit.sides[at(i)]));
            scatter += i % 2 == 0 ? clouds.back().scatter : quarterTurned(clouds.back().scatter);
        }
        const double angle = levelled(directionOf(scatter), kPi / 4, kLevelShape);
        for (int i = 0; i < count; ++i) {
            lines.push_back({clouds[at(i)].middle, along(angle + (i % 2) * kPi / 2)});
        }
    } else {
        for (int i = 0; i < count; ++i) {
            const Vec2 leg = fit.corners[at(i + 1)] - fit.corners[at(i)];
            lines.push_back({(fit.corners[at(i)] + fit.corners[at(i + 1)]) / 2,
                             along(levelled(angleOf(leg), kPi / 2, kLevelLine))});
        }
    }
    Corners corners;
    corners.push_back(lines.front().foot(fit.corners.front()));
    for (int i = 1; i < count; ++i) {
        const std::optional<Vec2> corner = crossing(lines[at(i - 1)], lines[at(i)]);
        corners.push_back(corner ? *corner : fit.corners[at(i)]);
    }
    corners.push_back(lines.back().foot(fit.corners.back()));
    return corners;
}

// How many legs a stroke with many has: as many as make it much nearer than one fewer.
int manyLegs(const LegFit& legs) {
    constexpr double kTremor = 0.008;    // diagonals; what is left is no leg
    constexpr double kMuchNearer = 0.6;  // as a part of the distance with one leg fewer
    for (int count = kManyLegs; count < LegFit::kMostLegs; ++count) {
        if (legs.rms(count) < kTremor || legs.rms(count + 1) > kMuchNearer * legs.rms(count)) {
            return count;
        }
    }
    return LegFit::kMostLegs;
}

Corners lineOf(const Path& path, const LegFit& legs) {
    const int last = static_cast<int>(path.size()) - 1;
    StraightLine line = legs.moments().line(0, last);
    const Vec2 from = line.foot(path.front());
    const Vec2 to = line.foot(path.back());
    const Vec2 middle = (from + to) / 2;
    line = {middle, along(levelled(angleOf(to - from), kPi / 4, kLevelLine))};
    return {line.foot(from), line.foot(to)};
}

// Tail, tip and the barbs' ends.
Corners arrowOf(const Path& path, const LegFit& legs) {
    const std::vector<int> breaks = legs.breaks(4);
    const PathMoments& moments = legs.moments();
    StraightLine shaft = moments.line(breaks[0], breaks[1] - (breaks[1] - breaks[0]) / 10);
    const Vec2 tail = shaft.foot(path.front());
    if (shaft.direction.dot(path[at(breaks[1])] - tail) < 0) {
        shaft.direction = -shaft.direction;
    }
    // The pen is at the tip twice; of both times, what is on the shaft.
    const Vec2 tip = shaft.foot((path[at(breaks[1])] + path[at(breaks[3])]) / 2);
    Vec2 barb = path[at(breaks[2])] - tip;
    Vec2 other = path.back() - tip;
    const Vec2 middle = (tail + tip) / 2;
    const double drawn = angleOf(shaft.direction);
    const double turn = levelled(drawn, kPi / 4, kLevelLine) - drawn;
    const Vec2 half = Eigen::Rotation2Dd(turn) * (tip - tail) / 2;
    barb = Eigen::Rotation2Dd(turn) * barb;
    other = Eigen::Rotation2Dd(turn) * other;
    const Vec2 back = -half.normalized();
    const double one = turnBetween(back, barb);
    const double two = turnBetween(back, other);
    const double lengths =
        std::max(barb.norm(), other.norm()) / std::max(std::min(barb.norm(), other.norm()), 1e-9);
    if (one * two < 0 && lengths <= kEqualBarbs &&
        std::abs(std::abs(one) - std::abs(two)) <= kEqualBarbAngles) {
        const double angle = std::copysign((std::abs(one) + std::abs(two)) / 2, one);
        const double length = (barb.norm() + other.norm()) / 2;
        barb = length * (Eigen::Rotation2Dd(angle) * back);
        other = length * (Eigen::Rotation2Dd(-angle) * back);
    }
    return {middle - half, middle + half, middle + half + barb, middle + half + other};
}

double wrapped(double angle, double period) {
    double rest = std::fmod(angle, period);
    if (rest < 0) {
        rest += period;
    }
    return rest > 0 && rest < period ? rest : 0;  // neither -0 nor, by rounding, the period itself
}

// An ellipse along a piece of which the stroke runs to and fro may go on far beyond it.
bool staysNear(const Path& path, const Ellipse& ellipse, double from, double to) {
    constexpr int kSamples = 32;
    for (int i = 0; i <= kSamples; ++i) {
        const double t = from + (to - from) * i / kSamples;
        const Vec2 local(ellipse.a * std::cos(t), ellipse.b * std::sin(t));
        const Vec2 point = ellipse.centre + Eigen::Rotation2Dd(ellipse.angle) * local;
        const auto isNear = [&](const Vec2& drawn) { return (drawn - point).norm() <= kFurthestBeyond; };
        if (std::none_of(path.begin(), path.end(), isNear)) {
            return false;
        }
    }
    return true;
}

// Axes and place of the record, which turns the other way and begins at the lesser angle.
void setRound(ShapeRecord& shape, const Ellipse& ellipse, const StrokePath& stroke) {
    shape.centre = stroke.outward(ellipse.centre);
    shape.a = ellipse.a * stroke.scale;
    shape.b = ellipse.b * stroke.scale;
    shape.rotation = wrapped(-ellipse.angle, kPi);
}

bool makeEllipse(ShapeRecord& shape, const StrokePath& stroke, const ShapeFits& fits) {
    if (!fits.ellipse || !staysNear(stroke.points, *fits.ellipse, 0, 2 * kPi)) {
        return false;
    }
    Ellipse ellipse = *fits.ellipse;
    if (ellipse.b >= kRoundness * ellipse.a) {
        ellipse.a = ellipse.b = (ellipse.a + ellipse.b) / 2;
        ellipse.angle = 0;
    } else {
        ellipse.angle = levelled(ellipse.angle, kPi / 2, kLevelEllipse);
    }
    setRound(shape, ellipse, stroke);
    shape.startAngle = 0;
    shape.endAngle = 2 * kPi;
    return true;
}

bool makeArc(ShapeRecord& shape, const StrokePath& stroke, const ShapeFits& fits) {
    if (!fits.circle && !fits.ellipse) {
        return false;
    }
    Ellipse best = fits.circle ? *fits.circle : *fits.ellipse;
    EllipseTour tour = tourOf(best, stroke.points);
    if (fits.circle && fits.ellipse) {
        const EllipseTour other = tourOf(*fits.ellipse, stroke.points);
        if (tour.rms > kArcOfCircleDistance && other.rms < kArcOfCircle * tour.rms) {
            best = *fits.ellipse;
            tour = other;
        }
    }
    setRound(shape, best, stroke);
    // With the record's rotation, wrapped into half a turn, the angles may begin on the axis' other side.
    const double turned = std::remainder(-best.angle - shape.rotation, 2 * kPi);
    const double shift = std::abs(turned) > kPi / 2 ? kPi : 0;
    const double from = std::min(tour.start, tour.end) + shift;
    shape.startAngle = wrapped(from, 2 * kPi);
    shape.endAngle = shape.startAngle + std::min(tour.sweep(), 2 * kPi);
    return tour.sweep() > 0 && staysNear(stroke.points, best, tour.start, tour.end);
}
}  // namespace

ShapeRecord makeShape(ShapeKind kind, int legs, const StrokePath& stroke, const ShapeFits& fits) {
    const Path& path = stroke.points;
    ShapeRecord shape;
    Corners corners;
    switch (kind) {
        case ShapeKind::none:
            return shape;
        case ShapeKind::ellipse:
            shape.kind = makeEllipse(shape, stroke, fits) ? kind : ShapeKind::none;
            return shape;
        case ShapeKind::arc:
            shape.kind = makeArc(shape, stroke, fits) ? kind : ShapeKind::none;
            return shape;
        case ShapeKind::line:
            corners = lineOf(path, fits.legs);
            break;
        case ShapeKind::arrow:
            corners = arrowOf(path, fits.legs);
            break;
        case ShapeKind::foldLine: {
            const PolygonFit fit =
                fitPolyline(path, fits.legs, legs >= kManyLegs ? manyLegs(fits.legs) : legs);
            corners = nearEnough(fit.corners, tidyFoldLine(path, fit), path, false);
            break;
        }
        case ShapeKind::triangle: {
            const PolygonFit* fit = fits.polygon(3);
            const Corners drawn = fit ? fit->corners : turnsOf(path, fits.legs);
            corners = nearEnough(drawn, tidyTriangle(drawn), path, true);
            break;
        }
        case ShapeKind::rectangle:
        case ShapeKind::parallelogram:
            if (const PolygonFit* fit = fits.polygon(4)) {
                corners =
                    kind == ShapeKind::rectangle ? tidyRectangle(path, *fit) : tidyParallelogram(path, *fit);
            }
            break;
    }
    if (corners.empty()) {
        return shape;
    }
    shape.kind = kind;
    for (const Vec2& corner : corners) {
        shape.corners.push_back(stroke.outward(corner));
    }
    return shape;
}

}  // namespace dabcanvas
