// SPDX-License-Identifier: MIT
#include "ESRender/Utilities/ESGLErrors.h"

#include <epoxy/gl.h>

#include <atomic>

Q_LOGGING_CATEGORY(lcDabcanvasGL, "dabcanvas.gl")

namespace {

constexpr int kMostErrors = 64;
std::atomic<std::uint64_t> found{0};

// Deliberate: the two stack errors have no name of their own.
const char* errorName(GLenum error) {
    switch (error) {
        case GL_INVALID_ENUM:
            return "GL_INVALID_ENUM";
        case GL_INVALID_VALUE:
            return "GL_INVALID_VALUE";
        case GL_INVALID_OPERATION:
            return "GL_INVALID_OPERATION";
        case GL_OUT_OF_MEMORY:
            return "GL_OUT_OF_MEMORY";
        case GL_INVALID_FRAMEBUFFER_OPERATION:
            return "GL_INVALID_FRAMEBUFFER_OPERATION";
        default:
            return "(ERROR: Unknown Error Enum)";
    }
}

}  // namespace

int drainGLErrors(const char* file, int line) {
    int count = 0;
    for (; count < kMostErrors; ++count) {
        const GLenum error = glGetError();
        if (error == GL_NO_ERROR) {
            break;
        }
        qCWarning(lcDabcanvasGL, "GLError %s set in File:%s Line:%d\n", errorName(error), file, line);
    }
    found += static_cast<std::uint64_t>(count);
    return count;
}

std::uint64_t dabcanvas::drainedGLErrors() {
    return found;
}
