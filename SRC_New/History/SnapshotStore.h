// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>
#include <functional>
#include <map>
#include <memory>
#include <mutex>

#include "History/Snapshot.h"
#include "Maths/Export.h"

namespace dabcanvas {

/// Writes all the data to a new file of this path; false, leaving whatever it likes there, when it cannot.
using FileWriter = std::function<bool(const QString& path, const QByteArray& data)>;
/// Whether what lies at this path may be read and deleted; false when it has become somebody else's.
using PathCheck = std::function<bool(const QString& path)>;
/// The usual one.
DABCANVAS_CANVAS_API bool writeWholeFile(const QString& path, const QByteArray& data);

/// Where the images of a history are: by name in memory, in a file of their own, or in both. What to keep
/// where is the caller's decision; this sees to it that no bytes are lost on the way and no file outlives its
/// name.
///
/// Tasks    what takes long comes back as a task, to be run once, on any thread, while this lives; a null task
///          means there is nothing to do. Whatever order tasks run in, the last one asked for wins: a late
///          write never brings back a file that was dropped, nor replaces a newer one.
/// Thread   any.
/// Errors   never throws. An image that cannot be written stays in memory.
class SnapshotStore {
public:
    using Task = std::function<void()>;

    explicit SnapshotStore(
        FileWriter writer, PathCheck isOurs = [](const QString&) { return true; })
        : _writer(std::move(writer)), _isOurs(std::move(isOurs)) {}
    SnapshotStore(const SnapshotStore&) = delete;
    SnapshotStore& operator=(const SnapshotStore&) = delete;

    // ---- Memory: the cache

    /// Caches the data under the name; of one that is cached already, in the old one's place of the order.
    std::shared_ptr<Snapshot> cache(const QString& name, const QByteArray& data);
    void cache(const QString& name, std::shared_ptr<Snapshot> image);
    /// The same of what read() just got from the name's file, which stays good.
    std::shared_ptr<Snapshot> cacheFileContents(const QString& name, const QByteArray& data);
    /// In the order of their insertion; with what a canvas keeps account of, or without.
    QStringList cachedNames(bool withSteps = true) const;
    /// How many there are.
    int cachedCount() const;
    /// What memory the cached images hold; one that is being compressed counts raw until it is done.
    qint64 cachedBytes() const;
    qint64 cachedBytesOf(const QString& name) const;

    // ---- Disk

    /// Takes a name out of the cache into its file. When the file cannot be written, it returns to the cache,
    /// to its old place.
    Task evict(const QString& name, const QString& path);
    /// Writes an image without caching it; one that cannot be written is cached then. A name that is the path
    /// means a file of somebody's own: written, and forgotten, whether that went well or not.
    Task write(const QString& name, const QString& path, std::shared_ptr<Snapshot> image);
    /// Puts a picture into the file of a name, null: deletes it, while what is cached stays the name's image. Null
    /// when the name is not cached.
    Task replaceFile(const QString& name, const QString& path, std::shared_ptr<Snapshot> image);
    /// Forgets these names at once; the task deletes the files, at the paths given where it knows no other.
    Task remove(const QStringList& names, const std::function<QString(const QString&)>& pathOf);
    /// The task deletes all files of the names and everything else that is in the folder now, unless
    /// `onlyOwn`. What is in memory stays.
    Task empty(const QString& folder, bool onlyOwn);
    /// Moves all files to another folder, while no task runs. What cannot be moved returns to the cache.
    void moveFiles(const QString& toFolder);

    // ---- Reading

    /// What read() found.
    struct Read {
        QByteArray data;  ///< null when neither memory nor file has it
        bool fromFile = false;
        /// In words: a file that was written is gone, or not as long as it was, or unreadable.
        QString problem;
    };
    Read read(const QString& name, const QString& path) const;
    /// What a canvas keeps under the name; null for any other.
    StepPicture step(const QString& name) const;
    /// Whether read() would find the image, given the memory.
    bool has(const QString& name, const QString& path) const;
    /// Where the name's file is, null when none was written.
    QString fileOf(const QString& name) const;
    QStringList names() const;  ///< of all images, wherever they are, in no order

private:
    struct Record {
        std::shared_ptr<Snapshot> held;  // null: only in the file
        std::uint64_t place = 0;         // in the cache's order; 0: not cached
        std::uint64_t formerPlace = 0;   // to return to when the file cannot be written
        std::uint64_t ticket = 0;        // of the last task asked for; older ones do nothing
        QString path;                    // the file's; null: never had one
        qint64 fileSize = -1;            // as written; -1: what is there, if anything, is of no use
    };

    Record& cached(const QString& name, std::shared_ptr<Snapshot> image);
    void uncache(Record& record);
    void enter(Record& record, const QString& name);
    Task writing(const QString& name, Record& record, bool mayReturn);
    void runWrite(const QString& name, std::uint64_t ticket, bool mayReturn);
    bool writeFile(const QString& name, std::uint64_t ticket, const QString& path, const QByteArray& data);
    void removeFile(const QString& name, std::uint64_t ticket, const QString& path);
    bool isCurrent(const QString& name, std::uint64_t ticket) const;
    bool isLatest(const QString& name, std::uint64_t ticket) const;
    Record find(const QString& name) const;
    void failed(const QString& name, const QString& path, bool mayReturn);

    const FileWriter _writer;
    const PathCheck _isOurs;
    std::mutex _disk;           // files get their final names, or go, one at a time; taken before _mutex
    mutable std::mutex _mutex;  // everything below; never held while files are read or written
    QHash<QString, Record> _records;
    std::map<std::uint64_t, QString> _order;
    std::map<std::uint64_t, QString> _images;  // of these, all but what a canvas keeps account of
    std::uint64_t _lastPlace = 0;
    std::uint64_t _lastTicket = 0;
    bool _saidFull = false;
};

}  // namespace dabcanvas
