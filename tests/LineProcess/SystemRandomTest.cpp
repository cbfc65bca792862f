// SPDX-License-Identifier: MIT
#include "LineProcess/SystemRandom.h"

#include <gtest/gtest.h>

using namespace dabcanvas;

TEST(SystemRandomTest, NumbersAreThoseOfPosixOnEverySystem) {
    seedSystemUniform(0);
    EXPECT_DOUBLE_EQ(systemUniform(), 0.17082803610628972);
    EXPECT_DOUBLE_EQ(systemUniform(), 0.74990198048496378);
    seedSystemUniform(4000000000u);
    EXPECT_DOUBLE_EQ(systemUniform(), 0.83318202856844792);
}

TEST(SystemRandomTest, WholeNumbersHave31Bits) {
    std::int32_t all = 0;
    for (int i = 0; i < 500; ++i) {
        const std::int32_t number = systemRandom();
        ASSERT_GE(number, 0);
        all |= number;
    }
    EXPECT_EQ(all, 0x7fffffff);
}
