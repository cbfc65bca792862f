// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

namespace dabcanvas {

// Seconds of a clock that nobody sets, from some moment on.
inline double steadySeconds() {
    using Clock = std::chrono::steady_clock;
    static_assert(Clock::is_steady, "one that is set back would hold undo steps back");
    return std::chrono::duration<double>(Clock::now().time_since_epoch()).count();
}

}  // namespace dabcanvas
