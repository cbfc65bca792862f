// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace dabcanvas {

/// Why a canvas did not go to another step.
enum class UndoRefusal : std::uint8_t {
    none,        ///< it did
    noStep,      ///< there is none to go to
    drawing,     ///< a stroke is in progress; drawViewCanUndoAgain() tells when it has ended
    unreadable,  ///< the step's picture cannot be had, or this one not be recorded; the log says why
    deviceLost,  ///< what the canvas lies in is gone
};

}  // namespace dabcanvas
