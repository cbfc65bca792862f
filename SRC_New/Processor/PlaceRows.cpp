// SPDX-License-Identifier: MIT
#include "Processor/PlaceRows.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>
#include <utility>
#include <vector>

#include "Dabs/MipLevels.h"
#include "Surface/Placement.h"

namespace dabcanvas {
namespace {

using Colour = std::array<float, 4>;  // units of 1/255

// The texels that a placed picture is read from: its own, or fewer where it is reduced.
class Source {
public:
    Source(const PixelView& pixels, const Placement& placement) : _view(pixels) {
        _reading = placement.readingOf(pixels.size);
        if (_reading == Placement::Reading::averaged) {
            _reduced = reduced(pixelsOf(pixels), placement.reducedSize(pixels.size));
            _view = PixelView::topRowFirst(_reduced.bytes.data(), _reduced.size);
        }
    }

    // At a place of 0..1 from the left and the top edge.
    Colour at(double x, double y) const {
        const double u = x * _view.size.width, v = y * _view.size.height;
        if (_reading == Placement::Reading::texelOnPixel) {
            return texel(static_cast<int>(std::floor(u)), static_cast<int>(std::floor(v)));
        }
        const double left = std::floor(u - 0.5), top = std::floor(v - 0.5);
        const auto along = static_cast<float>(u - 0.5 - left), down = static_cast<float>(v - 0.5 - top);
        const int column = static_cast<int>(left), row = static_cast<int>(top);
        return mixed(mixed(texel(column, row), texel(column + 1, row), along),
                     mixed(texel(column, row + 1), texel(column + 1, row + 1), along), down);
    }

private:
    static Colour mixed(const Colour& a, const Colour& b, float part) {
        Colour mix;
        for (std::size_t i = 0; i < 4; ++i) {
            mix[i] = a[i] + (b[i] - a[i]) * part;
        }
        return mix;
    }
    Colour texel(int x, int y) const {
        const std::uint8_t* from =
            _view.at(std::clamp(x, 0, _view.size.width - 1), std::clamp(y, 0, _view.size.height - 1));
        return {static_cast<float>(from[0]), static_cast<float>(from[1]), static_cast<float>(from[2]),
                static_cast<float>(from[3])};
    }

    PixelView _view;
    Pixels _reduced;
    Placement::Reading _reading;
};

// From a pixel's centre to its place in the picture, in buffer pixels from the picture's left and top edge.
struct Back {
    double x0, y0, cosine, sine, halfWidth, halfHeight;

    Point operator()(int x, int y) const {
        const double dx = x + 0.5 - x0, dy = y0 - (y + 0.5);  // counts upwards
        return {dx * cosine + dy * sine + halfWidth, halfHeight - (dy * cosine - dx * sine)};
    }
};

// How much of a pixel's side lies in the picture.
double inside(double place, double length) {
    return std::clamp(std::min(place + 0.5, length) - std::max(place - 0.5, 0.0), 0.0, 1.0);
}

template <typename Channel>
void blendPixel(Channel* to, const Channel* back, const Colour& source, float covered, bool replaces) {
    constexpr float kFull = std::numeric_limits<Channel>::max();
    const float taken = (replaces ? 1.0f : source[3] / 255) * covered;
    for (std::size_t i = 0; i < 4; ++i) {
        const float value = static_cast<float>(back[i]) * (1 - taken) + source[i] * (kFull / 255) * covered;
        to[i] = static_cast<Channel>(std::min(value + 0.5f, kFull));
    }
}

}  // namespace

template <typename Channel>
Rect placeRows(const Placed& placed, const Rect& clip, const TileGrid<Channel>& background,
               TileGrid<Channel>& picture) {
    const double radian = std::remainder(placed.radian, 2 * std::numbers::pi);
    const Placement placement({placed.centreX, placed.centreY}, placed.width, placed.height, radian);
    const Rect touched = placement.touched().intersected(clip);
    const Source source(placed.pixels, placement);
    const Back back{placed.centreX,   placed.centreY,        placement.cosine(),
                    placement.sine(), placement.width() / 2, placement.height() / 2};
    static constexpr Channel kTransparent[4] = {};
    TileGrid<Channel> result = picture;
    result.forEachIn(touched, [&](std::size_t index, const Rect& part) {
        Tile<Channel>& tile = result.writable(index);
        const auto* below = background.tile(index);
        for (int y = part.y; y < part.bottom(); ++y) {
            for (int x = part.x; x < part.right(); ++x) {
                const Point place = back(x, y);
                const double covered =
                    inside(place.x, placement.width()) * inside(place.y, placement.height());
                if (covered > 0) {
                    const int column = x % kTileSide, row = y % kTileSide;
                    blendPixel(tile.at(column, row), below != nullptr ? below->at(column, row) : kTransparent,
                               source.at(place.x / placement.width(), place.y / placement.height()),
                               static_cast<float>(covered), placed.replaces);
                }
            }
        }
    });
    picture = std::move(result);
    return touched;
}

template Rect placeRows(const Placed&, const Rect&, const TileGrid<std::uint8_t>&, TileGrid<std::uint8_t>&);
template Rect placeRows(const Placed&, const Rect&, const TileGrid<std::uint16_t>&, TileGrid<std::uint16_t>&);

}  // namespace dabcanvas
