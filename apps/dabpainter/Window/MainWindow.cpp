// SPDX-License-Identifier: MIT
// The window itself: menus, panels and what it remembers.
#include "Window/MainWindow.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QDragEnterEvent>
#include <QInputDialog>
#include <QKeyEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QSettings>
#include <QStatusBar>
#include <QToolBar>
#include <utility>

#include "Brush/BrushCommands.h"
#include "Brush/BrushDrops.h"
#include "Brush/BrushPanel.h"
#include "Brush/BrushStorage.h"
#include "Documents/Autosave.h"
#include "History/ImagesUndoManager.h"
#include "Layers/LayerPanel.h"
#include "Presets/PresetBrowser.h"
#include "QDEAGLView/QDDrawView.h"
#include "Viewport/BrushCursor.h"
#include "Viewport/CanvasPointer.h"
#include "Viewport/CanvasStatus.h"
#include "Viewport/CanvasViewport.h"
#include "Window/MemoryWatch.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr double kZoomStep = 1.25;
constexpr int kStateVersion = 3;
constexpr int kMessageTime = 2500;  // milliseconds

QKeySequence key(const char* text) {
    return QKeySequence(QString::fromLatin1(text));
}

void setIfOther(QSettings& settings, const QString& name, const QVariant& value) {
    if (settings.value(name) != value)
        settings.setValue(name, value);
}

bool endsTyping(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter || event.key() == Qt::Key_Escape;
}

}  // namespace

MainWindow::MainWindow(QSettings& settings, Prompts prompts, PresetFolders folders, const QString& copies)
    : _settings(settings),
      _prompts(std::move(prompts)),
      _left(copies),
      _autosave(new Autosave(_document, copies, this)),
      _viewport(new CanvasViewport) {
    auto* cursor = new BrushCursor(_brush, *_viewport);
    _pointer = new CanvasPointer(*_viewport, *cursor, _brush);
    setCentralWidget(_viewport);
    _presets = new PresetBrowser(_brush, _prompts, std::move(folders), [this] { return _pointer->isIdle(); });
    _presetDock = addDock(tr("Brushes"), QStringLiteral("presetDock"), _presets);
    _panel = new BrushPanel(_brush, _prompts);
    _dock = addDock(tr("Brush settings"), QStringLiteral("brushDock"), _panel);
    _layers = new LayerPanel;
    _layerDock = addDock(tr("Layers"), QStringLiteral("layerDock"), _layers);
    tabifyDockWidget(_layerDock, _dock);
    _dock->raise();
    resizeDocks({_presetDock, _dock}, {2, 5}, Qt::Vertical);
    _status = new CanvasStatus(*statusBar(), *_viewport, *_pointer);
    setAcceptDrops(true);

    makeFileMenu();
    makeEditMenu();
    makeCanvasMenu();
    makeBrushMenu();
    makeViewMenu();
    showDocument();
    readState();
    connectParts();
    _viewport->setFocus();
}

void MainWindow::connectParts() {
    connect(&_document, &Document::changed, this, &MainWindow::showDocument);
    connect(_autosave, &Autosave::failed, this,
            [this](const QString& fault) { statusBar()->showMessage(fault, 4 * kMessageTime); });
    connect(&_document, &Document::notKept, this, [this] {
        statusBar()->showMessage(tr("The disk takes no undo steps: save, as a crash would lose this picture"),
                                 4 * kMessageTime);
    });
    connect(_layers, &LayerPanel::aboutToEdit, _pointer, &CanvasPointer::endStroke);
    connect(_layers, &LayerPanel::activeChanged, this, &MainWindow::choosePaper);
    connect(_panel, &BrushPanel::swapColors, this, [this] { swapColors(_brush); });
    connect(_panel, &BrushPanel::eyedropper, this, [this] { _pointer->setPicking(true); });
    connect(_pointer, &CanvasPointer::picked, this, [this](const QColor& color) {
        _brush.setValue(BrushKey::renderColor, QVariant::fromValue(ESColor(color)));
    });
    connect(_pointer, &CanvasPointer::noShapeFound, this,
            [this] { statusBar()->showMessage(tr("No shape was recognised"), kMessageTime); });
    connect(_presets, &PresetBrowser::chosenByPointer, _viewport, qOverload<>(&QWidget::setFocus));
    connect(_presets, &PresetBrowser::aboutToUseBrush, _pointer, &CanvasPointer::endStroke);
    connect(new MemoryWatch(this), &MemoryWatch::runsShort, this, [this] {
        if (view())
            view()->undoManager().didReceiveMemoryWarning();
    });
    connect(&_settings, &PainterSettings::undoStepsChanged, &_document, &Document::setUndoSteps);
    connect(&_settings, &PainterSettings::touchChanged, _pointer, &CanvasPointer::setTouch);
    _document.setUndoSteps(_settings.undoSteps());
    _pointer->setTouch(_settings.touch());

    _settings.addWriter([this](QSettings& file) { writeState(file); });
    connect(&_brush, &BrushModel::changed, this, [this](BrushKey key) {
        _unwritten.insert(key);
        _settings.noteChange();
    });
    connect(_presets, &PresetBrowser::stateChanged, &_settings, &PainterSettings::noteChange);
    connect(_panel, &BrushPanel::stateChanged, &_settings, &PainterSettings::noteChange);
}

MainWindow::~MainWindow() {
    _document.end();
    delete _autosave;  // with its copy, while there is a document
    _brush.attach(nullptr);
    // While this is still a window that their last signals can reach; the pointer goes before what it
    // watches.
    delete _pointer;
    for (QDockWidget* dock : {_dock, _layerDock, _presetDock}) {
        disconnect(dock, &QDockWidget::visibilityChanged, nullptr, nullptr);  // which looks at both
        delete dock;
    }
    delete _viewport;
}

QDDrawView* MainWindow::view() const {
    return _viewport->view();
}

QDockWidget* MainWindow::addDock(const QString& title, const QString& name, QWidget* widget) {
    auto* dock = new QDockWidget(title);
    dock->setObjectName(name);
    dock->setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
    dock->setWidget(widget);
    addDockWidget(Qt::RightDockWidgetArea, dock);
    dock->installEventFilter(this);
    return dock;
}

// ---- Menus

QAction* MainWindow::addTo(QMenu* menu, const QString& text, const QList<QKeySequence>& keys,
                           const std::function<void()>& act) {
    auto* action = new QAction(text, this);
    action->setShortcuts(keys);
    connect(action, &QAction::triggered, this, act);
    addAction(action);  // so that the keys work while the menu bar is hidden
    menu->addAction(action);
    return action;
}

template <typename Value>
void MainWindow::addChoices(QMenu* menu, const QList<std::pair<QString, Value>>& rows, Value now,
                            const std::function<void(Value)>& choose) {
    auto* group = new QActionGroup(menu);
    for (const auto& [text, value] : rows) {
        QAction* action = group->addAction(text);
        action->setCheckable(true);
        action->setChecked(value == now);
        connect(action, &QAction::triggered, this, [choose, value = value] { choose(value); });
        menu->addAction(action);
    }
}

void MainWindow::makeFileMenu() {
    QMenu* menu = menuBar()->addMenu(tr("&File"));
    addTo(menu, tr("&New…"), {QKeySequence::New}, [this] { newCanvas(); });
    addTo(menu, tr("&Open…"), {QKeySequence::Open}, [this] { open(); });
    addTo(menu, tr("&Place Image…"), {}, [this] { place(); });
    addTo(menu, tr("&Recover Pictures…"), {}, [this] {
        if (!offerLeftPictures())
            statusBar()->showMessage(tr("No run has left a picture"), kMessageTime);
    });
    menu->addSeparator();
    addTo(menu, tr("&Save"), {QKeySequence::Save}, [this] { save(); });
    addTo(menu, tr("Save &As…"), {key("Ctrl+Shift+S")}, [this] { saveAs(); });
    menu->addSeparator();
    addTo(menu, tr("&Quit"), {key("Ctrl+Q")}, [this] { close(); });
}

void MainWindow::makeEditMenu() {
    QMenu* menu = menuBar()->addMenu(tr("&Edit"));
    _undo =
        addTo(menu, tr("&Undo"), {QKeySequence(tr("Ctrl+Z"))}, [this] { stepHistory(&QDDrawCanvas::undo); });
    _redo = addTo(menu, tr("&Redo"), {QKeySequence(tr("Ctrl+Shift+Z")), QKeySequence(tr("Ctrl+Y"))},
                  [this] { stepHistory(&QDDrawCanvas::redo); });
    menu->addSeparator();
    addTo(menu, tr("Undo &Steps…"), {}, [this] { askUndoSteps(); });
    auto* buttons = new QToolBar(tr("History"));
    buttons->setObjectName(QStringLiteral("historyBar"));
    buttons->setToolButtonStyle(Qt::ToolButtonTextOnly);
    buttons->addAction(_undo);
    buttons->addAction(_redo);
    addToolBar(buttons);
    _undo->setEnabled(false);
    _redo->setEnabled(false);
}

void MainWindow::makeCanvasMenu() {
    QMenu* menu = menuBar()->addMenu(tr("&Canvas"));
    addTo(menu, tr("&Clear"), {key("Delete")}, [this] { clearCanvas(); });
    // The present picture stays where it is: moving it could fail for want of memory.
    addChoices<SurfaceKind>(menu->addMenu(tr("&Paint with")),
                            {{tr("&Automatic"), SurfaceKind::automatic},
                             {tr("&Graphics Card"), SurfaceKind::gpu},
                             {tr("&Processor"), SurfaceKind::processor}},
                            _settings.surface(), [this](SurfaceKind kind) {
                                _settings.setSurface(kind);
                                statusBar()->showMessage(
                                    tr("Holds for pictures that are made or opened from now on"),
                                    2 * kMessageTime);
                            });
    addChoices<TouchPolicy>(menu->addMenu(tr("&Fingers")),
                            {{tr("Move the Canvas Once a &Pen Was Seen"), TouchPolicy::pensOnceSeen},
                             {tr("Always &Move the Canvas"), TouchPolicy::pensOnly},
                             {tr("Al&ways Paint"), TouchPolicy::fingersPaint}},
                            _settings.touch(), [this](TouchPolicy policy) { _settings.setTouch(policy); });
}

void MainWindow::makeBrushMenu() {
    QMenu* menu = menuBar()->addMenu(tr("&Brush"));
    addTo(menu, tr("&Smaller"), {key("[")}, [this] { stepRadius(_brush, -1); });
    addTo(menu, tr("&Larger"), {key("]")}, [this] { stepRadius(_brush, 1); });
    // What Shift makes of the bracket keys depends on the keyboard.
    addTo(menu, tr("So&fter"), {key("{"), key("Shift+[")}, [this] { stepHardness(_brush, -1); });
    addTo(menu, tr("&Harder"), {key("}"), key("Shift+]")}, [this] { stepHardness(_brush, 1); });
    QMenu* opacity = menu->addMenu(tr("&Opacity"));
    for (int tenth = 1; tenth <= 10; ++tenth) {
        addTo(opacity, tr("%1 %").arg(tenth * 10), {QKeySequence(Qt::Key_0 + tenth % 10)},
              [this, tenth] { _brush.setValue(BrushKey::opacity, float(tenth) / 10); });
    }
    menu->addSeparator();
    addTo(menu, tr("S&wap Colours"), {key("X")}, [this] { swapColors(_brush); });
    addTo(menu, tr("&Default Colours"), {key("D")}, [this] { setDefaultColors(_brush); });
    QAction* pick = addTo(menu, tr("&Eyedropper"), {key("I")}, [] {});
    pick->setCheckable(true);
    connect(pick, &QAction::toggled, _pointer, &CanvasPointer::setPicking);
    connect(_pointer, &CanvasPointer::pickingChanged, pick, &QAction::setChecked);
    menu->addSeparator();
    _shapes = addTo(menu, tr("Reco&gnise Shapes"), {key("Shift+R")}, [] {});
    _shapes->setCheckable(true);
    _shapes->setIconText(tr("Shapes"));
    _shapes->setToolTip(
        tr("Strokes become the line, polygon, ellipse, arc or arrow they are meant as (Shift+R)"));
    connect(_shapes, &QAction::toggled, this, &MainWindow::recogniseShapes);
    auto* buttons = new QToolBar(tr("Shapes"));
    buttons->setObjectName(QStringLiteral("shapesBar"));
    buttons->setToolButtonStyle(Qt::ToolButtonTextOnly);
    buttons->addAction(_shapes);
    addToolBar(buttons);
    menu->addSeparator();
    menu->addAction(_presets->saveAction());
    menu->addAction(_presets->importAction());
    QAction* reset = addTo(menu, tr("&Reset All Settings"), {}, [this] { _brush.resetAll(); });
    connect(&_brush, &BrushModel::presetChanged, reset, [this, reset] {
        reset->setText(_brush.preset() ? tr("&Reset to Preset") : tr("&Reset All Settings"));
    });
}

void MainWindow::makeViewMenu() {
    QMenu* menu = menuBar()->addMenu(tr("&View"));
    addTo(menu, tr("Zoom &In"), {key("Ctrl++"), key("Ctrl+=")}, [this] { zoomBy(kZoomStep); });
    addTo(menu, tr("Zoom &Out"), {key("Ctrl+-")}, [this] { zoomBy(1 / kZoomStep); });
    addTo(menu, tr("&Actual Pixels"), {key("Ctrl+1")}, [this] { zoomBy(1 / _viewport->zoom()); });
    addTo(menu, tr("&Whole Canvas"), {key("Ctrl+0")}, [this] {
        _pointer->endStroke();
        _viewport->fit();
    });
    menu->addSeparator();
    const auto isAnyShown = [this] {
        return !_dock->isHidden() || !_presetDock->isHidden() || !_layerDock->isHidden();
    };
    QAction* panel = addTo(menu, tr("&Panels"), {}, [this, isAnyShown] {
        const bool show = !isAnyShown();
        for (QDockWidget* dock : {_presetDock, _layerDock, _dock})
            dock->setVisible(show);
    });
    panel->setCheckable(true);
    for (const QDockWidget* dock : {_presetDock, _layerDock, _dock})
        connect(dock, &QDockWidget::visibilityChanged, panel,
                [panel, isAnyShown] { panel->setChecked(isAnyShown()); });
    // On the canvas alone: elsewhere the tabulator goes from field to field.
    removeAction(panel);
    _viewport->addAction(panel);
    panel->setShortcut(Qt::Key_Tab);
    panel->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    addTo(menu, tr("&Full Screen"), {key("F11")}, [this] { toggleFullScreen(); });
}

// ---- What they do

void MainWindow::stepHistory(dabcanvas::StepPicture (QDDrawCanvas::*step)()) {
    _pointer->endStroke();
    if (view())
        (view()->*step)();
}

void MainWindow::askUndoSteps() {
    bool accepted = false;
    const int steps =
        QInputDialog::getInt(this, tr("Undo Steps"), tr("Steps that can be undone:"), _settings.undoSteps(),
                             1, PainterSettings::kMostUndoSteps, 1, &accepted);
    if (accepted)
        _settings.setUndoSteps(steps);
}

void MainWindow::recogniseShapes(bool on) {
    _pointer->endStroke();
    if (view())
        view()->setEnableRecogition(on);
    _status->showShapes(on);
    statusBar()->showMessage(
        on ? tr("Strokes become shapes; what is none is taken away") : tr("Strokes stay as they are drawn"),
        kMessageTime);
}

// About the pointer, where it is on the canvas.
void MainWindow::zoomBy(double factor) {
    _pointer->endStroke();
    _viewport->zoomAbout(_viewport->zoom() * factor, _pointer->place());
}

void MainWindow::toggleFullScreen() {
    if (isFullScreen()) {
        menuBar()->show();
        _wasMaximized ? showMaximized() : showNormal();
    } else {
        _wasMaximized = isMaximized();
        menuBar()->hide();
        showFullScreen();
    }
}

// ---- Window

void MainWindow::showDocument() {
    setWindowTitle(QStringLiteral("%1[*] – Dabpainter").arg(_document.name()));
    setWindowModified(_document.isModified());
}

bool MainWindow::event(QEvent* event) {
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move ||
        event->type() == QEvent::WindowStateChange)
        _settings.noteChange();
    return QMainWindow::event(event);
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::Resize:
        case QEvent::Move:
        case QEvent::ShowToParent:
        case QEvent::HideToParent:
            _settings.noteChange();
            break;
        case QEvent::KeyPress:
            // A dock of its own is a window, and its keys do not come to this one.
            if (static_cast<QDockWidget*>(watched)->isFloating()) {
                keyPressEvent(static_cast<QKeyEvent*>(event));
                return event->isAccepted();
            }
            break;
        default:
            break;
    }
    return QMainWindow::eventFilter(watched, event);
}

// Of the keys that nobody took, those that end typing give the keyboard back to the canvas.
void MainWindow::keyPressEvent(QKeyEvent* event) {
    if (!endsTyping(*event))
        return QMainWindow::keyPressEvent(event);
    activateWindow();
    _viewport->setFocus();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    _pointer->endStroke();
    if (!mayDiscard()) {
        event->ignore();
        return;
    }
    if (isFullScreen())
        toggleFullScreen();
    _settings.write();
    event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    // What is dragged out of the list is here already.
    if (!event->source() && !brushFilesOf(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    _presets->importFiles(brushFilesOf(*event->mimeData()));
}

void MainWindow::readState() {
    QSettings& file = _settings.file();
    if (!restoreGeometry(file.value(QStringLiteral("window/geometry")).toByteArray()))
        resize(QGuiApplication::primaryScreen()->availableSize().boundedTo(QSize(1440, 900)));
    restoreState(file.value(QStringLiteral("window/state")).toByteArray(), kStateVersion);
    _panel->readState(file);
}

void MainWindow::writeState(QSettings& file) {
    if (!isFullScreen()) {  // a window that comes up without its menu bar would puzzle
        setIfOther(file, QStringLiteral("window/geometry"), saveGeometry());
        setIfOther(file, QStringLiteral("window/state"), saveState(kStateVersion));
    }
    _panel->writeState(file);
    if (_brushRead) {
        writeBrush(file, _brush, std::exchange(_unwritten, {}));
        _presets->writeState(file);
    }
}

}  // namespace dabcanvas::dabpainter
