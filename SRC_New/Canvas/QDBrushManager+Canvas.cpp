// SPDX-License-Identifier: MIT
// A canvas's brush as parameter records, and records as a canvas's brush.
#include "Preset/QDBrushManager.h"

#include <QLoggingCategory>
#include <cmath>

#include "Brushes/BrushProperties.h"
#include "Brushes/ImageData.h"
#include "Canvas/QDDrawCanvasParts.h"
#include "Preset/LegacyModes.h"
#include "Preset/ParamNumbers.h"
#include "Preset/PresetImages.h"

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

// A record's value as its property takes it. None, with a flaw, for what no canvas takes; none without a flaw for no
// image, and where a colour should be and is not.
QVariant valueFor(const BrushProperty& row, const QVariant& value, PresetImages& images, QString& flaw) {
    QString wrong;
    QVariant typed;
    switch (row.type()) {
        case BrushValueType::boolean:
            return booleanOf(value);
        case BrushValueType::integer:
            return integerOf(value);
        case BrushValueType::real:
        case BrushValueType::control:  // one of its parts
            if (const float number = floatOf(value); std::isfinite(number)) {
                return number;
            }
            wrong = QStringLiteral("is not a finite number");
            break;
        case BrushValueType::color:
            if (isColor(value)) {
                typed = QVariant::fromValue(colorOf(value));
            }
            break;
        case BrushValueType::image:
        case BrushValueType::images:
            if (const QImage image = images.read(value.toByteArray()); !image.isNull()) {
                typed = image;
            }
            wrong = images.problem();
            break;
        case BrushValueType::text:
            break;
    }
    if (!wrong.isEmpty()) {
        flaw = QLatin1String(row.name) + QLatin1Char(' ') + wrong;
    }
    return typed;
}

// Sets one property, or one part of a control.
void apply(QDDrawCanvas& canvas, const BrushProperty& row, int part, const QVariant& value) {
    QVariant whole = value;
    if (row.type() == BrushValueType::control) {
        auto control = canvas.brushValue(row).value<LPControlParams>();
        (part == 0 ? control.speed : part == 1 ? control.pressure : control.altitude) = value.toFloat();
        whole = QVariant::fromValue(control);
    }
    canvas.setBrushValue(row, whole);
}

// What is to be done after all records have been applied.
struct Remains {
    QList<QImage> tips;
    LegacyModes legacy;
    std::optional<float> slRadius, relationValue;
    QString flaw;  // the first one
    int flaws = 0;
};

Remains applyAll(QDDrawCanvas& canvas, const BrushParams& params) {
    Remains remains;
    PresetImages images;
    for (const BrushParam& param : params) {
        const auto id = static_cast<std::uint32_t>(key(param));
        const QVariant value = paramValue(param);
        int part = -1;
        const BrushProperty* row = brushPropertyOfPresetId(id, &part);
        if (row == nullptr) {
            if (id == kBlendShaderId) {
                canvas.setBlendFragmentShaderString(value.toString());
            } else {  // of other ids nothing is taken
                remains.legacy.take(id, booleanOf(value), wholeOf(value.toDouble()));
            }
            continue;
        }
        QString flaw;
        const QVariant typed = valueFor(*row, value, images, flaw);
        if (!flaw.isEmpty() && remains.flaws++ == 0) {
            remains.flaw = flaw;
        }
        if (row->key == BrushKey::textureImages && typed.isValid()) {
            remains.tips.append(typed.value<QImage>());
        } else if (typed.isValid()) {
            apply(canvas, *row, part, typed);
        }
        if (row->key == BrushKey::slRadius) {
            remains.slRadius = canvas.slRadius();
        } else if (row->key == BrushKey::relationValue) {
            remains.relationValue = canvas.relationValue();
        }
    }
    return remains;
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
    return saveParams(paramsOfDrawView(view), kVersion, withName, inPath, problem);
}

QString QDBrushManager::flawOfParams(const BrushParams& params) {
    PresetImages images;
    QString flaw;
    for (const BrushParam& param : params) {
        int part = -1;
        if (const auto* row = brushPropertyOfPresetId(static_cast<std::uint32_t>(key(param)), &part)) {
            valueFor(*row, paramValue(param), images, flaw);
        }
        if (!flaw.isEmpty()) {
            break;
        }
    }
    return flaw;
}

QString QDBrushManager::becomeBrush(QDDrawCanvas& canvas, const BrushParams& params, int version) {
    const QDDrawCanvas::Host::Call call(canvas._inside->host);
    canvas.resetParams();
    const Remains remains = applyAll(canvas, params);
    if (version == LegacyModes::kVersion) {
        migrate(canvas, remains.legacy);
    }
    if (canvas.textureType() == 0) {
        canvas.setTextureImages(remains.tips);
    }
    if (remains.slRadius && remains.relationValue) {
        // Setting either changes the other, by the radius of that moment. A preset holds both as they were.
        canvas.restoreSubLine(*remains.slRadius, *remains.relationValue);
    }
    if (canvas.repeatedlyRenderEnabled() && canvas.slRadiusRelationType() == 0) {
        canvas.setSlRadiusRelationType(2);
    }
    if (remains.flaws > 0) {
        qCWarning(lcDabcanvasPreset, "a preset's %s; the default stays (values left out: %d)",
                  qUtf8Printable(remains.flaw), remains.flaws);
    }
    return remains.flaw;
}

bool QDBrushManager::resetDrawView(QDDrawCanvas* view, const std::optional<BrushParams>& withParams,
                                   int version) {
    if (view == nullptr || !withParams) {
        return false;
    }
    becomeBrush(*view, *withParams, version);
    return true;
}

bool QDBrushManager::resetDrawView(QDDrawCanvas* view, const QString& withXBFFile, QString* problem) {
    int version = 0;
    QString wrong;
    const auto brushes = brushesWithXBFPath(withXBFFile, &version, &wrong);
    if (wrong.isEmpty() && (view == nullptr || brushes->isEmpty())) {
        wrong = view == nullptr ? QStringLiteral("there is no canvas") : QStringLiteral("it holds no brush");
        qCWarning(lcDabcanvasPreset, "The brush file %s is not applied: %s", qUtf8Printable(withXBFFile),
                  qUtf8Printable(wrong));
    }
    const bool applies = wrong.isEmpty();
    if (applies) {
        wrong = becomeBrush(*view, brushParams(brushes->last()), version);
    }
    if (problem != nullptr) {
        *problem = wrong;
    }
    return applies;
}
