// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>

#include "Presets/PresetLibrary.h"

namespace dabcanvas::dabpainter {

class PresetChoice;

// What can be done with a preset, and with all of them.
class PresetMenu : public QMenu {
    Q_OBJECT

public:
    // The choice must outlive it.
    explicit PresetMenu(PresetChoice& choice, QWidget* parent = nullptr);

    // About this one; null for none.
    void popUp(const Preset* target, bool isFavourite, const QPoint& at);

    // What is not about one preset.
    QAction* saveAction() const { return _save; }
    QAction* importAction() const { return _import; }
    QAction* setsColors() const { return _setsColors; }

signals:
    void importWanted();
    void folderWanted();
    void favouriteWanted(const PresetId& id, bool on);

private:
    QAction* add(const QString& text, const std::function<void()>& act);

    PresetChoice& _choice;
    PresetId _target;
    QAction *_save, *_overwrite, *_rename, *_remove, *_favourite, *_import, *_export, *_setsColors;
};

}  // namespace dabcanvas::dabpainter
