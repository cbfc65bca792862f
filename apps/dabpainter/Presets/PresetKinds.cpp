// SPDX-License-Identifier: MIT
#include "Presets/PresetKinds.h"

#include <QAbstractItemView>
#include <QSignalBlocker>
#include <algorithm>

#include "Window/Translations.h"
#include "Window/Widgets.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr int kAll = 0, kFavourites = 1;  // the first two; tags follow

QString capitalised(const QString& word) {
    return word.left(1).toUpper() + word.mid(1);
}

}  // namespace

PresetKinds::PresetKinds(QWidget* parent) : QComboBox(parent) {
    setObjectName(QStringLiteral("presetKinds"));
    setAccessibleName(tr("Kind of brushes"));
    setToolTip(tr("Which brushes are listed"));
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setMinimumWidth(70);
    view()->setMinimumWidth(130);
    guardFromWheel(this);
    connect(this, &QComboBox::activated, this, [this] {
        _wanted = currentData().toString();
        choose();
        emit wantedChanged();
    });
}

void PresetKinds::setTags(const QStringList& tags) {
    {
        const QSignalBlocker quiet(this);
        clear();
        addItem(tr("All"), QString());
        addItem(tr("Favourites"), QString(QLatin1Char('*')));
        for (const QString& tag : tags)
            addItem(capitalised(trOfTable(tag)), tag);
    }
    choose();
}

void PresetKinds::setWanted(const QString& wanted) {
    _wanted = wanted;
    choose();
}

void PresetKinds::choose() {
    const int index = std::max(kAll, findData(_wanted));
    {
        const QSignalBlocker quiet(this);
        setCurrentIndex(index);
    }
    emit chosen(index == kAll          ? PresetFilter::Kind::all
                : index == kFavourites ? PresetFilter::Kind::favourites
                                       : PresetFilter::Kind::tagged,
                currentData().toString());
}

}  // namespace dabcanvas::dabpainter
