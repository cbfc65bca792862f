// SPDX-License-Identifier: MIT
// What dabs are: written down slowly and in double precision, for every kind of surface to be held against.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <span>
#include <vector>

#include "Dabs/Dab.h"
#include "Dabs/TipImage.h"
#include "Surface/PaintSurface.h"

namespace dabcanvas::reference {

using Colour = std::array<double, 4>;  // premultiplied where it has an alpha, 0..1

inline double fraction(double value) {
    return value - std::floor(value);
}

// ---- pictures at a level of detail

// Bilinear at texels (u, v), whose centres lie at halves; beyond the edge the nearest texel, or the picture anew.
inline Colour sampled(const Pixels& level, double u, double v, bool wraps) {
    const auto cell = [&](double place, int texels) {
        const int whole = static_cast<int>(std::floor(place));
        return wraps ? (whole % texels + texels) % texels : std::clamp(whole, 0, texels - 1);
    };
    Colour sum{};
    for (const int right : {0, 1}) {
        for (const int down : {0, 1}) {
            const std::uint8_t* texel = level.at(cell(std::floor(u - 0.5) + right, level.size.width),
                                                 cell(std::floor(v - 0.5) + down, level.size.height));
            const double weight = (right != 0 ? fraction(u - 0.5) : 1 - fraction(u - 0.5)) *
                                  (down != 0 ? fraction(v - 0.5) : 1 - fraction(v - 0.5));
            for (int i = 0; i < level.channels; ++i) {
                sum[static_cast<std::size_t>(i)] += weight * texel[i] / 255;
            }
        }
    }
    return sum;
}

// At (x, y), 0..1 from the left and top edge, between the two levels that the detail lies between.
inline Colour sampledAt(const std::vector<Pixels>& levels, double detail, double x, double y, bool wraps) {
    const auto detailOf = [&](std::size_t i) {
        return std::log2(std::max(static_cast<double>(levels.front().size.width) / levels[i].size.width,
                                  static_cast<double>(levels.front().size.height) / levels[i].size.height));
    };
    std::size_t first = 0;
    while (first + 1 < levels.size() && detailOf(first + 1) <= detail) {
        ++first;
    }
    const std::size_t second = std::min(first + 1, levels.size() - 1);
    const double between = detailOf(second) - detailOf(first);
    const double part = between > 0 ? (std::max(detail, 0.0) - detailOf(first)) / between : 0;
    const auto at = [&](std::size_t i) {
        return sampled(levels[i], x * levels[i].size.width, y * levels[i].size.height, wraps);
    };
    Colour mixed = at(first);
    const Colour other = at(second);
    for (std::size_t i = 0; i < 4; ++i) {
        mixed[i] += part * (other[i] - mixed[i]);
    }
    return mixed;
}

// ---- one dab

// The part of a pixel, seen along an axis turned by so much, that lies before an edge `distance` beyond its centre.
inline double partBefore(double distance, double cosine, double sine) {
    const double wide = std::max(std::fabs(cosine), std::fabs(sine)),
                 thin = std::min(std::fabs(cosine), std::fabs(sine));
    if (thin < 1e-6) {
        return std::clamp(distance / wide + 0.5, 0.0, 1.0);
    }
    const auto square = [](double x) { return x > 0 ? x * x : 0; };
    const double foot = (wide + thin) / 2, top = (wide - thin) / 2;
    return (square(distance + foot) - square(distance + top) - square(distance - top) +
            square(distance - foot)) /
           (2 * wide * thin);
}

struct Place {
    double coverage;  // of the dab's box
    double x, y;      // in the tip, 0..1 within it
};

class Box {
public:
    explicit Box(const Dab& dab)
        : _dab(dab),
          _half{dab.halfSize, double{dab.halfSize} * dab.roundness},
          _cosine(dab.halfSize < 0.75f ? 1 : std::cos(double{dab.radian})),
          _sine(dab.halfSize < 0.75f ? 0 : std::sin(double{dab.radian})) {}

    Place at(int x, int y) const {
        const double dx = x + 0.5 - _dab.x, dy = y + 0.5 - _dab.y;
        const double place[] = {_dab.flipX * (_cosine * dx - _sine * dy),
                                _dab.flipY * (_sine * dx + _cosine * dy)};
        Place found{1, 0, 0};
        double* const inTip[] = {&found.x, &found.y};
        for (const int axis : {0, 1}) {
            const double half = _half[axis];
            found.coverage *= partBefore(half - place[axis], _cosine, _sine) -
                              partBefore(-half - place[axis], _cosine, _sine);
            *inTip[axis] = 0.5 + std::clamp(place[axis] / half, -1.0, 1.0) / 2;
        }
        return found;
    }

    // Of the tip: the texels that a step of one pixel, to the right or down, leads over, as a power of two.
    double detail(const Size& tip) const {
        constexpr double kThinnest = 1e-4;
        const double wide = tip.width / (2 * std::max(_half[0], kThinnest)),
                     tall = tip.height / (2 * std::max(_half[1], kThinnest));
        const double step =
            std::max(std::hypot(wide * _cosine, tall * _sine), std::hypot(wide * _sine, tall * _cosine));
        if (step <= 1) {
            return 0;
        }
        const double pixels = 2 * std::min(_half[0], _half[1]);
        return std::log2(step) + 0.5 * std::clamp((5.25 - pixels) / (5.25 - 4), 0.0, 1.0);
    }

private:
    Dab _dab;
    double _half[2];
    double _cosine, _sine;
};

// ---- colour and paper

inline Colour hsvOf(const Colour& c) {
    const double high = std::max({c[0], c[1], c[2]}), span = high - std::min({c[0], c[1], c[2]});
    double hue = 0;
    if (span > 0) {
        hue = high == c[0]   ? (c[1] - c[2]) / span
              : high == c[1] ? 2 + (c[2] - c[0]) / span
                             : 4 + (c[0] - c[1]) / span;
    }
    return {fraction(hue / 6), high > 0 ? span / high : 0, high, 1};
}

inline Colour rgbOf(const Colour& hsv) {
    const double thirds[] = {0, 2.0 / 3, 1.0 / 3};
    Colour rgb{0, 0, 0, 1};
    for (std::size_t i = 0; i < 3; ++i) {
        const double ramp = std::clamp(std::fabs(fraction(hsv[0] + thirds[i]) * 6 - 3) - 1, 0.0, 1.0);
        rgb[i] = hsv[2] * (1 + hsv[1] * (ramp - 1));
    }
    return rgb;
}

inline Colour straightColour(const Dab& dab) {
    return {std::clamp<double>(dab.color.r, 0, 1), std::clamp<double>(dab.color.g, 0, 1),
            std::clamp<double>(dab.color.b, 0, 1), 1};
}

// The tip's own colour, the dab's where the tip is black, varied by the dab's random number.
inline Colour multicolour(const Dab& dab, const DabStyle& style, const Colour& tip) {
    Colour own{0, 0, 0, 1};
    for (std::size_t i = 0; i < 3 && tip[3] > 0; ++i) {
        own[i] = std::clamp(tip[i] / tip[3], 0.0, 1.0);
    }
    const Colour brush = straightColour(dab);
    const double black = 1 - std::max({own[0], own[1], own[2]});
    for (std::size_t i = 0; i < 3; ++i) {
        own[i] += black * brush[i];
    }
    Colour hsv = hsvOf(own);
    const auto swing = [&](double speed) { return fraction(dab.random * speed) * 2 - 1; };
    hsv[0] += swing(1) * 0.5 * style.hueTingle;
    hsv[1] = std::clamp(hsv[1] + swing(7.31) * style.saturationTingle, 0.0, 1.0);
    hsv[2] = std::clamp(hsv[2] + swing(53.17) * style.brightnessTingle, 0.0, 1.0);
    return rgbOf(hsv);
}

// How much the paper lets through at a pixel.
inline double paperAt(const PaperImage& paper, float scale, int x, int y) {
    const Size& size = paper.grain.front().size;
    const double wide = std::max(std::floor(scale * static_cast<float>(size.width)), 1.0f),
                 tall = std::max(std::floor(scale * static_cast<float>(size.height)), 1.0f);
    const double detail = std::max(std::log2(std::max(size.width / wide, size.height / tall)), 0.0);
    return sampledAt(paper.grain, detail, fraction((x + 0.5) / wide), fraction((y + 0.5) / tall), true)[0];
}

// ---- a layer

// Draws into a layer of premultiplied RGBA, rows from the top.
inline void draw(std::vector<double>& layer, const Size& size, std::span<const Dab> dabs,
                 std::span<const TipImage> tips, const PaperImage* paper, const DabStyle& style) {
    for (const Dab& dab : dabs) {
        const Box box(dab);
        const TipImage& tip = tips[dab.tip];
        const double detail = box.detail(tip.size());
        for (int y = 0; y < size.height; ++y) {
            for (int x = 0; x < size.width; ++x) {
                const Place place = box.at(x, y);
                if (!(place.coverage > 0)) {
                    continue;
                }
                double coverage = place.coverage * sampledAt(tip.alpha, detail, place.x, place.y, false)[0] *
                                  std::clamp<double>(dab.flow, 0, 1);
                if (paper != nullptr) {
                    const PaperStyle& lies = style.paperStyle;
                    const double height = paperAt(*paper, lies.scale, x, y);
                    coverage *= std::clamp<double>(lies.gain * height + lies.level + dab.paperLift, 0, 1);
                }
                const Colour colour =
                    style.multicolour
                        ? multicolour(dab, style, sampledAt(tip.colour, detail, place.x, place.y, false))
                        : straightColour(dab);
                double* pixel = &layer[(static_cast<std::size_t>(y) * static_cast<std::size_t>(size.width) +
                                        static_cast<std::size_t>(x)) *
                                       4];
                for (std::size_t i = 0; i < 4; ++i) {
                    pixel[i] += coverage * (colour[i] - pixel[i]);
                }
            }
        }
    }
}

}  // namespace dabcanvas::reference
