// SPDX-License-Identifier: MIT
#version 150
// Brings canvas and smudge layer together. Premultiplied throughout.
// FILL reduces the canvas into the layer; without it the layer's smudges are put onto the canvas. NOISE lets
// their rounding even out; Noise.glsl stands before this text then.
uniform vec2 u_viewSize;              // buffer pixels
uniform vec2 u_targetSize;            // FILL: pixels of the layer; else u_viewSize
uniform sampler2D u_bgTexture;        // FILL: the canvas; else the smudge layer
#ifndef FILL
uniform sampler2D u_canvasTexture;    // the canvas as it was before the stroke
uniform sampler2D u_beforeTexture;    // the smudge layer as it was then
uniform sampler2D u_coverageTexture;  // how much of each canvas pixel the stroke has exchanged: alpha
uniform float u_opacity;
uniform float u_locksAlpha;           // 1: the canvas keeps its own
#ifdef NOISE
uniform float u_noiseStep, u_noiseTurn;
#endif
#endif

out vec4 fragColor;

// 0..1 across the buffer, bottom-up: of the pixel alone, as what is interpolated differs in its last bit with the
// rectangle that is drawn, and a recording is to play to the same bits from wherever it began.
vec2 place() {
    return gl_FragCoord.xy / u_targetSize;
}

#ifdef FILL
// The canvas lies in the lower left of a larger texture, so its edges are clamped by hand.
vec4 canvasTexel(ivec2 at) {
    return texelFetch(u_bgTexture, clamp(at, ivec2(0), ivec2(u_viewSize) - 1), 0);
}

void main() {
    vec2 inCanvas = place() * u_viewSize - 0.5;
    ivec2 at = ivec2(floor(inCanvas));
    vec2 part = inCanvas - vec2(at);
    vec4 low = mix(canvasTexel(at), canvasTexel(at + ivec2(1, 0)), part.x);
    vec4 high = mix(canvasTexel(at + ivec2(0, 1)), canvasTexel(at + ivec2(1, 1)), part.x);
    fragColor = mix(low, high, part.y);
}
#else
void main() {
    ivec2 pixel = ivec2(gl_FragCoord.xy);
    float exchanged = texelFetch(u_coverageTexture, pixel, 0).a;
    if (exchanged == 0.0) {
        discard; // no dab was here, so not a bit of it may change
    }
    // The layer holds the canvas at half its resolution. What the dabs brought is what it has now less what remains of
    // what it had; only that is enlarged, and the canvas keeps its detail where the dabs were thin.
    vec4 canvas = texelFetch(u_canvasTexture, pixel, 0);
    vec4 brought = texture(u_bgTexture, place()) - texture(u_beforeTexture, place()) * (1.0 - exchanged);
    // At hard rims the layer's coarser pixels do not agree with the coverage; what is too much keeps its colour.
    brought = max(brought, 0.0) * min(1.0, exchanged / max(brought.a, 1e-6));
    brought.rgb = min(brought.rgb, vec3(brought.a));
    fragColor = mix(canvas, canvas * (1.0 - exchanged) + brought, u_opacity);
    if (u_locksAlpha > 0.0) {
        fragColor = fragColor.a > 0.0 ? vec4(fragColor.rgb * (canvas.a / fragColor.a), canvas.a) : canvas;
    }
#ifdef NOISE
    fragColor += u_noiseStep * dabNoise(u_noiseTurn);
#endif
}
#endif
