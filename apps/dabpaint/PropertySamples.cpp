// SPDX-License-Identifier: MIT
#include "PropertySamples.h"

#include <QPainter>
#include <algorithm>

#include "Recording/PropertyValue.h"
#include "ReferenceImages.h"
#include "ToolCanvas.h"

namespace dabcanvas::dabpaint {

namespace {

using K = BrushKey;
using S = SampleKind;
using G = PropertyGround;

#define TIP(name) "textureType=0 textureImages=" name
#define APART TIP("flag") " radius=30 pointsDistance=1.1"
#define ON_PAPER "radius=56 flow=0.7 needMaskTexture=yes maskImage=grain"
#define SMUDGING "brushType=3 radius=40 renderColor=#202020"
#define SPOTS "radius=8 pointsDistance=2 hardness=1"
#define COLOURS   \
    TIP("square") \
    " radius=26 pointsDistance=1.05 pixelAligned=yes renderColor=#c8641e backRenderColor=#2a6fb0"
#define SECOND "radius=60 repeatedlyRenderEnabled=yes slTextureImage=star"
#define APART_SECOND SECOND " slRadius=16 slPointsDistance=1.1"

// clang-format off
const PropertySample kSamples[] = {
    {K::brushType, "", "radius=28 renderColor=#202020 loadQuantity=0 smudgeControl=no", S::outline, G::bars},
    {K::isDebug, "", SMUDGING " loadQuantity=0 smudgeControl=no", S::wave, G::bars},
    {K::enableRecogition, "", "radius=6", S::ring},
    {K::gaussianRadius, "1 4 12", "brushType=4", S::outline},
    {K::blendType, "", "renderColor=#a06a50 opacity=0.85 radius=40", S::wave, G::gaps},
    {K::blendFragmentShaderString, "", "", S::wave, G::paper, 1, "", "it is blendType under another name"},
    {K::renderColor, "#26456e #c1440e #5a8f29"},
    {K::opacity, "0.2 0.5 1", "", S::loop},
    {K::radius, "6 24 60"},
    {K::flow, "0.04 0.15 1", "", S::loop},
    {K::trackNum, "0 4 12", "radius=6", S::shaky},
    {K::moistQuantity, "0 0.5 1", SMUDGING " mixQuantity=1 smudgeControl=no", S::wave, G::bars},
    {K::loadQuantity, "0 0.3 1", SMUDGING " mixQuantity=0.9 smudgeControl=no", S::wave, G::bars},
    {K::mixQuantity, "0 0.9 1", SMUDGING " loadQuantity=0.3 moistQuantity=0.9 smudgeControl=no", S::wave, G::bars},
    {K::smudgeControl, "", SMUDGING " mixQuantity=1 smudgeControlValue=30", S::wave, G::bars},
    {K::smudgeControlValue, "2 15 60", SMUDGING " mixQuantity=1 smudgeControl=yes", S::wave, G::bars},
    {K::bristles, "0 0.5 1", SMUDGING " mixQuantity=1 moistQuantity=0.3 smudgeControl=no", S::wave, G::bars},
    {K::textureType, "", "textureImages=leaf radius=40 hardness=1 pointsDistance=1.2 textureControlValue=2.5"},
    {K::hardness, "0 0.5 1", "radius=56"},
    {K::textureControlValue, "2 5 10", "textureType=2 hardness=1 radius=40 pointsDistance=1.2"},
    {K::textureImages, "flag leaf star", "textureType=0 radius=36 pointsDistance=1.1"},
    {K::flipX, "", APART},
    {K::flipY, "", APART},
    {K::needMaskTexture, "", "radius=56 maskImage=grain"},
    {K::maskScale, "0.3 1 3", ON_PAPER},
    {K::maskDepth, "0 0.5 1", ON_PAPER " radius=44 maskDepthControl=1,0,0", S::pressure},
    {K::maskDepthControl, "-1,0,0 0,0,0 1,0,0", ON_PAPER " radius=44 maskDepth=1", S::pressure},
    {K::maskBrightness, "-0.3 0 0.3", ON_PAPER},
    {K::maskContrast, "0.3 1 6", ON_PAPER},
    {K::maskImage, "grain linen stripes", ON_PAPER},
    {K::pointsDistanceEnabled, "", "radius=12", S::speed},
    {K::pointsDistance, "0.1 0.8 1.6"},
    {K::smoothEnabled, "", "radius=8", S::zigzag},
    {K::sensitivity, "5 20 100", "radius=48 minRadius=0.1 radiusControl=0,0,1 speedSencitive=1", S::speed},
    {K::speedSencitive, "0.05 0.3 1", "radius=48 minRadius=0.1 radiusControl=0,0,1 sensitivity=15", S::speed},
    {K::colorFul, "", TIP("leaf") " radius=36 pointsDistance=1.1"},
    {K::lineProcessType, "", "radius=5 minRadius=0.05 radiusControl=1,0,0", S::pressure, G::paper, 4},
    {K::minRadius, "0 0.4 0.8", "radius=40 radiusControl=1,0,0", S::pressure},
    {K::maxRadius, "0.2 0.6 1", "radius=40 minRadius=0 radiusControl=1,0,0", S::pressure},
    {K::startRadius, "0.05 0.4 1", "radius=40 strokeControlValue=120"},
    {K::strokeControlValue, "20 60 140", "radius=40 startRadius=0.05"},
    {K::endRadius, "0.05 0.5 1", "radius=32", S::speed},
    {K::radiusTingle, "0 0.5 1", "radius=44 minRadius=0.1 pointsDistance=1 hardness=1"},
    {K::radiusControl, "-1,0,0 0,0,0 1,0,0", "radius=40 minRadius=0.1", S::pressure},
    {K::disTwoAxes, "", SPOTS " radius=6 pointsDistance=7 distribution=4 distributionCount=14", S::pressure},
    {K::distribution, "0 1 4", SPOTS " pointsDistance=1", S::pressure},
    {K::distributionControl, "-1,0,0 0,0,0 1,0,0", SPOTS " pointsDistance=0.6 distribution=5", S::pressure},
    {K::distributionCount, "1 3 10", SPOTS " distribution=3", S::pressure},
    {K::distributionCountTingle, "0 0.5 1", SPOTS " distribution=4 distributionCount=8", S::pressure},
    {K::distributionCountControl, "-1,0,0 0,0,0 1,0,0", SPOTS " distribution=4 distributionCount=8", S::pressure},
    {K::radian, "-0.8 0 0.8", APART},
    {K::startRadianEnable, "", TIP("flag") " radius=26 pointsDistance=1.1", S::threeLines},
    {K::moveRadianEnable, "", TIP("flag") " radius=24 pointsDistance=1.2", S::outline},
    {K::flipXTingle, "", APART},
    {K::flipYTingle, "", APART},
    {K::radianTingle, "0 0.15 1", APART},
    {K::radianControl, "-1,0,0 0,0,0 1,0,0", APART, S::pressure},
    {K::roundness, "0.2 0.6 1", "radius=36 pointsDistance=1.1 hardness=1"},
    {K::roundnessTingle, "0 0.5 1", "radius=36 pointsDistance=1.1 hardness=1"},
    {K::minRoundness, "0.05 0.4 0.8", "radius=36 pointsDistance=1.1 hardness=1 roundnessTingle=1"},
    {K::roundnessControl, "-1,0,0 0,0,0 1,0,0", "radius=36 pointsDistance=1.1 hardness=1", S::pressure},
    {K::pixelAligned, "", TIP("square") " radius=3.4 pointsDistance=0.2", S::wave, G::paper, 6},
    {K::minFlow, "0.0001 0.3 0.8", "radius=40 pointsDistance=0.6 flow=0.6 flowControl=1,0,0", S::pressure},
    {K::maxFlow, "0.2 0.5 1", "radius=40 pointsDistance=0.6 flowControl=1,0,0", S::pressure},
    {K::flowTingle, "0 0.5 1", "pointsDistance=1.1 hardness=1"},
    {K::flowControl, "-1,0,0 0,0,0 1,0,0", "radius=40 pointsDistance=0.6", S::pressure},
    {K::decay, "0 60 25", "radius=40 hardness=0.5"},
    {K::wetEdge, "0 0.5 1", "radius=56 hardness=1 opacity=0.8 renderColor=#2a6fb0"},
    {K::wetEdgeWidth, "2 8 24", "radius=56 hardness=1 opacity=0.8 renderColor=#2a6fb0 wetEdge=0.8"},
    {K::textureTingleEnabled, "", TIP("leaf,star") " radius=24 pointsDistance=1.1"},
    {K::textureControl, "-1,0,0 0,0,0 1,0,0", TIP("leaf,star") " radius=24 pointsDistance=1.1", S::pressure},
    {K::backRenderColor, "#2a6fb0 #5a8f29 #ffffff", COLOURS " colorTingle=1"},
    {K::colorTingle, "0 0.5 1", COLOURS},
    {K::colorControl, "-1,0,0 0,0,0 1,0,0", COLOURS, S::pressure},
    {K::hueTingle, "0 0.2 1", COLOURS},
    {K::saturationTingle, "0 0.5 1", COLOURS},
    {K::brightnessTingle, "0 0.5 1", COLOURS},
    {K::repeatedlyRenderEnabled, "", "radius=60 slTextureImage=star slRadius=16 slPointsDistance=1.1"},
    {K::slTextureImage, "star leaf disc", APART_SECOND},
    {K::slRadius, "8 20 40", SECOND " slPointsDistance=1.1"},
    {K::slPointsDistance, "0.3 1.1 2", SECOND " slRadius=16"},
    {K::slDistribution, "0 1 2", APART_SECOND},
    {K::slDistbTwoAxes, "", SECOND " radius=80 slRadius=10 slPointsDistance=5 slDistribution=2.5 slDistbCount=14", S::pressure},
    {K::slDistbCount, "1 3 10", APART_SECOND " slDistribution=1.5"},
    {K::slRadiusRelationType, "", "radius=20 repeatedlyRenderEnabled=yes slTextureImage=star slRadius=10 slPointsDistance=1.1", S::wave, G::paper, 1, "radius=60"},
    {K::relationValue, "-50 -40 -20", SECOND " slPointsDistance=1.1 slRadiusRelationType=1"},
    {K::recogPointScale, "", "", S::wave, G::paper, 1, "", "a shape stands where it was drawn, as large, whatever points are divided by"},
};
// clang-format on

QImage groundImage(PropertyGround ground, const QSize& size) {
    constexpr QRgb kBars[] = {0xff7a2f2a, 0xffe2b33c, 0xff2f6f9a, 0xffefe6d2, 0xff5c9a58, 0xff16202e};
    QImage image(size, QImage::Format_RGBA8888_Premultiplied);
    image.fill(ground == PropertyGround::paper ? Qt::white : Qt::transparent);
    if (ground == PropertyGround::paper)
        return image;
    const int count = int(std::size(kBars)), parts = ground == PropertyGround::gaps ? 2 * count : count;
    QPainter painter(&image);
    for (int i = 0; i < count; ++i) {
        const int left = i * size.width() / count;
        painter.fillRect(left, 0, size.width() / parts + 1, size.height(), QColor::fromRgba(kBars[i]));
    }
    return image;
}

// White, or squares where something may be transparent.
QImage sheet(PropertyGround ground, const QSize& size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    if (ground == PropertyGround::gaps) {
        QPainter painter(&image);
        for (int y = 0; y < size.height(); y += 8) {
            for (int x = y % 16; x < size.width(); x += 16)
                painter.fillRect(x, y, 8, 8, QColor(225, 225, 225));
        }
    }
    return image;
}

Result<QVariant> sampleValue(const BrushProperty& property, const QString& text) {
    if (property.type() != BrushValueType::image && property.type() != BrushValueType::images)
        return propertyValueFromText(property, text);
    QList<QImage> images;
    for (const QString& name : text.split(QLatin1Char(',')))
        images << referenceImage(name);
    if (images.contains(QImage()))
        return Problem{0, {}, QStringLiteral("there is no image %1").arg(text)};
    return property.type() == BrushValueType::images ? QVariant::fromValue(images)
                                                     : QVariant::fromValue(images.front());
}

// An empty text, or what is wrong.
QString applySettings(QDDrawCanvas& canvas, const QString& settings) {
    for (const QString& setting : settings.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const QString name = setting.section(QLatin1Char('='), 0, 0);
        const BrushProperty* property = brushPropertyNamed(name);
        if (!property)
            return unknownProperty(name);
        const auto value = sampleValue(*property, setting.section(QLatin1Char('='), 1));
        if (!value)
            return value.problem().what;
        canvas.setBrushValue(*property, *value);
    }
    return {};
}

}  // namespace

const PropertySample& propertySample(const BrushProperty& property) {
    static_assert(std::size(kSamples) == std::size_t(BrushKey::count), "each property has a sample");
    return *std::find_if(std::begin(kSamples), std::end(kSamples),
                         [&](const PropertySample& sample) { return sample.key == property.key; });
}

QStringList PropertySample::valuesShown() const {
    QStringList shown = QString::fromLatin1(values).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const BrushProperty& property = brushProperty(key);
    for (const auto& [value, name] : brushChoices(property))
        shown << QString::number(value);
    if (property.type() == BrushValueType::boolean)
        shown << QStringLiteral("no") << QStringLiteral("yes");
    return shown;
}

QString PropertySample::settingsShown() const {
    const QString before = QString::fromLatin1(settings);
    return *after ? QStringLiteral("%1, then %2").arg(before, QLatin1String(after)) : before;
}

Result<QImage> paintPropertySample(const PropertySample& sample, const QString& value, const QSize& size) {
    const QSize small = size / sample.zoom;
    auto made = makeCanvas(small, {.kind = SurfaceKind::processor});
    if (!made)
        return made.problem();
    QDDrawCanvas& canvas = **made;
    canvas.setRandomSeed(1);
    const QString name = QString::fromLatin1(brushProperty(sample.key).name);
    for (const QString& settings : {QString::fromLatin1(kPlainBrush), QString::fromLatin1(sample.settings),
                                    name + QLatin1Char('=') + value, QString::fromLatin1(sample.after)}) {
        if (const QString wrong = applySettings(canvas, settings); !wrong.isEmpty())
            return Problem{0, {}, QStringLiteral("%1: %2").arg(name, wrong)};
    }
    canvas.setImageInBufferRect(groundImage(sample.ground, small), QRectF(QPointF(), QSizeF(small)));
    for (const auto& samples : sampleStrokes(sample.stroke, small, canvas.radius()))
        paintSamples(canvas, samples, [] {});
    QImage shown = sheet(sample.ground, small);
    QPainter(&shown).drawImage(0, 0, canvas.image());
    return shown.scaled(size);
}

}  // namespace dabcanvas::dabpaint
