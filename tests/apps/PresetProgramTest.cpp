// SPDX-License-Identifier: MIT
// Brush presets from the command line: made, shown, painted with, and refused.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cmath>
#include <map>

#include "Import/GimpFiles.h"
#include "Preset/QDBrushManager.h"
#include "apps/Program.h"

namespace dabcanvas::dabpaint {
namespace {

class PresetProgramTest : public ProgramTest {
protected:
    void SetUp() override {
        const Ended made = make("red.xbf", {"radius=24", "minRadius=1", "hardness=1", "renderColor=#ff0000"});
        ASSERT_EQ(made.status, 0) << made.err.constData();
        write("cut.xbf", contentOf(path("red.xbf")).left(400));
        write("text.xbf", "hello");
    }
    Ended make(const char* name, const QStringList& settings) {
        QStringList words{"preset", "make", "-o", path(name), "--name", QLatin1String(name)};
        for (const QString& setting : settings)
            words << "--set" << setting;
        return runProgram(words);
    }
    Ended preset(const char* words, const QStringList& files) {
        return runProgram(("preset " + QLatin1String(words)).split(QLatin1Char(' ')) + files);
    }
    // The colour amid a stroke of this recording.
    QColor painted(const QByteArray& recording, const QStringList& options = {}) {
        const Ended ended = runProgram(
            QStringList{"paint", write("r.json", recording), "-o", path("out.png"), "--size", "100x60"} +
            options);
        EXPECT_EQ(ended.status, 0) << ended.err.constData();
        return QImage(path("out.png")).pixelColor(50, 30);
    }
};

const QByteArray kLine = R"("samples": [[20, 30, 1, 0], [40, 30, 1, 0], [60, 30, 1, 0], [80, 30, 1, 0]])";

TEST_F(PresetProgramTest, ShowsWhatWasMade) {
    const QString tip = savedPicture(path("tip.png"), Qt::black, {12, 10});
    const Ended made =
        make("b.xbf", QStringList{QString("textureImages=%1,%1").arg(tip), "maskImage=" + tip, "radius=7.5",
                                  "radiusControl=0.5,0.25,-1", "moveRadianEnable=yes"});
    ASSERT_EQ(made.status, 0) << made.err.constData();
    const Ended text = preset("show", {path("b.xbf")});
    EXPECT_THAT(text.out.toStdString(), ::testing::HasSubstr("b.xbf: \"b.xbf\", version 200\n"));
    const auto file =
        QJsonDocument::fromJson(preset("show --json", {path("b.xbf")}).out).array().at(0).toObject();
    EXPECT_TRUE(file["problem"].isNull());
    std::multimap<QString, QJsonValue> values;
    const auto brush = file["brushes"].toArray().at(0).toObject();
    for (const QJsonValue& record : brush["records"].toArray())
        values.emplace(record["property"].toString() + record["part"].toString(), record["value"]);
    const QJsonValue image = values.find("textureImages")->second;
    EXPECT_EQ(values.count("textureImages"), 2u);
    EXPECT_EQ(image["width"].toInt(), 12);
    EXPECT_EQ(values.find("maskImage")->second, image);
    const std::pair<const char*, QJsonValue> kExpected[] = {{"radius", 7.5},
                                                            {"radiusControlpressure", 0.5},
                                                            {"radiusControlaltitude", 0.25},
                                                            {"radiusControlspeed", -1},
                                                            {"moveRadianEnable", true},
                                                            {"textureType", 0}};
    for (const auto& [name, value] : kExpected)
        EXPECT_EQ(values.find(QLatin1String(name))->second, value) << name;
}

TEST_F(PresetProgramTest, APresetSaysWhatItIs) {
    const QString from = path("a.xbf"), derived = path("b.xbf"), author = QString::fromUtf8("山田 Ünal");
    const QStringList make{"preset", "make", "--name", "A", "-o"};
    ASSERT_EQ(runProgram(make + QStringList{from, "--tags", " pencil,, dry ", "--about", "For sketches.",
                                            "--author", author, "--licence", "CC0-1.0"})
                  .status,
              0);
    ASSERT_EQ(runProgram(make + QStringList{derived, "--brush", from, "--about", "Softer."}).status, 0);
    for (const auto& [file, about] : {std::pair(from, "For sketches."), std::pair(derived, "Softer.")}) {
        const auto shown = QJsonDocument::fromJson(preset("show --json", {file}).out)[0]["brushes"]
                               .toArray()
                               .at(0)
                               .toObject();
        EXPECT_EQ(shown["tags"], "pencil, dry");
        EXPECT_EQ(shown["about"], about);
        EXPECT_EQ(shown["author"], author);
        EXPECT_EQ(shown["licence"], "CC0-1.0");
        EXPECT_EQ(preset("show", {file}).out.count("unknown"), 0);
        EXPECT_EQ(painted("{\"brush\": \"" + QFileInfo(file).fileName().toUtf8() + "\", \"strokes\": [{" +
                          kLine + "}]}")
                      .alpha(),
                  255);
    }
}

TEST_F(PresetProgramTest, ShowTellsWhatCouldBeReadAndThenTheDamage) {
    const Ended ended = preset("show", {path("cut.xbf"), path("text.xbf"), path("red.xbf"), _folder.path()});
    EXPECT_EQ(ended.status, 1);
    EXPECT_EQ(ended.out.count("renderColor                   #ff0000"), 2);
    EXPECT_EQ(ended.err.count('\n'), 3) << ended.err.constData();
    EXPECT_THAT(ended.err.toStdString(), ::testing::ContainsRegex("cut.xbf: record [0-9]+ of brush 1 of 1"));
    EXPECT_THAT(ended.err.toStdString(), ::testing::HasSubstr("text.xbf: this is not an XBF file"));
}

TEST_F(PresetProgramTest, BrushesOfOtherProgramsBecomePresets) {
    const QString tip = write("leaf.gbr", gbr({.width = 1, .height = 1, .pixels = "\xFF"}));
    const QByteArray myb = R"({"version": 3, "settings": {"opaque_multiply": {"base_value": 1, "inputs": {}},
        "opaque": {"base_value": 1, "inputs": {"direction": [[0, 0], [180, -0.2]]}},
        "of\n2 lines": {"base_value": 1}}})";
    const QString pen = write("pen.myb", myb);
    write("wash.myb", myb);
    const auto nameIn = [&](const char* file) {
        const QByteArray shown = preset("show", {path(file)}).out;
        return shown.mid(shown.indexOf('"'), shown.indexOf(',') - shown.indexOf('"'));
    };
    EXPECT_EQ(run("preset make -o %leaf.xbf --tip %leaf.gbr --set radius=20").status, 0);
    EXPECT_EQ(nameIn("leaf.xbf"), "\"Leaf\"");
    const Ended ended = run("preset import %pen.myb -o %pen.xbf");
    EXPECT_EQ(ended.status, 0) << ended.err.constData();
    const QByteArray lost = pen.toUtf8() + ": not carried over: the ";
    EXPECT_EQ(ended.out, lost + "unknown setting of 2 lines\n" + lost + "curve of opacity over direction\n");
    EXPECT_EQ(nameIn("pen.xbf"), "\"pen\"");
    for (const char* brush : {"leaf.xbf", "pen.xbf"}) {
        const QColor paint =
            painted(R"({"brush": ")" + QByteArray(brush) + R"(", "strokes": [{)" + kLine + "}]}");
        EXPECT_LT(paint.lightness(), 80) << brush;
    }
    QDir(_folder.path()).mkdir("all");
    EXPECT_EQ(run("preset import %pen.myb %wash.myb %leaf.gbr -o %all").status, 0);
    EXPECT_EQ(QDir(path("all")).entryList(QDir::Files), (QStringList{"leaf.xbf", "pen.xbf", "wash.xbf"}));

    write("cut.gbr", contentOf(tip).chopped(1));
    write("cut.myb", myb.left(60));
    write("many.gih", "many\n17 ncells:17\n" + gbr({.width = 1, .height = 1, .pixels = "\xFF"}).repeated(17));
    EXPECT_THAT(run("preset make -o %leaf.xbf --tip %many.gih").out.toStdString(),
                ::testing::HasSubstr("many.gih: not carried over: 1 of its 17 tips"));
    const auto before = filesThere();
    expectOneLine(run("preset import %cut.gbr -o %new.xbf"), 1, "cut.gbr: cannot be imported: the file ends");
    expectOneLine(run("preset import %cut.myb -o %new.xbf"), 1, "cut.myb: cannot be imported: it is no JSON");
    expectOneLine(run("preset make --tip %pen.myb -o %new.xbf"), 1,
                  "pen.myb: cannot be imported: it is not an");
    expectOneLine(run("preset make --tip %none.gbr -o %new.xbf"), 1, "none.gbr: cannot be read");
    expectOneLine(run("preset make -o /dev/full --tip %many.gih"), 1, "/dev/full: cannot be written");
    expectOneLine(run("preset import %pen.myb %wash.myb -o %new.xbf"), 1, "need a folder");
    expectOneLine(run("preset make --tip %leaf.gbr -o %leaf.gbr"), 2, "is what is read");
    EXPECT_EQ(filesThere(), before);
}

TEST_F(PresetProgramTest, WhatIsNotWholeIsRefused) {
    // A record's image that is none: the first byte of the PNG is another.
    const QString tip = savedPicture(path("tip.png"), Qt::black);
    ASSERT_EQ(make("t.xbf", QStringList("maskImage=" + tip)).status, 0);
    write("image.xbf", contentOf(path("t.xbf")).replace("PNG", "GNP"));
    const std::pair<const char*, const char*> kBad[] = {
        {"cut.xbf", "cut.xbf: the brush file is damaged: record"},
        {"text.xbf", "text.xbf: this is not an XBF file"},
        {"image.xbf", "damaged: maskImage is not an image"},
        {"none.xbf", "none.xbf: cannot be read"}};
    write("r.json", R"({"strokes": [{)" + kLine + "}]}");
    const auto before = filesThere();
    for (const auto& [name, message] : kBad) {
        SCOPED_TRACE(name);
        expectOneLine(run(std::string("paint %r.json -o %out.png --brush %") + name), 1, message);
        expectOneLine(run(std::string("preset preview -o %out.png %") + name), 1, message);
        const QString named = write(
            "named.json", "{\n\"brush\": \"" + QByteArray(name) + "\", \"strokes\": [{" + kLine + "}]}");
        expectOneLine(run("paint %named.json -o %out.png"), 1, "named.json:2: brush: ");
        ASSERT_TRUE(QFile::remove(named));
    }
    expectOneLine(make("none/a.xbf", {}), 1, "none/a.xbf: cannot be written");
    expectOneLine(preset("show", {"-"}), 2, "not from standard input");
    expectOneLine(preset("make -o a.xbf --name a --brush", {"-"}), 2, "standard input");
    expectOneLine(make("a.xbf", {"gaussianRadius=3"}), 2, "does not keep gaussianRadius");
    EXPECT_EQ(filesThere(), before);
}

// Of all that say the same thing, the nearest to the command line's own options wins; every pair is tried, and the
// background and the size come from each of theirs meanwhile.
TEST_F(PresetProgramTest, TheNearestSourceOfASettingWins) {
    ASSERT_EQ(make("blue.xbf", {"radius=24", "minRadius=1", "hardness=1", "renderColor=#0000ff"}).status, 0);
    ASSERT_EQ(make("cyan.xbf", {"radius=24", "minRadius=1", "hardness=1", "renderColor=#00ffff"}).status, 0);
    const QColor colors[] = {Qt::black, Qt::red, Qt::blue, Qt::cyan, Qt::yellow, Qt::green};
    constexpr int kSources = 5;
    for (int i = 0; i < kSources; ++i) {
        for (int j = i + 1; j < kSources; ++j) {
            SCOPED_TRACE(::testing::Message() << "sources " << i << " and " << j);
            const auto has = [&](int source) { return source == i || source == j; };
            const int canvas = (i + 2 * j) % 4;  // bits: the recording's own, the command line's
            const QByteArray own = R"("canvas": {"width": 110, "height": 70, "background": "#777777"}, )";
            QStringList words{
                "paint", "-o", path("out.png"),
                write("r.json", "{" + (canvas & 1 ? own : QByteArray()) +
                                    (has(1) ? R"("brush": "blue.xbf", )" : "") +
                                    R"("strokes": [{"samples": [[0, 0]]}, {)" +
                                    (has(2) ? R"("brush": "cyan.xbf", )" : "") +
                                    (has(3) ? R"("set": {"renderColor": "#ffff00"}, )" : "") + kLine + "}]}"),
                write("grey.json",
                      R"({"canvas": {"background": "#123456"}, "strokes": [{"samples": [[0, 0]]}]})")};
            for (const auto& [given, text] : {std::pair{has(0), "--brush " + path("red.xbf")},
                                              {has(4), "--set renderColor=#00ff00"},
                                              {(canvas & 2) != 0, "--background #ffffff --size 100x60"}}) {
                words += given ? text.split(QLatin1Char(' ')) : QStringList();
            }
            const Ended ended = runProgram(words);
            ASSERT_EQ(ended.status, 0) << ended.err.constData();
            const QImage image(path("out.png"));
            const QColor paint = image.pixelColor(50, 30);  // of a soft brush where no preset is
            EXPECT_TRUE(std::abs(paint.red() - colors[j + 1].red()) < 32 &&
                        std::abs(paint.green() - colors[j + 1].green()) < 32 &&
                        std::abs(paint.blue() - colors[j + 1].blue()) < 32)
                << paint.name().toStdString();
            EXPECT_EQ(image.pixelColor(98, 52), QColor(canvas & 2   ? "#ffffff"
                                                       : canvas & 1 ? "#777777"
                                                                    : "#123456"));
            if (canvas != 0) {
                EXPECT_EQ(image.size(), canvas & 2 ? QSize(100, 60) : QSize(110, 70));
            }
        }
    }
    // The next recording starts with what the command line says, or with a new canvas's brush.
    const QByteArray yellow = R"({"strokes": [{"set": {"renderColor": "#ffff00"}, )" + kLine + "}]}";
    const QString plain = write("plain.json", R"({"strokes": [{)" + kLine + "}]}");
    EXPECT_EQ(painted(yellow, {"--brush", path("red.xbf"), plain}), QColor(Qt::red));
    EXPECT_EQ(painted(yellow, {plain, "--set", "hardness=1"}), QColor(Qt::black));
}

// A preset made elsewhere may say nothing of colour and size, or say it twice.
TEST_F(PresetProgramTest, ABrushOfFewRecordsTakesThePlaceOfAllBefore) {
    const auto record = [](int id, float value) {
        return QDBrushManager::paramWithID(id, QString(), value, kXBFFloat);
    };
    const struct {
        const char* name;
        BrushParams params;
        int width;  // of the picture: to the last sample, and the brush's size beyond
    } rows[] = {{"bare", {record(0x3006, 1)}, 80 + 32},
                {"twice", {record(0x2002, 5), record(0x3006, 1), record(0x2002, 100)}, 80 + 100},
                {"huge", {record(0x2002, 1e6f)}, 80 + 1280}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        ASSERT_TRUE(QDBrushManager::saveParams(row.params, 200, QLatin1String(row.name), path("few.xbf")));
        write("r.json", "{\"strokes\": [{" + kLine + "}]}");
        const Ended ended = run("paint %r.json -o %out.png --brush %few.xbf");
        EXPECT_EQ(ended.status, 0) << ended.err.constData();
        EXPECT_EQ(QImage(path("out.png")).width(), row.width);
    }
    ASSERT_TRUE(QDBrushManager::saveParams(rows[0].params, 200, QString(), path("few.xbf")));
    const auto after = [&](const QByteArray& set) {
        return painted(R"({"strokes": [{)" + set + R"("samples": [[0, 0]]}, {"brush": "few.xbf", )" + kLine +
                       "}]}");
    };
    EXPECT_LT(after({}).lightness(), 128);
    EXPECT_EQ(after(R"("set": {"maxRadius": 0, "renderColor": "#00ff00"}, )"), after({}));
}

TEST_F(PresetProgramTest, ShowNamesWhateverIsUnderstood) {
    const auto record = [](int id, const QVariant& value, int type) {
        return QDBrushManager::paramWithID(id, "setIt:", value, type);
    };
    ASSERT_TRUE(
        QDBrushManager::saveParams(BrushParams{record(0x3001, true, kXBFBool), record(0x3003, 11, kXBFInt),
                                               record(0x9006, "void", kXBFText), record(0x7777, 1, kXBFInt)},
                                   100, QString::fromUtf8("🖌 水彩\n\xC2\x9B"), path("old.xbf")));
    const std::string shown = preset("show", {path("old.xbf")}).out.toStdString();
    for (const char* line :
         {": \"🖌 水彩  \", version 100\n", "  size dynamics                 yes\n",
          "  radius mode                   11\n", "  blend shader                  \"void\"\n",
          "  unknown id 0x7777             1 (integer, \"setIt:\")\n"})
        EXPECT_THAT(shown, ::testing::HasSubstr(line));
}

TEST_F(PresetProgramTest, PreviewsGoIntoAFolder) {
    ASSERT_TRUE(QDir(_folder.path()).mkdir("out"));
    ASSERT_EQ(make("smudge.xbf", {"brushType=3", "radius=60"}).status, 0);
    const QStringList files{path("red.xbf"), path("cut.xbf"), path("smudge.xbf")};
    EXPECT_EQ(preset("preview --size 240x90 -o", QStringList(path("out")) + files).status, 1);
    const QImage red(path("out/red.png")), smudge(path("out/smudge.png"));
    ASSERT_EQ(red.size(), QSize(240, 90));
    EXPECT_EQ(red.pixelColor(120, 45), QColor(Qt::red));
    EXPECT_EQ(red.pixelColor(5, 85), QColor(Qt::white));
    EXPECT_GT(smudge.pixelColor(5, 85).saturation(), 50);
    expectOneLine(preset("preview -o", QStringList(path("p.png")) + files), 1, "need a folder");
    expectOneLine(preset("preview -o", {path("out"), path("red.xbf"), path("out/../red.xbf")}), 1,
                  "two previews");
}

TEST_F(PresetProgramTest, ASheetHasARowForEachPresetThatCanBeRead) {
    ASSERT_EQ(make("smudge.xbf", {"brushType=3", "radius=60"}).status, 0);
    ASSERT_EQ(make("tilt.xbf", {"radius=24", "minRadius=0.1", "radiusControl=0,1,0", "hardness=1"}).status,
              0);
    const QStringList files{path("red.xbf"), path("smudge.xbf"), path("cut.xbf"), path("tilt.xbf")};
    expectOneLine(preset("sheet --size 120x80 --across 2 -o", QStringList(path("s.png")) + files), 1,
                  "cut.xbf");
    const QImage sheet(path("s.png"));
    constexpr int kColumn = 126, kRow = 112, kLeft = 26, kTop = 52, kBlock = 6 * kColumn + 20;
    ASSERT_EQ(sheet.size(), QSize(2 * kBlock + 26, kTop + kRow + 80 + 26));
    const auto at = [&](int block, int column, int row, int x, int y) {
        return sheet.pixelColor(kLeft + block * kBlock + column * kColumn + x, kTop + row * kRow + y);
    };
    const auto darkRows = [&](int block, int column, int row, int x) {
        int count = 0;
        for (int y = 0; y < 80; ++y)
            count += at(block, column, row, x, y).lightness() < 128;
        return count;
    };
    for (const int column : {0, 2, 3, 4, 5})
        EXPECT_EQ(at(0, column, 0, 60, 40), QColor(Qt::red)) << column;
    EXPECT_EQ(at(0, 4, 0, 2, 2), QColor(Qt::white));
    EXPECT_NE(at(0, 5, 0, 2, 2), at(0, 5, 0, 117, 2));  // bands
    EXPECT_GT(at(0, 0, 1, 2, 2).saturation(), 50);      // something to smudge
    EXPECT_GT(darkRows(1, 4, 0, 30), 0);
    EXPECT_NE(darkRows(1, 4, 0, 30), darkRows(1, 4, 0, 90));  // as it tilts more
    EXPECT_EQ(darkRows(1, 5, 1, 60), 0);                      // no fourth preset
    expectOneLine(preset("sheet --size 4000x40 -o", QStringList(path("s.png")) + files), 2, "too large");
    expectOneLine(preset("sheet -o", {path("red.xbf"), path("red.xbf")}), 2, "red.xbf");
    expectOneLine(preset("sheet -o", {path("none/s.png"), path("red.xbf")}), 1, "cannot be written");
}

}  // namespace
}  // namespace dabcanvas::dabpaint
