// SPDX-License-Identifier: MIT
// Smudging, a part of a tile at a time: what the layer is filled with, what dabs take up of it, and what is put onto the
// picture. Premultiplied RGBA in words of which kSmudgeFull is the most: the difference of two fits a word, too.
//
// Rows     kernels read whole vectors: up to kSpareValues values beyond what they are asked for, and beyond the last
//          row of a tile or patch.
// Same     whatever instruction set the processor has; what is of one colour stays so to the bit.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "Maths/Rect.h"

namespace dabcanvas {

inline constexpr int kSmudgeFull = 32767;
inline constexpr std::size_t kSpareValues = 64;

// Where a row of pixels lies among others: the first one's centre, and the way from each to the next. 16 bits behind the
// point, 0 in the middle of the first of the others.
struct Steps {
    std::int64_t start, step;

    std::int64_t at(int i) const { return start + step * i; }
};

// Part of a layer. Beyond its edges it goes on as it is there.
struct SmudgeTexels {
    const std::int16_t* values;
    Size size;
    std::ptrdiff_t stride;  // values
};

// Fills a row of a layer with what the two rows of the picture show between which it lies.
struct ReducedRow {
    const std::uint8_t *upper, *lower;
    int pixels;       // of those, up to kMostReduced
    std::int64_t at;  // between both, 16 bits behind the point
    Steps across;     // of the texels among the pixels
    int count;        // texels
    std::int16_t* to;
};
inline constexpr int kMostReduced = 256;
void reduceRow(const ReducedRow& row);

// What a dab's pixels turn into where it covers them wholly: what lies under another place, mixed with a colour.
struct PickedUp {
    SmudgeTexels from;
    Steps across, down;
    Size size;  // of the part
    std::array<std::int16_t, 4> colour;
    std::int16_t colourPart;  // of kSmudgeFull
    std::uint16_t* to;        // laid out as a tile
};
void pickUp(const PickedUp& part);

// The layer is coarser than the picture: what it has now less what remains of what it had is all that is enlarged, so that
// the picture keeps its detail where dabs were thin. Pixels that no dab exchanged stay as they are, to the bit.
struct PutSmudges {
    // Tiles, of which the rows and columns of `part` count.
    std::uint8_t* picture;
    const std::uint8_t* background;
    const std::uint16_t* exchanged;  // alpha counts: how much of each pixel was
    Rect part;
    SmudgeTexels now, then;  // what the layer holds and held, equally large
    Steps across, down;      // of the tile's first pixel
    std::int16_t opacity;    // of kSmudgeFull
    std::uint32_t noise;     // of the tile's first pixel, see noiseAt()
};
void putSmudges(const PutSmudges& part);

}  // namespace dabcanvas
