// SPDX-License-Identifier: MIT
#include "ESRender/ESSmudgeRender.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "Dabs/DabBounds.h"
#include "ESRender/DabRecord.h"
#include "ESRender/LineShaderNames.h"
#include "ESRender/SmudgeShaderNames.h"
#include "ESRender/Utilities/ESGLErrors.h"
#include "ESRender/Utilities/ESGLTexture.h"
#include "ESRender/Utilities/ESShaderTools.h"
#include "ESRender/VertexAttribute.h"
#include "Maths/Rounding.h"

using dabcanvas::SmudgeDab;

namespace {

constexpr char kSourcePath[] = "SRC_New/ESRender/ESSmudgeRender";

// One corner of a dab: place in the unit square, the tip's coordinate there, and where it picks up.
struct Vertex {
    float x, y, z, w;
    float s, t;
    float bgS, bgT;
};
static_assert(sizeof(Vertex) == 32);
constexpr float kSquare[4][2] = {{-1, -1}, {1, -1}, {1, 1}, {-1, 1}};
constexpr std::size_t kCorners = 4;

constexpr GLenum kCoverageUnit = GL_TEXTURE4, kCanvasUnit = GL_TEXTURE3, kBeforeUnit = GL_TEXTURE8;

// The one of OpenGL 4.5, rather than the older extension's.
bool hasStandardBarrier() {
    return epoxy_gl_version() >= 45 || epoxy_has_gl_extension("GL_ARB_texture_barrier");
}

// Buffer pixels around a dab in which texels of the layer, twice as large, are still covered in part.
constexpr double kRim = 2;

// The side of what is taken up over the dab's.
double pickUpScale(const SmudgeDab& smudge) {
    return smudge.dab.halfSize > 0 ? smudge.pickUpHalf / smudge.dab.halfSize : 0;
}

QRectF partOf(const dabcanvas::DabBounds& bounds) {
    const dabcanvas::DabBounds::Part part = bounds.onBuffer();
    return {part.x, part.y, part.width, part.height};
}

}  // namespace

// Places, or texture coordinates, of a dab's corners.
struct ESSmudgeRender::Corners {
    std::array<QPointF, kCorners> at;
};

// ---- Making

std::unique_ptr<ESSmudgeRender> ESSmudgeRender::init(std::shared_ptr<dabcanvas::ProgramPool> pool) {
    std::unique_ptr<ESSmudgeRender> render(new ESSmudgeRender);
    render->_pool = std::move(pool);
    if (!render->setVertexShaderString({}, {})) {
        return nullptr;
    }
    render->_dabs.updateFlags();
    render->_showProgram = render->makeShowProgram(false);
    render->_fillProgram = render->makeShowProgram(true);
    render->_held = dabcanvas::HeldPaint::make(render->_pool.get());
    render->_useTextureBarrier = hasTextureBarrier();
    render->setUseFramebufferFetch(true);
    render->_hasStandardBarrier = hasStandardBarrier();
    return render;
}

ESSmudgeRender::~ESSmudgeRender() {
    for (const GLuint texture : {_copyTexture, _beforeTexture}) {
        if (texture != 0) {
            glDeleteTextures(1, &texture);
        }
    }
}

QString ESSmudgeRender::smudgeRenderSmudgeVertexShaderString() {
    return stringWithFileName(QStringLiteral("Shaders.bundle/Smudge_Mac(Smudge).vsh"));
}

QString ESSmudgeRender::smudgeRenderSmudgeFrangmentShaderString() {
    return stringWithFileName(QStringLiteral("Shaders.bundle/Smudge_Mac(Smudge).fsh"));
}

QString ESSmudgeRender::smudgeRenderShowVertexShaderString() {
    return stringWithFileName(QStringLiteral("Shaders.bundle/Smudge_Mac(Show).vsh"));
}

QString ESSmudgeRender::smudgeRenderShowFrangmentShaderString() {
    return stringWithFileName(QStringLiteral("Shaders.bundle/Smudge_Mac(Show).fsh"));
}

bool ESSmudgeRender::setVertexShaderString(const QString&, const QString&) {
    _triedRecords.reset();
    return useProgramWithVertexShaderString(
        ESShaderTools::withBool(smudgeRenderSmudgeVertexShaderString()),
        ESShaderTools::withBool(smudgeRenderSmudgeFrangmentShaderString()));
}

// Makes the library's program current that takes a dab as a record; a file in its place may know none.
void ESSmudgeRender::useRecords() {
    if (_triedRecords == usesFetch()) {
        return;
    }
    _triedRecords = usesFetch();
    const QString vertex = ESShaderTools::withBool(smudgeRenderSmudgeVertexShaderString());
    const QString fragment = ESShaderTools::withBool(smudgeRenderSmudgeFrangmentShaderString());
    const QString text = recordText(vertex, fragment);
    if (text.isNull()) {
        return;
    }
    const QString records = QStringLiteral("#define RECORDS\n");
    const QString defines = (usesFetch() ? QLatin1String(kFetchDefines) : QLatin1String("")) + records +
                            QLatin1String(_layerDepth > 8 ? "#define NOISE\n" : "");
    if (!useProgramWithVertexShaderString(ESShaderTools::withDefines(vertex, records),
                                          ESShaderTools::withDefines(fragment, defines + text)) &&
        usesFetch()) {
        setUseFramebufferFetch(false);
        useRecords();
    }
}

void ESSmudgeRender::bindAttributeForProgram(ESProgram& program) {
    for (const char* name : {dabcanvas::line::kPosition, dabcanvas::line::kCenter, dabcanvas::line::kTexCoord,
                             dabcanvas::smudge::kBGCoord}) {
        program.addAttribute(name);
    }
}

void ESSmudgeRender::programDidChange() {
    using namespace dabcanvas::smudge;
    ESLineRender::programDidChange();
    ESProgram& made = *program();
    _bgCoordIndex = made.attributeIndex(kBGCoord);
    _moist.locate(made.uniformIndex(kMoistQuantity));
    _load.locate(made.uniformIndex(kLoadQuantity));
    _mix.locate(made.uniformIndex(kMixQuantity));
    _bgUnit.locate(made.uniformIndex(kBGTexture));
    _tipCell.locate(made.uniformIndex(kTipCell));
    _pickUp.locate(made.uniformIndex(kPickUp));
    _carried.locate(made.uniformIndex(kCarried));
    _heldUnit.locate(made.uniformIndex(kHeldTexture));
    _dabRecord = made.uniformIndex(kDab);
}

ESSmudgeRender::ShowProgram ESSmudgeRender::makeShowProgram(bool fill) const {
    using namespace dabcanvas;
    ShowProgram show;
    const QString defines = fill ? QStringLiteral("#define FILL\n")
                                 : QStringLiteral("#define NOISE\n") +
                                       stringWithFileName(QStringLiteral("Shaders.bundle/Noise.glsl"));
    const QString vertex = ESShaderTools::withBool(smudgeRenderShowVertexShaderString());
    const QString fragment =
        ESShaderTools::withDefines(ESShaderTools::withBool(smudgeRenderShowFrangmentShaderString()), defines);
    ProgramPool own;
    auto program = (_pool ? *_pool : own).program(vertex, fragment);
    if (!program) {
        qCWarning(lcDabcanvasGL, "The program that %s cannot be built",
                  fill ? "fills the smudge layer" : "shows smudges on the canvas");
        return show;
    }
    show.position = program->attributeIndex(line::kPosition);
    show.viewSize = program->uniformIndex(line::kViewSize);
    show.targetSize = program->uniformIndex(smudge::kTargetSize);
    show.center = program->uniformIndex(line::kCenter);
    show.pointSize = program->uniformIndex(line::kPointSize);
    show.roundness = program->uniformIndex(line::kRoundness);
    show.source = program->uniformIndex(smudge::kBGTexture);
    show.canvas = program->uniformIndex(smudge::kCanvasTexture);
    show.before = program->uniformIndex(smudge::kBeforeTexture);
    show.coverage = program->uniformIndex(smudge::kCoverageTexture);
    show.noiseTurn = program->uniformIndex(smudge::kNoiseTurn);
    show.noiseStep = program->uniformIndex(smudge::kNoiseStep);
    show.opacity = program->uniformIndex(smudge::kOpacity);
    show.locksAlpha = program->uniformIndex(smudge::kLocksAlpha);
    show.program = std::move(program);
    return show;
}

bool ESSmudgeRender::hasTextureBarrier() {
    return hasStandardBarrier() || epoxy_has_gl_extension("GL_NV_texture_barrier");
}

// ---- Textures

void ESSmudgeRender::setSmudgeTextureID(GLuint texture, GLenum pos) {
    _smudgeTex = texture;
    _smudgePos = pos;
    _layerSize = QSize();
    if (useSmudgeTexture()) {
        GLint width = 0, height = 0;
        glGetTexLevelParameteriv(GL_TEXTURE_2D, 0, GL_TEXTURE_WIDTH, &width);
        glGetTexLevelParameteriv(GL_TEXTURE_2D, 0, GL_TEXTURE_HEIGHT, &height);
        glGetTexLevelParameteriv(GL_TEXTURE_2D, 0, GL_TEXTURE_RED_SIZE, &_layerDepth);
        _layerSize = QSize(width, height);
    }
    for (GLuint* own : {&_copyTexture, &_beforeTexture}) {
        if (*own != 0) {
            glDeleteTextures(1, own);
            *own = 0;
        }
    }
}

bool ESSmudgeRender::useSmudgeTexture() const {
    if (_smudgeTex == 0) {
        return false;
    }
    glActiveTexture(_smudgePos);
    glBindTexture(GL_TEXTURE_2D, _smudgeTex);
    drainGLErrors(kSourcePath, __LINE__);
    return true;
}

bool ESSmudgeRender::hasOwnTextures() {
    if (_smudgeTex == 0 || _layerSize.isEmpty()) {
        return false;
    }
    for (GLuint* own : {&_copyTexture, &_beforeTexture}) {
        if (*own == 0) {
            glActiveTexture(kBeforeUnit);
            *own = dabcanvas::makeClearedTexture(_layerSize, GL_LINEAR, _layerDepth);
        }
    }
    return _copyTexture != 0 && _beforeTexture != 0;
}

void ESSmudgeRender::keepLayer(const QRectF& rect) {
    if (!hasOwnTextures()) {
        return;
    }
    const double toTexelX = _layerSize.width() / bufferSize().width();
    const double toTexelY = _layerSize.height() / bufferSize().height();
    const QRectF rows(rect.x() * toTexelX, (bufferSize().height() - rect.bottom()) * toTexelY,
                      rect.width() * toTexelX, rect.height() * toTexelY);
    glActiveTexture(kBeforeUnit);
    glBindTexture(GL_TEXTURE_2D, _beforeTexture);
    dabcanvas::copyFramebufferToTexture(rows.toAlignedRect(), _layerSize);
}

void ESSmudgeRender::setShowSources(GLuint coverageTexture, GLuint canvasTexture) {
    _coverageTexture = coverageTexture;
    _canvasTexture = canvasTexture;
}

// ---- Dabs

void ESSmudgeRender::resetLineProporty() {
    ESLineRender::resetLineProporty();
    _smudges.reset();
}

QRectF ESSmudgeRender::drawPoints(const LPPoint* points, std::size_t count) {
    return drawPoints(points, count, ESSmudgeDrawDabs);
}

QRectF ESSmudgeRender::drawPoints(const LPPoint* points, std::size_t count, std::int32_t renderType,
                                  const TextureBindBlock& withTextureBindBlock) {
    if (points == nullptr || count == 0) {
        return {};
    }
    if (renderType != ESSmudgeDrawDabs) {
        return show(points, count, withTextureBindBlock);
    }
    takeBrush();
    _made.clear();
    _smudges.make(_dabs, points, count, [&](const SmudgeDab& dab) { _made.push_back(dab); });
    return draw(_made, _smudges.settings.load, withTextureBindBlock);
}

QRectF ESSmudgeRender::drawSmudges(std::span<const SmudgeDab> dabs, float load, std::uint32_t first) {
    _noiseCount = first;
    return draw(dabs, load, {});
}

QRectF ESSmudgeRender::draw(std::span<const SmudgeDab> dabs, float load, const TextureBindBlock& bind) {
    dabcanvas::DabBounds bounds{bufferSize().width(), bufferSize().height()};
    if (program() == nullptr || !hasOwnTextures()) {
        return {};
    }
    if (_coverageTaken) {
        _coverage.clear();
        _coverageTaken = false;
    }
    useRecords();
    useOwn();
    if (_dabRecord >= 0) {
        _viewSize.set(_layerSize.width(), _layerSize.height());
        if (!hasAtlas(false)) {
            return {};
        }
        useAtlas();
    } else {
        // Each dab fills the same buffer anew, so where its vertices stand is said once a run.
        dabcanvas::setVertexAttribute(_positionIndex, 4, sizeof(Vertex), 0);
        dabcanvas::setVertexAttribute(_texCoordIndex, 2, sizeof(Vertex), offsetof(Vertex, s));
        dabcanvas::setVertexAttribute(_bgCoordIndex, 2, sizeof(Vertex), offsetof(Vertex, bgS));
        _viewSize.set(bufferSize().width(), bufferSize().height());
        useBrushTexture();
        if (brushTexture() != nullptr) {
            _tipSize.set(brushTexture()->pixSize().width(), brushTexture()->pixSize().height());
        }
    }
    if (bind) {
        _sourceSize = bind();
    } else {
        useSmudgeTexture();
        _sourceSize = bufferSize();
    }
    _bgUnit.set(_smudgePos - GL_TEXTURE0);
    _load.set(load);
    glActiveTexture(_smudgePos);
    glDisable(GL_BLEND);
    if (_held) {
        _heldUnit.set(dabcanvas::HeldPaint::kUnit - GL_TEXTURE0);
        const auto carries = [](const SmudgeDab& dab) { return dab.bristles.part > 0; };
        if (std::any_of(dabs.begin(), dabs.end(), carries)) {
            _held->noteTarget();
        }
        glActiveTexture(kBeforeUnit);
        glBindTexture(GL_TEXTURE_2D, _beforeTexture);
        glActiveTexture(_smudgePos);
    }

    for (const SmudgeDab& dab : dabs) {
        bounds.grow(dab.dab);
        provideBristles(dab);
        drawDab(dab);
    }
    glEnable(GL_BLEND);
    useSmudgeTexture();  // not a copy of it
    drainGLErrors(kSourcePath, __LINE__);
    return partOf(bounds);
}

// Turned and mirrored as the dab itself is, so that the picture it carries along is not.
ESSmudgeRender::Corners ESSmudgeRender::pickUpCorners(const SmudgeDab& smudge) const {
    const Dab& dab = smudge.dab;
    const double c = std::cos(dab.radian), s = std::sin(dab.radian);
    const double width = _sourceSize.width(), height = _sourceSize.height();
    Corners corners;
    for (std::size_t i = 0; i < kCorners; ++i) {
        const double x = kSquare[i][0] * dab.flipX * smudge.pickUpHalf;
        const double y = kSquare[i][1] * dab.flipY * smudge.pickUpHalf * dab.roundness;
        corners.at[i] = QPointF((smudge.pickUp.x + x * c + y * s) / width,
                                (height - (smudge.pickUp.y + y * c - x * s)) / height);
    }
    return corners;
}

// As a part of the layer, 0..1 from the bottom left, with what lies half a texel around the dab.
QRectF ESSmudgeRender::pickUpPlace(const SmudgeDab& smudge) const {
    const dabcanvas::Extent extent = dabcanvas::DabBounds::extentOf(smudge.dab);
    const double scale = pickUpScale(smudge);
    const double across = (extent.width + kRim) * scale, up = (extent.height + kRim) * scale;
    return {(smudge.pickUp.x - across) / _sourceSize.width(),
            (_sourceSize.height() - smudge.pickUp.y - up) / _sourceSize.height(),
            2 * across / _sourceSize.width(), 2 * up / _sourceSize.height()};
}

// Every texel of the layer that filtering reads there.
QRect ESSmudgeRender::texelBox(const QRectF& place) const {
    const double left = place.left(), right = place.right(), bottom = place.top(), top = place.bottom();
    const double width = _layerSize.width(), height = _layerSize.height();
    // What lies outside of the layer reads as its rim.
    const auto texel = [](double edge, double first, double last) {
        return dabcanvas::truncatedInt(std::clamp(edge, first, last));
    };
    const int x0 = texel(std::floor(left * width) - 1, 0, width - 1);
    const int x1 = texel(std::ceil(right * width) + 1, x0 + 1, width);
    const int y0 = texel(std::floor(bottom * height) - 1, 0, height - 1);
    const int y1 = texel(std::ceil(top * height) + 1, y0 + 1, height);
    return {x0, y0, x1 - x0, y1 - y0};
}

// Binds what the dab reads: texels that are written by the same draw have no defined value, barrier or not, so a dab
// that overlaps its pick-up place reads a copy. A pixel may always read what it replaces itself, where it lies or, without
// framebuffer fetch, in the copy.
void ESSmudgeRender::provideLayer(const QRect& read, const QRect& written) {
    if (_useTextureBarrier && !read.intersects(written)) {
        glBindTexture(GL_TEXTURE_2D, _smudgeTex);
        if (_hasStandardBarrier) {
            glTextureBarrier();
        } else {
            glTextureBarrierNV();
        }
        return;
    }
    glBindTexture(GL_TEXTURE_2D, _copyTexture);
    if (_dabRecord >= 0 && usesFetch()) {
        dabcanvas::copyFramebufferToTexture(read, _layerSize);
        return;
    }
    const QRect both = read.united(written);
    const auto areaOf = [](const QRect& rect) { return qint64{rect.width()} * rect.height(); };
    if (areaOf(both) <= areaOf(read) + areaOf(written)) {
        dabcanvas::copyFramebufferToTexture(both, _layerSize);
    } else {
        dabcanvas::copyFramebufferToTexture(read, _layerSize);
        dabcanvas::copyFramebufferToTexture(written, _layerSize);
    }
}

dabcanvas::Dab ESSmudgeRender::inLayer(const Dab& dab) const {
    const double toTexelX = _layerSize.width() / bufferSize().width();
    const double toTexelY = _layerSize.height() / bufferSize().height();
    Dab scaled = dab;
    scaled.x = static_cast<float>(scaled.x * toTexelX);
    scaled.y = static_cast<float>(scaled.y * toTexelY);
    scaled.halfSize =
        static_cast<float>(scaled.halfSize * (toTexelX + toTexelY) / 2);  // they differ by rounding
    return scaled;
}

void ESSmudgeRender::setDabRecord(const SmudgeDab& smudge) {
    const double toTexelX = _layerSize.width() / bufferSize().width();
    const double toTexelY = _layerSize.height() / bufferSize().height();
    const dabcanvas::DabRecord record = dabcanvas::DabRecord::of(
        inLayer(smudge.dab), *atlas()->sizeOf(smudge.dab.tip), *atlas(),
        static_cast<float>(_layerSize.height()), dabcanvas::noiseTurn(_noiseCount++));
    glUniform4fv(_dabRecord, sizeof record / (4 * sizeof(float)), record.place.data());
    const double scale = pickUpScale(smudge);
    _pickUp.set(smudge.pickUp.x / _sourceSize.width(),
                (_sourceSize.height() - smudge.pickUp.y) / _sourceSize.height(),
                scale / toTexelX / _sourceSize.width(), scale / toTexelY / _sourceSize.height());
}

// For a program that is given the corners.
void ESSmudgeRender::uploadCorners(const SmudgeDab& smudge) {
    const Corners corners = pickUpCorners(smudge);
    static constexpr float kWhole[10] = {0, 0, 0, 1, 1, 1, 1, 0, 0, 0};
    const float* cell =
        brushTexture() != nullptr ? brushTexture()->vertiesOfTextureIndex(smudge.dab.tip) : kWhole;
    Vertex vertices[kCorners];
    for (std::size_t i = 0; i < kCorners; ++i) {
        const float* pair = cell + 2 * (i + 1);
        vertices[i] = {kSquare[i][0],
                       kSquare[i][1],
                       0,
                       1,
                       pair[0],
                       pair[1],
                       static_cast<float>(corners.at[i].x()),
                       static_cast<float>(corners.at[i].y())};
    }
    glBufferData(GL_ARRAY_BUFFER, sizeof vertices, vertices, GL_STATIC_DRAW);
    _tipCell.set(cell[0], cell[1], cell[4], cell[5]);
    setDabUniforms(smudge.dab);
}

// What bristles hold, and where the dab reads it.
void ESSmudgeRender::provideBristles(const SmudgeDab& smudge) {
    const dabcanvas::BristleDab& bristles = smudge.bristles;
    if (!(bristles.part > 0) || !_held || _dabRecord < 0) {
        _carried.set(0, 0, 0, 0);
        return;
    }
    const Dab dab = inLayer(smudge.dab);
    _held->takeUp(bristles, dab, _layerSize.height(), kBeforeUnit);
    glActiveTexture(_smudgePos);
    useOwn();
    const int count = std::clamp(bristles.count, 1, dabcanvas::kMostBristles);
    const float perTexel = 0.5f * static_cast<float>(count) / dabcanvas::BristleSpan(dab, bristles).across;
    _carried.set(bristles.acrossX * perTexel, -bristles.acrossY * perTexel, count - 1,
                 std::min(bristles.part, 1.0f));
}

void ESSmudgeRender::drawDab(const SmudgeDab& smudge) {
    const Dab& dab = smudge.dab;
    if (_dabRecord >= 0 && atlas()->sizeOf(dab.tip) == nullptr) {
        return;  // an empty tip
    }
    const dabcanvas::Extent extent = dabcanvas::DabBounds::extentOf(dab);
    const double toTexelX = _layerSize.width() / bufferSize().width();
    const double toTexelY = _layerSize.height() / bufferSize().height();
    const QRectF touched((dab.x - extent.width) * toTexelX - 1,
                         (bufferSize().height() - dab.y - extent.height) * toTexelY - 1,
                         2 * extent.width * toTexelX + 2, 2 * extent.height * toTexelY + 2);
    const QRectF inLayer = touched & QRectF(QPointF(0, 0), _layerSize);
    if (!(inLayer.width() > 0 && inLayer.height() > 0)) {
        return;  // nor is one drawn whose place is not finite
    }
    provideLayer(texelBox(pickUpPlace(smudge)), inLayer.toAlignedRect());
    if (_dabRecord >= 0) {
        setDabRecord(smudge);
    } else {
        uploadCorners(smudge);
    }
    _moist.set(smudge.moist);
    _mix.set(smudge.mix);
    checkGLStep(kSourcePath, __LINE__);
    glDrawArrays(GL_TRIANGLE_FAN, 0, kCorners);
    ++_dabsDrawn;

    Dab covered = dab;
    covered.flow *= smudge.exchange;
    covered.color = RgbTypeMake(0, 0, 0);
    _coverage.push_back(covered);
}

std::span<const dabcanvas::Dab> ESSmudgeRender::takeCoverage() {
    if (_coverageTaken) {
        return {};
    }
    _coverageTaken = true;
    return _coverage;
}

// ---- Canvas and layer

QRectF ESSmudgeRender::show(const LPPoint* points, std::size_t count, const TextureBindBlock& bind) {
    const ShowProgram& show = bind ? _fillProgram : _showProgram;
    dabcanvas::DabBounds bounds{bufferSize().width(), bufferSize().height()};
    if (show.program == nullptr || !hasOwnTextures()) {
        return {};
    }
    show.program->bind();
    QSizeF size = bufferSize(), target = size;
    if (bind) {
        size = bind();
        target = _layerSize;
    } else {
        const struct {
            GLenum unit;
            GLuint texture;
            GLint uniform;
        } sources[] = {{kCanvasUnit, _canvasTexture, show.canvas},
                       {kCoverageUnit, _coverageTexture, show.coverage},
                       {kBeforeUnit, _beforeTexture, show.before}};
        for (const auto& source : sources) {
            glActiveTexture(source.unit);
            glBindTexture(GL_TEXTURE_2D, source.texture);
            glUniform1i(source.uniform, static_cast<GLint>(source.unit - GL_TEXTURE0));
        }
        glUniform1f(show.opacity, opacity());
        glUniform1f(show.locksAlpha, _locksAlpha ? 1 : 0);
        glUniform1f(show.noiseStep, _noiseStep);
        glUniform1f(show.noiseTurn, _noiseTurn.value_or(0));
        useSmudgeTexture();
    }
    glUniform1i(show.source, static_cast<GLint>(_smudgePos - GL_TEXTURE0));
    glUniform2f(show.viewSize, static_cast<GLfloat>(size.width()), static_cast<GLfloat>(size.height()));
    glUniform2f(show.targetSize, static_cast<GLfloat>(target.width()), static_cast<GLfloat>(target.height()));
    glUniform1f(show.roundness, settings().roundness);

    std::array<Vertex, kCorners> corners{};
    for (std::size_t i = 0; i < kCorners; ++i) {
        corners[i] = {kSquare[i][0], kSquare[i][1], 0, 1, 0, 0, 0, 0};
    }
    glBufferData(GL_ARRAY_BUFFER, sizeof corners, corners.data(), GL_STATIC_DRAW);
    dabcanvas::setVertexAttribute(show.position, 4, sizeof(Vertex), 0);
    for (std::size_t i = 0; i < count; ++i) {
        const LPPoint& point = points[i];
        Dab place{};
        place.x = point.position.x;
        place.y = point.position.y;
        place.halfSize = point.radius * 0.5f;
        place.roundness = settings().roundness;
        bounds.grow(place);
        glUniform2f(show.center, place.x, place.y);
        glUniform1f(show.pointSize, place.halfSize);
        glDrawArrays(GL_TRIANGLE_FAN, 0, kCorners);
    }
    drainGLErrors(kSourcePath, __LINE__);
    return partOf(bounds);
}
