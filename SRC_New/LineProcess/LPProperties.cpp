// SPDX-License-Identifier: MIT
#include "LineProcess/LPProperties.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace {

constexpr LPLineParams kDefaults = {
    .radius = 20.0f,
    .pointsDistanceEnabled = 1,
    .pointsDistance = 0.15f,
    .radiusTingle = 0.0f,
    .radiusControl = {0.0f, 0.0f, 0.0f},
    .minRadius = 0.2f,
    .maxRadius = 1.0f,
    .smoothEnabled = 1,
    .speedSencitive = 0.3f,
    .sensitivity = 50.0f,
    .startRadius = 0.0f,
    .endRadius = 0.1f,
    .trackNum = 0,
    .strokeControlValue = 100.0f,
    .stage = 0,
    .lastInput = {0.0f, 0.0f},
    .prevInput = {0.0f, 0.0f},
    .segmentStart = {0.0f, 0.0f},
    .carry = 0.0f,
    .strokeLength = 0.0f,
    .dabCount = 0,
    .lastRadius = 0.0f,
    .segPressure = 0.0f,
    .segAltitude = 0.0f,
    .segSpeed = 0.0f,
    .pendingInputs = 0,
    .pendingDistance = 0.0f,
    .pendingPressureSum = 0.0f,
    .pendingAltitudeSum = 0.0f,
    .prevSegmentDistance = 0.0f,
    .minPointsDistance = 0.5f,
};

constexpr int kNone = -1;

#define LP_AT(field) static_cast<int>(offsetof(LPLineParams, field))
// Indexed by property id.
constexpr int kOffsets[] = {
    kNone,
    LP_AT(radius),
    LP_AT(pointsDistanceEnabled),
    LP_AT(pointsDistance),
    kNone,
    LP_AT(radiusTingle),
    LP_AT(radiusControl.speed),
    LP_AT(radiusControl.pressure),
    LP_AT(radiusControl.altitude),
    LP_AT(minRadius),
    LP_AT(maxRadius),
    LP_AT(smoothEnabled),
    kNone,
    LP_AT(speedSencitive),
    LP_AT(sensitivity),
    LP_AT(startRadius),
    LP_AT(endRadius),
    LP_AT(trackNum),
    LP_AT(strokeControlValue),
    kNone,
    LP_AT(minPointsDistance),
};
#undef LP_AT
static_assert(std::size(kOffsets) == 21, "ids run from 1 to 20");

// How much of a value fits between its place and the end of the record.
std::size_t roomAt(int id, std::size_t size) {
    return std::min(size, sizeof(LPLineParams) - static_cast<std::size_t>(kOffsets[id]));
}

template <typename Value>
void* store(int id, Value value) {
    void* const place = lpGetPropertyPointer(id);
    if (place != nullptr) {
        std::memcpy(place, &value, roomAt(id, sizeof value));
    }
    return place;
}

template <typename Value>
Value load(int id) {
    Value value = 0;
    const void* const place = lpGetPropertyPointer(id);
    if (place != nullptr) {
        std::memcpy(&value, place, roomAt(id, sizeof value));
    }
    return value;
}

}  // namespace

thread_local LPLineParams _lpDefaultParaObj = kDefaults;
thread_local LPLineParams* _lpParaObj = &_lpDefaultParaObj;

LPLineParams* lpSetParaObj(LPLineParams* record) {
    LPLineParams* const before = _lpParaObj;
    _lpParaObj = record != nullptr ? record : &_lpDefaultParaObj;
    return before;
}

void* lpGetPropertyPointer(int id) {
    if (id < 0 || id >= static_cast<int>(std::size(kOffsets)) || kOffsets[id] == kNone) {
        return nullptr;
    }
    return reinterpret_cast<unsigned char*>(_lpParaObj) + kOffsets[id];
}

void* lpSetPropertyi(int id, std::int32_t value) {
    return store(id, value);
}

void* lpSetPropertyf(int id, float value) {
    return store(id, value);
}

void* lpSetPropertyd(int id, double value) {
    return store(id, value);
}

void* lpSetPropertyb(int id, bool value) {
    return store(id, static_cast<std::uint8_t>(value ? 1 : 0));
}

std::int32_t lpGetPropertyi(int id) {
    return load<std::int32_t>(id);
}

float lpGetPropertyf(int id) {
    return load<float>(id);
}

double lpGetPropertyd(int id) {
    return load<double>(id);
}

bool lpGetPropertyb(int id) {
    return load<std::uint8_t>(id) != 0;
}
