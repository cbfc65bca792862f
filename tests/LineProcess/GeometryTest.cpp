// SPDX-License-Identifier: MIT

#include "LineProcess/LPArc.h"
#include "LineProcess/StrokeFixture.h"

namespace {

struct Curve {
    LPPosition p0, p1, p2;
};

double integratedLength(const Curve& c, double end) {
    constexpr int kSteps = 20000;
    double sum = 0.0;
    for (int i = 0; i < kSteps; ++i) {
        const double t = end * (i + 0.5) / kSteps;
        const double vx = 2.0 * ((1.0 - t) * (c.p1.x - c.p0.x) + t * (c.p2.x - c.p1.x));
        const double vy = 2.0 * ((1.0 - t) * (c.p1.y - c.p0.y) + t * (c.p2.y - c.p1.y));
        sum += std::hypot(vx, vy) * end / kSteps;
    }
    return sum;
}

}  // namespace

TEST(ArcTest, LengthAgreesWithIntegration) {
    const float rows[][6] = {{0, 0, 10, 20, 20, 0},
                             {5, 5, 105, 5, 105, 45},
                             {0, 0, 2, 1, 60, 5},
                             {0, 0, 58, 3, 60, 5},
                             {0, 0, 40, 0.4f, 1, 0},
                             {700, 300, 733, 311, 700, 300},
                             {0, 0, 50, 0, 30, 0},
                             {0, 0, 100, 0.05f, 200, 0},
                             {0, 0, 60, 0.2f, 120, 0},
                             {1, 1, 1.3f, 1.4f, 2, 1},
                             {9000, 8000, 9040, 8010, 9050, 8060}};
    for (const auto& row : rows) {
        const Curve c{{row[0], row[1]}, {row[2], row[3]}, {row[4], row[5]}};
        float A = 0, B = 0, C = 0;
        lpGetParaOfBezierLength(&c.p0, &c.p1, &c.p2, &A, &B, &C);
        for (const float t : {0.25f, 0.5f, 0.75f, 1.0f}) {
            const double expected = integratedLength(c, t);
            // The closed form keeps a guard in its divisor that costs nearly straight curves some of their length.
            EXPECT_NEAR(lpLengthOfQuadraticBezierGivenParam(A, B, C, t), expected,
                        0.02 + (A > 1.0f ? 2e-4 : 0.1) * expected)
                << "curve " << &row - rows << " at " << t;
        }
    }
}

// The walk skips most logarithms; it must still end where the plain bisection ends, to the bit.
TEST(ArcWalkTest, GivesTheBitsOfTheBisection) {
    std::mt19937 generator(20240611);
    const auto between = [&](double low, double high) {
        return low + (high - low) * static_cast<double>(generator()) / 4294967296.0;
    };
    for (int i = 0; i < 20000; ++i) {
        const double size = std::pow(10.0, between(-1.0, 3.0));
        const double bend = i % 3 == 0   ? between(-3.15, 3.15)
                            : i % 3 == 1 ? between(-0.02, 0.02)
                                         : between(3.1, 3.2);
        const double angle = between(0.0, 6.28);
        const auto from = [](LPPosition p, double length, double towards) {
            return LPPosition{static_cast<float>(p.x + length * std::cos(towards)),
                              static_cast<float>(p.y + length * std::sin(towards))};
        };
        const LPPosition p0 = {static_cast<float>(between(0, 2000)), static_cast<float>(between(0, 2000))};
        const LPPosition p1 = from(p0, size * between(0.01, 1.0), angle);
        const LPPosition p2 = from(p1, i % 2 == 0 ? size : size * between(0.01, 1.0), angle + bend);
        float A = 0, B = 0, C = 0;
        lpGetParaOfBezierLength(&p0, &p1, &p2, &A, &B, &C);
        dabcanvas::ArcWalk walk(A, B, C);
        const float length = lpLengthOfQuadraticBezierGivenParam(A, B, C, 1.0f);
        const float step = length * static_cast<float>(between(0.02, 0.3));
        float t = 0.0f;
        for (float d = -0.5f * step; d < length; d += step) {
            const float expected = lpGetTInBezierGivenLengthAndParam(A, B, C, d, t);
            ASSERT_EQ(walk.parameterAt(d, t), expected) << A << " " << B << " " << C << " at " << d;
            t = expected;
        }
    }
}

TEST(GeometryTest, ThreePlacesAreInLineOnlyInOrder) {
    const LPPosition a = {0, 0}, b = {10, 0}, c = {20, 0}, off = {10, 0.01f};
    EXPECT_TRUE(lp3PositionInLineWithOrder(&a, &b, &c));
    EXPECT_TRUE(lp3PositionInLineWithOrder(&a, &a, &c));
    EXPECT_TRUE(lp3PositionInLineWithOrder(&a, &a, &a));
    EXPECT_FALSE(lp3PositionInLineWithOrder(&a, &c, &b));
    EXPECT_FALSE(lp3PositionInLineWithOrder(&a, &off, &c));
}

TEST(GeometryTest, LengthsStayFiniteWhateverTheCurve) {
    for (const float A : {-1.0f, 0.0f, 1e-20f, 0.01f, 1.0f, 1e20f, 3e38f, std::nanf("")}) {
        for (const float B : {-3e38f, -2.0f, 0.0f, 1e19f}) {
            for (const float C : {-1.0f, 0.0f, 1.0f, 3e38f}) {
                const float length = lpLengthOfQuadraticBezierGivenParam(A, B, C, 1.0f);
                EXPECT_TRUE(std::isfinite(length)) << A << " " << B << " " << C;
                EXPECT_TRUE(std::isfinite(lpGetTInBezierGivenLengthAndParam(A, B, C, 1.0f, 0.0f)));
            }
        }
    }
}
