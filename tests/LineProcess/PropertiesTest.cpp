// SPDX-License-Identifier: MIT
#include <cstring>
#include <set>

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
