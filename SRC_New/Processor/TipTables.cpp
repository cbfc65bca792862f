// SPDX-License-Identifier: MIT
#include "Processor/TipTables.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace dabcanvas {
namespace {

// How far from the middle a texel is felt, along one axis: up to its neighbour's centre.
float farEnd(int texel, int texels) {
    const float centre = static_cast<float>(2 * texel + 1) / static_cast<float>(texels) - 1;
    return std::min(std::fabs(centre) + 2 / static_cast<float>(texels), 1.0f);
}

float reachOf(const Pixels& level) {
    float most = 0;
    for (int y = 0; y < level.size.height; ++y) {
        const float tall = farEnd(y, level.size.height);
        // The outermost texels of a row reach farthest.
        const std::uint8_t *row = level.at(0, y), *end = row + level.size.width;
        const auto holds = [](std::uint8_t alpha) { return alpha != 0; };
        const std::uint8_t* first = std::find_if(row, end, holds);
        if (first == end) {
            continue;
        }
        const std::uint8_t* last = end - 1;
        while (!holds(*last)) {
            --last;
        }
        const float wide = std::max(farEnd(static_cast<int>(first - row), level.size.width),
                                    farEnd(static_cast<int>(last - row), level.size.width));
        most = std::max(most, wide * wide + tall * tall);
    }
    return std::sqrt(most);
}

TipTable tableOf(const Pixels& level) {
    TipTable table{{}, level.size, reachOf(level)};
    const int width = level.size.width, height = level.size.height;
    table.pairs.resize(static_cast<std::size_t>(table.stride()) * static_cast<std::size_t>(height) +
                       kTipTableSpare);
    for (int y = 0; y < height; ++y) {
        const std::uint8_t *row = level.at(0, y), *below = level.at(0, std::min(y + 1, height - 1));
        std::uint8_t* pairs = table.pairs.data() + static_cast<std::ptrdiff_t>(y) * table.stride();
        for (int x = 0; x < width; ++x) {
            pairs[2 * x] = row[x];
            pairs[2 * x + 1] = below[x];
        }
        pairs[2 * width] = row[width - 1];
        pairs[2 * width + 1] = below[width - 1];
    }
    return table;
}

}  // namespace

TipTables::TipTables(TipImage image) : _image(std::move(image)), _tables(_image.alpha.size()) {
    if (_image.isEmpty()) {
        return;
    }
    _size = _image.size();
    for (const Pixels& level : _image.alpha) {
        _details.push_back(
            std::log2(std::max(static_cast<float>(_size.width) / static_cast<float>(level.size.width),
                               static_cast<float>(_size.height) / static_cast<float>(level.size.height))));
        _bytes += level.bytes.size();
    }
    for (const Pixels& level : _image.colour) {
        _bytes += level.bytes.size();
    }
}

void TipTables::makeAll() {
    for (std::size_t level = 0; level < _tables.size(); ++level) {
        table(level);
    }
}

TipTables::Pair TipTables::levels(float detail) {
    const auto above = std::upper_bound(_details.begin() + 1, _details.end(), detail);
    const auto first = static_cast<std::size_t>(above - _details.begin()) - 1;
    if (above == _details.end()) {
        return {&table(first), nullptr, 0, static_cast<int>(first)};
    }
    const float below = _details[first];
    const float part = std::max(detail - below, 0.0f) / (*above - below);
    return {&table(first), part > 0 ? &table(first + 1) : nullptr, part, static_cast<int>(first)};
}

const TipTable& TipTables::table(std::size_t level) {
    TipTable& table = _tables[level];
    if (table.pairs.empty()) {
        table = tableOf(_image.alpha[level]);
        _bytes += table.pairs.size();
        _bytes -= _image.alpha[level].bytes.size();
        std::vector<std::uint8_t>().swap(_image.alpha[level].bytes);  // which the table holds now
    }
    return table;
}

}  // namespace dabcanvas
