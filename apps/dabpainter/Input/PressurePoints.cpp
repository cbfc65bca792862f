// SPDX-License-Identifier: MIT
#include "Input/PressurePoints.h"

#include <QStringList>
#include <algorithm>

namespace dabcanvas::dabpainter {

namespace {

constexpr double kGap = 0.02;  // from a point to the next
constexpr int kMostPoints = 16;

const std::vector<QPointF> kDiagonal{{0, 0}, {1, 1}};

}  // namespace

PressurePoints::PressurePoints(const PressureCurve& curve)
    : _points(curve.points().empty() ? kDiagonal : curve.points()) {}

PressureCurve PressurePoints::curve() const {
    return _points == kDiagonal ? PressureCurve() : PressureCurve::through(_points).value_or(PressureCurve());
}

void PressurePoints::move(int point, QPointF to) {
    const QPointF before = point > 0 ? _points[std::size_t(point) - 1] : QPointF(-kGap, 0);
    const QPointF after = point + 1 < count() ? _points[std::size_t(point) + 1] : QPointF(1 + kGap, 1);
    const double left = before.x() + kGap, right = std::max(after.x() - kGap, left);
    _points[std::size_t(point)] = {std::clamp(to.x(), left, right),
                                   std::clamp(to.y(), before.y(), after.y())};
}

int PressurePoints::add(QPointF at) {
    const auto after = std::find_if(_points.begin(), _points.end(),
                                    [&](const QPointF& point) { return point.x() > at.x(); });
    const double left = after == _points.begin() ? -kGap : (after - 1)->x();
    const double right = after == _points.end() ? 1 + kGap : after->x();
    if (count() >= kMostPoints || at.x() - left < kGap || right - at.x() < kGap)
        return -1;
    const int place = int(after - _points.begin());
    _points.insert(after, at);
    move(place, at);
    return place;
}

bool PressurePoints::remove(int point) {
    if (count() <= 2 || point < 0 || point >= count())
        return false;
    _points.erase(_points.begin() + point);
    return true;
}

PressurePoints PressurePoints::ofText(const QString& text) {
    std::vector<QPointF> points;
    for (const QString& pair : text.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const QStringList numbers = pair.split(QLatin1Char(' '));
        if (numbers.size() == 2)
            points.emplace_back(numbers[0].toDouble(), numbers[1].toDouble());
    }
    const auto curve = PressureCurve::through(points);
    return curve && points.size() <= std::size_t(kMostPoints) ? PressurePoints(*curve) : PressurePoints();
}

QString PressurePoints::text() const {
    QStringList pairs;
    for (const QPointF& point : _points)
        pairs << QStringLiteral("%1 %2").arg(point.x(), 0, 'g', 6).arg(point.y(), 0, 'g', 6);
    return pairs.join(QLatin1Char(';'));
}

}  // namespace dabcanvas::dabpainter
