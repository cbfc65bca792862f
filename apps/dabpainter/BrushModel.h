// SPDX-License-Identifier: MIT
// The brush one paints with, whatever canvas is shown.
#pragma once

#include <QObject>
#include <QVariant>
#include <optional>
#include <vector>

#include "Preset/BrushRecords.h"
#include "Brushes/BrushProperties.h"

class QDDrawCanvas;

namespace dabcanvas::dabpainter {

bool sameBrushValue(const QVariant& a, const QVariant& b);

// A brush to start from, as it stands in a file.
struct BrushPreset {
    BrushParams params;
    int version = 0;
};

// Makes a preset a canvas's brush, the same one whatever was set before.
void applyPreset(QDDrawCanvas& canvas, const BrushPreset& preset);

// Holds a value for every brush property, hands it to the canvas that is painted on, and reads back what that
// made of it: setters clamp, and some move other properties.
//
// Differs from a canvas in one thing: textureImages is what the user loaded, also while the tip is a drawn
// one.
class BrushModel : public QObject {
    Q_OBJECT

public:
    explicit BrushModel(QObject* parent = nullptr);

    // Goes on on this canvas, which takes over all values; the first one gives the defaults, so it must be
    // new. Not owned; null before the canvas is destroyed.
    void attach(QDDrawCanvas* canvas);

    QVariant value(BrushKey key) const { return _values[std::size_t(key)]; }
    QVariant defaultValue(BrushKey key) const { return _defaults[std::size_t(key)]; }
    bool isDefault(BrushKey key) const { return sameBrushValue(value(key), defaultValue(key)); }
    // False, and nothing changes, when the value is not one of this property or no canvas is attached.
    bool setValue(BrushKey key, const QVariant& value);
    void reset(BrushKey key) { setValue(key, defaultValue(key)); }
    // To the preset's values, or without one to the defaults.
    void resetAll();

    // What a preset made of it holds; none without a canvas or during an override.
    std::optional<BrushParams> params() const;
    // Makes a preset the brush; every property that differs is reported once, when all are as they shall be.
    // False, and nothing changed, without a canvas or during an override.
    bool takePreset(const BrushPreset& preset);
    // The brush counts as made from this preset, or from none, and stays as it is.
    void comesFrom(const std::optional<BrushPreset>& preset);
    const std::optional<BrushPreset>& preset() const { return _preset; }
    // Whether what a preset keeps differs from the preset, or without one from the defaults.
    bool isModified() const;
    // Off, presets leave the two colours alone.
    void setPresetsSetColors(bool on) { _presetsSetColors = on; }
    bool presetsSetColors() const { return _presetsSetColors; }

    // Gives another canvas the values of these properties.
    void apply(QDDrawCanvas& canvas, const std::vector<BrushKey>& keys) const;
    void applyAll(QDDrawCanvas& canvas) const;

    // The canvas alone paints with another value for a while; the model keeps its own.
    void beginOverride(BrushKey key, const QVariant& value);
    void endOverride();

signals:
    void changed(BrushKey key);
    void presetChanged();  // another one, or none

private:
    bool relates() const;
    std::vector<QVariant> valuesOf(const QDDrawCanvas& canvas) const;
    void readBack();
    void store(BrushKey key, const QVariant& value);

    QDDrawCanvas* _canvas = nullptr;
    std::vector<QVariant> _values, _defaults;
    bool _knowsDefaults = false;
    BrushKey _overridden = BrushKey::count;
    std::optional<BrushPreset> _preset;
    std::vector<QVariant> _presetValues;
    bool _presetsSetColors = false;
};

}  // namespace dabcanvas::dabpainter
