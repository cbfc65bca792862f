// SPDX-License-Identifier: MIT
#include "Presets/PresetFavourites.h"

namespace dabcanvas::dabpainter {

QString PresetFavourites::textOf(const PresetId& id) {
    return QStringLiteral("%1|%2").arg(id.index).arg(id.path);
}

void PresetFavourites::set(const PresetId& id, bool on) {
    if (on)
        _texts.insert(textOf(id));
    else
        _texts.remove(textOf(id));
}

QStringList PresetFavourites::toTexts() const {
    QStringList texts(_texts.begin(), _texts.end());
    texts.sort();
    return texts;
}

}  // namespace dabcanvas::dabpainter
