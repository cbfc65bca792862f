// SPDX-License-Identifier: MIT
#include "Brushes/TexturesTool.h"

#include <gmock/gmock.h>

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
        {"centre mirrored", kRectangle, 0, 1, 4, {0, 0, 0, 0, 0, 255, 255, 0, 0, 255, 255, 0, 0, 0, 0, 0}},
        {"hard disc", kDisc, 1, 0, 1, {255}},
        {"hard square", kRectangle, 1, 1, 1, {255}},
        {"line", kRectangle, 1, kInfinity, 3, {0, 0, 0, 255, 255, 255, 0, 0, 0}},
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

// So far from the middle of an odd tip, 0..255.
double alphaAt(int type, double hardness, double control, double half, double dx, double dy) {
    hardness = hardness > 0 ? hardness : 0;
    control = std::isnan(control) ? 1 : std::max(control, 0.01);
    const double thick = std::max(control, 2.0) / 2;  // half the ring's own
    const double outerX = half * std::min(control, 1.0), outerY = half / std::max(control, 1.0);
    const double fade = type == kDisc   ? (1 - 0.95 * hardness) * half
                        : type == kRing ? (1 - 0.85 * hardness) * thick
                                        : (1 - 0.95 * hardness) * std::min(outerX, outerY);
    const double within = type == kDisc   ? half - std::hypot(dx, dy)
                          : type == kRing ? thick - std::fabs(std::hypot(dx, dy) - (half - thick))
                                          : fade - std::hypot(std::max(dx - outerX + fade, 0.0),
                                                              std::max(dy - outerY + fade, 0.0));
    const double alpha = std::clamp(within / fade, 0.0, 1.0);
    return 255 * (type == kDisc ? alpha * alpha : type == kRing ? alpha * (0.3 + 0.7 * hardness) : alpha);
}

TEST(TexturesToolShape, FadesFromItsCoreToItsEdge) {
    for (const int type : {kDisc, kRing, kRectangle}) {
        for (const float hardness : {0.0f, 0.3f, 1.0f, -0.01f, -kInfinity, kNaN}) {
            for (const float control : {0.5f, 1.0f, 2.0f, 20.0f, -50.0f, -kInfinity, kNaN}) {
                for (const int n : {5, 33, 101}) {
                    const std::vector<int> alpha = alphaOf(toolOf(type, hardness, control), n);
                    for (int i = 0; i < n * n; ++i) {
                        const double expected = alphaAt(type, hardness, control, n / 2,
                                                        std::abs(i % n - n / 2), std::abs(i / n - n / 2));
                        ASSERT_NEAR(alpha[static_cast<std::size_t>(i)], expected, 1.01)
                            << type << ", " << hardness << ", " << control << ", " << n << ": " << i;
                    }
                }
            }
        }
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

// Sizes and images

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
