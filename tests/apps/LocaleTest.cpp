// SPDX-License-Identifier: MIT
// Numbers are the same under a locale that writes 0,5 for a half.
#include "Recording/Numbers.h"
#include "apps/Program.h"

namespace dabcanvas::dabpaint {
namespace {

// Under one that the system has, or one compiled for the purpose.
TEST_F(ProgramTest, NumbersHaveAPointWhereTheLocaleWritesACommaForIt) {
    QProcess::execute("localedef", {"-i", "de_DE", "-f", "UTF-8", path("de_DE.UTF-8")});
    const QStringList comma{"LC_ALL=de_DE.UTF-8", "LOCPATH=" + _folder.path()};
    QProcess asked;
    asked.setEnvironment(QProcess::systemEnvironment() + comma);
    asked.start("locale", {"decimal_point"});
    if (!asked.waitForFinished() || asked.readAll() != ",\n")
        GTEST_SKIP() << "no locale with a decimal comma, and none can be made";
    const auto run = [&](const char* words, const QByteArray& input = {}) {
        return runProgram(QString::fromLatin1(words).split(QLatin1Char(' ')), input, comma);
    };
    EXPECT_TRUE(run("properties").out.contains("default 0.15\n"));
    const QByteArray half =
        R"({"strokes": [{"samples": [[0, 0], [0.5, 0]], "set": {"pointsDistanceEnabled": 0}}]})";
    EXPECT_TRUE(run("dabs - --header", half)
                    .out.startsWith("sample,x,y,radius,pressure,altitude,speed\n1,0.5,0,2,-1,0,"));
    EXPECT_TRUE(run("shapes -", "sample_id,x,y\na,1.5,2\n").out.startsWith("sample_id,"));
    for (const QByteArray& text :
         {QByteArray("0 1.5 2.25 5e-1\n"), half, QByteArray("<ink><trace>1.5 .25</trace></ink>")})
        EXPECT_EQ(QImage::fromData(run("paint - -o - --size 9x5 --set radius=2.5", text).out, "png").size(),
                  QSize(9, 5));
    expectOneLine(run("paint - -o -", "0 1,5 2 1\n"), 1, "");
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
