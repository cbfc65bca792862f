// SPDX-License-Identifier: MIT
// Making, resizing and destroying the targets, and drawing state. Reading back is in ESContextRead.cpp.
#include "ESContext/ESContext.h"

#include <epoxy/gl.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <new>
#include <string>
#include <thread>

#include "ESContext/EGLSurfacelessView.h"
#include "ESContext/ESBufferAccess.h"
#include "ESContext/ESCurrentScope.h"
#include "ESContext/QtOffscreenView.h"
#include "ESRender/Utilities/ESGLErrors.h"
#include "ESRender/Utilities/ESGLTexture.h"
#include "Maths/Rounding.h"

using dabcanvas::truncatedInt;

namespace {

constexpr char kFile[] = "SRC_New/ESContext/ESContext";

// Stage numbers of the message about an incomplete framebuffer.
enum Stage : int {
    kCanvasMade = 219,
    kLineMade = 257,
    kSubLineMade = 295,
    kSmudgeMade = 333,
    kCanvasResized = 397,
    kLineResized = 425,
    kSubLineResized = 453,
};

// A new name, asked for once more after a frame's time when the driver gives none.
template <typename Generate>
GLuint generateName(Generate generate) {
    GLuint name = 0;
    generate(&name);
    if (name == 0) {
        std::this_thread::sleep_for(std::chrono::duration<double>(0.016666666666666666));
        generate(&name);
    }
    return name;
}

GLuint newFramebuffer() {
    return generateName([](GLuint* name) { glGenFramebuffers(1, name); });
}

bool isRenderType(std::int64_t type) {
    return type >= 0 && type < dabcanvas::kRenderTypeCount;
}

}  // namespace

std::unique_ptr<ESOpenGLView> ESContext::makePlatformView() {
    std::string missing;
    QString reason;
    try {
        if (std::unique_ptr<ESOpenGLView> view = EGLSurfacelessView::create(&reason)) {
            return view;
        }
        missing = reason.toStdString();
        if (std::unique_ptr<ESOpenGLView> view = QtOffscreenView::create(&reason)) {
            return view;
        }
        missing += "; " + reason.toStdString();
    } catch (const std::bad_alloc&) {
        missing = "memory";
    }
    qCWarning(lcDabcanvasGL, "No OpenGL 3.2 here: %s", missing.c_str());
    return nullptr;
}

std::unique_ptr<ESContext> ESContext::init() {
    auto view = makePlatformView();
    return view ? init(std::move(view)) : nullptr;
}

std::unique_ptr<ESContext> ESContext::init(std::unique_ptr<ESOpenGLView> view) {
    const ESCurrentScope current(view.get());
    if (!current) {
        qCWarning(lcDabcanvasGL, "The OpenGL view's context cannot be made current");
        return nullptr;
    }
    if (!epoxy_is_desktop_gl() || epoxy_gl_version() < 32) {
        qCWarning(lcDabcanvasGL, "The OpenGL view's context is version %d.%d, 3.2 is needed",
                  epoxy_gl_version() / 10, epoxy_gl_version() % 10);
        return nullptr;
    }
    return std::unique_ptr<ESContext>(new ESContext(std::move(view)));
}

ESContext::ESContext(std::unique_ptr<ESOpenGLView> view) : _openGLView(std::move(view)) {}

ESContext::~ESContext() {
    _bufferAccess.reset();
    setOpenGLView(nullptr);
}

void ESContext::setOpenGLView(std::unique_ptr<ESOpenGLView> openGLView) {
    {
        const ESCurrentScope current(*this);
        destoryBuffer();
    }
    // Had the old context been out of reach, its names must not be taken for the new one's.
    std::fill_n(_frameBuffer, dabcanvas::kRenderTypeCount, 0u);
    _renderBuffer = _lineTexture = _sublineTexture = _smudgeTexture = 0;
    _backingWidth = _backingHeight = 0;
    _openGLView = std::move(openGLView);
    _isLost = false;
}

bool ESContext::makeCurrent() {
    if (_isLost || !_openGLView) {
        return false;
    }
    if (_openGLView->makeCurrent()) {
        return true;
    }
    if (_openGLView->isLost()) {
        noteLost();
    }
    return false;
}

void ESContext::noteLost() {
    if (!std::exchange(_isLost, true)) {
        qCWarning(lcDabcanvasGL, "The OpenGL context was lost; nothing is drawn in it any more");
    }
}

bool ESContext::checkLost() {
    if (!_isLost && dabcanvas::drainFindsLostContext(kFile, __LINE__)) {
        noteLost();
    }
    return _isLost;
}

bool ESContext::changeToCurrentContext() {
    makeCurrent();
    return true;
}

// The buffer's sides in whole pixels, or false (logged) when this driver cannot make such a buffer. The
// context must be current.
bool ESContext::sizeIsUsable(const QSizeF& size, QSize& pixels) {
    GLint renderbuffer = 0;
    GLint viewport[2] = {};
    glGetIntegerv(GL_MAX_RENDERBUFFER_SIZE, &renderbuffer);
    glGetIntegerv(GL_MAX_VIEWPORT_DIMS, viewport);
    const int limit = std::min({renderbuffer, dabcanvas::maxTextureSize(), viewport[0], viewport[1]});
    const auto fits = [limit](double side) { return std::isfinite(side) && side >= 1 && side < limit + 1.0; };
    if (!fits(size.width()) || !fits(size.height())) {
        qCWarning(lcDabcanvasGL, "A buffer of %g x %g pixels is not possible, each side must be 1 to %d",
                  size.width(), size.height(), limit);
        return false;
    }
    pixels = QSize(truncatedInt(size.width()), truncatedInt(size.height()));
    return true;
}

bool ESContext::createBufferWithSize(const QSizeF& size) {
    if (!createFirstBuffersWithSize(size)) {
        return false;
    }
    _currentRenderType = ESRenderTypeLine;
    if (!makeLayer(ESRenderTypeSubLine, kSubLineMade)) {
        return false;
    }
    // Deliberate: the smudge layer is counted as current while it is being made.
    _currentRenderType = ESRenderTypeSmudge;
    if (!makeLayer(ESRenderTypeSmudge, kSmudgeMade)) {
        return false;
    }
    glBindFramebuffer(GL_FRAMEBUFFER, _frameBuffer[ESRenderTypeCanvas]);
    _currentRenderType = ESRenderTypeCanvas;
    return true;
}

bool ESContext::createFirstBuffersWithSize(const QSizeF& size) {
    QSize pixels;
    if (!makeCurrent() || !sizeIsUsable(size, pixels)) {
        return false;
    }
    destoryBuffer();  // an earlier set would leak
    _openGLView->setFrame(QRectF(QPointF(0, 0), size));
    const ESBufferAccess access(_bufferAccess);
    drainGLErrors(kFile, __LINE__);
    glBindFramebuffer(GL_FRAMEBUFFER, 0);  // the draw and the read framebuffer
    glBindRenderbuffer(GL_RENDERBUFFER, 0);
    _backingWidth = pixels.width();
    _backingHeight = pixels.height();
    // Deliberate: a one-pixel buffer still has a smudge layer, where half of one would be none.
    _smudgeSize = QSize(std::max(_backingWidth / 2, 1), std::max(_backingHeight / 2, 1));

    _currentRenderType = ESRenderTypeCanvas;
    _frameBuffer[ESRenderTypeCanvas] = newFramebuffer();
    glBindFramebuffer(GL_FRAMEBUFFER, _frameBuffer[ESRenderTypeCanvas]);
    _renderBuffer = generateName([](GLuint* name) { glGenRenderbuffers(1, name); });
    glBindRenderbuffer(GL_RENDERBUFFER, _renderBuffer);
    glRenderbufferStorage(GL_RENDERBUFFER, _canvasDepth > 8 ? GL_RGBA16 : GL_RGBA8, _backingWidth,
                          _backingHeight);
    glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, _renderBuffer);
    if (!checkFramebuffer(kCanvasMade)) {
        return false;
    }
    clearBoundTarget();
    if (!makeLayer(ESRenderTypeLine, kLineMade)) {
        return false;
    }
    glBindFramebuffer(GL_FRAMEBUFFER, _frameBuffer[ESRenderTypeCanvas]);
    return true;
}

bool ESContext::provideTarget(ESRenderType type) {
    if (!isRenderType(type) || _backingWidth == 0) {
        return false;
    }
    if (hasTarget(type)) {
        return true;
    }
    const ESBufferAccess access(_bufferAccess);
    if (!makeCurrent()) {
        return false;
    }
    drainGLErrors(kFile, __LINE__);  // what is found below must be this layer's
    attachLayer(type);
    const bool complete = glCheckFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE;
    if (dabcanvas::takeGLErrors() == 0 && complete) {
        clearBoundTarget();
        return true;
    }
    releaseTarget(type);
    const QSize size = sizeForType(type);
    qCWarning(lcDabcanvasGL, "there is no memory for a layer of %d x %d pixels", size.width(), size.height());
    return false;
}

void ESContext::releaseTarget(ESRenderType type) {
    if (type == ESRenderTypeCanvas || !isRenderType(type) || !hasTarget(type) || !makeCurrent()) {
        return;
    }
    destroyLayer(type, textureOf(type));
    glDeleteFramebuffers(1, &_frameBuffer[type]);
    _frameBuffer[type] = 0;
}

GLuint& ESContext::textureOf(ESRenderType type) {
    return type == ESRenderTypeSmudge    ? _smudgeTexture
           : type == ESRenderTypeSubLine ? _sublineTexture
                                         : _lineTexture;
}

void ESContext::defineLayerTexture(GLuint texture, const QSize& size) const {
    glBindTexture(GL_TEXTURE_2D, texture);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    glTexImage2D(GL_TEXTURE_2D, 0, _layerDepth > 8 ? GL_RGBA16 : GL_RGBA, size.width(), size.height(), 0,
                 GL_RGBA, GL_UNSIGNED_BYTE, nullptr);
}

// Leaves its framebuffer bound, and no texture.
void ESContext::attachLayer(ESRenderType type) {
    GLuint& texture = textureOf(type);
    _frameBuffer[type] = newFramebuffer();
    glBindFramebuffer(GL_FRAMEBUFFER, _frameBuffer[type]);
    texture = generateName([](GLuint* name) { glGenTextures(1, name); });
    defineLayerTexture(texture, sizeForType(type));
    glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, texture, 0);
    glBindTexture(GL_TEXTURE_2D, 0);
}

bool ESContext::makeLayer(ESRenderType type, int line) {
    attachLayer(type);
    // Checked while it is bound: the default framebuffer of a context without a surface is never complete.
    if (!checkFramebuffer(line)) {
        return false;
    }
    clearBoundTarget();
    glBindFramebuffer(GL_FRAMEBUFFER, 0);
    return true;
}

bool ESContext::checkFramebuffer(int line) {
    const GLenum status = glCheckFramebufferStatus(GL_FRAMEBUFFER);
    const int errors = drainGLErrors(kFile, line);
    if (status == GL_FRAMEBUFFER_COMPLETE && errors == 0) {
        return true;
    }
    qCWarning(lcDabcanvasGL, "Failed to make complete framebuffer object %x, line %d", status, line);
    return false;
}

// New storage holds whatever the memory held before.
void ESContext::clearBoundTarget() {
    constexpr GLfloat kTransparent[4] = {};
    glDisable(GL_SCISSOR_TEST);
    glClearBufferfv(GL_COLOR, 0, kTransparent);
}

bool ESContext::resizeWithSize(const QSizeF& size) {
    QSize pixels;
    if (!makeCurrent() || !sizeIsUsable(size, pixels)) {
        return false;
    }
    if (!_renderBuffer || !_lineTexture) {
        qCWarning(lcDabcanvasGL, "There are no buffers to resize");
        return false;
    }
    _openGLView->setFrame(QRectF(QPointF(0, 0), size));
    const ESBufferAccess access(_bufferAccess);
    drainGLErrors(kFile, __LINE__);
    glBindFramebuffer(GL_FRAMEBUFFER, _frameBuffer[ESRenderTypeCanvas]);
    glBindRenderbuffer(GL_RENDERBUFFER, _renderBuffer);
    _backingWidth = pixels.width();
    _backingHeight = pixels.height();
    glRenderbufferStorage(GL_RENDERBUFFER, _canvasDepth > 8 ? GL_RGBA16 : GL_RGBA8, _backingWidth,
                          _backingHeight);
    if (!checkFramebuffer(kCanvasResized)) {
        return false;
    }
    clearBoundTarget();
    const auto resizeLayer = [&](ESRenderType type, GLuint texture, int line) {
        glBindFramebuffer(GL_FRAMEBUFFER, _frameBuffer[type]);
        defineLayerTexture(texture, pixels);
        glBindTexture(GL_TEXTURE_2D, 0);
        if (!checkFramebuffer(line)) {
            return false;
        }
        clearBoundTarget();
        return true;
    };
    return resizeLayer(ESRenderTypeLine, _lineTexture, kLineResized) &&
           (!_sublineTexture || resizeLayer(ESRenderTypeSubLine, _sublineTexture, kSubLineResized));
}

void ESContext::destoryBuffer() {
    const ESBufferAccess access(_bufferAccess);
    if (!makeCurrent()) {
        return;
    }
    destroyLayer(ESRenderTypeSmudge, _smudgeTexture);
    destroyLayer(ESRenderTypeSubLine, _sublineTexture);
    destroyLayer(ESRenderTypeLine, _lineTexture);
    if (_renderBuffer) {
        glBindFramebuffer(GL_FRAMEBUFFER, _frameBuffer[ESRenderTypeCanvas]);
        glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, 0);
        glBindRenderbuffer(GL_RENDERBUFFER, 0);
        glDeleteRenderbuffers(1, &_renderBuffer);
        _renderBuffer = 0;
    }
    glBindFramebuffer(GL_FRAMEBUFFER, 0);
    for (GLuint& framebuffer : _frameBuffer) {
        if (framebuffer) {
            glDeleteFramebuffers(1, &framebuffer);
            framebuffer = 0;
        }
    }
    // Without buffers no rectangle is in them.
    _backingWidth = 0;
    _backingHeight = 0;
    _smudgeSize = QSize();
}

void ESContext::destroyLayer(ESRenderType type, GLuint& texture) {
    if (texture == 0) {
        return;
    }
    glBindFramebuffer(GL_FRAMEBUFFER, _frameBuffer[type]);
    glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, 0, 0);
    glBindFramebuffer(GL_FRAMEBUFFER, 0);
    glDeleteTextures(1, &texture);
    texture = 0;
}

QSize ESContext::sizeForType(ESRenderType type) const {
    return type == ESRenderTypeSmudge ? _smudgeSize : QSize(_backingWidth, _backingHeight);
}

void ESContext::beginRenderForType(ESRenderType type) {
    if (!isRenderType(type)) {
        return;
    }
    _currentRenderType = type;
    if (!makeCurrent()) {
        return;
    }
    glBindRenderbuffer(GL_RENDERBUFFER, 0);
    glBindFramebuffer(GL_FRAMEBUFFER, _frameBuffer[type]);
    const QSize size = sizeForType(type);
    glViewport(0, 0, size.width(), size.height());
    glDisable(GL_SCISSOR_TEST);
}

void ESContext::finishRender() {
    if (makeCurrent()) {
        _openGLView->flushBuffer();
        glDisable(GL_SCISSOR_TEST);
        checkLost();
    }
}

void ESContext::setEnable(bool enable, GLenum forProperty) {
    if (enableForProporty(forProperty) == enable) {
        return;
    }
    if (enable) {
        glEnable(forProperty);
    } else {
        glDisable(forProperty);
    }
}

bool ESContext::enableForProporty(GLenum capability) {
    return glIsEnabled(capability);
}

void ESContext::setBlendModeWithColorEquation(GLenum colorEquation, GLenum alphaEquation) {
    glEnable(GL_BLEND);
    glBlendEquationSeparate(colorEquation, alphaEquation);
}

void ESContext::setBlendWithSCFactor(GLenum scFactor, GLenum dCFactor, GLenum saFactor, GLenum daFactor) {
    glEnable(GL_BLEND);
    glBlendFuncSeparate(scFactor, dCFactor, saFactor, daFactor);
}

void ESContext::setBlendWithSFactor(GLenum sFactor, GLenum dFactor) {
    glEnable(GL_BLEND);
    glBlendFunc(sFactor, dFactor);
}

void ESContext::setBlendModelForType(ESRenderType type) {
    setBlendModeWithColorEquation(GL_FUNC_ADD, GL_FUNC_ADD);
    switch (type) {
        case ESRenderTypeCanvas:
            setBlendWithSFactor(GL_ZERO, GL_ONE_MINUS_SRC_ALPHA);
            break;
        case ESRenderTypeSubLine:
            setBlendWithSFactor(GL_ONE, GL_ZERO);
            break;
        default:
            setBlendWithSFactor(GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
    }
}

void ESContext::scissorRect(const QRectF& rect) {
    scissorFromRect(QRectF(0, 0, _backingWidth, _backingHeight), rect);
}

void ESContext::scissorForPoints(const LPPoint* points, std::size_t numOfPoints) {
    scissorFromRect(QRectF(0, 0, _backingWidth, _backingHeight), points, numOfPoints);
}

void ESContext::scissorFromRect(const QRectF& space, const LPPoint* points, std::size_t numOfPoints) {
    auto minX = static_cast<float>(space.width());
    auto minY = static_cast<float>(space.height());
    float maxX = 0;
    float maxY = 0;
    for (std::size_t i = 0; points && i < numOfPoints; ++i) {
        const double x = points[i].position.x;
        const double y = points[i].position.y;
        const double half = points[i].radius * 0.5;
        minX = static_cast<float>(std::min<double>(minX, x - half - 1));
        minY = static_cast<float>(std::min<double>(minY, y - half - 1));
        maxX = static_cast<float>(std::max<double>(maxX, x + half + 1));
        maxY = static_cast<float>(std::max<double>(maxY, y + half + 1));
    }
    scissorFromRect(space, QRectF(minX, minY, double{maxX} - minX, double{maxY} - minY));
}

void ESContext::scissorFromRect(const QRectF& space, const QRectF& rect) {
    const bool inView = _currentRenderType == ESRenderTypeCanvas && !_viewSize.isEmpty();
    const QSizeF target = inView ? _viewSize : QSizeF(_backingWidth, _backingHeight);
    // From the pixel before the first one touched, and to the pixel after the last.
    const auto lower = [](double edge, double scale, double side) {
        return std::max(std::min<double>(truncatedInt(edge * scale), side) - 1, 0.0);
    };
    const auto upper = [](double edge, double scale, double side) {
        return std::min(std::max<double>(truncatedInt(edge * scale), 0.0) + 1, side);
    };
    const double scaleX = target.width() / space.width();
    const double scaleY = target.height() / space.height();
    const double x0 = lower(rect.left(), scaleX, target.width());
    const double y0 = lower(rect.top(), scaleY, target.height());
    const double x1 = upper(rect.right(), scaleX, target.width());
    const double y1 = upper(rect.bottom(), scaleY, target.height());
    // GL rejects a negative size, which would leave the box of an earlier call in place.
    const bool empty = rect.width() < 0 || rect.height() < 0;
    glEnable(GL_SCISSOR_TEST);
    glScissor(truncatedInt(x0), truncatedInt(target.height() - y1),
              empty ? 0 : std::max(truncatedInt(x1 - x0), 0), empty ? 0 : std::max(truncatedInt(y1 - y0), 0));
}

void ESContext::updateTextureAtPosition(const QPointF& centre, const QSizeF& size, GLuint& forTexID,
                                        GLenum pos) {
    // The smudge target is smaller than the texture that mirrors it; copies end where its pixels do.
    const QSize target = sizeForType(currentRenderType());
    glActiveTexture(pos);
    if (forTexID == 0) {
        forTexID = dabcanvas::makeClearedTexture(
            {ExponentialWithInter(_backingWidth), ExponentialWithInter(_backingHeight)},
            GL_LINEAR_MIPMAP_LINEAR);
        if (forTexID == 0) {
            return;
        }
        dabcanvas::copyFramebufferToTexture(QRect(QPoint(0, 0), target), target);
    } else {
        glBindTexture(GL_TEXTURE_2D, forTexID);
        const QRect rect(truncatedInt(centre.x() - size.width() / 2),
                         truncatedInt(_backingHeight - centre.y() - size.height() / 2),
                         truncatedInt(size.width()), truncatedInt(size.height()));
        if (!dabcanvas::copyFramebufferToTexture(rect, target)) {
            return;
        }
    }
    glGenerateMipmap(GL_TEXTURE_2D);
}
