// SPDX-License-Identifier: MIT
// Paints and takes it back, in a host that has a class called as one of the library's.
#include <QApplication>
#include <QImage>
#include <cstdio>

#include "QDEAGLView/QDDrawView.h"
#ifdef WITH_UNDO_MANAGER
#include "UndoManager.h"
#endif

namespace {

int failed(const char* what) {
    std::fprintf(stderr, "names: %s\n", what);
    return 1;
}

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const auto view = QDDrawView::initWithFrame(QRectF(0, 0, 64, 64));
    if (!view) {
        return failed("there is no view");
    }
    view->setAutoMark(true);
    view->loadUndoManager();
    const QImage blank = view->image();
    view->drawingWithBeginPoint({10, 10}, 1.0f);
    view->drawingWithMoveToPoint({40, 40}, 1.0f);
    view->drawingWithEndPoint({50, 20}, 1.0f);
    if (view->image() == blank) {
        return failed("the stroke left no paint");
    }
    if (!view->canUndo() || view->undo().isNull() || view->image() != blank) {
        return failed("the stroke is not taken back");
    }
#ifdef WITH_UNDO_MANAGER
    if (callsOfTheHosts != 0) {
        return failed("the library calls the host's UndoManager");
    }
    UndoManager hosts;
    if (hosts.undo() || callsOfTheHosts != 2) {
        return failed("the host calls the library's UndoManager");
    }
#endif
    return 0;
}
