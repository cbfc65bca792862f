// SPDX-License-Identifier: MIT
#version 150
// Places one dab: the unit square, mirrored, squeezed, rotated and moved to its centre in a buffer whose origin is top left.
// RECORDS: all that a dab is comes with its four vertices, so that one call draws many.
uniform vec2 u_viewSize;     // buffer pixels

#ifdef RECORDS
in vec4 a_dabPlace;          // centre, counted from the bottom left, and half the sides; pixels
in vec4 a_dabAxes;           // from pixels to -1..1 along and across
in vec4 a_dabPixel;          // as dabCoverage() takes it
in vec4 a_dabPaint;          // colour and flow
in vec4 a_dabFirstLevel;     // of the tip: left, top, width, height in the texture
in vec4 a_dabNextLevel;
in vec4 a_dabMore;           // part of the next level, noise's turn, random number, paper's lift

flat out vec4 v_dabPlace, v_dabAxes, v_dabPixel, v_dabPaint, v_dabFirstLevel, v_dabNextLevel, v_dabMore;

const float kRim = 0.75;     // pixels beyond the box whose centres are still covered in part
const vec2 kCorners[4] = vec2[](vec2(-1.0, -1.0), vec2(1.0, -1.0), vec2(1.0, 1.0), vec2(-1.0, 1.0));

void main() {
    vec2 corner = kCorners[gl_VertexID & 3] * (a_dabPlace.zw + kRim) * a_dabPlace.zw;
    vec2 place = a_dabPlace.xy + corner.x * a_dabAxes.xy + corner.y * a_dabAxes.zw;
    gl_Position = vec4(place / u_viewSize * 2.0 - 1.0, 0.0, 1.0);
    v_dabPlace = a_dabPlace;
    v_dabAxes = a_dabAxes;
    v_dabPixel = a_dabPixel;
    v_dabPaint = a_dabPaint;
    v_dabFirstLevel = a_dabFirstLevel;
    v_dabNextLevel = a_dabNextLevel;
    v_dabMore = a_dabMore;
}

#else
in vec4 a_position;
in vec2 a_texCoord;

uniform vec2 a_center;       // buffer pixels
uniform float a_pointSize;   // half the width, in pixels
uniform float u_roundness;   // height over width
uniform float a_radian;      // counter-clockwise
uniform vec2 a_flip;         // 1, or -1 for mirrored
uniform vec4 u_tipCells[16]; // of each tip image: s0, t0, s1, t1 in the tip texture
uniform vec2 u_tipSize;      // of the tip texture, in texels

out vec2 v_texCoord;
flat out vec4 v_tipCell;     // where this tip may be sampled without meeting its neighbours

void main() {
    vec2 extent = vec2(a_pointSize, a_pointSize * u_roundness);
    vec2 corner = a_position.xy * a_flip * extent;
    float c = cos(a_radian);
    float s = sin(a_radian);
    vec2 place = a_center + vec2(corner.x * c + corner.y * s, corner.y * c - corner.x * s);
    gl_Position = vec4(place.x / u_viewSize.x * 2.0 - 1.0, 1.0 - place.y / u_viewSize.y * 2.0, 0.0, 1.0);

    v_texCoord = a_texCoord;
    // Four vertices a tip, tip after tip. Half a texel of the coarsest mip level this dab is sampled from stays off the
    // edge of the tip's cell, or filtering would mix in what lies next to it.
    vec4 cell = u_tipCells[gl_VertexID / 4];
    vec2 cellSize = cell.zw - cell.xy;
    vec2 texelsPerPixel = cellSize * u_tipSize / max(2.0 * extent, vec2(1e-6));
    float level = ceil(log2(clamp(max(texelsPerPixel.x, texelsPerPixel.y), 1.0, 4096.0)));
    vec2 inset = min(0.5 * exp2(level) / u_tipSize, 0.5 * cellSize);
    v_tipCell = vec4(cell.xy + inset, cell.zw - inset);
}
#endif
