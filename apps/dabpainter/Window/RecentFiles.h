// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QStringList>

class QMenu;
class QSettings;

namespace dabcanvas::dabpainter {

// The pictures that were opened and saved last, the newest first.
class RecentFiles : public QObject {
    Q_OBJECT

public:
    static constexpr int kMost = 10;

    using QObject::QObject;

    void add(const QString& path);
    void clear();
    // Those that are still there.
    QStringList paths() const;

    // Fills the menu each time when it opens.
    void fill(QMenu& menu);

    void read(QSettings& settings);
    void write(QSettings& settings) const;

signals:
    void chosen(const QString& path);
    void changed();

private:
    void show(QMenu& menu);

    QStringList _paths;  // absolute
};

// "holiday.png – Pictures/2026": what tells these files apart, and no more.
QString recentFileLabel(const QString& path);

}  // namespace dabcanvas::dabpainter
