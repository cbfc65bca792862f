// SPDX-License-Identifier: MIT
#include "Display/DevicePointers.h"

#include <QCoreApplication>
#include <QLineF>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPointingDevice>
#include <QTabletEvent>
#include <QTouchEvent>
#include <QWheelEvent>
#include <QtMath>
#include <cmath>
#include <numbers>
#include <utility>

#include "Display/CanvasDisplay.h"

namespace dabcanvas {
namespace {

// A second finger within this time, or as long as the first one drew no line, makes a pinch of both.
constexpr std::uint64_t kPinchMilliseconds = 400;
constexpr std::uint64_t kTapMilliseconds = 300;
// A device that is held still may tell nothing; one that nobody hears of for as long does not keep others from painting.
constexpr qint64 kSilentMilliseconds = 1000;
constexpr double kTapPoints = 12;      // by which a finger that taps may slide
constexpr double kTurnsFrom = 0.2;     // radians; a pinch turns a little by itself
constexpr double kWheelDoubles = 480;  // eighths of a degree of wheel for twice the size

double secondsOf(std::uint64_t milliseconds) {
    return milliseconds == 0 ? -1 : static_cast<double>(milliseconds) / 1000;
}

std::int64_t idOf(const QTabletEvent& event) {
    return static_cast<std::int64_t>(event.pointingDevice()->uniqueId().numericId());
}

}  // namespace

// What no view is told: a pen comes near and goes, and the painting device is there no more.
class DevicePointers::Watch : public QObject {
public:
    explicit Watch(DevicePointers& pointers) : _pointers(pointers) {
        if (QCoreApplication::instance() != nullptr) {
            QCoreApplication::instance()->installEventFilter(this);
        }
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == QCoreApplication::instance()) {
            if (event->type() == QEvent::TabletEnterProximity) {
                _pointers.seePen();
            } else if (event->type() == QEvent::TabletLeaveProximity) {
                _pointers.penWent(idOf(static_cast<const QTabletEvent&>(*event)));
            }
        }
        return false;
    }
    void follow(const QPointingDevice* device) {
        disconnect(_device);
        if (device != nullptr) {
            _device = connect(device, &QObject::destroyed, this, [this] { _pointers.forget(); });
        }
    }

private:
    DevicePointers& _pointers;
    QMetaObject::Connection _device;
};

DevicePointers::DevicePointers(CanvasDisplay& display)
    : _display(display), _watch(std::make_unique<Watch>(*this)) {}

DevicePointers::~DevicePointers() = default;

QDDrawTouch DevicePointers::touchAt(QPointF position, double pressure, std::uint64_t milliseconds) const {
    return {_display.toWindow(position), static_cast<float>(pressure), -1, secondsOf(milliseconds)};
}

// ---- Which device is heard

// Not while another one paints; but a stroke that is over, or that nobody goes on with, keeps nobody waiting.
bool DevicePointers::letsPaint(Pointer pointer, std::int64_t id) {
    const bool isOther = _pointer != pointer || (pointer == Pointer::pen && id != _penId);
    if (_pointer == Pointer::none || !isOther) {
        return true;
    }
    const bool paints = _display.normalMoing() || _display.digitPenMoving();
    return (!paints || _heard.hasExpired(kSilentMilliseconds)) && forget();
}

void DevicePointers::pressed(Pointer pointer, const QDDrawTouch& touch, const QPointingDevice* device) {
    _heard.start();
    _watch->follow(device);
    const Alive alive(life);
    pointer == Pointer::finger ? _display.touchesBeganWithEvent(touch) : _display.mouseDown(touch);
    if (!alive) {
        return;  // a callback destroyed the display
    }
    _pointer = _display.normalMoing() || _display.digitPenMoving() ? pointer : Pointer::none;
}

void DevicePointers::dragged(Pointer pointer, const QDDrawTouch& touch) {
    if (_pointer == pointer) {
        _heard.start();
        pointer == Pointer::finger ? _display.touchesMovedWithEvent(touch) : _display.mouseDragged(touch);
    }
}

void DevicePointers::released(Pointer pointer, const QDDrawTouch& touch) {
    if (_pointer == pointer) {
        _pointer = Pointer::none;
        pointer == Pointer::finger ? _display.touchesEndedWithEvent(touch) : _display.mouseUp(touch);
    }
}

bool DevicePointers::forget() {
    const Alive alive(life);
    _pointer = Pointer::none;
    _panning = _penWaits = false;
    _display.endPointerStroke();
    return static_cast<bool>(alive);
}

// ---- Mouse

// Pens and fingers come by themselves; the mouse events that are made of theirs must not paint again.
bool DevicePointers::isOurs(const QMouseEvent& event) const {
    return event.source() == Qt::MouseEventNotSynthesized &&
           event.pointerType() != QPointingDevice::PointerType::Finger &&
           event.pointerType() != QPointingDevice::PointerType::Pen &&
           event.pointerType() != QPointingDevice::PointerType::Eraser;
}

bool DevicePointers::mousePress(const QMouseEvent& event) {
    if (event.button() == Qt::MiddleButton && _display.isNavigable() && _pointer == Pointer::none) {
        _panning = true;
        _panFrom = event.position();
        return true;
    }
    if (event.button() != Qt::LeftButton) {
        return false;
    }
    if (isOurs(event) && letsPaint(Pointer::mouse, 0)) {
        pressed(Pointer::mouse, touchAt(event.position(), 1, event.timestamp()), event.pointingDevice());
    }
    return true;
}

bool DevicePointers::mouseMove(const QMouseEvent& event) {
    if (_panning) {
        _panning = (event.buttons() & Qt::MiddleButton) != 0;
        _display.panBy(event.position() - std::exchange(_panFrom, event.position()));
        return true;
    }
    if ((event.buttons() & Qt::LeftButton) == 0) {
        return _pointer == Pointer::mouse && !forget();  // its release went elsewhere
    }
    if (isOurs(event)) {
        dragged(Pointer::mouse, touchAt(event.position(), 1, event.timestamp()));
    }
    return true;
}

bool DevicePointers::mouseRelease(const QMouseEvent& event) {
    if (event.button() == Qt::MiddleButton && std::exchange(_panning, false)) {
        return true;
    }
    if (event.button() != Qt::LeftButton) {
        return false;
    }
    if (isOurs(event)) {
        released(Pointer::mouse, touchAt(event.position(), 1, event.timestamp()));
    }
    return true;
}

// ---- Pen

// What a palm drew before its pen came is nothing. False when the display is gone.
bool DevicePointers::seePen() {
    _penSeen = true;
    if (_pointer == Pointer::finger && _display.pointerOptions().touch == TouchPolicy::pensOnceSeen) {
        const Alive alive(life);
        _pointer = Pointer::none;
        _palmRests = true;
        _display.withdrawPointerStroke();
        return static_cast<bool>(alive);
    }
    return true;
}

void DevicePointers::penWent(std::int64_t id) {
    if (id == _penId) {
        _penWaits = false;
        forget(Pointer::pen);
    }
}

QDDrawTouch DevicePointers::penTouch(const QTabletEvent& event) const {
    QDDrawTouch touch = touchAt(event.position(), event.pressure(), event.timestamp());
    if (event.device()->hasCapability(QInputDevice::Capability::XTilt)) {
        touch.altitude = altitudeOfTilts(qDegreesToRadians(double{event.xTilt()}),
                                         qDegreesToRadians(double{event.yTilt()}));
    }
    return touch;
}

bool DevicePointers::tablet(const QTabletEvent& event) {
    if (!seePen()) {
        return true;
    }
    const std::int64_t id = idOf(event);
    const bool paints = _pointer == Pointer::pen && id == _penId, waits = _penWaits && id == _penId;
    if (event.type() == QEvent::TabletMove && (paints || waits)) {
        if ((event.buttons() & Qt::LeftButton) == 0) {
            forget();  // its release went elsewhere
        } else {
            waits ? penDown(event, id) : dragged(Pointer::pen, penTouch(event));
        }
        return true;
    }
    if (event.type() == QEvent::TabletMove || event.button() != Qt::LeftButton) {
        return false;  // hovering, and other buttons
    }
    if (event.type() == QEvent::TabletPress && letsPaint(Pointer::pen, id)) {
        penDown(event, id);
    } else if (event.type() == QEvent::TabletRelease && (paints || waits)) {
        _penWaits = false;
        released(Pointer::pen, penTouch(event));
    }
    return true;
}

// One that measures pressure paints from the first that there is: some are told to be down before they touch.
void DevicePointers::penDown(const QTabletEvent& event, std::int64_t id) {
    _penId = id;
    _penWaits = event.device()->hasCapability(QInputDevice::Capability::Pressure) && !(event.pressure() > 0);
    if (_penWaits) {
        return;
    }
    const Alive alive(life);
    pressed(Pointer::pen, penTouch(event), event.pointingDevice());
    if (alive && _pointer == Pointer::pen) {
        _palmRests = true;
    }
}

// ---- Fingers

bool DevicePointers::fingersPaint() const {
    switch (_display.pointerOptions().touch) {
        case TouchPolicy::fingersPaint:
            return true;
        case TouchPolicy::pensOnly:
            return false;
        case TouchPolicy::pensOnceSeen:
            break;
    }
    return !_penSeen;
}

bool DevicePointers::touch(const QTouchEvent& event) {
    const Alive alive(life);
    if (event.device() != nullptr && event.device()->type() == QInputDevice::DeviceType::TouchPad) {
        return false;  // which moves the mouse
    }
    if (event.type() == QEvent::TouchBegin) {
        _fingersIgnored = false;  // the end of earlier ones may have been lost
        _palmRests = _pointer == Pointer::pen;
        _mostFingers = _gripping = 0;
    }
    const bool paints = fingersPaint() || _pointer == Pointer::finger;
    if (!paints && !_display.isNavigable()) {
        return false;
    }
    if (event.type() == QEvent::TouchCancel) {
        _fingersIgnored = false;
        _mostFingers = _gripping = 0;
        if (std::exchange(_pointer, _pointer == Pointer::finger ? Pointer::none : _pointer) ==
            Pointer::finger) {
            _display.touchesCancelledWithEvent(touchAt(_display.inView(_display.lastPoint()), 0, 0));
        }
        return true;
    }
    countFingers(event);
    if (paints) {
        paintWithFinger(event);
    }
    if (alive && !_palmRests && _display.isNavigable() && (!paints || _fingersIgnored)) {
        navigate(event);
    }
    if (alive && event.type() == QEvent::TouchEnd) {
        const bool taps = !_fingersMoved && !_palmRests && _mostFingers > 1 &&
                          event.timestamp() - _fingerDown < kTapMilliseconds;
        const int fingers = std::exchange(_mostFingers, 0);
        _fingersIgnored = _palmRests = false;
        _gripping = 0;
        if (taps) {
            _display.fingersDidTap(fingers);
        }
    }
    return true;
}

void DevicePointers::paintWithFinger(const QTouchEvent& event) {
    const Alive alive(life);
    if (event.points().size() > 1 && !std::exchange(_fingersIgnored, true) && _pointer == Pointer::finger) {
        _pointer = Pointer::none;
        // Nothing of a pinch is painted; a line that has long been drawn is kept.
        const bool pinch = event.timestamp() - _fingerDown < kPinchMilliseconds || !_display.isLining();
        pinch ? _display.withdrawPointerStroke() : _display.endPointerStroke();
    }
    if (!alive || _fingersIgnored || event.points().isEmpty()) {
        return;
    }
    const QEventPoint& finger = event.points().first();
    const bool measures = event.pointingDevice() != nullptr &&
                          event.pointingDevice()->hasCapability(QInputDevice::Capability::Pressure);
    const QDDrawTouch touch = touchAt(_display.fromGlobal(finger.globalPosition()),
                                      measures ? finger.pressure() : 1, event.timestamp());
    switch (finger.state()) {
        case QEventPoint::State::Pressed:
            return letsPaint(Pointer::finger, 0) ? pressed(Pointer::finger, touch, event.pointingDevice())
                                                 : void();
        case QEventPoint::State::Updated:
            return dragged(Pointer::finger, touch);
        case QEventPoint::State::Released:
            return released(Pointer::finger, touch);
        default:
            return;
    }
}

// ---- Fingers that move the view

void DevicePointers::countFingers(const QTouchEvent& event) {
    if (event.type() == QEvent::TouchBegin) {
        _fingersMoved = false;
        _fingerDown = event.timestamp();
    }
    _mostFingers = std::max(_mostFingers, static_cast<int>(event.points().size()));
    for (const QEventPoint& finger : event.points()) {
        _fingersMoved = _fingersMoved ||
                        QLineF(finger.globalPressPosition(), finger.globalPosition()).length() > kTapPoints;
    }
}

DevicePointers::Grip DevicePointers::gripOf(const QTouchEvent& event) const {
    const QPointF first = _display.fromGlobal(event.points().first().globalPosition());
    if (event.points().size() < 2) {
        return {first};
    }
    const QPointF second = _display.fromGlobal(event.points().at(1).globalPosition());
    const QPointF between = second - first;
    return {(first + second) / 2, std::hypot(between.x(), between.y()),
            std::atan2(-between.y(), between.x())};
}

void DevicePointers::navigate(const QTouchEvent& event) {
    int down = 0;
    for (const QEventPoint& finger : event.points()) {
        down += finger.state() != QEventPoint::State::Released ? 1 : 0;
    }
    if (down < static_cast<int>(event.points().size()) || event.points().isEmpty()) {
        _gripping = 0;  // others grip next
        return;
    }
    const Grip to = gripOf(event);
    if (_gripping == down && _pointer == Pointer::none) {
        if (_fingersMoved) {
            moveView(std::exchange(_grip, to), to);
        }
        return;
    }
    _gripping = down;
    _grip = to;
    _turn = 0;
    _turns = false;
}

void DevicePointers::moveView(const Grip& from, const Grip& to) {
    const Alive alive(life);
    _display.panBy(to.middle - from.middle);
    if (!alive || !(to.span > 0) || !(from.span > 0)) {
        return;
    }
    _display.zoomAbout(_display.zoom() * to.span / from.span, to.middle);
    if (!alive) {
        return;
    }
    const double turned = std::remainder(to.angle - from.angle, 2 * std::numbers::pi);
    _turn += turned;
    if (_turns || std::abs(_turn) > kTurnsFrom) {
        _display.turnAbout(_display.viewRotation() + (std::exchange(_turns, true) ? turned : _turn),
                           to.middle);
    }
}

// ---- Wheel and touch pad

bool DevicePointers::wheel(const QWheelEvent& event) {
    if (!_display.isNavigable()) {
        return false;
    }
    if (_pointer != Pointer::none) {
        return true;
    }
    const bool isPad =
        event.device() != nullptr && event.device()->type() == QInputDevice::DeviceType::TouchPad;
    const bool slides = isPad || !event.pixelDelta().isNull() || event.phase() != Qt::NoScrollPhase;
    if (slides && (event.modifiers() & Qt::ControlModifier) == 0) {
        const QPointF by =
            event.pixelDelta().isNull() ? QPointF(event.angleDelta()) / 2 : QPointF(event.pixelDelta());
        _display.panBy(by);
    } else {
        _display.zoomAbout(_display.zoom() * std::exp2(event.angleDelta().y() / kWheelDoubles),
                           event.position());
    }
    return true;
}

bool DevicePointers::nativeGesture(const QNativeGestureEvent& event) {
    if (!_display.isNavigable() || _pointer != Pointer::none) {
        return false;
    }
    if (event.gestureType() == Qt::ZoomNativeGesture) {
        _display.zoomAbout(_display.zoom() * (1 + event.value()), event.position());
        return true;
    }
    if (event.gestureType() == Qt::RotateNativeGesture) {
        _display.turnAbout(_display.viewRotation() - qDegreesToRadians(event.value()), event.position());
        return true;
    }
    return false;
}

}  // namespace dabcanvas
