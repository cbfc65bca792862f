// SPDX-License-Identifier: MIT
// What a mask does to pixels.
#pragma once

#include <algorithm>
#include <cstdint>

#include "Maths/Rect.h"
#include "Surface/PaintMask.h"

namespace dabcanvas {

enum class MaskedPart : std::uint8_t { open, mixed, closed };

// What a mask is all over a rectangle.
inline MaskedPart maskedPart(const PaintMask& mask, const Rect& part) {
    const Rect inside = part.intersected(mask.area);
    if (inside.isEmpty()) {
        return MaskedPart::closed;
    }
    bool isOpen = inside == part, isClosed = true;
    for (int y = inside.y; y < inside.bottom() && (isOpen || isClosed); ++y) {
        const std::uint8_t* const shares = mask.at(inside.x, y);
        const std::uint8_t* const end = shares + inside.width;
        isOpen = isOpen && std::all_of(shares, end, [](int share) { return share == 255; });
        isClosed = isClosed && std::all_of(shares, end, [](int share) { return share == 0; });
    }
    return isOpen ? MaskedPart::open : isClosed ? MaskedPart::closed : MaskedPart::mixed;
}

// A row of so many pixels goes back to what lies below by what is missing of their shares. To the nearest, so that of
// colour and alpha neither outgrows the other.
template <typename Channel>
void maskRow(Channel* picture, const Channel* background, const std::uint8_t* shares, int count) {
    for (int x = 0; x < count; ++x, picture += 4, background += 4) {
        const std::uint32_t share = shares[x];
        for (int i = 0; share < 255 && i < 4; ++i) {
            picture[i] =
                static_cast<Channel>((picture[i] * share + background[i] * (255 - share) + 127) / 255);
        }
    }
}

// The same of all of a rectangle, whose rows are so many values apart, in both.
template <typename Channel>
void maskRows(Channel* picture, const Channel* background, int stride, const PaintMask& mask,
              const Rect& part) {
    const Rect inside = part.intersected(mask.area);
    for (int y = part.y; y < part.bottom(); ++y, picture += stride, background += stride) {
        const bool isOutside = y < inside.y || y >= inside.bottom();
        const int left = isOutside ? part.width : inside.x - part.x;
        const int right = isOutside ? 0 : part.right() - inside.right();
        std::copy_n(background, 4 * left, picture);
        if (!isOutside) {
            maskRow(picture + 4 * left, background + 4 * left, mask.at(inside.x, y), inside.width);
            std::copy_n(background + 4 * (part.width - right), 4 * right, picture + 4 * (part.width - right));
        }
    }
}

}  // namespace dabcanvas
