// SPDX-License-Identifier: MIT
#version 150
precision highp float;
// The source alone: also where it is transparent.
// Premultiplied throughout: background B, source L.
uniform float u_opacity;
uniform sampler2D u_bgTexture;
uniform sampler2D u_lineTexture;
uniform sampler2D u_subLineTexture;
uniform _Bool u_useSubLine;
uniform _Bool u_leavesBare; // not where it is transparent

in vec2 v_lineCoord;
in vec2 v_bgCoord;
out vec4 fragColor;

void main() {
    vec4 B = texture(u_bgTexture, v_bgCoord);
    vec4 L = texture(u_lineTexture, v_lineCoord);
    if (u_leavesBare && L.a <= 0.0) {
        discard;
    }
    if (u_useSubLine) {
        vec4 S = texture(u_subLineTexture, v_lineCoord);
        if (S.a < 0.001) {
            discard;
        }
        L *= S.a;
    }
    L *= u_opacity;
    fragColor = L;
}
