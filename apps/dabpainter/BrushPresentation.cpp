// SPDX-License-Identifier: MIT
#include "BrushPresentation.h"

#include <QStringList>
#include <algorithm>
#include <cmath>

#include "ESRender/ESImageRender.h"

namespace dabcanvas::dabpainter {

namespace {

using K = BrushKey;

constexpr BrushChoice kBrushKinds[] = {{0, "Paint"}, {kSmudgeBrush, "Smudge"}, {kLiveFillBrush, "Live fill"}};
constexpr BrushChoice kBlends[] = {{ESBlendTypeNormal, "Normal"},     {ESBlendTypeReplace, "Replace"},
                                   {ESBlendTypeBehind, "Behind"},     {ESBlendTypeErase, "Erase"},
                                   {ESBlendTypeTarnish, "Darken"},    {ESBlendTypeBrightness, "Lighten"},
                                   {ESBlendTypeMultiply, "Multiply"}, {ESBlendTypeReset, "Reset"}};
constexpr BrushChoice kTips[] = {{1, "Soft disc"}, {2, "Ring"}, {3, "Rounded rectangle"}, {0, "Images"}};
constexpr BrushChoice kThinLines[] = {
    {0, "As they are"}, {2, "At least 3 px"}, {4, "Thinned flow"}, {6, "3 px, thinned flow"}};
constexpr BrushChoice kRelations[] = {{0, "None"}, {1, "Difference"}, {2, "Ratio"}};

enum class Unit : std::uint8_t { automatic, plain, whole, pixels, percent, degrees };

constexpr double kAuto = std::numeric_limits<double>::infinity();

// What the rules further down would not guess, in the order of the panel. Slider ends are stored values.
struct Hint {
    BrushKey key;
    const char* label = nullptr;
    BrushPlace place = BrushPlace::panel;
    Unit unit = Unit::automatic;
    double low = kAuto, high = kAuto;
    double bend = 1;
    std::span<const BrushChoice> choices{};
};

constexpr auto kTop = BrushPlace::top;
// clang-format off
const Hint kHints[] = {
    {.key = K::brushType, .label = "Brush", .place = kTop, .choices = kBrushKinds},
    {.key = K::blendType, .label = "Blend mode", .place = kTop, .choices = kBlends},
    {.key = K::renderColor, .label = "Colour", .place = kTop},
    {.key = K::backRenderColor, .label = "Second colour", .place = kTop},
    {.key = K::radius, .label = "Size", .place = kTop, .unit = Unit::pixels, .bend = 3},
    {.key = K::hardness, .place = kTop},
    {.key = K::opacity, .place = kTop},
    {.key = K::flow, .place = kTop},

    {.key = K::gaussianRadius, .label = "Live fill blur", .unit = Unit::pixels, .high = 40},
    {.key = K::isDebug, .label = "No smudging"},
    // A blend mode under another name, which no painter would type.
    {.key = K::blendFragmentShaderString, .place = BrushPlace::hidden},

    {.key = K::textureType, .label = "Tip", .choices = kTips},
    {.key = K::textureControlValue, .label = "Tip proportion", .unit = Unit::plain, .low = 0, .high = 20, .bend = 2},
    {.key = K::textureImages, .label = "Tip images"},
    {.key = K::textureTingleEnabled, .label = "Random image"},
    {.key = K::textureControl, .label = "Image influences"},
    {.key = K::needMaskTexture, .label = "Use paper"},
    {.key = K::maskImage, .label = "Paper"},
    {.key = K::maskScale, .label = "Paper scale", .unit = Unit::percent, .low = 0.05, .high = 4, .bend = 2},
    {.key = K::maskDepth, .label = "Paper depth"},
    {.key = K::maskDepthControl, .label = "Depth influences"},
    {.key = K::maskBrightness, .label = "Paper brightness"},
    {.key = K::maskContrast, .label = "Paper contrast", .unit = Unit::percent, .high = 8, .bend = 2},

    {.key = K::pointsDistanceEnabled, .label = "Even spacing"},
    {.key = K::pointsDistance, .label = "Spacing", .unit = Unit::percent, .high = 3, .bend = 2},
    {.key = K::smoothEnabled, .label = "Smooth curves"},
    {.key = K::trackNum, .label = "Steadying", .unit = Unit::whole, .low = 0, .high = 20},
    {.key = K::speedSencitive, .label = "Speed response"},
    {.key = K::sensitivity, .label = "Fast from", .unit = Unit::pixels, .low = 1, .high = 300, .bend = 2},

    {.key = K::minRadius, .label = "Smallest"},
    {.key = K::maxRadius, .label = "Largest"},
    {.key = K::startRadius, .label = "Start size"},
    {.key = K::strokeControlValue, .label = "Start length", .unit = Unit::pixels, .low = 0, .high = 1000, .bend = 2},
    {.key = K::endRadius, .label = "End size"},
    {.key = K::lineProcessType, .label = "Thin lines", .choices = kThinLines},

    {.key = K::distribution, .label = "Scatter", .unit = Unit::percent, .low = 0, .high = 5, .bend = 2},
    {.key = K::disTwoAxes, .label = "All around"},
    {.key = K::distributionControl, .label = "Scatter influences"},
    {.key = K::distributionCount, .label = "Dabs", .unit = Unit::whole, .high = 64, .bend = 2},
    {.key = K::distributionCountTingle, .label = "Dabs jitter"},
    {.key = K::distributionCountControl, .label = "Dabs influences"},

    {.key = K::radian, .unit = Unit::degrees, .low = -3.14159265, .high = 3.14159265},
    {.key = K::moveRadianEnable, .label = "Follow stroke"},
    {.key = K::startRadianEnable, .label = "Random start"},
    {.key = K::flipX, .label = "Flip across"},
    {.key = K::flipY, .label = "Flip upright"},
    {.key = K::flipXTingle, .label = "Random across"},
    {.key = K::flipYTingle, .label = "Random upright"},

    {.key = K::roundness},
    {.key = K::minRoundness, .label = "Least"},

    {.key = K::minFlow, .label = "Least flow", .unit = Unit::percent, .high = 1},
    {.key = K::maxFlow, .label = "Most flow", .unit = Unit::percent, .high = 1},
    {.key = K::decay, .label = "Runs dry after", .unit = Unit::whole, .low = 0, .high = 1000, .bend = 2},
    {.key = K::wetEdge, .label = "Wet edge", .unit = Unit::percent, .high = 1},
    {.key = K::wetEdgeWidth, .label = "Edge width", .unit = Unit::pixels, .high = 64},

    {.key = K::colorFul, .label = "Multicolour"},

    {.key = K::loadQuantity, .label = "Own colour"},
    {.key = K::mixQuantity, .label = "Canvas colour"},
    {.key = K::moistQuantity, .label = "Wetness"},
    {.key = K::smudgeControl, .label = "Ramp up"},
    {.key = K::smudgeControlValue, .label = "Ramp length", .unit = Unit::whole, .high = 200},

    {.key = K::repeatedlyRenderEnabled, .label = "Second line"},
    {.key = K::slTextureImage, .label = "Tip image"},
    {.key = K::slRadius, .label = "Size", .unit = Unit::pixels, .high = 1280, .bend = 3},
    {.key = K::slRadiusRelationType, .label = "Follow size by", .choices = kRelations},
    {.key = K::relationValue, .label = "By how much", .unit = Unit::plain, .low = -200, .high = 200},
    {.key = K::slPointsDistance, .label = "Spacing", .unit = Unit::percent, .high = 3, .bend = 2},
    {.key = K::slDistribution, .label = "Scatter", .unit = Unit::percent, .low = 0, .high = 5, .bend = 2},
    {.key = K::slDistbTwoAxes, .label = "All around"},
    {.key = K::slDistbCount, .label = "Dabs", .unit = Unit::whole, .low = 1, .high = 64, .bend = 2},
};
// clang-format on

const Hint* hintOf(BrushKey key) {
    const auto* found = std::find_if(std::begin(kHints), std::end(kHints),
                                     [key](const Hint& hint) { return hint.key == key; });
    return found == std::end(kHints) ? nullptr : found;
}

constexpr struct {
    BrushGroup group;
    const char* title;
} kGroupTitles[] = {{BrushGroup::brush, "General"}, {BrushGroup::color, "Colour"}};

constexpr struct {
    const char* word;
    const char* shown;
} kWords[] = {{"tingle", "jitter"}, {"control", "influences"}, {"radius", "size"}, {"radian", "angle"},
              {"sl", "second"},     {"enabled", ""},           {"enable", ""},     {"color", "colour"}};

Unit guessedUnit(const BrushProperty& property) {
    if (property.type() == BrushValueType::integer)
        return Unit::whole;
    // Jitters act from 0 to 1, though larger ones may be typed.
    const bool isJitter = QLatin1String(property.name).contains(QLatin1String("Tingle"));
    return isJitter || (property.low >= 0 && property.high <= 1) ? Unit::percent : Unit::plain;
}

struct UnitStyle {
    double scale;
    const char* suffix;
    double step;
    int decimals;
};

UnitStyle unitStyle(Unit unit) {
    switch (unit) {
        case Unit::whole:
            return {1, "", 1, 0};
        case Unit::pixels:
            return {1, " px", 1, 1};
        case Unit::percent:
            return {100, " %", 1, 1};
        case Unit::degrees:
            return {57.29577951308232, "\u00b0", 1, 1};
        case Unit::automatic:
        case Unit::plain:
            break;
    }
    return {1, "", 0.1, 2};
}

// The slider's ends of a number that nobody gave any: its bounds, else room around the value it begins with.
double guessedLow(const BrushProperty& property) {
    return std::isfinite(property.low) ? property.low : std::min(0.0, 2.0 * property.created);
}

double guessedHigh(const BrushProperty& property, double low) {
    if (std::isfinite(property.high))
        return property.high;
    return std::max({low + 1, 1.0, 4.0 * property.created});
}

}  // namespace

QString labelFromName(QLatin1String name) {
    QStringList words{QString()};
    for (const char c : name) {
        const QChar letter = QLatin1Char(c);
        if (letter.isUpper())
            words << QString();
        words.last() += letter.toLower();
    }
    for (QString& word : words) {
        for (const auto& known : kWords) {
            if (word == QLatin1String(known.word)) {
                word = QLatin1String(known.shown);
                break;
            }
        }
    }
    words.removeAll(QString());
    QString label = words.join(QLatin1Char(' '));
    if (!label.isEmpty())
        label[0] = label[0].toUpper();
    return label;
}

BrushPresentation brushPresentation(const BrushProperty& property) {
    const Hint* given = hintOf(property.key);
    const Hint hint = given ? *given : Hint{property.key};
    BrushPresentation shown;
    shown.order = int(given ? given - kHints : std::ssize(kHints) + std::ptrdiff_t(property.key));
    shown.label = hint.label ? QString::fromUtf8(hint.label) : labelFromName(QLatin1String(property.name));
    // Recognising shapes is a mode of the window's, whatever the brush.
    shown.place = property.group == BrushGroup::recognition ? BrushPlace::hidden : hint.place;
    shown.choices = hint.choices;
    shown.bend = hint.bend;
    const UnitStyle style = unitStyle(hint.unit == Unit::automatic ? guessedUnit(property) : hint.unit);
    shown.scale = style.scale;
    shown.suffix = QString::fromUtf8(style.suffix);
    shown.step = style.step;
    shown.decimals = style.decimals;
    const bool isJitter = shown.scale == 100 && !std::isfinite(property.high);
    const double low = std::isfinite(hint.low) ? hint.low : guessedLow(property);
    const double high = std::isfinite(hint.high) ? hint.high : isJitter ? 1.0 : guessedHigh(property, low);
    shown.low = low * style.scale;
    shown.high = high * style.scale;
    constexpr double kTypedLimit = 1e6;
    shown.least = std::isfinite(property.low) ? property.low * style.scale : -kTypedLimit;
    shown.most = std::isfinite(property.high) ? property.high * style.scale : kTypedLimit;
    return shown;
}

BrushPresentation controlPresentation() {
    BrushPresentation shown;
    shown.scale = 100;
    shown.suffix = QStringLiteral(" %");
    shown.low = shown.least = -100;
    shown.high = shown.most = 100;
    shown.step = 1;
    shown.decimals = 1;
    return shown;
}

int choiceIndex(std::span<const BrushChoice> choices, int value) {
    for (std::size_t i = 0; i < choices.size(); ++i) {
        if (choices[i].value == value)
            return int(i);
    }
    return -1;
}

QString brushGroupTitle(BrushGroup group) {
    for (const auto& row : kGroupTitles) {
        if (row.group == group)
            return QString::fromUtf8(row.title);
    }
    QString title = QString::fromUtf8(brushGroupName(group));
    title[0] = title[0].toUpper();
    return title;
}

}  // namespace dabcanvas::dabpainter
