// SPDX-License-Identifier: MIT
#version 150
// Places the rectangle that is composited: corner offsets in pixels, mirrored, rotated counter-clockwise and moved to the
// centre. The offsets count upwards, as the buffer's rows do; the centre has a top-left origin.
in vec4 a_position;
in vec2 a_texCoord;

uniform vec2 u_viewSize;      // buffer pixels
uniform vec2 u_bgTextureSize; // of the background copy, whose lower left part holds the buffer
uniform vec2 a_center;
uniform vec2 a_flip;
uniform float a_radian;

out vec2 v_lineCoord;
out vec2 v_bgCoord;

void main() {
    vec2 corner = a_position.xy * a_flip;
    float c = cos(a_radian);
    float s = sin(a_radian);
    vec2 place = vec2(a_center.x, u_viewSize.y - a_center.y) + vec2(corner.x * c - corner.y * s, corner.x * s + corner.y * c);
    gl_Position = vec4(place / u_viewSize * 2.0 - 1.0, 0.0, 1.0);
    v_lineCoord = a_texCoord;
    v_bgCoord = place / u_bgTextureSize;
}
