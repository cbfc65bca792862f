// SPDX-License-Identifier: MIT
#include "LineProcess/LPGeometry.h"

#include <cmath>

#include "LineProcess/LPArc.h"

namespace {

// Both products are single-precision and are compared in double.
constexpr double kOnOneLine = 0.101;

}  // namespace

float lpEuclidDistanceOfTwoPosition(const LPPosition* a, const LPPosition* b) {
    const float dx = b->x - a->x;
    const float dy = b->y - a->y;
    return std::sqrt(dx * dx + dy * dy);
}

void lpGetMidPosition(const LPPosition* a, const LPPosition* b, LPPosition* out) {
    *out = {(a->x + b->x) * 0.5f, (a->y + b->y) * 0.5f};
}

float lpDotProduct(const LPPosition* o, const LPPosition* a, const LPPosition* b) {
    return (b->x - o->x) * (a->x - o->x) + (b->y - o->y) * (a->y - o->y);
}

float lpCrossProduct(const LPPosition* o, const LPPosition* a, const LPPosition* b) {
    return (a->x - o->x) * (b->y - o->y) - (a->y - o->y) * (b->x - o->x);
}

bool lp3PositionInLineWithOrder(const LPPosition* p0, const LPPosition* p1, const LPPosition* p2) {
    return std::fabs(static_cast<double>(lpCrossProduct(p0, p1, p2))) < kOnOneLine &&
           static_cast<double>(lpDotProduct(p1, p0, p2)) < kOnOneLine;
}

void lpGetPositionInSegmentGivenLength(const LPPosition* a, const LPPosition* b, LPPosition* out, float f) {
    *out = {a->x + (b->x - a->x) * f, a->y + (b->y - a->y) * f};
}

void lpGetPositionInBezierGivenT(const LPPosition* p0, const LPPosition* p1, const LPPosition* p2,
                                 LPPosition* out, float t) {
    const float w0 = (1.0f - t) * (1.0f - t);
    const float w1 = 2.0f * t * (1.0f - t);
    const float w2 = t * t;
    *out = {w0 * p0->x + w1 * p1->x + w2 * p2->x, w0 * p0->y + w1 * p1->y + w2 * p2->y};
}

void lpGetParaOfBezierLength(const LPPosition* p0, const LPPosition* p1, const LPPosition* p2, float* A,
                             float* B, float* C) {
    const float ax = p0->x - 2.0f * p1->x + p2->x;
    const float ay = p0->y - 2.0f * p1->y + p2->y;
    const float bx = 2.0f * (p1->x - p0->x);
    const float by = 2.0f * (p1->y - p0->y);
    *A = 4.0f * (ax * ax + ay * ay);
    *B = 4.0f * (ax * bx + ay * by);
    *C = bx * bx + by * by;
}

float lpLengthOfQuadraticBezierGivenParam(float A, float B, float C, float t) {
    return dabcanvas::QuadraticArc(A, B, C).lengthTo(t);
}

float lpGetTInBezierGivenLengthAndParam(float A, float B, float C, float length, float tStart) {
    return dabcanvas::bisectParameter(dabcanvas::QuadraticArc(A, B, C), length, tStart);
}
