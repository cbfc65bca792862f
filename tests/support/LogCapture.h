// SPDX-License-Identifier: MIT
// Collects every Qt log message for one scope instead of printing it. One at a time; not for other threads.
#pragma once

#include <QString>
#include <QStringList>

class LogCapture {
public:
    LogCapture();
    ~LogCapture();
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    const QStringList& lines() const { return _lines; }
    bool has(const QString& text) const { return _lines.filter(text).size() > 0; }

private:
    QStringList _lines;
};
