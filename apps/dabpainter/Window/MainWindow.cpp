// SPDX-License-Identifier: MIT
// The window itself: its parts, and what it remembers.
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
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QStatusBar>
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
#include "Selection/PictureMime.h"
#include "Selection/SelectionEditor.h"
#include "Selection/SelectionTool.h"
#include "Tools/Tools.h"
#include "Viewport/BrushCursor.h"
#include "Viewport/CanvasPointer.h"
#include "Viewport/CanvasStatus.h"
#include "Viewport/CanvasViewport.h"
#include "Viewport/ColorPicker.h"
#include "Viewport/PulledString.h"
#include "Viewport/SizeDrag.h"
#include "Viewport/StraightLines.h"
#include "Viewport/SymmetryGuide.h"
#include "Window/Commands.h"
#include "Window/MemoryWatch.h"
#include "Window/RecentFiles.h"
#include "Window/Theme.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr int kStateVersion = 4;
constexpr int kMessageTime = 2500;  // milliseconds

void setIfOther(QSettings& settings, const QString& name, const QVariant& value) {
    if (settings.value(name) != value)
        settings.setValue(name, value);
}

bool endsTyping(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter || event.key() == Qt::Key_Escape;
}

// What does not fit into a low window scrolls, instead of making the window high.
QWidget* scrolled(QWidget* panel) {
    auto* scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidget(panel);
    scroll->setMinimumWidth(panel->minimumSizeHint().width() +
                            scroll->verticalScrollBar()->sizeHint().width());
    return scroll;
}

}  // namespace

MainWindow::MainWindow(QSettings& settings, Prompts prompts, PresetFolders folders, const QString& copies)
    : _settings(settings),
      _prompts(std::move(prompts)),
      _left(copies),
      _autosave(new Autosave(_document, copies, this)),
      _commands(new Commands(*this)),
      _recent(new RecentFiles(this)),
      _theme(new Theme(this)),
      _viewport(new CanvasViewport),
      _floatHint(*statusBar()),
      _refusal(*statusBar()) {
    _theme->setChoice(_settings.theme());
    auto* cursor = new BrushCursor(_brush, *_viewport);
    _pointer = new CanvasPointer(*_viewport, *cursor, _brush);
    setCentralWidget(_viewport);
    makeColourDock(folders);
    _presets = new PresetBrowser(_brush, _prompts, std::move(folders), [this] { return _pointer->isIdle(); });
    _presetDock = addDock(tr("Brushes"), QStringLiteral("presetDock"), _presets);
    _panel = new BrushPanel(_brush, _prompts);
    _dock = addDock(tr("Brush settings"), QStringLiteral("brushDock"), _panel);
    _layers = new LayerPanel;
    _layerDock = addDock(tr("Layers"), QStringLiteral("layerDock"), scrolled(_layers));
    tabifyDockWidget(_layerDock, _dock);
    _dock->raise();
    resizeDocks({_colourDock, _presetDock, _dock}, {3, 3, 4}, Qt::Vertical);
    _symmetry = new SymmetryGuide(*_viewport);
    _string = new PulledString(*_viewport, *_pointer);
    _status = new CanvasStatus(*statusBar(), *_viewport, *_pointer);
    setAcceptDrops(true);

    _lines = new StraightLines(*_viewport);
    makeSelection();  // which hears of presses before those do, and after held keys
    makeFileMenu();
    makeEditMenu();
    makeSelectMenu();
    makeCanvasMenu();
    makeToolMenu();
    makeBrushMenu();
    makeViewMenu();
    makeRecordingMenu();
    makeHelpMenu();
    new SizeDrag(*_viewport, *cursor, _brush, *_sizing);
    makeToolBars();
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
    connect(_layers, &LayerPanel::activeChanged, this, [this] { _refusal.end(); });
    connect(_panel, &BrushPanel::swapColors, this, [this] { swapColors(_brush); });
    connect(_panel, &BrushPanel::eyedropper, this, [this] { _tools->choose(Tool::pick); });
    connect(_pointer, &CanvasPointer::noShapeFound, this,
            [this] { _refusal.show(tr("No shape was recognised"), kMessageTime); });
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
    _settings.setBusy([this] { return view() && view()->isDrawing(); });
    connect(&_brush, &BrushModel::changed, this, [this](BrushKey key) {
        _unwritten.insert(key);
        _settings.noteChange();
    });
    connect(_commands, &Commands::keysChanged, &_settings, &PainterSettings::noteChange);
    connect(_recent, &RecentFiles::changed, &_settings, &PainterSettings::noteChange);
    connect(_recent, &RecentFiles::chosen, this, [this](const QString& path) {
        if (mayDiscard())
            openImage(path);
    });
    connect(_tools, &Tools::toleranceChanged, &_settings, &PainterSettings::setTolerance);
    connect(_presets, &PresetBrowser::stateChanged, &_settings, &PainterSettings::noteChange);
    connect(_panel, &BrushPanel::stateChanged, &_settings, &PainterSettings::noteChange);
}

MainWindow::~MainWindow() {
    _session.stop();
    _document.end();
    _selection->setCanvas(nullptr);
    delete _selectionTool;
    delete _autosave;  // with its copy, while there is a document
    _brush.attach(nullptr);
    // While this is still a window that their last signals can reach; the pointer goes before what it
    // watches.
    delete _pointer;
    for (QDockWidget* dock : {_dock, _layerDock, _presetDock, _colourDock}) {
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

// ---- What they do

void MainWindow::stepHistory(dabcanvas::StepPicture (QDDrawCanvas::*step)()) {
    finishEdits();
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
    if (event->key() == Qt::Key_Escape && _viewport->hasFocus() && isFullScreen())
        return toggleFullScreen();
    activateWindow();
    _viewport->setFocus();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    finishEdits();
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
    const QMimeData& dragged = *event->mimeData();
    if (!event->source() && (!brushFilesOf(dragged).isEmpty() || hasPicture(dragged)))
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    const QStringList brushes = brushFilesOf(*event->mimeData());
    if (brushes.isEmpty())
        placePicture(*event->mimeData());
    else
        _presets->importFiles(brushes);
}

void MainWindow::readState() {
    QSettings& file = _settings.file();
    if (!restoreGeometry(file.value(QStringLiteral("window/geometry")).toByteArray()))
        resize(QGuiApplication::primaryScreen()->availableSize().boundedTo(QSize(1440, 900)));
    restoreState(file.value(QStringLiteral("window/state")).toByteArray(), kStateVersion);
    _panel->readState(file);
    _commands->read(file);
    tellKeys();
    _recent->read(file);
}

void MainWindow::writeState(QSettings& file) {
    if (!isFullScreen()) {  // a window that comes up without its menu bar would puzzle
        setIfOther(file, QStringLiteral("window/geometry"), saveGeometry());
        setIfOther(file, QStringLiteral("window/state"), saveState(kStateVersion));
    }
    _panel->writeState(file);
    _commands->write(file);
    _recent->write(file);
    if (_brushRead) {
        writeBrush(file, _brush, std::exchange(_unwritten, {}));
        _presets->writeState(file);
    }
}

}  // namespace dabcanvas::dabpainter
