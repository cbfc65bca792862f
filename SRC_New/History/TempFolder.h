// SPDX-License-Identifier: MIT
// A folder that belongs to one owner of one process for as long as this object lives. The claim is a lock
// file beside it, "<folder>.lock", that the system lets go of when the process ends, in whatever way.
//
// Thread   isOurs(), restore() and timesMade() from any, the rest one at a time.
// Errors   never throws: null or false, and `problem` says why in words.
#pragma once

#include <QString>
#include <QStringList>
#include <atomic>
#include <memory>
#include <mutex>

#ifndef Q_OS_UNIX
#include <QLockFile>
#endif

namespace dabcanvas {

class TempFolder {
public:
    // The folder of this path, made when it is missing, with those above it. Null when somebody has claimed
    // it, or it cannot be had. What a dead process of this machine and user had made there is removed first.
    static std::unique_ptr<TempFolder> claim(const QString& path, QString* problem);
    // A new folder "TempDirectory" + four digits in `parent`: number modulo 10000, or the next that is free.
    static std::unique_ptr<TempFolder> claimNumbered(const QString& parent, int number, QString* problem);
    // Removes what dead processes left of such folders in `parent`. Folders of other users or machines stay,
    // and those of whoever is alive.
    static void removeAbandoned(const QString& parent);

    // A new folder in `parent`, "History" + a number beyond all others there, which outlives this process when it dies: it is
    // not removed until somebody takes it over and lets go of it.
    static std::unique_ptr<TempFolder> makeKept(const QString& parent, QString* problem);
    // Such a folder, as if it was made here; null, and why, where it is none, or its process lives.
    static std::unique_ptr<TempFolder> takeKept(const QString& path, QString* problem);
    // Gives it a number beyond all others, so that the numbers tell who was used last. It keeps the old one when it cannot.
    void renumber();
    // The paths of such folders in `parent`, whoever has them, the lowest number first.
    static QStringList keptIn(const QString& parent);
    // Whether the folder was kept by a process of this machine and user that is dead, and nobody has taken it over.
    static bool isLeft(const QString& path);
    // Claims in `parent` whose folder is not there, of whoever died between the two.
    static void removeStrayClaims(const QString& parent);

    // With all that is in it, if it was made here. What cannot be removed is left for whoever starts next.
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    QString path() const { return _path; }
    // From now on the destructor leaves it, with its contents, for whoever takes it over. Of makeKept() and takeKept().
    void leave() { _isLeft = true; }
    // False for one that stood there before: what is in it may be somebody's.
    bool madeHere() const { return _madeHere; }
    // False once the claim was cleared away from outside: somebody else may have the folder now, with files of
    // the same names.
    bool isOurs() const;
    // Makes the folder and its claim again when they have gone. False when that cannot be, or when somebody else
    // has claimed it meanwhile.
    bool restore();
    unsigned timesMade() const { return _timesMade; }

private:
    TempFolder() = default;
    // Null with no problem when the folder is somebody else's.
    static std::unique_ptr<TempFolder> claimOne(const QString& path, bool mayStandThere, QString* problem);
    static void removeIfAbandoned(const QString& path);
    static std::unique_ptr<TempFolder> makeNumbered(const QString& parent, bool withFolder, QString* problem);
    bool lock(QString* problem);
    bool holdsLock() const;
    void unlock(bool forget);
    bool lockAgain();

    QString _path;
    bool _madeHere = false;
    bool _isKept = false, _isLeft = false;
    std::atomic<unsigned> _timesMade{1};
    mutable std::mutex _claim;  // guards the lock
#ifdef Q_OS_UNIX
    int _lockFile = -1;
#else
    std::unique_ptr<QLockFile> _lock;
#endif
};

}  // namespace dabcanvas
