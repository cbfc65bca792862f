// SPDX-License-Identifier: MIT
// The shapes command and paint --recognise.
#include <cmath>

#include "apps/Program.h"

namespace dabcanvas::dabpaint {
namespace {

// A level line and a stroke that is too short, their rows mixed.
QByteArray twoStrokes() {
    QByteArray rows = "\xEF\xBB\xBFy,t,\"sample_id\",x\r\n";
    for (int i = 0; i < 9; ++i) {
        rows += "20.5,1,\"a \"\"line\"\", level\"," + QByteArray::number(10 + 5 * i) + "\r\n";
        rows += i < 4 ? "8,,7,-1e0\r\n\r\n" : "";
    }
    return rows;
}
const char kHeader[] = "sample_id,kind,legs,confidence,geometry\n";
const char kTwoRows[] = R"("a ""line"", level",line,,[01](\.[0-9]+)?,10 20\.5 50 20\.5)"
                        "\n7,none,,[01](\\.[0-9]+)?,\n";

TEST_F(ProgramTest, ShapesComeStrokeByStrokeFromAnyInput) {
    const auto isTable = [](const std::string& rows) { return ::testing::MatchesRegex(kHeader + rows); };
    for (const char* words : {"shapes", "shapes -"}) {
        const Ended ended = run(words, twoStrokes());
        EXPECT_EQ(ended.status, 0) << ended.err.constData();
        EXPECT_THAT(ended.out.toStdString(), isTable(kTwoRows));
    }
    // A name counts within its file only.
    write("in.csv", twoStrokes().replace("\r\n", "\r"));
    const Ended ended = run("shapes %in.csv - -o %out.csv --outlines %lines.csv", twoStrokes());
    EXPECT_EQ(ended.status, 0) << ended.err.constData();
    EXPECT_TRUE(ended.out.isEmpty());
    const auto written = [&](const char* name) { return contentOf(path(name)).toStdString(); };
    EXPECT_THAT(written("out.csv"), isTable(std::string(kTwoRows) + kTwoRows));
    const std::string line = "\"a \"\"line\"\", level\",10,20.5\n\"a \"\"line\"\", level\",50,20.5\n";
    EXPECT_EQ(written("lines.csv"), "sample_id,x,y\n" + line + line);
}

TEST_F(ProgramTest, BadTablesAreToldWithTheirLineAndLeaveNoFile) {
    const std::pair<QByteArray, const char*> table[] = {
        {"", "in.csv: the table is empty"},
        {"sample_id,X,y\n", "in.csv:1: the first row names no column x"},
        {"sample_id,x,y,x\n", "in.csv:1: the first row names two columns x"},
        {"sample_id,x,y\na,1,2\n\na,1\n", "in.csv:4: 2 field(s) where the first row has 3"},
        {"sample_id,x,y\na,1,0x2\n", "in.csv:2: y is \"0x2\", not a finite number"},
        {"sample_id,x,y\na,1e999,2\n", "in.csv:2: x is \"1e999\""},
        {"sample_id,x,y\na,,2\n", "in.csv:2: x is \"\""},
        {"sample_id,x,y\n,1,2\n", "in.csv:2: sample_id is empty"},
        {"sample_id,x,y\n\"a\nb\",1,2\n\"c,1,2\n", "in.csv:4: a quoted field is not closed"},
        {"sample_id,x,y\n\"a\nb\"c,1,2\n", "in.csv:3: a quoted field goes on after its closing quote"},
    };
    for (const auto& [bytes, message] : table) {
        write("in.csv", bytes);
        expectOneLine(run("shapes %in.csv -o %out.csv --outlines %lines.csv"), 1, message);
    }
    write("in.csv", twoStrokes());
    expectOneLine(run("shapes %in.csv %none.csv"), 1, "none.csv: cannot be read");
    expectOneLine(run("shapes %in.csv --outlines %no/a -o %out.csv"), 1, "no/a: cannot be written");
    expectOneLine(run("shapes %in.csv --outlines -"), 2, "would both go to standard output");
    expectOneLine(run("shapes - %in.csv --outlines %./in.csv"), 2, "in.csv is what is read");
    EXPECT_EQ(filesThere(), QStringList("in.csv"));
}

// A line, a spiral and a line, drawn within no time.
TEST_F(ProgramTest, RecognisedRecordingsKeepTheirShapesAlone) {
    QByteArray rows;
    for (const int stroke : {0, 1, 2}) {
        for (int i = 0; i < 40; ++i) {
            const double r = stroke == 1 ? i * 0.5 : 0;
            rows += "0 " + QByteArray::number(stroke == 1 ? 75 + r * std::cos(i * 0.5) : 10.0 + i * 3) + ' ' +
                    QByteArray::number(20 + 40 * stroke + r * std::sin(i * 0.5)) + " 1\n";
        }
        rows += "0 0 0 0\n";
    }
    write("a.dat", rows);
    const auto paint = [&](const char* more) {
        const Ended ended = run(std::string("paint %a.dat -o %a.png --size=150x120 --set radius=6") + more);
        EXPECT_EQ(ended.status, 0) << ended.err.constData();
        std::vector<bool> painted;
        for (const int y : {20, 60, 100})
            painted.push_back(qGray(QImage(path("a.png")).pixel(75, y)) < 200);
        return painted;
    };
    EXPECT_EQ(paint(""), (std::vector<bool>{true, true, true}));
    EXPECT_EQ(paint(" --recognise"), (std::vector<bool>{true, false, true}));
    // One of the two was no step.
    EXPECT_EQ(paint(" --recognise --undo=2"), (std::vector<bool>{true, false, false}));
}

}  // namespace
}  // namespace dabcanvas::dabpaint
