// SPDX-License-Identifier: MIT
#version 150
precision highp float;
// The background, copied back unchanged whatever the source holds, so that a withdrawn stroke disappears.
// Premultiplied throughout: background B, source L.
uniform float u_opacity;
uniform sampler2D u_bgTexture;
uniform sampler2D u_lineTexture;
uniform sampler2D u_subLineTexture;
uniform _Bool u_useSubLine;

in vec2 v_lineCoord;
in vec2 v_bgCoord;
out vec4 fragColor;

void main() {
    vec4 B = texture(u_bgTexture, v_bgCoord);
    fragColor = B;
}
