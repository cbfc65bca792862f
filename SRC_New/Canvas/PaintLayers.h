// SPDX-License-Identifier: MIT
// When paint moves: what the layers hold, which composites are due, what has changed since somebody last looked. The
// one owner of a canvas's surface; whatever touches paint goes through here.
//
// Composites wait until the picture is looked at, as every change of target makes a driver draw what it has gathered.
// Look or no look, the pixels are the same.
//
// Units    buffer pixels; rectangles may reach beyond the picture.
// Thread   one at a time.
// Errors   where the surface cannot be had, or is lost, nothing is drawn: empty rectangles and false. Composites that
//          were due stay due.
#pragma once

#include <QImage>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "Canvas/EditFlag.h"
#include "Canvas/StageClock.h"
#include "Surface/PaintSurface.h"

namespace dabcanvas {

class PaintLayers {
public:
    PaintLayers(std::unique_ptr<PaintSurface> surface, StageClock& clock);

    // Whoever draws or records sets it; how far a stroke can be taken back, and so that half of it, is known here.
    EditFlag edits;

    PaintSurface& surface() { return *_surface; }
    const Size& size() const { return _surface->size(); }
    bool isLost() const { return _surface->isLost(); }
    Rect whole() const { return Rect::of(size()); }

    // ---- a stroke

    // What is drawn from now on is taken back by withdraw(), until the next commit().
    void beginStroke();
    // Whether there is, or can be made, what dabs of this layer are drawn into; see PaintSurface::prepare().
    bool prepare(PaintLayer layer);
    // See PaintSurface::makeReady().
    void makeReady(const DabStyle& style);
    Rect draw(PaintLayer layer, std::span<const Dab> dabs, const DabStyle& style);
    // The first dabs into empty layers begin with what the picture looks like then.
    Rect smudge(std::span<const SmudgeDab> dabs, const DabStyle& style, float load);
    // Straight onto the picture.
    Rect drawOnPicture(std::span<const Dab> dabs, const DabStyle& style);

    // Layers go onto the picture in this style from now on; what was drawn so far, in the one before.
    void setStyle(const CompositeStyle& style);
    const CompositeStyle& style() const { return _style; }
    // From now on strokes, and what is placed by them, change nothing outside of the mask; null: anywhere.
    void setMask(std::shared_ptr<const PaintMask> mask);
    // What was placed last, and not kept yet, goes back as far as the mask keeps it out.
    void confine(const Rect& placed);
    // A composite is due where this area was drawn on, of what was smudged or of the line. Returns all that it changes,
    // which drying may make more; nothing of nothing.
    Rect show(const Rect& drawn, bool smudged);
    // Draws what is due.
    void flush();

    // The layers hold something, or the picture differs from its background.
    bool isUnfinished() const;
    // The stroke is part of the picture, its layers are empty, the picture is the background.
    void finish();
    // The same where there is something unfinished.
    void settle();
    // Nothing of the stroke stays: its layers are emptied and what it put onto the picture is reverted, or first done to
    // that area by the caller, who returns whether it was.
    void withdraw(const std::function<bool(const Rect& drawn)>& restore = {});
    // All that it put onto the picture so far.
    const Rect& strokeArea() const { return _strokeArea; }

    // ---- the picture

    // The picture becomes the background, with what was drawn so far, which no stroke takes back any more.
    void commit();
    // The picture becomes the background again there.
    void revert(const Rect& area);
    // Composites that are due are not drawn: the picture is painted over at once.
    void forgetDue() { _pending.clear(); }
    // One colour all over; what is due is forgotten, what the layers hold stays.
    void fill(const PaintColor& color);
    // `touched`: the pixels that it changes at most.
    bool place(const Placed& placed, const Rect& touched);
    // Into picture and background, over what was drawn so far.
    bool paint(const Rect& area, const PixelView& rows);
    // The picture's tiles with what was drawn so far, and tiles into picture and background, see PaintSurface. `area`:
    // what they change.
    bool keep(const TileSet& tiles, const std::function<void(const PlacedTile&)>& visit);
    bool put(std::span<const PlacedTile> tiles, const Rect& area);
    // What was drawn so far is below from now on, though it is not finished.
    void drawnIsBelow() { _mayMerge = false; }
    bool read(const Rect& area, const MutablePixelView& rows);

    bool isEmpty(PaintLayer layer) const { return contentOf(layer).isEmpty(); }
    void empty(PaintLayer layer);
    void emptyLines();
    // Makes the smudge layer show the background.
    bool prepareSmudge();

    // Paint lies in the other surface from now on, of the same size, byte for byte. False, and nothing has changed, while
    // the layers hold paint, and where one of both cannot be had.
    bool moveTo(std::unique_ptr<PaintSurface> surface);
    // The same of one of another size, between strokes: it shows that area of the picture, and what lies outside of
    // that is transparent.
    bool cropTo(std::unique_ptr<PaintSurface> surface, const Rect& area);
    // Its own is lost: another of its size, which holds a picture already, takes its place. The layers are empty.
    void replaceLost(std::unique_ptr<PaintSurface> surface);

    // ---- looking

    // What the canvas looks like as premultiplied RGBA; only what changed since the last call is read. Valid until the next.
    const QImage& display();
    // The same as it was last, read or not; null where it never was.
    QImage lastDisplay() const { return _isDisplayed ? _display : QImage(); }
    // Reads it, where that is more than the picture.
    std::function<bool(const Rect& area, const MutablePixelView& rows)> look;
    // It looks another way there, whatever the picture is.
    void noteShown(const Rect& area) { noteChanged(area); }
    // Everything that was composited or placed since the last fill.
    const Rect& painted() const { return _painted; }
    // What changed of the picture since this was asked last.
    Rect takeChanged() { return std::exchange(_changed, Rect()); }

private:
    Rect& contentOf(PaintLayer layer) { return _content[static_cast<std::size_t>(layer)]; }
    const Rect& contentOf(PaintLayer layer) const { return _content[static_cast<std::size_t>(layer)]; }
    bool linesHoldPaint() const;
    void noteChanged(const Rect& area);
    // The same, of paint that is not in the background.
    void notePainted(const Rect& area);
    // The picture is its background there.
    void noteBackgroundShows(const Rect& area);
    void settleDrawn();
    void begin(std::unique_ptr<PaintSurface> surface);
    bool moveBand(const Rect& band, PaintSurface& to);
    bool copyBand(const Rect& band, const Rect& there, PaintSurface& to);

    std::unique_ptr<PaintSurface> _surface;
    StageClock& _clock;
    CompositeStyle _style;
    std::shared_ptr<const PaintMask> _mask;
    Rect _content[3];            // what the layers hold
    std::vector<Rect> _pending;  // composites that are due
    bool _pendingSmudged = false;
    bool _mayMerge = true;  // the picture is the background with the layers above it
    Rect _strokeArea;
    Rect _uncommitted;  // where the picture may differ from its background
    Rect _painted;
    Rect _changed;
    Rect _stale;  // where the displayed image may differ from the picture
    QImage _display;
    bool _isDisplayed = false;
};

}  // namespace dabcanvas
