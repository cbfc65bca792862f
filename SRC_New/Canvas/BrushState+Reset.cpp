// SPDX-License-Identifier: MIT
// The part of a brush's state that goes back to the defaults.
#include <algorithm>
#include <cstddef>
#include <iterator>

#include "Canvas/BrushState.h"
#include "ESRender/Utilities/ESResource.h"

namespace dabcanvas {
namespace {

constexpr char kSoftRound[] = "Texture.bundle/柔角 30 1.png";

// Some setters act on others, so the order in which reset() calls them counts.
constexpr BrushKey kResetOrder[] = {
    BrushKey::brushType,
    BrushKey::blendType,
    BrushKey::moistQuantity,
    BrushKey::loadQuantity,
    BrushKey::mixQuantity,
    BrushKey::bristles,
    BrushKey::colorFul,
    BrushKey::opacity,
    BrushKey::flow,
    BrushKey::textureType,
    BrushKey::hardness,
    BrushKey::radius,
    BrushKey::flipX,
    BrushKey::flipY,
    BrushKey::radian,
    BrushKey::roundness,
    BrushKey::pointsDistanceEnabled,
    BrushKey::pointsDistance,
    BrushKey::radiusTingle,
    BrushKey::radiusControl,
    BrushKey::minRadius,
    BrushKey::sensitivity,
    BrushKey::speedSencitive,
    BrushKey::startRadius,
    BrushKey::strokeControlValue,
    BrushKey::endRadius,
    BrushKey::trackNum,
    BrushKey::radianTingle,
    BrushKey::radianControl,
    BrushKey::roundnessTingle,
    BrushKey::roundnessControl,
    BrushKey::minRoundness,
    BrushKey::pixelAligned,
    BrushKey::flipXTingle,
    BrushKey::flipYTingle,
    BrushKey::disTwoAxes,
    BrushKey::distribution,
    BrushKey::distributionControl,
    BrushKey::distributionCount,
    BrushKey::distributionCountTingle,
    BrushKey::distributionCountControl,
    BrushKey::textureTingleEnabled,
    BrushKey::maskDepth,
    BrushKey::maskDepthControl,
    BrushKey::maskBrightness,
    BrushKey::maskContrast,
    BrushKey::textureControl,
    BrushKey::needMaskTexture,
    BrushKey::maskScale,
    BrushKey::maskImage,
    BrushKey::repeatedlyRenderEnabled,
    BrushKey::slTextureImage,
    BrushKey::slRadius,
    BrushKey::slPointsDistance,
    BrushKey::slDistribution,
    BrushKey::slDistbTwoAxes,
    BrushKey::slDistbCount,
    BrushKey::slRadiusRelationType,
    BrushKey::relationValue,
    BrushKey::colorTingle,
    BrushKey::colorControl,
    BrushKey::hueTingle,
    BrushKey::saturationTingle,
    BrushKey::brightnessTingle,
    BrushKey::flowTingle,
    BrushKey::flowControl,
    BrushKey::decay,
    BrushKey::minFlow,
    BrushKey::wetEdge,
    BrushKey::wetEdgeWidth,
    BrushKey::smoothEnabled,
};

constexpr bool isReset(const BrushProperty& row) {
    return row.reset.has_value() || row.type() == BrushValueType::image;
}

// By key.
constexpr bool kIsReset[] = {
#define BRUSH_PROPERTY(type, property, Name, ...) \
    isReset({.key = BrushKey::property, .name = #property, .field = &BrushSettings::property, __VA_ARGS__}),
#include "Brushes/BrushPropertyList.h"
};

constexpr bool resetOrderIsComplete() {
    for (std::size_t key = 0; key < std::size(kIsReset); ++key) {
        const auto places = std::count(std::begin(kResetOrder), std::end(kResetOrder), BrushKey(key));
        if (places != (kIsReset[key] ? 1 : 0)) {
            return false;
        }
    }
    return true;
}
static_assert(resetOrderIsComplete(), "each property with a reset value has one place in kResetOrder");

BrushValue resetValue(const BrushProperty& row) {
    const float value = row.reset.value_or(0);
    switch (row.type()) {
        case BrushValueType::boolean:
            return value != 0;
        case BrushValueType::integer:
            return static_cast<int>(value);
        case BrushValueType::control:
            return LPControlParams{value, value, value};
        case BrushValueType::image:
            return row.key == BrushKey::slTextureImage ? imageNamed(QString::fromUtf8(kSoftRound)) : QImage();
        default:
            return value;
    }
}

}  // namespace

void BrushState::reset() {
    for (const BrushKey key : kResetOrder) {
        set(key, resetValue(brushProperty(key)));
    }
}

}  // namespace dabcanvas
