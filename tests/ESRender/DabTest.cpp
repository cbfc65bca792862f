// SPDX-License-Identifier: MIT
#include "ESRender/Dab.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace {

constexpr float kPi = 3.14159265f;

LPPoint pointAt(float x, float y, float size = 10, LPControlParams params = {1, 0, 1}) {
    return {{x, y}, size, params};
}

std::vector<Dab> dabsOf(DabMaker& maker, const std::vector<LPPoint>& points) {
    std::vector<Dab> dabs;
    maker.make(points.data(), points.size(), [&](const Dab& dab) { dabs.push_back(dab); });
    return dabs;
}

DabMaker makerWith(const std::function<void(DabSettings&)>& change) {
    DabMaker maker;
    maker.settings.isDebug = true;
    change(maker.settings);
    maker.updateFlags();
    maker.reset();
    return maker;
}

// Counts

struct CountRow {
    const char* name;
    std::uint32_t count;
    float tingle;
    LPControlParams control;
    std::size_t least, most;
};
void PrintTo(const CountRow& row, std::ostream* out) {
    *out << row.name;
}
class DabCountTest : public ::testing::TestWithParam<CountRow> {};
TEST_P(DabCountTest, StaysSensible) {
    const CountRow& row = GetParam();
    DabMaker maker = makerWith([&](DabSettings& s) {
        s.distributionCount = row.count;
        s.distributionCountTingle = row.tingle;
        s.distributionCountControl = row.control;
        s.distribution = 1;
    });
    for (int i = 0; i < 50; ++i) {
        const std::size_t count = dabsOf(maker, {pointAt(20.0f + 9.0f * static_cast<float>(i), 30)}).size();
        EXPECT_GE(count, row.least);
        EXPECT_LE(count, row.most);
    }
}
INSTANTIATE_TEST_SUITE_P(Counts, DabCountTest,
                         ::testing::Values(CountRow{"NoneMeansOne", 0, 0, {0, 0, 0}, 1, 1},
                                           CountRow{"Several", 5, 0, {0, 0, 0}, 5, 5},
                                           CountRow{"ManyAreCut", 100000, 0, {0, 0, 0}, 64, 64},
                                           CountRow{"JitterNeverWrapsAround", 3, 50, {0, 0, 0}, 0, 64},
                                           CountRow{"PressureAgainst", 40, 0, {-1, 0, 0}, 0, 2}),
                         [](const auto& row) { return std::string(row.param.name); });

// Thin lines

TEST(DabTest, ThinPointsGrowOrFlowLess) {
    struct Row {
        int bits;
        float size, half, flow;
    };
    const Row rows[] = {{0, 1, 0.5f, 0.8f},           {kNoThinDabs, 1, 1.5f, 0.8f},
                        {kNoThinDabs, 7, 3.5f, 0.8f}, {kThinFlow, 1.5f, 0.75f, 0.4f},
                        {kThinFlow, 30, 15, 0.8f},    {kNoThinDabs | kThinFlow, 1.5f, 1.5f, 0.4f}};
    for (const Row& row : rows) {
        DabMaker maker = makerWith([&](DabSettings& s) {
            s.lineProcessType = row.bits;
            s.flow = 0.8f;
        });
        const Dab dab = dabsOf(maker, {pointAt(5, 5, row.size)}).front();
        EXPECT_FLOAT_EQ(dab.halfSize, row.half) << "bits " << row.bits << ", size " << row.size;
        EXPECT_FLOAT_EQ(dab.flow, row.flow) << "bits " << row.bits << ", size " << row.size;
    }
    static_assert(kNoThinDabs == 2 && kThinFlow == 4);
}

TEST(DabTest, AThickPointAfterAThinOneFlowsFully) {
    DabMaker maker = makerWith([](DabSettings& s) { s.lineProcessType = kThinFlow; });
    const auto dabs = dabsOf(maker, {pointAt(5, 5, 1), pointAt(9, 5, 9)});
    EXPECT_LT(dabs[0].flow, 0.5f);
    EXPECT_FLOAT_EQ(dabs[1].flow, 1);
}

// Direction

struct DirectionRow {
    const char* name;
    float dx, dy, radian;
};
void PrintTo(const DirectionRow& row, std::ostream* out) {
    *out << row.name;
}
class DabDirectionTest : public ::testing::TestWithParam<DirectionRow> {};
TEST_P(DabDirectionTest, FollowsTheStrokeFromItsFirstDab) {
    const DirectionRow& row = GetParam();
    DabMaker maker = makerWith([](DabSettings& s) { s.moveRadianEnable = true; });
    for (const Dab& dab : dabsOf(maker, {pointAt(100, 100), pointAt(100 + row.dx, 100 + row.dy),
                                         pointAt(100 + 2 * row.dx, 100 + 2 * row.dy)})) {
        EXPECT_NEAR(std::cos(dab.radian), std::cos(row.radian), 1e-4);
        EXPECT_NEAR(std::sin(dab.radian), std::sin(row.radian), 1e-4);
    }
}
INSTANTIATE_TEST_SUITE_P(Ways, DabDirectionTest,
                         ::testing::Values(DirectionRow{"Right", 9, 0, 0},
                                           DirectionRow{"Down", 0, 9, -kPi / 2},
                                           DirectionRow{"Up", 0, -9, kPi / 2},
                                           DirectionRow{"Left", -9, 0, kPi},
                                           DirectionRow{"DownRight", 5, 5, -kPi / 4}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(DabTest, DirectionCarriesOverFromCallToCall) {
    DabMaker maker = makerWith([](DabSettings& s) { s.moveRadianEnable = true; });
    dabsOf(maker, {pointAt(10, 10), pointAt(20, 10)});
    EXPECT_NEAR(dabsOf(maker, {pointAt(20, 30)}).front().radian, -kPi / 2, 1e-5);
    maker.reset();
    EXPECT_FLOAT_EQ(dabsOf(maker, {pointAt(20, 60)}).front().radian, 0)
        << "a new stroke knows no direction yet";
}

// Jitter

void everyJitter(DabSettings& s) {
    s.radius = 20;
    s.minRadius = 0.1f;
    s.radiusTingle = 0;  // draws from drand48() even in debug mode
    s.distribution = 1;
    s.distributionCount = 3;
    s.distributionCountTingle = 0.5f;
    s.radianTingle = 0.6f;
    s.startRadianEnable = true;
    s.roundness = 0.6f;
    s.roundnessTingle = 0.7f;
    s.flipXTingle = s.flipYTingle = true;
    s.maxFlow = 1;
    s.flowTingle = 0.5f;
    s.flowControl = {1, 0, 0};
    s.textureTingleEnabled = true;
    s.numberOfTips = 9;
    s.tipCells = 4;
    s.colorTingle = 0.6f;
    s.color = {0.9f, 0.2f, 0.1f};
    s.backColor = {0, 0.3f, 0.9f};
}

bool same(const Dab& a, const Dab& b) {
    return a.x == b.x && a.y == b.y && a.halfSize == b.halfSize && a.radian == b.radian &&
           a.roundness == b.roundness && a.flipX == b.flipX && a.flipY == b.flipY && a.flow == b.flow &&
           a.color.r == b.color.r && a.tip == b.tip;
}

TEST(DabTest, AStrokeRepeatsHoweverItIsCutIntoCalls) {
    std::vector<LPPoint> points;
    for (int i = 0; i < 40; ++i) {
        points.push_back(pointAt(30 + 5.0f * static_cast<float>(i), 60 + 3 * std::sin(static_cast<float>(i)),
                                 12, {0.5f, 0.2f, 0.7f}));
    }
    DabMaker whole = makerWith(everyJitter);
    const std::vector<Dab> expected = dabsOf(whole, points);
    DabMaker cut = makerWith(everyJitter);
    std::vector<Dab> actual;
    for (std::size_t i = 0; i < points.size(); i += 7) {
        const std::size_t end = std::min(i + 7, points.size());
        const std::vector<Dab> part = dabsOf(cut, {points.begin() + static_cast<std::ptrdiff_t>(i),
                                                   points.begin() + static_cast<std::ptrdiff_t>(end)});
        actual.insert(actual.end(), part.begin(), part.end());
    }
    ASSERT_EQ(actual.size(), expected.size());
    EXPECT_GT(actual.size(), points.size());
    for (std::size_t i = 0; i < actual.size(); ++i) {
        EXPECT_TRUE(same(actual[i], expected[i])) << "dab " << i;
    }
}

TEST(DabTest, EveryJitterStaysInRange) {
    srand48(3);
    for (const bool debug : {true, false}) {
        DabMaker maker = makerWith([&](DabSettings& s) {
            everyJitter(s);
            s.isDebug = debug;
            s.radiusTingle = 1;
            s.hueTingle = s.saturationTingle = s.brightnessTingle = 1;
        });
        bool tips[4] = {};
        for (int i = 0; i < 300; ++i) {
            for (const Dab& dab : dabsOf(maker, {pointAt(30 + 5.0f * static_cast<float>(i), 60, 12)})) {
                EXPECT_TRUE(dab.flow >= 0 && dab.flow <= 1) << dab.flow;
                EXPECT_TRUE(dab.roundness >= 0 && dab.roundness <= 1) << dab.roundness;
                EXPECT_TRUE(dab.halfSize > 0 && dab.halfSize <= 6) << dab.halfSize;
                EXPECT_LE(std::hypot(dab.x - 30 - 5.0f * static_cast<float>(i), dab.y - 60), 12.001f);
                ASSERT_LT(dab.tip, 4u);
                tips[dab.tip] = true;
                for (const float part : {dab.color.r, dab.color.g, dab.color.b}) {
                    EXPECT_TRUE(part >= 0 && part <= 1) << part;
                }
            }
        }
        for (const bool used : tips) {
            EXPECT_TRUE(used) << "a tip is never drawn";
        }
    }
}

// The limits at which a jitter counts as on stand as they are: colour and flow from just above, others from
// the limit on.
TEST(DabTest, JittersStartAtTheirLimits) {
    DabMaker maker = makerWith([](DabSettings& s) {
        s.colorTingle = s.flowTingle = s.hueTingle = 0.00001f;
        s.radianTingle = s.roundnessTingle = s.distribution = 0.00001f;
    });
    EXPECT_FALSE(maker.flags().colorTingle || maker.flags().flowTingle || maker.flags().hsvTingle);
    EXPECT_TRUE(maker.flags().radianTingle && maker.flags().roundnessTingle && maker.flags().distribution);
}

}  // namespace
