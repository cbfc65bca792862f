// SPDX-License-Identifier: MIT
#include "Processor/DabPainter.h"

#include <gtest/gtest.h>

#include <random>

#include "Processor/DabKernel.h"
#include "Processor/ProcessorSurface.h"
#include "Processor/Workers.h"
#include "support/Dabs.h"

using namespace dabcanvas;

namespace {

constexpr Size kLayer{700, 150};

// More instruction sets than these must be there, or nothing is compared.
#ifdef DABCANVAS_ONE_INSTRUCTION_SET
constexpr std::size_t kFewestTargets = 0;
#else
constexpr std::size_t kFewestTargets = 1;
#endif

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
        dab.flipY = i % 4 == 0 && i % 3 == 1 ? -1.0f : 1.0f;
        dab.color = {unit(), unit(), unit()};
        dab.random = unit();
        dab.tip = static_cast<std::uint32_t>(i) % 3;
        dab.paperLift = unit() - 0.5f;
        dabs.push_back(dab);
    }
    return dabs;
}

enum class Paper { none, plain, relief };

DabStyle mixedStyle(Paper paper, bool multicolour) {
    DabStyle style;
    style.tips =
        tipsOf({pictureOf({64, 64}, softDisc), pictureOf({200, 120}, motley), pictureOf({33, 90}, hardDisc)});
    style.multicolour = multicolour;
    style.hueTingle = style.saturationTingle = style.brightnessTingle = 0.4f;
    if (paper != Paper::none) {
        style.paper = std::make_shared<const Picture>(pictureOf({50, 37}, grain));
        if (paper == Paper::relief) {
            style.paperStyle = {.gain = 1.5f, .lifts = true};
        }
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
    for (const Paper paper : {Paper::none, Paper::plain, Paper::relief}) {
        for (const bool multicolour : {false, true}) {
            const DabStyle style = mixedStyle(paper, multicolour);
            const auto drawn = [&](std::size_t run) {
                TileGrid<std::uint16_t> layer{kLayer};
                DabPainter painter;
                for (std::size_t i = 0; i < dabs.size(); i += run) {
                    painter.draw(layer, std::span(dabs).subspan(i, std::min(run, dabs.size() - i)), style,
                                 1000 + i);
                }
                return layer;
            };
            Workers::setMost(1);
            const TileGrid<std::uint16_t> alone = drawn(dabs.size());
            Workers::setMost(3);
            EXPECT_TRUE(areSame(alone, drawn(dabs.size()))) << "three threads";
            EXPECT_TRUE(areSame(alone, drawn(70))) << "runs of 70";
            EXPECT_TRUE(areSame(alone, drawn(1))) << "one by one";
            ASSERT_GT(kernelTargets().size(), kFewestTargets);
            for (const std::int64_t target : kernelTargets()) {
                useKernelTarget(target);
                EXPECT_TRUE(areSame(alone, drawn(dabs.size()))) << "instruction set " << target;
            }
            useKernelTarget(0);
        }
    }
}

// A picture that dabs of all sizes have smudged, turned and upright ones, near and across its rims and those of tiles.
std::vector<std::uint8_t> smudged(const Size& size, int rowsAtOnce = 1000) {
    std::mt19937 random(5);
    const auto unit = [&] { return std::uniform_real_distribution<float>(0, 1)(random); };
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(size.width) *
                                    static_cast<std::size_t>(size.height) * 4);
    for (std::size_t i = 0; i < bytes.size(); i += 4) {
        bytes[i + 3] = static_cast<std::uint8_t>(random() % 256);
        std::fill_n(&bytes[i], 3, static_cast<std::uint8_t>(bytes[i + 3] / (1 + random() % 3)));
    }
    PictureSurface<std::uint8_t> surface(size, 16);
    surface.write(PictureId::first, Rect::of(size), PixelView::topRowFirst(bytes.data(), size));
    surface.prepareSmudge(PictureId::first);
    std::vector<SmudgeDab> dabs;
    for (const Dab& dab : mixedDabs(120)) {
        const LPPosition place{dab.x + 20 * unit() - 10, dab.y + 20 * unit() - 10};
        dabs.push_back({dab, place, std::nearbyint(dab.halfSize * (0.5f + unit())), 1, unit(), unit()});
        dabs.back().dab.tip = 0;
        const float turn = 6.3f * unit();
        dabs.back().bristles = {.part = random() % 3 == 0 ? 1.0f : 0.4f,
                                .uptake = unit(),
                                .acrossX = std::cos(turn),
                                .acrossY = std::sin(turn),
                                .load = 0.5f,
                                .count = 20,
                                .isFirst = dabs.size() == 1};
    }
    const Rect touched = surface.smudge(dabs, mixedStyle(Paper::none, false), 0.5f);
    for (int y = 0; y < size.height; y += rowsAtOnce) {
        const Rect rows[] = {touched.intersected({0, y, size.width, rowsAtOnce})};
        surface.composite(PictureId::first, rows, {.opacity = 0.9f, .smudged = true});
    }
    surface.read(PictureId::first, Rect::of(size), MutablePixelView::topRowFirst(bytes.data(), size));
    return bytes;
}

TEST(DabPainterTest, SmudgesToTheSameBytesHoweverItIsDone) {
    for (const Size size : {Size{400, 150}, Size{331, 149}, Size{248, 71}, Size{5, 3}, Size{1, 1}}) {
        Workers::setMost(1);
        const auto alone = smudged(size);
        EXPECT_EQ(alone, smudged(size, 1)) << "row by row";
        Workers::setMost(3);
        EXPECT_EQ(alone, smudged(size)) << "three threads";
        for (const std::int64_t target : kernelTargets()) {
            useKernelTarget(target);
            EXPECT_EQ(alone, smudged(size)) << "instruction set " << target << ", width " << size.width;
        }
        useKernelTarget(0);
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
    DabStyle style = mixedStyle(Paper::relief, false);
    TileGrid<std::uint16_t> layer({70, 70});
    DabPainter painter;
    for (int i = 0; i < 1000; ++i) {
        std::vector<Dab> dabs;
        for (int k = 0; k < 100; ++k) {
            Dab dab{};
            for (float* part :
                 {&dab.x, &dab.y, &dab.halfSize, &dab.radian, &dab.roundness, &dab.flipX, &dab.flipY,
                  &dab.flow, &dab.color.r, &dab.color.g, &dab.color.b, &dab.random, &dab.paperLift}) {
                *part = part == &dab.halfSize ? wild() / 8 : wild();
            }
            dab.tip = static_cast<std::uint32_t>(random() % 7);
            dabs.push_back(dab);
        }
        if (i % 100 == 0) {
            style = mixedStyle(static_cast<Paper>(i / 100 % 3), i % 200 == 0);
            style.paperStyle = {wild(), wild(), wild(), style.paperStyle.lifts};
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
