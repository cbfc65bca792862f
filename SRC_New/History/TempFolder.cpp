// SPDX-License-Identifier: MIT
#include "History/TempFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "History/FolderClaim.h"

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#endif

namespace dabcanvas {

namespace {

constexpr int kNumbers = 10000;

}  // namespace

#ifdef Q_OS_UNIX
// The file is made by whoever has the folder, never taken over: so nobody can mistake a dead one's for his
// own.
bool TempFolder::lock(QString* problem) {
    const QByteArray path = QFile::encodeName(lockPathOf(_path));
    const int file = ::open(path.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (file < 0) {
        if (errno != EEXIST) {
            *problem = QString::fromLocal8Bit(std::strerror(errno));
        }
        return false;
    }
    // A file system without locks refuses them with other errors; then the file alone is the claim.
    const bool taken = ::flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    if (taken || !isStillAt(file, path)) {
        ::close(file);  // somebody who clears up got hold of it before it was locked, and removes it
        return false;
    }
    const QByteArray owner = ownerText(_isKept ? kKept : _madeHere ? kMade : kFound);
    if (::write(file, owner.constData(), static_cast<std::size_t>(owner.size())) != owner.size() ||
        ::fsync(file) != 0) {
        *problem = QString::fromLocal8Bit(std::strerror(errno));
        ::unlink(path.constData());
        ::close(file);
        return false;
    }
    _lockFile = file;
    return true;
}

bool TempFolder::holdsLock() const {
    return isStillAt(_lockFile, QFile::encodeName(lockPathOf(_path)));
}

void TempFolder::unlock(bool forget) {
    if (forget && holdsLock()) {
        ::unlink(QFile::encodeName(lockPathOf(_path)).constData());
    }
    if (_lockFile >= 0) {
        ::close(_lockFile);
        _lockFile = -1;
    }
}

void TempFolder::removeIfAbandoned(const QString& path) {
    const FolderClaim claim(path, LOCK_EX);
    if (claim.isHeld()) {
        const QByteArray owner = claim.owner();
        if (owner == ownerText(kMade)
                ? removeFolder(path)
                : owner == ownerText(kFound) || (owner.isEmpty() && !QFileInfo::exists(path))) {
            claim.forget();
        }
    }
}

#else
bool TempFolder::lock(QString* problem) {
    _lock = std::make_unique<QLockFile>(lockPathOf(_path));
    _lock->setStaleLockTime(0);  // age says nothing; Qt still recognises the dead
    if (_lock->tryLock(0)) {
        return true;
    }
    if (_lock->error() != QLockFile::LockFailedError) {
        *problem = QStringLiteral("its lock file cannot be made");
    }
    _lock.reset();
    return false;
}

bool TempFolder::holdsLock() const {
    return _lock != nullptr;
}

void TempFolder::unlock(bool) {
    _lock.reset();
}

void TempFolder::removeIfAbandoned(const QString& path) {
    QLockFile lock(lockPathOf(path));
    lock.setStaleLockTime(0);
    if (QFileInfo::exists(lockPathOf(path)) && lock.tryLock(0)) {
        removeFolder(path);
    }
}

#endif

TempFolder::~TempFolder() {
    if (_isLeft) {
        unlock(false);
        return;
    }
    const bool gone = !_madeHere || !lockAgain() || removeFolder(_path);
    unlock(gone);
}

bool TempFolder::isOurs() const {
    const std::lock_guard lock(_claim);
    return holdsLock();
}

bool TempFolder::restore() {
    const std::lock_guard guard(_claim);
    if (!QDir().mkpath(QFileInfo(_path).path()) || !lockAgain()) {
        return false;
    }
    if (makeFolder(_path)) {
        ++_timesMade;
    }
    return QFileInfo(_path).isDir();
}

bool TempFolder::lockAgain() {
    if (holdsLock()) {
        return true;
    }
    unlock(false);
    QString problem;
    if (!lock(&problem)) {
        return false;
    }
    ++_timesMade;
    return true;
}

std::unique_ptr<TempFolder> TempFolder::claimOne(const QString& path, bool mayStandThere, QString* problem) {
    auto folder = std::unique_ptr<TempFolder>(new TempFolder);
    folder->_path = path;
    const bool found = QFileInfo(path).isDir();
    folder->_madeHere = !found;
    if ((found && !mayStandThere) || !folder->lock(problem)) {
        folder->_madeHere = false;
        return nullptr;
    }
    folder->_madeHere = !found && makeFolder(path);
    if (found || folder->_madeHere) {
        return folder;
    }
    if (!QFileInfo::exists(path)) {
        *problem = QStringLiteral("it cannot be made");
    }
    return nullptr;
}

std::unique_ptr<TempFolder> TempFolder::claim(const QString& path, QString* problem) {
    problem->clear();
    const QString absolute = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    if (path.isEmpty() || path.contains(QChar(0)) || QFileInfo(absolute).fileName().isEmpty()) {
        *problem = QStringLiteral("this is not a path of a folder");
        return nullptr;
    }
    if (!QDir().mkpath(QFileInfo(absolute).path())) {
        *problem = QStringLiteral("the folder above it cannot be made");
        return nullptr;
    }
#ifdef Q_OS_UNIX  // elsewhere nothing tells what was made from what was found
    removeIfAbandoned(absolute);
#endif
    const QString canonical = QFileInfo(absolute).canonicalFilePath();  // empty where nothing is
    auto folder = claimOne(canonical.isEmpty() ? absolute : canonical, true, problem);
    if (!folder && problem->isEmpty()) {
        *problem = QStringLiteral("it is in use, or no folder");
    }
    return folder;
}

std::unique_ptr<TempFolder> TempFolder::claimNumbered(const QString& parent, int number, QString* problem) {
    problem->clear();
    if (parent.isEmpty() || !QDir().mkpath(parent)) {
        *problem = QStringLiteral("the folder above it cannot be made");
        return nullptr;
    }
    // The generator is not seeded, so other processes ask for the same number: the next free one does as
    // well.
    for (int i = 0; i < kNumbers; ++i) {
        const int digits = (number % kNumbers + i) % kNumbers;
        auto folder =
            claimOne(QStringLiteral("%1/TempDirectory%2").arg(parent).arg(digits, 4, 10, QLatin1Char('0')),
                     false, problem);
        if (folder || !problem->isEmpty()) {
            return folder;
        }
    }
    *problem = QStringLiteral("all its numbers are taken");
    return nullptr;
}

void TempFolder::removeAbandoned(const QString& parent) {
    const QStringList locks = QDir(parent).entryList(
        {QStringLiteral("TempDirectory[0-9][0-9][0-9][0-9].lock")}, QDir::Files | QDir::System);
    for (const QString& lock : locks) {
        removeIfAbandoned(parent + QLatin1Char('/') + lock.chopped(5));
    }
}

}  // namespace dabcanvas
