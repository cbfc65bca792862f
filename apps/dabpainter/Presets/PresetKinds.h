// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>

#include "Presets/PresetFilter.h"

namespace dabcanvas::dabpainter {

// The kinds of brushes to list: all, favourites, and the tags that there are.
class PresetKinds : public QComboBox {
    Q_OBJECT

public:
    explicit PresetKinds(QWidget* parent = nullptr);

    void setTags(const QStringList& tags);
    // What the user wants to see, as settings keep it; one that is not there, or not yet, is all.
    const QString& wanted() const { return _wanted; }
    void setWanted(const QString& wanted);

signals:
    void chosen(PresetFilter::Kind kind, const QString& tag);
    void wantedChanged();  // by the user

private:
    void choose();

    QString _wanted;
};

}  // namespace dabcanvas::dabpainter
