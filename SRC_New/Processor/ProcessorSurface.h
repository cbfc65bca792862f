// SPDX-License-Identifier: MIT
// Paint in plain memory, put there by the processor: no context, no driver and no call of OpenGL.
//
// Depth     picture and background 8 or 16 bits a channel, layers 16; such of 8 are rounded to them after each dab, where
//           they lie. All in tiles that exist where paint is (Tiles.h), so that what a stroke costs has nothing to do with
//           how large the canvas is.
// Thread    any one at a time; drawing large dabs takes others to help.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "Processor/BlendRows.h"
#include "Processor/DabPainter.h"
#include "Processor/SmudgePainter.h"
#include "Processor/Tiles.h"
#include "Processor/WetEdge.h"
#include "Surface/PaintSurface.h"

namespace dabcanvas {

// The layers; pictures are the class's below.
class ProcessorSurface : public PaintSurface {
public:
    // Sides beyond this are refused, as larger ones would be by every driver.
    static constexpr int kMostSide = 32768;

    std::string name() override;

    void makeReady(const DabStyle& style) override;
    Rect draw(PaintLayer layer, std::span<const Dab> dabs, const DabStyle& style) override;
    void clear(PaintLayer layer, const Rect& rect) override;

    // What the line layer holds, in full depth.
    const TileGrid<std::uint16_t>& line() const { return _line.grid; }

protected:
    // From 1 to kMostSide. Throws std::bad_alloc.
    ProcessorSurface(const Size& size, int layerDepth);

    // Rounding goes by numbers that begin anew with each stroke, and with each picture for each tile: a stroke paints the
    // same bytes whatever was painted elsewhere or taken back.
    struct Layer {
        TileGrid<std::uint16_t> grid;
        Rect holds;              // where dabs may be
        std::uint64_t dabs = 0;  // drawn since it was empty
    };

    Layer& layerOf(PaintLayer layer) { return layer == PaintLayer::subLine ? _subLine : _line; }
    Rect drawInto(Layer& layer, std::span<const Dab> dabs, const DabStyle& style);
    static void clear(Layer& layer, const Rect& rect);

    Layer _line, _subLine;
    DabPainter _painter;
};

// Of 8 or 16 bits a channel.
template <typename Channel>
class PictureSurface final : public ProcessorSurface {
public:
    // Transparent.
    PictureSurface(const Size& size, int layerDepth);

    using ProcessorSurface::draw;
    Rect draw(PictureId picture, std::span<const Dab> dabs, const DabStyle& style) override;
    void clear(PaintLayer layer, const Rect& rect) override;
    bool prepareSmudge(PictureId picture) override;
    Rect smudge(std::span<const SmudgeDab> dabs, const DabStyle& style, float load) override;

    void composite(PictureId picture, std::span<const Rect> rects, const CompositeStyle& style) override;
    void confine(PictureId picture, const Rect& rect, const std::shared_ptr<const PaintMask>& mask) override;
    void revert(PictureId picture, const Rect& rect) override;
    void commit(PictureId picture, const Rect& rect) override;
    void fill(PictureId picture, const PaintColor& color) override;
    bool place(PictureId picture, const Placed& placed) override;

    int pixelBytes() const override { return 4 * sizeof(Channel); }
    bool read(PictureId picture, const Rect& rect, const MutablePixelView& rows) override;
    bool write(PictureId picture, const Rect& rect, const PixelView& rows) override;
    bool writeBackground(PictureId picture, const Rect& rect, const PixelView& rows) override;
    bool keep(PictureId picture, const TileSet& tiles,
              const std::function<void(const PlacedTile&)>& visit) override;
    bool put(PictureId picture, std::span<const PlacedTile> tiles) override;

private:
    using Grid = TileGrid<Channel>;
    void putStraight(std::size_t index, const Rect& part);
    void confineTile(std::size_t index, const Rect& part, const PaintMask& mask);
    void compositeTile(std::size_t index, const Rect& part, const CompositeStyle& style);
    // Null tiles are bare.
    struct Paint {
        const Tile<std::uint16_t>*layer = nullptr, *mask = nullptr;
        bool overPicture = false, showsBare = false;
    };
    RowNoise noiseOf(std::size_t index, int x, int y) const;
    void blendTile(std::size_t index, const Rect& part, const Paint& paint, const CompositeStyle& style);
    void noteChanged(PictureId picture, const Rect& rect);

    Grid _picture, _background;
    Layer _straight;  // of what goes straight onto the picture; empty in between
    SmudgePainter<Channel> _smudges;
    WetEdge _wetEdge;
    bool _isPlain;  // rounds to the nearest
    // Of each tile: how often something blended onto it was kept. Composites of one stroke round alike.
    struct Kept {
        std::uint8_t times = 0;
        bool isBlended = false;  // since the last time
    };
    std::vector<Kept> _kept;
};

}  // namespace dabcanvas
