// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "Maths/Rect.h"

namespace dabcanvas {

/// Somebody else's pixels: premultiplied RGBA, 8 bits a channel, rows top to bottom, `stride` bytes from one row to the
/// next. A negative stride stands for rows that lie bottom row first in memory; `bytes` is the top row's all the same.
/// With 8 bytes a pixel, 16 bits a channel, in the processor's order of bytes and anywhere in memory.
template <typename Byte>
struct BasicPixelView {
    Byte* bytes = nullptr;
    Size size;
    std::ptrdiff_t stride = 0;
    int pixelBytes = 4;

    /// Rows without gaps in one block.
    static BasicPixelView topRowFirst(Byte* block, const Size& size, int pixelBytes = 4) {
        return {block, size, std::ptrdiff_t{size.width} * pixelBytes, pixelBytes};
    }
    static BasicPixelView bottomRowFirst(Byte* block, const Size& size, int pixelBytes = 4) {
        const std::ptrdiff_t row = std::ptrdiff_t{size.width} * pixelBytes;
        return {block + row * (size.height - 1), size, -row, pixelBytes};
    }

    bool isNull() const { return bytes == nullptr || size.width <= 0 || size.height <= 0; }
    Byte* row(int y) const { return bytes + stride * y; }
    Byte* at(int x, int y) const { return row(y) + std::ptrdiff_t{x} * pixelBytes; }
    /// A rectangle of it, which must lie inside.
    BasicPixelView part(const Rect& rect) const {
        return {at(rect.x, rect.y), {rect.width, rect.height}, stride, pixelBytes};
    }
    /// The rows lie bottom row first and without gaps, as OpenGL reads and writes them.
    bool isBottomUpBlock() const { return stride == -std::ptrdiff_t{size.width} * pixelBytes; }

    operator BasicPixelView<const Byte>() const { return {bytes, size, stride, pixelBytes}; }
};

using PixelView = BasicPixelView<const std::uint8_t>;
using MutablePixelView = BasicPixelView<std::uint8_t>;

/// Between views of one size, with as many bytes a pixel, that do not overlap.
inline void copyRows(const PixelView& from, const MutablePixelView& to) {
    for (int y = 0; y < from.size.height; ++y) {
        std::memcpy(to.row(y), from.row(y),
                    static_cast<std::size_t>(from.size.width) * static_cast<std::size_t>(from.pixelBytes));
    }
}

}  // namespace dabcanvas
