// SPDX-License-Identifier: MIT
// Rows of 16 bits a channel as rows of 8, and the other way round.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

#include "Maths/PixelView.h"

namespace dabcanvas {

// Of a pixel's place. Of the lowest 8 bits the higher half rounds up; places next to each other round each another way.
inline constexpr std::uint32_t kPlaceAlong = 193, kPlaceDown = 146;
constexpr std::uint32_t placeNoise(int x, int y) {
    return static_cast<std::uint32_t>(x) * kPlaceAlong + static_cast<std::uint32_t>(y) * kPlaceDown;
}

// Rounded by a noise of the pixel's place in the picture: smooth colour comes out without steps, the same every time, and
// what was made of bytes is those bytes again. (x, y) is the place of the first pixel; views of one size.
inline void roundRows(const PixelView& from, const MutablePixelView& to, int x, int y) {
    constexpr int kTogether = 64 * 4;  // values, in a loop that compilers make vectors of
    static constexpr auto kNoises = [] {
        std::array<std::uint16_t, kTogether> noises{};
        for (std::size_t i = 0; i < noises.size(); ++i) {
            noises[i] = static_cast<std::uint16_t>(i / 4 * kPlaceAlong);
        }
        return noises;
    }();
    for (int row = 0; row < from.size.height; ++row) {
        for (int first = 0; first < from.size.width; first += kTogether / 4) {
            const std::uint8_t* const in = from.at(first, row);
            std::uint8_t* const out = to.at(first, row);
            const auto noise = static_cast<std::uint16_t>(placeNoise(x + first, y + row));
            const int count = std::min(kTogether, (from.size.width - first) * 4);
            for (int i = 0; i < count; ++i) {
                std::uint16_t value;
                std::memcpy(&value, in + 2 * i, sizeof(value));
                const auto up =
                    static_cast<std::uint16_t>((kNoises[static_cast<std::size_t>(i)] + noise) & 255);
                out[i] =
                    static_cast<std::uint8_t>(static_cast<std::uint16_t>(value - (value >> 8) + up) >> 8);
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
