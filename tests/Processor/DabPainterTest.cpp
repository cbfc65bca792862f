// SPDX-License-Identifier: MIT
#include "Processor/DabPainter.h"

#include <gtest/gtest.h>

#include <random>

#include "Processor/DabKernel.h"
#include "Processor/Workers.h"
#include "support/Dabs.h"

using namespace dabcanvas;

namespace {

constexpr Size kLayer{700, 150};

struct Layer {
    TileGrid<std::uint16_t> grid{kLayer};
    DabPainter painter;
};

// Dabs of all kinds, as many as make threads worth their while.
std::vector<Dab> mixedDabs(std::size_t count) {
    std::mt19937 random(11);
    const auto unit = [&] { return std::uniform_real_distribution<float>(0, 1)(random); };
    std::vector<Dab> dabs;
    for (std::size_t i = 0; i < count; ++i) {
        Dab dab = dabAt(unit() * 720 - 10, unit() * 170 - 10, std::exp2(unit() * 9 - 1));
        dab.radian = i % 4 == 0 ? 0 : unit() * 7;
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
    style.tips =
        tipsOf({pictureOf({64, 64}, softDisc), pictureOf({200, 120}, motley), pictureOf({33, 90}, hardDisc)});
    style.multicolour = multicolour;
    style.hueTingle = style.saturationTingle = style.brightnessTingle = 0.4f;
    if (paper) {
        style.paper = std::make_shared<const Picture>(pictureOf({50, 37}, grain));
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
            Dab dab{};
            for (float* part :
                 {&dab.x, &dab.y, &dab.halfSize, &dab.radian, &dab.roundness, &dab.flipX, &dab.flipY,
                  &dab.flow, &dab.color.r, &dab.color.g, &dab.color.b, &dab.random}) {
                *part = part == &dab.halfSize ? wild() / 8 : wild();
            }
            dab.tip = static_cast<std::uint32_t>(random() % 7);
            dabs.push_back(dab);
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
