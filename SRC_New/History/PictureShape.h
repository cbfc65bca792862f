// SPDX-License-Identifier: MIT
// What a picture of tiles is besides its pixels: its size, and its layers where it has some.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "History/LayerSettings.h"
#include "Maths/Rect.h"

namespace dabcanvas {

inline constexpr std::size_t kMostLayers = 256;

struct Layer {
    std::uint32_t id = 0;  // of one canvas, for good
    LayerSettings settings;

    friend bool operator==(const Layer&, const Layer&) = default;
};

// Of the single layer of a picture of which nothing more is said.
inline constexpr std::uint32_t kFirstLayer = 1;

struct PictureShape {
    Size size{};
    // From the lowest one up; null: a single one of which there is nothing to say.
    std::shared_ptr<const std::vector<Layer>> layers;
    std::size_t front = 0;  // the one that was painted on; not a part of what the picture looks like

    PictureShape() = default;
    PictureShape(const Size& one) : size(one) {}

    std::size_t planes() const { return layers ? layers->size() : 1; }
    Layer layer(std::size_t plane) const { return layers ? (*layers)[plane] : Layer{kFirstLayer, {}}; }
    std::uint32_t idOf(std::size_t plane) const { return layers ? (*layers)[plane].id : kFirstLayer; }
    // Whether a tile of one has a tile at the same index of the other.
    bool hasGridOf(const PictureShape& other) const {
        return size == other.size && planes() == other.planes();
    }
    bool looksAs(const PictureShape& other) const {
        return size == other.size &&
               (layers == other.layers || (layers && other.layers && *layers == *other.layers));
    }
};

}  // namespace dabcanvas
