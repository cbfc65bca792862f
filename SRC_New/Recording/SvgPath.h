// SPDX-License-Identifier: MIT
// The language of SVG's path data and transforms.
#pragma once

#include <QByteArrayView>
#include <QPainterPath>
#include <QTransform>

namespace dabcanvas {

// M L H V C S Q T A Z, absolute and relative. As SVG has it, what comes before a fault is drawn; false then.
bool parseSvgPath(QByteArrayView data, QPainterPath& path);

// matrix, translate, scale, rotate, skewX and skewY, one after another; false for anything else.
bool parseSvgTransform(QByteArrayView text, QTransform& transform);

}  // namespace dabcanvas
