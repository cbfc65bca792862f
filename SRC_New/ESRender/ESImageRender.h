// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QRectF>
#include <QString>
#include <array>
#include <memory>
#include <optional>

#include "ESRender/CachedUniform.h"
#include "ESRender/ESBaseRender.h"
#include "Maths/Export.h"
#include "Surface/BlendType.h"

/// Combines a source (the stroke's layers, or a placed image) with the canvas: draws a rectangle whose
/// fragment program reads source and background copy and writes the blended colour. GL blending is not what
/// mixes the two; the caller sets the factors (ONE, ZERO).
///
/// Units    buffer pixels, top-left origin; a point's radius field is the rectangle's width, roundness times
///          that its height.
/// Owns     its programs, a placed image's texture and the background copy. The line and sub-line textures are
///          the context's: they have the buffer's size and are read one texel a pixel, so their filters are
///          set to nearest.
/// Errors   init() gives null when the program does not build. GL errors are logged and drawing goes on.
class DABCANVAS_RENDER_API ESImageRender : public ESBaseRender {
public:
    static std::unique_ptr<ESImageRender> init();
    /// Programs come from the pool, where one is given; it must be the current context's.
    static std::unique_ptr<ESImageRender> initWithBufferSize(
        const QSizeF& bufferSize, std::shared_ptr<dabcanvas::ProgramPool> pool = {});
    ~ESImageRender() override;

    bool setVertexShaderString(const QString& vertexShaderString,
                               const QString& fragmentShaderFromString) override;
    void removeProgramWithVertexShaderString(const QString& vertexShaderString,
                                             const QString& fragmentShaderString) override;

    // ---- Default shaders: resources under "Shaders.bundle/"

    static QString imageRenderVertexShaderString();
    static QString normalFSHString();
    static QString replaceFSHString();
    static QString behindFSHString();
    static QString eraseFSHString();
    static QString tarnishFSHString();
    static QString brightnessFSHString();
    static QString multiplyFSHString();
    static QString resetFSHString();
    static QString placeFSHString();  ///< normal or replace, of a placed image with smooth edges

    // ---- Blend mode

    std::uint32_t blendType() const { return _blendType; }
    void setBlendType(std::uint32_t blendType);
    static QString vertexShaderStringForBlendType(std::uint32_t blendType);
    /// With "_Bool" turned into "bool".
    static QString fragmentShaderStringForBlendType(std::uint32_t blendType);
    /// The mode whose fragment text this is; 0 for none.
    static std::uint32_t blendTypeOfFragmentShaderString(const QString& fragmentShaderString);

    /// Bits a channel of canvas and background copy: 8 or 16, to be told before the latter is made.
    void setCanvasDepth(int bits) { _canvasDepth = bits; }
    /// Rounds what the modes make of a canvas by a noise of place and of a turn, 0..1, so that faint paint adds up; a
    /// pixel with none stays as it is. Without a turn, rounds to nearest.
    void setNoiseTurn(std::optional<float> turn);

    // ---- What is combined

    void setLineTextureID(GLuint texture, GLenum texturePos);
    void setSubLineTextureID(GLuint texture, GLenum texturePos);
    /// Copies the bound framebuffer, or a rectangle of it, into the background texture and keeps it on the
    /// unit.
    void updateBGTextureAtPos(GLenum pos);
    void updateBGTextureAtOrigin(const QPointF& origin, const QSizeF& size, GLenum pos);
    /// Copies an RGBA8888_Premultiplied image, or one of RGBA64, bottom row first, to a rectangle of its size, of the
    /// background texture and the bound framebuffer. What mode replace makes of an image that isCopy(), for copying its
    /// bytes twice; drawing takes a driver without a GPU ten times as long. onlyBG: not to the framebuffer.
    bool copyToBG(const QImage& rows, const QRect& rect, bool onlyBG = false);
    GLuint backgroundTexture() const { return _background.texture; }  ///< to read; 0 before the first copy
    /// Bind a role's texture on its unit; false for a role without one.
    bool useBGTexture() const { return _background.use(); }
    bool useLineTexture() const { return _line.use(); }
    bool useSubLineTexture() const { return _subLine.use(); }

    /// An image to place, or top-row-first pixels of one, read from where they lie. It keeps its size in
    /// pixels, whatever its device pixel ratio; only one above what the driver takes is scaled down. Null or
    /// empty input changes nothing; brushTexture() is null when there was no memory.
    void setTextureImage(const QImage& image, GLenum atPosition = GL_TEXTURE0) override;
    void setTextureData(const unsigned char* data, const QSize& dataSize,
                        GLenum atPosition = GL_TEXTURE0) override;
    /// Whether that image can be drawn as this dab: a reduced one needs mip levels, which are made here or, at the
    /// latest, by drawPoints(). False, and the image dropped, without a line, when there is no memory for them.
    bool isReadyToPlace(const LPPoint& point);
    /// The source is this renderer's brush texture, a placed image, rather than the line layer. drawPoints()
    /// drops it. In its own size on whole pixels, unturned or by quarters, it gives its exact pixels; enlarged
    /// it is interpolated, reduced it is averaged; where its edges cut through pixels these are blended, with
    /// the modes normal and replace.
    bool useLargeTexture() const { return _useLargeTexture; }
    void setUseLargeTexture(bool value) { _useLargeTexture = value; }
    /// The sub-line layer masks the line layer.
    bool repeatedlyRenderEnabled() const { return _repeatedlyRenderEnabled; }
    void setRepeatedlyRenderEnabled(bool value) { _repeatedlyRenderEnabled = value; }
    /// The mode replace, too, changes nothing where the source is transparent.
    void setLeavesBare(bool value) { _leavesBare = value; }
    /// Offsets count upwards, so a source is upright with flipY set.
    bool flipX() const { return _flipX; }
    void setFlipX(bool value) { _flipX = value; }
    bool flipY() const { return _flipY; }
    void setFlipY(bool value) { _flipY = value; }
    float radian() const { return _radian; }  ///< counter-clockwise
    void setRadian(float value) { _radian = value; }
    float roundness() const { return _roundness; }
    void setRoundness(float value) { _roundness = value; }

    /// Composites one rectangle a point; returns the touched rectangle in whole pixels, without a margin.
    QRectF drawPoints(const LPPoint* points, std::size_t count) override;
    /// The pixels, also beyond the buffer, that a placed image touches with the present roundness and radian.
    QRect placedRect(const LPPoint& point) const;
    /// Whether an image of that size comes out pixel by pixel, unturned, and there is a background texture.
    bool isCopy(const LPPoint& point, const QSize& imageSize) const;

protected:
    ESImageRender() = default;
    void bindAttributeForProgram(ESProgram& program) override;
    void programDidChange() override;

private:
    // A texture, the unit it is bound on and the size its coordinates divide by.
    struct Role {
        GLuint texture = 0;
        GLenum unit = GL_TEXTURE0;
        QSizeF size;

        bool use() const;
        GLint unitNumber() const { return static_cast<GLint>(unit - GL_TEXTURE0); }
    };
    struct Vertex;
    struct Bounds;

    void setLayer(Role& role, GLuint texture, GLenum unit);
    bool bindSources();
    std::array<float, 8> texCoords(const LPPoint& point) const;
    void drawRect(const LPPoint& point);
    void drawPlaced(const LPPoint& point);
    bool usePlaceProgram();
    void drawQuad(const std::array<Vertex, 4>& corners, const LPPoint& point);

    std::uint32_t _blendType = ESBlendTypeNormal;
    bool _flipX = false, _flipY = false;
    float _radian = 0, _roundness = 1;
    bool _hasLevels = false;  // the image to place
    bool _useLargeTexture = false, _repeatedlyRenderEnabled = false, _leavesBare = false;
    Role _background, _line, _subLine;
    int _canvasDepth = 8;
    std::optional<float> _noiseTurn;

    GLint _positionIndex = -1, _texCoordIndex = -1;
    dabcanvas::UniformFloat _opacityUniform, _radianUniform, _noiseTurnUniform;
    dabcanvas::UniformInt _useSubLine, _lineUnit, _subLineUnit, _bgUnit, _replace, _leavesBareUniform;
    dabcanvas::UniformVec2 _viewSize, _bgTextureSize, _flip, _center, _placedSize;
};

/// The blend programs as the library carries them, whatever files stand beside it.
class DABCANVAS_RENDER_API ImageRenderFSH {
public:
    static QString normalFSHString();
    static QString replaceFSHString();
    static QString behindFSHString();
    static QString eraseFSHString();
    static QString tarnishFSHString();
    static QString brightnessFSHString();
    static QString multiplyFSHString();
    static QString resetFSHString();
    static QString placeFSHString();
};
