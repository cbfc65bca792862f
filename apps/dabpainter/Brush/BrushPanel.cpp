// SPDX-License-Identifier: MIT
#include "Brush/BrushPanel.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "Presets/SampleStroke.h"
#include "Window/Translations.h"
#include "Window/Widgets.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr int kMargin = 8;

QString settingsKey(BrushGroup group) {
    return QStringLiteral("panel/closed/") +
           QString::fromLatin1(brushGroupName(group)).remove(QLatin1Char(' '));
}

// In the order they are shown in.
std::vector<const BrushProperty*> propertiesAt(BrushPlace place) {
    std::vector<const BrushProperty*> properties;
    for (const BrushProperty& property : brushProperties()) {
        if (brushPresentation(property).place == place)
            properties.push_back(&property);
    }
    std::sort(properties.begin(), properties.end(), [](const BrushProperty* a, const BrushProperty* b) {
        return brushPresentation(*a).order < brushPresentation(*b).order;
    });
    return properties;
}

// A label that is cut rather than pushing the editors out of line; the tool-tip has the rest.
QLabel* makeLabel(const QString& text, int width) {
    auto* label = new QLabel(text);
    label->setFixedWidth(width);
    label->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    return label;
}

}  // namespace

// ---- One row

BrushRow::BrushRow(const BrushProperty& property, BrushModel& model, const Prompts& prompts, int labelWidth,
                   QWidget* parent)
    : QWidget(parent), _property(property), _model(model), _label(brushPresentation(property).label) {
    setObjectName(QString::fromLatin1(property.name));
    const bool isControl = property.type() == BrushValueType::control;
    auto* label = makeLabel(_label, isControl ? QWIDGETSIZE_MAX : labelWidth);
    if (isControl) {
        label->setMinimumWidth(0);
        label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    }
    _editor = makeBrushEditor(property, prompts, labelWidth, nullptr);
    _reset = new GlyphButton(Glyph::reset, tr("Reset %1").arg(_label));
    QSizePolicy keeps = _reset->sizePolicy();
    keeps.setRetainSizeWhenHidden(true);
    _reset->setSizePolicy(keeps);
    label->setBuddy(_editor);
    _editor->setName(_label);

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(2);
    grid->setColumnStretch(1, 1);
    if (isControl) {
        grid->addWidget(label, 0, 0, 1, 2);
        grid->addWidget(_editor, 1, 0, 1, 2);
    } else {
        // In line with the first of what may be several lines.
        const bool isTall =
            property.type() == BrushValueType::image || property.type() == BrushValueType::images;
        label->setMinimumHeight(_reset->height());
        grid->addWidget(label, 0, 0, isTall ? Qt::AlignTop : Qt::AlignVCenter);
        grid->addWidget(_editor, 0, 1);
    }
    grid->addWidget(_reset, 0, 2, Qt::AlignTop);
    // Rich text, so that long ones break into lines.
    setToolTip(
        QStringLiteral("<p>%1</p><p><i>%2</i></p>")
            .arg(trOfTable(QString::fromUtf8(property.about)).toHtmlEscaped(), QLatin1String(property.name)));

    connect(_editor, &BrushEditor::edited, this, &BrushRow::edit);
    connect(_editor, &BrushEditor::cleared, this, [this] { _model.reset(_property.key); });
    connect(_reset, &QToolButton::clicked, this, [this] { _model.reset(_property.key); });
    connect(&model, &BrushModel::changed, this, [this](BrushKey key) {
        if (key == _property.key)
            refresh();
    });
    connect(&model, &BrushModel::presetChanged, this, &BrushRow::refreshReset);
    refresh();
}

void BrushRow::edit(const QVariant& value) {
    if (!_model.setValue(_property.key, value)) {
        refresh();
        return;
    }
    if (_property.key == BrushKey::textureImages)
        _model.setValue(BrushKey::textureType, 0);  // who loads tips wants to paint with them
}

void BrushRow::refresh() {
    _editor->setValue(_model.value(_property.key));
    refreshReset();
}

void BrushRow::refreshReset() {
    _reset->setVisible(!_model.isBase(_property.key));
}

bool BrushRow::matches(const QString& text) const {
    const QString all = _label + QLatin1Char(' ') + QLatin1String(_property.name) + QLatin1Char(' ') +
                        trOfTable(QString::fromUtf8(_property.about));
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return std::all_of(words.begin(), words.end(),
                       [&](const QString& word) { return all.contains(word, Qt::CaseInsensitive); });
}

// ---- One group

BrushSection::BrushSection(BrushGroup group, QWidget* parent)
    : QWidget(parent), _group(group), _title(new QToolButton), _body(new QWidget) {
    _title->setText(brushGroupTitle(group));
    _title->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    _title->setAutoRaise(true);
    _title->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    QFont bold = _title->font();
    bold.setBold(true);
    _title->setFont(bold);
    auto* body = new QVBoxLayout(_body);
    body->setContentsMargins(kMargin, 2, 0, 6);
    body->setSpacing(4);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(_title);
    layout->addWidget(_body);
    connect(_title, &QToolButton::clicked, this, [this] {
        setOpen(!_open);
        emit opened(_open);
    });
    layOut();
}

void BrushSection::add(BrushRow* row) {
    _rows.push_back(row);
    _body->layout()->addWidget(row);
}

void BrushSection::filter(const QString& text) {
    _filter = text.trimmed();
    layOut();
}

void BrushSection::setOpen(bool open) {
    _open = open;
    layOut();
}

void BrushSection::layOut() {
    bool any = false;
    for (BrushRow* row : _rows) {
        const bool shown = row->matches(_filter);
        row->setVisible(shown);
        any = any || shown;
    }
    const bool open = _open || !_filter.isEmpty();
    _title->setArrowType(open ? Qt::DownArrow : Qt::RightArrow);
    _body->setVisible(open);
    setVisible(any || _filter.isEmpty());
}

// ---- The panel

BrushPanel::BrushPanel(BrushModel& model, const Prompts& prompts, QWidget* parent)
    : QWidget(parent), _model(model), _prompts(prompts) {
    for (const BrushProperty& property : brushProperties()) {
        const BrushPresentation shown = brushPresentation(property);
        if (shown.place != BrushPlace::hidden && property.type() != BrushValueType::control)
            _labelWidth = std::max(_labelWidth, fontMetrics().horizontalAdvance(shown.label));
    }
    _labelWidth += 4;

    auto* search = new QLineEdit;
    search->setObjectName(QStringLiteral("search"));
    search->setPlaceholderText(tr("Search settings"));
    search->setAccessibleName(search->placeholderText());
    search->setClearButtonEnabled(true);
    _resetAll = new QPushButton;
    _resetAll->setObjectName(QStringLiteral("resetAll"));
    nameReset();
    auto* line = new QHBoxLayout;
    line->setContentsMargins(kMargin, 0, kMargin, 0);
    line->addWidget(search, 1);
    line->addWidget(_resetAll);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, kMargin, 0, 0);
    layout->setSpacing(kMargin);
    layout->addLayout(line);
    layout->addWidget(makeScroll(), 1);

    connect(search, &QLineEdit::textChanged, this, &BrushPanel::filter);
    connect(_resetAll, &QPushButton::clicked, &model, &BrushModel::resetAll);
    connect(&model, &BrushModel::presetChanged, this, &BrushPanel::nameReset);
}

void BrushPanel::nameReset() {
    _resetAll->setText(_model.preset() ? tr("Reset to preset") : tr("Reset all"));
    _resetAll->setToolTip(_model.preset() ? tr("Gives every brush setting what the chosen brush has")
                                          : tr("Gives every brush setting its default"));
}

BrushRow* BrushPanel::makeRow(const BrushProperty& property) {
    auto* row = new BrushRow(property, _model, _prompts, _labelWidth);
    _rows.push_back(row);
    return row;
}

QWidget* BrushPanel::makeTop() {
    auto* top = new QWidget;
    auto* layout = new QVBoxLayout(top);
    layout->setContentsMargins(kMargin, 0, 0, kMargin);
    layout->setSpacing(4);
    layout->addWidget(_sample = new SampleStroke(_model));
    auto* colors = new QVBoxLayout;
    QHBoxLayout* colorLine = nullptr;
    for (const BrushProperty* property : propertiesAt(BrushPlace::top)) {
        BrushRow* row = makeRow(*property);
        _topRows.push_back(row);
        // The colours stand together, with what acts on them beside.
        if (property->type() == BrushValueType::color) {
            colors->addWidget(row);
            if (!colorLine)
                layout->addLayout(colorLine = new QHBoxLayout);
        } else {
            layout->addWidget(row);
        }
    }
    if (colorLine) {
        auto* swap = new GlyphButton(Glyph::swap, tr("Swap the colours (X)"));
        auto* pick = new GlyphButton(Glyph::eyedropper, tr("Pick a colour from the canvas (I)"));
        connect(swap, &QToolButton::clicked, this, &BrushPanel::swapColors);
        connect(pick, &QToolButton::clicked, this, &BrushPanel::eyedropper);
        _colorButtons = new QWidget;
        auto* buttons = new QVBoxLayout(_colorButtons);
        buttons->setContentsMargins(0, 0, 0, 0);
        buttons->addWidget(swap);
        buttons->addWidget(pick);
        colorLine->addLayout(colors, 1);
        colorLine->addWidget(_colorButtons);
    }
    return top;
}

QWidget* BrushPanel::makeGroups() {
    auto* groups = new QWidget;
    auto* layout = new QVBoxLayout(groups);
    layout->setContentsMargins(0, 0, kMargin, kMargin);
    layout->setSpacing(2);
    for (const BrushProperty* property : propertiesAt(BrushPlace::panel)) {
        auto found = std::find_if(_sections.begin(), _sections.end(), [&](const BrushSection* section) {
            return section->group() == property->group;
        });
        if (found == _sections.end())
            found = _sections.insert(_sections.end(), new BrushSection(property->group, groups));
        (*found)->add(makeRow(*property));
    }
    // As the groups are declared, from the tip to the second line.
    std::sort(_sections.begin(), _sections.end(),
              [](const BrushSection* a, const BrushSection* b) { return a->group() < b->group(); });
    for (BrushSection* section : _sections) {
        layout->addWidget(section);
        connect(section, &BrushSection::opened, this, &BrushPanel::stateChanged);
    }
    _nothing = new QLabel(tr("No setting is called so."));
    _nothing->setAlignment(Qt::AlignCenter);
    _nothing->setEnabled(false);
    _nothing->hide();
    layout->addWidget(_nothing);
    layout->addStretch(1);
    return groups;
}

// All of it scrolls, so that the panel takes what room there is.
QWidget* BrushPanel::makeScroll() {
    auto* content = new QWidget;
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeTop());
    layout->addWidget(makeGroups(), 1);
    auto* scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);  // it follows the row that has it
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    scroll->setWidget(content);
    scroll->setMinimumWidth(std::max(content->minimumSizeHint().width(), _labelWidth + 230) +
                            scroll->verticalScrollBar()->sizeHint().width());
    return scroll;
}

void BrushPanel::filter(const QString& text) {
    bool any = false;
    _sample->setVisible(text.isEmpty());
    if (_colorButtons)
        _colorButtons->setVisible(text.isEmpty());
    for (BrushRow* row : _topRows) {
        row->setVisible(row->matches(text));
        any = any || !row->isHidden();
    }
    for (BrushSection* section : _sections) {
        section->filter(text);
        any = any || !section->isHidden();
    }
    _nothing->setVisible(!any);
}

void BrushPanel::readState(QSettings& settings) {
    for (BrushSection* section : _sections) {
        // At first only what most brushes are made of is open.
        const bool closed = section->group() != BrushGroup::tip && section->group() != BrushGroup::size;
        section->setOpen(!settings.value(settingsKey(section->group()), closed).toBool());
    }
}

void BrushPanel::writeState(QSettings& settings) const {
    for (const BrushSection* section : _sections)
        settings.setValue(settingsKey(section->group()), !section->isOpen());
}

}  // namespace dabcanvas::dabpainter
