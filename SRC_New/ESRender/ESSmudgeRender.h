// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "Dabs/SmudgeDabs.h"
#include "ESRender/ESLineRender.h"
#include "ESRender/HeldPaint.h"
#include "Maths/Export.h"

/// How drawPoints() draws: dabs, or the rectangles in which canvas and layer meet.
enum ESSmudgeDraw : std::int32_t { ESSmudgeDrawDabs = 0, ESSmudgeDrawShow = 1 };

/// Draws the points of a stroke as smudge dabs into the smudge layer: each takes up colour where the dab before it lay
/// and mixes it with the brush's own. The layer is half the canvas each way; a second program fills it from the canvas
/// and brings what the dabs changed back.
///
/// Units    buffer pixels, top-left origin, also where the layer is drawn into; a point's radius field is the dab's
///          width.
/// Owns     its programs, its tip texture and two textures of the layer's size. The smudge texture is the context's.
/// State    pick-up place, dab counter and direction run on until resetLineProporty() begins the next stroke.
/// Errors   init() gives null when the smudge program does not build. Without a show program dabs are drawn all the
///          same, but nothing is filled or brought back.
class DABCANVAS_RENDER_API ESSmudgeRender : public ESLineRender {
public:
    /// Programs come from the pool, as the line renderer's.
    static std::unique_ptr<ESSmudgeRender> init(std::shared_ptr<dabcanvas::ProgramPool> pool = {});
    ~ESSmudgeRender() override;

    /// Makes the smudge program current, whatever the texts.
    bool setVertexShaderString(const QString& vertexShaderString,
                               const QString& fragmentShaderFromString) override;
    /// The texts of the two programs.
    static QString smudgeRenderSmudgeVertexShaderString();
    static QString smudgeRenderSmudgeFrangmentShaderString();
    static QString smudgeRenderShowVertexShaderString();
    static QString smudgeRenderShowFrangmentShaderString();

    /// The smudge layer's texture and the unit it is read on.
    void setSmudgeTextureID(GLuint texture, GLenum pos);
    /// Binds it there; false without one.
    bool useSmudgeTexture() const;

    /// Makes its two textures, unless they are there: on first use, as most brushes never smudge. False, after a log
    /// line, when the driver has no room for them.
    bool hasOwnTextures();

    /// Begins a stroke: its first dab has nothing to pick up yet.
    void resetLineProporty() override;

    // ---- Paint; 0..1 each

    /// How readily canvas colour is taken along, from a dry brush to a wet one.
    void setMoistQuantity(float value) { _smudges.settings.moist = value; }
    float moistQuantity() const { return _smudges.settings.moist; }
    /// How much of its own colour the brush carries.
    void setLoadQuantity(float value) { _smudges.settings.load = value; }
    float loadQuantity() const { return _smudges.settings.load; }
    /// What a dab is made of: 0 its own colour alone, 1 picked up colour alone.
    void setMixQuantity(float value) { _smudges.settings.mix = value; }
    float mixQuantity() const { return _smudges.settings.mix; }
    /// Lets that grow from 0 over the first dabs of a stroke, and over how many.
    void setSmudgeControl(bool value) { _smudges.settings.control = value; }
    bool smudgeControl() const { return _smudges.settings.control; }
    void setSmudgeControlValue(float value) { _smudges.settings.controlValue = value; }
    float smudgeControlValue() const { return _smudges.settings.controlValue; }
    /// How far bristles carry colour along, see Dabs/Bristles.h; not with a program of a host's.
    void setBristles(float value) { _smudges.settings.bristles = value; }
    float bristles() const { return _smudges.settings.bristles; }
    /// The ramp at a dab, counted from 1; the whole mixQuantity at once when its length is not above 0.
    float mixQuantityAtPointIndex(std::int64_t index) const { return _smudges.settings.grownMix(index); }

    /// Place, in buffer pixels, and half size of the dab that the next point picks up from.
    LPPosition texturePosition() const { return _smudges.place(); }
    float textureSize_2() const { return _smudges.half(); }

    // ---- Draw

    /// Binds the texture that is read on the smudge texture's unit and yields the size of what it shows.
    using TextureBindBlock = std::function<QSizeF()>;

    /// Dabs go into the smudge layer, which must be the bound framebuffer; blending is switched off meanwhile, as each
    /// dab reads what is there. Returns the touched rectangle, as the line renderer does.
    QRectF drawPoints(const LPPoint* points, std::size_t count) override;
    /// ESSmudgeDrawShow draws each point as a rectangle, roundness times its width high. Without a block the layer's
    /// smudges are put into it onto the canvas, with it the picture that the block binds is reduced into the layer.
    QRectF drawPoints(const LPPoint* points, std::size_t count, std::int32_t renderType,
                      const TextureBindBlock& withTextureBindBlock = {});

    /// The same of dabs that were made elsewhere, with this renderer's tips. A layer of 16 bits a channel rounds by a
    /// noise of place and of the dabs' number, from `first` on.
    QRectF drawSmudges(std::span<const dabcanvas::SmudgeDab> dabs, float load, std::uint32_t first = 0);

    /// The dabs drawn since the last call, in plain colour, with the flow by which each exchanged what was there. Valid
    /// until dabs are drawn again.
    std::span<const Dab> takeCoverage();
    /// Keeps the layer, the bound framebuffer, as it is now inside a rectangle: what later dabs change is told from it.
    void keepLayer(const QRectF& rect);
    /// What ESSmudgeDrawShow puts smudges together from: how much was exchanged (alpha), and the canvas from before.
    void setShowSources(GLuint coverageTexture, GLuint canvasTexture);
    /// What it rounds by, as ESImageRender::setNoiseTurn().
    void setNoiseTurn(std::optional<float> turn, int canvasDepth = 8) {
        _noiseTurn = turn;
        _noiseStep = turn ? 1.0f / static_cast<float>((1 << canvasDepth) - 1) : 0;
    }

    /// What is shown keeps the canvas's alpha.
    void setLocksAlpha(bool locks) { _locksAlpha = locks; }

    /// Where the driver has a texture barrier, a dab that lies clear of its pick-up place reads the layer itself;
    /// else, and always without one, it reads a copy. The picture is the same.
    void setUseTextureBarrier(bool value) { _useTextureBarrier = value && hasTextureBarrier(); }
    static bool hasTextureBarrier();

protected:
    ESSmudgeRender() = default;
    void bindAttributeForProgram(ESProgram& program) override;
    void programDidChange() override;

private:
    struct Corners;
    // One of the two forms of the show program; null when it did not build.
    struct ShowProgram {
        std::shared_ptr<ESProgram> program;
        GLint position = -1;
        GLint viewSize = -1, targetSize = -1, center = -1, pointSize = -1, roundness = -1, source = -1;
        GLint canvas = -1, before = -1, coverage = -1, noiseTurn = -1, noiseStep = -1, opacity = -1;
        GLint locksAlpha = -1;
    };

    ShowProgram makeShowProgram(bool fill) const;
    QRectF draw(std::span<const dabcanvas::SmudgeDab> dabs, float load, const TextureBindBlock& bind);
    QRectF show(const LPPoint* points, std::size_t count, const TextureBindBlock& bind);
    void useRecords();
    QRectF pickUpPlace(const dabcanvas::SmudgeDab& smudge) const;
    Corners pickUpCorners(const dabcanvas::SmudgeDab& smudge) const;
    QRect texelBox(const QRectF& place) const;
    void setDabRecord(const dabcanvas::SmudgeDab& smudge);
    void uploadCorners(const dabcanvas::SmudgeDab& smudge);
    void provideLayer(const QRect& read, const QRect& written);
    Dab inLayer(const Dab& dab) const;
    void provideBristles(const dabcanvas::SmudgeDab& smudge);
    void drawDab(const dabcanvas::SmudgeDab& smudge);

    dabcanvas::SmudgeMaker _smudges;
    std::vector<dabcanvas::SmudgeDab> _made;  // of the present call

    GLuint _smudgeTex = 0;
    GLenum _smudgePos = GL_TEXTURE7;
    QSize _layerSize;         // texels of the smudge texture
    GLint _layerDepth = 8;    // bits a channel
    GLuint _copyTexture = 0;  // of the layer, for dabs that overlap what they pick up
    GLuint _beforeTexture = 0;
    GLuint _coverageTexture = 0, _canvasTexture = 0;  // the canvas's

    QSizeF _sourceSize;  // buffer pixels that the smudge texture shows

    std::vector<Dab> _coverage;
    bool _coverageTaken = false;
    bool _useTextureBarrier = false;
    bool _hasStandardBarrier = false;  // asked once: the driver compares names

    ShowProgram _showProgram, _fillProgram;
    std::unique_ptr<dabcanvas::HeldPaint> _held;
    std::optional<bool> _triedRecords;  // with or without framebuffer fetch
    std::uint32_t _noiseCount = 0;
    std::optional<float> _noiseTurn;
    float _noiseStep = 0;
    bool _locksAlpha = false;
    GLint _bgCoordIndex = -1;
    GLint _dabRecord = -1;  // -1 for a program that is given the uniforms of each dab
    dabcanvas::UniformFloat _moist, _load, _mix;
    dabcanvas::UniformInt _bgUnit, _heldUnit;
    dabcanvas::UniformVec4 _tipCell, _pickUp, _carried;
};
