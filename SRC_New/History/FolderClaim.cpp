// SPDX-License-Identifier: MIT
#include "History/FolderClaim.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>
#include <utility>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace dabcanvas {

QString lockPathOf(const QString& folder) {
    return folder + QLatin1String(".lock");
}

bool makeFolder(const QString& path) {
#ifdef Q_OS_UNIX
    return ::mkdir(QFile::encodeName(path).constData(), 0700) ==
           0;  // the pictures are nobody else's business
#else
    return QDir().mkdir(path);
#endif
}

bool removeFolder(const QString& path) {
    const QFileInfo info(path);
    if (!info.isDir() || info.isSymLink()) {
        return true;
    }
    QFile::setPermissions(path,
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);  // it may be read-only
    return QDir(path).removeRecursively();
}

#ifdef Q_OS_UNIX
namespace {

bool isMine(int file) {
    struct stat info {};
    return ::fstat(file, &info) == 0 && S_ISREG(info.st_mode) && info.st_uid == ::geteuid();
}

QByteArray textIn(int file) {
    char text[512];
    const ssize_t length = ::pread(file, text, sizeof text, 0);
    return length > 0 ? QByteArray(text, static_cast<qsizetype>(length)) : QByteArray();
}

}  // namespace

QByteArray ownerText(const char* how) {
    return QByteArray(how) + ' ' + QSysInfo::machineUniqueId() + ' ' + QSysInfo::machineHostName().toUtf8() +
           '\n';
}

bool isStillAt(int file, const QByteArray& path) {
    struct stat opened {};
    struct stat there {};
    return ::fstat(file, &opened) == 0 && ::lstat(path.constData(), &there) == 0 &&
           opened.st_ino == there.st_ino && opened.st_dev == there.st_dev;
}

bool isOwnFolder(const QString& path) {
    struct stat info {};
    return ::lstat(QFile::encodeName(path).constData(), &info) == 0 && S_ISDIR(info.st_mode) &&
           info.st_uid == ::geteuid();
}

FolderClaim::FolderClaim(const QString& folder, int mode)
    : _path(QFile::encodeName(lockPathOf(folder))),
      _file(::open(_path.constData(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK)),
      _held(_file >= 0 && isMine(_file) && ::flock(_file, mode | LOCK_NB) == 0 && isStillAt(_file, _path)) {}

FolderClaim::~FolderClaim() {
    if (_file >= 0) {
        ::close(_file);
    }
}

QByteArray FolderClaim::owner() const {
    return textIn(_file);
}

void FolderClaim::forget() const {
    ::unlink(_path.constData());
}

int FolderClaim::release() {
    return std::exchange(_file, -1);
}
#endif

}  // namespace dabcanvas
