// SPDX-License-Identifier: MIT
#version 150
precision highp float;
// Multiplied: un-premultiplied by adding the complement of each alpha, re-premultiplied by taking the
// complement of the result's alpha away.
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
    vec4 L = texture(u_lineTexture, v_lineCoord);
    if (L.a < 0.0001) {
        discard;
    }
    if (u_useSubLine) {
        vec4 S = texture(u_subLineTexture, v_lineCoord);
        if (S.a < 0.0001) {
            discard;
        }
        L *= S.a;
    }
    L *= u_opacity;
    if (L.a < 0.0001) {
        discard;
    }
    float sL = 1.0 - L.a;
    float sB = 1.0 - B.a;
    float ra = mix(B.a, 1.0, L.a);
    vec3 P = (sB + B.rgb) * (sL + L.rgb);
    // Rounding, here and in the layers' bytes, must not leave a channel above its alpha: it would show as a bright speck.
    fragColor = vec4(clamp(P - (1.0 - ra), 0.0, ra), ra);
}
