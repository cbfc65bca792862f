// SPDX-License-Identifier: MIT
#include "Processor/PaperTiles.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "Processor/DabKernel.h"

namespace dabcanvas {
namespace {

int periodOf(float scale, int texels) {
    constexpr float kFar = 1 << 24;
    const float period = std::floor(scale * static_cast<float>(texels));
    return period > 1 ? static_cast<int>(std::min(period, kFar)) : 1;  // also where the scale is no number
}

}  // namespace

PaperTiles::PaperTiles(PaperImage paper, const PaperStyle& style, std::size_t most)
    : _paper(std::move(paper)), _style(style), _most(std::max<std::size_t>(most / sizeof(Through), 1)) {
    if (isEmpty()) {
        return;
    }
    const Size& size = _paper.grain.front().size;
    _period = {periodOf(style.scale, size.width), periodOf(style.scale, size.height)};
    const float coarse = std::max(static_cast<float>(size.width) / static_cast<float>(_period.width),
                                  static_cast<float>(size.height) / static_cast<float>(_period.height));
    _levels = levelPairAt(_paper.grain, std::max(std::log2(coarse), 0.0f));
}

PaperTiles::Axis PaperTiles::axisOf(int first, int period, int texels) {
    Axis axis;
    for (int i = 0; i < kTileSide; ++i) {
        const double place = ((first + i) % period + 0.5) * texels / period - 0.5;
        const int near = static_cast<int>(std::floor(place));
        axis[static_cast<std::size_t>(i)] = {(near + texels) % texels, (near + 1) % texels,
                                             static_cast<float>(place - near)};
    }
    return axis;
}

std::uint16_t PaperTiles::through(float height) const {
    if (_style.isPlain()) {
        return static_cast<std::uint16_t>(std::min(height * 32767 + 0.5f, 32767.0f));
    }
    constexpr float kMost = 32767.0f / kRelief;  // beyond it no lift changes anything
    const float raised = _style.gain * height + _style.level;
    const float kept = std::isfinite(raised) ? std::clamp(raised, -kMost, kMost) * kRelief : 0;
    return static_cast<std::uint16_t>(static_cast<std::int16_t>(std::lround(kept)));
}

std::shared_ptr<const PaperTiles::Through> PaperTiles::made(const Rect& tile) const {
    auto through = std::make_shared<Through>();
    std::array<float, kTilePixels> sum{};
    for (const int next : {0, 1}) {
        const float weight = (next == 0 ? 1 - _levels.part : _levels.part) / 255;
        if (!(weight > 0)) {
            continue;
        }
        const Pixels& level = _paper.grain[static_cast<std::size_t>(_levels.first + next)];
        const Axis right = axisOf(tile.x, _period.width, level.size.width);
        const Axis down = axisOf(tile.y, _period.height, level.size.height);
        float* to = sum.data();
        for (const Read& y : down) {
            const std::uint8_t *upper = level.at(0, y.near), *lower = level.at(0, y.far);
            const float under = weight * y.part, over = weight - under;
            for (const Read& x : right) {
                const float left = over * upper[x.near] + under * lower[x.near];
                const float beside = over * upper[x.far] + under * lower[x.far];
                *to++ += left + x.part * (beside - left);
            }
        }
    }
    const float* from = sum.data();
    for (int y = 0; y < kTileSide; ++y) {
        for (int x = 0; x < kTileSide; ++x) {
            (*through)[static_cast<std::size_t>(pairedPlace(x, y))] = this->through(*from++);
        }
    }
    return through;
}

std::shared_ptr<const PaperTiles::Through> PaperTiles::at(const Rect& tile) {
    const std::uint64_t place = static_cast<std::uint64_t>(tile.y) << 32 | static_cast<std::uint64_t>(tile.x);
    {
        const std::lock_guard lock(_lock);
        if (const auto found = _places.find(place); found != _places.end()) {
            _kept.splice(_kept.begin(), _kept, found->second);
            return found->second->through;
        }
    }
    std::shared_ptr<const Through> through = made(tile);
    const std::lock_guard lock(_lock);
    _kept.push_front({place, through});
    _places[place] = _kept.begin();
    if (_kept.size() > _most) {
        _places.erase(_kept.back().place);
        _kept.pop_back();
    }
    return through;
}

}  // namespace dabcanvas
