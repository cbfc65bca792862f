// SPDX-License-Identifier: MIT
// Pictures of all layers: what steps hold, and how the canvas becomes one.
#include <algorithm>
#include <new>
#include <utility>

#include "Canvas/RecordedCanvas.h"

namespace dabcanvas {
RecordedCanvas::Picture RecordedCanvas::wholePicture() const try {
    return _planes.whole(_picture);
} catch (const std::bad_alloc&) {
    return nullptr;
}

// A step's, or, of bytes, the present one with another front. Throws std::bad_alloc.
RecordedCanvas::Picture RecordedCanvas::ownPicture(const StepPicture& picture, FrontIs front) {
    auto tiles = picture.tiles();
    if (!tiles || tiles->layout().picture() != _layers.size() || !tiles->isIn(*_tiles)) {
        auto next = std::make_shared<TilePicture>(*_planes.whole(_picture));
        next->setPlane(next->shape().front, tilesOf(picture));
        return next;
    }
    const std::uint32_t id = _planes.shape().idOf(_planes.shape().front);
    for (std::size_t i = 0; front == FrontIs::kept && i < tiles->shape().planes(); ++i) {
        if (i != tiles->shape().front && tiles->shape().idOf(i) == id) {
            auto next = std::make_shared<TilePicture>(*tiles);
            next->setFront(i);
            return next;
        }
    }
    return tiles;
}

const TilePicture* RecordedCanvas::planeOf(std::uint32_t layer) const {
    for (std::size_t i = 0; i < _planes.shape().planes(); ++i) {
        if (_planes.shape().idOf(i) == layer) {
            return i == _planes.shape().front ? _picture.get() : &_planes.others()[i];
        }
    }
    return nullptr;
}

// Where two pictures may look another way.
Rect RecordedCanvas::changedArea(const TilePicture& next) const {
    if (!next.shape().looksAs(_planes.shape())) {
        return _layers.whole();
    }
    Rect area;
    next.forEachDifference(*_planes.whole(_picture), [&](std::size_t index) {
        area = area.united(next.layout().rectOf(index % next.layout().count()));
    });
    return area;
}

// The pixels of all that is not there yet. Those of layers behind are looked at as soon as anything is shown.
bool RecordedCanvas::fetch(const TilePicture& next, const TilePicture& front, Fetched& fetched,
                           QString* problem) const {
    bool all = true;
    front.forEachDifference(*_picture, [&](std::size_t index) {
        all = all && place(front, index, fetched.front, problem);
        fetched.area = fetched.area.united(front.layout().rectOf(index));
    });
    const TilePicture blank(next.shape().size);
    for (std::size_t i = 0; i < next.shape().planes(); ++i) {
        if (i == next.shape().front) {
            continue;
        }
        const TilePicture plane = next.plane(i);
        const TilePicture* const before = planeOf(next.shape().idOf(i));
        plane.forEachDifference(before != nullptr ? *before : blank, [&](std::size_t index) {
            if (const TileRef& tile = plane.at(index); all && tile) {
                fetched.others.emplace_back(tile, pixelsOf(*tile, problem));
                all = fetched.others.back().second != nullptr;
            }
        });
    }
    return all;
}

std::optional<Rect> RecordedCanvas::show(const StepPicture& picture, QString* problem, FrontIs frontIs) try {
    *problem = QStringLiteral("there is no memory to put a step back");
    if (!readCanvas()) {
        return std::nullopt;
    }
    const Picture next = ownPicture(picture, frontIs);
    const PictureShape& shape = next->shape();
    const Picture front = shape.layers ? std::make_shared<const TilePicture>(next->plane(shape.front)) : next;
    LayerPlanes::Others others = LayerPlanes::othersOf(*next);
    const Rect area = changedArea(*next);
    Fetched fetched;
    if (!fetch(*next, *front, fetched, problem) || !_layers.put(fetched.front, fetched.area)) {
        return std::nullopt;
    }
    become(front);
    becomeLayers(shape, std::move(others));
    _told = next;
    _bytes.clear();
    for (const PlacedTile& shown : fetched.front) {
        if (const TileRef& tile = _picture->at(shown.index)) {
            TileStore::hold(*tile, shown.tile);
        }
    }
    for (const auto& [tile, pixels] : fetched.others) {
        TileStore::hold(*tile, pixels);
    }
    _layers.surface().forgetTouched(PictureId::first);
    _layers.noteShown(area);
    return area;
} catch (const std::bad_alloc&) {
    return std::nullopt;
}

void RecordedCanvas::becomeLayers(const PictureShape& shape, LayerPlanes::Others others) {
    const auto before = _planes.become(shape, std::move(others));
    const auto& now = _planes.others();
    for (std::size_t i = 0; i < std::max(before.size(), now.size()); ++i) {
        const auto plane = [i](const LayerPlanes::Others& planes) {
            return i < planes.size() && !planes[i].isNull() ? &planes[i] : nullptr;
        };
        changeShown(plane(before), plane(now));
    }
    _tiles->compress();
}

bool RecordedCanvas::setFront(std::size_t layer, QString* problem) {
    const Picture whole = present();
    if (!whole) {
        *problem = QStringLiteral("the canvas cannot be read");
        return false;
    }
    auto next = std::make_shared<TilePicture>(*whole);
    next->setFront(layer);
    const Picture told = _told;
    const QByteArray bytes = _bytes;
    if (!show(StepPicture(Picture(std::move(next))), problem, FrontIs::given)) {
        return false;
    }
    _told = told;  // nothing was recorded
    _bytes = bytes;
    return true;
}

// What cannot be had is transparent there.
LayerPlanes::Others RecordedCanvas::othersIn(TileStore& tiles) const {
    LayerPlanes::Others others = _planes.others();
    for (TilePicture& plane : others) {
        for (std::size_t index = 0; index < plane.tiles(); ++index) {
            const TileRef tile = plane.at(index);
            const SharedTile pixels = tile ? pixelsOf(*tile) : nullptr;
            plane.set(index, pixels ? tiles.keep(pixels) : nullptr);
        }
    }
    return others;
}

// ---- Another size

bool RecordedCanvas::crop(const TilePicture& from, const Rect& area, TilePicture& to,
                          QString* problem) const {
    const TileLayout& layout = from.layout();
    const int pixelBytes = _layers.surface().pixelBytes();
    for (std::size_t index = 0; index < to.layout().count(); ++index) {
        const Rect there = to.layout().rectOf(index);
        const Rect here = Rect{there.x + area.x, there.y + area.y, there.width, there.height}.intersected(
            Rect::of(layout.picture()));
        std::shared_ptr<std::uint8_t> tile;
        TileSet set(layout.picture());
        set.add(here);
        bool all = true;
        set.forEach([&](std::size_t old) {
            const TileRef& version = from.at(old);
            const SharedTile pixels = version ? pixelsOf(*version, problem) : nullptr;
            all = all && (!version || pixels);
            if (pixels) {
                tile = tile ? tile : newTile(pixelBytes);
                const Rect rect = layout.rectOf(old);
                const Rect part = rect.intersected(here);
                copyRows(rowsOfTile(pixels, {rect.width, rect.height}, pixelBytes)
                             .part({part.x - rect.x, part.y - rect.y, part.width, part.height}),
                         rowsOfTile(tile, {there.width, there.height}, pixelBytes)
                             .part({part.x - area.x - there.x, part.y - area.y - there.y, part.width,
                                    part.height}));
            }
        });
        if (!all) {
            return false;
        }
        to.set(index, tile ? _tiles->keep(tile) : nullptr);
    }
    return true;
}

std::optional<LayerPlanes::Others> RecordedCanvas::cropped(const Rect& area, QString* problem) try {
    *problem = QStringLiteral("there is no memory for the layers");
    LayerPlanes::Others others(_planes.others().size());
    for (std::size_t i = 0; i < others.size(); ++i) {
        if (i != _planes.shape().front) {
            others[i] = TilePicture(Size{area.width, area.height});
            if (!crop(_planes.others()[i], area, others[i], problem)) {
                return std::nullopt;
            }
        }
    }
    return others;
} catch (const std::bad_alloc&) {
    return std::nullopt;
}

}  // namespace dabcanvas
