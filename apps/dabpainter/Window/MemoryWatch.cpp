// SPDX-License-Identifier: MIT
#include "Window/MemoryWatch.h"

#include <QFile>
#include <QRegularExpression>

namespace dabcanvas::dabpainter {
namespace {

constexpr int kEvery = 5000;  // milliseconds
constexpr qint64 kShare = 16;

// In KiB; -1 where there is no such line.
qint64 lineOf(const QByteArray& meminfo, const char* name) {
    const QRegularExpression line(QStringLiteral("^%1:\\s+(\\d+) kB$").arg(QLatin1String(name)),
                                  QRegularExpression::MultilineOption);
    const auto match = line.match(QString::fromLatin1(meminfo));
    return match.hasMatch() ? match.captured(1).toLongLong() : -1;
}

}  // namespace

MemoryWatch::MemoryWatch(QObject* parent) : QObject(parent) {
    connect(&_timer, &QTimer::timeout, this, [this] {
        QFile meminfo(QStringLiteral("/proc/meminfo"));
        if (meminfo.open(QIODevice::ReadOnly) && isShort(meminfo.readAll())) {
            emit runsShort();
        }
    });
    _timer.start(kEvery);
}

bool MemoryWatch::isShort(const QByteArray& meminfo) {
    const qint64 total = lineOf(meminfo, "MemTotal"), available = lineOf(meminfo, "MemAvailable");
    return total > 0 && available >= 0 && available < total / kShare;
}

}  // namespace dabcanvas::dabpainter
