// SPDX-License-Identifier: MIT
// How paint dries: pigment wanders to the rim, and the inside gets paler. What becomes of a pixel follows from the
// alpha of the line layer around it, so that composing it again, in whatever parts, comes to the same.
//
// With a the pixel's alpha and B the mean alpha around it, weighed by a tent that reaches as far as the rim is wide
// (beyond the canvas the pixel at its border counts, so that no rim runs along there), the pixel is
//     inside = clamp(2 B / a^(3/4) - 1, 0, 1), 0 at a rim and 1 in the middle of a broad stroke,
//     and loses wetEdge * inside * inside * (3 - 2 * inside) of all its channels.
// By B / a alone, thin paint would dry as thick does, but what has a grain or a soft rim would get no even rim at all;
// by B alone, thin paint would get none.
#pragma once

namespace dabcanvas {

inline constexpr int kMostWetEdge = 64;

// The tent, along rows and then along columns: a mean of 2 * near + 1 pixels, of which one of 2 * far + 1 is taken. Its
// weights are whole numbers, so that every surface sums up the same.
struct WetEdgeTent {
    int near, far;

    explicit constexpr WetEdgeTent(int width) : near(width / 2), far(width - width / 2) {}
    constexpr int reach() const { return near + far; }
    // Of all weights along one way.
    constexpr int sum() const { return (2 * near + 1) * (2 * far + 1); }
    // So many pixels away.
    constexpr int weight(int away) const {
        const int falling = reach() + 1 - (away < 0 ? -away : away);
        return falling < 2 * near + 1 ? falling : 2 * near + 1;
    }
};

}  // namespace dabcanvas
