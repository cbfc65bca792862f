// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace dabcanvas {

/// What a canvas lets its paint lie in.
enum class SurfaceKind : std::uint8_t {
    /// The GPU where there is one, else the processor; the environment's DABCANVAS_SURFACE, gpu or processor, decides
    /// where it is set.
    automatic,
    gpu,        ///< OpenGL 3.2, whatever draws it; a software driver is slower than the processor by itself
    processor,  ///< no OpenGL at all
};

/// As people name it: auto, gpu or processor.
constexpr std::optional<SurfaceKind> surfaceKindOf(std::string_view name) {
    constexpr std::string_view kNames[] = {"auto", "gpu", "processor"};
    for (std::uint8_t kind = 0; kind < 3; ++kind) {
        if (name == kNames[kind]) {
            return static_cast<SurfaceKind>(kind);
        }
    }
    return std::nullopt;
}

}  // namespace dabcanvas
