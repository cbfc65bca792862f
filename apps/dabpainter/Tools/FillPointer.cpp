// SPDX-License-Identifier: MIT
#include "Tools/FillPointer.h"

#include <QMouseEvent>
#include <QTabletEvent>

namespace dabcanvas::dabpainter {

void FillPointer::watch(QWidget* view) {
    if (_view)
        _view->removeEventFilter(this);
    _view = view;
    view->installEventFilter(this);
}

bool FillPointer::eventFilter(QObject*, QEvent* event) {
    if (!_on)
        return false;
    const bool isPress = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::TabletPress ||
                         event->type() == QEvent::MouseButtonDblClick;
    const bool isMove = event->type() == QEvent::MouseMove || event->type() == QEvent::TabletMove;
    if (!isPress && !isMove)
        return false;
    const auto& pointer = *static_cast<QSinglePointEvent*>(event);
    if (!(isPress ? pointer.button() == Qt::LeftButton : pointer.buttons() & Qt::LeftButton))
        return false;
    event->accept();
    if (isPress)
        emit fillAt(pointer.position());
    return true;
}

}  // namespace dabcanvas::dabpainter
