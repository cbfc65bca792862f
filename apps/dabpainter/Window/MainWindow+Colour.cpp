// SPDX-License-Identifier: MIT
// The colours' dock and what it goes together with.
#include "Colour/ColorPanel.h"
#include "Tools/Tools.h"
#include "Viewport/CanvasPointer.h"
#include "Viewport/CanvasViewport.h"
#include "Viewport/ColorPicker.h"
#include "Window/MainWindow.h"

namespace dabcanvas::dabpainter {

void MainWindow::makeColourDock(const PresetFolders& brushes) {
    _colours = new ColorPanel(_brush, _prompts, brushes);
    _colourDock = addDock(tr("Colour"), QStringLiteral("colourDock"), _colours);
    ColorPicker* picker = &_pointer->picker();
    connect(_colours, &ColorPanel::eyedropper, this, [this] { _tools->choose(Tool::pick); });
    connect(_colours, &ColorPanel::pickSideChanged, picker, &ColorPicker::setSide);
    connect(picker, &ColorPicker::picked, this, [this](const QColor& color) {
        _brush.setValue(BrushKey::renderColor, QVariant::fromValue(ESColor(color)));
    });
    connect(_colours, &ColorPanel::chosenByPointer, _viewport, qOverload<>(&QWidget::setFocus));
    _colours->readState(_settings.file());
    connect(_colours, &ColorPanel::stateChanged, &_settings, &PainterSettings::noteChange);
    _settings.addWriter([this](QSettings& file) { _colours->writeState(file); });
}

}  // namespace dabcanvas::dabpainter
