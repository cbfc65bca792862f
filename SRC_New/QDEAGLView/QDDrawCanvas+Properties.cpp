// SPDX-License-Identifier: MIT
// Brush properties: the plain rule of the table, and the properties that differ from it.
#include <algorithm>
#include <array>
#include <cmath>
#include <type_traits>

#include "ESRender/Utilities/ESShaderTools.h"
#include "LineProcess/LPProperties.h"
#include "QDEAGLView/LeafDrawing.h"
#include "QDEAGLView/QDDrawCanvasScopes.h"

namespace {

constexpr float kMostCopies = 1e6f;  // far above what is drawn; keeps the cast to an integer defined

template <typename Value>
bool isFiniteValue(const Value& value) {
    if constexpr (std::is_same_v<Value, float>) {
        return std::isfinite(value);
    } else if constexpr (std::is_same_v<Value, LPControlParams>) {
        return std::isfinite(value.pressure) && std::isfinite(value.altitude) && std::isfinite(value.speed);
    } else {
        return true;
    }
}

std::uint32_t wholeCount(float value) {
    return static_cast<std::uint32_t>(std::clamp(value, 0.0f, kMostCopies));
}

}  // namespace

// ---- The plain rule: clamp, store, send to the line records, send to the renderers

// False, with a log line, for a number that is not finite: it would spread through every calculation.
template <typename Value>
bool QDDrawCanvas::storeClamped(const BrushProperty& row, Value& value) {
    if (!isFiniteValue(value)) {
        qCWarning(lcDabcanvas, "%s was given a number that is not finite; it keeps its value", row.name);
        return false;
    }
    if (row.key == BrushKey::opacity) {
        settleDrawn();  // of the rows without a setter of their own, composites depend on this one alone
    }
    if constexpr (std::is_same_v<Value, float>) {
        value = std::clamp(value, row.low, row.high);
    }
    _brush.*std::get<Value BrushSettings::*>(row.field) = value;
    return true;
}

template <typename Value>
void QDDrawCanvas::sendToLines(const BrushProperty& row, Value value) {
    const auto send = [&](LPLineParams* record) {
        if (record == nullptr) {
            return;
        }
        lpSetParaObj(record);
        if constexpr (std::is_same_v<Value, bool>) {
            lpSetPropertyb(row.lineId, value);
        } else if constexpr (std::is_same_v<Value, std::int32_t>) {
            lpSetPropertyi(row.lineId, value);
        } else {
            lpSetPropertyf(row.lineId, value);
        }
    };
    if (row.lines == Lines::main || row.lines == Lines::both) {
        send(_lineParaObj);
    }
    if (row.lines == Lines::sub || row.lines == Lines::both) {
        send(_subLineParaObj);
    }
}

template <typename Value>
void QDDrawCanvas::sendToRenders(const BrushProperty& row, const Value& value) {
    const struct {
        Renders mask;
        ESBaseRender* base;
        ESLineRender* line;
        ESSmudgeRender* smudge;
    } targets[] = {{kMain, _extenRender.get(), _extenRender.get(), nullptr},
                   {kSub, _subRender.get(), _subRender.get(), nullptr},
                   {kSmudge, _smudgeRender.get(), _smudgeRender.get(), _smudgeRender.get()},
                   {kCompositor, _esRender.get(), nullptr, nullptr}};
    std::visit(
        [&](auto setter) {
            using Setter = decltype(setter);
            for (const auto& target : targets) {
                if ((row.renders & target.mask) == 0) {
                    continue;
                }
                if constexpr (std::is_invocable_v<Setter, ESBaseRender*, const Value&>) {
                    (target.base->*setter)(value);
                } else if constexpr (std::is_invocable_v<Setter, ESLineRender*, const Value&>) {
                    if (target.line != nullptr) {
                        (target.line->*setter)(value);
                    }
                } else if constexpr (std::is_invocable_v<Setter, ESSmudgeRender*, const Value&>) {
                    if (target.smudge != nullptr) {
                        (target.smudge->*setter)(value);
                    }
                }
            }
        },
        row.render);
}

template <typename Value>
void QDDrawCanvas::assign(BrushKey key, Value value) {
    const BrushProperty& row = brushProperty(key);
    if (!storeClamped(row, value)) {
        return;
    }
    if constexpr (std::is_arithmetic_v<Value>) {
        if (row.lines != Lines::none) {
            sendToLines(row, value);
        }
    }
    if (row.renders != kNoRender) {
        sendToRenders(row, value);
    }
}

template void QDDrawCanvas::assign(BrushKey, bool);
template void QDDrawCanvas::assign(BrushKey, std::int32_t);
template void QDDrawCanvas::assign(BrushKey, float);
template void QDDrawCanvas::assign(BrushKey, LPControlParams);
template void QDDrawCanvas::assign(BrushKey, ESColor);

// ---- Values of a new canvas

void QDDrawCanvas::applyCreatedValues() {
    // Every property first, in table order, so that none is left undefined; tips come with the texture type
    // later, and a second line's size is fixed before what relates it to the first.
    for (const BrushProperty& row : brushProperties()) {
        const BrushValueType type = row.type();
        const bool isPicture = type == BrushValueType::image || type == BrushValueType::images;
        if (!isPicture && type != BrushValueType::text && row.key != BrushKey::textureType &&
            row.key != BrushKey::relationValue) {
            setBrushValue(row, brushDefault(row));
        }
    }
    // Some setters act on others; this order settles what a new canvas holds.
    static constexpr BrushKey kInOrder[] = {BrushKey::brushType,      BrushKey::blendType,
                                            BrushKey::moistQuantity,  BrushKey::loadQuantity,
                                            BrushKey::mixQuantity,    BrushKey::smudgeControlValue,
                                            BrushKey::smudgeControl,  BrushKey::radius,
                                            BrushKey::pointsDistance, BrushKey::radian,
                                            BrushKey::roundness,      BrushKey::flow,
                                            BrushKey::opacity,        BrushKey::sensitivity,
                                            BrushKey::minRadius,      BrushKey::smoothEnabled,
                                            BrushKey::speedSencitive, BrushKey::pointsDistanceEnabled,
                                            BrushKey::startRadius,    BrushKey::strokeControlValue,
                                            BrushKey::endRadius,      BrushKey::trackNum,
                                            BrushKey::radiusTingle,   BrushKey::recogPointScale};
    for (const BrushKey key : kInOrder) {
        setBrushValue(brushProperty(key), brushDefault(brushProperty(key)));
    }
}

// ---- By row

bool QDDrawCanvas::setBrushValue(const BrushProperty& property, const QVariant& value) {
    return std::visit(
        [&](auto setter) {
            const auto call = [&](const auto& typed) {
                if (!isFiniteValue(typed)) {
                    return false;
                }
                (this->*setter)(typed);
                return true;
            };
            using Setter = decltype(setter);
            const int type = value.typeId();
            if constexpr (std::is_same_v<Setter, void (QDDrawCanvas::*)(bool)>) {
                return type == QMetaType::Bool && call(value.toBool());
            } else if constexpr (std::is_same_v<Setter, void (QDDrawCanvas::*)(std::int32_t)>) {
                return type == QMetaType::Int && call(static_cast<std::int32_t>(value.toInt()));
            } else if constexpr (std::is_same_v<Setter, void (QDDrawCanvas::*)(float)>) {
                const bool isNumber =
                    type == QMetaType::Float || type == QMetaType::Double || type == QMetaType::Int;
                return isNumber && call(value.toFloat());
            } else if constexpr (std::is_same_v<Setter, void (QDDrawCanvas::*)(const LPControlParams&)>) {
                return value.canConvert<LPControlParams>() && call(value.value<LPControlParams>());
            } else if constexpr (std::is_same_v<Setter, void (QDDrawCanvas::*)(const ESColor&)>) {
                return value.canConvert<ESColor>() && call(value.value<ESColor>());
            } else if constexpr (std::is_same_v<Setter, void (QDDrawCanvas::*)(const QImage&)>) {
                return type == QMetaType::QImage && call(value.value<QImage>());
            } else if constexpr (std::is_same_v<Setter, void (QDDrawCanvas::*)(const QList<QImage>&)>) {
                return value.canConvert<QList<QImage>>() && call(value.value<QList<QImage>>());
            } else {
                return type == QMetaType::QString && call(value.toString());
            }
        },
        property.set);
}

QVariant QDDrawCanvas::brushValue(const BrushProperty& property) const {
    return std::visit([&](auto field) { return QVariant::fromValue(_brush.*field); }, property.field);
}

// ---- Brush kind and blending

// Before the brush may change to one that draws elsewhere; whether it will. What a stroke in progress has
// drawn stays as it is, but for a preview's: a layer never holds strokes of two kinds.
bool QDDrawCanvas::settleStrokeKind(std::int32_t brushType, bool isDebug, bool enableRecogition) {
    const bool smudges = brushType == kSmudgeBrush && !isDebug && !enableRecogition;
    const bool previews = brushType == kPreviewBrush && !enableRecogition;
    if (smudges == isSmudgeType() && previews == usesPreview()) {
        return false;
    }
    if (!usesPreview()) {
        finishLayers();
        if (_stroke == Stroke::drawing && !previews) {
            (smudges ? *_smudgeRender : *_extenRender).resetLineProporty();
        }
    } else if (_stroke == Stroke::drawing) {
        dropStroke();
    }
    return true;
}

void QDDrawCanvas::setBrushType(std::int32_t value) {
    const Call call(*this);
    const bool changes = settleStrokeKind(value, _brush.isDebug, _brush.enableRecogition);
    assign(BrushKey::brushType, value);
    _showsLeaf = value == kPreviewBrush;
    setRepeatedlyRenderEnabled(_brush.repeatedlyRenderEnabled);
    if (changes && isSmudgeType()) {
        updateSmudgeBGTexture();
        warmUpSmudging();
    }
}

void QDDrawCanvas::setIsDebug(bool value) {
    const Call call(*this);
    settleStrokeKind(_brush.brushType, value, _brush.enableRecogition);
    assign(BrushKey::isDebug, value);
}

void QDDrawCanvas::setBlendType(std::int32_t value) {
    const ESCurrentScope current(*_esContext);
    if (!current) {
        return;
    }
    settleDrawn();
    assign(BrushKey::blendType, value);
    _esContext->beginRenderForType(ESRenderTypeCanvas);
    _esRender->setBlendType(static_cast<std::uint32_t>(value));
}

void QDDrawCanvas::setBlendFragmentShaderString(const QString& value) {
    const ESCurrentScope current(*_esContext);
    if (!current) {
        return;
    }
    settleDrawn();
    _esContext->beginRenderForType(ESRenderTypeCanvas);
    const std::uint32_t type = ESImageRender::blendTypeOfFragmentShaderString(ESShaderTools::withBool(value));
    // An unknown text draws as normal. The blendType property deliberately keeps its value.
    _esRender->setBlendType(type != 0 ? type : std::uint32_t{ESBlendTypeNormal});
    _brush.blendFragmentShaderString = _esRender->fragmentShaderString();
}

void QDDrawCanvas::setRepeatedlyRenderEnabled(bool value) {
    const Call call(*this);
    settleDrawn();
    assign(BrushKey::repeatedlyRenderEnabled, value);
    if (needRepeatedlyRender() == _esRender->repeatedlyRenderEnabled()) {
        return;
    }
    // In mid-stroke: what was drawn without a mask must not be masked, nor the other way round.
    const bool inALine = _stroke == Stroke::drawing && !usesPreview();
    if (inALine) {
        finishLayers();
    }
    _esRender->setRepeatedlyRenderEnabled(needRepeatedlyRender());
    if (inALine && needRepeatedlyRender()) {
        startSubLine();
    }
}

void QDDrawCanvas::setGaussianRadius(float value) {
    assign(BrushKey::gaussianRadius, value);
    _leafDrawView->setGaussianRadius(_brush.gaussianRadius);
}

// The preview has no flow of its own.
void QDDrawCanvas::sendPreviewColor() {
    const ESColor& color = _brush.renderColor;
    _leafDrawView->setRenderColor(ESColor::rgba(color.red(), color.green(), color.blue(), _brush.flow));
}

void QDDrawCanvas::setRenderColor(const ESColor& value) {
    assign(BrushKey::renderColor, value);
    sendPreviewColor();
}

void QDDrawCanvas::setFlow(float value) {
    assign(BrushKey::flow, value);
    sendPreviewColor();
}

// ---- Line

void QDDrawCanvas::setTrackNum(std::int32_t value) {
    assign(BrushKey::trackNum, value);
    lpSetParaObj(_lineParaObj);
    lpSetPropertyi(17, value);
    // Deliberate: the sub-line never gathers.
    lpSetParaObj(_subLineParaObj);
    lpSetPropertyi(17, 0);
}

void QDDrawCanvas::setRadiusControl(const LPControlParams& value) {
    LPControlParams stored = value;
    if (!storeClamped(brushProperty(BrushKey::radiusControl), stored)) {
        return;
    }
    // Deliberate: the ids do not stand in the order of the record.
    for (LPLineParams* record : {_lineParaObj, _subLineParaObj}) {
        lpSetParaObj(record);
        lpSetPropertyf(6, stored.speed);
        lpSetPropertyf(7, stored.pressure);
        lpSetPropertyf(8, stored.altitude);
    }
}

void QDDrawCanvas::setRadius(float value) {
    assign(BrushKey::radius, value);
    if (_brush.slRadiusRelationType == 1 || _brush.slRadiusRelationType == 2) {
        setRelationValue(_brush.relationValue);  // the second line follows
    }
    if (_brush.textureType != 0) {
        regenerateTip();
    }
}

// ---- Dabs

void QDDrawCanvas::setDistributionCount(float value) {
    assign(BrushKey::distributionCount, value);
    _extenRender->setDistributionCount(wholeCount(_brush.distributionCount));
    _smudgeRender->setDistributionCount(wholeCount(_brush.distributionCount));
}

void QDDrawCanvas::setMinRoundness(float value) {
    float stored = value;
    if (!storeClamped(brushProperty(BrushKey::minRoundness), stored)) {
        return;
    }
    // Deliberate: the renderers get the value as it was passed, not the clamped one.
    _extenRender->setMinRoundness(value);
    _smudgeRender->setMinRoundness(value);
}

// ---- Tip and paper

void QDDrawCanvas::setTextureType(std::int32_t value) {
    assign(BrushKey::textureType, value);
    _textureTool.setTextureType(value);
    regenerateTip();
}

void QDDrawCanvas::setHardness(float value) {
    assign(BrushKey::hardness, value);
    _textureTool.setHardness(_brush.hardness);
    if (_brush.textureType != 0) {
        regenerateTip();
    }
}

void QDDrawCanvas::setTextureControlValue(float value) {
    assign(BrushKey::textureControlValue, value);
    _textureTool.setTextureControlValue(_brush.textureControlValue);
    if (_brush.textureType == 2 || _brush.textureType == 3) {
        regenerateTip();
    }
}

void QDDrawCanvas::setTextureImages(const QList<QImage>& value) {
    QList<QImage> images;
    std::copy_if(value.begin(), value.end(), std::back_inserter(images),
                 [](const QImage& image) { return !image.isNull(); });
    if (images.isEmpty()) {
        _brush.textureImages.clear();
        _drawnTip = {};
        _brush.textureType = 0;
        _textureTool.setTextureType(0);
        return;
    }
    _storedTips = images;
    _drawnTip = {};
    _textureTool.setImage(images.first());
    useTips(images);
}

// Type 0 paints with the tips handed in; any other draws one at the present radius.
void QDDrawCanvas::regenerateTip() {
    if (_tipIsHeld) {
        return;
    }
    if (_brush.textureType == 0) {
        _drawnTip = {};
        if (!_storedTips.isEmpty()) {
            useTips(_storedTips);
        }
        return;
    }
    const DrawnTip wanted{_brush.textureType, static_cast<int>(_brush.radius), _brush.hardness,
                          _brush.textureControlValue};
    if (wanted != _drawnTip) {
        _drawnTip = wanted;
        useTips({_textureTool.textureImageWithSize(wanted.size)});
    }
}

// A preset may change what a drawn tip looks like thousands of times, and a large one takes long to draw.
void QDDrawCanvas::releaseTip(bool regenerate) {
    _tipIsHeld = false;
    if (regenerate) {
        regenerateTip();
    }
}

void QDDrawCanvas::useTips(const QList<QImage>& tips) {
    const ESCurrentScope current(*_esContext);
    if (!current) {
        return;
    }
    _brush.textureImages = tips;
    _esContext->beginRenderForType(ESRenderTypeCanvas);
    _extenRender->setTextureImages(tips, GL_TEXTURE1);
    _smudgeRender->setTextureImages(tips, GL_TEXTURE6);
}

void QDDrawCanvas::setMaskImage(const QImage& value) {
    const ESCurrentScope current(*_esContext);
    if (!current) {
        return;
    }
    _brush.maskImage = value;
    _esContext->beginRenderForType(ESRenderTypeLine);
    _extenRender->setMaskImage(value);
}

// ---- Second line

void QDDrawCanvas::setSlTextureImage(const QImage& value) {
    const ESCurrentScope current(*_esContext);
    if (!current) {
        return;
    }
    _brush.slTextureImage = value;
    _esContext->beginRenderForType(ESRenderTypeCanvas);
    _subRender->setTextureImage(value, GL_TEXTURE2);
}

void QDDrawCanvas::setSubRadius(float radius) {
    _brush.slRadius = std::max(radius, 1.0f);
    lpSetParaObj(_subLineParaObj);
    lpSetPropertyf(1, _brush.slRadius);
}

// How the second line's size relates to radius: their ratio for type 2, else their difference.
void QDDrawCanvas::takeRelationValue() {
    _brush.relationValue =
        _brush.slRadiusRelationType == 2 ? _brush.slRadius / _brush.radius : _brush.slRadius - _brush.radius;
}

void QDDrawCanvas::setSlRadius(float value) {
    float stored = value;
    if (!storeClamped(brushProperty(BrushKey::slRadius), stored)) {
        return;
    }
    setSubRadius(stored);
    takeRelationValue();
}

void QDDrawCanvas::setSlRadiusRelationType(std::int32_t value) {
    assign(BrushKey::slRadiusRelationType, value);
    takeRelationValue();
}

void QDDrawCanvas::setRelationValue(float value) {
    float stored = value;
    if (!storeClamped(brushProperty(BrushKey::relationValue), stored)) {
        return;
    }
    setSubRadius(_brush.slRadiusRelationType == 2 ? _brush.radius * stored : _brush.radius + stored);
}

void QDDrawCanvas::setSlDistbCount(float value) {
    assign(BrushKey::slDistbCount, value);
    _subRender->setDistributionCount(wholeCount(_brush.slDistbCount));
}
