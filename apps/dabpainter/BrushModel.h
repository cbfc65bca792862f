// SPDX-License-Identifier: MIT
// The brush one paints with, whatever canvas is shown.
#pragma once

#include <QObject>
#include <QVariant>
#include <vector>

#include "QDEAGLView/BrushProperties.h"

class QDDrawCanvas;

namespace dabcanvas::dabpainter {

bool sameBrushValue(const QVariant& a, const QVariant& b);

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
    void resetAll();

    // Gives another canvas the values of these properties.
    void apply(QDDrawCanvas& canvas, const std::vector<BrushKey>& keys) const;
    void applyAll(QDDrawCanvas& canvas) const;

    // The canvas alone paints with another value for a while; the model keeps its own.
    void beginOverride(BrushKey key, const QVariant& value);
    void endOverride();

signals:
    void changed(BrushKey key);

private:
    void readBack();
    void store(BrushKey key, const QVariant& value);

    QDDrawCanvas* _canvas = nullptr;
    std::vector<QVariant> _values, _defaults;
    bool _knowsDefaults = false;
    BrushKey _overridden = BrushKey::count;
};

}  // namespace dabcanvas::dabpainter
