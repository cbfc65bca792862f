// SPDX-License-Identifier: MIT
// A stroke that is meant as a shape: its points, and what the canvas is taken back to. It is drawn like any other, and
// taken back at its end, or before anything else looks at the canvas for good or changes it; it then goes on from there.
//
// Units    buffer pixels.
#pragma once

#include <QPointF>
#include <vector>

#include "Canvas/RecordedCanvas.h"
#include "Maths/Export.h"
#include "Recognition/ShapeRecord.h"

namespace dabcanvas {

class ShapeSketch {
public:
    ShapeSketch(PaintLayers& layers, RecordedCanvas& record) : _layers(layers), _record(record) {}

    bool isOn() const { return _isOn; }
    void begin(QPointF place);
    void add(QPointF place) { _points.push_back({place.x(), place.y()}); }
    // What was drawn of it so far goes. Returns the area that changed, empty for none.
    Rect settle();
    // What was drawn stays, whatever it was to become.
    void drop() { _isOn = false; }
    // The stroke's last point. What it was meant as, of points divided by `unit`; none where it is no shape.
    ShapeRecord end(QPointF place, double unit);

private:
    PaintLayers& _layers;
    RecordedCanvas& _record;
    bool _isOn = false;
    std::vector<ShapePoint> _points;
};

// A shape whose lengths are multiplied.
DABCANVAS_CANVAS_API ShapeRecord scaled(ShapeRecord shape, double factor);

}  // namespace dabcanvas
