// SPDX-License-Identifier: MIT
// What InkML declares about its traces: channels with their units and ranges, and what those make of a
// number.
#pragma once

#include <QHash>
#include <QString>
#include <optional>
#include <vector>

namespace dabcanvas {

struct InkChannel {
    QString name;
    QString units;
    std::optional<double> low;
    std::optional<double> high;
    bool boolean = false;
    bool intermittent = false;
    bool backwards = false;  // orientation="-ve"
};

// Regular channels first, in the order a point lists them.
struct InkFormat {
    std::vector<InkChannel> channels;
};

// Device units in one physical unit, such as 1000 in "1/cm".
struct InkResolution {
    double perUnit = 0;
    QString unit;
};
using InkResolutions = QHash<QString, InkResolution>;  // by channel name

// X and Y, decimals.
InkFormat defaultInkFormat();

// Pixels in one length unit at 96 pixels an inch; none for what is no length.
std::optional<double> pixelsPerUnit(const QString& unit);

// A position's number in pixels, and whether its unit is a length.
struct InkAxis {
    double scale = 1;
    double offset = 0;
    bool physical = false;

    double pixels(double value) const { return value * scale + offset; }
};
InkAxis inkAxis(const InkChannel& channel, const InkResolutions& resolutions);

// A force's share of its declared range; none when the range isn't declared.
std::optional<double> forceShare(const InkChannel& channel, double value);

// An angle channel's number in radians.
double inkAngle(const InkChannel& channel, const InkResolutions& resolutions, double value);

// As altitudeOfLean(), of an elevation (radians).
float altitudeOfElevation(double elevation);

}  // namespace dabcanvas
