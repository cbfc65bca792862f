// SPDX-License-Identifier: MIT
#include "Dabs/TipImage.h"

#include <algorithm>
#include <utility>

namespace dabcanvas {
namespace {

// One channel, or what `valueOf` makes of the four.
template <typename ValueOf>
Pixels channelOf(const PixelView& pixels, ValueOf&& valueOf) {
    Pixels channel{pixels.size, 1, {}};
    channel.bytes.resize(static_cast<std::size_t>(pixels.size.width) *
                         static_cast<std::size_t>(pixels.size.height));
    for (int y = 0; y < pixels.size.height; ++y) {
        const std::uint8_t* const from = pixels.row(y);
        std::uint8_t* const to = channel.at(0, y);
        for (int x = 0; x < pixels.size.width; ++x) {
            to[x] = valueOf(from + std::ptrdiff_t{4} * x);
        }
    }
    return channel;
}

Pixels squeezed(Pixels picture, int most) {
    const Size size{std::min(picture.size.width, most), std::min(picture.size.height, most)};
    return size == picture.size ? std::move(picture) : reduced(picture, size);
}

std::uint8_t grainOf(const std::uint8_t* rgba) {
    return static_cast<std::uint8_t>(0.299f * rgba[0] + 0.587f * rgba[1] + 0.114f * rgba[2] + 0.5f);
}

}  // namespace

TipImage tipImageOf(const Picture& picture, int most, bool withColour) {
    TipImage tip;
    if (picture.pixels.isNull()) {
        return tip;
    }
    tip.alpha =
        levelsOf(squeezed(channelOf(picture.pixels, [](const std::uint8_t* rgba) { return rgba[3]; }), most));
    if (withColour) {
        tip.colour = levelsOf(squeezed(pixelsOf(picture.pixels), most));
    }
    return tip;
}

PaperImage paperImageOf(const Picture& picture) {
    PaperImage paper;
    if (!picture.pixels.isNull()) {
        paper.grain = levelsOf(squeezed(channelOf(picture.pixels, grainOf), mostTipSide(1)));
    }
    return paper;
}

}  // namespace dabcanvas
