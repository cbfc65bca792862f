// SPDX-License-Identifier: MIT
// The layers of a canvas: what they are, and the pictures of those that are not painted on. That one, the front, lies in
// the surface.
//
// Thread   one at a time.
// Errors   std::bad_alloc; nothing has changed then.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "History/TilePicture.h"

namespace dabcanvas {

class LayerPlanes {
public:
    // By layer, with a null one in the front's place; none where there is a single layer of which there is nothing to say.
    using Others = std::vector<TilePicture>;
    using Front = std::shared_ptr<const TilePicture>;

    explicit LayerPlanes(const Size& size) : _shape(size) {}

    bool isPlain() const { return !_shape.layers; }
    const PictureShape& shape() const { return _shape; }
    const Others& others() const { return _others; }
    LayerSettings frontSettings() const { return _shape.layer(_shape.front).settings; }
    // All of them as one picture, with this as the front; null for null.
    Front whole(const Front& front) const;
    // And the other way round.
    static Others othersOf(const TilePicture& whole);

    // What the tiles say of being shown is the caller's to see to. Gives what was there before.
    Others become(const PictureShape& shape, Others others);

    // No layer that there was has it.
    std::uint32_t newId() const { return _lastId + 1; }

private:
    PictureShape _shape;
    Others _others;
    std::uint32_t _lastId = kFirstLayer;
    mutable Front _wholeOf, _whole;  // the last one, so that it stays the same object
};

}  // namespace dabcanvas
