// SPDX-License-Identifier: MIT
#include "Canvas/BrushTips.h"

namespace dabcanvas {

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
        _pictures.reset();
    }
    return _images;
}

std::shared_ptr<const TipSet> BrushTips::pictures(float radius) const {
    const QList<QImage>& present = images();
    const int discSize = present.isEmpty() ? static_cast<int>(radius) : -1;
    if (!_pictures || discSize != _discSize) {
        _discSize = discSize;
        auto made = std::make_shared<TipSet>();
        if (present.isEmpty()) {
            made->push_back(
                pictureOf(drawn({TexturesTool::kSoftDisc, discSize, TexturesTool().hardness(), 0})));
        }
        for (const QImage& image : present) {
            made->push_back(pictureOf(image));
        }
        _pictures = std::move(made);
    }
    return _pictures;
}

}  // namespace dabcanvas
