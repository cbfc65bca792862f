// SPDX-License-Identifier: MIT
// How well recorded and generated strokes are recognised, where their files are at hand.
#include "Recognition/Unitily.h"
#include "TestFolders.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace {
namespace fs = std::filesystem;

std::vector<std::string> fieldsOf(const std::string& line) {
    std::vector<std::string> fields;
    std::istringstream in(line);
    for (std::string field; std::getline(in, field, ',');) {
        fields.push_back(field);
    }
    return fields;
}

std::vector<std::vector<std::string>> rowsOf(const fs::path& file) {
    std::vector<std::vector<std::string>> rows;
    std::ifstream in(file);
    std::string line;
    std::getline(in, line);  // the header
    while (std::getline(in, line)) {
        rows.push_back(fieldsOf(line));
    }
    return rows;
}

std::map<std::string, std::vector<ShapePoint>> strokesIn(const fs::path& folder) {
    std::map<std::string, std::vector<ShapePoint>> strokes;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        const std::string name = entry.path().filename().string();
        if (entry.path().extension() != ".csv" || name == "labels.csv" || name == "ideal.csv") {
            continue;
        }
        for (const std::vector<std::string>& row : rowsOf(entry.path())) {
            strokes[row[0]].push_back(
                {std::strtod(row[5].c_str(), nullptr), std::strtod(row[6].c_str(), nullptr)});
        }
    }
    return strokes;
}

struct Bar {
    const char* folder;
    double named, kind, accepted, legs;
};

class GestureFiles : public testing::TestWithParam<Bar> {};
// The hurried ones are strokes of made-up people, all of which were once taken for nothing or something else.
INSTANTIATE_TEST_SUITE_P(
    All, GestureFiles,
    testing::Values(Bar{DABCANVAS_SHARED_DATA "/gestures-pilot", 0.993, 0.985, 0.01, 0.99},
                    Bar{DABCANVAS_SHARED_DATA "/gestures-synthetic", 0.993, 0.985, 0.01, 0.96},
                    Bar{DABCANVAS_TEST_DATA "/gestures-hurried", 0.85, 0.5, 0, 0.6}),
    [](const auto& row) { return fs::path(row.param.folder).filename().string().substr(9); });

TEST_P(GestureFiles, AreRecognised) {
    const Bar& bar = GetParam();
    const fs::path folder = bar.folder;
    if (!fs::exists(folder / "labels.csv")) {
        GTEST_SKIP() << folder << " is not here";
    }
    const auto strokes = strokesIn(folder);
    std::map<std::string, std::pair<int, int>> kinds;  // right, all
    std::pair<int, int> legs;
    std::string wrong;
    for (const std::vector<std::string>& row : rowsOf(folder / "labels.csv")) {
        ASSERT_TRUE(strokes.contains(row[0])) << row[0];
        const ShapeRecord shape = Unitily::recogniseWithPoints(strokes.at(row[0]));
        const std::string kind(nameOfShapeKind(shape.kind));
        const bool right = ("|" + row[3] + "|").find("|" + kind + "|") != std::string::npos;
        kinds[row[2]].first += right;
        ++kinds[row[2]].second;
        wrong += right ? "" : row[0] + " is called " + kind + "\n";
        if (row[2] == "foldline" && kind == row[2]) {
            legs.first += std::to_string(shape.legs()) == row[4];
            ++legs.second;
        }
    }
    int right = 0;
    int all = 0;
    for (const auto& [kind, counts] : kinds) {
        if (kind == "none") {
            EXPECT_LE(counts.second - counts.first, bar.accepted * counts.second) << wrong;
        } else if (kind != "either") {
            EXPECT_GE(counts.first, bar.kind * counts.second) << kind << '\n' << wrong;
            right += counts.first;
            all += counts.second;
        }
    }
    EXPECT_GT(all, 10);
    EXPECT_GE(right, bar.named * all) << wrong;
    EXPECT_GE(legs.first, bar.legs * legs.second);
}
}  // namespace
