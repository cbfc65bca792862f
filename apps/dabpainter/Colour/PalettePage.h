// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include "Colour/PaletteLibrary.h"
#include "Window/Prompts.h"

class QAction;
class QComboBox;
class QLabel;
class QMenu;

namespace dabcanvas::dabpainter {

class ColorChoice;
class SwatchGrid;

// The palettes: one of them is shown, to choose from and to change. Choice and prompts must outlive it.
class PalettePage : public QWidget {
    Q_OBJECT

public:
    PalettePage(ColorChoice& choice, const Prompts& prompts, PaletteLibrary library,
                QWidget* parent = nullptr);

    const PaletteLibrary& library() const { return _library; }
    SwatchGrid* grid() const { return _grid; }
    // The file of the one that is shown; empty for none.
    QString shown() const;
    void show(const QString& path);

    // Each asks and tells through the prompts; false when nothing was done.
    bool addColor();  // the present one; without a palette, to a new one
    bool removeColor(int index);
    bool renameColor(int index);
    bool makePalette();
    bool renamePalette();
    bool removePalette();
    bool importFiles(const QStringList& paths);
    bool exportPalette();

signals:
    void shownChanged();
    void chosenByPointer();  // who did so wants to paint now

private:
    void makeMenus();
    QAction* add(QMenu* menu, const QString& text, const std::function<void()>& act);
    void list(const QString& path);
    void showPalette();
    const PaletteFile* now() const { return _library.find(shown()); }
    template <typename Change>
    bool change(const Change& change);
    bool succeeds(const QString& fault);

    ColorChoice& _choice;
    const Prompts& _prompts;
    PaletteLibrary _library;
    QComboBox* _names;
    SwatchGrid* _grid;
    QLabel* _nothing;
    QMenu *_menu, *_colorMenu;
    QAction *_rename, *_remove, *_export;
};

}  // namespace dabcanvas::dabpainter
