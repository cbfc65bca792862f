// SPDX-License-Identifier: MIT
// What a fragment program that draws dabs by records is begun with: how much of a pixel a dab's box covers, and what its tip
// is there. Dabs/DabMap.h says the former in C++.
uniform sampler2D u_tips;

// The part of a pixel, a trapezoid as an axis of the dab sees it, on the near side of an edge that runs so far beyond its
// centre, less one half. Pixel: half the foot, half the top, the height, the slope.
vec2 dabShadow(vec2 beyond, vec4 pixel) {
    vec2 part = min(abs(beyond), pixel.x);
    vec2 side = max(part - pixel.y, 0.0);
    return sign(beyond) * (part * pixel.z - side * side * pixel.w);
}

// At a place along and across the box, of which `extent` is half the sides; pixels.
float dabCoverage(vec2 place, vec2 extent, vec4 pixel) {
    vec2 covered = dabShadow(place + extent, pixel) - dabShadow(place - extent, pixel);
    return covered.x * covered.y;
}

// At a place that is -1..1 within the box, from two levels: left, top, width, height in the texture. ONE_LEVEL: part is 0.
vec4 dabTip(vec2 place, vec4 first, vec4 next, float part) {
    vec2 at = 0.5 + 0.5 * clamp(place, -1.0, 1.0);
#ifdef ONE_LEVEL
    return texture(u_tips, first.xy + at * first.zw);
#else
    return mix(texture(u_tips, first.xy + at * first.zw), texture(u_tips, next.xy + at * next.zw), part);
#endif
}
