// SPDX-License-Identifier: MIT
// What recordings call things.
#pragma once

#include <iterator>
#include <optional>

#include "Recording/Recording.h"

namespace dabcanvas {

// In the order of RecordedCall, StrokePart::End, InputDevice, InputLayerEdit::Kind, ShapeKind and SymmetryKind.
inline constexpr const char* kCallNames[] = {"step", "history", "undo", "redo"};
inline constexpr const char* kEndNames[] = {"end", "withdrawn", "dropped", "open"};
inline constexpr const char* kDeviceNames[] = {"program", "touch", "pen"};
inline constexpr const char* kLayerEditNames[] = {"add",   "duplicate", "remove",  "move",
                                                  "merge", "set",       "activate"};
inline constexpr const char* kShapeNames[] = {"none",          "line",    "foldline", "triangle", "rectangle",
                                              "parallelogram", "ellipse", "arc",      "arrow"};
inline constexpr const char* kSymmetryNames[] = {"none", "vertical", "horizontal", "both", "radial"};
static_assert(std::size(kCallNames) == std::size_t(RecordedCall::redone) + 1);
static_assert(std::size(kEndNames) == std::size_t(StrokePart::End::open) + 1);
static_assert(std::size(kDeviceNames) == std::size_t(InputDevice::pen) + 1);
static_assert(std::size(kLayerEditNames) == std::size_t(InputLayerEdit::Kind::activate) + 1);
static_assert(std::size(kShapeNames) == std::size_t(ShapeKind::arrow) + 1);
static_assert(std::size(kSymmetryNames) == std::size_t(SymmetryKind::radial) + 1);

// A recording's first line begins so.
inline constexpr char kRecordingMark[] = "{\"dabcanvas\":\"recording\"";

}  // namespace dabcanvas
