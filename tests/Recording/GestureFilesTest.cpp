// SPDX-License-Identifier: MIT
// How well recorded and generated strokes are recognised, where their files are at hand.

#include <QDir>
#include <map>

#include "Recognition/Unitily.h"
#include "Recording/CsvReader.h"
#include "Recording/StrokesCsv.h"
#include "TestFolders.h"
#include "support/Files.h"

namespace dabcanvas {
namespace {
// The first row names the columns.
std::vector<std::vector<std::string>> rowsOf(const QByteArray& bytes) {
    std::vector<std::vector<std::string>> rows;
    CsvReader reader({bytes.data(), static_cast<std::size_t>(bytes.size())});
    while (const auto* row = reader.next())
        rows.emplace_back(row->begin(), row->end());
    EXPECT_FALSE(reader.problem());
    rows.erase(rows.begin());
    return rows;
}

struct Bar {
    const char* folder;
    double named, kind, accepted, legs;
};

// Recordings beside the checkout are not everywhere; the hurried ones are.
std::vector<Bar> thoseAtHand(std::vector<Bar> bars) {
    std::erase_if(bars, [](const Bar& bar) {
        return QString(bar.folder).startsWith(DABCANVAS_SHARED_DATA) &&
               !QDir(bar.folder).exists("labels.csv");
    });
    return bars;
}

class GestureFiles : public testing::TestWithParam<Bar> {};
// The hurried ones are strokes of made-up people, all of which were once taken for nothing or something else.
INSTANTIATE_TEST_SUITE_P(
    All, GestureFiles,
    testing::ValuesIn(thoseAtHand({Bar{DABCANVAS_SHARED_DATA "/gestures-pilot", 0.993, 0.985, 0.01, 0.99},
                                   Bar{DABCANVAS_SHARED_DATA "/gestures-synthetic", 0.993, 0.985, 0.01, 0.96},
                                   Bar{DABCANVAS_TEST_DATA "/gestures-hurried", 0.85, 0.5, 0, 0.6}})),
    [](const auto& row) { return QDir(row.param.folder).dirName().mid(9).toStdString(); });

TEST_P(GestureFiles, AreRecognised) {
    const Bar& bar = GetParam();
    const QDir folder(bar.folder);
    ASSERT_TRUE(folder.exists("labels.csv")) << bar.folder;
    std::map<std::string, std::vector<ShapePoint>> strokes;
    for (const QString& file : folder.entryList({"*.csv"})) {
        if (file == "labels.csv" || file == "ideal.csv")
            continue;
        const auto read = readStrokesCsv(contentOf(folder.filePath(file)));
        for (const NamedStroke& stroke : *read)
            strokes[stroke.id] = stroke.points;
    }
    std::map<std::string, std::pair<int, int>> kinds;  // right, all
    std::pair<int, int> legs;
    std::string wrong;
    for (const std::vector<std::string>& row : rowsOf(contentOf(folder.filePath("labels.csv")))) {
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
}  // namespace dabcanvas
