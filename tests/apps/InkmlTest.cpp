// SPDX-License-Identifier: MIT
// InkML: point lists worked out by hand, and what units, ranges, contexts and brushes make of them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QPointF>
#include <cmath>
#include <limits>

#include "InkmlFormat.h"
#include "InkmlReader.h"
#include "InkmlTrace.h"
#include "apps/Samples.h"
#include "support/Named.h"

namespace dabcanvas::dabpaint {
namespace {

// ---- Point lists

constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();

struct PointList : Named {
    const char* channels;  // a letter each: n number, b boolean, i intermittent number
    const char* text;
    std::vector<double> values;  // of all points, one after the other
};

class PointListTest : public ::testing::TestWithParam<PointList> {};

TEST_P(PointListTest, DecodesTo) {
    std::vector<TraceChannel> channels;
    for (const char* letter = GetParam().channels; *letter; ++letter)
        channels.push_back({*letter == 'b', *letter == 'i'});
    std::vector<double> values;
    Problem problem;
    const bool decoded = decodeTrace(
        GetParam().text, channels,
        [&values](std::span<const double> point) { values.insert(values.end(), point.begin(), point.end()); },
        problem);
    ASSERT_TRUE(decoded) << problem.what.toStdString();
    EXPECT_THAT(values, ::testing::Pointwise(::testing::NanSensitiveDoubleEq(), GetParam().values));
}

const PointList kPointLists[] = {
    {"Explicit", "nn", "1 2, 3 4 ,5\n6", {1, 2, 3, 4, 5, 6}},
    {"TrailingComma", "nn", " 1 2, ", {1, 2}},
    {"Empty", "nn", " \n ", {}},
    {"MinusParts", "nn", "10-20,-3-.5,- 4 -6", {10, -20, -3, -0.5, -4, -6}},
    {"Forms", "nnn", ".5 1e-3 1E2,#FF #a -#10", {0.5, 1e-3, 100, 255, 10, -16}},
    {"PointsPart", "nn", "1.5.5,2 3", {1.5, 0.5, 2, 3}},
    {"FirstDifference", "nn", "10 20,'1'2,3-4,!5 1", {10, 20, 11, 22, 14, 18, 5, 19}},
    {"PrefixBack", "nn", "10 20,'1'2,!7!8,1 1", {10, 20, 11, 22, 7, 8, 1, 1}},
    {"SecondDifference",
     "nn",
     "1125 18432,'23'43,\"7\"-8,3-5,7 -3,6 2,6 8,3 6,3 2,3 4",
     {1125, 18432, 1148, 18475, 1178, 18510, 1211, 18540, 1251, 18567,
      1297, 18596, 1349, 18633, 1404, 18676, 1462, 18721, 1523, 18770}},
    {"SecondAfterExplicit", "n", "5,8,\"1,0,!2", {5, 8, 12, 16, 2}},
    {"SecondAtStart", "n", "5,\"1,1", {5, 6, 8}},
    {"PrefixPerChannel", "nn", "1 1,'1 5,1 6", {1, 1, 2, 5, 3, 6}},
    {"RepeatValue", "nn", "1 2,* 3,4 *", {1, 2, 1, 3, 4, 3}},
    {"RepeatDifference", "n", "10,'2,*,*,\"1,*", {10, 12, 14, 16, 19, 23}},
    {"UnknownKeepsLast", "nn", "1 2,'? 1,'3 1", {1, 2, kUnknown, 1, 4, 1}},
    {"NoBlankNeeded", "nnn", "1*?,2*-3", {1, 0, kUnknown, 2, 0, -3}},
    {"Boolean", "nbn", "1T2,3 F 4,5*6", {1, 1, 2, 3, 0, 4, 5, 0, 6}},
    {"Intermittent",
     "nii",
     "1,2 3,4 5 6,7 ? 8",
     {1, kUnknown, kUnknown, 2, 3, kUnknown, 4, 5, 6, 7, kUnknown, 8}},
};
INSTANTIATE_TEST_SUITE_P(ByHand, PointListTest, ::testing::ValuesIn(kPointLists), byName);

// ---- Formats

constexpr float kNone = -1;

Recording read(const QByteArray& inside) {
    const auto recording = readInkml("<ink>" + inside + "</ink>");
    EXPECT_TRUE(recording) << inside.constData() << (recording ? "" : recording.problem().what.toStdString());
    return recording ? *recording : Recording();
}

struct Scaling : Named {
    const char* channels;  // attributes of X, Y and others
    const char* trace;
    RecordedSample last;  // what the trace's last point becomes
};

class ScalingTest : public ::testing::TestWithParam<Scaling> {};

TEST_P(ScalingTest, LastPointIs) {
    QByteArray format = "<traceFormat>";
    for (const QByteArray& channel : QByteArray(GetParam().channels).split(';'))
        format += "<channel name=" + channel + "/>";
    const Recording recording = read(format + "</traceFormat><trace>" + GetParam().trace + "</trace>");
    ASSERT_EQ(recording.strokes.size(), 1u);
    const RecordedSample& last = GetParam().last;
    EXPECT_THAT(recording.strokes[0].samples.back(), IsSample(last.x, last.y, last.pressure, last.altitude));
}

const Scaling kScalings[] = {
    {"Pixels", "'X';'Y' units='dev'", "10 20", {10, 20, kNone, kNone}},
    {"Inches", "'X' units='in';'Y' units='in'", "1 .5", {96, 48, kNone, kNone}},
    {"Metric", "'X' units='cm';'Y' units='mm'", "2.54 25.4", {96, 96, kNone, kNone}},
    {"Points", "'X' units='pt';'Y' units='pc'", "72 6", {96, 96, kNone, kNone}},
    {"OtherOrder", "'Y';'T';'X'", "10 999 20", {20, 10, kNone, kNone}},
    {"Backwards", "'X';'Y' min='0' max='100' orientation='-ve'", "10 20", {10, 80, kNone, kNone}},
    // Moved, as it would lie above the canvas: the topmost point comes to 32.
    {"BackwardsFree", "'X';'Y' orientation='-ve'", "10 50,10 20", {10, 62, kNone, kNone}},
    {"LeftOfCanvas", "'X';'Y'", "-100 5,50 6", {182, 6, kNone, kNone}},
    {"FarRange", "'X' min='9000' max='12000';'Y'", "9000 5,9100 6", {132, 6, kNone, kNone}},
    // 9600 long becomes 960, with 32 around.
    {"Tablet", "'X';'Y'", "1000 2000,10600 2500", {992, 82, kNone, kNone}},
    {"ForceByRange", "'X';'Y';'F' min='100' max='300'", "1 2 150", {1, 2, 0.25, kNone}},
    {"ForceBeyondRange", "'X';'Y';'F' max='300'", "1 2 301", {1, 2, 1, kNone}},
    {"ForcePlain", "'X';'Y';'F'", "1 2 1,1 2 .25", {1, 2, 0.25, kNone}},
    {"ForceByLargest", "'X';'Y';'F'", "1 2 500,1 2 125", {1, 2, 0.25, kNone}},
    {"ForceNewtons", "'X';'Y';'F' units='N' max='8'", "1 2 2", {1, 2, 0.25, kNone}},
    {"ForceUnknownHolds", "'X';'Y';'F' max='4'", "1 2 3,1 2 ?", {1, 2, 0.75, kNone}},
    {"PlaceUnknownLeftOut", "'X';'Y'", "1 2,? 3", {1, 2, kNone, kNone}},
    {"ElevationUpright", "'X';'Y';'OE'", "1 2 90", {1, 2, kNone, 0}},
    {"ElevationFlat", "'X';'Y';'OE' units='deg'", "1 2 0", {1, 2, kNone, 1}},
    {"ElevationRadians", "'X';'Y';'OE' units='rad'", "1 2 0.78539816339744830962", {1, 2, kNone, 0.5}},
    {"ElevationTenths", "'X';'Y';'OE' min='0' max='900'", "1 2 225", {1, 2, kNone, 0.75}},
    {"ElevationRadianRange",
     "'X';'Y';'OE' max='1.5707963'",
     "1 2 0.39269908169872415481",
     {1, 2, kNone, 0.75}},
    {"TiltOneAxis", "'X';'Y';'OTx' units='deg'", "1 2 -45", {1, 2, kNone, 0.5}},
    // tan 45 = 1 both ways: atan(sqrt 2) = 54.7356 degrees.
    {"TiltBothAxes", "'X';'Y';'OTx';'OTy'", "1 2 45 -45", {1, 2, kNone, 0.60817344796939278}},
    {"TiltFlat", "'X';'Y';'OTx';'OTy'", "1 2 90 0", {1, 2, kNone, 1}},
    {"ElevationBeforeTilt", "'X';'Y';'OTx';'OE'", "1 2 45 90", {1, 2, kNone, 0}},
};
INSTANTIATE_TEST_SUITE_P(Channels, ScalingTest, ::testing::ValuesIn(kScalings), byName);

TEST(InkmlTest, UnknownForceBeforeTheFirstKnownIsThatOne) {
    const Recording recording = read(
        "<traceFormat><channel name='X'/><channel name='Y'/><channel name='F' max='2'/>"
        "</traceFormat><trace>1 1 ?,2 2 1,3 3 ?</trace>");
    for (const RecordedSample& sample : recording.strokes.at(0).samples)
        EXPECT_EQ(sample.pressure, 0.5f);
}

// ---- Files

TEST(InkmlTest, AsAnOfficeProgramWritesIt) {
    const auto read = readNamed(QStringLiteral("office.inkml"));
    ASSERT_TRUE(read) << read.problem().what.toStdString();
    const Recording& recording = *read;
    ASSERT_EQ(recording.strokes.size(), 2u);
    // Differences of 2540 thousandths of a centimetre are 96 pixels; the separators are left out.
    EXPECT_THAT(recording.strokes[0].samples,
                ::testing::ElementsAre(IsSample(96, 192, 0, kNone), IsSample(192, 192, 1, kNone),
                                       IsSample(192, 96, 16383 / 32767.0, kNone)));
    ASSERT_EQ(recording.strokes[0].settings.size(), 2u);
    EXPECT_EQ(recording.strokes[0].settings[0].value, SettingValue(QStringLiteral("#e71224")));
    EXPECT_NEAR(std::get<double>(recording.strokes[0].settings[1].value), 9.6, 1e-9);
    // A trace without a brush has the painter's own again.
    ASSERT_EQ(recording.strokes[1].settings.size(), 2u);
    EXPECT_TRUE(std::holds_alternative<std::monostate>(recording.strokes[1].settings[0].value));
}

TEST(InkmlTest, GroupsContextsAndContinuedTraces) {
    const auto read = readNamed(QStringLiteral("groups.inkml"));
    ASSERT_TRUE(read) << read.problem().what.toStdString();
    const Recording& recording = *read;
    ASSERT_EQ(recording.strokes.size(), 4u);
    const auto colorOf = [&recording](std::size_t stroke) {
        return std::get<QString>(recording.strokes[stroke].settings.at(0).value).toStdString();
    };
    EXPECT_THAT(recording.strokes[0].samples,
                ::testing::ElementsAre(IsSample(10, 20, 0.5, kNone), IsSample(11, 21, 0.5, kNone)));
    EXPECT_EQ(colorOf(0), "#ff0000");
    EXPECT_THAT(recording.strokes[1].samples,
                ::testing::ElementsAre(IsSample(1, 2, 1, kNone), IsSample(3, 4, 1, kNone),
                                       IsSample(5, 6, 0.25, kNone)));
    EXPECT_EQ(colorOf(1), "#0000ff");
    EXPECT_TRUE(recording.strokes[2].settings.empty()) << "blue still";
    EXPECT_THAT(recording.strokes[3].samples,
                ::testing::ElementsAre(IsSample(7, 8, kNone, kNone), IsSample(9, 10, kNone, kNone)));
    EXPECT_EQ(recording.strokes[3].settings.size(), 1u);
}

TEST(InkmlTest, ContextsTakeEffectWhereTheyStand) {
    const Recording recording = read(
        "<trace>1 2</trace>"
        "<context><traceFormat><channel name='Y'/><channel name='X'/></traceFormat></context><trace>1 "
        "2</trace>"
        "<context><brush><brushProperty name='width' value='7'/></brush></context><trace>1 2</trace>"
        "<traceFormat><channel name='X' units='in'/><channel name='Y' units='in'/></traceFormat><trace>1 "
        "2</trace>"
        "<trace contextRef='#DefaultContext'>1 2</trace>");
    ASSERT_EQ(recording.strokes.size(), 5u);
    const QPointF expected[] = {{1, 2}, {2, 1}, {2, 1}, {96, 192}, {96, 192}};
    for (std::size_t i = 0; i < 5; ++i)
        EXPECT_THAT(recording.strokes[i].samples.at(0), IsSample(expected[i].x(), expected[i].y(), -1, -1))
            << i;
    EXPECT_EQ(recording.strokes[2].settings.at(0).value, SettingValue(7.0));
}

TEST(InkmlTest, ReferencesInACircleEnd) {
    const auto recording = readInkml(
        "<ink><context xml:id='a' contextRef='#b'/><context xml:id='b' contextRef='#a'/>"
        "<trace contextRef='#a'>1 2</trace></ink>");
    ASSERT_TRUE(recording);
    EXPECT_THAT(recording->strokes.at(0).samples, ::testing::ElementsAre(IsSample(1, 2, kNone, kNone)));
}

}  // namespace
}  // namespace dabcanvas::dabpaint
