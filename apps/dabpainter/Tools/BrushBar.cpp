// SPDX-License-Identifier: MIT
#include "Tools/BrushBar.h"

#include <QAction>
#include <algorithm>

#include "Brush/BrushModel.h"
#include "Brush/BrushPresentation.h"
#include "Tools/Tools.h"
#include "Tools/ValueSlider.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr int kIconSide = 20, kWidest = 320;

BrushPresentation presentationOf(BrushKey key) {
    BrushPresentation shown = brushPresentation(brushProperty(key));
    if (key == BrushKey::radius)
        shown.low = std::max(1.0, shown.least);  // of what is shown on a logarithmic scale
    else
        shown.decimals = 0;
    return shown;
}

BrushPresentation tolerancePresentation() {
    BrushPresentation shown;
    shown.label = BrushBar::tr("Tolerance");
    shown.high = shown.most = 255;
    shown.decimals = 0;
    return shown;
}

ValueSlider* sliderFor(BrushModel& brush, BrushKey key, bool logarithmic) {
    auto* slider = new ValueSlider(presentationOf(key), logarithmic);
    QObject::connect(slider, &ValueSlider::edited, &brush,
                     [&brush, key](double stored) { brush.setValue(key, float(stored)); });
    QObject::connect(&brush, &BrushModel::changed, slider, [&brush, key, slider](BrushKey changed) {
        if (changed == key)
            slider->setStored(brush.value(key).toDouble());
    });
    slider->setStored(brush.value(key).toDouble());
    slider->setMaximumWidth(kWidest);
    return slider;
}

}  // namespace

BrushBar::BrushBar(BrushModel& brush, Tools& tools, QAction* undo, QAction* redo, QWidget* parent)
    : QToolBar(tr("Brush size and opacity"), parent),
      _tools(tools),
      _size(sliderFor(brush, BrushKey::radius, true)),
      _opacity(sliderFor(brush, BrushKey::opacity, false)),
      _tolerance(new ValueSlider(tolerancePresentation(), false)) {
    setObjectName(QStringLiteral("brushBar"));
    setIconSize(QSize(kIconSide, kIconSide));
    setToolButtonStyle(Qt::ToolButtonIconOnly);
    setMovable(false);
    addAction(undo);
    addAction(redo);
    addSeparator();
    _sizePlace = addWidget(_size);
    _opacityPlace = addWidget(_opacity);
    _tolerancePlace = addWidget(_tolerance);
    const auto explain = [](ValueSlider* slider, const QString& what) {
        slider->setToolTip(what + QLatin1Char('\n') + tr("A double click, F2 or Enter types the number"));
    };
    explain(_size, tr("Size of the brush, by every drag, wheel or arrow key the same part of it"));
    explain(_opacity, tr("Opacity of each stroke"));
    explain(_tolerance, tr("How much colours may differ that a fill takes for one"));
    _tolerance->setMaximumWidth(kWidest);
    _tolerance->setStored(tools.tolerance());
    connect(_tolerance, &ValueSlider::edited, &tools,
            [&tools](double stored) { tools.setTolerance(int(stored)); });
    connect(&tools, &Tools::toleranceChanged, _tolerance, &ValueSlider::setStored);
    connect(&tools, &Tools::changed, this, &BrushBar::showTool);
    showTool();
}

void BrushBar::showTool() {
    const bool fills = _tools.tool() == Tool::fill;
    _sizePlace->setVisible(!fills);
    _opacityPlace->setVisible(!fills);
    _tolerancePlace->setVisible(fills);
}

}  // namespace dabcanvas::dabpainter
