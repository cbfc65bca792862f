// SPDX-License-Identifier: MIT
// The colours of a dab that shows its tip's own ones. Plain values; the pixels are the tip's.
#pragma once

#include <array>
#include <cstdint>

#include "Dabs/Dab.h"
#include "Dabs/MipLevels.h"
#include "Surface/PaintSurface.h"

namespace dabcanvas {

class Multicolour {
public:
    // A level's premultiplied texels, and the place in it: 16 bits behind the point, 0 at the first texel's centre.
    struct Read {
        const Pixels* level;
        std::int32_t u, v;
    };

    Multicolour(const Dab& dab, const DabStyle& style);

    // The colour at a place between two levels, 0..65535 and opaque; `part` of the second one is mixed in.
    std::array<std::uint16_t, 4> at(const Read& first, const Read& second, float part) const;

private:
    std::array<float, 3> _brush;
    std::array<float, 3> _swing;  // of hue, saturation, brightness
};

}  // namespace dabcanvas
