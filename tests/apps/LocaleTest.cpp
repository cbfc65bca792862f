// SPDX-License-Identifier: MIT
// Numbers are the same under a locale that writes 0,5 for a half.
#include <gtest/gtest.h>

#include <QProcess>
#include <QTemporaryDir>
#include <clocale>
#include <cstdio>

#include "DabsCommand.h"
#include "Numbers.h"
#include "PropertyValue.h"
#include "Recording.h"

namespace dabcanvas::dabpaint {
namespace {

// Selects a comma locale for one test: one that the system has, or one compiled for the purpose.
class LocaleTest : public ::testing::Test {
protected:
    void SetUp() override {
        if (selectOne())
            return;
        const QString path = _folder.filePath("de_DE.UTF-8");
        QProcess::execute("localedef", {"-i", "de_DE", "-f", "UTF-8", path});
        qputenv("LOCPATH", _folder.path().toLocal8Bit());
        if (!selectOne())
            GTEST_SKIP() << "no locale with a decimal comma, and none can be made";
    }
    void TearDown() override {
        std::setlocale(LC_ALL, "C");
        qunsetenv("LOCPATH");
    }

private:
    static bool selectOne() {
        for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "ru_RU.UTF-8"}) {
            if (std::setlocale(LC_ALL, name))
                return true;
        }
        return false;
    }

    QTemporaryDir _folder;
};

TEST_F(LocaleTest, ReadingAndWritingKeepTheDecimalPoint) {
    char half[8];
    std::snprintf(half, sizeof half, "%.1f", 0.5);
    ASSERT_STREQ(half, "0,5");

    const auto rows = readRecording("0 1.5 2.25 5e-1\n");
    ASSERT_TRUE(rows);
    EXPECT_EQ(rows->strokes.at(0).samples.at(0).x, 1.5);
    EXPECT_FALSE(readRecording("0 1,5 2 1\n"));
    const auto json = readRecording(R"({"strokes": [{"samples": [[1.5, 2]]}]})");
    ASSERT_TRUE(json);
    EXPECT_EQ(json->strokes.at(0).samples.at(0).x, 1.5);
    const auto ink = readRecording("<ink><trace>1.5 .25</trace></ink>");
    ASSERT_TRUE(ink);
    EXPECT_EQ(ink->strokes.at(0).samples.at(0).y, 0.25);

    const BrushProperty* radius = brushPropertyNamed(u"radius");
    EXPECT_EQ((*propertyValueFromText(*radius, "2.5")).toFloat(), 2.5f);
    EXPECT_TRUE(defaultText(*brushPropertyNamed(u"pointsDistance")).startsWith("0.15"));

    const auto input = readDabsInput(
        R"({"strokes": [{"set": {"pointsDistanceEnabled": false}, "samples": [[0, 0], [0.5, 0]], "end": false}]})");
    ASSERT_TRUE(input);
    std::string text;
    writeDabs(*input, [&text](std::string_view piece) { text += piece; });
    EXPECT_EQ(text.rfind("1,0.5,0,12,", 0), 0u) << text;
}

TEST(NumbersTest, NineDigitsTellFloatsApart) {
    const float values[] = {0.1f, 1.0f / 3, 1e-30f, 3.4e38f, -0.0f, 16777217.0f, 100000.0f, 1e9f};
    const char* expected[] = {"0.100000001", "0.333333343", "1e-30",  "3.39999995e+38",
                              "-0",          "16777216",    "100000", "1e+09"};
    for (std::size_t i = 0; i < std::size(values); ++i) {
        std::string text;
        appendNumber(text, values[i]);
        EXPECT_EQ(text, expected[i]);
    }
}

TEST(NumbersTest, WholeTextsOnly) {
    for (const char* bad :
         {"", " 1", "1 ", "+1", "1e", "0x10", "nan", "inf", "-", ".", "1e999", "1,5", "--1"})
        EXPECT_FALSE(numberFromText(bad)) << bad;
    EXPECT_EQ(numberFromText("1e-999"), 0.0);
    EXPECT_EQ(numberFromText("-.5"), -0.5);
}

}  // namespace
}  // namespace dabcanvas::dabpaint
