// SPDX-License-Identifier: MIT
// Smudging: a layer shows the picture at half its resolution, dabs move colour about in it, and what they brought is put
// back onto the picture where they lay.
//
// Layer    tiles that are made when a dab first needs them, from the picture as it was when the stroke began.
// Errors   std::bad_alloc; some of the dabs have drawn then.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <variant>
#include <vector>

#include "Dabs/SmudgeDabs.h"
#include "Processor/DabPainter.h"
#include "Processor/Tiles.h"
#include "Surface/PaintSurface.h"

namespace dabcanvas {

class SmudgePainter {
public:
    SmudgePainter(const Size& picture, int layerDepth);

    // A picture of 8 or 16 bits a channel.
    using Shown = std::variant<TileGrid<std::uint8_t>, TileGrid<std::uint16_t>>;
    // The layer shows this from now on.
    void show(Shown picture);
    // Gives its memory back; nothing can be smudged until it shows something again.
    void forget();

    // Each dab takes up colour where the one before it lay. `coverage` gets the dabs that tell how much of each pixel
    // of the picture was exchanged. Returns the pixels of it that a composite may change. `count`: dabs drawn so far.
    Rect smudge(std::span<const SmudgeDab> dabs, const DabStyle& style, float load, std::uint64_t count,
                std::vector<Dab>& coverage);
    // The picture becomes the background with what was brought, where `exchanged` has paint. `part`: the pixels of one
    // tile, which both views are of.
    void composite(const MutablePixelView& picture, const PixelView& background,
                   const Tile<std::uint16_t>& exchanged, const Rect& part, float opacity,
                   std::uint32_t commits);

private:
    using Layer = TileGrid<std::uint16_t>;
    struct Mixture;
    // Texels of a part of a layer, side by side.
    struct Texels {
        Rect rect;
        std::vector<std::uint16_t> values;

        const std::uint16_t* at(int x, int y) const {
            return values.data() +
                   (static_cast<std::size_t>(y - rect.y) * static_cast<std::size_t>(rect.width) +
                    static_cast<std::size_t>(x - rect.x)) *
                       4;
        }
    };

    void provide(const Rect& texels);
    void showTile(std::size_t index);
    template <typename Channel>
    void showTileOf(const TileGrid<Channel>& picture, std::size_t index);
    void round(const Rect& texels);
    static void take(const Layer& from, const Rect& rect, Texels& to);
    Dab inLayer(const Dab& dab) const;
    Rect smudgeOne(const SmudgeDab& dab, const Mixture& mixture, const DabStyle& style, std::uint64_t count);
    void takeCover(const Rect& covered);
    void exchange(const Rect& covered, const Rect& origin, const SmudgeDab& dab, const Mixture& mixture,
                  std::uint64_t count);

    Size _size;
    int _layerDepth;
    Shown _picture;           // as it was when the stroke began
    Layer _layer, _before;    // now and then; tiles exist where the layer was needed
    double _scaleX, _scaleY;  // of the layer to the picture
    DabPainter _painter;
    Layer _covers;  // one dab, by itself
    Texels _cover, _picked, _old;
};

}  // namespace dabcanvas
