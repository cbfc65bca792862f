// SPDX-License-Identifier: MIT
#version 150
// One flat colour.
uniform vec4 a_color;
out vec4 fragColor;

void main() {
    fragColor = a_color;
}
