// SPDX-License-Identifier: MIT
// From pointer events to the stages of a stroke: which of two devices is heard, what begins a stroke, and what withdraws
// a short one. A stroke belongs to the kind of device that began it: while a finger draws, mouse and pen are refused,
// and the other way round.
//
// Units    view points, as the display says them; pressure 0..1; altitude and time as QDDrawTouch
//          has them.
// Life     the host may destroy the canvas, and this with it, in any callback.
#pragma once

#include <QPointF>
#include <cstdint>

#include "Canvas/Life.h"
#include "Canvas/PointerOptions.h"
#include "Canvas/Stabiliser.h"
#include "Canvas/StrokeEntry.h"

namespace dabcanvas {

class PointerGate {
public:
    // What the gate must know of the canvas.
    struct Canvas {
        // Something is shown that a point could lie on, and can be drawn on.
        virtual bool canBegin() const = 0;
        // Strokes are to be recognised.
        virtual bool recognises() const = 0;
        // Of the canvas's points, how many lie on one that is seen.
        virtual double pointScale() const = 0;

    protected:
        ~Canvas() = default;
    };

    PointerGate(StrokeEntry& entry, const Canvas& canvas) : _entry(entry), _canvas(canvas) {}

    // ---- the steps of one pointer's stroke, whatever the device; false when it was refused

    bool begin(QPointF point, float pressure, float altitude = -1, double time = -1);
    void move(QPointF point, float pressure, float altitude = -1, double time = -1);
    void end(QPointF point, float pressure, float altitude = -1, double time = -1);
    // Of up to nine moves it is withdrawn, unless adjustCancelLine is off; else it is finished. A click draws nothing.
    void cancel(QPointF point, float pressure, float altitude = -1, double time = -1) {
        leave(sampleOf(point, pressure, altitude, time), false);
    }

    // ---- devices

    void touchBegan(QPointF point, float pressure, float altitude = -1, double time = -1);
    void touchMoved(QPointF point, float pressure, float altitude = -1, double time = -1);
    void touchEnded(QPointF point, float pressure, float altitude = -1, double time = -1);
    void touchCancelled(QPointF point, float pressure, float altitude = -1, double time = -1);
    void mouseDown(QPointF point, float pressure, float altitude = -1, double time = -1);
    void mouseDragged(QPointF point, float pressure, float altitude = -1, double time = -1);
    void mouseUp(QPointF point, float pressure, float altitude = -1, double time = -1);

    // The pointer will not be heard of again: its stroke ends where it got to, or nothing of it stays.
    void abandon(bool withdraw);

    bool isLining() const { return !lineFinish && lineMove && moveCount > 9; }

    // Of the pointer's stroke, for hosts to look at and to set.
    bool lineFinish = false, lineMove = false;
    std::uint64_t moveCount = 0;
    QPointF lastPoint;
    bool adjustCancelLine = true;
    PointerOptions options;
    bool usesPenTilt = false;  // else no altitude reaches the stroke
    bool canAddPoint = false;  // points are taken while strokes are recognised: from a begin to its end
    bool normalMoing = false, digitPenMoving = false;  // a touch stroke, a mouse or pen stroke is in progress

private:
    class Ending;

    void leave(const PointerSample& sample, bool withdraw);
    PointerSample sampleOf(QPointF point, float pressure, float altitude, double time) const;
    void follow(const PointerSample& pointer);
    void endAt(const PointerSample& sample);
    void startProcess();
    template <typename How>
    void finish(bool& own, bool other, How&& how);

    StrokeEntry& _entry;
    const Canvas& _canvas;
    const Life _life;
    Stabiliser _stabiliser;
    bool _ends = false;           // its end is on the way, in callbacks
    bool _isProcess = false;      // a stroke is being recognised
    double _lastProcessTime = 0;  // when one last was
};

}  // namespace dabcanvas
