// SPDX-License-Identifier: MIT
#include "SessionFolder.h"

#include <QDir>
#include <QDirIterator>
#include <QUuid>

namespace dabcanvas::dabpainter {

namespace {

// It is there before the folder is: a folder whose lock can be had is nobody's.
std::unique_ptr<QLockFile> lockOf(const QString& folder) {
    auto lock = std::make_unique<QLockFile>(folder + QStringLiteral(".lock"));
    lock->setStaleLockTime(0);  // age says nothing; Qt recognises the dead
    return lock;
}

// -1 when there is none.
qint64 bytesOfPictures(const QString& folder) {
    qint64 bytes = -1;
    QDirIterator files(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        files.next();
        if (!files.fileName().endsWith(QLatin1String(".lock")))
            bytes = std::max<qint64>(bytes, 0) + files.fileInfo().size();
    }
    return bytes;
}

}  // namespace

SessionFolder::SessionFolder(const QString& parent) {
    const QString path = QDir(parent).filePath(QUuid::createUuid().toString(QUuid::Id128));
    QDir().mkpath(parent);
    _lock = lockOf(path);
    if (_lock->tryLock(0) && QDir().mkpath(path))
        _path = path;
}

SessionFolder::~SessionFolder() {
    if (!_path.isEmpty())
        QDir(_path).removeRecursively();
}

QString SessionFolder::pictures() const {
    return _path.isEmpty() ? QString() : QDir(_path).filePath(QStringLiteral("pictures"));
}

SessionFolder::Abandoned SessionFolder::abandoned(const QString& parent) {
    Abandoned found;
    const auto folders = QDir(parent).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QFileInfo& folder : folders) {
        const auto lock = lockOf(folder.filePath());
        if (!lock->tryLock(0))
            continue;
        const qint64 bytes = bytesOfPictures(folder.filePath());
        if (bytes < 0) {
            QDir(folder.filePath()).removeRecursively();
        } else {
            found.folders << folder.filePath();
            found.bytes += bytes;
        }
    }
    return found;
}

}  // namespace dabcanvas::dabpainter
