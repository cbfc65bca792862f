// SPDX-License-Identifier: MIT
#include "Brush/BrushModel.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "Brush/BrushPresentation.h"
#include "Canvas/QDDrawCanvas.h"
#include "ESRender/ESImageRender.h"
#include "Preset/QDBrushManager.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr auto kTips = BrushKey::textureImages;
constexpr auto kTipType = BrushKey::textureType;

bool isHidden(const BrushProperty& property) {
    return brushPresentation(property).place == BrushPlace::hidden;
}

// The tips that a new canvas holds ready, which only show once they are chosen.
QVariant readyTips(QDDrawCanvas& canvas) {
    const std::int32_t type = canvas.textureType();
    canvas.setTextureType(0);
    const QVariant tips = canvas.brushValue(brushProperty(kTips));
    canvas.setTextureType(type);
    return tips;
}

bool isColor(const BrushProperty& property) {
    return property.type() == BrushValueType::color;
}

// Up to what is lost on the way through files and other canvases.
bool nearlySameBrushValue(const QVariant& a, const QVariant& b) {
    if (a.typeId() == QMetaType::Float && b.typeId() == QMetaType::Float) {
        const float x = a.toFloat(), y = b.toFloat();
        return std::abs(x - y) <= 1e-5f * std::max({1.0f, std::abs(x), std::abs(y)});
    }
    if (a.typeId() == QMetaType::QImage && b.typeId() == QMetaType::QImage) {
        const auto x = a.value<QImage>(), y = b.value<QImage>();
        return sameBrushValue(a, b) || (!x.isNull() && !y.isNull() && x.convertToFormat(y.format()) == y);
    }
    return sameBrushValue(a, b);
}

}  // namespace

void applyPreset(QDDrawCanvas& canvas, const BrushPreset& preset) {
    for (const BrushProperty& property : brushProperties()) {
        // What a canvas otherwise leaves as it is when a preset does not name it.
        const bool isPlain = !isColor(property) && property.type() != BrushValueType::image &&
                             property.type() != BrushValueType::images;
        if (property.presetId != 0 && !property.reset && isPlain)
            canvas.setBrushValue(property, brushDefault(property));
    }
    canvas.resetWithParams(preset.params, preset.version);
    constexpr quint32 kBlendText = 0x9006;
    if (BrushRecords::paramValueForKey(preset.params, kBlendText).isValid()) {
        // A blend mode by its program's text, as presets made elsewhere hold: from here on by its number.
        const auto type = ESImageRender::blendTypeOfFragmentShaderString(canvas.blendFragmentShaderString());
        canvas.setBlendType(std::int32_t(type != 0 ? type : std::uint32_t{ESBlendTypeNormal}));
    }
    if (canvas.textureType() == 0 && canvas.textureImages().isEmpty())
        canvas.setTextureType(1);  // it came without the images that were to be its tip
}

bool sameBrushValue(const QVariant& a, const QVariant& b) {
    if (a.typeId() != b.typeId())
        return false;
    if (a.typeId() == qMetaTypeId<LPControlParams>()) {
        const auto x = a.value<LPControlParams>(), y = b.value<LPControlParams>();
        return x.pressure == y.pressure && x.altitude == y.altitude && x.speed == y.speed;
    }
    if (a.typeId() == qMetaTypeId<ESColor>())
        return a.value<ESColor>() == b.value<ESColor>();
    const auto sameImage = [](const QImage& x, const QImage& y) {
        return x.cacheKey() == y.cacheKey() || x == y;
    };
    if (a.typeId() == QMetaType::QImage)
        return sameImage(a.value<QImage>(), b.value<QImage>());
    if (a.typeId() == qMetaTypeId<QList<QImage>>()) {
        const auto x = a.value<QList<QImage>>(), y = b.value<QList<QImage>>();
        return std::equal(x.begin(), x.end(), y.begin(), y.end(), sameImage);
    }
    return a == b;
}

BrushModel::BrushModel(QObject* parent) : QObject(parent) {
    for (const BrushProperty& property : brushProperties())
        _defaults.push_back(brushDefault(property));
    _values = _defaults;
}

// For one scope the canvas has the model's own values.
struct BrushModel::OwnValues {
    explicit OwnValues(const BrushModel& brush) : model(brush) {
        for (const auto& [key, value] : model._overrides)
            model._canvas->setBrushValue(brushProperty(key), model.value(key));
    }
    ~OwnValues() {
        for (const auto& [key, value] : model._overrides)
            model._canvas->setBrushValue(brushProperty(key), value);
    }
    OwnValues(const OwnValues&) = delete;
    OwnValues& operator=(const OwnValues&) = delete;
    const BrushModel& model;
};

void BrushModel::attach(QDDrawCanvas* canvas) {
    _canvas = canvas;
    _begun.reset();
    _overrides.clear();
    if (!canvas)
        return;
    if (!_knowsDefaults) {
        // Images have no default in the table; those of a new canvas are.
        for (const BrushProperty& property : brushProperties()) {
            if (property.type() != BrushValueType::image && property.type() != BrushValueType::images)
                continue;
            const std::size_t i = std::size_t(property.key);
            _defaults[i] = property.key == kTips ? readyTips(*canvas) : canvas->brushValue(property);
            store(property.key, _defaults[i]);
        }
        _knowsDefaults = true;
    }
    applyAll(*canvas);
    readBack();
    override();
}

bool BrushModel::setValue(BrushKey key, const QVariant& value) {
    const BrushProperty& property = brushProperty(key);
    if (!_canvas)
        return false;
    if (sameBrushValue(value, this->value(key)))
        return true;
    if (key == kTips) {
        // None at all would leave the brush without a tip.
        auto tips = value.value<QList<QImage>>();
        tips.removeIf([](const QImage& tip) { return tip.isNull(); });
        if (tips.isEmpty() || !_canvas->setBrushValue(property, QVariant::fromValue(tips)))
            return false;
        _canvas->setTextureType(_canvas->textureType());  // a drawn tip stays the one in use
        store(key, QVariant::fromValue(tips));
    } else if (!_canvas->setBrushValue(property, value)) {
        return false;
    } else if (_overrides.contains(key)) {
        store(key, _canvas->brushValue(property));
    }
    readBack();
    override();
    return true;
}

QVariant BrushModel::baseValue(BrushKey key) const {
    const bool ofPreset = _preset && (!isColor(brushProperty(key)) || _presetsSetColors);
    return (ofPreset ? _presetValues : _defaults)[std::size_t(key)];
}

bool BrushModel::isBase(BrushKey key) const {
    return nearlySameBrushValue(value(key), baseValue(key));
}

void BrushModel::setPresetsSetColors(bool on) {
    _presetsSetColors = on;
    emit presetChanged();
}

void BrushModel::resetAll() {
    if (_preset) {
        takePreset(BrushPreset(*_preset));
        return;
    }
    for (const BrushProperty& property : brushProperties()) {
        if (!isHidden(property))
            reset(property.key);
    }
    // Resetting one may have moved another that had been reset before.
    for (const BrushProperty& property : brushProperties()) {
        if (!isHidden(property))
            reset(property.key);
    }
}

std::optional<BrushParams> BrushModel::params() const {
    if (!_canvas || _begun)
        return std::nullopt;
    const OwnValues own(*this);
    return QDBrushManager::paramsOfDrawView(_canvas);
}

bool BrushModel::takePreset(const BrushPreset& preset) {
    if (!_canvas || _begun)
        return false;
    for (const auto& [key, value] : std::exchange(_overrides, {}))
        _canvas->setBrushValue(brushProperty(key), this->value(key));  // a preset may leave them as they are
    applyPreset(*_canvas, preset);
    _presetValues = valuesOf(*_canvas);
    if (!_presetsSetColors) {
        for (const BrushProperty& property : brushProperties()) {
            if (isColor(property))
                _canvas->setBrushValue(property, value(property.key));
        }
    }
    _preset = preset;
    const std::vector<QVariant> before = std::exchange(_values, valuesOf(*_canvas));
    override();
    for (const BrushProperty& property : brushProperties()) {
        if (!sameBrushValue(before[std::size_t(property.key)], value(property.key)))
            emit changed(property.key);
    }
    emit presetChanged();
    return true;
}

bool BrushModel::takeUp(const Held& held) {
    if (!_canvas || _begun)
        return false;
    if (held.preset)
        takePreset(*held.preset);
    else
        comesFrom({});
    // Setting one may move another that was set before.
    for (int round = 0; round < 2; ++round) {
        for (const BrushProperty& property : brushProperties()) {
            const bool follows = property.key == BrushKey::relationValue && !relates();
            if (!isHidden(property) && !isColor(property) && !follows)
                setValue(property.key, held.values[std::size_t(property.key)]);
        }
    }
    return true;
}

void BrushModel::comesFrom(const std::optional<BrushPreset>& preset) {
    // What it makes of a canvas is known only by doing so.
    const auto canvas = preset ? QDDrawCanvas::initWithFrame(QRectF(0, 0, 16, 16)) : nullptr;
    _preset.reset();
    if (canvas) {
        applyPreset(*canvas, *preset);
        _preset = preset;
        _presetValues = valuesOf(*canvas);
    }
    emit presetChanged();
}

bool BrushModel::isModified() const {
    const std::vector<QVariant>& base = _preset ? _presetValues : _defaults;
    return std::any_of(brushProperties().begin(), brushProperties().end(), [&](const BrushProperty& row) {
        const bool counts = row.presetId != 0 && !isHidden(row) &&
                            (!isColor(row) || (_preset && _presetsSetColors)) &&
                            (row.key != kTips || value(kTipType).toInt() == 0) &&
                            (row.key != BrushKey::relationValue || relates());
        return counts && !nearlySameBrushValue(value(row.key), base[std::size_t(row.key)]);
    });
}

// Whether the second line's size follows the first one's, so that relationValue means something.
bool BrushModel::relates() const {
    const int type = value(BrushKey::slRadiusRelationType).toInt();
    return type == 1 || type == 2;
}

void BrushModel::apply(QDDrawCanvas& canvas, const std::vector<BrushKey>& keys) const {
    const auto has = [&](BrushKey key) { return std::find(keys.begin(), keys.end(), key) != keys.end(); };
    if (has(kTips))
        canvas.setBrushValue(brushProperty(kTips), value(kTips));
    for (const BrushProperty& property : brushProperties()) {
        // Unless it relates the sizes of the two lines, it would but move the second one's.
        if (property.key == kTips || isHidden(property) ||
            (property.key == BrushKey::relationValue && !relates()))
            continue;
        // After new tips the type is set as well, as it says whether they are the ones to be used.
        if (has(property.key) || (property.key == kTipType && has(kTips)))
            canvas.setBrushValue(property, value(property.key));
    }
}

void BrushModel::applyAll(QDDrawCanvas& canvas) const {
    std::vector<BrushKey> keys;
    for (const BrushProperty& property : brushProperties())
        keys.push_back(property.key);
    apply(canvas, keys);
}

void BrushModel::beginOverride(BrushKey key, const QVariant& value) {
    _begun = {key, value};
    override();
}

void BrushModel::endOverride() {
    _begun.reset();
    override();
}

void BrushModel::setErases(bool on) {
    _erases = on;
    override();
}

void BrushModel::setPaper(const QColor& paper) {
    _paper = paper;
    override();
}

std::map<BrushKey, QVariant> BrushModel::wantedOverrides() const {
    std::map<BrushKey, QVariant> wanted;
    if (_begun)
        wanted.insert(*_begun);
    const int type = value(BrushKey::brushType).toInt();
    const bool blends = type != kSmudgeBrush && type != kLiveFillBrush;  // which know no blend mode
    if (_erases) {
        wanted.insert({BrushKey::blendType, int(ESBlendTypeErase)});
        if (!blends)
            wanted.insert({BrushKey::brushType, int(BrushKind::Dabs)});
    }
    const auto blend = wanted.find(BrushKey::blendType);
    const bool erases =
        (blend == wanted.end() ? value(BrushKey::blendType) : blend->second).toInt() == ESBlendTypeErase &&
        (blends || _erases);
    if (erases && _paper.isValid()) {
        // This colour and no other, whatever the brush does to its own.
        const QVariant paper = QVariant::fromValue(ESColor(_paper));
        wanted[BrushKey::blendType] = int(ESBlendTypeNormal);
        wanted[BrushKey::renderColor] = wanted[BrushKey::backRenderColor] = paper;
        wanted[BrushKey::colorFul] = false;
        for (const BrushKey jitter :
             {BrushKey::hueTingle, BrushKey::saturationTingle, BrushKey::brightnessTingle})
            wanted[jitter] = 0.0f;
    }
    return wanted;
}

void BrushModel::override() {
    if (!_canvas)
        return;
    const auto set = [this](BrushKey key, const QVariant& value) {
        if (!sameBrushValue(_canvas->brushValue(brushProperty(key)), value))
            _canvas->setBrushValue(brushProperty(key), value);
    };
    const auto wanted = wantedOverrides();
    for (const auto& [key, value] : std::exchange(_overrides, wanted)) {
        if (!wanted.contains(key))
            set(key, this->value(key));
    }
    for (const auto& [key, value] : wanted)
        set(key, value);
}

std::vector<QVariant> BrushModel::valuesOf(const QDDrawCanvas& canvas) const {
    std::vector<QVariant> values;
    for (const BrushProperty& property : brushProperties()) {
        const bool isLoaded = property.key != kTips || canvas.textureType() == 0;
        values.push_back(isLoaded ? canvas.brushValue(property) : value(kTips));
    }
    return values;
}

void BrushModel::readBack() {
    for (const BrushProperty& property : brushProperties()) {
        if (property.key != kTips && !_overrides.contains(property.key))
            store(property.key, _canvas->brushValue(property));
    }
}

void BrushModel::store(BrushKey key, const QVariant& value) {
    QVariant& stored = _values[std::size_t(key)];
    if (sameBrushValue(stored, value))
        return;
    stored = value;
    emit changed(key);
}

}  // namespace dabcanvas::dabpainter
