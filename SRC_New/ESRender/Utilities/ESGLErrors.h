// SPDX-License-Identifier: MIT
// GL errors are drained after GL steps and logged; drawing goes on.
#pragma once

#include <QLoggingCategory>
#include <cstdint>

#ifndef DABCANVAS_GL_CHECKS
#if !defined(NDEBUG) || defined(__SANITIZE_ADDRESS__)
#define DABCANVAS_GL_CHECKS 1
#else
#define DABCANVAS_GL_CHECKS 0
#endif
#endif

// "dabcanvas.gl": every message of the GL core and the renderers.
Q_DECLARE_LOGGING_CATEGORY(lcDabcanvasGL)

// Empties the GL error queue, logs each error as "GLError %s set in File:%s Line:%d\n" and returns how many
// it found. `file` is a source path from "SRC_New/" on. Ends, without a line, at a lost context's error, which comes
// for ever and counts as one: whoever owns the context tells of it, once.
int drainGLErrors(const char* file, int line);

// The drain of one drawing step. glGetError makes a driver with a thread of its own wait, so release builds
// leave it out; DABCANVAS_GL_CHECKS switches it by hand.
static inline void checkGLStep([[maybe_unused]] const char* file, [[maybe_unused]] int line) {
#if DABCANVAS_GL_CHECKS
    drainGLErrors(file, line);
#endif
}

namespace dabcanvas {

// The same, and whether the last one was a lost context's.
bool drainFindsLostContext(const char* file, int line);

// Empties the queue without a line, for a caller that words what failed; how many errors it found.
int takeGLErrors();

// How many errors drainGLErrors() has logged in this process; tests compare it before and after.
std::uint64_t drainedGLErrors();

}  // namespace dabcanvas
