// SPDX-License-Identifier: MIT
#include "Canvas/CanvasLayers.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "Canvas/CanvasLog.h"
#include "Canvas/QDDrawCanvasParts.h"

namespace dabcanvas {
namespace {

using Told = InputLayerEdit::Kind;

struct Plane {
    Layer layer;
    TilePicture picture;
};
using Planes = std::vector<Plane>;

Planes planesOf(const TilePicture& whole) {
    Planes planes;
    for (std::size_t i = 0; i < whole.shape().planes(); ++i) {
        planes.push_back({whole.shape().layer(i), whole.plane(i)});
    }
    return planes;
}

TilePicture wholeOf(const Planes& planes, const Size& size, std::size_t front) {
    auto layers = std::make_shared<std::vector<Layer>>();
    for (const Plane& plane : planes) {
        layers->push_back(plane.layer);
    }
    PictureShape shape(size);
    shape.layers = std::move(layers);
    shape.front = front;
    TilePicture whole(std::move(shape));
    for (std::size_t i = 0; i < planes.size(); ++i) {
        whole.setPlane(i, planes[i].picture);
    }
    return whole;
}

// The upper one onto the lower one. False where a tile cannot be had.
bool merge(const Plane& upper, Plane& lower, TileStore& tiles, int pixelBytes) {
    for (std::size_t index = 0; index < lower.picture.tiles(); ++index) {
        const TileRef below = lower.picture.at(index), above = upper.picture.at(index);
        const SharedTile ofLower = below ? pixelsOf(*below) : nullptr,
                         ofUpper = above ? pixelsOf(*above) : nullptr;
        if ((below && !ofLower) || (above && !ofUpper)) {
            return false;
        }
        const SharedTile merged = mergedTile(ofLower, ofUpper, upper.layer.settings, pixelBytes);
        if (merged != ofLower) {
            lower.picture.set(index, merged ? tiles.keep(merged) : nullptr);
        }
    }
    return true;
}

std::optional<LayerSettings> clamped(LayerSettings settings) {
    if (!std::isfinite(settings.opacity)) {
        qCWarning(lcDabcanvas, "a layer's opacity is a number");
        return {};
    }
    settings.opacity = std::clamp(settings.opacity, 0.0f, 1.0f);
    return settings;
}

}  // namespace

auto& CanvasLayers::parts() const {
    return *_canvas._inside->parts;
}

// Has `change(Planes&, std::size_t* front)` change the layers; it gives false where it cannot.
template <typename Change>
bool CanvasLayers::edit(const InputLayerEdit& told, const Change& change) {
    return parts().editLayers(told, [&](const TilePicture& present) -> std::optional<TilePicture> {
        Planes planes = planesOf(present);
        std::size_t front = present.shape().front;
        return change(planes, &front) ? std::optional(wholeOf(planes, present.shape().size, front))
                                      : std::nullopt;
    });
}

const PictureShape& CanvasLayers::shape() const {
    return parts().record.planes().shape();
}

bool CanvasLayers::has(int layer) const {
    if (layer >= 0 && layer < count()) {
        return true;
    }
    qCWarning(lcDabcanvas, "there is no layer %d; there are %d", layer, count());
    return false;
}

int CanvasLayers::count() const {
    return static_cast<int>(shape().planes());
}

int CanvasLayers::active() const {
    return static_cast<int>(shape().front);
}

bool CanvasLayers::setActive(int layer) {
    return has(layer) && parts().setActiveLayer(static_cast<std::size_t>(layer));
}

LayerSettings CanvasLayers::settings(int layer) const {
    return has(layer) ? shape().layer(static_cast<std::size_t>(layer)).settings : LayerSettings();
}

bool CanvasLayers::setSettings(int layer, const LayerSettings& settings) {
    const auto sound = clamped(settings);
    if (!has(layer) || !sound) {
        return false;
    }
    const auto at = static_cast<std::size_t>(layer);
    return shape().layer(at).settings == *sound ||
           edit({.kind = Told::set, .layer = layer, .settings = *sound}, [&](Planes& planes, std::size_t*) {
               planes[at].layer.settings = *sound;
               return true;
           });
}

bool CanvasLayers::insert(int layer, const LayerSettings& settings, const QImage& rows) {
    return edit(
        {.kind = Told::add, .layer = layer, .settings = settings, .picture = rows},
        [&](Planes& planes, std::size_t* front) {
            RecordedCanvas& record = parts().record;
            const Size& size = shape().size;
            *front = static_cast<std::size_t>(layer);
            TilePicture picture =
                rows.isNull()
                    ? TilePicture(size)
                    : record.planeOf({rows.constBits(), size, rows.bytesPerLine(), rows.depth() / 8});
            planes.insert(planes.begin() + layer, {{record.planes().newId(), settings}, std::move(picture)});
            return true;
        });
}

bool CanvasLayers::mayAdd(int layer) const {
    if (layer < 0 || layer > count() || static_cast<std::size_t>(count()) >= kMostLayers) {
        qCWarning(lcDabcanvas, "there is no room for a layer %d among %d", layer, count());
        return false;
    }
    return true;
}

bool CanvasLayers::add(int layer, const LayerSettings& settings, const QImage& picture) {
    const auto sound = clamped(settings);
    if (!mayAdd(layer) || !sound) {
        return false;
    }
    const Size& size = shape().size;
    const bool isDeep = picture.depth() > 32 && parts().layers.surface().pixelBytes() == 8;
    const QImage rows = picture
                            .convertToFormat(isDeep ? QImage::Format_RGBA64_Premultiplied
                                                    : QImage::Format_RGBA8888_Premultiplied)
                            .copy(0, 0, size.width, size.height);
    if (!picture.isNull() && rows.isNull()) {
        qCWarning(lcDabcanvas, "there is no memory for the picture of a layer");
        return false;
    }
    return insert(layer, *sound, rows);
}

bool CanvasLayers::duplicate(int layer) {
    return has(layer) && mayAdd(layer + 1) &&
           edit({.kind = Told::duplicate, .layer = layer}, [&](Planes& planes, std::size_t* front) {
               Plane plane = planes[static_cast<std::size_t>(layer)];
               plane.layer.id = parts().record.planes().newId();
               *front = static_cast<std::size_t>(layer) + 1;
               planes.insert(planes.begin() + layer + 1, std::move(plane));
               return true;
           });
}

bool CanvasLayers::remove(int layer) {
    if (!has(layer) || count() == 1) {
        return false;
    }
    return edit({.kind = Told::remove, .layer = layer}, [&](Planes& planes, std::size_t* front) {
        planes.erase(planes.begin() + layer);
        const auto at = static_cast<std::size_t>(layer);
        *front = *front > at || (*front == at && at > 0) ? *front - 1 : *front;
        return true;
    });
}

bool CanvasLayers::move(int from, int to) {
    if (!has(from) || !has(to)) {
        return false;
    }
    return from == to ||
           edit({.kind = Told::move, .layer = from, .to = to}, [&](Planes& planes, std::size_t* front) {
               const std::uint32_t active = planes[*front].layer.id;
               const auto first = planes.begin() + std::min(from, to),
                          last = planes.begin() + std::max(from, to) + 1;
               std::rotate(first, from < to ? first + 1 : last - 1, last);
               *front = static_cast<std::size_t>(
                   std::find_if(planes.begin(), planes.end(),
                                [&](const Plane& plane) { return plane.layer.id == active; }) -
                   planes.begin());
               return true;
           });
}

bool CanvasLayers::mergeDown(int layer) {
    if (!has(layer) || layer == 0 || !settings(layer).isVisible || !settings(layer - 1).isVisible) {
        qCWarning(lcDabcanvas, "layer %d cannot be merged with one below", layer);
        return false;
    }
    return edit({.kind = Told::merge, .layer = layer}, [&](Planes& planes, std::size_t* front) {
        const auto at = static_cast<std::size_t>(layer);
        const int pixelBytes = parts().layers.surface().pixelBytes();
        if (!merge(planes[at], planes[at - 1], *parts().record.tiles(), pixelBytes)) {
            qCWarning(lcDabcanvas, "the pictures of the layers cannot be had");
            return false;
        }
        planes.erase(planes.begin() + layer);
        *front -= *front >= at ? 1 : 0;
        return true;
    });
}

bool CanvasLayers::take(const InputLayerEdit& edit) {
    switch (edit.kind) {
        case Told::add:
            return add(edit.layer, edit.settings, edit.picture);
        case Told::duplicate:
            return duplicate(edit.layer);
        case Told::remove:
            return remove(edit.layer);
        case Told::move:
            return move(edit.layer, edit.to);
        case Told::merge:
            return mergeDown(edit.layer);
        case Told::set:
            return setSettings(edit.layer, edit.settings);
        case Told::activate:
            break;
    }
    return setActive(edit.layer);
}

// ---- Looking

QImage CanvasLayers::image(int layer) {
    if (!has(layer)) {
        return {};
    }
    auto& canvas = parts();
    if (layer == active()) {
        return canvas.imageOf(canvas.layers.whole());
    }
    return canvas.imageBy(shape().size, [&](const MutablePixelView& rows) {
        return canvas.record.planes().others()[static_cast<std::size_t>(layer)].read(rows);
    });
}

QImage CanvasLayers::flattened() {
    auto& canvas = parts();
    return canvas.imageBy(shape().size, [&](const MutablePixelView& rows) {
        return canvas.layers.look(canvas.layers.whole(), rows);
    });
}

QImage CanvasLayers::flattened(const QRect& area, const QImage& active) {
    auto& canvas = parts();
    const Rect part{area.x(), area.y(), area.width(), area.height()};
    const QImage front = active.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    if (front.isNull() || active.size() != area.size() || !canvas.layers.whole().contains(part)) {
        return {};
    }
    if (canvas.record.planes().isPlain()) {
        return front;
    }
    const PixelView rowsOfFront{front.constBits(), {part.width, part.height}, front.bytesPerLine()};
    return canvas.imageBy({part.width, part.height}, [&](const MutablePixelView& rows) {
        return canvas.look.read(part, rows, &rowsOfFront);
    });
}

QImage CanvasLayers::deepImage(int layer) {
    return has(layer) ? parts().pictureOf(static_cast<std::size_t>(layer), parts().layers.whole()) : QImage();
}

QImage CanvasLayers::deepImage(int layer, const QRect& area) {
    const Rect part{area.x(), area.y(), area.width(), area.height()};
    return has(layer) && !part.isEmpty() && parts().layers.whole().contains(part)
               ? parts().pictureOf(static_cast<std::size_t>(layer), part)
               : QImage();
}

}  // namespace dabcanvas
