// SPDX-License-Identifier: MIT
#include "ESRender/Utilities/ESProgram.h"

#include <QDir>
#include <QTemporaryDir>

#include "ESRender/Utilities/ESGLErrors.h"
#include "ESRender/Utilities/ESGLTexture.h"
#include "ESRender/Utilities/ESResource.h"
#include "ESRender/Utilities/ShaderFiles.h"
#include "support/Files.h"
#include "support/GLTest.h"
#include "support/LogCapture.h"

namespace {

using ESProgramTest = GLTest;

const QString kVertex = QStringLiteral(
    "#version 150\nin vec2 a_position;\nuniform vec2 u_shift;\n"
    "void main() { gl_Position = vec4(a_position + u_shift, 0.0, 1.0); }\n");
const QString kFragment =
    QStringLiteral("#version 150\nout vec4 fragColor;\nvoid main() { fragColor = vec4(1.0); }\n");

const QString kNonsense = QStringLiteral("#version 150\nnonsense");
const QString kLog = QStringLiteral("Shader compile log:\n");

}  // namespace

TEST_F(ESProgramTest, LinkingMakesItUsableAndLetsGoOfItsShaders) {
    const auto program = ESProgram::initWithVertexShaderString(kVertex, kFragment);
    const GLuint shader = program->vertShaderAddr();
    EXPECT_FALSE(program->initialized());
    EXPECT_TRUE(glIsShader(shader));
    ASSERT_TRUE(program->link());
    EXPECT_TRUE(program->initialized());
    EXPECT_EQ(program->vertShaderAddr(), 0u);
    EXPECT_EQ(program->fragShaderAddr(), 0u);
    EXPECT_FALSE(glIsShader(shader));
    EXPECT_TRUE(program->link()) << "again is no harm";
    EXPECT_GE(program->attributeIndex("a_position"), 0);
    EXPECT_EQ(program->attributeIndex("u_shift"), -1);
    EXPECT_GE(program->uniformIndex(QStringLiteral("u_shift")), 0);
    EXPECT_EQ(glGetFragDataLocation(program->programAddr(), "fragColor"), 0);
}

TEST_F(ESProgramTest, AShaderFileThatDoesNotCompileIsNamedAndTheEmbeddedOneUsed) {
    const QString name = QStringLiteral("Shaders.bundle/BaseLine_Mac.fsh");
    const QString embedded = dabcanvas::resourcePathIn(QString(), name);
    const std::pair<QString, bool> kTexts[] = {
        {kFragment, true}, {kNonsense, false}, {QString(), false}, {QStringLiteral("#version 150\n"), false}};
    for (const auto& [text, usable] : kTexts) {
        const QTemporaryDir folder;
        ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("Shaders.bundle")));
        const QString file = writtenTo(folder.filePath(name), text.toUtf8());
        LogCapture log;
        EXPECT_EQ(dabcanvas::shaderPathIn(folder.path(), name), usable ? file : embedded);
        EXPECT_EQ(dabcanvas::shaderPathIn(folder.path(), name), usable ? file : embedded);
        EXPECT_EQ(log.lines().size(), usable ? 0 : 1);
        EXPECT_EQ(log.has(file), !usable);
    }
}

TEST_F(ESProgramTest, DestroyingLeavesNoObjectBehind) {
    auto program = ESProgram::initWithVertexShaderString(kVertex, kFragment);
    ASSERT_TRUE(program->link());
    program->bind();
    const GLuint name = program->programAddr();
    const GLuint array = program->vertexArrayObject();
    const GLuint buffer = program->vertexBuffer();
    EXPECT_TRUE(glIsProgram(name) && glIsVertexArray(array) && glIsBuffer(buffer));
    glUseProgram(0);
    program.reset();
    EXPECT_FALSE(glIsProgram(name) || glIsVertexArray(array) || glIsBuffer(buffer));
}

TEST_F(ESProgramTest, BadSourcesSayWhatIsWrongAndDoNotLink) {
    const QString narrow = QStringLiteral(
        "#version 150\nin vec2 a;\nout vec2 v;\nvoid main() { v = a; gl_Position = vec4(a, a); }\n");
    const QString wide =
        QStringLiteral("#version 150\nin vec4 v;\nout vec4 fragColor;\nvoid main() { fragColor = v; }\n");
    const QString noVertex = QStringLiteral("Failed to compile vertex shader:\n");
    const QString noFragment = QStringLiteral("Failed to compile fragment shader:\n");
    const struct {
        QString vertex, fragment;
        QStringList messages;
    } rows[] = {{kNonsense, kFragment, {kLog, noVertex}},
                {kVertex, kNonsense, {kLog, noFragment}},
                {kVertex, QString(), {QStringLiteral("Failed to load vertex shader"), noFragment}},
                {narrow, wide, {}}};
    expectDrainedErrors(3);  // the log query's, by link()
    for (const auto& row : rows) {
        LogCapture log;
        const auto program = ESProgram::initWithVertexShaderString(row.vertex, row.fragment);
        EXPECT_FALSE(program->link());
        EXPECT_FALSE(program->initialized());
        for (const QString& message : row.messages) {
            EXPECT_TRUE(log.has(message)) << qPrintable(message);
        }
    }
}

TEST_F(ESProgramTest, ResourceFilesGiveTheSameProgramAndMissingOnesNone) {
    const QString base = QStringLiteral("Shaders.bundle/BaseLine_Mac");
    EXPECT_TRUE(ESProgram::initWithVertexShaderFilename(base, base)->link());
    EXPECT_TRUE(ESProgram::initWithVertexShaderStringFragmentShaderFilename(kVertex, base)->link());
    expectDrainedErrors(1);
    LogCapture log;
    EXPECT_FALSE(
        ESProgram::initWithVertexShaderFilename(QStringLiteral("Shaders.bundle/None"), base)->link());
}

TEST_F(ESProgramTest, DrainsNameEveryErrorAndCountThem) {
    expectDrainedErrors(1);
    LogCapture log;
    glEnable(0xFFFF);
    EXPECT_EQ(drainGLErrors("SRC_New/ESRender/ESLineRender", 7), 1);
    EXPECT_EQ(log.lines(),
              QStringList(QStringLiteral(
                  "GLError GL_INVALID_ENUM set in File:SRC_New/ESRender/ESLineRender Line:7\n")));
    EXPECT_EQ(drainGLErrors("SRC_New/ESRender/ESLineRender", 8), 0);
}

TEST(ExponentialTest, SidesRoundUpToAPowerOfTwoLookingAtTwentyBits) {
    const int rows[][2] = {{0, 1},
                           {1, 1},
                           {3, 4},
                           {256, 256},
                           {257, 512},
                           {1000, 1024},
                           {0xFFFFF, 1 << 20},
                           {1 << 20, 1},
                           {(1 << 20) + 5, 8}};
    for (const auto& [side, power] : rows) {
        EXPECT_EQ(ExponentialWithInter(side), power) << side;
    }
}

TEST_F(ESProgramTest, ClearedTexturesKeepBindingsAndIgnoreScissorAndMask) {
    ASSERT_TRUE(_context->createBufferWithSize({8, 8}));
    _context->beginRenderForType(ESRenderTypeLine);
    _context->scissorRect(QRectF(0, 0, 2, 2));
    glColorMask(GL_TRUE, GL_FALSE, GL_TRUE, GL_FALSE);
    GLuint texture = dabcanvas::makeClearedTexture(QSize(8, 4), GL_LINEAR);
    GLint bound = 0;
    glGetIntegerv(GL_DRAW_FRAMEBUFFER_BINDING, &bound);
    EXPECT_EQ(static_cast<GLuint>(bound), _context->frameBuffer(ESRenderTypeLine));
    EXPECT_TRUE(glIsEnabled(GL_SCISSOR_TEST));
    GLboolean mask[4] = {};
    glGetBooleanv(GL_COLOR_WRITEMASK, mask);
    EXPECT_TRUE(mask[0] && !mask[1] && mask[2] && !mask[3]);
    glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    EXPECT_TRUE(imagesMatch(readTexture(texture), solidImage({8, 4})));
    glDeleteTextures(1, &texture);
    LogCapture log;
    EXPECT_EQ(dabcanvas::makeClearedTexture(QSize(dabcanvas::maxTextureSize() + 1, 4), GL_LINEAR), 0u);
    EXPECT_EQ(log.lines().size(), 1);
}
