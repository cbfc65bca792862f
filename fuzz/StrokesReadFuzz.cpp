// SPDX-License-Identifier: MIT
// Any bytes, read as a recording of each kind. What is read has samples within reach, what is refused has a reason.
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "Recording/InkmlReader.h"
#include "Recording/RowsReader.h"
#include "Recording/StrokesCsv.h"
#include "Recording/StrokesFile.h"
#include "Recording/StrokesJson.h"
#include "Recording/SvgReader.h"
#include "Recording/TableReader.h"
#include "Recording/XoppReader.h"

using namespace dabcanvas;

namespace {

[[noreturn]] void fail(const char* what) {
    std::fprintf(stderr, "StrokesReadFuzz: %s\n", what);
    std::abort();
}

template <typename Value>
bool isRead(const Result<Value>& result) {
    if (!result && result.problem().what.isEmpty()) {
        fail("refused without a reason");
    }
    return static_cast<bool>(result);
}

bool isUnit(float value) {
    return value == -1 || (value >= 0 && value <= 1);
}

void check(const Result<RecordedStrokes>& result) {
    if (!isRead(result)) {
        return;
    }
    for (const RecordedStroke& stroke : result->strokes) {
        for (const RecordedSample& sample : stroke.samples) {
            if (!(std::abs(sample.x) <= kFarthest && std::abs(sample.y) <= kFarthest)) {
                fail("a sample out of reach");
            }
            if (!isUnit(sample.pressure) || !isUnit(sample.altitude)) {
                fail("pressure or altitude out of range");
            }
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    check(readStrokes(bytes));
    check(readStrokesJson(bytes));
    check(readInkml(bytes));
    check(readRows(bytes));
    check(readTable(bytes));
    check(readSvg(bytes));
    check(readXopp(bytes));
    isRead(unpackedGzip(bytes, 1 << 20));
    if (const auto input = readDabsInput(bytes); isRead(input)) {
        extentOf(input->strokes);
    }
    if (const auto strokes = readStrokesCsv(bytes); isRead(strokes)) {
        for (const NamedStroke& stroke : *strokes) {
            for (const ShapePoint& point : stroke.points) {
                if (!std::isfinite(point.x) || !std::isfinite(point.y)) {
                    fail("a point that is not finite");
                }
            }
        }
    }
    return 0;
}
