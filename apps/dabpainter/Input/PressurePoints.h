// SPDX-License-Identifier: MIT
// A pressure curve as the points that it goes through, while they are being moved.
#pragma once

#include <QPointF>
#include <QString>
#include <vector>

#include "Canvas/PointerOptions.h"

namespace dabcanvas::dabpainter {

// Points 0..1, from the lightest pressure to the firmest. Whatever is done to them, they rise to the right and never fall,
// and there are two at least.
class PressurePoints {
public:
    PressurePoints() : _points{{0, 0}, {1, 1}} {}
    // Of a pressure that counts as it is, the diagonal.
    explicit PressurePoints(const PressureCurve& curve);
    PressureCurve curve() const;

    const std::vector<QPointF>& all() const { return _points; }
    int count() const { return int(_points.size()); }
    // As near to there as its neighbours let it.
    void move(int point, QPointF to);
    // On the curve, or beside it; none where there is no room for one, -1 then.
    int add(QPointF at);
    bool remove(int point);

    // As settings keep it; what cannot be read counts as it is.
    static PressurePoints ofText(const QString& text);
    QString text() const;

private:
    std::vector<QPointF> _points;
};

}  // namespace dabcanvas::dabpainter
