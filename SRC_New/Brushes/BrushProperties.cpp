// SPDX-License-Identifier: MIT
#include "Brushes/BrushProperties.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "Brushes/BrushKinds.h"

namespace dabcanvas {
namespace {

template <typename Kind>
QMetaEnum kindOf() {
    return QMetaEnum::fromType<Kind>();
}

constexpr BrushProperty kBrushProperties[] = {
#define BRUSH_PROPERTY(type, property, Name, ...) \
    {.key = BrushKey::property, .name = #property, .field = &BrushSettings::property, __VA_ARGS__},
#define BRUSH_KIND(Kind, property, Name, ...) \
    {.key = BrushKey::property,               \
     .name = #property,                       \
     .field = &BrushSettings::property,       \
     .kind = kindOf<Kind>,                    \
     __VA_ARGS__},
#include "Brushes/BrushPropertyList.h"
};
static_assert(std::size(kBrushProperties) == static_cast<std::size_t>(BrushKey::count), "one row a key");

constexpr const char* kGroupNames[] = {"brush", "tip",  "spacing", "size",   "scatter",     "angle",
                                       "shape", "flow", "color",   "smudge", "second line", "recognition"};
constexpr const char* kTypeNames[] = {"boolean", "integer", "number", "control",
                                      "colour",  "image",   "images", "text"};
constexpr const char* kUnitNames[] = {"ratio", "", "pixels", "radians", "dabs", "samples"};
static_assert(std::size(kUnitNames) == static_cast<std::size_t>(BrushUnit::samples) + 1);
static_assert(std::size(kGroupNames) == static_cast<std::size_t>(BrushGroup::recognition) + 1);
static_assert(std::size(kTypeNames) == std::variant_size_v<BrushProperty::Field>);

constexpr bool isNumber(const BrushProperty& row) {
    return row.type() == BrushValueType::real ||
           (row.type() == BrushValueType::integer && row.kind == nullptr);
}

constexpr bool sliderEnds(const BrushProperty& row) {
    return !isNumber(row) || row.useful || (row.low > -kFree && row.high < kFree);
}
#ifndef __SANITIZE_ADDRESS__  // by which GCC 12 takes no function's address for constant
static_assert(std::all_of(std::begin(kBrushProperties), std::end(kBrushProperties), sliderEnds),
              "each number without bounds has a useful range");
#endif

// "SoftDisc" as "soft disc".
QString inWords(const char* name) {
    QString words;
    for (const QChar letter : QString::fromLatin1(name)) {
        if (letter.isUpper() && !words.isEmpty()) {
            words += QLatin1Char(' ');
        }
        words += letter.toLower();
    }
    return words;
}

}  // namespace

std::span<const BrushProperty> brushProperties() {
    return kBrushProperties;
}

const BrushProperty& brushProperty(BrushKey key) {
    return kBrushProperties[static_cast<std::size_t>(key)];
}

const BrushProperty* brushPropertyNamed(QStringView name) {
    for (const BrushProperty& row : kBrushProperties) {
        if (name == QLatin1String(row.name)) {
            return &row;
        }
    }
    return nullptr;
}

const BrushProperty* brushPropertyOfPresetId(std::uint32_t id, int* part) {
    for (const BrushProperty& row : kBrushProperties) {
        const bool isControl = row.type() == BrushValueType::control;
        const std::uint32_t first = row.presetId + (isControl ? 1u : 0u);
        if (row.presetId != 0 && id >= first && id <= (isControl ? first + 2 : first)) {
            *part = isControl ? static_cast<int>(id - first) : -1;
            return &row;
        }
    }
    return nullptr;
}

std::vector<BrushChoice> brushChoices(const BrushProperty& property) {
    std::vector<BrushChoice> choices;
    if (property.kind != nullptr) {
        const QMetaEnum kind = property.kind();
        for (int i = 0; i < kind.keyCount(); ++i) {
            choices.push_back({kind.value(i), inWords(kind.key(i))});
        }
    }
    return choices;
}

BrushRange brushUsefulRange(const BrushProperty& property) {
    if (property.type() == BrushValueType::control) {
        return {-1, 1};
    }
    return property.useful.value_or(BrushRange{property.low, property.high});
}

QVariant brushDefault(const BrushProperty& property) {
    switch (property.type()) {
        case BrushValueType::boolean:
            return property.created != 0;
        case BrushValueType::integer:
            return static_cast<int>(property.created);
        case BrushValueType::real:
            return property.created;
        case BrushValueType::color:
            return QVariant::fromValue(ESColor::rgba(0, 0, 0, 1));
        default:
            return std::visit([](auto field) { return QVariant::fromValue(BrushSettings().*field); },
                              property.field);
    }
}

std::optional<BrushValue> brushValueOf(const BrushProperty& property, const QVariant& value) {
    const int type = value.typeId();
    const auto as = [&](auto typed) -> std::optional<BrushValue> {
        if (!value.canConvert<decltype(typed)>()) {
            return std::nullopt;
        }
        return value.value<decltype(typed)>();
    };
    switch (property.type()) {
        case BrushValueType::boolean:
            return type == QMetaType::Bool ? as(bool()) : std::nullopt;
        case BrushValueType::integer:
            return type == QMetaType::Int ? as(int()) : std::nullopt;
        case BrushValueType::real: {
            const bool isNumber =
                type == QMetaType::Float || type == QMetaType::Double || type == QMetaType::Int;
            return isNumber && std::isfinite(value.toFloat()) ? as(float()) : std::nullopt;
        }
        case BrushValueType::control: {
            const auto control = value.value<LPControlParams>();
            const bool isFinite = std::isfinite(control.pressure) && std::isfinite(control.altitude) &&
                                  std::isfinite(control.speed);
            return isFinite ? as(control) : std::nullopt;
        }
        case BrushValueType::color:
            return as(ESColor());
        case BrushValueType::image:
            return type == QMetaType::QImage ? as(QImage()) : std::nullopt;
        case BrushValueType::images:
            return as(QList<QImage>());
        case BrushValueType::text:
            return type == QMetaType::QString ? as(QString()) : std::nullopt;
    }
    return std::nullopt;
}

QVariant variantOf(const BrushValue& value) {
    return std::visit([](const auto& typed) { return QVariant::fromValue(typed); }, value);
}

const char* brushUnitName(const BrushProperty& property) {
    const bool isCounted = isNumber(property) || property.type() == BrushValueType::control;
    return kUnitNames[static_cast<std::size_t>(isCounted ? property.unit : BrushUnit::number)];
}

const char* brushGroupName(BrushGroup group) {
    return kGroupNames[static_cast<std::size_t>(group)];
}

const char* brushValueTypeName(BrushValueType type) {
    return kTypeNames[static_cast<std::size_t>(type)];
}

}  // namespace dabcanvas
