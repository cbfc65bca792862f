// SPDX-License-Identifier: MIT
// Reading back and mirroring into textures, on odd sizes, where a flip by the wrong height shows.
#include <cmath>

#include "ESContext/ESContext.h"
#include "support/GLTest.h"
#include "support/LogCapture.h"

namespace {

constexpr int kWidth = 37;
constexpr int kHeight = 23;

class ESContextReadTest : public GLTest {
protected:
    void prepare() override {
        ASSERT_TRUE(_context->createBufferWithSize({kWidth, kHeight}));
        _context->beginRenderForType(ESRenderTypeCanvas);
        _expected = paint(QSize(kWidth, kHeight));
    }

    // Paints coloured boxes into the bound target and returns what it must look like.
    static QImage paint(const QSize& size) {
        QImage image = solidImage(size);
        int i = 0;
        for (const QRect& rect : {QRect(0, 0, size.width(), 3), QRect(2, 5, 7, 11), QRect(12, 9, 9, 2),
                                  QRect(size.width() - 4, size.height() - 3, 4, 3)}) {
            const QColor color(40 + 30 * i, 200 - 50 * i, 10 * i);
            fill(rect.intersected(image.rect()), color, size.height());
            fillRect(image, rect, color);
            ++i;
        }
        return image;
    }

    QImage _expected;
};

}  // namespace

TEST_F(ESContextReadTest, ReadsComeFromTheCanvasWhateverTargetIsCurrent) {
    _context->beginRenderForType(ESRenderTypeSmudge);
    QImage smudge = paint(QSize(kWidth / 2, kHeight / 2));
    QImage display = solidImage({kWidth, kHeight});
    ASSERT_TRUE(_context->updateImage(display, display.rect()));
    EXPECT_TRUE(imagesMatch(display, _expected));
    GLint from = 0;  // the display update leaves the smudge layer bound, to read and to draw
    glGetIntegerv(GL_READ_FRAMEBUFFER_BINDING, &from);
    EXPECT_EQ(static_cast<GLuint>(from), _context->frameBuffer(ESRenderTypeSmudge));
    fill(QRect(0, 0, 3, 3), Qt::white, kHeight / 2);
    fillRect(smudge, QRect(0, 0, 3, 3), Qt::white);
    EXPECT_TRUE(imagesMatch(_context->image(), _expected));
    // The store was made for the small layer; the large one must not overrun it.
    EXPECT_TRUE(imagesMatch(_context->imageForType(ESRenderTypeSmudge), smudge));
    EXPECT_TRUE(imagesMatch(_context->imageForType(ESRenderTypeCanvas), _expected));
}

TEST_F(ESContextReadTest, UpdateImageTouchesItsRectangleOnly) {
    const QRect part(9, 4, 15, 12);
    QImage display = solidImage({kWidth, kHeight}, QColor(1, 2, 3));
    const QImage shared = display;  // a reader elsewhere, who must not see the change
    ASSERT_TRUE(_context->updateImage(display, part));
    EXPECT_TRUE(imagesMatch(display.copy(part), _expected.copy(part)));
    fillRect(display, part, QColor(1, 2, 3));
    EXPECT_TRUE(imagesMatch(display, shared));
    EXPECT_EQ(shared.pixelColor(part.topLeft()), QColor(1, 2, 3));
    EXPECT_TRUE(_context->updateImage(display, QRect(-5, -5, 100, 100))) << "cut to the buffer";
    EXPECT_TRUE(imagesMatch(display, _expected));

    EXPECT_FALSE(_context->updateImage(display, QRect(kWidth, 0, 5, 5)));
    EXPECT_FALSE(_context->updateImage(display, QRect(9, 9, -4, 4)));
    QImage small(kWidth - 1, kHeight, QImage::Format_RGBA8888_Premultiplied);
    EXPECT_FALSE(_context->updateImage(small, part));
    QImage other(kWidth, kHeight, QImage::Format_ARGB32_Premultiplied);
    EXPECT_FALSE(_context->updateImage(other, part));
}

TEST_F(ESContextReadTest, RectanglesOutsideOrThinnerThanAPixelReadNothing) {
    for (const auto& [rect, enabled] : {std::pair{QRectF(0, 0, 0.5, 10), false},
                                        {{-1, 0, 10, 10}, false},
                                        {{0, 0, 37.5, 23}, false},
                                        {{30, 20, 7, 3}, true},
                                        {{0, 0, std::nan(""), 10}, false},
                                        {{0, 0, 1, 1}, true},
                                        {{5, 5, -3, -3}, false}}) {
        EXPECT_EQ(_context->isEnableRect(rect), enabled);
        std::vector<unsigned char> bytes(kWidth * kHeight * 4, 0xAB);
        _context->readData(bytes.data(), rect);
        EXPECT_EQ(bytes[0] == 0xAB, !enabled);
        EXPECT_EQ(_context->imageWithRect(rect).isNull(), !enabled);
    }
    _context->readData(nullptr, QRectF(0, 0, 4, 4));
    LogCapture log;
    EXPECT_TRUE(ESContext::newCGImageWithData(nullptr, {4, 4}).isNull());
    EXPECT_EQ(log.lines(), QStringList(QStringLiteral("创建数据失败(SRC_New/ESContext/ESContext:1097)!")));
}

TEST_F(ESContextReadTest, EdgesBetweenPixelsGiveWholePixelsAndAnImageOfThatSize) {
    for (const auto& [rect, rows] : {std::pair{QRectF(0.9, 0, 10.2, 23), QRectF(0, 0, 11, 23)},
                                     {{0.5, 0.5, 10.3, 10.3}, {0, 12, 10, 10}}}) {
        EXPECT_EQ(_context->gRectWithVRect(rect), rows);
        EXPECT_EQ(_context->imageWithRect(rect).size(), rows.size().toSize());
    }
}

TEST_F(ESContextReadTest, MirrorTextureFollowsTheCanvasAndIsTransparentBeyondIt) {
    GLuint texture = 0;
    _context->updateTextureAtPosition({0, 0}, {0, 0}, texture, GL_TEXTURE3);
    GLint active = 0;
    glGetIntegerv(GL_ACTIVE_TEXTURE, &active);
    EXPECT_EQ(active, GL_TEXTURE3);
    const auto expectMirror = [&](const QImage& canvas) {
        // Rows run bottom-up, and the texture's sides are powers of two.
        const QRect beyond(0, kHeight - 32, 64, 32);
        EXPECT_TRUE(imagesMatch(readTexture(texture), canvas.copy(beyond).mirrored()));
    };
    expectMirror(_expected);
    EXPECT_EQ(readTexture(texture, 6).size(), QSize(1, 1)) << "mipmaps down to one texel";

    // The canvas changes; a part that reaches over two edges is copied as far as there are pixels.
    fill(QRect(0, 0, kWidth, kHeight), QColor(9, 8, 7), kHeight);
    QImage expected = _expected;
    fillRect(expected, QRect(31, 17, kWidth, kHeight), QColor(9, 8, 7));
    _context->updateTextureAtPosition({36, 22}, {10, 10}, texture, GL_TEXTURE3);
    expectMirror(expected);
    glDeleteTextures(1, &texture);
}
