// SPDX-License-Identifier: MIT
// A canvas's brush as parameter records, and records as a canvas's brush.
#include "Preset/QDBrushManager.h"

#include <QLoggingCategory>

#include "Brushes/ImageData.h"
#include "Preset/LegacyModes.h"
#include "Preset/ParamNumbers.h"
#include "QDEAGLView/BrushProperties.h"
#include "QDEAGLView/QDDrawCanvas.h"

Q_DECLARE_LOGGING_CATEGORY(lcDabcanvasPreset)

using namespace dabcanvas;
using namespace BrushRecords;

namespace {

constexpr std::uint32_t kBlendShaderId = 0x9006;

int typeCodeOf(const BrushProperty& row) {
    switch (row.type()) {
        case BrushValueType::boolean:
            return kXBFBool;
        case BrushValueType::integer:
            return kXBFInt;
        case BrushValueType::real:
        case BrushValueType::control:
            return kXBFFloat;
        case BrushValueType::color:
            return kXBFColor;
        case BrushValueType::image:
        case BrushValueType::images:
            return kXBFData;
        case BrushValueType::text:
            break;
    }
    return kXBFText;
}

QString setterOf(const BrushProperty& row) {
    QString name = QString::fromLatin1(row.name);
    name[0] = name[0].toUpper();
    return QStringLiteral("set") + name + QLatin1Char(':');
}

// Adds the records of one property.
void capture(const QDDrawCanvas& canvas, const BrushProperty& row, BrushParams& params) {
    const auto add = [&](std::uint32_t id, const QVariant& value) {
        params.append(
            QDBrushManager::paramWithID(static_cast<int>(id), setterOf(row), value, typeCodeOf(row)));
    };
    const QVariant value = canvas.brushValue(row);
    switch (row.type()) {
        case BrushValueType::boolean:
            if (row.presetForm == PresetForm::storedAsFloat) {
                return add(row.presetId, value.toBool() ? 1.0f : 0.0f);
            }
            return add(row.presetId, value);
        case BrushValueType::control: {
            const auto control = value.value<LPControlParams>();
            add(row.presetId + kControlSpeed, control.speed);
            add(row.presetId + kControlPressure, control.pressure);
            return add(row.presetId + kControlAltitude, control.altitude);
        }
        case BrushValueType::image: {
            const auto image = value.value<QImage>();
            if (row.key == BrushKey::slTextureImage && image.isNull()) {
                return;
            }
            return add(row.presetId, image.isNull() ? QByteArray() : UIImagePNGRepresentation(image));
        }
        case BrushValueType::images:
            if (canvas.textureType() == 0) {  // any other type draws its tip
                for (const QImage& image : value.value<QList<QImage>>()) {
                    add(row.presetId, UIImagePNGRepresentation(image));
                }
            }
            return;
        default:
            return add(row.presetId, value);
    }
}

QImage imageOf(const QVariant& value) {
    const QByteArray data = value.toByteArray();
    return data.isEmpty() ? QImage() : imageWithData(data);
}

// Sets one property, or one part of a control, from a record's value.
void apply(QDDrawCanvas& canvas, const BrushProperty& row, int part, const QVariant& value) {
    QVariant typed;
    switch (row.type()) {
        case BrushValueType::boolean:
            typed = booleanOf(value);
            break;
        case BrushValueType::integer:
            typed = integerOf(value);
            break;
        case BrushValueType::real:
            typed = floatOf(value);
            break;
        case BrushValueType::control: {
            auto control = canvas.brushValue(row).value<LPControlParams>();
            (part == 0 ? control.speed : part == 1 ? control.pressure : control.altitude) = floatOf(value);
            typed = QVariant::fromValue(control);
            break;
        }
        case BrushValueType::color:
            typed = QVariant::fromValue(value.value<ESColor>());
            break;
        case BrushValueType::image: {
            const QImage image = imageOf(value);
            if (image.isNull()) {
                return;  // the default stays
            }
            typed = image;
            break;
        }
        default:
            return;
    }
    if (!canvas.setBrushValue(row, typed)) {
        qCWarning(lcDabcanvasPreset, "a preset's %s is not finite; the default stays", row.name);
    }
}

void migrate(QDDrawCanvas& canvas, const LegacyModes& legacy) {
    canvas.setMaxRadius(1);
    canvas.setMaxFlow(1);
    canvas.setRadiusControl(legacy.radiusControl());
    canvas.setRadianControl(legacy.radianControl());
    canvas.setRoundnessControl(legacy.roundnessControl());
    canvas.setDistributionControl(legacy.distributionControl());
    canvas.setDistributionCountControl(legacy.distributionCountControl());
    canvas.setColorControl(legacy.colorControl());
    canvas.setFlowControl(legacy.flowControl());
    canvas.setTextureControl(legacy.textureControl());
}

}  // namespace

std::optional<BrushParams> QDBrushManager::paramsOfDrawView(const QDDrawCanvas* view) {
    if (view == nullptr) {
        return std::nullopt;
    }
    BrushParams params;
    for (const BrushProperty& row : brushProperties()) {
        if (row.presetId != 0) {
            capture(*view, row, params);
        }
    }
    return params;
}

bool QDBrushManager::saveParamsWithDrawView(const QDDrawCanvas* view, const QString& withName,
                                            const QString& inPath, QString* problem) {
    return view != nullptr && !inPath.isNull() &&
           saveParams(paramsOfDrawView(view), kVersion, withName, inPath, problem);
}

bool QDBrushManager::resetDrawView(QDDrawCanvas* view, const std::optional<BrushParams>& withParams,
                                   int version) {
    if (view == nullptr || !withParams) {
        return false;
    }
    view->resetParams();
    QList<QImage> tips;
    LegacyModes legacy;
    std::optional<float> slRadius, relationValue;
    for (const BrushParam& param : *withParams) {
        const auto id = static_cast<std::uint32_t>(key(param));
        const QVariant value = paramValue(param);
        int part = -1;
        if (id == brushProperty(BrushKey::textureImages).presetId) {
            const QImage tip = imageOf(value);
            if (!tip.isNull()) {
                tips.append(tip);
            }
        } else if (const BrushProperty* row = brushPropertyOfPresetId(id, &part)) {
            apply(*view, *row, part, value);
            if (row->key == BrushKey::slRadius) {
                slRadius = view->slRadius();
            } else if (row->key == BrushKey::relationValue) {
                relationValue = view->relationValue();
            }
        } else if (id == kBlendShaderId) {
            view->setBlendFragmentShaderString(value.toString());
        } else {
            legacy.take(id, booleanOf(value), wholeOf(value.toDouble()));  // of other ids nothing is taken
        }
    }
    if (version == LegacyModes::kVersion) {
        migrate(*view, legacy);
    }
    if (view->textureType() == 0) {
        view->setTextureImages(tips);
    }
    if (slRadius && relationValue) {
        // Setting either changes the other, by the radius of that moment. A preset holds both as they were.
        view->restoreSubLine(*slRadius, *relationValue);
    }
    if (view->repeatedlyRenderEnabled() && view->slRadiusRelationType() == 0) {
        view->setSlRadiusRelationType(2);
    }
    return true;
}

bool QDBrushManager::resetDrawView(QDDrawCanvas* view, const QString& withXBFFile) {
    int version = 0;
    const auto brushes = brushesWithXBFPath(withXBFFile, &version);
    if (!brushes || brushes->isEmpty()) {
        return false;
    }
    return resetDrawView(view, brushParams(brushes->last()), version);
}
