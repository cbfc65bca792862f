// SPDX-License-Identifier: MIT
#include "Preset/XBF.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <memory>

#include "TestFolders.h"
#include "support/HexFile.h"

namespace {

using namespace std::string_literals;
using Stream = std::unique_ptr<std::FILE, decltype(&XBFClose)>;

Stream streamOf(const std::string& bytes = {}) {
    Stream stream(std::tmpfile(), XBFClose);
    std::fwrite(bytes.data(), 1, bytes.size(), stream.get());
    std::rewind(stream.get());
    return stream;
}

std::string bytesOf(const Stream& stream) {
    std::string bytes(1 << 16, 0);
    std::rewind(stream.get());
    bytes.resize(std::fread(bytes.data(), 1, bytes.size(), stream.get()));
    return bytes;
}

std::string number(std::uint32_t value) {
    return {static_cast<char>(value), static_cast<char>(value >> 8), static_cast<char>(value >> 16),
            static_cast<char>(value >> 24)};
}

// A record as a file spells it.
std::string record(std::uint32_t id, std::uint32_t type, std::string value = {},
                   const std::string& payload = {}, const std::string& method = "setIt:") {
    value.resize(kXBFInlineSize);
    return number(id) + number(static_cast<std::uint32_t>(method.size())) + method + number(type) + value +
           payload;
}

std::string dataRecord(std::uint32_t width, std::uint32_t height, std::uint32_t depth,
                       const std::string& payload = {}) {
    return record(1, kXBFData, number(width) + number(height) + number(depth), payload);
}

std::string textRecord(std::uint32_t length, const std::string& payload = {}) {
    return record(1, kXBFText, "\xAA\xAA\xAA\xAA\xAA\xAA\xAA\xAA", number(length) + payload);
}

const std::string kTerminator = record(0, 0, {}, {}, {});

_XBFParamValue emptyValue() {
    _XBFParamValue value;
    std::memset(&value, 0, sizeof value);
    return value;
}

// Reads one record, as its id and type, whatever it owns freed.
std::pair<XBFRead, int> readOne(std::FILE* file) {
    _XBFParamData data;
    const XBFRead result = TryNextParamData(file, &data);
    XBFFreeParamData(&data);
    return {result, data.id};
}

// Writing

TEST(XBF, AMissingStreamIsRefusedByEveryFunction) {
    EXPECT_FALSE(AddXBFInfo(nullptr, XBFInfoMake(200, 1)));
    EXPECT_FALSE(AddBrushName(nullptr, "Ink"));
    EXPECT_FALSE(AddValue(nullptr, 1, "setIt:", kXBFInt, emptyValue()));
    EXPECT_EQ(ReadXBFInfo(nullptr).versionAndKind, 0u);
    EXPECT_EQ(ReadXBFInfo(nullptr).count, 0u);
    EXPECT_EQ(ReadBrushName(nullptr), nullptr);
    const _XBFParamData data = NextParamData(nullptr);
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(&data.id), 4), "0000");
    EXPECT_EQ(data.type, 0);
    EXPECT_EQ(XBFClose(nullptr), EOF);
}

TEST(XBF, AFileThatCannotBeOpenedIsSaidOnStandardOutputWithoutALineEnd) {
    testing::internal::CaptureStdout();
    EXPECT_EQ(XBFCreate(nullptr), nullptr);
    EXPECT_EQ(XBFOpen(nullptr), nullptr);
    EXPECT_EQ(XBFCreate("no/such/folder/a.xbf"), nullptr);
    EXPECT_EQ(XBFOpen("no/such/b.xbf"), nullptr);
    std::fflush(stdout);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "filename not NULL!filename not NULL!Open file(no/such/folder/a.xbf) error!"
              "Open file(no/such/b.xbf) error!");
}

TEST(XBF, TheHeaderIsWrittenAgainInItsPlace) {
    const Stream stream = streamOf();
    EXPECT_TRUE(AddXBFInfo(stream.get(), XBFInfoMake(200, 1)));
    EXPECT_TRUE(AddBrushName(stream.get(), "Ink"));
    EXPECT_TRUE(AddBrushName(stream.get(), nullptr));
    EXPECT_TRUE(AddXBFInfo(stream.get(), XBFInfoMake(0x01020304, 2)));
    EXPECT_EQ(bytesOf(stream), "\4\3\2\1\1\x10\0\0\2\0\0\0\3\0\0\0Ink\0\0\0\0"s);
    const XBFInfo info = ReadXBFInfo(stream.get());
    EXPECT_EQ(info.version(), 0x01020304u);
    EXPECT_EQ(info.kind(), 4097u);
    EXPECT_EQ(info.count, 2u);
}

TEST(XBF, AMethodIsCutTo39BytesAndTheRestOfALongerOneIsSkipped) {
    const std::string method = "setSomethingWithAnUncommonlyLongName39:";
    ASSERT_EQ(method.size(), 39u);
    const Stream written = streamOf();
    AddValue(written.get(), 7, (method + "andMore:").c_str(), kXBFInt, emptyValue());
    EXPECT_EQ(bytesOf(written), record(7, kXBFInt, {}, {}, method));

    for (const std::size_t more : {1u, 40u, 5000u}) {
        const Stream stream =
            streamOf(record(7, kXBFBool, {}, {}, method + std::string(more, 'x')) + kTerminator);
        const _XBFParamData data = NextParamData(stream.get());
        EXPECT_EQ(data.id, 7);
        EXPECT_EQ(data.name, method);
        EXPECT_EQ(data.type, kXBFBool);
        EXPECT_EQ(readOne(stream.get()).first, XBFRead::terminator);
    }
}

// Reading

TEST(XBF, LengthsBelowOneMeanNothingAndATerminatorOwnsNothing) {
    EXPECT_EQ(ReadBrushName(streamOf(number(-5u) + "later").get()), nullptr);
    const std::string noMethod = number(5) + number(-1u) + number(kXBFInt) + number(8) + std::string(12, 0);
    const Stream stream = streamOf(noMethod + textRecord(0) + textRecord(-1u) +
                                   record(0, kXBFText, {}, number(3) + "abc") + record(6, kXBFInt));
    for (const int id : {5, 1, 1, 0, 6}) {
        const _XBFParamData data = NextParamData(stream.get());
        EXPECT_EQ(data.id, id);
        EXPECT_EQ(data.value.textValue, id == 5 ? reinterpret_cast<char*>(8) : nullptr);
    }
}

TEST(XBF, ADataBlockHasTheProductOfItsFactorsWhateverTheirSigns) {
    for (const std::uint32_t width : {6u, 5000u}) {  // read by way of a buffer, and in one go
        const std::string bytes(std::size_t{width} * 4, 'd');
        const Stream stream = streamOf(dataRecord(-width, -2u, 2, bytes) + kTerminator);
        _XBFParamData data = NextParamData(stream.get());
        ASSERT_EQ(XBFDataSize(data.value.textureValue), static_cast<std::int64_t>(bytes.size()));
        EXPECT_EQ(std::string(data.value.textureValue.data, bytes.size()), bytes);
        // What cannot be read again is not written.
        _XBFParamValue negative = data.value;
        negative.textureValue.depth = -2;
        XBFFreeParamData(&data);
        EXPECT_FALSE(AddValue(stream.get(), 1, "", kXBFData, negative));
        EXPECT_FALSE(AddValue(stream.get(), 1, "", kXBFData, data.value));
        EXPECT_EQ(readOne(stream.get()).first, XBFRead::terminator);
    }
}

// Damage: the length that a piece claims is refused before anything is allocated by it, which a file that
// only ends too early is not.
TEST(XBF, HostileLengthsStopTheReading) {
    const std::uint32_t huge = INT_MAX;
    const struct {
        const char* name;
        std::string bytes;
        XBFRead expected;
    } rows[] = {
        {"text", textRecord(huge, "61"), XBFRead::tooLong},
        {"data", dataRecord(huge, 1, 1, "d"), XBFRead::tooLong},
        {"data by one", dataRecord(1, 2001, 1, std::string(2000, 'd')), XBFRead::tooLong},
        {"overflow", dataRecord(huge, huge, 3, "d"), XBFRead::badSize},
        {"overflow to a small product", dataRecord(1u << 31, 1u << 31, 4, "d"), XBFRead::badSize},
        {"negative", dataRecord(-2u, 3, 1, "d"), XBFRead::badSize},
        {"method", number(1) + number(huge) + std::string(100, 'm'), XBFRead::tooLong},
        {"short method", number(1) + number(30) + "m", XBFRead::cutShort},
        {"text without length", record(1, kXBFText) + "ab", XBFRead::cutShort},
        {"half an id", "ab", XBFRead::cutShort},
        {"nothing", "", XBFRead::endOfFile},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(readOne(streamOf(row.bytes).get()), std::pair(row.expected, 0));
        _XBFParamData data;
        EXPECT_EQ(TrySkipParamData(streamOf(row.bytes).get(), &data), row.expected);
        data = NextParamData(streamOf(row.bytes).get());
        EXPECT_EQ(data.id, 0);
        EXPECT_EQ(data.value.textureValue.data, nullptr);
    }
    char* name = nullptr;
    EXPECT_EQ(TryReadBrushName(streamOf(number(huge) + "Ink").get(), &name), XBFRead::tooLong);
    EXPECT_EQ(TryReadBrushName(streamOf("In").get(), &name), XBFRead::cutShort);
    EXPECT_EQ(TryReadBrushName(streamOf("").get(), &name), XBFRead::endOfFile);
    EXPECT_EQ(name, nullptr);
}

#ifndef _WIN32
// From a pipe the header could be read, but only once; without a place to go back to, nothing of it counts.
TEST(XBF, AStreamThatCannotSeekIsSaidToFail) {
    const std::unique_ptr<std::FILE, decltype(&pclose)> pipe(popen("printf 'a header of 12 and more'", "r"),
                                                             pclose);
    XBFInfo info;
    EXPECT_EQ(TryReadXBFInfo(pipe.get(), &info), XBFRead::failed);
    EXPECT_EQ(info.count, 0u);
}
#endif

TEST(XBF, WhatLooksLikeAnXBFFile) {
    const std::string good = hexFile(DABCANVAS_TEST_DATA "/xbf/preset.hex").bytes;
    const auto withKind = [&](std::uint32_t kind, std::string bytes) {
        return bytes.replace(4, 4, number(kind));
    };
    const auto otherKind = [&](std::size_t place, std::uint32_t value) {
        return withKind(5, good).replace(place, 4, number(value));
    };
    ASSERT_GT(good.size(), 100u);
    const struct {
        const char* name;
        std::string bytes;
        bool expected;
    } rows[] = {
        {"a preset", good, true},
        {"cut behind its header", good.substr(0, 12), true},
        {"cut in its header", good.substr(0, 11), false},
        {"empty", "", false},
        {"another kind", withKind(5, good), true},
        {"another kind and no brush", otherKind(8, 0).substr(0, 12), true},
        {"another kind and more than no brush", otherKind(8, 0), false},
        {"another kind and too many brushes", otherKind(8, 10), false},
        {"another kind and a long name", otherKind(12, 100000), false},
        {"another kind and a long method", otherKind(23, 40), false},
        {"another kind and an unknown type", otherKind(40, 7), false},
        {"PNG", "\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\1\0\0\0\1\0\x08\6\0\0\0"s + std::string(5000, 'p'), false},
        {"text", "A text file says something else.\n" + std::string(5000, 't'), false},
        {"program", "\x7F\x45LF\2\1\1\0\0\0\0\0\0\0\0\0\3\0\x3E\0"s + std::string(5000, 0), false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const Stream stream = streamOf(row.bytes);
        EXPECT_EQ(XBFLooksRight(stream.get()), row.expected);
        EXPECT_EQ(std::ftell(stream.get()), 0);
    }
}

}  // namespace
