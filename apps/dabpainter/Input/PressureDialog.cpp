// SPDX-License-Identifier: MIT
#include "Input/PressureDialog.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <cmath>

#include "Input/PressureCurveEditor.h"
#include "Input/PressureTester.h"

namespace dabcanvas::dabpainter {

namespace {

int percent(float value) {
    return int(std::lround(value * 100));
}

}  // namespace

PressureDialog::PressureDialog(const PressureCurve& now, const BrushModel& brush, QWidget* parent)
    : QDialog(parent),
      _editor(new PressureCurveEditor),
      _tester(new PressureTester(brush)),
      _numbers(new QLabel) {
    setWindowTitle(tr("Pen Pressure"));
    auto* left = new QVBoxLayout;
    left->addWidget(_editor, 1);
    left->addLayout(makePresets());
    left->addWidget(_numbers);
    auto* clear = new QPushButton(tr("Clear the &Sheet"));
    auto* right = new QVBoxLayout;
    auto* words = new QLabel(tr("Draw here to try it"));
    right->addWidget(words);
    right->addWidget(_tester, 1);
    right->addWidget(clear, 0, Qt::AlignRight);
    auto* columns = new QHBoxLayout;
    columns->addLayout(left, 2);
    columns->addLayout(right, 3);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(columns, 1);
    layout->addWidget(buttons);

    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    for (QPushButton* button : findChildren<QPushButton*>())
        button->setAutoDefault(false);  // Enter on the curve accepts it
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    connect(clear, &QPushButton::clicked, _tester, &PressureTester::clear);
    connect(_editor, &PressureCurveEditor::edited, this, [this] { _tester->setCurve(curve()); });
    connect(_tester, &PressureTester::pressed, this, &PressureDialog::showPressure);
    _editor->setPoints(PressurePoints(now));
    _tester->setCurve(now);
    showPressure({});
    resize(720, 400);
    _editor->setFocus();
}

QLayout* PressureDialog::makePresets() {
    const std::initializer_list<std::pair<QString, const char*>> rows{
        {tr("So&ft"), "0 0;0.25 0.5;0.6 0.85;1 1"},
        {tr("&Linear"), "0 0;1 1"},
        {tr("Fir&m"), "0 0;0.4 0.15;0.75 0.5;1 1"}};
    auto* line = new QHBoxLayout;
    for (const auto& [text, points] : rows) {
        auto* button = new QPushButton(text);
        connect(button, &QPushButton::clicked, this, [this, points = points] {
            _editor->setPoints(PressurePoints::ofText(QString::fromLatin1(points)));
            _tester->setCurve(curve());
        });
        line->addWidget(button);
    }
    return line;
}

PressureCurve PressureDialog::curve() const {
    return _editor->points().curve();
}

void PressureDialog::showPressure(std::optional<float> raw) {
    _editor->showPressure(raw);
    _numbers->setText(
        raw ? tr("The pen's %1 % count as %2 %").arg(percent(*raw)).arg(percent(curve().at(*raw)))
            : tr("No pen presses"));
}

}  // namespace dabcanvas::dabpainter
