// SPDX-License-Identifier: MIT
// Colours by how they look: Oklab in polar coordinates, as CSS's oklch() has it, and its limits on a screen of sRGB.
#pragma once

#include <QColor>
#include <array>

namespace dabcanvas::dabpainter {

struct OkLch {
    double lightness = 0;  // 0..1
    double chroma = 0;     // from 0; on a screen up to about 0.32
    double hue = 0;        // degrees, 0..360

    bool operator==(const OkLch&) const = default;
};

inline constexpr double kMostChroma = 0.37;  // more than any colour of sRGB has

// The hue of a grey is 0. Alpha is left out.
OkLch okLchOf(const QColor& color);
// What lies outside of sRGB is cut off channel by channel: see insideGamut().
QColor colorOf(const OkLch& shade);
// The most chroma that a screen shows of this lightness and hue.
double mostChroma(double lightness, double hue);
// With as much of its chroma as there is; lightness and hue stay.
OkLch insideGamut(OkLch shade);
// The colour of this hue with the most chroma of all.
OkLch purest(double hue);

// Lightness as the eye spaces it on a scale from black to white, and back; both 0..1.
double evenLightness(double lightness);
double lightnessOfEven(double even);

// Many of one lightness and hue, quickly: to 8 bits a channel.
class ShadeRow {
public:
    ShadeRow(double lightness, double hue);
    QRgb at(double chroma) const;

private:
    // Of the cube roots of the cones' answers
    std::array<double, 3> _grey, _perChroma;
};

}  // namespace dabcanvas::dabpainter
