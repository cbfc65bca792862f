// SPDX-License-Identifier: MIT
#include "Maths/Tools.h"

#include <QDateTime>
#include <QMutex>
#include <QMutexLocker>
#include <cstdlib>
#include <cstring>

QString Tools::dateString() {
    static QMutex mutex;
    static QDateTime last;
    const QMutexLocker lock(&mutex);
    // The local wall clock's fields, held as if they were UTC: a time zone would skip or repeat hours.
    const auto wallClock = [] {
        const QDateTime local = QDateTime::currentDateTime();
        return QDateTime(local.date(), local.time(), Qt::UTC);
    };
    QDateTime now = wallClock();
    if (last.isValid() && now <= last) {
        // The clock was set back, or asked twice in a millisecond, which waits for nothing.
        now = last.addMSecs(1);
    }
    last = now;
    return now.toString(QStringLiteral("yyyyMMddHHmmsszzz"));
}

int Tools::randInteger() {
    return std::rand();
}

std::int32_t Tools::randValueBegin(std::int32_t begin, std::int32_t end) {
    if (begin == end) {
        return begin;
    }
    const std::int64_t distance = std::abs(std::int64_t{end} - begin);
    return static_cast<std::int32_t>(begin + std::rand() % distance);
}

int Tools::string(const QString& string, const QString& isThanString) {
    return std::strcmp(string.toUtf8().constData(), isThanString.toUtf8().constData());
}
