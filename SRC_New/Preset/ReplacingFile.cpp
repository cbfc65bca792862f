// SPDX-License-Identifier: MIT
#include "Preset/ReplacingFile.h"

#include <QRandomGenerator>
#include <cerrno>
#include <string>
#include <system_error>
#include <utility>
#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

#include "Preset/XBF.h"

namespace fs = std::filesystem;

namespace {

QString textOf(const std::error_code& error) {
    return QString::fromLocal8Bit(error.message());
}

QString textOfErrno(int error) {
    return textOf(std::error_code(error, std::generic_category()));
}

fs::path pathOf(const QByteArray& utf8) {
    return fs::path(std::u8string(reinterpret_cast<const char8_t*>(utf8.constData()),
                                  static_cast<std::size_t>(utf8.size())));
}

std::string utf8Of(const fs::path& path) {
    const std::u8string text = path.u8string();
    return std::string(text.begin(), text.end());
}

// Where a chain of links ends, also when nothing stands there yet.
fs::path followed(fs::path path, std::error_code& error) {
    constexpr int kMostLinks = 40;
    for (int i = 0; i < kMostLinks && fs::is_symlink(fs::symlink_status(path, error)); ++i) {
        const fs::path next = fs::read_symlink(path, error);
        if (error) {
            return path;
        }
        path = path.parent_path() / next;
    }
    return path;
}

#ifdef Q_OS_UNIX
bool onTheDisk(std::FILE* file) {
    // Some file systems cannot, and say so.
    return ::fsync(::fileno(file)) == 0 || errno == EINVAL || errno == ENOTSUP || errno == EROFS;
}
bool mayBeWritten(const fs::path& path) {
    return ::access(path.c_str(), W_OK) == 0;
}
#else
bool onTheDisk(std::FILE*) {
    return true;
}
bool mayBeWritten(const fs::path& path) {
    std::error_code error;
    return (fs::status(path, error).permissions() & fs::perms::owner_write) != fs::perms::none;
}
#endif

}  // namespace

ReplacingFile::ReplacingFile(const QString& path) {
    if (!findTarget(path)) {
        return;
    }
    // A short name of its own: the target's may be as long as the file system allows.
    const QString name =
        QStringLiteral(".xbf-%1.tmp").arg(QRandomGenerator::global()->generate64(), 16, 16, QLatin1Char('0'));
    _temporary = _target.parent_path() / name.toStdString();
    _file = XBFCreate(utf8Of(_temporary).c_str());
    if (!_file) {
        const int error = errno;
        _temporary.clear();
        fail(QStringLiteral("no file can be made in its folder: %1").arg(textOfErrno(error)));
    }
}

ReplacingFile::~ReplacingFile() {
    XBFClose(_file);
    std::error_code ignored;
    if (!_temporary.empty()) {
        fs::remove(_temporary, ignored);
    }
}

bool ReplacingFile::findTarget(const QString& path) {
    if (path.isEmpty() || path.contains(QChar(0))) {
        return fail(QStringLiteral("this is not a path"));
    }
    std::error_code error;
    _target = followed(pathOf(path.toUtf8()), error);
    const fs::file_status status = fs::status(_target, error);
    if (fs::exists(status) && !fs::is_regular_file(status)) {
        return fail(QStringLiteral("it is not a plain file"));
    }
    if (fs::exists(status) && !mayBeWritten(_target)) {
        return fail(QStringLiteral("it may not be written"));
    }
    return true;
}

bool ReplacingFile::close() {
    errno = 0;
    const bool flushed = std::fflush(_file) == 0 && !std::ferror(_file) && onTheDisk(_file);
    if (!flushed && errno == 0) {  // an earlier write failed; another one tells why
        std::fputc(0, _file);
        std::fflush(_file);
    }
    int error = errno;
    // Closed in any case; a disk on the network may only now say that it is full.
    const bool closed = XBFClose(std::exchange(_file, nullptr)) == 0;
    if (flushed && !closed) {
        error = errno;
    }
    return (flushed && closed) || fail(QStringLiteral("it could not be written: %1").arg(textOfErrno(error)));
}

bool ReplacingFile::commit() {
    if (!_file || !close()) {
        return false;
    }
    std::error_code error;
    const fs::file_status old = fs::status(_target, error);
    if (fs::exists(old)) {
        fs::permissions(_temporary, old.permissions(), error);
    }
    fs::rename(_temporary, _target, error);
    if (error) {
        return fail(QStringLiteral("it could not be put in place: %1").arg(textOf(error)));
    }
    _temporary.clear();
    return true;
}

bool ReplacingFile::fail(const QString& problem) {
    _problem = problem;
    return false;
}
