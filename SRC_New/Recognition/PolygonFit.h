// SPDX-License-Identifier: MIT
// Polygons and open polylines nearest to a path.
#pragma once

#include "Recognition/LegFit.h"

#include <optional>
#include <vector>

namespace dabcanvas {

struct PolygonFit {
    std::vector<Vec2> corners;  // in the order drawn
    double rms = 0;             // distances of the path's points from the outline
    double furthest = 0;
    // The path's points on each side, first and last; a side that the stroke both begins and ends on has two runs.
    struct Side {
        int first = 0, last = 0;
        int againFirst = 0, againLast = -1;
    };
    std::vector<Side> sides;  // side i goes from corner i to the next
};

// A closed polygon of that many corners, wherever on its outline the stroke begins. Nothing where the legs do
// not make one.
std::optional<PolygonFit> fitPolygon(const Path& path, const LegFit& legs, int corners);

// An open polyline along the best legs; its inner corners are where their lines meet.
PolygonFit fitPolyline(const Path& path, const LegFit& legs, int count);

// Where two lines meet; nothing when they hardly turn.
std::optional<Vec2> crossing(const StraightLine& one, const StraightLine& other);
// To the nearest side; a closed outline has one from its last corner to its first. Of two corners at least.
double distanceToOutline(const Vec2& point, const std::vector<Vec2>& corners, bool closed);

}  // namespace dabcanvas
