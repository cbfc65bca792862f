// SPDX-License-Identifier: MIT
// A ZIP archive's entries as bytes, by QuaZip. Nothing of it is unpacked anywhere but into memory.
//
// Errors   false or nothing; also all of it where QuaZip was not there to build with.
#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>
#include <memory>
#include <optional>

namespace dabcanvas::dabpainter {

bool hasZip();
// Whether the bytes begin as an archive does.
bool isZip(const QByteArray& bytes);

class ZipReader {
public:
    // A device that can seek; it stays the caller's.
    explicit ZipReader(QIODevice& device);
    ~ZipReader();
    ZipReader(const ZipReader&) = delete;
    ZipReader& operator=(const ZipReader&) = delete;

    bool isOpen() const;
    // Whole; nothing where there is none of that name, where it is damaged, and where it is longer than `most`, of which
    // no more than that is unpacked.
    std::optional<QByteArray> read(const QString& name, qint64 most);
    // What it begins with, up to `most` bytes.
    QByteArray head(const QString& name, qint64 most);

private:
    struct Inside;
    std::unique_ptr<Inside> _inside;
};

class ZipWriter {
public:
    enum class As { stored, packed };

    explicit ZipWriter(QIODevice& device);
    ~ZipWriter();
    ZipWriter(const ZipWriter&) = delete;
    ZipWriter& operator=(const ZipWriter&) = delete;

    bool add(const QString& name, const QByteArray& bytes, As as);
    bool finish();

private:
    struct Inside;
    std::unique_ptr<Inside> _inside;
};

}  // namespace dabcanvas::dabpainter
