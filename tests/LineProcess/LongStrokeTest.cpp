// SPDX-License-Identifier: MIT
#include <algorithm>
#include <chrono>

#include "LineProcess/StrokeFixture.h"

// One call costs its own segment. A cost that grew with the stroke would show fifty times over here.
TEST_F(StrokeTest, ALongStrokeCostsTheSameToItsEnd) {
    using Clock = std::chrono::steady_clock;
    constexpr int kPart = 20000;
    const auto part = [&](int from) {
        const auto start = Clock::now();
        for (int i = from; i < from + kPart; ++i) {
            const float angle = static_cast<float>(i % 10000) * 0.05f;
            move(400.0f + 300.0f * std::cos(angle), 300.0f + 200.0f * std::sin(angle * 1.3f));
        }
        return std::chrono::duration<double>(Clock::now() - start).count();
    };
    lpStartLine({400, 300});
    const double first = std::min(part(0), part(kPart));
    part(2 * kPart);
    const double last = std::min(part(3 * kPart), part(4 * kPart));
    EXPECT_LT(last, 4.0 * first + 0.02);
    EXPECT_LT(_lpTrace.capacity, 200u);
}
