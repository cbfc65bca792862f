// SPDX-License-Identifier: MIT
#include "Canvas/PaintLayers.h"

#include <algorithm>
#include <new>
#include <utility>

#include "Surface/BlendType.h"

namespace dabcanvas {
namespace {

constexpr PictureId kPicture = PictureId::first;
// Rectangles that wait where nobody looks at the picture and they cannot be merged.
constexpr std::size_t kMostPending = 1024;
constexpr int kMostMovedRows = 256;

}  // namespace

PaintLayers::PaintLayers(std::unique_ptr<PaintSurface> surface, StageClock& clock)
    : _surface(std::move(surface)), _clock(clock), _uncommitted(whole()), _stale(whole()) {}

bool PaintLayers::linesHoldPaint() const {
    return !isEmpty(PaintLayer::line) || !isEmpty(PaintLayer::subLine);
}

void PaintLayers::noteChanged(const Rect& area) {
    const Rect cut = area.intersected(whole());
    _stale = _stale.united(cut);
    _changed = _changed.united(cut);
}

void PaintLayers::notePainted(const Rect& area) {
    _painted = _painted.united(area);
    _uncommitted = _uncommitted.united(area);
    noteChanged(area);
}

void PaintLayers::noteBackgroundShows(const Rect& area) {
    if (area.contains(_uncommitted)) {
        _uncommitted = {};
    }
}

// ---- A stroke

bool PaintLayers::prepare(PaintLayer layer) {
    const SurfaceScope scope(*_surface);
    return scope && _surface->prepare(layer);
}

void PaintLayers::makeReady(const DabStyle& style) {
    const SurfaceScope scope(*_surface);
    if (scope) {
        _surface->makeReady(style);
    }
}

Rect PaintLayers::draw(PaintLayer layer, std::span<const Dab> dabs, const DabStyle& style) {
    const SurfaceScope scope(*_surface);
    if (!scope || dabs.empty()) {
        return {};
    }
    const Rect touched = _surface->draw(layer, dabs, style);
    contentOf(layer) = contentOf(layer).united(touched);
    return touched;
}

Rect PaintLayers::smudge(std::span<const SmudgeDab> dabs, const DabStyle& style, float load) {
    const SurfaceScope scope(*_surface);
    if (!scope || dabs.empty()) {
        return {};
    }
    if (isEmpty(PaintLayer::line) && !prepareSmudge()) {
        return {};
    }
    const Rect touched = _surface->smudge(dabs, style, load);
    // How much was exchanged stands in the line layer.
    contentOf(PaintLayer::line) = contentOf(PaintLayer::line).united(touched);
    return touched;
}

Rect PaintLayers::drawOnPicture(std::span<const Dab> dabs, const DabStyle& style) {
    const SurfaceScope scope(*_surface);
    if (!scope || dabs.empty()) {
        return {};
    }
    flush();  // what is due lies below
    const Rect touched = _surface->draw(kPicture, dabs, style);
    notePainted(touched);
    return touched;
}

void PaintLayers::beginStroke() {
    flush();  // what waits is not the stroke's to withdraw
    _strokeArea = {};
    edits.keepStroke();
}

// Before composites come in another style: what was drawn so far shows the old one, and what follows may no longer touch
// more than it drew.
void PaintLayers::settleDrawn() {
    flush();
    if (linesHoldPaint()) {
        _mayMerge = false;
    }
}

void PaintLayers::setStyle(const CompositeStyle& style) {
    if (style != _style) {
        settleDrawn();
        _style = style;
    }
}

void PaintLayers::setMask(std::shared_ptr<const PaintMask> mask) {
    settleDrawn();
    _mask = std::move(mask);
}

void PaintLayers::confine(const Rect& placed) {
    const SurfaceScope scope(*_surface);
    if (scope && _mask && !placed.isEmpty()) {
        _surface->confine(kPicture, placed, _mask);
    }
}

Rect PaintLayers::show(const Rect& drawn, bool smudged) {
    const int reach = smudged ? 0 : _style.reach();
    const Rect reached = reach > 0 && !drawn.isEmpty() ? drawn.grownBy(reach).intersected(whole()) : drawn;
    const Rect area = _mask ? reached.intersected(_mask->area) : reached;
    if (area.isEmpty()) {
        return {};
    }
    if (smudged != _pendingSmudged) {
        settleDrawn();
        _pendingSmudged = smudged;
    }
    if (_pending.size() >= kMostPending) {
        flush();
    }
    _strokeArea = _strokeArea.united(area);
    // Rectangles that overlap become one, which composites the same pixels wherever the picture is the background with
    // the layers above it, except where replacing would clear what lies between them.
    const bool merges = !_pending.empty() && _mayMerge && _style.blendType != ESBlendTypeReplace;
    const Rect both = merges ? _pending.back().united(area) : Rect();
    if (merges && both.area() <= _pending.back().area() + area.area()) {
        _pending.back() = both;
    } else {
        _pending.push_back(area);
    }
    notePainted(area);
    return area;
}

void PaintLayers::flush() {
    if (_pending.empty()) {
        return;
    }
    const SurfaceScope scope(*_surface);
    if (!scope) {
        return;
    }
    const StageClock::Stage stage(_clock, &StrokeStats::compositingSeconds, _surface.get());
    CompositeStyle style = _style;
    style.smudged = _pendingSmudged;
    if (_mask) {
        // One by one: where two overlap, the first would be confined twice.
        for (const Rect& rect : _pending) {
            _surface->composite(kPicture, {&rect, 1}, style);
            _surface->confine(kPicture, rect, _mask);
        }
    } else {
        _surface->composite(kPicture, _pending, style);
    }
    _pending.clear();
}

bool PaintLayers::isUnfinished() const {
    return linesHoldPaint() || !_uncommitted.isEmpty();
}

void PaintLayers::finish() {
    emptyLines();
    commit();
}

void PaintLayers::settle() {
    if (isUnfinished()) {
        finish();
    }
}

void PaintLayers::withdraw(const std::function<bool(const Rect& drawn)>& restore) {
    const SurfaceScope scope(*_surface);
    if (!scope) {
        return;
    }
    _pending.clear();  // all of it lies within the stroke's area
    emptyLines();
    const Rect area = std::exchange(_strokeArea, Rect());
    if (!restore || !restore(area)) {
        revert(area);
    }
    noteBackgroundShows(area);
    _mayMerge = _uncommitted.isEmpty();
    edits.withdrawStroke();
}

// ---- The picture

void PaintLayers::commit() {
    const SurfaceScope scope(*_surface);
    if (!scope) {
        return;
    }
    flush();
    const StageClock::Stage stage(_clock, &StrokeStats::compositingSeconds, _surface.get());
    if (!_uncommitted.isEmpty()) {
        _surface->commit(kPicture, _uncommitted);
    }
    _uncommitted = {};
    _strokeArea = {};
    edits.keepStroke();
    // What the layers still hold goes onto this background once more wherever it is shown.
    _mayMerge = !linesHoldPaint();
}

void PaintLayers::revert(const Rect& area) {
    const Rect cut = area.intersected(whole());
    const SurfaceScope scope(*_surface);
    if (!scope || cut.isEmpty()) {
        return;
    }
    settleDrawn();
    _surface->revert(kPicture, cut);
    noteChanged(cut);
}

void PaintLayers::fill(const PaintColor& color) {
    const SurfaceScope scope(*_surface);
    if (!scope) {
        return;
    }
    _pending.clear();  // it would be painted over at once
    _surface->fill(kPicture, color);
    _uncommitted = whole();
    _painted = {};
    noteChanged(whole());
}

bool PaintLayers::place(const Placed& placed, const Rect& touched) {
    const SurfaceScope scope(*_surface);
    if (!scope) {
        return false;
    }
    flush();
    const StageClock::Stage stage(_clock, &StrokeStats::compositingSeconds, _surface.get());
    if (!_surface->place(kPicture, placed)) {
        return false;
    }
    const Rect changed = touched.intersected(placed.clip).intersected(whole());
    notePainted(changed);
    return true;
}

bool PaintLayers::paint(const Rect& area, const PixelView& rows) {
    const SurfaceScope scope(*_surface);
    if (!scope) {
        return false;
    }
    flush();
    const StageClock::Stage stage(_clock, &StrokeStats::compositingSeconds, _surface.get());
    if (!_surface->write(kPicture, area, rows)) {
        return false;
    }
    noteBackgroundShows(area);
    noteChanged(area);
    _painted = _painted.united(area);
    return true;
}

bool PaintLayers::keep(const TileSet& tiles, const std::function<void(const PlacedTile&)>& visit) {
    const SurfaceScope scope(*_surface);
    if (!scope) {
        return false;
    }
    flush();
    return _surface->keep(kPicture, tiles, visit);
}

bool PaintLayers::put(std::span<const PlacedTile> tiles, const Rect& area) {
    const SurfaceScope scope(*_surface);
    if (!scope) {
        return false;
    }
    flush();
    const StageClock::Stage stage(_clock, &StrokeStats::compositingSeconds, _surface.get());
    if (!_surface->put(kPicture, tiles)) {
        return false;
    }
    noteBackgroundShows(area);
    noteChanged(area);
    return true;
}

bool PaintLayers::read(const Rect& area, const MutablePixelView& rows) {
    const SurfaceScope scope(*_surface);
    if (!scope) {
        return false;
    }
    flush();
    return _surface->read(kPicture, area, rows);
}

// Only where something was drawn, so that ending a stroke costs the same on any canvas.
void PaintLayers::empty(PaintLayer layer) {
    Rect& content = contentOf(layer);
    const SurfaceScope scope(*_surface);
    if (!scope || content.isEmpty()) {
        return;
    }
    flush();
    _mayMerge = false;  // what it held is on the picture, and now on no layer
    _surface->clear(layer, std::exchange(content, Rect()));
}

void PaintLayers::emptyLines() {
    empty(PaintLayer::line);
    empty(PaintLayer::subLine);
}

bool PaintLayers::prepareSmudge() {
    const SurfaceScope scope(*_surface);
    if (!scope) {
        return false;
    }
    settle();
    contentOf(PaintLayer::smudge) = whole();
    return _surface->prepareSmudge(kPicture);
}

// ---- Moving

bool PaintLayers::moveTo(std::unique_ptr<PaintSurface> surface) {
    {
        const SurfaceScope from(*_surface), to(*surface);
        if (!from || !to || linesHoldPaint()) {
            return false;
        }
        flush();
        for (int y = 0; y < size().height; y += kMostMovedRows) {
            if (!moveBand(Rect{0, y, size().width, kMostMovedRows}.intersected(whole()), *surface)) {
                return false;
            }
        }
    }
    _surface = std::move(surface);
    return true;
}

bool PaintLayers::cropTo(std::unique_ptr<PaintSurface> surface, const Rect& area) {
    const Rect kept = area.intersected(whole());
    {
        const SurfaceScope from(*_surface), to(*surface);
        if (!from || !to) {
            return false;
        }
        settle();
        for (int y = 0; y < kept.height; y += kMostMovedRows) {
            const Rect band = Rect{kept.x, kept.y + y, kept.width, kMostMovedRows}.intersected(kept);
            if (!copyBand(band, {band.x - area.x, band.y - area.y, band.width, band.height}, *surface)) {
                return false;
            }
        }
    }
    _painted = _changed = _stale = {};  // which was told in places of the size before
    begin(std::move(surface));
    return true;
}

// With another picture, and nothing in progress.
void PaintLayers::begin(std::unique_ptr<PaintSurface> surface) {
    _surface = std::move(surface);
    for (Rect& content : _content) {
        content = {};
    }
    _uncommitted = {};
    noteChanged(whole());
}

void PaintLayers::replaceLost(std::unique_ptr<PaintSurface> surface) {
    _pending.clear();
    _strokeArea = {};
    _mayMerge = true;
    begin(std::move(surface));
}

bool PaintLayers::copyBand(const Rect& band, const Rect& there, PaintSurface& to) try {
    const int pixelBytes = _surface->pixelBytes();
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(band.area() * pixelBytes));
    const auto rows = MutablePixelView::topRowFirst(bytes.data(), {band.width, band.height}, pixelBytes);
    return band.isEmpty() || (_surface->read(kPicture, band, rows) && to.write(kPicture, there, rows));
} catch (const std::bad_alloc&) {
    return false;
}

// With the background, where that differs.
bool PaintLayers::moveBand(const Rect& band, PaintSurface& to) try {
    const int pixelBytes = _surface->pixelBytes();
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(band.area() * pixelBytes));
    const auto rows = MutablePixelView::topRowFirst(bytes.data(), {band.width, band.height}, pixelBytes);
    if (!_surface->read(kPicture, band, rows) || !to.write(kPicture, band, rows)) {
        return false;
    }
    if (!band.meets(_uncommitted)) {
        return true;
    }
    std::vector<std::uint8_t> below(bytes.size());
    const auto rowsBelow = MutablePixelView::topRowFirst(below.data(), rows.size, pixelBytes);
    _surface->revert(kPicture, band);
    const bool isMoved =
        _surface->read(kPicture, band, rowsBelow) && to.writeBackground(kPicture, band, rowsBelow);
    return _surface->write(kPicture, band, rows) && isMoved &&
           _surface->writeBackground(kPicture, band, rowsBelow);
} catch (const std::bad_alloc&) {
    return false;
}

// ---- Looking

const QImage& PaintLayers::display() {
    const QSize size(this->size().width, this->size().height);
    if (_display.size() != size) {
        _display = QImage(size, QImage::Format_RGBA8888_Premultiplied);
        _display.fill(0);
        _isDisplayed = false;
        _stale = whole();
    }
    if (!_stale.isEmpty() && !_display.isNull()) {
        const MutablePixelView all{_display.bits(), this->size(), _display.bytesPerLine()};
        if (look ? look(_stale, all.part(_stale)) : read(_stale, all.part(_stale))) {
            _stale = {};
            _isDisplayed = true;
        }
    }
    return _display;
}

}  // namespace dabcanvas
