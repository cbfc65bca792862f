// SPDX-License-Identifier: MIT
// What dabs leave in a layer and strokes on a picture, against the reference.
#include <gtest/gtest.h>

#include "Processor/ProcessorSurface.h"
#include "Surface/Kinds.h"
#include "support/DabReference.h"
#include "support/Dabs.h"

#ifdef DABCANVAS_WITH_RENDER
#include <epoxy/gl.h>

#include "GLSurface/GLSurface.h"
#endif

using namespace dabcanvas;

namespace {

constexpr Size kSize{72, 56};

struct Scene {
    const char* name;
    std::vector<Dab> dabs;
    DabStyle style;
};

Scene scene(const char* name, std::vector<Dab> dabs, TipSet tips = {pictureOf({64, 64}, softDisc)}) {
    Scene made{name, std::move(dabs), {}};
    made.style.tips = tipsOf(std::move(tips));
    return made;
}
Scene onPaper(const char* name, const Size& paper, float scale) {
    Scene made = scene(name, {dabAt(36, 28, 70)}, {pictureOf({8, 8}, square)});
    made.style.paper = std::make_shared<const Picture>(pictureOf(paper, grain));
    made.style.paperStyle.scale = scale;
    return made;
}
Dab turned(Dab dab, float radian, float roundness, bool mirrored = false) {
    dab.radian = radian;
    dab.roundness = roundness;
    dab.flipX = mirrored ? -1.0f : 1.0f;
    return dab;
}

std::vector<Scene> scenes() {
    const TipSet soft{pictureOf({64, 64}, softDisc)}, block{pictureOf({300, 100}, square)},
        odd{pictureOf({100, 37}, motley)};
    std::vector<Scene> all;
    std::vector<Dab> small;
    for (int i = 0; i < 12; ++i) {
        const auto f = static_cast<float>(i);
        small.push_back(dabAt(5 + f * 5.13f, 6 + f * 3.7f, 0.5f + f * 0.4f));
        small.push_back(turned(dabAt(60 - f * 4.7f, 5 + f * 3.9f, 0.7f + f * 0.6f), f * 0.7f, 0.3f));
    }
    all.push_back(scene("Small", small, odd));
    all.push_back(
        scene("Squeezed", {turned(dabAt(20.3f, 20.6f, 8), 0, 0.3f), turned(dabAt(50, 30, 8), 0.9f, 0.3f)}));
    all.push_back(scene("Thread", {turned(dabAt(36, 28, 60), 0.3f, 0.003f)}, block));
    all.push_back(scene("TurnedBlock", {turned(dabAt(36.2f, 28.1f, 40), 0.4f, 1)}, block));
    all.push_back(scene("TexelOnPixel", {dabAt(36, 28, 32)}, {pictureOf({32, 32}, motley)}));
    all.push_back(scene("MirroredAndTurned", {turned(dabAt(36.7f, 27.2f, 45), 2.2f, 0.7f, true)}, odd));
    all.push_back(scene("Enlarged", {turned(dabAt(30, 20, 150), 0.2f, 1)}, {pictureOf({5, 3}, motley)}));
    all.push_back(scene("OverTheEdge", {dabAt(0, 0, 30), dabAt(71.5f, 55.5f, 9), dabAt(-40, 20, 20)}));
    all.push_back(scene("NearlyUpright", {dabAt(36, 28, 40)}, {pictureOf({8, 8}, square)}));
    for (const float off : {-1e-4f, -3e-5f, -1e-5f, 1e-6f, 2e-5f, 5e-5f, 1e-4f}) {
        all.back().dabs.push_back(turned(dabAt(36.3f, 28.4f, 30), 1.5707964f + off, 1));
    }
    all.push_back(scene("ManyTips", {}, {pictureOf({1, 1}, square), block[0], {}, odd[0], soft[0]}));
    for (std::uint32_t tip = 0; tip < 5; ++tip) {
        if (tip != 2) {
            all.back().dabs.push_back(dabAt(9 + static_cast<float>(tip) * 13, 25, 11.5f));
            all.back().dabs.back().tip = tip;
        }
    }
    all.push_back(scene("Multicolour", {turned(dabAt(20, 25, 33), 0.5f, 0.8f), dabAt(50, 30, 6)}, odd));
    all.back().style.multicolour = true;
    all.back().style.hueTingle = all.back().style.saturationTingle = all.back().style.brightnessTingle = 0.4f;
    all.back().dabs[0].random = 0.37f;
    all.push_back(onPaper("Paper", {100, 100}, 1));
    all.push_back(onPaper("PaperEnlarged", {9, 7}, 4.3f));
    all.push_back(onPaper("PaperReduced", {150, 90}, 0.21f));
    for (const bool multicolour : {false, true}) {
        all.push_back(onPaper(multicolour ? "ReliefMulticolour" : "Relief", {60, 40}, 1.7f));
        all.back().style.paperStyle = {.scale = 1.7f, .gain = 1.8f, .level = -0.2f, .lifts = true};
        all.back().style.multicolour = multicolour;
        all.back().dabs = {dabAt(20, 15, 25), turned(dabAt(45, 30, 33), 0.6f, 0.8f), dabAt(60, 12, 22)};
        all.back().dabs[0].paperLift = -0.45f;
        all.back().dabs[1].paperLift = 0.3f;
    }
    return all;
}

class SurfaceDabsTest : public ::testing::TestWithParam<Kind> {
protected:
    void SetUp() override { take(GetParam().make(kSize)); }
    void take(std::unique_ptr<PaintSurface> surface) {
        _scope.reset();
        _surface = std::move(surface);
        ASSERT_TRUE(_surface);
        _scope.emplace(*_surface);
        ASSERT_TRUE(*_scope);
    }

    // The line layer, rows from the top, 0..1.
    std::vector<float> layer() {
        const auto* processor = dynamic_cast<ProcessorSurface*>(_surface.get());
        return processor != nullptr ? layerOf(*processor) : layerOnGpu();
    }
    static std::vector<float> layerOf(const ProcessorSurface& surface) {
        std::vector<float> rows(pixelCount() * 4);
        const std::size_t row = static_cast<std::size_t>(kSize.width) * 4;
        for (int y = 0; y < kSize.height; ++y) {
            for (int x = 0; x < kSize.width; ++x) {
                const auto* tile = surface.line().tile(surface.line().indexAt(x, y));
                for (std::size_t i = 0; tile != nullptr && i < 4; ++i) {
                    rows[static_cast<std::size_t>(y) * row + static_cast<std::size_t>(x) * 4 + i] =
                        static_cast<float>(tile->at(x % kTileSide, y % kTileSide)[i]) / 65535;
                }
            }
        }
        return rows;
    }
    std::vector<float> layerOnGpu() {
        std::vector<float> upright(pixelCount() * 4);
#ifdef DABCANVAS_WITH_RENDER
        std::vector<float> rows(upright.size());
        const std::size_t row = static_cast<std::size_t>(kSize.width) * 4;
        asGLSurface(*_surface)->context().beginRenderForType(ESRenderTypeLine);
        glReadPixels(0, 0, kSize.width, kSize.height, GL_RGBA, GL_FLOAT, rows.data());
        for (std::size_t y = 0; y < static_cast<std::size_t>(kSize.height); ++y) {
            std::copy_n(&rows[(static_cast<std::size_t>(kSize.height) - 1 - y) * row], row,
                        &upright[y * row]);
        }
#endif
        return upright;
    }
    static std::size_t pixelCount() {
        return static_cast<std::size_t>(kSize.width) * static_cast<std::size_t>(kSize.height);
    }
    static std::vector<double> expected(const Scene& scene) {
        std::vector<TipImage> tips;
        for (const Picture& tip : *scene.style.tips) {
            tips.push_back(tipImageOf(tip, mostTipSide(scene.style.tips->size()), scene.style.multicolour));
        }
        const PaperImage paper = scene.style.paper ? paperImageOf(*scene.style.paper) : PaperImage{};
        std::vector<double> layer(pixelCount() * 4, 0);
        reference::draw(layer, kSize, scene.dabs, tips, scene.style.paper ? &paper : nullptr, scene.style);
        return layer;
    }

    // A stroke of one opaque dab, so faint as a whole.
    void stroke(float opacity) {
        const DabStyle style{.tips = tipsOf({pictureOf({64, 64}, softDisc)}), .paper = {}};
        const Dab dab = dabAt(36, 28, 60);
        const Rect touched = _surface->draw(PaintLayer::line, {&dab, 1}, style);
        const CompositeStyle faint{.blendType = 1, .opacity = opacity};
        _surface->composite(PictureId::first, {&touched, 1}, faint);
        const std::vector<std::uint8_t> once = picture();
        _surface->composite(PictureId::first, {&touched, 1}, faint);
        ASSERT_EQ(picture(), once) << "composited again";
        _surface->clear(PaintLayer::line, touched);
        _surface->commit(PictureId::first, touched);
    }
    // With all its bits.
    std::vector<std::uint8_t> picture() {
        const int pixelBytes = _surface->pixelBytes();
        std::vector<std::uint8_t> bytes(pixelCount() * static_cast<std::size_t>(pixelBytes));
        EXPECT_TRUE(_surface->read(PictureId::first, Rect::of(kSize),
                                   MutablePixelView::topRowFirst(bytes.data(), kSize, pixelBytes)));
        return bytes;
    }

    std::unique_ptr<PaintSurface> _surface;
    std::optional<SurfaceScope> _scope;
};
INSTANTIATE_TEST_SUITE_P(Each, SurfaceDabsTest, ::testing::ValuesIn(kKinds), byName);

TEST_P(SurfaceDabsTest, DabsAreWhatTheReferenceDraws) {
    for (const Scene& scene : scenes()) {
        SCOPED_TRACE(scene.name);
        _surface->clear(PaintLayer::line, Rect::of(kSize));
        const Rect touched = _surface->draw(PaintLayer::line, scene.dabs, scene.style);
        const std::vector<float> drawn = layer();
        const std::vector<double> ideal = expected(scene);
        double sum = 0;
        std::size_t covered = 0;
        for (std::size_t i = 0; i < drawn.size(); ++i) {
            const int x = static_cast<int>(i / 4) % kSize.width, y = static_cast<int>(i / 4) / kSize.width;
            ASSERT_TRUE(drawn[i] == 0 || touched.contains({x, y, 1, 1})) << x << ", " << y;
            const double off = std::fabs(drawn[i] - ideal[i]) * 255;
            ASSERT_LE(off, GetParam().closeness) << x << ", " << y << ", channel " << i % 4;
            sum += off;
            covered += ideal[i] > 0 ? 1 : 0;
        }
        EXPECT_GT(*std::max_element(drawn.begin(), drawn.end()), 0.1f);
        EXPECT_LT(sum / static_cast<double>(covered), 0.5);
        // What a dab does not cover keeps every bit.
        const Scene other = onPaper("", {9, 7}, 4.3f);
        const Dab small = turned(dabAt(50, 20, 21), 0.5f, 0.4f);
        _surface->draw(PaintLayer::line, {&small, 1}, other.style);
        const std::vector<float> after = layer();
        const std::vector<double> added = expected({"", {small}, other.style});
        for (std::size_t i = 0; i < after.size(); ++i) {
            ASSERT_TRUE(added[i / 4 * 4 + 3] > 0 || after[i] == drawn[i]) << i / 4;
        }
    }
}

// Many faint dabs

// What a dab exchanges of each pixel, and so what many on the same place leave.
TEST_P(SurfaceDabsTest, FaintDabsAddUp) {
    for (const auto& [flow, count] : {std::pair{0.0005f, 6000},
                                      {0.001f, 9000},
                                      {0.003f, 3000},
                                      {0.01f, 1000},
                                      {0.05f, 100},
                                      {0.3f, 30}}) {
        const Scene once =
            scene("", {turned(dabAt(30.3f, 28.8f, 50), 0.3f, 0.9f)}, {pictureOf({64, 64}, softDisc)});
        std::vector<Dab> dabs(static_cast<std::size_t>(count), once.dabs[0]);
        for (Dab& dab : dabs) {
            dab.flow = flow;
        }
        _surface->clear(PaintLayer::line, Rect::of(kSize));
        _surface->draw(PaintLayer::line, dabs, once.style);
        const std::vector<float> drawn = layer();
        const std::vector<double> single = expected(once);
        double worst = 0, worstStraight = 0;
        for (std::size_t i = 0; i < drawn.size(); i += 4) {
            const double alpha = 1 - std::pow(1 - single[i + 3] * flow, count);
            const double color[] = {kOrange.r, kOrange.g, kOrange.b, 1};
            for (std::size_t channel = 0; channel < 4; ++channel) {
                const double value = drawn[i + channel];
                worst = std::max(worst, std::fabs(value - alpha * color[channel]) * 255);
                ASSERT_LE(value, drawn[i + 3]) << "above its alpha";
                if (drawn[i + 3] > 0.9f) {
                    worstStraight =
                        std::max(worstStraight, std::fabs(value / drawn[i + 3] - color[channel]) * 255);
                }
            }
        }
        EXPECT_LT(worst, 1) << "flow " << flow;
        EXPECT_LT(worstStraight, 0.2) << "flow " << flow;
    }
}

class SurfaceStrokesTest : public SurfaceDabsTest {
protected:
    // The same, 0..255.
    std::vector<double> values() {
        const std::vector<std::uint8_t> bytes = picture();
        std::vector<double> values(bytes.begin(), bytes.end());
        if (GetParam().canvasDepth == 16) {
            std::vector<std::uint16_t> words(bytes.size() / 2);
            std::memcpy(words.data(), bytes.data(), bytes.size());
            values.assign(words.begin(), words.end());
            std::transform(values.begin(), values.end(), values.begin(), [](double v) { return v / 257; });
        }
        return values;
    }
};

INSTANTIATE_TEST_SUITE_P(Each, SurfaceStrokesTest, ::testing::ValuesIn(kKinds), byName);

TEST_P(SurfaceStrokesTest, FaintStrokesOnTheSamePlaceDoNotStick) {
    std::vector<std::uint8_t> ground(pixelCount() * 4);
    for (std::size_t i = 0; i < ground.size(); ++i) {
        ground[i] = i % 4 == 3 ? 255 : static_cast<std::uint8_t>(i * 7 % 256);
    }
    ASSERT_TRUE(
        _surface->write(PictureId::first, Rect::of(kSize), PixelView::topRowFirst(ground.data(), kSize)));
    constexpr int kStrokes = 500;
    for (int i = 0; i < kStrokes; ++i) {
        stroke(0.01f);
    }
    const std::vector<double> after = values();
    const std::vector<double> single = expected(scene("", {dabAt(36, 28, 60)}));
    const double color[] = {kOrange.r * 255, kOrange.g * 255, kOrange.b * 255, 255};
    double worst = 0, sum = 0;
    for (std::size_t i = 0; i < after.size(); ++i) {
        const double left = std::pow(1 - 0.01 * single[i / 4 * 4 + 3], kStrokes);
        const double off = after[i] - (ground[i] * left + color[i % 4] * (1 - left));
        worst = std::max(worst, std::fabs(off));
        sum += off;
        if (single[i / 4 * 4 + 3] == 0) {
            ASSERT_NEAR(after[i], ground[i], GetParam().closeness / 40) << "no paint at " << i / 4;
        }
    }
    // Rounded to nearest, a channel stands still as soon as a hundredth of what it lacks is below one half.
    EXPECT_LT(worst, GetParam().canvasDepth == 16 ? 0.6 : 10);
    EXPECT_NEAR(sum / static_cast<double>(after.size()), 0, GetParam().canvasDepth == 16 ? 0.01 : 0.2);
}

TEST_P(SurfaceDabsTest, LayersOf8BitsHoldBytesAndNothingFaint) {
    const DabStyle style{.tips = tipsOf({pictureOf({64, 64}, softDisc)}), .paper = {}};
    std::vector<Dab> faint(50, dabAt(36.3f, 28.2f, 40));
    const Dab dab = faint[0];
    for (Dab& each : faint) {
        each.flow = 0.001f;
    }
    for (const int depth : {8, 16}) {
        take(GetParam().make(kSize, depth));
        _surface->draw(PaintLayer::line, {&dab, 1}, style);
        std::vector<float> drawn = layer();
        const bool whole = std::all_of(drawn.begin(), drawn.end(), [](float value) {
            return std::fabs(value * 255 - std::nearbyint(value * 255)) < 1e-3f;
        });
        EXPECT_EQ(whole, depth == 8);
        _surface->clear(PaintLayer::line, Rect::of(kSize));
        _surface->draw(PaintLayer::line, faint, style);
        drawn = layer();
        EXPECT_EQ(*std::max_element(drawn.begin(), drawn.end()) == 0, depth == 8);
    }
}

}  // namespace
