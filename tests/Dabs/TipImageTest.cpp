// SPDX-License-Identifier: MIT
#include "Dabs/TipImage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <string>

#include "Dabs/DabMap.h"

using namespace dabcanvas;

namespace {

// A tip's pixels, of which only alpha counts, by the distance of their centres from the middle: 1 at the inscribed
// circle.
template <typename AlphaAt>
std::vector<std::uint8_t> tipPixels(const Size& size, AlphaAt&& alphaAt) {
    std::vector<std::uint8_t> bytes;
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            const double distance =
                std::hypot((x + 0.5) * 2 / size.width - 1, (y + 0.5) * 2 / size.height - 1);
            bytes.insert(bytes.end(), {0, 0, 0, static_cast<std::uint8_t>(alphaAt(distance) * 255 + 0.5)});
        }
    }
    return bytes;
}

double softDisc(double distance) {
    return distance < 1 ? (1 - distance) * (1 - distance) : 0;
}
double hardDisc(double distance) {
    return distance < 1 ? 1 : 0;
}
double square(double) {
    return 1;
}

double texelAt(const Pixels& level, double x, double y) {
    const double u = x * level.size.width - 0.5, v = y * level.size.height - 0.5;
    const int left = static_cast<int>(std::floor(u)), top = static_cast<int>(std::floor(v));
    double sum = 0;
    for (const int i : {0, 1}) {
        for (const int j : {0, 1}) {
            sum += *level.at(std::clamp(left + i, 0, level.size.width - 1),
                             std::clamp(top + j, 0, level.size.height - 1)) *
                   (1 - std::fabs(u - left - i)) * (1 - std::fabs(v - top - j));
        }
    }
    return sum / 255;
}

// All that a dab lays down, in pixels of full coverage.
double inkOf(const Dab& dab, const TipImage& tip) {
    const DabMap map(dab, tip.size());
    const LevelPair levels = levelPairAt(tip.alpha, map.level);
    double ink = 0;
    for (int y = 0; y < 24; ++y) {
        for (int x = 0; x < 24; ++x) {
            const float dx = static_cast<float>(x) + 0.5f - dab.x, dy = static_cast<float>(y) + 0.5f - dab.y;
            const float along = map.alongX * dx + map.alongY * dy,
                        across = map.acrossX * dx + map.acrossY * dy;
            for (const int next : {0, 1}) {
                const double part = next == 0 ? 1 - levels.part : levels.part;
                if (part > 0) {
                    ink += part * map.coverage(along, across) *
                           texelAt(tip.alpha[static_cast<std::size_t>(levels.first + next)], map.tipX(along),
                                   map.tipY(across));
                }
            }
        }
    }
    return ink;
}

TEST(TipImageTest, ADabLaysDownItsInkWhereverItLies) {
    for (const auto& shape : {softDisc, hardDisc, square}) {
        for (const Size& size : {Size{64, 64}, Size{100, 100}, Size{128, 64}}) {
            const std::vector<std::uint8_t> bytes = tipPixels(size, shape);
            const TipImage tip = tipImageOf({PixelView::topRowFirst(bytes.data(), size), 1, {}}, 2048, false);
            const double mean = std::accumulate(tip.alpha[0].bytes.begin(), tip.alpha[0].bytes.end(), 0.0) /
                                (255.0 * size.width * size.height);
            for (const float width : {0.5f, 1.0f, 1.5f, 2.0f, 2.5f, 3.0f, 4.5f, 8.0f}) {
                for (const float radian : {0.0f, 0.3f, 0.785f}) {
                    const double ideal = mean * width * width;
                    double least = 1e9, most = 0;
                    for (int place = 0; place < 64; ++place) {
                        Dab dab{};
                        dab.x = 12 + static_cast<float>(place % 8) / 8;
                        dab.y = 12 + static_cast<float>(place / 8) / 8;
                        dab.halfSize = width / 2;
                        dab.radian = radian;
                        dab.roundness = dab.flipX = dab.flipY = 1;
                        const double ink = inkOf(dab, tip) / ideal;
                        least = std::min(least, ink);
                        most = std::max(most, ink);
                    }
                    const double off = width < 1 ? 0.15 : 0.07;
                    const std::string of = std::to_string(size.width) + " texels, " + std::to_string(width) +
                                           " pixels, turned by " + std::to_string(radian);
                    EXPECT_GT(least, 1 - off) << of;
                    EXPECT_LT(most, 1 + off) << of;
                }
            }
        }
    }
}

TEST(TipImageTest, LevelsKeepTheMeanOfAnySize) {
    for (const Size& size : {Size{100, 37}, Size{1, 9}, Size{33, 32}, Size{2300, 3}}) {
        const std::vector<std::uint8_t> bytes =
            tipPixels(size, [](double distance) { return distance < 0.9; });
        const TipImage tip = tipImageOf({PixelView::topRowFirst(bytes.data(), size), 1, {}}, 2048, false);
        const auto meanOf = [](const Pixels& level) {
            return std::accumulate(level.bytes.begin(), level.bytes.end(), 0.0) /
                   static_cast<double>(level.bytes.size());
        };
        for (const Pixels& level : tip.alpha) {
            EXPECT_NEAR(meanOf(level), meanOf(tip.alpha[0]), 2) << size.width << " at " << level.size.width;
            EXPECT_LE(level.size.width, 2048);
        }
        EXPECT_EQ(tip.alpha.back().size, (Size{1, 1}));
    }
}

}  // namespace
