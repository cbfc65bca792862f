// SPDX-License-Identifier: MIT
#include "Tools/FloodFill.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace dabcanvas::dabpainter {

namespace {

constexpr std::uint8_t kOther = 0, kAlike = 1, kFlooded = 255;

// The flood of one picture: a byte a pixel says what it is. Runs of alike pixels are found by whole rows, each of which is
// compared with the seed when the flood first comes to it.
class Flood {
public:
    Flood(const QImage& picture, QPoint seed, int tolerance)
        : _picture(picture),
          _width(picture.width()),
          _height(picture.height()),
          _tolerance(tolerance),
          _seed(pixels(seed.y())[seed.x()]),
          _marks(std::size_t(_width) * std::size_t(_height), kOther),
          _compared(std::size_t(_height), false),
          _rect(seed, QSize(1, 1)) {
        _todo.push_back({seed.x(), seed.x() + 1, seed.y()});
    }

    FloodMask mask() {
        while (!_todo.empty()) {
            const Run run = _todo.back();
            _todo.pop_back();
            fill(run);
        }
        return withRim();
    }

private:
    struct Run {
        int from, to, y;  // to is past the end
    };

    const std::uint32_t* pixels(int y) const {
        return reinterpret_cast<const std::uint32_t*>(_picture.constScanLine(y));
    }
    std::uint8_t* marks(int y) { return _marks.data() + std::size_t(y) * std::size_t(_width); }

    void compare(int y) {
        if (_compared[std::size_t(y)])
            return;
        _compared[std::size_t(y)] = true;
        const std::uint32_t* from = pixels(y);
        std::uint8_t* to = marks(y);
        // Most pixels are the seed's colour, or far from it.
        for (int x = 0; x < _width; ++x)
            to[x] = from[x] == _seed || pixelDifference(from[x], _seed) <= _tolerance ? kAlike : kOther;
    }

    // All runs that begin or pass between these columns.
    void fill(const Run& within) {
        compare(within.y);
        std::uint8_t* row = marks(within.y);
        int x = within.from;
        while (x < within.to) {
            const void* found = std::memchr(row + x, kAlike, std::size_t(within.to - x));
            if (!found)
                return;
            int first = int(static_cast<const std::uint8_t*>(found) - row), last = first + 1;
            while (first > 0 && row[first - 1] == kAlike)
                --first;
            while (last < _width && row[last] == kAlike)
                ++last;
            std::memset(row + first, kFlooded, std::size_t(last - first));
            _rect |= QRect(first, within.y, last - first, 1);
            if (within.y > 0)
                _todo.push_back({first, last, within.y - 1});
            if (within.y + 1 < _height)
                _todo.push_back({first, last, within.y + 1});
            x = last;
        }
    }

    // ---- The rim

    FloodMask withRim() {
        FloodMask mask;
        mask.rect = _rect.adjusted(-1, -1, 1, 1) & _picture.rect();
        mask.cover.resize(qsizetype{mask.rect.width()} * mask.rect.height());
        std::vector<std::uint8_t> touched(std::size_t(_width) + 2);
        for (int y = mask.rect.top(); y <= mask.rect.bottom(); ++y) {
            findTouched(mask.rect, y, touched);
            auto* cover = reinterpret_cast<std::uint8_t*>(mask.cover.data()) +
                          qsizetype{y - mask.rect.top()} * mask.rect.width();
            const std::uint8_t* row = marks(y) + mask.rect.left();
            for (int i = 0; i < mask.rect.width(); ++i)
                cover[i] = row[i] == kFlooded ? kFlooded : 0;
            for (int i = 0; i < mask.rect.width(); ++i) {
                if (touched[std::size_t(i)] && cover[i] == 0)
                    cover[i] = rimCover(mask.rect.left() + i, y);
            }
        }
        return mask;
    }

    // Whether the flood is at a pixel of the row or beside it.
    void findTouched(const QRect& rect, int y, std::vector<std::uint8_t>& touched) {
        std::fill(touched.begin(), touched.end(), std::uint8_t{0});
        for (int near = std::max(0, y - 1); near <= std::min(_height - 1, y + 1); ++near) {
            const std::uint8_t* row = marks(near) + rect.left();
            const int count = rect.width();
            for (int i = 0; i < count; ++i)
                touched[std::size_t(i)] |= row[i] & 0x80;
            for (int i = 1; i < count; ++i)
                touched[std::size_t(i)] |= row[i - 1] & 0x80;
            for (int i = 0; i + 1 < count; ++i)
                touched[std::size_t(i)] |= row[i + 1] & 0x80;
        }
    }

    // A pixel that differs less than what lies behind it is where a smooth line fades into the ground.
    std::uint8_t rimCover(int x, int y) {
        const int own = pixelDifference(pixels(y)[x], _seed);
        int most = own;
        for (int nearY = std::max(0, y - 1); nearY <= std::min(_height - 1, y + 1); ++nearY) {
            for (int nearX = std::max(0, x - 1); nearX <= std::min(_width - 1, x + 1); ++nearX)
                most = std::max(most, pixelDifference(pixels(nearY)[nearX], _seed));
        }
        return most == own ? 0 : std::uint8_t(std::clamp(255 - 255 * own / most, 1, 254));
    }

    const QImage& _picture;
    const int _width, _height, _tolerance;
    const std::uint32_t _seed;
    std::vector<std::uint8_t> _marks;
    std::vector<bool> _compared;
    std::vector<Run> _todo;
    QRect _rect;
};

}  // namespace

FloodMask floodMask(const QImage& picture, QPoint seed, int tolerance) {
    if (picture.depth() != 32 || !picture.rect().contains(seed))
        return {};
    return Flood(picture, seed, std::clamp(tolerance, 0, 255)).mask();
}

}  // namespace dabcanvas::dabpainter
