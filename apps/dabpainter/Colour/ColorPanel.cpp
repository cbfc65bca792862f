// SPDX-License-Identifier: MIT
#include "Colour/ColorPanel.h"

#include <QActionGroup>
#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMenu>
#include <QScopedValueRollback>
#include <QSettings>
#include <QStackedWidget>
#include <algorithm>
#include <array>

#include "Brush/BrushCommands.h"
#include "Colour/ColorSliders.h"
#include "Colour/ColorWheel.h"
#include "Colour/PalettePage.h"
#include "Colour/SwatchGrid.h"
#include "QDEAGLView/QDDrawView.h"
#include "Window/Widgets.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr int kMargin = 6, kBelow = 2, kSpacing = 4;
constexpr std::array kPickSides{1, 3, 5, 11};

QString key(const char* name) {
    return QStringLiteral("colour/") + QLatin1String(name);
}

}  // namespace

ColorPanel::ColorPanel(BrushModel& brush, const Prompts& prompts, const PresetFolders& brushes,
                       QWidget* parent)
    : QWidget(parent),
      _brush(brush),
      _prompts(prompts),
      _front(addSwatch(BrushKey::renderColor, tr("Foreground colour"))),
      _back(addSwatch(BrushKey::backRenderColor, tr("Background colour"))),
      _hex(new QLineEdit),
      _menu(new QMenu(this)),
      _pickSides(new QActionGroup(this)),
      _pageButtons(new QButtonGroup(this)),
      _pages(new QStackedWidget),
      _palettes(new PalettePage(_choice, prompts, PaletteLibrary::beside(brushes))),
      _recentGrid(new SwatchGrid(tr("Recent colours"), int(RecentColors::kMost))) {
    makeMenu();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kBelow);
    layout->setSpacing(kSpacing);
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    layout->addLayout(_top = makeTop());
    layout->addWidget(_area = makePages(), 1);
    layout->addWidget(_recentGrid);
    layout->addStretch(0);
    _front->setChecked(true);
    connectParts();
    showBrush();
}

SwatchButton* ColorPanel::addSwatch(BrushKey key, const QString& name) {
    auto* swatch = new SwatchButton;
    swatch->setCheckable(true);
    swatch->setAutoExclusive(true);
    swatch->setMinimumSize(30, 26);
    swatch->setMaximumWidth(48);
    swatch->setAccessibleName(name);
    swatch->setToolTip(tr("%1: what is chosen below").arg(name));
    connect(swatch, &QToolButton::clicked, this, [this, key] { setEdited(key); });
    return swatch;
}

QHBoxLayout* ColorPanel::makeTop() {
    _hex->setObjectName(QStringLiteral("hexColour"));
    _hex->setAccessibleName(tr("Colour as red, green and blue"));
    _hex->setToolTip(tr("#rrggbb, #rgb or a name such as teal"));
    _hex->setMinimumWidth(60);
    auto* swap = new GlyphButton(Glyph::swap, tr("Swap the colours (X)"));
    auto* pick = new GlyphButton(Glyph::eyedropper, tr("Pick a colour from the canvas (I, or hold Ctrl)"));
    auto* more = new GlyphButton(Glyph::menu, tr("More to do with colours"));
    connect(swap, &QToolButton::clicked, this, [this] { swapColors(_brush); });
    connect(pick, &QToolButton::clicked, this, &ColorPanel::eyedropper);
    connect(more, &QToolButton::clicked, this,
            [this, more] { _menu->popup(more->mapToGlobal(QPoint(0, more->height()))); });
    pick->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(pick, &QToolButton::customContextMenuRequested, this,
            [this, pick](const QPoint& at) { _menu->popup(pick->mapToGlobal(at)); });
    auto* line = new QHBoxLayout;
    line->setSpacing(2);
    line->addWidget(_front);
    line->addWidget(_back);
    line->addWidget(swap);
    line->addWidget(_hex, 1);
    line->addWidget(pick);
    line->addWidget(more);
    return line;
}

QWidget* ColorPanel::makePages() {
    auto* area = new QWidget;
    auto* line = new QHBoxLayout(area);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(4);
    auto* buttons = new QVBoxLayout;
    buttons->setSpacing(0);
    const auto addPage = [&](Glyph sign, const QString& name, QWidget* page) {
        auto* button = new GlyphButton(sign, name);
        button->setCheckable(true);
        _pageButtons->addButton(button, _pages->addWidget(page));
        buttons->addWidget(button);
    };
    addPage(Glyph::wheel, tr("Wheel"), new ColorWheel(_choice));
    addPage(Glyph::sliders, tr("Sliders"), new ColorSliders(_choice));
    addPage(Glyph::palette, tr("Palettes"), _palettes);
    buttons->addStretch(1);
    _pageButtons->button(0)->setChecked(true);
    line->addLayout(buttons);
    line->addWidget(_pages, 1);
    return area;
}

void ColorPanel::makeMenu() {
    QMenu* sides = _menu->addMenu(tr("&Eyedropper Takes"));
    for (const int side : kPickSides) {
        QAction* action =
            sides->addAction(side == 1 ? tr("One Pixel") : tr("Average of %1 × %1 Pixels").arg(side));
        action->setCheckable(true);
        action->setChecked(side == _pickSide);
        action->setData(side);
        _pickSides->addAction(action);
    }
    connect(_pickSides, &QActionGroup::triggered, this,
            [this](const QAction* action) { setPickSide(action->data().toInt()); });
    connect(_menu->addAction(tr("&Forget Recent Colours")), &QAction::triggered, this, [this] {
        _recent = {};
        showRecent();
        emit stateChanged();
    });
}

void ColorPanel::connectParts() {
    connect(&_choice, &ColorChoice::changed, this, &ColorPanel::takeChoice);
    connect(&_brush, &BrushModel::changed, this, [this](BrushKey key) {
        if (key == BrushKey::renderColor || key == BrushKey::backRenderColor)
            showBrush();
    });
    connect(_hex, &QLineEdit::editingFinished, this, &ColorPanel::takeHex);
    connect(_pageButtons, &QButtonGroup::idClicked, this, [this](int page) {
        _pages->setCurrentIndex(page);
        emit stateChanged();
    });
    connect(_palettes, &PalettePage::shownChanged, this, &ColorPanel::stateChanged);
    connect(_palettes, &PalettePage::chosenByPointer, this, &ColorPanel::chosenByPointer);
    connect(_recentGrid, &SwatchGrid::chosen, this, [this](int index) {
        _choice.setColor(QColor(_recentGrid->colors()[std::size_t(index)].rgb));
        if (!_recentGrid->hasFocus())
            emit chosenByPointer();
    });
}

QSize ColorPanel::minimumSizeHint() const {
    const int width = std::max(_top->minimumSize().width(), _area->minimumSizeHint().width());
    return QSize(width + 2 * kMargin, _top->minimumSize().height() + kMargin + kBelow);
}

// The pages come before the colours that were painted with.
void ColorPanel::resizeEvent(QResizeEvent*) {
    const int room = height() - minimumSizeHint().height();
    const int pages = _area->minimumSizeHint().height() + kSpacing;
    const int recent = _recentGrid->heightForWidth(width() - 2 * kMargin) + kSpacing;
    const bool showsPages = room >= pages;
    _area->setVisible(showsPages);
    _recentGrid->setVisible(room >= recent + (showsPages ? pages : 0));
}

// ---- The two colours

void ColorPanel::setEdited(BrushKey key) {
    _edited = key;
    (key == BrushKey::renderColor ? _front : _back)->setChecked(true);
    showBrush();
}

void ColorPanel::showBrush() {
    const auto front = _brush.value(BrushKey::renderColor).value<ESColor>();
    const auto back = _brush.value(BrushKey::backRenderColor).value<ESColor>();
    _front->setColor(front.toQColor());
    _back->setColor(back.toQColor());
    const QColor edited = (_edited == BrushKey::renderColor ? front : back).toQColor();
    if (!_taking) {
        const QScopedValueRollback taking(_taking, true);  // or rounding would go back to the brush
        _choice.setColor(edited);
    }
    if (!_hex->hasFocus() || !_hex->isModified())
        _hex->setText(edited.name());
}

void ColorPanel::takeChoice() {
    if (_taking)
        return;
    const QScopedValueRollback taking(_taking, true);
    _brush.setValue(_edited, QVariant::fromValue(ESColor(_choice.color())));
}

// What is no colour gives way to the present one.
void ColorPanel::takeHex() {
    const QColor color = colorOfText(_hex->text());
    if (_hex->isModified() && color.isValid())
        _choice.setColor(color);
    _hex->setModified(false);
    _hex->setText(_choice.color().name());
}

void ColorPanel::setPickSide(int pixels) {
    for (QAction* action : _pickSides->actions()) {
        if (action->data().toInt() != pixels)
            continue;
        action->setChecked(true);
        _pickSide = pixels;
        emit pickSideChanged(pixels);
        emit stateChanged();
    }
}

// ---- What was painted with

void ColorPanel::setView(QDDrawView* view) {
    if (_view)
        disconnect(_view, nullptr, this, nullptr);
    _view = view;
    if (_view)
        connect(_view, &QDDrawView::strokeEnded, this, &ColorPanel::noteStroke);
}

// Erasing takes paint away, or paints the paper's colour.
void ColorPanel::noteStroke() {
    const auto color = _brush.value(BrushKey::renderColor).value<ESColor>();
    const bool isPaint = _view && _view->blendType() != int(ESBlendTypeErase) &&
                         _view->renderColor() == color && color.alpha() > 0;
    if (!isPaint || !_recent.add(color.toQColor()))
        return;
    showRecent();
    emit stateChanged();
}

void ColorPanel::showRecent() {
    std::vector<PaletteColor> colors;
    for (const QRgb rgb : _recent.all())
        colors.push_back({rgb, QString()});
    _recentGrid->setColors(std::move(colors));
}

// ---- From run to run

void ColorPanel::readState(QSettings& settings) {
    _recent.fromTexts(settings.value(key("recent")).toStringList());
    showRecent();
    setPickSide(settings.value(key("pickSide"), _pickSide).toInt());
    if (QAbstractButton* button = _pageButtons->button(settings.value(key("page")).toInt()))
        button->click();
    _palettes->show(settings.value(key("palette")).toString());
}

void ColorPanel::writeState(QSettings& settings) const {
    settings.setValue(key("recent"), _recent.toTexts());
    settings.setValue(key("pickSide"), _pickSide);
    settings.setValue(key("page"), _pages->currentIndex());
    settings.setValue(key("palette"), _palettes->shown());
}

}  // namespace dabcanvas::dabpainter
