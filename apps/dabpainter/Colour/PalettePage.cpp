// SPDX-License-Identifier: MIT
#include "Colour/PalettePage.h"

#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "Colour/ColorChoice.h"
#include "Colour/SwatchGrid.h"
#include "Window/Widgets.h"

namespace dabcanvas::dabpainter {

PalettePage::PalettePage(ColorChoice& choice, const Prompts& prompts, PaletteLibrary library, QWidget* parent)
    : QWidget(parent),
      _choice(choice),
      _prompts(prompts),
      _library(std::move(library)),
      _names(new QComboBox),
      _grid(new SwatchGrid(tr("Colours of the palette"))),
      _nothing(new QLabel(tr("No colours yet: + adds the present one."))),
      _menu(new QMenu(this)),
      _colorMenu(new QMenu(this)) {
    _names->setAccessibleName(tr("Palette"));
    _names->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    guardFromWheel(_names);
    _nothing->setWordWrap(true);
    _nothing->setEnabled(false);
    auto* plus = new GlyphButton(Glyph::add, tr("Add the present colour to the palette"));
    auto* more = new GlyphButton(Glyph::menu, tr("More to do with palettes"));
    auto* line = new QHBoxLayout;
    line->setSpacing(2);
    line->addWidget(_names, 1);
    line->addWidget(plus);
    line->addWidget(more);
    auto* inside = new QWidget;
    auto* column = new QVBoxLayout(inside);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(_nothing);
    column->addWidget(_grid);
    column->addStretch(1);
    auto* scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setMinimumHeight(40);
    scroll->setWidget(inside);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addLayout(line);
    layout->addWidget(scroll, 1);

    makeMenus();
    connect(plus, &QToolButton::clicked, this, &PalettePage::addColor);
    connect(more, &QToolButton::clicked, this,
            [this, more] { _menu->popup(more->mapToGlobal(QPoint(0, more->height()))); });
    connect(_names, &QComboBox::currentIndexChanged, this, [this] {
        showPalette();
        emit shownChanged();
    });
    connect(_grid, &SwatchGrid::chosen, this, [this](int index) {
        _choice.setColor(QColor(_grid->colors()[std::size_t(index)].rgb));
        if (!_grid->hasFocus())
            emit chosenByPointer();
    });
    connect(_grid, &SwatchGrid::removeWanted, this, &PalettePage::removeColor);
    connect(_grid, &SwatchGrid::menuWanted, this, [this](int, const QPoint& at) { _colorMenu->popup(at); });
    list({});
}

QAction* PalettePage::add(QMenu* menu, const QString& text, const std::function<void()>& act) {
    auto* action = menu->addAction(text);
    connect(action, &QAction::triggered, this, act);
    return action;
}

void PalettePage::makeMenus() {
    add(_menu, tr("&New Palette…"), [this] { makePalette(); });
    _rename = add(_menu, tr("&Rename Palette…"), [this] { renamePalette(); });
    _remove = add(_menu, tr("&Delete Palette…"), [this] { removePalette(); });
    _menu->addSeparator();
    add(_menu, tr("&Import Palettes…"), [this] { importFiles(_prompts.pickPalettes(window())); });
    _export = add(_menu, tr("&Export Palette…"), [this] { exportPalette(); });
    add(_colorMenu, tr("Re&name Colour…"), [this] { renameColor(_grid->current()); });
    add(_colorMenu, tr("&Remove Colour"), [this] { removeColor(_grid->current()); });
}

// ---- What is shown

QString PalettePage::shown() const {
    return _names->currentData().toString();
}

void PalettePage::show(const QString& path) {
    const int index = _names->findData(path);
    if (index >= 0)
        _names->setCurrentIndex(index);
}

// Anew, with this one shown where it is there.
void PalettePage::list(const QString& path) {
    const QString before = shown();
    _library.refresh();
    {
        const QSignalBlocker quiet(_names);
        _names->clear();
        for (const PaletteFile& file : _library.all())
            _names->addItem(file.palette.name, file.path);
        show(path);
    }
    showPalette();
    if (shown() != before)
        emit shownChanged();
}

void PalettePage::showPalette() {
    const PaletteFile* file = now();
    _grid->setColors(file ? file->palette.colors : std::vector<PaletteColor>());
    _grid->setVisible(!_grid->colors().empty());
    _nothing->setVisible(_grid->colors().empty());
    _names->setEnabled(file);
    _names->setToolTip(_names->currentText());
    _rename->setEnabled(file);
    _remove->setEnabled(file && file->own);
    _export->setEnabled(file);
}

bool PalettePage::succeeds(const QString& fault) {
    if (!fault.isEmpty())
        _prompts.tell(window(), fault);
    return fault.isEmpty();
}

// ---- What can be done

// To the one that is shown; false when there is none.
template <typename Change>
bool PalettePage::change(const Change& change) {
    const PaletteFile* found = now();
    if (!found)
        return false;
    const PaletteFile file = *found;
    Palette palette = file.palette;
    change(palette);
    QString path = file.path;
    const bool changed = palette != file.palette && succeeds(_library.replace(file, palette, path));
    list(path);
    return changed;
}

bool PalettePage::addColor() {
    if (!now() && !makePalette())
        return false;
    const bool added = change([this](Palette& palette) {
        if (palette.colors.size() < std::size_t(kMostPaletteColors))
            palette.colors.push_back({_choice.color().rgb(), QString()});
    });
    if (added)
        _grid->setCurrent(int(_grid->colors().size()) - 1);
    return added;
}

bool PalettePage::removeColor(int index) {
    return change([index](Palette& palette) {
        if (index >= 0 && index < int(palette.colors.size()))
            palette.colors.erase(palette.colors.begin() + index);
    });
}

bool PalettePage::renameColor(int index) {
    if (index < 0 || index >= int(_grid->colors().size()))
        return false;
    const QString name = _grid->colors()[std::size_t(index)].name;
    const QString wanted = _prompts.askName(window(), tr("Rename Colour"), name).simplified();
    return !wanted.isEmpty() &&
           change([&](Palette& palette) { palette.colors[std::size_t(index)].name = wanted; });
}

bool PalettePage::makePalette() {
    const QString name = _prompts.askName(window(), tr("New Palette"), tr("Palette")).simplified();
    QString path;
    if (name.isEmpty() || !succeeds(_library.add({name, 0, {}}, path)))
        return false;
    list(path);
    return true;
}

bool PalettePage::renamePalette() {
    const PaletteFile* file = now();
    if (!file)
        return false;
    const QString name = _prompts.askName(window(), tr("Rename Palette"), file->palette.name).simplified();
    return !name.isEmpty() && change([&](Palette& palette) { palette.name = name; });
}

bool PalettePage::removePalette() {
    const PaletteFile* found = now();
    if (!found || !found->own)
        return false;
    const PaletteFile file = *found;
    if (!_prompts.confirm(window(), tr("Delete the palette \"%1\"?").arg(file.palette.name),
                          tr("This cannot be taken back."), tr("Delete")))
        return false;
    const bool removed = succeeds(_library.remove(file));
    list({});
    return removed;
}

bool PalettePage::importFiles(const QStringList& paths) {
    QStringList faults;
    QString last;
    for (const QString& path : paths) {
        QString now;
        const QString fault = _library.importFile(path, now);
        if (fault.isEmpty())
            last = now;
        else
            faults << fault;
    }
    if (!last.isEmpty())
        list(last);
    succeeds(faults.join(QLatin1Char('\n')));
    return !last.isEmpty();
}

bool PalettePage::exportPalette() {
    const PaletteFile* file = now();
    if (!file)
        return false;
    const Palette palette = file->palette;
    const QString path =
        _prompts.pickPaletteName(window(), presetFileName(palette.name) + QStringLiteral(".gpl"));
    return !path.isEmpty() && succeeds(PaletteLibrary::exportTo(palette, path));
}

}  // namespace dabcanvas::dabpainter
