// SPDX-License-Identifier: MIT
#include "Recognition/ShapeFeatures.h"

#include "Recognition/PathGeometry.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace dabcanvas {

namespace {
constexpr double kPi = std::numbers::pi;
constexpr double kFarOff = 0.3;  // stands for the distance of a fit that there is none of

// Collects numbers, scaled so that differences that matter are about 1 each.
class Writer {
public:
    explicit Writer(std::vector<float>& values) : _values(values) {}
    void plain(double value) { _values.push_back(static_cast<float>(std::clamp(value, -10.0, 10.0))); }
    // For distances, where a factor counts, from 0.001 of the diagonal up.
    void distance(double value) { plain(std::log2(std::max(value, 0.0) + 0.002) + 5); }
    void ratio(double value, double to) { plain(std::log2((value + 0.001) / (to + 0.001))); }
    void angle(double radians) { plain(radians * 2 / kPi); }

private:
    std::vector<float>& _values;
};

// How far the ends are from closing: the least distance from one to the other's neighbourhood.
double nearestInRun(const Path& path, const Vec2& point, int first, int last) {
    double nearest = 10;
    for (int i = first; i <= last; ++i) {
        nearest = std::min(nearest, (path[at(i)] - point).norm());
    }
    return nearest;
}

void measureWhole(Writer& out, const StrokePath& stroke) {
    const Path& path = stroke.points;
    const int last = static_cast<int>(path.size()) - 1;
    const double chord = (path.back() - path.front()).norm();
    out.plain(std::log2(stroke.length));
    out.plain(chord * 2);
    out.distance(chord);
    out.plain(chord / stroke.length * 2);
    out.distance(nearestInRun(path, path.back(), 0, last / 5));
    out.distance(nearestInRun(path, path.front(), last - last / 5, last));
    const PathMoments moments(path);
    const StraightLine axis = moments.line(0, last);
    const Vec2 across(-axis.direction.y(), axis.direction.x());
    Vec2 low(10, 10);
    Vec2 high(-10, -10);
    for (const Vec2& p : path) {
        const Vec2 local(p.dot(axis.direction), p.dot(across));
        low = low.cwiseMin(local);
        high = high.cwiseMax(local);
    }
    const Vec2 extent = high - low;
    out.ratio(extent.minCoeff(), extent.maxCoeff());
    // The ends within the extent along and across the main axis.
    out.plain(std::abs((path.front() - path.back()).dot(axis.direction)) / extent.maxCoeff() * 2);
    out.plain(std::abs((path.front() - path.back()).dot(across)) / extent.maxCoeff() * 2);
    double area = 0;
    for (int i = 0; i <= last; ++i) {
        const Vec2& p = path[at(i)];
        const Vec2& q = path[at(i == last ? 0 : i + 1)];
        area += p.x() * q.y() - p.y() * q.x();
    }
    out.plain(std::abs(area) * 4);
    out.plain(std::abs(area) / (stroke.length * stroke.length) * 20);
}

void measureCrossings(Writer& out, const Path& path) {
    int crossings = 0;
    const int count = (static_cast<int>(path.size()) - 1) / 2;
    const auto side = [](const Vec2& a, const Vec2& b, const Vec2& p) {
        return (b.x() - a.x()) * (p.y() - a.y()) - (b.y() - a.y()) * (p.x() - a.x()) > 0;
    };
    double widest = 0;  // the most of the stroke between a crossing and itself
    double narrowest = 1;
    for (int i = 0; i < count; ++i) {
        const Vec2& a = path[at(2 * i)];
        const Vec2& b = path[at(2 * i + 2)];
        for (int j = i + 3; j < count; ++j) {
            const Vec2& c = path[at(2 * j)];
            const Vec2& d = path[at(2 * j + 2)];
            if (side(a, b, c) != side(a, b, d) && side(c, d, a) != side(c, d, b)) {
                ++crossings;
                const double loop = static_cast<double>(j - i) / count;
                widest = std::max(widest, loop);
                narrowest = std::min(narrowest, loop);
            }
        }
    }
    out.plain(std::min(crossings, 6) * 0.5);
    out.plain(std::log2(1 + crossings));
    out.plain(widest * 2);
    out.plain(crossings > 0 ? narrowest * 2 : 2);
}

// Totals of the turning, its bends to either side, and how much of it stands in a few corners.
void measureTurning(Writer& out, const TurnProfile& profile) {
    double total = 0;
    double absolute = 0;
    for (const double turn : profile.turns) {
        total += turn;
        absolute += std::abs(turn);
    }
    out.plain(std::abs(total) / kPi);
    out.plain(absolute / kPi);
    out.plain(std::abs(total) / (absolute + 0.1));
    // Bends: runs of turning to one side, of which tremor's are merged into what surrounds them.
    std::vector<double> bends;
    for (const double turn : profile.turns) {
        if (bends.empty() || (turn > 0) != (bends.back() > 0)) {
            bends.push_back(turn);
        } else {
            bends.back() += turn;
        }
    }
    for (const double least : {0.2, 0.6}) {
        std::vector<double> kept;
        for (const double bend : bends) {
            if (std::abs(bend) < least) {
                continue;
            }
            if (kept.empty() || (bend > 0) != (kept.back() > 0)) {
                kept.push_back(bend);
            } else {
                kept.back() += bend;
            }
        }
        double lesser[2] = {0, 0};
        double largest = 0;
        for (const double bend : kept) {
            lesser[bend > 0] += std::abs(bend);
            largest = std::max(largest, std::abs(bend));
        }
        out.plain(static_cast<double>(std::min<std::size_t>(kept.size(), 12)) / 2);
        out.angle(std::min(lesser[0], lesser[1]));
        out.angle(largest);
    }
    // Corners: the pieces of a given width that turn the most, none overlapping.
    const int count = static_cast<int>(profile.turns.size());
    for (const int width : {5, 11}) {
        std::vector<double> sums(at(count), 0);
        for (int i = 0; i < count; ++i) {
            for (int j = std::max(0, i - width / 2); j <= std::min(count - 1, i + width / 2); ++j) {
                sums[at(i)] += profile.turns[at(j)];
            }
        }
        std::vector<bool> taken(at(count), false);
        double left = absolute;
        for (int corner = 0; corner < 7; ++corner) {
            int best = -1;
            for (int i = 0; i < count; ++i) {
                if (!taken[at(i)] && (best < 0 || std::abs(sums[at(i)]) > std::abs(sums[at(best)]))) {
                    best = i;
                }
            }
            if (best < 0) {
                out.angle(0);
            } else {
                out.angle(std::abs(sums[at(best)]));
                left -= std::abs(sums[at(best)]);
                for (int j = std::max(0, best - width + 1); j <= std::min(count - 1, best + width - 1); ++j) {
                    taken[at(j)] = true;
                }
            }
            if (corner >= 1 && corner <= 4) {
                out.angle(std::max(left, 0.0));
            }
        }
    }
}

// How well 1 to 7 straight legs follow the path, and what they look like.
void measureLegs(Writer& out, const Path& path, const LegFit& legs) {
    for (int count = 1; count <= 7; ++count) {
        out.distance(legs.rms(count));
    }
    for (int count = 2; count <= 6; ++count) {
        const std::vector<int> breaks = legs.breaks(count);
        double shortest = 10;
        double longest = 0;
        double bow = 0;       // the most that a leg leaves its line, for its length
        double sharpest = 0;  // turns between legs
        double bluntest = kPi;
        int alternations = 0;
        double lastTurn = 0;
        for (int i = 0; i < count; ++i) {
            const int first = breaks[at(i)];
            const int last = breaks[at(i + 1)];
            const double length = (path[at(last)] - path[at(first)]).norm();
            shortest = std::min(shortest, length);
            longest = std::max(longest, length);
            const StraightLine line = legs.moments().line(first, last);
            double furthest = 0;
            for (int j = first; j <= last; ++j) {
                furthest = std::max(furthest, std::abs(line.distance(path[at(j)])));
            }
            bow = std::max(bow, furthest / (length + 0.02));
            if (i > 0) {
                const Vec2 before = path[at(first)] - path[at(breaks[at(i - 1)])];
                const double turn = turnBetween(before, path[at(last)] - path[at(first)]);
                sharpest = std::max(sharpest, std::abs(turn));
                bluntest = std::min(bluntest, std::abs(turn));
                alternations += i > 1 && (turn > 0) != (lastTurn > 0);
                lastTurn = turn;
            }
        }
        out.distance(shortest);
        out.plain(shortest / longest * 2);
        out.plain(bow * 5);
        if (count <= 5) {
            out.angle(sharpest);
            out.angle(bluntest);
            out.plain(alternations);
        }
    }
}

void measureRound(Writer& out, const Path& path, const std::optional<Ellipse>& round) {
    if (!round) {
        out.distance(kFarOff);
        out.distance(kFarOff);
        out.plain(0);
        out.plain(0);
        out.plain(2);
        out.plain(-1);
        return;
    }
    const EllipseTour tour = tourOf(*round, path);
    out.distance(tour.rms);
    out.distance(tour.furthest);
    out.ratio(round->b, round->a);
    out.plain(tour.sweep() / kPi);
    out.plain(std::log2(tour.backward + 0.05) + 2);
    out.plain(std::log2(std::min(round->a, 10.0)));
}

void measurePolygons(Writer& out, const ShapeFits& fits) {
    for (int corners = 3; corners <= ShapeFits::kMostSides; ++corners) {
        const PolygonFit* fit = fits.polygon(corners);
        out.distance(fit ? fit->rms : kFarOff);
        out.distance(fit ? fit->furthest : kFarOff);
        if (corners > 4) {
            continue;
        }
        std::vector<Vec2> sides;
        for (int i = 0; fit && i < corners; ++i) {
            sides.push_back(fit->corners[at((i + 1) % corners)] - fit->corners[at(i)]);
        }
        double shortest = 10;
        double longest = 0;
        double sharpest = 0;
        double bluntest = kPi;
        double winding = 0;
        for (int i = 0; fit && i < corners; ++i) {
            shortest = std::min(shortest, sides[at(i)].norm());
            longest = std::max(longest, sides[at(i)].norm());
            const double turn = turnBetween(sides[at(i)], sides[at((i + 1) % corners)]);
            winding += turn;
            sharpest = std::max(sharpest, std::abs(turn));
            bluntest = std::min(bluntest, std::abs(turn));
        }
        out.plain(fit ? shortest / longest * 2 : 0);
        out.angle(fit ? kPi - sharpest : kPi);
        out.angle(fit ? bluntest : 0);
        out.plain(std::abs(winding) / (2 * kPi));
        if (corners == 4) {
            // How far opposite sides are from parallel, neighbouring ones from right angles, and how long they are.
            double skew[2] = {kPi / 4, kPi / 4};
            double lengths[2] = {-2, -2};
            double right = kPi / 2;
            for (int i = 0; fit && i < 2; ++i) {
                skew[i] = std::abs(turnBetween(sides[at(i)], -sides[at(i + 2)]));
                lengths[i] =
                    -std::abs(std::log2((sides[at(i)].norm() + 0.01) / (sides[at(i + 2)].norm() + 0.01)));
            }
            if (fit) {
                const Vec2 one = sides[0].normalized() - sides[2].normalized();
                const Vec2 other = sides[1].normalized() - sides[3].normalized();
                right = std::abs(std::abs(turnBetween(one, other)) - kPi / 2);
            }
            out.plain(std::min(skew[0], skew[1]) * 8);
            out.plain(std::max(skew[0], skew[1]) * 4);
            out.plain(std::max(lengths[0], lengths[1]) * 3);
            out.plain(std::min(lengths[0], lengths[1]) * 2);
            out.plain(right * 4);
        }
    }
}

// A shaft, a barb, back to the tip, the other barb: four legs.
void measureArrow(Writer& out, const Path& path, const LegFit& legs) {
    const std::vector<int> breaks = legs.breaks(4);
    const Vec2& tail = path[at(breaks[0])];
    const Vec2& tip = path[at(breaks[1])];
    const Vec2& barb = path[at(breaks[2])];
    const Vec2& again = path[at(breaks[3])];
    const Vec2& other = path[at(breaks[4])];
    const double shaft = (tip - tail).norm() + 0.01;
    out.distance((again - tip).norm());
    out.plain((again - tip).norm() / shaft * 2);
    out.ratio((barb - tip).norm(), shaft);
    out.ratio((other - again).norm(), shaft);
    out.ratio((other - again).norm(), (barb - tip).norm());
    const double first = turnBetween(tail - tip, barb - tip);
    const double second = turnBetween(tail - tip, other - again);
    out.angle(std::abs(first));
    out.angle(std::abs(second));
    out.angle(std::abs(first + second));
    out.plain(first * second < 0 ? 1 : -1);
    // Both barbs beside the shaft.
    const double along = (barb - tail).dot(tip - tail) / (shaft * shaft);
    const double alongOther = (other - tail).dot(tip - tail) / (shaft * shaft);
    out.plain(along * 2);
    out.plain(alongOther * 2);
}
}  // namespace

ShapeFits::ShapeFits(const StrokePath& stroke)
    : legs(stroke.points), ellipse(fitEllipse(stroke.points)), circle(fitCircle(stroke.points)) {
    for (int corners = 3; corners <= kMostSides; ++corners) {
        polygons[at(corners - 3)] = fitPolygon(stroke.points, legs, corners);
    }
}

const PolygonFit* ShapeFits::polygon(int corners) const {
    const std::optional<PolygonFit>& fit = polygons[at(corners - 3)];
    return fit ? &*fit : nullptr;
}

TurnProfile::TurnProfile(const Path& path) {
    const int count = static_cast<int>(path.size());
    Vec2 before = path[1] - path[0];
    for (int i = 1; i < count - 1; ++i) {
        // The direction at a point is that of a short chord around it.
        const int reach = std::min({2, i, count - 1 - i});
        const Vec2 after = path[at(i + reach)] - path[at(i - reach)];
        turns.push_back(i == 1 ? 0 : turnBetween(before, after));
        before = after;
    }
    for (std::size_t i = 0; i < turns.size(); ++i) {
        bins[i * kBins / turns.size()] += turns[i];
    }
}

ShapeFeatures::ShapeFeatures(const StrokePath& stroke, const ShapeFits& fits) {
    const Path& path = stroke.points;
    values.reserve(kCount);
    Writer out(values);
    const TurnProfile profile(path);
    for (const double bin : profile.bins) {
        out.angle(bin);
    }
    measureWhole(out, stroke);
    measureCrossings(out, path);
    measureTurning(out, profile);
    measureLegs(out, path, fits.legs);
    measureRound(out, path, fits.ellipse);
    measureRound(out, path, fits.circle);
    measurePolygons(out, fits);
    measureArrow(out, path, fits.legs);
}

}  // namespace dabcanvas
