// SPDX-License-Identifier: MIT
#include "Canvas/LayerPlanes.h"

#include <algorithm>
#include <utility>

namespace dabcanvas {

LayerPlanes::Front LayerPlanes::whole(const Front& front) const {
    if (isPlain() || !front) {
        return front;
    }
    if (_wholeOf != front) {
        auto picture = std::make_shared<TilePicture>(_shape);
        for (std::size_t i = 0; i < _others.size(); ++i) {
            picture->setPlane(i, i == _shape.front ? *front : _others[i]);
        }
        _whole = std::move(picture);
        _wholeOf = front;
    }
    return _whole;
}

LayerPlanes::Others LayerPlanes::othersOf(const TilePicture& whole) {
    const PictureShape& shape = whole.shape();
    Others others(shape.layers ? shape.planes() : 0);
    for (std::size_t i = 0; i < others.size(); ++i) {
        if (i != shape.front) {
            others[i] = whole.plane(i);
        }
    }
    return others;
}

LayerPlanes::Others LayerPlanes::become(const PictureShape& shape, Others others) {
    _shape = shape;
    _wholeOf = _whole = nullptr;
    for (const Layer& layer : shape.layers ? *shape.layers : std::vector<Layer>()) {
        _lastId = std::max(_lastId, layer.id);
    }
    return std::exchange(_others, std::move(others));
}

}  // namespace dabcanvas
