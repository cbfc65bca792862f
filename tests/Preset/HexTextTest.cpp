// SPDX-License-Identifier: MIT
#include "Preset/HexText.h"

#include <gtest/gtest.h>

namespace {

TEST(HexText, Numbers) {
    const struct {
        qint64 value;
        const char *digits, *digit;
    } rows[] = {{-3, "0", "0"}, {0, "0", "0"}, {255, "FF", "F"}, {4096, "1000", "F"}};
    for (const auto& row : rows) {
        EXPECT_EQ(HexText::hexStringWithValue(row.value), QLatin1String(row.digits));
        EXPECT_EQ(HexText::hexCharWithValue(row.value), QLatin1String(row.digit));
    }
    EXPECT_EQ(HexText::valueWithHexString("ff"), 255);
    EXPECT_EQ(HexText::valueWithHexString(QString()), 0);
    EXPECT_EQ(HexText::hexValue("1x0"), 256);  // no digit counts as 0
    EXPECT_EQ(HexText::valueWithHexChar("c"), 12);
    EXPECT_EQ(HexText::valueWithHexChar("12"), 0);
}

TEST(HexText, TextComesBackUpToU00FF) {
    QString text;
    for (char16_t unit = 0; unit <= 0xFF; ++unit) {
        text += QChar(unit);
    }
    EXPECT_EQ(HexText::baseString(HexText::hexString(text)), text);
    EXPECT_EQ(HexText::hexString("A\u00E9\n"), "41E90A");
    // Deliberate: three digits for U+0153, not padded.
    EXPECT_EQ(HexText::hexString("\u0153\u4E00"), "1534E00");
    EXPECT_EQ(HexText::baseString("41e"), "A");
    EXPECT_EQ(HexText::baseString("4"), QString());
}

}  // namespace
