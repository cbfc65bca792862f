// SPDX-License-Identifier: MIT
#pragma once

#include <epoxy/gl.h>

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QPointF>
#include <QRectF>
#include <QSize>
#include <QSizeF>
#include <QString>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "Brushes/ESColor.h"
#include "ESRender/Texture/TextureObject.h"
#include "ESRender/Utilities/ESProgram.h"
#include "ESRender/Utilities/ESProgromObject.h"
#include "ESRender/Utilities/ProgramPool.h"
#include "LineProcess/LPTypes.h"
#include "Maths/Export.h"

/// The root of the renderers: program cache, brush texture, colour and buffer size; draws each point as a
/// square of one flat colour into whatever framebuffer is bound.
///
/// Units    buffer pixels, top-left origin.
/// Owns     its programs, which it may share with others of a pool, and its brush texture. The context must be current
///          for everything but accessors, the destructor included.
/// Errors   a shader pair that does not build leaves the program as it was and returns false.
class DABCANVAS_RENDER_API ESBaseRender {
public:
    // ---- Make

    /// No program yet: setVertexShaderString({}, {}) makes the default one.
    static std::unique_ptr<ESBaseRender> init();
    static std::unique_ptr<ESBaseRender> initWithBufferSize(const QSizeF& bufferSize);
    /// Null when the program does not build. Null texts stand for the class's default shaders.
    static std::unique_ptr<ESBaseRender> initWithVertexShaderFromString(
        const QString& vertexShader, const QString& fragmentShaderFromString);
    virtual ~ESBaseRender();
    ESBaseRender(const ESBaseRender&) = delete;
    ESBaseRender& operator=(const ESBaseRender&) = delete;

    // ---- Shaders: the cache

    /// Switches to the program of two sources, building it when it is not cached. A null text (not an empty
    /// one) is replaced by the class default. Subclasses supply their own defaults.
    virtual bool setVertexShaderString(const QString& vertexShaderString,
                                       const QString& fragmentShaderFromString);
    /// The texts of the default shaders.
    static QString baseRenderVertexShaderString();
    static QString baseRenderFrangmentShaderString();

    bool useProgramWithVertexShaderString(const QString& vertexShaderString,
                                          const QString& fragmentShaderString);
    /// True only when a program was built and added.
    bool addProgramWithVertexShaderString(const QString& vertexShaderString,
                                          const QString& fragmentShaderString);
    /// A current pair is first exchanged for the class default.
    virtual void removeProgramWithVertexShaderString(const QString& vertexShaderString,
                                                     const QString& fragmentShaderString);
    /// Whether the cache has the pair.
    bool isExistWithVertexShaderString(const QString& vertexShaderString,
                                       const QString& fragmentShaderString) const;
    /// The cache's entry, not the caller's; null when there is none.
    ESProgromObject* programObjectWithVertexShaderString(const QString& vertexShaderString,
                                                         const QString& fragmentShaderString) const;
    /// All of the cache.
    const std::vector<std::unique_ptr<ESProgromObject>>& programObjects() const { return _programObjects; }

    /// Source loaders. Null (not empty) when there is no such file. Read as Latin-1: sources are ASCII.
    static QString stringWithPath(const QString& path);
    /// A resource, see ESResource.h. Read once a process: a file that changes later is taken by the next process. One
    /// that was missing is looked for again.
    static QString stringWithFileName(const QString& fileName);
    static QByteArray sourceWithString(const QString& string);  ///< zero-terminated ASCII
    static QByteArray sourceWithPath(const QString& path);
    static QByteArray sourceWithFileName(const QString& fileName);

    /// The current program; null until one was built.
    ESProgram* program() const { return _program.get(); }
    /// Makes the program, its vertex array and its buffer current in GL; without a program does nothing.
    void use() const;

    // ---- Brush texture; each replaces the previous one, and null or empty input changes nothing

    virtual void setTextureImage(const QImage& image, GLenum atPosition = GL_TEXTURE0);
    /// An atlas of the first 16 images: side 256 for up to 4, 512 for 5 to 9, 1024 for 10 or more.
    virtual void setTextureImages(const QList<QImage>& images, GLenum atPosition = GL_TEXTURE0);
    /// Premultiplied RGBA, 4 bytes a pixel, top row first.
    virtual void setTextureData(const unsigned char* data, const QSize& dataSize,
                                GLenum atPosition = GL_TEXTURE0);
    TextureObject* brushTexture() const { return _brushTexture.get(); }  ///< null until set
    GLenum texturePos() const { return _texturePos; }                    ///< unit it was made on
    /// Deliberate: how many images were handed in, before the cut to 16.
    unsigned numberOfTexture() const { return _numberOfTexture; }
    void setNumberOfTexture(unsigned numberOfTexture) { _numberOfTexture = numberOfTexture; }

    // ---- Draw

    /// Draws a square per point and returns the touched rectangle with a margin of one pixel. Without points,
    /// deliberately, the inverted rectangle (width, height, -width, -height): nothing drawn.
    virtual QRectF drawPoints(const LPPoint* points, std::size_t count);

    void clear() { clearWithRed(0, 0, 0, 0); }
    /// Clears the bound framebuffer; like every clear it is cut by an enabled scissor test, which
    /// ESContext::beginRenderForType() disables.
    void clearWithRed(float red, float green, float blue, float alpha);

    /// Keeps a texture that mirrors the bound read framebuffer. A name of 0 is made, to be the caller's, with
    /// the buffer's sides rounded up to a power of two, transparent beyond the buffer, and the whole buffer
    /// is copied; otherwise the rectangle, in bottom-up rows, cut to the buffer. Leaves the unit active and
    /// the texture bound.
    void updateTextureAtOrigin(const QPointF& origin, const QSizeF& size, GLuint& forTexID, GLenum pos,
                               int depth = 8);

    // ---- State

    const ESColor& renderColor() const { return _renderColor; }
    /// No colour gives black, grey sets all three components; alpha is not used (opacity and flow carry it).
    void setRenderColor(const ESColor& renderColor);
    /// What is drawn with, 0..1 each.
    float colorR() const { return _colorR; }
    float colorG() const { return _colorG; }
    float colorB() const { return _colorB; }
    /// 0..1. A value that is not finite is ignored, so that no shader ever sees one.
    float opacity() const { return _opacity; }
    void setOpacity(float opacity);
    float flow() const { return _flow; }
    void setFlow(float flow);
    /// Whether the caller wants drawing clipped to what each call touches.
    bool needScissor() const { return _needScissor; }
    void setNeedScissor(bool needScissor) { _needScissor = needScissor; }
    /// Bits for thin lines, as DabSettings has them.
    std::int32_t lineProcessType() const { return _lineProcessType; }
    void setLineProcessType(std::int32_t lineProcessType) { _lineProcessType = lineProcessType; }
    /// Pixels of what is drawn into.
    QSizeF bufferSize() const { return _bufferSize; }
    void setBufferSize(const QSizeF& bufferSize) { _bufferSize = bufferSize; }
    /// The texts of the current program.
    const QString& vertexShaderString() const { return _vertexShaderString; }
    const QString& fragmentShaderString() const { return _fragmentShaderString; }

protected:
    ESBaseRender() = default;

    /// Names the vertex attributes of a program that is made but not linked yet (no effect on GL).
    virtual void bindAttributeForProgram(ESProgram& program);
    /// The current program was switched, or another renderer has drawn with it: a subclass looks its locations up here
    /// and forgets which values and vertices the program has.
    virtual void programDidChange();
    /// Makes the current program ready to draw with, as use() does, and this renderer's own.
    void useOwn();

    /// Where programs come from; null: built for this renderer alone.
    std::shared_ptr<dabcanvas::ProgramPool> _pool;

    std::shared_ptr<ESProgram> _program;
    std::unique_ptr<TextureObject> _brushTexture;
    GLenum _texturePos = GL_TEXTURE0;
    float _colorR = 0;
    float _colorG = 0;
    float _colorB = 0;
    bool _needScissor = false;
    float _opacity = 1.0f;
    float _flow = 1.0f;
    std::int32_t _lineProcessType = 0;
    QString _vertexShaderString;
    QString _fragmentShaderString;
    ESColor _renderColor;
    unsigned _numberOfTexture = 0;
    std::vector<std::unique_ptr<ESProgromObject>> _programObjects;
    QSizeF _bufferSize{0, 0};

private:
    // Locations of the base shaders in the current program.
    GLint _positionIndex = -1;
    GLint _colorIndex = -1;
    GLint _viewSizeIndex = -1;
    GLint _centerIndex = -1;
    GLint _pointSizeIndex = -1;
};
