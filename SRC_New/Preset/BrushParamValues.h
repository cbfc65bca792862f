// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QList>
#include <QVariant>
#include <cstdint>

#include "Brushes/BrushProperties.h"
#include "LineProcess/LPTypes.h"
#include "Preset/BrushRecords.h"

// Looks at the parameter records of a preset by property name, without applying them to a canvas. Of several records of
// one id the first counts; what is absent is 0, false, null or empty.
//
// Does not own the records, which must outlive it. Colours and texts come as they are stored, an ESColor or a QString.
class BrushParamValues {
public:
    explicit BrushParamValues(const BrushParams& params) : _params(params) {}

    std::int32_t brushType() const { return integer(dabcanvas::BrushKey::brushType); }
    std::int32_t blendType() const { return integer(dabcanvas::BrushKey::blendType); }
    QVariant renderColor() const { return object(dabcanvas::BrushKey::renderColor); }
    float opacity() const { return real(dabcanvas::BrushKey::opacity); }
    float radius() const { return real(dabcanvas::BrushKey::radius); }
    float flow() const { return real(dabcanvas::BrushKey::flow); }
    std::int32_t trackNum() const { return integer(dabcanvas::BrushKey::trackNum); }
    float moistQuantity() const { return real(dabcanvas::BrushKey::moistQuantity); }
    float loadQuantity() const { return real(dabcanvas::BrushKey::loadQuantity); }
    float mixQuantity() const { return real(dabcanvas::BrushKey::mixQuantity); }
    bool smudgeControl() const { return boolean(dabcanvas::BrushKey::smudgeControl); }
    float smudgeControlValue() const { return real(dabcanvas::BrushKey::smudgeControlValue); }
    std::int32_t textureType() const { return integer(dabcanvas::BrushKey::textureType); }
    float hardness() const { return real(dabcanvas::BrushKey::hardness); }
    float textureControlValue() const { return real(dabcanvas::BrushKey::textureControlValue); }
    bool flipX() const { return boolean(dabcanvas::BrushKey::flipX); }
    bool flipY() const { return boolean(dabcanvas::BrushKey::flipY); }
    bool needMaskTexture() const { return boolean(dabcanvas::BrushKey::needMaskTexture); }
    float maskScale() const { return real(dabcanvas::BrushKey::maskScale); }
    QImage maskImage() const { return image(dabcanvas::BrushKey::maskImage); }
    bool pointsDistanceEnabled() const { return boolean(dabcanvas::BrushKey::pointsDistanceEnabled); }
    float pointsDistance() const { return real(dabcanvas::BrushKey::pointsDistance); }
    bool smoothEnabled() const { return boolean(dabcanvas::BrushKey::smoothEnabled); }
    float sensitivity() const { return real(dabcanvas::BrushKey::sensitivity); }
    float speedSencitive() const { return real(dabcanvas::BrushKey::speedSencitive); }
    bool colorFul() const { return boolean(dabcanvas::BrushKey::colorFul); }
    std::int32_t lineProcessType() const { return integer(dabcanvas::BrushKey::lineProcessType); }
    float minRadius() const { return real(dabcanvas::BrushKey::minRadius); }
    float maxRadius() const { return real(dabcanvas::BrushKey::maxRadius); }
    float startRadius() const { return real(dabcanvas::BrushKey::startRadius); }
    float strokeControlValue() const { return real(dabcanvas::BrushKey::strokeControlValue); }
    float endRadius() const { return real(dabcanvas::BrushKey::endRadius); }
    float radiusTingle() const { return real(dabcanvas::BrushKey::radiusTingle); }
    LPControlParams radiusControl() const { return control(dabcanvas::BrushKey::radiusControl); }
    bool disTwoAxes() const { return boolean(dabcanvas::BrushKey::disTwoAxes); }
    float distribution() const { return real(dabcanvas::BrushKey::distribution); }
    LPControlParams distributionControl() const { return control(dabcanvas::BrushKey::distributionControl); }
    float distributionCount() const { return real(dabcanvas::BrushKey::distributionCount); }
    float distributionCountTingle() const { return real(dabcanvas::BrushKey::distributionCountTingle); }
    LPControlParams distributionCountControl() const {
        return control(dabcanvas::BrushKey::distributionCountControl);
    }
    float radian() const { return real(dabcanvas::BrushKey::radian); }
    bool startRadianEnable() const { return boolean(dabcanvas::BrushKey::startRadianEnable); }
    bool moveRadianEnable() const { return boolean(dabcanvas::BrushKey::moveRadianEnable); }
    bool flipXTingle() const { return boolean(dabcanvas::BrushKey::flipXTingle); }
    bool flipYTingle() const { return boolean(dabcanvas::BrushKey::flipYTingle); }
    float radianTingle() const { return real(dabcanvas::BrushKey::radianTingle); }
    LPControlParams radianControl() const { return control(dabcanvas::BrushKey::radianControl); }
    float roundness() const { return real(dabcanvas::BrushKey::roundness); }
    float roundnessTingle() const { return real(dabcanvas::BrushKey::roundnessTingle); }
    float minRoundness() const { return real(dabcanvas::BrushKey::minRoundness); }
    LPControlParams roundnessControl() const { return control(dabcanvas::BrushKey::roundnessControl); }
    float minFlow() const { return real(dabcanvas::BrushKey::minFlow); }
    float maxFlow() const { return real(dabcanvas::BrushKey::maxFlow); }
    float flowTingle() const { return real(dabcanvas::BrushKey::flowTingle); }
    LPControlParams flowControl() const { return control(dabcanvas::BrushKey::flowControl); }
    float decay() const { return real(dabcanvas::BrushKey::decay); }
    bool textureTingleEnabled() const { return boolean(dabcanvas::BrushKey::textureTingleEnabled); }
    LPControlParams textureControl() const { return control(dabcanvas::BrushKey::textureControl); }
    QVariant backRenderColor() const { return object(dabcanvas::BrushKey::backRenderColor); }
    float colorTingle() const { return real(dabcanvas::BrushKey::colorTingle); }
    LPControlParams colorControl() const { return control(dabcanvas::BrushKey::colorControl); }
    float hueTingle() const { return real(dabcanvas::BrushKey::hueTingle); }
    float saturationTingle() const { return real(dabcanvas::BrushKey::saturationTingle); }
    float brightnessTingle() const { return real(dabcanvas::BrushKey::brightnessTingle); }
    bool repeatedlyRenderEnabled() const { return boolean(dabcanvas::BrushKey::repeatedlyRenderEnabled); }
    QImage slTextureImage() const { return image(dabcanvas::BrushKey::slTextureImage); }
    float slRadius() const { return real(dabcanvas::BrushKey::slRadius); }
    float slPointsDistance() const { return real(dabcanvas::BrushKey::slPointsDistance); }
    float slDistribution() const { return real(dabcanvas::BrushKey::slDistribution); }
    bool slDistbTwoAxes() const { return boolean(dabcanvas::BrushKey::slDistbTwoAxes); }
    float slDistbCount() const { return real(dabcanvas::BrushKey::slDistbCount); }
    std::int32_t slRadiusRelationType() const { return integer(dabcanvas::BrushKey::slRadiusRelationType); }
    float relationValue() const { return real(dabcanvas::BrushKey::relationValue); }
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
    QVariant object(dabcanvas::BrushKey key) const;
    std::int32_t integer(dabcanvas::BrushKey key) const;
    float real(dabcanvas::BrushKey key) const;
    bool boolean(dabcanvas::BrushKey key) const;
    LPControlParams control(dabcanvas::BrushKey key) const;
    QImage image(dabcanvas::BrushKey key) const;

    const BrushParams& _params;
};
