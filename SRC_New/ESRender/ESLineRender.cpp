// SPDX-License-Identifier: MIT
#include "ESRender/ESLineRender.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "Dabs/DabBounds.h"
#include "ESRender/LineShaderNames.h"
#include "ESRender/Utilities/ESGLErrors.h"
#include "ESRender/Utilities/ESShaderTools.h"
#include "ESRender/VertexAttribute.h"

namespace {

constexpr char kSourcePath[] = "SRC_New/ESRender/ESLineRender";
constexpr GLenum kMaskUnit = GL_TEXTURE7;

// One corner of a dab: place in the unit square, and the tip's texture coordinate there.
struct Vertex {
    float x, y, z, w;
    float s, t;
};
static_assert(sizeof(Vertex) == 24);
constexpr float kSquare[4][2] = {{-1, -1}, {1, -1}, {1, 1}, {-1, 1}};
constexpr GLsizei kCorners = 4;

QRectF partOf(const dabcanvas::DabBounds& bounds) {
    const dabcanvas::DabBounds::Part part = bounds.onBuffer();
    return {part.x, part.y, part.width, part.height};
}

}  // namespace

std::unique_ptr<ESLineRender> ESLineRender::init(std::shared_ptr<dabcanvas::ProgramPool> pool) {
    return make({}, {}, std::move(pool));
}

std::unique_ptr<ESLineRender> ESLineRender::initWithVertexShaderFromString(
    const QString& vertexShader, const QString& fragmentShaderFromString) {
    return make(vertexShader, fragmentShaderFromString, {});
}

std::unique_ptr<ESLineRender> ESLineRender::make(const QString& vertexShader, const QString& fragmentShader,
                                                 std::shared_ptr<dabcanvas::ProgramPool> pool) {
    std::unique_ptr<ESLineRender> render(new ESLineRender);
    render->_pool = std::move(pool);
    if (!render->setVertexShaderString(vertexShader, fragmentShader)) {
        return nullptr;
    }
    render->_dabs.updateFlags();
    return render;
}

QString ESLineRender::lineRenderNormalVertexShaderString() {
    return stringWithFileName(QStringLiteral("Shaders.bundle/Line_Mac.vsh"));
}

QString ESLineRender::lineRenderNormalFrangmentShaderString() {
    return stringWithFileName(QStringLiteral("Shaders.bundle/Line_Mac.fsh"));
}

bool ESLineRender::setVertexShaderString(const QString& vertexShaderString,
                                         const QString& fragmentShaderFromString) {
    const QString vertex =
        vertexShaderString.isNull() ? lineRenderNormalVertexShaderString() : vertexShaderString;
    const QString fragment = fragmentShaderFromString.isNull() ? lineRenderNormalFrangmentShaderString()
                                                               : fragmentShaderFromString;
    if (!useProgramWithVertexShaderString(ESShaderTools::withBool(vertex),
                                          ESShaderTools::withBool(fragment))) {
        return false;
    }
    _wholeFragmentShader = this->fragmentShaderString();
    _usesMask = _usesMulticolour = true;
    return true;
}

// Makes the leanest program that the brush can do with current. One that does not build leaves the present one, which
// draws the same.
void ESLineRender::chooseProgram(bool mask, bool multicolour) {
    if (mask == _usesMask && multicolour == _usesMulticolour) {
        return;
    }
    _usesMask = mask;
    _usesMulticolour = multicolour;
    const QString defines = QLatin1String(mask ? "" : "#define NO_MASK\n") +
                            QLatin1String(multicolour ? "" : "#define NO_MULTICOLOUR\n");
    if (!useProgramWithVertexShaderString(vertexShaderString(),
                                          ESShaderTools::withDefines(_wholeFragmentShader, defines))) {
        useProgramWithVertexShaderString(vertexShaderString(), _wholeFragmentShader);
    }
}

void ESLineRender::bindAttributeForProgram(ESProgram& program) {
    using namespace dabcanvas::line;
    for (const char* name : {kPosition, kCenter, kPointSize, kColor, kFlip, kRadian, kTexCoord}) {
        program.addAttribute(name);
    }
}

void ESLineRender::programDidChange() {
    using namespace dabcanvas::line;
    ESProgram& made = *program();
    _positionIndex = made.attributeIndex(kPosition);
    _texCoordIndex = made.attributeIndex(kTexCoord);
    _tipCells = made.uniformIndex(kTipCells);
    _useMask.locate(made.uniformIndex(kUseMask));
    _maskUnit.locate(made.uniformIndex(kMaskTexture));
    _maskSize.locate(made.uniformIndex(kMaskSize));
    _maskBaseCoord.locate(made.uniformIndex(kMaskBaseCoord));
    _color.locate(made.uniformIndex(kColor));
    _hueTingle.locate(made.uniformIndex(kHueTingle));
    _saturationTingle.locate(made.uniformIndex(kSaturationTingle));
    _brightnessTingle.locate(made.uniformIndex(kBrightnessTingle));
    _colorful.locate(made.uniformIndex(kColorful));
    _flowUniform.locate(made.uniformIndex(kFlow));
    _brushUnit.locate(made.uniformIndex(kBrushTexture));
    _radian.locate(made.uniformIndex(kRadian));
    _viewSize.locate(made.uniformIndex(kViewSize));
    _roundness.locate(made.uniformIndex(kRoundness));
    _rand.locate(made.uniformIndex(kRand));
    _pointSize.locate(made.uniformIndex(kPointSize));
    _flip.locate(made.uniformIndex(kFlip));
    _center.locate(made.uniformIndex(kCenter));
    _tipSize.locate(made.uniformIndex(kTipSize));
    _tipCellsUploaded = false;
}

void ESLineRender::setTextureImage(const QImage& image, GLenum atPosition) {
    ESBaseRender::setTextureImage(image, atPosition);
    takeTips();
}

void ESLineRender::setTextureImages(const QList<QImage>& images, GLenum atPosition) {
    ESBaseRender::setTextureImages(images, atPosition);
    takeTips();
}

void ESLineRender::setTextureData(const unsigned char* data, const QSize& dataSize, GLenum atPosition) {
    ESBaseRender::setTextureData(data, dataSize, atPosition);
    takeTips();
}

void ESLineRender::setMaskImage(const QImage& image) {
    _maskImage = image;
    if (image.isNull()) {
        _maskTexture.reset();
        return;
    }
    glActiveTexture(kMaskUnit);
    _maskTexture = TextureObject::initWithImage(image);
    _maskTexturePositon = kMaskUnit;
}

void ESLineRender::setBackRenderColor(const ESColor& color) {
    set(&DabSettings::backColor, RgbTypeMake(color.red(), color.green(), color.blue()));
}

// What the base class keeps of the tips and dabs are made from.
void ESLineRender::takeTips() {
    DabSettings& settings = _dabs.settings;
    settings.numberOfTips = numberOfTexture();
    settings.tipCells = brushTexture() != nullptr ? brushTexture()->vertiesCount() : 1;
    _dabs.updateFlags();
    _tipCellsUploaded = false;
}

QRectF ESLineRender::drawPoints(const LPPoint* points, std::size_t count) {
    dabcanvas::DabBounds bounds{bufferSize().width(), bufferSize().height()};
    if (count == 0 || points == nullptr || program() == nullptr) {
        return partOf(bounds);
    }
    takeBrush();
    beginDrawing();
    _dabs.make(points, count, [&](const Dab& dab) {
        bounds.grow(dab);
        if (needScissor()) {
            clipTo(bounds);
        }
        drawDab(dab);
    });
    // One drain a run: asking after each dab would stall drivers that work ahead.
    drainGLErrors(kSourcePath, __LINE__);
    return partOf(bounds);
}

void ESLineRender::drawDabs(std::span<const Dab> dabs) {
    if (dabs.empty() || program() == nullptr) {
        return;
    }
    beginDrawing();
    for (const Dab& dab : dabs) {
        drawDab(dab);
    }
    drainGLErrors(kSourcePath, __LINE__);
}

// What the base class keeps of the brush and dabs are made from.
void ESLineRender::takeBrush() {
    DabSettings& settings = _dabs.settings;
    settings.color = RgbTypeMake(colorR(), colorG(), colorB());
    settings.flow = flow();
    settings.lineProcessType = lineProcessType();
}

// Everything that stays the same for a run of dabs.
void ESLineRender::beginDrawing() {
    const bool mask = _needMaskTexture && _maskTexture != nullptr && _maskTexture->isEnabled();
    const bool multicolour = _dabs.settings.colorFul;
    chooseProgram(mask, multicolour);
    useOwn();
    if (!_tipCellsUploaded) {
        uploadTipCells();
    }
    setMaskUniforms(mask);
    _colorful.set(multicolour);
    if (multicolour) {
        const DabSettings& settings = _dabs.settings;
        const bool jitters = _dabs.flags().hsvTingle;
        _hueTingle.set(jitters ? settings.hueTingle : 0);
        _saturationTingle.set(jitters ? settings.saturationTingle : 0);
        _brightnessTingle.set(jitters ? settings.brightnessTingle : 0);
    }
    _viewSize.set(bufferSize().width(), bufferSize().height());
    if (brushTexture() != nullptr && brushTexture()->useAtPosition(texturePos())) {
        _brushUnit.set(texturePos() - GL_TEXTURE0);
    }
    checkGLStep(kSourcePath, __LINE__);
}

void ESLineRender::setMaskUniforms(bool useMask) {
    _useMask.set(useMask);
    // The sampler gets its own unit even when unused: two samplers on one unit of different kinds may not
    // draw.
    _maskUnit.set(_maskTexturePositon - GL_TEXTURE0);
    if (!useMask) {
        return;
    }
    _maskTexture->useAtPosition(_maskTexturePositon);
    // A tile is a whole pixel at least, or its pattern would divide by nothing.
    _maskSize.set(std::max(1.0f, std::floor(_maskScale * static_cast<float>(_maskImage.width()))),
                  std::max(1.0f, std::floor(_maskScale * static_cast<float>(_maskImage.height()))));
    const float* cell = _maskTexture->verties();
    const auto width = static_cast<float>(_maskTexture->pixSize().width());
    const auto height = static_cast<float>(_maskTexture->pixSize().height());
    _maskBaseCoord.set(cell[0] * width, cell[1] * height, (cell[4] - cell[0]) * width,
                       (cell[3] - cell[1]) * height);
}

// The corners of a dab for every tip of the atlas, tip after tip: a dab picks its tip by where it starts to
// draw, and no vertex data is sent per dab.
void ESLineRender::uploadTipCells() {
    std::array<Vertex, TextureObject::kMaxImages * kCorners> vertices{};
    std::array<float, TextureObject::kMaxImages * 4> cells{};
    static constexpr float kWhole[10] = {0, 0, 0, 1, 1, 1, 1, 0, 0, 0};
    const TextureObject* texture = brushTexture();
    const unsigned tips = _dabs.settings.tipCells;
    for (unsigned tip = 0; tip < tips; ++tip) {
        const float* cell = texture != nullptr ? texture->vertiesOfTextureIndex(tip) : kWhole;
        for (unsigned corner = 0; corner < kCorners; ++corner) {
            const float* pair = cell + 2 * (corner + 1);
            vertices[tip * kCorners + corner] = {
                kSquare[corner][0], kSquare[corner][1], 0, 1, pair[0], pair[1]};
        }
        std::copy_n(cell, 2, &cells[tip * 4]);
        std::copy_n(cell + 4, 2, &cells[tip * 4 + 2]);
    }
    glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(tips * kCorners * sizeof(Vertex)), vertices.data(),
                 GL_STATIC_DRAW);
    dabcanvas::setVertexAttribute(_positionIndex, 4, sizeof(Vertex), 0);
    dabcanvas::setVertexAttribute(_texCoordIndex, 2, sizeof(Vertex), offsetof(Vertex, s));
    glUniform4fv(_tipCells, static_cast<GLsizei>(tips), cells.data());
    const QSize size = texture != nullptr ? texture->pixSize() : QSize(1, 1);
    _tipSize.set(size.width(), size.height());
    _tipCellsUploaded = true;
    checkGLStep(kSourcePath, __LINE__);
}

void ESLineRender::setDabUniforms(const Dab& dab) {
    _color.set(dab.color.r, dab.color.g, dab.color.b, 1);
    _flowUniform.set(dab.flow);
    _radian.set(dab.radian);
    _roundness.set(dab.roundness);
    _pointSize.set(dab.halfSize);
    _flip.set(dab.flipX, dab.flipY);
    _center.set(dab.x, dab.y);
}

void ESLineRender::drawDab(const Dab& dab) {
    setDabUniforms(dab);
    if (_usesMulticolour) {
        _rand.set(dab.random);
    }
    checkGLStep(kSourcePath, __LINE__);
    glDrawArrays(GL_TRIANGLE_FAN, static_cast<GLint>(dab.tip) * kCorners, kCorners);
    ++_dabsDrawn;
}

void ESLineRender::clipTo(const dabcanvas::DabBounds& bounds) const {
    // Dabs may lie far off the buffer; a box that is as far off clips the same.
    const auto whole = [](double value) {
        return static_cast<GLint>(std::nearbyint(std::clamp(value, -1e6, 1e6)));
    };
    glEnable(GL_SCISSOR_TEST);
    glScissor(whole(bounds.minX), whole(bufferSize().height() - bounds.maxY),
              std::max(whole(bounds.maxX - bounds.minX), 0), std::max(whole(bounds.maxY - bounds.minY), 0));
}
