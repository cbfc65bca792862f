// SPDX-License-Identifier: MIT
#include "ESRender/ESImageRender.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "ESRender/ImageShaderNames.h"
#include "ESRender/Utilities/ESGLErrors.h"
#include "ESRender/Utilities/ESGLTexture.h"
#include "ESRender/Utilities/ESShaderTools.h"
#include "ESRender/VertexAttribute.h"
#include "Maths/Geometry.h"

namespace {

constexpr char kSourcePath[] = "SRC_New/ESRender/ESImageRender";

// The mode programs in the order of their blend types, which count from 1; 3 has no program of its own.
using Loader = QString (*)();
constexpr Loader kBlendPrograms[] = {
    &ESImageRender::normalFSHString,     &ESImageRender::replaceFSHString,  nullptr,
    &ESImageRender::behindFSHString,     &ESImageRender::eraseFSHString,    &ESImageRender::tarnishFSHString,
    &ESImageRender::brightnessFSHString, &ESImageRender::multiplyFSHString, &ESImageRender::resetFSHString,
};
static_assert(std::size(kBlendPrograms) == ESBlendTypeReset);

// Layers and canvas meet texel on pixel. Filtering would at best read the same texel, at twice the cost, and
// at worst mix in a neighbour where the coordinates round.
void readTexelOnPixel() {
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
}

}  // namespace

struct ESImageRender::Vertex {
    float x, y, z, w;  // offset from the centre, in pixels
    float s, t;        // source coordinate
};

// The area drawn into so far, in whole pixels.
struct ESImageRender::Bounds {
    int minX, minY, maxX = 0, maxY = 0;

    explicit Bounds(const QSizeF& buffer)
        : minX(static_cast<int>(buffer.width())), minY(static_cast<int>(buffer.height())) {}

    void grow(const LPPoint& point, float roundness, float radian) {
        const double half = point.radius * 0.5f;
        QSizeF extent(half, half * roundness);
        if (radian != 0) {
            extent = CGSizeApplyRotation(extent, radian);
        }
        minX = std::min(minX, wholePixel(point.position.x - extent.width()));
        minY = std::min(minY, wholePixel(point.position.y - extent.height()));
        maxX = std::max(maxX, wholePixel(point.position.x + extent.width()));
        maxY = std::max(maxY, wholePixel(point.position.y + extent.height()));
    }

    // Truncated, but an edge that means a whole pixel may come out a rounding error short of it.
    static int wholePixel(double edge) {
        edge = std::clamp(edge, -1e6, 1e6);  // far off any buffer
        const double nearest = std::nearbyint(edge);
        return static_cast<int>(std::fabs(edge - nearest) < 1e-3 ? nearest : edge);
    }
};

std::unique_ptr<ESImageRender> ESImageRender::init() {
    return initWithBufferSize(QSizeF(0, 0));
}

std::unique_ptr<ESImageRender> ESImageRender::initWithBufferSize(const QSizeF& bufferSize) {
    static_assert(sizeof(Vertex) == 24);
    std::unique_ptr<ESImageRender> render(new ESImageRender);
    render->setBufferSize(bufferSize);
    return render->setVertexShaderString({}, {}) ? std::move(render) : nullptr;
}

ESImageRender::~ESImageRender() {
    if (_background.texture != 0) {
        glDeleteTextures(1, &_background.texture);
    }
}

bool ESImageRender::setVertexShaderString(const QString& vertexShaderString,
                                          const QString& fragmentShaderFromString) {
    const QString vertex = vertexShaderString.isNull() ? imageRenderVertexShaderString() : vertexShaderString;
    const QString fragment = fragmentShaderFromString.isNull() ? normalFSHString() : fragmentShaderFromString;
    return useProgramWithVertexShaderString(ESShaderTools::withBool(vertex),
                                            ESShaderTools::withBool(fragment));
}

void ESImageRender::removeProgramWithVertexShaderString(const QString& vertexShaderString,
                                                        const QString& fragmentShaderString) {
    if (vertexShaderString == this->vertexShaderString() &&
        fragmentShaderString == this->fragmentShaderString()) {
        setBlendType(_blendType);
    }
    ESBaseRender::removeProgramWithVertexShaderString(vertexShaderString, fragmentShaderString);
    if (!isExistWithVertexShaderString(this->vertexShaderString(),
                                       fragmentShaderStringForBlendType(_blendType))) {
        _blendType = ESBlendTypeNormal;  // what the class falls back to
    }
}

void ESImageRender::bindAttributeForProgram(ESProgram& program) {
    using namespace dabcanvas::image;
    for (const char* name : {kPosition, kCenter, kFlip, kRadian, kTexCoord}) {
        program.addAttribute(name);
    }
}

void ESImageRender::programDidChange() {
    using namespace dabcanvas::image;
    ESProgram& made = *program();
    _positionIndex = made.attributeIndex(kPosition);
    _texCoordIndex = made.attributeIndex(kTexCoord);
    _opacityUniform.locate(made.uniformIndex(kOpacity));
    _useSubLine.locate(made.uniformIndex(kUseSubLine));
    _lineUnit.locate(made.uniformIndex(kLineTexture));
    _subLineUnit.locate(made.uniformIndex(kSubLineTexture));
    _bgUnit.locate(made.uniformIndex(kBGTexture));
    _radianUniform.locate(made.uniformIndex(kRadian));
    _viewSize.locate(made.uniformIndex(kViewSize));
    _bgTextureSize.locate(made.uniformIndex(kBGTextureSize));
    _flip.locate(made.uniformIndex(kFlip));
    _center.locate(made.uniformIndex(kCenter));
}

void ESImageRender::setBlendType(std::uint32_t blendType) {
    _blendType = blendType;
    useProgramWithVertexShaderString(vertexShaderStringForBlendType(blendType),
                                     fragmentShaderStringForBlendType(blendType));
}

QString ESImageRender::vertexShaderStringForBlendType(std::uint32_t) {
    return ESShaderTools::withBool(imageRenderVertexShaderString());
}

QString ESImageRender::fragmentShaderStringForBlendType(std::uint32_t blendType) {
    const bool known = blendType >= 1 && blendType <= std::size(kBlendPrograms);
    const Loader loader = known ? kBlendPrograms[blendType - 1] : nullptr;
    return ESShaderTools::withBool(loader != nullptr ? loader() : normalFSHString());
}

std::uint32_t ESImageRender::blendTypeOfFragmentShaderString(const QString& fragmentShaderString) {
    for (std::uint32_t type = 1; type <= std::size(kBlendPrograms); ++type) {
        const Loader loader = kBlendPrograms[type - 1];
        const QString text = loader != nullptr ? ESShaderTools::withBool(loader()) : QStringLiteral("--");
        if (text == fragmentShaderString) {
            return type;
        }
    }
    return 0;
}

bool ESImageRender::Role::use() const {
    if (texture == 0) {
        return false;
    }
    glActiveTexture(unit);
    glBindTexture(GL_TEXTURE_2D, texture);
    return true;
}

void ESImageRender::setLayer(Role& role, GLuint texture, GLenum unit) {
    // The layers have the buffer's own size, not the power of two above it: a texel lies under each pixel.
    role = {texture, unit, bufferSize()};
    if (role.use()) {
        readTexelOnPixel();
    }
}

void ESImageRender::setLineTextureID(GLuint texture, GLenum texturePos) {
    setLayer(_line, texture, texturePos);
}

void ESImageRender::setSubLineTextureID(GLuint texture, GLenum texturePos) {
    setLayer(_subLine, texture, texturePos);
}

void ESImageRender::updateBGTextureAtPos(GLenum pos) {
    updateBGTextureAtOrigin({0, 0}, bufferSize(), pos);
}

void ESImageRender::updateBGTextureAtOrigin(const QPointF& origin, const QSizeF& size, GLenum pos) {
    const bool first = _background.texture == 0;
    const double bottomUpY = bufferSize().height() - origin.y() - size.height();
    updateTextureAtOrigin({origin.x(), bottomUpY}, size, _background.texture, pos);
    _background.unit = pos;
    if (first && _background.texture != 0) {
        _background.size = QSizeF(ExponentialWithInter(static_cast<int>(bufferSize().width())),
                                  ExponentialWithInter(static_cast<int>(bufferSize().height())));
        readTexelOnPixel();
    }
}

QRectF ESImageRender::drawPoints(const LPPoint* points, std::size_t count) {
    Bounds bounds(bufferSize());
    if (count > 0 && points != nullptr && program() != nullptr && bindSources()) {
        for (std::size_t i = 0; i < count; ++i) {
            bounds.grow(points[i], _roundness, _radian);
            if (needScissor()) {
                glEnable(GL_SCISSOR_TEST);
                glScissor(bounds.minX, static_cast<GLint>(bufferSize().height()) - bounds.maxY,
                          bounds.maxX - bounds.minX, bounds.maxY - bounds.minY);
            }
            drawRect(points[i]);
        }
        drainGLErrors(kSourcePath, __LINE__);
    }
    if (_useLargeTexture) {
        _brushTexture.reset();
    }
    return QRectF(bounds.minX, bounds.minY, bounds.maxX - bounds.minX, bounds.maxY - bounds.minY);
}

// Puts program, textures and the uniforms of the whole call in place; false when the source has no texture.
bool ESImageRender::bindSources() {
    program()->bind();
    _opacityUniform.set(opacity());
    _radianUniform.set(_radian);
    _viewSize.set(bufferSize().width(), bufferSize().height());
    _bgTextureSize.set(_background.size.width(), _background.size.height());
    if (useBGTexture()) {
        _bgUnit.set(_background.unitNumber());
    }
    _useSubLine.set(_repeatedlyRenderEnabled);
    _subLineUnit.set(_subLine.unitNumber());
    if (_useLargeTexture) {
        if (brushTexture() == nullptr || !brushTexture()->useAtPosition(texturePos())) {
            return false;
        }
        _lineUnit.set(texturePos() - GL_TEXTURE0);
    } else {
        if (_repeatedlyRenderEnabled) {
            useSubLineTexture();
        }
        if (!useLineTexture()) {
            return false;
        }
        _lineUnit.set(_line.unitNumber());
    }
    checkGLStep(kSourcePath, __LINE__);
    return true;
}

// Four (s, t) pairs in the order of the corners: from the top left clockwise, as a source upright on screen
// lies.
std::array<float, 8> ESImageRender::texCoords(const LPPoint& point) const {
    std::array<float, 8> coords{};
    if (_useLargeTexture) {
        std::copy_n(brushTexture()->verties() + 2, coords.size(), coords.begin());
        return coords;
    }
    const double half = point.radius * 0.5f;
    const double halfHeight = half * _roundness;
    const double height = bufferSize().height();
    const auto s0 = static_cast<float>((point.position.x - half) / _line.size.width());
    const auto s1 = static_cast<float>((point.position.x + half) / _line.size.width());
    const auto top = static_cast<float>((height - (point.position.y - halfHeight)) / _line.size.height());
    const auto bottom = static_cast<float>((height - (point.position.y + halfHeight)) / _line.size.height());
    return {s0, top, s1, top, s1, bottom, s0, bottom};
}

void ESImageRender::drawRect(const LPPoint& point) {
    const float half = point.radius * 0.5f;
    const float halfHeight = half * _roundness;
    const std::array<float, 8> coords = texCoords(point);
    const Vertex corners[] = {
        {-half, -halfHeight, 0, 1, coords[0], coords[1]},
        {half, -halfHeight, 0, 1, coords[2], coords[3]},
        {half, halfHeight, 0, 1, coords[4], coords[5]},
        {-half, halfHeight, 0, 1, coords[6], coords[7]},
    };
    glBufferData(GL_ARRAY_BUFFER, sizeof corners, corners, GL_STATIC_DRAW);
    dabcanvas::setVertexAttribute(_positionIndex, 4, sizeof(Vertex), 0);
    // The reset program reads no source, so its linker drops the coordinate.
    dabcanvas::setVertexAttribute(_texCoordIndex, 2, sizeof(Vertex), offsetof(Vertex, s));
    _flip.set(_flipX ? -1 : 1, _flipY ? -1 : 1);
    _center.set(point.position.x, point.position.y);
    checkGLStep(kSourcePath, __LINE__);
    glDrawArrays(GL_TRIANGLE_FAN, 0, 4);
}
