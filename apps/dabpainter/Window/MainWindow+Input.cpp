// SPDX-License-Identifier: MIT
// What becomes of the pointer's way to the canvas: pressure, a steady hand, symmetry, how the canvas lies; and its size.
#include <QAction>
#include <QActionGroup>
#include <QInputDialog>
#include <QMenu>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>
#include <numbers>

#include "Canvas/CanvasLayers.h"
#include "Documents/CanvasArea.h"
#include "Documents/CanvasSizeDialog.h"
#include "Input/BrushStabilisers.h"
#include "Input/PressureDialog.h"
#include "Input/StabiliserControl.h"
#include "Presets/PresetBrowser.h"
#include "QDEAGLView/QDDrawView.h"
#include "Tools/ToolIcons.h"
#include "Viewport/CanvasPointer.h"
#include "Viewport/CanvasViewport.h"
#include "Viewport/SymmetryGuide.h"
#include "Viewport/TurnDrag.h"
#include "Window/Commands.h"
#include "Window/MainWindow.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr double kTurnStep = std::numbers::pi / 12;
constexpr int kMessageTime = 2500;  // milliseconds

}  // namespace

// ---- The canvas's size

void MainWindow::addCanvasSizes(QMenu* menu) {
    addTo(menu, "canvas.size", tr("Canvas &Size…"), {}, [this] {
        finishEdits();
        CanvasSizeDialog dialog(view()->bufferSize().toSize(), this);
        while (dialog.exec() == QDialog::Accepted && !takeCanvasArea(dialog.area())) {
        }
    });
    addTo(menu, "canvas.crop", tr("Crop &to Drawn"), {}, [this] {
        finishEdits();
        const QRect drawn = drawnArea(view()->layers().flattened(), _document.plan().background);
        if (drawn.isEmpty())
            statusBar()->showMessage(tr("Nothing is drawn"), kMessageTime);
        else
            takeCanvasArea(drawn);
    });
}

bool MainWindow::takeCanvasArea(const QRect& area) {
    const QString fault = takeArea(*view(), area, _document.plan().background);
    return fault.isEmpty() || tellFault(fault);
}

// ---- How it lies

void MainWindow::addTurns(QMenu* menu) {
    const auto turn = [this](double radians) {
        _pointer->endStroke();
        _viewport->turnBy(radians);
    };
    addTo(menu, "view.turnLeft", tr("Turn &Left"), {key("Ctrl+[")}, [turn] { turn(kTurnStep); });
    addTo(menu, "view.turnRight", tr("Turn &Right"), {key("Ctrl+]")}, [turn] { turn(-kTurnStep); });
    addTo(menu, "view.turnUpright", tr("&Upright"), {key("Ctrl+\\")}, [this] {
        _pointer->endStroke();
        _viewport->turnUpright();
    });
    QAction* mirror = addTo(menu, "view.mirror", tr("&Mirrored"), {key("M")}, [this] {
        _pointer->endStroke();
        _viewport->setMirrored(!_viewport->isMirrored());
    });
    mirror->setCheckable(true);
    connect(_viewport, &CanvasViewport::zoomChanged, mirror,
            [this, mirror] { mirror->setChecked(_viewport->isMirrored()); });
    new TurnDrag(*_viewport, *_commands->addHeld(QStringLiteral("view.dragTurn"), plain(menu->title()),
                                                 tr("Turn by Dragging"), key("Q")));
}

// ---- Pressure and a steady hand

void MainWindow::addPen(QMenu* menu) {
    addTo(menu, "canvas.pressure", tr("Pen Pr&essure…"), {}, [this] {
        _pointer->endStroke();
        PressureDialog dialog(_settings.pressure(), _brush, this);
        if (dialog.exec() == QDialog::Accepted)
            _settings.setPressure(dialog.curve());
    });
    connect(&_settings, &PainterSettings::pressureChanged, _pointer, &CanvasPointer::setPressure);
    _pointer->setPressure(_settings.pressure());

    auto* control = new StabiliserControl;
    control->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);  // the bar has more to hold
    auto* bar = new QToolBar(tr("Steady hand"));
    bar->setObjectName(QStringLiteral("stabiliserBar"));
    bar->addWidget(control);
    addToolBar(bar);
    connect(control, &StabiliserControl::edited, this, [this](const StabiliserOptions& options) {
        keepStabiliser(_settings.file(), _presets->chosenName(), options);
        _settings.noteChange();
        _pointer->setStabiliser(options);
    });
    connect(_presets, &PresetBrowser::renamed, this, [this](const QString& from, const QString& to) {
        QSettings& file = _settings.file();
        keepStabiliser(file, to, stabiliserOf(file, from));
        const auto& left = _presets->library().presets();
        if (std::none_of(left.begin(), left.end(), [&](const Preset& preset) { return preset.name == from; }))
            keepStabiliser(file, from, {});
    });
    const auto takeBrushs = [this, control] {
        control->setOptions(stabiliserOf(_settings.file(), _presets->chosenName()));
        _pointer->setStabiliser(control->options());
    };
    connect(_presets, &PresetBrowser::stateChanged, this, takeBrushs);
    takeBrushs();
}

// ---- Symmetry

void MainWindow::addSymmetry(QMenu* canvasMenu) {
    QMenu* menu = canvasMenu->addMenu(tr("S&ymmetry"));
    auto* kinds = new QActionGroup(menu);
    const std::initializer_list<std::tuple<const char*, QString, SymmetryKind>> rows{
        {"symmetry.none", tr("&None"), SymmetryKind::none},
        {"symmetry.vertical", tr("&Left and Right"), SymmetryKind::vertical},
        {"symmetry.horizontal", tr("&Above and Below"), SymmetryKind::horizontal},
        {"symmetry.both", tr("&Both"), SymmetryKind::both},
        {"symmetry.radial", tr("&Rays"), SymmetryKind::radial}};
    for (const auto& [name, text, kind] : rows) {
        QAction* action = addTo(menu, name, text, {}, [this, kind = kind] {
            _pointer->endStroke();
            _symmetry->setKind(kind);
        });
        action->setCheckable(true);
        action->setChecked(kind == SymmetryKind::none);
        kinds->addAction(action);
    }
    menu->addSeparator();
    addSymmetryOptions(menu);
    auto* button = new QToolButton;
    button->setText(tr("Symmetry"));
    button->setIcon(toolIcon(ToolSign::symmetry));
    button->setIconSize(QSize(20, 20));
    button->setToolTip(tr("Draws copies of every stroke, mirrored or turned"));
    button->setPopupMode(QToolButton::InstantPopup);
    button->setMenu(menu);
    auto* bar = new QToolBar(tr("Symmetry"));
    bar->setObjectName(QStringLiteral("symmetryBar"));
    bar->addWidget(button);
    addToolBar(bar);
}

void MainWindow::addSymmetryOptions(QMenu* menu) {
    addTo(menu, "symmetry.rays", tr("N&umber of Rays…"), {}, [this] {
        bool accepted = false;
        const int rays =
            QInputDialog::getInt(this, tr("Rays"), tr("Rays of the symmetry:"), _symmetry->symmetry().rays,
                                 kFewestRays, kMostRays, 1, &accepted);
        if (accepted)
            _symmetry->setRays(rays, _symmetry->symmetry().mirrored);
    });
    QAction* mirrored = addTo(menu, "symmetry.mirrored", tr("&Mirrored Rays"), {}, [] {});
    mirrored->setCheckable(true);
    connect(mirrored, &QAction::toggled, this,
            [this](bool on) { _symmetry->setRays(_symmetry->symmetry().rays, on); });
    menu->addSeparator();
    addTo(menu, "symmetry.centreHere", tr("&Centre Here"), {key("Shift+C")},
          [this] { _symmetry->setCentre(_viewport->bufferPoint(_pointer->place())); });
    addTo(menu, "symmetry.centreInTheMiddle", tr("Centre in the M&iddle"), {},
          [this] { _symmetry->centreInTheMiddle(); });
    QAction* moving = addTo(menu, "symmetry.moveCentre", tr("&Drag the Centre"), {}, [] {});
    moving->setCheckable(true);
    connect(moving, &QAction::toggled, this, [this, moving](bool on) {
        _pointer->endStroke();
        _symmetry->setMoving(on);
        moving->setChecked(_symmetry->isMoving());
    });
    connect(_symmetry, &SymmetryGuide::movingChanged, moving, &QAction::setChecked);
}

}  // namespace dabcanvas::dabpainter
