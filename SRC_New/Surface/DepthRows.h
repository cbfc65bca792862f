// SPDX-License-Identifier: MIT
// Rows of 16 bits a channel as rows of 8, and the other way round.
#pragma once

#include <cstdint>
#include <cstring>

#include "Maths/PixelView.h"

namespace dabcanvas {

// Of a pixel's place. Of the lowest 8 bits the higher half rounds up; places next to each other round each another way.
inline constexpr std::uint32_t kNoiseAlong = 193, kNoiseDown = 146;
constexpr std::uint32_t placeNoise(int x, int y) {
    return static_cast<std::uint32_t>(x) * kNoiseAlong + static_cast<std::uint32_t>(y) * kNoiseDown;
}

// Rounded by a noise of the pixel's place in the picture: smooth colour comes out without steps, the same every time, and
// what was made of bytes is those bytes again. (x, y) is the place of the first pixel; views of one size.
inline void roundRows(const PixelView& from, const MutablePixelView& to, int x, int y) {
    for (int row = 0; row < from.size.height; ++row) {
        const std::uint8_t* in = from.row(row);
        std::uint8_t* out = to.row(row);
        std::uint32_t noise = placeNoise(x, y + row);
        for (int i = 0; i < from.size.width; ++i, in += 8, out += 4, noise += kNoiseAlong) {
            std::uint16_t values[4];
            std::memcpy(values, in, sizeof(values));
            for (int channel = 0; channel < 4; ++channel) {
                const std::uint32_t value = values[channel];
                out[channel] = static_cast<std::uint8_t>((value - (value >> 8) + (noise & 255)) >> 8);
            }
        }
    }
}

inline void widenRows(const PixelView& from, const MutablePixelView& to) {
    for (int row = 0; row < from.size.height; ++row) {
        const std::uint8_t* in = from.row(row);
        std::uint8_t* out = to.row(row);
        for (int i = 0; i < from.size.width * 4; ++i, ++in, out += 2) {
            const auto value = static_cast<std::uint16_t>(*in * 257);
            std::memcpy(out, &value, sizeof(value));
        }
    }
}

}  // namespace dabcanvas
