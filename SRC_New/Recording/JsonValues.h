// SPDX-License-Identifier: MIT
// Values that members have: each reads one, or fails the reader and returns false.
#pragma once

#include <QStringList>
#include <cmath>
#include <cstddef>

#include "Recording/JsonReader.h"

namespace dabcanvas {

inline bool readWhole(JsonReader& reader, double least, double most, double& value) {
    if (!reader.readNumber(value))
        return false;
    return (value == std::floor(value) && value >= least && value <= most) ||
           reader.fail(QStringLiteral("expected a whole number from %1 to %2")
                           .arg(least, 0, 'f', 0)
                           .arg(most, 0, 'f', 0));
}

template <typename Whole>
bool readWhole(JsonReader& reader, double least, double most, Whole& value) {
    double number = 0;
    const bool isRead = readWhole(reader, least, most, number);
    value = Whole(isRead ? number : 0);
    return isRead;
}

inline bool readFloat(JsonReader& reader, float& value) {
    double number = 0;
    if (!reader.readNumber(number))
        return false;
    value = float(number);
    return std::isfinite(value) || reader.fail(QStringLiteral("number out of range"));
}

// A word of a table, as its place there.
template <typename Enum, std::size_t count>
bool readWord(JsonReader& reader, const char* const (&words)[count], Enum& value) {
    QString word;
    if (!reader.readText(word))
        return false;
    QStringList known;
    for (const char* name : words)
        known << QLatin1String(name);
    const auto place = known.indexOf(word);
    if (place < 0)
        return reader.fail(QStringLiteral("expected one of: %1").arg(known.join(QStringLiteral(", "))));
    value = Enum(place);
    return true;
}

}  // namespace dabcanvas
