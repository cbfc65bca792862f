// SPDX-License-Identifier: MIT
#include <cstring>
#include <set>
#include <thread>

#include "LineProcess/StrokeFixture.h"

TEST_F(StrokeTest, EveryIdAddressesAFieldOfItsOwn) {
    std::set<void*> places;
    for (int id = -2; id <= 23; ++id) {
        const bool known = id >= 1 && id <= 20 && id != 4 && id != 12 && id != 19;
        void* const place = lpGetPropertyPointer(id);
        EXPECT_EQ(place != nullptr, known) << id;
        EXPECT_TRUE(!known || places.insert(place).second) << id;
    }
    EXPECT_EQ(lpGetPropertyPointer(6), &_line.radiusControl.speed);
    EXPECT_EQ(lpGetPropertyPointer(7), &_line.radiusControl.pressure);
    EXPECT_EQ(lpGetPropertyPointer(8), &_line.radiusControl.altitude);
    EXPECT_EQ(lpGetPropertyPointer(15), &_line.startRadius);
    EXPECT_EQ(lpGetPropertyPointer(20), &_line.minPointsDistance);
}

TEST_F(StrokeTest, StoresReachTheirFieldAndNotPastTheRecord) {
    struct {
        LPLineParams line;
        std::uint32_t guard;
    } memory = {_line, 0xA5A5A5A5u};
    EXPECT_EQ(lpSetParaObj(nullptr), &_line);
    EXPECT_EQ(lpSetParaObj(&memory.line), &_lpDefaultParaObj) << "no record selects the default one";
    for (const int id : {-1, 0, 4, 12, 19, 21}) {
        EXPECT_EQ(lpSetPropertyi(id, 7), nullptr);
        EXPECT_EQ(lpSetPropertyd(id, 7.0), nullptr);
        EXPECT_EQ(lpGetPropertyf(id), 0.0f);
        EXPECT_FALSE(lpGetPropertyb(id));
    }
    EXPECT_EQ(std::memcmp(&memory.line, &_line, sizeof _line), 0) << "unknown ids";
    lpSetPropertyf(1, 12.5f);
    lpSetPropertyb(2, false);
    lpSetPropertyi(17, -3);
    lpSetPropertyd(20, -1.0);
    EXPECT_EQ(memory.line.radius, 12.5f);
    EXPECT_FALSE(lpGetPropertyb(2));
    EXPECT_EQ(memory.line.pointsDistance, 0.15f);
    EXPECT_EQ(memory.line.trackNum, -3);
    EXPECT_EQ(memory.guard, 0xA5A5A5A5u);
    lpSetPropertyd(13, 0.1);  // covers the next field as well
    EXPECT_EQ(lpGetPropertyd(13), 0.1);
    lpSetParaObj(&_line);
}

// Two canvases draw a stroke each, taking turns at every sample or on a thread each.
TEST_F(StrokeTest, InterleavedStrokesDoNotDisturbEachOther) {
    const auto place = [](int stroke, int i) {
        const float t = static_cast<float>(i);
        return stroke == 0 ? LPPosition{t * 9.0f, t * t}
                           : LPPosition{300.0f - t * 25.0f, 40.0f * std::sin(t)};
    };
    LPLineParams lines[2] = {_line, _line};
    lines[0].startRadius = 0.2f;
    lines[1].endRadius = 0.3f;
    lines[1].radiusControl.speed = 0.8f;
    const auto scatter = [](const Dabs& dabs) {
        Dabs placed = dabs;
        for (LPPoint& dab : placed) {
            dab.position = PositionTingle(dab, 1.0f, false, 3, 0.0f, {});
        }
        return placed;
    };
    constexpr int kSamples = 14;
    Dabs alone[2];
    Dabs together[2];
    Dabs threaded[2];
    SetDebugModel(1);
    const auto step = [&](int stroke, int i, Dabs& out) {
        lpSetParaObj(&lines[stroke]);
        if (i == 0) {
            lpStartLine(place(stroke, 0));
            return;
        }
        const Dabs more = scatter(append(place(stroke, i), 0.5f, 0.0f, i + 1 == kSamples - stroke));
        out.insert(out.end(), more.begin(), more.end());
    };
    const LPSharedState fresh;
    for (int stroke = 0; stroke < 2; ++stroke) {
        lpSetSharedState(fresh);
        for (int i = 0; i < kSamples - stroke; ++i) {
            step(stroke, i, alone[stroke]);
        }
    }
    LPSharedState states[2];
    for (int i = 0; i < kSamples; ++i) {
        for (int stroke = 0; stroke < 2; ++stroke) {
            if (i < kSamples - stroke) {
                lpSetSharedState(states[stroke]);
                step(stroke, i, together[stroke]);
                states[stroke] = lpSharedState();
            }
        }
    }
    std::vector<std::thread> painters;
    for (int stroke = 0; stroke < 2; ++stroke) {
        painters.emplace_back([&, stroke] {
            SetDebugModel(1);
            for (int round = 0; round < 200; ++round) {
                threaded[stroke].clear();
                lpSetSharedState(fresh);
                for (int i = 0; i < kSamples - stroke; ++i) {
                    step(stroke, i, threaded[stroke]);
                }
            }
        });
    }
    for (std::thread& painter : painters) {
        painter.join();
    }
    for (int stroke = 0; stroke < 2; ++stroke) {
        for (const Dabs* dabs : {&together[stroke], &threaded[stroke]}) {
            ASSERT_EQ(alone[stroke].size(), dabs->size());
            EXPECT_EQ(std::memcmp(alone[stroke].data(), dabs->data(), dabs->size() * sizeof(LPPoint)), 0);
        }
    }
    lpSetParaObj(&_line);
}

TEST_F(StrokeTest, RandomNumbersKeepTheirRangeAndShape) {
    lpRandom();
    std::srand(7);
    const float again = lpRandom();
    std::srand(7);
    EXPECT_EQ(lpRandom(), again);
    double sum = 0.0;
    double squares = 0.0;
    constexpr int kDraws = 40000;
    for (int i = 0; i < kDraws; ++i) {
        const float u = lpUniformRandom(-2.0f, 3.0f);
        ASSERT_TRUE(u >= -2.0f && u < 3.0f);
        const double x = lpGaussianRandom(5.0f, 2.0f);
        sum += x;
        squares += (x - 5.0) * (x - 5.0);
    }
    // Five standard errors of each estimate.
    EXPECT_NEAR(sum / kDraws, 5.0, 5.0 * 2.0 / 200.0);
    EXPECT_NEAR(squares / kDraws, 4.0, 5.0 * 4.0 * 1.4143 / 200.0);
}
