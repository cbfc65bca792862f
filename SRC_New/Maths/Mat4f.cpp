// SPDX-License-Identifier: MIT
#include "Maths/Mat4f.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr int at(int row, int column) {
    return 4 * column + row;
}

// A rotation that turns axis `from` towards axis `to`.
void loadRotation(float radians, int from, int to, float* m) {
    mat4f_LoadIdentity(m);
    m[at(from, from)] = std::cos(radians);
    m[at(to, from)] = std::sin(radians);
    m[at(from, to)] = -std::sin(radians);
    m[at(to, to)] = std::cos(radians);
}

}  // namespace

void mat4f_LoadIdentity(float* m) {
    mat4f_LoadScale(1, 1, 1, m);
}

void mat4f_LoadScale(float sx, float sy, float sz, float* m) {
    std::fill_n(m, 16, 0.0f);
    m[at(0, 0)] = sx;
    m[at(1, 1)] = sy;
    m[at(2, 2)] = sz;
    m[at(3, 3)] = 1;
}

void mat4f_LoadXRotation(float radians, float* m) {
    loadRotation(radians, 1, 2, m);
}
void mat4f_LoadYRotation(float radians, float* m) {
    loadRotation(radians, 2, 0, m);
}
void mat4f_LoadZRotation(float radians, float* m) {
    loadRotation(radians, 0, 1, m);
}

void mat4f_LoadTranslation(float tx, float ty, float tz, float* m) {
    mat4f_LoadIdentity(m);
    m[at(0, 3)] = tx;
    m[at(1, 3)] = ty;
    m[at(2, 3)] = tz;
}

void mat4f_LoadPerspective(float fieldOfView, float aspect, float nearZ, float farZ, float* m) {
    const float f = 1.0f / std::tan(fieldOfView * 0.5f);
    std::fill_n(m, 16, 0.0f);
    m[at(0, 0)] = f / aspect;
    m[at(1, 1)] = f;
    m[at(2, 2)] = (farZ + nearZ) / (nearZ - farZ);
    m[at(2, 3)] = 2 * farZ * nearZ / (nearZ - farZ);
    m[at(3, 2)] = -1;
}

void mat4f_LoadOrtho(float left, float right, float bottom, float top, float nearZ, float farZ, float* m) {
    mat4f_LoadScale(2 / (right - left), 2 / (top - bottom), -2 / (farZ - nearZ), m);
    m[at(0, 3)] = -(right + left) / (right - left);
    m[at(1, 3)] = -(top + bottom) / (top - bottom);
    m[at(2, 3)] = -(farZ + nearZ) / (farZ - nearZ);
}

void mat4f_MultiplyMat4f(const float* a, const float* b, float* out) {
    std::array<float, 16> product{};
    for (int column = 0; column < 4; ++column) {
        for (int row = 0; row < 4; ++row) {
            float sum = 0;
            for (int k = 0; k < 4; ++k) {
                sum += a[at(row, k)] * b[at(k, column)];
            }
            product[static_cast<std::size_t>(at(row, column))] = sum;
        }
    }
    std::copy(product.begin(), product.end(), out);
}
