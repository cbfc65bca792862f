// SPDX-License-Identifier: MIT
#version 150
// Places the unit square at a point, as large as the point, in a buffer whose origin is at the top left.
in vec2 a_position;
uniform vec2 a_center;      // buffer pixels
uniform float a_pointSize;  // side, pixels
uniform vec2 u_viewSize;    // buffer pixels

void main() {
    vec2 place = (a_center + a_position * a_pointSize * 0.5) / u_viewSize;
    gl_Position = vec4(place.x * 2.0 - 1.0, 1.0 - place.y * 2.0, 0.0, 1.0);
}
