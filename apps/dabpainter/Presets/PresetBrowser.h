// SPDX-License-Identifier: MIT
#pragma once

#include <QFileSystemWatcher>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <memory>

#include "Brush/BrushModel.h"
#include "Presets/PresetChoice.h"
#include "Presets/PresetInfos.h"
#include "Presets/PresetLibrary.h"
#include "Presets/PresetPreviews.h"
#include "Window/Prompts.h"

class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QListView;
class QSettings;

namespace dabcanvas::dabpainter {

class PresetFilter;
class PresetKinds;
class PresetListModel;
class PresetListView;
class PresetMenu;

// The presets to choose from, and what can be done with them. Brush and prompts must outlive it.
class PresetBrowser : public QWidget {
    Q_OBJECT

public:
    // isIdle: whether previews may be painted now.
    PresetBrowser(BrushModel& brush, const Prompts& prompts, PresetFolders folders,
                  std::function<bool()> isIdle, QWidget* parent = nullptr);

    const PresetLibrary& library() const { return _library; }
    const PresetInfos& infos() const { return _infos; }
    const PresetPreviews& previews() const { return _previews; }
    QListView* list() const;
    QLineEdit* search() const { return _search; }
    QComboBox* kinds() const;  // which of them are listed

    // The preset that the brush was made from; an empty id: none.
    const PresetId& chosen() const { return _choice.chosen(); }
    QString chosenName() const { return _choice.name(); }

    // Each asks and tells through the prompts; false when nothing was done.
    bool choose(const PresetId& id) {
        return _choice.choose(id);
    }  // the brush with all settings at their defaults for an empty id
    bool choosePrevious() { return _choice.choosePrevious(); }  // and back again
    // Of those that came with the program.
    bool chooseShipped(const QString& fileName) { return _choice.chooseShipped(fileName); }
    // What makes the present brush, with its unsaved changes, the brush again; its colours are those of the day. It must not
    // outlive the browser.
    std::function<void()> keep() { return _choice.keep(); }
    bool saveNew() { return _choice.saveNew(); }
    bool overwrite(const PresetId& id) { return _choice.overwrite(id); }
    bool rename(const PresetId& id) { return _choice.rename(id); }
    bool remove(const PresetId& id) { return _choice.remove(id); }
    // Takes files over and chooses the last one's last brush; one message for all that cannot be, and for what other
    // programs' brushes have lost.
    bool importFiles(const QStringList& paths) { return _choice.importFiles(paths); }
    bool exportTo(const PresetId& id) { return _choice.exportTo(id); }
    bool isFavourite(const PresetId& id) const;
    void setFavourite(const PresetId& id, bool on);

    // What is not about one preset, for menus.
    QAction* saveAction() const;
    QAction* importAction() const;

    // Which preset it was and whether presets set the colour. The brush itself must have been read before,
    // and is left as it is.
    void readState(QSettings& settings);
    void writeState(QSettings& settings) const;

signals:
    void aboutToUseBrush();  // to exchange or to keep it: a stroke is to end before
    void chosenByPointer();  // who did so wants to paint now
    void stateChanged();     // what writeState() writes
    void renamed(const QString& from, const QString& to);

protected:
    void showEvent(QShowEvent* event) override;
    // Brush files, from elsewhere, and pictures, of which each becomes a brush with that tip.
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void makeLayout();
    void connectList();
    void connectMenu();
    void connectChoice();
    void popUp(const PresetId& target, const QPoint& at);
    void follow(const Preset& preset, const PresetId& now);
    void showChosen();
    void refresh();
    void showNothing();
    void scrollToChosen();
    void setOwnLook();
    PresetId idAt(const QModelIndex& index) const;

    BrushModel& _brush;
    const Prompts& _prompts;
    std::function<bool()> _isIdle;
    PresetLibrary _library;
    PresetPreviews _previews;
    PresetInfos _infos;
    PresetChoice _choice;

    PresetListModel* _model;
    PresetFilter* _filtered;
    PresetListView* _list;
    QLineEdit* _search;
    PresetKinds* _kinds;
    QLabel *_status, *_nothing;
    PresetMenu* _menu;
    QFileSystemWatcher _watcher;
    QTimer _changeTimer, _refreshTimer;
};

}  // namespace dabcanvas::dabpainter
