// SPDX-License-Identifier: MIT
// The settings of MyPaint's brushes and the inputs that their curves run over: one table each.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace dabcanvas {

enum class MypaintInput : std::uint8_t {
    pressure,
    speed1,
    speed2,
    random,
    custom,
    declination,
    brushRadius,
    zoom,
    stroke,
    direction,
    directionAngle,
    attackAngle,
    ascension,
    declinationX,
    declinationY,
    barrelRotation,
    gridX,
    gridY,
    count
};

// A set of inputs.
using MypaintInputs = std::uint32_t;
constexpr MypaintInputs bitOf(MypaintInput input) {
    return MypaintInputs{1} << static_cast<unsigned>(input);
}

struct MypaintInputRow {
    MypaintInput input;
    std::string_view key, words;
    float low, high;  // what it usually is between
    float rest;       // what it is where nothing of it is known
    bool isAveraged;  // it runs through all of that in a stroke, and nothing here follows it
};

struct MypaintSettingRow {
    std::string_view key, words;
    float created;          // in a brush that does not name it
    MypaintInputs carried;  // curves over these are carried over
    bool isBaseLost;        // a value other than `created` is not carried over
};

const MypaintInputRow& rowOf(MypaintInput input);
std::optional<MypaintInput> mypaintInputNamed(std::string_view key);
// Null for one that is not known.
const MypaintSettingRow* mypaintSettingNamed(std::string_view key);

}  // namespace dabcanvas
