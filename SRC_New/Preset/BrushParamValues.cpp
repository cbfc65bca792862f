// SPDX-License-Identifier: MIT
#include "Preset/BrushParamValues.h"

#include <QLoggingCategory>

#include "Brushes/ImageData.h"
#include "Preset/ParamNumbers.h"
#include "Preset/PresetImages.h"

Q_DECLARE_LOGGING_CATEGORY(lcDabcanvasPreset)

using namespace dabcanvas;
using namespace BrushRecords;

QVariant BrushParamValues::stored(std::uint32_t id) const {
    return paramValueForKey(_params, id);
}

QVariant BrushParamValues::object(BrushKey key) const {
    return paramValueForKey(_params, brushProperty(key).presetId);
}

std::int32_t BrushParamValues::integer(BrushKey key) const {
    return integerOf(object(key));
}

float BrushParamValues::real(BrushKey key) const {
    return floatOf(object(key));
}

bool BrushParamValues::boolean(BrushKey key) const {
    const QVariant value = object(key);
    if (brushProperty(key).presetForm == PresetForm::plain) {
        return booleanOf(value);
    }
    return static_cast<std::uint8_t>(wholeOf(floatOf(value))) != 0;
}

LPControlParams BrushParamValues::control(BrushKey key) const {
    const std::uint32_t base = brushProperty(key).presetId;
    const auto part = [&](std::uint32_t offset) { return floatOf(paramValueForKey(_params, base + offset)); };
    return {part(kControlPressure), part(kControlAltitude), part(kControlSpeed)};
}

QImage BrushParamValues::image(BrushKey key) const {
    const QByteArray data = object(key).toByteArray();
    return data.isEmpty() ? QImage() : imageWithData(data);
}

QList<QImage> BrushParamValues::textureImages() const {
    QList<QImage> images;
    PresetImages reader;
    int skipped = 0;
    for (const BrushParam& param : _params) {
        if (static_cast<std::uint32_t>(key(param)) == brushProperty(BrushKey::textureImages).presetId) {
            const QImage made = reader.read(paramValue(param).toByteArray());
            if (!made.isNull()) {
                images.append(made);
            } else {
                ++skipped;
            }
        }
    }
    if (skipped > 0) {
        qCWarning(lcDabcanvasPreset, "%d of a preset's textureImages cannot be read; they are left out",
                  skipped);
    }
    return images;
}
