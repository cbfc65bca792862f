// SPDX-License-Identifier: MIT
#include "Input/StabiliserControl.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QScopedValueRollback>
#include <QSlider>
#include <QToolButton>
#include <cmath>

namespace dabcanvas::dabpainter {

namespace {

constexpr int kMost = 100;           // of the slider
constexpr double kLongestTime = 2;   // seconds
constexpr double kLongestWay = 200;  // points
constexpr int kSliderWidth = 90;

// Short ones differ most.
double secondsOf(int strength) {
    return kLongestTime * strength * strength / (kMost * kMost);
}
double lengthOf(int strength) {
    return kLongestWay * strength / kMost;
}
int strengthOf(const StabiliserOptions& options) {
    return options.kind == Stabilising::string
               ? int(std::lround(options.length / kLongestWay * kMost))
               : int(std::lround(std::sqrt(options.seconds / kLongestTime) * kMost));
}

}  // namespace

StabiliserControl::StabiliserControl(QWidget* parent)
    : QWidget(parent),
      _kind(new QComboBox),
      _strength(new QSlider(Qt::Horizontal)),
      _finishes(new QToolButton) {
    _kind->addItems({tr("Unsteadied"), tr("Averaged"), tr("Pulled string")});
    _kind->setAccessibleName(tr("What steadies the hand"));
    _kind->setToolTip(tr("What steadies the hand; each brush remembers its own"));
    _strength->setRange(1, kMost);
    _strength->setFixedWidth(kSliderWidth);
    _strength->setAccessibleName(tr("How much the hand is steadied"));
    _finishes->setCheckable(true);
    _finishes->setText(tr("To the end"));
    _finishes->setToolTip(tr("At its end a line goes on to where the pointer is"));
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(4, 0, 4, 0);
    line->addWidget(_kind);
    line->addWidget(_strength);
    line->addWidget(_finishes);
    connect(_kind, &QComboBox::currentIndexChanged, this, &StabiliserControl::take);
    connect(_strength, &QSlider::valueChanged, this, &StabiliserControl::take);
    connect(_finishes, &QToolButton::toggled, this, &StabiliserControl::take);
    showOptions(_options);
}

void StabiliserControl::setOptions(const StabiliserOptions& options) {
    _options = options;
    showOptions(options);
}

// Each kind keeps its own strength while the other one is chosen.
void StabiliserControl::take() {
    if (_showing)
        return;
    const auto kind = Stabilising(_kind->currentIndex());
    if (kind == _options.kind && kind == Stabilising::average)
        _options.seconds = secondsOf(_strength->value());
    if (kind == _options.kind && kind == Stabilising::string)
        _options.length = lengthOf(_strength->value());
    _options.kind = kind;
    _options.finishesLine = _finishes->isChecked();
    showOptions(_options);
    emit edited(_options);
}

void StabiliserControl::showOptions(const StabiliserOptions& options) {
    const QScopedValueRollback showing(_showing, true);
    _kind->setCurrentIndex(int(options.kind));
    if (strengthOf(options) != _strength->value())
        _strength->setValue(strengthOf(options));
    _finishes->setChecked(options.finishesLine);
    _strength->setEnabled(options.kind != Stabilising::none);
    _finishes->setEnabled(options.kind != Stabilising::none);
    _strength->setToolTip(options.kind == Stabilising::string
                              ? tr("The string is %1 points long").arg(std::lround(options.length))
                              : tr("Follows within %1 s").arg(locale().toString(options.seconds, 'f', 2)));
}

}  // namespace dabcanvas::dabpainter
