// SPDX-License-Identifier: MIT
#include "Documents/NewCanvasDialog.h"

#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSpinBox>

#include "Documents/ImageFiles.h"
#include "Window/Widgets.h"

namespace dabcanvas::dabpainter {

namespace {

enum Background { kWhite, kTransparent, kColor };

constexpr qint64 kBytesAPixel = 4 * 6;  // of the canvas, its layers and the picture on the screen

QSpinBox* sideBox(int value) {
    auto* box = new QSpinBox;
    box->setRange(1, kMostSide);
    box->setValue(value);
    box->setSuffix(QStringLiteral(" px"));
    box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return box;
}

}  // namespace

NewCanvasDialog::NewCanvasDialog(const CanvasPlan& plan, QWidget* parent)
    : QDialog(parent),
      _width(sideBox(plan.size.width())),
      _height(sideBox(plan.size.height())),
      _background(new QComboBox),
      _color(new SwatchButton),
      _note(new QLabel) {
    setWindowTitle(tr("New Canvas"));
    _background->addItem(tr("White"), kWhite);
    _background->addItem(tr("Transparent"), kTransparent);
    _background->addItem(tr("Colour"), kColor);
    _color->setColor(plan.background.alpha() == 0 ? QColor(Qt::white) : plan.background);
    _background->setCurrentIndex(plan.background.alpha() == 0           ? kTransparent
                                 : plan.background == QColor(Qt::white) ? kWhite
                                                                        : kColor);
    auto* background = new QHBoxLayout;
    background->addWidget(_background, 1);
    background->addWidget(_color, 1);
    QSizePolicy keeps = _color->sizePolicy();
    keeps.setRetainSizeWhenHidden(true);
    _color->setSizePolicy(keeps);

    auto* form = new QFormLayout;
    form->addRow(tr("&Width"), _width);
    form->addRow(tr("&Height"), _height);
    auto* label = new QLabel(tr("&Background"));
    label->setBuddy(_background);
    form->addRow(label, background);
    _note->setWordWrap(true);
    _note->setMinimumHeight(2 * _note->fontMetrics().lineSpacing());
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    _create = buttons->button(QDialogButtonBox::Ok);
    _create->setText(tr("Create"));
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(_note);
    layout->addWidget(buttons);
    setMinimumWidth(340);

    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    for (QSpinBox* box : {_width, _height})
        connect(box, &QSpinBox::valueChanged, this, &NewCanvasDialog::refresh);
    connect(_background, &QComboBox::currentIndexChanged, this, &NewCanvasDialog::refresh);
    connect(_color, &QToolButton::clicked, this, [this] {
        const QColor color = QColorDialog::getColor(_color->color(), this, tr("Background"),
                                                    QColorDialog::DontUseNativeDialog);
        if (color.isValid())
            _color->setColor(color);
    });
    refresh();
}

void NewCanvasDialog::refresh() {
    const QString refusal = sizeRefusal(_width->value(), _height->value());
    _create->setEnabled(refusal.isEmpty());
    const qint64 bytes = qint64(_width->value()) * _height->value() * kBytesAPixel;
    _note->setText(refusal.isEmpty()
                       ? tr("Takes about %1 of memory.").arg(locale().formattedDataSize(bytes, 0))
                       : refusal.left(1).toUpper() + refusal.mid(1) + QLatin1Char('.'));
    _color->setVisible(_background->currentIndex() == kColor);
}

CanvasPlan NewCanvasDialog::plan() const {
    QColor background = _color->color();
    if (_background->currentIndex() == kWhite)
        background = Qt::white;
    else if (_background->currentIndex() == kTransparent)
        background = Qt::transparent;
    return {QSize(_width->value(), _height->value()), background, true};
}

}  // namespace dabcanvas::dabpainter
