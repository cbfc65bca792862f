// SPDX-License-Identifier: MIT
#include "Colour/OkLch.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace dabcanvas::dabpainter {

namespace {

using Three = std::array<double, 3>;
using Matrix = std::array<Three, 3>;

// Björn Ottosson's: linear sRGB to cones, their cube roots to lightness, a and b; and the inverses.
constexpr Matrix kCones{{{0.4122214708, 0.5363325363, 0.0514459929},
                         {0.2119034982, 0.6806995451, 0.1073969566},
                         {0.0883024619, 0.2817188376, 0.6299787005}}};
constexpr Matrix kLab{{{0.2104542553, 0.7936177850, -0.0040720468},
                       {1.9779984951, -2.4285922050, 0.4505937099},
                       {0.0259040371, 0.7827717662, -0.8086757660}}};
constexpr Matrix kRoots{
    {{1, 0.3963377774, 0.2158037573}, {1, -0.1055613458, -0.0638541728}, {1, -0.0894841775, -1.2914855480}}};
constexpr Matrix kLinear{{{4.0767416621, -3.3077115913, 0.2309699292},
                          {-1.2684380046, 2.6097574011, -0.3413193965},
                          {-0.0041960863, -0.7034186147, 1.7076147010}}};
constexpr double kGrey = 1e-4;  // less chroma is rounding
// Of linear light, of what a grey as light has, and at most: two steps of 8 bits. Towards blue the way out from grey leaves
// sRGB by as much and comes back in.
constexpr double kSlack = 0.008, kMostSlack = 7e-4;
constexpr int kTableSteps = 16384;

Three times(const Matrix& matrix, const Three& v) {
    Three product;
    for (std::size_t i = 0; i < 3; ++i)
        product[i] = matrix[i][0] * v[0] + matrix[i][1] * v[1] + matrix[i][2] * v[2];
    return product;
}

double linear(double encoded) {
    return encoded <= 0.04045 ? encoded / 12.92 : std::pow((encoded + 0.055) / 1.055, 2.4);
}

double encoded(double linear) {
    const double light = std::clamp(linear, 0.0, 1.0);
    return light <= 0.0031308 ? light * 12.92 : 1.055 * std::pow(light, 1 / 2.4) - 0.055;
}

Three cubes(const Three& roots) {
    return {roots[0] * roots[0] * roots[0], roots[1] * roots[1] * roots[1], roots[2] * roots[2] * roots[2]};
}

Three linearOf(const OkLch& shade) {
    const double radian = shade.hue * std::numbers::pi / 180;
    return times(kLinear, cubes(times(kRoots, {shade.lightness, shade.chroma * std::cos(radian),
                                               shade.chroma * std::sin(radian)})));
}

bool isShown(const OkLch& shade) {
    const Three light = linearOf(shade);
    const double slack = std::min(kSlack * std::pow(shade.lightness, 3), kMostSlack);
    return std::all_of(light.begin(), light.end(),
                       [slack](double l) { return l >= -slack && l <= 1 + slack; });
}

int encodedByte(double linear) {
    static const auto table = [] {
        std::vector<uchar> bytes(kTableSteps + 1);
        for (int i = 0; i <= kTableSteps; ++i)
            bytes[std::size_t(i)] = uchar(std::lround(encoded(double(i) / kTableSteps) * 255));
        return bytes;
    }();
    return table[std::size_t(std::clamp(linear, 0.0, 1.0) * kTableSteps + 0.5)];
}

// Ottosson's estimate of how the eye spaces lightness beside white
constexpr double kToe1 = 0.206, kToe2 = 0.03, kToe3 = (1 + kToe1) / (1 + kToe2);

}  // namespace

OkLch okLchOf(const QColor& color) {
    const QColor rgb = color.toRgb();
    const Three light{linear(double(rgb.redF())), linear(double(rgb.greenF())), linear(double(rgb.blueF()))};
    Three roots = times(kCones, light);
    for (double& root : roots)
        root = std::cbrt(root);
    const Three lab = times(kLab, roots);
    const double chroma = std::hypot(lab[1], lab[2]);
    if (chroma < kGrey)
        return {std::clamp(lab[0], 0.0, 1.0), 0, 0};
    const double degrees = std::atan2(lab[2], lab[1]) * 180 / std::numbers::pi;
    return {lab[0], chroma, degrees < 0 ? degrees + 360 : degrees};
}

QColor colorOf(const OkLch& shade) {
    const Three light = linearOf(shade);
    return QColor::fromRgbF(float(encoded(light[0])), float(encoded(light[1])), float(encoded(light[2])));
}

// Steps outward to where it first leaves, so that all on the way there can be shown.
double mostChroma(double lightness, double hue) {
    if (lightness <= 0 || lightness >= 1)
        return 0;
    constexpr double kStep = 0.01;
    double inside = 0;
    while (inside < kMostChroma && isShown({lightness, inside + kStep, hue}))
        inside += kStep;
    double outside = inside + kStep;
    for (int i = 0; i < 24; ++i) {
        const double middle = (inside + outside) / 2;
        (isShown({lightness, middle, hue}) ? inside : outside) = middle;
    }
    return inside;
}

OkLch insideGamut(OkLch shade) {
    if (!isShown(shade) || shade.lightness <= 0 || shade.lightness >= 1)
        shade.chroma = std::min(shade.chroma, mostChroma(shade.lightness, shade.hue));
    return shade;
}

// About as light as the saturated colour of HSV that has this hue: their hues go once around in the same sense, but for a
// bend towards blue.
OkLch purest(double hue) {
    const auto saturated = [](double turn) { return okLchOf(QColor::fromHsvF(float(turn), 1, 1)); };
    const double red = saturated(0).hue;
    const double wanted = std::fmod(hue - red + 720, 360);
    double low = 0, high = 1;
    for (int i = 0; i < 12; ++i) {
        const double middle = (low + high) / 2;
        (std::fmod(saturated(middle).hue - red + 360, 360) <= wanted ? low : high) = middle;
    }
    const double near = saturated(low).lightness;
    double dark = near - 0.15, light = std::min(near + 0.15, 1.0);
    while (light - dark > 1e-4) {
        const double third = (light - dark) / 3;
        if (mostChroma(dark + third, hue) < mostChroma(light - third, hue))
            dark += third;
        else
            light -= third;
    }
    return {light, mostChroma(light, hue), hue};
}

double evenLightness(double lightness) {
    const double x = kToe3 * lightness - kToe1;
    return (x + std::sqrt(x * x + 4 * kToe2 * kToe3 * lightness)) / 2;
}

double lightnessOfEven(double even) {
    return even * (even + kToe1) / (kToe3 * (even + kToe2));
}

ShadeRow::ShadeRow(double lightness, double hue) {
    const double radian = hue * std::numbers::pi / 180;
    _grey = times(kRoots, {lightness, 0, 0});
    _perChroma = times(kRoots, {0, std::cos(radian), std::sin(radian)});
}

QRgb ShadeRow::at(double chroma) const {
    Three roots;
    for (std::size_t i = 0; i < 3; ++i)
        roots[i] = _grey[i] + chroma * _perChroma[i];
    const Three light = times(kLinear, cubes(roots));
    return qRgb(encodedByte(light[0]), encodedByte(light[1]), encodedByte(light[2]));
}

}  // namespace dabcanvas::dabpainter
