// SPDX-License-Identifier: MIT
// Property values as written.
#include "PropertyValue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include "PropertiesCommand.h"

namespace dabcanvas::dabpaint {
namespace {

const BrushProperty& named(const char* name) {
    const BrushProperty* property = brushPropertyNamed(QString::fromLatin1(name));
    EXPECT_NE(property, nullptr) << name;
    return *property;
}

struct Written {
    const char* property;
    const char* text;
    const char* value;  // as told() tells it; null when it must be refused
};

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

class WrittenTest : public ::testing::TestWithParam<Written> {};

TEST_P(WrittenTest, IsTakenOrRefused) {
    const auto& [name, text, expected] = GetParam();
    const auto value = propertyValueFromText(named(name), QString::fromUtf8(text));
    ASSERT_EQ(bool(value), expected != nullptr) << name << '=' << text;
    if (expected) {
        EXPECT_EQ(told(*value), expected);
    } else {
        EXPECT_THAT(value.problem().what.toStdString(), ::testing::HasSubstr("expected "));
    }
}

const Written kWritten[] = {
    {"radius", "12.5", "float 12.5"},
    {"radius", "1e1", "float 10"},
    {"radius", "2", "float 2"},
    {"radius", "1.9", nullptr},
    {"radius", "1e9", nullptr},
    {"radius", "12,5", nullptr},
    {"radius", "12px", nullptr},
    {"radius", "", nullptr},
    {"radius", "nan", nullptr},
    {"radius", "inf", nullptr},
    {"radian", "-3.5", "float -3.5"},
    {"radian", "1e39", nullptr},
    {"blendType", "5", "int 5"},
    {"blendType", "5.5", nullptr},
    {"blendType", "99999", nullptr},
    {"flipX", "yes", "bool true"},
    {"flipX", "FALSE", "bool false"},
    {"flipX", "0", "bool false"},
    {"flipX", "maybe", nullptr},
    {"flipX", "2", nullptr},
    {"radiusControl", "1,-.5, 0", "1 -0.5 0"},
    {"radiusControl", "1,2", nullptr},
    {"radiusControl", "1,,2", nullptr},
    {"radiusControl", "1", nullptr},
    {"renderColor", "#102030", "#ff102030"},
    {"renderColor", "#10203040", "#40102030"},
    {"renderColor", "red", "#ffff0000"},
    {"renderColor", "#123", nullptr},
    {"renderColor", "#12345g", nullptr},
    {"renderColor", "nocolour", nullptr},
    {"maskImage", "", nullptr},
};
INSTANTIATE_TEST_SUITE_P(Values, WrittenTest, ::testing::ValuesIn(kWritten));

TEST(PropertyValueTest, ImagesAreFoundBesideTheRecording) {
    const QTemporaryDir folder;
    QImage tip(3, 2, QImage::Format_RGBA8888);
    tip.fill(Qt::red);
    ASSERT_TRUE(tip.save(folder.filePath(QStringLiteral("tip.png"))));
    Setting setting{QStringLiteral("maskImage"), QStringLiteral("tip.png"), 1, {}};
    const auto image = propertyValueFromSetting(named("maskImage"), setting, folder.path());
    ASSERT_TRUE(image) << image.problem().what.toStdString();
    EXPECT_EQ(image->value<QImage>().size(), QSize(3, 2));

    setting.value = QStringList{QStringLiteral("tip.png"), folder.filePath(QStringLiteral("tip.png"))};
    const auto images = propertyValueFromSetting(named("textureImages"), setting, folder.path());
    ASSERT_TRUE(images);
    EXPECT_EQ(images->value<QList<QImage>>().size(), 2);

    // A few bytes that name large images again and again.
    QImage large(5700, 5700, QImage::Format_Mono);
    large.fill(0);
    ASSERT_TRUE(large.save(folder.filePath(QStringLiteral("large.png"))));
    setting.value = QStringList(9, QStringLiteral("large.png"));
    const auto many = propertyValueFromSetting(named("textureImages"), setting, folder.path());
    EXPECT_TRUE(!many && many.problem().what.contains(QStringLiteral("pixels together")));

    for (const QString& text :
         {QStringLiteral("none.png"), QStringLiteral("/dev/zero: it is not a plain file")}) {
        const auto bad = propertyValueFromText(named("textureImages"), text.section(QLatin1Char(':'), 0, 0));
        ASSERT_FALSE(bad);
        EXPECT_TRUE(bad.problem().what.contains(QStringLiteral("cannot read the image ") + text));
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

TEST(PropertiesCommandTest, ListsEveryPropertyInBothForms) {
    const QByteArray text = propertiesAsText();
    const QJsonArray list = QJsonDocument::fromJson(propertiesAsJson()).array();
    ASSERT_EQ(std::size_t(list.size()), brushProperties().size());
    for (const QJsonValue& row : list) {
        const QString name = row[QStringLiteral("name")].toString();
        EXPECT_TRUE(text.contains("  " + name.toLatin1() + ' '));
        if (name == QLatin1String("radius")) {
            EXPECT_EQ(row[QStringLiteral("low")].toDouble(), 2);
            EXPECT_EQ(row[QStringLiteral("high")].toDouble(), 1280);
            EXPECT_EQ(row[QStringLiteral("default")].toDouble(), 32);
        }
    }
}

}  // namespace
}  // namespace dabcanvas::dabpaint
