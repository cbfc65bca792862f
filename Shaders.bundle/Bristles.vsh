// SPDX-License-Identifier: MIT
#version 150
// The whole target.
const vec2 kCorners[4] = vec2[](vec2(-1.0, -1.0), vec2(1.0, -1.0), vec2(1.0, 1.0), vec2(-1.0, 1.0));

void main() {
    gl_Position = vec4(kCorners[gl_VertexID], 0.0, 1.0);
}
