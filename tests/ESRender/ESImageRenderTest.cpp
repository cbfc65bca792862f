// SPDX-License-Identifier: MIT
// What each mode makes of its sources, every surface's tests say; here, what the renderer does by itself.
#include "ESRender/ESImageRender.h"

#include <algorithm>

#include "support/GLTest.h"

namespace {

class ImageRenderTest : public GLTest {
protected:
    void make(int width, int height) {
        ASSERT_TRUE(_context->createBufferWithSize(QSizeF(width, height)));
        _render = ESImageRender::initWithBufferSize(QSizeF(width, height));
        ASSERT_TRUE(_render);
        _render->setLineTextureID(_context->lineTexture(), GL_TEXTURE4);
        _render->setFlipY(true);
    }

    // Copies the canvas into the background and composites one rectangle.
    QImage composite(const QRectF& rect) {
        _context->beginRenderForType(ESRenderTypeCanvas);
        _render->updateBGTextureAtPos(GL_TEXTURE3);
        _context->setBlendWithSCFactor(GL_ONE, GL_ZERO, GL_ONE, GL_ZERO);
        _render->setRoundness(static_cast<float>(rect.height() / rect.width()));
        const LPPoint dab{{static_cast<float>(rect.center().x()), static_cast<float>(rect.center().y())},
                          static_cast<float>(rect.width()),
                          {1, 1, 1}};
        _render->drawPoints(&dab, 1);
        return _context->image();
    }

    std::unique_ptr<ESImageRender> _render;
};

// Whole buffers and odd rectangles of them; what lies outside stays.
TEST_F(ImageRenderTest, EachTexelLandsOnItsPixel) {
    for (const QSize size : {QSize(1000, 700), QSize(1001, 801), QSize(257, 129), QSize(1, 1)}) {
        SCOPED_TRACE(size.width());
        make(size.width(), size.height());
        const QImage line = patternImage(size, 5), rows = line.mirrored();  // GL rows run bottom-up
        glBindTexture(GL_TEXTURE_2D, _context->lineTexture());
        glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, size.width(), size.height(), GL_RGBA, GL_UNSIGNED_BYTE,
                        rows.constBits());
        _render->setBlendType(ESBlendTypeReplace);
        const QRect part(size.width() / 3, size.height() / 5, size.width() / 2 + 1, size.height() / 3 + 1);
        QImage expected = solidImage(size);
        for (int y = part.top(); y <= part.bottom(); ++y) {
            std::copy_n(line.constScanLine(y) + 4 * part.left(), 4 * part.width(),
                        expected.scanLine(y) + 4 * part.left());
        }
        EXPECT_TRUE(imagesMatch(composite(part), expected));
        EXPECT_TRUE(imagesMatch(composite(QRect(QPoint(), size)), line));
        _render.reset();
    }
}

// Programs

TEST_F(ImageRenderTest, AProgramsTextTellsItsTypeAndTheNormalOneStandsInForNone) {
    make(8, 8);
    for (const std::uint32_t type : {1u, 2u, 4u, 5u, 6u, 7u, 8u, 9u, 3u, 77u}) {
        _render->setBlendType(type);
        EXPECT_EQ(ESImageRender::blendTypeOfFragmentShaderString(_render->fragmentShaderString()),
                  type != 3 && type != 77 ? type : 1);
    }
    EXPECT_EQ(_render->programObjects().size(), 8u) << "built once a mode; 3 shares the normal one";
    EXPECT_EQ(ESImageRender::blendTypeOfFragmentShaderString(QStringLiteral("void main() {}")), 0u);
    EXPECT_EQ(ESImageRender::blendTypeOfFragmentShaderString(QStringLiteral("--")), 3u);
    _render->setBlendType(ESBlendTypeErase);
    const QString vertex = _render->vertexShaderString(), erase = _render->fragmentShaderString();
    _render->removeProgramWithVertexShaderString(vertex, erase);
    EXPECT_FALSE(_render->isExistWithVertexShaderString(vertex, erase));
    const QString normal = ESImageRender::fragmentShaderStringForBlendType(ESBlendTypeNormal);
    EXPECT_EQ(_render->fragmentShaderString(), normal);
    EXPECT_EQ(_render->blendType(), std::uint32_t{ESBlendTypeNormal});
    // A picture with edges between pixels is drawn by a program of its own, and only that.
    _render->setTextureImage(solidImage({3, 3}, Qt::red));
    _render->setUseLargeTexture(true);
    composite(QRectF(2.3, 2.3, 3, 3));
    EXPECT_EQ(_render->fragmentShaderString(), normal);
}

}  // namespace
