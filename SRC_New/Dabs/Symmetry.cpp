// SPDX-License-Identifier: MIT
#include "Dabs/Symmetry.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace dabcanvas {

namespace {

constexpr double kHalfTurn = std::numbers::pi;

// Of quarters exactly.
double tidied(double cosineOrSine) {
    constexpr double kNear = 1e-12;
    const double whole = std::round(cosineOrSine);
    return std::fabs(cosineOrSine - whole) < kNear ? whole : cosineOrSine;
}

void addTurned(std::vector<SymmetryMap>& maps, const Symmetry& symmetry, bool mirrored) {
    const int rays = std::clamp(symmetry.rays, kFewestRays, kMostRays);
    for (int ray = mirrored ? 0 : 1; ray < rays; ++ray) {
        maps.emplace_back(symmetry.centreX, symmetry.centreY, mirrored, 2 * kHalfTurn * ray / rays);
    }
}

}  // namespace

SymmetryMap::SymmetryMap(double centreX, double centreY, bool mirrored, double radian)
    : _centreX(centreX), _centreY(centreY), _turnsOver(mirrored) {
    const double cosine = tidied(std::cos(radian)), sine = tidied(std::sin(radian));
    const double side = mirrored ? -1 : 1;
    _xx = side * cosine;
    _xy = sine;
    _yx = -side * sine;
    _yy = cosine;

    // Turned by up to a quarter, and by half a turn besides or not.
    const bool isHalf = cosine < 0 || (cosine == 0 && sine < 0);
    _flipX = static_cast<float>(isHalf ? -side : side);
    _flipY = isHalf ? -1.0f : 1.0f;
    _radian = static_cast<float>(isHalf ? std::atan2(-sine, -cosine) : std::atan2(sine, cosine));
}

LPPosition SymmetryMap::of(const LPPosition& place) const {
    const double x = place.x - _centreX, y = place.y - _centreY;
    return {static_cast<float>(_centreX + _xx * x + _xy * y),
            static_cast<float>(_centreY + _yx * x + _yy * y)};
}

LPPosition SymmetryMap::turned(float x, float y) const {
    return {static_cast<float>(_xx * x + _xy * y), static_cast<float>(_yx * x + _yy * y)};
}

Dab SymmetryMap::of(const Dab& dab) const {
    Dab copy = dab;
    const LPPosition place = of(LPPosition{dab.x, dab.y});
    copy.x = place.x;
    copy.y = place.y;
    copy.radian = (_turnsOver ? -dab.radian : dab.radian) + _radian;
    copy.flipX *= _flipX;
    copy.flipY *= _flipY;
    return copy;
}

SmudgeDab SymmetryMap::of(const SmudgeDab& dab) const {
    SmudgeDab copy = dab;
    copy.dab = of(dab.dab);
    copy.pickUp = of(dab.pickUp);
    const LPPosition across = turned(dab.bristles.acrossX, dab.bristles.acrossY);
    copy.bristles.acrossX = across.x;
    copy.bristles.acrossY = across.y;
    copy.bristles.ahead *= _turnsOver ? -1.0f : 1.0f;
    return copy;
}

std::vector<SymmetryMap> copiesOf(const Symmetry& symmetry) {
    const double x = symmetry.centreX, y = symmetry.centreY;
    std::vector<SymmetryMap> maps;
    switch (symmetry.kind) {
        case SymmetryKind::none:
            break;
        case SymmetryKind::vertical:
            maps.emplace_back(x, y, true, 0);
            break;
        case SymmetryKind::both:
            maps.emplace_back(x, y, true, 0);
            maps.emplace_back(x, y, false, kHalfTurn);
            [[fallthrough]];
        case SymmetryKind::horizontal:
            maps.emplace_back(x, y, true, kHalfTurn);
            break;
        case SymmetryKind::radial:
            addTurned(maps, symmetry, false);
            if (symmetry.mirrored) {
                addTurned(maps, symmetry, true);
            }
            break;
    }
    return maps;
}

}  // namespace dabcanvas
