// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

#include "Brush/BrushModel.h"
#include "Colour/ColorChoice.h"
#include "Colour/RecentColors.h"
#include "Presets/PresetLibrary.h"
#include "Window/Prompts.h"

class QActionGroup;
class QButtonGroup;
class QDDrawView;
class QHBoxLayout;
class QLineEdit;
class QMenu;
class QSettings;
class QStackedWidget;

namespace dabcanvas::dabpainter {

class PalettePage;
class SwatchButton;
class SwatchGrid;

// The brush's two colours: which of them is chosen, and by what. Brush and prompts must outlive it.
class ColorPanel : public QWidget {
    Q_OBJECT

public:
    ColorPanel(BrushModel& brush, const Prompts& prompts, const PresetFolders& brushes,
               QWidget* parent = nullptr);

    // Of the first line alone: what there is no room for is hidden.
    QSize minimumSizeHint() const override;

    // Whose strokes tell which colours are painted with.
    void setView(QDDrawView* view);
    ColorChoice& choice() { return _choice; }
    PalettePage& palettes() { return *_palettes; }
    const RecentColors& recent() const { return _recent; }
    int pickSide() const { return _pickSide; }
    void setPickSide(int pixels);
    // The one that is edited: renderColor or backRenderColor.
    void setEdited(BrushKey key);

    void readState(QSettings& settings);
    void writeState(QSettings& settings) const;

signals:
    void eyedropper();
    void pickSideChanged(int pixels);
    void chosenByPointer();  // who did so wants to paint now
    void stateChanged();     // what writeState() writes

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QHBoxLayout* makeTop();
    QWidget* makePages();
    void makeMenu();
    SwatchButton* addSwatch(BrushKey key, const QString& name);
    void connectParts();
    void showBrush();
    void takeChoice();
    void takeHex();
    void noteStroke();
    void showRecent();

    BrushModel& _brush;
    const Prompts& _prompts;
    QPointer<QDDrawView> _view;
    ColorChoice _choice;
    RecentColors _recent;
    BrushKey _edited = BrushKey::renderColor;
    int _pickSide = 1;
    bool _taking = false;

    SwatchButton *_front, *_back;
    QLineEdit* _hex;
    QMenu* _menu;
    QActionGroup* _pickSides;
    QButtonGroup* _pageButtons;
    QHBoxLayout* _top;
    QWidget* _area;  // of the pages, with their buttons
    QStackedWidget* _pages;
    PalettePage* _palettes;
    SwatchGrid* _recentGrid;
};

}  // namespace dabcanvas::dabpainter
