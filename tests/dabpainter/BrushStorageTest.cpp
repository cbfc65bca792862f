// SPDX-License-Identifier: MIT
#include "Brush/BrushStorage.h"

#include "Brush/BrushPresentation.h"
#include "PainterTest.h"

namespace dabcanvas::dabpainter {

namespace {

using BrushStorageTest = PainterTest;

std::vector<QVariant> valuesOf(const BrushModel& brush) {
    std::vector<QVariant> values;
    for (const BrushProperty& property : brushProperties())
        values.push_back(brush.value(property.key));
    return values;
}

TEST_F(BrushStorageTest, EveryValueComesBackInTheNextRun) {
    for (const BrushProperty& property : brushProperties()) {
        if (brushPresentation(property).place == BrushPlace::hidden)
            continue;
        BrushModel& brush = _window->brush();
        ASSERT_TRUE(brush.setValue(property.key, otherValue(property, brush.value(property.key))))
            << property.name;
    }
    const std::vector<QVariant> before = valuesOf(_window->brush());
    // The window is not closed, as when a run is killed.
    const auto isWritten = [&] {
        return QFile::exists(_settings->fileName()) && contentOf(_settings->fileName()).contains("\nradius=");
    };
    _window->view()->drawingWithBeginPoint({20, 20});
    EXPECT_FALSE(waitFor(isWritten, 1500)) << "in mid-stroke, which would come to a stop";
    _window->view()->drawingWithEndPoint({20, 20});
    ASSERT_TRUE(waitFor(isWritten, 20'000));
    makeWindow();
    const std::vector<QVariant> after = valuesOf(_window->brush());
    for (const BrushProperty& property : brushProperties())
        EXPECT_TRUE(sameBrushValue(after[std::size_t(property.key)], before[std::size_t(property.key)]))
            << property.name;
    // And on a canvas that is made later in the run, where sizes that are not related stay what they are.
    _window->brush().setValue(BrushKey::slRadiusRelationType, 0);
    _window->brush().setValue(BrushKey::slRadius, 44.0f);
    _window->brush().setValue(BrushKey::radius, 90.0f);
    ASSERT_TRUE(_window->startCanvas({QSize(20, 20), Qt::transparent}));
    EXPECT_EQ(_window->view()->radius(), 90);
    EXPECT_EQ(_window->view()->slRadius(), 44);
    _window->brush().setValue(BrushKey::textureType, 0);
    EXPECT_EQ(_window->view()->textureImages().size(), 2);
}

TEST_F(BrushStorageTest, BrokenValuesAndUnknownNamesAreLeftOut) {
    _window->close();
    writtenTo(
        _settings->fileName(),
        "[window]\ngeometry=rubbish\nstate=@ByteArray(rubbish)\n"
        "[brush]\nradius=nan\nflow=half\nopacity=0.25\nblendType=first\nnoSuchThing=1\nsmoothEnabled=maybe\n"
        "radiusControl=1, 2\nrenderColor=0.5, 0.5, x, 1\nmaskImage=AAAA\ntextureImages=!!, AAAA\n"
        "hardness=7\nenableRecogition=true\n");
    _settings->sync();
    makeWindow();
    const BrushModel& brush = _window->brush();
    for (const BrushProperty& property : brushProperties()) {
        const bool differs = property.key == BrushKey::opacity || property.key == BrushKey::hardness ||
                             property.key == BrushKey::backRenderColor;  // white on a first start
        if (!differs) {
            EXPECT_TRUE(brush.isDefault(property.key)) << property.name;
        }
    }
    EXPECT_EQ(brush.value(BrushKey::opacity).toFloat(), 0.25f);
    EXPECT_EQ(brush.value(BrushKey::hardness).toFloat(), 1);  // cut to its range
}

}  // namespace

}  // namespace dabcanvas::dabpainter
