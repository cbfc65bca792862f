// SPDX-License-Identifier: MIT
#include "Canvas/BrushTips.h"

#include <algorithm>

namespace dabcanvas {
namespace {

// With fewer texels a shape is not itself any more.
constexpr int kLeastSide = 64;

// The same shape with so many at least.
BrushTips::Drawing finer(const BrushTips::Drawing& drawing) {
    const int size = std::max(drawing.size, 3);  // as they are drawn
    const int times = (kLeastSide + size - 1) / size;
    BrushTips::Drawing fine = drawing;
    fine.size = size * times;
    if (drawing.type == TexturesTool::kRing) {  // whose thickness counts texels, 2 at least
        fine.controlValue = (drawing.controlValue > 2 ? drawing.controlValue : 2) * static_cast<float>(times);
    }
    return fine;
}

}  // namespace

void BrushTips::give(const QList<QImage>& images) {
    _images = _given = images;
    _wanted = _made = {};
    _pictures.reset();
}

void BrushTips::drop() {
    _images.clear();
    _wanted = _made = {};
    _pictures.reset();
}

void BrushTips::choose(const Drawing& drawing) {
    if (drawing.type != 0) {
        _wanted = drawing;
    } else if (!_given.isEmpty()) {
        give(_given);
    }
}

QImage BrushTips::drawn(const Drawing& drawing) const {
    TexturesTool tool;
    tool.setTextureType(drawing.type);
    tool.setHardness(drawing.hardness);
    tool.setTextureControlValue(drawing.controlValue);
    tool.setImage(_given.isEmpty() ? QImage() : _given.first());  // where there is no memory to draw
    return tool.textureImageWithSize(drawing.size);
}

const QList<QImage>& BrushTips::images() const {
    if (_wanted != _made) {
        _made = _wanted;
        _images = {drawn(_wanted)};
    }
    return _images;
}

std::shared_ptr<const TipSet> BrushTips::pictures(float radius) const {
    Drawing drawing = _wanted;
    if (drawing.type == 0 && _images.isEmpty()) {
        drawing = {TexturesTool::kSoftDisc, static_cast<int>(radius), TexturesTool().hardness(), 0};
    }
    if (!_pictures || drawing != _pictured) {
        auto made = std::make_shared<TipSet>();
        for (const QImage& image : drawing.type != 0 ? QList{drawn(finer(drawing))} : _images) {
            made->push_back(pictureOf(image));
        }
        _pictured = drawing;
        _pictures = std::move(made);
    }
    return _pictures;
}

}  // namespace dabcanvas
