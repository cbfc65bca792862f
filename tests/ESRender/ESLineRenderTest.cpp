// SPDX-License-Identifier: MIT
#include "ESRender/ESLineRender.h"

#include <epoxy/gl.h>

#include <QTransform>
#include <cmath>
#include <functional>
#include <vector>

#include "support/GLTest.h"
#include "support/Named.h"

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
    void TearDown() override {
        _render.reset();
        GLTest::TearDown();
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

QImage blockTip(int side) {
    return solidImage({side, side}, Qt::black);
}

// Where a tip, drawn at its own size around (100, 75) in white, would leave its alpha.
QImage expectedLayer(const QImage& tip) {
    QImage layer = solidImage({kWidth, kHeight});
    for (int y = 0; y < tip.height(); ++y) {
        for (int x = 0; x < tip.width(); ++x) {
            if (tip.pixelColor(x, y).alpha() > 0) {
                layer.setPixelColor(100 - tip.width() / 2 + x, 75 - tip.height() / 2 + y, Qt::white);
            }
        }
    }
    return layer;
}

// Placement

TEST_F(LineRenderTest, ATipOfItsOwnSizeIsDrawnTexelOnPixelUprightAndUnmirrored) {
    _render->setRenderColor(ESColor::grey(1));
    const QImage tip = lopsidedTip();
    _render->setTextureImage(tip, GL_TEXTURE1);
    const std::vector<LPPoint> dab{{{100, 75}, 32, {1, 0, 1}}};
    EXPECT_TRUE(imagesMatch(draw(dab), expectedLayer(tip)));
    _render->setFlipX(true);
    EXPECT_TRUE(imagesMatch(draw(dab), expectedLayer(tip.mirrored(true, false))));
    _render->setFlipY(true);
    EXPECT_TRUE(imagesMatch(draw(dab), expectedLayer(tip.mirrored(true, true))));
    _render->setFlipX(false);
    _render->setFlipY(false);
    _render->setRadian(1.57079633f);
    EXPECT_TRUE(imagesMatch(draw(dab), expectedLayer(tip.transformed(QTransform().rotate(-90)))))
        << "counter-clockwise";
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

TEST_F(LineRenderTest, ARunOfDabsIsTheDabsOneByOne) {
    _render->setTextureImages({lopsidedTip(), blockTip(20)}, GL_TEXTURE1);
    std::vector<dabcanvas::Dab> dabs;
    for (int i = 0; i < 700; ++i) {
        const auto f = static_cast<float>(i);
        dabs.push_back({.x = f * 0.31f,
                        .y = 75 + 60 * std::sin(f / 40),
                        .halfSize = 1 + static_cast<float>(i % 23),
                        .radian = f,
                        .roundness = 0.5f,
                        .flipX = 1,
                        .flipY = -1,
                        .flow = 0.3f,
                        .color = {f / 700, 0.5f, 1 - f / 700},
                        .random = 0,
                        .tip = static_cast<std::uint32_t>(i % 2)});
    }
    draw({});
    for (const dabcanvas::Dab& dab : dabs) {
        _render->drawDabs({&dab, 1});
    }
    const QImage oneByOne = _context->imageForType(ESRenderTypeLine);
    EXPECT_FALSE(painted(oneByOne).isNull());
    draw({});
    _render->drawDabs(dabs);
    EXPECT_TRUE(imagesMatch(_context->imageForType(ESRenderTypeLine), oneByOne));
}

TEST_F(LineRenderTest, TheTouchedRectangleIsTheDabsWithAMargin) {
    _render->setTextureImage(blockTip(32), GL_TEXTURE1);
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
struct Jitter : Named {
    std::function<void(ESLineRender&)> set;
};
class LineRenderBoundsTest : public LineRenderTest, public ::testing::WithParamInterface<Jitter> {};
TEST_P(LineRenderBoundsTest, HoldEveryPixel) {
    _render->setTextureImage(blockTip(32), GL_TEXTURE1);
    _render->setRenderColor(ESColor::grey(1));
    GetParam().set(*_render);
    for (int i = 0; i < 12; ++i) {
        _render->resetLineProporty();
        const auto shift = static_cast<float>(i) * 3.3f;
        const QImage layer =
            draw({{{60 + shift, 70}, 21, {0.5f, 0.9f, 0.4f}}, {{75 + shift, 81}, 17, {0.7f, 0, 1}}});
        EXPECT_FALSE(painted(layer).isNull());
        EXPECT_TRUE(_touched.toAlignedRect().contains(painted(layer))) << "round " << i;
    }
}
INSTANTIATE_TEST_SUITE_P(
    Jitters, LineRenderBoundsTest,
    ::testing::Values(Jitter{"None", [](ESLineRender&) {}},
                      Jitter{"Turned", [](ESLineRender& r) { r.setRadian(0.7f); }},
                      Jitter{"TurnedAtStart", [](ESLineRender& r) { r.setStartRadianEnable(true); }},
                      Jitter{"TurnedAtRandom", [](ESLineRender& r) { r.setRadianTingle(1); }},
                      Jitter{"Following", [](ESLineRender& r) { r.setMoveRadianEnable(true); }},
                      Jitter{"FlatAndTurned",
                             [](ESLineRender& r) {
                                 r.setRoundness(0.2f);
                                 r.setRoundnessTingle(1);
                                 r.setRadianTingle(1);
                             }},
                      Jitter{"Scattered",
                             [](ESLineRender& r) {
                                 r.setRadius(20);
                                 r.setDistribution(1);
                                 r.setDistributionCount(5);
                                 r.setRadiusTingle(1);
                                 r.setStartRadianEnable(true);
                             }},
                      Jitter{"ThinLine",
                             [](ESLineRender& r) { r.setLineProcessType(dabcanvas::kNoThinDabs); }},
                      Jitter{"Clipped", [](ESLineRender& r) { r.setNeedScissor(true); }}),
    byName);

// Tips

TEST_F(LineRenderTest, NeighboursInTheAtlasNeverBleedIntoADab) {
    const QImage nothing = solidImage({64, 64});
    _render->setRenderColor(ESColor::grey(1));
    // Index 0 is picked at full strength of the control, the last at none: empty next to full, and full next
    // to empty.
    _render->setTextureControl({1, 0, 0});
    for (const float size : {3.0f, 7.0f, 16.0f, 33.0f, 64.0f, 128.0f, 140.0f}) {
        for (const float roundness : {1.0f, 0.3f}) {
            _render->setRoundness(roundness);
            _render->setTextureImages({nothing, blockTip(128), blockTip(128), blockTip(128)}, GL_TEXTURE1);
            EXPECT_TRUE(painted(draw({{{100, 75}, size, {1, 0, 1}}})).isNull()) << "size " << size;

            _render->setTextureImages({blockTip(128), nothing, nothing, nothing}, GL_TEXTURE1);
            const QImage layer = draw({{{100.5f, 75.5f}, size, {1, 0, 1}}});
            const QRect covered = painted(layer);
            EXPECT_NEAR(covered.width(), std::min<float>(size, kWidth), 2) << "partly covered at both sides";
            const QRect solid = covered.adjusted(1, 1, -1, -1);
            ASSERT_TRUE(imagesMatch(layer.copy(solid), solidImage(solid.size(), Qt::white)))
                << "size " << size;
        }
    }
}

// Paper

TEST_F(LineRenderTest, PaperTilesFromTheTopLeftAndHoldsBackWhereItIsBlack) {
    QImage paper = solidImage({20, 10}, Qt::black);
    fillRect(paper, QRect(0, 0, 10, 5), Qt::white);
    _render->setTextureImage(blockTip(128), GL_TEXTURE1);
    _render->setMaskImage(paper);
    _render->setNeedMaskTexture(true);
    const auto check = [&](int scale) {
        _render->setMaskScale(static_cast<float>(scale));
        const QImage layer = draw({{{64, 64}, 128, {1, 0, 1}}});
        for (int y = 2; y < 126; ++y) {
            for (int x = 2; x < 126; ++x) {
                const int u = x / scale % 20, v = y / scale % 10;
                const bool rim = scale > 1 && (u % 10 == 0 || u % 10 == 9 || v % 5 == 0 || v % 5 == 4);
                if (!rim) {  // an enlarged tile is smooth at its steps
                    ASSERT_EQ(layer.pixelColor(x, y).alpha(), u < 10 && v < 5 ? 255 : 0) << x << "," << y;
                }
            }
        }
    };
    check(1);
    check(3);
    _render->setMaskScale(0);  // never divides by nothing
    EXPECT_EQ(draw({{{64, 64}, 128, {1, 0, 1}}}).size(), QSize(kWidth, kHeight));
    _render->setMaskImage({});
    EXPECT_EQ(draw({{{64, 64}, 128, {1, 0, 1}}}).pixelColor(15, 7).alpha(), 255) << "no paper, no mask";
}

// Multicolour

}  // namespace
