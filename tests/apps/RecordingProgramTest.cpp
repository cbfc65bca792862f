// SPDX-License-Identifier: MIT
// Sessions, what they record, and many recordings at once, as programs use them.
#include <QImageReader>
#include <QJsonDocument>
#include <QJsonObject>

#include "CommandLine.h"
#include "OutputPattern.h"
#include "PaintProcesses.h"
#include "Recording/Samples.h"
#include "apps/Program.h"

namespace dabcanvas::dabpaint {
namespace {

const QByteArray kTwoStrokes = R"({"brush": {"radius": 20, "distribution": 0.5}}
{"stroke": {"samples": [[10, 20], [50, 60], [90, 20]]}}
{"stroke": {"samples": [[10, 70, 0.5]], "end": "open"}}
{"stroke": {"samples": [[60, 80, 1], [90, 70, 0.4]], "begins": false}}
)";

class RecordingProgramTest : public ProgramTest {
protected:
    static std::vector<QJsonObject> answersOf(const QByteArray& out) {
        std::vector<QJsonObject> answers;
        for (const QByteArray& line : out.split('\n'))
            if (!line.isEmpty())
                answers.push_back(QJsonDocument::fromJson(line).object());
        return answers;
    }
    QByteArray bytesOf(const char* name) const {
        const auto bytes = readFile(path(name));
        return bytes ? *bytes : QByteArray("none");
    }
    void record() const {
        const QString save = "{\"save\": \"" + path("session.png") + "\"}\n";
        const Ended ended = run("session --size 100x90 --record %a.jsonl", kTwoStrokes + save.toUtf8());
        EXPECT_EQ(ended.status, 0) << ended.err.constData();
    }
};

TEST_F(RecordingProgramTest, ASessionAnswersEveryLineAndGoesOnAfterFaults) {
    const Ended ended = run("session --size 100x90 --seed 3", kTwoStrokes + R"({"do": "undo"}

{"do": "redo"}
{"do": "redo"}
{"stroke": {"samples": [[1]]}}
{"set": {"radius": 1}}
{"preset": "none.xbf"}
{"look": [0, 0, 7, 5]}
)");
    EXPECT_EQ(ended.status, 0);
    EXPECT_TRUE(ended.err.isEmpty()) << ended.err.constData();
    const auto answers = answersOf(ended.out);
    std::vector<int> lines, faults;
    for (const QJsonObject& answer : answers)
        (answer.contains("error") ? faults : lines).push_back(answer["line"].toInt());
    EXPECT_THAT(lines, ::testing::ElementsAre(1, 2, 3, 4, 5, 7, 12));
    EXPECT_THAT(faults, ::testing::ElementsAre(8, 9, 10, 11));
    EXPECT_THAT(answers[7]["error"].toString().toStdString(),
                ::testing::HasSubstr("stroke.samples[0]: fewer"));
    const auto png = QByteArray::fromBase64(answers.back()["png"].toString().toLatin1());
    EXPECT_EQ(QImage::fromData(png).size(), QSize(7, 5));
}

TEST_F(RecordingProgramTest, WhatASessionRecordedIsPaintedAgainByteForByte) {
    record();
    EXPECT_EQ(run("paint %a.jsonl -o %again.png").status, 0);
    EXPECT_EQ(bytesOf("again.png"), bytesOf("session.png"));
    EXPECT_EQ(run("paint %a.jsonl -o %other.png --seed 99").status, 0);
    EXPECT_NE(bytesOf("other.png"), bytesOf("session.png"));
    EXPECT_EQ(run("paint %a.jsonl -o %half.png --size 50x90").status, 0);
    EXPECT_EQ(QImage(path("half.png")).size(), QSize(50, 45));
    expectOneLine(run("paint %a.jsonl -o %b.png --undo 1"), 1, "which takes no --undo");
    expectOneLine(run("paint %a.jsonl -o %b.png --most-dabs 3"), 1, "more than 3 dabs");
    write("cut.jsonl", bytesOf("a.jsonl") + "{\"do\":\"undo\"}\n{\"stroke\":{\"samples\":[[0,\n");
    expectOneLine(run("paint %cut.jsonl -o %b.png"), 1, "cut.jsonl:");
}

TEST_F(RecordingProgramTest, FramesAreWrittenOnTheWay) {
    record();
    EXPECT_EQ(run("paint %a.jsonl -o %all.png --timelapse %frames").status, 0);
    EXPECT_EQ(QDir(path("frames")).entryList(QDir::Files), (QStringList{"000001.png", "000002.png"}));
    EXPECT_EQ(QImage(path("frames/000002.png")), QImage(path("all.png")));
    EXPECT_NE(QImage(path("frames/000001.png")), QImage(path("all.png")));
    EXPECT_EQ(runProgram({"paint", path("a.jsonl"), "-o", path("at-%s.png"), "--every", "1"}).status, 0);
    EXPECT_EQ(QImage(path("at-00001.png")), QImage(path("frames/000001.png")));
    const Ended webp = run("paint %a.jsonl -o %all.png --every 2 --timelapse %all.webp");
    if (webp.status != 0) {
        expectOneLine(webp, 1, "built without libwebp");
    } else {
        EXPECT_TRUE(bytesOf("all.webp").startsWith("RIFF"));
        EXPECT_TRUE(bytesOf("all.webp").left(64).contains("WEBPVP8"));
    }
}

TEST_F(RecordingProgramTest, ManyRecordingsAreAPictureEach) {
    record();
    write("b.dat", "0 5 5 1\n1 60 40 1\n");
    write("c.dat", "0 5 5\n");
    for (const QStringList& jobs : {QStringList(), QStringList{"--jobs", "2"}}) {
        const Ended ended = runProgram(QStringList{"paint", path("a.jsonl"), path("b.dat"), path("c.dat"),
                                                   "-o", path("%n-%i.png"), "--surface", "processor"} +
                                       jobs);
        expectOneLine(ended, 1, "c.dat:1: 3 number(s)");
        EXPECT_EQ(bytesOf("a-1.png"), bytesOf("session.png"));
        EXPECT_TRUE(QFile::remove(path("a-1.png")) && QFile::remove(path("b-2.png")));
        EXPECT_FALSE(QFile::exists(path("c-3.png")));
    }
    expectOneLine(runProgram({"paint", path("a.jsonl"), path("b.dat"), "-o", path("both.png")}), 1,
                  "a picture of its own");
    expectOneLine(runProgram({"paint", path("b.dat"), path("./b.dat"), "-o", path("%n.png")}), 2, "b.png");
}

TEST(OutputPatternTest, MarksAreReplacedOnce) {
    EXPECT_EQ(outputOf("o/%n-%i.png", "in/a%s.b.dat", 12), "o/a%%s.b-12.png");
    EXPECT_EQ(outputAfter("o/a%%s.b-12.png", 3), "o/a%s.b-12.png");
    EXPECT_EQ(outputAfter("%s%x%", 123456), "123456%x%");
    EXPECT_TRUE(namesEach("%i") && !namesEach("%%i%s") && namesStrokes("a%s") && !namesStrokes("a%%s"));
}

// What a process is started with says what this one was told.
TEST(PaintProcessesTest, ArgumentsComeBackAsTheOptions) {
    const QStringList given{"paint",
                            "-x.dat",
                            "--output=o.png",
                            "--size=30x40",
                            "--brush=b.xbf",
                            "--set",
                            "radius=3",
                            "--set=hardness=1",
                            "--background=#01020304",
                            "--undo=2",
                            "--most-dabs=77",
                            "--recognise",
                            "--repeatable",
                            "--stats",
                            "--surface=gpu",
                            "--canvas-depth=16",
                            "--layer-depth=8",
                            "--seed=5",
                            "--every=3",
                            "--timelapse=t.webp"};
    QStringList words = given;
    words[1] = "./-x.dat";
    const auto line = readCommandLine(words);
    const auto* options = std::get_if<PaintOptions>(&line);
    ASSERT_NE(options, nullptr);
    const auto again = readCommandLine(argumentsOf(*options));
    const auto* same = std::get_if<PaintOptions>(&again);
    ASSERT_NE(same, nullptr);
    EXPECT_EQ(argumentsOf(*same), argumentsOf(*options));
    for (const QString& word : given.mid(2)) {
        EXPECT_TRUE(argumentsOf(*same).contains(word) || word == "--set" || !word.startsWith("--"))
            << word.toStdString();
    }
}

}  // namespace
}  // namespace dabcanvas::dabpaint
