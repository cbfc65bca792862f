// SPDX-License-Identifier: MIT
#include "Recognition/LegFit.h"

#include "Recognition/PathGeometry.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

namespace dabcanvas {

namespace {
constexpr int kStride = 2;       // legs meet at every second point only, for a quarter of the work
constexpr int kShortestLeg = 2;  // in such nodes; shorter ones follow noise
constexpr double kDetour = 0.5;  // a detour counts as distance from the line, by this factor
}  // namespace

PathMoments::PathMoments(const Path& path) : _sums(path.size() + 1) {
    for (std::size_t i = 0; i < path.size(); ++i) {
        const Vec2& p = path[i];
        const Sums& s = _sums[i];
        _sums[i + 1] = {s.x + p.x(), s.y + p.y(), s.xx + p.x() * p.x(), s.xy + p.x() * p.y(),
                        s.yy + p.y() * p.y()};
    }
}

PathMoments::Sums PathMoments::between(int first, int last) const {
    const Sums& a = _sums[at(first)];
    const Sums& b = _sums[at(last) + 1];
    const double n = last - first + 1;
    const double x = (b.x - a.x) / n;
    const double y = (b.y - a.y) / n;
    return {x, y, (b.xx - a.xx) - n * x * x, (b.xy - a.xy) - n * x * y, (b.yy - a.yy) - n * y * y};
}

double PathMoments::residual(int first, int last) const {
    const Sums s = between(first, last);
    const double smaller = (s.xx + s.yy - std::hypot(s.xx - s.yy, 2 * s.xy)) / 2;
    return std::max(smaller, 0.0);
}

StraightLine PathMoments::line(int first, int last) const {
    const Sums s = between(first, last);
    const double angle = std::atan2(2 * s.xy, s.xx - s.yy) / 2;
    return {{s.x, s.y}, {std::cos(angle), std::sin(angle)}};
}

LegFit::LegFit(const Path& path) : _moments(path), _nodes((static_cast<int>(path.size()) - 1) / kStride + 1) {
    constexpr double kNever = std::numeric_limits<double>::infinity();
    const double spacing = lengthOf(path) / (static_cast<double>(path.size()) - 1);
    std::vector<double> residuals(at(_nodes) * at(_nodes), kNever);
    for (int first = 0; first < _nodes; ++first) {
        for (int last = first + kShortestLeg; last < _nodes; ++last) {
            const int points = (last - first) * kStride;
            // What the pen went to and fro: a leg there and back lies on one line as well.
            const double detour =
                points * spacing - (path[at(last * kStride)] - path[at(first * kStride)]).norm();
            residuals[at(last) * at(_nodes) + at(first)] =
                _moments.residual(first * kStride, last * kStride) +
                points * detour * detour * kDetour * kDetour;
        }
    }
    for (int legs = 1; legs <= kMostLegs; ++legs) {
        _cost[at(legs)].assign(at(_nodes), kNever);
        _from[at(legs)].assign(at(_nodes), 0);
    }
    for (int end = kShortestLeg; end < _nodes; ++end) {
        _cost[1][at(end)] = residuals[at(end) * at(_nodes)];
    }
    for (int legs = 2; legs <= kMostLegs; ++legs) {
        const std::vector<double>& before = _cost[at(legs - 1)];
        for (int end = legs * kShortestLeg; end < _nodes; ++end) {
            const double* last = &residuals[at(end) * at(_nodes)];
            double best = kNever;
            int bestFrom = 0;
            for (int from = (legs - 1) * kShortestLeg; from <= end - kShortestLeg; ++from) {
                const double cost = before[at(from)] + last[from];
                if (cost < best) {
                    best = cost;
                    bestFrom = from;
                }
            }
            _cost[at(legs)][at(end)] = best;
            _from[at(legs)][at(end)] = bestFrom;
        }
    }
}

std::vector<int> LegFit::breaks(int legs) const {
    std::vector<int> result(at(legs) + 1);
    int end = _nodes - 1;
    for (int leg = legs; leg > 0; --leg) {
        result[at(leg)] = end * kStride;
        end = leg > 1 ? _from[at(leg)][at(end)] : 0;
    }
    result[0] = 0;
    return result;
}

double LegFit::rms(int legs) const {
    return std::sqrt(_cost[at(legs)][at(_nodes - 1)] / ((_nodes - 1) * kStride + 1));
}

}  // namespace dabcanvas
