// SPDX-License-Identifier: MIT
// A picture at falling sizes, for whoever draws it small. Plain C++.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "Maths/Export.h"
#include "Maths/PixelView.h"

namespace dabcanvas {

// Bytes in rows from the top, without gaps, `channels` a pixel: 1 or 4.
struct Pixels {
    Size size;
    int channels = 1;
    std::vector<std::uint8_t> bytes;

    const std::uint8_t* at(int x, int y) const {
        const std::size_t pixel =
            static_cast<std::size_t>(y) * static_cast<std::size_t>(size.width) + static_cast<std::size_t>(x);
        return bytes.data() + pixel * static_cast<std::size_t>(channels);
    }
    std::uint8_t* at(int x, int y) {
        return const_cast<std::uint8_t*>(static_cast<const Pixels*>(this)->at(x, y));
    }
};

// A copy of somebody else's, with four channels.
inline Pixels pixelsOf(const PixelView& view) {
    Pixels copy{view.size, 4, {}};
    copy.bytes.resize(static_cast<std::size_t>(view.size.width) * static_cast<std::size_t>(view.size.height) *
                      4);
    copyRows(view, MutablePixelView::topRowFirst(copy.bytes.data(), view.size));
    return copy;
}

// At another size that is no larger: each pixel is the mean of the area that it covers, so that what a picture holds in
// all stays the same, whatever its sides divide by.
DABCANVAS_DABS_API Pixels reduced(const Pixels& picture, const Size& size);

// The picture itself, then levels whose sides are the powers of two below its own, each half the one before, down to a
// single pixel: odd sides would put the middle of a picture onto one texel at one level and between two at the next.
DABCANVAS_DABS_API std::vector<Pixels> levelsOf(Pixels picture);

// How a picture is read at a level of detail: 0 as it is, n at the 2^n th part of its size. `part` of the level after
// `first`, 0..1, is mixed in; 0 on the last one.
struct LevelPair {
    int first;
    float part;
};
DABCANVAS_DABS_API LevelPair levelPairAt(const std::vector<Pixels>& levels, float detail);

}  // namespace dabcanvas
