// SPDX-License-Identifier: MIT
// Folders that outlive their process.
#include <QDir>
#include <QFileInfo>
#include <QThread>
#include <algorithm>
#include <map>
#include <utility>

#include "History/FolderClaim.h"
#include "History/TempFolder.h"

#ifdef Q_OS_UNIX
#include <sys/file.h>
#endif

namespace dabcanvas {

namespace {

constexpr int kTries = 1000;
const QLatin1String kKeptName("History");

QString keptPath(const QString& parent, quint64 number) {
    return parent + QLatin1Char('/') + kKeptName + QStringLiteral("%1").arg(number, 6, 10, QLatin1Char('0'));
}

// 0 for another's name.
quint64 numberOfKept(const QString& path) {
    const QFileInfo info(path);
    const quint64 number = info.fileName().mid(kKeptName.size()).toULongLong();
    return number != 0 && keptPath(info.path(), number) == path ? number : 0;
}

}  // namespace

// Numbers of claims count, too: their folder may be about to be made.
std::unique_ptr<TempFolder> TempFolder::makeNumbered(const QString& parent, bool withFolder,
                                                     QString* problem) {
    quint64 last = 0;
    for (QString name : QDir(parent).entryList({kKeptName + QLatin1Char('*')})) {
        if (name.endsWith(QLatin1String(".lock"))) {
            name.chop(5);
        }
        last = std::max(last, numberOfKept(parent + QLatin1Char('/') + name));
    }
    for (int i = 0; i < kTries && problem->isEmpty(); ++i) {
        auto folder = std::unique_ptr<TempFolder>(new TempFolder);
        folder->_path = keptPath(parent, ++last);
        folder->_isKept = true;
        if (QFileInfo::exists(folder->_path) || !folder->lock(problem)) {
            continue;
        }
        folder->_madeHere = withFolder && makeFolder(folder->_path);
        if (folder->_madeHere || !withFolder) {
            return folder;
        }
        *problem = QStringLiteral("it cannot be made");
    }
    if (problem->isEmpty()) {
        *problem = QStringLiteral("all its numbers are taken");
    }
    return nullptr;
}

std::unique_ptr<TempFolder> TempFolder::makeKept(const QString& parent, QString* problem) {
    problem->clear();
    const QString absolute = QDir::cleanPath(QFileInfo(parent).absoluteFilePath());
    const bool above = !parent.isEmpty() && QDir().mkpath(QFileInfo(absolute).path());
    if (!above || (!makeFolder(absolute) && !QFileInfo(absolute).isDir())) {
        *problem = QStringLiteral("the folder above it cannot be made");
        return nullptr;
    }
    return makeNumbered(absolute, true, problem);
}

// The new claim is made before the folder moves, the old one goes after: whoever dies in between leaves it claimed.
void TempFolder::renumber() {
    QString problem;
    const std::lock_guard guard(_claim);
    const auto other = makeNumbered(QFileInfo(_path).path(), false, &problem);
    if (other && holdsLock() && QDir().rename(_path, other->_path)) {
        std::swap(_path, other->_path);
#ifdef Q_OS_UNIX
        std::swap(_lockFile, other->_lockFile);
#else
        std::swap(_lock, other->_lock);
#endif
    }
}

QStringList TempFolder::keptIn(const QString& parent) {
    const QString absolute = QDir::cleanPath(QFileInfo(parent).absoluteFilePath());
    std::map<quint64, QString> paths;
    for (const QString& name :
         QDir(absolute).entryList({kKeptName + QLatin1Char('*')}, QDir::Dirs | QDir::NoSymLinks)) {
        const QString path = absolute + QLatin1Char('/') + name;
        if (const quint64 number = numberOfKept(path)) {
            paths.emplace(number, path);
        }
    }
    QStringList sorted;
    for (const auto& [number, path] : paths) {
        sorted.append(path);
    }
    return sorted;
}

#ifdef Q_OS_UNIX
// Who looks whether it is left has it for a moment, too.
std::unique_ptr<TempFolder> TempFolder::takeKept(const QString& path, QString* problem) {
    problem->clear();
    for (int i = 0; i < 20; ++i) {
        FolderClaim claim(path, LOCK_EX);
        if (claim.isHeld() && claim.owner() == ownerText(kKept) && isOwnFolder(path)) {
            auto folder = std::unique_ptr<TempFolder>(new TempFolder);
            folder->_path = path;
            folder->_madeHere = folder->_isKept = true;
            folder->_lockFile = claim.release();
            return folder;
        }
        if (claim.isHeld() || !QFileInfo::exists(lockPathOf(path))) {
            break;
        }
        QThread::msleep(5);
    }
    *problem = QStringLiteral("it is in use, or not there");
    return nullptr;
}

bool TempFolder::isLeft(const QString& path) {
    const FolderClaim claim(path, LOCK_SH);
    return claim.isHeld() && claim.owner() == ownerText(kKept) && isOwnFolder(path);
}

void TempFolder::removeStrayClaims(const QString& parent) {
    for (const QString& lock : QDir(parent).entryList({kKeptName + QLatin1String("*.lock")}, QDir::Files)) {
        const QString path = parent + QLatin1Char('/') + lock.chopped(5);
        if (numberOfKept(path) != 0 && !QFileInfo::exists(path)) {
            const FolderClaim claim(path, LOCK_EX);
            const QByteArray owner = claim.isHeld() ? claim.owner() : QByteArray();
            if (claim.isHeld() && (owner.isEmpty() || owner == ownerText(kKept)) &&
                !QFileInfo::exists(path)) {
                claim.forget();
            }
        }
    }
}
#else
std::unique_ptr<TempFolder> TempFolder::takeKept(const QString& path, QString* problem) {
    auto folder = std::unique_ptr<TempFolder>(new TempFolder);
    folder->_path = path;
    if (QFileInfo::exists(lockPathOf(path)) && QFileInfo(path).isDir() && folder->lock(problem)) {
        folder->_madeHere = folder->_isKept = true;
        return folder;
    }
    *problem = QStringLiteral("it is in use, or not there");
    return nullptr;
}

bool TempFolder::isLeft(const QString& path) {
    QLockFile lock(lockPathOf(path));
    lock.setStaleLockTime(0);
    return QFileInfo::exists(lockPathOf(path)) && QFileInfo(path).isDir() && lock.tryLock(0);
}

void TempFolder::removeStrayClaims(const QString&) {}
#endif

}  // namespace dabcanvas
