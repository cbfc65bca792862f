// SPDX-License-Identifier: MIT
#include "Processor/DabPlan.h"

#include <algorithm>
#include <cmath>
#include <tuple>

#include "Dabs/DabMap.h"

namespace dabcanvas {
namespace {

bool isFinite(const Dab& dab) {
    for (const float value : {dab.halfSize, dab.radian, dab.halfSize * dab.roundness, dab.flow, dab.color.r,
                              dab.color.g, dab.color.b, dab.random, dab.paperLift}) {
        if (!std::isfinite(value)) {
            return false;
        }
    }
    return true;
}

std::int32_t fixedPoint(double texels) {
    constexpr double kFar = 1 << 30;
    const double scaled = std::clamp(texels * 65536, -kFar, kFar);
    return static_cast<std::int32_t>(scaled + (scaled < 0 ? -0.5 : 0.5));
}

void setWeights(DabShape& shape, double flow, const TipTables::Pair& levels) {
    constexpr int kFaintest = 15;
    double whole = std::min(flow, 1.0) * kFullWeight;
    shape.faint = 0;
    while (shape.faint < kFaintest && whole * 2 <= kFullWeight) {
        whole *= 2;
        ++shape.faint;
    }
    const auto sum = static_cast<std::int32_t>(std::ceil(whole));
    shape.levels[1].weight = static_cast<std::int32_t>(static_cast<float>(sum) * levels.part + 0.5f);
    shape.levels[0].weight = sum - shape.levels[1].weight;
}

void setBox(DabShape& shape, const DabMap& map, float reach) {
    const float scale = std::sqrt(32767.0f), height = map.height * scale, slope = map.slope * scale;
    const float side = map.foot - map.top;
    shape.box = {map.alongX,
                 map.alongY,
                 map.acrossX,
                 map.acrossY,
                 map.halfWidth,
                 map.halfHeight,
                 map.foot,
                 map.top,
                 height,
                 slope,
                 map.foot * height - side * side * slope,
                 reach * reach};
}

void setLevel(DabLevel& level, const TipTable& table, const DabMap& map, const PlannedDab& plan) {
    level.pairs = table.pairs.data();
    level.size = table.size;
    level.stride = table.stride();
    const double u = table.size.width * plan.perWidth, v = table.size.height * plan.perHeight;
    level.rightU = fixedPoint(u * map.alongX);
    level.downU = fixedPoint(u * map.alongY);
    level.rightV = fixedPoint(v * map.acrossX);
    level.downV = fixedPoint(v * map.acrossY);
}

}  // namespace

bool shapeDab(const Dab& dab, TipTables& tip, PlannedDab& plan) {
    if (tip.isEmpty() || !isFinite(dab) || !(dab.halfSize > 0) || !(dab.halfSize * dab.roundness > 0) ||
        !(dab.flow > 0)) {
        return false;
    }
    Dab mirrored = dab;
    mirrored.flipX = dab.flipX < 0 ? -1.0f : 1.0f;
    mirrored.flipY = dab.flipY < 0 ? -1.0f : 1.0f;
    const DabMap map(mirrored, tip.size());
    const double wide = double{map.halfWidth} + map.foot, tall = double{map.halfHeight} + map.foot;
    plan.halfAcross = std::fabs(map.alongX) * wide + std::fabs(map.acrossX) * tall + 0.5;
    plan.halfDown = std::fabs(map.alongY) * wide + std::fabs(map.acrossY) * tall + 0.5;
    plan.perWidth = 0.5 / map.halfWidth;
    plan.perHeight = 0.5 / map.halfHeight;
    DabShape& shape = plan.shape;
    const TipTables::Pair levels = tip.levels(map.level);
    shape.levelCount = levels.second != nullptr ? 2 : 1;
    const TipTable& second = levels.second != nullptr ? *levels.second : *levels.first;
    setWeights(shape, dab.flow, levels);
    setLevel(shape.levels[0], *levels.first, map, plan);
    setLevel(shape.levels[1], second, map, plan);
    setBox(shape, map, std::max(levels.first->reach, second.reach));
    const float straight[] = {dab.color.r, dab.color.g, dab.color.b, 1};
    std::transform(straight, straight + 4, shape.colour.begin(), [](float value) {
        return static_cast<std::uint16_t>(std::clamp(value, 0.0f, 1.0f) * 65535 + 0.5f);
    });
    shape.multicolour = nullptr;
    shape.paperLift = static_cast<std::int32_t>(std::clamp(dab.paperLift, -2.0f, 2.0f) * kRelief);
    if (tip.hasColour()) {
        shape.colours = {&tip.colour(levels.level), &tip.colour(levels.level + shape.levelCount - 1)};
        shape.part = levels.part;
    }
    return true;
}

bool placeDab(const Dab& dab, const Size& layer, std::uint64_t number, PlannedDab& plan) {
    const auto pixel = [](double place) {
        constexpr double kFar = 1 << 28;
        return static_cast<int>(
            std::clamp(place, -kFar, kFar));  // towards 0, from off the layer or within a pixel
    };
    if (!std::isfinite(dab.x) || !std::isfinite(dab.y)) {
        return false;
    }
    plan.touched = Rect::between(pixel(dab.x - plan.halfAcross), pixel(dab.y - plan.halfDown),
                                 pixel(dab.x + plan.halfAcross + 1), pixel(dab.y + plan.halfDown + 1))
                       .intersected(Rect::of(layer));
    plan.x = dab.x;
    plan.y = dab.y;
    plan.number = number;
    return !plan.touched.isEmpty();
}

bool haveOneShape(const Dab& one, const Dab& other) {
    const auto all = [](const Dab& dab) {
        return std::tie(dab.halfSize, dab.radian, dab.roundness, dab.flipX, dab.flipY, dab.flow, dab.color.r,
                        dab.color.g, dab.color.b, dab.random, dab.tip, dab.paperLift);
    };
    return all(one) == all(other);
}

TileDab inTile(const PlannedDab& plan, const Rect& tile) {
    const DabBox& box = plan.shape.box;
    const double right = tile.x + 0.5 - plan.x, down = tile.y + 0.5 - plan.y;
    const double along = box.alongX * right + box.alongY * down;
    const double across = box.acrossX * right + box.acrossY * down;
    TileDab dab;
    dab.shape = &plan.shape;
    for (std::size_t i = 0; i < 2; ++i) {
        const Size& size = plan.shape.levels[i].size;
        dab.u[i] = fixedPoint((0.5 + along * plan.perWidth) * size.width - 0.5);
        dab.v[i] = fixedPoint((0.5 + across * plan.perHeight) * size.height - 0.5);
    }
    dab.along = static_cast<float>(along);
    dab.across = static_cast<float>(across);
    dab.noise = noiseAt(tile.x, tile.y, plan.number);
    dab.firstRow = std::max(plan.touched.y - tile.y, 0);
    dab.endRow = std::min(plan.touched.bottom() - tile.y, tile.height);
    return dab;
}

}  // namespace dabcanvas
