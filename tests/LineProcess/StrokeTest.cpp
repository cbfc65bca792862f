// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <bit>
#include <limits>

#include "LineProcess/StrokeFixture.h"

namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInf = std::numeric_limits<float>::infinity();
constexpr auto kSpacing = &LPLineParams::pointsDistance;
constexpr auto kBound = &LPLineParams::minPointsDistance;

std::vector<LPPosition> circle(int samples, float radius) {
    std::vector<LPPosition> places;
    for (int i = 0; i <= samples; ++i) {
        const float angle = 6.2831855f * static_cast<float>(i) / static_cast<float>(samples);
        places.push_back({200.0f + radius * std::cos(angle), 200.0f + radius * std::sin(angle)});
    }
    return places;
}

}  // namespace

// Worked out apart from this library: the rules of a segment in Python, each step rounded to single
// precision.
TEST_F(StrokeTest, DabsAgreeWithAnIndependentComputation) {
    _line.pointsDistance = 0.5f;
    _line.radiusControl = {0.6f, 0.0f, 0.4f};
    _line.startRadius = 0.5f;
    _line.strokeControlValue = 40.0f;
    _line.endRadius = 0.1f;
    lpStartLineWithParams({10, 20}, 0.3f, 0.2f);
    const Dabs first = append({22, 25}, 0.4f, 0.5f, false);
    append({38, 21}, 0.7f, 0.6f, false);
    const Dabs third = append({47, 40}, 0.9f, 0.8f, false);
    const Dabs last = append({50, 61}, 0.5f, 0.4f, true);
    ASSERT_EQ(first.size(), 2u);
    ASSERT_EQ(third.size(), 3u);
    ASSERT_EQ(last.size(), 12u);
    const LPPoint expected[] = {
        {{10, 20}, 8.59511662f, {0.300000012f, 0.200000003f, 1}},
        {{13.9669762f, 21.6529064f}, 8.66896057f, {0.313223273f, 0.398348868f, 0.948429286f}},
        {{39.8061981f, 27.8811455f}, 10.2857704f, {0.471705794f, 0.750209868f, 0.804630518f}},
        {{43.0415459f, 31.783411f}, 9.92004967f, {0.496828258f, 0.782344699f, 0.787297189f}},
        {{49.930912f, 60.6450386f}, 2.09775352f, {0.49743247f, 0.404719114f, 0.787297189f}},
    };
    const LPPoint actual[] = {first[0], first[1], third[2], last[0], last[11]};
    for (int i = 0; i < 5; ++i) {
        SCOPED_TRACE(i);
        using Fields = std::array<float, 6>;
        const auto is = std::bit_cast<Fields>(actual[i]), meant = std::bit_cast<Fields>(expected[i]);
        for (std::size_t field = 0; field < 6; ++field) {
            // The mathematical library may round a cosine or a logarithm the other way.
            EXPECT_FLOAT_EQ(is[field], meant[field]) << field;
        }
    }
}

// Spacing

TEST_F(StrokeTest, DabsAreOneStepApartAcrossJoints) {
    _line.minRadius = _line.maxRadius = 1.0f;
    const auto expectGaps = [&](const std::vector<LPPosition>& places, double least, double most) {
        const Dabs dabs = draw(places);
        ASSERT_GT(dabs.size(), 30u);
        for (std::size_t i = 1; i < dabs.size(); ++i) {
            const double gap = gapBetween(dabs[i - 1], dabs[i]);
            ASSERT_TRUE(gap >= least && gap <= most) << "dab " << i << ": " << gap;
        }
    };
    for (const int smooth : {1, 0}) {
        _line.smoothEnabled = smooth;
        // Chords are shorter than the path, corners cut 3 units at most a step of 3, and the curve is walked to within
        // 0.01 or a thousandth of a segment.
        const double slack = smooth != 0 ? 0.06 : 0.1;
        expectGaps(circle(40, 120.0f), 3 - slack, 3 + slack);
    }
    // Back and forth over one line, exactly and nearly, slow and fast.
    _line.smoothEnabled = 1;
    for (const float off : {0.0f, 0.01f, 0.05f, 0.3f}) {
        for (const float step : {4.0f, 30.0f, 120.0f}) {
            SCOPED_TRACE(testing::Message() << step << " a sample, off the line by " << off);
            std::vector<LPPosition> places;
            float x = 100.0f;
            for (int i = 0; i < 40; ++i) {
                places.push_back({x, 50.0f + (i % 2 != 0 ? off : 0.0f)});
                x += i / 4 % 2 == 0 ? step : -step;
            }
            // Steps of 3. Fast and almost straight curves are measured short, by half at the most.
            expectGaps(places, 0, off == 0.05f && step > 60.0f ? 6.3 : 3.2);
        }
    }
}

TEST_F(StrokeTest, OnlyTheLowByteTurnsSmoothingOn) {
    _line.smoothEnabled = 0x100;
    lpStartLine({0, 0});
    move(10, 0);
    const Dabs corner = move(10, 10);
    ASSERT_FALSE(corner.empty());
    EXPECT_EQ(corner.back().position.x, 10.0f);  // a curve would still be on its way there
}

TEST_F(StrokeTest, EndsExactlyAtTheLastSampleAndReleasesTheTrace) {
    _line.minRadius = _line.maxRadius = 1.0f;
    _line.pointsDistance = 0.01f;
    const Dabs dabs = draw({{0, 0}, {30, 7}, {41, 52}});
    EXPECT_NEAR(dabs.back().position.x, 41.0, 0.5);
    EXPECT_NEAR(dabs.back().position.y, 52.0, 0.5);
    EXPECT_EQ(_lpTrace.points, nullptr);
    EXPECT_EQ(_lpTrace.capacity, 0u);
}

TEST_F(StrokeTest, WithoutSpacingEverySampleGivesOneDabWithTheEndValues) {
    _line.pointsDistanceEnabled = 0;
    lpStartLineWithParams({5, 5}, 0.0f, 0.0f);
    for (const LPPosition at : {LPPosition{9, 5}, LPPosition{9, 5}, LPPosition{60, 70}}) {
        const Dabs dabs = append(at, 1.0f, 0.25f, false);
        ASSERT_EQ(dabs.size(), 1u);
        EXPECT_EQ(dabs[0].position.x, at.x);
        EXPECT_EQ(dabs[0].params.altitude, 0.25f);
        EXPECT_EQ(dabs[0].params.pressure, newSegPressure);
    }
    _line.radius = -1.0f;  // nothing is appended: nothing may be handed out
    EXPECT_TRUE(move(80, 70).empty());
}

// Tapers

// Beyond the taper, a tilted pen may exceed the largest radius.
TEST_F(StrokeTest, StartTaperGrowsAlongTheStrokeAndThenLetsGo) {
    _line.startRadius = 0.25f;
    _line.minRadius = _line.maxRadius = 1.0f;
    _line.radiusControl.altitude = 0.5f;
    for (const auto& [altitude, full] : {std::pair{0.0f, 20.0}, {1.0f, 30.0}}) {
        const Dabs dabs = draw({{0, 0}, {100, 0}, {300, 0}, {400, 0}}, 1.0f, altitude);
        ASSERT_GT(dabs.size(), 20u);
        for (const LPPoint& dab : dabs) {
            const double ramp = 20.0 * (0.25 + 0.75 * dab.position.x / 100.0);
            ASSERT_NEAR(dab.radius, ramp <= 20.0 ? ramp : full, 1e-3) << "at " << dab.position.x;
        }
        EXPECT_EQ(dabs.front().position.x, 0.0f);
    }
}

TEST_F(StrokeTest, WithoutATaperLengthTheStartRadiusSeedsTheSpeed) {
    _line.startRadius = 0.5f;
    _line.strokeControlValue = 0.0f;
    lpStartLine({0, 0});
    EXPECT_EQ(move(20, 0).front().params.speed, 0.5f);
}

// Dynamics

TEST_F(StrokeTest, PressureActsTheWayItsSignSaysAndAbsentPressureDoesNot) {
    // Radii 20 x 0.2 to 20 x 1; the middle is 12.
    const float rows[][4] = {{1, 0, 4, 4.1f},     {1, 1, 19.9f, 20}, {-1, 0, 11.9f, 12.1f},
                             {-1, 1, 3.9f, 4.1f}, {1, -1, 12, 12},   {-1, -1, 12, 12}};
    for (const auto& [control, pressure, low, high] : rows) {
        SCOPED_TRACE(testing::Message() << control << " at pressure " << pressure);
        _line.radiusControl = {control, 0, 0};
        for (const LPPoint& dab : draw({{0, 0}, {40, 0}, {80, 30}, {100, 90}}, pressure)) {
            EXPECT_GE(dab.radius, low);
            EXPECT_LE(dab.radius, high);
            EXPECT_EQ(dab.params.pressure, pressure);
        }
    }
}

TEST_F(StrokeTest, SpeedIsMeasuredOverThisSegmentAndTheOneBefore) {
    _line.speedSencitive = 1.0f;
    lpStartLine({0, 0});
    move(10, 0);
    EXPECT_FLOAT_EQ(newSegSpeed, 0.8f);  // 10 of 50
    move(30, 0);
    EXPECT_FLOAT_EQ(newSegSpeed, 0.7f);  // (10 + 20) / 2 of 50
    move(230, 0);
    EXPECT_EQ(newSegSpeed, 0.0f);
    move(230, 0);
    move(230, 1);
    EXPECT_EQ(newSegSpeed, 1.0f);  // below a tenth counts as at rest
}

TEST_F(StrokeTest, JitterStaysBetweenTheFloorAndTheRadius) {
    _line.minRadius = 0.5f;
    _line.maxRadius = 1.0f;
    _line.radiusTingle = 1.0f;
    const Dabs dabs = draw({{0, 0}, {200, 0}, {400, 0}});
    const auto [least, most] = std::ranges::minmax(dabs, {}, &LPPoint::radius);
    EXPECT_GE(least.radius, 10.0f);
    EXPECT_LE(most.radius, 15.0f);
    EXPECT_GT(most.radius - least.radius, 1.0f);
}

// Gathering

TEST_F(StrokeTest, TrackNumHoldsSamplesBackUntilEnoughArrived) {
    _line.trackNum = 2;
    lpStartLine({0, 0});
    EXPECT_TRUE(move(30, 0).empty());
    EXPECT_TRUE(move(60, 0).empty());
    EXPECT_FALSE(move(90, 0).empty());
    EXPECT_TRUE(move(120, 0).empty());
    EXPECT_FALSE(finish(150, 0).empty());  // the end does not wait
}

// Hard input

// Whatever the settings, dabs are usable, and no more than the path's length allows, beside one a call.
TEST_F(StrokeTest, NoSettingMakesUnusableDabsOrTooMany) {
    using Line = LPLineParams;
    float Line::*const fields[] = {&Line::radius,
                                   kSpacing,
                                   kBound,
                                   &Line::sensitivity,
                                   &Line::startRadius,
                                   &Line::speedSencitive,
                                   &Line::endRadius,
                                   &Line::strokeControlValue,
                                   &Line::minRadius,
                                   &Line::maxRadius,
                                   &Line::radiusTingle};
    void (*const companies[])(Line&) = {
        [](Line&) {}, [](Line& l) { l.pointsDistance = 0, l.radiusControl.speed = 1; },
        [](Line& l) {
            l.radiusControl = {kInf, kNaN, -kInf}, l.startRadius = kInf;
        },
        [](Line& l) { l.pointsDistanceEnabled = 0, l.endRadius = 0.1f, l.maxRadius = 5; },
        [](Line& l) {
            l.trackNum = std::numeric_limits<std::int32_t>::min(), l.minRadius = kNaN,
            l.radiusControl.speed = -1;
        }};
    const std::vector<LPPosition> ways[] = {circle(12, 30.0f),
                                            std::vector<LPPosition>(6, LPPosition{7, 7}),
                                            {{0, 0}, {50, 0}, {10, 0}, {60, 0}, {0, 0}, {0, 0}, {1, 0}}};
    const Line plain = _line;
    for (const auto& company : companies) {
        for (const auto& field : fields) {
            for (const float value : {0.0f, -3.0f, 1e-30f, -1e-38f, 3e38f, kInf, kNaN}) {
                SCOPED_TRACE(testing::Message() << "field " << &field - fields << ", company "
                                                << &company - companies << ": " << value);
                _line = plain;
                company(_line);
                _line.*field = value;
                const bool bounded = _line.minPointsDistance > 0.0f && std::isfinite(_line.minPointsDistance);
                const double least = bounded ? _line.minPointsDistance : 0.01;
                for (const auto& places : ways) {
                    double length = 0.0;
                    for (std::size_t i = 1; i < places.size(); ++i) {
                        length += lpEuclidDistanceOfTwoPosition(&places[i - 1], &places[i]);
                    }
                    for (const float pressure : {0.5f, kNaN}) {
                        const Dabs dabs = draw(places, pressure);
                        ASSERT_LE(static_cast<double>(dabs.size()),
                                  length * 1.1 / least + 2.0 * static_cast<double>(places.size()));
                        ASSERT_TRUE(std::all_of(dabs.begin(), dabs.end(), isUsable));
                    }
                }
            }
        }
    }
}

TEST_F(StrokeTest, ASettingThatIsNotANumberStillDraws) {
    _line.minRadius = _line.radius = _line.pointsDistance = kNaN;
    EXPECT_GT(draw(circle(12, 30.0f)).size(), 10u);
}

TEST_F(StrokeTest, FarCoordinatesNeitherHangNorSpill) {
    for (const float far : {1e6f, 1e20f, kInf, -kInf, kNaN}) {
        SCOPED_TRACE(far);
        const Dabs dabs = draw({{0, 0}, {far, 3}, {5, far}, {far, far}, {10, 10}});
        EXPECT_TRUE(std::all_of(dabs.begin(), dabs.end(), isUsable));
        EXPECT_LE(dabs.size(), 4.02 * (1 << 17));  // rounding of the steps may fit in a few more
    }
}
