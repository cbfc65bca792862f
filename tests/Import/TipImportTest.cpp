// SPDX-License-Identifier: MIT
// GIMP's brushes and pictures as tips and papers.
#include <gmock/gmock.h>

#include <QBuffer>

#include "Import/BrushImport.h"
#include "Import/GimpFiles.h"
#include "support/Named.h"

namespace dabcanvas {
namespace {

template <typename Value>
Value valueOf(const ImportedBrush& brush, BrushKey key, Value otherwise = {}) {
    for (const auto& [set, value] : brush.values) {
        if (set == key) {
            return std::get<Value>(value);
        }
    }
    return otherwise;
}

QByteArray png(const QImage& picture) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    return buffer.data();
}

QImage filled(QImage::Format format, const QColor& left, const QColor& right) {
    QImage picture(2, 1, format);
    picture.setPixelColor(0, 0, left);
    picture.setPixelColor(1, 0, right);
    return picture;
}

// What paints is the second of two pixels, in a square whose upper row they are.
struct TipCase : Named {
    QByteArray file;
    bool isColoured;
    float spacing;
    float radius;  // 0: not said
};

class TipKinds : public ::testing::TestWithParam<TipCase> {};

TEST_P(TipKinds, PaintWhereTheFileSaysSo) {
    QString problem;
    const auto brush = importTip(GetParam().file, &problem);
    ASSERT_TRUE(brush) << problem.toStdString();
    const auto tips = valueOf<QList<QImage>>(*brush, BrushKey::textureImages);
    ASSERT_EQ(tips.size(), 1);
    ASSERT_EQ(tips[0].size(), QSize(2, 2));
    EXPECT_EQ(tips[0].pixelColor(0, 0).alpha(), 0);
    EXPECT_EQ(tips[0].pixelColor(1, 0).alpha(), 255);
    EXPECT_EQ(tips[0].pixelColor(1, 1).alpha(), 0) << "below the tip there is nothing";
    EXPECT_EQ(valueOf<bool>(*brush, BrushKey::colorFul), GetParam().isColoured);
    EXPECT_EQ(tips[0].pixelColor(1, 0).red() > 100, GetParam().isColoured);
    EXPECT_EQ(valueOf<float>(*brush, BrushKey::pointsDistance), GetParam().spacing);
    EXPECT_EQ(valueOf<float>(*brush, BrushKey::radius), GetParam().radius);
}

const QByteArray kRed("\xFF\xFF\xFF\x00\xC8\x00\x00\xFF", 8);
INSTANTIATE_TEST_SUITE_P(
    All, TipKinds,
    ::testing::Values(
        TipCase{{"GreyVersion2"}, gbr({}), false, 0.25f, 2},
        TipCase{{"Version1"}, gbr({.version = 1}), false, 0, 2},
        TipCase{{"ColouredVersion2"}, gbr({.depth = 4, .pixels = kRed}), true, 0.25f, 2},
        TipCase{{"HalfFloats"},
                gbr({.version = 3, .depth = 18, .pixels = QByteArray("\x00\x00\x3C\x00", 4)}),
                false,
                0.25f,
                2},
        TipCase{
            {"DarkOfAnOpaquePicture"}, png(filled(QImage::Format_RGB32, Qt::white, Qt::black)), false, 0, 0},
        TipCase{{"AlphaOfAGreyPicture"},
                png(filled(QImage::Format_ARGB32, Qt::transparent, Qt::black)),
                false,
                0,
                0},
        TipCase{{"AlphaOfAColouredPicture"},
                png(filled(QImage::Format_ARGB32, Qt::transparent, Qt::red)),
                true,
                0,
                0}),
    byName);

TEST(TipImportTest, SeveralTipsArePickedAsTheFileSays) {
    const struct {
        const char* line;
        bool atRandom;
        LPControlParams control;  // as TextureIndexTingle() reads it: the first tip at full strength
        int lost;
    } kRows[] = {{"ncells:3 dim:1 rank0:3 sel0:random", true, {}, 0},
                 {"ncells:3 dim:1 rank0:3 sel0:pressure", false, {-1, 0, 0}, 0},
                 {"ncells:3 dim:1 rank0:3 sel0:velocity", false, {0, 0, 1}, 0},
                 {"ncells:3 dim:1 rank0:3 sel0:angular", true, {}, 1},
                 {"", true, {}, 1}};
    for (const auto& row : kRows) {
        SCOPED_TRACE(row.line);
        const auto brush = importTip(gih(3, row.line));
        ASSERT_TRUE(brush);
        EXPECT_EQ(brush->name, "Leaves");
        EXPECT_EQ(valueOf<QList<QImage>>(*brush, BrushKey::textureImages).size(), 3);
        EXPECT_EQ(valueOf<bool>(*brush, BrushKey::textureTingleEnabled), row.atRandom);
        const auto control = valueOf<LPControlParams>(*brush, BrushKey::textureControl);
        EXPECT_EQ(control.pressure, row.control.pressure);
        EXPECT_EQ(control.speed, row.control.speed);
        EXPECT_EQ(brush->lost.size(), row.lost);
    }
    const auto many = importTip(gih(19, "sel0:random"));
    ASSERT_TRUE(many);
    EXPECT_EQ(valueOf<QList<QImage>>(*many, BrushKey::textureImages).size(), 16);
    EXPECT_THAT(many->lost.join(' ').toStdString(), ::testing::HasSubstr("3 of its 19 tips"));
}

TEST(TipImportTest, TipsOfOneBrushKeepTheirSizesBesideEachOther) {
    const QByteArray large = gbr({.width = 1, .height = 5000, .pixels = QByteArray(5000, '\xFF')});
    const auto brush = importTip("Two\n2\n" + large + gbr({}));
    ASSERT_TRUE(brush);
    const auto tips = valueOf<QList<QImage>>(*brush, BrushKey::textureImages);
    EXPECT_EQ(tips[0].size(), tips[1].size());
    EXPECT_LE(tips[0].height(), 2048) << "no tip is larger than what is painted with";
    EXPECT_EQ(valueOf<float>(*brush, BrushKey::radius), 5000);
}

TEST(TipImportTest, WhitePaperLetsPaintThrough) {
    const QByteArray files[] = {gbr({}), png(filled(QImage::Format_RGB32, Qt::black, Qt::white))};
    for (const QByteArray& file : files) {
        const auto brush = importPaper(file);
        ASSERT_TRUE(brush);
        EXPECT_TRUE(valueOf<bool>(*brush, BrushKey::needMaskTexture));
        const auto paper = valueOf<QImage>(*brush, BrushKey::maskImage);
        ASSERT_EQ(paper.size(), QSize(2, 1));
        EXPECT_EQ(paper.pixelColor(0, 0), QColor(Qt::black));
        EXPECT_EQ(paper.pixelColor(1, 0), QColor(Qt::white));
    }
}

// Files that claim more than they hold, and such as are nothing at all. What they claim must not be allocated, which the
// sanitizers' run and the fuzzer watch.
TEST(TipImportTest, DamagedFilesAreRefusedInWords) {
    const QByteArray whole = gbr({});
    QByteArray longName = whole, noSize = whole, shortHeader = whole;
    longName.replace(0, 4, bigEndian({4000}));
    noSize.replace(8, 4, bigEndian({0}));
    shortHeader.replace(0, 4, bigEndian({27}));
    const struct {
        QByteArray file;
        const char* told;
    } kRows[] = {{"", "is empty"},
                 {"no brush", "not an image"},
                 {whole.chopped(1), "ends inside a tip"},
                 {gbr({.width = 10000, .height = 10000, .depth = 4}), "ends inside a tip"},
                 {gih(3, "").chopped(1), "ends inside a tip"},
                 {"Leaves\n4000000000\n" + whole, "ends inside a tip"},
                 {longName, "ends inside a tip"},
                 {noSize, "not an image"},
                 {shortHeader, "not an image"},
                 {gbr({.depth = 3}), "not an image"},
                 {gbr({.width = 10001}), "not an image"}};
    for (const auto& row : kRows) {
        for (const auto& import : {importTip, importBrush, importPaper}) {
            QString problem;
            EXPECT_FALSE(import(row.file, &problem)) << row.file.left(60).toStdString();
            if (import != importPaper) {
                EXPECT_THAT(problem.toStdString(), ::testing::HasSubstr(row.told));
            }
            EXPECT_FALSE(problem.isEmpty());
        }
    }
}

}  // namespace
}  // namespace dabcanvas
