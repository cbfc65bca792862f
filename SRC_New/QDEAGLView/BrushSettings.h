// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QList>
#include <QString>

#include "ESRender/ESColor.h"
#include "LineProcess/LPTypes.h"

// Every brush setting of one canvas, as stored (after clamping). What each means, its range, its default and
// where it goes stands in the property table (BrushProperties.h), in whose order the fields stand here.
struct BrushSettings {
    std::int32_t brushType = 0;
    bool isDebug = false;
    bool enableRecogition = false;
    float gaussianRadius = 0;
    std::int32_t blendType = 0;
    QString blendFragmentShaderString;
    ESColor renderColor;
    float opacity = 0;
    float radius = 0;
    float flow = 0;
    std::int32_t trackNum = 0;

    float moistQuantity = 0;
    float loadQuantity = 0;
    float mixQuantity = 0;
    bool smudgeControl = false;
    float smudgeControlValue = 0;

    std::int32_t textureType = 0;
    float hardness = 0;
    float textureControlValue = 0;
    mutable QList<QImage> textureImages;  // a drawn one is made when it is looked at
    bool flipX = false;
    bool flipY = false;
    bool needMaskTexture = false;
    float maskScale = 0;
    QImage maskImage;

    bool pointsDistanceEnabled = false;
    float pointsDistance = 0;
    bool smoothEnabled = false;
    float sensitivity = 0;
    float speedSencitive = 0;
    bool colorFul = false;
    std::int32_t lineProcessType = 0;

    float minRadius = 0;
    float maxRadius = 0;
    float startRadius = 0;
    float strokeControlValue = 0;
    float endRadius = 0;
    float radiusTingle = 0;
    LPControlParams radiusControl{};

    bool disTwoAxes = false;
    float distribution = 0;
    LPControlParams distributionControl{};
    float distributionCount = 0;
    float distributionCountTingle = 0;
    LPControlParams distributionCountControl{};

    float radian = 0;
    bool startRadianEnable = false;
    bool moveRadianEnable = false;
    bool flipXTingle = false;
    bool flipYTingle = false;
    float radianTingle = 0;
    LPControlParams radianControl{};

    float roundness = 0;
    float roundnessTingle = 0;
    float minRoundness = 0;
    LPControlParams roundnessControl{};

    float minFlow = 0;
    float maxFlow = 0;
    float flowTingle = 0;
    LPControlParams flowControl{};
    float decay = 0;

    bool textureTingleEnabled = false;
    LPControlParams textureControl{};

    ESColor backRenderColor;
    float colorTingle = 0;
    LPControlParams colorControl{};
    float hueTingle = 0;
    float saturationTingle = 0;
    float brightnessTingle = 0;

    bool repeatedlyRenderEnabled = false;
    QImage slTextureImage;
    float slRadius = 0;
    float slPointsDistance = 0;
    float slDistribution = 0;
    bool slDistbTwoAxes = false;
    float slDistbCount = 0;
    std::int32_t slRadiusRelationType = 0;
    float relationValue = 0;

    float recogPointScale = 0;
};
