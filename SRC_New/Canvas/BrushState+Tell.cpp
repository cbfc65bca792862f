// SPDX-License-Identifier: MIT
// The part of a brush's state that says by which values another one becomes it.
#include <algorithm>

#include "Canvas/BrushState.h"

namespace dabcanvas {
namespace {

QImage imageOf(const Picture& picture) {
    return QImage(picture.pixels.bytes, picture.pixels.size.width, picture.pixels.size.height,
                  picture.pixels.stride, QImage::Format_RGBA8888_Premultiplied)
        .copy();
}

// What is told before or after all others, as setting it acts on them or they on it.
constexpr BrushKey kOwnPlace[] = {BrushKey::textureImages, BrushKey::textureType,
                                  BrushKey::blendFragmentShaderString, BrushKey::blendType,
                                  BrushKey::slTextureImage};

}  // namespace

void BrushState::tell(const std::function<void(BrushKey, const BrushValue&)>& take) const {
    for (const BrushProperty& row : brushProperties()) {
        if (std::find(std::begin(kOwnPlace), std::end(kOwnPlace), row.key) == std::end(kOwnPlace)) {
            // Dabs get this one as it was passed.
            take(row.key,
                 row.key == BrushKey::minRoundness ? BrushValue(_givenMinRoundness) : value(row.key));
        }
    }
    tellBlend(take);
    tellTips(take);
}

// Text and number say it in turns, the later one counts; both are kept.
void BrushState::tellBlend(const std::function<void(BrushKey, const BrushValue&)>& take) const {
    const QString& program = _settings.blendFragmentShaderString;
    if (!program.isEmpty()) {
        take(BrushKey::blendFragmentShaderString, program);
    }
    take(BrushKey::blendType, _settings.blendType);
    if (_blendType != static_cast<std::uint32_t>(_settings.blendType)) {
        take(BrushKey::blendFragmentShaderString, program);
    }
}

// Images are kept behind a drawn tip; a drawn one comes with its type, unless images came after that.
void BrushState::tellTips(const std::function<void(BrushKey, const BrushValue&)>& take) const {
    if (!_tips.given().isEmpty()) {
        take(BrushKey::textureImages, _tips.given());
    }
    take(BrushKey::textureType, _settings.textureType);
    if (!_tips.isDrawn() && (_settings.textureType != 0 || _tips.images().isEmpty())) {
        take(BrushKey::textureImages, _tips.images());
    }
    // No image leaves the second line its tip.
    if (_settings.slTextureImage.isNull() && _subTips && !_subTips->empty()) {
        take(BrushKey::slTextureImage, imageOf(_subTips->front()));
    }
    take(BrushKey::slTextureImage, _settings.slTextureImage);
}

}  // namespace dabcanvas
