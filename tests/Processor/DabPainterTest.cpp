// SPDX-License-Identifier: MIT
#include "Processor/DabPainter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "support/DabReference.h"

using namespace dabcanvas;

namespace {

constexpr Size kLayer{700, 150};

// Pixels that keep themselves alive.
Picture pictureOf(const Size& size, std::vector<std::uint8_t> bytes) {
    const auto owned = std::make_shared<std::vector<std::uint8_t>>(std::move(bytes));
    return {PixelView::topRowFirst(owned->data(), size), 1, owned};
}

// Premultiplied; alpha by the distance of a texel's centre from the middle, and a colour of its own.
template <typename AlphaAt>
Picture tipOf(const Size& size, AlphaAt&& alphaAt) {
    std::vector<std::uint8_t> bytes;
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            const double distance =
                std::hypot((x + 0.5) * 2 / size.width - 1, (y + 0.5) * 2 / size.height - 1);
            const double alpha = std::clamp(alphaAt(distance, x, y), 0.0, 1.0) * 255;
            for (const double part : {1.0 * x / size.width, 1.0 * y / size.height, 0.2, 1.0}) {
                bytes.push_back(static_cast<std::uint8_t>(part * std::round(alpha)));
            }
        }
    }
    return pictureOf(size, std::move(bytes));
}

double softDisc(double distance, int, int) {
    return 2 * (1 - distance);
}
double hardDisc(double distance, int, int) {
    return distance < 0.9 ? 1 : 0;
}
double bristles(double distance, int x, int y) {
    return distance < 1 ? (1 - distance) * (0.6 + 0.4 * std::sin(x * 0.9) * std::cos(y * 0.7)) : 0;
}
double square(double, int, int) {
    return 1;
}

struct Layer {
    TileGrid<std::uint16_t> grid{kLayer};
    DabPainter painter;

    double at(int x, int y, std::size_t channel) const {
        const auto* tile = grid.tile(grid.indexAt(x, y));
        return tile == nullptr ? 0 : tile->at(x % kTileSide, y % kTileSide)[channel] / 65535.0;
    }
};

struct Difference {
    double most = 0, mean = 0;  // of 1/255
};

Difference differenceOf(const Layer& layer, const std::vector<double>& reference) {
    double sum = 0, most = 0;
    std::size_t touched = 0;
    for (int y = 0; y < kLayer.height; ++y) {
        for (int x = 0; x < kLayer.width; ++x) {
            const double* pixel = &reference[static_cast<std::size_t>((y * kLayer.width + x) * 4)];
            for (std::size_t i = 0; i < 4; ++i) {
                const double off = std::fabs(layer.at(x, y, i) - pixel[i]) * 255;
                most = std::max(most, off);
                sum += off;
                touched += pixel[3] > 0 ? 1 : 0;
            }
        }
    }
    return {most, touched == 0 ? 0 : sum / static_cast<double>(touched)};
}

Dab dabAt(float x, float y, float size) {
    return {x, y, size / 2, 0, 1, 1, 1, 1, {0.9f, 0.4f, 0.1f}, 0.37f, 0};
}

TEST(DabPainterTest, DrawsEveryDabAsItIs) {
    std::mt19937 random(5);
    const auto unit = [&] { return std::uniform_real_distribution<float>(0, 1)(random); };
    const auto tips = std::make_shared<const TipSet>(
        TipSet{tipOf({64, 64}, softDisc), tipOf({200, 120}, bristles), tipOf({33, 90}, hardDisc),
               tipOf({512, 512}, bristles), tipOf({16, 16}, square)});
    std::vector<TipImage> images;
    for (const Picture& tip : *tips) {
        images.push_back(tipImageOf(tip, mostTipSide(tips->size()), true));
    }
    const auto paper = std::make_shared<const Picture>(tipOf({50, 37}, bristles));
    Difference worst;
    for (int i = 0; i < 300; ++i) {
        const float size = std::exp2(unit() * 10.2f - 1);
        Dab dab = dabAt(unit() * 700, unit() * 150, size);
        dab.radian = i % 3 == 0 ? 0 : unit() * 7;
        dab.roundness = i % 2 == 0 ? 1 : 0.1f + 0.9f * unit();
        dab.flipX = unit() < 0.5f ? -1.0f : 1.0f;
        dab.flipY = unit() < 0.5f ? -1.0f : 1.0f;
        dab.tip = static_cast<std::uint32_t>(i) % 5;
        DabStyle style;
        style.tips = tips;
        style.multicolour = i % 4 == 1;
        style.hueTingle = 0.3f;
        style.saturationTingle = style.brightnessTingle = 0.2f;
        dab.random = unit();
        PaperImage paperImage = paperImageOf(*paper);
        if (i % 4 == 2) {
            style.paper = paper;
            style.paperScale = 0.2f + 2 * unit();
        }
        Layer layer;
        layer.painter.draw(layer.grid, {&dab, 1}, style, 0);
        std::vector<double> reference(700 * 150 * 4);
        reference::draw(reference, kLayer, {&dab, 1}, images, style.paper ? &paperImage : nullptr, style);
        const Difference off = differenceOf(layer, reference);
        worst.most = std::max(worst.most, off.most);
        worst.mean = std::max(worst.mean, off.mean);
    }
    EXPECT_LT(worst.most, 3);
    EXPECT_LT(worst.mean, 0.5);
}

}  // namespace
