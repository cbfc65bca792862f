// SPDX-License-Identifier: MIT
#include "BrushModel.h"

#include <algorithm>
#include <utility>

#include "BrushPresentation.h"
#include "QDEAGLView/QDDrawCanvas.h"

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

}  // namespace

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

void BrushModel::attach(QDDrawCanvas* canvas) {
    _canvas = canvas;
    _overridden = BrushKey::count;
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
    } else if (key == _overridden) {
        store(key, value);
    } else if (!_canvas->setBrushValue(property, value)) {
        return false;
    }
    readBack();
    return true;
}

void BrushModel::resetAll() {
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

void BrushModel::apply(QDDrawCanvas& canvas, const std::vector<BrushKey>& keys) const {
    const auto has = [&](BrushKey key) { return std::find(keys.begin(), keys.end(), key) != keys.end(); };
    if (has(kTips))
        canvas.setBrushValue(brushProperty(kTips), value(kTips));
    for (const BrushProperty& property : brushProperties()) {
        if (property.key == kTips || isHidden(property))
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
    endOverride();
    if (_canvas && _canvas->setBrushValue(brushProperty(key), value))
        _overridden = key;
}

void BrushModel::endOverride() {
    const BrushKey key = std::exchange(_overridden, BrushKey::count);
    if (_canvas && key != BrushKey::count)
        _canvas->setBrushValue(brushProperty(key), value(key));
}

void BrushModel::readBack() {
    for (const BrushProperty& property : brushProperties()) {
        if (property.key != kTips && property.key != _overridden)
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
