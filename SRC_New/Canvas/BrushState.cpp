// SPDX-License-Identifier: MIT
#include "Canvas/BrushState.h"

#include <QLoggingCategory>
#include <algorithm>
#include <cmath>
#include <type_traits>

#include "Canvas/CanvasLog.h"
#include "ESRender/BlendPrograms.h"
#include "ESRender/Utilities/ESResource.h"
#include "Surface/BlendType.h"

namespace dabcanvas {
namespace {

constexpr int kSmudgeBrush = 3;
constexpr char kDefaultTip[] = "Texture.bundle/PS_brush_11.png";
constexpr float kMostCopies = 1e6f;  // far above what is drawn; keeps the cast to an integer defined

std::uint32_t wholeCount(float value) {
    return static_cast<std::uint32_t>(std::clamp(value, 0.0f, kMostCopies));
}

// A line record is selected while this lives; then the one that was, which may be a host's.
class SelectedLine {
public:
    explicit SelectedLine(LPLineParams& record) : _before(lpSetParaObj(&record)) {}
    ~SelectedLine() { lpSetParaObj(_before); }
    SelectedLine(const SelectedLine&) = delete;
    SelectedLine& operator=(const SelectedLine&) = delete;

private:
    LPLineParams* _before;
};

void sendTo(LPLineParams& record, int id, const BrushValue& value) {
    const SelectedLine line(record);
    if (const bool* flag = std::get_if<bool>(&value)) {
        lpSetPropertyb(id, *flag);
    } else if (const int* number = std::get_if<int>(&value)) {
        lpSetPropertyi(id, *number);
    } else if (const float* real = std::get_if<float>(&value)) {
        lpSetPropertyf(id, *real);
    }
}

bool isFinite(const BrushValue& value) {
    if (const float* real = std::get_if<float>(&value)) {
        return std::isfinite(*real);
    }
    if (const auto* control = std::get_if<LPControlParams>(&value)) {
        return std::isfinite(control->pressure) && std::isfinite(control->altitude) &&
               std::isfinite(control->speed);
    }
    return true;
}

QImage resourceImage(const char* name) {
    return imageNamed(QString::fromUtf8(name));
}

RgbType colorOf(const ESColor& color) {
    return RgbTypeMake(color.red(), color.green(), color.blue());
}

// What the dabs of one kind are given of a property, as the table says.
void copyDabField(const BrushProperty& row, const BrushSettings& from, DabSettings& to) {
    std::visit(
        [&](auto field, auto dab) {
            if constexpr (!std::is_same_v<decltype(dab), std::monostate>) {
                if constexpr (std::is_same_v<std::remove_cvref_t<decltype(from.*field)>,
                                             std::remove_cvref_t<decltype(to.*dab)>>) {
                    to.*dab = from.*field;
                }
            }
        },
        row.field, row.dab);
}

}  // namespace

// ---- Values

BrushState::BrushState() {
    struct LineDefault {
        int id;
        float value;
    };
    static constexpr LineDefault kSubLine[] = {{3, 0.25f}, {1, 32.0f}, {13, 0.2f}, {14, 50.0f}, {20, 0.5f},
                                               {5, 0.0f},  {6, 0.0f},  {7, 0.0f},  {8, 0.0f},   {9, 1.0f},
                                               {10, 1.0f}, {16, 1.0f}, {18, 0.0f}};
    static constexpr LineDefault kMainLine[] = {{1, 5.0f}, {3, 0.25f}, {6, 0.0f}, {7, 0.0f},
                                                {8, 0.0f}, {13, 0.2f}, {20, 0.5f}};
    sendTo(_subLine, 2, true);
    for (const LineDefault& row : kSubLine) {
        sendTo(_subLine, row.id, row.value);
    }
    sendTo(_line, 2, true);
    for (const LineDefault& row : kMainLine) {
        sendTo(_line, row.id, row.value);
    }
    _subDabs.settings.radianTingle = 1;
    const QImage tip = resourceImage(kDefaultTip);
    if (tip.isNull()) {
        qCWarning(lcDabcanvas, "the default brush tip %s cannot be read", kDefaultTip);
    } else {
        set(BrushKey::textureImages, QList<QImage>{tip});
        set(BrushKey::slTextureImage, tip);
    }
    applyCreatedValues();
    set(BrushKey::textureType, 1);
    set(BrushKey::hardness, 0.0f);
}

void BrushState::applyCreatedValues() {
    // Tips come with the texture type later, and a second line's size settles what relates it to the first.
    for (const BrushProperty& row : brushProperties()) {
        const BrushValueType type = row.type();
        const bool isPicture = type == BrushValueType::image || type == BrushValueType::images;
        if (!isPicture && type != BrushValueType::text && row.key != BrushKey::textureType &&
            row.key != BrushKey::relationValue) {
            set(row.key, *brushValueOf(row, brushDefault(row)));
        }
    }
}

const BrushSettings& BrushState::settings() const {
    _settings.textureImages = _tips.images();
    return _settings;
}

BrushValue BrushState::value(BrushKey key) const {
    const BrushSettings& from = key == BrushKey::textureImages ? settings() : _settings;
    return std::visit([&](auto field) { return BrushValue(from.*field); }, brushProperty(key).field);
}

bool BrushState::set(BrushKey key, const BrushValue& given) {
    const BrushProperty& row = brushProperty(key);
    BrushValue value = given;
    if (!takesValue(row, value)) {
        return false;
    }
    if (_listener != nullptr) {
        _listener->brushIsGiven(key, given);
        _listener->brushWillChange(key, value, kindAfter(key, value));
    }
    std::visit(
        [&](auto field) {
            using Value = std::remove_cvref_t<decltype(_settings.*field)>;
            _settings.*field = std::get<Value>(value);
        },
        row.field);
    sendToLines(row, value);
    _derived = false;
    applyRules(key, given);
    if (_listener != nullptr) {
        _listener->brushChanged(key);
    }
    return true;
}

// Whether it can be stored, and clamps it.
bool BrushState::takesValue(const BrushProperty& row, BrushValue& value) const {
    float* const real = std::get_if<float>(&value);
    const bool follows = row.key == BrushKey::relationValue && real != nullptr;
    if (!isFinite(value) || (follows && !std::isfinite(subRadiusFor(*real)))) {
        qCWarning(lcDabcanvas, "%s was given a number that is not finite; it keeps its value", row.name);
        return false;
    }
    if (real != nullptr) {
        *real = std::clamp(*real, row.low, row.high);
    }
    return true;
}

void BrushState::sendToLines(const BrushProperty& row, const BrushValue& value) {
    if (row.lines == Lines::main || row.lines == Lines::both) {
        sendTo(_line, row.lineId, value);
    }
    if (row.lines == Lines::sub || row.lines == Lines::both) {
        sendTo(_subLine, row.lineId, value);
    }
}

// What a property does beyond being stored and handed on.
void BrushState::applyRules(BrushKey key, const BrushValue& given) {
    switch (key) {
        case BrushKey::radius:
            if (_settings.slRadiusRelationType == 1 || _settings.slRadiusRelationType == 2) {
                setSubRadius(subRadiusFor(_settings.relationValue));  // the second line follows
            }
            return chooseTip(_settings.textureType != 0);
        case BrushKey::textureType:
            return chooseTip(true);
        case BrushKey::hardness:
            return chooseTip(_settings.textureType != 0);
        case BrushKey::textureControlValue:
            return chooseTip(_settings.textureType == 2 || _settings.textureType == 3);
        case BrushKey::textureImages:
            return takeImages();
        case BrushKey::maskImage:
            _paper = _settings.maskImage.isNull()
                         ? nullptr
                         : std::make_shared<const Picture>(pictureOf(_settings.maskImage));
            return;
        case BrushKey::slTextureImage:
            if (!_settings.slTextureImage.isNull()) {
                _subTips = std::make_shared<const TipSet>(TipSet{pictureOf(_settings.slTextureImage)});
            }
            return;
        case BrushKey::trackNum:
            return sendTo(_subLine, 17, 0);  // Deliberate: the sub-line never gathers.
        case BrushKey::radiusControl:
            // Deliberate: the ids do not stand in the order of the record.
            for (LPLineParams* record : {&_line, &_subLine}) {
                sendTo(*record, 6, _settings.radiusControl.speed);
                sendTo(*record, 7, _settings.radiusControl.pressure);
                sendTo(*record, 8, _settings.radiusControl.altitude);
            }
            return;
        case BrushKey::minRoundness:
            // Deliberate: dabs get the value as it was passed, not the clamped one.
            _givenMinRoundness = std::get<float>(given);
            return;
        case BrushKey::slRadius:
            setSubRadius(_settings.slRadius);
            return takeRelationValue();
        case BrushKey::slRadiusRelationType:
            return takeRelationValue();
        case BrushKey::relationValue:
            return setSubRadius(subRadiusFor(_settings.relationValue));
        case BrushKey::blendType:
            _blendType = static_cast<std::uint32_t>(_settings.blendType);
            return;
        case BrushKey::blendFragmentShaderString:
            return takeBlendProgram();
        default:
            return;
    }
}

// An unknown text draws as normal. The blendType property deliberately keeps its value.
void BrushState::takeBlendProgram() {
    const std::uint32_t type = blendTypeOfProgram(_settings.blendFragmentShaderString);
    _blendType = type != 0 ? type : std::uint32_t{ESBlendTypeNormal};
    _settings.blendFragmentShaderString = programOfBlendType(_blendType);
}

// ---- Tips

void BrushState::chooseTip(bool concerned) {
    if (concerned) {
        _tips.choose({_settings.textureType, static_cast<int>(_settings.radius), _settings.hardness,
                      _settings.textureControlValue});
    }
}

void BrushState::takeImages() {
    QList<QImage> images = std::exchange(_settings.textureImages, {});
    images.removeIf([](const QImage& image) { return image.isNull(); });
    if (images.isEmpty()) {
        _settings.textureType = 0;
        _tips.drop();
    } else {
        _tips.give(images);
    }
}

// ---- The second line

float BrushState::subRadiusFor(float relation) const {
    return _settings.slRadiusRelationType == 2 ? _settings.radius * relation : _settings.radius + relation;
}

void BrushState::setSubRadius(float radius) {
    _settings.slRadius = std::max(radius, 1.0f);
    sendTo(_subLine, 1, _settings.slRadius);
}

// How its size relates to radius: their ratio for type 2, else their difference.
void BrushState::takeRelationValue() {
    _settings.relationValue = _settings.slRadiusRelationType == 2 ? _settings.slRadius / _settings.radius
                                                                  : _settings.slRadius - _settings.radius;
}

void BrushState::restoreSubLine(float slRadius, float relationValue) {
    setSubRadius(slRadius);
    _settings.relationValue = relationValue;
}

// ---- Kinds

StrokeKind BrushState::kindOf(int brushType, bool isDebug, bool enableRecogition) {
    if (enableRecogition) {
        return StrokeKind::dabs;
    }
    return brushType == kPreviewBrush              ? StrokeKind::preview
           : brushType == kSmudgeBrush && !isDebug ? StrokeKind::smudge
                                                   : StrokeKind::dabs;
}

StrokeKind BrushState::kindAfter(BrushKey key, const BrushValue& value) const {
    return kindOf(key == BrushKey::brushType ? std::get<int>(value) : _settings.brushType,
                  key == BrushKey::isDebug ? std::get<bool>(value) : _settings.isDebug,
                  key == BrushKey::enableRecogition ? std::get<bool>(value) : _settings.enableRecogition);
}

bool BrushState::isMasked() const {
    return _settings.repeatedlyRenderEnabled && _settings.brushType != kSmudgeBrush;
}

// ---- What strokes are made from

void BrushState::derive() {
    if (_derived) {
        return;
    }
    _derived = true;
    const BrushSettings& from = _settings;
    for (const BrushProperty& row : brushProperties()) {
        for (const auto& [which, maker] :
             {std::pair{kMain, &_dabs}, {kSub, &_subDabs}, {kSmudge, &_smudgeDabs}}) {
            if ((row.dabs & which) != 0) {
                copyDabField(row, from, maker->settings);
            }
        }
    }
    const auto tips = static_cast<unsigned>(_tips.pictures(from.radius)->size());
    for (DabMaker* maker : {&_dabs, &_smudgeDabs}) {
        maker->settings.distributionCount = wholeCount(from.distributionCount);
        maker->settings.minRoundness = _givenMinRoundness;
        maker->settings.backColor = colorOf(from.backRenderColor);
        maker->settings.numberOfTips = tips;
        maker->settings.tipCells = tipCells(tips);
    }
    _subDabs.settings.distributionCount = wholeCount(from.slDistbCount);
    _subDabs.settings.numberOfTips = 1;
    for (DabMaker* maker : {&_dabs, &_subDabs, &_smudgeDabs}) {
        maker->settings.color = colorOf(from.renderColor);
        maker->updateFlags();
    }
    _smudges.settings = {.moist = from.moistQuantity,
                         .load = from.loadQuantity,
                         .mix = from.mixQuantity,
                         .control = from.smudgeControl,
                         .controlValue = from.smudgeControlValue,
                         .bristles = from.bristles};
}

DabMaker& BrushState::dabs() {
    derive();
    return _dabs;
}

DabMaker& BrushState::subDabs() {
    derive();
    return _subDabs;
}

DabMaker& BrushState::smudgeDabs() {
    derive();
    return _smudgeDabs;
}

SmudgeMaker& BrushState::smudges() {
    derive();
    return _smudges;
}

DabStyle BrushState::style() const {
    return {.tips = _tips.pictures(_settings.radius),
            .paper = _settings.needMaskTexture ? _paper : nullptr,
            .paperStyle = {.scale = _settings.maskScale,
                           .gain = _settings.maskContrast,
                           .level = _settings.maskBrightness + (1 - _settings.maskContrast) / 2,
                           .lifts = _settings.maskDepth > 0},
            .multicolour = _settings.colorFul,
            .hueTingle = _settings.hueTingle,
            .saturationTingle = _settings.saturationTingle,
            .brightnessTingle = _settings.brightnessTingle};
}

DabStyle BrushState::subStyle() const {
    return {.tips = _subTips, .paper = {}};
}

CompositeStyle BrushState::compositeStyle() const {
    const bool dries = _settings.wetEdge > 0;
    return {.blendType = _blendType,
            .opacity = _settings.opacity,
            .masked = isMasked(),
            .wetEdge = _settings.wetEdge,
            .wetEdgeWidth = dries ? static_cast<int>(std::lround(_settings.wetEdgeWidth)) : 0};
}

void BrushState::setViewTurn(float radian, bool mirrored) {
    for (DabMaker* maker : {&_dabs, &_subDabs, &_smudgeDabs}) {
        maker->settings.viewRadian = radian;
        maker->settings.viewMirrored = mirrored;
    }
}

void BrushState::setRepeatable(bool repeatable) {
    for (DabMaker* maker : {&_dabs, &_subDabs, &_smudgeDabs}) {
        maker->settings.isDebug = repeatable;
    }
}

}  // namespace dabcanvas
