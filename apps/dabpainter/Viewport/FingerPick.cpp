// SPDX-License-Identifier: MIT
#include "Viewport/FingerPick.h"

#include <QTouchEvent>

#include "Viewport/ColorPicker.h"

namespace dabcanvas::dabpainter {

bool FingerPick::filter(const QTouchEvent& event, QPointF at, bool fingersPaint) {
    const bool isOne = event.points().size() == 1 && event.type() != QEvent::TouchCancel;
    if (event.type() == QEvent::TouchBegin) {
        forget();
        if (isOne && _picker.isOn())
            _from = at;
        if (_from && fingersPaint)
            _picker.press(at, event.modifiers());
        return false;
    }
    if (!_from)
        return false;
    if (!isOne) {
        if (_picker.isPressed())
            _picker.giveUp();
        forget();
        return false;
    }
    if (event.type() == QEvent::TouchEnd) {
        forget();
        if (_picker.isPressed() || _picker.press(at, event.modifiers()))
            _picker.release(event.modifiers());
        return false;
    }
    if (_picker.isPressed())
        _picker.drag(at);
    else if ((at - *_from).manhattanLength() > kTap)
        forget();
    return _picker.isPressed();
}

}  // namespace dabcanvas::dabpainter
