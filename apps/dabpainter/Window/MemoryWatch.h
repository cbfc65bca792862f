// SPDX-License-Identifier: MIT
// Tells when the system runs short of memory, where it can be asked: on Linux.
#pragma once

#include <QByteArray>
#include <QObject>
#include <QTimer>

namespace dabcanvas::dabpainter {

class MemoryWatch : public QObject {
    Q_OBJECT

public:
    explicit MemoryWatch(QObject* parent);

    // Whether less than a sixteenth is free, by the text of /proc/meminfo; not where it does not say.
    static bool isShort(const QByteArray& meminfo);

signals:
    void runsShort();  // again every few seconds while it does

private:
    QTimer _timer;
};

}  // namespace dabcanvas::dabpainter
