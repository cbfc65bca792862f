// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>

#include "Canvas/PointerOptions.h"

namespace dabcanvas {
namespace {

// Rising from one to the next, and within the square.
bool isUsable(const std::vector<QPointF>& points) {
    const auto inRange = [](double value) { return value >= 0 && value <= 1; };
    for (std::size_t i = 0; i < points.size(); ++i) {
        const bool rises =
            i == 0 || (points[i].x() > points[i - 1].x() && points[i].y() >= points[i - 1].y());
        if (!inRange(points[i].x()) || !inRange(points[i].y()) || !rises) {
            return false;
        }
    }
    return points.size() >= 2;
}

// Of a secant before and one after a point: none at a level one, else no more than thrice the flatter one.
double slopeBetween(double before, double after) {
    return before == 0 || after == 0 ? 0 : std::min((before + after) / 2, 3 * std::min(before, after));
}

}  // namespace

std::optional<PressureCurve> PressureCurve::through(const std::vector<QPointF>& points) {
    if (!isUsable(points)) {
        return std::nullopt;
    }
    PressureCurve curve;
    curve._points = points;
    const auto secant = [&](std::size_t i) {
        return (points[i + 1].y() - points[i].y()) / (points[i + 1].x() - points[i].x());
    };
    const std::size_t last = points.size() - 1;
    curve._slopes.push_back(secant(0));
    for (std::size_t i = 1; i < last; ++i) {
        curve._slopes.push_back(slopeBetween(secant(i - 1), secant(i)));
    }
    curve._slopes.push_back(secant(last - 1));
    return curve;
}

float PressureCurve::at(float pressure) const {
    if (_points.empty() || !(pressure >= 0)) {
        return pressure;
    }
    const auto after = std::upper_bound(_points.begin(), _points.end(), double{pressure},
                                        [](double x, const QPointF& point) { return x < point.x(); });
    if (after == _points.begin() || after == _points.end()) {
        return static_cast<float>((after == _points.begin() ? _points.front() : _points.back()).y());
    }
    const auto i = static_cast<std::size_t>(after - _points.begin()) - 1;
    const double width = _points[i + 1].x() - _points[i].x();
    const double t = (double{pressure} - _points[i].x()) / width, rest = 1 - t;
    // Hermite's form.
    const double value = rest * rest * (1 + 2 * t) * _points[i].y() +
                         t * t * (3 - 2 * t) * _points[i + 1].y() +
                         t * rest * width * (rest * _slopes[i] - t * _slopes[i + 1]);
    return static_cast<float>(std::clamp(value, 0.0, 1.0));
}

}  // namespace dabcanvas
