// SPDX-License-Identifier: MIT
#version 150
// Paints one dab: the tip's alpha is the shape, the brush colour fills it. Premultiplied.
// NO_MASK and NO_MULTICOLOUR leave out what a brush does not use: a software driver runs both sides of a branch.
// RECORDS: the dab comes with its vertices, its edges are smooth, and its tip is read at the dab's one level; Dab.glsl
// and Noise.glsl stand before this text then. NOISE lets the rounding of a layer of 16 bits even out; FETCH blends here
// for that, as the unit that blends rounds what it is given.
#ifdef RECORDS
flat in vec4 v_dabPlace, v_dabAxes, v_dabPixel, v_dabPaint, v_dabFirstLevel, v_dabNextLevel, v_dabMore;
#define DAB_COLOR v_dabPaint.rgb
#define DAB_RANDOM v_dabMore.z
#else
uniform sampler2D u_brushTexture;
uniform vec4 a_color;
uniform float u_flow;
in vec2 v_texCoord;
flat in vec4 v_tipCell;
#define DAB_COLOR a_color.rgb
#define DAB_RANDOM u_rand
#endif

#ifdef FETCH
inout vec4 fragColor;
#else
out vec4 fragColor;
#endif

#ifndef NO_MASK
uniform _Bool u_useMask;
uniform sampler2D u_maskTexture;
uniform vec2 u_maskSize;      // one tile of paper on the buffer, in pixels
uniform vec2 u_viewSize;
#ifdef RECORDS
uniform sampler2D u_reducedMask;
uniform vec2 u_maskLevel;     // how much of the reduced paper is mixed in, and of which of its levels
uniform vec2 u_maskRelief;    // what a height lets through: gain and level
#else
uniform vec4 u_maskBaseCoord; // the paper in its texture: x, y, width, height in texels
#endif
#endif

#ifndef NO_MULTICOLOUR
uniform _Bool u_colorful;
uniform float u_rand;
uniform float u_hueTingle;
uniform float u_saturationTingle;
uniform float u_brightnessTingle;
#endif

#ifndef NO_MASK
// How much the paper lets through here: white all, black and transparent nothing.
float paper() {
    vec2 pixel = vec2(gl_FragCoord.x, u_viewSize.y - gl_FragCoord.y);
#ifdef RECORDS
    vec2 tile = pixel / u_maskSize;
    float height = mix(texture(u_maskTexture, tile).r, textureLod(u_reducedMask, tile, u_maskLevel.y).r, u_maskLevel.x);
    return clamp(u_maskRelief.x * height + u_maskRelief.y + v_dabMore.w, 0.0, 1.0);
#else
    vec2 tile = fract(pixel / u_maskSize);
    float level = max(log2(max(u_maskBaseCoord.z / u_maskSize.x, u_maskBaseCoord.w / u_maskSize.y)), 0.0);
    vec2 inset = min(vec2(0.5 * exp2(ceil(level))), 0.5 * u_maskBaseCoord.zw);
    vec2 texel = clamp(vec2(tile.x, 1.0 - tile.y) * u_maskBaseCoord.zw, inset, u_maskBaseCoord.zw - inset);
    vec4 grain = textureLod(u_maskTexture, (u_maskBaseCoord.xy + texel) / vec2(textureSize(u_maskTexture, 0)), level);
    return dot(grain.rgb, vec3(0.299, 0.587, 0.114));
#endif
}
#endif

#ifndef NO_MULTICOLOUR
vec3 hsvFromRgb(vec3 c) {
    float high = max(c.r, max(c.g, c.b));
    float span = high - min(c.r, min(c.g, c.b));
    float hue = 0.0;
    if (span > 0.0) {
        hue = high == c.r ? (c.g - c.b) / span : high == c.g ? 2.0 + (c.b - c.r) / span : 4.0 + (c.r - c.g) / span;
    }
    return vec3(fract(hue / 6.0), high > 0.0 ? span / high : 0.0, high);
}

vec3 rgbFromHsv(vec3 c) {
    vec3 ramp = clamp(abs(fract(c.x + vec3(0.0, 2.0 / 3.0, 1.0 / 3.0)) * 6.0 - 3.0) - 1.0, 0.0, 1.0);
    return c.z * mix(vec3(1.0), ramp, c.y);
}

// The tip's own colours, the brush colour where the tip is black, all varied by the dab's random number.
vec3 multicolour(vec4 tip) {
    vec3 own = tip.a > 0.0 ? clamp(tip.rgb / tip.a, 0.0, 1.0) : vec3(0.0);
    vec3 hsv = hsvFromRgb(own + DAB_COLOR * (1.0 - max(own.r, max(own.g, own.b))));
    vec3 swing = fract(DAB_RANDOM * vec3(1.0, 7.31, 53.17)) * 2.0 - 1.0;
    hsv.x += swing.x * 0.5 * u_hueTingle;
    hsv.yz = clamp(hsv.yz + swing.yz * vec2(u_saturationTingle, u_brightnessTingle), 0.0, 1.0);
    return rgbFromHsv(hsv);
}
#endif

void main() {
#ifdef RECORDS
    vec2 offset = gl_FragCoord.xy - v_dabPlace.xy;
    vec2 place = vec2(dot(v_dabAxes.xy, offset), dot(v_dabAxes.zw, offset));
    vec4 tip = dabTip(place, v_dabFirstLevel, v_dabNextLevel, v_dabMore.x);
#ifdef NO_MULTICOLOUR
    tip.a = tip.r;  // one channel is all there is
#endif
    float coverage = tip.a * v_dabPaint.a * dabCoverage(place * v_dabPlace.zw, v_dabPlace.zw, v_dabPixel);
#else
    vec4 tip = texture(u_brushTexture, clamp(v_texCoord, v_tipCell.xy, v_tipCell.zw));
    float coverage = tip.a * u_flow;
#endif
#ifndef NO_MASK
    if (u_useMask) {
        coverage *= paper();
    }
#endif
    vec3 color = DAB_COLOR;
#ifndef NO_MULTICOLOUR
    if (u_colorful) {
        color = multicolour(tip);
    }
#endif
    vec4 paint = vec4(color * coverage, coverage);
#ifdef NOISE
    paint += dabNoise(v_dabMore.y) / 65535.0;
#endif
#ifdef FETCH
    fragColor = paint + fragColor * (1.0 - coverage);
#else
    fragColor = paint;
#endif
}
