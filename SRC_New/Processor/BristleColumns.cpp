// SPDX-License-Identifier: MIT
#include "Processor/BristleColumns.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace dabcanvas {
namespace {

using Colour = std::array<float, 4>;

// Where a bristle reads: a texel and the way from its centre to the next ones, within the layer.
struct Place {
    int x, y;
    float right, down;

    Place(float atX, float atY, const Size& layer) {
        const auto within = [](float place, int texels) {
            return place > 0 ? std::min(place, static_cast<float>(texels - 1)) : 0.0f;
        };
        const float inX = within(atX - 0.5f, layer.width), inY = within(atY - 0.5f, layer.height);
        x = static_cast<int>(inX);
        y = static_cast<int>(inY);
        right = inX - static_cast<float>(x);
        down = inY - static_cast<float>(y);
    }
};

const std::uint16_t* texelAt(const BristleColumns::Layer& layer, int x, int y) {
    static constexpr std::uint16_t kTransparent[4]{};
    const auto* tile = layer.tile(layer.indexAt(x, y));
    return tile != nullptr ? tile->at(x % kTileSide, y % kTileSide) : kTransparent;
}

Colour colourOf(const std::uint16_t* texel) {
    return {static_cast<float>(texel[0]), static_cast<float>(texel[1]), static_cast<float>(texel[2]),
            static_cast<float>(texel[3])};
}

Colour sampled(const BristleColumns::Layer& layer, const Place& place) {
    const bool isLastX = place.x + 1 == layer.size().width, isLastY = place.y + 1 == layer.size().height;
    const std::uint16_t* texels[4] = {texelAt(layer, place.x, place.y)};
    if (place.x % kTileSide != kTileSide - 1 && place.y % kTileSide != kTileSide - 1 &&
        layer.tile(layer.indexAt(place.x, place.y)) != nullptr) {
        texels[1] = texels[0] + (isLastX ? 0 : 4);
        texels[2] = texels[0] + (isLastY ? 0 : 4 * kTileSide);
        texels[3] = texels[2] + (isLastX ? 0 : 4);
    } else {
        const int right = place.x + (isLastX ? 0 : 1), below = place.y + (isLastY ? 0 : 1);
        texels[1] = texelAt(layer, right, place.y);
        texels[2] = texelAt(layer, place.x, below);
        texels[3] = texelAt(layer, right, below);
    }
    const Colour of[4] = {colourOf(texels[0]), colourOf(texels[1]), colourOf(texels[2]), colourOf(texels[3])};
    Colour colour;
    for (std::size_t i = 0; i < 4; ++i) {
        const float upper = of[0][i] + (of[1][i] - of[0][i]) * place.right;
        const float lower = of[2][i] + (of[3][i] - of[2][i]) * place.right;
        colour[i] = (upper + (lower - upper) * place.down) * (1.0f / kSmudgeFull);
    }
    return colour;
}

std::array<float, kMostBristles> thirsts() {
    std::array<float, kMostBristles> all{};
    for (int i = 0; i < kMostBristles; ++i) {
        all[static_cast<std::size_t>(i)] = bristleThirst(i);
    }
    return all;
}

float unit(float value) {
    return value > 0 ? std::min(value, 1.0f) : 0.0f;
}
// 1 - exp(-x), of what is not far from 0.
float share(float x) {
    return unit(1 - 1 / (1 + x * (1 + x / 2 * (1 + x / 3 * (1 + x / 4)))));
}
int countOf(const BristleDab& bristles) {
    return std::clamp(bristles.count, 1, kMostBristles);
}

}  // namespace

Rect BristleColumns::reach(const BristleDab& bristles, const Dab& inLayer, const Size& layer) {
    const BristleSpan span(inLayer, bristles);
    const float far = std::max(span.across, span.ahead) + 1;
    const Place first(inLayer.x - far, inLayer.y - far, layer), last(inLayer.x + far, inLayer.y + far, layer);
    return Rect::between(first.x, first.y, last.x + 2, last.y + 2).intersected(Rect::of(layer));
}

void BristleColumns::takeUp(const BristleDab& bristles, const Dab& inLayer, const Layer& before) {
    static const std::array<float, kMostBristles> kThirsts = thirsts();
    const BristleSpan span(inLayer, bristles);
    const Colour own = {unit(inLayer.color.r), unit(inLayer.color.g), unit(inLayer.color.b), 1};
    const int count = countOf(bristles);
    for (int i = 0; i < count; ++i) {
        const LPPosition from = bristlePlace(bristles, span, bristleAcross(i, count));
        const Colour below = sampled(before, {inLayer.x + from.x, inLayer.y + from.y, before.size()});
        const auto at = static_cast<std::size_t>(i);
        const float part =
            bristles.isFirst ? unit(bristleLoad(i, bristles.load)) : share(bristles.uptake * kThirsts[at]);
        const Colour& start = bristles.isFirst ? below : _held[at];
        const Colour& end = bristles.isFirst ? own : below;
        for (std::size_t k = 0; k < 4; ++k) {
            _held[at][k] = start[k] + (end[k] - start[k]) * part;
        }
    }
    layOut(bristles, inLayer, span.across);
}

// From left to right in the layer, whichever side they began on: kernels want steps to the right to lead on.
void BristleColumns::layOut(const BristleDab& bristles, const Dab& inLayer, float across) {
    const int count = countOf(bristles), beyond = count / 2 + 4;
    const bool isTurned = bristles.acrossX < 0;
    _laidOut = count + 2 * beyond;
    const auto wordsAt = [&](int i) { return _words.data() + std::ptrdiff_t{4} * i; };
    for (int i = 0; i < count; ++i) {
        const Colour& held = _held[static_cast<std::size_t>(isTurned ? count - 1 - i : i)];
        for (std::size_t k = 0; k < 4; ++k) {
            wordsAt(beyond + i)[k] = static_cast<std::int16_t>(held[k] * kSmudgeFull + 0.5f);
        }
    }
    for (int i = 0; i < beyond; ++i) {
        std::memcpy(wordsAt(i), wordsAt(beyond), 8);
        std::memcpy(wordsAt(beyond + count + i), wordsAt(beyond + count - 1), 8);
    }
    const double perTexel = (isTurned ? -0.5 : 0.5) * count / across;
    _right = bristles.acrossX * perTexel;
    _down = bristles.acrossY * perTexel;
    _corner = (_laidOut - 1) * 0.5 - inLayer.x * _right - inLayer.y * _down;
}

CarriedColours BristleColumns::carried(const Rect& part) const {
    return {.colours = _words.data(),
            .count = _laidOut,
            .start = fixedPlace(_corner + (part.x + 0.5) * _right + (part.y + 0.5) * _down),
            .right = fixedPlace(_right),
            .down = fixedPlace(_down)};
}

}  // namespace dabcanvas
