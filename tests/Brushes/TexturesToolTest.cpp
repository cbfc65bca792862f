// SPDX-License-Identifier: MIT
#include "Brushes/TexturesTool.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "support/Images.h"

namespace {

using ::testing::Each;
using ::testing::ElementsAreArray;

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr int kDisc = TexturesTool::kSoftDisc;
constexpr int kRing = TexturesTool::kRing;
constexpr int kRectangle = TexturesTool::kRoundedRectangle;

TexturesTool toolOf(int type, float hardness, float control) {
    TexturesTool tool;
    tool.setTextureType(type);
    tool.setHardness(hardness);
    tool.setTextureControlValue(control);
    return tool;
}

// Draws over rubbish between two guard bytes, and expects black colour and untouched guards.
std::vector<int> alphaOf(const TexturesTool& tool, int n) {
    const std::size_t bytes = static_cast<std::size_t>(n) * static_cast<std::size_t>(n) * 4;
    std::vector<std::uint8_t> buffer(bytes + 2, 0xA5);
    tool.processTextureData(buffer.data() + 1, n);
    EXPECT_EQ(buffer.front(), 0xA5);
    EXPECT_EQ(buffer.back(), 0xA5);
    std::vector<int> alpha;
    for (std::size_t at = 1; at + 4 < buffer.size(); at += 4) {
        EXPECT_EQ(buffer[at] | buffer[at + 1] | buffer[at + 2], 0) << "colour at byte " << at - 1;
        alpha.push_back(buffer[at + 3]);
    }
    return alpha;
}

// Soft disc of 5: (1 - 1/2)^2 = 63.75 and (1 - sqrt 2 / 2)^2 = 21.9 of 255, truncated.
// Ring of 5: radius 1, so 0.3 * 255 = 76.5 beside the centre, (2 - sqrt 2) * 76.5 = 44.8 diagonally.
// Rectangle of 5: 1/2 = 127.5 beside the centre, (1 - sqrt 2 / 2) = 74.7 diagonally.
TEST(TexturesToolBytes, AreThoseWorkedOutByHand) {
    const struct {
        const char* name;
        int type;
        float hardness, control;
        int n;
        std::vector<int> alpha;
    } rows[] = {
        {"disc", kDisc, 0, 0, 3, {0, 0, 0, 0, 255, 0, 0, 0, 0}},
        {"centre apart", kDisc, 0, 0, 4, {0, 0, 0, 0, 0, 63, 63, 0, 0, 63, 255, 0, 0, 0, 0, 0}},
        {"disc", kDisc, 0, 0, 5, {0,  0, 0, 0,  0,  0,  21, 63, 21, 0, 0, 63, 255,
                                  63, 0, 0, 21, 63, 21, 0,  0,  0,  0, 0, 0}},
        {"ring", kRing, 0, 0, 5, {0,  0, 0, 0,  0,  0,  44, 76, 44, 0, 0, 76, 0,
                                  76, 0, 0, 44, 76, 44, 0,  0,  0,  0, 0, 0}},
        {"centre mirrored", kRectangle, 0, 1, 4, {0, 0, 0, 0, 0, 255, 255, 0, 0, 255, 255, 0, 0, 0, 0, 0}},
        {"square", kRectangle, 0, 1, 5, {0,   0, 0, 0,  0,   0,  74, 127, 74, 0, 0, 127, 255,
                                         127, 0, 0, 74, 127, 74, 0,  0,   0,  0, 0, 0}},
        {"flat", kRectangle, 0, 2, 5, {0,   0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 255, 255,
                                       255, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
        {"narrow", kRectangle, 0, 0.5f, 5, {0, 0, 0, 0, 0,   0, 0, 255, 0, 0, 0, 0, 255,
                                            0, 0, 0, 0, 255, 0, 0, 0,   0, 0, 0, 0}},
        {"hard disc", kDisc, 1, 0, 1, {255}},
        {"hard square", kRectangle, 1, 1, 1, {255}},
        {"disc of two", kDisc, 0, 0, 2, {0, 0, 0, 255}},
        {"type below", -1, 1, 1, 3, std::vector<int>(9, 0)},
        {"type above", 4, 1, 1, 3, std::vector<int>(9, 0)},
        {"stored image", TexturesTool::kStoredImage, 1, 1, 3, std::vector<int>(9, 0)}};
    for (const auto& row : rows) {
        EXPECT_THAT(alphaOf(toolOf(row.type, row.hardness, row.control), row.n), ElementsAreArray(row.alpha))
            << row.name << " of " << row.n;
    }
}

// Shapes

// How alpha runs from the centre to the left edge of an odd tip.
std::vector<int> radiusOf(const TexturesTool& tool, int n) {
    const std::vector<int> alpha = alphaOf(tool, n);
    const int half = n / 2;
    std::vector<int> run;
    for (int x = half; x >= 0; --x)
        run.push_back(alpha[static_cast<std::size_t>(half * n + x)]);
    return run;
}

TEST(TexturesToolShape, HardDiscFadesOverTheOuterTwentieth) {
    const std::vector<int> run = radiusOf(toolOf(kDisc, 1, 0), 101);  // radius 50, core 47.5
    EXPECT_THAT(std::vector<int>(run.begin(), run.begin() + 48), Each(255));
    EXPECT_EQ(run[48], 163);  // 0.8^2
    EXPECT_EQ(run[49], 40);   // 0.4^2
    EXPECT_EQ(run[50], 0);
}

TEST(TexturesToolShape, RingIsAsThickAsItsControlValue) {
    const std::vector<int> run = radiusOf(toolOf(kRing, 1, 20), 101);  // from radius 30 to 50, core 8.5 of 10
    EXPECT_THAT(std::vector<int>(run.begin(), run.begin() + 31), Each(0));
    EXPECT_THAT(std::vector<int>(run.begin() + 32, run.begin() + 49), Each(255));
    EXPECT_NEAR(run[31], 170, 1);  // 9 from the centre line: 1 - 0.5 / 1.5 of 255, give or take rounding
    EXPECT_NEAR(run[49], 170, 1);
    EXPECT_EQ(run[50], 0);
}

TEST(TexturesToolShape, RingThinnerThanTwoPixelsIsDrawnAsTwo) {
    const std::vector<int> two = alphaOf(toolOf(kRing, 0.5f, 2), 33);
    for (const float control : {1.9f, 0.0f, -50.0f, -kInfinity, kNaN})
        EXPECT_EQ(alphaOf(toolOf(kRing, 0.5f, control), 33), two) << control;
}

TEST(TexturesToolShape, HardSquareFillsTheTipButForItsCorners) {
    const int n = 201;  // half 100: corners of radius 5
    const std::vector<int> alpha = alphaOf(toolOf(kRectangle, 1, 1), n);
    const auto at = [&](int x, int y) { return alpha[static_cast<std::size_t>(y * n + x)]; };
    EXPECT_EQ(at(5, 5), 255);
    EXPECT_EQ(at(100, 5), 255);
    EXPECT_NEAR(at(100, 3), 0.6 * 255, 1);                     // fade 5 wide along the sides
    EXPECT_NEAR(at(3, 3), (1 - std::sqrt(8.0) / 5) * 255, 1);  // round in the corner
    EXPECT_EQ(at(1, 1), 0);
}

// Values out of range

TEST(TexturesToolValues, HardnessBelowZeroOrNotANumberDrawsAsZero) {
    for (const int type : {kDisc, kRing, kRectangle}) {
        const std::vector<int> soft = alphaOf(toolOf(type, 0, 4), 33);
        for (const float hardness : {-0.01f, -3.0f, -kInfinity, kNaN})
            EXPECT_EQ(alphaOf(toolOf(type, hardness, 4), 33), soft) << type << " " << hardness;
    }
}

TEST(TexturesToolValues, HardnessAboveOneDrawsAHardEdgeThatNeverWraps) {
    for (const int type : {kDisc, kRing, kRectangle}) {
        for (const float hardness : {1.5f, 1000.0f, kInfinity}) {
            const std::vector<int> alpha = alphaOf(toolOf(type, hardness, 8), 33);
            EXPECT_THAT(alpha, Each(::testing::AnyOf(0, 255))) << type << " " << hardness;
            EXPECT_THAT(alpha, ::testing::Contains(255)) << type << " " << hardness;
        }
    }
}

TEST(TexturesToolValues, RectangleReadsNotANumberAsSquareAndStaysDrawableAtBothEnds) {
    EXPECT_EQ(alphaOf(toolOf(kRectangle, 1, kNaN), 33), alphaOf(toolOf(kRectangle, 1, 1), 33));
    EXPECT_EQ(alphaOf(toolOf(kRectangle, 1, -2), 33), alphaOf(toolOf(kRectangle, 1, 0.01f), 33));
    const std::vector<int> line = alphaOf(toolOf(kRectangle, 1, kInfinity), 33);
    EXPECT_EQ(line[16 * 33 + 16], 255);
    EXPECT_EQ(std::count_if(line.begin(), line.end(), [](int a) { return a != 0; }), 33);
}

// Sizes and images

TEST(TexturesToolImage, HoldsTheBytesOfTheRawBuffer) {
    const TexturesTool tool = toolOf(kRing, 0.7f, 5);
    for (const int size : {3, 4, 31, 64}) {
        const QImage image = tool.textureImageWithSize(size);
        const auto data = tool.textureDataWithSize(size);
        ASSERT_TRUE(data);
        ASSERT_EQ(image.size(), QSize(size, size));
        EXPECT_EQ(image.format(), QImage::Format_RGBA8888_Premultiplied);
        ASSERT_EQ(image.bytesPerLine(), size * 4);
        EXPECT_TRUE(std::equal(data.get(), data.get() + image.sizeInBytes(), image.constBits()));
    }
}

TEST(TexturesToolImage, SizesBelowThreeGiveThree) {
    for (const int size : {2, 1, 0, -1, std::numeric_limits<int>::min()})
        EXPECT_EQ(toolOf(kDisc, 0, 0).textureImageWithSize(size).size(), QSize(3, 3)) << size;
}

TEST(TexturesToolImage, StoredImageIsHandedOutUnchangedAndForSizesRefused) {
    QImage stored(7, 5, QImage::Format_Grayscale8);
    stored.fill(77);
    TexturesTool tool;
    tool.setImage(stored);
    for (const int size : {-3, 1, 64, std::numeric_limits<int>::max()})
        EXPECT_EQ(tool.textureImageWithSize(size), stored) << size;
    tool.setTextureType(kDisc);
    for (const int size : {TexturesTool::kMaxSize + 1, 65536, std::numeric_limits<int>::max()}) {
        EXPECT_EQ(tool.textureImageWithSize(size), stored) << size;
        EXPECT_FALSE(tool.textureDataWithSize(size)) << size;
    }
}

}  // namespace
