// SPDX-License-Identifier: MIT
/// \file
/// Hexadecimal text, the form in which a brush file carries text: "A" is "41".
#pragma once

#include <QString>

#include "Maths/Export.h"

namespace HexText {

/// Upper-case digits without leading zeros; "0" for anything below 1.
DABCANVAS_CANVAS_API QString hexStringWithValue(qint64 value);
/// The one digit of a value, which is clamped to 0..15.
DABCANVAS_CANVAS_API QString hexCharWithValue(qint64 value);

/// The value of one digit in either case; 0 for anything else.
DABCANVAS_CANVAS_API qint64 valueWithHexChar(const QString& digit);
/// The value of a row of digits; 0 when empty. Only the low 64 bits remain of a longer row.
DABCANVAS_CANVAS_API qint64 valueWithHexString(const QString& digits);
DABCANVAS_CANVAS_API qint64 hexValue(const QString& digits);  ///< the same

/// Every UTF-16 unit of a text as two digits, and of a text read from them. Units above 0xFF give three or
/// four digits, deliberately: they are not told apart when read, so only text within U+00FF comes back as it
/// was.
DABCANVAS_CANVAS_API QString hexString(const QString& text);
/// A last digit without a partner is ignored.
DABCANVAS_CANVAS_API QString baseString(const QString& digits);

}  // namespace HexText
