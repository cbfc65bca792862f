// SPDX-License-Identifier: MIT
// The window itself: menus, panel, status bar and what it remembers.
#include "MainWindow.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QDockWidget>
#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QSettings>
#include <QStatusBar>
#include <QToolBar>
#include <algorithm>
#include <cmath>
#include <utility>

#include "BrushCursor.h"
#include "BrushDrops.h"
#include "BrushPanel.h"
#include "BrushStorage.h"
#include "CanvasPointer.h"
#include "CanvasViewport.h"
#include "History/ImagesUndoManager.h"
#include "MemoryWatch.h"
#include "PresetBrowser.h"
#include "QDEAGLView/QDDrawView.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr double kZoomStep = 1.25;
constexpr int kStateVersion = 2;
constexpr int kMessageTime = 2500;  // milliseconds
constexpr int kWriteDelay = 1000;   // milliseconds from a change of the settings to their file
constexpr int kMostOldSessions = 4;

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

MainWindow::MainWindow(QSettings& settings, Prompts prompts, PresetFolders folders, const QString& sessions)
    : _settings(settings),
      _prompts(std::move(prompts)),
      _sessions(sessions),
      _session(sessions),
      _viewport(new CanvasViewport) {
    auto* cursor = new BrushCursor(_brush, *_viewport);
    _pointer = new CanvasPointer(*_viewport, *cursor, _brush);
    setCentralWidget(_viewport);
    _presets = new PresetBrowser(_brush, _prompts, std::move(folders), [this] { return _pointer->isIdle(); });
    _presetDock = addDock(tr("Brushes"), QStringLiteral("presetDock"), _presets);
    _panel = new BrushPanel(_brush, _prompts);
    _dock = addDock(tr("Brush settings"), QStringLiteral("brushDock"), _panel);
    resizeDocks({_presetDock, _dock}, {2, 5}, Qt::Vertical);
    setAcceptDrops(true);

    makeFileMenu();
    makeEditMenu();
    makeCanvasMenu();
    makeBrushMenu();
    makeViewMenu();
    makeStatusBar();

    connect(_panel, &BrushPanel::swapColors, this, &MainWindow::swapColors);
    connect(_panel, &BrushPanel::eyedropper, this, [this] { _pointer->setPicking(true); });
    connect(_pointer, &CanvasPointer::picked, this, [this](const QColor& color) {
        _brush.setValue(BrushKey::renderColor, QVariant::fromValue(ESColor(color)));
    });
    connect(_pointer, &CanvasPointer::strokeEnded, this, &MainWindow::markChanged);
    connect(_pointer, &CanvasPointer::noShapeFound, this,
            [this] { statusBar()->showMessage(tr("No shape was recognised"), kMessageTime); });
    connect(_pointer, &CanvasPointer::moved, this, &MainWindow::showPosition);
    connect(_pointer, &CanvasPointer::left, _positionLabel, &QLabel::clear);
    connect(_pointer, &CanvasPointer::pressureChanged, this, [this](float pressure) {
        _pressureLabel->setText(pressure < 0 ? QString()
                                             : tr("Pressure %1 %").arg(std::lround(pressure * 100)));
    });
    connect(_viewport, &CanvasViewport::zoomChanged, this, &MainWindow::showCanvasFacts);
    connect(_presets, &PresetBrowser::chosenByPointer, _viewport, qOverload<>(&QWidget::setFocus));
    setPath(QString());
    readState();
    _writeTimer.setSingleShot(true);
    _writeTimer.setInterval(kWriteDelay);
    connect(&_writeTimer, &QTimer::timeout, this, [this] {
        // Nothing slows down a stroke.
        _pointer->isIdle() ? writeState() : noteChange();
    });
    connect(&_brush, &BrushModel::changed, this, [this](BrushKey key) {
        _unwritten.insert(key);
        noteChange();
    });
    connect(new MemoryWatch(this), &MemoryWatch::runsShort, this, [this] {
        if (view() != nullptr) {
            view()->undoManager().didReceiveMemoryWarning();
        }
    });
    connect(_presets, &PresetBrowser::stateChanged, this, &MainWindow::noteChange);
    connect(_panel, &BrushPanel::stateChanged, this, &MainWindow::noteChange);
    _viewport->setFocus();
}

MainWindow::~MainWindow() {
    _brush.attach(nullptr);
    if (view())
        view()->setDelegate(nullptr);
    // While this is still a window that their last signals can reach; the pointer goes before what it
    // watches.
    delete _pointer;
    for (QDockWidget* dock : {_dock, _presetDock}) {
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

void MainWindow::makeFileMenu() {
    QMenu* menu = menuBar()->addMenu(tr("&File"));
    addTo(menu, tr("&New…"), {QKeySequence::New}, [this] { newCanvas(); });
    addTo(menu, tr("&Open…"), {QKeySequence::Open}, [this] { open(); });
    addTo(menu, tr("&Place Image…"), {}, [this] { place(); });
    menu->addSeparator();
    addTo(menu, tr("&Save"), {QKeySequence::Save}, [this] { save(); });
    addTo(menu, tr("Save &As…"), {key("Ctrl+Shift+S")}, [this] { saveAs(); });
    menu->addSeparator();
    addTo(menu, tr("&Quit"), {key("Ctrl+Q")}, [this] { close(); });
}

void MainWindow::makeCanvasMenu() {
    QMenu* menu = menuBar()->addMenu(tr("&Canvas"));
    addTo(menu, tr("&Clear"), {key("Delete")}, [this] { clearCanvas(); });
    addSurfaces(*menu->addMenu(tr("&Paint with")));
}

void MainWindow::makeBrushMenu() {
    QMenu* menu = menuBar()->addMenu(tr("&Brush"));
    addTo(menu, tr("&Smaller"), {key("[")}, [this] { stepRadius(-1); });
    addTo(menu, tr("&Larger"), {key("]")}, [this] { stepRadius(1); });
    // What Shift makes of the bracket keys depends on the keyboard.
    addTo(menu, tr("So&fter"), {key("{"), key("Shift+[")}, [this] { stepHardness(-1); });
    addTo(menu, tr("&Harder"), {key("}"), key("Shift+]")}, [this] { stepHardness(1); });
    QMenu* opacity = menu->addMenu(tr("&Opacity"));
    for (int tenth = 1; tenth <= 10; ++tenth) {
        addTo(opacity, tr("%1 %").arg(tenth * 10), {QKeySequence(Qt::Key_0 + tenth % 10)},
              [this, tenth] { _brush.setValue(BrushKey::opacity, float(tenth) / 10); });
    }
    menu->addSeparator();
    addTo(menu, tr("S&wap Colours"), {key("X")}, [this] { swapColors(); });
    addTo(menu, tr("&Default Colours"), {key("D")}, [this] { defaultColors(); });
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
    const auto zoomBy = [this](double factor) {
        if (_pointer->isIdle())
            _viewport->setZoom(_viewport->zoom() * factor);
    };
    addTo(menu, tr("Zoom &In"), {key("Ctrl++"), key("Ctrl+=")}, [zoomBy] { zoomBy(kZoomStep); });
    addTo(menu, tr("Zoom &Out"), {key("Ctrl+-")}, [zoomBy] { zoomBy(1 / kZoomStep); });
    addTo(menu, tr("&Actual Pixels"), {key("Ctrl+1")}, [this] {
        if (_pointer->isIdle())
            _viewport->setZoom(1);
    });
    addTo(menu, tr("&Whole Canvas"), {key("Ctrl+0")}, [this] {
        if (_pointer->isIdle())
            _viewport->fit();
    });
    menu->addSeparator();
    const auto isAnyShown = [this] { return !_dock->isHidden() || !_presetDock->isHidden(); };
    QAction* panel = addTo(menu, tr("Brush &Panels"), {}, [this, isAnyShown] {
        const bool show = !isAnyShown();
        _presetDock->setVisible(show);
        _dock->setVisible(show);
    });
    panel->setCheckable(true);
    for (const QDockWidget* dock : {_presetDock, _dock})
        connect(dock, &QDockWidget::visibilityChanged, panel,
                [panel, isAnyShown] { panel->setChecked(isAnyShown()); });
    // On the canvas alone: elsewhere the tabulator goes from field to field.
    removeAction(panel);
    _viewport->addAction(panel);
    panel->setShortcut(Qt::Key_Tab);
    panel->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    addTo(menu, tr("&Full Screen"), {key("F11")}, [this] { toggleFullScreen(); });
}

// ---- Brush

void MainWindow::stepRadius(int direction) {
    const float radius = _brush.value(BrushKey::radius).toFloat();
    // A tenth; on the way down of what is come to, so that there and back is the same size.
    const float step = std::max(1.0f, std::round(radius / (direction > 0 ? 10 : 11)));
    _brush.setValue(BrushKey::radius, radius + float(direction) * step);
}

void MainWindow::stepHardness(int direction) {
    const float hardness = _brush.value(BrushKey::hardness).toFloat();
    _brush.setValue(BrushKey::hardness, std::round((hardness + 0.1f * float(direction)) * 100) / 100);
}

void MainWindow::swapColors() {
    const QVariant color = _brush.value(BrushKey::renderColor);
    _brush.setValue(BrushKey::renderColor, _brush.value(BrushKey::backRenderColor));
    _brush.setValue(BrushKey::backRenderColor, color);
}

// Black and white, so that swapping them makes a difference.
void MainWindow::defaultColors() {
    _brush.setValue(BrushKey::renderColor, QVariant::fromValue(ESColor::rgba(0, 0, 0)));
    _brush.setValue(BrushKey::backRenderColor, QVariant::fromValue(ESColor::rgba(1, 1, 1)));
}

void MainWindow::recogniseShapes(bool on) {
    if (view())
        view()->setEnableRecogition(on);
    _shapesLabel->setVisible(on);
    statusBar()->showMessage(
        on ? tr("Strokes become shapes; what is none is taken away") : tr("Strokes stay as they are drawn"),
        kMessageTime);
}

// ---- Window

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

void MainWindow::makeStatusBar() {
    const auto addLabel = [this](int stretch) {
        auto* label = new QLabel;
        label->setContentsMargins(6, 0, 6, 0);
        statusBar()->addWidget(label, stretch);
        return label;
    };
    // Wide enough for what comes, so that nothing moves about.
    const auto wide = [](QLabel* label, const QString& longest) {
        label->setMinimumWidth(label->fontMetrics().horizontalAdvance(longest) + 16);
    };
    _sizeLabel = addLabel(0);
    _zoomLabel = addLabel(0);
    wide(_zoomLabel, QStringLiteral("3200 %"));
    _positionLabel = addLabel(0);
    wide(_positionLabel, QStringLiteral("-16384, -16384"));
    _pressureLabel = addLabel(1);
    _shapesLabel = new QLabel(tr("Shapes"));
    _shapesLabel->setContentsMargins(6, 0, 6, 0);
    _shapesLabel->setVisible(false);
    statusBar()->addPermanentWidget(_shapesLabel);
    _driverLabel = new QLabel;
    _driverLabel->setContentsMargins(6, 0, 6, 0);
    _driverLabel->setToolTip(tr("What paints this picture"));
    statusBar()->addPermanentWidget(_driverLabel);
}

void MainWindow::showPosition(QPointF bufferPoint) {
    _positionLabel->setText(
        QStringLiteral("%1, %2").arg(int(std::floor(bufferPoint.x()))).arg(int(std::floor(bufferPoint.y()))));
}

void MainWindow::showCanvasFacts() {
    const QSize size = view() ? view()->bufferSize().toSize() : QSize();
    _sizeLabel->setText(tr("%1 × %2 px").arg(size.width()).arg(size.height()));
    const double percent = _viewport->zoom() * 100;
    _zoomLabel->setText(QStringLiteral("%1 %").arg(percent, 0, 'f', percent < 10 ? 1 : 0));
}

bool MainWindow::event(QEvent* event) {
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move ||
        event->type() == QEvent::WindowStateChange)
        noteChange();
    return QMainWindow::event(event);
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::Resize:
        case QEvent::Move:
        case QEvent::ShowToParent:
        case QEvent::HideToParent:
            noteChange();
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
    if (!_pointer->isIdle() || !mayDiscard()) {
        event->ignore();
        return;
    }
    if (isFullScreen())
        toggleFullScreen();
    writeState();
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
    if (!restoreGeometry(_settings.value(QStringLiteral("window/geometry")).toByteArray()))
        resize(QGuiApplication::primaryScreen()->availableSize().boundedTo(QSize(1440, 900)));
    restoreState(_settings.value(QStringLiteral("window/state")).toByteArray(), kStateVersion);
    _panel->readState(_settings);
}

void MainWindow::noteChange() {
    if (!_writeTimer.isActive())
        _writeTimer.start();
}

void MainWindow::writeState() {
    _writeTimer.stop();
    if (!isFullScreen()) {  // a window that comes up without its menu bar would puzzle
        setIfOther(_settings, QStringLiteral("window/geometry"), saveGeometry());
        setIfOther(_settings, QStringLiteral("window/state"), saveState(kStateVersion));
    }
    _panel->writeState(_settings);
    if (_brushRead) {
        writeBrush(_settings, _brush, std::exchange(_unwritten, {}));
        _presets->writeState(_settings);
    }
    _settings.sync();
}

void MainWindow::askAboutOldSessions() {
    const auto old = SessionFolder::abandoned(_sessions);
    if (old.folders.size() <= kMostOldSessions)
        return;
    const QString size = locale().formattedDataSize(old.bytes);
    if (_prompts.confirm(
            this, tr("Delete the undo steps of %1 runs that ended unexpectedly?").arg(old.folders.size()),
            tr("They take %1 in \"%2\".").arg(size, QDir::toNativeSeparators(_sessions)), tr("Delete"))) {
        for (const QString& folder : old.folders)
            QDir(folder).removeRecursively();
    }
}

}  // namespace dabcanvas::dabpainter
