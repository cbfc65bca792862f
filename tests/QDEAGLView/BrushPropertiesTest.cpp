// SPDX-License-Identifier: MIT
#include "QDEAGLView/BrushProperties.h"

#include <QMetaProperty>
#include <cstring>
#include <limits>
#include <set>
#include <string>

#include "ESRender/ESImageRender.h"
#include "LineProcess/LPProperties.h"
#include "QDEAGLView/QDDrawView.h"
#include "support/CanvasTest.h"
#include "support/Named.h"

namespace {

using BrushPropertiesTest = CanvasTest;

TEST_F(BrushPropertiesTest, RowsStandInKeyOrderUnderUniqueNames) {
    std::set<std::string> names;
    int key = 0;
    for (const BrushProperty& row : brushProperties()) {
        EXPECT_EQ(static_cast<int>(row.key), key++) << row.name;
        EXPECT_TRUE(names.insert(row.name).second) << row.name;
        EXPECT_EQ(brushPropertyNamed(QString::fromLatin1(row.name)), &row);
        EXPECT_GT(std::strlen(row.about), 10u) << row.name;
    }
    EXPECT_EQ(brushPropertyNamed(u"Radius"), nullptr);
}

// Every row at once: the created value, what is stored of values in and out of range, and refusal of the
// wrong kind.
TEST_F(BrushPropertiesTest, EveryNumberStartsAtItsDefaultAndIsClampedToItsRange) {
    auto canvas = makeCanvas(32, 32);
    for (const BrushProperty& row : brushProperties()) {
        if (row.type() != BrushValueType::real) {
            continue;
        }
        if (row.key != BrushKey::relationValue) {  // follows slRadius
            EXPECT_FLOAT_EQ(canvas->brushValue(row).toFloat(), row.created) << row.name;
        }
        for (const float value : {-3.0f, 0.005f, 0.5f, 7.0f, 5000.0f}) {
            ASSERT_TRUE(canvas->setBrushValue(row, value)) << row.name;
            EXPECT_FLOAT_EQ(canvas->brushValue(row).toFloat(), std::min(std::max(value, row.low), row.high))
                << row.name;
        }
        const float before = canvas->brushValue(row).toFloat();
        EXPECT_FALSE(canvas->setBrushValue(row, std::numeric_limits<float>::quiet_NaN())) << row.name;
        EXPECT_FALSE(canvas->setBrushValue(row, std::numeric_limits<double>::infinity())) << row.name;
        EXPECT_FALSE(canvas->setBrushValue(row, QStringLiteral("12"))) << row.name;
        EXPECT_FLOAT_EQ(canvas->brushValue(row).toFloat(), before) << row.name;
    }
}

TEST_F(BrushPropertiesTest, OtherKindsStoreWhatTheyAreGiven) {
    auto canvas = makeCanvas(32, 32);
    const QImage tip = solidImage({9, 5}, Qt::black);
    const QVariant values[] = {true,
                               2,
                               {},  // numbers: above
                               QVariant::fromValue(LPControlParams{0.25f, -0.5f, 1}),
                               QVariant::fromValue(ESColor::rgba(0.25f, 0.5f, 0.75f, 1)),
                               tip,
                               QVariant::fromValue(QList<QImage>{tip, tip}),
                               {}};
    for (const BrushProperty& row : brushProperties()) {
        const QVariant& value = values[static_cast<std::size_t>(row.type())];
        if (!value.isValid()) {
            continue;
        }
        ASSERT_TRUE(canvas->setBrushValue(row, value)) << row.name;
        const QVariant stored = canvas->brushValue(row);
        if (row.type() == BrushValueType::control) {
            const auto control = stored.value<LPControlParams>();
            EXPECT_TRUE(control.pressure == 0.25f && control.altitude == -0.5f && control.speed == 1)
                << row.name;
        } else {
            EXPECT_EQ(stored, value) << row.name;
        }
        EXPECT_FALSE(canvas->setBrushValue(row, QVariant())) << row.name;
    }
}

// What a value does to a stroke, so that no row is stored and forgotten: each must change the painted pixels.
struct Effect : Named {
    QVariant value;
    std::function<void(QDDrawCanvas&)> prepare = {};
};

QImage halfBlack() {
    QImage image = solidImage({40, 40}, Qt::white);
    fillRect(image, QRect(0, 0, 20, 40), Qt::black);
    return image;
}

QList<QImage> twoTips() {
    QImage dot = solidImage({32, 32}), block = dot;
    dot.setPixelColor(16, 16, Qt::red);
    fillRect(block, QRect(6, 4, 22, 16), QColor(200, 30, 30));
    return {block, dot};
}

void useTwoTips(QDDrawCanvas& canvas) {
    canvas.setTextureType(0);
    canvas.setTextureImages(twoTips());
}

void scatter(QDDrawCanvas& canvas) {
    canvas.setDistribution(0.8f);
    canvas.setDistributionCount(3);
}

void flat(QDDrawCanvas& canvas) {
    canvas.setRoundness(0.3f);
}

void pressureFlow(QDDrawCanvas& canvas) {
    canvas.setFlowControl({1, 0, 0});
}

void colored(QDDrawCanvas& canvas) {
    canvas.setRenderColor(ESColor::rgba(0.8f, 0.3f, 0.2f));
    canvas.setBackRenderColor(ESColor::rgba(0, 0, 1));
}

void secondLine(QDDrawCanvas& canvas) {
    canvas.setRepeatedlyRenderEnabled(true);
    canvas.setSlRadius(12);
}

void scatteredSecondLine(QDDrawCanvas& canvas) {
    secondLine(canvas);
    canvas.setSlDistribution(1);
}

void speedRadius(QDDrawCanvas& canvas) {
    canvas.setRadiusControl({0, 0, 1});
}

void paper(QDDrawCanvas& canvas) {
    canvas.setMaskImage(halfBlack());
    canvas.setNeedMaskTexture(true);
}

const LPControlParams kAll{0.8f, 0.5f, 0.6f};
const Effect kEffects[] = {
    {"blendType", 5, [](QDDrawCanvas& c) { c.clearWithColor(ESColor::grey(0.7f), false); }},
    {"renderColor", QVariant::fromValue(ESColor::rgba(1, 0, 0))},
    {"opacity", 0.5f},
    {"radius", 60.0f},
    {"flow", 0.3f},
    {"trackNum", 4},
    {"textureType", 3},
    {"hardness", 0.9f},
    {"textureControlValue", 8.0f, [](QDDrawCanvas& c) { c.setTextureType(2); }},
    {"textureImages", QVariant::fromValue(twoTips()), [](QDDrawCanvas& c) { c.setTextureType(0); }},
    {"flipX", true, useTwoTips},
    {"flipY", true, useTwoTips},
    {"needMaskTexture", true, [](QDDrawCanvas& c) { c.setMaskImage(halfBlack()); }},
    {"maskScale", 2.0f, paper},
    {"maskImage", halfBlack(), [](QDDrawCanvas& c) { c.setNeedMaskTexture(true); }},
    {"pointsDistanceEnabled", false},
    {"pointsDistance", 0.9f},
    {"smoothEnabled", false},
    {"speedSencitive", 1.0f, speedRadius},
    {"sensitivity", 6.0f, speedRadius},
    {"colorFul", true, useTwoTips},
    {"lineProcessType", 4, [](QDDrawCanvas& c) { c.setRadius(2); }},
    {"minRadius", 0.6f},
    {"maxRadius", 0.5f},
    {"startRadius", 0.05f, [](QDDrawCanvas& c) { c.setStrokeControlValue(80); }},
    {"strokeControlValue", 80.0f},
    {"endRadius", 0.9f},
    {"radiusTingle", 0.7f},
    {"radiusControl", QVariant::fromValue(kAll)},
    {"disTwoAxes", true, scatter},
    {"distribution", 1.0f},
    {"distributionControl", QVariant::fromValue(kAll), scatter},
    {"distributionCount", 4.0f, [](QDDrawCanvas& c) { c.setFlow(0.2f); }},
    {"distributionCountTingle", 1.0f, scatter},
    {"distributionCountControl", QVariant::fromValue(kAll), scatter},
    {"radian", 0.7f, flat},
    {"startRadianEnable", true, flat},
    {"moveRadianEnable", true, flat},
    {"flipXTingle", true, useTwoTips},
    {"flipYTingle", true, useTwoTips},
    {"radianTingle", 0.5f, flat},
    {"radianControl", QVariant::fromValue(kAll), flat},
    {"roundness", 0.4f},
    {"roundnessTingle", 0.8f},
    {"roundnessControl", QVariant::fromValue(kAll)},
    {"minFlow", 0.6f, pressureFlow},
    {"maxFlow", 0.4f, pressureFlow},
    {"flowTingle", 0.6f},
    {"flowControl", QVariant::fromValue(kAll)},
    {"decay", 20.0f},
    {"textureTingleEnabled", true, useTwoTips},
    {"textureControl", QVariant::fromValue(kAll), useTwoTips},
    {"backRenderColor", QVariant::fromValue(ESColor::rgba(0, 1, 0)),
     [](QDDrawCanvas& c) { c.setColorTingle(1); }},
    {"colorTingle", 0.9f, colored},
    {"colorControl", QVariant::fromValue(kAll), colored},
    {"hueTingle", 0.9f, colored},
    {"saturationTingle", 0.9f, colored},
    {"brightnessTingle", 0.9f, colored},
    {"repeatedlyRenderEnabled", true, [](QDDrawCanvas& c) { c.setSlRadius(12); }},
    {"slTextureImage", twoTips()[0], secondLine},
    {"slRadius", 6.0f, secondLine},
    {"slPointsDistance", 2.0f, secondLine},
    {"slDistribution", 1.0f, secondLine},
    {"slDistbTwoAxes", true, scatteredSecondLine},
    {"slDistbCount", 5.0f, scatteredSecondLine},
    {"relationValue", -25.0f, secondLine},
};

class BrushEffectTest : public CanvasTest, public ::testing::WithParamInterface<Effect> {};
TEST_P(BrushEffectTest, ShowsInTheStroke) {
    const Effect& effect = GetParam();
    const auto paint = [&](bool set) {
        auto canvas = makeCanvas();
        if (effect.prepare) {
            effect.prepare(*canvas);
        }
        if (set) {
            EXPECT_TRUE(
                canvas->setBrushValue(*brushPropertyNamed(QString::fromLatin1(effect.name)), effect.value));
        }
        paintWave(*canvas);
        return canvas->image();
    };
    EXPECT_NE(paint(true), paint(false));
    EXPECT_EQ(paint(true), paint(true)) << "and repeats";
}
INSTANTIATE_TEST_SUITE_P(Properties, BrushEffectTest, ::testing::ValuesIn(kEffects), byName);

// Rules of their own

TEST_F(BrushPropertiesTest, LineValuesReachTheRecordsTheirRowsName) {
    auto canvas = makeCanvas(32, 32);
    const auto stored = [](const LPLineParams& record, const BrushProperty& row) {
        lpSetParaObj(const_cast<LPLineParams*>(&record));
        return row.type() == BrushValueType::boolean ? (lpGetPropertyb(row.lineId) ? 1.0f : 0.0f)
                                                     : lpGetPropertyf(row.lineId);
    };
    for (const BrushProperty& row : brushProperties()) {
        if (row.lines == Lines::none) {
            continue;
        }
        const bool isBoolean = row.type() == BrushValueType::boolean;
        const float value = isBoolean ? 0.0f : std::clamp(0.4375f, row.low, row.high);
        const float mainBefore = stored(canvas->lineParaObj(), row),
                    subBefore = stored(canvas->subLineParaObj(), row);
        ASSERT_TRUE(canvas->setBrushValue(row, isBoolean ? QVariant(false) : QVariant(value)));
        EXPECT_EQ(stored(canvas->lineParaObj(), row), row.lines == Lines::sub ? mainBefore : value)
            << row.name;
        EXPECT_EQ(stored(canvas->subLineParaObj(), row), row.lines == Lines::main ? subBefore : value)
            << row.name;
    }
    canvas->setTrackNum(3);
    canvas->setRadiusControl({0.1f, 0.2f, 0.3f});
    canvas->setSlRadius(9);
    EXPECT_EQ(canvas->lineParaObj().trackNum, 3);
    EXPECT_EQ(canvas->subLineParaObj().trackNum, 0);
    EXPECT_EQ(canvas->subLineParaObj().radiusControl.speed, 0.3f);
    EXPECT_EQ(canvas->lineParaObj().radiusControl.altitude, 0.2f);
    EXPECT_EQ(canvas->subLineParaObj().radius, 9.0f);
    EXPECT_EQ(makeCanvas(32, 32)->lineParaObj().maxRadius, 1.0f);
}

TEST_F(BrushPropertiesTest, TheSecondLineFollowsTheFirst) {
    auto canvas = makeCanvas(32, 32);
    canvas->setSlRadius(16);
    canvas->setSlRadiusRelationType(2);
    EXPECT_FLOAT_EQ(canvas->relationValue(), 0.5f);
    canvas->setRadius(40);
    EXPECT_FLOAT_EQ(canvas->slRadius(), 20);
    canvas->setRelationValue(3e38f);
    EXPECT_FLOAT_EQ(canvas->slRadius(), 20) << "none that is not finite";
    EXPECT_FLOAT_EQ(canvas->relationValue(), 0.5f);
    canvas->setSlRadiusRelationType(1);
    EXPECT_FLOAT_EQ(canvas->relationValue(), -20);
    canvas->setRadius(15);
    EXPECT_FLOAT_EQ(canvas->slRadius(), 1) << "never below 1";
    canvas->setSlRadiusRelationType(0);
    canvas->setRadius(90);
    EXPECT_FLOAT_EQ(canvas->slRadius(), 1);
}

TEST_F(BrushPropertiesTest, WithoutTipsTheTextureTypeIsZeroAndTheLastTipStays) {
    auto canvas = makeCanvas();
    canvas->setTextureImages(twoTips());
    canvas->setTextureImages({});
    EXPECT_EQ(canvas->textureType(), 0);
    paintWave(*canvas);
    EXPECT_FALSE(painted(canvas->image()).isNull());
    canvas->setTextureType(1);
    EXPECT_EQ(canvas->textureImages().first().width(), 32) << "drawn at the radius";
    canvas->setTextureType(0);
    EXPECT_EQ(canvas->textureImages(), twoTips()) << "the tips handed in come back";
}

TEST_F(BrushPropertiesTest, ABlendProgramsTextSelectsItsType) {
    auto canvas = makeCanvas();
    canvas->setBlendFragmentShaderString(ESImageRender::eraseFSHString());
    EXPECT_TRUE(canvas->blendFragmentShaderString().contains(QLatin1String("1.0 - L.a")));
    paintWave(*canvas);
    EXPECT_TRUE(painted(canvas->image()).isNull()) << "erasing an empty canvas paints nothing";
}

// The widget's meta-object has every property, under the table's name, with its kind.
TEST_F(BrushPropertiesTest, TheViewHasEachAsAQtProperty) {
    auto view = QDDrawView::initWithFrame(QRectF(0, 0, 40, 30));
    ASSERT_TRUE(view);
    for (const BrushProperty& row : brushProperties()) {
        const int index = view->metaObject()->indexOfProperty(row.name);
        ASSERT_GE(index, 0) << row.name;
        const QMetaProperty property = view->metaObject()->property(index);
        EXPECT_TRUE(property.isWritable()) << row.name;
        EXPECT_EQ(property.metaType(), brushDefault(row).metaType()) << row.name;
    }
    EXPECT_TRUE(view->setProperty("renderColor", QColor(255, 0, 0)));
    EXPECT_FLOAT_EQ(view->renderColor().red(), 1);
    view->setProperty("radius", 1.0);
    EXPECT_FLOAT_EQ(view->radius(), 2);
}

}  // namespace
