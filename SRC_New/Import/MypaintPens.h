// SPDX-License-Identifier: MIT
// What pens do, as MyPaint's inputs and as a line's dab, and what MyPaint's settings come to meanwhile.
#pragma once

#include <functional>
#include <vector>

#include "Import/MypaintBrush.h"
#include "LineProcess/LPTypes.h"

namespace dabcanvas {

// A pen's samples are taken to come a hundred times a second.
inline constexpr float kSamplesASecond = 100;
// Pixels a second that count as fully fast: where MyPaint's curves over speed mostly end.
inline constexpr float kFastest = 1000;

struct PenState {
    MypaintPen pen;
    LPControlParams inputs;
};

// A quantity that a brush's settings make together.
using MypaintQuantity = std::function<float(const MypaintPen&)>;

// Over all that chance brings.
struct Spread {
    float mean = 0, deviation = 0;
};

class MypaintPens {
public:
    explicit MypaintPens(const MypaintBrush& brush) : _brush(brush) {}

    // Middling; the stroke has gone on for long.
    MypaintPen middle() const { return at(0.5f, 400, 0); }
    // Of pressure, speed and tilt all that make a difference to these settings, combined.
    std::vector<PenState> states(std::initializer_list<std::string_view> settings) const;
    // Which inputs these settings' curves run over, in the end.
    MypaintInputs inputsOf(std::initializer_list<std::string_view> settings) const;
    Spread spread(const MypaintQuantity& quantity, const MypaintPen& pen) const;

private:
    // speed: pixels a second; altitude: 0 upright to 1 at 60 degrees, as QDDrawTouch has it.
    MypaintPen at(float pressure, float speed, float altitude) const;
    MypaintPen withChance(const MypaintPen& pen, float chance) const;

    const MypaintBrush& _brush;
};

}  // namespace dabcanvas
