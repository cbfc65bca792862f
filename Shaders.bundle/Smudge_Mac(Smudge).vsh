// SPDX-License-Identifier: MIT
#version 150
// Places one smudge dab: the unit square, mirrored, squeezed, rotated and moved to its centre in a buffer whose origin is
// top left. RECORDS: what the dab is stands in uniforms of the fragment program's kind.
#ifdef RECORDS
uniform vec2 u_viewSize;    // of the layer, in texels
uniform vec4 u_dab[7];

const float kRim = 0.75;    // texels beyond the box whose centres are still covered in part
const vec2 kCorners[4] = vec2[](vec2(-1.0, -1.0), vec2(1.0, -1.0), vec2(1.0, 1.0), vec2(-1.0, 1.0));

void main() {
    vec2 corner = kCorners[gl_VertexID] * (u_dab[0].zw + kRim) * u_dab[0].zw;
    vec2 place = u_dab[0].xy + corner.x * u_dab[1].xy + corner.y * u_dab[1].zw;
    gl_Position = vec4(place / u_viewSize * 2.0 - 1.0, 0.0, 1.0);
}

#else
in vec4 a_position;
in vec2 a_texCoord;
in vec2 a_bgCoord;          // where this corner picks up canvas colour

uniform vec2 u_viewSize;    // buffer pixels
uniform vec2 a_center;      // buffer pixels
uniform float a_pointSize;  // half the width, in pixels
uniform float u_roundness;  // height over width
uniform float a_radian;     // counter-clockwise
uniform vec2 a_flip;        // 1, or -1 for mirrored
uniform vec4 u_tipCell;     // of the tip image: s0, t0, s1, t1 in the tip texture
uniform vec2 u_tipSize;     // of the tip texture, in texels

out vec2 v_texCoord;
out vec2 v_bgCoord;
flat out vec4 v_tipCell;    // where the tip may be sampled without meeting its neighbours

const float kLayerScale = 0.5; // the smudge layer has half the buffer's resolution

void main() {
    vec2 extent = vec2(a_pointSize, a_pointSize * u_roundness);
    vec2 corner = a_position.xy * a_flip * extent;
    float c = cos(a_radian);
    float s = sin(a_radian);
    vec2 place = a_center + vec2(corner.x * c + corner.y * s, corner.y * c - corner.x * s);
    gl_Position = vec4(place.x / u_viewSize.x * 2.0 - 1.0, 1.0 - place.y / u_viewSize.y * 2.0, 0.0, 1.0);

    v_texCoord = a_texCoord;
    v_bgCoord = a_bgCoord;
    // Half a texel of the coarsest mip level this dab is sampled from stays off the edge of the tip's cell, or filtering
    // would mix in what lies next to it.
    vec2 cellSize = u_tipCell.zw - u_tipCell.xy;
    vec2 texelsPerPixel = cellSize * u_tipSize / max(2.0 * kLayerScale * extent, vec2(1e-6));
    float level = ceil(log2(clamp(max(texelsPerPixel.x, texelsPerPixel.y), 1.0, 4096.0)));
    vec2 inset = min(0.5 * exp2(level) / u_tipSize, 0.5 * cellSize);
    v_tipCell = vec4(u_tipCell.xy + inset, u_tipCell.zw - inset);
}
#endif
