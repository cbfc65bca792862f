// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include "Brush/BrushModel.h"
#include "Canvas/PointerOptions.h"

class QLabel;

namespace dabcanvas::dabpainter {

class PressureCurveEditor;
class PressureTester;

// What the pen's pressure counts as: the curve, the usual ones to begin with, and a sheet to try it on.
class PressureDialog : public QDialog {
    Q_OBJECT

public:
    PressureDialog(const PressureCurve& now, const BrushModel& brush, QWidget* parent = nullptr);
    PressureCurve curve() const;
    PressureCurveEditor& editor() const { return *_editor; }
    PressureTester& tester() const { return *_tester; }

private:
    QLayout* makePresets();
    void showPressure(std::optional<float> raw);

    PressureCurveEditor* _editor;
    PressureTester* _tester;
    QLabel* _numbers;
};

}  // namespace dabcanvas::dabpainter
