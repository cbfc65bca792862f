// SPDX-License-Identifier: MIT
// The window's menus: what can be done, and by which keys.
#include <QAction>
#include <QActionGroup>
#include <QDockWidget>
#include <QMenuBar>
#include <QStatusBar>
#include <algorithm>

#include "Brush/BrushCommands.h"
#include "Canvas/QDDrawCanvas.h"
#include "Presets/PresetBrowser.h"
#include "QDEAGLView/QDDrawView.h"
#include "Viewport/CanvasPointer.h"
#include "Viewport/CanvasViewport.h"
#include "Viewport/ColorPicker.h"
#include "Window/AboutReport.h"
#include "Window/Commands.h"
#include "Window/MainWindow.h"
#include "Window/RecentFiles.h"
#include "Window/ShortcutsDialog.h"
#include "Window/Theme.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr double kZoomStep = 1.25;
constexpr int kMessageTime = 2500;  // milliseconds

}  // namespace

QAction* MainWindow::addTo(QMenu* menu, const char* name, const QString& text,
                           const QList<QKeySequence>& keys, const std::function<void()>& act) {
    QAction* action = _commands->add(QString::fromLatin1(name), plain(menu->title()), text, keys, act);
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
    addTo(menu, "file.new", tr("&New…"), {QKeySequence::New}, [this] { newCanvas(); });
    addTo(menu, "file.open", tr("&Open…"), {QKeySequence::Open}, [this] { open(); });
    _recent->fill(*menu->addMenu(tr("Open Recen&t")));
    addTo(menu, "file.place", tr("&Place Image…"), {}, [this] { place(); });
    addTo(menu, "file.recover", tr("&Recover Pictures…"), {}, [this] {
        if (!offerLeftPictures())
            statusBar()->showMessage(tr("No run has left a picture"), kMessageTime);
    });
    menu->addSeparator();
    addTo(menu, "file.save", tr("&Save"), {QKeySequence::Save}, [this] { save(); });
    addTo(menu, "file.saveAs", tr("Save &As…"), {key("Ctrl+Shift+S")}, [this] { saveAs(); });
    menu->addSeparator();
    addTo(menu, "file.quit", tr("&Quit"), {key("Ctrl+Q")}, [this] { close(); });
}

void MainWindow::makeEditMenu() {
    QMenu* menu = menuBar()->addMenu(tr("&Edit"));
    _undo =
        addTo(menu, "edit.undo", tr("&Undo"), {key("Ctrl+Z")}, [this] { stepHistory(&QDDrawCanvas::undo); });
    _redo = addTo(menu, "edit.redo", tr("&Redo"), {key("Ctrl+Shift+Z"), key("Ctrl+Y")},
                  [this] { stepHistory(&QDDrawCanvas::redo); });
    menu->addSeparator();
    addClipboard(menu);
    addTo(menu, "edit.undoSteps", tr("Undo &Steps…"), {}, [this] { askUndoSteps(); });
    addTo(menu, "edit.shortcuts", tr("&Keys…"), {}, [this] { ShortcutsDialog(*_commands, this).exec(); });
    _undo->setEnabled(false);
    _redo->setEnabled(false);
}

void MainWindow::makeCanvasMenu() {
    QMenu* menu = menuBar()->addMenu(tr("&Canvas"));
    addTo(menu, "canvas.clear", tr("&Clear"), {key("Delete")}, [this] { removeSelected(); });
    addCanvasSizes(menu);
    addSymmetry(menu);
    addPen(menu);
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
    _sizing = _commands->addHeld(QStringLiteral("brush.dragSize"), plain(menu->title()),
                                 tr("Size by Moving the Pointer"), key("F"));
    addTo(menu, "brush.previous", tr("&Previous Brush"), {key("/")}, [this] { _presets->choosePrevious(); });
    addTo(menu, "brush.smaller", tr("&Smaller"), {key("[")}, [this] { stepRadius(_brush, -1); });
    addTo(menu, "brush.larger", tr("&Larger"), {key("]")}, [this] { stepRadius(_brush, 1); });
    // What Shift makes of the bracket keys depends on the keyboard.
    addTo(menu, "brush.softer", tr("So&fter"), {key("{"), key("Shift+[")},
          [this] { stepHardness(_brush, -1); });
    addTo(menu, "brush.harder", tr("&Harder"), {key("}"), key("Shift+]")},
          [this] { stepHardness(_brush, 1); });
    QMenu* opacity = menu->addMenu(tr("&Opacity"));
    for (int tenth = 1; tenth <= 10; ++tenth) {
        addTo(opacity, ("brush.opacity." + std::to_string(tenth)).c_str(), tr("%1 %").arg(tenth * 10),
              {QKeySequence(Qt::Key_0 + tenth % 10)},
              [this, tenth] { _brush.setValue(BrushKey::opacity, float(tenth) / 10); });
    }
    menu->addSeparator();
    addTo(menu, "brush.swapColours", tr("S&wap Colours"), {key("X")}, [this] { swapColors(_brush); });
    addTo(menu, "brush.defaultColours", tr("&Default Colours"), {key("D")},
          [this] { setDefaultColors(_brush); });
    menu->addSeparator();
    const std::initializer_list<std::pair<const char*, QAction*>> files{
        {"brush.save", _presets->saveAction()}, {"brush.import", _presets->importAction()}};
    for (const auto& [name, action] : files) {
        menu->addAction(action);
        _commands->take(QString::fromLatin1(name), plain(menu->title()), action);
    }
    QAction* reset = addTo(menu, "brush.reset", tr("&Reset All Settings"), {}, [this] { _brush.resetAll(); });
    connect(&_brush, &BrushModel::presetChanged, reset, [this, reset] {
        reset->setText(_brush.preset() ? tr("&Reset to Preset") : tr("&Reset All Settings"));
    });
}

void MainWindow::makeViewMenu() {
    QMenu* menu = menuBar()->addMenu(tr("&View"));
    addTo(menu, "view.zoomIn", tr("Zoom &In"), {key("Ctrl++"), key("Ctrl+=")}, [this] { zoomBy(kZoomStep); });
    addTo(menu, "view.zoomOut", tr("Zoom &Out"), {key("Ctrl+-")}, [this] { zoomBy(1 / kZoomStep); });
    addTo(menu, "view.actualPixels", tr("&Actual Pixels"), {key("Ctrl+1")},
          [this] { zoomBy(1 / _viewport->zoom()); });
    addTo(menu, "view.wholeCanvas", tr("&Whole Canvas"), {key("Ctrl+0")}, [this] {
        _pointer->endStroke();
        _viewport->fit();
    });
    menu->addSeparator();
    addTurns(menu);
    menu->addSeparator();
    addChoices<ThemeChoice>(menu->addMenu(tr("&Theme")),
                            {{tr("As the &System"), ThemeChoice::system},
                             {tr("&Light"), ThemeChoice::light},
                             {tr("&Dark"), ThemeChoice::dark}},
                            _settings.theme(), [this](ThemeChoice choice) {
                                _settings.setTheme(choice);
                                _theme->setChoice(choice);
                            });
    const auto isAnyShown = [this] {
        const auto docks = {_colourDock, _presetDock, _layerDock, _dock};
        return std::any_of(docks.begin(), docks.end(),
                           [](const QDockWidget* dock) { return !dock->isHidden(); });
    };
    auto* panel = new QAction(tr("&Panels"), this);
    menu->addAction(panel);
    connect(panel, &QAction::triggered, this, [this, isAnyShown] {
        const bool show = !isAnyShown();
        for (QDockWidget* dock : {_colourDock, _presetDock, _layerDock, _dock})
            dock->setVisible(show);
    });
    panel->setCheckable(true);
    for (const QDockWidget* dock : {_colourDock, _presetDock, _layerDock, _dock})
        connect(dock, &QDockWidget::visibilityChanged, panel,
                [panel, isAnyShown] { panel->setChecked(isAnyShown()); });
    // On the canvas alone: elsewhere the tabulator goes from field to field.
    _viewport->addAction(panel);
    panel->setShortcut(Qt::Key_Tab);
    panel->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    _commands->take(QStringLiteral("view.panels"), plain(menu->title()), panel);
    addTo(menu, "view.fullScreen", tr("&Full Screen"), {key("F11")}, [this] { toggleFullScreen(); });
}

void MainWindow::makeHelpMenu() {
    QMenu* menu = menuBar()->addMenu(tr("&Help"));
    QAction* guide =
        addTo(menu, "help.guide", tr("Painter's &Guide"), {key("F1")}, [this] { showPaintersGuide(this); });
    guide->setVisible(!paintersGuide().isEmpty());
    addTo(menu, "help.about", tr("&About Dabpainter"), {}, [this] {
        _pointer->endStroke();
        showAbout(this, aboutReport(view(), _settings.file()));
    });
}

}  // namespace dabcanvas::dabpainter
