// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QStringList>

#include "Presets/PresetLibrary.h"

namespace dabcanvas::dabpainter {

// Which presets have a star.
class PresetFavourites {
public:
    bool has(const PresetId& id) const { return _texts.contains(textOf(id)); }
    void set(const PresetId& id, bool on);

    QStringList toTexts() const;
    void fromTexts(const QStringList& texts) { _texts = {texts.begin(), texts.end()}; }

private:
    static QString textOf(const PresetId& id);

    QSet<QString> _texts;
};

}  // namespace dabcanvas::dabpainter
