// SPDX-License-Identifier: MIT
#version 150
// Paints one smudge dab: where the tip covers, the layer turns into a mixture of the brush colour and the colour picked up
// where the last dab lay. Premultiplied; the result replaces the pixel, so that picked up transparency erases.
// RECORDS: the dab's edges are smooth, and its tip is read at its one level; Dab.glsl and Noise.glsl stand before this text
// then. NOISE lets the rounding of a layer of 16 bits even out; FETCH reads a pixel that is replaced where it is.
uniform sampler2D u_bgTexture;   // the smudge layer as it was before this dab
uniform float u_moistQuantity;   // 0: a dry brush, which takes no colour along; 1: all that it meets
uniform float u_loadQuantity;    // of the brush's own colour
uniform float u_mixQuantity;     // 0: the own colour alone, 1: the picked up alone

#ifdef RECORDS
uniform vec4 u_dab[7];           // place, axes, pixel, paint, the tip's two levels, and more, as those of Line_Mac.vsh
uniform vec4 u_pickUp;           // where the dab's centre takes up colour, and a texel's step there; 0..1 in the layer
uniform sampler2D u_heldTexture; // what bristles hold, side by side
uniform vec4 u_carried;          // steps among them of a texel to the right and up, the last one, and their part in the pick-up
#else
uniform sampler2D u_brushTexture;
uniform vec4 a_color;
uniform float u_flow;

in vec2 v_texCoord;
in vec2 v_bgCoord;
flat in vec4 v_tipCell;
#endif

#ifdef FETCH
inout vec4 fragColor;
#else
out vec4 fragColor;
#endif

vec4 layerTexel(ivec2 at, ivec2 size) {
    return texelFetch(u_bgTexture, clamp(at, ivec2(0), size - 1), 0);
}

// Between texels, exactly: filtering units round, and over a hundred dabs that would change the colour.
vec4 pickedUp(vec2 coord) {
    ivec2 size = textureSize(u_bgTexture, 0);
    vec2 place = coord * vec2(size) - 0.5;
    ivec2 at = ivec2(floor(place));
    vec2 part = place - vec2(at);
    vec4 low = mix(layerTexel(at, size), layerTexel(at + ivec2(1, 0), size), part.x);
    vec4 high = mix(layerTexel(at + ivec2(0, 1), size), layerTexel(at + ivec2(1, 1), size), part.x);
    return mix(low, high, part.y);
}

#ifdef RECORDS
vec4 carried(vec2 offset) {
    float place = clamp(dot(offset, u_carried.xy) + 0.5 * u_carried.z, 0.0, u_carried.z);
    int bristle = int(place), last = int(u_carried.z);
    return mix(texelFetch(u_heldTexture, ivec2(bristle, 0), 0),
               texelFetch(u_heldTexture, ivec2(min(bristle + 1, last), 0), 0), place - float(bristle));
}
#endif

void main() {
#ifdef RECORDS
    vec2 offset = gl_FragCoord.xy - u_dab[0].xy;
    vec2 place = vec2(dot(u_dab[1].xy, offset), dot(u_dab[1].zw, offset));
    float coverage = dabTip(place, u_dab[4], u_dab[5], u_dab[6].x).r * u_dab[3].a *
                     dabCoverage(place * u_dab[0].zw, u_dab[0].zw, u_dab[2]);
    vec3 color = u_dab[3].rgb;
    vec4 pick = pickedUp(u_pickUp.xy + u_pickUp.zw * offset);
    if (u_carried.w > 0.0) {
        pick = mix(pick, carried(offset), u_carried.w);
    }
#else
    float coverage = texture(u_brushTexture, clamp(v_texCoord, v_tipCell.xy, v_tipCell.zw)).a * u_flow;
    vec3 color = a_color.rgb;
    vec4 pick = pickedUp(v_bgCoord);
#endif
    float dry = 1.0 - u_moistQuantity;
    float pickUp = u_mixQuantity * (1.0 - dry * dry * dry);
    float own = u_loadQuantity * (1.0 - u_mixQuantity);
#ifdef FETCH
    vec4 here = fragColor;
#else
    vec4 here = texelFetch(u_bgTexture, ivec2(gl_FragCoord.xy), 0);
#endif
    vec4 mixture = own * vec4(color, 1.0) + pickUp * pick;
    fragColor = here * (1.0 - coverage * (own + pickUp)) + coverage * mixture;
#ifdef NOISE
    fragColor += dabNoise(u_dab[6].y) / 65535.0;
#endif
}
