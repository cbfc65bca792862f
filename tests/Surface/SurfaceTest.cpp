// SPDX-License-Identifier: MIT
// What every surface promises, whatever draws it.
#include "Surface/PaintSurface.h"

#include <gtest/gtest.h>

#include <random>

#include "Surface/Kinds.h"
#include "support/BlendReference.h"
#include "support/Dabs.h"

using namespace dabcanvas;

namespace {

constexpr PictureId kPicture = PictureId::first;
using Bytes = std::vector<std::uint8_t>;
using reference::blended;
using reference::Colour;

class SurfaceTest : public testing::TestWithParam<Kind> {
protected:
    // Larger than a tile, and no multiple of one.
    static constexpr Size kSize{150, 90};

    void SetUp() override {
        surface = GetParam().make(kSize);
        ASSERT_TRUE(surface);
        scope = std::make_unique<SurfaceScope>(*surface);
    }

    Bytes read(const Rect& rect = Rect::of(kSize), int pixelBytes = 4) {
        Bytes bytes(static_cast<std::size_t>(rect.area() * pixelBytes));
        EXPECT_TRUE(surface->read(
            kPicture, rect,
            MutablePixelView::topRowFirst(bytes.data(), {rect.width, rect.height}, pixelBytes)));
        return bytes;
    }
    void write(const Bytes& bytes, const Rect& rect = Rect::of(kSize)) {
        EXPECT_TRUE(
            surface->write(kPicture, rect, PixelView::topRowFirst(bytes.data(), {rect.width, rect.height})));
    }
    static std::size_t at(int x, int y) { return static_cast<std::size_t>(y * kSize.width + x) * 4; }

    // A square of one colour.
    void square(PaintLayer layer, const Rect& rect, RgbType color, float flow) {
        Dab dab = dabAt(static_cast<float>(rect.x) + static_cast<float>(rect.width) / 2,
                        static_cast<float>(rect.y) + static_cast<float>(rect.height) / 2,
                        static_cast<float>(rect.width));
        dab.roundness = static_cast<float>(rect.height) / static_cast<float>(rect.width);
        dab.flow = flow;
        dab.color = color;
        surface->draw(layer, std::span(&dab, 1), style);
    }

    std::unique_ptr<PaintSurface> surface;
    std::unique_ptr<SurfaceScope> scope;
    DabStyle style{.tips = tipsOf({pictureOf({32, 32}, dabcanvas::square)}), .paper = {}};
};
INSTANTIATE_TEST_SUITE_P(Each, SurfaceTest, testing::ValuesIn(kKinds), byName);

// ---- Rows

Bytes randomPicture(unsigned seed, const Size& size) {
    std::mt19937 random(seed);
    Bytes bytes(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height) * 4);
    for (std::size_t i = 0; i < bytes.size(); i += 4) {
        bytes[i + 3] = static_cast<std::uint8_t>(random());
        for (std::size_t channel = 0; channel < 3; ++channel) {
            bytes[i + channel] = static_cast<std::uint8_t>(random() % (bytes[i + 3] + 1u));
        }
    }
    return bytes;
}

TEST_P(SurfaceTest, RowsComeBackByteForByteInAnyPartAndOrder) {
    const Bytes whole = randomPicture(1, kSize);
    write(whole);
    EXPECT_EQ(read(), whole);
    const Rect part{61, 3, 70, 66};
    const Bytes other = randomPicture(2, {part.width, part.height});
    EXPECT_TRUE(
        surface->write(kPicture, part, PixelView::bottomRowFirst(other.data(), {part.width, part.height})));
    Bytes back(other.size());
    EXPECT_TRUE(surface->read(kPicture, part,
                              MutablePixelView::bottomRowFirst(back.data(), {part.width, part.height})));
    EXPECT_EQ(back, other);
    EXPECT_TRUE(std::equal(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(at(0, part.y)),
                           read().begin()));
    EXPECT_FALSE(
        surface->read(kPicture, {100, 0, 70, 66}, MutablePixelView::topRowFirst(back.data(), {70, 66})));
}

TEST_P(SurfaceTest, PictureAndBackgroundGoTheirOwnWays) {
    const Bytes whole = randomPicture(3, kSize), filled{255, 128, 0, 255};
    write(whole);
    const Rect part{20, 30, 77, 40};
    Bytes expected = whole;
    for (int y = 0; y < kSize.height; ++y) {
        for (int x = 0; x < kSize.width; ++x) {
            const bool inside = Rect{x, y, 1, 1}.meets(part);
            std::copy_n(inside ? whole.data() + at(x, y) : filled.data(), 4, expected.data() + at(x, y));
        }
    }
    // By itself, or below a layer on which there is nothing.
    for (const std::uint32_t mode : {0u, std::uint32_t{ESBlendTypeNormal}, std::uint32_t{ESBlendTypeReset}}) {
        surface->fill(kPicture, {1, 128 / 255.0f, 0, 1});
        EXPECT_EQ(read({5, 5, 1, 1}), filled);
        mode == 0 ? surface->revert(kPicture, part)
                  : surface->composite(kPicture, {&part, 1}, {.blendType = mode});
        EXPECT_EQ(read(), expected) << mode;
    }
    surface->commit(kPicture, Rect::of(kSize));
    surface->fill(kPicture, {});
    surface->revert(kPicture, {-5, -5, 1000, 1000});
    EXPECT_EQ(read(), expected);
    // To the last bit that the picture has, beside what is drawn.
    const Rect all = Rect::of(kSize);
    const int own = surface->pixelBytes();
    const Bytes before = read(all, own);
    square(PaintLayer::line, {0, 0, 4, 4}, {0, 0, 0}, 1);
    surface->composite(kPicture, {&all, 1}, {});
    const auto rowsBelow = static_cast<std::ptrdiff_t>(at(0, 8)) / 4 * own;
    const Bytes after = read(all, own);
    EXPECT_TRUE(std::equal(before.begin() + rowsBelow, before.end(), after.begin() + rowsBelow));
}

// What has more bits than go out comes out alike however it is looked at, and is put back with all of them.
TEST_P(SurfaceTest, RowsOfThePicturesOwnDepthHoldAllOfIt) {
    const Rect all = Rect::of(kSize), part{61, 3, 70, 66};
    const int own = surface->pixelBytes();
    EXPECT_EQ(own, GetParam().canvasDepth / 2);
    square(PaintLayer::line, all, {0.3f, 0.7f, 0.1f}, 0.37f);
    for (int stroke = 0; stroke < 9; ++stroke) {
        surface->composite(kPicture, {&all, 1}, {.opacity = 0.03f});
        surface->commit(kPicture, all);
    }
    const Bytes shown = read(), raw = read(all, own), rawPart = read(part, own), shownPart = read(part);
    for (int y = 0; y < part.height; ++y) {
        EXPECT_TRUE(std::equal(&shownPart[static_cast<std::size_t>(y * part.width) * 4],
                               &shownPart[static_cast<std::size_t>((y + 1) * part.width) * 4 - 1],
                               &shown[at(part.x, part.y + y)]));
    }
    const auto rows = [own](const Bytes& bytes, const Rect& rect) {
        return PixelView::topRowFirst(bytes.data(), {rect.width, rect.height}, own);
    };
    surface->fill(kPicture, {});
    EXPECT_TRUE(surface->write(kPicture, part, rows(rawPart, part)));
    EXPECT_EQ(read(part), shownPart);
    EXPECT_TRUE(surface->writeBackground(kPicture, all, rows(raw, all)));
    EXPECT_EQ(read({0, 0, 60, 90}), Bytes(std::size_t{60} * 90 * 4)) << "the background alone was written";
    surface->revert(kPicture, all);
    EXPECT_EQ(read(all, own), raw);
    EXPECT_EQ(read(), shown);
    Bytes other(raw.size() * 2);
    EXPECT_FALSE(
        surface->read(kPicture, all, MutablePixelView::topRowFirst(other.data(), kSize, own == 4 ? 8 : 16)));
}

// ---- Blend modes

// The same where the background keeps its alpha: on one without holes, and none of it erased.
Colour blendedLocked(std::uint32_t mode, const Colour& back, const Colour& line) {
    const auto scaled = [](Colour colour, double by) {
        std::transform(colour.begin(), colour.end(), colour.begin(), [by](double one) { return one * by; });
        return colour;
    };
    const Colour mixed = back[3] > 0 ? blended(mode, scaled(back, 1 / back[3]), line) : Colour();
    return mode == ESBlendTypeErase || mixed[3] <= 0 ? back : scaled(mixed, back[3] / mixed[3]);
}

TEST_P(SurfaceTest, EachModeBlendsAsItPromises) {
    constexpr float kColours[] = {0, 0.05f, 0.6f, 1};
    constexpr int kSide = 6;
    for (const std::uint32_t mode : {1u, 2u, 3u, 4u, 5u, 6u, 7u, 8u, 9u}) {
        for (const int variant : {0, 1, 2, 3}) {
            const bool masked = variant % 2 == 1, locks = variant >= 2;
            const Bytes background = randomPicture(mode, kSize);
            write(background);
            const float opacity = masked ? 0.7f : 1, mask = 0.5f;
            std::vector<std::pair<Rect, Colour>> squares;
            for (int i = 0; i < 64; ++i) {
                const Rect rect{(i % 16) * (kSide + 3), (i / 16) * (kSide + 8), kSide, kSide};
                const RgbType color{kColours[i % 4], kColours[i / 4 % 4], kColours[(i + i / 16) % 4]};
                const float flow = kColours[i / 16];
                square(PaintLayer::line, rect, color, flow);
                const double of = flow * opacity * (!masked ? 1 : rect.y < 40 ? mask : 0);
                squares.push_back({rect, {color.r * of, color.g * of, color.b * of, of}});
            }
            if (masked) {
                ASSERT_TRUE(surface->prepare(PaintLayer::subLine));
                square(PaintLayer::subLine, {0, 0, 150, 40}, {0, 0, 0}, mask);
            }
            const Rect all[] = {Rect::of(kSize)};
            const CompositeStyle how{
                .blendType = mode, .opacity = opacity, .masked = masked, .locksAlpha = locks};
            surface->composite(kPicture, all, how);
            const Bytes once = read();
            surface->composite(kPicture, all, how);
            EXPECT_EQ(read(), once) << "mode " << mode << " is not the same twice";
            for (const auto& [rect, line] : squares) {
                const std::size_t middle = at(rect.x + 3, rect.y + 3);
                Colour back;
                for (std::size_t i = 0; i < 4; ++i) {
                    back[i] = background[middle + i] / 255.0;
                }
                // Replacing takes a transparent line as it is, but not what is masked away.
                const Colour expected = masked && rect.y >= 40 ? back
                                        : locks                ? blendedLocked(mode, back, line)
                                                               : blended(mode, back, line);
                for (std::size_t i = 0; i < 4; ++i) {
                    EXPECT_NEAR(once[middle + i], expected[i] * 255, 1.3)
                        << "mode " << mode << " channel " << i << " variant " << variant;
                    EXPECT_LE(once[middle + i], once[middle + 3]) << "mode " << mode << " channel " << i;
                }
                const std::size_t beside = at(rect.right() + 1, rect.y + 3);
                if (mode != ESBlendTypeReplace || locks) {
                    EXPECT_TRUE(std::equal(&once[beside], &once[beside] + 4, &background[beside]))
                        << "mode " << mode;
                }
            }
            surface->clear(PaintLayer::line, Rect::of(kSize));
            surface->clear(PaintLayer::subLine, Rect::of(kSize));
        }
    }
}

// ---- Layers

TEST_P(SurfaceTest, LayersAreClearedInPartsAndAsAWhole) {
    const Rect all[] = {Rect::of(kSize)};
    square(PaintLayer::line, {0, 0, 150, 90}, {1, 0, 0}, 1);
    surface->clear(PaintLayer::line, {10, 10, 100, 60});
    surface->composite(kPicture, all, {});
    const Bytes bytes = read();
    for (int y = 0; y < kSize.height; ++y) {
        for (int x = 0; x < kSize.width; ++x) {
            ASSERT_EQ(bytes[at(x, y) + 3], (Rect{10, 10, 100, 60}.contains({x, y, 1, 1}) ? 0 : 255))
                << x << ", " << y;
        }
    }
    surface->clear(PaintLayer::line, {-10, -10, 1000, 1000});
    surface->composite(kPicture, all, {});
    EXPECT_EQ(read(), Bytes(bytes.size(), 0));
}

TEST_P(SurfaceTest, DabsStraightOnThePictureLeaveTheBackground) {
    write(randomPicture(7, kSize));
    const Bytes before = read();
    Dab dab = dabAt(70, 40, 40);
    dab.color = {0, 0, 0};
    const Rect touched = surface->draw(kPicture, std::span(&dab, 1), style);
    EXPECT_TRUE(touched.contains({50, 20, 40, 40}));
    EXPECT_EQ(read({60, 30, 1, 1}), (Bytes{0, 0, 0, 255}));
    surface->revert(kPicture, touched);
    EXPECT_EQ(read(), before);
}

// ---- Smudging

SmudgeDab smudgeDab(float x, float fromX) {
    SmudgeDab smudge{};
    smudge.dab = dabAt(x, 45, 30);
    smudge.dab.color = {0, 0, 0};
    smudge.pickUp = {fromX, 45};
    smudge.pickUpHalf = 15;
    smudge.moist = smudge.mix = smudge.exchange = 1;
    return smudge;
}

TEST_P(SurfaceTest, SmudgingCarriesColourAlongAndTouchesNothingElse) {
    Bytes halves = randomPicture(11, kSize);
    for (int y = 0; y < kSize.height; ++y) {
        for (int x = 0; x < kSize.width; ++x) {
            const Bytes colour = x < 75 ? Bytes{250, 10, 10, 255} : Bytes{10, 10, 250, 255};
            if (y > 5 && y < 85) {
                std::copy(colour.begin(), colour.end(), &halves[at(x, y)]);
            }
        }
    }
    write(halves);
    ASSERT_TRUE(surface->prepareSmudge(kPicture));
    std::vector<SmudgeDab> dabs;
    for (float x = 52; x < 110; x += 2) {
        dabs.push_back(smudgeDab(x, x - 2));
    }
    const Rect touched[] = {surface->smudge(dabs, style, 0)};
    const CompositeStyle how{.smudged = true};
    surface->composite(kPicture, touched, how);
    const Bytes once = read();
    surface->composite(kPicture, touched, how);
    EXPECT_EQ(read(), once);
    EXPECT_GT(once[at(95, 45)], 200) << "red is carried over to the blue side";
    EXPECT_LT(once[at(95, 45) + 2], 60);
    for (int y = 0; y < kSize.height; ++y) {
        for (int x = 0; x < kSize.width; ++x) {
            if (y < 28 || y > 61 || x < 34 || x > 126) {
                ASSERT_TRUE(std::equal(&once[at(x, y)], &once[at(x, y)] + 4, &halves[at(x, y)]))
                    << x << ", " << y;
            }
        }
    }
}

TEST_P(SurfaceTest, FaintSmudgesAddUpFromRunToRun) {
    surface->fill(kPicture, {0, 0, 0, 1});
    surface->commit(kPicture, Rect::of(kSize));
    ASSERT_TRUE(surface->prepareSmudge(kPicture));
    SmudgeDab faint = smudgeDab(75, 75);
    faint.dab.halfSize = 5;
    faint.dab.color = {1, 1, 1};
    faint.dab.flow = 0.001f;
    faint.moist = faint.mix = 0;
    for (int i = 0; i < 6000; ++i) {
        surface->smudge({&faint, 1}, style, 1);
    }
    const Rect all[] = {Rect::of(kSize)};
    surface->composite(kPicture, all, {.smudged = true});
    // Rounded to the nearest, or by the same noise each time, it stands still some steps below.
    EXPECT_NEAR(read({75, 45, 1, 1})[0], 255 * (1 - std::pow(0.999, 6000)), 1);
}

TEST_P(SurfaceTest, SmudgingOneColourChangesNothing) {
    surface->fill(kPicture, {0.5f, 0.25f, 0.125f, 1});
    surface->commit(kPicture, Rect::of(kSize));
    const Bytes before = read();
    ASSERT_TRUE(surface->prepareSmudge(kPicture));
    std::vector<SmudgeDab> dabs;
    for (float x = 5; x < 145; x += 1) {
        dabs.push_back(smudgeDab(x, x - 1));
        dabs.back().mix = 0.7f;
    }
    const Rect touched[] = {surface->smudge(dabs, style, 0)};
    surface->composite(kPicture, touched, {.smudged = true});
    const Bytes after = read();
    for (std::size_t i = 0; i < after.size(); ++i) {
        ASSERT_NEAR(after[i], before[i], 1) << i;
    }
}

}  // namespace
