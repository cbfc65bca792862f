// SPDX-License-Identifier: MIT
#include "ESContext/ESContext.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <tuple>

#include "ESContext/EGLSurfacelessView.h"
#include "support/GLTest.h"
#include "support/LogCapture.h"

namespace {

using ESContextTest = GLTest;

std::vector<GLint> scissorBox() {
    std::vector<GLint> box(4);
    glGetIntegerv(GL_SCISSOR_BOX, box.data());
    return box;
}

constexpr ESRenderType kAllTypes[] = {ESRenderTypeCanvas, ESRenderTypeLine, ESRenderTypeSubLine,
                                      ESRenderTypeSmudge};

}  // namespace

// Buffers

TEST_F(ESContextTest, EveryTargetHasItsSizeAndStartsTransparent) {
    const struct {
        QSizeF asked;
        QSize canvas, smudge;
    } rows[] = {{{1001, 801}, {1001, 801}, {500, 400}},
                {{64, 32}, {64, 32}, {32, 16}},
                {{33.9, 7.2}, {33, 7}, {16, 3}},
                {{1, 1}, {1, 1}, {1, 1}}};
    for (const auto& [asked, canvas, smudge] : rows) {
        ASSERT_TRUE(_context->createBufferWithSize(asked));
        EXPECT_EQ(readTexture(_context->lineTexture()).size(), canvas);
        EXPECT_EQ(readTexture(_context->subLineTexture()).size(), canvas);
        EXPECT_EQ(readTexture(_context->smudgeTexture()).size(), smudge);
        for (const ESRenderType type : kAllTypes) {
            const QImage transparent = solidImage(type == ESRenderTypeSmudge ? smudge : canvas);
            EXPECT_TRUE(imagesMatch(_context->imageForType(type), transparent)) << "target " << type;
            _context->beginRenderForType(type);
            GLint viewport[4] = {};
            glGetIntegerv(GL_VIEWPORT, viewport);
            EXPECT_EQ(QSize(viewport[2], viewport[3]), transparent.size());
            _context->finishRender();
        }
    }
}

TEST_F(ESContextTest, BadSizesSayWhyAndChangeNothing) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    GLint limit = 0;
    glGetIntegerv(GL_MAX_TEXTURE_SIZE, &limit);
    const QSizeF bad[] = {{0, 10},         {10, -1},          {0.5, 10}, {std::nan(""), 10},
                          {10, kInfinity}, {limit + 1.0, 10}, {10, 3e9}};
    ASSERT_TRUE(_context->createBufferWithSize({40, 30}));
    _context->beginRenderForType(ESRenderTypeCanvas);
    fill(QRect(0, 0, 40, 30), Qt::red, 30);
    const QImage before = _context->image();
    for (const QSizeF& size : bad) {
        LogCapture log;
        EXPECT_FALSE(_context->resizeWithSize(size));
        EXPECT_FALSE(_context->createBufferWithSize(size));
        EXPECT_EQ(log.lines().size(), 2);
    }
    EXPECT_TRUE(imagesMatch(_context->image(), before));
    EXPECT_EQ(_context->openGLView()->frame(), QRectF(0, 0, 40, 30));
}

TEST_F(ESContextTest, ResizingClearsAllButTheSmudgeLayerWhichKeepsItsSize) {
    LogCapture log;
    EXPECT_FALSE(_context->resizeWithSize({10, 10})) << "there is nothing to resize yet";
    ASSERT_TRUE(_context->createBufferWithSize({40, 30}));
    for (const QSize size : {QSize(40, 30), QSize(81, 53)}) {  // of the same, a driver keeps the pixels
        for (const ESRenderType type : kAllTypes) {
            _context->beginRenderForType(type);
            fill(QRect(0, 0, 40, 30), Qt::red, 30);
        }
        const QImage smudge = _context->imageForType(ESRenderTypeSmudge);
        ASSERT_TRUE(_context->resizeWithSize(size));
        for (const ESRenderType type : {ESRenderTypeCanvas, ESRenderTypeLine, ESRenderTypeSubLine}) {
            EXPECT_TRUE(imagesMatch(_context->imageForType(type), solidImage(size))) << "target " << type;
        }
        EXPECT_TRUE(imagesMatch(_context->imageForType(ESRenderTypeSmudge), smudge));
    }
}

TEST_F(ESContextTest, DestroyingTwiceOrMakingAgainLeavesNoObjectBehind) {
    std::vector<GLuint> textures, buffers;
    for (const QSizeF size : {QSizeF(16, 16), QSizeF(24, 8)}) {
        ASSERT_TRUE(_context->createBufferWithSize(size));
        textures.insert(textures.end(),
                        {_context->lineTexture(), _context->subLineTexture(), _context->smudgeTexture()});
        for (const ESRenderType type : kAllTypes) {
            buffers.push_back(_context->frameBuffer(type));
        }
    }
    _context->destoryBuffer();
    _context->destoryBuffer();
    EXPECT_TRUE(std::none_of(textures.begin(), textures.end(), glIsTexture));
    EXPECT_TRUE(std::none_of(buffers.begin(), buffers.end(), glIsFramebuffer));
    EXPECT_EQ(_context->lineTexture(), 0u);
    EXPECT_TRUE(_context->image().isNull());
    EXPECT_TRUE(_context->imageForType(ESRenderTypeLine).isNull());
}

TEST_F(ESContextTest, BufferAccessIsGivenBackOnEveryPath) {
    const auto semaphore = std::make_shared<QSemaphore>(1);
    _context->setBufferAccess(semaphore);
    ASSERT_TRUE(_context->createBufferWithSize({16, 16}));
    ASSERT_TRUE(_context->resizeWithSize({20, 20}));
    std::vector<unsigned char> bytes(20 * 20 * 4);
    _context->readData(bytes.data(), QRectF(0, 0, 20, 20));
    _context->readData(bytes.data(), QRectF(-1, 0, 20, 20));
    EXPECT_FALSE(_context->image().isNull());
    _context->destoryBuffer();
    EXPECT_EQ(semaphore->available(), 1);
}

// Clipping and blending

using Box = std::vector<GLint>;
TEST_F(ESContextTest, AScissorBoxHasAMarginOfOneAndStaysInTheTarget) {
    const struct {
        QRectF rect;
        Box canvas, layer;  // with a view of 200 x 100 on a buffer of 100 x 100
    } rows[] = {{{10, 10, 20, 20}, {19, 69, 42, 22}, {9, 69, 22, 22}},
                {{10.9, 10.9, 19.2, 19.2}, {20, 69, 41, 22}, {9, 69, 22, 22}},
                {{0, 0, 100, 100}, {0, 0, 200, 100}, {0, 0, 100, 100}},
                {{-50, 90, 300, 50}, {0, 0, 200, 11}, {0, 0, 100, 11}},
                {{100, 100, -100, -100}, {199, 99, 0, 0}, {99, 99, 0, 0}},
                {{1e12, 5, 10, 10}, {199, 84, 1, 12}, {99, 84, 1, 12}}};
    ASSERT_TRUE(_context->createBufferWithSize({100, 100}));
    _context->setViewSize({200, 100});
    for (const auto& row : rows) {
        for (const ESRenderType type : {ESRenderTypeCanvas, ESRenderTypeLine}) {
            _context->beginRenderForType(type);
            _context->scissorRect(row.rect);
            EXPECT_TRUE(ESContext::enableForProporty(GL_SCISSOR_TEST));
            EXPECT_EQ(scissorBox(), type == ESRenderTypeCanvas ? row.canvas : row.layer);
            _context->finishRender();
            EXPECT_FALSE(ESContext::enableForProporty(GL_SCISSOR_TEST));
        }
    }
    // Dabs clip to their union, (14, 24) to (53.5, 43), and none to nothing.
    _context->beginRenderForType(ESRenderTypeLine);
    const LPPoint dabs[] = {{{20, 30}, 10, {}}, {{50.5f, 40}, 4, {}}};
    _context->scissorForPoints(dabs, 2);
    EXPECT_EQ(scissorBox(), (Box{13, 56, 41, 21}));
    _context->scissorForPoints(dabs, 0);
    EXPECT_EQ(scissorBox()[2] * scissorBox()[3], 0);
}

TEST_F(ESContextTest, BlendModelsOfTheTargets) {
    constexpr int kRest = GL_ONE_MINUS_SRC_ALPHA;
    for (const auto& [type, source, rest] : {std::tuple(ESRenderTypeCanvas, GL_ZERO, kRest),
                                             {ESRenderTypeLine, GL_ONE, kRest},
                                             {ESRenderTypeSubLine, GL_ONE, GL_ZERO},
                                             {ESRenderTypeSmudge, GL_ONE, kRest}}) {
        _context->setBlendWithSCFactor(GL_DST_COLOR, GL_ONE, GL_ZERO, GL_ZERO);
        _context->setBlendModeWithColorEquation(GL_MAX, GL_MIN);
        _context->setBlendModelForType(type);
        std::vector<GLint> state;
        for (const GLenum name : {GL_BLEND_SRC_RGB, GL_BLEND_SRC_ALPHA, GL_BLEND_DST_RGB, GL_BLEND_DST_ALPHA,
                                  GL_BLEND_EQUATION_RGB, GL_BLEND_EQUATION_ALPHA}) {
            glGetIntegerv(name, &state.emplace_back());
        }
        EXPECT_EQ(state, (std::vector<GLint>{source, source, rest, rest, GL_FUNC_ADD, GL_FUNC_ADD})) << type;
    }
}

// A platform that takes the context away.
class Taken : public ESOpenGLView {
public:
    bool isTaken = false;
    bool makeCurrent() override { return !isTaken && _view->makeCurrent(); }
    bool isCurrent() const override { return !isTaken && _view->isCurrent(); }
    bool isLost() const override { return isTaken; }
    void doneCurrent() override { _view->doneCurrent(); }
    void restoreHost(const ESHostContext& host) override { _view->restoreHost(host); }

private:
    std::unique_ptr<ESOpenGLView> _view = EGLSurfacelessView::create();
};

TEST_F(ESContextTest, AContextThatIsTakenAwayIsLostForGood) {
    auto view = std::make_unique<Taken>();
    Taken& platform = *view;
    _current.reset();
    _context->setOpenGLView(std::move(view));
    ASSERT_TRUE(_context->createBufferWithSize({16, 16}));
    LogCapture log;
    platform.doneCurrent();
    platform.isTaken = true;
    EXPECT_FALSE(ESCurrentScope(*_context));
    EXPECT_TRUE(_context->isLost());
    platform.isTaken = false;
    EXPECT_FALSE(ESCurrentScope(*_context) || _context->createBufferWithSize({16, 16}));
    EXPECT_TRUE(_context->image().isNull());
    EXPECT_EQ(ESContext::init(nullptr), nullptr);
    EXPECT_EQ(log.lines().size(), 2) << qPrintable(log.lines().join('\n'));
    _context->setOpenGLView(EGLSurfacelessView::create());
    EXPECT_FALSE(_context->isLost());
    _current.emplace(*_context);
}
