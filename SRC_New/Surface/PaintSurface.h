// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>

#include "Dabs/Dab.h"
#include "Dabs/Picture.h"
#include "Dabs/SmudgeDabs.h"
#include "Maths/Export.h"
#include "Maths/PixelView.h"
#include "Maths/Rect.h"
#include "Surface/BlendType.h"
#include "Surface/PaintMask.h"
#include "Surface/TilePixels.h"

namespace dabcanvas {

/// One picture of a surface: what is shown of it, and its background. A surface has one today.
enum class PictureId : std::uint32_t { first = 0 };

/// Where dabs add up, each transparent when made. The smudge layer shows a picture instead, see prepareSmudge().
enum class PaintLayer : std::uint8_t { line, subLine, smudge };

/// How paper lies on the surface. A height of 0..1 lets through gain * height + level, and what a dab's lift adds, cut
/// to 0..1.
struct PaperStyle {
    float scale = 1;  ///< a tile's side over the paper's, in pixels
    float gain = 1, level = 0;
    bool lifts = false;  ///< dabs may have a lift; else none is looked at

    /// It lets through its height.
    bool isPlain() const { return gain == 1 && level == 0 && !lifts; }
    friend bool operator==(const PaperStyle&, const PaperStyle&) = default;
};

/// What stays the same for a run of dabs.
struct DabStyle {
    std::shared_ptr<const TipSet> tips;    ///< at least one; a dab names its own
    std::shared_ptr<const Picture> paper;  ///< null: smooth
    PaperStyle paperStyle{};
    /// The tip's own colours, the dab's where the tip is black, varied by the dab's random number within these.
    bool multicolour = false;
    float hueTingle = 0, saturationTingle = 0, brightnessTingle = 0;
};

/// How a layer goes onto a picture: the blended result replaces what is there.
struct CompositeStyle {
    std::uint32_t blendType = 1;  ///< a blend mode, see ESBlendType
    float opacity = 1;            ///< 0..1
    bool masked = false;          ///< the line layer counts where the sub-line layer has paint
    /// The picture's alpha stays as it is: colours mix as on a background without holes, and erasing changes nothing.
    bool locksAlpha = false;
    bool smudged = false;  ///< what smudging brought, in place of line and blend mode
    /// Before all else the line dries, unless it was smudged: pigment wanders to its rim.
    float wetEdge = 0;     ///< 0..1: how much paler its inside gets than its rim
    int wetEdgeWidth = 0;  ///< pixels, up to 64: how far the rim reaches in

    /// The mode that it comes to.
    std::uint32_t shownType() const {
        return locksAlpha && blendType == ESBlendTypeErase ? std::uint32_t{ESBlendTypeReset} : blendType;
    }
    /// So far from a pixel lies what decides how it comes out.
    int reach() const { return wetEdge > 0 && !smudged ? wetEdgeWidth : 0; }

    friend bool operator==(const CompositeStyle&, const CompositeStyle&) = default;
};

/// A picture to be put onto another, stretched to a rectangle and turned about its centre.
struct Placed {
    PixelView pixels;
    double width = 0, height = 0, centreX = 0, centreY = 0;
    double radian = 0;
    bool replaces = false;  ///< transparent parts included; else over what is there
    Rect clip;              ///< nothing beyond is touched
};

/// A colour to fill with.
struct PaintColor {
    float red = 0, green = 0, blue = 0, alpha = 0;  ///< premultiplied
};

/// The one place that paint lies in: a picture, the background that strokes are blended with, and the layers that
/// strokes are drawn into. What a canvas does to paint is one of these operations; when it does them, and in which
/// order, is decided above, once for every kind of surface.
///
/// Units    buffer pixels, whole ones in rectangles, top-left origin; angles counter-clockwise in radians. A rectangle
///          may reach beyond the surface: what lies there is left out.
/// Pixels   premultiplied. Rows that come in or go out have 8 bits a channel, and what is written is read byte for
///          byte; how much a surface keeps of what is drawn is its own. Rows of pixelBytes() have all of a picture.
/// Owns     everything that paint lies in. Tips, papers and pixel views are the caller's; a style's pictures are kept
///          for as long as the surface draws with them.
/// Life     made by makeSurface(), or by makeProcessorSurface() and makeGLSurface(), of which that chooses. A canvas
///          makes its own and may put another in its place, see QDDrawCanvas::surface().
/// Thread   one thread at a time. Operations come inside a SurfaceScope, except size(), isLost() and what tells of
///          touched tiles.
/// Errors   never throws. An operation that cannot be done logs why, changes nothing and returns an empty rectangle or
///          false; a surface whose device is gone does nothing at all, see isLost().
class DABCANVAS_DABS_API PaintSurface {
public:
    explicit PaintSurface(const Size& size) : _size(size), _touched(size) {}
    virtual ~PaintSurface() = default;
    PaintSurface(const PaintSurface&) = delete;
    PaintSurface& operator=(const PaintSurface&) = delete;

    const Size& size() const { return _size; }
    /// What draws, in words: the driver's renderer, say.
    virtual std::string name() = 0;
    /// The device that paint lay in is gone for good, and the paint with it.
    virtual bool isLost() const { return false; }
    /// Waits until all that was asked for is done, for those who measure.
    virtual void finish() {}

    // ---- Layers

    /// Provides for what is drawn into the layer. False, after one log line, without the memory for it.
    virtual bool prepare(PaintLayer) { return true; }
    /// Makes what dabs of this style are drawn from, large tips above all, so that no stroke need wait for it.
    virtual void makeReady(const DabStyle&) {}
    /// Dabs over what the layer holds. Returns the pixels that may have changed.
    virtual Rect draw(PaintLayer layer, std::span<const Dab> dabs, const DabStyle& style) = 0;
    /// The same straight onto the picture, past background and layers.
    virtual Rect draw(PictureId picture, std::span<const Dab> dabs, const DabStyle& style) = 0;
    /// Transparent again.
    virtual void clear(PaintLayer layer, const Rect& rect) = 0;

    /// Makes the smudge layer show the picture's background; only what changed since it last did is worked on. Before
    /// the first dab of a stroke. False without the memory for it.
    virtual bool prepareSmudge(PictureId picture) = 0;
    /// Each dab takes up colour where the one before it lay and exchanges it for what lies under it. Returns the pixels
    /// that a composite may change.
    virtual Rect smudge(std::span<const SmudgeDab> dabs, const DabStyle& style, float load) = 0;

    // ---- Pictures

    /// The picture becomes its background with the layers blended onto it.
    virtual void composite(PictureId picture, std::span<const Rect> rects, const CompositeStyle& style) = 0;
    /// Takes back what composite() or place() has just made of the background there, as far as the mask keeps it out: a
    /// pixel goes back by what is missing of its share, so that a second call would take back more.
    virtual void confine(PictureId picture, const Rect& rect,
                         const std::shared_ptr<const PaintMask>& mask) = 0;
    /// The picture becomes its background.
    virtual void revert(PictureId picture, const Rect& rect) = 0;
    /// The background becomes the picture.
    virtual void commit(PictureId picture, const Rect& rect) = 0;
    /// One colour all over; the background stays.
    virtual void fill(PictureId picture, const PaintColor& color) = 0;
    /// Another picture over it; the background stays. False, and nothing changed, without the memory.
    virtual bool place(PictureId picture, const Placed& placed) = 0;

    // ---- Rows

    /// Of rows that hold a picture bit by bit: 4 where it has 8 bits a channel, 8 where it has 16.
    virtual int pixelBytes() const = 0;
    /// Rows have 4 bytes a pixel or pixelBytes(); `rect` must lie inside and be as large as they are. Read as they were
    /// written, they come back byte for byte; the same picture gives the same rows, whatever part is read.
    virtual bool read(PictureId picture, const Rect& rect, const MutablePixelView& rows) = 0;
    /// Into the picture and its background.
    virtual bool write(PictureId picture, const Rect& rect, const PixelView& rows) = 0;
    /// Into the background alone.
    virtual bool writeBackground(PictureId picture, const Rect& rect, const PixelView& rows) = 0;

    // ---- Tiles: rows as whoever keeps a picture's history has them

    /// Calls visit(tile) for each of the set, row by row: shared with the picture where a surface has tiles, else
    /// copied. False where they cannot be read, perhaps after some of them.
    virtual bool keep(PictureId picture, const TileSet& tiles,
                      const std::function<void(const PlacedTile&)>& visit);
    /// Into the picture and its background, byte for byte. False, perhaps after some of them, where that cannot be.
    virtual bool put(PictureId picture, std::span<const PlacedTile> tiles);

    /// The tiles of a picture that operations touched since they were last forgotten, for whoever keeps its history.
    const TileSet& touched(PictureId) const { return _touched; }
    void forgetTouched(PictureId) { _touched.clear(); }

protected:
    /// What read() and write() ask of the caller.
    bool isPart(const Rect& rect, const PixelView& rows) const {
        return !rows.isNull() && !rect.isEmpty() && rows.size == Size{rect.width, rect.height} &&
               (rows.pixelBytes == 4 || rows.pixelBytes == pixelBytes()) && Rect::of(_size).contains(rect);
    }
    /// To be called by whatever changes a picture.
    void noteTouched(PictureId, const Rect& rect) { _touched.add(rect); }

private:
    friend class SurfaceScope;
    // Scopes nest; false when the device cannot be had just now.
    virtual bool enter() { return true; }
    virtual void leave() {}

    Size _size;
    TileSet _touched;
};

/// The scope that operations on a surface come inside of. Costs next to nothing inside another of the same surface;
/// whatever device the host was using is its own again when the outermost one ends.
class SurfaceScope {
public:
    explicit SurfaceScope(PaintSurface& surface) : _surface(surface), _entered(surface.enter()) {}
    ~SurfaceScope() {
        if (_entered) {
            _surface.leave();
        }
    }
    SurfaceScope(const SurfaceScope&) = delete;
    SurfaceScope& operator=(const SurfaceScope&) = delete;

    /// False where the device cannot be had just now: nothing is to be asked of the surface then.
    explicit operator bool() const { return _entered; }

private:
    PaintSurface& _surface;
    bool _entered;
};

}  // namespace dabcanvas
