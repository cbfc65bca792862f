// SPDX-License-Identifier: MIT
// Bytes of a file, read from front to back. What is asked for beyond their end is not there: a number is 0, a block is
// empty, and isCut() tells from then on. Nothing is copied or allocated.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace dabcanvas {

using Bytes = std::span<const std::uint8_t>;

class ByteReader {
public:
    explicit ByteReader(Bytes bytes) : _left(bytes) {}

    std::size_t left() const { return _left.size(); }
    bool isCut() const { return _isCut; }

    Bytes block(std::uint64_t size) {
        if (size > _left.size()) {
            _isCut = true;
            _left = {};
            return {};
        }
        const Bytes block = _left.first(static_cast<std::size_t>(size));
        _left = _left.subspan(block.size());
        return block;
    }

    // Big-endian.
    std::uint32_t word() {
        std::uint32_t number = 0;
        for (const std::uint8_t byte : block(4)) {
            number = number << 8 | byte;
        }
        return number;
    }

    // Up to a line's end, which is read too; the rest where there is none.
    std::string_view line() {
        std::size_t length = 0;
        while (length < _left.size() && _left[length] != '\n') {
            ++length;
        }
        const std::string_view line(reinterpret_cast<const char*>(_left.data()), length);
        _left = _left.subspan(length < _left.size() ? length + 1 : length);
        return line;
    }

private:
    Bytes _left;
    bool _isCut = false;
};

}  // namespace dabcanvas
