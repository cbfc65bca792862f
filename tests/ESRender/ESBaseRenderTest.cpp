// SPDX-License-Identifier: MIT
#include "ESRender/ESBaseRender.h"

#include <limits>

#include "ESRender/ESLineRender.h"
#include "support/GLTest.h"
#include "support/LogCapture.h"

namespace {

constexpr int kWidth = 50;
constexpr int kHeight = 30;

class ESBaseRenderTest : public GLTest {
protected:
    void prepare() override {
        ASSERT_TRUE(_context->createBufferWithSize({kWidth, kHeight}));
        _context->beginRenderForType(ESRenderTypeCanvas);
        _render = ESBaseRender::initWithBufferSize({kWidth, kHeight});
        ASSERT_TRUE(_render->setVertexShaderString({}, {}));
    }

    std::unique_ptr<ESBaseRender> _render;
};

QString fragment(const char* color) {
    return QStringLiteral("#version 150\nout vec4 fragColor;\nvoid main() { fragColor = vec4(%1); }\n")
        .arg(QLatin1String(color));
}

}  // namespace

// Drawing

TEST_F(ESBaseRenderTest, EachPointIsASquareOfItsSizeInTheFlatColour) {
    _render->setRenderColor(ESColor::rgba(1, 0.2f, 0));
    _render->setFlow(0.6f);
    const LPPoint points[] = {{{10, 8}, 6, {}}, {{30, 20}, 4, {}}};
    EXPECT_EQ(_render->drawPoints(points, 2), QRectF(6, 4, 27, 19));
    EXPECT_EQ(_render->drawPoints(nullptr, 3), QRectF(kWidth, kHeight, -kWidth, -kHeight)) << "none inverts";
    // The colour is not premultiplied, so these bytes read as plain RGBA.
    QImage expected(kWidth, kHeight, QImage::Format_RGBA8888);
    expected.fill(Qt::transparent);
    fillRect(expected, QRect(7, 5, 6, 6), QColor(255, 51, 0, 153));
    fillRect(expected, QRect(28, 18, 4, 4), QColor(255, 51, 0, 153));
    expected.reinterpretAsFormat(QImage::Format_RGBA8888_Premultiplied);
    EXPECT_TRUE(imagesMatch(_context->image(), expected));
    // And so does a mirror of it, in rows from the bottom and transparent beyond.
    GLuint texture = 0;
    _render->updateTextureAtOrigin({0, 0}, {0, 0}, texture, GL_TEXTURE1);
    EXPECT_TRUE(imagesMatch(readTexture(texture).mirrored(), expected.copy(0, kHeight - 32, 64, 32)));
    glDeleteTextures(1, &texture);
}

// Properties

TEST_F(ESBaseRenderTest, ColoursOfEveryKindGiveTheirComponents) {
    constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
    const struct {
        ESColor color;
        int count;
        float red, green, blue, alpha;
    } rows[] = {{ESColor::grey(0.3f), 2, 0.3f, 0.3f, 0.3f, 1},
                {ESColor(), 0, 0, 0, 0, 0},
                {ESColor::rgba(0.1f, 0.2f, 0.3f, 0.4f), 4, 0.1f, 0.2f, 0.3f, 0.4f},
                {ESColor::rgba(kNaN, 7, -1), 4, 0, 1, 0, 1},
                {QColor(255, 0, 51), 4, 1, 0, 0.2f, 1},
                {QColor(), 0, 0, 0, 0, 0}};
    for (const auto& row : rows) {
        EXPECT_EQ(row.color.componentCount(), row.count);
        EXPECT_EQ(row.color.alpha(), row.alpha);
        _render->setRenderColor(row.color);
        // QColor keeps 16 bits a component.
        EXPECT_NEAR(_render->colorR(), row.red, 1e-5);
        EXPECT_NEAR(_render->colorG(), row.green, 1e-5);
        EXPECT_NEAR(_render->colorB(), row.blue, 1e-5);
        EXPECT_EQ(row.color.toQColor().isValid(), row.count != 0);
    }
    EXPECT_FALSE(ESColor::grey(0.5f) == ESColor::rgba(0.5f, 0.5f, 0.5f));
}

TEST_F(ESBaseRenderTest, OpacityAndFlowNeverBecomeAnythingButNumbers) {
    _render->setOpacity(0.5f);
    _render->setFlow(0.25f);
    for (const float bad :
         {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity()}) {
        _render->setOpacity(bad);
        _render->setFlow(-bad);
    }
    EXPECT_EQ(_render->opacity(), 0.5f);
    EXPECT_EQ(_render->flow(), 0.25f);
}

TEST_F(ESBaseRenderTest, BrushTexturesTakeTheSideTheirNumberAsksFor) {
    const QImage tip = patternImage({8, 8});
    for (const auto& [images, side] :
         {std::pair{1, 8}, {2, 256}, {4, 256}, {5, 512}, {9, 512}, {10, 1024}, {20, 1024}}) {
        _render->setTextureImages(QList<QImage>(images, tip), GL_TEXTURE4);
        EXPECT_EQ(_render->brushTexture()->qualityType(), side) << images;
    }
    const TextureObject* const before = _render->brushTexture();
    _render->setTextureImage(QImage());
    _render->setTextureImages({});
    _render->setTextureData(nullptr, {4, 4});
    _render->setTextureData(tip.constBits(), {});
    EXPECT_EQ(_render->brushTexture(), before) << "nothing given, nothing changed";
    EXPECT_EQ(_render->numberOfTexture(), 20u);
    _render->setTextureData(tip.constBits(), tip.size());
    EXPECT_EQ(_render->brushTexture()->pixSize(), QSize(8, 8));
    EXPECT_EQ(_render->numberOfTexture(), 1u);
}

// Program cache

TEST_F(ESBaseRenderTest, EachPairOfSourcesIsBuiltOnce) {
    const ESProgram* const first = _render->program();
    const QString vertex = ESBaseRender::baseRenderVertexShaderString();
    const QString other = fragment("0.0, 1.0, 0.0, 1.0");
    ASSERT_TRUE(_render->useProgramWithVertexShaderString(vertex, other));
    EXPECT_NE(_render->program(), first);
    EXPECT_EQ(_render->fragmentShaderString(), other);
    ASSERT_TRUE(_render->setVertexShaderString({}, {}));
    EXPECT_EQ(_render->program(), first);
    EXPECT_FALSE(_render->addProgramWithVertexShaderString(vertex, other)) << "it is there already";
    EXPECT_TRUE(_render->addProgramWithVertexShaderString(vertex, other + QLatin1Char(' ')));
    EXPECT_EQ(_render->program(), first) << "adding switches nothing";
    EXPECT_EQ(_render->programObjects().size(), 3u);
    // One that does not build changes nothing.
    const QString text = _render->fragmentShaderString(), bad = QStringLiteral("nonsense");
    expectDrainedErrors(3);
    LogCapture log;
    EXPECT_FALSE(_render->setVertexShaderString({}, bad));
    EXPECT_EQ(ESBaseRender::initWithVertexShaderFromString(bad, {}), nullptr);
    EXPECT_EQ(ESLineRender::initWithVertexShaderFromString(bad, {}), nullptr);
    EXPECT_EQ(_render->program(), first);
    EXPECT_EQ(_render->fragmentShaderString(), text);
    EXPECT_EQ(_render->programObjects().size(), 3u);
}

TEST_F(ESBaseRenderTest, RemovingTheCurrentPairFallsBackToTheDefault) {
    const QString vertex = ESBaseRender::baseRenderVertexShaderString();
    const QString other = fragment("0.0, 1.0, 0.0, 1.0");
    ASSERT_TRUE(_render->useProgramWithVertexShaderString(vertex, other));
    const GLuint name = _render->program()->programAddr();
    _render->removeProgramWithVertexShaderString(vertex, other);
    EXPECT_FALSE(glIsProgram(name));
    EXPECT_FALSE(_render->isExistWithVertexShaderString(vertex, other));
    EXPECT_EQ(_render->fragmentShaderString(), ESBaseRender::baseRenderFrangmentShaderString());
    _render->removeProgramWithVertexShaderString(vertex, QStringLiteral("unknown"));
    EXPECT_EQ(_render->programObjects().size(), 1u);
    // The default pair itself: its entry goes, but the renderer draws on with the program.
    _render->removeProgramWithVertexShaderString(vertex, ESBaseRender::baseRenderFrangmentShaderString());
    EXPECT_TRUE(_render->programObjects().empty());
    ASSERT_TRUE(_render->program());
    const LPPoint point = {{10, 8}, 6, {}};
    _render->setRenderColor(QColor(Qt::blue));
    _render->drawPoints(&point, 1);
    EXPECT_EQ(_context->image().pixelColor(10, 8), QColor(Qt::blue));
}
