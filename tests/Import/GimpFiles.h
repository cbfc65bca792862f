// SPDX-License-Identifier: MIT
// GIMP's brush files as bytes.
#pragma once

#include <QByteArray>

namespace dabcanvas {

inline QByteArray bigEndian(std::initializer_list<std::uint32_t> words) {
    QByteArray bytes;
    for (const std::uint32_t word : words) {
        for (int shift = 24; shift >= 0; shift -= 8) {
            bytes += static_cast<char>(word >> shift & 255);
        }
    }
    return bytes;
}

struct GbrParts {
    std::uint32_t version = 2, width = 2, height = 1, depth = 1, spacing = 25;
    QByteArray name = "Leaf", pixels = QByteArray("\x00\xFF", 2);
};

inline QByteArray gbr(const GbrParts& parts) {
    const std::uint32_t fixed = parts.version == 1 ? 20 : 28;
    QByteArray file = bigEndian({fixed + static_cast<std::uint32_t>(parts.name.size()) + 1, parts.version,
                                 parts.width, parts.height, parts.depth});
    if (parts.version > 1) {
        file += QByteArray("GIMP") + bigEndian({parts.spacing});
    }
    return file + parts.name + '\0' + parts.pixels;
}

inline QByteArray gih(int count, const QByteArray& line, const QByteArray& tip = gbr({})) {
    return "Leaves\n" + QByteArray::number(count) + ' ' + line + '\n' + tip.repeated(count);
}

}  // namespace dabcanvas
