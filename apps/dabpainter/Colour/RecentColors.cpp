// SPDX-License-Identifier: MIT
#include "Colour/RecentColors.h"

#include <algorithm>

namespace dabcanvas::dabpainter {

bool RecentColors::add(const QColor& color) {
    const QRgb rgb = color.rgb() | 0xff000000;
    if (!_colors.empty() && _colors[0] == rgb)
        return false;
    _colors.erase(std::remove(_colors.begin(), _colors.end(), rgb), _colors.end());
    _colors.insert(_colors.begin(), rgb);
    _colors.resize(std::min(_colors.size(), kMost));
    return true;
}

QStringList RecentColors::toTexts() const {
    QStringList texts;
    for (const QRgb rgb : _colors)
        texts << QColor(rgb).name();
    return texts;
}

void RecentColors::fromTexts(const QStringList& texts) {
    _colors.clear();
    for (qsizetype i = texts.size(); i > 0; --i) {
        if (const QColor color = colorOfText(texts[i - 1]); color.isValid())
            add(color);
    }
}

QColor colorOfText(const QString& text) {
    const QString word = text.trimmed().toLower();
    const bool isHex = std::all_of(word.begin(), word.end(), [](QChar c) {
        return (c >= QLatin1Char('0') && c <= QLatin1Char('9')) ||
               (c >= QLatin1Char('a') && c <= QLatin1Char('f'));
    });
    QColor color;
    if (isHex && (word.size() == 3 || word.size() == 6))
        color.setNamedColor(QLatin1Char('#') + word);
    else if (!word.startsWith(QLatin1Char('#')) || word.size() == 4 || word.size() == 7)
        color.setNamedColor(word);
    return color.alpha() == 255 ? color : QColor();
}

}  // namespace dabcanvas::dabpainter
