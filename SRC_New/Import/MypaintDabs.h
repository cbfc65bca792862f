// SPDX-License-Identifier: MIT
// What the dabs of a MyPaint brush are, as its settings make them together.
#pragma once

#include <optional>

#include "Import/MypaintPens.h"

namespace dabcanvas {

// Pixels, as at a zoom of 1. The brush must outlive it.
class MypaintDabs {
public:
    explicit MypaintDabs(const MypaintBrush& brush) : _brush(brush), _pens(brush) {}
    const MypaintPens& pens() const { return _pens; }

    float baseRadius() const;
    float radiusAt(const MypaintPen& pen) const;
    // Of one dab, such that all that lie over one place have the opacity together.
    float opacityAt(const MypaintPen& pen) const;
    float stepAt(const MypaintPen& pen) const;  // from dab to dab

    // Of the base radius, the deviation each way. A pen that trembles counts as scatter. Dabs that smudge stay near the
    // place that they take up from, as they carry what is there as far as they scatter.
    float scatterAt(const MypaintPen& pen) const;
    bool liesApart() const;  // whether dabs mostly fall beside each other

    // Degrees clockwise that dabs are turned against the stroke's direction; none where they do not follow it.
    std::optional<float> turnedAgainstStroke() const;

    float smudgeAt(const MypaintPen& pen) const;
    float meanSmudge() const;  // over all pens, by how much they paint
    bool smudgesThroughout() const;
    // What a smudged colour keeps of itself from dab to dab: what MyPaint remembers, and what is picked up of what the
    // dab before has painted.
    float carriedPart() const;

    // Along which MyPaint's stroke input goes from 0 to 1.
    float strokeLength() const;
    // Whether dabs are smaller where a stroke begins, and else as large as they come.
    bool growsAlong() const;

private:
    float alongDabs() const;
    float tremblingWay() const;
    float keptOfSlowPen() const;

    const MypaintBrush& _brush;
    MypaintPens _pens;
};

}  // namespace dabcanvas
