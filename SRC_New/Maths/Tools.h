// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <cstdint>

#include "Maths/Export.h"

/// Small helpers without a home of their own.
class DABCANVAS_BRUSHES_API Tools {
public:
    /// The local time as "yyyyMMddHHmmssSSS", digits in every locale. Unique in this process and increasing
    /// from call to call, on all threads together, also when the clock is set back (it then counts on from
    /// the last one by milliseconds).
    static QString dateString();

    /// The system's rand().
    static int randInteger();
    /// `begin` when both are equal, else begin to begin + |end - begin| - 1.
    /// Deliberate: never below begin, also when end is.
    static std::int32_t randValueBegin(std::int32_t begin, std::int32_t end);
    /// Compares the UTF-8 bytes: negative, zero or positive, as strcmp.
    static int string(const QString& string, const QString& isThanString);
};
