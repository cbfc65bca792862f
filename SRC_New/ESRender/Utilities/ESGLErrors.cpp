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

struct Drained {
    int errors = 0;
    bool lost = false;
};

template <typename Hear>
Drained drain(Hear hear) {
    Drained drained;
    while (drained.errors < kMostErrors) {
        const GLenum error = glGetError();
        if (error == GL_NO_ERROR) {
            break;
        }
        if (error == GL_CONTEXT_LOST) {
            drained.lost = true;
            break;
        }
        hear(error);
        ++drained.errors;
    }
    return drained;
}

Drained drainAndLog(const char* file, int line) {
    const Drained drained = drain([&](GLenum error) {
        qCWarning(lcDabcanvasGL, "GLError %s set in File:%s Line:%d\n", errorName(error), file, line);
    });
    found += static_cast<std::uint64_t>(drained.errors);
    return drained;
}

}  // namespace

int drainGLErrors(const char* file, int line) {
    const Drained drained = drainAndLog(file, line);
    return drained.errors + (drained.lost ? 1 : 0);
}

bool dabcanvas::drainFindsLostContext(const char* file, int line) {
    return drainAndLog(file, line).lost;
}

int dabcanvas::takeGLErrors() {
    const Drained drained = drain([](GLenum) {});
    return drained.errors + (drained.lost ? 1 : 0);
}

std::uint64_t dabcanvas::drainedGLErrors() {
    return found;
}
