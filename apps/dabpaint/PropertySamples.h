// SPDX-License-Identifier: MIT
// The strokes that show what each brush property does.
#pragma once

#include <QImage>
#include <QSize>
#include <QString>
#include <QStringList>

#include "Brushes/BrushProperties.h"
#include "Recording/Problem.h"
#include "SampleStrokes.h"

namespace dabcanvas::dabpaint {

enum class PropertyGround {
    paper,  // white
    bars,   // of colours
    gaps,   // such bars, with nothing between them
};

// What every sample begins with: even dabs, whatever the pen does.
inline constexpr char kPlainBrush[] =
    "renderColor=#26456e radius=24 hardness=0.9 minRadius=1 maxRadius=1 startRadius=0 endRadius=0";

// Settings are PROPERTY=VALUE, as --set takes them, with spaces between; images are named as in ReferenceImages.h.
struct PropertySample {
    BrushKey key;
    const char* values;         // of the property, with spaces between; none: every choice, or no and yes
    const char* settings = "";  // after those of kPlainBrush, before the value
    SampleKind stroke = SampleKind::wave;
    PropertyGround ground = PropertyGround::paper;
    int zoom = 1;                     // painted so much smaller, and enlarged
    const char* after = "";           // what is set after the value
    const char* invisible = nullptr;  // why it has no sample

    QStringList valuesShown() const;
    QString settingsShown() const;  // of both kinds
};

// The sample of a property; each has one.
const PropertySample& propertySample(const BrushProperty& property);

// The stroke at one of its values, on white. The same bytes every time.
Result<QImage> paintPropertySample(const PropertySample& sample, const QString& value, const QSize& size);

}  // namespace dabcanvas::dabpaint
