// SPDX-License-Identifier: MIT
// Draws dabs into a layer of 16 bits a channel: tip times paper times flow, over what is there. A layer of 8 bits is one
// whose values are rounded to 257 times a byte after each dab.
//
// Pixels   premultiplied, full scale 65535. Rounded by a noise of place and dab, alike for the channels of a pixel, so
//          that many faint dabs come out at what they add up to, and no channel exceeds its alpha.
// Same     whatever the processor has (AVX-512, AVX2, SSE4, NEON, nothing) and however many threads work: the same bytes.
// Memory   what is derived of tips and papers is bounded in bytes, see kMostDerived, and made piece by piece.
// Thread   one at a time; spreads its work over others by itself.
// Errors   std::bad_alloc; the layer then holds some of the dabs.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

#include "Dabs/Dab.h"
#include "Maths/Rect.h"
#include "Processor/Tiles.h"
#include "Surface/PaintSurface.h"

namespace dabcanvas {

// Colours that differ from pixel to pixel of a dab.
class DabColours {
public:
    // Before anything is drawn: the pixels that the dab may touch.
    virtual void begin(const Rect& pixels) = 0;
    // Those of a part of one tile, laid out as the tile is, beyond which anything may stand. On any thread, several at a
    // time; valid until the same thread asks again.
    virtual const std::uint16_t* of(const Rect& part) = 0;

protected:
    ~DabColours() = default;
};

// What dabs cover, full scale 65535; in tiles laid out as pairedPlace() tells.
using CoverageGrid = TileGrid<std::uint16_t, 1>;

class DabPainter {
public:
    static constexpr std::size_t kMostDerived = std::size_t{32} << 20;  // bytes

    explicit DabPainter(int layerDepth = 16);
    ~DabPainter();
    DabPainter(const DabPainter&) = delete;
    DabPainter& operator=(const DabPainter&) = delete;

    // Makes what dabs of this style are drawn from, else made for the first that needs it.
    void makeReady(const DabStyle& style);

    // Returns the pixels that may have changed. `count` is the number of the first dab since the surface was made: what
    // the noise starts from.
    Rect draw(TileGrid<std::uint16_t>& layer, std::span<const Dab> dabs, const DabStyle& style,
              std::uint64_t count);
    // The same of one dab, without paper, in these colours.
    Rect draw(TileGrid<std::uint16_t>& layer, const Dab& dab, const DabStyle& style, std::uint64_t count,
              DabColours& colours);
    // What dabs cover, without paper, adds up as their alpha would.
    Rect draw(CoverageGrid& layer, std::span<const Dab> dabs, const DabStyle& style, std::uint64_t count);

private:
    struct Inside;
    std::unique_ptr<Inside> _inside;
};

}  // namespace dabcanvas
