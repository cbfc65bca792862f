// SPDX-License-Identifier: MIT
// MyPaint's brushes, .myb of version 3: settings with a base value and curves that inputs add to it.
//
// Errors   never throws, but std::bad_alloc: nothing, and in words what is wrong, to follow the file's name.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <array>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "Import/MypaintSettings.h"

namespace dabcanvas {

// Straight lines from point to point, the first and last ones going on.
struct MypaintCurve {
    static constexpr int kMostPoints = 64;  // as in MyPaint

    MypaintInput input;
    std::vector<std::pair<float, float>> points;  // two at least

    float at(float x) const;
    // Over what the input usually is between.
    float mean() const;
    float span() const;
};

struct MypaintSetting {
    float base = 0;
    std::vector<MypaintCurve> curves;

    const MypaintCurve* curveOver(MypaintInput input) const;
};

// What the pen does, as MyPaint's inputs see it.
using MypaintPen = std::array<float, static_cast<std::size_t>(MypaintInput::count)>;

struct MypaintBrush {
    std::map<std::string, MypaintSetting, std::less<>> settings;
    QStringList unknown;  // what it names and nobody here knows, in words

    // As new where the brush does not name it.
    MypaintSetting setting(std::string_view key) const;
    float base(std::string_view key) const;
    // With all curves added. What a stroke runs through counts by its mean, unless `following` says that the pen tells it.
    float value(std::string_view key, const MypaintPen& pen, MypaintInputs following = 0) const;
    // A pen at rest, upright, at middle pressure.
    MypaintPen pen() const;
};

bool looksLikeMypaintBrush(const QByteArray& file);
std::optional<MypaintBrush> readMypaintBrush(const QByteArray& file, QString& problem);

}  // namespace dabcanvas
