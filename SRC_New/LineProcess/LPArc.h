// SPDX-License-Identifier: MIT
// The arc length of one quadratic curve, with what does not depend on the parameter worked out once.
// Internal to the line process.
#pragma once

namespace dabcanvas {

// Gives the bits of lpLengthOfQuadraticBezierGivenParam() and lpGetTInBezierGivenLengthAndParam().
class QuadraticArc {
public:
    QuadraticArc(float A, float B, float C);

    float lengthTo(float t) const;

protected:
    float closedForm(float t, float speed) const;
    float speedAt(float t) const;
    float numericLength(float t) const;

    float _A, _B, _C;
    bool _closed;  // the closed form holds; else lengths are integrated numerically
    float _rootA = 0.0f, _rootC = 0.0f, _discriminant = 0.0f, _logAtStart = 0.0f;
    double _divisor = 1.0;
};

// Finds the parameters of lengths that grow from call to call, as a walk along the curve asks for them.
// The bisection is part of the result, but most of its comparisons are decided without a logarithm: the
// length near a place measured exactly is predicted with a bound of the error, and only where the bound
// leaves a comparison open is the exact length taken.
class ArcWalk : public QuadraticArc {
public:
    ArcWalk(float A, float B, float C);

    float parameterAt(float length, float tStart);

private:
    struct Anchor {
        double t, length, speed, halfSlope;
    };

    double closedFormNoise(double fastest, double unevenness, double bend) const;
    float measure(float t);

    bool _predicts = false;
    double _scale = 1.0;       // what the closed form makes of a true length
    double _noise = 0.0;       // bound of what rounding does to a prediction and to the closed form
    double _cubicBound = 0.0;  // bound of the prediction's error, per cubed distance from the anchor
    Anchor _anchor = {};
};

float bisectParameter(const QuadraticArc& arc, float length, float tStart);

inline constexpr float kParameterEnd = 1.001f;
inline constexpr float kParameterTolerance = 0.001f;
inline constexpr float kLengthTolerance = 0.01f;

}  // namespace dabcanvas
