// SPDX-License-Identifier: MIT
#include "Recognition/Unitily.h"

#include "Strokes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <ostream>
#include <string>
#include <tuple>
#include <utility>

void PrintTo(ShapeKind kind, std::ostream* out) {
    *out << nameOfShapeKind(kind);
}

namespace {
constexpr double kPi = std::numbers::pi;

double distanceBetween(const ShapePoint& a, const ShapePoint& b) {
    return std::hypot(b.x - a.x, b.y - a.y);
}

Stroke joined(Stroke one, const Stroke& other) {
    one.insert(one.end(), other.begin(), other.end());
    return one;
}

double distanceTo(const Stroke& outline, const ShapePoint& p) {
    double nearest = std::numeric_limits<double>::infinity();
    for (std::size_t i = 1; i < outline.size(); ++i) {
        const ShapePoint& a = outline[i - 1];
        const double dx = outline[i].x - a.x;
        const double dy = outline[i].y - a.y;
        const double squared = dx * dx + dy * dy;
        const double along =
            squared > 0 ? std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / squared, 0.0, 1.0) : 0;
        nearest = std::min(nearest, std::hypot(p.x - a.x - along * dx, p.y - a.y - along * dy));
    }
    return nearest;
}

// The furthest that a point of either lies from the other.
double apart(const Stroke& one, const Stroke& other) {
    double furthest = 0;
    for (const ShapePoint& p : one) {
        furthest = std::max(furthest, distanceTo(other, p));
    }
    for (const ShapePoint& p : other) {
        furthest = std::max(furthest, distanceTo(one, p));
    }
    return furthest;
}

struct Meant {
    const char* name;
    ShapeKind kind;
    Stroke outline;  // about 200 across
    int legs = 0;
};

const std::vector<Meant>& meantShapes() {
    static const std::vector<Meant> kShapes = {
        {"Line", ShapeKind::line, drawn({{-100, 0}, {100, 0}})},
        {"V", ShapeKind::foldLine, drawn({{-60, -90}, {0, 90}, {60, -90}}), 2},
        {"Check", ShapeKind::foldLine, drawn({{-70, 20}, {-20, 80}, {80, -80}}), 2},
        {"Bracket", ShapeKind::foldLine, drawn({{40, -100}, {-40, -100}, {-40, 100}, {40, 100}}), 3},
        {"Z", ShapeKind::foldLine, drawn({{-70, -70}, {70, -70}, {-70, 70}, {70, 70}}), 3},
        {"W", ShapeKind::foldLine, drawn({{-100, -60}, {-50, 60}, {0, -60}, {50, 60}, {100, -60}}), 4},
        {"Triangle", ShapeKind::triangle, drawn({{-90, 60}, {90, 70}, {-10, -90}, {-90, 60}})},
        {"Rectangle", ShapeKind::rectangle,
         drawn({{-100, -60}, {100, -60}, {100, 60}, {-100, 60}, {-100, -60}})},
        {"Square", ShapeKind::rectangle, drawn({{-70, -70}, {70, -70}, {70, 70}, {-70, 70}, {-70, -70}})},
        {"Parallelogram", ShapeKind::parallelogram,
         drawn({{-110, 50}, {50, 50}, {110, -50}, {-50, -50}, {-110, 50}})},
        {"Rhombus", ShapeKind::parallelogram, drawn({{-100, 0}, {0, 55}, {100, 0}, {0, -55}, {-100, 0}})},
        {"Circle", ShapeKind::ellipse, round(90, 90, 10, 370)},
        {"Ellipse", ShapeKind::ellipse, round(100, 50, -80, 280)},
        {"HalfCircle", ShapeKind::arc, round(100, 100, 180, 360)},
        {"LongArc", ShapeKind::arc, round(90, 90, 20, 280)},
        {"OvalArc", ShapeKind::arc, round(100, 60, -30, 200)},
        {"Arrow", ShapeKind::arrow, drawn({{-110, 0}, {100, 0}, {60, -35}, {100, 0}, {60, 35}})},
    };
    return kShapes;
}

class ShapesAreRecognised : public testing::TestWithParam<Meant> {};
INSTANTIATE_TEST_SUITE_P(Unitily, ShapesAreRecognised, testing::ValuesIn(meantShapes()),
                         [](const auto& row) { return std::string(row.param.name); });

// However large, turned, mirrored, shaky and finely sampled; closed shapes from any point of their outline.
TEST_P(ShapesAreRecognised, HoweverDrawn) {
    const Meant& meant = GetParam();
    for (const double size : {0.12, 1.0, 10.0}) {
        for (const double turn : {0.0, 17.0, 45.0, 100.0, 230.0}) {
            for (const bool mirrored : {false, true}) {
                for (const std::size_t every : {1, 3}) {
                    Stroke stroke;
                    for (std::size_t i = 0; i < meant.outline.size(); i += every) {
                        stroke.push_back(
                            {mirrored ? -meant.outline[i].x : meant.outline[i].x, meant.outline[i].y});
                    }
                    stroke.push_back({mirrored ? -meant.outline.back().x : meant.outline.back().x,
                                      meant.outline.back().y});
                    const Stroke ideal = placed(stroke, turn, size);
                    const Stroke hand = placed(shaky(stroke, 200), turn, size);
                    const ShapeRecord shape = Unitily::recogniseWithPoints(hand);
                    SCOPED_TRACE(testing::Message() << "size " << size << " turn " << turn << " mirrored "
                                                    << mirrored << " every " << every);
                    EXPECT_EQ(shape.kind, meant.kind);
                    EXPECT_EQ(shape.legs(), meant.legs);
                    EXPECT_GT(shape.confidence, 0.5);
                    EXPECT_LE(shape.confidence, 1);
                    EXPECT_TRUE(shape.rotation >= 0 && shape.rotation < kPi) << shape.rotation;
                    EXPECT_TRUE(shape.startAngle >= 0 && shape.startAngle < 2 * kPi) << shape.startAngle;
                    EXPECT_LT(apart(outlineOfShape(shape, size), ideal), 200 * size * 0.06);
                }
            }
        }
    }
}

TEST_P(ShapesAreRecognised, FromTheOtherEndOrWithin) {
    const Meant& meant = GetParam();
    Stroke stroke(meant.outline.rbegin(), meant.outline.rend());
    const bool closed = distanceBetween(stroke.front(), stroke.back()) < 1;
    for (const std::ptrdiff_t from : {0, 7, 23, 61}) {
        if (closed) {
            stroke.pop_back();
            std::rotate(stroke.begin(), stroke.begin() + from % std::ssize(stroke), stroke.end());
            stroke.push_back(stroke.front());
        }
        if (meant.kind != ShapeKind::arrow) {  // it alone is drawn from its tail
            EXPECT_EQ(Unitily::recogniseWithPoints(placed(shaky(stroke, 200, 0.004), 8)).kind, meant.kind)
                << from;
        }
    }
}

Stroke wave(int waves, double height) {
    Stroke stroke;
    for (int i = 0; i <= 40 * waves; ++i) {
        stroke.push_back({i * 300.0 / (40 * waves), height * std::sin(i * 2 * kPi / 40)});
    }
    return stroke;
}

TEST(UnitilyTest, WhatIsNoShapeIsNothing) {
    Stroke loops;
    for (int i = 0; i < 240; ++i) {
        loops.push_back({i * 1.2 + 40 * std::sin(i * 0.15), 40 * std::cos(i * 0.15)});
    }
    Stroke eight;
    for (int i = 0; i <= 100; ++i) {
        eight.push_back({50 * std::sin(i * 4 * kPi / 100), 100 * std::cos(i * 2 * kPi / 100)});
    }
    Stroke scribble;
    for (int i = 0; i < 15; ++i) {
        scribble.push_back({i * 15.0, i % 2 == 0 ? 0.0 : 150.0});
    }
    const std::pair<const char*, Stroke> cases[] = {
        {"spiral", round(20, 20, 0, 1100, 6)},
        {"scribble", drawn(scribble)},
        {"loops", loops},
        {"wave", wave(2, 50)},
        {"S", wave(1, 60)},
        {"question mark", joined(placed(round(50, 50, 180, 440), 0, 1, {0, 0}), drawn({{0, 55}, {0, 130}}))},
        {"pentagon", drawn({{0, -100}, {95, -31}, {59, 81}, {-59, 81}, {-95, -31}, {0, -100}})},
        {"hexagon", drawn({{100, 0}, {50, 87}, {-50, 87}, {-100, 0}, {-50, -87}, {50, -87}, {100, 0}})},
        {"trapezoid", drawn({{-100, 60}, {100, 60}, {45, -60}, {-45, -60}, {-100, 60}})},
        {"half disc", joined(round(100, 100, 180, 360), drawn({{100, 0}, {-100, 0}}))},
        {"figure of eight", eight},
    };
    for (const auto& [name, stroke] : cases) {
        for (const double turn : {0.0, 30.0, 200.0}) {
            SCOPED_TRACE(testing::Message() << name << " turned by " << turn);
            const ShapeRecord shape = Unitily::recogniseWithPoints(placed(shaky(stroke, 200), turn));
            EXPECT_EQ(shape.kind, ShapeKind::none);
            EXPECT_TRUE(shape.corners.empty());
            EXPECT_FALSE(shape);
        }
    }
}

// Tidying
TEST(UnitilyTest, NearlyLevelLinesAreLevel) {
    for (const double level : {0.0, 45.0, 90.0, 135.0, 180.0, 270.0}) {
        for (const double off : {-2.0, 1.5}) {
            const Stroke stroke = placed(shaky(drawn({{-100, 0}, {100, 0}}), 200, 0.003), level + off);
            const ShapeRecord line = Unitily::recogniseWithPoints(stroke);
            ASSERT_EQ(line.kind, ShapeKind::line);
            const double angle =
                std::atan2(line.corners[1].y - line.corners[0].y, line.corners[1].x - line.corners[0].x);
            EXPECT_NEAR(std::remainder(angle - level * kPi / 180, 2 * kPi), 0, 1e-9) << level + off;
        }
    }
    const ShapeRecord slanting = Unitily::recogniseWithPoints(placed(drawn({{-100, 0}, {100, 0}}), 8));
    ASSERT_EQ(slanting.kind, ShapeKind::line);
    EXPECT_GT(slanting.corners[1].y - slanting.corners[0].y, 20) << "eight degrees are meant";
}

// Lengths of the sides in the order drawn, and degrees at the corners, an open shape's ends left out.
std::pair<std::vector<double>, std::vector<double>> sidesAndAnglesOf(const ShapeRecord& shape) {
    Stroke corners = shape.corners;
    if (shape.isClosed()) {
        corners.insert(corners.end(), {shape.corners[0], shape.corners[1]});
    }
    std::pair<std::vector<double>, std::vector<double>> result;
    for (std::size_t i = 1; i < corners.size(); ++i) {
        const double side = distanceBetween(corners[i - 1], corners[i]);
        if (i > 1) {
            const double across = distanceBetween(corners[i - 2], corners[i]);
            const double before = result.first.back();
            const double cosine = (side * side + before * before - across * across) / (2 * side * before);
            result.second.push_back(std::acos(std::clamp(cosine, -1.0, 1.0)) * 180 / kPi);
        }
        result.first.push_back(side);
    }
    if (shape.isClosed()) {
        result.first.pop_back();
    }
    return result;
}

// Numbers near those that are meant; those that are meant equal, and right angles, to the last digit.
void expectMeant(const std::vector<double>& numbers, const std::vector<double>& meant, double near) {
    ASSERT_EQ(numbers.size(), meant.size());
    for (std::size_t i = 0; i < meant.size(); ++i) {
        EXPECT_NEAR(numbers[i], meant[i], meant[i] == 90 ? 1e-6 : near) << "number " << i;
        const auto same =
            static_cast<std::size_t>(std::find(meant.begin(), meant.end(), meant[i]) - meant.begin());
        EXPECT_NEAR(numbers[i], numbers[same], 1e-6) << "number " << i << " as number " << same;
    }
}

// The small tails of a pen that touches down before the hand moves off, and lifts when it has turned away.
Stroke hooked(const Stroke& stroke, double length) {
    const auto tail = [&](const ShapePoint& end, const ShapePoint& within) {
        const double ahead = std::atan2(within.y - end.y, within.x - end.x) + 1;
        return ShapePoint{end.x + length * std::cos(ahead), end.y + length * std::sin(ahead)};
    };
    const Stroke down = drawn({tail(stroke.front(), stroke[3]), stroke.front()}, 2);
    return joined(joined(down, stroke),
                  drawn({stroke.back(), tail(stroke.back(), stroke[stroke.size() - 4])}, 2));
}

TEST(UnitilyTest, SidesAnglesAndEndsAreThoseThatWereMeant) {
    using enum ShapeKind;
    struct Row {
        ShapeKind kind;
        Stroke corners;  // as a hand places them
        std::vector<double> sides, angles;
    };
    const std::vector<double> right(4, 90);
    const Row rows[] = {
        {line, {{-100, 0}, {100, 4}}, {200}, {}},
        {foldLine, {{-60, -90}, {0, 90}, {50, -90}}, {189.7, 186.8}, {34}},
        {foldLine, {{0, -90}, {3, 90}, {120, 96}}, {180, 117}, {90}},
        {foldLine, {{62, -101}, {0, -97}, {2, 100}, {70, 103}}, {62, 197, 68}, {90, 90}},
        {foldLine, {{-70, -70}, {70, -70}, {-70, 70}, {70, 70}}, {140, 198, 141}, {45, 46}},
        {rectangle, {{-70, -72}, {72, -70}, {70, 76}, {-72, 74}, {-68, -70}}, {143, 143, 143, 143}, right},
        {rectangle, {{0, 0}, {121, 2}, {119, 101}, {1, 99}, {0, 1}}, {120, 99, 120, 99}, right},
        {rectangle, {{0, 0}, {131, 2}, {129, 101}, {1, 99}, {0, 1}}, {130, 99, 130, 99}, right},
        {rectangle, {{0, 0}, {201, 3}, {199, 101}, {2, 99}, {0, 2}}, {200, 99, 200, 99}, right},
        {triangle, {{0, 0}, {100, 171}, {-101, 170}, {-1, 1}}, {199, 199, 199}, {60, 60, 60}},
        {triangle, {{0, 0}, {70, 171}, {-71, 170}, {-1, 1}}, {185, 141, 185}, {67.6, 67.6, 44.8}},
        {triangle, {{0, 0}, {203, 2}, {-4, 121}, {1, 1}}, {203, 237, 121}, {30.5, 59.5, 90}},
        {triangle, {{0, 0}, {200, 10}, {60, 120}, {0, 0}}, {200, 178, 134}, {41, 78, 61}},
        {parallelogram,
         {{-100, 0}, {2, 55}, {101, 1}, {0, -57}, {-99, -1}},
         {115, 115, 115, 115},
         {121, 59, 121, 59}},
        {parallelogram,
         {{-110, 50}, {51, 51}, {110, -50}, {-50, -52}, {-110, 50}},
         {160, 117, 160, 117},
         {120, 60, 120, 60}},
    };
    for (const Row& row : rows) {
        const Stroke plain = drawn(row.corners);
        for (const double hook : {0.0, 10.0}) {
            for (const double turn : {0.0, 20.0, 200.0}) {
                SCOPED_TRACE(testing::Message() << nameOfShapeKind(row.kind) << " row " << &row - rows
                                                << " turned by " << turn << ", hooks of " << hook);
                const Stroke stroke = placed(hook > 0 ? hooked(plain, hook) : plain, turn);
                ShapeRecord shape = Unitily::recogniseWithPoints(stroke);
                ASSERT_EQ(shape.kind, row.kind);
                const Stroke meant = placed(row.corners, turn);
                const auto isNearer = [&](const ShapePoint& a, const ShapePoint& b) {
                    return distanceBetween(a, meant.front()) < distanceBetween(b, meant.front());
                };
                if (shape.isClosed()) {  // any corner may be its first
                    Stroke& corners = shape.corners;
                    std::rotate(corners.begin(), std::min_element(corners.begin(), corners.end(), isNearer),
                                corners.end());
                }
                const auto [sides, angles] = sidesAndAnglesOf(shape);
                expectMeant(sides, row.sides, 6.5);
                expectMeant(angles, row.angles, 3);
                EXPECT_LT(distanceBetween(shape.corners.front(), meant.front()), 7);
                if (!shape.isClosed()) {
                    EXPECT_LT(distanceBetween(shape.corners.back(), meant.back()), 7);
                }
                if (turn == 0 && row.angles == right) {
                    EXPECT_NEAR(shape.corners[0].y, shape.corners[1].y, 1e-9) << "level";
                }
            }
        }
    }
}

TEST(UnitilyTest, NearlyRoundEllipsesAreCircles) {
    const ShapeRecord circle = Unitily::recogniseWithPoints(placed(round(90, 85, 30, 380), 12));
    ASSERT_EQ(circle.kind, ShapeKind::ellipse);
    EXPECT_EQ(circle.a, circle.b);
    EXPECT_EQ(circle.rotation, 0);
    EXPECT_FALSE(std::signbit(circle.rotation)) << "which prints as -0";
    EXPECT_NEAR(circle.a, 87.5, 2);
    const ShapeRecord ellipse = Unitily::recogniseWithPoints(placed(round(90, 70, 30, 380), 30));
    ASSERT_EQ(ellipse.kind, ShapeKind::ellipse);
    EXPECT_NEAR(ellipse.a, 90, 2);
    EXPECT_NEAR(ellipse.b, 70, 2);
    EXPECT_NEAR(ellipse.rotation, kPi - kPi / 6, 0.06);
}

TEST(UnitilyTest, AFoldLineGoesToTheSpikeOfBentLegs) {
    const auto bent = [](ShapePoint from, ShapePoint by, ShapePoint to) {
        Stroke stroke;
        for (int i = 0; i <= 30; ++i) {
            const double t = i / 30.0;
            const double u = 1 - t;
            stroke.push_back({u * u * from.x + 2 * u * t * by.x + t * t * to.x,
                              u * u * from.y + 2 * u * t * by.y + t * t * to.y});
        }
        return stroke;
    };
    for (const double turn : {0.0, 40.0, 190.0}) {
        const Stroke check =
            placed(joined(bent({-60, 0}, {-15, 30}, {0, 100}), bent({0, 100}, {5, -20}, {70, -100})), turn);
        const ShapeRecord fold = Unitily::recogniseWithPoints(check);
        SCOPED_TRACE(turn);
        ASSERT_EQ(fold.kind, ShapeKind::foldLine);
        ASSERT_EQ(fold.legs(), 2);
        const ShapePoint tip = placed({{0, 100}}, turn).front();
        EXPECT_LT(distanceBetween(fold.corners[1], tip), 6);
    }
}

// The nearest ellipse to a thin triangle is a piece of a long one.
TEST(UnitilyTest, NothingGoesFarBeyondItsStroke) {
    for (const double height : {4.0, 7.0, 10.0, 14.0, 20.0}) {
        for (const double apex : {30.0, 100.0, 150.0, 190.0}) {
            for (const double turn : {20.0, 200.0}) {
                const Stroke thin =
                    placed(shaky(drawn({{0, 0}, {200, 0}, {apex, height}, {0, 0}}), 200), turn);
                const ShapeRecord shape = Unitily::recogniseWithPoints(thin);
                SCOPED_TRACE(testing::Message() << height << " high, apex at " << apex << ", turned by "
                                                << turn << ": " << nameOfShapeKind(shape.kind));
                for (const ShapePoint& p : outlineOfShape(shape)) {
                    ASSERT_LT(distanceTo(thin, p), 50);
                }
            }
        }
    }
}

// Bad input
TEST(UnitilyTest, OddInputIsNoHindrance) {
    using enum ShapeKind;
    constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
    constexpr double kHuge = std::numeric_limits<double>::max();
    const Stroke corners = {{0, 0}, {200, 0}, {200, 100}, {0, 100}, {0, 0}}, box = drawn(corners);
    Stroke holes;
    for (const ShapePoint& p : box) {
        holes.insert(holes.end(), {p, {HUGE_VAL, p.y}, p, {p.x, kNan}});
    }
    const std::tuple<const char*, ShapeKind, Stroke> cases[] = {
        {"nothing", none, {}},
        {"four points", none, {{0, 0}, {1, 0}, {2, 0}, {3, 0}}},
        {"one spot", none, Stroke(50, {7, 7})},
        {"not a number", none, Stroke(50, {kNan, 3})},
        {"as far as it goes", none, {{-kHuge, 0}, {kHuge, 0}, {0, kHuge}, {0, -kHuge}, {1, 1}}},
        {"to and fro", none, {{0, 0}, {100, 0}, {0, 0}, {100, 0}, {0, 0}, {100, 0}, {0, 0}}},
        {"few points", line, {{0, 0}, {50, 1}, {100, 0}, {150, -1}, {200, 0}}},
        {"holes", rectangle, holes},
        {"a million points", rectangle, drawn(corners, 0.0006)},
        {"tiny", rectangle, placed(box, 0, 1e-200, {0, 0})},
        {"huge", rectangle, placed(box, 0, 1e300, {0, 0})},
    };
    for (const auto& [name, kind, stroke] : cases) {
        EXPECT_EQ(Unitily::recogniseWithPoints(stroke).kind, kind) << name;
    }
}
}  // namespace
