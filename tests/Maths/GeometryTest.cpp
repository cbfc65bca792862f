// SPDX-License-Identifier: MIT
#include "Maths/Geometry.h"

#include <gtest/gtest.h>

#include <limits>
#include <numbers>

#include "Maths/Rounding.h"

using std::numbers::pi;

TEST(GeometryTest, ScalingDividesEachAxisByItsOwnScale) {
    EXPECT_EQ(CGRectApplyScale(QRectF(10, 20, 30, 40), QSizeF(2, 4)), QRectF(5, 5, 15, 10));
}

TEST(GeometryTest, RotatedBoxReachesAsFarAsItsFarthestCorner) {
    const double diagonal = 5 * std::numbers::sqrt2;
    const struct {
        QSizeF half;
        double angle;
        QSizeF expected;
    } tests[] = {{{5, 5}, 0, {5, 5}},
                 {{5, 5}, pi / 4, {diagonal, diagonal}},
                 {{8, 2}, pi / 2, {2, 8}},
                 {{8, 2}, -pi, {8, 2}},
                 {{0, 0}, 1, {0, 0}}};
    for (const auto& test : tests) {
        const QSizeF extent = CGSizeApplyRotation(test.half, static_cast<float>(test.angle));
        // Single precision throughout: a few units in the last place of values below 16.
        EXPECT_NEAR(extent.width(), test.expected.width(), 4e-6) << test.angle;
        EXPECT_NEAR(extent.height(), test.expected.height(), 4e-6) << test.angle;
    }
}

TEST(GeometryTest, AnglesRunFromBelowMinusPiToHalfPi) {
    const struct {
        float x, y;
        double expected;
    } tests[] = {{1, 1, pi / 4},        {0, 1, pi / 2},        {0, -1, -pi / 2}, {-1, 0, -pi},
                 {-1, 1, -pi / 4 - pi}, {-1, -1, pi / 4 - pi}, {0, 0, 0}};
    for (const auto& test : tests) {
        EXPECT_NEAR(RadianF(3, 7, 3 + test.x, 7 + test.y), test.expected, 5e-7) << test.x << ", " << test.y;
        EXPECT_NEAR(static_cast<double>(RadianLD(0, 0, test.x, test.y)), test.expected, 1e-15);
    }
}

TEST(RoundingTest, DoublesOutsideIntAreCutAndHalvesGoAway) {
    using dabcanvas::nearestInt;
    using dabcanvas::truncatedInt;
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(truncatedInt(-1.9), -1);
    EXPECT_EQ(nearestInt(-1.5), -2);
    EXPECT_EQ(nearestInt(2.5), 3);
    EXPECT_EQ(truncatedInt(std::nan("")), 0);
    EXPECT_EQ(truncatedInt(kInfinity), 1 << 30);
    EXPECT_EQ(nearestInt(-kInfinity), -(1 << 30));
}
