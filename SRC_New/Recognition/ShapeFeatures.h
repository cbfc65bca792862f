// SPDX-License-Identifier: MIT
// What a stroke looks like, in numbers that do not depend on its place, size and turn.
#pragma once

#include "Recognition/EllipseFit.h"
#include "Recognition/LegFit.h"
#include "Recognition/PolygonFit.h"
#include "Recognition/StrokePath.h"

#include <array>
#include <optional>
#include <vector>

namespace dabcanvas {

// Everything that is fitted to a stroke, so that measuring and drawing work on the same fits.
struct ShapeFits {
    explicit ShapeFits(const StrokePath& stroke);

    static constexpr int kMostSides = 6;
    const PolygonFit* polygon(int corners) const;  // of 3 to kMostSides; null: none fits

    LegFit legs;
    std::optional<Ellipse> ellipse;
    std::optional<Ellipse> circle;
    std::array<std::optional<PolygonFit>, kMostSides - 2> polygons;
};

// How much the stroke turns, in radians, over each of kBins equal pieces of its length: positive from x to y.
struct TurnProfile {
    static constexpr int kBins = 32;
    explicit TurnProfile(const Path& path);
    std::vector<double> turns;  // from each point's direction to the next
    std::array<double, kBins> bins{};
};

// The first kMirrored of them change sign with the stroke's mirror image, the others stay.
struct ShapeFeatures {
    static constexpr int kMirrored = TurnProfile::kBins;
    static constexpr int kCount = 156;
    std::vector<float> values;  // kCount of them

    ShapeFeatures(const StrokePath& stroke, const ShapeFits& fits);
};

}  // namespace dabcanvas
