// SPDX-License-Identifier: MIT
#include "Presets/PresetFilter.h"

#include <algorithm>

#include "Presets/PresetList.h"
#include "Window/Translations.h"

namespace dabcanvas::dabpainter {

void PresetFilter::setText(const QString& text) {
    _text = text.simplified();
    invalidateFilter();
}

void PresetFilter::setKind(Kind kind, const QString& tag) {
    _kind = kind;
    _tag = tag;
    invalidateFilter();
}

QString PresetFilter::emptyState() const {
    if (!_text.isEmpty())
        return _kind == Kind::all
                   ? tr("No brush is called \"%1\": clear the search.").arg(_text)
                   : tr("None of these is called \"%1\": clear the search, or show all brushes.").arg(_text);
    return _kind == Kind::favourites
               ? tr("No favourites yet: a click on the star of a brush makes it one, or * in the list.")
               : tr("No brush is of this kind: show all brushes.");
}

bool PresetFilter::filterAcceptsRow(int row, const QModelIndex& parent) const {
    const QModelIndex index = sourceModel()->index(row, 0, parent);
    const QStringList tags = index.data(PresetListModel::tagsRole).toStringList();
    const bool isOfKind = _kind == Kind::all || (_kind == Kind::tagged && tags.contains(_tag)) ||
                          (_kind == Kind::favourites && index.data(PresetListModel::favouriteRole).toBool());
    if (!isOfKind)
        return false;
    QStringList texts = tags;
    for (const QString& tag : tags)
        texts << trOfTable(tag);
    texts << index.data().toString() << index.data(PresetListModel::aboutRole).toString();
    const QString all = texts.join(QLatin1Char(' '));
    const QStringList words = _text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return std::all_of(words.begin(), words.end(),
                       [&](const QString& word) { return all.contains(word, Qt::CaseInsensitive); });
}

}  // namespace dabcanvas::dabpainter
