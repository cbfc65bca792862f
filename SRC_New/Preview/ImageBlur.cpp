// SPDX-License-Identifier: MIT
#include "Preview/ImageBlur.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

namespace {

constexpr int kChannels = 4;

// A window of 2 reach + 1 full pixels, and one more at either end that counts for a part.
struct Window {
    int reach = 0;
    double part = 0;

    double weight() const { return 2 * reach + 1 + 2 * part; }
    Window within(int side) const { return reach < side ? *this : Window{side, 0}; }
};

// The rows of a picture, of which the first and the last go on for ever.
class Rows {
public:
    explicit Rows(const QImage& image)
        : _bits(image.constBits()),
          _stride(image.bytesPerLine()),
          _last(image.height() - 1),
          _length(static_cast<std::size_t>(image.width()) * kChannels) {}

    // Adds a row, or takes it off with a factor of -1.
    template <typename Sum>
    void addTo(std::vector<Sum>& sums, int y, Sum factor) const {
        const std::uint8_t* row = _bits + std::clamp(y, 0, _last) * _stride;
        for (std::size_t i = 0; i < _length; ++i) {
            sums[i] += factor * static_cast<Sum>(row[i]);
        }
    }

private:
    const std::uint8_t* _bits;
    qsizetype _stride;
    int _last;
    std::size_t _length;
};

// One row of means from the sums of its columns. Sums of whole pixels are exact in double, and the number of
// pixels of a window is odd, so that no mean lies halfway between two levels.
template <typename Sum>
void meansOfRow(const std::vector<Sum>& columns, int width, const Window& window, double scale,
                std::uint8_t* out) {
    using Pixel = std::array<double, kChannels>;
    const auto add = [&](Pixel& sum, int x, double factor) {
        const Sum* column = columns.data() + std::clamp(x, 0, width - 1) * kChannels;
        for (std::size_t c = 0; c < kChannels; ++c) {
            sum[c] += factor * static_cast<double>(column[c]);
        }
    };
    Pixel full{};
    for (int x = -window.reach; x <= window.reach; ++x) {
        add(full, x, 1);
    }
    for (int x = 0; x < width; ++x, out += kChannels) {
        Pixel sum = full;
        if (window.part > 0) {
            add(sum, x - window.reach - 1, window.part);
            add(sum, x + window.reach + 1, window.part);
        }
        for (std::size_t c = 0; c < kChannels; ++c) {
            out[c] = static_cast<std::uint8_t>(sum[c] * scale + 0.5);
        }
        add(full, x - window.reach, -1);
        add(full, x + window.reach + 1, 1);
    }
}

// The same picture when there is no memory for another.
QImage windowMeans(const QImage& picture, const Window& window) {
    const QImage image = picture.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    QImage blurred(image.size(), image.format());
    if (blurred.isNull()) {
        return picture;
    }
    blurred.setDevicePixelRatio(image.devicePixelRatio());
    const int width = image.width(), height = image.height();
    const Window across = window.within(width), down = window.within(height);
    const double scale = 1 / (across.weight() * down.weight());
    const std::size_t length = static_cast<std::size_t>(width) * kChannels;

    const Rows rows(image);
    std::vector<std::int32_t> sums(length);
    std::vector<double> partly(down.part > 0 ? length : 0);
    for (int y = -down.reach; y <= down.reach; ++y) {
        rows.addTo(sums, y, 1);
    }
    for (int y = 0; y < height; ++y) {
        if (down.part > 0) {
            std::copy(sums.begin(), sums.end(), partly.begin());
            rows.addTo(partly, y - down.reach - 1, down.part);
            rows.addTo(partly, y + down.reach + 1, down.part);
            meansOfRow(partly, width, across, scale, blurred.scanLine(y));
        } else {
            meansOfRow(sums, width, across, scale, blurred.scanLine(y));
        }
        rows.addTo(sums, y - down.reach, -1);
        rows.addTo(sums, y + down.reach + 1, 1);
    }
    return blurred;
}

}  // namespace

namespace dabcanvas {

QImage boxBlurred(const QImage& image, float radius) {
    if (image.isNull() || !std::isfinite(radius) || radius < 0.5f) {
        return image;
    }
    const float largest = static_cast<float>(std::max(image.width(), image.height()));
    return windowMeans(image, {static_cast<int>(std::round(std::min(radius, largest))), 0});
}

QImage gaussianBlurred(const QImage& image, float deviation) {
    if (image.isNull() || !std::isfinite(deviation) || deviation <= 0) {
        return image;
    }
    constexpr int kPasses = 3;
    const double largest = std::max(image.width(), image.height());
    const double side = std::min<double>(deviation, largest);
    const double variance = side * side / kPasses;  // of each pass
    // The widest window of whole pixels that is not too wide; a part of the next two makes up the rest.
    const double reach = std::floor((std::sqrt(12 * variance + 1) - 1) / 2);
    const double part =
        (2 * reach + 1) * (variance - reach * (reach + 1) / 3) / (2 * ((reach + 1) * (reach + 1) - variance));
    const Window window{static_cast<int>(reach), part};
    QImage blurred = image;
    for (int pass = 0; pass < kPasses; ++pass) {
        blurred = windowMeans(blurred, window);
    }
    return blurred;
}

}  // namespace dabcanvas
