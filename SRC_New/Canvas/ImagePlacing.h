// SPDX-License-Identifier: MIT
// Puts pictures onto the canvas: decides whether their pixels are copied or drawn, and what they may touch.
//
// Units    buffer pixels, top-left origin; angles counter-clockwise in radians.
// Errors   false, and nothing changed: after a log line for sizes and places that are beyond reason and without the
//          memory; quietly for what lies outside of the canvas, as whatever is dragged about leaves it at times.
#pragma once

#include <QImage>
#include <functional>
#include <utility>

#include "Canvas/PaintLayers.h"
#include "Surface/Placement.h"

namespace dabcanvas {

// Where a picture lies: a rectangle turned about its centre.
struct Spot {
    double width = 0, height = 0;
    Point centre;
    double radian = 0;

    // Sides from a millionth to a million pixels and numbers that are finite; else false, after a log line.
    bool isUsable() const;
};

struct PlacedImage {
    QImage image;             // its device pixel ratio plays no role
    bool topRowFirst = true;  // in memory; raw pixels come bottom row first
    bool replaces = false;    // transparent parts included; else over what is there
    bool ofStroke = false;    // keeps to what is selected
};

class ImagePlacing {
public:
    // settle: finishes what is drawn below an image, before the image is.
    ImagePlacing(PaintLayers& layers, std::function<void()> settle)
        : _layers(layers), _settle(std::move(settle)) {}

    // What hosts restrict placing by.
    struct Rules {
        bool scissors = false;  // nothing outside of the scissor is touched
        bool neglects = false;  // the background stays, and a stroke in progress is not finished
    };
    Rules rules;
    // Buffer pixels, as the host gave them; placing rounds to whole ones.
    struct Box {
        double x = 0, y = 0, width = 0, height = 0;
    };
    Box scissor;

    bool put(const PlacedImage& image, const Spot& spot);

private:
    Rect clip() const;
    bool copy(const PlacedImage& image, const Rect& placed, const Rect& touched);
    bool draw(const PlacedImage& image, const Spot& spot, const Rect& touched);

    PaintLayers& _layers;
    std::function<void()> _settle;
};

}  // namespace dabcanvas
