// SPDX-License-Identifier: MIT
// What smudging brought, put onto a row of the picture.
#pragma once

#include <cstdint>

namespace dabcanvas {

// Where a pixel lies between two texels of a row.
struct TexelPlace {
    int low, high;  // texels from the row's first
    float part;     // of the higher one
};

struct SmudgeRow {
    std::uint8_t* picture;  // as many bytes a pixel as are told below
    const std::uint8_t* background;
    const std::uint16_t*
        exchanged;             // four values a pixel, of which alpha counts: how much of it was exchanged
    const float *now, *then;   // four values a texel, full scale 65535: what the layer holds, and held
    const TexelPlace* places;  // of the pixels
    int count;                 // pixels
    float opacity;             // 0..1
    std::uint32_t noise;       // of the first pixel, see noiseAt()
    std::uint32_t along;       // what it grows by from pixel to pixel
    int pixelBytes;            // 4 or 8: 8 or 16 bits a channel
};

// The layer is coarser than the picture: what it has now less what remains of what it had is all that is enlarged, so that
// the picture keeps its detail where dabs were thin. Pixels that no dab exchanged stay as they are, to the bit.
void putSmudges(const SmudgeRow& row);

}  // namespace dabcanvas
