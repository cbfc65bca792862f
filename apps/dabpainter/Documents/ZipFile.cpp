// SPDX-License-Identifier: MIT
#include "Documents/ZipFile.h"

#ifdef DABPAINTER_HAVE_QUAZIP
#include <quazip.h>
#include <quazipfile.h>
#include <quazipnewinfo.h>
#include <zlib.h>
#endif

namespace dabcanvas::dabpainter {

bool isZip(const QByteArray& bytes) {
    return bytes.startsWith(QByteArrayLiteral("PK\x03\x04"));
}

#ifdef DABPAINTER_HAVE_QUAZIP

bool hasZip() {
    return true;
}

// ---- Reading

namespace {

constexpr qint64 kPart = 1 << 20;

}  // namespace

struct ZipReader::Inside {
    explicit Inside(QIODevice& device) : zip(&device) { isOpen = zip.open(QuaZip::mdUnzip); }

    QuaZip zip;
    bool isOpen = false;
};

ZipReader::ZipReader(QIODevice& device) : _inside(std::make_unique<Inside>(device)) {
    _inside->zip.setAutoClose(false);
}
ZipReader::~ZipReader() = default;

bool ZipReader::isOpen() const {
    return _inside->isOpen;
}

std::optional<QByteArray> ZipReader::read(const QString& name, qint64 most) {
    if (!isOpen() || !_inside->zip.setCurrentFile(name, QuaZip::csSensitive))
        return {};
    QuaZipFile file(&_inside->zip);
    if (!file.open(QIODevice::ReadOnly) || file.usize() > most)
        return {};
    // What it says of its length need not be so.
    QByteArray bytes, part;
    while (bytes.size() <= most && !(part = file.read(kPart)).isEmpty())
        bytes += part;
    const bool isWhole = bytes.size() <= most && file.getZipError() == UNZ_OK;
    file.close();  // which compares the sum
    return isWhole && file.getZipError() == UNZ_OK ? std::optional(bytes) : std::nullopt;
}

QByteArray ZipReader::head(const QString& name, qint64 most) {
    if (!isOpen() || !_inside->zip.setCurrentFile(name, QuaZip::csSensitive))
        return {};
    QuaZipFile file(&_inside->zip);
    return file.open(QIODevice::ReadOnly) ? file.read(most) : QByteArray();
}

// ---- Writing

struct ZipWriter::Inside {
    explicit Inside(QIODevice& device) : zip(&device) {
        zip.setDataDescriptorWritingEnabled(
            false);  // what tells the kind of a file looks at what comes first
        zip.setUtf8Enabled(true);
        zip.setAutoClose(false);
        isGood = zip.open(QuaZip::mdCreate);
    }

    QuaZip zip;
    bool isGood = false;
};

ZipWriter::ZipWriter(QIODevice& device) : _inside(std::make_unique<Inside>(device)) {}
ZipWriter::~ZipWriter() = default;

bool ZipWriter::add(const QString& name, const QByteArray& bytes, As as) {
    QuaZipFile file(&_inside->zip);
    const bool packs = as == As::packed;
    bool& isGood = _inside->isGood;
    isGood = isGood &&
             file.open(QIODevice::WriteOnly, QuaZipNewInfo(name), nullptr, 0, packs ? Z_DEFLATED : 0,
                       packs ? Z_DEFAULT_COMPRESSION : 0) &&
             file.write(bytes) == bytes.size();
    file.close();
    isGood = isGood && file.getZipError() == ZIP_OK;
    return isGood;
}

bool ZipWriter::finish() {
    _inside->zip.close();
    return _inside->isGood && _inside->zip.getZipError() == ZIP_OK;
}

#else

bool hasZip() {
    return false;
}

struct ZipReader::Inside {};
ZipReader::ZipReader(QIODevice&) {}
ZipReader::~ZipReader() = default;
bool ZipReader::isOpen() const {
    return false;
}
std::optional<QByteArray> ZipReader::read(const QString&, qint64) {
    return {};
}
QByteArray ZipReader::head(const QString&, qint64) {
    return {};
}

struct ZipWriter::Inside {};
ZipWriter::ZipWriter(QIODevice&) {}
ZipWriter::~ZipWriter() = default;
bool ZipWriter::add(const QString&, const QByteArray&, As) {
    return false;
}
bool ZipWriter::finish() {
    return false;
}

#endif

}  // namespace dabcanvas::dabpainter
