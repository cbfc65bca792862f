// SPDX-License-Identifier: MIT
// The presets as items of a view.
#pragma once

#include <QAbstractListModel>
#include <QStyledItemDelegate>

#include "Presets/PresetFavourites.h"
#include "Presets/PresetLibrary.h"

namespace dabcanvas::dabpainter {

class PresetInfos;
class PresetPreviews;

// One row a preset, after a first one that stands for the brush with all settings at their defaults.
class PresetListModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role {
        pictureRole = Qt::UserRole,
        chosenRole,
        modifiedRole,
        problemRole,
        plainRole,
        favouriteRole,
        tagsRole,
        aboutRole
    };

    PresetListModel(PresetLibrary& library, PresetPreviews& previews, const PresetInfos& infos,
                    QObject* parent = nullptr);

    // Reads the folders again; favourites that have gone are none any more.
    void refresh();
    const PresetFavourites& favourites() const { return _favourites; }
    void setFavourites(const PresetFavourites& favourites);
    // What was found out only by reading all of it.
    void setProblem(const PresetId& id, const QString& problem);
    // Null for the first row and for what is no row.
    const Preset* presetAt(int row) const;
    int rowOf(const PresetId& id) const;  // -1 when it is not there
    // The first row for an empty id.
    void setChosen(const PresetId& id, bool modified);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QStringList mimeTypes() const override;
    // The files, to be dragged out.
    QMimeData* mimeData(const QModelIndexList& indexes) const override;

private:
    QString toolTip(const Preset* preset) const;
    void rowChanged(int row);

    PresetLibrary& _library;
    PresetPreviews& _previews;
    const PresetInfos& _infos;
    PresetFavourites _favourites;
    std::vector<Preset> _shown;  // as the library was when last looked at
    PresetId _chosen;
    bool _modified = false;
};

// Draws a picture with the name below it, in two lines where it needs them, and a star.
class PresetDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;
    static QSize pictureSize();  // points
    // Where a click makes a favourite of the preset whose cell it is, or none.
    static QRect starRect(const QRect& cell);
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace dabcanvas::dabpainter
