// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include "Colour/OkLch.h"

namespace dabcanvas::dabpainter {

// The colour that is being chosen. It keeps what was asked for beside what a screen shows of it: who moves the lightness to
// white and back gets the chroma back, and a grey remembers its hue.
class ColorChoice : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    QColor color() const { return _color; }
    OkLch shade() const { return _shade; }  // what is shown, inside sRGB

    void setColor(const QColor& color);
    // The rest of what was asked for stays.
    void setLightness(double lightness);
    void setChroma(double chroma);
    void setHue(double degrees);
    // Both at once, as the triangle sets them.
    void setTone(double lightness, double chroma);

signals:
    void changed();

private:
    void want(const OkLch& wanted);

    OkLch _wanted, _shade;
    QColor _color = Qt::black;
};

}  // namespace dabcanvas::dabpainter
