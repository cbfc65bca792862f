// SPDX-License-Identifier: MIT
// For programs that go by the pixel alone: a vertex shader without attributes, whose four vertices, as a triangle strip, cover
// the viewport.
#pragma once

namespace dabcanvas {

inline constexpr char kWholeTargetVertices[] = R"(#version 150
void main() {
    gl_Position = vec4(gl_VertexID % 2 * 2 - 1, gl_VertexID / 2 * 2 - 1, 0, 1);
}
)";

}  // namespace dabcanvas
