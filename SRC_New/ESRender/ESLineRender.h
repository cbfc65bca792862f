// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <QString>
#include <array>
#include <memory>
#include <span>
#include <type_traits>

#include "Dabs/Dab.h"
#include "Dabs/Picture.h"
#include "ESRender/CachedUniform.h"
#include "ESRender/ESBaseRender.h"
#include "LineProcess/Tingle.h"
#include "Maths/Export.h"

namespace dabcanvas {
class DabBatch;
struct DabBounds;
class PaperTexture;
class TipAtlas;
}  // namespace dabcanvas

/// Draws the points of a stroke as textured, rotated, squeezed and jittered dabs into the bound framebuffer.
///
/// Units    buffer pixels, top-left origin; angles counter-clockwise in radians; a point's radius field is the
///          dab's width.
/// Owns     its programs, tip and paper textures. The context must be current for everything but the plain
///          setters.
/// State    the dab counter and direction run on from call to call until resetLineProporty() begins the next
///          stroke.
/// Errors   init() gives null when the program does not build. GL errors are logged and drawing goes on.
class DABCANVAS_RENDER_API ESLineRender : public ESBaseRender {
public:
    using Dab = dabcanvas::Dab;
    using DabSettings = dabcanvas::DabSettings;

    /// Programs come from the pool, where one is given; it must be the current context's.
    static std::unique_ptr<ESLineRender> init(std::shared_ptr<dabcanvas::ProgramPool> pool = {});
    /// Null texts stand for the line program; "_Bool" in either is read as "bool".
    static std::unique_ptr<ESLineRender> initWithVertexShaderFromString(
        const QString& vertexShader, const QString& fragmentShaderFromString);
    ~ESLineRender() override;

    bool setVertexShaderString(const QString& vertexShaderString,
                               const QString& fragmentShaderFromString) override;
    /// The texts of the line program.
    static QString lineRenderNormalVertexShaderString();
    static QString lineRenderNormalFrangmentShaderString();

    /// Begins a stroke.
    virtual void resetLineProporty() { _dabs.reset(); }

    /// Returns the touched rectangle with a margin of one pixel, cut to the buffer; empty when nothing was
    /// drawn.
    QRectF drawPoints(const LPPoint* points, std::size_t count) override;

    /// Draws dabs that were made elsewhere, with this renderer's tips, paper and multicolour, blended as GL is set to.
    void drawDabs(std::span<const Dab> dabs);

    /// The same over what a target of 16 bits a channel holds, however GL is set to blend: rounded by a noise of place
    /// and of the dabs' number, from `first` on, so that faint ones add up. Exactly where the driver lets programs read
    /// what they draw on; else, and with a host's program, its blending rounds besides.
    void drawDabsFinely(std::span<const Dab> dabs, std::uint32_t first);
    /// Whether programs read what they draw on, where the driver lets them; off at first.
    void setUseFramebufferFetch(bool value) { _useFetch = value && hasFramebufferFetch(); }
    static bool hasFramebufferFetch();

    /// Dabs drawn since the renderer was made.
    std::uint64_t dabsDrawn() const { return _dabsDrawn; }

    bool needMoveRadianSupport() const { return _dabs.flags().moveRadian; }
    /// The negated angle from the first position to the second.
    static float radianWithPosition(LPPosition position, LPPosition nextPosition) {
        return -Radian(position, nextPosition);
    }

    // ---- Brush; the canvas's properties of the same names tell ranges and meaning

    using ESBaseRender::setTextureImage;
    /// Deliberate: outside of multicolour (setColorFul()) a tip's own colour is ignored; its alpha is the shape.
    void setTextureImage(const QImage& image, GLenum atPosition) override;
    void setTextureImages(const QList<QImage>& images, GLenum atPosition) override;
    void setTextureData(const unsigned char* data, const QSize& dataSize, GLenum atPosition) override;
    /// The same tips and paper as pixels that are shared. Only a host's program has textures made of them that others
    /// can see.
    void setTips(std::shared_ptr<const dabcanvas::TipSet> tips, GLenum atPosition);
    void setPaper(std::shared_ptr<const dabcanvas::Picture> paper);
    /// Keeps the image; its texture lies on unit 7. A null one turns the mask off.
    void setMaskImage(const QImage& image);
    const QImage& maskImage() const { return _maskImage; }  ///< null for a paper that was set as pixels
    void setNeedMaskTexture(bool value) { _needMaskTexture = value; }
    bool needMaskTexture() const { return _needMaskTexture; }
    void setMaskScale(float value) { _maskScale = value; }
    float maskScale() const { return _maskScale; }
    /// What a height of the paper, 0..1, lets through: gain * height + level; the library's own program alone asks.
    void setMaskRelief(float gain, float level) {
        _reliefGain = gain;
        _reliefLevel = level;
    }

    const DabSettings& settings() const { return _dabs.settings; }
    void setIsDebug(bool value) { set(&DabSettings::isDebug, value); }
    void setRadius(float value) { set(&DabSettings::radius, value); }
    void setMinRadius(float value) { set(&DabSettings::minRadius, value); }
    void setRadiusTingle(float value) { set(&DabSettings::radiusTingle, value); }
    void setDistribution(float value) { set(&DabSettings::distribution, value); }
    void setDistributionControl(const LPControlParams& value) {
        set(&DabSettings::distributionControl, value);
    }
    void setDisTwoAxes(bool value) { set(&DabSettings::disTwoAxes, value); }
    void setDistributionCount(std::uint32_t value) { set(&DabSettings::distributionCount, value); }
    void setDistributionCountTingle(float value) { set(&DabSettings::distributionCountTingle, value); }
    void setDistributionCountControl(const LPControlParams& value) {
        set(&DabSettings::distributionCountControl, value);
    }
    void setRadian(float value) { set(&DabSettings::radian, value); }
    void setRadianTingle(float value) { set(&DabSettings::radianTingle, value); }
    void setRadianControl(const LPControlParams& value) { set(&DabSettings::radianControl, value); }
    void setStartRadianEnable(bool value) { set(&DabSettings::startRadianEnable, value); }
    void setMoveRadianEnable(bool value) { set(&DabSettings::moveRadianEnable, value); }
    void setRoundness(float value) { set(&DabSettings::roundness, value); }
    void setMinRoundness(float value) { set(&DabSettings::minRoundness, value); }
    void setRoundnessTingle(float value) { set(&DabSettings::roundnessTingle, value); }
    void setRoundnessControl(const LPControlParams& value) { set(&DabSettings::roundnessControl, value); }
    void setFlipX(bool value) { set(&DabSettings::flipX, value); }
    void setFlipY(bool value) { set(&DabSettings::flipY, value); }
    void setFlipXTingle(bool value) { set(&DabSettings::flipXTingle, value); }
    void setFlipYTingle(bool value) { set(&DabSettings::flipYTingle, value); }
    void setMinFlow(float value) { set(&DabSettings::minFlow, value); }
    void setMaxFlow(float value) { set(&DabSettings::maxFlow, value); }
    void setFlowTingle(float value) { set(&DabSettings::flowTingle, value); }
    void setDecay(float value) { set(&DabSettings::decay, value); }
    void setFlowControl(const LPControlParams& value) { set(&DabSettings::flowControl, value); }
    void setTextureTingleEnabled(bool value) { set(&DabSettings::textureTingleEnabled, value); }
    void setTextureControl(const LPControlParams& value) { set(&DabSettings::textureControl, value); }
    void setColorTingle(float value) { set(&DabSettings::colorTingle, value); }
    void setColorControl(const LPControlParams& value) { set(&DabSettings::colorControl, value); }
    void setHueTingle(float value) { set(&DabSettings::hueTingle, value); }
    void setSaturationTingle(float value) { set(&DabSettings::saturationTingle, value); }
    void setBrightnessTingle(float value) { set(&DabSettings::brightnessTingle, value); }
    void setColorFul(bool value) { set(&DabSettings::colorFul, value); }
    /// The secondary colour; no colour gives black, as with setRenderColor().
    void setBackRenderColor(const ESColor& color);

protected:
    ESLineRender();
    void bindAttributeForProgram(ESProgram& program) override;
    void programDidChange() override;

    void takeBrush();
    void setDabUniforms(const Dab& dab);
    bool usesFetch() const { return _useFetch; }
    static constexpr char kFetchDefines[] =
        "#extension GL_EXT_shader_framebuffer_fetch : require\n#define FETCH\n";
    /// What stands before a fragment text that draws by records.
    static QString recordText(const QString& vertex, const QString& fragment);
    /// The atlas of the tips, made when it is first needed; false, and nothing to draw with, without one.
    bool hasAtlas(bool withColour);
    /// Binds it, and what it is; null before it was made.
    void useAtlas();
    const dabcanvas::TipAtlas* atlas() const { return _atlas.get(); }
    /// Binds brushTexture(), made of the tips where it was not.
    void useBrushTexture();

    dabcanvas::DabMaker _dabs;
    std::uint64_t _dabsDrawn = 0;

    GLint _positionIndex = -1;
    GLint _texCoordIndex = -1;
    dabcanvas::UniformInt _colorful, _brushUnit, _tipsUnit;
    dabcanvas::UniformVec2 _viewSize, _flip, _center, _tipSize;
    dabcanvas::UniformVec4 _color;
    dabcanvas::UniformFloat _flowUniform, _radian, _roundness, _pointSize;

private:
    template <typename Value>
    void set(Value DabSettings::*field, const std::type_identity_t<Value>& value) {
        _dabs.settings.*field = value;
        _dabs.updateFlags();
    }

    // What a program is compiled for.
    struct Variant {
        bool records = false, mask = true, multicolour = true, fine = false, fetch = false, oneLevel = false;
        bool operator==(const Variant&) const = default;
    };

    static std::unique_ptr<ESLineRender> make(const QString& vertexShader, const QString& fragmentShader,
                                              std::shared_ptr<dabcanvas::ProgramPool> pool);
    void keepTips(const QList<QImage>& images);
    void takeTips(std::shared_ptr<const dabcanvas::TipSet> tips);
    bool begin(bool fine);
    void end();
    void drawAll(std::span<const Dab> dabs, bool fine);
    void prepareProgram(const Variant& variant);
    void drawBatch();
    void chooseProgram(const Variant& wanted);
    bool takesRecords() const { return _recordFields[0] >= 0; }  // the current program
    bool hasPaper() const { return _needMaskTexture && _paper && !_paper->pixels.isNull(); }
    bool useMask();
    void noteTexture(bool made);
    void uploadTipCells();
    void drawDab(const Dab& dab);
    void clipTo(const dabcanvas::DabBounds& bounds) const;

    // As pixels, for textures that are made when they are first needed.
    std::shared_ptr<const dabcanvas::TipSet> _tips;
    std::shared_ptr<const dabcanvas::Picture> _paper;
    std::unique_ptr<dabcanvas::TipAtlas> _atlas;
    std::unique_ptr<dabcanvas::PaperTexture> _paperTexture;
    bool _lacksTexture = false;  // the last that was asked for

    bool _needMaskTexture = false;
    float _maskScale = 1;
    float _reliefGain = 1, _reliefLevel = 0;
    QImage _maskImage;
    std::unique_ptr<TextureObject> _maskTexture;

    QString _wholeVertexShader,
        _wholeFragmentShader;  // the texts last set, of which leaner programs are made
    bool _isOwnText = false;   // they are the library's
    Variant _variant;
    bool _useFetch = false;
    bool _fine = false;  // the present run
    std::uint32_t _noiseCount = 0;
    std::unique_ptr<dabcanvas::DabBatch> _batch;
    std::array<GLint, 7> _recordFields{-1, -1, -1, -1, -1, -1, -1};  // locations; -1 for a program without
    bool _tipCellsUploaded = false;
    GLint _tipCells = -1;
    dabcanvas::UniformInt _useMask, _maskUnit, _reducedMaskUnit;
    dabcanvas::UniformVec2 _maskSize, _maskLevel, _maskRelief;
    dabcanvas::UniformVec4 _maskBaseCoord;
    dabcanvas::UniformFloat _hueTingle, _saturationTingle, _brightnessTingle, _rand;
};
