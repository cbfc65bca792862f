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
    // The preset is to be found elsewhere now.
    void follow(const PresetId& from, const PresetId& to);
    // Those whose files have gone; not while their folder is missing, which may come back.
    void forgetGone();

    QStringList toTexts() const;
    void fromTexts(const QStringList& texts) { _texts = {texts.begin(), texts.end()}; }

private:
    static QString textOf(const PresetId& id);

    QSet<QString> _texts;
};

}  // namespace dabcanvas::dabpainter
