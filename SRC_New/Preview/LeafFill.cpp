// SPDX-License-Identifier: MIT
#include "Preview/LeafFill.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <utility>
#include <vector>

namespace {

constexpr int kPixel = 256;                             // units of a Point
constexpr std::int64_t kCovered = 2 * kPixel * kPixel;  // twice the area, so that halves are whole

// Where a line is at a place between two others; the same from either side.
int between(int place, int from, int to, int valueFrom, int valueTo) {
    const double part = static_cast<double>(place - from) / (to - from);
    return valueFrom + static_cast<int>(std::lround(part * (valueTo - valueFrom)));
}

int pixelOf(int unit) {
    return unit >> 8;  // rounds down, also below 0
}

// The colour's premultiplied bytes at every level of coverage.
std::array<std::uint32_t, 256> coverageLevels(const ESColor& color) {
    std::array<std::uint32_t, 256> levels{};
    const QColor filled = color.toQColor();
    if (!filled.isValid()) {
        return levels;
    }
    const QRgb pixel = qPremultiply(filled.rgba());
    const int channels[] = {qRed(pixel), qGreen(pixel), qBlue(pixel), qAlpha(pixel)};
    for (int level = 0; level < 256; ++level) {
        std::uint8_t bytes[4];
        for (int c = 0; c < 4; ++c) {
            bytes[c] = static_cast<std::uint8_t>((channels[c] * level + 127) / 255);
        }
        std::memcpy(&levels[static_cast<std::size_t>(level)], bytes, sizeof bytes);
    }
    return levels;
}

}  // namespace

LeafFill::Point LeafFill::fixed(QPointF point) {
    return {static_cast<int>(std::lround(point.x() * kPixel)),
            static_cast<int>(std::lround(point.y() * kPixel))};
}

bool LeafFill::begin(const QSize& size, QPointF point) {
    const std::size_t count =
        (static_cast<std::size_t>(size.width()) + 1) * static_cast<std::size_t>(size.height());
    _steps.reset(static_cast<std::uint32_t*>(std::calloc(count, sizeof(std::uint32_t))));
    if (!_steps) {
        clear();
        return false;
    }
    _width = size.width();
    _height = size.height();
    _last = point;
    _begin = _end = _closedFrom = fixed(point);
    return true;
}

void LeafFill::clear() {
    _width = _height = 0;
    _steps.reset();
}

void LeafFill::quadTo(QPointF control, QPointF end) {
    // Equal steps of the parameter; no line is further than 1/32 pixel from the curve.
    const QPointF bend = _last - 2 * control + end;
    const int lines = std::max(1, static_cast<int>(std::ceil(std::sqrt(8 * std::hypot(bend.x(), bend.y())))));
    for (int i = 1; i <= lines; ++i) {
        const double t = static_cast<double>(i) / lines, s = 1 - t;
        const Point next = fixed(i == lines ? end : s * s * _last + 2 * s * t * control + t * t * end);
        addLine(_end, next, 1);
        _end = next;
    }
    _last = end;
}

void LeafFill::addLine(Point from, Point to, int factor) {
    if (from.y > to.y) {
        std::swap(from, to);
        factor = -factor;
    }
    const int top = std::max(from.y, 0), bottom = std::min(to.y, _height * kPixel);
    for (int y = top; y < bottom;) {
        const int row = pixelOf(y), below = std::min((row + 1) * kPixel, bottom);
        addInRow(_steps.get() + static_cast<std::ptrdiff_t>(row) * (_width + 1),
                 {between(y, from.y, to.y, from.x, to.x), y},
                 {between(below, from.y, to.y, from.x, to.x), below}, factor);
        y = below;
    }
}

// A line downwards within one row.
void LeafFill::addInRow(std::uint32_t* row, Point from, Point to, int factor) {
    if (from.x > to.x) {  // a mirrored walk: left to right, and each height is left with its own sign
        std::swap(from, to);
        factor = -factor;
    }
    const int right = _width * kPixel;
    const Point first = from;
    // Left of the picture only the height counts, right of it nothing does.
    if (from.x < 0) {
        const int y = to.x <= 0 ? to.y : between(0, first.x, to.x, first.y, to.y);
        row[0] += static_cast<std::uint32_t>(factor * (y - from.y) * 2 * kPixel);
        from = {0, y};
    }
    while (from.x < right && from.y != to.y) {
        const int pixel = pixelOf(from.x), edge = (pixel + 1) * kPixel;
        const Point next = to.x <= edge ? to : Point{edge, between(edge, first.x, to.x, first.y, to.y)};
        const int height = factor * (next.y - from.y);
        const int twiceLeft = from.x + next.x - 2 * pixel * kPixel;
        row[pixel] += static_cast<std::uint32_t>(height * (2 * kPixel - twiceLeft));
        row[pixel + 1] += static_cast<std::uint32_t>(height * twiceLeft);
        from = next;
    }
}

void LeafFill::close() {
    if (_closedFrom != _end) {
        addLine(_closedFrom, _begin, -1);
        addLine(_end, _begin, 1);
        _closedFrom = _end;
    }
}

// Of the row's pixels in the area, 0 to 255, where that is more than there was.
void LeafFill::cover(int y, const QRect& area, std::uint8_t* levels) const {
    const std::uint32_t* steps = _steps.get() + static_cast<std::ptrdiff_t>(y) * (_width + 1);
    std::uint32_t covered = 0;
    for (int x = 0; x < area.left(); ++x) {
        covered += steps[x];
    }
    for (int x = area.left(); x <= area.right(); ++x, ++levels) {
        covered += steps[x];
        const std::int64_t once =
            std::min(std::abs(std::int64_t{static_cast<std::int32_t>(covered)}), kCovered);
        *levels = std::max(*levels, static_cast<std::uint8_t>((once * 255 + kCovered / 2) / kCovered));
    }
}

void LeafFill::draw(std::span<LeafFill* const> outlines, QImage& image, const QRect& area,
                    const ESColor& color) {
    const auto colours = coverageLevels(color);
    std::vector<std::uint8_t> levels(static_cast<std::size_t>(area.width()));
    for (LeafFill* outline : outlines) {
        outline->close();
    }
    for (int y = area.top(); y <= area.bottom(); ++y) {
        std::fill(levels.begin(), levels.end(), std::uint8_t{0});
        for (const LeafFill* outline : outlines) {
            outline->cover(y, area, levels.data());
        }
        std::uint8_t* out = image.scanLine(y) + static_cast<std::ptrdiff_t>(area.left()) * 4;
        for (const std::uint8_t level : levels) {
            std::memcpy(out, &colours[level], 4);
            out += 4;
        }
    }
}
