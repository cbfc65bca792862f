// SPDX-License-Identifier: MIT
// Property values as written.
#include "Recording/PropertyValue.h"

#include <gmock/gmock.h>

#include <QTemporaryDir>

#include "support/Files.h"
#include "support/Rows.h"

namespace dabcanvas {
namespace {

const BrushProperty& named(const char* name) {
    const BrushProperty* property = brushPropertyNamed(QString::fromLatin1(name));
    EXPECT_NE(property, nullptr) << name;
    return *property;
}

std::string told(const QVariant& value) {
    if (value.metaType() == QMetaType::fromType<LPControlParams>()) {
        const auto control = value.value<LPControlParams>();
        return ::testing::PrintToString(control.pressure) + ' ' + ::testing::PrintToString(control.altitude) +
               ' ' + ::testing::PrintToString(control.speed);
    }
    if (value.metaType() == QMetaType::fromType<ESColor>())
        return value.value<ESColor>().toQColor().name(QColor::HexArgb).toStdString();
    return value.typeName() + (' ' + value.toString().toStdString());
}

TEST(PropertyValueTest, AValueIsTakenOrRefused) {
    for (const QStringList& row : rowsOf("commands/values.txt")) {
        SCOPED_TRACE(qPrintable(row.join('|')));
        const auto value = propertyValueFromText(named(qPrintable(row[0])), row[1]);
        ASSERT_EQ(bool(value), !row[2].isEmpty());
        if (value) {
            EXPECT_EQ(told(*value), row[2].toStdString());
        } else {
            EXPECT_THAT(value.problem().what.toStdString(), ::testing::HasSubstr("expected "));
        }
    }
}

TEST(PropertyValueTest, ImagesAreFoundBesideTheRecording) {
    const QTemporaryDir folder;
    savedPicture(folder.filePath("tip.png"), Qt::red, {3, 2});
    Setting setting{"maskImage", "tip.png", 1, {}};
    const auto image = propertyValueFromSetting(named("maskImage"), setting, folder.path());
    ASSERT_TRUE(image) << image.problem().what.toStdString();
    EXPECT_EQ(image->value<QImage>().size(), QSize(3, 2));

    setting.value = QStringList{"tip.png", folder.filePath("tip.png")};
    const auto images = propertyValueFromSetting(named("textureImages"), setting, folder.path());
    ASSERT_TRUE(images);
    EXPECT_EQ(images->value<QList<QImage>>().size(), 2);

    // A few bytes that name large images again and again.
    QImage large(5700, 5700, QImage::Format_Mono);
    large.fill(0);
    ASSERT_TRUE(large.save(folder.filePath("large.png")));
    setting.value = QStringList(9, "large.png");
    const auto many = propertyValueFromSetting(named("textureImages"), setting, folder.path());
    EXPECT_TRUE(!many && many.problem().what.contains("pixels together"));

    for (const QString text : {"none.png", "/dev/zero: it is not a plain file"}) {
        const auto bad = propertyValueFromText(named("textureImages"), text.section(QLatin1Char(':'), 0, 0));
        ASSERT_FALSE(bad);
        EXPECT_TRUE(bad.problem().what.contains("cannot read the image " + text));
    }
}

// What `properties` prints as a default must be a value that `paint --set` takes, and mean that default.
TEST(PropertyValueTest, DefaultsReadBack) {
    for (const BrushProperty& property : brushProperties()) {
        const QString text = defaultText(property);
        if (text.isEmpty())
            continue;
        const auto value = propertyValueFromText(property, text);
        ASSERT_TRUE(value) << property.name;
        EXPECT_EQ(told(*value), told(brushDefault(property))) << property.name;
    }
}

}  // namespace
}  // namespace dabcanvas
