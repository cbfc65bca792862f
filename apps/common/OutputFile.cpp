// SPDX-License-Identifier: MIT
#include "OutputFile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>

namespace dabcanvas {

namespace {

// A disk that fills up first takes a part without an error; only the next attempt tells why. And what is still
// in the buffer must go before QSaveFile::commit(), which does not look at whether that went well.
bool writeWhole(QFileDevice& file, const QByteArray& bytes) {
    for (qint64 done = 0; done < bytes.size();) {
        const qint64 part = file.write(bytes.constData() + done, bytes.size() - done);
        if (part <= 0)
            return false;
        done += part;
    }
    return file.flush() || file.flush();
}

bool printWhole(const QByteArray& bytes) {
    const auto size = std::size_t(bytes.size());
    return std::fwrite(bytes.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0;
}

std::filesystem::path systemPath(const QString& path) {
    return QFile::encodeName(path).toStdString();
}

}  // namespace

bool OutputFile::fail(const QString& reason) {
    _error = reason;
    return false;
}

// A device or a pipe is written into; to replace it by a file would do harm.
bool OutputFile::isPlainFile() const {
    const QFileInfo info(_path);
    return !info.exists() || info.isFile() || info.isDir();
}

bool OutputFile::check() {
    if (_path == QLatin1String("-"))
        return true;
    if (!isPlainFile()) {
        const QFileInfo info(_path);
        return info.isWritable() || fail(QStringLiteral("Permission denied"));
    }
    QSaveFile file(_path);
    if (!file.open(QIODevice::WriteOnly))
        return fail(file.errorString());
    file.cancelWriting();
    return true;
}

bool OutputFile::write(const QByteArray& bytes) {
    if (_path == QLatin1String("-"))
        return printWhole(bytes) || fail(QString::fromLocal8Bit(std::strerror(errno)));
    if (!isPlainFile()) {
        QFile device(_path);
        const bool written = device.open(QIODevice::WriteOnly) && writeWhole(device, bytes);
        return written || fail(device.errorString());
    }
    QSaveFile file(_path);
    const bool written = file.open(QIODevice::WriteOnly) && writeWhole(file, bytes) && file.commit();
    return written || fail(file.errorString());
}

bool isSameFile(const QString& one, const QString& other) {
    if (one == QLatin1String("-") || other == QLatin1String("-"))
        return false;
    std::error_code none;
    const auto first = systemPath(one), second = systemPath(other);
    if (std::filesystem::equivalent(first, second, none))
        return true;
    // Files to come have no inode yet, but their folders do.
    const auto whole = std::filesystem::weakly_canonical(std::filesystem::absolute(first, none), none);
    return !whole.empty() &&
           whole == std::filesystem::weakly_canonical(std::filesystem::absolute(second, none), none);
}

QString overwritingRefusal(const QStringList& outputs, const QStringList& inputs) {
    for (qsizetype i = 0; i < outputs.size(); ++i) {
        for (const QString& input : inputs) {
            if (isSameFile(outputs[i], input))
                return QStringLiteral("%1 is what is read; write elsewhere").arg(input);
        }
        for (const QString& other : outputs.mid(i + 1)) {
            if (isSameFile(outputs[i], other))
                return QStringLiteral("two results would both go to %1").arg(other);
        }
    }
    return {};
}

}  // namespace dabcanvas
