// SPDX-License-Identifier: MIT
#version 150
// What the bristles of a smudge brush hold after one more dab, a pixel each. Dabs/Bristles.h says in C++ what they do.
uniform sampler2D u_heldTexture;    // what they held before
uniform sampler2D u_beforeTexture;  // the smudge layer before the stroke
uniform vec2 u_centre;              // the dab's, in texels of the layer, bottom-up as all here
uniform vec4 u_span;                // from there to the last bristle's outer edge, and as far as the middle one lags behind
uniform vec4 u_uptake;              // how far they go towards what is below; the load; their count; 1 at a stroke's first dab
uniform vec4 u_ownColour;

out vec4 fragColor;

// Between texels, exactly.
vec4 below(vec2 place) {
    ivec2 last = textureSize(u_beforeTexture, 0) - 1;
    vec2 inside = clamp(place - 0.5, vec2(0.0), vec2(last));
    ivec2 at = ivec2(inside), next = min(at + 1, last);
    vec2 part = inside - vec2(at);
    vec4 low = mix(texelFetch(u_beforeTexture, at, 0), texelFetch(u_beforeTexture, ivec2(next.x, at.y), 0), part.x);
    vec4 high = mix(texelFetch(u_beforeTexture, ivec2(at.x, next.y), 0), texelFetch(u_beforeTexture, next, 0), part.x);
    return mix(low, high, part.y);
}

float chance(float bristle, float turn) {
    return (fract(bristle * 0.618034 + turn) + fract(floor(bristle / 5.0) * 0.7548777 + turn)) / 2.0;
}

void main() {
    float bristle = floor(gl_FragCoord.x);
    float place = (bristle + 0.5) / u_uptake.z * 2.0 - 1.0;
    vec4 paint = below(u_centre + place * u_span.xy + sqrt(max(1.0 - place * place, 0.0)) * u_span.zw);
    if (u_uptake.w > 0.5) {
        float spread = 4.0 * u_uptake.y * (1.0 - u_uptake.y);
        float load = clamp(u_uptake.y + spread * (chance(bristle, 0.59) - 0.5), 0.0, 1.0);
        fragColor = mix(paint, u_ownColour, load);
    } else {
        float thirst = chance(bristle, 0.13);
        thirst = 0.15 + 2.4 * thirst * thirst;
        fragColor = mix(texelFetch(u_heldTexture, ivec2(gl_FragCoord.xy), 0), paint, 1.0 - exp(-u_uptake.x * thirst));
    }
}
