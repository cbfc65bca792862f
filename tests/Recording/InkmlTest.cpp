// SPDX-License-Identifier: MIT
// InkML: point lists worked out by hand, and what units, ranges, contexts and brushes make of them.

#include <QPointF>
#include <limits>

#include "Recording/InkmlFormat.h"
#include "Recording/InkmlReader.h"
#include "Recording/InkmlTrace.h"
#include "Recording/Samples.h"
#include "support/Rows.h"

namespace dabcanvas {
namespace {

// ---- Point lists

TEST(InkmlTest, PointListsDecodeAsByHand) {
    for (const QStringList& row : rowsOf("inkml/points.txt")) {
        SCOPED_TRACE(qPrintable(row[0]));
        std::vector<TraceChannel> channels;
        for (const QChar letter : row[1])
            channels.push_back({letter == 'b', letter == 'i'});
        std::vector<double> values, expected;
        Problem problem;
        const auto take = [&](std::span<const double> point) {
            values.insert(values.end(), point.begin(), point.end());
        };
        ASSERT_TRUE(decodeTrace(row[2].toStdString(), channels, take, problem)) << problem.what.toStdString();
        for (const QString& number : row[3].split(' ', Qt::SkipEmptyParts))
            expected.push_back(number == "?" ? std::numeric_limits<double>::quiet_NaN() : number.toDouble());
        EXPECT_THAT(values, ::testing::Pointwise(::testing::NanSensitiveDoubleEq(), expected));
    }
}

// ---- Formats

constexpr float kNone = -1;

RecordedStrokes read(const QByteArray& inside) {
    const auto recording = readInkml("<ink>" + inside + "</ink>");
    EXPECT_TRUE(recording) << inside.constData() << (recording ? "" : recording.problem().what.toStdString());
    return recording ? *recording : RecordedStrokes();
}

TEST(InkmlTest, ChannelsScaleTheLastPoint) {
    for (const QStringList& row : rowsOf("inkml/channels.txt")) {
        SCOPED_TRACE(qPrintable(row[0]));
        QByteArray format = "<traceFormat>";
        for (const QString& channel : row[1].split(';'))
            format += "<channel name=" + channel.toUtf8() + "/>";
        const RecordedStrokes recording =
            read(format + "</traceFormat><trace>" + row[2].toUtf8() + "</trace>");
        ASSERT_EQ(recording.strokes.size(), 1u);
        std::vector<double> last;
        for (const QString& number : row[3].split(' '))
            last.push_back(number == "-" ? kNone : number.toDouble());
        ASSERT_EQ(last.size(), 4u);
        EXPECT_THAT(recording.strokes[0].samples.back(), IsSample(last[0], last[1], last[2], last[3]));
    }
}

TEST(InkmlTest, UnknownForceBeforeTheFirstKnownIsThatOne) {
    const RecordedStrokes recording = read(
        "<traceFormat><channel name='X'/><channel name='Y'/><channel name='F' max='2'/>"
        "</traceFormat><trace>1 1 ?,2 2 1,3 3 ?</trace>");
    for (const RecordedSample& sample : recording.strokes.at(0).samples)
        EXPECT_EQ(sample.pressure, 0.5f);
}

// ---- Files

TEST(InkmlTest, AsAnOfficeProgramWritesIt) {
    const auto read = readNamed("office.inkml");
    ASSERT_TRUE(read) << read.problem().what.toStdString();
    const RecordedStrokes& recording = *read;
    ASSERT_EQ(recording.strokes.size(), 2u);
    // Differences of 2540 thousandths of a centimetre are 96 pixels; the separators are left out.
    EXPECT_THAT(recording.strokes[0].samples,
                ::testing::ElementsAre(IsSample(96, 192, 0, kNone), IsSample(192, 192, 1, kNone),
                                       IsSample(192, 96, 16383 / 32767.0, kNone)));
    ASSERT_EQ(recording.strokes[0].settings.size(), 2u);
    EXPECT_EQ(recording.strokes[0].settings[0].value, SettingValue("#e71224"));
    EXPECT_NEAR(std::get<double>(recording.strokes[0].settings[1].value), 9.6, 1e-9);
    // A trace without a brush has the painter's own again.
    ASSERT_EQ(recording.strokes[1].settings.size(), 2u);
    EXPECT_TRUE(std::holds_alternative<std::monostate>(recording.strokes[1].settings[0].value));
}

TEST(InkmlTest, GroupsContextsAndContinuedTraces) {
    const auto read = readNamed("groups.inkml");
    ASSERT_TRUE(read) << read.problem().what.toStdString();
    const RecordedStrokes& recording = *read;
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
    const RecordedStrokes recording = read(
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
}  // namespace dabcanvas
