// SPDX-License-Identifier: MIT
// Strokes that dry, against the reference.
#include <gtest/gtest.h>

#include <cstring>

#include "Surface/Kinds.h"
#include "support/BlendReference.h"
#include "support/Dabs.h"

using namespace dabcanvas;

namespace {

constexpr PictureId kPicture = PictureId::first;
// Larger than what is dried at a time, and no multiple of a tile.
constexpr Size kSize{530, 84};
constexpr Rect kAll{0, 0, kSize.width, kSize.height};
using Row = std::pair<const char*, CompositeStyle>;

struct Scene {
    std::unique_ptr<PaintSurface> surface;
    std::unique_ptr<SurfaceScope> scope;

    // Dabs hard, soft and motley, across tiles and over the rim, on a picture of one colour.
    Scene(const Kind& kind, PaintLayer layer, int layerDepth)
        : surface(kind.make(kSize, layerDepth)), scope(std::make_unique<SurfaceScope>(*surface)) {
        const DabStyle style{.tips = tipsOf({pictureOf({64, 64}, hardDisc), pictureOf({64, 64}, softDisc),
                                             pictureOf({40, 30}, motley), pictureOf({8, 8}, square)}),
                             .paper = {}};
        draw(layer, style);
    }
    void draw(PaintLayer layer, const DabStyle& style) {
        EXPECT_TRUE(surface->prepare(PaintLayer::subLine));
        std::vector<Dab> dabs;
        for (int i = 0; i < 24; ++i) {
            dabs.push_back(dabAt(static_cast<float>(i) * 23.3f, static_cast<float>(i * 37 % 90), 50));
            dabs.back().tip = static_cast<std::uint32_t>(i) % 3;
            dabs.back().flow = i % 4 == 0 ? 0.3f : 0.9f;
        }
        surface->draw(layer, dabs, style);
        Dab mask = dabAt(265, 20, 530);
        mask.tip = 3;
        mask.roundness = 40.0f / 530;
        mask.flow = 0.5f;
        surface->draw(PaintLayer::subLine, {&mask, 1}, style);
        surface->fill(kPicture, {0.8f, 0.6f, 0.3f, 0.9f});
        surface->commit(kPicture, kAll);
    }

    // 0..255 or 0..65535.
    std::vector<std::uint16_t> read() {
        const int depth = surface->pixelBytes();
        std::vector<std::uint8_t> bytes(static_cast<std::size_t>(kAll.area() * depth));
        EXPECT_TRUE(surface->read(kPicture, kAll, MutablePixelView::topRowFirst(bytes.data(), kSize, depth)));
        if (depth == 4) {
            return {bytes.begin(), bytes.end()};
        }
        std::vector<std::uint16_t> values(bytes.size() / 2);
        std::memcpy(values.data(), bytes.data(), bytes.size());
        return values;
    }
    std::vector<std::uint16_t> composited(const CompositeStyle& style) {
        surface->composite(kPicture, {&kAll, 1}, style);
        return read();
    }
};

class WetEdgeTest : public testing::TestWithParam<Kind> {};
INSTANTIATE_TEST_SUITE_P(Each, WetEdgeTest, testing::ValuesIn(kKinds), byName);

const Row kRows[] = {
    {"narrow", {.wetEdge = 1, .wetEdgeWidth = 1}},
    {"odd, over colour",
     {.blendType = ESBlendTypeMultiply, .opacity = 0.8f, .wetEdge = 0.6f, .wetEdgeWidth = 7}},
    {"replacing", {.blendType = ESBlendTypeReplace, .wetEdge = 0.5f, .wetEdgeWidth = 8}},
    {"replacing, inside to almost nothing",
     {.blendType = ESBlendTypeReplace, .wetEdge = 1, .wetEdgeWidth = 8}},
    {"erasing, masked", {.blendType = ESBlendTypeErase, .masked = true, .wetEdge = 0.7f, .wetEdgeWidth = 8}},
    {"masked", {.opacity = 0.9f, .masked = true, .wetEdge = 0.8f, .wetEdgeWidth = 20}},
    {"widest, beyond the canvas", {.wetEdge = 0.9f, .wetEdgeWidth = 64}},
    {"to almost nothing, erasing", {.blendType = ESBlendTypeErase, .wetEdge = 1, .wetEdgeWidth = 8}},
};

TEST_P(WetEdgeTest, DriesAsTheReferenceDoes) {
    for (const int layerDepth : {8, 16}) {
        Kind fine = GetParam();
        fine.canvasDepth = 16;
        Scene layer(fine, PaintLayer::line, layerDepth);
        layer.surface->fill(kPicture, {});
        layer.surface->commit(kPicture, kAll);
        const auto line = layer.composited({});
        const auto at = [](int x, int y) { return static_cast<std::size_t>(y * kSize.width + x) * 4; };
        const auto alphaAt = [&](int x, int y) {
            return line[at(std::clamp(x, 0, kSize.width - 1), std::clamp(y, 0, kSize.height - 1)) + 3] /
                   65535.0;
        };
        for (const auto& [name, style] : kRows) {
            Scene scene(GetParam(), PaintLayer::line, layerDepth);
            const double full = scene.surface->pixelBytes() == 4 ? 255 : 65535;
            const auto dry = scene.composited(style);
            double most = 0, sum = 0;
            int count = 0;
            for (int y = 1; y < kSize.height; y += 3) {
                for (int x = y % 5; x < kSize.width; x += 5, ++count) {
                    const bool bare = style.masked && y >= 40;
                    reference::Colour of{};
                    const double part = alphaAt(x, y) > 0 ? reference::driedPart(alphaAt, x, y, style.wetEdge,
                                                                                 style.wetEdgeWidth)
                                                          : 0;
                    for (std::size_t i = 0; i < 4; ++i) {
                        of[i] = line[at(x, y) + i] / 65535.0 * part * style.opacity *
                                (!style.masked ? 1
                                 : bare        ? 0
                                               : 0.5);
                    }
                    const reference::Colour below{0.8, 0.6, 0.3, 0.9};
                    const auto expected =
                        alphaAt(x, y) > 0 ? reference::blended(style.blendType, below, of) : below;
                    for (std::size_t i = 0; i < 4; ++i) {
                        const double off = std::abs(dry[at(x, y) + i] / full - expected[i]) * 255;
                        most = std::max(most, off);
                        sum += off / 4;
                    }
                }
            }
            EXPECT_LE(most, 3) << name << ", layers of " << layerDepth << " bits";
            EXPECT_LE(sum / count, 0.6) << name << ", layers of " << layerDepth << " bits";
        }
    }
}

TEST_P(WetEdgeTest, ComposesInAnyPartsAndAgainTheSame) {
    for (const auto& [name, style] : kRows) {
        Scene scene(GetParam(), PaintLayer::line, 16);
        const auto whole = scene.composited(style);
        CompositeStyle wet = style;
        wet.wetEdge = 0;
        scene.composited(wet);
        EXPECT_EQ(scene.composited(style), whole) << name << ", over what was wet";
        scene.surface->revert(kPicture, kAll);
        std::vector<Rect> parts;
        for (int y = -3; y < kSize.height; y += 29) {
            for (int x = -7; x < kSize.width; x += 31) {
                parts.push_back({x, y, 31, 29});
            }
        }
        scene.surface->composite(kPicture, parts, style);
        EXPECT_EQ(scene.read(), whole) << name;
    }
}

}  // namespace
