// SPDX-License-Identifier: MIT
// Recordings in every form: what is read from good ones, and how bad ones are refused.
#include "Recording/StrokesFile.h"

#include <QDir>
#include <QElapsedTimer>
#include <QLineF>
#include <set>

#include "Recording/Samples.h"
#include "Recording/StrokesJson.h"
#include "Recording/SvgPath.h"
#include "support/Rows.h"

namespace dabcanvas {
namespace {

using ::testing::HasSubstr;

// ---- Rows

TEST(RowsTest, PressureZeroPartsStrokesAndAFifthNumberIsTheAltitude) {
    const auto recording = readNamed("hover.dat");
    ASSERT_TRUE(recording) << recording.problem().what.toStdString();
    ASSERT_EQ(recording->strokes.size(), 2u);
    EXPECT_THAT(recording->strokes[0].samples,
                ::testing::ElementsAre(IsSample(11, 21, 0.25, -1), IsSample(12.5, 22, 0.5, -1)));
    EXPECT_THAT(recording->strokes[1].samples, ::testing::ElementsAre(IsSample(14, -24, 1, -1)));
    const auto tilted = readNamed("tilt.dat");
    ASSERT_TRUE(tilted);
    EXPECT_THAT(tilted->strokes.at(0).samples,
                ::testing::ElementsAre(IsSample(1, 2, 0.5, 0.25), IsSample(3, 4, -1, -1)));
}

TEST(RowsTest, LineEndsOfEverySystem) {
    for (const char* text :
         {"0 1 2 1\n1 3 4 1", "0 1 2 1\r\n1 3 4 1\r\n", "\xEF\xBB\xBF\t0 1 2 1 \n \n1 3 4 1\n\n"}) {
        const auto recording = readStrokes(text);
        ASSERT_TRUE(recording) << text;
        EXPECT_THAT(recording->strokes.at(0).samples,
                    ::testing::ElementsAre(IsSample(1, 2, 1, -1), IsSample(3, 4, 1, -1)));
    }
}

// ---- JSON

TEST(JsonRecordingTest, CanvasSettingsAndSamples) {
    const auto recording = readNamed("canvas.json");
    ASSERT_TRUE(recording) << recording.problem().what.toStdString();
    EXPECT_EQ(recording->size, QSize(64, 48));
    EXPECT_EQ(recording->background, "#10203040");
    ASSERT_EQ(recording->strokes.size(), 2u);
    EXPECT_THAT(
        recording->strokes[0].samples,
        ::testing::ElementsAre(IsSample(1, 2, -1, -1), IsSample(3.5, 4, 0.5, -1), IsSample(5, 6, 0.25, 1)));
    const auto& settings = recording->strokes[0].settings;
    ASSERT_EQ(settings.size(), 4u);
    EXPECT_EQ(settings[0].name, "radius");
    EXPECT_EQ(settings[0].value, SettingValue(9.0));
    EXPECT_EQ(settings[0].line, 4);
    EXPECT_EQ(settings[0].element, "strokes[0].set.radius");
    EXPECT_EQ(settings[1].value, SettingValue(true));
    EXPECT_EQ(settings[2].value, SettingValue(std::vector<double>{1, 0, -0.5}));
    EXPECT_EQ(settings[3].value, SettingValue("#ff0000"));
    EXPECT_EQ(recording->strokes[1].settings.at(0).value, SettingValue(QStringList{"a.png", "b.png"}));
}

TEST(JsonRecordingTest, DabsInputTakesWhatPaintingRefuses) {
    const auto input =
        readDabsInput(R"({"srand": 4294967295, "strokes": [{"samples": [[1e9, -3, 7], [1, 2, 3, 4]],
                                         "end": false}, {"samples": [[0, 0]]}]})");
    ASSERT_TRUE(input) << input.problem().what.toStdString();
    EXPECT_EQ(input->seed, 4294967295u);
    EXPECT_THAT(input->strokes.at(0).samples,
                ::testing::ElementsAre(IsSample(1e9, -3, 7, 0), IsSample(1, 2, 3, 4)));
    EXPECT_FALSE(input->strokes[0].end);
    EXPECT_THAT(input->strokes.at(1).samples, ::testing::ElementsAre(IsSample(0, 0, -1, 0)));
    EXPECT_TRUE(input->strokes[1].end);
    for (const char* bad : {R"({"srand": -1, "strokes": []})", R"({"srand": 0.5, "strokes": []})",
                            R"({"strokes": [{"samples": [[1, 1e39]]}]})", R"({"canvas": {}, "strokes": []})"})
        EXPECT_FALSE(readDabsInput(bad)) << bad;
}

// ---- Tables

TEST(TableTest, ColumnsAreFoundByNameAndStrokesByTheirs) {
    const auto named = readNamed("table.csv");
    ASSERT_TRUE(named) << named.problem().what.toStdString();
    ASSERT_EQ(named->strokes.size(), 2u);
    EXPECT_THAT(named->strokes[0].samples,
                ::testing::ElementsAre(IsSample(1, 2, 0.5, -1), IsSample(3, 4, 1, -1)));
    EXPECT_EQ(named->strokes[0].samples[1].time, 0.2);
    EXPECT_THAT(named->strokes[1].samples, ::testing::ElementsAre(IsSample(7, 8, -1, -1)));
    const auto plain = readNamed("plain.csv");
    ASSERT_TRUE(plain) << plain.problem().what.toStdString();
    ASSERT_EQ(plain->strokes.size(), 2u);
    EXPECT_THAT(plain->strokes[0].samples,
                ::testing::ElementsAre(IsSample(1, 2, 0.5, -1), IsSample(3, 4, 1, -1)));
    EXPECT_THAT(plain->strokes[1].samples, ::testing::ElementsAre(IsSample(7, 8, 0.25, -1)));
}

// ---- SVG

TEST(SvgTest, OutlinesComeOutWhereTheyAreSeen) {
    const auto drawing = readNamed("paths.svg");
    ASSERT_TRUE(drawing) << drawing.problem().what.toStdString();
    EXPECT_EQ(drawing->size, QSize(200, 100));
    const auto& strokes = drawing->strokes;
    ASSERT_EQ(strokes.size(), 5u);
    EXPECT_THAT(strokes[0].samples, ::testing::ElementsAre(IsSample(20, 10, 1, -1), IsSample(60, 10, 1, -1),
                                                           IsSample(60, 30, 1, -1), IsSample(20, 10, 1, -1)));
    EXPECT_EQ(strokes[0].settings.at(0).value, SettingValue("#ff0000"));
    EXPECT_EQ(strokes[0].settings.at(1).value, SettingValue(8.0));
    EXPECT_THAT(strokes[1].samples, ::testing::ElementsAre(IsSample(80, 20, 1, -1), IsSample(69, 21, 1, -1)));
    // Turned by a quarter, (1, 2) lies at (-2, 1).
    EXPECT_THAT(strokes[2].samples, ::testing::ElementsAre(IsSample(16, 12, 1, -1), IsSample(12, 16, 1, -1)));
    EXPECT_EQ(strokes[2].settings.at(0).value, SettingValue("#00ff00"));
    // Half a circle about (40, 80), as large as it is in pixels.
    ASSERT_GT(strokes[3].samples.size(), 8u);
    for (const RecordedSample& sample : strokes[3].samples)
        EXPECT_NEAR(std::hypot(sample.x - 40, sample.y - 80), 20, 0.2);
    EXPECT_NEAR(strokes[3].samples[strokes[3].samples.size() / 2].y, 60, 3);  // over the top
    EXPECT_EQ(strokes[3].settings.at(0).value, SettingValue("#0000ff"));
    EXPECT_EQ(strokes[4].samples.size(), 4u);  // back to where it began
}

TEST(SvgTest, PathDataAsItIsWritten) {
    struct Case {
        const char* data;
        bool whole;
        QPointF end;
    };
    for (const Case& row : std::vector<Case>{{"M1 2 3 4", true, {3, 4}},
                                             {"m1,2-3.5.5", true, {-2.5, 2.5}},
                                             {"M0 0c1 1 2 2 3 0s1 1 3 0", true, {6, 0}},
                                             {"M0 0Q1 1 2 0t2 0T+8e0-1", true, {8, -1}},
                                             {"M0 0a5 5 0 1110 0a2 3 45 00-1-1", true, {9, -1}},
                                             {"M0 0 A0 5 0 0 0 7 7 V2 H-3", true, {-3, 2}},
                                             {"L1 1", false, {0, 0}},
                                             {"M0 0 L5 5 6", false, {5, 5}},
                                             {"M0 0 L5 5 X1", false, {5, 5}},
                                             {"M0 0 z 3 3", false, {0, 0}},
                                             {"M0 0 A1 1 0 2 0 3 3", false, {0, 0}},
                                             {"M1e999 0", false, {0, 0}}}) {
        SCOPED_TRACE(row.data);
        QPainterPath path;
        EXPECT_EQ(parseSvgPath(row.data, path), row.whole);
        EXPECT_NEAR(QLineF(path.currentPosition(), row.end).length(), 0, 1e-9);
    }
}

// ---- Xournal++

TEST(XoppTest, WidthsBecomePressureAndPagesLieSideBySide) {
    const auto notebook = readNamed("notebook.xopp");
    ASSERT_TRUE(notebook) << notebook.problem().what.toStdString();
    EXPECT_EQ(notebook->size, QSize(192, 48));
    ASSERT_EQ(notebook->strokes.size(), 3u);
    EXPECT_THAT(notebook->strokes[0].samples,
                ::testing::ElementsAre(IsSample(0, 0, 0.5, -1), IsSample(12, 12, 1, -1),
                                       IsSample(24, 0, 1, -1), IsSample(36, 12, 1, -1)));
    EXPECT_EQ(notebook->strokes[0].settings.at(0).value, SettingValue(4.0));
    EXPECT_EQ(notebook->strokes[0].settings.at(6).value, SettingValue("#204060"));
    EXPECT_EQ(notebook->strokes[1].settings.at(5).value, SettingValue(0.5));
    EXPECT_THAT(notebook->strokes[2].samples,
                ::testing::ElementsAre(IsSample(98, 4, 1, -1), IsSample(100, 4, 1, -1)));
}

// ---- Refusals

// What is told of each damaged file stands beside them: its name, a bar, and what follows "FILE:".
TEST(BadRecordingTest, EveryDamagedFileIsRefusedByLineAndReason) {
    std::set<QString> told;
    for (const QStringList& row : rowsOf("recordings/bad.txt")) {
        SCOPED_TRACE(qPrintable(row.join('|')));
        const QString file = row[0].trimmed();
        told.insert(file);
        const auto recording = readNamed("bad/" + file);
        ASSERT_FALSE(recording);
        EXPECT_THAT(recording.problem().text("FILE").toStdString(),
                    HasSubstr("FILE:" + row[1].toStdString()));
    }
    for (const QString& file : QDir(kRecordings + "bad").entryList(QDir::Files))
        EXPECT_TRUE(told.contains(file)) << file.toStdString();
}

// Every prefix of a good file must be read or refused, whatever it breaks off.
TEST(BadRecordingTest, TruncationNeverCrashes) {
    for (const char* name : {"hover.dat", "canvas.json", "office.inkml", "groups.inkml", "paths.svg",
                             "notebook.xopp", "table.csv", "plain.csv"}) {
        const auto bytes = readFile(kRecordings + QLatin1String(name));
        ASSERT_TRUE(bytes) << name;
        for (qsizetype size = 0; size < bytes->size(); ++size) {
            const auto recording = readStrokes(bytes->left(size));
            EXPECT_TRUE(recording || !recording.problem().what.isEmpty()) << name << ' ' << size;
        }
    }
}

TEST(BadRecordingTest, DeepNestingIsRefused) {
    const int depth = 300000;
    EXPECT_FALSE(readStrokes("{\"strokes\":" + QByteArray(depth, '[')));
    EXPECT_FALSE(readStrokes("{\"strokes\":[{\"set\":{\"a\":" + QByteArray(depth, '[')));
    EXPECT_FALSE(readStrokes("<ink>" + QByteArray("<traceGroup>").repeated(depth)));
    const auto groups =
        readStrokes("<ink>" + QByteArray("<traceGroup>").repeated(depth) + "<trace>1 2</trace>" +
                    QByteArray("</traceGroup>").repeated(depth) + "</ink>");
    EXPECT_TRUE(groups);
    // Every trace has its own context and all before it, and a group in all the others.
    QByteArray each, nested;
    for (int i = 0; i < 20000; ++i) {
        each += "<context/><trace>1 2</trace>";
        nested += "<traceGroup><trace>1 2</trace>";
    }
    QElapsedTimer clock;
    clock.start();
    EXPECT_TRUE(
        readStrokes("<ink>" + each + nested + QByteArray("</traceGroup>").repeated(20000) + "</ink>"));
    EXPECT_LT(clock.elapsed(), 10000);
}

// ---- Canvas size

TEST(NeededSizeTest, CoversSamplesAndMarginOrIsTheCanvas) {
    RecordedStrokes recording;
    recording.strokes.resize(1);
    recording.strokes[0].samples = {{10, 7.2, 1, 0}, {-50, 3, 1, 0}};
    EXPECT_EQ(neededSize(recording, 5), QSize(15, 13));
    recording.strokes[0].samples = {{-90, -90, 1, 0}};
    EXPECT_EQ(neededSize(recording, 5), QSize(1, 1));
    recording.size = QSize(3, 4);
    EXPECT_EQ(neededSize(recording, 5), QSize(3, 4));
}

}  // namespace
}  // namespace dabcanvas
