// SPDX-License-Identifier: MIT
#include "ESRender/ESLineRender.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "Brushes/PictureOf.h"
#include "Dabs/DabBounds.h"
#include "ESRender/DabBatch.h"
#include "ESRender/LineShaderNames.h"
#include "ESRender/Texture/GLPictures.h"
#include "ESRender/Texture/PaperTexture.h"
#include "ESRender/Utilities/ESGLErrors.h"
#include "ESRender/Utilities/ESShaderTools.h"
#include "ESRender/VertexAttribute.h"

namespace {

constexpr char kSourcePath[] = "SRC_New/ESRender/ESLineRender";
constexpr GLenum kMaskUnit = GL_TEXTURE7, kReducedMaskUnit = GL_TEXTURE9;

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

// One opaque texel, for a renderer that was given no tips.
const dabcanvas::TipSet& solidTip() {
    static constexpr std::uint8_t kOpaque[4] = {0, 0, 0, 255};
    static const dabcanvas::TipSet tips{{dabcanvas::PixelView::topRowFirst(kOpaque, {1, 1}), 1, {}}};
    return tips;
}

}  // namespace

ESLineRender::ESLineRender() : _batch(std::make_unique<dabcanvas::DabBatch>()) {}

ESLineRender::~ESLineRender() = default;

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
    render->_useFetch = hasFramebufferFetch();
    return render;
}

bool ESLineRender::hasFramebufferFetch() {
    return epoxy_has_gl_extension("GL_EXT_shader_framebuffer_fetch");
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
    _wholeVertexShader = this->vertexShaderString();
    _wholeFragmentShader = this->fragmentShaderString();
    _isOwnText = vertex == lineRenderNormalVertexShaderString() &&
                 fragment == lineRenderNormalFrangmentShaderString() &&
                 !recordText(vertex, fragment).isNull();
    _variant = {};
    return true;
}

// Null for texts that know no records, as a file of an application's may, which takes the library's place.
QString ESLineRender::recordText(const QString& vertex, const QString& fragment) {
    const QLatin1String kRecords("ifdef RECORDS");
    return vertex.contains(kRecords) && fragment.contains(kRecords)
               ? stringWithFileName(QStringLiteral("Shaders.bundle/Noise.glsl")) +
                     stringWithFileName(QStringLiteral("Shaders.bundle/Dab.glsl"))
               : QString();
}

// Makes the leanest program that the brush can do with current. One that does not build leaves the whole text's, which
// draws one dab at a time.
void ESLineRender::chooseProgram(const Variant& wanted) {
    if (wanted == _variant) {
        return;
    }
    _variant = wanted;
    const QLatin1String records(wanted.records ? "#define RECORDS\n" : "");
    QString defines;
    for (const auto& [isWanted, text] :
         {std::pair(wanted.fetch, kFetchDefines), std::pair(wanted.fine, "#define NOISE\n"),
          std::pair(wanted.oneLevel, "#define ONE_LEVEL\n"), std::pair(!wanted.mask, "#define NO_MASK\n"),
          std::pair(!wanted.multicolour, "#define NO_MULTICOLOUR\n")}) {
        defines += QLatin1String(isWanted ? text : "");
    }
    defines += records;
    if (wanted.records) {
        defines += recordText(_wholeVertexShader, _wholeFragmentShader);
    }
    if (useProgramWithVertexShaderString(ESShaderTools::withDefines(_wholeVertexShader, records),
                                         ESShaderTools::withDefines(_wholeFragmentShader, defines))) {
        return;
    }
    if (wanted.fetch) {
        _useFetch = false;
        Variant blended = wanted;
        blended.fetch = false;
        chooseProgram(blended);
    } else {
        useProgramWithVertexShaderString(_wholeVertexShader, _wholeFragmentShader);
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
    _tipsUnit.locate(made.uniformIndex(kTips));
    _reducedMaskUnit.locate(made.uniformIndex(kReducedMask));
    _maskLevel.locate(made.uniformIndex(kMaskLevel));
    _maskRelief.locate(made.uniformIndex(kMaskRelief));
    std::transform(std::begin(kDabRecord), std::end(kDabRecord), _recordFields.begin(),
                   [&](const char* name) { return made.attributeIndex(name); });
    _tipCellsUploaded = false;
}

void ESLineRender::setTextureImage(const QImage& image, GLenum atPosition) {
    ESBaseRender::setTextureImage(image, atPosition);
    if (!image.isNull()) {
        keepTips({image});
    }
}

void ESLineRender::setTextureImages(const QList<QImage>& images, GLenum atPosition) {
    ESBaseRender::setTextureImages(images, atPosition);
    if (!images.isEmpty()) {
        keepTips(images);
    }
}

void ESLineRender::setTextureData(const unsigned char* data, const QSize& dataSize, GLenum atPosition) {
    ESBaseRender::setTextureData(data, dataSize, atPosition);
    if (data != nullptr && !dataSize.isEmpty()) {
        keepTips({QImage(data, dataSize.width(), dataSize.height(), qsizetype{dataSize.width()} * 4,
                         QImage::Format_RGBA8888_Premultiplied)
                      .copy()});
    }
}

void ESLineRender::keepTips(const QList<QImage>& images) {
    auto tips = std::make_shared<dabcanvas::TipSet>();
    for (const QImage& image : images) {
        tips->push_back(dabcanvas::pictureOf(image));
    }
    takeTips(std::move(tips));
}

void ESLineRender::setTips(std::shared_ptr<const dabcanvas::TipSet> tips, GLenum atPosition) {
    _brushTexture.reset();
    _texturePos = atPosition;
    setNumberOfTexture(static_cast<unsigned>(tips->size()));
    takeTips(std::move(tips));
}

void ESLineRender::takeTips(std::shared_ptr<const dabcanvas::TipSet> tips) {
    _tips = std::move(tips);
    _atlas.reset();
    DabSettings& settings = _dabs.settings;
    settings.numberOfTips = numberOfTexture();
    settings.tipCells = dabcanvas::tipCells(numberOfTexture());
    _dabs.updateFlags();
    _tipCellsUploaded = false;
}

void ESLineRender::setMaskImage(const QImage& image) {
    setPaper(image.isNull() ? nullptr
                            : std::make_shared<const dabcanvas::Picture>(dabcanvas::pictureOf(image)));
    _maskImage = image;
}

void ESLineRender::setPaper(std::shared_ptr<const dabcanvas::Picture> paper) {
    _paper = std::move(paper);
    _maskImage = QImage();
    _maskTexture.reset();
    _paperTexture.reset();
}

void ESLineRender::setBackRenderColor(const ESColor& color) {
    set(&DabSettings::backColor, RgbTypeMake(color.red(), color.green(), color.blue()));
}

QRectF ESLineRender::drawPoints(const LPPoint* points, std::size_t count) {
    dabcanvas::DabBounds bounds{bufferSize().width(), bufferSize().height()};
    if (count == 0 || points == nullptr || program() == nullptr) {
        return partOf(bounds);
    }
    takeBrush();
    if (!begin(false)) {
        return partOf(bounds);
    }
    _dabs.make(points, count, [&](const Dab& dab) {
        bounds.grow(dab);
        if (needScissor() && (!_isOwnText || _batch->isFull())) {
            clipTo(bounds);
        }
        drawDab(dab);
    });
    if (needScissor() && !_batch->isEmpty()) {
        clipTo(bounds);
    }
    end();
    return partOf(bounds);
}

void ESLineRender::drawDabs(std::span<const Dab> dabs) {
    drawAll(dabs, false);
}

void ESLineRender::drawDabsFinely(std::span<const Dab> dabs, std::uint32_t first) {
    _noiseCount = first;
    drawAll(dabs, true);
}

void ESLineRender::drawAll(std::span<const Dab> dabs, bool fine) {
    if (dabs.empty() || program() == nullptr || !begin(fine)) {
        return;
    }
    for (const Dab& dab : dabs) {
        drawDab(dab);
    }
    end();
}

// False when there is nothing to draw with. A batch chooses its program when it is drawn.
bool ESLineRender::begin(bool fine) {
    _fine = fine;
    if (_isOwnText) {
        return hasAtlas(_dabs.settings.colorFul);
    }
    prepareProgram({.mask = hasPaper(), .multicolour = _dabs.settings.colorFul});
    return true;
}

// One drain a run: asking after each dab would stall drivers that work ahead.
void ESLineRender::end() {
    drawBatch();
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
void ESLineRender::prepareProgram(const Variant& variant) {
    chooseProgram(variant);
    useOwn();
    _useMask.set(hasPaper() && useMask());
    // Samplers get units of their own even when unused: two on one unit of different kinds may not draw.
    _maskUnit.set(kMaskUnit - GL_TEXTURE0);
    _reducedMaskUnit.set(kReducedMaskUnit - GL_TEXTURE0);
    _colorful.set(variant.multicolour);
    if (variant.multicolour) {
        const DabSettings& settings = _dabs.settings;
        const bool jitters = _dabs.flags().hsvTingle;
        _hueTingle.set(jitters ? settings.hueTingle : 0);
        _saturationTingle.set(jitters ? settings.saturationTingle : 0);
        _brightnessTingle.set(jitters ? settings.brightnessTingle : 0);
    }
    _viewSize.set(bufferSize().width(), bufferSize().height());
    if (takesRecords()) {
        useAtlas();
    } else {
        useBrushTexture();
        if (!_tipCellsUploaded) {
            uploadTipCells();
        }
    }
    checkGLStep(kSourcePath, __LINE__);
}

bool ESLineRender::hasAtlas(bool withColour) {
    if (!_atlas || _atlas->hasColour() != withColour) {
        glActiveTexture(texturePos());
        _atlas = dabcanvas::TipAtlas::make(_tips ? *_tips : solidTip(), withColour);
        noteTexture(_atlas != nullptr);
    }
    return _atlas != nullptr;
}

// One line, however many runs are refused until there is memory again.
void ESLineRender::noteTexture(bool made) {
    if (!std::exchange(_lacksTexture, !made) && !made) {
        qCWarning(lcDabcanvasGL, "there is no memory for the textures of a brush");
    }
}

void ESLineRender::useAtlas() {
    _atlas->bind(texturePos());
    _tipsUnit.set(texturePos() - GL_TEXTURE0);
}

void ESLineRender::useBrushTexture() {
    if (brushTexture() == nullptr && _tips) {
        QList<QImage> images;
        for (const dabcanvas::Picture& tip : *_tips) {
            images.append(dabcanvas::imageOf(tip));
        }
        ESBaseRender::setTextureImages(images, texturePos());
    }
    if (brushTexture() != nullptr && brushTexture()->useAtPosition(texturePos())) {
        _brushUnit.set(texturePos() - GL_TEXTURE0);
    }
}

// Binds the paper, whose texture is made when it is first needed; false without one.
bool ESLineRender::useMask() {
    // A tile is a whole pixel at least, or its pattern would divide by nothing.
    const dabcanvas::Size& size = _paper->pixels.size;
    const float width = std::max(1.0f, std::floor(_maskScale * static_cast<float>(size.width)));
    const float height = std::max(1.0f, std::floor(_maskScale * static_cast<float>(size.height)));
    _maskSize.set(width, height);
    glActiveTexture(kMaskUnit);
    if (takesRecords()) {
        if (!_paperTexture) {
            _paperTexture = dabcanvas::PaperTexture::make(*_paper);
            noteTexture(_paperTexture != nullptr);
        }
        if (_paperTexture) {
            _paperTexture->bind(kMaskUnit, kReducedMaskUnit);
            const dabcanvas::PaperTexture::Reading reading = _paperTexture->readingAt(width, height);
            _maskLevel.set(reading.part, reading.level);
            _maskRelief.set(_reliefGain, _reliefLevel);
        }
        return _paperTexture != nullptr;
    }
    if (!_maskTexture) {
        _maskTexture = TextureObject::initWithImage(dabcanvas::imageOf(*_paper));
    }
    const float* cell = _maskTexture->verties();
    const auto across = static_cast<float>(_maskTexture->pixSize().width());
    const auto up = static_cast<float>(_maskTexture->pixSize().height());
    _maskBaseCoord.set(cell[0] * across, cell[1] * up, (cell[4] - cell[0]) * across,
                       (cell[3] - cell[1]) * up);
    return _maskTexture->useAtPosition(kMaskUnit);
}

// For a host's program: the corners of a dab for every tip of its texture, tip after tip. A dab picks its tip by where it
// starts to draw, and no vertex data is sent per dab.
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
    ++_dabsDrawn;
    if (_isOwnText) {
        const float turn = dabcanvas::noiseTurn(_noiseCount++);
        if (_batch->isFull()) {
            drawBatch();
        }
        if (const dabcanvas::Size* tip = _atlas->sizeOf(dab.tip)) {
            const auto height = static_cast<float>(bufferSize().height());
            _batch->add(dabcanvas::DabRecord::of(dab, *tip, *_atlas, height, turn));
        }
        return;
    }
    setDabUniforms(dab);
    if (_variant.multicolour) {
        _rand.set(dab.random);
    }
    checkGLStep(kSourcePath, __LINE__);
    glDrawArrays(GL_TRIANGLE_FAN, static_cast<GLint>(dab.tip) * kCorners, kCorners);
}

void ESLineRender::drawBatch() {
    if (_batch->isEmpty()) {
        return;
    }
    prepareProgram({.records = true,
                    .mask = hasPaper(),
                    .multicolour = _dabs.settings.colorFul,
                    .fine = _fine,
                    .fetch = _fine && _useFetch,
                    .oneLevel = !_batch->mixesLevels()});
    if (_fine) {
        glBlendFunc(GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
        (_variant.fetch ? glDisable : glEnable)(GL_BLEND);
    }
    if (takesRecords()) {
        _batch->draw(_recordFields);
    }
    _batch->clear();
    if (_fine) {
        glEnable(GL_BLEND);
    }
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
