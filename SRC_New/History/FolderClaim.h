// SPDX-License-Identifier: MIT
// What the claim on a folder is made of: a lock file beside it, which tells who has it. For TempFolder alone.
#pragma once

#include <QByteArray>
#include <QString>

namespace dabcanvas {

QString lockPathOf(const QString& folder);
bool makeFolder(const QString& path);    // for its owner alone
bool removeFolder(const QString& path);  // whether it is gone

#ifdef Q_OS_UNIX
// How whoever has a folder came to it.
inline constexpr char kMade[] = "made", kFound[] = "found", kKept[] = "kept";
// What his lock file says: a lock held on another machine may look free from here.
QByteArray ownerText(const char* how);

bool isStillAt(int file, const QByteArray& path);
// Whether it is a folder of this user's, and no link to one.
bool isOwnFolder(const QString& path);

// The lock file of a folder that no living process has, as long as this lives. Whether a process lives is not asked by its
// number, which another may have by now: only the lock tells, and the system takes it from the dead.
class FolderClaim {
public:
    FolderClaim(const QString& folder, int mode);  // LOCK_EX, or LOCK_SH for who only looks
    ~FolderClaim();
    FolderClaim(const FolderClaim&) = delete;
    FolderClaim& operator=(const FolderClaim&) = delete;

    bool isHeld() const { return _held; }
    QByteArray owner() const;
    void forget() const;
    int release();  // the file, whose lock is the caller's from now on

private:
    const QByteArray _path;
    int _file;
    const bool _held;
};
#endif

}  // namespace dabcanvas
