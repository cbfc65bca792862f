// SPDX-License-Identifier: MIT
// Smudging, a part of a tile at a time: what the layer is filled with, what dabs take up of it, and what is put onto the
// picture. Premultiplied RGBA in words of which kSmudgeFull is the most: the difference of two fits a word, too.
//
// Rows     kernels read whole vectors: up to kSpareValues values beyond what they are asked for, and beyond the last
//          row of a tile or patch.
// Same     whatever instruction set the processor has; what is of one colour stays so to the bit.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>

#include "Maths/Rect.h"
#include "Processor/BlendRows.h"

namespace dabcanvas {

inline constexpr int kSmudgeFull = 32767;
inline constexpr std::size_t kSpareValues = 64;

// Where a row of pixels lies among others: the first one's centre, and the way from each to the next. 16 bits behind the
// point, 0 in the middle of the first of the others.
struct Steps {
    std::int64_t start, step;

    std::int64_t at(int i) const { return start + step * i; }
};

// A place as they count.
inline std::int64_t fixedPlace(double places) {
    constexpr double kFar = 1 << 24;
    const double near = std::isfinite(places) ? std::clamp(places, -kFar, kFar) : 0;
    return static_cast<std::int64_t>(std::floor(near * 65536 + 0.5));
}

// Part of a layer or a picture. Beyond its edges it goes on as it is there.
template <typename Channel>
struct SmudgePart {
    const Channel* values;
    Size size;
    std::ptrdiff_t stride;  // values
};
using SmudgeTexels = SmudgePart<std::int16_t>;

// Fills a part of a layer with what it shows of a picture, of 8 or 16 bits a channel.
template <typename Channel>
struct ReducedPart {
    SmudgePart<Channel> from;
    Steps across, down;
    Size size;                 // of the part; up to kTileSide each way
    std::int16_t *to, *toToo;  // laid out as tiles; both get the same
};
void reduce(const ReducedPart<std::uint8_t>& part);
void reduce(const ReducedPart<std::uint16_t>& part);

// Colours that lie side by side, in whatever direction: where a part's first pixel is among them, and the steps from pixel to
// pixel, that to the right not below 0.
struct CarriedColours {
    const std::int16_t* colours;  // with kSpareValues beyond them
    int count;
    std::int64_t start, right, down;
};

// What a dab's pixels turn into where it covers them wholly: what lies under another place, or is carried along, mixed with a
// colour.
struct PickedUp {
    SmudgeTexels from;
    Steps across, down;
    Size size;  // of the part
    std::array<std::int16_t, 4> colour;
    std::int16_t colourPart;  // of kSmudgeFull
    std::uint16_t* to;        // laid out as a tile
    CarriedColours carried{};
    std::int16_t carriedPart = 0;  // of it in what is not the colour, of kSmudgeFull
};
void pickUp(const PickedUp& part);

// The layer is coarser than the picture: what it has now less what remains of what it had is all that is enlarged, so that
// the picture keeps its detail where dabs were thin. Pixels that no dab exchanged stay as they are, to the bit.
template <typename Channel>
struct PutSmudges {
    // Tiles, of which the rows and columns of `part` count.
    Channel* picture;
    const Channel* background;
    const std::uint16_t* exchanged;  // how much of each pixel was, laid out as pairedPlace() tells
    Rect part;
    SmudgeTexels now, then;  // what the layer holds and held, equally large
    Steps across, down;      // of the tile's first pixel
    std::int16_t opacity;    // of kSmudgeFull
    RowNoise noise;          // of the tile's first pixel, for a picture of 8 bits a channel
};
void putSmudges(const PutSmudges<std::uint8_t>& part);
void putSmudges(const PutSmudges<std::uint16_t>& part);

}  // namespace dabcanvas
