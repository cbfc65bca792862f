// SPDX-License-Identifier: MIT
#include "Recognition/ShapeRuns.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <memory>
#include <numbers>

#include "Recognition/ShapePlaces.h"

namespace {

constexpr double kPi = std::numbers::pi;
constexpr float kInfinity = std::numeric_limits<float>::infinity();

std::vector<LPPoint> taken(const ShapeRun& run) {
    const std::unique_ptr<LPPoint, decltype(&std::free)> owned(run.points, &std::free);
    EXPECT_EQ(run.points == nullptr, run.count == 0);
    return {run.points, run.points + run.count};
}

std::vector<ShapePoint> taken(ShapePoint* samples, int n) {
    const std::unique_ptr<ShapePoint, decltype(&std::free)> owned(samples, &std::free);
    return samples == nullptr ? std::vector<ShapePoint>() : std::vector<ShapePoint>(samples, samples + n);
}

std::vector<LPPoint> lines(int type, const std::vector<ShapePoint>& corners) {
    return taken(
        LineProcess::processLineWithType(type, corners.data(), 7, static_cast<std::int64_t>(corners.size())));
}

// Lines

TEST(ShapeRunsTest, TwoPointsAreAnOpenLineWithoutItsEnd) {
    for (const int type : {0, 2, 3}) {
        SCOPED_TRACE(type);
        const auto run = lines(type, {{0, 0}, {10, 0}});
        ASSERT_EQ(run.size(), 11u);
        for (std::size_t j = 0; j < run.size(); ++j) {
            EXPECT_EQ(run[j].position.x, static_cast<float>(10.0 * static_cast<double>(j) / 11));
            EXPECT_EQ(run[j].position.y, 0);
            EXPECT_EQ(run[j].radius, 7);
            EXPECT_TRUE(run[j].params.pressure == 1 && run[j].params.altitude == 1 &&
                        run[j].params.speed == 1);
        }
    }
}

TEST(ShapeRunsTest, TheTypeSaysWhichCornersAreJoined) {
    const std::vector<ShapePoint> corners = {{0, 0}, {4, 0}, {4, 9}};
    const auto closed = lines(2, corners);
    ASSERT_EQ(closed.size(), std::size_t(10 + 5 + 10));  // the side that closes is 9.85 long
    EXPECT_EQ(closed[0].position.y, 9);
    EXPECT_EQ(closed[10].position.x, 0);
    EXPECT_EQ(closed[10].position.y, 0);
    EXPECT_EQ(closed[15].position.x, 4);
    EXPECT_EQ(lines(3, corners).size(), 15u);
    EXPECT_EQ(lines(1, corners).size(), 5u);
    EXPECT_EQ(lines(1, {{0, 0}, {4, 0}, {4, 9}, {4, 10}}).size(), 7u);
    EXPECT_EQ(lines(2, {{3, 3}, {3, 3}, {3, 3}}).size(), 3u);
}

TEST(ShapeRunsTest, WhatCannotBeDrawnGivesNothing) {
    const ShapePoint corners[] = {{0, 0}, {1e300, 0}, {std::nan(""), 0}, {1e9, 0}, {5, 0}};
    for (const std::int64_t count : {1, 0, -3}) {
        EXPECT_TRUE(taken(LineProcess::processLineWithType(2, corners, 1, count)).empty());
    }
    EXPECT_TRUE(taken(LineProcess::processLineWithType(3, nullptr, 1, 2)).empty());
    for (int i = 0; i < 4; ++i) {
        EXPECT_TRUE(taken(LineProcess::processLineWithType(3, corners + i, 1, 2)).empty()) << i;
    }
    const auto ellipse = [](float w, float h, float radian, float size) {
        return taken(LineProcess::processEllipsesWithCenter({9, 9}, w, h, radian, size)).size();
    };
    const auto arc = [](float start, float end) {
        return taken(LineProcess::processArcWithCenter({9, 9}, 10, 10, 1, start, end, 1)).size();
    };
    EXPECT_GT(ellipse(10, 10, 1, 1), 0u);
    for (const float bad : {0.0f, -5.0f, kInfinity, std::nanf("")}) {
        EXPECT_EQ(ellipse(bad, 10, 1, 1) + ellipse(10, bad, 1, 1) + ellipse(10, 10, bad, 1) +
                      ellipse(10, 10, 1, bad) + arc(bad, bad) + arc(100, bad),
                  0u)
            << bad;
    }
    EXPECT_EQ(ellipse(1e30f, 10, 1, 1) + ellipse(0.1f, 0.1f, 1, 1) + ellipse(10, 10, 0.001f, 1), 0u);
    EXPECT_EQ(arc(0, 1e-20f) + arc(9, 1), 0u);
    EXPECT_TRUE(taken(CreateArc(0, 0, 0, 1, 1, 0, 0, 1), 0).empty());
    EXPECT_TRUE(taken(CreateArc(std::numeric_limits<int>::max(), 0, 0, 1, 1, 0, 0, 1), 0).empty());
    EXPECT_EQ(taken(CreateArc(3, 5, 5, 1, 1, 0, 2, 2), 3), std::vector<ShapePoint>(3));
}

// Ellipses and arcs

TEST(ShapeRunsTest, SamplesLieOnTheTurnedEllipse) {
    const auto samples =
        taken(CreateArc(4, 100, 50, 20, 10, static_cast<float>(kPi / 6), 0, static_cast<float>(kPi)), 4);
    const double h = std::sqrt(3) / 2;
    EXPECT_NEAR(samples[0].x, 100 + 20 * h, 1e-5);
    EXPECT_NEAR(samples[0].y, 50 - 10, 1e-5);  // turned counter-clockwise: up, where y is down
    EXPECT_NEAR(samples[2].x, 100 + 5, 1e-5);
    EXPECT_NEAR(samples[2].y, 50 + 10 * h, 1e-5);
    // An end before the start is a turn later; more than a turn is the whole from angle 0.
    const auto across = taken(CreateArc(2, 0, 0, 1, 1, 0, 6, 1), 2);
    EXPECT_NEAR(across[1].x, std::cos((6 + 1 + 2 * kPi) / 2), 1e-6);
    EXPECT_NEAR(across[1].y, std::sin((6 + 1 + 2 * kPi) / 2), 1e-6);
    EXPECT_EQ(taken(CreateArc(5, 1, 2, 3, 4, 1, 2, 9), 5), taken(CreateEllipses(5, 1, 2, 3, 4, 1), 5));
    // However many there are, none is left out and none lies beyond.
    for (const int n : {1, 3, 7, 1000, 99991}) {
        const auto all = taken(CreateEllipses(n, 0, 0, 1, 1, 0), n);
        EXPECT_NEAR(all.back().x, std::cos(2 * kPi / n), 1e-6) << n;
        EXPECT_NEAR(all.back().y, -std::sin(2 * kPi / n), 1e-6) << n;
    }
}

TEST(ShapeRunsTest, OutlinesAreDenseAndArcsGoByTheirEndAngle) {
    const auto ellipse = taken(LineProcess::processEllipsesWithCenter({40, 30}, 10, 10, 0.5f, 2));
    EXPECT_EQ(ellipse.size(), 31u * 3);  // 31 sides of 2.02
    for (std::size_t i = 0; i < ellipse.size(); ++i) {
        const LPPosition& at = ellipse[i].position;
        const LPPosition& next = ellipse[(i + 1) % ellipse.size()].position;
        EXPECT_LT(std::hypot(next.x - at.x, next.y - at.y), 1);
        EXPECT_NEAR(std::hypot(at.x - 40, at.y - 30), 10, 0.06);
    }
    // Half a turn of radius 10 by 31, 38 or 125 samples.
    const auto arc = [](double start, double end) {
        return taken(LineProcess::processArcWithCenter({0, 0}, 10, 10, 1, static_cast<float>(start),
                                                       static_cast<float>(end), 1))
            .size();
    };
    EXPECT_EQ(arc(kPi, 2 * kPi), 30u * 2);      // of 1.01 each
    EXPECT_EQ(arc(kPi / 2, 3 * kPi / 2), 40u);  // 41 samples, of 0.77
    EXPECT_EQ(arc(-kPi / 2, kPi / 2), 124u);
    EXPECT_EQ(arc(3 * kPi / 2, kPi / 2), 61u);  // past the whole turn
}

// Places

TEST(ShapePlacesTest, EveryCornerAndEndHasADabAndNoGapIsWide) {
    struct Row {
        ShapeKind kind;
        std::size_t corners;
        double rotation, start, end;
        double length;  // of the first stroke, with the way back of a closed one
    };
    const double ellipse = 230.24;
    const Row rows[] = {
        {ShapeKind::line, 2, 0, 0, 0, 100},
        {ShapeKind::foldLine, 4, 0, 0, 0, 100 + 51.24 + 98.01},
        {ShapeKind::triangle, 3, 0, 0, 0, 100 + 51.24 + 116.73},
        {ShapeKind::rectangle, 4, 0, 0, 0, 100 + 51.24 + 98.01 + 50.49},
        {ShapeKind::arrow, 4, 0, 0, 0, 100},
        {ShapeKind::ellipse, 0, 0, 0, 0, ellipse},
        {ShapeKind::ellipse, 0, 0.0015, 0, 0, ellipse},
        {ShapeKind::ellipse, 0, 2.5, 0, 0, ellipse},
        {ShapeKind::arc, 0, 0, 0, kPi, ellipse / 2},
        {ShapeKind::arc, 0, 1, 6, 6 + kPi, ellipse / 2},
        {ShapeKind::arc, 0, 3.1, 0.001, 0.001 + kPi / 2, ellipse / 4},
        {ShapeKind::arc, 0, 0, 5, 5 + 2 * kPi, ellipse},
    };
    const auto distance = [](const LPPosition& at, const ShapePoint& to) {
        return std::hypot(static_cast<double>(at.x) - to.x, static_cast<double>(at.y) - to.y);
    };
    for (const Row& row : rows) {
        for (const double spacing : {0.5, 3.0, 17.0, 1000.0}) {
            SCOPED_TRACE(testing::Message() << nameOfShapeKind(row.kind) << " at " << row.rotation << " from "
                                            << row.start << ", " << spacing << " apart");
            ShapeRecord record{row.kind,  {{10, 10}, {110, 10}, {115, 61}, {17, 60}},
                               {60, 50},  50,
                               20,        row.rotation,
                               row.start, row.end};
            record.corners.resize(row.corners);
            const auto strokes = placesOnShape(record, spacing);
            ASSERT_EQ(strokes.size(), row.kind == ShapeKind::arrow ? 2u : 1u);
            const bool closed = record.isClosed() || row.end - row.start > 6.28;
            std::vector<LPPosition> places = strokes.front();
            if (closed) {
                places.push_back(places.front());
            } else if (row.kind == ShapeKind::arrow) {
                places.push_back({110, 10});  // the tip, which the head draws
            }
            double length = 0, widest = 0;
            for (std::size_t i = 1; i < places.size(); ++i) {
                const double gap = distance(places[i], {places[i - 1].x, places[i - 1].y});
                length += gap;
                widest = std::max(widest, gap);
            }
            EXPECT_NEAR(length, row.length, spacing < 10 ? row.length * 0.003 : row.length);
            EXPECT_LT(widest, spacing * 1.5);
            // Every corner or both ends are met, and what is round lies on the outline as it is told.
            std::vector<ShapePoint> met = record.corners;
            if (record.isRound()) {
                const auto outline = outlineOfShape(record, 0.1);
                met = closed ? met : std::vector{outline.front(), outline.back()};
                for (const LPPosition& at : places) {
                    EXPECT_TRUE(
                        std::any_of(outline.begin(), outline.end(),
                                    [&](const ShapePoint& point) { return distance(at, point) < 0.1; }))
                        << at.x << ", " << at.y;
                }
            }
            places.insert(places.end(), strokes.back().begin(), strokes.back().end());
            for (const ShapePoint& corner : met) {
                EXPECT_TRUE(std::any_of(places.begin(), places.end(),
                                        [&](const LPPosition& at) { return distance(at, corner) < 0.01; }))
                    << corner.x << ", " << corner.y;
            }
        }
    }
}

TEST(ShapePlacesTest, IncompleteAndAbsurdShapesHaveNone) {
    ShapeRecord shape;
    shape.corners = {{1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 5}};
    for (int kind = 0; kind <= static_cast<int>(ShapeKind::arrow); ++kind) {
        shape.kind = static_cast<ShapeKind>(kind);
        if (shape.kind != ShapeKind::foldLine) {
            EXPECT_TRUE(placesOnShape(shape, 1).empty()) << kind;
        }
    }
    shape.kind = ShapeKind::ellipse;
    shape.endAngle = 6;
    for (const double size : {0.0, -1.0, 1e6, 2e6, 1e9, 1e300, std::nan("")}) {
        shape.a = shape.b = size;
        for (const ShapeKind kind : {ShapeKind::ellipse, ShapeKind::arc}) {
            shape.kind = kind;
            EXPECT_TRUE(placesOnShape(shape, 1).empty()) << size;
            EXPECT_EQ(outlineOfShape(shape).empty(), std::isnan(size)) << size;
        }
    }
    shape.kind = ShapeKind::ellipse;
    shape.a = shape.b = 0.01;  // smaller than any run
    EXPECT_EQ(placesOnShape(shape, 1).front().size(), 1u);
    shape.kind = ShapeKind::arc;
    shape.endAngle = 1;
    EXPECT_EQ(placesOnShape(shape, 1).front().size(), 2u);
    EXPECT_TRUE(placesOnShape(shape, 0).empty());
    shape.kind = ShapeKind::line;
    shape.corners = {{0, 0}, {1e12, 0}};
    EXPECT_TRUE(placesOnShape(shape, 1).empty());
}

}  // namespace
