// SPDX-License-Identifier: MIT
#include "ESRender/ESImageRender.h"

#include <epoxy/gl.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "support/GLTest.h"
#include "support/Named.h"

namespace {

using Color = std::array<double, 4>;  // premultiplied

class ImageRenderTest : public GLTest {
protected:
    void make(int width, int height) {
        ASSERT_TRUE(_context->createBufferWithSize(QSizeF(width, height)));
        _render = ESImageRender::initWithBufferSize(QSizeF(width, height));
        ASSERT_TRUE(_render);
        _render->setLineTextureID(_context->lineTexture(), GL_TEXTURE4);
        _render->setSubLineTextureID(_context->subLineTexture(), GL_TEXTURE5);
        _render->setFlipY(true);
    }
    void TearDown() override {
        _render.reset();
        GLTest::TearDown();
    }

    // A target filled with random premultiplied pixels, as it is then, upright. The canvas first: it spoils
    // the line layer.
    QImage fillWithNoise(ESRenderType target, unsigned seed) {
        _context->beginRenderForType(target);
        const QSize size = _context->sizeForType(target);
        QImage noise(size, QImage::Format_RGBA8888_Premultiplied);
        std::srand(seed);
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x) {
                uchar* pixel = noise.scanLine(y) + 4 * x;
                pixel[3] = static_cast<uchar>(std::rand() % 4 == 0   ? 0
                                              : std::rand() % 4 == 0 ? 255
                                                                     : std::rand() % 256);
                for (int i = 0; i < 3; ++i) {
                    pixel[i] = static_cast<uchar>(std::rand() % (pixel[3] + 1));
                }
            }
        }
        glActiveTexture(GL_TEXTURE0);
        glBindTexture(GL_TEXTURE_2D,
                      target == ESRenderTypeSubLine ? _context->subLineTexture() : _context->lineTexture());
        const QImage rows = noise.mirrored();  // GL rows run bottom-up
        glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, size.width(), size.height(), GL_RGBA, GL_UNSIGNED_BYTE,
                        rows.constBits());
        if (target == ESRenderTypeCanvas) {  // has no texture: by way of the line layer's
            glBindFramebuffer(GL_READ_FRAMEBUFFER, _context->frameBuffer(ESRenderTypeLine));
            glBlitFramebuffer(0, 0, size.width(), size.height(), 0, 0, size.width(), size.height(),
                              GL_COLOR_BUFFER_BIT, GL_NEAREST);
        }
        return noise;
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

Color colorAt(const QImage& image, int x, int y) {
    const uchar* pixel = image.constScanLine(y) + 4 * x;
    return {pixel[0] / 255.0, pixel[1] / 255.0, pixel[2] / 255.0, pixel[3] / 255.0};
}

// What each mode makes of background B and source L, where it does not discard.
using Formula = Color (*)(const Color& B, const Color& L);
struct Mode : Named {
    std::uint32_t type;
    double discardBelow;  // source alpha; such a pixel keeps what the canvas holds
    Formula formula;
};

Color perChannel(const Color& B, const Color& L, double alpha, double (*mix)(double b, double l)) {
    const double sL = 1 - L[3], sB = 1 - B[3];
    Color out{0, 0, 0, alpha};
    for (std::size_t i = 0; i < 3; ++i) {
        out[i] = mix(sB + B[i], sL + L[i]) - (1 - alpha);
    }
    return out;
}

Color over(const Color& B, const Color& L) {
    Color out{};
    for (std::size_t i = 0; i < 4; ++i) {
        out[i] = B[i] * (1 - L[3]) + L[i];
    }
    return out;
}

const Mode kModes[] = {
    {"Normal", 1, 0, over},
    {"Three", 3, 0, over},
    {"Unknown", 77, 0, over},
    {"Replace", 2, 0, [](const Color&, const Color& L) { return L; }},
    {"Behind", 4, 0.001, [](const Color& B, const Color& L) { return over(L, B); }},
    {"Erase", 5, 0.001,
     [](const Color& B, const Color& L) {
         const double rest = 1 - L[3];
         return Color{B[0] * rest, B[1] * rest, B[2] * rest, B[3] * rest};
     }},
    {"Tarnish", 6, 0.001,
     [](const Color& B, const Color& L) {
         return perChannel(B, L, B[3] * (1 - L[3]) + L[3], [](double b, double l) { return std::min(b, l); });
     }},
    {"Brightness", 7, 0.001,
     [](const Color& B, const Color& L) {
         return Color{std::max(B[0], L[0]), std::max(B[1], L[1]), std::max(B[2], L[2]),
                      B[3] * (1 - L[3]) + L[3]};
     }},
    {"Multiply", 8, 0.0001,
     [](const Color& B, const Color& L) {
         return perChannel(B, L, B[3] * (1 - L[3]) + L[3], [](double b, double l) { return b * l; });
     }},
    {"Reset", 9, 0, [](const Color& B, const Color&) { return B; }},
};

class BlendModeTest : public ImageRenderTest, public ::testing::WithParamInterface<Mode> {
protected:
    void check(double opacity, bool masked) {
        make(61, 43);
        const QImage background = fillWithNoise(ESRenderTypeCanvas, 1);
        const QImage line = fillWithNoise(ESRenderTypeLine, 2);
        const QImage subLine = fillWithNoise(ESRenderTypeSubLine, 3);
        const Mode& mode = GetParam();
        _render->setBlendType(mode.type);
        _render->setOpacity(static_cast<float>(opacity));
        _render->setRepeatedlyRenderEnabled(masked);
        const QImage result = composite(QRectF(0, 0, 61, 43));
        for (int y = 0; y < 43; ++y) {
            for (int x = 0; x < 61; ++x) {
                const Color B = colorAt(background, x, y);
                Color L = colorAt(line, x, y);
                for (double& part : L) {
                    part *= opacity * (masked ? colorAt(subLine, x, y)[3] : 1);
                }
                // Replacing takes a transparent source as it is, but not what the sub-line masks away.
                const bool masksAway =
                    masked && mode.type == ESBlendTypeReplace && colorAt(subLine, x, y)[3] < 0.001;
                const bool keeps = L[3] < mode.discardBelow || masksAway;
                const Color expected = keeps ? B : mode.formula(B, L);
                const Color actual = colorAt(result, x, y);
                for (std::size_t i = 0; i < 4; ++i) {
                    // Single precision, then rounding to a byte.
                    ASSERT_NEAR(actual[i], std::clamp(expected[i], 0.0, 1.0), 0.51 / 255)
                        << "channel " << i << " at " << x << "," << y;
                }
            }
        }
    }
};
TEST_P(BlendModeTest, FollowsItsFormula) {
    check(1, false);
}
TEST_P(BlendModeTest, FollowsItsFormulaMaskedAndThinned) {
    check(0.6, true);
}
INSTANTIATE_TEST_SUITE_P(Modes, BlendModeTest, ::testing::ValuesIn(kModes), byName);

// Whole buffers and odd rectangles of them; what lies outside stays.
TEST_F(ImageRenderTest, EachTexelLandsOnItsPixel) {
    for (const QSize size : {QSize(1000, 700), QSize(1001, 801), QSize(257, 129), QSize(1, 1)}) {
        SCOPED_TRACE(size.width());
        make(size.width(), size.height());
        QImage expected = fillWithNoise(ESRenderTypeCanvas, 4);
        const QImage line = fillWithNoise(ESRenderTypeLine, 5);
        _render->setBlendType(ESBlendTypeReplace);
        const QRect part(size.width() / 3, size.height() / 5, size.width() / 2 + 1, size.height() / 3 + 1);
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

TEST_F(ImageRenderTest, AProgramsTextTellsItsType) {
    make(8, 8);
    for (const std::uint32_t type : {1u, 2u, 4u, 5u, 6u, 7u, 8u, 9u, 3u}) {
        _render->setBlendType(type);
        EXPECT_EQ(ESImageRender::blendTypeOfFragmentShaderString(
                      ESImageRender::fragmentShaderStringForBlendType(type)),
                  type != 3 ? type : 1);
    }
    EXPECT_EQ(_render->programObjects().size(), 8u) << "built once a mode; 3 shares the normal one";
    EXPECT_EQ(ESImageRender::blendTypeOfFragmentShaderString(QStringLiteral("void main() {}")), 0u);
    EXPECT_EQ(ESImageRender::blendTypeOfFragmentShaderString(QStringLiteral("--")), 3u);
}

TEST_F(ImageRenderTest, RemovingTheCurrentModesProgramFallsBackToNormal) {
    make(8, 8);
    _render->setBlendType(ESBlendTypeErase);
    const QString vertex = _render->vertexShaderString();
    const QString erase = _render->fragmentShaderString();
    _render->removeProgramWithVertexShaderString(vertex, erase);
    EXPECT_FALSE(_render->isExistWithVertexShaderString(vertex, erase));
    EXPECT_EQ(_render->fragmentShaderString(),
              ESImageRender::fragmentShaderStringForBlendType(ESBlendTypeNormal));
}

}  // namespace
