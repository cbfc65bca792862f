// SPDX-License-Identifier: MIT
#include "ESRender/Texture/TextureObject.h"

#include "ESRender/Utilities/ESGLTexture.h"
#include "support/GLTest.h"
#include "support/LogCapture.h"

namespace {

using TextureObjectTest = GLTest;

std::vector<float> cell(const TextureObject& texture, unsigned index) {
    const float* const floats = texture.vertiesOfTextureIndex(index);
    return std::vector<float>(floats, floats + 10);
}

// What a cell shows, the right way up, cut out of the texture by its coordinates.
QImage shown(const QImage& rows, const float* c) {
    const auto x0 = static_cast<int>(c[0] * static_cast<float>(rows.width()));
    const auto x1 = static_cast<int>(c[4] * static_cast<float>(rows.width()));
    const auto y0 = static_cast<int>(c[1] * static_cast<float>(rows.height()));
    const auto y1 = static_cast<int>(c[3] * static_cast<float>(rows.height()));
    return rows.copy(x0, y0, x1 - x0, y1 - y0).mirrored();
}

}  // namespace

TEST_F(TextureObjectTest, AnImageKeepsItsPixelsAtTheTopLeft) {
    QImage image = patternImage({300, 100});
    image.setPixel(5, 7, qRgba(10, 20, 30, 40));  // premultiplied values must arrive as they are
    const auto texture = TextureObject::initWithImage(image);
    EXPECT_TRUE(texture->didInit());
    EXPECT_EQ(texture->pixSize(), QSize(512, 128));
    EXPECT_EQ(texture->qualityType(), 512);
    EXPECT_EQ(cell(*texture, 0),
              (std::vector<float>{0, 0.21875f, 0, 1, 0.5859375f, 1, 0.5859375f, 0.21875f, 0, 0.21875f}));
    const QImage rows = readTexture(texture->textureID());
    EXPECT_TRUE(imagesMatch(shown(rows, texture->verties()), image));
    EXPECT_EQ(painted(rows), QRect(0, 28, 300, 100)) << "all else is transparent";
    EXPECT_EQ(readTexture(texture->textureID(), texture->cellMaxLevel()).size(), QSize(1, 1));
}

TEST_F(TextureObjectTest, ImagesCountInPointsAndOtherFormatsAreConverted) {
    QImage image = patternImage({64, 32}).convertToFormat(QImage::Format_ARGB32);
    image.setDevicePixelRatio(2);
    EXPECT_EQ(TextureObject::initWithImage(image)->pixSize(), QSize(32, 16));
    const auto texture =
        TextureObject::initWithImage(patternImage({5, 3}).convertToFormat(QImage::Format_RGB32));
    EXPECT_TRUE(
        imagesMatch(shown(readTexture(texture->textureID()), texture->verties()), patternImage({5, 3})));
}

TEST_F(TextureObjectTest, ALargeImageIsSqueezedToTheLargestSide) {
    // Each texel is the mean of what it takes the place of.
    QImage columns(4096, 2500, QImage::Format_RGBA8888_Premultiplied);
    for (qsizetype i = 0; i < columns.sizeInBytes(); ++i) {
        columns.bits()[i] = i / 4 % 2 == 0 ? 255 : 0;
    }
    const auto texture = TextureObject::initWithImage(columns);
    EXPECT_EQ(texture->pixSize(), QSize(2048, 2048));
    EXPECT_EQ(cell(*texture, 0), (std::vector<float>{0, 0, 0, 1, 1, 1, 1, 0, 0, 0}));
    EXPECT_TRUE(imagesMatch(readTexture(texture->textureID()),
                            solidImage({2048, 2048}, QColor(255, 255, 255, 128)), 1));
}

TEST_F(TextureObjectTest, EachImageHasItsCellAndNoTexelOfAnyLevelMixesTwo) {
    const struct {
        int images, side, cells, cellSide;
    } rows[] = {{2, 64, 4, 32}, {3, 256, 4, 128}, {4, 64, 4, 32}, {5, 64, 16, 16}, {16, 128, 16, 32}};
    for (const auto& [count, side, cells, cellSide] : rows) {
        QList<QImage> images;
        for (int i = 0; i < count; ++i) {
            // Fills its cell whole, and more: the worst case for bleeding.
            images.append(
                solidImage({cellSide + i, 2 * cellSide}, QColor(255 - 10 * i, 5 + 10 * i, i % 2 ? 255 : 0)));
        }
        const auto texture = TextureObject::initWithImages(images, side);
        ASSERT_TRUE(texture->isEnabled());
        EXPECT_EQ(texture->vertiesCount(), static_cast<unsigned>(cells));
        EXPECT_EQ(cell(*texture, texture->vertiesCount()), cell(*texture, 0));
        ASSERT_EQ(1 << texture->cellMaxLevel(), cellSide);
        for (int level = 0; level <= texture->cellMaxLevel(); ++level) {
            const QImage texels = readTexture(texture->textureID(), level);
            ASSERT_EQ(texels.width(), side >> level);
            for (int i = 0; i < cells; ++i) {
                const QImage part = shown(texels, texture->vertiesOfTextureIndex(static_cast<unsigned>(i)));
                const QColor expected = i < count ? images[i].pixelColor(0, 0) : QColor(0, 0, 0, 0);
                // Scaling and halving a flat colour may round by one.
                EXPECT_TRUE(imagesMatch(part, solidImage(part.size(), expected), 1))
                    << count << " images, cell " << i << ", level " << level;
            }
        }
        EXPECT_TRUE(readTexture(texture->textureID(), texture->cellMaxLevel() + 1).isNull());
    }
}

TEST_F(TextureObjectTest, AtlasRowsRunFromTheTopAndSmallTipsKeepTheirSize) {
    const QList<QImage> images = {patternImage({20, 30}, 50), QImage(), patternImage({128, 9}, 150)};
    const auto texture = TextureObject::initWithImages(images, 256);
    const QImage rows = readTexture(texture->textureID());
    EXPECT_TRUE(imagesMatch(shown(rows, texture->vertiesOfTextureIndex(0)), images[0]));
    EXPECT_TRUE(painted(rows.copy(128, 128, 128, 128)).isNull()) << "a null image's cell";
    EXPECT_TRUE(imagesMatch(shown(rows, texture->vertiesOfTextureIndex(2)), images[2]));
    EXPECT_EQ(cell(*texture, 2)[3], 0.5f) << "image 2 hangs from the top of the second row of cells";
    EXPECT_EQ(cell(*texture, 2)[0], 0.0f);
    EXPECT_EQ(painted(rows), QRect(0, 119, 128, 137)) << "all else is transparent";
}

TEST_F(TextureObjectTest, RawRowsAreTurnedOverAtTheBottomLeft) {
    const QImage source = patternImage({5, 3}, 9);
    const auto texture = TextureObject::initWithData(source.constBits(), source.size());
    EXPECT_EQ(texture->pixSize(), QSize(8, 4));
    EXPECT_EQ(cell(*texture, 0), (std::vector<float>{0, 0, 0, 0.75f, 0.625f, 0.75f, 0.625f, 0, 0, 0}));
    const QImage rows = readTexture(texture->textureID());
    EXPECT_TRUE(imagesMatch(rows.copy(0, 0, 5, 3), source.mirrored()));
    EXPECT_EQ(painted(rows), QRect(0, 0, 5, 3)) << "all else is transparent";

    EXPECT_EQ(TextureObject::initWithData(nullptr, {2, 2}), nullptr);
    EXPECT_EQ(TextureObject::initWithData(source.constBits(), {0, 2}), nullptr);
    EXPECT_EQ(TextureObject::initWithData(source.constBits(), {dabcanvas::maxTextureSize() + 1, 1}), nullptr);
}

TEST_F(TextureObjectTest, AKeptBlockServesEveryLoadAndLeavesNothingOfTheLast) {
    const auto texture = TextureObject::initWithQualityType(64);
    ASSERT_TRUE(texture);
    EXPECT_FALSE(texture->isEnabled());
    EXPECT_FALSE(texture->use());
    const QImage large = patternImage({64, 64}, 1);
    EXPECT_TRUE(texture->loadTextureWithImages({large}));
    const GLuint name = texture->textureID();
    const QImage small = patternImage({10, 20}, 200);
    EXPECT_TRUE(texture->loadTextureWithImages({small}));
    EXPECT_EQ(texture->textureID(), name);
    EXPECT_EQ(painted(readTexture(name)), QRect(0, 44, 10, 20));
    EXPECT_FALSE(texture->loadTextureWithData(large.constBits(), QSize(65, 1)));
    EXPECT_TRUE(texture->loadTextureWithData(large.constBits(), large.size()));
    EXPECT_TRUE(imagesMatch(readTexture(name), large.mirrored()));
    texture->destoryTexture();
    texture->destoryTexture();
    EXPECT_FALSE(texture->isEnabled());
    EXPECT_FALSE(glIsTexture(name));

    LogCapture log;
    EXPECT_EQ(TextureObject::initWithQualityType(0), nullptr);
    EXPECT_EQ(log.lines(),
              QStringList(QStringLiteral("创建数据失败(SRC_New/ESRender/Texture/TextureObject:45)!")));
    EXPECT_FALSE(TextureObject::initWithImages({small, small}, -5)->didInit());
    EXPECT_TRUE(log.has(QStringLiteral("TextureObject:203")));
}
