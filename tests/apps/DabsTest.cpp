// SPDX-License-Identifier: MIT
// The dabs command: rows worked out from the rules of the line process.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QList>

#include "DabsCommand.h"
#include "Recording/Numbers.h"

namespace dabcanvas::dabpaint {
namespace {

QByteArray dabsOf(const QByteArray& json) {
    const auto input = readDabsInput(json);
    EXPECT_TRUE(input) << input.problem().text("input").toStdString();
    QByteArray rows;
    if (input) {
        const auto problem = writeDabs(
            *input, [&rows](std::string_view text) { rows.append(text.data(), qsizetype(text.size())); });
        EXPECT_FALSE(problem) << problem->what.toStdString();
    }
    return rows;
}

// Compares rows number by number: a last digit may differ where the processor rounds differently.
void expectRows(const QByteArray& rows, const std::vector<std::vector<double>>& expected) {
    const QList<QByteArray> lines = rows.trimmed().split('\n');
    ASSERT_EQ(std::size_t(lines.size()), expected.size()) << rows.constData();
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const QList<QByteArray> numbers = lines[qsizetype(i)].split(',');
        ASSERT_EQ(numbers.size(), 7) << lines[qsizetype(i)].constData();
        for (std::size_t j = 0; j < 7; ++j) {
            const auto number = numberFromText(numbers[qsizetype(j)]);
            ASSERT_TRUE(number) << numbers[qsizetype(j)].constData();
            EXPECT_NEAR(*number, expected[i][j], 1e-5) << "row " << i << ", column " << j;
        }
    }
}

TEST(DabsTest, SettingsStayAndSamplesCountOverTheFile) {
    // One dab a sample. Radius 10 at the middle of 0.2 and 1 is 6; the end tapers to 0.1 of 10. The speed at
    // a move of 10 is 1 - 10/50 with weight 0.3; an end measures none, and blends the speed before with
    // itself.
    const QByteArray rows = dabsOf(R"({"strokes": [
        {"set": {"radius": 10, "pointsDistanceEnabled": 0}, "samples": [[0, 0, 0.5, 0], [10, 0, 0.5, 0.25], [10, 1, 0.5]]},
        {"samples": [[7, 7]]},
        {"set": {"radiusControl": [0, 0, 1], "sensitivity": 10, "speedSencitive": 1},
         "samples": [[0, 0, 0], [0, 10, 1, 0]], "end": false}]})");
    expectRows(rows, {{1, 10, 0, 6, 0.5, 0.25, 0.94},
                      {2, 10, 1, 1, 0.5, 0, 0.94},
                      {5, 0, 10, 2, 0.2, 0, 0}});  // fully fast: the smallest size
}

TEST(DabsTest, SeedRepeatsJitter) {
    const QByteArray json =
        R"({"srand": 5, "strokes": [{"set": {"radiusTingle": 1}, "samples": [[0, 0], [90, 0], [99, 9]]}]})";
    const QByteArray rows = dabsOf(json);
    EXPECT_GT(rows.count('\n'), 5);
    EXPECT_EQ(rows, dabsOf(json));
    EXPECT_NE(rows, dabsOf(QByteArray(json).replace("5", "6")));
}

TEST(DabsTest, WrongSettingsAreRefusedBeforeAnyRow) {
    const std::pair<const char*, const char*> table[] = {
        {R"("raduis": 1)",
         "input:1: strokes[1].set.raduis: no line property has this name; did you mean radius?"},
        {R"("radius": true)", "set.radius: expected a number"},
        {R"("radius": 1e39)", "set.radius: expected a number that fits 32 bits"},
        {R"("trackNum": 1.5)", "set.trackNum: expected a whole number"},
        {R"("smoothEnabled": 2)", "set.smoothEnabled: expected true or false"},
        {R"("radiusControl": [1, 2])", "set.radiusControl: expected [pressure, altitude, speed]"},
        {R"("stage": 1)", "set.stage: no line property"},
    };
    for (const auto& [set, message] : table) {
        const auto input =
            readDabsInput(QByteArray(R"({"strokes": [{"samples": [[0, 0], [9, 9]]}, {"set": {)") + set +
                          R"(}, "samples": [[0, 0]]}]})");
        ASSERT_TRUE(input);
        bool written = false;
        const auto problem = writeDabs(*input, [&written](std::string_view) { written = true; });
        ASSERT_TRUE(problem) << set;
        EXPECT_THAT(problem->text("input").toStdString(), ::testing::HasSubstr(message));
        EXPECT_FALSE(written) << set;
    }
}

}  // namespace
}  // namespace dabcanvas::dabpaint
