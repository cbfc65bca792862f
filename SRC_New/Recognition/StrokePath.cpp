// SPDX-License-Identifier: MIT
#include "Recognition/StrokePath.h"

#include "Recognition/PathGeometry.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace dabcanvas {

namespace {
constexpr int kFinePoints = 512;      // what smoothing works on
constexpr double kPixelNoise = 0.01;  // standard deviation of the smoothing, in diagonals
constexpr double kHookLength = 0.07;  // hooks are shorter than this, in diagonals
constexpr double kHookTurn = 1.2;     // and turn back by more than this, in radians

Path cleaned(std::span<const ShapePoint> stroke) {
    Path path;
    path.reserve(stroke.size());
    for (const ShapePoint& point : stroke) {
        if (!std::isfinite(point.x) || !std::isfinite(point.y)) {
            continue;
        }
        const Vec2 here(point.x, point.y);
        if (path.empty() || here != path.back()) {
            path.push_back(here);
        }
    }
    return path;
}

// Gaussian smoothing along the path that leaves both ends where they are: beyond an end the path goes on
// as its mirror image through that end.
Path smoothed(const Path& path, double sigma) {
    const int count = static_cast<int>(path.size());
    const int reach = static_cast<int>(std::ceil(2.5 * sigma));
    if (reach < 1 || count < 3) {
        return path;
    }
    std::vector<double> weights(static_cast<std::size_t>(reach) + 1);
    double sum = 0;
    for (int i = 0; i <= reach; ++i) {
        weights[static_cast<std::size_t>(i)] = std::exp(-0.5 * i * i / (sigma * sigma));
        sum += weights[static_cast<std::size_t>(i)] * (i == 0 ? 1 : 2);
    }
    const auto at = [&](int index) -> Vec2 {
        if (index < 0) {
            return 2 * path.front() - path[static_cast<std::size_t>(std::min(-index, count - 1))];
        }
        if (index >= count) {
            return 2 * path.back() - path[static_cast<std::size_t>(std::max(2 * (count - 1) - index, 0))];
        }
        return path[static_cast<std::size_t>(index)];
    };
    Path result(path.size());
    for (int i = 0; i < count; ++i) {
        Vec2 mean = weights[0] * path[static_cast<std::size_t>(i)];
        for (int j = 1; j <= reach; ++j) {
            mean += weights[static_cast<std::size_t>(j)] * (at(i - j) + at(i + j));
        }
        result[static_cast<std::size_t>(i)] = mean / sum;
    }
    return result;
}

// Where the stroke proper begins, when it begins with a hook: a short piece after which the pen turns back.
std::size_t endOfHook(const Path& path, double spacing) {
    const auto limit = static_cast<std::size_t>(kHookLength / spacing);
    const auto reach = std::max<std::size_t>(2, static_cast<std::size_t>(0.02 / spacing));
    double sharpest = kHookTurn;
    std::size_t end = 0;
    for (std::size_t i = 2; i < limit && i + 2 * reach < path.size(); ++i) {
        const Vec2 before = path[i] - path[i - std::min(reach, i)];
        const Vec2 after = path[i + reach] - path[i];
        const double turn = std::abs(turnBetween(before, after));
        if (turn > sharpest) {
            sharpest = turn;
            end = i;
        }
    }
    return end;
}

double diagonalOf(const Path& path, Vec2& centre) {
    Vec2 low = path.front();
    Vec2 high = path.front();
    for (const Vec2& point : path) {
        low = low.cwiseMin(point);
        high = high.cwiseMax(point);
    }
    centre = low + (high - low) / 2;
    const Vec2 extent = high - low;
    return std::hypot(extent.x(), extent.y());  // norm() squares, which tiny and huge strokes do not survive
}

void fitToFrame(Path& path, const Vec2& centre, double scale) {
    for (Vec2& point : path) {
        point = (point - centre) / scale;
    }
}
}  // namespace

double lengthOf(const Path& path) {
    double length = 0;
    for (std::size_t i = 1; i < path.size(); ++i) {
        length += (path[i] - path[i - 1]).norm();
    }
    return length;
}

Path evenlySpaced(const Path& path, int count) {
    const double step = lengthOf(path) / (count - 1);
    Path result;
    result.reserve(static_cast<std::size_t>(count));
    result.push_back(path.front());
    double passed = 0;  // length of the path before its point i - 1
    for (std::size_t i = 1; i < path.size(); ++i) {
        const double piece = (path[i] - path[i - 1]).norm();
        while (static_cast<int>(result.size()) < count - 1 &&
               static_cast<double>(result.size()) * step <= passed + piece) {
            const double along = (static_cast<double>(result.size()) * step - passed) / piece;
            result.push_back(path[i - 1] + std::clamp(along, 0.0, 1.0) * (path[i] - path[i - 1]));
        }
        passed += piece;
    }
    result.resize(static_cast<std::size_t>(count), path.back());
    return result;
}

StrokePath StrokePath::of(std::span<const ShapePoint> stroke) {
    StrokePath result;
    Path path = cleaned(stroke);
    if (path.size() < 2) {
        return result;
    }
    result.scale = diagonalOf(path, result.centre);
    if (!std::isfinite(result.scale) || !(result.scale > 0)) {
        return {};
    }
    fitToFrame(path, result.centre, result.scale);

    path = evenlySpaced(path, kFinePoints);
    const double spacing = lengthOf(path) / (kFinePoints - 1);
    path = smoothed(path, kPixelNoise / spacing);
    const std::size_t start = endOfHook(path, spacing);
    std::reverse(path.begin(), path.end());
    const std::size_t end = endOfHook(path, spacing);
    std::reverse(path.begin(), path.end());
    path = Path(path.begin() + static_cast<std::ptrdiff_t>(start),
                path.end() - static_cast<std::ptrdiff_t>(end));

    // Without its hooks the stroke may be smaller.
    Vec2 centre;
    const double scale = diagonalOf(path, centre);
    if (!(scale > 0)) {
        return {};
    }
    fitToFrame(path, centre, scale);
    result.centre += centre * result.scale;
    result.scale *= scale;
    result.points = evenlySpaced(path, kPoints);
    result.length = lengthOf(path);
    return result;
}

}  // namespace dabcanvas
