// SPDX-License-Identifier: MIT
// Palettes as GIMP's files have them: *.gpl.
#pragma once

#include <QByteArray>
#include <QColor>
#include <QString>
#include <optional>
#include <vector>

namespace dabcanvas::dabpainter {

struct PaletteColor {
    QRgb rgb = 0;  // opaque
    QString name;  // one line; may be empty
    bool operator==(const PaletteColor&) const = default;
};

struct Palette {
    QString name;     // one line
    int columns = 0;  // 0: as many as there is room for
    std::vector<PaletteColor> colors;
    bool operator==(const Palette&) const = default;
};

inline constexpr int kMostPaletteColors = 4096;
inline constexpr qsizetype kMostPaletteBytes = 1 << 20;

// None, with a reason that names the line, unless every line of it is understood.
std::optional<Palette> readGimpPalette(const QByteArray& bytes, QString& problem);
QByteArray writeGimpPalette(const Palette& palette);

}  // namespace dabcanvas::dabpainter
