// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <QVariant>
#include <cstdint>
#include <limits>

#include "Maths/Export.h"

/// A dictionary with text keys whose values can also be stored under an unsigned integer type.
class DABCANVAS_RENDER_API ProgramDictionary : public QHash<QString, QVariant> {
public:
    static constexpr std::int64_t kNoType = (std::numeric_limits<std::int64_t>::max)();

    /// "Type:" followed by the type in decimal.
    static QString keyFromType(std::uint64_t type);
    /// The integer a key stands for once every "Type:" is taken out (leading blanks and a sign allowed, up to
    /// the first other character; 0 when there is none), or kNoType for a key without "Type:".
    static std::int64_t typeFromKey(const QString& key);

    void setValue(const QVariant& value, std::uint64_t forType) { insert(keyFromType(forType), value); }
    /// An invalid QVariant when nothing is stored.
    QVariant valueForType(std::uint64_t type) const { return value(keyFromType(type)); }
};
