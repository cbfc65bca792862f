// SPDX-License-Identifier: MIT
#include "ESRender/ESImageRender.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#include "ESRender/ImageShaderNames.h"
#include "ESRender/Utilities/ESGLErrors.h"
#include "ESRender/Utilities/ESGLTexture.h"
#include "ESRender/Utilities/ESShaderTools.h"
#include "ESRender/VertexAttribute.h"
#include "Maths/Geometry.h"
#include "Maths/Rounding.h"
#include "Surface/Placement.h"

using dabcanvas::Placement;

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

// Of the bound texture.
void readAs(Placement::Reading reading) {
    const bool exact = reading == Placement::Reading::texelOnPixel;
    const bool averaged = reading == Placement::Reading::averaged;
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER,
                    exact      ? GL_NEAREST
                    : averaged ? GL_LINEAR_MIPMAP_LINEAR
                               : GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, exact ? GL_NEAREST : GL_LINEAR);
}

// The text of a mode on a background without holes, whose colours come onto the background's own alpha.
QString onLockedAlpha(QString fragment) {
    fragment.replace(QLatin1String("texture(u_bgTexture, v_bgCoord)"), QLatin1String("opaqueBackground()"));
    fragment.replace(QLatin1String("void main()"), QLatin1String("void mixedMain()"));
    return ESShaderTools::withDefines(fragment, QStringLiteral("vec4 opaqueBackground();\n")) +
           QStringLiteral(
               "\nvec4 opaqueBackground() {\n"
               "    vec4 B = texture(u_bgTexture, v_bgCoord);\n"
               "    return B.a > 0.0 ? vec4(min(B.rgb / B.a, 1.0), 1.0) : vec4(0.0);\n"
               "}\n"
               "void main() {\n"
               "    mixedMain();\n"
               "    vec4 B = texture(u_bgTexture, v_bgCoord);\n"
               "    fragColor = fragColor.a > 0.0 ? vec4(fragColor.rgb * (B.a / fragColor.a), B.a) : B;\n"
               "}\n");
}

// The text of a mode, whose main() gets another name, with what rounds its result.
QString withNoise(const QString& fragment, int depth) {
    return ESShaderTools::withDefines(fragment, QStringLiteral("#define main blendedMain\n")) +
           QStringLiteral("\n#undef main\n") +
           ESBaseRender::stringWithFileName(QStringLiteral("Shaders.bundle/Noise.glsl")) +
           QStringLiteral(
               "uniform float u_noiseTurn;\n"
               "void main() {\n"
               "    blendedMain();\n"
               "    fragColor += dabNoise(u_noiseTurn) / %1.0;\n"
               "}\n")
               .arg((1 << depth) - 1);
}

// The rectangle of a dab: radius is the width, roundness times that the height.
Placement placementOf(const LPPoint& dab, float roundness, double radian) {
    return Placement({dab.position.x, dab.position.y}, dab.radius, double{dab.radius} * roundness, radian);
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

    void grow(const QRect& rect) {
        minX = std::min(minX, rect.left());
        minY = std::min(minY, rect.top());
        maxX = std::max(maxX, rect.right() + 1);
        maxY = std::max(maxY, rect.bottom() + 1);
    }

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
        return dabcanvas::truncatedInt(std::fabs(edge - nearest) < 1e-3 ? nearest : edge);
    }
};

std::unique_ptr<ESImageRender> ESImageRender::init() {
    return initWithBufferSize(QSizeF(0, 0));
}

std::unique_ptr<ESImageRender> ESImageRender::initWithBufferSize(
    const QSizeF& bufferSize, std::shared_ptr<dabcanvas::ProgramPool> pool) {
    static_assert(sizeof(Vertex) == 24);
    std::unique_ptr<ESImageRender> render(new ESImageRender);
    render->_pool = std::move(pool);
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
    _placedSize.locate(made.uniformIndex(kPlacedSize));
    _replace.locate(made.uniformIndex(kReplace));
    _leavesBareUniform.locate(made.uniformIndex(kLeavesBare));
    _noiseTurnUniform.locate(made.uniformIndex(kNoiseTurn));
}

void ESImageRender::setBlendType(std::uint32_t blendType) {
    _blendType = blendType;
    const QString vertex = vertexShaderStringForBlendType(blendType);
    const QString plain = fragmentShaderStringForBlendType(blendType);
    const QString fragment = _locksAlpha ? onLockedAlpha(plain) : plain;
    if (!_noiseTurn || !useProgramWithVertexShaderString(vertex, withNoise(fragment, _canvasDepth))) {
        useProgramWithVertexShaderString(vertex, fragment);
    }
}

void ESImageRender::setNoiseTurn(std::optional<float> turn) {
    const bool switches = turn.has_value() != _noiseTurn.has_value();
    _noiseTurn = turn;
    if (switches) {
        setBlendType(_blendType);
    }
}

void ESImageRender::setLocksAlpha(bool locks) {
    if (_locksAlpha != locks) {
        _locksAlpha = locks;
        setBlendType(_blendType);
    }
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
    updateTextureAtOrigin({origin.x(), bottomUpY}, size, _background.texture, pos, _canvasDepth);
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
            if (_useLargeTexture) {
                if (!isReadyToPlace(points[i])) {
                    break;
                }
                bounds.grow(placedRect(points[i]));
            } else {
                bounds.grow(points[i], _roundness, _radian);
            }
            if (needScissor()) {
                glEnable(GL_SCISSOR_TEST);
                glScissor(bounds.minX, static_cast<GLint>(bufferSize().height()) - bounds.maxY,
                          bounds.maxX - bounds.minX, bounds.maxY - bounds.minY);
            }
            if (_useLargeTexture) {
                drawPlaced(points[i]);
            } else {
                drawRect(points[i]);
            }
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
    useOwn();
    _opacityUniform.set(opacity());
    _radianUniform.set(_useLargeTexture ? 0 : _radian);  // drawPlaced() turns its corners more exactly
    _viewSize.set(bufferSize().width(), bufferSize().height());
    _bgTextureSize.set(_background.size.width(), _background.size.height());
    if (useBGTexture()) {
        _bgUnit.set(_background.unitNumber());
    }
    _noiseTurnUniform.set(_noiseTurn.value_or(0));
    _useSubLine.set(_repeatedlyRenderEnabled);
    _leavesBareUniform.set(_leavesBare);
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

// Four (s, t) pairs of the line texture in the order of the corners: from the top left clockwise, as a source
// upright on screen lies.
std::array<float, 8> ESImageRender::texCoords(const LPPoint& point) const {
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
    drawQuad({{{-half, -halfHeight, 0, 1, coords[0], coords[1]},
               {half, -halfHeight, 0, 1, coords[2], coords[3]},
               {half, halfHeight, 0, 1, coords[4], coords[5]},
               {-half, halfHeight, 0, 1, coords[6], coords[7]}}},
             point);
}

void ESImageRender::drawQuad(const std::array<Vertex, 4>& corners, const LPPoint& point) {
    glBufferData(GL_ARRAY_BUFFER, sizeof corners, corners.data(), GL_STATIC_DRAW);
    dabcanvas::setVertexAttribute(_positionIndex, 4, sizeof(Vertex), 0);
    // The reset program reads no source, so its linker drops the coordinate.
    dabcanvas::setVertexAttribute(_texCoordIndex, 2, sizeof(Vertex), offsetof(Vertex, s));
    _flip.set(_flipX ? -1 : 1, _flipY ? -1 : 1);
    _center.set(point.position.x, point.position.y);
    checkGLStep(kSourcePath, __LINE__);
    glDrawArrays(GL_TRIANGLE_FAN, 0, 4);
}

// ---- Placed images

void ESImageRender::setTextureImage(const QImage& image, GLenum atPosition) {
    if (image.isNull()) {
        return;
    }
    setNumberOfTexture(1);
    glActiveTexture(atPosition);
    _brushTexture.reset();  // gives its memory back first
    _brushTexture = TextureObject::initWithPicture(image);
    _hasLevels = false;
    _texturePos = atPosition;
}

// Mip levels may take more memory than the picture did, and are made only for what is reduced.
bool ESImageRender::isReadyToPlace(const LPPoint& point) {
    if (brushTexture() == nullptr) {
        return false;
    }
    const QSize size = brushTexture()->pixSize();
    if (_hasLevels || placementOf(point, _roundness, _radian).readingOf({size.width(), size.height()}) !=
                          Placement::Reading::averaged) {
        return true;
    }
    drainGLErrors(kSourcePath, __LINE__);  // what is found below must be the levels'
    brushTexture()->useAtPosition(texturePos());
    glGenerateMipmap(GL_TEXTURE_2D);
    _hasLevels = dabcanvas::takeGLErrors() == 0;
    if (!_hasLevels) {
        _brushTexture.reset();
    }
    return _hasLevels;
}

void ESImageRender::setTextureData(const unsigned char* data, const QSize& dataSize, GLenum atPosition) {
    if (data != nullptr && !dataSize.isEmpty()) {
        setTextureImage(QImage(data, dataSize.width(), dataSize.height(), qsizetype{dataSize.width()} * 4,
                               QImage::Format_RGBA8888_Premultiplied),
                        atPosition);
    }
}

QRect ESImageRender::placedRect(const LPPoint& point) const {
    const dabcanvas::Rect touched = placementOf(point, _roundness, _radian).touched();
    return {touched.x, touched.y, touched.width, touched.height};
}

bool ESImageRender::isCopy(const LPPoint& point, const QSize& imageSize) const {
    const Placement placement = placementOf(point, _roundness, _radian);
    return _background.texture != 0 && !placement.isTurned() &&
           placement.readingOf({imageSize.width(), imageSize.height()}) == Placement::Reading::texelOnPixel;
}

bool ESImageRender::copyToBG(const QImage& rows, const QRect& rect, bool onlyBG) {
    if (!useBGTexture()) {
        return false;
    }
    const int y = static_cast<int>(bufferSize().height()) - rect.y() - rect.height();
    drainGLErrors(kSourcePath, __LINE__);  // what is found below must be this copy's
    dabcanvas::copyRowsToTexture(rows, QPoint(rect.x(), y));
    if (dabcanvas::takeGLErrors() > 0) {
        return false;
    }
    if (onlyBG) {
        return true;
    }
    GLint target = 0;
    glGetIntegerv(GL_DRAW_FRAMEBUFFER_BINDING, &target);
    GLuint source = 0;
    glGenFramebuffers(1, &source);
    glBindFramebuffer(GL_READ_FRAMEBUFFER, source);
    glFramebufferTexture2D(GL_READ_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, _background.texture, 0);
    const GLint x1 = rect.x() + rect.width();
    const GLint y1 = y + rect.height();
    glBlitFramebuffer(rect.x(), y, x1, y1, rect.x(), y, x1, y1, GL_COLOR_BUFFER_BIT, GL_NEAREST);
    glBindFramebuffer(GL_READ_FRAMEBUFFER, static_cast<GLuint>(target));
    glDeleteFramebuffers(1, &source);
    drainGLErrors(kSourcePath, __LINE__);
    return true;
}

// Switches to the program of smooth edges, in place of the blend type's; false where that is a host's own or
// mixes otherwise.
bool ESImageRender::usePlaceProgram() {
    return (_blendType == ESBlendTypeNormal || _blendType == ESBlendTypeReplace) &&
           fragmentShaderString() == fragmentShaderStringForBlendType(_blendType) &&
           useProgramWithVertexShaderString(vertexShaderStringForBlendType(_blendType),
                                            ESShaderTools::withBool(placeFSHString()));
}

void ESImageRender::drawPlaced(const LPPoint& point) {
    const Placement placement = placementOf(point, _roundness, _radian);
    const bool smoothEdges = !placement.isOnPixelEdges() && usePlaceProgram();
    if (smoothEdges) {
        bindSources();
        _placedSize.set(placement.width(), placement.height());
        _replace.set(_blendType == ESBlendTypeReplace);
    }
    readAs(placement.readingOf({brushTexture()->pixSize().width(), brushTexture()->pixSize().height()}));

    // A pixel is covered in part up to half a pixel beyond the edge.
    const double rim = smoothEdges ? 1 : 0;
    const std::array<dabcanvas::Point, 4> places = placement.corners(rim, _flipX, _flipY);
    const float* const cell = brushTexture()->verties();
    const auto s = [&](double part) { return static_cast<float>(cell[0] + (cell[4] - cell[0]) * part); };
    const auto t = [&](double part) { return static_cast<float>(cell[1] + (cell[3] - cell[1]) * part); };
    const double across = rim / placement.width();
    const double up = rim / placement.height();
    const float coords[4][2] = {
        {s(-across), t(1 + up)}, {s(1 + across), t(1 + up)}, {s(1 + across), t(-up)}, {s(-across), t(-up)}};
    std::array<Vertex, 4> corners{};
    for (std::size_t i = 0; i < corners.size(); ++i) {
        // The vertex shader mirrors what it is given, which is turned already.
        corners[i] = {static_cast<float>(_flipX ? -places[i].x : places[i].x),
                      static_cast<float>(_flipY ? -places[i].y : places[i].y),
                      0,
                      1,
                      coords[i][0],
                      coords[i][1]};
    }
    drawQuad(corners, point);
    if (smoothEdges) {
        setBlendType(_blendType);
        bindSources();
    }
}
