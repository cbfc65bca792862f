// SPDX-License-Identifier: MIT
#include "Maths/Mat4f.h"

#include <gtest/gtest.h>

#include <array>
#include <numbers>

namespace {

using Matrix = std::array<float, 16>;
using Vector = std::array<float, 3>;

// Where a matrix moves a point, after the perspective division.
Vector moved(const Matrix& m, const Vector& p) {
    std::array<float, 4> r{};
    for (std::size_t row = 0; row < 4; ++row) {
        r[row] = m[row] * p[0] + m[4 + row] * p[1] + m[8 + row] * p[2] + m[12 + row];
    }
    return {r[0] / r[3], r[1] / r[3], r[2] / r[3]};
}

void expectMoves(const Matrix& m, const Vector& from, const Vector& to, const char* what) {
    const Vector got = moved(m, from);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_NEAR(got[i], to[i], 1e-5) << what << ", component " << i;
    }
}

}  // namespace

TEST(Mat4fTest, LoadersMovePointsAsOpenGLMeans) {
    constexpr float kQuarter = static_cast<float>(std::numbers::pi / 2);
    Matrix m;
    m.fill(99);  // a loader writes the whole output
    mat4f_LoadXRotation(kQuarter, m.data());
    expectMoves(m, {0, 1, 0}, {0, 0, 1}, "x rotation");
    mat4f_LoadYRotation(kQuarter, m.data());
    expectMoves(m, {0, 0, 1}, {1, 0, 0}, "y rotation");
    mat4f_LoadZRotation(kQuarter, m.data());
    expectMoves(m, {1, 0, 0}, {0, 1, 0}, "z rotation");
    mat4f_LoadScale(2, 3, 4, m.data());
    expectMoves(m, {1, 1, 1}, {2, 3, 4}, "scale");
    mat4f_LoadTranslation(2, 3, 4, m.data());
    expectMoves(m, {1, 1, 1}, {3, 4, 5}, "translation");
    m.fill(99);
    mat4f_LoadOrtho(10, 30, 5, 25, 1, 9, m.data());
    expectMoves(m, {10, 5, -1}, {-1, -1, -1}, "ortho, near left bottom");
    expectMoves(m, {30, 25, -9}, {1, 1, 1}, "ortho, far right top");
    m.fill(99);
    mat4f_LoadPerspective(kQuarter, 2, 1, 9, m.data());
    expectMoves(m, {2, 1, -1}, {1, 1, -1}, "perspective, near");
    expectMoves(m, {18, -9, -9}, {1, -1, 1}, "perspective, far");
}

TEST(Mat4fTest, ProductAppliesTheRightMatrixFirstAndMayOverwriteIt) {
    Matrix a;
    Matrix b;
    mat4f_LoadScale(2, 2, 2, a.data());
    mat4f_LoadTranslation(1, 0, 0, b.data());
    mat4f_MultiplyMat4f(a.data(), b.data(), b.data());
    expectMoves(b, {1, 1, 1}, {4, 2, 2}, "scale after translation");
}
