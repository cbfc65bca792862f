// SPDX-License-Identifier: MIT
#include "ESRender/Utilities/ProgramDictionary.h"

#include <cstdlib>

namespace {
constexpr QLatin1String kPrefix("Type:");
}

QString ProgramDictionary::keyFromType(std::uint64_t type) {
    return kPrefix + QString::number(type);
}

std::int64_t ProgramDictionary::typeFromKey(const QString& key) {
    if (!key.contains(kPrefix)) {
        return kNoType;
    }
    // strtoll stops at the first character that does not belong and keeps to the ends of the range.
    return std::strtoll(QString(key).remove(kPrefix).toUtf8().constData(), nullptr, 10);
}
