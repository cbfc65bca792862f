// SPDX-License-Identifier: MIT
// A file that is read and written at given places, and stays open: what is in it can be read also when somebody has
// removed it from its folder.
//
// Units    bytes from the file's beginning.
// Thread   read() from any, while another writes; the rest one at a time.
// Errors   never throws. false; problem() says why the last step of a writer failed.
#pragma once

#include <QString>
#include <cstddef>
#include <cstdint>
#include <memory>

#ifndef Q_OS_UNIX
#include <QFile>
#include <mutex>
#endif

namespace dabcanvas {

class SegmentFile {
public:
    // A new file, for its owner alone; null, and the problem in words, where there is one already.
    static std::shared_ptr<SegmentFile> make(const QString& path, QString* problem);
    // One that is there, to be read; null unless it is a plain file. With a problem, it is one that cannot be opened now.
    static std::shared_ptr<SegmentFile> open(const QString& path, QString* problem);
    ~SegmentFile();
    SegmentFile(const SegmentFile&) = delete;
    SegmentFile& operator=(const SegmentFile&) = delete;

    QString path() const { return _path; }
    std::int64_t size() const;
    // All of these bytes or none.
    bool read(std::int64_t offset, void* bytes, std::size_t count) const;

    // Has reached the system when it returns, so that the process may die. What was written when it fails is anything.
    bool write(std::int64_t offset, const void* bytes, std::size_t count);
    bool truncate(std::int64_t size);
    bool sync();  // waits for the disk, for the folder's entry too
    // After write(): the file may not grow any further, though the disk may have room.
    bool isTooLarge() const { return _tooLarge; }
    QString problem() const { return _problem; }

    // False once it was removed from its folder.
    bool isInFolder() const;
    void remove();  // only itself: another file of its name stays

private:
    SegmentFile() = default;
    bool fail();

    QString _path;
    QString _problem;
    bool _tooLarge = false;
#ifdef Q_OS_UNIX
    int _file = -1;
#else
    mutable std::mutex _mutex;
    mutable QFile _file;
#endif
};

}  // namespace dabcanvas
