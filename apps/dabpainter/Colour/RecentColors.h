// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QStringList>
#include <vector>

namespace dabcanvas::dabpainter {

// The colours that were painted with, the newest first, each once.
class RecentColors {
public:
    static constexpr std::size_t kMost = 16;

    // False when it is the newest already.
    bool add(const QColor& color);
    const std::vector<QRgb>& all() const { return _colors; }

    QStringList toTexts() const;
    void fromTexts(const QStringList& texts);  // what is no colour is left out

private:
    std::vector<QRgb> _colors;
};

// "#rgb" or "#rrggbb", also without its sign, or a name such as "teal"; invalid for anything else.
QColor colorOfText(const QString& text);

}  // namespace dabcanvas::dabpainter
