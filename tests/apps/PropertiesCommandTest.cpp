// SPDX-License-Identifier: MIT
#include "PropertiesCommand.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "Brushes/BrushProperties.h"

namespace dabcanvas::dabpaint {
namespace {

TEST(PropertiesCommandTest, ListsEveryPropertyInBothForms) {
    const QByteArray text = propertiesAsText();
    const QJsonArray list = QJsonDocument::fromJson(propertiesAsJson()).array();
    ASSERT_EQ(std::size_t(list.size()), brushProperties().size());
    for (const QJsonValue& row : list) {
        const QString name = row["name"].toString();
        EXPECT_TRUE(text.contains("  " + name.toLatin1() + ' '));
        if (name == QLatin1String("radius")) {
            EXPECT_EQ(row["low"].toDouble(), 2);
            EXPECT_EQ(row["high"].toDouble(), 1280);
            EXPECT_EQ(row["default"].toDouble(), 32);
        }
    }
}

}  // namespace
}  // namespace dabcanvas::dabpaint
