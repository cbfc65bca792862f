// SPDX-License-Identifier: MIT
#include "Brush/BrushPresentation.h"

#include <QStringList>
#include <algorithm>
#include <cmath>

#include "Window/Translations.h"

namespace dabcanvas::dabpainter {

namespace {

using K = BrushKey;

// What the rules further down would not guess, in the order of the panel.
struct Hint {
    BrushKey key;
    const char* label = nullptr;
    BrushPlace place = BrushPlace::panel;
    double bend = 1;
};

constexpr auto kTop = BrushPlace::top;
// clang-format off
const Hint kHints[] = {
    {.key = K::brushType, .label = "Brush", .place = kTop},
    {.key = K::blendType, .label = "Blend mode", .place = kTop},
    {.key = K::renderColor, .label = "Colour", .place = kTop},
    {.key = K::backRenderColor, .label = "Second colour", .place = kTop},
    {.key = K::radius, .label = "Size", .place = kTop, .bend = 3},
    {.key = K::hardness, .place = kTop},
    {.key = K::opacity, .place = kTop},
    {.key = K::flow, .place = kTop},

    {.key = K::gaussianRadius, .label = "Outline blur"},
    {.key = K::isDebug, .label = "No smudging"},
    // A blend mode under another name, which no painter would type.
    {.key = K::blendFragmentShaderString, .place = BrushPlace::hidden},

    {.key = K::textureType, .label = "Tip"},
    {.key = K::textureControlValue, .label = "Tip proportion", .bend = 2},
    {.key = K::textureImages, .label = "Tip images"},
    {.key = K::textureTingleEnabled, .label = "Random image"},
    {.key = K::textureControl, .label = "Image influences"},
    {.key = K::needMaskTexture, .label = "Use paper"},
    {.key = K::maskImage, .label = "Paper"},
    {.key = K::maskScale, .label = "Paper scale", .bend = 2},
    {.key = K::maskDepth, .label = "Paper depth"},
    {.key = K::maskDepthControl, .label = "Depth influences"},
    {.key = K::maskBrightness, .label = "Paper brightness"},
    {.key = K::maskContrast, .label = "Paper contrast", .bend = 2},

    {.key = K::pointsDistanceEnabled, .label = "Even spacing"},
    {.key = K::pointsDistance, .label = "Spacing", .bend = 2},
    {.key = K::smoothEnabled, .label = "Smooth curves"},
    {.key = K::trackNum, .label = "Steadying"},
    {.key = K::speedSencitive, .label = "Speed response"},
    {.key = K::sensitivity, .label = "Fast from", .bend = 2},

    {.key = K::minRadius, .label = "Smallest"},
    {.key = K::maxRadius, .label = "Largest"},
    {.key = K::startRadius, .label = "Start size"},
    {.key = K::strokeControlValue, .label = "Start length", .bend = 2},
    {.key = K::endRadius, .label = "End size"},
    {.key = K::lineProcessType, .label = "Thin lines"},

    {.key = K::distribution, .label = "Scatter", .bend = 2},
    {.key = K::disTwoAxes, .label = "All around"},
    {.key = K::distributionControl, .label = "Scatter influences"},
    {.key = K::distributionCount, .label = "Dabs", .bend = 2},
    {.key = K::distributionCountTingle, .label = "Dabs jitter"},
    {.key = K::distributionCountControl, .label = "Dabs influences"},

    {.key = K::radian},
    {.key = K::moveRadianEnable, .label = "Follow stroke"},
    {.key = K::startRadianEnable, .label = "Random start"},
    {.key = K::flipX, .label = "Flip across"},
    {.key = K::flipY, .label = "Flip upright"},
    {.key = K::flipXTingle, .label = "Random across"},
    {.key = K::flipYTingle, .label = "Random upright"},

    {.key = K::roundness},
    {.key = K::minRoundness, .label = "Least"},

    {.key = K::minFlow, .label = "Least flow"},
    {.key = K::maxFlow, .label = "Most flow"},
    {.key = K::decay, .label = "Runs dry after", .bend = 2},
    {.key = K::wetEdge, .label = "Wet edge"},
    {.key = K::wetEdgeWidth, .label = "Edge width"},

    {.key = K::colorFul, .label = "Multicolour"},

    {.key = K::loadQuantity, .label = "Own colour"},
    {.key = K::mixQuantity, .label = "Canvas colour"},
    {.key = K::moistQuantity, .label = "Wetness"},
    {.key = K::smudgeControl, .label = "Ramp up"},
    {.key = K::smudgeControlValue, .label = "Ramp length"},

    {.key = K::repeatedlyRenderEnabled, .label = "Second line"},
    {.key = K::slTextureImage, .label = "Tip image"},
    {.key = K::slRadius, .label = "Size", .bend = 3},
    {.key = K::slRadiusRelationType, .label = "Follow size by"},
    {.key = K::relationValue, .label = "By how much"},
    {.key = K::slPointsDistance, .label = "Spacing", .bend = 2},
    {.key = K::slDistribution, .label = "Scatter", .bend = 2},
    {.key = K::slDistbTwoAxes, .label = "All around"},
    {.key = K::slDistbCount, .label = "Dabs", .bend = 2},
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

struct UnitStyle {
    double scale;
    const char* suffix;
    double step;
    int decimals;
};

UnitStyle unitStyle(BrushUnit unit) {
    switch (unit) {
        case BrushUnit::ratio:
            return {100, " %", 1, 1};
        case BrushUnit::pixels:
            return {1, " px", 1, 1};
        case BrushUnit::radians:
            return {57.29577951308232, "\u00b0", 1, 1};
        case BrushUnit::dabs:
        case BrushUnit::samples:
            return {1, "", 1, 0};
        case BrushUnit::number:
            break;
    }
    return {1, "", 0.1, 2};
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
    shown.label =
        trOfTable(hint.label ? QString::fromUtf8(hint.label) : labelFromName(QLatin1String(property.name)));
    // Recognising shapes is a mode of the window's, whatever the brush.
    shown.place = property.group == BrushGroup::recognition ? BrushPlace::hidden : hint.place;
    shown.bend = hint.bend;
    const UnitStyle style = unitStyle(property.unit);
    shown.scale = style.scale;
    shown.suffix = QString::fromUtf8(style.suffix);
    shown.step = style.step;
    shown.decimals = style.decimals;
    const auto [low, high] = brushUsefulRange(property);
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

QString choiceLabel(const BrushChoice& choice) {
    return trOfTable(choice.name.left(1).toUpper() + choice.name.mid(1));
}

QString brushGroupTitle(BrushGroup group) {
    for (const auto& row : kGroupTitles) {
        if (row.group == group)
            return trOfTable(QString::fromUtf8(row.title));
    }
    QString title = QString::fromUtf8(brushGroupName(group));
    title[0] = title[0].toUpper();
    return trOfTable(title);
}

}  // namespace dabcanvas::dabpainter
