// SPDX-License-Identifier: MIT
// Recordings in every form: what is read from good ones, and how bad ones are refused.
#include "Recording.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>

#include "JsonRecording.h"
#include "apps/Samples.h"

namespace dabcanvas::dabpaint {
namespace {

using ::testing::HasSubstr;

// ---- Rows

TEST(RowsTest, PressureZeroPartsStrokesAndAFifthNumberIsTheAltitude) {
    const auto recording = readNamed(QStringLiteral("hover.dat"));
    ASSERT_TRUE(recording) << recording.problem().what.toStdString();
    ASSERT_EQ(recording->strokes.size(), 2u);
    EXPECT_THAT(recording->strokes[0].samples,
                ::testing::ElementsAre(IsSample(11, 21, 0.25, -1), IsSample(12.5, 22, 0.5, -1)));
    EXPECT_THAT(recording->strokes[1].samples, ::testing::ElementsAre(IsSample(14, -24, 1, -1)));
    const auto tilted = readNamed(QStringLiteral("tilt.dat"));
    ASSERT_TRUE(tilted);
    EXPECT_THAT(tilted->strokes.at(0).samples,
                ::testing::ElementsAre(IsSample(1, 2, 0.5, 0.25), IsSample(3, 4, -1, -1)));
}

TEST(RowsTest, LineEndsOfEverySystem) {
    for (const char* text :
         {"0 1 2 1\n1 3 4 1", "0 1 2 1\r\n1 3 4 1\r\n", "\xEF\xBB\xBF\t0 1 2 1 \n \n1 3 4 1\n\n"}) {
        const auto recording = readRecording(text);
        ASSERT_TRUE(recording) << text;
        EXPECT_THAT(recording->strokes.at(0).samples,
                    ::testing::ElementsAre(IsSample(1, 2, 1, -1), IsSample(3, 4, 1, -1)));
    }
}

// ---- JSON

TEST(JsonRecordingTest, CanvasSettingsAndSamples) {
    const auto recording = readNamed(QStringLiteral("canvas.json"));
    ASSERT_TRUE(recording) << recording.problem().what.toStdString();
    EXPECT_EQ(recording->size, QSize(64, 48));
    EXPECT_EQ(recording->background, QStringLiteral("#10203040"));
    ASSERT_EQ(recording->strokes.size(), 2u);
    EXPECT_THAT(
        recording->strokes[0].samples,
        ::testing::ElementsAre(IsSample(1, 2, -1, -1), IsSample(3.5, 4, 0.5, -1), IsSample(5, 6, 0.25, 1)));
    const auto& settings = recording->strokes[0].settings;
    ASSERT_EQ(settings.size(), 4u);
    EXPECT_EQ(settings[0].name, QStringLiteral("radius"));
    EXPECT_EQ(settings[0].value, SettingValue(9.0));
    EXPECT_EQ(settings[0].line, 4);
    EXPECT_EQ(settings[0].element, QStringLiteral("strokes[0].set.radius"));
    EXPECT_EQ(settings[1].value, SettingValue(true));
    EXPECT_EQ(settings[2].value, SettingValue(std::vector<double>{1, 0, -0.5}));
    EXPECT_EQ(settings[3].value, SettingValue(QStringLiteral("#ff0000")));
    EXPECT_EQ(recording->strokes[1].settings.at(0).value,
              SettingValue(QStringList{QStringLiteral("a.png"), QStringLiteral("b.png")}));
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

// ---- Refusals

struct BadRecording {
    const char* file;
    const char* message;  // as it follows "FILE:"
};

class BadRecordingTest : public ::testing::TestWithParam<BadRecording> {};

TEST_P(BadRecordingTest, IsRefusedByLineAndReason) {
    const auto recording = readNamed(QStringLiteral("bad/") + QLatin1String(GetParam().file));
    ASSERT_FALSE(recording);
    EXPECT_THAT(recording.problem().text(QStringLiteral("FILE")).toStdString(),
                HasSubstr(std::string("FILE:") + GetParam().message));
}

constexpr BadRecording kBadRecordings[] = {
    {"short-row.dat", "2: 3 number(s)"},
    {"truncated-row.dat", "2: 4 numbers where the rows before have 5"},
    {"letter.dat", "3: \"2x\" is not a number"},
    {"pressure.dat", "1: the pressure"},
    {"altitude.dat", "1: the altitude"},
    {"nan.dat", "1: \"nan\" is not a number"},
    {"huge.dat", "1: a number is out of range"},
    {"far.dat", "1: the position is out of range"},
    {"long-row.dat", "1: more than 5 numbers"},
    {"all-hover.dat", " the recording has no sample with the pen down"},
    {"comments.dat", " the recording has no sample"},
    {"empty.dat", " the recording is empty"},
    {"blank.dat", " the recording is empty"},
    {"picture.dat", "1: not a recording I know"},
    {"garbage.dat", "1: not a recording I know"},
    {"words.dat", "1: not a recording I know"},
    {"comma.dat", "1: \"0,5\" is not a number"},
    {"missing.dat", " cannot be read: No such file"},
    {"truncated.json",
     "1: strokes[0].samples[1][1]: column 39: syntax error while parsing value - unexpected end"},
    {"text-number.json", "2: strokes[0].samples[1][0]: expected a number, found a text"},
    {"member.json",
     "1: strokes[0].sampels: unknown member, expected set, samples, brush; did you mean samples?"},
    {"pressure.json", "1: strokes[0].samples[0]: the pressure"},
    {"one-number.json", "1: strokes[0].samples[0]: a sample is"},
    {"five-numbers.json", "1: strokes[0].samples[0][4]: more than 4"},
    {"no-samples.json", "1: strokes[0].samples: a stroke needs"},
    {"samples-missing.json", "1: strokes[0]: the stroke has no \"samples\""},
    {"no-strokes.json", " the recording has no sample"},
    {"nothing.json", "1: there is no \"strokes\""},
    {"huge.json", "1: strokes[0].samples[0][1]: number overflow parsing '1e999'"},
    {"nan.json", "1: strokes[0].samples[0][0]: column 28: syntax error"},
    {"tail.json", "1: column 38: syntax error"},
    {"twice.json", "1: strokes[0].samples: given twice"},
    {"half-size.json", "1: canvas: width and height"},
    {"zero-size.json", "1: canvas.width: expected a whole number from 1 to 16384"},
    {"broken-size.json", "1: canvas.width: expected a whole number"},
    {"large-size.json", "1: canvas.height: expected a whole number"},
    {"set-object.json", "1: strokes[0].set.radius: expected a number, true or false"},
    {"mixed-list.json", "1: strokes[0].set.radiusControl[1]: a list of both"},
    {"utf8.json", "1: strokes[0].set: column 24: syntax error"},
    {"picture.inkml", "1: not InkML: the outermost element is <svg>"},
    {"truncated.inkml", "2: "},
    {"short-point.inkml", "3: point 1: 1 value(s) where the trace format has 2 channels"},
    {"long-point.inkml", "3: point 1: more values"},
    {"letter.inkml", "1: point 1: \"x\" is not a value"},
    {"prefix.inkml", "1: point 1: the trace ends after a prefix"},
    {"huge.inkml", "1: point 0: a number is out of range"},
    {"sum.inkml", "1: point 1: a number is out of range"},
    {"context.inkml", "2: contextRef=\"#nobody\" names nothing"},
    {"brush.inkml", "1: brushRef=\"#nobody\""},
    {"format.inkml", "1: traceFormatRef=\"#nobody\""},
    {"prior.inkml", "1: priorRef=\"#nobody\""},
    {"no-y.inkml", "1: the trace format has no X and Y"},
    {"range.inkml", "1: max=\"wide\" is not a number"},
    {"no-traces.inkml", " the recording has no sample"},
    {"nested-trace.inkml", "1: <trace> inside a trace"},
    {"nested-context.inkml", "1: <context> inside another"},
};
INSTANTIATE_TEST_SUITE_P(Files, BadRecordingTest, ::testing::ValuesIn(kBadRecordings), [](const auto& given) {
    std::string name = given.param.file;
    for (char& c : name)
        c = std::isalnum(static_cast<unsigned char>(c)) ? c : '_';
    return name;
});

TEST(BadRecordingTest, EveryDamagedFileHasItsRow) {
    const auto files = QDir(kRecordings + QStringLiteral("bad")).entryList(QDir::Files);
    for (const QString& file : files) {
        EXPECT_THAT(kBadRecordings,
                    ::testing::Contains(::testing::Field(&BadRecording::file, file.toStdString())));
    }
}

// Every prefix of a good file must be read or refused, whatever it breaks off.
TEST(BadRecordingTest, TruncationNeverCrashes) {
    for (const char* name : {"hover.dat", "canvas.json", "office.inkml", "groups.inkml"}) {
        const auto bytes = readFile(kRecordings + QLatin1String(name));
        ASSERT_TRUE(bytes) << name;
        for (qsizetype size = 0; size < bytes->size(); ++size) {
            const auto recording = readRecording(bytes->left(size));
            EXPECT_TRUE(recording || !recording.problem().what.isEmpty()) << name << ' ' << size;
        }
    }
}

TEST(BadRecordingTest, DeepNestingIsRefused) {
    const int depth = 300000;
    EXPECT_FALSE(readRecording("{\"strokes\":" + QByteArray(depth, '[')));
    EXPECT_FALSE(readRecording("{\"strokes\":[{\"set\":{\"a\":" + QByteArray(depth, '[')));
    EXPECT_FALSE(readRecording("<ink>" + QByteArray("<traceGroup>").repeated(depth)));
    const auto groups =
        readRecording("<ink>" + QByteArray("<traceGroup>").repeated(depth) + "<trace>1 2</trace>" +
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
        readRecording("<ink>" + each + nested + QByteArray("</traceGroup>").repeated(20000) + "</ink>"));
    EXPECT_LT(clock.elapsed(), 10000);
}

// ---- Canvas size

TEST(NeededSizeTest, CoversSamplesAndMarginOrIsTheCanvas) {
    Recording recording;
    recording.strokes.resize(1);
    recording.strokes[0].samples = {{10, 7.2, 1, 0}, {-50, 3, 1, 0}};
    EXPECT_EQ(neededSize(recording, 5), QSize(15, 13));
    recording.strokes[0].samples = {{-90, -90, 1, 0}};
    EXPECT_EQ(neededSize(recording, 5), QSize(1, 1));
    recording.size = QSize(3, 4);
    EXPECT_EQ(neededSize(recording, 5), QSize(3, 4));
}

}  // namespace
}  // namespace dabcanvas::dabpaint
