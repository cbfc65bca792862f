// SPDX-License-Identifier: MIT
#include "Recording/InkmlFormat.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "Canvas/QDDrawTouch.h"

namespace dabcanvas {

namespace {

constexpr double kRightAngle = std::numbers::pi / 2;
// Programs that have no range to declare write the extremes of an integer; those say nothing about where 0
// lies.
constexpr double kNoRange = 1e9;

bool isRange(const InkChannel& channel) {
    return channel.high && *channel.high > channel.low.value_or(0) && *channel.high < kNoRange;
}

}  // namespace

InkFormat defaultInkFormat() {
    InkFormat format;
    format.channels.resize(2);
    format.channels[0].name = QStringLiteral("X");
    format.channels[1].name = QStringLiteral("Y");
    return format;
}

std::optional<double> pixelsPerUnit(const QString& unit) {
    static constexpr double kInch = 96;
    static constexpr struct {
        const char* name;
        double pixels;
    } kUnits[] = {
        {"in", kInch},         {"inch", kInch},       {"cm", kInch / 2.54},       {"mm", kInch / 25.4},
        {"m", kInch / 0.0254}, {"um", kInch / 25400}, {"himetric", kInch / 2540}, {"pt", kInch / 72},
        {"pc", kInch / 6},     {"ft", kInch * 12},    {"km", kInch / 0.0000254},  {"twip", kInch / 1440},
    };
    for (const auto& row : kUnits) {
        if (unit.compare(QLatin1String(row.name), Qt::CaseInsensitive) == 0)
            return row.pixels;
    }
    return std::nullopt;
}

InkAxis inkAxis(const InkChannel& channel, const InkResolutions& resolutions) {
    InkAxis axis;
    auto perUnit = pixelsPerUnit(channel.units);
    const auto resolution = resolutions.constFind(channel.name);
    if (resolution != resolutions.constEnd() && resolution->perUnit > 0) {
        const auto ofResolution = pixelsPerUnit(resolution->unit);
        if (ofResolution)
            perUnit = *ofResolution / resolution->perUnit;
    }
    axis.physical = perUnit.has_value();
    axis.scale = perUnit.value_or(1);
    if (channel.backwards) {
        axis.scale = -axis.scale;
        if (isRange(channel))
            axis.offset = -axis.scale * (channel.low.value_or(0) + *channel.high);
    }
    return axis;
}

std::optional<double> forceShare(const InkChannel& channel, double value) {
    double low = channel.low.value_or(0);
    double high = channel.high.value_or(0);
    if (!isRange(channel)) {
        if (channel.units != QLatin1String("%"))
            return std::nullopt;
        low = 0;
        high = 100;
    }
    const double share = std::clamp((value - low) / (high - low), 0.0, 1.0);
    return channel.backwards ? 1 - share : share;
}

double inkAngle(const InkChannel& channel, const InkResolutions& resolutions, double value) {
    QString unit = channel.units.toLower();
    const auto resolution = resolutions.constFind(channel.name);
    if (resolution != resolutions.constEnd() && resolution->perUnit > 0 &&
        (resolution->unit == QLatin1String("deg") || resolution->unit == QLatin1String("rad"))) {
        value /= resolution->perUnit;
        unit = resolution->unit;
    }
    if (channel.backwards)
        value = -value;
    if (unit == QLatin1String("rad"))
        return value;
    if (unit != QLatin1String("deg") && isRange(channel)) {
        if (*channel.high <= 1.6)
            return value;
        if (*channel.high > 90)
            return value / *channel.high * kRightAngle;
    }
    return value / 90 * kRightAngle;
}

float altitudeOfElevation(double elevation) {
    return altitudeOfLean(kRightAngle - std::abs(elevation));
}

}  // namespace dabcanvas
