// SPDX-License-Identifier: MIT
/// \file
/// Bristles that carry colour, side by side across a stroke's way. Each holds paint, at first the brush's own, lays it
/// down where the dab is, and takes up what it goes over, as that was before the stroke: more the further it goes,
/// however many dabs that takes. The same for every surface. Plain C++.
///
/// Places   are -1..1 across the dab, from the first bristle's outer edge to the last one's.
/// Colours  premultiplied; on a transparent canvas bristles take up transparency, so that they run out of paint.
#pragma once

#include <algorithm>
#include <cmath>

#include "Dabs/Dab.h"

namespace dabcanvas {

inline constexpr int kMostBristles = 64;
/// A stroke with its copies, see Symmetry.h: each carries paint of its own.
inline constexpr int kMostBristleSets = 48;

/// What bristles do in one dab.
struct BristleDab {
    /// Of what is laid down that comes from the bristles; the rest is taken up as without. 0: none do.
    float part = 0;
    float uptake = 0;  ///< how far a bristle goes towards the paint below it: by 1 - exp(-uptake) of the way
    float acrossX = 0, acrossY = 1;  ///< a step across the stroke's way, one pixel long
    float ahead = 1;                 ///< 1 where the stroke goes a quarter turn clockwise from that, else -1
    float load = 0;                  ///< at a stroke's first dab
    int count = 1;                   ///< of bristles, up to kMostBristles; the same for all dabs of a stroke
    bool isFirst = false;            ///< of a stroke: they hold nothing yet
    int set = 0;  ///< whose paint it is: 0 the stroke's, others its copies', below kMostBristleSets
};

/// Bristles differ, in clumps and one by one. 0..1, evenly spread over any few in a row.
inline float bristleChance(int bristle, float turn) {
    const auto spread = [](float value) { return value - std::floor(value); };
    const auto at = static_cast<float>(bristle);
    return (spread(at * 0.618034f + turn) + spread(std::floor(at / 5) * 0.7548777f + turn)) / 2;
}
/// How readily one takes up, relative to others.
inline float bristleThirst(int bristle) {
    const float chance = bristleChance(bristle, 0.13f);
    return 0.15f + 2.4f * chance * chance;
}
/// How much of the brush's own colour one begins with; more and less about the load, but for none and for all.
inline float bristleLoad(int bristle, float load) {
    const float spread = 4 * load * (1 - load);
    return std::clamp(load + spread * (bristleChance(bristle, 0.59f) - 0.5f), 0.0f, 1.0f);
}

/// Half of what a dab measures across the stroke's way, and along it; pixels.
struct BristleSpan {
    float across, ahead;

    BristleSpan(const Dab& dab, const BristleDab& bristles) {
        const bool isUpright = dab.radian == 0;
        const float cosine = isUpright ? 1 : std::cos(dab.radian),
                    sine = isUpright ? 0 : std::sin(dab.radian);
        // Of the ellipse in the dab's box, along a way.
        const auto half = [&](float x, float y) {
            const float along = cosine * x - sine * y, aside = (sine * x + cosine * y) * dab.roundness;
            return (std::max)(dab.halfSize * std::sqrt(along * along + aside * aside), 0.25f);
        };
        across = half(bristles.acrossX, bristles.acrossY);
        ahead = half(-bristles.acrossY, bristles.acrossX);
    }
};

/// How far behind the middle one takes up; pixels along the quarter turn.
inline float bristleLag(const BristleDab& bristles, const BristleSpan& span) {
    constexpr float kBack = 0.7f;
    return bristles.isFirst ? 0.0f : kBack * bristles.ahead * span.ahead;
}
/// Where a bristle lies across, -1..1.
inline float bristleAcross(int bristle, int count) {
    return (static_cast<float>(bristle) + 0.5f) / static_cast<float>(count) * 2 - 1;
}
/// Where one takes up paint, from the dab's centre: what the dab leaves behind is what it lays down for good, so there
/// they meet. On a stroke's first dab across its middle.
inline LPPosition bristlePlace(const BristleDab& bristles, const BristleSpan& span, float place) {
    const float across = place * span.across;
    const float ahead = -bristleLag(bristles, span) * std::sqrt(1 - place * place);
    return {bristles.acrossX * across - bristles.acrossY * ahead,
            bristles.acrossY * across + bristles.acrossX * ahead};
}

}  // namespace dabcanvas
