// SPDX-License-Identifier: MIT
// What rounds without leaning to one side, so that many faint layers of paint add up to what they should. Alike for the
// channels of a pixel: none comes to lie above its alpha.

// Fixed by the pixel's place and a turn, which dabs in a row take evenly spread: -0.5..0.5, but so little less that what
// is a whole step stays one.
float dabNoise(float turn) {
    float place = fract(52.9829189 * fract(dot(gl_FragCoord.xy, vec2(0.06711056, 0.00583715))));
    return (fract(place + turn) - 0.5) * 0.98;
}
