// SPDX-License-Identifier: MIT
// The program as its users run it: exit status, what it prints where, and which files are there afterwards.

#include <QJsonDocument>
#include <QJsonObject>
#include <cerrno>
#include <cstring>

#include "Recording/Samples.h"
#include "apps/Program.h"

namespace dabcanvas::dabpaint {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

TEST_F(ProgramTest, UsageErrorsEndWithTwo) {
    expectOneLine(runProgram({}), 2, "a command is missing");
    for (const auto& [set, message] :
         {std::pair{"raduis=3", "no brush property is called \"raduis\"; did you mean radius"},
          {"radius=big", "--set radius=big: expected a number from 2 to 1280"},
          {"flipX=3", "expected yes or no"}}) {
        expectOneLine(runProgram({"paint", kRecordings + "hover.dat", "-o", path("a.png"), "--set", set}), 2,
                      message);
    }
    EXPECT_TRUE(filesThere().isEmpty());
}

TEST_F(ProgramTest, FailedWorkEndsWithOneAndLeavesNoFile) {
    const QString bad = kRecordings + "bad/short-row.dat";
    const QString good = kRecordings + "hover.dat";
    const auto paint = [&](const QString& recording, const QString& output) {
        return runProgram({"paint", recording, "-o", output});
    };
    expectOneLine(paint(bad, path("a.png")), 1, "short-row.dat:2: 3 number(s)");
    // An output that cannot be written is told before the recording is looked at.
    expectOneLine(paint(bad, path("none/a.png")), 1, "none/a.png: cannot be written");
    expectOneLine(paint(good, _folder.path()), 1, "cannot be written");
    const auto paintText = [&](const QByteArray& text) { return paint(write("a", text), path("a.png")); };
    expectOneLine(paintText(R"({"strokes": [{"set": {"raduis": 1}, "samples": [[1, 1]]}]})"), 1,
                  "a:1: strokes[0].set.raduis: no brush property");
    expectOneLine(paintText(R"({"strokes": [{"set": {"radius": "big"}, "samples": [[1, 1]]}]})"), 1,
                  "a:1: strokes[0].set.radius: expected a number from 2");
    expectOneLine(paintText("0 20000 5 1\n"), 1, "a: 20032x37 is too large");
    // 64 dabs at 131072 places: a way of 2e5 pixels with steps of half a pixel has more.
    expectOneLine(paintText(R"({"canvas": {"width": 9, "height": 9}, "strokes": [{"set": {"radius": 2,
        "distributionCount": 64}, "samples": [[0, 0], [1e5, 1e5], [0, 0], [1e5, 1e5], [0, 0], [1e5, 1e5], [0, 0]]}]})"),
                  1, "a: about 50331655 dabs would have to be drawn, more than 50000000; --most-dabs");
    expectOneLine(runProgram({"dabs", "-"}, "{\"strokes\":\n[7]}"), 1,
                  "standard input:2: strokes[0]: expected an object");
    expectOneLine(paint(good, path("a.gif")), 2, "a.gif: no picture is written as .gif; the kinds are bmp, ");
    EXPECT_EQ(filesThere(), QStringList("a"));
}

#ifdef Q_OS_UNIX
// By whatever name: a.json, its link, and what the recording names.
TEST_F(ProgramTest, WhatIsReadIsNeverOverwritten) {
    savedPicture(path("tip.png"), Qt::black);
    write("a.json", R"({"strokes": [{"set": {"maskImage": "tip.png"}, "samples": [[1, 1]]}]})");
    write("plain.dat", "0 1 1 1\n");
    write("t.csv", "sample_id,x,y\n");
    write("b.xbf", "");
    for (const char* name : {"a.json", "b.xbf", "t.csv", "tip.png"})
        ASSERT_TRUE(QFile::link(path(name), path("link") + QLatin1String(name).right(4)));
    const auto before = filesThere();
    for (const char* words :
         {"paint %a.json -o %linkjson", "paint %a.json -o %./tip.png", "paint %a.json -o %link.png",
          "paint %plain.dat --set maskImage=%tip.png -o %tip.png", "shapes %t.csv -o %link.csv",
          "shapes %t.csv -o %u.csv --outlines %./u.csv",
          "preset make --name a --brush %b.xbf -o %link.xbf"}) {
        const bool twice = std::string(words).find("u.csv") != std::string::npos;
        expectOneLine(run(words), 2, twice ? "two results would both go to" : "is what is read");
    }
    EXPECT_EQ(filesThere(), before);
}
#endif

TEST_F(ProgramTest, HelpVersionAndProperties) {
    for (const auto& [words, start] :
         {std::pair{"--version", "dabpaint "}, {"paint --help", "NAME\n"}, {"properties --json", "["}}) {
        const Ended ended = run(words);
        EXPECT_EQ(ended.status, 0) << words;
        EXPECT_THAT(ended.out.toStdString(), StartsWith(start));
    }
}

TEST_F(ProgramTest, FullOutputIsAFailure) {
    if (!QFile::exists("/dev/full"))
        GTEST_SKIP() << "the system has no /dev/full";
    for (const auto& words : {QStringList{"properties"}, QStringList{"shapes"}}) {
        QProcess program;
        program.setStandardOutputFile("/dev/full");
        program.start(QStringLiteral(DABPAINT_PROGRAM), words);
        program.write("sample_id,x,y\n");
        program.closeWriteChannel();
        ASSERT_TRUE(program.waitForFinished());
        EXPECT_EQ(program.exitCode(), 1);
        EXPECT_THAT(program.readAllStandardError().toStdString(), HasSubstr(std::strerror(ENOSPC)));
    }
}

// ---- Painting

class PaintTest : public ProgramTest {
protected:
    // Paints and gives the picture.
    QImage paint(const QStringList& recordings, const QStringList& options = {}) {
        const Ended ended = runProgram(QStringList{"paint", "-o", path("out.png")} + recordings + options);
        EXPECT_EQ(ended.status, 0) << ended.err.constData();
        _printed = ended.out;
        return QImage(path("out.png")).convertToFormat(QImage::Format_RGBA8888);
    }
    QString stroke(const char* name, const QByteArray& set) {
        return write(
            name, R"({"strokes": [{"set": {)" + set +
                      R"(}, "samples": [[20, 30, 1, 0], [40, 30, 1, 0], [60, 30, 1, 0], [80, 30, 1, 0]]}]})");
    }

    QByteArray _printed;
};

const QByteArray kSolid = R"("radius": 20, "minRadius": 1, "hardness": 1, "pointsDistance": 0.05)";

TEST_F(PaintTest, ADotIsPainted) {
    const QString dot = write("dot.json", R"({"strokes": [{"set": {)" + kSolid +
                                              R"(, "endRadius": 1}, "samples": [[20, 20, 1, 0]]}]})");
    const QImage image = paint({dot}, {"--background", "transparent", "--set", "radius=10"});
    EXPECT_EQ(image.size(), QSize(30, 30)) << "the sample and the brush beyond it";
    EXPECT_EQ(image.pixelColor(29, 0).alpha(), 0);
    EXPECT_EQ(image.pixelColor(20, 20), QColor(Qt::black));
}

TEST_F(PaintTest, RepeatableRunsGiveTheSameBytes) {
    const QString file =
        stroke("a.json", kSolid + R"(, "radiusTingle": 0.8, "distribution": 1.5, "disTwoAxes": true)");
    QByteArray bytes[3];
    for (int i = 0; i < 3; ++i) {
        paint({file}, i < 2 ? QStringList{"--repeatable"} : QStringList());
        bytes[i] = contentOf(path("out.png"));
    }
    EXPECT_EQ(bytes[0], bytes[1]);
    EXPECT_NE(bytes[0], bytes[2]);
}

TEST_F(PaintTest, UndoneStrokesWereNeverPainted) {
    const auto recording = [&](const char* name, int strokes) {
        QByteArray text;
        for (int i = 0; i < strokes; ++i) {
            const QByteArray y = QByteArray::number(10 + i * 9);
            text += (i > 0 ? "," : "") + QByteArray(R"({"set": {"brushType": )") + "0343030"[i] +
                    R"(}, "samples": [[10, )" + y + R"(, 1, 0], [60, )" + y + R"(, 1, 0], [90, 50, 1, 0]]})";
        }
        return write(name, R"({"canvas": {"width": 100, "height": 80}, "strokes": [)" + text + "]}");
    };
    const QStringList repeatable{"--repeatable"};
    const QString all = recording("all.json", 7);
    for (const int undone : {0, 1, 4, 7, 50}) {
        const QImage rest = paint({recording("rest.json", std::max(7 - undone, 1))}, repeatable);
        const QImage left = paint({all}, repeatable + QStringList{"--undo", QString::number(undone)});
        if (undone < 7)
            EXPECT_EQ(left, rest) << undone << " undone";
        else
            EXPECT_EQ(left.pixelColor(30, 10), QColor(Qt::white)) << undone << " undone";
    }
}

TEST_F(PaintTest, StatsCountWhatWasPainted) {
    paint({stroke("a.json", kSolid), kRecordings + "hover.dat"}, {"--stats"});
    const QJsonObject stats = QJsonDocument::fromJson(_printed).object();
    EXPECT_EQ(stats["strokes"].toInt(), 3);
    EXPECT_EQ(stats["samples"].toInt(), 7);
    EXPECT_GT(stats["dabs"].toInt(), 20);
    EXPECT_EQ(stats["canvas"]["width"].toInt(), 112);
    EXPECT_FALSE(stats["renderer"].toString().isEmpty());
    EXPECT_GT(stats["peakMemoryBytes"].toDouble(), 1e6);
    const QJsonObject seconds = stats["seconds"].toObject();
    for (const char* stage : {"geometry", "drawing", "compositing", "encoding"}) {
        EXPECT_GT(seconds[QLatin1String(stage)].toDouble(), 0) << stage;
        EXPECT_LT(seconds[QLatin1String(stage)].toDouble(), seconds["total"].toDouble()) << stage;
    }
}

}  // namespace
}  // namespace dabcanvas::dabpaint
