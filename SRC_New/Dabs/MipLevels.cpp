// SPDX-License-Identifier: MIT
#include "Dabs/MipLevels.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <utility>

namespace dabcanvas {
namespace {

// How much of each source pixel one pixel of the result takes along one axis.
struct Share {
    int first = 0;
    std::vector<float> weights;
};

std::vector<Share> sharesOf(int from, int to) {
    std::vector<Share> shares(static_cast<std::size_t>(to));
    const double step = static_cast<double>(from) / to;
    for (int i = 0; i < to; ++i) {
        const double begin = i * step, end = (i + 1) * step;
        Share& share = shares[static_cast<std::size_t>(i)];
        share.first = static_cast<int>(begin);
        for (int source = share.first; source < from && source < end; ++source) {
            const double covered = std::min(end, source + 1.0) - std::max(begin, static_cast<double>(source));
            share.weights.push_back(static_cast<float>(covered / step));
        }
    }
    return shares;
}

// One row of the picture, summed up along it.
void reduceRow(const Pixels& picture, int y, const std::vector<Share>& shares, std::vector<float>& row) {
    const auto channels = static_cast<std::size_t>(picture.channels);
    std::fill(row.begin(), row.end(), 0.0f);
    for (std::size_t x = 0; x < shares.size(); ++x) {
        const std::uint8_t* from = picture.at(shares[x].first, y);
        for (const float weight : shares[x].weights) {
            for (std::size_t channel = 0; channel < channels; ++channel) {
                row[x * channels + channel] += weight * static_cast<float>(*from++);
            }
        }
    }
}

// Of a picture twice as large each way, in whole numbers: the same bytes.
template <int kChannels>
void halve(const Pixels& picture, Pixels& result) {
    for (int y = 0; y < result.size.height; ++y) {
        const std::uint8_t *upper = picture.at(0, 2 * y), *lower = picture.at(0, 2 * y + 1);
        std::uint8_t* to = result.at(0, y);
        for (int x = 0; x < result.size.width; ++x) {
            for (int channel = 0; channel < kChannels; ++channel) {
                const int left = 2 * kChannels * x + channel, right = left + kChannels;
                const int sum = upper[left] + upper[right] + lower[left] + lower[right];
                to[kChannels * x + channel] = static_cast<std::uint8_t>((sum + 2) >> 2);
            }
        }
    }
}

}  // namespace

Pixels reduced(const Pixels& picture, const Size& size) {
    Pixels result{size, picture.channels, {}};
    const std::size_t rowBytes =
        static_cast<std::size_t>(size.width) * static_cast<std::size_t>(picture.channels);
    result.bytes.resize(rowBytes * static_cast<std::size_t>(size.height));
    if (picture.size == Size{2 * size.width, 2 * size.height}) {
        picture.channels == 1 ? halve<1>(picture, result) : halve<4>(picture, result);
        return result;
    }
    const std::vector<Share> columns = sharesOf(picture.size.width, size.width);
    const std::vector<Share> rows = sharesOf(picture.size.height, size.height);
    std::vector<float> row(rowBytes), sum(rowBytes);
    for (int y = 0; y < size.height; ++y) {
        const Share& share = rows[static_cast<std::size_t>(y)];
        std::fill(sum.begin(), sum.end(), 0.5f);  // rounds
        for (std::size_t i = 0; i < share.weights.size(); ++i) {
            reduceRow(picture, share.first + static_cast<int>(i), columns, row);
            for (std::size_t x = 0; x < rowBytes; ++x) {
                sum[x] += share.weights[i] * row[x];
            }
        }
        std::transform(sum.begin(), sum.end(), result.at(0, y),
                       [](float value) { return static_cast<std::uint8_t>(std::min(value, 255.0f)); });
    }
    return result;
}

std::vector<Pixels> levelsOf(Pixels picture) {
    std::vector<Pixels> levels;
    levels.push_back(std::move(picture));
    while (levels.back().size != Size{1, 1}) {
        const auto below = [](int side) {
            return side == 1 ? 1 : static_cast<int>(std::bit_ceil(static_cast<unsigned>(side)) / 2);
        };
        const Size& size = levels.back().size;
        levels.push_back(reduced(levels.back(), {below(size.width), below(size.height)}));
    }
    return levels;
}

LevelPair levelPairAt(const std::vector<Pixels>& levels, float detail) {
    const auto detailOf = [&](std::size_t level) {
        const Size &whole = levels.front().size, &size = levels[level].size;
        return std::log2(std::max(static_cast<float>(whole.width) / static_cast<float>(size.width),
                                  static_cast<float>(whole.height) / static_cast<float>(size.height)));
    };
    float below = 0;
    for (std::size_t level = 1; level < levels.size(); ++level) {
        const float above = detailOf(level);
        if (detail < above) {
            return {static_cast<int>(level) - 1, std::max(detail - below, 0.0f) / (above - below)};
        }
        below = above;
    }
    return {static_cast<int>(levels.size()) - 1, 0};
}

}  // namespace dabcanvas
