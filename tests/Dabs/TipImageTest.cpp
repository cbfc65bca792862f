// SPDX-License-Identifier: MIT
#include "Dabs/TipImage.h"

#include <gtest/gtest.h>

#include <numeric>

#include "support/DabReference.h"
#include "support/Dabs.h"

using namespace dabcanvas;

namespace {

double meanOf(const Pixels& level) {
    return std::accumulate(level.bytes.begin(), level.bytes.end(), 0.0) /
           static_cast<double>(level.bytes.size());
}

// All that a dab lays down, in pixels of full coverage, by the reference that every surface is held against.
double inkOf(const Dab& dab, const TipImage& tip) {
    std::vector<double> layer(13 * 13 * 4);
    reference::draw(layer, {13, 13}, {&dab, 1}, {&tip, 1}, nullptr, {});
    double ink = 0;
    for (std::size_t i = 3; i < layer.size(); i += 4) {
        ink += layer[i];
    }
    return ink;
}

TEST(TipImageTest, ADabLaysDownItsInkWhereverItLies) {
    for (const auto shape : {softDisc, hardDisc, square}) {
        for (const Size& size : {Size{64, 64}, Size{100, 100}, Size{128, 64}}) {
            const TipImage tip = tipImageOf(pictureOf(size, shape), 2048, false);
            for (const float width : {0.5f, 1.0f, 1.5f, 2.0f, 2.5f, 3.0f, 4.5f, 8.0f}) {
                for (const float radian : {0.0f, 0.3f, 0.785f}) {
                    double least = 1e9, most = 0;
                    for (int place = 0; place < 64; ++place) {
                        Dab dab = dabAt(6 + static_cast<float>(place % 8) / 8,
                                        6 + static_cast<float>(place / 8) / 8, width);
                        dab.radian = radian;
                        const double ink = inkOf(dab, tip) * 255 / meanOf(tip.alpha[0]) / (width * width);
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
        const TipImage tip = tipImageOf(pictureOf(size, hardDisc), 2048, false);
        for (const Pixels& level : tip.alpha) {
            EXPECT_NEAR(meanOf(level), meanOf(tip.alpha[0]), 2) << size.width << " at " << level.size.width;
            EXPECT_LE(level.size.width, 2048);
        }
        EXPECT_EQ(tip.alpha.back().size, (Size{1, 1}));
    }
    // What is larger than a tip may be keeps the mean of every place: here of every other column.
    const Picture columns = pictureOf({4096, 2}, [](double x, double) {
        const double part = std::fmod((x + 1) * 2048, 2) < 1 ? 1 : 0;
        return Pixel{part, part, part, part};
    });
    const TipImage tip = tipImageOf(columns, mostTipSide(2), true);
    for (const Pixels& level : {tip.alpha[0], tip.colour[0]}) {
        EXPECT_EQ(level.size, (Size{1024, 2}));
        EXPECT_TRUE(std::all_of(level.bytes.begin(), level.bytes.end(),
                                [](int value) { return std::abs(value - 128) <= 1; }));
    }
}

}  // namespace
