// SPDX-License-Identifier: MIT
// The brush as a whole: back to its defaults, and from presets.
#include "ESRender/Utilities/ESResource.h"
#include "LineProcess/LPProperties.h"
#include "Preset/QDBrushManager.h"
#include "QDEAGLView/QDDrawCanvasScopes.h"

namespace {

constexpr char kSoftRound[] = "Texture.bundle/柔角 30 1.png";

// Some setters act on others, so the order counts.
constexpr BrushKey kResetOrder[] = {
    BrushKey::brushType,
    BrushKey::blendType,
    BrushKey::moistQuantity,
    BrushKey::loadQuantity,
    BrushKey::mixQuantity,
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
    BrushKey::flipXTingle,
    BrushKey::flipYTingle,
    BrushKey::disTwoAxes,
    BrushKey::distribution,
    BrushKey::distributionControl,
    BrushKey::distributionCount,
    BrushKey::distributionCountTingle,
    BrushKey::distributionCountControl,
    BrushKey::textureTingleEnabled,
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
    BrushKey::smoothEnabled,
};

QVariant resetValue(const BrushProperty& row) {
    const float value = row.reset.value_or(0);
    switch (row.type()) {
        case BrushValueType::boolean:
            return value != 0;
        case BrushValueType::integer:
            return static_cast<std::int32_t>(value);
        case BrushValueType::control:
            return QVariant::fromValue(LPControlParams{value, value, value});
        case BrushValueType::image:
            return row.key == BrushKey::slTextureImage ? dabcanvas::imageNamed(QString::fromUtf8(kSoftRound))
                                                       : QImage();
        default:
            return value;
    }
}

}  // namespace

void QDDrawCanvas::resetParams() {
    for (const BrushKey key : kResetOrder) {
        setBrushValue(brushProperty(key), resetValue(brushProperty(key)));
    }
}

bool QDDrawCanvas::resetWithParams(const std::optional<BrushParams>& params, int version) {
    return QDBrushManager::resetDrawView(this, params, version);
}

bool QDDrawCanvas::resetWithXBFPath(const QString& path, QString* problem) {
    return QDBrushManager::resetDrawView(this, path, problem);
}

void QDDrawCanvas::restoreSubLine(float slRadius, float relationValue) {
    setSubRadius(slRadius);
    _brush.relationValue = relationValue;
}
