// SPDX-License-Identifier: MIT
#include "Processor/DabPlan.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace dabcanvas {
namespace {

bool isFinite(const Dab& dab) {
    for (const float value : {dab.x, dab.y, dab.halfSize, dab.radian, dab.halfSize * dab.roundness, dab.flow,
                              dab.color.r, dab.color.g, dab.color.b, dab.random}) {
        if (!std::isfinite(value)) {
            return false;
        }
    }
    return true;
}

std::int32_t fixedPoint(double texels) {
    constexpr double kFar = 1 << 30;
    return static_cast<std::int32_t>(std::floor(std::clamp(texels * 65536, -kFar, kFar) + 0.5));
}

// Pixels whose squares may meet the box.
Rect touchedBy(const Dab& dab, const DabMap& map) {
    const double wide = double{map.halfWidth} + map.foot, tall = double{map.halfHeight} + map.foot;
    const double x = std::fabs(map.alongX) * wide + std::fabs(map.acrossX) * tall;
    const double y = std::fabs(map.alongY) * wide + std::fabs(map.acrossY) * tall;
    return Rect::covering(dab.x - x - 0.5, dab.y - y - 0.5, dab.x + x + 0.5, dab.y + y + 0.5);
}

void setWeights(TileDab& tile, double flow, const TipTables::Pair& levels) {
    constexpr int kFaintest = 15;
    double whole = std::min(flow, 1.0) * kFullWeight;
    while (tile.faint < kFaintest && whole * 2 <= kFullWeight) {
        whole *= 2;
        ++tile.faint;
    }
    const auto sum = static_cast<std::int32_t>(std::ceil(whole));
    tile.levelCount = levels.second != nullptr ? 2 : 1;
    tile.levels[1].weight = static_cast<std::int32_t>(sum * levels.part + 0.5f);
    tile.levels[0].weight = sum - tile.levels[1].weight;
}

}  // namespace

std::optional<PlannedDab> planned(const Dab& dab, const DabStyle& style, TipTables& tip, const Size& layer,
                                  std::uint64_t number) {
    if (tip.isEmpty() || !isFinite(dab) || !(dab.halfSize > 0) || !(dab.halfSize * dab.roundness > 0) ||
        !(dab.flow > 0)) {
        return {};
    }
    Dab mirrored = dab;
    mirrored.flipX = dab.flipX < 0 ? -1.0f : 1.0f;
    mirrored.flipY = dab.flipY < 0 ? -1.0f : 1.0f;
    const DabMap map(mirrored, tip.size());
    const Rect touched = touchedBy(mirrored, map).intersected(Rect::of(layer));
    if (touched.isEmpty()) {
        return {};
    }
    PlannedDab plan{mirrored, map, touched, tip.levels(map.level), {}, number, {}};
    TileDab& tile = plan.tile;
    setWeights(tile, dab.flow, plan.levels);
    const float reach =
        std::max(plan.levels.first->reach, plan.levels.second != nullptr ? plan.levels.second->reach : 0.0f);
    const float straight[] = {dab.color.r, dab.color.g, dab.color.b, 1};
    for (std::size_t i = 0; i < 4; ++i) {
        tile.colour[i] = static_cast<std::uint16_t>(std::clamp(straight[i], 0.0f, 1.0f) * 65535 + 0.5f);
    }
    const float scale = std::sqrt(32767.0f), side = map.foot - map.top;
    tile.box = {0,
                0,
                map.alongX,
                map.alongY,
                map.acrossX,
                map.acrossY,
                map.halfWidth,
                map.halfHeight,
                map.foot,
                map.top,
                map.height * scale,
                map.slope * scale,
                0,
                reach * reach};
    tile.box.halfShadow = map.foot * tile.box.height - side * side * tile.box.slope;
    const TipTable* tables[] = {plan.levels.first, plan.levels.second};
    for (std::size_t i = 0; i < static_cast<std::size_t>(tile.levelCount); ++i) {
        TileLevel& level = tile.levels[i];
        const TipTable& table = *tables[i];
        level.pairs = table.pairs.data();
        level.stride = table.stride();
        level.lastU = (table.size.width - 1) << 16;
        level.lastV = (table.size.height - 1) << 16;
        const double u = table.size.width / (2.0 * map.halfWidth),
                     v = table.size.height / (2.0 * map.halfHeight);
        level.rightU = fixedPoint(u * map.alongX);
        level.downU = fixedPoint(u * map.alongY);
        level.rightV = fixedPoint(v * map.acrossX);
        level.downV = fixedPoint(v * map.acrossY);
    }
    if (style.multicolour) {
        plan.multicolour.emplace(mirrored, style);
        const int second = plan.levels.level + (plan.levels.second != nullptr ? 1 : 0);
        tile.colours = {&tip.colour(plan.levels.level), &tip.colour(second)};
        tile.part = plan.levels.part;
    }
    return plan;
}

TileDab inTile(const PlannedDab& plan, int x, int y) {
    TileDab tile = plan.tile;
    const double right = x + 0.5 - plan.dab.x, down = y + 0.5 - plan.dab.y;
    const double along = plan.map.alongX * right + plan.map.alongY * down;
    const double across = plan.map.acrossX * right + plan.map.acrossY * down;
    tile.box.along = static_cast<float>(along);
    tile.box.across = static_cast<float>(across);
    const TipTable* tables[] = {plan.levels.first, plan.levels.second};
    for (std::size_t i = 0; i < static_cast<std::size_t>(tile.levelCount); ++i) {
        const Size& size = tables[i]->size;
        tile.levels[i].u = fixedPoint((0.5 + 0.5 * along / plan.map.halfWidth) * size.width - 0.5);
        tile.levels[i].v = fixedPoint((0.5 + 0.5 * across / plan.map.halfHeight) * size.height - 0.5);
    }
    tile.noise = noiseAt(x, y, plan.number);
    tile.multicolour = plan.multicolour ? &*plan.multicolour : nullptr;
    return tile;
}

}  // namespace dabcanvas
