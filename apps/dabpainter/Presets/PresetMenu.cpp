// SPDX-License-Identifier: MIT
#include "Presets/PresetMenu.h"

#include <QAction>

#include "Presets/PresetChoice.h"

namespace dabcanvas::dabpainter {

PresetMenu::PresetMenu(PresetChoice& choice, QWidget* parent) : QMenu(parent), _choice(choice) {
    _save = add(tr("Save as &New Brush…"), [this] { _choice.saveNew(); });
    _overwrite = add(tr("&Overwrite with Present Settings…"), [this] { _choice.overwrite(_target); });
    _rename = add(tr("&Rename…"), [this] { _choice.rename(_target); });
    _remove = add(tr("&Delete…"), [this] { _choice.remove(_target); });
    _favourite = add(tr("&Favourite"), [this] { emit favouriteWanted(_target, _favourite->isChecked()); });
    _favourite->setCheckable(true);
    addSeparator();
    _import = add(tr("&Import Brushes…"), [this] { emit importWanted(); });
    _export = add(tr("&Export…"), [this] { _choice.exportTo(_target); });
    add(tr("Show &Folder"), [this] { emit folderWanted(); });
    addSeparator();
    _setsColors = add(tr("Presets Set the &Colour"), [] {});
    _setsColors->setCheckable(true);
}

QAction* PresetMenu::add(const QString& text, const std::function<void()>& act) {
    auto* action = addAction(text);
    connect(action, &QAction::triggered, this, act);
    return action;
}

void PresetMenu::popUp(const Preset* target, bool isFavourite, const QPoint& at) {
    const bool isWhole = target && target->problem.isEmpty();
    _target = target ? target->id : PresetId();
    _overwrite->setEnabled(target && target->own && target->siblings == 0);
    _rename->setEnabled(target && target->isEditable());
    _remove->setEnabled(target && target->own);
    _export->setEnabled(isWhole);
    _favourite->setEnabled(target);
    _favourite->setChecked(target && isFavourite);
    popup(at);
}

}  // namespace dabcanvas::dabpainter
