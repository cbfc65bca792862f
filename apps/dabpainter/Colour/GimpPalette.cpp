// SPDX-License-Identifier: MIT
#include "Colour/GimpPalette.h"

#include <algorithm>

#include "Window/Translations.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr char kMagic[] = "GIMP Palette";
constexpr int kMostColumns = 256;

bool isSpace(char c) {
    return c == ' ' || c == '\t';
}

// A number 0..255 at the front of the line, which loses it; -1 when there is none.
int takeByte(QByteArray& line) {
    line = line.trimmed();
    qsizetype digits = 0;
    while (digits < line.size() && line[digits] >= '0' && line[digits] <= '9')
        ++digits;
    const bool ends = digits == line.size() || isSpace(line[digits]);
    const int value = digits > 0 && digits <= 3 && ends ? line.left(digits).toInt() : -1;
    line.remove(0, digits);
    return value <= 255 ? value : -1;
}

// What stands behind "Key:", if the line begins so.
std::optional<QString> field(const QByteArray& line, const char* key) {
    if (!line.startsWith(key))
        return {};
    return QString::fromUtf8(line.mid(qsizetype(qstrlen(key)))).simplified();
}

std::optional<PaletteColor> colorIn(QByteArray line) {
    const int red = takeByte(line), green = takeByte(line), blue = takeByte(line);
    if (red < 0 || green < 0 || blue < 0)
        return {};
    return PaletteColor{qRgb(red, green, blue), QString::fromUtf8(line).simplified()};
}

// False when the line is none of a palette.
bool takeLine(const QByteArray& line, Palette& palette) {
    if (line.isEmpty() || line.startsWith('#'))
        return true;
    if (const auto color = colorIn(line)) {
        palette.colors.push_back(*color);
        return true;
    }
    if (!palette.colors.empty())
        return false;
    if (const auto name = field(line, "Name:")) {
        palette.name = *name;
        return true;
    }
    const auto columns = field(line, "Columns:");
    if (columns)
        palette.columns = std::clamp(columns->toInt(), 0, kMostColumns);
    return columns.has_value();
}

}  // namespace

std::optional<Palette> readGimpPalette(const QByteArray& bytes, QString& problem) {
    const auto fail = [&problem](const QString& why) {
        problem = why;
        return std::nullopt;
    };
    problem.clear();
    if (bytes.size() > kMostPaletteBytes)
        return fail(tr("it is too large"));
    QByteArray text = bytes;
    if (text.startsWith("\xef\xbb\xbf"))
        text.remove(0, 3);
    text.replace("\r\n", "\n").replace('\r', '\n');
    const QList<QByteArray> lines = text.split('\n');
    if (lines[0].trimmed() != kMagic)
        return fail(tr("it does not begin with \"GIMP Palette\""));
    Palette palette;
    for (qsizetype i = 1; i < lines.size(); ++i) {
        if (!takeLine(lines[i].trimmed(), palette))
            return fail(tr("line %1 is no colour of three numbers up to 255").arg(i + 1));
        if (palette.colors.size() > std::size_t(kMostPaletteColors))
            return fail(tr("it has more than %1 colours").arg(kMostPaletteColors));
    }
    return palette;
}

QByteArray writeGimpPalette(const Palette& palette) {
    QByteArray text = kMagic;
    text += "\nName: " + palette.name.simplified().toUtf8();
    text += "\nColumns: " + QByteArray::number(palette.columns) + "\n#\n";
    for (const PaletteColor& color : palette.colors) {
        for (const int part : {qRed(color.rgb), qGreen(color.rgb), qBlue(color.rgb)})
            text += QByteArray::number(part).rightJustified(3) + ' ';
        text.chop(1);
        text += '\t' + color.name.simplified().toUtf8() + '\n';
    }
    return text;
}

}  // namespace dabcanvas::dabpainter
