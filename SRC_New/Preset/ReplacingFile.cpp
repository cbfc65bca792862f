// SPDX-License-Identifier: MIT
#include "Preset/ReplacingFile.h"

#include <QFileInfo>
#include <cerrno>
#include <cstring>
#include <utility>
#ifdef Q_OS_UNIX
#include <unistd.h>
#else
#include <io.h>
#endif

namespace {

QString textOfErrno(int error) {
    return QString::fromLocal8Bit(std::strerror(error));
}

#ifdef Q_OS_UNIX
std::FILE* streamOf(int file) {
    return ::fdopen(::dup(file), "wb");
}
bool onTheDisk(std::FILE* file) {
    // Some file systems cannot, and say so.
    return ::fsync(::fileno(file)) == 0 || errno == EINVAL || errno == ENOTSUP || errno == EROFS;
}
#else
std::FILE* streamOf(int file) {
    return ::_fdopen(::_dup(file), "wb");
}
bool onTheDisk(std::FILE*) {
    return true;
}
#endif

}  // namespace

ReplacingFile::ReplacingFile(const QString& path) : _place(path) {
    const QFileInfo there(path);
    if (path.isEmpty() || path.contains(QChar(0))) {
        fail(QStringLiteral("this is not a path"));
    } else if (there.exists() && !there.isFile()) {
        fail(QStringLiteral("it is not a plain file"));
    } else if (there.exists() && !there.isWritable()) {
        fail(QStringLiteral("it may not be written"));
    } else if (!_place.open(QIODevice::WriteOnly)) {
        fail(QStringLiteral("no file can be made in its folder: %1").arg(_place.errorString()));
    } else if (_file = streamOf(_place.handle()); !_file) {
        fail(QStringLiteral("it cannot be written: %1").arg(textOfErrno(errno)));
    }
}

ReplacingFile::~ReplacingFile() {
    if (_file) {
        std::fclose(_file);
    }
}

// QSaveFile puts a file in place without asking whether the disk took all of it.
bool ReplacingFile::close() {
    errno = 0;
    const bool flushed = std::fflush(_file) == 0 && !std::ferror(_file) && onTheDisk(_file);
    if (!flushed && errno == 0) {  // an earlier write failed; another one tells why
        std::fputc(0, _file);
        std::fflush(_file);
    }
    int error = errno;
    // Closed in any case; a disk on the network may only now say that it is full.
    const bool closed = std::fclose(std::exchange(_file, nullptr)) == 0;
    if (flushed && !closed) {
        error = errno;
    }
    return (flushed && closed) || fail(QStringLiteral("it could not be written: %1").arg(textOfErrno(error)));
}

bool ReplacingFile::commit() {
    if (!_file || !close()) {
        return false;
    }
    return _place.commit() ||
           fail(QStringLiteral("it could not be put in place: %1").arg(_place.errorString()));
}

bool ReplacingFile::fail(const QString& problem) {
    _problem = problem;
    return false;
}
