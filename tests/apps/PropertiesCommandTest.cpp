// SPDX-License-Identifier: MIT
#include "PropertiesCommand.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "Brushes/BrushProperties.h"
#include "PropertyReference.h"
#include "PropertySamples.h"

namespace dabcanvas::dabpaint {
namespace {

TEST(PropertiesCommandTest, ListsEveryPropertyInBothForms) {
    const QByteArray text = propertiesAsText();
    const QJsonArray list = QJsonDocument::fromJson(propertiesAsJson()).array();
    ASSERT_EQ(std::size_t(list.size()), brushProperties().size());
    for (const QJsonValue& row : list) {
        const QString name = row["name"].toString();
        EXPECT_TRUE(text.contains("  " + name.toLatin1() + ' '));
        if (name == QLatin1String("textureType")) {
            EXPECT_EQ(row["choices"][1]["name"].toString(), "soft disc");
        } else if (name == QLatin1String("radius")) {
            EXPECT_EQ(row["low"].toDouble(), 2);
            EXPECT_EQ(row["high"].toDouble(), 1280);
            EXPECT_EQ(row["default"].toDouble(), 32);
            EXPECT_EQ(row["unit"].toString(), "pixels");
        }
    }
}

// Pixels that anybody would see differ.
int pixelsApart(const QImage& a, const QImage& b) {
    int apart = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb one = a.pixel(x, y), other = b.pixel(x, y);
            apart += std::abs(qRed(one) - qRed(other)) + std::abs(qGreen(one) - qGreen(other)) +
                         std::abs(qBlue(one) - qBlue(other)) >
                     40;
        }
    }
    return apart;
}

TEST(PropertyReferenceTest, ShowsWhatEachPropertyDoes) {
    const QByteArray page = propertiesPage();
    for (const BrushProperty& property : brushProperties()) {
        SCOPED_TRACE(property.name);
        EXPECT_TRUE(page.contains(QByteArray("\n### ") + property.name + '\n'));
        const PropertySample& sample = propertySample(property);
        std::vector<QImage> shown;
        for (const QString& value : sample.invisible ? QStringList() : sample.valuesShown()) {
            const auto image = paintPropertySample(sample, value, {212, 100});
            ASSERT_TRUE(image) << image.problem().what.toStdString();
            for (const QImage& other : shown)
                EXPECT_GT(pixelsApart(*image, other), 100) << value.toStdString();
            shown.push_back(*image);
        }
        EXPECT_EQ(shown.empty(), sample.invisible != nullptr);
        EXPECT_TRUE(shown.empty() ||
                    shown[0] == *paintPropertySample(sample, sample.valuesShown()[0], {212, 100}));
    }
}

}  // namespace
}  // namespace dabcanvas::dabpaint
