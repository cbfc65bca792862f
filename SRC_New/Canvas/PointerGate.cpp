// SPDX-License-Identifier: MIT
#include "Canvas/PointerGate.h"

#include <QLineF>
#include <QLoggingCategory>
#include <limits>
#include <utility>
#include <vector>

#include "Canvas/Clock.h"

namespace dabcanvas {
namespace {

// Every mouse and pen stroke ends through the cancel path, so its line is for those who ask for it.
Q_LOGGING_CATEGORY(lcPointer, "dabcanvas.pointer", QtWarningMsg)

constexpr std::uint64_t kShortStroke = 9;   // moves; a stroke of more is a line
constexpr double kRecognitionPause = 1.0;   // seconds between the end of a recognised stroke and the next
constexpr double kSlidWithoutMoving = 1.0;  // view points

}  // namespace

// The pointer's stroke ends, in callbacks that may end it once more or destroy the canvas.
class PointerGate::Ending {
public:
    explicit Ending(PointerGate& gate)
        : alive(gate._life), _gate(gate), _before(std::exchange(gate._ends, true)) {}
    ~Ending() {
        if (alive) {
            _gate._ends = _before;
        }
    }
    Ending(const Ending&) = delete;
    Ending& operator=(const Ending&) = delete;

    const Alive alive;

private:
    PointerGate& _gate;
    bool _before;
};

// ---- One pointer's stroke

bool PointerGate::begin(QPointF point, float pressure, float altitude, double time) {
    if (!_canvas.canBegin()) {
        return false;
    }
    if (_canvas.recognises()) {
        const double passed = steadySeconds() - _lastProcessTime;
        if (_isProcess && passed >= 0 && passed < kRecognitionPause) {
            return false;
        }
        _isProcess = false;
        canAddPoint = true;
    }
    lineFinish = false;
    lineMove = false;
    moveCount = 0;
    lastPoint = point;
    const PointerSample sample = sampleOf(point, pressure, altitude, time);
    _stabiliser.begin(options.stabiliser, _canvas.pointScale(), sample);
    _entry.begin(point, sample.pressure, sample.altitude);
    return true;
}

void PointerGate::move(QPointF point, float pressure, float altitude, double time) {
    if (_canvas.recognises() && !canAddPoint) {
        return;
    }
    lineMove = true;
    ++moveCount;
    lastPoint = point;
    follow(sampleOf(point, pressure, altitude, time));
}

// What follows the pointer goes on to where that is now.
void PointerGate::follow(const PointerSample& pointer) {
    const Alive alive(_life);
    const auto drag = [&](const PointerSample& sample) {
        if (alive && !lineFinish) {
            _entry.move(sample.point, sample.pressure, sample.altitude, true);
        }
    };
    if (!_stabiliser.isOn()) {
        return drag(pointer);
    }
    for (const PointerSample& sample : std::vector(_stabiliser.move(pointer))) {
        drag(sample);  // of a copy, as a callback may begin another stroke
    }
}

void PointerGate::end(QPointF point, float pressure, float altitude, double time) {
    if (_canvas.recognises()) {
        if (!canAddPoint) {
            return;
        }
        startProcess();
    }
    const Ending ending(*this);
    const bool slid = !lineMove && QLineF(lastPoint, point).length() >= kSlidWithoutMoving;
    if (slid) {
        // Deliberate: a press that slid without any move is discarded, and only the callbacks tell of its end.
        _entry.tellEnd(point, [](QPointF) {});
        if (!ending.alive) {
            return;
        }
        _entry.drop();
    } else {
        lineMove = false;
        endAt(sampleOf(point, pressure, altitude, time));
    }
    if (!ending.alive) {
        return;
    }
    lineFinish = true;
    if (!slid) {
        moveCount = 0;
    }
    _isProcess = false;
}

void PointerGate::leave(const PointerSample& sample, bool withdraw) {
    qCDebug(lcPointer, "cancelWithTouch:");
    if (_canvas.recognises() && !canAddPoint) {
        return;
    }
    const Ending ending(*this);
    const bool moved = !lineFinish && lineMove;
    const bool tooShort = moveCount <= kShortStroke && adjustCancelLine;
    if (moved && (withdraw || tooShort)) {
        _entry.tellEnd(sample.point, [this, alive = Alive(_life)](QPointF place) {
            startProcess();
            _entry.withdraw(place);
            if (alive) {
                _isProcess = false;
            }
        });
    } else if (moved) {
        if (_canvas.recognises()) {
            startProcess();
        }
        lineMove = false;
        endAt(sample);
    } else {
        _entry.drop();  // a click leaves nothing
    }
    if (ending.alive) {
        _isProcess = false;
        lineFinish = true;
        lineMove = false;
        moveCount = 0;
    }
}

PointerSample PointerGate::sampleOf(QPointF point, float pressure, float altitude, double time) const {
    return {point, options.pressure.at(pressure), usesPenTilt ? altitude : -1.0f,
            time >= 0 ? time : steadySeconds()};
}

void PointerGate::endAt(const PointerSample& sample) {
    const Alive alive(_life);
    if (_stabiliser.isOn()) {
        follow(sample);
    }
    if (alive) {
        const PointerSample end = _stabiliser.end(sample);
        _entry.end(end.point, end.pressure, end.altitude, true);
    }
}

// No more points until the next begin.
void PointerGate::startProcess() {
    canAddPoint = false;
    _isProcess = true;
    _lastProcessTime = steadySeconds();
}

// The last of a device's pointer: its own stroke, unless the other one draws, ends as `how` says.
template <typename How>
void PointerGate::finish(bool& own, bool other, How&& how) {
    const Alive alive(_life);
    if (own && !other) {
        how();
    }
    if (alive) {
        own = false;
    }
}

// ---- Touch, refused while a mouse or pen draws

void PointerGate::touchBegan(QPointF point, float pressure, float altitude, double time) {
    normalMoing = !digitPenMoving;
    const Alive alive(_life);
    if (normalMoing && !begin(point, pressure, altitude, time) && alive) {
        normalMoing = false;
    }
}

void PointerGate::touchMoved(QPointF point, float pressure, float altitude, double time) {
    if (!digitPenMoving && normalMoing) {
        move(point, pressure, altitude, time);
    } else {
        normalMoing = false;
    }
}

void PointerGate::touchEnded(QPointF point, float pressure, float altitude, double time) {
    finish(normalMoing, digitPenMoving, [&] { end(point, pressure, altitude, time); });
}

void PointerGate::touchCancelled(QPointF point, float pressure, float altitude, double time) {
    finish(normalMoing, digitPenMoving, [&] { cancel(point, pressure, altitude, time); });
}

// ---- Mouse and pen, refused while a finger draws

void PointerGate::mouseDown(QPointF point, float pressure, float altitude, double time) {
    if (normalMoing) {
        return;
    }
    digitPenMoving = true;
    const Alive alive(_life);
    if (!begin(point, pressure, altitude, time) && alive) {
        digitPenMoving = false;
    }
}

void PointerGate::mouseDragged(QPointF point, float pressure, float altitude, double time) {
    if (!normalMoing && digitPenMoving) {
        move(point, pressure, altitude, time);
    }
}

// Deliberate: the cancel path, not the end path. A stroke long enough is finished there all the same.
void PointerGate::mouseUp(QPointF point, float pressure, float altitude, double time) {
    finish(digitPenMoving, normalMoing, [&] { cancel(point, pressure, altitude, time); });
}

// ---- What the display does to a pointer's stroke

void PointerGate::abandon(bool withdraw) {
    if (_ends) {
        return;  // called back while it ends
    }
    const Alive alive(_life);
    if (normalMoing || digitPenMoving) {
        // No time passes: what follows the pointer stays where it is.
        leave({lastPoint, _entry.lastSample().pressure, _entry.lastSample().altitude,
               std::numeric_limits<double>::quiet_NaN()},
              withdraw);
    }
    if (alive) {
        normalMoing = digitPenMoving = false;
    }
}

}  // namespace dabcanvas
