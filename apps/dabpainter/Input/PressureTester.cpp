// SPDX-License-Identifier: MIT
#include "Input/PressureTester.h"

#include <QTabletEvent>

#include "QDEAGLView/QDDrawView.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr QSize kSheet{960,
                       720};  // as large as the dialog may be made; what lies beyond the window is not seen

}  // namespace

PressureTester::PressureTester(const BrushModel& brush, QWidget* parent) : QWidget(parent) {
    setMinimumSize(240, 180);
    setAccessibleName(tr("Sheet to try the pressure on"));
    // The processor's, as this is small, and gone with the dialog.
    _view = QDDrawView::initWithFrame(QRectF(QPointF(), kSheet), this, {.kind = SurfaceKind::processor})
                .release();
    if (!_view)
        return;
    brush.applyAll(*_view);
    _view->setAdjustCancelLine(false);
    _view->setUsesPenTilt(true);
    _view->setFit(ViewFit::free);
    _view->installEventFilter(this);
    clear();
}

void PressureTester::setCurve(const PressureCurve& curve) {
    if (!_view)
        return;
    PointerOptions options = _view->pointerOptions();
    options.pressure = curve;
    _view->setPointerOptions(options);
}

void PressureTester::clear() {
    if (_view)
        _view->clearWithColor(ESColor::grey(1), true);
}

bool PressureTester::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
        case QEvent::TabletPress:
        case QEvent::TabletMove: {
            const auto& tablet = *static_cast<QTabletEvent*>(event);
            if (tablet.buttons() != Qt::NoButton)
                emit pressed(float(tablet.pressure()));
            return false;
        }
        case QEvent::TabletRelease:
            emit pressed({});
            return false;
        default:
            return false;
    }
}

// At its own size from the top left corner, so that it is seen as on a picture at 100 %.
void PressureTester::resizeEvent(QResizeEvent*) {
    if (!_view)
        return;
    _view->setGeometry(rect());
    _view->setZoom(1);
    _view->setViewCentre(QPointF(width(), height()) * devicePixelRatioF() / 2);
}

}  // namespace dabcanvas::dabpainter
