// SPDX-License-Identifier: MIT
#include "Dabs/Dab.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "LineProcess/Tingle.h"
#include "LineProcess/TingleBlocks.h"
#include "LineProcess/TingleInternal.h"

namespace dabcanvas {

namespace {

constexpr float kActive = 0.00001f;  // a jitter amount below this changes nothing
constexpr float kThinSize = 3.0f;    // size, in pixels, below which a line counts as thin

bool isActive(const LPControlParams& control) {
    return control.pressure != 0 || control.altitude != 0 || control.speed != 0;
}

// To whole pixels: how many from a place on, and where their middle is.
float wholePixels(float size) {
    return std::max(std::nearbyint(size), 1.0f);
}
float middleOfPixels(float middle, float count) {
    return std::nearbyint(middle - count / 2) + count / 2;
}

void alignToPixels(Dab& dab) {
    const float wide = wholePixels(2 * dab.halfSize), tall = wholePixels(2 * dab.halfSize * dab.roundness);
    dab.halfSize = wide / 2;
    dab.roundness = tall / wide;
    dab.radian = 0;
    dab.x = middleOfPixels(dab.x, wide);
    dab.y = middleOfPixels(dab.y, tall);
}

float mirrored(bool flip, bool atRandom, std::int64_t index) {
    const float sign = flip ? -1.0f : 1.0f;
    return atRandom && dabcanvas::coinAt(index) ? -sign : sign;
}

}  // namespace

void DabMaker::updateFlags() {
    const DabSettings& s = settings;
    // The thresholds stand as they are: colour and flow count from just above the limit, the others from the
    // limit on.
    _flags.colorTingle = s.colorTingle > kActive || isActive(s.colorControl);
    _flags.hsvTingle = s.hueTingle > kActive || s.saturationTingle > kActive || s.brightnessTingle > kActive;
    _flags.colorTendency = _flags.colorTingle || _flags.hsvTingle;
    _flags.flowTingle = s.flowTingle > kActive || s.decay != 0 || isActive(s.flowControl);
    _flags.multipleTips = s.tipCells > 1 && (s.textureTingleEnabled || isActive(s.textureControl));
    _flags.radianTingle = s.moveRadianEnable || s.radianTingle >= kActive || isActive(s.radianControl);
    _flags.roundnessTingle = s.roundnessTingle >= kActive || isActive(s.roundnessControl);
    _flags.distribution = s.distribution >= kActive || isActive(s.distributionControl);
    _flags.radiusTingle = s.radiusTingle >= kActive;
    _flags.countTingle = s.distributionCount != 0 || s.distributionCountTingle != 0;
    _flags.paperLift = s.maskDepth > 0;
    _flags.moveRadian = s.moveRadianEnable || s.startRadianEnable || (s.distribution != 0 && !s.disTwoAxes);
}

void DabMaker::reset() {
    _pointIndex = 0;
    _lastPosition = {0, 0};
    _cameFrom = false;
    _direction = 0;
    SetDebugModel(settings.isDebug ? 1 : 0);
    _startRadian = static_cast<float>(6.283185307179586 * static_cast<double>(dabcanvas::uniformAt(0)));
}

void DabMaker::comeFrom(const LPPosition& place) {
    _lastPosition = place;
    _cameFrom = true;
}

void DabMaker::beginRun() {
    SetDebugModel(settings.isDebug ? 1 : 0);
    _baseRadian = settings.radian + (settings.startRadianEnable ? _startRadian : 0.0f);
    _dab.radian = onCanvas(_baseRadian);
    _dab.roundness = settings.roundness;
    _dab.flow = settings.flow;
    _dab.color = settings.color;
    _dab.tip = 0;
    _dab.random = 0;
    _dab.paperLift = 0;
}

std::size_t DabMaker::beginPoint(const LPPoint* points, std::size_t count, std::size_t i) {
    _point = points[i];
    ++_pointIndex;
    const float size = _point.radius;
    _thinFlow = (settings.lineProcessType & kThinFlow) != 0 ? std::min(size / kThinSize, 1.0f) : 1.0f;
    _halfSize = ((settings.lineProcessType & kNoThinDabs) != 0 ? std::max(size, kThinSize) : size) * 0.5f;

    if (_flags.paperLift) {
        _reach = std::clamp(influence(_point.params, settings.maskDepthControl), 0.0f, 1.0f);
    }

    const LPPosition& here = _point.position;
    if (_flags.moveRadian && (here.x != _lastPosition.x || here.y != _lastPosition.y)) {
        const bool hasLast =
            _cameFrom || (_pointIndex != 1 && (_lastPosition.x != 0 || _lastPosition.y != 0));
        if (hasLast) {
            _direction = -Radian(_lastPosition, here);
        } else if (count != 1 && i == 0) {
            // A stroke's first point has no point before it; it looks ahead, so that the first dab is not
            // turned toward the canvas's corner.
            _direction = -Radian(here, points[1].position);
        }
    }
    _dabsHere = _flags.countTingle ? dabCount() : 1;
    return _dabsHere;
}

std::size_t DabMaker::dabCount() const {
    const std::uint64_t base = std::max<std::uint32_t>(settings.distributionCount, 1);
    const std::uint64_t wanted = distributionCountTingleBlock(_point, base, settings.distributionCountTingle,
                                                              static_cast<std::uint64_t>(_pointIndex),
                                                              settings.distributionCountControl);
    return static_cast<std::size_t>(std::min<std::uint64_t>(wanted, kMostDabsAPoint));
}

const Dab& DabMaker::makeDab() {
    const DabSettings& s = settings;
    Dab& dab = _dab;
    const LPPosition centre = _flags.distribution
                                  ? positionTingleBlock(_point, s.distribution, s.disTwoAxes, _pointIndex,
                                                        _direction, s.distributionControl)
                                  : _point.position;
    dab.x = centre.x;
    dab.y = centre.y;
    if (_flags.multipleTips) {
        dab.tip = jitteredTip();
    }
    if (_flags.colorTendency) {
        dab.color = jitteredColor();
    }
    if (s.colorFul) {
        dab.random = dabcanvas::uniformAt(_pointIndex);
    }
    const float flow = _flags.flowTingle ? flowTingleBlock(_point, s.flow, s.flowTingle, s.decay, s.minFlow,
                                                           s.maxFlow, _pointIndex, s.flowControl)
                                         : s.flow;
    dab.flow = _thinFlow * flow;
    if (_flags.paperLift) {
        dab.paperLift = paperLift(flow);
    }
    if (_flags.radianTingle) {
        dab.radian = onCanvas(radianTingleBlock(_point, _baseRadian, seenDirection(), s.radianTingle,
                                                s.moveRadianEnable, _pointIndex, s.radianControl));
    }
    if (_flags.roundnessTingle) {
        const float roundness = roundnessTingleBlock(_point, s.roundness, s.roundnessTingle, s.minRoundness,
                                                     _pointIndex, s.roundnessControl);
        dab.roundness = std::clamp(std::max(roundness, s.minRoundness), 0.0f, 1.0f);
    }
    dab.halfSize = _halfSize;
    // Deliberate: the size jitter applies to scattered points of several dabs only; a line's dabs have theirs
    // already.
    if (_dabsHere != 1 && _flags.distribution && _flags.radiusTingle) {
        dab.halfSize =
            std::max(radiusTingleBlock(_halfSize, s.minRadius * s.radius * 0.5f, s.radiusTingle), 0.0f);
    }
    if (s.pixelAligned) {
        alignToPixels(dab);
    }
    dab.flipX = mirrored(s.flipX != s.viewMirrored, s.flipXTingle, _pointIndex);
    dab.flipY = mirrored(s.flipY, s.flipYTingle, _pointIndex);
    return dab;
}

float DabMaker::seenDirection() const {
    constexpr float kHalfTurn = std::numbers::pi_v<float>;
    return settings.viewRadian + (settings.viewMirrored ? kHalfTurn - _direction : _direction);
}

float DabMaker::onCanvas(float seenRadian) const {
    return settings.viewMirrored ? settings.viewRadian - seenRadian : seenRadian - settings.viewRadian;
}

// A firm dab reaches the paper's valleys, a light one, or one that lays down less than the brush can, its tops alone.
float DabMaker::paperLift(float flow) const {
    const float share = settings.flow > 0 ? std::clamp(flow / settings.flow, 0.0f, 1.0f) : 0;
    return settings.maskDepth * (2 * _reach * share - 1);
}

RgbType DabMaker::jitteredColor() const {
    const DabSettings& s = settings;
    RgbType color = s.color;
    if (_flags.colorTingle) {
        color = colorTingleBlock(_point, color, s.backColor, s.colorTingle, _pointIndex, s.colorControl);
    }
    if (_flags.hsvTingle) {
        color = hsvTingleBlock(color, s.hueTingle, s.saturationTingle, s.brightnessTingle);
    }
    return color;
}

std::uint32_t DabMaker::jitteredTip() const {
    const DabSettings& s = settings;
    const std::uint64_t tip =
        textureIndexTingleBlock(_point, s.numberOfTips, s.textureTingleEnabled,
                                static_cast<std::uint64_t>(_pointIndex), s.textureControl);
    // An index beyond the atlas means its first tip.
    return tip < s.tipCells ? static_cast<std::uint32_t>(tip) : 0;
}

}  // namespace dabcanvas
