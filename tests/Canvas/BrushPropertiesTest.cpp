// SPDX-License-Identifier: MIT
#include "Brushes/BrushProperties.h"

#include <QMetaProperty>
#include <limits>

#include "ESRender/ESImageRender.h"
#include "LineProcess/LPProperties.h"
#include "QDEAGLView/QDDrawView.h"
#include "support/CanvasTest.h"
#include "support/Named.h"

using namespace dabcanvas;

namespace {

using BrushPropertiesTest = CanvasTest;

TEST_F(BrushPropertiesTest, EveryNumberStartsAtItsDefaultAndIsClampedToItsRange) {
    auto canvas = makeCanvas(32, 32);
    for (const BrushProperty& row : brushProperties()) {
        EXPECT_FALSE(canvas->setBrushValue(row, QVariant())) << row.name;
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
        EXPECT_FALSE(canvas->setBrushValue(row, "12")) << row.name;
        EXPECT_FLOAT_EQ(canvas->brushValue(row).toFloat(), before) << row.name;
    }
}

// Rules of their own

TEST_F(BrushPropertiesTest, TheSecondLineFollowsTheFirst) {
    auto canvas = makeCanvas(32, 32);
    canvas->setTrackNum(3);
    canvas->setSensitivity(70);
    canvas->setRadiusControl({0.1f, 0.2f, 0.3f});
    const LPLineParams &line = canvas->lineParaObj(), &subLine = canvas->subLineParaObj();
    EXPECT_TRUE(line.trackNum == 3 && subLine.trackNum == 0 && subLine.sensitivity == 70 &&
                line.radiusControl.altitude == 0.2f && subLine.radiusControl.pressure == 0.1f);
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

TEST_F(BrushPropertiesTest, WithoutTipsTheTextureTypeIsZeroAndDabsHaveANewCanvassTip) {
    auto canvas = makeCanvas();
    auto fresh = makeCanvas();
    const QList<QImage> tips(2, solidImage({32, 32}, Qt::black));
    canvas->setTextureImages(tips);
    canvas->setTextureImages({QImage()});  // which is none
    EXPECT_EQ(canvas->textureType(), 0);
    for (const float radius : {32.0f, 80.0f}) {
        for (QDDrawCanvas* one : {canvas.get(), fresh.get()}) {
            one->setRadius(radius);
            paintWave(*one);
        }
        EXPECT_TRUE(imagesMatch(canvas->image(), fresh->image())) << radius;
    }
    EXPECT_TRUE(canvas->textureImages().isEmpty());
    canvas->setTextureType(1);
    EXPECT_EQ(canvas->textureImages().first().width(), 80) << "drawn at the radius";
    canvas->setTextureType(0);
    EXPECT_EQ(canvas->textureImages(), tips) << "the tips handed in come back";
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
        EXPECT_TRUE(property.hasNotifySignal() && property.isResettable()) << row.name;
    }
    EXPECT_TRUE(view->setProperty("renderColor", QColor(255, 0, 0)));
    EXPECT_FLOAT_EQ(view->renderColor().red(), 1);
    view->setProperty("radius", 1.0);
    EXPECT_FLOAT_EQ(view->radius(), 2);
}

}  // namespace
