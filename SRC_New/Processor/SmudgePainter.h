// SPDX-License-Identifier: MIT
// Smudging: a layer shows the picture at half its resolution, dabs move colour about in it, and what they brought is put
// back onto the picture where they lay.
//
// Layer    tiles that are made when a dab first needs them, block by block, from the picture as it was when the stroke
//          began; 15 bits a channel, see SmudgeRows.h.
// Errors   std::bad_alloc; some of the dabs have drawn then.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "Dabs/SmudgeDabs.h"
#include "Processor/BristleColumns.h"
#include "Processor/DabPainter.h"
#include "Processor/SmudgeRows.h"
#include "Processor/Tiles.h"
#include "Surface/PaintSurface.h"

namespace dabcanvas {

// Of pictures of 8 or 16 bits a channel.
template <typename Channel>
class SmudgePainter {
public:
    // A layer of 8 bits is one whose values are rounded to bytes after each dab. The painter must outlive it.
    SmudgePainter(const Size& picture, int layerDepth, DabPainter& painter);

    // The picture that is shown next may have changed there since the last one.
    void noteChanged(const Rect& rect) { _stale = _stale.united(rect); }
    // The layer shows this from now on.
    void show(const TileGrid<Channel>& picture);
    // Gives its memory back; nothing can be smudged until it shows something again.
    void forget();

    // Each dab takes up colour where the one before it lay. Returns the pixels of the picture that a composite may change.
    Rect smudge(std::span<const SmudgeDab> dabs, const DabStyle& style, float load);
    // Nothing counts as exchanged there.
    void clearExchanged(const Rect& rect);
    // Whether something was in the tile of the picture.
    bool hasExchanged(std::size_t index) const { return _exchanged.tile(index) != nullptr; }
    // The picture becomes the background with what was brought, where something was exchanged. `part`: pixels of the tile;
    // no background is a transparent one.
    void composite(std::size_t index, const Rect& part, Tile<Channel>& picture,
                   const Tile<Channel>* background, float opacity, const RowNoise& noise);

private:
    using Layer = TileGrid<std::uint16_t>;
    struct Mixture;
    class Exchange;
    // Texels of a part of a layer: in its tile, where that can be, else copied.
    struct Texels {
        Rect rect;
        SmudgeTexels view;
        std::vector<std::int16_t> copied;
    };

    void provide(const Rect& texels);
    void showBlock(std::size_t index, const Rect& texels);
    SmudgePart<Channel> takePicture(const Rect& pixels);
    static void take(const Layer& from, const Rect& rect, Texels& to);
    static void copy(const Layer& from, const Rect& rect, Texels& to);
    Dab inLayer(const Dab& dab) const;

    static void round(Layer& layer, const Rect& texels);
    BristleColumns& columnsOf(const BristleDab& bristles);

    Size _size;
    int _layerDepth;
    TileGrid<Channel> _picture;          // as it was when the stroke began
    Rect _stale;                         // where it differs from what is shown next
    Layer _layer, _before;               // now and then; tiles exist where the layer was needed
    std::vector<std::uint16_t> _blocks;  // of each tile: a bit for each block that shows the picture
    Rect _provided;                      // texels of the tiles that there are
    Rect _lastProvided;                  // some of which all show it: mostly what is asked for next
    double _scaleX, _scaleY;             // of the layer to the picture
    // How much of each pixel of the picture was exchanged, at full resolution: what no dab covered is never touched.
    CoverageGrid _exchanged;
    Rect _holds;               // where dabs may be
    std::uint64_t _count = 0;  // of dabs since it was empty
    DabPainter& _painter;
    std::vector<Dab> _coverage;
    Texels _picked, _old;
    std::vector<BristleColumns> _columns;  // by set
    std::vector<Channel> _pixels;
};

}  // namespace dabcanvas
