// SPDX-License-Identifier: MIT
#include "Processor/DabPainter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "Processor/DabKernel.h"
#include "Processor/Workers.h"
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

// Dabs of all kinds, as many as make threads worth their while.
std::vector<Dab> mixedDabs(std::size_t count) {
    std::mt19937 random(11);
    const auto unit = [&] { return std::uniform_real_distribution<float>(0, 1)(random); };
    std::vector<Dab> dabs;
    for (std::size_t i = 0; i < count; ++i) {
        Dab dab = dabAt(unit() * 720 - 10, unit() * 170 - 10, std::exp2(unit() * 9 - 1));
        dab.radian = unit() * 7;
        dab.roundness = i % 3 == 0 ? 0.2f + 0.8f * unit() : 1;
        dab.flow = i % 2 == 0 ? unit() : 0.01f * unit();
        dab.flipX = i % 5 == 0 ? -1.0f : 1.0f;
        dab.color = {unit(), unit(), unit()};
        dab.random = unit();
        dab.tip = static_cast<std::uint32_t>(i) % 3;
        dabs.push_back(dab);
    }
    return dabs;
}

DabStyle mixedStyle(bool paper, bool multicolour) {
    DabStyle style;
    style.tips = std::make_shared<const TipSet>(
        TipSet{tipOf({64, 64}, softDisc), tipOf({200, 120}, bristles), tipOf({33, 90}, hardDisc)});
    style.multicolour = multicolour;
    style.hueTingle = style.saturationTingle = style.brightnessTingle = 0.4f;
    if (paper) {
        style.paper = std::make_shared<const Picture>(tipOf({50, 37}, bristles));
    }
    return style;
}

bool areSame(const TileGrid<std::uint16_t>& one, const TileGrid<std::uint16_t>& other) {
    for (std::size_t i = 0; i < one.count(); ++i) {
        const auto *a = one.tile(i), *b = other.tile(i);
        if ((a == nullptr) != (b == nullptr) || (a != nullptr && a->values != b->values)) {
            return false;
        }
    }
    return true;
}

TEST(DabPainterTest, GivesTheSameBytesHoweverItIsDone) {
    const std::vector<Dab> dabs = mixedDabs(200);
    for (const bool paper : {false, true}) {
        for (const bool multicolour : {false, true}) {
            const DabStyle style = mixedStyle(paper, multicolour);
            const auto drawn = [&](std::size_t run) {
                Layer layer;
                for (std::size_t i = 0; i < dabs.size(); i += run) {
                    layer.painter.draw(layer.grid, std::span(dabs).subspan(i, std::min(run, dabs.size() - i)),
                                       style, 1000 + i);
                }
                return layer.grid;
            };
            Workers::setMost(1);
            const TileGrid<std::uint16_t> alone = drawn(dabs.size());
            Workers::setMost(3);
            EXPECT_TRUE(areSame(alone, drawn(dabs.size()))) << "three threads";
            EXPECT_TRUE(areSame(alone, drawn(70))) << "runs of 70";
            EXPECT_TRUE(areSame(alone, drawn(1))) << "one by one";
            ASSERT_GT(kernelTargets().size(), 1u);
            for (const std::int64_t target : kernelTargets()) {
                useKernelTarget(target);
                EXPECT_TRUE(areSame(alone, drawn(dabs.size()))) << "instruction set " << target;
            }
            useKernelTarget(0);
        }
    }
}

struct Faint {
    float flow;
    int dabs;
};
class FaintDabsTest : public ::testing::TestWithParam<Faint> {};

TEST_P(FaintDabsTest, AddUpToWhatTheyAre) {
    DabStyle style;
    style.tips = std::make_shared<const TipSet>(TipSet{tipOf({64, 64}, softDisc)});
    const TipImage tip = tipImageOf(style.tips->front(), mostTipSide(1), false);
    Dab dab = dabAt(50.3f, 60.6f, 56);
    dab.radian = 0.4f;
    std::vector<double> once(static_cast<std::size_t>(kLayer.width * kLayer.height * 4));
    reference::draw(once, kLayer, {&dab, 1}, {&tip, 1}, nullptr, style);
    dab.flow = GetParam().flow;
    Layer layer;
    const std::vector<Dab> run(50, dab);
    for (int i = 0; i < GetParam().dabs; i += 50) {
        const auto some = std::span(run).first(static_cast<std::size_t>(std::min(GetParam().dabs - i, 50)));
        layer.painter.draw(layer.grid, some, style, static_cast<std::uint64_t>(i));
    }
    const double straight[] = {dab.color.r, dab.color.g, dab.color.b};
    double off = 0, colourOff = 0;
    for (int y = 20; y < 100; ++y) {
        for (int x = 10; x < 90; ++x) {
            const double coverage = once[static_cast<std::size_t>((y * kLayer.width + x) * 4 + 3)];
            const double alpha = 1 - std::pow(1 - coverage * double{dab.flow}, GetParam().dabs);
            const double drawn = layer.at(x, y, 3);
            off = std::max(off, std::fabs(drawn - alpha));
            for (std::size_t i = 0; i < 3; ++i) {
                ASSERT_LE(layer.at(x, y, i), drawn);
                if (alpha > 0.9) {  // on a paler rim, 16 bits hold no more of a colour
                    colourOff = std::max(colourOff, std::fabs(layer.at(x, y, i) / drawn - straight[i]));
                }
            }
        }
    }
    EXPECT_LT(off * 255, 1);
    EXPECT_LT(colourOff * 255, 0.2);
}
INSTANTIATE_TEST_SUITE_P(All, FaintDabsTest,
                         ::testing::Values(Faint{0.0005f, 6000}, Faint{0.001f, 3000}, Faint{0.003f, 3000},
                                           Faint{0.01f, 1000}, Faint{0.05f, 100}, Faint{0.3f, 30}));

TEST(DabPainterTest, LeavesWhatItDoesNotCover) {
    std::mt19937 random(3);
    const DabStyle style = mixedStyle(false, false);
    Layer layer;
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::uint16_t& value : layer.grid.writable(i).values) {
            value = static_cast<std::uint16_t>(random());
        }
    }
    const TileGrid<std::uint16_t> before = layer.grid;
    Dab dab = dabAt(145, 30, 90);
    dab.radian = 0.5f;
    dab.tip = 2;
    const Rect touched = layer.painter.draw(layer.grid, {&dab, 1}, style, 7);
    const TipImage tip = tipImageOf((*style.tips)[2], mostTipSide(3), false);
    std::vector<double> reference(static_cast<std::size_t>(kLayer.width * kLayer.height * 4));
    const std::vector<TipImage> tips{tip, tip, tip};
    reference::draw(reference, kLayer, {&dab, 1}, tips, nullptr, style);
    for (int y = 0; y < kLayer.height; ++y) {
        for (int x = 0; x < kLayer.width; ++x) {
            const std::size_t index = layer.grid.indexAt(x, y);
            const auto *was = before.tile(index), *is = layer.grid.tile(index);
            const bool covered = reference[static_cast<std::size_t>((y * kLayer.width + x) * 4 + 3)] > 0;
            if (was != nullptr && !covered) {
                const int inX = x % kTileSide, inY = y % kTileSide;
                ASSERT_TRUE(std::equal(was->at(inX, inY), was->at(inX, inY) + 4, is->at(inX, inY)))
                    << x << ' ' << y;
            }
            if (covered) {
                ASSERT_TRUE(touched.contains({x, y, 1, 1})) << x << ' ' << y;
            }
        }
    }
    // The disc's box reaches into the next column's tile, the disc does not.
    EXPECT_NE(layer.grid.tile(layer.grid.indexAt(150, 70)), nullptr);
    EXPECT_EQ(layer.grid.tile(layer.grid.indexAt(200, 30)), nullptr);
}

TEST(DabPainterTest, WildDabsDoNoHarm) {
    std::mt19937 random(23);
    const float values[] = {0,        -1,        1,   0.5f, 1e-30f, 1e30f, -1e30f, 3e38f,
                            INFINITY, -INFINITY, NAN, 64,   100,    1e-4f, 7,      1e5f};
    const auto wild = [&] {
        return random() % 4 == 0 ? values[random() % std::size(values)]
                                 : static_cast<float>(random() % 70000) / 1000;
    };
    DabStyle style = mixedStyle(true, false);
    TileGrid<std::uint16_t> layer({70, 70});
    DabPainter painter;
    for (int i = 0; i < 1000; ++i) {
        std::vector<Dab> dabs;
        for (int k = 0; k < 100; ++k) {
            dabs.push_back({wild(),
                            wild(),
                            wild() / 8,
                            wild(),
                            wild(),
                            wild(),
                            wild(),
                            wild(),
                            {wild(), wild(), wild()},
                            wild(),
                            static_cast<std::uint32_t>(random() % 7)});
        }
        if (i % 100 == 0) {
            style = mixedStyle(i % 200 == 0, i % 300 == 0);
            style.paperScale = wild();
            style.hueTingle = wild();
        }
        const Rect touched = painter.draw(layer, dabs, style, random());
        ASSERT_TRUE(Rect::of(layer.size()).contains(touched));
    }
    for (std::size_t i = 0; i < layer.count(); ++i) {
        const auto* tile = layer.tile(i);
        for (std::size_t k = 0; tile != nullptr && k < tile->values.size(); ++k) {
            ASSERT_LE(tile->values[k], tile->values[k | 3]);
        }
    }
}

}  // namespace
