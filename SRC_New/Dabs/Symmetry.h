// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "Dabs/SmudgeDabs.h"
#include "Maths/Export.h"

namespace dabcanvas {

/// Which copies of a stroke are drawn with it.
enum class SymmetryKind {
    none,
    vertical,    ///< on the other side of a vertical axis
    horizontal,  ///< on the other side of a horizontal axis
    both,        ///< on all four sides of the two
    radial       ///< turned about the centre
};

/// Repeats every dab of a stroke: copies are mirrored and turned as the stroke is, tips included, and belong to the same
/// layer and undo step. Paper stays where it lies.
struct Symmetry {
    SymmetryKind kind = SymmetryKind::none;
    double centreX = 0, centreY = 0;  ///< buffer pixels; exact at edges and middles of pixels
    int rays = 6;                     ///< radial: how often in a full turn, 2 to 24
    bool mirrored = false;            ///< radial: each ray has two sides that mirror each other

    friend bool operator==(const Symmetry&, const Symmetry&) = default;
};

inline constexpr int kFewestRays = 2, kMostRays = 24;

/// What one copy is of a dab: mirrored left to right or not, then turned about a centre.
class SymmetryMap {
public:
    /// radian: counter-clockwise as seen.
    DABCANVAS_DABS_API SymmetryMap(double centreX, double centreY, bool mirrored, double radian);

    DABCANVAS_DABS_API Dab of(const Dab& dab) const;
    /// It takes up colour where the copy before it lay; of bristles, the caller says whose paint they carry.
    DABCANVAS_DABS_API SmudgeDab of(const SmudgeDab& dab) const;
    /// Of a place.
    DABCANVAS_DABS_API LPPosition of(const LPPosition& place) const;

private:
    LPPosition turned(float x, float y) const;

    double _centreX, _centreY;
    double _xx, _xy, _yx, _yy;  // x' = xx * x + xy * y, y' = yx * x + yy * y, from the centre
    // Half turns are flips, so that an upright dab's copy is upright, too.
    float _flipX, _flipY, _radian;
    bool _turnsOver;
};

/// Of all copies; the stroke itself is none of them.
DABCANVAS_DABS_API std::vector<SymmetryMap> copiesOf(const Symmetry& symmetry);

}  // namespace dabcanvas
