// SPDX-License-Identifier: MIT
// Keeps what the libraries log: a failure of the tool has one line of its own, which may quote it.
#pragma once

#include <QStringList>
#include <QtGlobal>

namespace dabcanvas::dabpaint {

// Takes over Qt's message handler while it lives; the lines are those of the newest one. One at a time.
class LogCatcher {
public:
    LogCatcher() : _before(qInstallMessageHandler(&LogCatcher::take)) { lines().clear(); }
    ~LogCatcher() { qInstallMessageHandler(_before); }
    LogCatcher(const LogCatcher&) = delete;
    LogCatcher& operator=(const LogCatcher&) = delete;

    static QStringList& lines() {
        static QStringList lines;
        return lines;
    }

private:
    static void take(QtMsgType, const QMessageLogContext&, const QString& text) {
        if (lines().size() < 20)
            lines() << text.trimmed();
    }

    QtMessageHandler _before;
};

}  // namespace dabcanvas::dabpaint
