// SPDX-License-Identifier: MIT
#include "GLSurface/WetLayer.h"

#include <QString>

#include "ESRender/Utilities/ESGLErrors.h"
#include "GLSurface/WholeTarget.h"
#include "Surface/WetEdge.h"

namespace dabcanvas {
namespace {

constexpr char kSourcePath[] = "SRC_New/GLSurface/WetLayer";
constexpr GLenum kLayerUnit = GL_TEXTURE10, kMeansUnit = GL_TEXTURE11;
constexpr int kPiece = 512;  // so much is summed up at a time, with what lies around it

constexpr char kTent[] = R"(#version 150
precision highp float;
uniform sampler2D u_layer;
uniform ivec2 u_first; // the texel that the means begin with
uniform ivec2 u_tent;  // how far its top and how far all of it reaches
float weight(int away) {
    return float(min(2 * u_tent.x + 1, u_tent.y + 1 - abs(away)));
}
float sum() {
    return float((2 * u_tent.x + 1) * (2 * (u_tent.y - u_tent.x) + 1));
}
out vec4 fragColor;
)";

constexpr char kAlongRows[] = R"(
void main() {
    ivec2 last = textureSize(u_layer, 0) - 1;
    ivec2 place = u_first + ivec2(gl_FragCoord.xy);
    float mean = 0.0;
    for (int away = -u_tent.y; away <= u_tent.y; ++away) {
        mean += weight(away) * texelFetch(u_layer, clamp(place + ivec2(away, 0), ivec2(0), last), 0).a;
    }
    fragColor = vec4(mean / sum());
}
)";

constexpr char kAlongColumns[] = R"(
uniform sampler2D u_means;
uniform float u_wetEdge;
void main() {
    ivec2 place = ivec2(gl_FragCoord.xy);
    vec4 L = texelFetch(u_layer, place, 0);
    fragColor = vec4(0.0);
    if (L.a <= 0.0) {
        return;
    }
    float mean = 0.0;
    for (int away = -u_tent.y; away <= u_tent.y; ++away) {
        mean += weight(away) * texelFetch(u_means, place - u_first + ivec2(0, away), 0).r;
    }
    float root = sqrt(L.a);
    float inside = clamp(2.0 * mean / sum() / (root * sqrt(root)) - 1.0, 0.0, 1.0);
    fragColor = L * (1.0 - u_wetEdge * inside * inside * (3.0 - 2.0 * inside));
    fragColor.a = max(fragColor.a, 1.0 / 65535.0); // what is left tells that there was paint
}
)";

std::shared_ptr<ESProgram> programOf(ProgramPool& programs, const char* main) {
    return programs.program(QString::fromLatin1(kWholeTargetVertices),
                            QString::fromLatin1(kTent) + QLatin1String(main));
}

// Bound, with what both programs are told.
void use(ESProgram& program, int firstX, int firstY, const WetEdgeTent& tent) {
    program.bind();
    glUniform1i(program.uniformIndex("u_layer"), kLayerUnit - GL_TEXTURE0);
    glUniform2i(program.uniformIndex("u_first"), firstX, firstY);
    glUniform2i(program.uniformIndex("u_tent"), tent.near, tent.reach());
}

void fill(GLuint framebuffer, int x, int y, int width, int height) {
    glBindFramebuffer(GL_FRAMEBUFFER, framebuffer);
    glViewport(x, y, width, height);
    glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
}

}  // namespace

std::unique_ptr<WetLayer> WetLayer::make(const Size& buffer, ProgramPool& programs) {
    std::unique_ptr<WetLayer> made(new WetLayer(buffer));
    made->_alongRows = programOf(programs, kAlongRows);
    made->_alongColumns = programOf(programs, kAlongColumns);
    if (!made->_alongRows || !made->_alongColumns) {
        qCWarning(lcDabcanvasGL, "strokes have no wet edges: a shader program did not build");
        return nullptr;
    }
    drainGLErrors(kSourcePath, __LINE__);  // what is found below must be these targets'
    const bool isMade = makeTarget(made->_layer, buffer, GL_RGBA16) &&
                        makeTarget(made->_means, {kPiece, kPiece + 2 * kMostWetEdge}, GL_R16);
    if (takeGLErrors() > 0 || !isMade) {
        qCWarning(lcDabcanvasGL,
                  "strokes have no wet edges: there is no memory for a layer of %d x %d pixels", buffer.width,
                  buffer.height);
        return nullptr;
    }
    return made;
}

WetLayer::~WetLayer() {
    for (const Target* target : {&_layer, &_means}) {
        glDeleteFramebuffers(1, &target->framebuffer);
        glDeleteTextures(1, &target->texture);
    }
}

bool WetLayer::makeTarget(Target& target, const Size& size, GLint format) {
    glActiveTexture(kLayerUnit);
    glGenTextures(1, &target.texture);
    glBindTexture(GL_TEXTURE_2D, target.texture);
    for (const GLenum filter : {GL_TEXTURE_MIN_FILTER, GL_TEXTURE_MAG_FILTER}) {
        glTexParameteri(GL_TEXTURE_2D, filter, GL_NEAREST);
    }
    glTexImage2D(GL_TEXTURE_2D, 0, format, size.width, size.height, 0, format == GL_R16 ? GL_RED : GL_RGBA,
                 GL_UNSIGNED_SHORT, nullptr);
    glGenFramebuffers(1, &target.framebuffer);
    glBindFramebuffer(GL_FRAMEBUFFER, target.framebuffer);
    glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, target.texture, 0);
    return glCheckFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE;
}

void WetLayer::dry(GLuint layer, const Rect& rect, const CompositeStyle& style) {
    glActiveTexture(kLayerUnit);
    glBindTexture(GL_TEXTURE_2D, layer);
    glActiveTexture(kMeansUnit);
    glBindTexture(GL_TEXTURE_2D, _means.texture);
    for (int y = rect.y; y < rect.bottom(); y += kPiece) {
        for (int x = rect.x; x < rect.right(); x += kPiece) {
            dryPiece(rect.intersected({x, y, kPiece, kPiece}), style);
        }
    }
    checkGLStep(kSourcePath, __LINE__);
}

void WetLayer::dryPiece(const Rect& piece, const CompositeStyle& style) {
    const WetEdgeTent tent(style.wetEdgeWidth);
    const int reach = tent.reach(), y = _buffer.height - piece.bottom();
    use(*_alongRows, piece.x, y - reach, tent);
    fill(_means.framebuffer, 0, 0, piece.width, piece.height + 2 * reach);
    use(*_alongColumns, piece.x, y - reach, tent);
    glUniform1i(_alongColumns->uniformIndex("u_means"), kMeansUnit - GL_TEXTURE0);
    glUniform1f(_alongColumns->uniformIndex("u_wetEdge"), style.wetEdge);
    fill(_layer.framebuffer, piece.x, y, piece.width, piece.height);
}

}  // namespace dabcanvas
