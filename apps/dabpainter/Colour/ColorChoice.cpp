// SPDX-License-Identifier: MIT
#include "Colour/ColorChoice.h"

#include <algorithm>
#include <cmath>

namespace dabcanvas::dabpainter {

namespace {

constexpr double kHueless = 2e-3;  // less chroma: its hue is a matter of rounding

}  // namespace

void ColorChoice::setColor(const QColor& color) {
    if (!color.isValid() || color == _color)
        return;
    OkLch shade = okLchOf(color);
    if (shade.chroma < kHueless)
        shade.hue = _wanted.hue;
    _wanted = _shade = shade;
    _color = color;
    emit changed();
}

void ColorChoice::want(const OkLch& wanted) {
    if (wanted == _wanted)
        return;
    _wanted = wanted;
    _shade = insideGamut(wanted);
    _color = colorOf(_shade);
    emit changed();
}

void ColorChoice::setLightness(double lightness) {
    want({std::clamp(lightness, 0.0, 1.0), _wanted.chroma, _wanted.hue});
}

void ColorChoice::setChroma(double chroma) {
    want({_wanted.lightness, std::clamp(chroma, 0.0, mostChroma(_wanted.lightness, _wanted.hue)),
          _wanted.hue});
}

void ColorChoice::setHue(double degrees) {
    want({_wanted.lightness, _wanted.chroma, degrees - 360 * std::floor(degrees / 360)});
}

void ColorChoice::setTone(double lightness, double chroma) {
    want({std::clamp(lightness, 0.0, 1.0), std::clamp(chroma, 0.0, kMostChroma), _wanted.hue});
}

}  // namespace dabcanvas::dabpainter
