// SPDX-License-Identifier: MIT
#include "Recognition/ShapeRuns.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <memory>

namespace {

constexpr double kPi = 3.141592653589793;
constexpr float kWholeTurn = 6.2831855f;
constexpr float kLeastRotation = 0.001f;

enum LineType { kClosed = 2, kOpen = 3 };

using Samples = std::unique_ptr<ShapePoint[], decltype(&std::free)>;

template <typename... Numbers>
bool areFinite(Numbers... numbers) {
    return (std::isfinite(numbers) && ...);
}

// How many points a line is given; more than can be for one that is too long or not finite.
std::int64_t pointsOn(const ShapePoint& from, const ShapePoint& to) {
    const double points = std::hypot(to.x - from.x, to.y - from.y) + 1;
    return points < static_cast<double>(dabcanvas::kMostShapePoints) ? static_cast<std::int64_t>(points)
                                                                     : dabcanvas::kMostShapePoints + 1;
}

// Calls take(from, to) for every line of the outline.
template <typename Take>
void forEachLine(int type, const ShapePoint* points, std::int64_t count, const Take& take) {
    if (type == kClosed) {
        take(points[count - 1], points[0]);
    }
    const std::int64_t step = type == kClosed || type == kOpen ? 1 : 2;
    for (std::int64_t i = 0; i + 1 < count; i += step) {
        take(points[i], points[i + 1]);
    }
}

// The number of samples of an outline; 0 for one that cannot be sampled.
int samplesOf(double wanted) {
    return wanted >= 1 && wanted <= static_cast<double>(dabcanvas::kMostShapePoints)
               ? static_cast<int>(wanted)
               : 0;
}

bool isRoundOutline(const ShapePoint& center, float width, float height, float radian, float pointSize) {
    return areFinite(center.x, center.y, width, height, radian, pointSize) && height > 0 && width > 0 &&
           radian > kLeastRotation && pointSize > 0;
}

}  // namespace

ShapeRun LineProcess::processLineWithType(int type, const ShapePoint* points, float pointSize,
                                          std::int64_t count) {
    if (points == nullptr || count < 2 || !std::isfinite(pointSize)) {
        return {};
    }
    if (count == 2) {
        type = kOpen;
    }
    std::int64_t total = 0;
    forEachLine(type, points, count, [&](const ShapePoint& from, const ShapePoint& to) {
        total = std::min(total + pointsOn(from, to), dabcanvas::kMostShapePoints + 1);
    });
    if (total == 0 || total > dabcanvas::kMostShapePoints) {
        return {};
    }
    auto* const run = static_cast<LPPoint*>(std::malloc(static_cast<std::size_t>(total) * sizeof(LPPoint)));
    if (run == nullptr) {
        return {};
    }
    LPPoint* next = run;
    forEachLine(type, points, count, [&](const ShapePoint& from, const ShapePoint& to) {
        const std::int64_t m = pointsOn(from, to);
        for (std::int64_t j = 0; j < m; ++j) {
            const auto share = static_cast<double>(j);
            const double x = from.x + (to.x - from.x) * share / static_cast<double>(m);
            const double y = from.y + (to.y - from.y) * share / static_cast<double>(m);
            *next++ = {{static_cast<float>(x), static_cast<float>(y)}, pointSize, {1, 1, 1}};
        }
    });
    return {run, static_cast<std::uint64_t>(total)};
}

ShapeRun LineProcess::processEllipsesWithCenter(ShapePoint center, float width, float height, float radian,
                                                float pointSize) {
    if (!isRoundOutline(center, width, height, radian, pointSize)) {
        return {};
    }
    const int n = samplesOf((static_cast<double>(width) + static_cast<double>(height)) * kPi * 0.5);
    const Samples samples(
        CreateEllipses(n, static_cast<float>(center.x), static_cast<float>(center.y), width, height, radian),
        &std::free);
    return processLineWithType(kClosed, samples.get(), pointSize, n);
}

ShapeRun LineProcess::processArcWithCenter(ShapePoint center, float width, float height, float radian,
                                           float startAngle, float endAngle, float pointSize) {
    if (!isRoundOutline(center, width, height, radian, pointSize) || !areFinite(startAngle, endAngle) ||
        startAngle == endAngle) {
        return {};
    }
    const double start = startAngle;
    const double end = endAngle;
    // Deliberate: of an end above the start, the start plays no part in the span.
    const double span = std::min(end > start ? end : end + 2 * kPi - start, 2 * kPi);
    // An end so far below the start that a turn does not bring it above leaves nothing to draw.
    if (!(span > 0) || (start > end && !(end + 2 * kPi > start))) {
        return {};
    }
    const double whole = (static_cast<double>(width) + static_cast<double>(height)) * kPi * 0.5;
    const int n = samplesOf(whole * 2 * kPi / span);
    const Samples samples(CreateArc(n, static_cast<float>(center.x), static_cast<float>(center.y), width,
                                    height, radian, startAngle, endAngle),
                          &std::free);
    return processLineWithType(kOpen, samples.get(), pointSize, n);
}

ShapePoint* CreateArc(int n, float cx, float cy, float a, float b, float rotation, float start, float end) {
    if (n < 1 || n > dabcanvas::kMostShapePoints || !areFinite(cx, cy, a, b, rotation, start, end)) {
        return nullptr;
    }
    auto* const samples =
        static_cast<ShapePoint*>(std::calloc(static_cast<std::size_t>(n), sizeof(ShapePoint)));
    if (samples == nullptr) {
        return nullptr;
    }
    double from = start;
    double to = end;
    if (from > to) {
        to += 2 * kPi;
    }
    if (std::abs(to - from) >= 2 * kPi) {
        from = 0;
        to = static_cast<double>(kWholeTurn);
    }
    if (!(to > from)) {
        return samples;
    }
    const double step = std::abs(to - from) / n;
    const double sr = std::sin(static_cast<double>(rotation));
    const double cr = std::cos(static_cast<double>(rotation));
    // By number as well as by angle: rounding must neither leave a sample out nor write beyond the last.
    for (int i = 0; i < n; ++i) {
        const double t = from + step * i;
        const double x = static_cast<double>(a) * std::cos(t);
        const double y = static_cast<double>(b) * std::sin(t);
        samples[i] = {static_cast<double>(cx) + x * cr + y * sr, static_cast<double>(cy) - x * sr + y * cr};
    }
    return samples;
}

ShapePoint* CreateEllipses(int n, float cx, float cy, float a, float b, float rotation) {
    return CreateArc(n, cx, cy, a, b, rotation, 0, kWholeTurn);
}
