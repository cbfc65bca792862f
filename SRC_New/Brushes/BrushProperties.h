// SPDX-License-Identifier: MIT
/// \file
/// The table of brush properties: setters, defaults, clamps, presets, Qt properties, what dabs and lines are made from,
/// and the listings of the tools all walk it. Its rows stand in BrushPropertyList.h.
#pragma once

#include <QMetaEnum>
#include <QString>
#include <QStringView>
#include <QVariant>
#include <array>
#include <concepts>
#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <utility>
#include <variant>
#include <vector>

#include "Brushes/BrushSettings.h"
#include "Dabs/Dab.h"
#include "Maths/Export.h"

namespace dabcanvas {

/// A key for each row, by the name of its property.
enum class BrushKey : std::uint8_t {
#define BRUSH_PROPERTY(type, name, Name, ...) name,
#include "Brushes/BrushPropertyList.h"
    count
};

/// What kind of value a property has, as BrushValue holds it.
enum class BrushValueType : std::uint8_t { boolean, integer, real, control, color, image, images, text };

/// What properties have to do with, for those who list them.
enum class BrushGroup : std::uint8_t {
    brush,
    tip,
    spacing,
    size,
    scatter,
    angle,
    shape,
    flow,
    color,
    smudge,
    secondLine,
    recognition
};

/// What numbers are counted in.
enum class BrushUnit : std::uint8_t {
    ratio,   ///< to what the property's sentence names; 1 is 100 %
    number,  ///< in nothing, or now this, now that
    pixels,  ///< of the canvas
    radians,
    dabs,
    samples  ///< of the pointer
};

/// A handful of properties.
class BrushKeys {
public:
    constexpr BrushKeys(std::same_as<BrushKey> auto... keys) : _keys{keys...}, _count(sizeof...(keys)) {}
    constexpr const BrushKey* begin() const { return _keys.data(); }
    constexpr const BrushKey* end() const { return _keys.data() + _count; }

private:
    std::array<BrushKey, 3> _keys;
    std::size_t _count;
};

/// From low to high, both included.
struct BrushRange {
    float low, high;
};

/// Which line records a value is sent to.
enum class Lines : std::uint8_t { none, main, sub, both };
/// Which dabs are made of a value: the line's, the second line's, those of a smudge brush.
using DabsOf = std::uint8_t;
inline constexpr DabsOf kMain = 1, kSub = 2, kSmudge = 4;

inline constexpr float kFree = std::numeric_limits<float>::infinity();  ///< no bound on this side
inline constexpr float kHalfTurn = 3.14159265f;                         ///< radians

/// How presets store and read a boolean.
enum class PresetForm : std::uint8_t {
    plain,
    /// Deliberate: a reader takes the whole part of the number, so that 0.5 counts as off; elsewhere it counts as on.
    readViaFloat,
    /// Deliberate: that, and it is stored as 0.0 or 1.0.
    storedAsFloat
};

/// A value as a property holds it.
using BrushValue = std::variant<bool, int, float, LPControlParams, ESColor, QImage, QList<QImage>, QString>;

/// A row of the table: all that follows from a property.
struct BrushProperty {
    /// In the order of BrushValueType.
    using Field =
        std::variant<bool BrushSettings::*, int BrushSettings::*, float BrushSettings::*,
                     LPControlParams BrushSettings::*, ESColor BrushSettings::*, QImage BrushSettings::*,
                     QList<QImage> BrushSettings::*, QString BrushSettings::*>;
    /// Where what dabs are made from has it.
    using DabField = std::variant<std::monostate, bool DabSettings::*, int DabSettings::*,
                                  float DabSettings::*, LPControlParams DabSettings::*>;

    BrushKey key;
    const char* name;  ///< as the property, its getter and, capitalised after "set", its setter are called
    Field field;       ///< where the stored value stands
    /// The enumeration of BrushKinds.h, of an integer that stands for something; else null.
    QMetaEnum (*kind)() = nullptr;
    BrushGroup group = BrushGroup::brush;
    /// In presets; 0: never stored. A control's three numbers have the three ids above it.
    std::uint16_t presetId = 0;
    std::optional<float> reset{};  ///< what resetParams() sets (a control to three of it); none: left alone
    PresetForm presetForm = PresetForm::plain;
    float created = 0;  ///< value of a new canvas (booleans 0 or 1); controls are zero, colours black, images
                        ///< and texts empty
    float low = -kFree;  ///< stored numbers are clamped to low..high
    float high = kFree;
    /// Within them, where a slider may end: what lies beyond makes no difference, or no sense. None: low..high.
    std::optional<BrushRange> useful{};
    BrushUnit unit = BrushUnit::ratio;
    std::uint8_t lineId = 0;  ///< property id in the line records; 0: not a line property
    Lines lines = Lines::none;
    DabField dab{};  ///< what dabs are made from; none where that takes more than copying
    DabsOf dabs = kMain | kSmudge;
    BrushKeys with{};        ///< what it works together with, or shows nothing without
    const char* about = "";  ///< one sentence for a person choosing a brush

    constexpr BrushValueType type() const { return static_cast<BrushValueType>(field.index()); }
};

/// All properties, in BrushKey order.
DABCANVAS_BRUSHES_API std::span<const BrushProperty> brushProperties();

/// The row of a key, in constant time.
DABCANVAS_BRUSHES_API const BrushProperty& brushProperty(BrushKey key);

/// The row with this exact name, or null.
DABCANVAS_BRUSHES_API const BrushProperty* brushPropertyNamed(QStringView name);

/// What a new canvas starts with.
DABCANVAS_BRUSHES_API QVariant brushDefault(const BrushProperty& property);

/// Values by their row's type. None for a QVariant of another type, and for numbers that are not finite.
DABCANVAS_BRUSHES_API std::optional<BrushValue> brushValueOf(const BrushProperty& property,
                                                             const QVariant& value);
/// As a property of Qt has it.
DABCANVAS_BRUSHES_API QVariant variantOf(const BrushValue& value);

/// What a number stands for, in words such as "soft disc".
struct BrushChoice {
    int value;
    QString name;
};
/// What an integer that stands for something may be, else nothing; other numbers are taken all the same.
DABCANVAS_BRUSHES_API std::vector<BrushChoice> brushChoices(const BrushProperty& property);

/// Where a slider may end, of a number and of each of a control's three.
DABCANVAS_BRUSHES_API BrushRange brushUsefulRange(const BrushProperty& property);

/// The row of a preset id, with the number of the control's part (0 speed, 1 pressure, 2 altitude; -1 for a property of
/// one value); null for an id that no property has.
DABCANVAS_BRUSHES_API const BrushProperty* brushPropertyOfPresetId(std::uint32_t id, int* part);

/// In words; of the unit of a number without one, and of what is no number, an empty text.
DABCANVAS_BRUSHES_API const char* brushUnitName(const BrushProperty& property);
/// As the tools name it.
DABCANVAS_BRUSHES_API const char* brushGroupName(BrushGroup group);
DABCANVAS_BRUSHES_API const char* brushValueTypeName(BrushValueType type);

}  // namespace dabcanvas
