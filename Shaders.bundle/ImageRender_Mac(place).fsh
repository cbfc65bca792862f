// SPDX-License-Identifier: MIT
#version 150
precision highp float;
// A placed image whose edges cut through pixels: source over background, or in its place. What a pixel at the
// rim has outside of the image keeps the background, so edges are smooth and without a fringe.
// Premultiplied throughout: background B, source L.
uniform float u_opacity;
uniform sampler2D u_bgTexture;
uniform sampler2D u_lineTexture;
uniform vec2 u_placedSize; // of the image, buffer pixels
uniform _Bool u_replace;

in vec2 v_lineCoord;       // 0 to 1 in the image, beyond that in its rim
in vec2 v_bgCoord;
out vec4 fragColor;

void main() {
    // How much of a pixel's width and height lies in the image.
    vec2 place = v_lineCoord * u_placedSize;
    vec2 inside = clamp(min(place + 0.5, u_placedSize) - max(place - 0.5, 0.0), 0.0, 1.0);
    float covered = inside.x * inside.y;
    if (covered <= 0.0) {
        discard;
    }
    vec4 B = texture(u_bgTexture, v_bgCoord);
    vec4 L = texture(u_lineTexture, v_lineCoord) * u_opacity;
    float taken = u_replace ? 1.0 : L.a;
    fragColor = B * (1.0 - taken * covered) + L * covered;
}
