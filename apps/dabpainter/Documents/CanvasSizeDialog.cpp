// SPDX-License-Identifier: MIT
#include "Documents/CanvasSizeDialog.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QToolButton>
#include <algorithm>
#include <cmath>

#include "Documents/ImageFiles.h"

namespace dabcanvas::dabpainter {

namespace {

enum Unit { kPixels, kPercent };
constexpr int kMiddle = 4;  // of the nine places, row by row

QDoubleSpinBox* sideBox() {
    auto* box = new QDoubleSpinBox;
    box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return box;
}

int pixelsOf(double value, int side, bool isPercent) {
    return std::max(1, int(std::lround(isPercent ? value / 100 * side : value)));
}

}  // namespace

CanvasSizeDialog::CanvasSizeDialog(const QSize& now, QWidget* parent)
    : QDialog(parent),
      _now(now),
      _width(sideBox()),
      _height(sideBox()),
      _unit(new QComboBox),
      _anchor(new QButtonGroup(this)),
      _note(new QLabel) {
    setWindowTitle(tr("Canvas Size"));
    _note->setWordWrap(true);
    _note->setMinimumHeight(2 * _note->fontMetrics().lineSpacing());
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    _accept = buttons->button(QDialogButtonBox::Ok);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(makeSides());
    layout->addWidget(_note);
    layout->addWidget(buttons);
    setMinimumWidth(340);

    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    for (QDoubleSpinBox* box : {_width, _height})
        connect(box, &QDoubleSpinBox::valueChanged, this, &CanvasSizeDialog::refresh);
    connect(_unit, &QComboBox::currentIndexChanged, this, &CanvasSizeDialog::takeUnit);
    connect(_anchor, &QButtonGroup::idToggled, this, &CanvasSizeDialog::refresh);
    takeUnit();
    _width->setFocus();
    _width->selectAll();
}

QLayout* CanvasSizeDialog::makeSides() {
    _unit->addItem(tr("Pixels"));
    _unit->addItem(tr("Percent"));
    auto* form = new QFormLayout;
    form->addRow(tr("&Width"), _width);
    form->addRow(tr("&Height"), _height);
    form->addRow(tr("&Unit"), _unit);
    form->addRow(tr("What is there stays"), makeAnchors());
    return form;
}

QWidget* CanvasSizeDialog::makeAnchors() {
    const QString names[] = {tr("At the top left"),    tr("At the top"),    tr("At the top right"),
                             tr("At the left"),        tr("In the middle"), tr("At the right"),
                             tr("At the bottom left"), tr("At the bottom"), tr("At the bottom right")};
    auto* field = new QWidget;
    auto* grid = new QGridLayout(field);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(2);
    for (int place = 0; place < 9; ++place) {
        auto* button = new QToolButton;
        button->setCheckable(true);
        button->setFixedSize(28, 28);
        button->setToolTip(names[place]);
        button->setAccessibleName(names[place]);
        _anchor->addButton(button, place);
        grid->addWidget(button, place / 3, place % 3);
    }
    grid->setColumnStretch(3, 1);
    _anchor->button(kMiddle)->setChecked(true);
    return field;
}

bool CanvasSizeDialog::isInPercent() const {
    return _unit->currentIndex() == kPercent;
}

QSize CanvasSizeDialog::size() const {
    return {pixelsOf(_width->value(), _now.width(), isInPercent()),
            pixelsOf(_height->value(), _now.height(), isInPercent())};
}

QRect CanvasSizeDialog::area() const {
    return areaOfSize(_now, size(), {_anchor->checkedId() % 3, _anchor->checkedId() / 3});
}

// The size stays what it was in the other unit.
void CanvasSizeDialog::takeUnit() {
    const bool isFirst = _width->suffix().isEmpty(), wasPercent = _width->suffix().endsWith(QLatin1Char('%'));
    const std::array<std::pair<QDoubleSpinBox*, int>, 2> sides{
        {{_width, _now.width()}, {_height, _now.height()}}};
    for (const auto& [box, now] : sides) {
        const QSignalBlocker quiet(box);
        const int pixels = isFirst ? now : pixelsOf(box->value(), now, wasPercent);
        box->setSuffix(isInPercent() ? QStringLiteral(" %") : QStringLiteral(" px"));
        box->setDecimals(isInPercent() ? 2 : 0);
        box->setRange(isInPercent() ? 0.01 : 1, isInPercent() ? 100.0 * kMostSide / now : kMostSide);
        box->setValue(isInPercent() ? 100.0 * pixels / now : pixels);
    }
    refresh();
}

void CanvasSizeDialog::refresh() {
    const QSize wanted = size();
    const QString refusal = sizeRefusal(wanted.width(), wanted.height());
    const bool crops = wanted.width() < _now.width() || wanted.height() < _now.height();
    _accept->setEnabled(refusal.isEmpty());
    _note->setText(
        !refusal.isEmpty() ? refusal.left(1).toUpper() + refusal.mid(1) + QLatin1Char('.')
        : crops ? tr("%1 × %2 pixels; what lies beyond is cut off.").arg(wanted.width()).arg(wanted.height())
                : tr("%1 × %2 pixels.").arg(wanted.width()).arg(wanted.height()));
    const int anchor = _anchor->checkedId();
    for (QAbstractButton* button : _anchor->buttons())
        button->setText(_anchor->id(button) == anchor ? QStringLiteral("●") : QString());
}

}  // namespace dabcanvas::dabpainter
