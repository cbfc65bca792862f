// SPDX-License-Identifier: MIT
// Where results go: a file that is whole or not there, or standard output.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace dabcanvas {

class OutputFile {
public:
    explicit OutputFile(QString path) : _path(std::move(path)) {}  // "-" for standard output

    // Whether the file could be written now, so that nobody works for nothing; leaves nothing behind.
    bool check();
    bool write(const QByteArray& bytes);
    // After a failure, in the system's words.
    const QString& errorString() const { return _error; }

private:
    bool isPlainFile() const;
    bool fail(const QString& reason);

    QString _path;
    QString _error;
};

// Whether two paths lead to one file, by its device and inode where it is there: through links, and however written.
// "-" is none.
bool isSameFile(const QString& one, const QString& other);

// The message for an output that would take the place of an input, or of another output; nothing when all is well.
QString overwritingRefusal(const QStringList& outputs, const QStringList& inputs);

}  // namespace dabcanvas
