// SPDX-License-Identifier: MIT
// Command lines: what is asked for, and which are refused with what words.
#include "CommandLine.h"

#include <gmock/gmock.h>

#include "Usage.h"
#include "support/Rows.h"

namespace dabcanvas::dabpaint {
namespace {

CommandLine readWords(const char* words) {
    const QString text = QString::fromUtf8(words);
    return readCommandLine(text.isEmpty() ? QStringList() : text.split(QLatin1Char(' ')));
}

TEST(CommandLineTest, PaintTakesItsOptionsInAnyOrder) {
    const auto line = readWords(
        "paint a.dat --size=30x40 --set radius=5 -o out.png --set textureImages=a=b.png,c.png b.json "
        "--background #10203040 --repeatable --most-dabs 9 --surface gpu --canvas-depth 16 --stats -- "
        "-odd.dat");
    const auto* paint = std::get_if<PaintOptions>(&line);
    ASSERT_NE(paint, nullptr);
    EXPECT_EQ(paint->recordings, (QStringList{"a.dat", "b.json", "./-odd.dat"}));
    EXPECT_EQ(paint->output, "out.png");
    EXPECT_EQ(paint->size, QSize(30, 40));
    ASSERT_EQ(paint->settings.size(), 2u);
    EXPECT_EQ(paint->settings[1].property, "textureImages");
    EXPECT_EQ(paint->settings[1].value, "a=b.png,c.png");
    EXPECT_EQ(paint->background, QColor(0x10, 0x20, 0x30, 0x40));
    EXPECT_TRUE(paint->repeatable && paint->stats && paint->mostDabs == 9);
    EXPECT_EQ(paint->surface.kind, SurfaceKind::gpu);
    EXPECT_EQ(paint->surface.canvasDepth, 16);
}

TEST(CommandLineTest, PresetCommandsTakeTheirOwnOptions) {
    const auto made = readWords("preset make --set radius=5 --name= -o a.xbf --brush b.xbf");
    const auto* make = std::get_if<PresetMakeOptions>(&made);
    ASSERT_NE(make, nullptr);
    EXPECT_EQ(make->output + make->name.value_or("none") + make->brush, "a.xbfb.xbf");
    EXPECT_EQ(make->settings.size(), 1u);
    const auto previewed = readWords("preset preview a.xbf b.xbf --size 40x30 -o previews");
    const auto* preview = std::get_if<PresetPreviewOptions>(&previewed);
    ASSERT_NE(preview, nullptr);
    EXPECT_EQ(preview->files.size(), 2);
    EXPECT_EQ(preview->size, QSize(40, 30));
    const auto compared = readWords("preset sheet a.xbf --across 3 b.xbf -o sheet.png --set flow=1");
    const auto* sheet = std::get_if<PresetSheetOptions>(&compared);
    ASSERT_NE(sheet, nullptr);
    EXPECT_EQ(sheet->across * 100 + sheet->files.size() * 10 + int(sheet->settings.size()), 321);
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
}

TEST(CommandLineTest, WrongOnesAreRefused) {
    for (const QStringList& row : rowsOf("commands/refused.txt")) {
        const auto line = readWords(qPrintable(row[0]));
        const auto* fault = std::get_if<UsageFault>(&line);
        ASSERT_NE(fault, nullptr) << qPrintable(row[0]);
        EXPECT_THAT(fault->what.toStdString(), ::testing::HasSubstr(row[1].toStdString()));
    }
}

}  // namespace
}  // namespace dabcanvas::dabpaint
