// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <array>
#include <limits>

#include "LineProcess/StrokeFixture.h"

namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInf = std::numeric_limits<float>::infinity();
constexpr LPControlParams kFree = {0, 0, 0};

}  // namespace

class TingleTest : public StrokeTest {
protected:
    void SetUp() override {
        StrokeTest::SetUp();
        SetDebugModel(1);
        lpSetSharedState({});
    }
};

TEST_F(TingleTest, TableIndicesWrap) {
    EXPECT_EQ(PreRandD(2), 0.3533f);
    EXPECT_EQ(PreRandI(1024), 423);
    EXPECT_EQ(PreRandD(-1), PreRandD(1023));
}

TEST_F(TingleTest, RadianFollowsTheMoveAndRepeatsAtRest) {
    const std::pair<LPPosition, float> rows[] = {{{1, 1}, 0.785398163f}, {{1, 1}, 0.785398163f},
                                                 {{1, 0}, -1.5707964f},  {{1, 5}, 1.5707964f},
                                                 {{0, 5}, -3.14159265f}, {{-1, 6}, -3.92699082f}};
    LPPosition from = {0, 0};
    for (const auto& [to, angle] : rows) {
        EXPECT_FLOAT_EQ(Radian(from, to), angle);
        from = to;
    }
    EXPECT_FLOAT_EQ(radianBlock({0, 0}, {kNaN, kInf}), -3.92699082f);
}

// Index 2 draws 0.3533 from the table.
TEST_F(TingleTest, EachFunctionGivesItsWorkedValue) {
    const LPPoint half = dabAt(0, 0, 10, {0.5f, 0.5f, 0.25f});
    const LPPoint mouse = dabAt(0, 0, 10, {-1.0f, 0.5f, 1.0f});
    const LPPoint tilted = dabAt(0, 0, 10, {1.0f, 1.0f, 1.0f});
    const double c = std::cos(0.5 * 1.5707963267948966);
    const struct {
        const char* name;
        double actual, expected;
    } rows[] = {
        {"radian at rest", RadianTingle(half, 0.5f, 9, 0, false, 2, kFree), 0.5 + 6.283185307},
        {"radian following", RadianTingle(half, 0.5f, 0.25f, 1, true, 2, kFree), 0.75},
        {"radian by pressure", RadianTingle(half, 0, 0, 0, false, 2, {1, 0, 0}), (1 - c) * 6.283185307},
        {"radian by less pressure", RadianTingle(half, 0, 0, 0, false, 2, {-0.5f, 0, 0}),
         (c * 0.5 + 0.5) * 6.283185307},
        {"radian by tilt, unclamped", RadianTingle(tilted, 0, 0, 0, false, 2, {0, 0.5f, 0}),
         1.5 * 6.283185307},
        {"radian drawn", RadianTingle(half, 0, 0, 0.5f, false, 2, kFree),
         6.283185307 - 0.2934 * 0.5 * 3.14159265},
        {"roundness kept", RoundnessTingle(half, 0.3f, 0, 0, 2, kFree), 0.3},
        {"roundness, flat tip with jitter", RoundnessTingle(half, 0.1f, 0.2f, 0, 2, kFree),
         0.1 + 0.2533 * 0.02},
        {"roundness by speed", RoundnessTingle(half, 0.3f, 0, 0, 2, {0, 0, 1}), 0.3},
        {"roundness by faster", RoundnessTingle(dabAt(0, 0, 1, {1, 0, 0.04f}), 0.3f, 0, 0, 2, {0, 0, 1}),
         0.12},
        {"roundness without pen", RoundnessTingle(mouse, 0.3f, 0, 0, 2, {1, 0, 0}), 1.0},
        {"opacity, other mode", OpacityTingle(11, 5, 2, 0.8f, 0, 0.2f, kFree), 0.8},
        {"opacity fading out", OpacityTingle(1, 4, 3, 0.8f, 0, 0.2f, kFree), 0.5},
        {"opacity faded out", OpacityTingle(1, 4, 99, 0.8f, 0, 0.2f, kFree), 0.2},
        {"opacity fading at once", OpacityTingle(1, 0, 3, 0.8f, 0, 0.2f, kFree), 0.2},
        {"opacity before the first", OpacityTingle(2, 4, 0, 0.8f, 0, 0.2f, kFree), 0.2},
        {"opacity by pressure", OpacityTingle(7, 0, 1, 0.8f, 0, 0.2f, {0.5f, 0, 0}), 0.5},
        {"opacity by the less of two", OpacityTingle(4, 0, 1, 0.8f, 0, 0.2f, {0.5f, 0, 0.25f}), 0.65},
        {"opacity drawn", OpacityTingle(0, 0, 2, 0.5f, 0.2f, 0, kFree), 0.5 + (0.6 - 0.1) * 0.3533 - 0.1},
        {"flow kept", FlowTingle(half, 0.6f, 0, 0, 0, 1, 2, kFree), 0.6},
        {"flow drawn", FlowTingle(half, 0.6f, 0.5f, 0, 0, 1, 2, kFree), 0.6 + (0.3 + 0.3) * 0.3533 - 0.3},
        {"flow drawn, near all of it", FlowTingle(half, 0.9f, 0.5f, 0, 0, 1, 2, kFree),
         0.9 + (0.1 + 0.45) * 0.3533 - 0.45},
        {"flow fading", FlowTingle(half, 0.6f, 0, 4, 0, 1, 3, kFree), 0.15},
        {"flow faded", FlowTingle(half, 0.6f, 0, 4, 0, 1, 9, kFree), 0.0},
        {"flow by pressure", FlowTingle(half, 1, 0, 0, 0.2f, 0.7f, 2, {1, 0, 0}), 0.2 + (1 - c) * 0.5},
        {"flow by tilt", FlowTingle(tilted, 1, 0, 0, 0.2f, 0.9f, 2, {0, 0.5f, 0}), 0.4},
        {"flow by tilt, at least", FlowTingle(tilted, 1, 0, 0, 0.6f, 0.9f, 2, {0, 0.5f, 0}), 0.6},
        {"grey", HSVTingle(HSVTingle({0.5f, 0.5f, 0.5f}, 0, 1, 0), 0, 1, 0).b, 0.5},  // draws 0.3965, 0.8405
    };
    for (const auto& row : rows) {
        EXPECT_NEAR(row.actual, row.expected, 2e-6) << row.name;
    }
}

TEST_F(TingleTest, CountsStaySensible) {
    const LPPoint point = dabAt(0, 0, 10, {0.0f, 1.0f, 1.0f});
    const auto count = [&](std::uint64_t base, std::uint64_t index, float amount, LPControlParams control) {
        return DistributionCountTingle(base, index, amount, point, control);
    };
    EXPECT_EQ(count(5, 2, 0, kFree), 5u);
    EXPECT_EQ(count(5, 1, 0, kFree), 1u);
    EXPECT_EQ(distributionCountTingleBlock(point, 5, 0, 1, kFree), 5u);
    EXPECT_EQ(count(5, 2, 0, {1, 0, 0}), 1u);
    EXPECT_EQ(count(5, 2, 1, kFree), 4u);  // 5 + nearbyint(2 (0.3533 - 0.5) 5)
    EXPECT_EQ(count(0, 2, 0, kFree), 0u);
    EXPECT_EQ(count(~0ull, 2, 0, kFree), 64u);
    EXPECT_EQ(count(30, 2, 1e30f, kFree), 0u);
    EXPECT_EQ(count(30, 3, kInf, {0, 1e30f, 0}), 64u);
    EXPECT_EQ(count(30, 2, 0, {0, -1e30f, 0}), 0u);

    const auto tip = [&](std::uint64_t tips, bool random, LPControlParams control) {
        return TextureIndexTingle(tips, random, 2, point, control);
    };
    EXPECT_EQ(tip(9, true, kFree), 3u);  // 0.3533 of 8
    EXPECT_EQ(tip(9, false, kFree), 0u);
    EXPECT_EQ(tip(9, false, {1, 0, 0}), 8u);
    EXPECT_EQ(tip(9, false, {0, 1, 0}), 0u);   // strength above 1
    EXPECT_EQ(tip(9, false, {0, -9, 0}), 8u);  // strength below 0
    EXPECT_EQ(tip(0, true, kFree), 0u);
    EXPECT_LT(tip(~0ull, false, {1, 0, 0}), ~0ull);
}

TEST_F(TingleTest, NoInputLeadsToAResultThatIsNotFinite) {
    const float values[] = {0.0f, -1.0f, 0.5f, 1e-30f, 3e38f, -3e38f, kInf, -kInf, kNaN};
    for (const int debug : {0, 1}) {
        SetDebugModel(debug);
        for (const float a : values) {
            for (const float b : values) {
                for (const float c : values) {
                    const LPPoint point = {{a, b}, c, {b, c, a}};
                    const LPControlParams control = {c, a, b};
                    const RgbType colour = {a, b, c};
                    const LPPosition place = PositionTingle(point, b, c > 0, 3, a, control);
                    const RgbType mixed = ColorTingle(point, colour, {b, c, a}, c, 3, control);
                    const RgbType turned = HSVTingle(colour, a, b, c);
                    // Sums of parts: one that is not finite makes the sum so.
                    const double results[] = {RadiusTingle(a, b, c),
                                              Radian({a, b}, {b, c}),
                                              RadianTingle(point, a, b, c, b > 0, 3, control),
                                              RoundnessTingle(point, a, b, c, 3, control),
                                              OpacityTingle(1, 4, 3, a, b, c, control),
                                              OpacityTingle(4, 4, 3, a, b, c, control),
                                              FlowTingle(point, a, b, c, a, b, 3, control),
                                              FlowTingle(point, a, b, 0, b, c, 3, control),
                                              double{place.x} + place.y,
                                              double{mixed.r} + mixed.g + mixed.b,
                                              double{turned.r} + turned.g + turned.b};
                    for (const double& result : results) {
                        ASSERT_TRUE(std::isfinite(result))
                            << &result - results << ": " << a << " " << b << " " << c;
                    }
                    ASSERT_LE(DistributionCountTingle(9, 2, b, point, control), 64u);
                    ASSERT_LT(TextureIndexTingle(9, false, 2, point, control), 9u);
                }
            }
        }
    }
}

// Scatter

// Copies fill the disc evenly: each of its eight equal parts gets its share, give or take the random start of
// the parts' borders, and they stay inside.
TEST_F(TingleTest, CopiesSpreadEvenlyOverBothAxes) {
    using Parts = std::array<int, 8>;
    const auto scatter = [](Parts& parts, float x, std::int64_t index) {
        const LPPosition at = PositionTingle(dabAt(x, 9), 1.5f, true, index, 0, kFree);
        const double dx = at.x - x;
        const double dy = at.y - 9.0;
        const double out = std::hypot(dx, dy);
        ASSERT_LE(out, 15.001);
        parts[(dx > 0 ? 1 : 0) + (dy > 0 ? 2 : 0) + (out > 15.0 * 0.70710678 ? 4 : 0)] += 1;
    };
    SetDebugModel(0);
    for (int point = 0; point < 20; ++point) {
        Parts parts{};
        for (int i = 0; i < 64; ++i) {
            scatter(parts, 50.0f + static_cast<float>(point), 1);
        }
        EXPECT_THAT(parts, testing::Each(testing::AllOf(testing::Ge(6), testing::Le(10))));
    }
    // Where each point has one, by the table, it is enough that no part is left out.
    SetDebugModel(1);
    Parts parts{};
    for (int i = 0; i < 400; ++i) {
        scatter(parts, 50.0f + static_cast<float>(i), i);
    }
    EXPECT_THAT(parts, testing::Each(testing::Gt(25)));
}

TEST_F(TingleTest, CopiesSpreadAcrossTheStroke) {
    const float direction = -std::atan2(8.0f, 6.0f);  // from (10, 10) to (16, 18)
    int upper = 0;
    for (int i = 0; i < 32; ++i) {
        // Copies lie along (-4, 3) / 5, 20 at most away.
        const LPPosition at = PositionTingle(dabAt(16, 18), 2, false, 2, direction, kFree);
        EXPECT_NEAR((at.x - 16) * 6 + (at.y - 18) * 8, 0.0, 1e-3);
        EXPECT_LE(std::hypot(at.x - 16, at.y - 18), 20.001);
        upper += at.y > 18 ? 1 : 0;
    }
    EXPECT_NEAR(upper, 16, 2);
    EXPECT_EQ(lpSharedState().pIndex, 31);
    const LPPosition still = positionTingleBlock(dabAt(30, 18, 10, {0, 0, 1}), 2, true, 3, 0, {1, 0, 0});
    EXPECT_EQ(still.x, 30.0f);
    EXPECT_EQ(lpSharedState().pIndex, 0);
}

// Colour

TEST(ColorTypesTest, KnownColoursConvert) {
    EXPECT_EQ(Rgb_to_Hsv({1, 0, 0}).h, 1.0f);
    EXPECT_EQ(Rgb_to_Hsv({0.5f, 0.5f, 0.5f}).s, 0.0f);
    const RgbType nearlyRed = Hsv_to_Rgb({0, 1, 1});
    EXPECT_EQ(nearlyRed.r, 1.0f);
    EXPECT_NEAR(nearlyRed.g, 0.01, 1e-6);
    for (const float hue : {-0.001f, 7.0f / 6.0f, 40.0f, kNaN, kInf}) {
        const RgbType black = Hsv_to_Rgb({hue, 1, 1});
        EXPECT_EQ(black.r + black.g + black.b, 0.0f) << hue;
    }
}

TEST(ColorTypesTest, EveryColourReturnsFromHsv) {
    for (int i = 0; i <= 16 * 17 * 17 + 16; ++i) {
        const RgbType c = {static_cast<float>(i % 17) / 16, static_cast<float>(i / 17 % 17) / 16,
                           static_cast<float>(i / 289 % 17) / 16};
        const RgbType back = Hsv_to_Rgb(Rgb_to_Hsv(c));
        // A hue of exactly 0 comes back a hundredth of a sector further on.
        ASSERT_NEAR(back.r, c.r, 0.0101);
        ASSERT_NEAR(back.g, c.g, 0.0101);
        ASSERT_NEAR(back.b, c.b, 0.0101);
    }
}
