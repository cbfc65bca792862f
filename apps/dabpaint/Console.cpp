// SPDX-License-Identifier: MIT
#include "Console.h"

#include <cerrno>
#include <cstring>

namespace dabcanvas::dabpaint {

namespace {

void complain(const QString& message) {
    // One line, whatever a file name or a driver's message holds.
    QString line = message.trimmed();
    line.replace(QLatin1Char('\n'), QLatin1Char(' '));
    const QByteArray text = "dabpaint: " + line.toUtf8() + '\n';
    std::fwrite(text.constData(), 1, std::size_t(text.size()), stderr);
}

}  // namespace

int fail(const QString& message) {
    complain(message);
    return kFailed;
}

int refuse(const QString& message) {
    complain(message);
    return kUsage;
}

bool printOut(std::string_view text) {
    return std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
}

bool flushOut() {
    return std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
}

int finishOut() {
    if (flushOut())
        return kDone;
    return fail(QStringLiteral("cannot write to standard output: %1")
                    .arg(QString::fromLocal8Bit(std::strerror(errno))));
}

}  // namespace dabcanvas::dabpaint
