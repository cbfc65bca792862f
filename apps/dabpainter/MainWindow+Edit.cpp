// SPDX-License-Identifier: MIT
// Undo and redo.
#include <QInputDialog>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QToolBar>

#include "CanvasPointer.h"
#include "History/ImagesUndoManager.h"
#include "MainWindow.h"
#include "QDEAGLView/QDDrawView.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr char kStepsKey[] = "history/steps";
constexpr int kDefaultSteps = 100, kMostSteps = 1000;

}  // namespace

void MainWindow::makeEditMenu() {
    QMenu* menu = menuBar()->addMenu(tr("&Edit"));
    _undo =
        addTo(menu, tr("&Undo"), {QKeySequence(tr("Ctrl+Z"))}, [this] { stepHistory(&QDDrawCanvas::undo); });
    _redo = addTo(menu, tr("&Redo"), {QKeySequence(tr("Ctrl+Shift+Z")), QKeySequence(tr("Ctrl+Y"))},
                  [this] { stepHistory(&QDDrawCanvas::redo); });
    menu->addSeparator();
    addTo(menu, tr("Undo &Steps…"), {}, [this] {
        bool accepted = false;
        const int steps = QInputDialog::getInt(this, tr("Undo Steps"), tr("Steps that can be undone:"),
                                               undoSteps(), 1, kMostSteps, 1, &accepted);
        if (accepted) {
            setUndoSteps(steps);
        }
    });
    auto* buttons = new QToolBar(tr("History"));
    buttons->setObjectName(QStringLiteral("historyBar"));
    buttons->setToolButtonStyle(Qt::ToolButtonTextOnly);
    buttons->addAction(_undo);
    buttons->addAction(_redo);
    addToolBar(buttons);
    // They follow what the canvas tells.
    connect(_pointer, &CanvasPointer::canUndoChanged, _undo, &QAction::setEnabled);
    connect(_pointer, &CanvasPointer::canRedoChanged, _redo, &QAction::setEnabled);
    _undo->setEnabled(false);
    _redo->setEnabled(false);
}

int MainWindow::undoSteps() const {
    return std::clamp(_settings.value(QLatin1String(kStepsKey), kDefaultSteps).toInt(), 1, kMostSteps);
}

void MainWindow::setUndoSteps(int steps) {
    _settings.setValue(QLatin1String(kStepsKey), steps);
    if (view() != nullptr) {
        view()->undoManager().setUndoStepCount(static_cast<unsigned>(undoSteps()));
    }
}

// Of a canvas as it was opened or made; what it was filled with is no step.
void MainWindow::startHistory() {
    ImagesUndoManager& history = view()->undoManager();
    if (!_session.pictures().isEmpty())
        history.setTempDirectory(_session.pictures());
    history.setUndoStepCount(static_cast<unsigned>(undoSteps()));
    view()->resetUndoManager();
    view()->setAutoMark(true);
    _undo->setEnabled(false);
    _redo->setEnabled(false);
}

void MainWindow::stepHistory(dabcanvas::StepPicture (QDDrawCanvas::*step)()) {
    if (view() == nullptr || !_pointer->isIdle()) {
        return;
    }
    if (!(view()->*step)().isNull()) {
        markChanged();
    }
}

}  // namespace dabcanvas::dabpainter
