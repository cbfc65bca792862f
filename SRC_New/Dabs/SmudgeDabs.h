// SPDX-License-Identifier: MIT
/// \file
/// Smudge dabs: what a dab of a smudge brush takes up, where, and how much of it. Plain C++.
#pragma once

#include <cstdint>

#include "Dabs/Bristles.h"
#include "Dabs/Dab.h"
#include "Maths/Export.h"

namespace dabcanvas {

/// A dab, and the square it takes up colour from: turned, squeezed and mirrored as the dab itself. Buffer pixels.
struct SmudgeDab {
    Dab dab;
    LPPosition pickUp;  ///< the square's centre
    float pickUpHalf;   ///< half its side
    float moist;        ///< how readily canvas colour is taken along; 0 where there is none to take yet
    float mix;          ///< 0: of the brush's own colour, 1: of what is taken up
    float exchange;     ///< share of what is under full coverage that is exchanged
    BristleDab bristles{};
};

/// What a smudge brush is set to. The canvas's properties of the same names tell what each does; 0..1, but for
/// controlValue.
struct SmudgeSettings {
    float moist = 0.3f, load = 1, mix = 1;
    bool control = true;      ///< mix grows from 0 over the first dabs of a stroke
    float controlValue = 25;  ///< over so many
    float bristles = 0;       ///< part of what is laid down that bristles carry along

    /// mix as grown by the point with this number, counted from 1; all of it at once when controlValue is not above 0.
    DABCANVAS_DABS_API float grownMix(std::int64_t index) const;
};

/// Adds to the dabs of a stroke, which a DabMaker makes for it, what smudging needs. Keeps the pick-up place from call
/// to call; reset() begins the next stroke.
class DABCANVAS_DABS_API SmudgeMaker {
public:
    SmudgeSettings settings;

    /// Begins the next stroke.
    void reset() {
        _hasPlace = false;
        _place = {0, 0};
        _half = 0;
        _way = {};
    }
    /// Where the next point takes up colour, and half the side of that square.
    LPPosition place() const { return _place; }
    float half() const { return _half; }

    /// Calls sink(const SmudgeDab&) for every dab of the points that exchanges anything, in drawing order.
    template <typename Sink>
    void make(DabMaker& dabs, const LPPoint* points, std::size_t count, Sink&& sink) {
        std::int64_t present = 0;
        dabs.make(points, count, [&](const Dab& dab) {
            if (dabs.pointIndex() != present) {
                present = dabs.pointIndex();
                beginPoint(dabs);
            }
            if (_dab.exchange > 0) {
                _dab.dab = dab;
                sink(_dab);
                takeOnce();
            }
        });
    }

private:
    // Where the stroke goes.
    struct Way {
        bool isKnown = false, hasBristles = false;
        LPPosition place{0, 0};  // of the point before
        float acrossX = 0, acrossY = 1;
        float ahead = 1;
    };

    void beginPoint(const DabMaker& dabs);
    float follow(const DabMaker& dabs);
    void beginBristles(const DabMaker& dabs, float moved);
    // Several dabs at one place take up no more than one.
    void takeOnce() {
        if (_dab.bristles.part > 0) {
            _way.hasBristles = true;
            _dab.bristles.isFirst = false;
            _dab.bristles.uptake = 0;
        }
    }

    SmudgeDab _dab{};
    bool _hasPlace = false;
    LPPosition _place{0, 0};  // of the point before
    float _half = 0;
    Way _way;
};

}  // namespace dabcanvas
