// SPDX-License-Identifier: MIT
// Recordings as text: what is refused, and that numbers come back.
#include <gmock/gmock.h>

#include <QBuffer>
#include <random>

#include "Recording/RecordingReader.h"
#include "Recording/RecordingWriter.h"
#include "support/Rows.h"

namespace dabcanvas {
namespace {

constexpr char kHeader[] = R"({"dabcanvas":"recording","version":1,"width":64,"height":48,"seed":3})"
                           "\n";

TEST(RecordingTextTest, LinesAreReadOrRefusedWithTheirPlace) {
    for (const QStringList& row : rowsOf("recordings/lines.txt")) {
        SCOPED_TRACE(qPrintable(row.join('|')));
        RecordingReader reader;
        const auto events = reader.readLine(row[0].toUtf8(), 1);
        bool isCount = false;
        const auto count = std::size_t(row[1].toInt(&isCount));
        ASSERT_EQ(static_cast<bool>(events), isCount)
            << (events ? "" : qPrintable(events.problem().text("")));
        if (isCount)
            EXPECT_EQ(events->size(), count);
        else
            EXPECT_THAT(events.problem().text("").toStdString(), ::testing::HasSubstr(row[1].toStdString()));
    }
}

TEST(RecordingTextTest, HeadersAreChecked) {
    const auto told = [](QByteArray bytes) {
        const auto read = readRecording(bytes);
        return read ? std::string() : read.problem().text("R").toStdString();
    };
    EXPECT_TRUE(isRecording(kHeader));
    EXPECT_TRUE(isRecording("{ \"dabcanvas\" : \"recording\"}"));
    EXPECT_FALSE(isRecording("{\"strokes\": []}"));
    EXPECT_EQ(told(kHeader), "");
    EXPECT_EQ(told(""), "R: the recording is empty");
    EXPECT_EQ(told(QByteArray(kHeader).replace(":1,", ":2,")), "");
    EXPECT_THAT(told(QByteArray(kHeader).replace(":1,", ":3,")),
                ::testing::HasSubstr("of version 3; this program reads"));
    EXPECT_THAT(told(QByteArray(kHeader).replace("64", "0")), ::testing::HasSubstr("R:1: width: expected"));
    EXPECT_THAT(told(QByteArray(kHeader).replace("\"height\":48,", "")),
                ::testing::HasSubstr("needs version, width"));
    EXPECT_THAT(told(kHeader + QByteArray("\n{\"do\":1}\n")), ::testing::HasSubstr("R:3: do: "));
    EXPECT_THAT(told("{\"version\":1}"), ::testing::HasSubstr("not that of a recording"));
}

TEST(RecordingTextTest, NumbersComeBackAsTheyWere) {
    std::mt19937 random(3);
    Recording recording;
    recording.header.size = {64, 48};
    StrokePart stroke;
    for (int i = 0; i < 2000; ++i) {
        const auto bits = std::uint32_t(random());
        float any = 0;
        std::memcpy(&any, &bits, sizeof any);
        const double place = double(random()) * 3e-5 - 60000 + double(random()) * 1e-12;
        stroke.samples.push_back(
            {place, -place, std::isfinite(any) ? any : -0.0f, 0.1f * float(i), 1e-4 * i});
    }
    recording.events.push_back({0.3, stroke});
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    ASSERT_TRUE(writeRecording(recording, file));
    const auto read = readRecording(file.data());
    ASSERT_TRUE(read) << read.problem().text("R").toStdString();
    const auto& samples = std::get<StrokePart>(read->events.at(0).what).samples;
    ASSERT_EQ(samples.size(), stroke.samples.size());
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const RecordedSample &a = samples[i], &b = stroke.samples[i];
        ASSERT_TRUE(a.x == b.x && a.y == b.y && a.pressure == b.pressure && a.altitude == b.altitude &&
                    a.time == b.time)
            << i << ' ' << b.pressure;
    }
}

TEST(RecordingTextTest, APictureIsEmbeddedOnceAndKeepsItsBytes) {
    QImage picture(5, 4, QImage::Format_RGBA8888_Premultiplied),
        deep(3, 2, QImage::Format_RGBA64_Premultiplied);
    for (QImage* image : {&picture, &deep})
        for (qsizetype i = 0; i < image->sizeInBytes(); ++i)
            image->bits()[i] = uchar(i * 37);  // colours above alpha, too
    picture.setDevicePixelRatio(2);
    Recording recording;
    recording.header.size = {64, 48};
    for (int i = 0; i < 3; ++i)
        recording.events.push_back(
            {0, BrushChange{BrushKey::textureImages, QList<QImage>{picture, picture.copy()}}});
    recording.events.push_back({0, WholePicture{deep}});
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    ASSERT_TRUE(writeRecording(recording, file));
    EXPECT_EQ(file.data().count("\"png\""), 2);
    const auto read = readRecording(file.data());
    ASSERT_TRUE(read) << read.problem().text("R").toStdString();
    const auto tips = std::get<QList<QImage>>(std::get<BrushChange>(read->events.at(2).what).value);
    ASSERT_EQ(tips.size(), 2);
    EXPECT_EQ(tips[1], picture);
    EXPECT_EQ(tips[1].devicePixelRatio(), 2);
    EXPECT_EQ(std::get<WholePicture>(read->events.at(3).what).picture, deep);
}

}  // namespace
}  // namespace dabcanvas
