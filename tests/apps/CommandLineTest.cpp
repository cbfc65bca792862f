// SPDX-License-Identifier: MIT
// Command lines: what is asked for, and which are refused with what words.
#include "CommandLine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Usage.h"

namespace dabcanvas::dabpaint {
namespace {

CommandLine readWords(const char* words) {
    const QString text = QString::fromUtf8(words);
    return readCommandLine(text.isEmpty() ? QStringList() : text.split(QLatin1Char(' ')));
}

TEST(CommandLineTest, PaintTakesItsOptionsInAnyOrder) {
    const auto line = readWords(
        "paint a.dat --size=30x40 --set radius=5 -o out.png --set textureImages=a=b.png,c.png b.json "
        "--background #10203040 --repeatable --most-dabs 9 --stats -- -odd.dat");
    const auto* paint = std::get_if<PaintOptions>(&line);
    ASSERT_NE(paint, nullptr);
    EXPECT_EQ(paint->recordings,
              (QStringList{QStringLiteral("a.dat"), QStringLiteral("b.json"), QStringLiteral("./-odd.dat")}));
    EXPECT_EQ(paint->output, QStringLiteral("out.png"));
    EXPECT_EQ(paint->size, QSize(30, 40));
    ASSERT_EQ(paint->settings.size(), 2u);
    EXPECT_EQ(paint->settings[1].property, QStringLiteral("textureImages"));
    EXPECT_EQ(paint->settings[1].value, QStringLiteral("a=b.png,c.png"));
    EXPECT_EQ(paint->background, QColor(0x10, 0x20, 0x30, 0x40));
    EXPECT_TRUE(paint->repeatable && paint->stats && paint->mostDabs == 9);
}

TEST(CommandLineTest, PresetCommandsTakeTheirOwnOptions) {
    const auto made = readWords("preset make --set radius=5 --name= -o a.xbf --brush b.xbf");
    const auto* make = std::get_if<PresetMakeOptions>(&made);
    ASSERT_NE(make, nullptr);
    EXPECT_EQ(make->output + make->name + make->brush, QStringLiteral("a.xbfb.xbf"));
    EXPECT_EQ(make->settings.size(), 1u);
    const auto previewed = readWords("preset preview a.xbf --sheet b.xbf --size 40x30 -o sheet.png");
    const auto* preview = std::get_if<PresetPreviewOptions>(&previewed);
    ASSERT_NE(preview, nullptr);
    EXPECT_EQ(preview->files.size(), 2);
    EXPECT_EQ(preview->size, QSize(40, 30));
    EXPECT_TRUE(preview->sheet);
}

TEST(CommandLineTest, HelpOfEveryCommand) {
    for (const QString& name : commandNames()) {
        for (const char* form : {"help %1", "%1 --help", "%1 -h"}) {
            const auto line = readWords(qPrintable(QString::fromUtf8(form).arg(name)));
            const auto* help = std::get_if<HelpOptions>(&line);
            ASSERT_NE(help, nullptr) << form;
            EXPECT_EQ(help->topic, name) << form;
        }
        EXPECT_TRUE(usageText(name).contains("EXIT STATUS\n")) << name.toStdString();
    }
    for (const char* option : {"--size", "--set", "--background", "--repeatable", "--stats", "RECORDINGS"})
        EXPECT_TRUE(usageText(QStringLiteral("paint")).contains(option)) << option;
}

struct BadLine {
    const char* words;
    const char* message;
};

class BadLineTest : public ::testing::TestWithParam<BadLine> {};

TEST_P(BadLineTest, IsRefused) {
    const auto line = readWords(GetParam().words);
    const auto* fault = std::get_if<UsageFault>(&line);
    ASSERT_NE(fault, nullptr) << GetParam().words;
    EXPECT_THAT(fault->what.toStdString(), ::testing::HasSubstr(GetParam().message));
}

const BadLine kBadLines[] = {
    {"", "a command is missing"},
    {"pain", "did you mean paint?"},
    {"help pait", "did you mean paint?"},
    {"paint -o a.png", "RECORDING is required; see dabpaint help paint"},
    {"paint a.dat", "--output is required"},
    {"paint a.dat -o", "--output: 1 required value missing"},
    {"paint a.dat --output=", "--output: the name is empty"},
    {"paint a.dat -o b.png --undo -1", "--undo: expected a whole number of at least 0"},
    {"paint a.dat -o b.png --most-dabs 0", "--most-dabs: expected a whole number of at least 1"},
    {"paint a.dat -o b.png --siez 4x4", "unknown option --siez; did you mean --size"},
    {"paint a.dat -o b.png --stats=yes", "--stats takes no value"},
    {"paint a.dat -o - --stats", "standard output"},
    {"paint a.dat -o b.png --size 0x5", "at least 1 pixel"},
    {"paint a.dat -o b.png --size -3x5", "WIDTHxHEIGHT"},
    {"paint a.dat -o b.png --size 3x", "WIDTHxHEIGHT"},
    {"paint a.dat -o b.png --size 3x4x5", "WIDTHxHEIGHT"},
    {"paint a.dat -o b.png --size 16385x5", "too large"},
    {"paint a.dat -o b.png --size 99999999999999999999x5", "WIDTHxHEIGHT"},
    {"paint a.dat -o b.png --set radius", "PROPERTY=VALUE"},
    {"paint a.dat -o b.png --set =3", "PROPERTY=VALUE"},
    {"paint a.dat -o b.png --background #12", "--background: expected #rrggbb"},
    {"paint a.dat -o b.png --brush=", "brush's name is empty"},
    {"preset", "show, make or preview"},
    {"preset shw a.xbf", "\"preset shw\"; did you mean preset show"},
    {"preset show", "FILE is required; see dabpaint help preset"},
    {"preset show a.xbf --name b", "unknown option --name"},
    {"preset make -o a.xbf", "--name is required"},
    {"preset make --name a", "--output is required"},
    {"preset make --name a -o -", "not to standard output"},
    {"preset make b.xbf -o a.xbf --name a", "takes no \"b.xbf\""},
    {"preset preview -o a.png", "FILE is required"},
    {"dabs", "INPUT is required"},
    {"dabs a.json b.json", "dabs takes no \"b.json\""},
    {"dabs a.json --heder", "did you mean --header"},
    {"properties x", "takes no"},
};
INSTANTIATE_TEST_SUITE_P(Lines, BadLineTest, ::testing::ValuesIn(kBadLines));

}  // namespace
}  // namespace dabcanvas::dabpaint
