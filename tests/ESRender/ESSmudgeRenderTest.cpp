// SPDX-License-Identifier: MIT
#include "ESRender/ESSmudgeRender.h"

#include <limits>

#include "support/GLTest.h"

namespace {

constexpr int kWidth = 203, kHeight = 151;  // the layer: 101 x 75

class SmudgeRenderTest : public GLTest {
protected:
    void prepare() override {
        ASSERT_TRUE(_context->createBufferWithSize(QSizeF(kWidth, kHeight)));
        _render = ESSmudgeRender::init();
        ASSERT_TRUE(_render);
        _render->setBufferSize(QSizeF(kWidth, kHeight));
        _render->setSmudgeTextureID(_context->smudgeTexture(), GL_TEXTURE7);
        _render->setTextureImages({solidImage({32, 32}, Qt::black)}, GL_TEXTURE6);
        _render->setIsDebug(true);
        _render->setMoistQuantity(1);
        _render->setLoadQuantity(0);
        _render->setSmudgeControl(false);
    }

    // Smudges a layer of distinct pixels and gives it back, upright.
    QImage smudge(const std::vector<LPPoint>& points) {
        _context->beginRenderForType(ESRenderTypeSmudge);
        const QSize layer = _context->sizeForType(ESRenderTypeSmudge);
        for (int y = 0; y < layer.height(); y += 5) {
            for (int x = 0; x < layer.width(); x += 5) {
                fill(QRect(x, y, 5, 5), QColor(2 * x, 3 * y, (x * y) % 256), layer.height());
            }
        }
        _context->setBlendModelForType(ESRenderTypeLine);
        _render->resetLineProporty();
        _touched = _render->drawPoints(points.data(), points.size());
        return _context->imageForType(ESRenderTypeSmudge);
    }

    std::unique_ptr<ESSmudgeRender> _render;
    QRectF _touched;
};

TEST_F(SmudgeRenderTest, TheMixGrowsOverTheFirstDabs) {
    struct Case {
        float length, mix;
        std::vector<float> quantities;  // of dabs 1, 2, ...
    };
    for (const Case& c :
         {Case{4, 1, {0, 0.25f, 0.5f, 0.75f, 1, 1}}, Case{4, 0.5f, {0, 0.125f, 0.25f, 0.375f, 0.5f}},
          Case{1, 1, {0, 1, 1}}, Case{0, 0.8f, {0.8f, 0.8f}}, Case{-3, 1, {1, 1}},
          Case{std::numeric_limits<float>::quiet_NaN(), 1, {1, 1}}}) {
        _render->setMixQuantity(c.mix);
        _render->setSmudgeControlValue(c.length);
        for (std::size_t i = 0; i < c.quantities.size(); ++i) {
            EXPECT_FLOAT_EQ(_render->mixQuantityAtPointIndex(static_cast<std::int64_t>(i) + 1),
                            c.quantities[i])
                << "length " << c.length << ", dab " << i + 1;
        }
    }
}

TEST_F(SmudgeRenderTest, ADabLaysDownWhatLayUnderTheOneBefore) {
    EXPECT_TRUE(smudge({}).size() == QSize(101, 75));
    EXPECT_TRUE(_touched.isEmpty());
    const QImage before = smudge({{{50, 60}, 24, {1, 1, 1}}});
    EXPECT_TRUE(imagesMatch(before, smudge({}))) << "a stroke's first dab has picked up nothing yet";

    // 40 pixels on are 19.9 of the layer's, so colours are compared, not bytes.
    const QImage after = smudge({{{50, 60}, 24, {1, 1, 1}}, {{90, 80}, 24, {1, 1, 1}}});
    EXPECT_EQ(_render->texturePosition().x, 90);
    EXPECT_EQ(_render->textureSize_2(), 12);
    for (int dy = -4; dy <= 4; dy += 2) {
        for (int dx = -4; dx <= 4; dx += 2) {
            const QColor from = before.pixelColor(25 + dx, 30 + dy);
            const QColor to = after.pixelColor(45 + dx, 40 + dy);
            EXPECT_NEAR(to.red(), from.red(), 11) << dx << ", " << dy;
            EXPECT_NEAR(to.green(), from.green(), 16) << dx << ", " << dy;
        }
    }
    EXPECT_EQ(after.pixel(60, 40), before.pixel(60, 40));

    // A turned or mirrored tip does not turn what it carries.
    for (const auto& [radian, flip] : {std::pair(1.5707963f, false), std::pair(0.0f, true)}) {
        _render->setRadian(radian);
        _render->setFlipX(flip);
        EXPECT_TRUE(imagesMatch(smudge({{{50, 60}, 24, {1, 1, 1}}, {{90, 80}, 24, {1, 1, 1}}}), after, 1));
        _render->setRadian(0);
        _render->setFlipX(false);
    }
}

TEST_F(SmudgeRenderTest, BarrierAndCopyGiveTheSamePicture) {
    std::vector<LPPoint> overlapping, apart, atTheEdges;
    for (int i = 0; i < 20; ++i) {
        const auto f = static_cast<float>(i);
        overlapping.push_back({{20 + f * 6.3f, 40 + f * 3.1f}, 30 - f, {1, 1, 1}});
        apart.push_back({{10 + f * 40, 40 + static_cast<float>(i % 3) * 35}, 22, {1, 1, 1}});
        atTheEdges.push_back({{f * 11 - 8, i % 2 != 0 ? -4.0f : 12.0f}, 36, {1, 1, 1}});
    }
    for (const std::vector<LPPoint>& points : {overlapping, apart, atTheEdges}) {
        _render->setUseTextureBarrier(true);
        const QImage withBarrier = smudge(points);
        EXPECT_NE(withBarrier, smudge({}));
        _render->setUseTextureBarrier(false);
        EXPECT_TRUE(imagesMatch(withBarrier, smudge(points)));
        _render->setUseFramebufferFetch(false);
        EXPECT_TRUE(imagesMatch(withBarrier, smudge(points)));
        _render->setUseFramebufferFetch(true);
    }
}

}  // namespace
