// SPDX-License-Identifier: MIT
// The window's tools: their menu, the two bars, and what they do to the canvas.
#include <QAction>
#include <QActionGroup>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>
#include <cmath>
#include <tuple>

#include "Brush/BrushPresentation.h"
#include "Presets/PresetBrowser.h"
#include "QDEAGLView/QDDrawView.h"
#include "Selection/SelectionEditor.h"
#include "Selection/SelectionTool.h"
#include "Tools/BrushBar.h"
#include "Tools/CanvasFill.h"
#include "Tools/FillPointer.h"
#include "Tools/ToolIcons.h"
#include "Tools/Tools.h"
#include "Viewport/CanvasPointer.h"
#include "Viewport/CanvasViewport.h"
#include "Viewport/ColorPicker.h"
#include "Viewport/StraightLines.h"
#include "Window/Commands.h"
#include "Window/MainWindow.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr int kMessageTime = 2500;  // milliseconds
constexpr int kIconSide = 20;

}  // namespace

QAction* MainWindow::addTool(QMenu* menu, const char* name, const QString& text, const char* keys,
                             Tool tool) {
    QAction* action = addTo(menu, name, text, {QKeySequence(QString::fromLatin1(keys))}, [this, tool] {
        finishEdits();
        tool == Tool::eraser ? _tools->toggleEraser() : _tools->choose(tool);
    });
    action->setCheckable(true);
    // Of an eraser that is given back, or a tool that is refused, the click alone knows nothing.
    connect(action, &QAction::triggered, this, [this] { showTool(_tools->tool()); });
    _toolActions[tool] = action;
    return action;
}

void MainWindow::makeToolMenu() {
    _tools = new Tools(_brush,
                       {.keep = [this] { return _presets->keep(); },
                        .takeSmudge =
                            [this] {
                                if (!_presets->chooseShipped(QStringLiteral("soft-blender.xbf")))
                                    _brush.setValue(BrushKey::brushType, kSmudgeBrush);
                            },
                        .takePaint =
                            [this] {
                                if (!_presets->chooseShipped(QStringLiteral("pencil.xbf")))
                                    _brush.setValue(BrushKey::brushType, int(BrushKind::Dabs));
                            }},
                       this);
    _tools->setTolerance(_settings.tolerance());
    QMenu* menu = menuBar()->addMenu(tr("&Tools"));
    addTool(menu, "tool.brush", tr("&Brush"), "B", Tool::brush)->setIcon(toolIcon(ToolSign::brush));
    addTool(menu, "tool.eraser", tr("E&raser"), "E", Tool::eraser)->setIcon(toolIcon(ToolSign::eraser));
    addTool(menu, "tool.smudge", tr("&Smudge"), "U", Tool::smudge)->setIcon(toolIcon(ToolSign::smudge));
    addTool(menu, "tool.fill", tr("&Fill"), "G", Tool::fill)->setIcon(toolIcon(ToolSign::fill));
    addTool(menu, "brush.pick", tr("&Eyedropper"), "I", Tool::pick)->setIcon(toolIcon(ToolSign::pick));
    menu->addSeparator();
    _shapes = addTo(menu, "brush.shapes", tr("Reco&gnise Shapes"), {QKeySequence(QStringLiteral("Shift+R"))},
                    [] {});
    _shapes->setIcon(toolIcon(ToolSign::shapes));
    _shapes->setCheckable(true);
    connect(_shapes, &QAction::toggled, this, &MainWindow::recogniseShapes);
}

void MainWindow::makeToolBars() {
    _toolBar = new QToolBar(tr("Tools"));
    _toolBar->setObjectName(QStringLiteral("toolBar"));
    _toolBar->setIconSize(QSize(kIconSide, kIconSide));
    _toolBar->setToolButtonStyle(Qt::ToolButtonIconOnly);
    _toolBar->setMovable(false);
    for (const Tool tool : {Tool::brush, Tool::eraser, Tool::smudge, Tool::fill, Tool::pick})
        _toolBar->addAction(_toolActions[tool]);
    _toolBar->addSeparator();
    const std::initializer_list<std::tuple<Tool, const char*, ToolSign>> selecting{
        {Tool::rectangle, "select.rectangle", ToolSign::select},
        {Tool::lasso, "select.lasso", ToolSign::lasso}};
    for (const auto& [tool, name, sign] : selecting) {
        QAction* action = _commands->find(QLatin1String(name))->action;
        action->setIcon(toolIcon(sign));
        _toolActions[tool] = action;
        _toolBar->addAction(action);
    }
    _toolBar->addSeparator();
    _toolBar->addAction(_shapes);
    addToolBar(Qt::LeftToolBarArea, _toolBar);
    _undo->setIcon(toolIcon(ToolSign::undo));
    _redo->setIcon(toolIcon(ToolSign::redo));
    _brushBar = new BrushBar(_brush, *_tools, _undo, _redo);
    addToolBar(Qt::TopToolBarArea, _brushBar);
    // Others' come behind it, whenever they were made.
    for (QToolBar* other : findChildren<QToolBar*>(Qt::FindDirectChildrenOnly)) {
        if (other == _brushBar || other == _toolBar)
            continue;
        other->setMovable(false);
        addToolBar(Qt::TopToolBarArea, other);
    }

    // In the menus they would stand beside some words only.
    for (QAction* action : _toolBar->actions() + _brushBar->actions())
        action->setIconVisibleInMenu(false);

    connect(_commands, &Commands::keysChanged, this, &MainWindow::tellKeys);

    _fill = new FillPointer(this);
    connect(_fill, &FillPointer::fillAt, this, &MainWindow::fillAt);
    connect(_pointer, &CanvasPointer::tapped, this, [this](QPointF at) {
        if (_tools->tool() == Tool::fill)
            fillAt(at);
    });
    connect(&_pointer->picker(), &ColorPicker::onChanged, this, [this](bool picking) {
        if (!picking)
            _tools->endPick();
    });
    using Kind = SelectionTool::Kind;
    connect(_selectionTool, &SelectionTool::kindChanged, this, [this] {
        const Kind kind = _selectionTool->kind();
        kind == Kind::none ? _tools->endSelecting()
                           : _tools->choose(kind == Kind::lasso ? Tool::lasso : Tool::rectangle);
    });
    connect(_presets, &PresetBrowser::aboutToUseBrush, _tools, &Tools::brushWillBeChosen);
    connect(_presets, &PresetBrowser::chosenByPointer, _tools, &Tools::brushWasChosen);
    connect(_tools, &Tools::changed, this, &MainWindow::showTool);
    showTool(_tools->tool());
}

// By their tips, as the bars show no words.
void MainWindow::tellKeys() {
    for (QAction* action : _toolBar->actions() + _brushBar->actions()) {
        if (action->text().isEmpty())
            continue;
        QString tip = action == _shapes
                          ? tr("Strokes become the line, polygon, ellipse, arc or arrow they are meant as")
                          : plain(action->text());
        if (!action->shortcut().isEmpty())
            tip += QStringLiteral(" (%1)").arg(action->shortcut().toString(QKeySequence::NativeText));
        action->setToolTip(tip);
    }
}

void MainWindow::showTool(Tool tool) {
    for (const auto& [of, action] : _toolActions)
        action->setChecked(of == tool);
    using Kind = SelectionTool::Kind;
    _selectionTool->setKind(tool == Tool::rectangle ? Kind::rectangle
                            : tool == Tool::lasso   ? Kind::lasso
                                                    : Kind::none);
    const bool draws = paints(tool) && tool != Tool::fill;
    _fill->setOn(tool == Tool::fill);
    _lines->setOn(draws);
    _pointer->setPaints(tool != Tool::fill);
    _pointer->picker().setOn(tool == Tool::pick);
}

void MainWindow::fillAt(QPointF viewPoint) {
    if (!view())
        return;
    finishEdits();
    const QPointF at = _viewport->bufferPoint(viewPoint);
    const QColor color = _brush.value(BrushKey::renderColor).value<ESColor>().toQColor();
    switch (fillCanvas(*view(), QPoint(int(std::floor(at.x())), int(std::floor(at.y()))), color,
                       _tools->tolerance(), _selection->area())) {
        case FillOutcome::layerHidden:
            return _refusal.show(tr("This layer is hidden: nothing would be seen of it"), kMessageTime);
        case FillOutcome::failed:
            return _refusal.show(tr("There is not enough memory to fill this"), kMessageTime);
        case FillOutcome::filled:
        case FillOutcome::nothingToFill:
            return;
    }
}

}  // namespace dabcanvas::dabpainter
