// SPDX-License-Identifier: MIT
#pragma once

#include <QSortFilterProxyModel>

namespace dabcanvas::dabpainter {

// Of a PresetListModel, what is looked for: every word of a text in name, tags or sentence, and one kind.
class PresetFilter : public QSortFilterProxyModel {
    Q_OBJECT

public:
    enum class Kind { all, favourites, tagged };
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void setText(const QString& text);
    QString text() const { return _text; }
    void setKind(Kind kind, const QString& tag = {});
    Kind kind() const { return _kind; }
    QString tag() const { return _tag; }
    // Why nothing is shown, and what to do.
    QString emptyState() const;

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    QString _text, _tag;
    Kind _kind = Kind::all;
};

}  // namespace dabcanvas::dabpainter
