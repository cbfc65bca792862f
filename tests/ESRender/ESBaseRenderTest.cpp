// SPDX-License-Identifier: MIT
#include "ESRender/ESBaseRender.h"

#include <cmath>
#include <limits>

#include "support/GLTest.h"
#include "support/LogCapture.h"

namespace {

constexpr int kWidth = 50;
constexpr int kHeight = 30;

class ESBaseRenderTest : public GLTest {
protected:
    void SetUp() override {
        GLTest::SetUp();
        if (HasFatalFailure() || IsSkipped()) {
            return;
        }
        ASSERT_TRUE(_context->createBufferWithSize({kWidth, kHeight}));
        _context->beginRenderForType(ESRenderTypeCanvas);
        _render = ESBaseRender::initWithBufferSize({kWidth, kHeight});
        ASSERT_TRUE(_render->setVertexShaderString({}, {}));
    }
    void TearDown() override {
        _render.reset();
        GLTest::TearDown();
    }

    std::unique_ptr<ESBaseRender> _render;
};

QString fragment(const char* color) {
    return QStringLiteral("#version 150\nout vec4 fragColor;\nvoid main() { fragColor = vec4(%1); }\n")
        .arg(QLatin1String(color));
}

// Counts how often it is told that its program was switched.
class CountingRender : public ESBaseRender {
public:
    CountingRender() = default;
    int switches = 0;
    int bound = 0;

protected:
    void programDidChange() override {
        ESBaseRender::programDidChange();
        ++switches;
    }
    void bindAttributeForProgram(ESProgram& program) override {
        EXPECT_FALSE(program.initialized());
        ++bound;
    }
};

}  // namespace

// Drawing

TEST_F(ESBaseRenderTest, EachPointIsASquareOfItsSizeInTheFlatColour) {
    _render->setRenderColor(ESColor::rgba(1, 0.2f, 0));
    _render->setFlow(0.6f);
    const LPPoint points[] = {{{10, 8}, 6, {}}, {{30, 20}, 4, {}}};
    EXPECT_EQ(_render->drawPoints(points, 2), QRectF(6, 4, 27, 19));
    QImage expected(kWidth, kHeight, QImage::Format_RGBA8888_Premultiplied);
    expected.fill(0);
    const QRgb flat = qRgba(255, 51, 0, 153);
    for (const QRect& square : {QRect(7, 5, 6, 6), QRect(28, 18, 4, 4)}) {
        for (int y = square.top(); y <= square.bottom(); ++y) {
            for (int x = square.left(); x <= square.right(); ++x) {
                uchar* const pixel = expected.scanLine(y) + x * 4;
                pixel[0] = static_cast<uchar>(qRed(flat));
                pixel[1] = static_cast<uchar>(qGreen(flat));
                pixel[2] = static_cast<uchar>(qBlue(flat));
                pixel[3] = static_cast<uchar>(qAlpha(flat));
            }
        }
    }
    EXPECT_TRUE(imagesMatch(_context->image(), expected));
}

TEST_F(ESBaseRenderTest, ReturnedRectanglesHaveAMarginAndNoPointsInvertTheBuffer) {
    _render->setBufferSize({400, 300});
    const LPPoint point = {{100, 50}, 10, {}};
    EXPECT_EQ(_render->drawPoints(&point, 1), QRectF(94, 44, 12, 12));
    const QRectF nothing(400, 300, -400, -300);
    EXPECT_EQ(_render->drawPoints(&point, 0), nothing);
    EXPECT_EQ(_render->drawPoints(nullptr, 3), nothing);
    EXPECT_EQ(ESBaseRender::initWithBufferSize({400, 300})->drawPoints(&point, 1), nothing)
        << "without a program";
}

TEST_F(ESBaseRenderTest, RenderersDrawWithTheirOwnVertexDataWhicheverWasMadeLast) {
    const auto other = ESBaseRender::initWithVertexShaderFromString({}, fragment("0.0, 1.0, 0.0, 1.0"));
    ASSERT_TRUE(other);
    _render->setRenderColor(QColor(Qt::red));
    const LPPoint point = {{10, 8}, 6, {}};
    _render->drawPoints(&point, 1);
    EXPECT_EQ(_context->image().pixelColor(10, 8), QColor(Qt::red));
}

TEST_F(ESBaseRenderTest, ClearingSetsEveryPixel) {
    _render->clearWithRed(0.2f, 0.4f, 0.6f, 1);
    QImage expected(kWidth, kHeight, QImage::Format_RGBA8888_Premultiplied);
    expected.fill(QColor(51, 102, 153));
    EXPECT_TRUE(imagesMatch(_context->image(), expected));
    _render->clear();
    expected.fill(0);
    EXPECT_TRUE(imagesMatch(_context->image(), expected));
}

// Properties

TEST_F(ESBaseRenderTest, ColoursOfEveryKindGiveTheirComponents) {
    struct Row {
        ESColor color;
        int count;
        float red, green, blue, alpha;
    };
    constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
    for (const Row& row : {Row{ESColor::grey(0.3f), 2, 0.3f, 0.3f, 0.3f, 1}, Row{ESColor(), 0, 0, 0, 0, 0},
                           Row{ESColor::rgba(0.1f, 0.2f, 0.3f, 0.4f), 4, 0.1f, 0.2f, 0.3f, 0.4f},
                           Row{ESColor::rgba(kNaN, 7, -1), 4, 0, 1, 0, 1},
                           Row{QColor(255, 0, 51), 4, 1, 0, 0.2f, 1}, Row{QColor(), 0, 0, 0, 0, 0}}) {
        EXPECT_EQ(row.color.componentCount(), row.count);
        EXPECT_EQ(row.color.alpha(), row.alpha);
        EXPECT_EQ(row.color.component(row.count), 0);
        _render->setRenderColor(ESColor::rgba(0.9f, 0.9f, 0.9f));
        _render->setRenderColor(row.color);
        EXPECT_EQ(_render->renderColor(), row.color);
        // QColor keeps 16 bits a component.
        EXPECT_NEAR(_render->colorR(), row.red, 1e-5);
        EXPECT_NEAR(_render->colorG(), row.green, 1e-5);
        EXPECT_NEAR(_render->colorB(), row.blue, 1e-5);
        EXPECT_EQ(row.color.toQColor().isValid(), row.count != 0);
    }
    EXPECT_FALSE(ESColor::grey(0.5f) == ESColor::rgba(0.5f, 0.5f, 0.5f));
}

TEST_F(ESBaseRenderTest, OpacityAndFlowNeverBecomeAnythingButNumbers) {
    EXPECT_EQ(_render->opacity(), 1);
    EXPECT_EQ(_render->flow(), 1);
    EXPECT_FALSE(_render->needScissor());
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
    struct Row {
        int images, side;
        unsigned cells;
    };
    const QImage tip = patternImage({8, 8});
    for (const Row& row : {Row{1, 8, 1}, Row{2, 256, 4}, Row{4, 256, 4}, Row{5, 512, 16}, Row{9, 512, 16},
                           Row{10, 1024, 16}, Row{20, 1024, 16}}) {
        _render->setTextureImages(QList<QImage>(row.images, tip), GL_TEXTURE4);
        EXPECT_EQ(_render->brushTexture()->qualityType(), row.side) << row.images;
        EXPECT_EQ(_render->brushTexture()->vertiesCount(), row.cells) << row.images;
        EXPECT_EQ(_render->numberOfTexture(), static_cast<unsigned>(row.images));
        EXPECT_EQ(_render->texturePos(), static_cast<GLenum>(GL_TEXTURE4));
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

TEST_F(ESBaseRenderTest, MirrorTextureIsCopiedWithinTheBufferOnly) {
    fill(QRect(0, 0, kWidth, kHeight), QColor(1, 2, 3), kHeight);
    GLuint texture = 0;
    _render->updateTextureAtOrigin({0, 0}, {0, 0}, texture, GL_TEXTURE1);
    QImage expected(64, 32, QImage::Format_RGBA8888_Premultiplied);
    const auto expectArea = [&](const QRect& rows, const QColor& color) {
        for (int y = rows.top(); y <= rows.bottom(); ++y) {
            for (int x = rows.left(); x <= rows.right(); ++x) {
                expected.setPixel(x, y, color.rgba());
            }
        }
        EXPECT_TRUE(imagesMatch(readTexture(texture), expected));
    };
    expected.fill(0);
    expectArea(QRect(0, 0, kWidth, kHeight), QColor(1, 2, 3));
    struct Row {
        QPointF origin;
        QSizeF size;
        QRect copied;  // bottom-up rows
    };
    int shade = 100;
    for (const Row& row :
         {Row{{-5, -4}, {10, 10}, {0, 0, 5, 6}}, Row{{3.4, 2.5}, {4, 4}, {3, 3, 4, 4}},
          Row{{45, 25}, {100, 100}, {45, 25, 5, 5}}, Row{{60, 40}, {4, 4}, {}}, Row{{9, 9}, {-3, 4}, {}}}) {
        shade += 10;
        fill(QRect(0, 0, kWidth, kHeight), QColor(shade, 0, 0), kHeight);
        _render->updateTextureAtOrigin(row.origin, row.size, texture, GL_TEXTURE1);
        expectArea(row.copied, QColor(shade, 0, 0));
    }
    glDeleteTextures(1, &texture);
}

// Program cache

TEST_F(ESBaseRenderTest, EachPairOfSourcesIsBuiltOnce) {
    CountingRender render;
    ASSERT_TRUE(render.setVertexShaderString({}, {}));
    const ESProgram* const first = render.program();
    const QString vertex = ESBaseRender::baseRenderVertexShaderString();
    const QString other = fragment("0.0, 1.0, 0.0, 1.0");
    ASSERT_TRUE(render.useProgramWithVertexShaderString(vertex, other));
    EXPECT_NE(render.program(), first);
    EXPECT_EQ(render.fragmentShaderString(), other);
    ASSERT_TRUE(render.setVertexShaderString({}, {}));
    EXPECT_EQ(render.program(), first);
    ASSERT_TRUE(render.setVertexShaderString({}, {}));
    EXPECT_FALSE(render.addProgramWithVertexShaderString(vertex, other)) << "it is there already";
    EXPECT_TRUE(render.addProgramWithVertexShaderString(vertex, other + QLatin1Char(' ')));
    EXPECT_EQ(render.programObjects().size(), 3u);
    EXPECT_EQ(render.bound, 3);
    EXPECT_EQ(render.switches, 3) << "adding, and using what is current, switch nothing";
}

TEST_F(ESBaseRenderTest, APairThatDoesNotBuildChangesNothing) {
    const ESProgram* const before = _render->program();
    const QString text = _render->fragmentShaderString();
    expectDrainedErrors(2);
    LogCapture log;
    EXPECT_FALSE(_render->setVertexShaderString({}, QStringLiteral("nonsense")));
    EXPECT_EQ(ESBaseRender::initWithVertexShaderFromString(QStringLiteral("nonsense"), {}), nullptr);
    EXPECT_EQ(_render->program(), before);
    EXPECT_EQ(_render->fragmentShaderString(), text);
    EXPECT_EQ(_render->programObjects().size(), 1u);
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
    EXPECT_EQ(_render->programObjects().size(), 1u);
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
