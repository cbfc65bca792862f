// SPDX-License-Identifier: MIT
#include "ESRender/ESLineRender.h"

#include <cstdlib>

#include "support/GLTest.h"

namespace {

constexpr int kWidth = 200, kHeight = 150;

class LineRenderTest : public GLTest {
protected:
    void prepare() override {
        ASSERT_TRUE(_context->createBufferWithSize(QSizeF(kWidth, kHeight)));
        _render = ESLineRender::init();
        ASSERT_TRUE(_render);
        _render->setBufferSize(QSizeF(kWidth, kHeight));
        _render->setIsDebug(true);
        _render->resetLineProporty();
    }

    // Draws into the cleared line layer and gives it back, upright.
    QImage draw(const std::vector<LPPoint>& points) {
        _context->beginRenderForType(ESRenderTypeLine);
        _context->setBlendModelForType(ESRenderTypeLine);
        _render->clear();
        _touched = _render->drawPoints(points.data(), points.size());
        return _context->imageForType(ESRenderTypeLine);
    }

    std::unique_ptr<ESLineRender> _render;
    QRectF _touched;
};

// An opaque arrow-like shape with no symmetry: a bar along the top, a short one down the left.
QImage lopsidedTip() {
    QImage tip = solidImage({32, 32});
    fillRect(tip, QRect(2, 2, 26, 6), Qt::black);
    fillRect(tip, QRect(2, 8, 7, 18), Qt::black);
    return tip;
}

// Placement

// What a dab is, the surfaces' tests say; here, which one the settings make of a point.
TEST_F(LineRenderTest, ADabIsAsTheSettingsSay) {
    _render->setRenderColor(ESColor::grey(1));
    _render->setTextureImage(lopsidedTip(), GL_TEXTURE1);
    const struct {
        void (*set)(ESLineRender&);
        float radian, roundness, flipX, flipY, flow;
    } rows[] = {{[](ESLineRender&) {}, 0, 1, 1, 1, 1},
                {[](ESLineRender& r) { r.setFlipX(true); }, 0, 1, -1, 1, 1},
                {[](ESLineRender& r) { r.setFlipY(true); }, 0, 1, -1, -1, 1},
                {[](ESLineRender& r) { r.setRadian(1.2f); }, 1.2f, 1, -1, -1, 1},
                {[](ESLineRender& r) { r.setRoundness(0.5f); }, 1.2f, 0.5f, -1, -1, 1},
                {[](ESLineRender& r) { r.setFlow(0.4f); }, 1.2f, 0.5f, -1, -1, 0.4f}};
    for (const auto& row : rows) {
        row.set(*_render);
        const QImage layer = draw({{{100, 75}, 32, {1, 0, 1}}});
        const dabcanvas::Dab dab{100,      75,        16, row.radian, row.roundness, row.flipX, row.flipY,
                                 row.flow, {1, 1, 1}, 0,  0};
        draw({});
        _render->drawDabs({&dab, 1});
        EXPECT_TRUE(imagesMatch(layer, _context->imageForType(ESRenderTypeLine))) << &row - rows;
    }
}

// A program of a host's is given the uniforms of each dab, and the texture that it may look at.
TEST_F(LineRenderTest, AHostsProgramDrawsDabByDab) {
    QString text = ESLineRender::lineRenderNormalFrangmentShaderString();
    text.replace(QStringLiteral("vec4(color * coverage, coverage)"),
                 QStringLiteral("vec4(0.0, color.g * coverage, 0.0, coverage)"));
    _render->setRenderColor(ESColor::grey(1));
    const QImage tip = lopsidedTip();
    for (const bool shared : {false, true}) {
        if (shared) {
            const dabcanvas::Picture picture{
                {tip.constBits(), {tip.width(), tip.height()}, tip.bytesPerLine()}, 1, {}};
            _render->setTips(std::make_shared<const dabcanvas::TipSet>(1, picture), GL_TEXTURE1);
        } else {
            _render->setTextureImage(tip, GL_TEXTURE1);
        }
        ASSERT_TRUE(_render->setVertexShaderString({}, text));
        const QImage layer = draw({{{100, 75}, 32, {1, 0, 1}}, {{30, 20}, 32, {1, 0, 1}}});
        EXPECT_EQ(layer.pixelColor(90, 63), QColor(0, 255, 0));
        EXPECT_EQ(layer.pixelColor(20, 8), QColor(0, 255, 0));
        EXPECT_EQ(layer.pixelColor(100, 75).alpha(), 0) << "not in the tip";
        EXPECT_NE(_render->brushTexture(), nullptr);
        ASSERT_TRUE(_render->setVertexShaderString({}, {}));
        EXPECT_EQ(draw({{{100, 75}, 32, {1, 0, 1}}}).pixelColor(90, 63), QColor(Qt::white));
    }
}

TEST_F(LineRenderTest, TheTouchedRectangleIsTheDabsWithAMargin) {
    _render->setTextureImage(solidImage({32, 32}, Qt::black), GL_TEXTURE1);
    draw({{{100, 50}, 10, {1, 0, 1}}});
    EXPECT_EQ(_touched, QRectF(94, 44, 12, 12));
    draw({{{2, 3}, 10, {1, 0, 1}}, {{198, 149}, 10, {1, 0, 1}}});
    EXPECT_EQ(_touched, QRectF(0, 0, kWidth, kHeight)) << "cut to the buffer";
    draw({});
    EXPECT_TRUE(_touched.isEmpty());
    draw({{{-100, 50}, 10, {1, 0, 1}}});
    EXPECT_TRUE(_touched.isEmpty());
}

// Nothing is ever drawn outside the rectangle told, or seams would stay on the canvas.
TEST_F(LineRenderTest, TheTouchedRectangleHoldsWhatJittersMake) {
    _render->setTextureImage(solidImage({32, 32}, Qt::black), GL_TEXTURE1);
    _render->setRadius(20);
    _render->setDistribution(1);
    _render->setDistributionCount(5);
    _render->setRadiusTingle(1);
    _render->setStartRadianEnable(true);
    _render->setRadianTingle(1);
    _render->setRoundness(0.3f);
    _render->setRoundnessTingle(1);
    for (float x = 60; x < 100; x += 3.3f) {
        QImage layers[2];
        for (const bool clipped : {false, true}) {
            _render->setNeedScissor(clipped);
            _render->resetLineProporty();
            srand48(5);
            layers[clipped] = draw({{{x, 70}, 21, {0.5f, 0.9f, 0.4f}}, {{x + 15, 81}, 17, {0.7f, 0, 1}}});
            EXPECT_TRUE(_touched.toAlignedRect().contains(painted(layers[clipped]))) << x;
        }
        EXPECT_FALSE(painted(layers[0]).isNull());
        EXPECT_TRUE(imagesMatch(layers[1], layers[0])) << "clipped to it";
    }
}

}  // namespace
