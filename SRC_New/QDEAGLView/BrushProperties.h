// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>
#include <QVariant>
#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <utility>
#include <variant>

#include "QDEAGLView/BrushSettings.h"

class ESBaseRender;
class ESLineRender;
class ESSmudgeRender;
class QDDrawCanvas;

// The brush properties of a canvas, one row each. Setters, defaults, clamps, forwarding to the line process
// and to the renderers, and the listings of the tools all walk this table; a property that breaks the plain
// rule keeps its row and has a setter of its own that says what differs.

enum class BrushKey : std::uint8_t {
    brushType,
    isDebug,
    enableRecogition,
    gaussianRadius,
    blendType,
    blendFragmentShaderString,
    renderColor,
    opacity,
    radius,
    flow,
    trackNum,
    moistQuantity,
    loadQuantity,
    mixQuantity,
    smudgeControl,
    smudgeControlValue,
    textureType,
    hardness,
    textureControlValue,
    textureImages,
    flipX,
    flipY,
    needMaskTexture,
    maskScale,
    maskImage,
    pointsDistanceEnabled,
    pointsDistance,
    smoothEnabled,
    sensitivity,
    speedSencitive,
    colorFul,
    lineProcessType,
    minRadius,
    maxRadius,
    startRadius,
    strokeControlValue,
    endRadius,
    radiusTingle,
    radiusControl,
    disTwoAxes,
    distribution,
    distributionControl,
    distributionCount,
    distributionCountTingle,
    distributionCountControl,
    radian,
    startRadianEnable,
    moveRadianEnable,
    flipXTingle,
    flipYTingle,
    radianTingle,
    radianControl,
    roundness,
    roundnessTingle,
    minRoundness,
    roundnessControl,
    minFlow,
    maxFlow,
    flowTingle,
    flowControl,
    decay,
    textureTingleEnabled,
    textureControl,
    backRenderColor,
    colorTingle,
    colorControl,
    hueTingle,
    saturationTingle,
    brightnessTingle,
    repeatedlyRenderEnabled,
    slTextureImage,
    slRadius,
    slPointsDistance,
    slDistribution,
    slDistbTwoAxes,
    slDistbCount,
    slRadiusRelationType,
    relationValue,
    recogPointScale,
    count
};

enum class BrushValueType : std::uint8_t { boolean, integer, real, control, color, image, images, text };

enum class BrushGroup : std::uint8_t {
    brush,
    tip,
    spacing,
    size,
    scatter,
    angle,
    shape,
    flow,
    color,
    smudge,
    secondLine,
    recognition
};

// Which line records a value is sent to, and which renderers.
enum class Lines : std::uint8_t { none, main, sub, both };
using Renders = std::uint8_t;
inline constexpr Renders kNoRender = 0, kMain = 1, kSub = 2, kSmudge = 4, kCompositor = 8;

inline constexpr float kFree = std::numeric_limits<float>::infinity();  // no bound on this side

// How presets store and read a boolean.
enum class PresetForm : std::uint8_t {
    plain,
    // Deliberate: a reader takes the whole part of the number, so that 0.5 counts as off; elsewhere it counts as on.
    readViaFloat,
    // Deliberate: that, and it is stored as 0.0 or 1.0.
    storedAsFloat
};

struct BrushProperty {
    // In the order of BrushValueType.
    using Field =
        std::variant<bool BrushSettings::*, std::int32_t BrushSettings::*, float BrushSettings::*,
                     LPControlParams BrushSettings::*, ESColor BrushSettings::*, QImage BrushSettings::*,
                     QList<QImage> BrushSettings::*, QString BrushSettings::*>;
    using Setter =
        std::variant<void (QDDrawCanvas::*)(bool), void (QDDrawCanvas::*)(std::int32_t),
                     void (QDDrawCanvas::*)(float), void (QDDrawCanvas::*)(const LPControlParams&),
                     void (QDDrawCanvas::*)(const ESColor&), void (QDDrawCanvas::*)(const QImage&),
                     void (QDDrawCanvas::*)(const QList<QImage>&), void (QDDrawCanvas::*)(const QString&)>;
    using RenderSetter =
        std::variant<std::monostate, void (ESBaseRender::*)(float), void (ESBaseRender::*)(int),
                     void (ESBaseRender::*)(const ESColor&), void (ESLineRender::*)(bool),
                     void (ESLineRender::*)(float), void (ESLineRender::*)(const LPControlParams&),
                     void (ESLineRender::*)(const ESColor&), void (ESSmudgeRender::*)(bool),
                     void (ESSmudgeRender::*)(float)>;

    BrushKey key;
    const char* name;  // as the property, its getter and, capitalised after "set", its setter are called
    BrushGroup group;
    std::uint16_t presetId =
        0;  // in presets; 0: never stored. A control's three numbers have the three ids above it
    std::optional<float> reset{};  // what resetParams() sets (a control to three of it); none: left alone
    PresetForm presetForm = PresetForm::plain;
    Field field;  // where the stored value stands
    Setter set;
    float created = 0;   // value of a new canvas (booleans 0 or 1); controls are zero, colours black, images
                         // and texts empty
    float low = -kFree;  // stored numbers are clamped to low..high
    float high = kFree;
    // Of an integer that stands for a choice, the first and the last; others are taken, and as good as the default.
    std::optional<std::pair<std::int32_t, std::int32_t>> choices{};
    std::uint8_t lineId = 0;  // property id in the line records; 0: not a line property
    Lines lines = Lines::none;
    Renders renders = kNoRender;
    RenderSetter render{};
    const char* about = "";  // one sentence for a person choosing a brush

    BrushValueType type() const { return static_cast<BrushValueType>(field.index()); }
};

// All properties, in BrushKey order.
std::span<const BrushProperty> brushProperties();

// The row of a key, in constant time.
const BrushProperty& brushProperty(BrushKey key);

// The row with this exact name, or null.
const BrushProperty* brushPropertyNamed(QStringView name);

// What a new canvas starts with, as the QVariant type that QDDrawCanvas::brushValue() returns.
QVariant brushDefault(const BrushProperty& property);

// The row of a preset id, with the number of the control's part (0 speed, 1 pressure, 2 altitude; -1 for a property of
// one value); null for an id that no property has.
const BrushProperty* brushPropertyOfPresetId(std::uint32_t id, int* part);

const char* brushGroupName(BrushGroup group);
const char* brushValueTypeName(BrushValueType type);
