// SPDX-License-Identifier: MIT
// How a brush property is shown: what the property table, which says what a property is, leaves to taste.
#pragma once

#include <QString>

#include "Brushes/BrushKinds.h"
#include "Brushes/BrushProperties.h"

namespace dabcanvas::dabpainter {

enum class BrushPlace : std::uint8_t {
    panel,  // in its group
    top,    // above the groups, always in sight
    hidden  // not shown, not remembered
};

// The kinds of brush, as the property brushType has them, that are more than dabs.
inline constexpr int kSmudgeBrush = int(BrushKind::Smudge), kLiveFillBrush = int(BrushKind::FilledOutline);

// Of a number: shown = stored * scale. All numbers below are shown ones.
struct BrushPresentation {
    QString label;
    BrushPlace place = BrushPlace::panel;
    int order = 0;  // of the rows in one place
    double scale = 1;
    QString suffix;              // " px", " %" ...
    double low = 0, high = 1;    // ends of the slider
    double least = 0, most = 1;  // what may be typed
    double step = 0.01;
    int decimals = 2;
    double bend = 1;  // above 1 the slider is finer at its low end
};

// Complete for every row: what the presentation's own table does not name follows from type, range and name.
BrushPresentation brushPresentation(const BrushProperty& property);

// The parts of a control, such as its pressure, are signed strengths.
BrushPresentation controlPresentation();

// "soft disc" as "Soft disc".
QString choiceLabel(const BrushChoice& choice);

QString brushGroupTitle(BrushGroup group);

// "distributionCount" as "Distribution count", with the words a painter would use.
QString labelFromName(QLatin1String name);

}  // namespace dabcanvas::dabpainter
