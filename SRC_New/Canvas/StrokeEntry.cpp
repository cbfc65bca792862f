// SPDX-License-Identifier: MIT
#include "Canvas/StrokeEntry.h"

#include <cmath>
#include <utility>

#include "Canvas/CanvasLog.h"

namespace dabcanvas {
namespace {

float distanceOf(QPointF a, QPointF b) {
    const auto dx = static_cast<float>(a.x() - b.x());
    const auto dy = static_cast<float>(a.y() - b.y());
    return std::sqrt(dx * dx + dy * dy);
}

}  // namespace

bool StrokeEntry::accepts(QPointF point, float pressure, float altitude) {
    // The line process calculates in single precision; what is infinite there is as good as not finite here.
    if (std::isfinite(static_cast<float>(point.x())) && std::isfinite(static_cast<float>(point.y())) &&
        std::isfinite(pressure) && std::isfinite(altitude)) {
        return true;
    }
    if (!std::exchange(_refused, true)) {  // once a stroke: a broken device sends many
        qCWarning(lcDabcanvas, "a sample that is not finite was refused: (%g, %g), pressure %g, altitude %g",
                  point.x(), point.y(), static_cast<double>(pressure), static_cast<double>(altitude));
    }
    return false;
}

void StrokeEntry::begin(QPointF point, float pressure, float altitude) {
    const Alive alive(_life);
    _refused = false;
    const bool unended = std::exchange(_state, State::awaited) == State::drawing;
    if (!_listener.strokeIsDue(unended)) {
        if (alive) {
            _state = State::none;
        }
        return;
    }
    if (!alive || _state != State::awaited || !accepts(point, pressure, altitude)) {
        return;  // the first sample that can be used begins instead
    }
    // Begun only after the callbacks: a brush that these choose is the one that the stroke begins with.
    if (!_host.announce(StrokeStage::begin, point) || _state != State::awaited) {
        return;  // the canvas is gone, or a callback had it ended, as a dialogue that it opens does
    }
    _state = State::drawing;
    _last = {_scale.toBuffer(point), pressure, altitude};
    const QPointF place = _last.place;
    _listener.strokeBegan(_last);
    if (alive) {
        static_cast<void>(_host.tellDone(StrokeStage::begin, place));
    }
}

void StrokeEntry::move(QPointF point, float pressure, float altitude, bool online) {
    if (_state == State::none || !accepts(point, pressure, altitude)) {
        return;
    }
    if (_state == State::awaited) {
        return begin(point, pressure, altitude);
    }
    if (!_host.announce(StrokeStage::move, point) || _state != State::drawing) {
        return;
    }
    const StrokeSample sample{_scale.toBuffer(point), pressure, altitude};
    if (_listener.ignoresNearMoves() && distanceOf(sample.place, _last.place) <= kClosest) {
        return;
    }
    const Alive alive(_life);
    _last = sample;
    _listener.strokeMoved(sample, online);
    if (alive) {
        static_cast<void>(_host.tellDone(StrokeStage::move, sample.place));
    }
}

void StrokeEntry::end(QPointF point, float pressure, float altitude, bool online) {
    if (_state != State::drawing) {
        _state = State::none;
        return;
    }
    if (!accepts(point, pressure, altitude)) {
        // The stroke ends all the same, where it got to.
        point = _scale.toView(_last.place);
        pressure = _last.pressure;
        altitude = _last.altitude;
    }
    if (!_host.announce(StrokeStage::end, point)) {
        return;
    }
    const Alive alive(_life);
    const QPointF place = _scale.toBuffer(point);
    // A stroke that a callback has ended is told of all the same.
    if (_state == State::drawing) {
        _listener.strokeEnded({place, pressure, altitude}, online);
        if (!alive) {
            return;
        }
        _state = State::none;
    }
    static_cast<void>(_host.tellDone(StrokeStage::end, place));
}

void StrokeEntry::withdraw(QPointF point) {
    if (std::exchange(_state, State::none) == State::drawing) {
        _listener.strokeWithdrawn(_scale.toBuffer(point));
    }
}

void StrokeEntry::drop() {
    if (std::exchange(_state, State::none) == State::drawing) {
        _listener.strokeDropped();
    }
}

}  // namespace dabcanvas
