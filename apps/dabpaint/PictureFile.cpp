// SPDX-License-Identifier: MIT
#include "PictureFile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <cstdio>
#include <string_view>

#include "Console.h"

namespace dabcanvas::dabpaint {

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

}  // namespace

bool PictureFile::fail(const QString& reason) {
    _error = reason;
    return false;
}

// A device or a pipe is written into; to replace it by a file would do harm.
bool PictureFile::isPlainFile() const {
    const QFileInfo info(_path);
    return !info.exists() || info.isFile() || info.isDir();
}

bool PictureFile::check() {
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

bool PictureFile::write(const QByteArray& bytes) {
    if (_path == QLatin1String("-")) {
        const bool printed = printOut(std::string_view(bytes.constData(), std::size_t(bytes.size())));
        return (flushOut() && printed) || fail(QStringLiteral("standard output takes no more"));
    }
    if (!isPlainFile()) {
        QFile device(_path);
        const bool written = device.open(QIODevice::WriteOnly) && writeWhole(device, bytes);
        return written || fail(device.errorString());
    }
    QSaveFile file(_path);
    const bool written = file.open(QIODevice::WriteOnly) && writeWhole(file, bytes) && file.commit();
    return written || fail(file.errorString());
}

}  // namespace dabcanvas::dabpaint
