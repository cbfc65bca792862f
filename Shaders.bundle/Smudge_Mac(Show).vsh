// SPDX-License-Identifier: MIT
#version 150
// Places the rectangle in which layer and canvas meet, in a buffer whose origin is top left.
in vec4 a_position;

uniform vec2 u_viewSize;    // buffer pixels
uniform vec2 a_center;      // buffer pixels
uniform float a_pointSize;  // half the width, in pixels
uniform float u_roundness;  // height over width

void main() {
    vec2 place = a_center + a_position.xy * vec2(a_pointSize, a_pointSize * u_roundness);
    vec2 part = vec2(place.x / u_viewSize.x, 1.0 - place.y / u_viewSize.y);
    gl_Position = vec4(part * 2.0 - 1.0, 0.0, 1.0);
}
