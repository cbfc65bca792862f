// SPDX-License-Identifier: MIT
#include "Preset/HexText.h"

#include <algorithm>

namespace HexText {
namespace {

constexpr QLatin1String kDigits("0123456789ABCDEF");

quint64 digitValue(QChar digit) {
    const qsizetype position = kDigits.indexOf(digit.toUpper());
    return position < 0 ? 0 : static_cast<quint64>(position);
}

// Wraps around, as a number of 64 bits does.
quint64 digitsValue(QStringView digits) {
    quint64 value = 0;
    for (const QChar digit : digits) {
        value = value * 16 + digitValue(digit);
    }
    return value;
}

}  // namespace

QString hexStringWithValue(qint64 value) {
    return value < 1 ? QStringLiteral("0") : QString::number(value, 16).toUpper();
}

QString hexCharWithValue(qint64 value) {
    return kDigits.mid(static_cast<qsizetype>(std::clamp<qint64>(value, 0, 15)), 1);
}

qint64 valueWithHexChar(const QString& digit) {
    return digit.size() == 1 ? static_cast<qint64>(digitValue(digit.front())) : 0;
}

qint64 valueWithHexString(const QString& digits) {
    return static_cast<qint64>(digitsValue(digits));
}

qint64 hexValue(const QString& digits) {
    return valueWithHexString(digits);
}

QString hexString(const QString& text) {
    QString digits;
    digits.reserve(text.size() * 2);
    for (const QChar unit : text) {
        const QString own = hexStringWithValue(unit.unicode());
        if (own.size() == 1) {
            digits += QLatin1Char('0');
        }
        digits += own;
    }
    return digits;
}

QString baseString(const QString& digits) {
    QString text;
    text.reserve(digits.size() / 2);
    for (qsizetype i = 0; i + 2 <= digits.size(); i += 2) {
        text += QChar(static_cast<char16_t>(digitsValue(QStringView(digits).mid(i, 2)) & 0xFF));
    }
    return text;
}

}  // namespace HexText
