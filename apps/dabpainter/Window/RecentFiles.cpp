// SPDX-License-Identifier: MIT
#include "Window/RecentFiles.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QSettings>

namespace dabcanvas::dabpainter {

namespace {

const QString kKey = QStringLiteral("recent/files");

}  // namespace

QString recentFileLabel(const QString& path) {
    const QFileInfo info(path);
    const QDir folder = info.dir();
    const QString parent = QFileInfo(folder.path()).dir().dirName();
    const QString place = parent.isEmpty() ? folder.dirName() : parent + QLatin1Char('/') + folder.dirName();
    return place.isEmpty() ? info.fileName() : QStringLiteral("%1 – %2").arg(info.fileName(), place);
}

void RecentFiles::add(const QString& path) {
    const QString whole = QFileInfo(path).absoluteFilePath();
    if (!_paths.isEmpty() && _paths.first() == whole)
        return;
    _paths.removeAll(whole);
    _paths.prepend(whole);
    _paths = _paths.mid(0, kMost);
    emit changed();
}

void RecentFiles::clear() {
    _paths.clear();
    emit changed();
}

QStringList RecentFiles::paths() const {
    QStringList there;
    for (const QString& path : _paths) {
        if (QFileInfo(path).isFile())
            there << path;
    }
    return there;
}

void RecentFiles::fill(QMenu& menu) {
    connect(&menu, &QMenu::aboutToShow, this, [this, &menu] { show(menu); });
    show(menu);
}

void RecentFiles::show(QMenu& menu) {
    menu.clear();
    const QStringList there = paths();
    for (const QString& path : there) {
        QString label = recentFileLabel(path);
        QAction* action = menu.addAction(label.replace(QLatin1Char('&'), QStringLiteral("&&")));
        action->setToolTip(QDir::toNativeSeparators(path));
        connect(action, &QAction::triggered, this, [this, path] { emit chosen(path); });
    }
    if (there.isEmpty())
        menu.addAction(tr("No picture yet"))->setEnabled(false);
    menu.addSeparator();
    QAction* forget = menu.addAction(tr("&Clear List"));
    forget->setEnabled(!_paths.isEmpty());
    connect(forget, &QAction::triggered, this, &RecentFiles::clear);
}

void RecentFiles::read(QSettings& settings) {
    _paths = settings.value(kKey).toStringList().mid(0, kMost);
}

void RecentFiles::write(QSettings& settings) const {
    if (settings.value(kKey).toStringList() != _paths)
        settings.setValue(kKey, _paths);
}

}  // namespace dabcanvas::dabpainter
