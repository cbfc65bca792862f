// SPDX-License-Identifier: MIT
// Strokes of smudge brushes, with and without bristles that carry colour, held against the reference.
#include <gtest/gtest.h>

#include <limits>

#include "Surface/Kinds.h"
#include "support/Dabs.h"
#include "support/SmudgeReference.h"

using namespace dabcanvas;

namespace {

constexpr Size kSize{150, 90};

struct Stroke : Named {
    SmudgeSettings settings;
    float width, roundness, spacing;
    LPPosition from, to;
    float bend;  // how far its middle lies aside
};
const Stroke kStrokes[] = {
    {{"Plain"}, {.moist = 0.6f, .load = 0, .control = false}, 30, 1, 3, {40, 40}, {110, 45}, 0},
    {{"Dragging"},
     {.moist = 0.4f, .load = 0, .control = false, .bristles = 1},
     30,
     1,
     3,
     {30, 40},
     {120, 48},
     8},
    {{"Loaded"},
     {.moist = 0.3f, .load = 1, .control = false, .bristles = 1},
     44,
     0.4f,
     2,
     {50, 8},
     {90, 82},
     0},
    {{"HalfLoaded"},
     {.moist = 0.5f, .load = 0.5f, .mix = 0.7f, .control = false, .bristles = 0.6f},
     24,
     0.7f,
     2,
     {120, 70},
     {20, 20},
     -20},
    {{"Dry"}, {.moist = 0, .load = 1, .bristles = 1}, 20, 1, 4, {20, 60}, {100, 60}, 0},
    {{"OffTheRim"},
     {.moist = 0.8f, .load = 0.3f, .control = false, .bristles = 1},
     40,
     1,
     5,
     {10, 30},
     {-30, 95},
     0},
};

std::vector<SmudgeDab> dabsOf(const Stroke& stroke) {
    DabMaker maker;
    maker.settings.radius = stroke.width;
    maker.settings.roundness = stroke.roundness;
    maker.settings.color = kOrange;
    maker.settings.radian = 0.4f;
    maker.updateFlags();
    SmudgeMaker smudges;
    smudges.settings = stroke.settings;
    std::vector<LPPoint> points;
    const float x = stroke.to.x - stroke.from.x, y = stroke.to.y - stroke.from.y, length = std::hypot(x, y);
    for (float at = 0; at < length; at += stroke.spacing) {
        const float part = at / length, aside = stroke.bend * 4 * part * (1 - part) / length;
        points.push_back({{stroke.from.x + x * part - y * aside, stroke.from.y + y * part + x * aside},
                          stroke.width,
                          {1, 0, 0}});
    }
    std::vector<SmudgeDab> dabs;
    smudges.make(maker, points.data(), points.size(), [&](const SmudgeDab& dab) { dabs.push_back(dab); });
    return dabs;
}

// Two colours, a half transparent and a transparent part.
std::vector<std::uint8_t> ground() {
    std::vector<std::uint8_t> bytes;
    for (int y = 0; y < kSize.height; ++y) {
        for (int x = 0; x < kSize.width; ++x) {
            const int alpha = y < 64 ? 255 : x < 90 ? 128 : 0;
            const int colour[] = {x < 75 ? 40 : 230, x < 75 ? 80 : 190, x < 75 ? 160 : 40 + x % 8, 255};
            for (const int channel : colour) {
                bytes.push_back(static_cast<std::uint8_t>(channel * alpha / 255));
            }
        }
    }
    return bytes;
}

class BristlesTest : public testing::TestWithParam<Kind> {
protected:
    void SetUp() override {
        _surface = GetParam().make(kSize);
        ASSERT_TRUE(_surface);
        _scope.emplace(*_surface);
    }
    std::vector<std::uint8_t> painted(std::span<const SmudgeDab> dabs, float load, std::size_t run) {
        std::vector<std::uint8_t> bytes = ground();
        EXPECT_TRUE(
            _surface->write(PictureId::first, Rect::of(kSize), PixelView::topRowFirst(bytes.data(), kSize)));
        EXPECT_TRUE(_surface->prepareSmudge(PictureId::first));
        Rect touched;
        for (std::size_t i = 0; i < dabs.size(); i += run) {
            touched = touched.united(
                _surface->smudge(dabs.subspan(i, std::min(run, dabs.size() - i)), style, load));
        }
        _surface->composite(PictureId::first, {&touched, 1}, {.smudged = true});
        EXPECT_TRUE(_surface->read(PictureId::first, Rect::of(kSize),
                                   MutablePixelView::topRowFirst(bytes.data(), kSize)));
        _surface->clear(PaintLayer::line, Rect::of(kSize));
        return bytes;
    }

    DabStyle style{.tips = tipsOf({pictureOf({64, 64}, softDisc)}), .paper = {}};
    std::unique_ptr<PaintSurface> _surface;
    std::optional<SurfaceScope> _scope;
};
INSTANTIATE_TEST_SUITE_P(Each, BristlesTest, testing::ValuesIn(kKinds), byName);

TEST_P(BristlesTest, StrokesAreWhatTheReferencePaints) {
    const TipImage tip = tipImageOf(style.tips->front(), mostTipSide(1), false);
    const std::vector<std::uint8_t> bare = ground();
    for (const Stroke& stroke : kStrokes) {
        SCOPED_TRACE(stroke.name);
        const std::vector<SmudgeDab> dabs = dabsOf(stroke);
        const std::vector<std::uint8_t> whole = painted(dabs, stroke.settings.load, dabs.size());
        EXPECT_EQ(painted(dabs, stroke.settings.load, 7), whole) << "in runs, and once more";
        std::vector<reference::Colour> picture;
        for (std::size_t i = 0; i < bare.size(); i += 4) {
            picture.push_back(
                {bare[i] / 255.0, bare[i + 1] / 255.0, bare[i + 2] / 255.0, bare[i + 3] / 255.0});
        }
        reference::Smudging ideal(kSize, std::move(picture));
        for (const SmudgeDab& dab : dabs) {
            ideal.smudge(dab, stroke.settings.load, tip);
        }
        double sum = 0, changed = 0;
        for (std::size_t i = 0; i < whole.size(); ++i) {
            const int x = static_cast<int>(i / 4) % kSize.width, y = static_cast<int>(i / 4) / kSize.width;
            const double off = std::fabs(whole[i] - 255 * ideal.at(x, y)[i % 4]);
            ASSERT_LE(off, 3) << x << ", " << y << ", channel " << i % 4;
            ASSERT_LE(whole[i], whole[i / 4 * 4 + 3]);
            sum += whole[i] != bare[i] ? off : 0;
            changed += whole[i] != bare[i] ? 1 : 0;
        }
        EXPECT_GT(changed, 1000);
        EXPECT_LT(sum / changed, 0.6);
    }
}

TEST_P(BristlesTest, WildDabsDoNoHarmAndLeaveNothingForTheNextStroke) {
    const std::vector<SmudgeDab> tame = dabsOf(kStrokes[1]);
    const std::vector<std::uint8_t> expected = painted(tame, 0, 7);
    std::vector<SmudgeDab> wild = dabsOf(kStrokes[2]);
    const float values[] = {NAN, INFINITY, -INFINITY, 1e30f, -1e30f, -1, 0, 1e-30f};
    std::size_t next = 0;
    for (SmudgeDab& smudge : wild) {
        for (float* part : {&smudge.dab.x, &smudge.dab.halfSize, &smudge.dab.color.r, &smudge.bristles.part,
                            &smudge.bristles.uptake, &smudge.bristles.acrossX, &smudge.bristles.load,
                            &smudge.bristles.ahead}) {
            if (++next % 3 == 0) {
                *part = values[next / 3 % std::size(values)];
            }
        }
    }
    painted(wild, 1, 5);
    EXPECT_EQ(painted(tame, 0, 7), expected);
}

}  // namespace
