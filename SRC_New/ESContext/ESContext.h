// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>
#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QSemaphore>
#include <QSizeF>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "ESContext/ESGLTypes.h"
#include "ESContext/ESOpenGLView.h"
#include "LineProcess/LPTypes.h"
#include "Maths/Export.h"
#include "Surface/RenderType.h"

/// The one OpenGL context of a canvas and its four offscreen targets: the canvas image and three layers.
///
/// Sizes    buffer pixels; rectangles come in with a top-left origin, GL rows run bottom-up. The smudge
///          layer is half the buffer each way, rounded down but at least one pixel: 1001 x 801 gives
///          500 x 400, 1 x 1 gives 1 x 1.
/// Owns     the platform view, whose context other buffers may lie in as well, four framebuffers, one renderbuffer,
///          three layer textures. Names handed out, such as lineTexture(), are to bind, never to delete;
///          destoryBuffer() frees them.
/// Current  every operation on buffers makes the context current and leaves it so. Callers that must not
///          disturb their host's context hold an ESCurrentScope around their calls; only init() and the
///          destructor restore by themselves.
/// Thread   whichever has this context current; bufferAccess, when set, serialises buffers and reads.
/// Loss     a driver may reset a context, and with it all pictures, for good. Steps that draw or read ask for it
///          when they end; one log line, isLost() from then on, and nothing is drawn or read any more.
/// Errors   never throws. createBufferWithSize() logs the bad size or the incomplete target and returns
///          false; what it had made of an incomplete set stays for destoryBuffer().
class DABCANVAS_RENDER_API ESContext {
public:
    // ---- Make

    /// A context over the first platform view that works here: surfaceless EGL, else Qt. Null when neither
    /// does, after one log line that says what is missing. No buffers yet; leaves the host's context current.
    static std::unique_ptr<ESContext> init();
    /// That view; null, after the same line.
    static std::unique_ptr<ESOpenGLView> makePlatformView();
    /// The same over a view of the caller's. Null when the view is null or gives no OpenGL 3.2.
    static std::unique_ptr<ESContext> init(std::unique_ptr<ESOpenGLView> view);
    /// Destroys the buffers and then the view, and leaves the host's context current.
    ~ESContext();
    ESContext(const ESContext&) = delete;
    ESContext& operator=(const ESContext&) = delete;

    /// Bits a channel of layers, and of the canvas, that are made from now on: 8 or 16.
    void setLayerDepth(int bits) { _layerDepth = bits; }
    int layerDepth() const { return _layerDepth; }
    void setCanvasDepth(int bits) { _canvasDepth = bits; }
    int canvasDepth() const { return _canvasDepth; }

    /// Makes all four targets, cleared to transparent, and leaves the canvas target bound. Targets of an
    /// earlier call are destroyed first. The sides are cut to integers; a size that is not finite, below one
    /// pixel or above what the driver takes changes nothing and returns false.
    bool createBufferWithSize(const QSizeF& size);
    /// The same without sub-line and smudge layer, which provideTarget() makes when they are needed.
    bool createFirstBuffersWithSize(const QSizeF& size);
    /// Makes a layer, transparent, unless it is there; the target that is bound may be another then. False, after
    /// one log line, when there is no room; may be asked again.
    bool provideTarget(ESRenderType type);
    /// Gives one layer's memory back; provideTarget() makes it anew.
    void releaseTarget(ESRenderType type);
    /// Whether it is there.
    bool hasTarget(ESRenderType type) const { return _frameBuffer[type] != 0; }
    /// Gives the canvas, line and, where there is one, sub-line targets new, cleared storage of another size.
    /// Deliberate: the smudge layer keeps the size it was created with. A bad size changes nothing.
    bool resizeWithSize(const QSizeF& size);
    /// Deletes all four targets; safe to call again.
    void destoryBuffer();

    // ---- Draw

    /// Deliberate: always true. ESCurrentScope tells whether the context really is current.
    bool changeToCurrentContext();
    /// Deliberate: always false, a constant. openGLView()->isCurrent() tells.
    bool isCurrentContext() const { return false; }

    /// Makes a target the one drawn into: its framebuffer stays bound, the viewport covers it, no scissor.
    void beginRenderForType(ESRenderType type);
    /// Ends what beginRenderForType() began: no scissor. Does not flush, see ESOpenGLView::flushBuffer().
    void finishRender();
    /// The target of the last beginRenderForType().
    ESRenderType currentRenderType() const { return static_cast<ESRenderType>(_currentRenderType); }

    /// Whether the driver has taken the context away, as far as was found. Another view is a new chance.
    bool isLost() const { return _isLost; }
    /// The same, after asking the driver, whose context must be current.
    bool checkLost();

    static void setEnable(bool enable, GLenum forProperty);
    static bool enableForProporty(GLenum capability);

    void setBlendModeWithColorEquation(GLenum colorEquation, GLenum alphaEquation);
    void setBlendWithSCFactor(GLenum scFactor, GLenum dCFactor, GLenum saFactor, GLenum daFactor);
    void setBlendWithSFactor(GLenum sFactor, GLenum dFactor);
    /// canvas: (ZERO, ONE_MINUS_SRC_ALPHA); sub-line: (ONE, ZERO); others: premultiplied source over.
    void setBlendModelForType(ESRenderType type);

    /// Clip drawing to the pixels a rectangle or a run of dabs (radius holds the diameter) touches, with a
    /// margin of one. The rectangle lives in the given space, or in the buffer; the box is in the current
    /// target: viewSize() for the canvas (the buffer size while no view size is set), else the buffer.
    /// An empty or inverted rectangle, such as that of no dabs, clips everything away.
    void scissorRect(const QRectF& rect);
    void scissorForPoints(const LPPoint* points, std::size_t numOfPoints);
    void scissorFromRect(const QRectF& space, const LPPoint* points, std::size_t numOfPoints);
    void scissorFromRect(const QRectF& space, const QRectF& rect);

    /// Copies the part of the current target around a centre point into a texture that mirrors it, on the
    /// given unit, which stays active with the texture bound. A name of 0 is made first: sides are the
    /// buffer's rounded up to a power of two, what lies beyond the target is transparent, the whole target is
    /// copied, and the caller owns the name. Parts outside the target are not copied.
    void updateTextureAtPosition(const QPointF& centre, const QSizeF& size, GLuint& forTexID, GLenum pos);

    // ---- Read back

    /// Whether the rectangle lies in the buffer and is at least one pixel each way.
    bool isEnableRect(const QRectF& rect) const;
    /// The whole-pixel rectangle with a bottom-left origin that a read of `rect` covers.
    QRectF gRectWithVRect(const QRectF& rect) const;

    /// Reads canvas pixels, bottom row first, rows without gaps: 4 bytes (premultiplied RGBA) for each pixel
    /// of gRectWithVRect(rect). Reads nothing when bytes is null or the rectangle is not enabled. Leaves the
    /// canvas framebuffer bound, whatever the current render type is.
    void readData(unsigned char* bytes, const QRectF& rect);
    /// The same with 16 bits a channel, 8 bytes a pixel, where that is the depth; what the canvas has no bits for is
    /// filled.
    void readData(unsigned char* bytes, const QRectF& rect, int depth);

    /// The canvas, or a part of it, right way up as Format_RGBA8888_Premultiplied; null when the rectangle is
    /// not enabled, memory is short or the context is lost. The two names do the same here.
    QImage image();
    QImage imageWithRect(const QRectF& rect);
    QImage newCGImageWithRect(const QRectF& rect);
    /// A whole target, right way up; null before the buffers exist. Leaves its framebuffer bound.
    QImage imageForType(ESRenderType type);
    QImage newCGImageForType(ESRenderType type);
    /// Wraps size.width() x size.height() pixels of premultiplied RGBA, bottom row first, into an image the
    /// right way up that shares nothing with them; null when there are none.
    static QImage imageWithData(const unsigned char* bytes, const QSizeF& size);
    static QImage newCGImageWithData(const unsigned char* bytes, const QSizeF& size);

    /// For display: reads a rectangle (top-left origin, cut to the buffer) of the canvas straight into the
    /// same place of `image`, a Format_RGBA8888_Premultiplied image of the buffer's size. Nothing else of the
    /// image is touched and nothing is allocated once the scratch rows have grown. False, and nothing done,
    /// when the image does not fit or nothing of the rectangle is in the buffer. Keeps the current target
    /// bound.
    bool updateImage(QImage& image, const QRect& rect);

    // ---- State

    GLint backingWidth() const { return _backingWidth; }
    GLint backingHeight() const { return _backingHeight; }
    /// Size in pixels of one target's storage.
    QSize sizeForType(ESRenderType type) const;
    /// Names of GL objects, to bind and never to delete; 0 where there is none.
    GLuint frameBuffer(ESRenderType type) const { return _frameBuffer[type]; }
    GLuint renderBuffer() const { return _renderBuffer; }
    GLuint lineTexture() const { return _lineTexture; }
    GLuint subLineTexture() const { return _sublineTexture; }
    GLuint smudgeTexture() const { return _smudgeTexture; }

    QSizeF viewSize() const { return _viewSize; }
    void setViewSize(const QSizeF& viewSize) { _viewSize = viewSize; }
    ESOpenGLView* openGLView() const { return _openGLView.get(); }
    /// The buffers live in the old view's context, so they are destroyed first.
    void setOpenGLView(std::unique_ptr<ESOpenGLView> openGLView);
    /// The store that whole-target reads go through, kept between them; grows when it is too small.
    QByteArray data() const { return _data; }
    void setData(const QByteArray& data) { _data = data; }
    /// Null (the default): nothing is serialised. Waited on without a time limit.
    std::shared_ptr<QSemaphore> bufferAccess() const { return _bufferAccess; }
    void setBufferAccess(std::shared_ptr<QSemaphore> bufferAccess) {
        _bufferAccess = std::move(bufferAccess);
    }

private:
    explicit ESContext(std::unique_ptr<ESOpenGLView> view);

    friend class ESCurrentScope;
    bool makeCurrent();
    void noteLost();
    bool sizeIsUsable(const QSizeF& size, QSize& pixels);
    GLuint& textureOf(ESRenderType type);
    void defineLayerTexture(GLuint texture, const QSize& size) const;
    void attachLayer(ESRenderType type);
    bool makeLayer(ESRenderType type, int line);
    bool checkFramebuffer(int line);
    void destroyLayer(ESRenderType type, GLuint& texture);
    void clearBoundTarget();

    std::unique_ptr<ESOpenGLView> _openGLView;
    GLuint _frameBuffer[dabcanvas::kRenderTypeCount] = {};
    GLuint _renderBuffer = 0;
    GLuint _lineTexture = 0;
    GLuint _sublineTexture = 0;
    GLuint _smudgeTexture = 0;
    GLint _backingWidth = 0;
    GLint _backingHeight = 0;
    QSize _smudgeSize;  // fixed at creation
    int _layerDepth = 8, _canvasDepth = 8;
    std::int64_t _currentRenderType = 0;
    bool _isLost = false;
    std::shared_ptr<QSemaphore> _bufferAccess;
    QSizeF _viewSize{0, 0};
    QByteArray _data;
    std::vector<unsigned char> _scratch;  // updateImage()'s rows
};
