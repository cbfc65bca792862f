// SPDX-License-Identifier: MIT
#pragma once

#include <QFileSystemWatcher>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <memory>

#include "Brush/BrushModel.h"
#include "Presets/PresetInfos.h"
#include "Presets/PresetLibrary.h"
#include "Presets/PresetPreviews.h"
#include "Window/Prompts.h"

class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QListView;
class QMenu;
class QSettings;

namespace dabcanvas::dabpainter {

class PresetFilter;
class PresetListModel;

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
    QListView* list() const { return _list; }
    QLineEdit* search() const { return _search; }
    QComboBox* kinds() const { return _kinds; }  // which of them are listed

    // The preset that the brush was made from; an empty id: none.
    const PresetId& chosen() const { return _chosen; }
    QString chosenName() const { return _chosenName; }

    // Each asks and tells through the prompts; false when nothing was done.
    bool choose(const PresetId& id);  // the brush with all settings at their defaults for an empty id
    bool choosePrevious();            // and back again
    bool chooseShipped(const QString& fileName);  // of those that came with the program
    // What makes the present brush, with its unsaved changes, the brush again; its colours are those of the day. It must not
    // outlive the browser.
    std::function<void()> keep();
    bool saveNew();
    bool overwrite(const PresetId& id);
    bool rename(const PresetId& id);
    bool remove(const PresetId& id);
    // Takes files over and chooses the last one's last brush; one message for all that cannot be, and for what other
    // programs' brushes have lost.
    bool importFiles(const QStringList& paths);
    bool exportTo(const PresetId& id);
    bool isFavourite(const PresetId& id) const;
    void setFavourite(const PresetId& id, bool on);

    // What is not about one preset, for menus.
    QAction* saveAction() const { return _save; }
    QAction* importAction() const { return _import; }

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
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    // Brush files, from elsewhere, and pictures, of which each becomes a brush with that tip.
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void makeActions();
    void makeLayout();
    QAction* add(const QString& text, const std::function<void()>& act);
    void popUp(const PresetId& target, const QPoint& at);
    void follow(const Preset& preset, const PresetId& now);
    void setChosen(const PresetId& id, const QString& name);
    void showChosen();
    void refresh();
    void showNothing();
    void scrollToChosen();
    void setOwnLook();
    void listKinds();
    void chooseKind();
    bool filterStar(const QEvent& event);
    PresetId idAt(const QModelIndex& index) const;
    bool succeeds(const QString& fault);

    BrushModel& _brush;
    const Prompts& _prompts;
    std::function<bool()> _isIdle;
    PresetLibrary _library;
    PresetPreviews _previews;
    PresetInfos _infos;
    PresetId _chosen, _previous, _target;  // the target of the menu
    QString _chosenName;

    PresetListModel* _model;
    PresetFilter* _filtered;
    QListView* _list;
    QLineEdit* _search;
    QComboBox* _kinds;
    QString _wantedKind;  // may be a tag that is not known yet
    bool _starPressed = false;
    QLabel *_status, *_nothing;
    QMenu* _menu;
    QAction *_save, *_overwrite, *_rename, *_remove, *_import, *_export, *_favourite, *_setsColors;
    QFileSystemWatcher _watcher;
    QTimer _changeTimer, _refreshTimer;
};

}  // namespace dabcanvas::dabpainter
