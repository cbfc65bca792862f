// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QPointF>
#include <cstdint>
#include <memory>

#include "Canvas/Life.h"
#include "Canvas/QDDrawTouch.h"
#include "Maths/Export.h"

class QMouseEvent;
class QNativeGestureEvent;
class QPointingDevice;
class QTabletEvent;
class QTouchEvent;
class QWheelEvent;

namespace dabcanvas {

class CanvasDisplay;

/// What Qt tells of mouse, pen and fingers, as pointer events of the canvas: only the device that began a stroke goes
/// on with it. What does not paint moves the view, where that is navigable.
///
/// A display has its own, CanvasDisplay::pointers(). Each member tells whether the event was taken; a host may have
/// destroyed the display then, and this with it.
class DABCANVAS_CANVAS_API DevicePointers {
public:
    explicit DevicePointers(CanvasDisplay& display);
    ~DevicePointers();

    /// Positions in the view's points.
    bool mousePress(const QMouseEvent& event);
    bool mouseMove(const QMouseEvent& event);
    bool mouseRelease(const QMouseEvent& event);
    bool tablet(const QTabletEvent& event);
    bool touch(const QTouchEvent& event);
    bool wheel(const QWheelEvent& event);
    bool nativeGesture(const QNativeGestureEvent& event);
    /// A pen is near, by an event that is not the view's.
    void penIsNear() { seePen(); }
    /// No pointer will be heard of again: its stroke ends where it got to. False when the display is gone.
    bool forget();
    /// The same for one kind of device alone, for views that learn of each.
    enum class Pointer : std::uint8_t { none, mouse, pen, finger };
    bool forget(Pointer pointer) { return _pointer != pointer || forget(); }
    bool isPainting(Pointer pointer) const { return _pointer == pointer; }

    const Life life;

private:
    // Two fingers' place between them, distance and direction; of one its place alone.
    struct Grip {
        QPointF middle;
        double span = 0, angle = 0;
    };

    class Watch;
    QDDrawTouch touchAt(QPointF position, double pressure, std::uint64_t milliseconds) const;
    bool isOurs(const QMouseEvent& event) const;
    bool letsPaint(Pointer pointer, std::int64_t id);
    void pressed(Pointer pointer, const QDDrawTouch& touch, const QPointingDevice* device);
    void dragged(Pointer pointer, const QDDrawTouch& touch);
    void released(Pointer pointer, const QDDrawTouch& touch);
    bool fingersPaint() const;
    bool seePen();
    QDDrawTouch penTouch(const QTabletEvent& event) const;
    void penDown(const QTabletEvent& event, std::int64_t id);
    void penWent(std::int64_t id);
    void paintWithFinger(const QTouchEvent& event);
    void countFingers(const QTouchEvent& event);
    void navigate(const QTouchEvent& event);
    void moveView(const Grip& from, const Grip& to);
    Grip gripOf(const QTouchEvent& event) const;

    CanvasDisplay& _display;
    const std::unique_ptr<Watch> _watch;
    Pointer _pointer = Pointer::none;
    QElapsedTimer _heard;  // since it was heard of last
    std::int64_t _penId = 0;
    bool _penWaits = false;  // it is down, without a pressure so far
    bool _penSeen = false;
    bool _fingersIgnored = false;   // until all are up
    bool _palmRests = false;        // the same, as a pen or the mouse painted meanwhile
    std::uint64_t _fingerDown = 0;  // timestamp, in milliseconds
    // Of the fingers that are down
    int _mostFingers = 0;
    bool _fingersMoved = false;
    int _gripping = 0;
    Grip _grip;
    double _turn = 0;  // by which they have turned so far
    bool _turns = false;
    bool _panning = false;  // by the mouse
    QPointF _panFrom;
};

}  // namespace dabcanvas
