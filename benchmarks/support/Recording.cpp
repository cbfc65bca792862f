// SPDX-License-Identifier: MIT
#include "support/Recording.h"

#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace dabcanvas::bench {

namespace {

constexpr char kSession[] = DABCANVAS_SHARED_DATA "/painting30sec.dat";
constexpr char kSample[] = DABCANVAS_SAMPLES "/sketch.dat";

struct Row {
    double seconds, x, y, pressure;
};

// "seconds x y pressure", read the same under every locale.
bool readRow(const std::string& line, Row& row) {
    const char* at = line.data();
    const char* const end = at + line.size();
    for (double* const value : {&row.seconds, &row.x, &row.y, &row.pressure}) {
        while (at != end && (*at == ' ' || *at == '\t')) {
            ++at;
        }
        const auto [next, error] = std::from_chars(at, end, *value);
        if (error != std::errc()) {
            return false;
        }
        at = next;
    }
    return true;
}

// Strokes of one sample are left out: they give no line to measure.
Recording readFile(const char* path) {
    Recording recording;
    std::ifstream file(path);
    Stroke stroke;
    const auto endStroke = [&] {
        if (stroke.size() > 1) {
            recording.samples += stroke.size();
            recording.strokes.push_back(stroke);
        }
        stroke.clear();
    };
    double before = 0;
    for (std::string line; std::getline(file, line);) {
        Row row{};
        if (!readRow(line, row)) {
            continue;
        }
        if (row.pressure > 0) {
            stroke.push_back({static_cast<float>(row.x), static_cast<float>(row.y),
                              static_cast<float>(row.pressure), row.seconds - before});
        } else {
            endStroke();
        }
        before = row.seconds;
    }
    endStroke();
    return recording;
}

Recording readSession() {
    Recording recording = readFile(kSession);
    recording.label = "painting30sec.dat";
    if (recording.strokes.empty()) {
        recording = readFile(kSample);
        recording.label = "sketch.dat, as ../shared/data/painting30sec.dat is missing";
    }
    if (recording.strokes.empty()) {
        std::fprintf(stderr, "no recording to replay: neither %s nor %s can be read\n", kSession, kSample);
        std::exit(1);
    }
    return recording;
}

}  // namespace

const Recording& penSession() {
    static const Recording recording = readSession();
    return recording;
}

}  // namespace dabcanvas::bench
