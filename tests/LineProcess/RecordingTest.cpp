// SPDX-License-Identifier: MIT
#include <algorithm>
#include <fstream>
#include <locale>
#include <string>

#include "LineProcess/StrokeFixture.h"
#include "TestFolders.h"

namespace {

struct Sample {
    LPPosition at;
    float pressure;
};

// The pen-down runs of a recorded session.
std::vector<std::vector<Sample>> readStrokes(const std::string& path) {
    std::vector<std::vector<Sample>> strokes;
    std::ifstream file(path);
    file.imbue(std::locale::classic());
    double seconds = 0;
    Sample sample = {};
    bool down = false;
    while (file >> seconds >> sample.at.x >> sample.at.y >> sample.pressure) {
        if (sample.pressure > 0.0f) {
            if (!down) {
                strokes.emplace_back();
            }
            strokes.back().push_back(sample);
        }
        down = sample.pressure > 0.0f;
    }
    return strokes;
}

}  // namespace

TEST_F(StrokeTest, ARealSessionComesOutEvenly) {
    const auto strokes = readStrokes(DABCANVAS_SHARED_DATA "/painting30sec.dat");
    if (strokes.empty()) {
        GTEST_SKIP() << "the recording painting30sec.dat is not beside this checkout";
    }
    _line.radiusControl = {0.8f, 0.0f, 0.3f};
    _line.minPointsDistance = 0.1f;
    for (const auto& stroke : strokes) {
        lpStartLineWithParams(stroke[0].at, stroke[0].pressure, 0.0f);
        Dabs dabs;
        double reach = 0.0;  // how far the samples get from the stroke's first
        for (std::size_t i = 1; i < stroke.size(); ++i) {
            const Dabs more = append(stroke[i].at, stroke[i].pressure, 0.0f, i + 1 == stroke.size());
            dabs.insert(dabs.end(), more.begin(), more.end());
        }
        for (const Sample& sample : stroke) {
            const LPPoint as = dabAt(sample.at.x, sample.at.y);
            reach = std::max(reach, dabs.empty() ? 0.0 : gapBetween(dabs[0], as));
        }
        double dabReach = 0.0;
        for (std::size_t i = 0; i < dabs.size(); ++i) {
            ASSERT_TRUE(isUsable(dabs[i]));
            ASSERT_TRUE(dabs[i].radius >= 4.0f * 0.999f && dabs[i].radius <= 20.001f);
            dabReach = std::max(dabReach, gapBetween(dabs[0], dabs[i]));
            if (i > 0) {
                ASSERT_LT(gapBetween(dabs[i - 1], dabs[i]), 0.15 * dabs[i - 1].radius * 1.02 + 0.05)
                    << "dab " << i;
            }
        }
        // The curve keeps within its samples and falls short of the farthest by little.
        EXPECT_LE(dabReach, reach + 0.01);
        EXPECT_GT(dabReach, reach * 0.9 - 3.1);
    }
}
