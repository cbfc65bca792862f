// SPDX-License-Identifier: MIT
// Where a picture goes: a file that is whole or not there, or standard output.
#pragma once

#include <QByteArray>
#include <QString>

namespace dabcanvas::dabpaint {

class PictureFile {
public:
    explicit PictureFile(QString path) : _path(std::move(path)) {}  // "-" for standard output

    // Whether the file could be written now, so that nobody paints for nothing; leaves nothing behind.
    bool check();
    bool write(const QByteArray& bytes);
    // After a failure.
    const QString& errorString() const { return _error; }

private:
    bool isPlainFile() const;
    bool fail(const QString& reason);

    QString _path;
    QString _error;
};

}  // namespace dabcanvas::dabpaint
