// SPDX-License-Identifier: MIT
// The stack.xml of an OpenRaster picture: what its layers are, without their pictures.
//
// Errors   readStack() puts one in words into `fault`; the rest is of no use then.
#pragma once

#include <QByteArray>
#include <QColor>
#include <QPoint>
#include <QSize>
#include <QString>
#include <vector>

#include "History/LayerSettings.h"

namespace dabcanvas::dabpainter {

struct StackedLayer {
    QString source;  // its picture's name in the archive
    LayerSettings settings;
    QPoint at;
    bool isActive = false;
};

struct RasterStack {
    QSize size;
    std::vector<StackedLayer> layers;  // the lowest one first
    QColor paper;
    QString fault, warning;  // what is wrong with it; what looks another way here
};

QByteArray writeStack(const RasterStack& stack);
// Groups come apart into their layers.
RasterStack readStack(const QByteArray& xml);

}  // namespace dabcanvas::dabpainter
