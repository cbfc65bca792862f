// SPDX-License-Identifier: MIT
// Colours as numbers and as places on the wheel, and palettes as files: without a window.
#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <cmath>

#include "Colour/ColorChoice.h"
#include "Colour/ColorWheel.h"
#include "Colour/PaletteLibrary.h"
#include "Colour/RecentColors.h"
#include "support/Files.h"

namespace dabcanvas::dabpainter {

namespace {

struct Known {
    const char* hex;
    double lightness, chroma, hue;
};
// As CSS Color 4 gives them.
constexpr Known kKnown[] = {
    {"#ff0000", 0.62796, 0.25768, 29.234},
    {"#00ff00", 0.86644, 0.29483, 142.495},
    {"#0000ff", 0.45201, 0.31321, 264.052},
    {"#ffff00", 0.96798, 0.21101, 109.769},
    {"#808080", 0.59987, 0, 0},
    {"#663399", 0.44027, 0.16030, 303.373},
    {"#ffffff", 1, 0, 0},
    {"#000000", 0, 0, 0},
};

TEST(OkLchTest, MeetsTheKnownValuesAndComesBack) {
    for (const Known& known : kKnown) {
        SCOPED_TRACE(known.hex);
        const OkLch shade = okLchOf(QColor(known.hex));
        EXPECT_NEAR(shade.lightness, known.lightness, 1e-4);
        EXPECT_NEAR(shade.chroma, known.chroma, 1e-4);
        EXPECT_NEAR(shade.hue, known.hue, 0.02);
    }
    for (int i = 0; i < 4096; ++i) {
        const QColor color((i >> 8) * 17, (i >> 4 & 15) * 17, (i & 15) * 17);
        const OkLch shade = okLchOf(color);
        EXPECT_EQ(colorOf(insideGamut(shade)).rgb(), color.rgb()) << color.name().toStdString();
        const QRgb quick = ShadeRow(shade.lightness, shade.hue).at(shade.chroma);
        EXPECT_EQ(quick, color.rgb()) << color.name().toStdString();
    }
}

// What cannot be shown loses chroma alone, little by little.
TEST(OkLchTest, NoColourLeavesTheScreenOrJumps) {
    for (double hue = 0; hue < 360; hue += 5) {
        double before = 0;
        for (double lightness = 0.02; lightness <= 1.001; lightness += 0.004) {
            const OkLch shade = insideGamut({std::min(lightness, 1.0), kMostChroma, hue});
            const OkLch shown = okLchOf(colorOf(shade));
            EXPECT_NEAR(shown.lightness, shade.lightness, 3e-3) << hue;
            EXPECT_NEAR(shown.chroma, shade.chroma, 5e-3) << hue << ", " << lightness;
            EXPECT_LT(std::abs(shade.chroma - before), 0.05) << hue << ", " << lightness;
            before = shade.chroma;
        }
    }
}

TEST(ColorWheelTest, EveryShadeHasOnePlaceAndEveryPlaceAShade) {
    for (const Known& known : kKnown) {
        const OkLch shade = okLchOf(QColor(known.hex));
        const ShadeMap map(shade.hue);
        const QPointF place = map.placeOf(shade);
        EXPECT_TRUE(map.contains(place, 1e-3)) << known.hex;
        EXPECT_EQ(colorOf(map.shadeAt(place)).rgb(), QColor(known.hex).rgb());
        EXPECT_TRUE(map.contains(map.placeOf(map.shadeAt({5, -0.2})), 1e-3)) << "the nearest one";
    }
    const OkLch blue = okLchOf(Qt::blue);
    const QPointF corner = ShadeMap(blue.hue).placeOf(blue) - ShadeMap(blue.hue).pure();
    EXPECT_LT(std::hypot(corner.x(), corner.y()), 0.02);
}

TEST(ColorWheelTest, ImagesAreSmoothAndEndSoftly) {
    const ShadeMap map(264);
    const QImage image = shadeImage(map, 240);
    int soft = 0;
    for (int y = 1; y < 240; ++y) {
        for (int x = 1; x < 240; ++x) {
            const QRgb here = image.pixel(x, y), left = image.pixel(x - 1, y), above = image.pixel(x, y - 1);
            soft += qAlpha(here) > 0 && qAlpha(here) < 255 ? 1 : 0;
            if (qAlpha(here) < 255 || qAlpha(left) < 255 || qAlpha(above) < 255 || y < 8 || y > 220)
                continue;  // towards black and white all shades of a line meet
            for (const QRgb other : {left, above})
                EXPECT_LE(std::abs(qRed(here) - qRed(other)) + std::abs(qGreen(here) - qGreen(other)) +
                              std::abs(qBlue(here) - qBlue(other)),
                          24)
                    << x << ", " << y;
        }
    }
    EXPECT_GT(soft, 200);
}

TEST(ColorChoiceTest, KeepsWhatWasAskedFor) {
    ColorChoice choice;
    choice.setColor(QColor("#663399"));
    const OkLch before = choice.shade();
    choice.setLightness(1);
    EXPECT_EQ(choice.color().rgb(), qRgb(255, 255, 255));
    choice.setLightness(before.lightness);
    EXPECT_EQ(choice.color().rgb(), QColor("#663399").rgb());
    choice.setColor(QColor("#808080"));
    EXPECT_NEAR(choice.shade().hue, before.hue, 0.1) << "a grey has none of its own";
    choice.setHue(-10);
    EXPECT_NEAR(choice.shade().hue, 350, 1e-9);
}

TEST(RecentColorsTest, TheNewestOnceEachAndNoMoreThanSixteen) {
    RecentColors recent;
    for (int i = 0; i < 20; ++i)
        EXPECT_TRUE(recent.add(QColor(i, 0, 0)));
    EXPECT_FALSE(recent.add(QColor(19, 0, 0)));
    EXPECT_TRUE(recent.add(QColor(10, 0, 0)));
    ASSERT_EQ(recent.all().size(), RecentColors::kMost);
    EXPECT_EQ(recent.all()[0], qRgb(10, 0, 0));
    EXPECT_EQ(recent.all()[1], qRgb(19, 0, 0));
    RecentColors read;
    read.fromTexts(recent.toTexts() + QStringList{"nonsense"});
    EXPECT_EQ(read.all(), recent.all());
    const std::pair<const char*, QRgb> texts[] = {
        {" #FF8800 ", qRgb(255, 136, 0)}, {"f80", qRgb(255, 136, 0)}, {"Teal", qRgb(0, 128, 128)}};
    for (const auto& [text, rgb] : texts)
        EXPECT_EQ(colorOfText(text).rgb(), rgb) << text;
    for (const char* text : {"", "#12", "12345", "#80ff0000", "no colour", "transparent"})
        EXPECT_FALSE(colorOfText(text).isValid()) << text;
}

// ---- Palettes

TEST(GimpPaletteTest, ReadsWhatIsOneAndSaysWhyNot) {
    const Palette two{"A b", 3, {{qRgb(1, 2, 3), "one 2"}, {qRgb(255, 0, 40), ""}}};
    const QByteArray head = "GIMP Palette\n";
    const QByteArray good[] = {
        head + "Name:  A  b\nColumns: 3\n#\n  1   2   3\tone 2\n255 0 40\n",
        "\xef\xbb\xbfGIMP Palette\r\nName: A b\r\nColumns:3\r\n\r\n1 2 3 one 2\r\n# x\r\n255\t0\t40",
        writeGimpPalette(two),
    };
    for (const QByteArray& bytes : good) {
        QString problem;
        EXPECT_EQ(readGimpPalette(bytes, problem), two) << bytes.toStdString();
        EXPECT_TRUE(problem.isEmpty());
    }
    const std::pair<QByteArray, const char*> bad[] = {
        {"", "does not begin"},
        {"JASC-PAL\n0100\n", "does not begin"},
        {head + "1 2\n", "line 2"},
        {head + "\n0 0 0\n0 256 0\n", "line 4"},
        {head + "1 2 3x\n", "line 2"},
        {head + "-1 2 3\n", "line 2"},
        {head + "0 0 0\nName: late\n", "line 3"},
        {head + QByteArray("0 0 0\n").repeated(kMostPaletteColors + 1), "more than"},
        {head + QByteArray(kMostPaletteBytes, '#'), "too large"},
    };
    for (const auto& [bytes, why] : bad) {
        QString problem;
        EXPECT_FALSE(readGimpPalette(bytes, problem)) << bytes.left(40).toStdString();
        EXPECT_TRUE(problem.contains(why)) << problem.toStdString();
    }
}

TEST(PaletteLibraryTest, ChangesOfWhatIsInstalledAreTheUsersOwn) {
    const QTemporaryDir folder;
    const QString own = folder.filePath("own"), installed = folder.filePath("installed");
    QDir().mkpath(installed);
    PaletteLibrary library(own, {installed});
    const Palette palette{"Earth", 0, {{qRgb(120, 80, 40), "Umber"}}};
    ASSERT_EQ(PaletteLibrary::exportTo(palette, installed + "/earth.gpl"), "");
    library.refresh();
    ASSERT_EQ(library.all().size(), 1u);
    const PaletteFile first = library.all()[0];
    EXPECT_FALSE(first.own);
    Palette more = palette;
    more.colors.push_back({qRgb(1, 2, 3), QString()});
    QString now;
    ASSERT_EQ(library.replace(first, more, now), "");
    ASSERT_EQ(library.all().size(), 1u);
    EXPECT_EQ(library.find(now)->palette, more);
    ASSERT_EQ(library.remove(*library.find(now)), "");
    EXPECT_EQ(library.all()[0].palette, palette) << "back again";

    QString same, other;
    EXPECT_EQ(library.importFile(installed + "/earth.gpl", same), "");
    EXPECT_EQ(same, library.all()[0].path) << "it is there already";
    EXPECT_EQ(library.add({"Earth", 0, {}}, other), "");
    EXPECT_NE(QFileInfo(other).fileName(), "earth.gpl") << "another of the name is another";
    QFile bad(folder.filePath("bad.gpl"));
    ASSERT_TRUE(bad.open(QIODevice::WriteOnly) && bad.write("no palette") > 0);
    bad.close();
    EXPECT_TRUE(library.importFile(bad.fileName(), same).contains("bad.gpl"));
}

}  // namespace

}  // namespace dabcanvas::dabpainter
