// SPDX-License-Identifier: MIT
#include "Presets/PresetFavourites.h"

#include <QFileInfo>

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

void PresetFavourites::follow(const PresetId& from, const PresetId& to) {
    if (_texts.remove(textOf(from)))
        set(to, true);
}

void PresetFavourites::forgetGone() {
    _texts.removeIf([](const QString& text) {
        const QFileInfo file(text.section(QLatin1Char('|'), 1));
        return !file.exists() && QFileInfo(file.path()).isDir();
    });
}

QStringList PresetFavourites::toTexts() const {
    QStringList texts(_texts.begin(), _texts.end());
    texts.sort();
    return texts;
}

}  // namespace dabcanvas::dabpainter
