// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

namespace dabcanvas {

// Seconds of a clock that nobody sets, from some moment on.
inline double steadySeconds() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

}  // namespace dabcanvas
