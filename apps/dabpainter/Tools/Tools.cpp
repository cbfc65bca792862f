// SPDX-License-Identifier: MIT
#include "Tools/Tools.h"

#include <QScopedValueRollback>
#include <algorithm>
#include <utility>

#include "Brush/BrushModel.h"
#include "Brush/BrushPresentation.h"

namespace dabcanvas::dabpainter {

namespace {

bool usesBrush(Tool tool) {
    return tool == Tool::brush || tool == Tool::eraser || tool == Tool::smudge;
}

}  // namespace

Tools::Tools(BrushModel& brush, ToolBrushes brushes, QObject* parent)
    : QObject(parent), _brush(brush), _brushes(std::move(brushes)) {
    connect(&_brush, &BrushModel::changed, this, [this](BrushKey key) {
        if (key == BrushKey::brushType)
            follow();
    });
}

bool Tools::smudges() const {
    return _brush.value(BrushKey::brushType).toInt() == kSmudgeBrush;
}

void Tools::choose(Tool tool) {
    if (tool == _tool || _exchanging)
        return;
    if (tool == Tool::eraser)
        _beforeEraser = _tool;
    if (tool == Tool::pick)
        _beforePick = _tool;
    takeBrushFor(tool);
    become(tool);
}

void Tools::toggleEraser() {
    choose(_tool == Tool::eraser ? _beforeEraser : Tool::eraser);
}

void Tools::endPick() {
    if (_tool == Tool::pick)
        choose(_beforePick);
}

void Tools::endSelecting() {
    if (_tool == Tool::rectangle || _tool == Tool::lasso)
        choose(_painting);
}

void Tools::brushWillBeChosen() {
    if (!_exchanging)
        (smudges() ? _smudge : _paint) = _brushes.keep();
}

void Tools::brushWasChosen() {
    if (!smudges() && _tool != Tool::eraser)
        become(Tool::brush);
    else if (smudges())
        become(Tool::smudge);
}

void Tools::setTolerance(int tolerance) {
    tolerance = std::clamp(tolerance, 0, 255);
    if (std::exchange(_tolerance, tolerance) != tolerance)
        emit toleranceChanged(tolerance);
}

// The brush has become one of the other kind, by a preset or by its settings.
void Tools::follow() {
    if (!_exchanging && smudges() != (_tool == Tool::smudge) && usesBrush(_tool))
        become(smudges() ? Tool::smudge : Tool::brush);
}

void Tools::takeBrushFor(Tool tool) {
    const bool toSmudge = tool == Tool::smudge;
    if (!usesBrush(tool) || toSmudge == smudges())
        return;
    const QScopedValueRollback exchanging(_exchanging, true);
    (toSmudge ? _paint : _smudge) = _brushes.keep();
    const auto& kept = toSmudge ? _smudge : _paint;
    if (kept)
        kept();
    else
        toSmudge ? _brushes.takeSmudge() : _brushes.takePaint();
}

void Tools::become(Tool tool) {
    _brush.setErases(tool == Tool::eraser);
    if (paints(tool))
        _painting = tool;
    if (std::exchange(_tool, tool) != tool)
        emit changed(tool);
}

}  // namespace dabcanvas::dabpainter
