// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QList>
#include <QVariant>
#include <cstdint>

#include "LineProcess/LPTypes.h"
#include "Preset/BrushRecords.h"
#include "Brushes/BrushProperties.h"

// Looks at the parameter records of a preset by property name, without applying them to a canvas. Of several records of
// one id the first counts; what is absent is 0, false, null or empty.
//
// Does not own the records, which must outlive it. Colours and texts come as they are stored, an ESColor or a QString.
class BrushParamValues {
public:
    explicit BrushParamValues(const BrushParams& params) : _params(params) {}

    std::int32_t brushType() const { return integer(BrushKey::brushType); }
    std::int32_t blendType() const { return integer(BrushKey::blendType); }
    QVariant renderColor() const { return object(BrushKey::renderColor); }
    float opacity() const { return real(BrushKey::opacity); }
    float radius() const { return real(BrushKey::radius); }
    float flow() const { return real(BrushKey::flow); }
    std::int32_t trackNum() const { return integer(BrushKey::trackNum); }
    float moistQuantity() const { return real(BrushKey::moistQuantity); }
    float loadQuantity() const { return real(BrushKey::loadQuantity); }
    float mixQuantity() const { return real(BrushKey::mixQuantity); }
    bool smudgeControl() const { return boolean(BrushKey::smudgeControl); }
    float smudgeControlValue() const { return real(BrushKey::smudgeControlValue); }
    std::int32_t textureType() const { return integer(BrushKey::textureType); }
    float hardness() const { return real(BrushKey::hardness); }
    float textureControlValue() const { return real(BrushKey::textureControlValue); }
    bool flipX() const { return boolean(BrushKey::flipX); }
    bool flipY() const { return boolean(BrushKey::flipY); }
    bool needMaskTexture() const { return boolean(BrushKey::needMaskTexture); }
    float maskScale() const { return real(BrushKey::maskScale); }
    QImage maskImage() const { return image(BrushKey::maskImage); }
    bool pointsDistanceEnabled() const { return boolean(BrushKey::pointsDistanceEnabled); }
    float pointsDistance() const { return real(BrushKey::pointsDistance); }
    bool smoothEnabled() const { return boolean(BrushKey::smoothEnabled); }
    float sensitivity() const { return real(BrushKey::sensitivity); }
    float speedSencitive() const { return real(BrushKey::speedSencitive); }
    bool colorFul() const { return boolean(BrushKey::colorFul); }
    std::int32_t lineProcessType() const { return integer(BrushKey::lineProcessType); }
    float minRadius() const { return real(BrushKey::minRadius); }
    float maxRadius() const { return real(BrushKey::maxRadius); }
    float startRadius() const { return real(BrushKey::startRadius); }
    float strokeControlValue() const { return real(BrushKey::strokeControlValue); }
    float endRadius() const { return real(BrushKey::endRadius); }
    float radiusTingle() const { return real(BrushKey::radiusTingle); }
    LPControlParams radiusControl() const { return control(BrushKey::radiusControl); }
    bool disTwoAxes() const { return boolean(BrushKey::disTwoAxes); }
    float distribution() const { return real(BrushKey::distribution); }
    LPControlParams distributionControl() const { return control(BrushKey::distributionControl); }
    float distributionCount() const { return real(BrushKey::distributionCount); }
    float distributionCountTingle() const { return real(BrushKey::distributionCountTingle); }
    LPControlParams distributionCountControl() const { return control(BrushKey::distributionCountControl); }
    float radian() const { return real(BrushKey::radian); }
    bool startRadianEnable() const { return boolean(BrushKey::startRadianEnable); }
    bool moveRadianEnable() const { return boolean(BrushKey::moveRadianEnable); }
    bool flipXTingle() const { return boolean(BrushKey::flipXTingle); }
    bool flipYTingle() const { return boolean(BrushKey::flipYTingle); }
    float radianTingle() const { return real(BrushKey::radianTingle); }
    LPControlParams radianControl() const { return control(BrushKey::radianControl); }
    float roundness() const { return real(BrushKey::roundness); }
    float roundnessTingle() const { return real(BrushKey::roundnessTingle); }
    float minRoundness() const { return real(BrushKey::minRoundness); }
    LPControlParams roundnessControl() const { return control(BrushKey::roundnessControl); }
    float minFlow() const { return real(BrushKey::minFlow); }
    float maxFlow() const { return real(BrushKey::maxFlow); }
    float flowTingle() const { return real(BrushKey::flowTingle); }
    LPControlParams flowControl() const { return control(BrushKey::flowControl); }
    float decay() const { return real(BrushKey::decay); }
    bool textureTingleEnabled() const { return boolean(BrushKey::textureTingleEnabled); }
    LPControlParams textureControl() const { return control(BrushKey::textureControl); }
    QVariant backRenderColor() const { return object(BrushKey::backRenderColor); }
    float colorTingle() const { return real(BrushKey::colorTingle); }
    LPControlParams colorControl() const { return control(BrushKey::colorControl); }
    float hueTingle() const { return real(BrushKey::hueTingle); }
    float saturationTingle() const { return real(BrushKey::saturationTingle); }
    float brightnessTingle() const { return real(BrushKey::brightnessTingle); }
    bool repeatedlyRenderEnabled() const { return boolean(BrushKey::repeatedlyRenderEnabled); }
    QImage slTextureImage() const { return image(BrushKey::slTextureImage); }
    float slRadius() const { return real(BrushKey::slRadius); }
    float slPointsDistance() const { return real(BrushKey::slPointsDistance); }
    float slDistribution() const { return real(BrushKey::slDistribution); }
    bool slDistbTwoAxes() const { return boolean(BrushKey::slDistbTwoAxes); }
    float slDistbCount() const { return real(BrushKey::slDistbCount); }
    std::int32_t slRadiusRelationType() const { return integer(BrushKey::slRadiusRelationType); }
    float relationValue() const { return real(BrushKey::relationValue); }
    // Of every record that holds an image, in their order.
    QList<QImage> textureImages() const;

    // Shader sources, which only presets made elsewhere hold.
    QVariant baselineVertexShaderString() const { return stored(0x9001); }
    QVariant baselineFragmentShaderString() const { return stored(0x9002); }
    QVariant sublineVertexShaderString() const { return stored(0x9003); }
    QVariant sublineFragmentShaderString() const { return stored(0x9004); }
    QVariant blendFragmentShaderString() const { return stored(0x9006); }

private:
    QVariant stored(std::uint32_t id) const;
    QVariant object(BrushKey key) const;
    std::int32_t integer(BrushKey key) const;
    float real(BrushKey key) const;
    bool boolean(BrushKey key) const;
    LPControlParams control(BrushKey key) const;
    QImage image(BrushKey key) const;

    const BrushParams& _params;
};
