// SPDX-License-Identifier: MIT
// A tip as dabs read it on the processor: each level of detail as a table in which one read of 32 bits gives the four
// texels around a place.
//
// Thread   one at a time makes; any number read what levels() returned.
// Errors   std::bad_alloc; nothing has changed then.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "Dabs/TipImage.h"

namespace dabcanvas {

inline constexpr std::size_t kTipTableSpare = 256;

struct TipTable {
    // For each texel, itself and the one below it; rows of width + 1 such pairs, the last column twice, the last row
    // above itself. At the end as many bytes more as kernels may read at once.
    std::vector<std::uint8_t> pairs;
    Size size;
    // Nothing lies beyond this part of the half sides, in the round; 2 and more where corners hold something.
    float reach = 2;

    int stride() const { return 2 * (size.width + 1); }  // bytes
};

class TipTables {
public:
    explicit TipTables(TipImage image);

    bool isEmpty() const { return _size.width == 0; }
    const Size& size() const { return _size; }
    std::size_t bytes() const { return _bytes; }  // in memory

    // The levels that a detail is read from, the second one null where the first is all; as levelPairAt().
    struct Pair {
        const TipTable* first;
        const TipTable* second;
        float part;  // of the second, 0..1
        int level;   // number of the first
    };
    Pair levels(float detail);
    // Every level's table, which else is made when it is first asked for.
    void makeAll();
    bool hasColour() const { return !_image.colour.empty(); }
    // Premultiplied RGBA of a level.
    const Pixels& colour(int level) const { return _image.colour[static_cast<std::size_t>(level)]; }

private:
    const TipTable& table(std::size_t level);

    TipImage _image;
    Size _size;
    std::vector<float> _details;  // of the levels
    std::vector<TipTable> _tables;
    std::size_t _bytes = 0;
};

}  // namespace dabcanvas
