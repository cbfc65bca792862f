// SPDX-License-Identifier: MIT
// Selecting, the clipboard, and pictures that come in.
#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenuBar>
#include <QStatusBar>

#include "Canvas/CanvasLayers.h"
#include "Layers/LayerPanel.h"
#include "QDEAGLView/QDDrawView.h"
#include "Selection/PictureMime.h"
#include "Selection/SelectionEditor.h"
#include "Selection/SelectionTool.h"
#include "Viewport/CanvasPointer.h"
#include "Viewport/CanvasViewport.h"
#include "Window/Commands.h"
#include "Window/MainWindow.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr int kMessageTime = 2500;  // milliseconds

}  // namespace

void MainWindow::makeSelection() {
    _selection = new SelectionEditor(this);
    _selectionTool = new SelectionTool(*_selection, *_viewport, *_pointer);
    connect(_selection, &SelectionEditor::refused, this,
            [this](const QString& why) { _refusal.show(why, 2 * kMessageTime); });
    connect(_selection, &SelectionEditor::floats, this, [this](bool isFloating) {
        _undo->setEnabled(isFloating || (view() && view()->canUndo()));
        if (isFloating)
            _floatHint.show(tr("Enter or a double click puts it down, Escape gives it up"), 2 * kMessageTime);
        else
            _floatHint.end();
    });
    connect(_layers, &LayerPanel::aboutToEdit, _selection, &SelectionEditor::settle);
}

void MainWindow::makeSelectMenu() {
    QMenu* menu = menuBar()->addMenu(tr("&Select"));
    addTo(menu, "select.all", tr("&All"), {QKeySequence::SelectAll}, [this] { _selection->selectAll(); });
    addTo(menu, "select.none", tr("&None"), {key("Ctrl+Shift+A")}, [this] { _selection->selectNone(); });
    addTo(menu, "select.invert", tr("&Invert"), {key("Ctrl+Shift+I")}, [this] { _selection->invert(); });
    menu->addSeparator();
    using Kind = SelectionTool::Kind;
    const auto addTool = [&](Kind kind, const char* name, const QString& text, const char* keys) {
        QAction* action = addTo(menu, name, text, {key(keys)}, [this, kind] {
            _selectionTool->setKind(_selectionTool->kind() == kind ? Kind::none : kind);
        });
        action->setCheckable(true);
        connect(_selectionTool, &SelectionTool::kindChanged, action,
                [this, action, kind] { action->setChecked(_selectionTool->kind() == kind); });
    };
    addTool(Kind::rectangle, "select.rectangle", tr("&Rectangle"), "R");
    addTool(Kind::lasso, "select.lasso", tr("&Lasso"), "L");
}

void MainWindow::addClipboard(QMenu* menu) {
    addTo(menu, "edit.cut", tr("Cu&t"), {QKeySequence::Cut}, [this] { cutSelected(); });
    addTo(menu, "edit.copy", tr("&Copy"), {QKeySequence::Copy},
          [this] { copyPicture(_selection->copied()); });
    addTo(menu, "edit.copyAll", tr("Copy All &Layers"), {key("Ctrl+Shift+C")}, [this] {
        finishEdits();
        copyPicture(_selection->copiedOfAll());
    });
    addTo(menu, "edit.paste", tr("&Paste"), {QKeySequence::Paste},
          [this] { placePicture(*QGuiApplication::clipboard()->mimeData()); });
    menu->addSeparator();
}

// To be called with every new view.
void MainWindow::watchSelection() {
    _selection->setCanvas(view());
    _selectionTool->watchView();
    connect(view(), &QDDrawView::canvasSizeChanged, _selection, [this] { _selection->setCanvas(view()); });
    connect(view(), &QDDrawView::strokeBegan, _selection, [this](const QPointF& at) {
        _refusal.end();
        const QPainterPath& area = _selection->area();
        if (!area.isEmpty() && !area.contains(at))
            _refusal.show(tr("Strokes keep to what is selected; Escape selects nothing"), 2 * kMessageTime);
    });
}

void MainWindow::finishEdits() {
    _pointer->endStroke();
    _selectionTool->endDrag();
    _selection->settle();
}

// What is selected goes, or all of the picture.
void MainWindow::removeSelected() {
    _pointer->endStroke();
    if (!_selection->remove())
        clearCanvas();
}

void MainWindow::cutSelected() {
    _pointer->endStroke();
    if (!copyPicture(_selection->copied()))
        return;
    if (_selection->remove())
        return;
    _selection->selectAll();
    _selection->remove();
    _selection->selectNone();
}

bool MainWindow::copyPicture(const QImage& picture) {
    _pointer->endStroke();
    if (!picture.isNull())
        QGuiApplication::clipboard()->setMimeData(mimeOf(picture).release());
    return !picture.isNull();
}

// It floats, until the user puts it down.
bool MainWindow::placePicture(const QImage& picture) {
    finishEdits();
    if (!view())
        return false;
    const QRectF canvas(QPointF(), view()->bufferSize());
    const QRectF seen = view()->viewToBuffer().mapRect(QRectF(_viewport->rect())) & canvas;
    const bool placed = _selection->place(picture, seen.isEmpty() ? canvas : seen);
    if (placed)
        _viewport->setFocus();
    return placed;
}

bool MainWindow::placePicture(const QMimeData& from) {
    if (!hasPicture(from)) {
        _refusal.show(tr("There is no picture to paste"), kMessageTime);
        return false;
    }
    const ReadImage read = pictureOf(from);
    return read.fault.isEmpty() ? placePicture(read.image) : tellFault(read.fault);
}

}  // namespace dabcanvas::dabpainter
