// SPDX-License-Identifier: MIT
// The brush one paints with, whatever canvas is shown.
#pragma once

#include <QColor>
#include <QObject>
#include <QVariant>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "Brushes/BrushProperties.h"
#include "Preset/BrushRecords.h"

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
    // What resetting gives: the preset's, and the default without one or of a colour that presets do not set.
    QVariant baseValue(BrushKey key) const;
    bool isBase(BrushKey key) const;
    // False, and nothing changes, when the value is not one of this property or no canvas is attached.
    bool setValue(BrushKey key, const QVariant& value);
    void reset(BrushKey key) { setValue(key, baseValue(key)); }
    void resetAll();

    // What a preset made of it holds; none without a canvas or during an override.
    std::optional<BrushParams> params() const;
    // Makes a preset the brush; every property that differs is reported once, when all are as they shall be.
    // False, and nothing changed, without a canvas or during an override.
    bool takePreset(const BrushPreset& preset);
    // The brush as it is, but for its two colours, to be gone on with later. Shares the images.
    struct Held {
        std::vector<QVariant> values;
        std::optional<BrushPreset> preset;
    };
    Held hold() const { return {_values, _preset}; }
    bool takeUp(const Held& held);
    // The brush counts as made from this preset, or from none, and stays as it is.
    void comesFrom(const std::optional<BrushPreset>& preset);
    const std::optional<BrushPreset>& preset() const { return _preset; }
    // Whether what a preset keeps differs from the preset, or without one from the defaults.
    bool isModified() const;
    // Off, presets leave the two colours alone.
    void setPresetsSetColors(bool on);
    bool presetsSetColors() const { return _presetsSetColors; }

    // Gives another canvas the values of these properties.
    void apply(QDDrawCanvas& canvas, const std::vector<BrushKey>& keys) const;
    void applyAll(QDDrawCanvas& canvas) const;

    // The canvas alone paints with another value for a while; the model keeps its own.
    void beginOverride(BrushKey key, const QVariant& value);
    void endOverride();
    // All that is painted erases, whatever the brush does otherwise, until it is taken back.
    void setErases(bool on);
    // What erasing leaves on the canvas, which then has no holes: it paints this colour instead. An invalid one, as at
    // first: erasing makes transparent.
    void setPaper(const QColor& paper);

signals:
    void changed(BrushKey key);
    void presetChanged();  // another one, or none, or what of it counts

private:
    struct OwnValues;
    bool relates() const;
    std::map<BrushKey, QVariant> wantedOverrides() const;
    void override();
    std::vector<QVariant> valuesOf(const QDDrawCanvas& canvas) const;
    void readBack();
    void store(BrushKey key, const QVariant& value);

    QDDrawCanvas* _canvas = nullptr;
    std::vector<QVariant> _values, _defaults;
    bool _knowsDefaults = false;
    std::optional<std::pair<BrushKey, QVariant>> _begun;
    bool _erases = false;
    QColor _paper;
    std::map<BrushKey, QVariant> _overrides;  // what the canvas has instead of the values
    std::optional<BrushPreset> _preset;
    std::vector<QVariant> _presetValues;
    bool _presetsSetColors = false;
};

}  // namespace dabcanvas::dabpainter
