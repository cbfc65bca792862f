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

// Part of a layer or a picture. Beyond its edges it goes on as it is there.
template <typename Channel>
struct SmudgePart {
    const Channel* values;
    Size size;
    std::ptrdiff_t stride;  // values
};
using SmudgeTexels = SmudgePart<std::int16_t>;

// Fills a part of a layer with what it shows of a picture.
struct ReducedPart {
    SmudgePart<std::uint8_t> from;
    Steps across, down;
    Size size;                 // of the part; up to kTileSide each way
    std::int16_t *to, *toToo;  // laid out as tiles; both get the same
};
void reduce(const ReducedPart& part);

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
    const std::uint16_t* exchanged;  // how much of each pixel was, laid out as pairedPlace() tells
    Rect part;
    SmudgeTexels now, then;  // what the layer holds and held, equally large
    Steps across, down;      // of the tile's first pixel
    std::int16_t opacity;    // of kSmudgeFull
    std::uint32_t noise;     // of the tile's first pixel, see noiseAt()
};
void putSmudges(const PutSmudges& part);

}  // namespace dabcanvas
