// SPDX-License-Identifier: MIT
// Tips and papers as surfaces draw from them: with their levels of detail, each picture by itself, so that nothing of
// a neighbour or of emptiness is ever mixed in. Never changed once made; any number of threads may read.
#pragma once

#include <memory>
#include <vector>

#include "Dabs/MipLevels.h"
#include "Dabs/Picture.h"
#include "Maths/Export.h"

namespace dabcanvas {

// Texels beyond a level's edge count as the nearest one at the edge.
struct TipImage {
    std::vector<Pixels> alpha;   // one channel, rows from the top; empty for an image that is none
    std::vector<Pixels> colour;  // premultiplied RGBA, as large; only where asked for

    bool isEmpty() const { return alpha.empty(); }
    const Size& size() const { return alpha.front().size; }
    int lastLevel() const { return static_cast<int>(alpha.size()) - 1; }
};

// What a paper lets through, white all, black and transparent nothing. Beyond an edge it begins anew.
struct PaperImage {
    std::vector<Pixels> grain;  // one channel, rows from the top; empty for an image that is none
};

// A tip of so many in a brush; one larger than `most` on a side is squeezed to it, on that side alone. Throws
// std::bad_alloc.
DABCANVAS_DABS_API TipImage tipImageOf(const Picture& picture, int most, bool withColour);
DABCANVAS_DABS_API PaperImage paperImageOf(const Picture& picture);

// The most texels on a side of one tip of so many.
constexpr int mostTipSide(std::size_t tips) {
    return tips <= 1 ? 2048 : tips <= 4 ? 1024 : 512;
}

}  // namespace dabcanvas
