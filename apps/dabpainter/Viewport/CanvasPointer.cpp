// SPDX-License-Identifier: MIT
#include "Viewport/CanvasPointer.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QTabletEvent>
#include <QTimer>
#include <QTouchEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "Brush/BrushPresentation.h"
#include "ESRender/ESImageRender.h"
#include "QDEAGLView/QDDrawView.h"
#include "Viewport/BrushCursor.h"
#include "Viewport/CanvasViewport.h"
#include "Viewport/ColorPicker.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr float kPress = 1;  // what the view takes a device for that measures none

// The hot spot inside the brush's outline.
QCursor dotCursor() {
    QPixmap dot(11, 11);
    dot.fill(Qt::transparent);
    QPainter painter(&dot);
    painter.fillRect(3, 3, 5, 5, QColor(255, 255, 255, 200));
    painter.fillRect(4, 4, 3, 3, QColor(0, 0, 0, 220));
    painter.end();
    return QCursor(dot, 5, 5);
}

}  // namespace

CanvasPointer::CanvasPointer(CanvasViewport& viewport, BrushCursor& cursor, BrushModel& model)
    : QObject(&viewport),
      _viewport(viewport),
      _cursor(cursor),
      _model(model),
      _picker(new ColorPicker(viewport, model)),
      _finger(*_picker) {
    viewport.setMouseTracking(true);
    viewport.setTabletTracking(true);
    connect(&cursor, &BrushCursor::outlineChanged, this, &CanvasPointer::chooseCursor);
    connect(_picker, &ColorPicker::activeChanged, this, &CanvasPointer::showPointer);
    connect(_picker, &ColorPicker::onChanged, this, &CanvasPointer::tellOptions);
    qApp->installEventFilter(this);  // the space bar counts wherever the focus is
}

void CanvasPointer::watchView() {
    QDDrawView* view = _viewport.view();
    view->setAdjustCancelLine(false);  // short strokes are meant
    view->setUsesPenTilt(true);
    tellOptions();
    view->setMouseTracking(true);
    view->setTabletTracking(true);
    _stroke = Stroke::none;
    connect(view, &QDDrawView::strokeBegan, this, [this](QPointF place) {
        _stroke = Stroke::begun;
        _beganAt = place;
        const QDDrawView& began = *_viewport.view();
        _recordedBefore = began.enableRecogition() ? began.curImageData() : StepPicture();
    });
    connect(view, &QDDrawView::strokeMoved, this, [this] { _stroke = Stroke::drawn; });
    connect(view, &QDDrawView::strokeEnded, this, &CanvasPointer::strokeEnds);
    connect(view, &QDDrawView::strokeWithdrawn, this, &CanvasPointer::strokeEnds);
}

void CanvasPointer::setTouch(TouchPolicy policy) {
    _options.touch = policy;
    tellOptions();
}

void CanvasPointer::setPressure(const PressureCurve& curve) {
    _options.pressure = curve;
    tellOptions();
}

void CanvasPointer::setStabiliser(const StabiliserOptions& options) {
    _options.stabiliser = options;
    tellOptions();
}

void CanvasPointer::tellOptions() {
    QDDrawView* view = _viewport.view();
    if (!view)
        return;
    PointerOptions options = _options;
    const bool noStrokes = !_paints || _picker->isOn() || (_selecting && !fingersPaint());
    options.touch = noStrokes ? TouchPolicy::pensOnly : _options.touch;
    view->setPointerOptions(options);
}

void CanvasPointer::setPaints(bool paints) {
    _paints = paints;
    tellOptions();
}

void CanvasPointer::setSelecting(bool selecting) {
    _selecting = selecting;
    tellOptions();
    _picker->setHoldable(!selecting);  // where Ctrl means something else
    if (selecting)
        _cursor.hideOutline();
}

bool CanvasPointer::isFree() const {
    return !_spaceHeld && !_panning && !_picker->isActive();
}

QPointF CanvasPointer::place() const {
    return _place.value_or(QRectF(_viewport.rect()).center());
}

bool CanvasPointer::isIdle() const {
    return !_viewport.view() || !_viewport.view()->isDrawing();
}

void CanvasPointer::endStroke() {
    if (QDDrawView* view = _viewport.view())
        view->endPointerStroke();
    if (isIdle())
        _model.endOverride();
}

bool CanvasPointer::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease)
        return watched->isWidgetType() && filterKey(*static_cast<QKeyEvent*>(event));
    if (event->type() == QEvent::ApplicationDeactivate && watched == qApp) {
        _spaceHeld = _panning = false;  // nobody will tell of the releases
        _picker->leave();
        chooseCursor();
    }
    if (!_viewport.view() || watched != _viewport.view())
        return false;
    switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::MouseButtonRelease: {
            auto& mouse = *static_cast<QMouseEvent*>(event);
            return filterMouse(mouse, mouse.position());
        }
        case QEvent::TabletPress:
        case QEvent::TabletMove:
        case QEvent::TabletRelease: {
            auto& tablet = *static_cast<QTabletEvent*>(event);
            return filterTablet(tablet, tablet.position());
        }
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
        case QEvent::TouchCancel:
            return filterTouch(*static_cast<QTouchEvent*>(event));
        case QEvent::Wheel:
            pointTo(static_cast<QWheelEvent*>(event)->position());
            return false;
        case QEvent::Leave:
            _cursor.hideOutline();
            _picker->leave();
            _place.reset();
            emit left();
            return false;
        default:
            return false;
    }
}

// ---- Keyboard

bool CanvasPointer::filterKey(QKeyEvent& event) {
    _picker->watchKey(event, place());
    if (event.key() != Qt::Key_Space || event.modifiers() != Qt::NoModifier)
        return false;
    if (event.type() == QEvent::KeyRelease) {
        if (!_spaceHeld)
            return false;
        if (!event.isAutoRepeat()) {
            _spaceHeld = false;
            chooseCursor();
        }
        return true;
    }
    // Over the canvas the space bar is for panning; elsewhere it presses the button that has the focus.
    if (!_viewport.takesKeys())
        return false;
    _spaceHeld = true;
    chooseCursor();
    return true;
}

// ---- Mouse and pen

bool CanvasPointer::filterMouse(QMouseEvent& event, QPointF at) {
    const bool isPress =
        event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick;
    if (isPress) {
        _viewport.setFocus(Qt::MouseFocusReason);
        const bool pans =
            event.button() == Qt::MiddleButton || (event.button() == Qt::LeftButton && _spaceHeld);
        if (pans && isIdle()) {
            _panning = true;
            _panFrom = at;
            chooseCursor();
            return true;
        }
        if (event.button() != Qt::LeftButton)
            return false;
        if (_picker->press(at, event.modifiers()))
            return true;
        _downPressure = kPress;
        pressed(false);
        return false;
    }
    // A release may have gone elsewhere.
    const bool isHeld = event.type() == QEvent::MouseMove && event.buttons() != Qt::NoButton;
    if (event.type() == QEvent::MouseMove) {
        if (!isHeld)
            _picker->hover(at, event.modifiers());
        pointTo(at);
    }
    if (_panning) {
        if (event.type() == QEvent::MouseMove)
            _viewport.pan(at - std::exchange(_panFrom, at));
        _panning = isHeld;
        chooseCursor();
        return true;
    }
    if (_picker->isPressed()) {
        isHeld ? _picker->drag(at) : _picker->release(event.modifiers());
        return true;
    }
    if (event.type() == QEvent::MouseMove)
        return !isHeld && isIdle();  // hovering is not for the view
    return event.button() == Qt::LeftButton && deliverRelease(event);
}

bool CanvasPointer::filterTablet(QTabletEvent& event, QPointF at) {
    _penSeen = true;
    _finger.forget();
    emit pressureChanged(event.type() == QEvent::TabletRelease ? -1 : float(event.pressure()));
    if (isIdle() && (event.type() == QEvent::TabletPress || event.buttons() == Qt::NoButton))
        _picker->hover(at, event.modifiers());
    // Left to the mouse event that follows a tablet event which nobody took.
    if (!isFree() || (event.type() == QEvent::TabletPress && event.button() != Qt::LeftButton)) {
        event.ignore();
        return true;
    }
    pointTo(at);
    if (event.type() == QEvent::TabletRelease)
        return deliverRelease(event);
    if (event.type() == QEvent::TabletPress)
        _viewport.setFocus(Qt::MouseFocusReason);
    if ((event.buttons() & Qt::LeftButton) && isIdle()) {  // the view may let it begin with any of these
        pressed(event.pointerType() == QPointingDevice::PointerType::Eraser);
        _downPressure = 0;
    }
    _downPressure = std::max(_downPressure, float(event.pressure()));
    return false;
}

// What is about to begin a stroke, if the view has it.
void CanvasPointer::pressed(bool isEraser) {
    if (!isIdle())
        return;
    if (isEraser)
        _model.beginOverride(BrushKey::blendType, int(ESBlendTypeErase));
    else
        _model.endOverride();
}

// The view draws nothing for a click, which is to leave a dab when it has heard of the release.
bool CanvasPointer::deliverRelease(QEvent& event) {
    const QPointer<QDDrawView> view = _viewport.view();
    const bool isClick = _stroke == Stroke::begun && !_manyFingers;
    static_cast<QObject*>(view)->event(&event);
    if (view && isClick && isIdle())
        leaveDab(_beganAt);
    if (isIdle())
        _model.endOverride();
    return true;
}

// A stroke there and back that places a dab a sample and has no tapers leaves one: a stroke's first dab is never drawn, its
// last one always is.
void CanvasPointer::leaveDab(QPointF bufferPoint) {
    QDDrawView* view = _viewport.view();
    if (!view || view->isSmudgeType() || view->brushType() == kLiveFillBrush)
        return;
    view->setPointsDistanceEnabled(false);
    view->setStartRadius(0);
    view->setEndRadius(0);
    constexpr double kAccepted = 1.1;  // buffer pixels; a shorter move would be dropped
    view->drawingWithBeginPoint(bufferPoint, _downPressure);
    view->drawingWithMoveToPoint(bufferPoint + QPointF(kAccepted, 0), _downPressure);
    view->drawingWithEndPoint(bufferPoint, _downPressure);
    _model.apply(*view, {BrushKey::pointsDistanceEnabled, BrushKey::startRadius, BrushKey::endRadius});
}

// However it ended: released, taken back, or as its device was never heard of again.
void CanvasPointer::strokeEnds() {
    const bool drawn = std::exchange(_stroke, Stroke::none) == Stroke::drawn;
    const StepPicture before = std::exchange(_recordedBefore, {});
    QMetaObject::invokeMethod(
        this,
        [this, drawn, before] {
            if (isIdle())
                _model.endOverride();
            if (drawn && !before.isNull())
                judgeShape(before);
        },
        Qt::QueuedConnection);
}

// Of a stroke that was to become a shape.
void CanvasPointer::judgeShape(const StepPicture& before) {
    const QDDrawView* view = _viewport.view();
    if (view && view->enableRecogition() && !view->edited() && view->curImageData().isSameAs(before))
        emit noShapeFound();
}

// ---- Fingers

bool CanvasPointer::filterTouch(QTouchEvent& event) {
    if (event.device() && event.device()->type() == QInputDevice::DeviceType::TouchPad)
        return false;  // which moves the mouse
    _manyFingers = (_manyFingers && event.type() != QEvent::TouchBegin) || event.points().size() > 1;
    watchTap(event);
    const QPoint at = event.points().isEmpty()
                          ? QPoint()
                          : _viewport.mapFromGlobal(event.points().first().globalPosition()).toPoint();
    if (_finger.filter(event, at, mayFingerPaint()))
        return true;
    if (event.type() == QEvent::TouchBegin) {
        _downPressure = kPress;
        pressed(false);
    }
    return event.type() == QEvent::TouchEnd && deliverRelease(event);
}

bool CanvasPointer::mayFingerPaint() const {
    return fingersPaint() || (_options.touch == TouchPolicy::pensOnceSeen && !_penSeen);
}

void CanvasPointer::watchTap(const QTouchEvent& event) {
    const QPointF at = event.points().isEmpty() ? QPointF() : event.points().first().position();
    if (event.type() == QEvent::TouchBegin && mayFingerPaint())
        _tapFrom = at;
    if (_tapFrom && (_manyFingers || (at - *_tapFrom).manhattanLength() > kTap))
        _tapFrom.reset();
    if (event.type() == QEvent::TouchEnd && _tapFrom)
        emit tapped(*std::exchange(_tapFrom, std::nullopt));
}

// ---- What the pointer shows

void CanvasPointer::pointTo(QPointF at) {
    _place = at;
    showPointer();
    emit moved(_viewport.bufferPoint(at));
}

void CanvasPointer::showPointer() {
    if (!_place || _picker->isActive() || _panning || _selecting)
        _cursor.hideOutline();
    else
        _cursor.showAt(*_place);
    chooseCursor();
}

void CanvasPointer::chooseCursor() {
    const Shown wanted = _panning                                    ? Shown::grab
                         : _spaceHeld                                ? Shown::hand
                         : (_picker->isActive() || _cursor.isTiny()) ? Shown::cross
                                                                     : Shown::dot;
    if (std::exchange(_shown, wanted) == wanted)
        return;  // with every move: the window system would be told every time
    switch (wanted) {
        case Shown::grab:
            return _viewport.setCursor(Qt::ClosedHandCursor);
        case Shown::hand:
            return _viewport.setCursor(Qt::OpenHandCursor);
        case Shown::cross:
            return _viewport.setCursor(Qt::CrossCursor);
        case Shown::dot:
            return _viewport.setCursor(dotCursor());
        case Shown::none:
            break;
    }
}

}  // namespace dabcanvas::dabpainter
