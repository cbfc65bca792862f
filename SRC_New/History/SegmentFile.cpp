// SPDX-License-Identifier: MIT
#include "History/SegmentFile.h"

#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#endif

namespace dabcanvas {

#ifdef Q_OS_UNIX
namespace {

// Goes on where the system took only a part; the number of bytes that went through.
template <typename Step>
std::size_t transferred(std::size_t count, const Step& step) {
    std::size_t done = 0;
    while (done < count) {
        const ssize_t now = step(done);
        if (now <= 0 && !(now < 0 && errno == EINTR)) {
            break;
        }
        done += now > 0 ? static_cast<std::size_t>(now) : 0;
    }
    return done;
}

}  // namespace

std::shared_ptr<SegmentFile> SegmentFile::make(const QString& path, QString* problem) {
    auto file = std::shared_ptr<SegmentFile>(new SegmentFile);
    file->_path = path;
    file->_file = ::open(QFile::encodeName(path).constData(),
                         O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
    if (file->_file < 0) {
        file->fail();
        *problem = file->_problem;
        return nullptr;
    }
    return file;
}

std::shared_ptr<SegmentFile> SegmentFile::open(const QString& path, QString* problem) {
    auto file = std::shared_ptr<SegmentFile>(new SegmentFile);
    file->_path = path;
    file->_file = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    if (file->_file < 0 && (errno == EMFILE || errno == ENFILE || errno == ENOMEM)) {
        *problem = QString::fromLocal8Bit(std::strerror(errno));
    }
    struct stat info {};
    const bool plain = file->_file >= 0 && ::fstat(file->_file, &info) == 0 && S_ISREG(info.st_mode);
    return plain ? file : nullptr;
}

SegmentFile::~SegmentFile() {
    if (_file >= 0) {
        ::close(_file);
    }
}

bool SegmentFile::fail() {
    _tooLarge = errno == EFBIG;
    _problem = QString::fromLocal8Bit(std::strerror(errno));
    return false;
}

std::int64_t SegmentFile::size() const {
    struct stat info {};
    return ::fstat(_file, &info) == 0 ? std::int64_t{info.st_size} : 0;
}

bool SegmentFile::read(std::int64_t offset, void* bytes, std::size_t count) const {
    return transferred(count, [&](std::size_t done) {
               return ::pread(_file, static_cast<char*>(bytes) + done, count - done,
                              static_cast<off_t>(offset) + static_cast<off_t>(done));
           }) == count;
}

bool SegmentFile::write(std::int64_t offset, const void* bytes, std::size_t count) {
    errno = ENOSPC;  // what a write of no bytes means
    const std::size_t done = transferred(count, [&](std::size_t before) {
        return ::pwrite(_file, static_cast<const char*>(bytes) + before, count - before,
                        static_cast<off_t>(offset) + static_cast<off_t>(before));
    });
    return done == count || fail();
}

bool SegmentFile::truncate(std::int64_t size) {
    return ::ftruncate(_file, static_cast<off_t>(size)) == 0 || fail();
}

bool SegmentFile::sync() {
#ifdef Q_OS_LINUX
    const bool written = ::fdatasync(_file) == 0;
#else
    const bool written = ::fsync(_file) == 0;
#endif
    if (!written) {
        return fail();
    }
    const QByteArray folder = QFile::encodeName(QFileInfo(_path).path());
    const int entry = ::open(folder.constData(), O_RDONLY | O_CLOEXEC | O_DIRECTORY);
    const bool linked = entry >= 0 && (::fsync(entry) == 0 || errno == EINVAL);
    const bool synced = linked || fail();
    if (entry >= 0) {
        ::close(entry);
    }
    return synced;
}

bool SegmentFile::isInFolder() const {
    struct stat opened {};
    struct stat there {};
    return ::fstat(_file, &opened) == 0 && ::lstat(QFile::encodeName(_path).constData(), &there) == 0 &&
           opened.st_ino == there.st_ino && opened.st_dev == there.st_dev;
}

void SegmentFile::remove() {
    if (isInFolder()) {
        ::unlink(QFile::encodeName(_path).constData());
    }
}
#else
std::shared_ptr<SegmentFile> SegmentFile::make(const QString& path, QString* problem) {
    auto file = std::shared_ptr<SegmentFile>(new SegmentFile);
    file->_path = path;
    file->_file.setFileName(path);
    if (!file->_file.open(QIODevice::ReadWrite | QIODevice::NewOnly | QIODevice::Unbuffered)) {
        *problem = file->_file.errorString();
        return nullptr;
    }
    return file;
}

std::shared_ptr<SegmentFile> SegmentFile::open(const QString& path, QString*) {
    auto file = std::shared_ptr<SegmentFile>(new SegmentFile);
    file->_path = path;
    file->_file.setFileName(path);
    const bool plain = QFileInfo(path).isFile() && !QFileInfo(path).isSymLink();
    return plain && file->_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) ? file : nullptr;
}

SegmentFile::~SegmentFile() = default;

bool SegmentFile::fail() {
    _problem = _file.errorString();
    return false;
}

std::int64_t SegmentFile::size() const {
    const std::lock_guard lock(_mutex);
    return _file.size();
}

bool SegmentFile::read(std::int64_t offset, void* bytes, std::size_t count) const {
    const std::lock_guard lock(_mutex);
    return _file.seek(offset) &&
           _file.read(static_cast<char*>(bytes), static_cast<qint64>(count)) == static_cast<qint64>(count);
}

bool SegmentFile::write(std::int64_t offset, const void* bytes, std::size_t count) {
    const std::lock_guard lock(_mutex);
    const auto length = static_cast<qint64>(count);
    return (_file.seek(offset) && _file.write(static_cast<const char*>(bytes), length) == length) || fail();
}

bool SegmentFile::truncate(std::int64_t size) {
    const std::lock_guard lock(_mutex);
    return _file.resize(size) || fail();
}

bool SegmentFile::sync() {
    const std::lock_guard lock(_mutex);
    return _file.flush() || fail();
}

bool SegmentFile::isInFolder() const {
    return QFileInfo::exists(_path);
}

void SegmentFile::remove() {
    const std::lock_guard lock(_mutex);
    _file.remove();
}
#endif

}  // namespace dabcanvas
