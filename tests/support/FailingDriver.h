// SPDX-License-Identifier: MIT
// A driver that fails, for one scope: some OpenGL functions are exchanged for ones that do nothing and leave an error.
// One at a time; only for the thread that makes it.
#pragma once

#include <epoxy/egl.h>
#include <epoxy/gl.h>

class FailingDriver {
public:
    enum class Fault {
        lostContext,      // that asks first, after a reset: every call is in vain, and the error never ends
        noTextureMemory,  // for a texture's storage
        noUploadMemory,   // for pixels on their way into a texture
        noLevelMemory,    // for mip levels
    };

    explicit FailingDriver(Fault fault) {
        _pending = GL_NO_ERROR;
        _getError = epoxy_glGetError;
        switch (fault) {
            case Fault::lostContext:
                _lost = EGL_NO_CONTEXT;
                _readBack = epoxy_glReadPixels;
                epoxy_glGetError = [] { return isLost() ? GLenum{GL_CONTEXT_LOST} : _getError(); };
                epoxy_glReadPixels = [](GLint x, GLint y, GLsizei width, GLsizei height, GLenum format,
                                        GLenum type, void* pixels) {
                    if (!isLost()) {
                        _readBack(x, y, width, height, format, type, pixels);
                    }
                };
                return;
            case Fault::noTextureMemory:
                epoxy_glTexImage2D = [](GLenum, GLint, GLint, GLsizei, GLsizei, GLint, GLenum, GLenum,
                                        const void*) { _pending = GL_OUT_OF_MEMORY; };
                break;
            case Fault::noUploadMemory:
                epoxy_glTexSubImage2D = [](GLenum, GLint, GLint, GLint, GLsizei, GLsizei, GLenum, GLenum,
                                           const void*) { _pending = GL_OUT_OF_MEMORY; };
                break;
            case Fault::noLevelMemory:
                epoxy_glGenerateMipmap = [](GLenum) { _pending = GL_OUT_OF_MEMORY; };
                break;
        }
        epoxy_glGetError = [] {
            while (_getError() != GL_NO_ERROR) {  // what follows from the calls that are left out
            }
            const GLenum error = _pending;
            _pending = GL_NO_ERROR;
            return error;
        };
    }
    ~FailingDriver() {
        epoxy_glGetError = _getError;
        epoxy_glReadPixels = _readPixels;
        epoxy_glTexImage2D = _texImage;
        epoxy_glTexSubImage2D = _texSubImage;
        epoxy_glGenerateMipmap = _generateMipmap;
    }
    FailingDriver(const FailingDriver&) = delete;
    FailingDriver& operator=(const FailingDriver&) = delete;

private:
    static bool isLost() {
        const EGLContext current = eglGetCurrentContext();
        _lost = _lost == EGL_NO_CONTEXT ? current : _lost;
        return current == _lost;
    }

    static inline EGLContext _lost = EGL_NO_CONTEXT;
    static inline decltype(epoxy_glReadPixels) _readBack = nullptr;
    static inline GLenum _pending = GL_NO_ERROR;
    static inline decltype(epoxy_glGetError) _getError = nullptr;
    decltype(epoxy_glReadPixels) _readPixels = epoxy_glReadPixels;
    decltype(epoxy_glTexImage2D) _texImage = epoxy_glTexImage2D;
    decltype(epoxy_glTexSubImage2D) _texSubImage = epoxy_glTexSubImage2D;
    decltype(epoxy_glGenerateMipmap) _generateMipmap = epoxy_glGenerateMipmap;
};
