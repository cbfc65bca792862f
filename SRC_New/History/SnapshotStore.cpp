// SPDX-License-Identifier: MIT
#include "History/SnapshotStore.h"

#include <QFile>
#include <QFileInfo>
#include <new>
#include <utility>

#include "History/HistoryLog.h"

namespace dabcanvas {

namespace {

QByteArray contentsOf(const QString& path, qint64 expected, bool* whole) {
    QFile file(path);
    *whole = false;
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) ||
        (expected >= 0 && file.size() != expected)) {
        return {};
    }
    try {
        QByteArray data(static_cast<qsizetype>(file.size()), Qt::Uninitialized);
        *whole = file.read(data.data(), data.size()) == data.size();
        return *whole ? data : QByteArray();
    } catch (const std::bad_alloc&) {
        return {};
    }
}

}  // namespace

// ---- Memory ----

std::shared_ptr<Snapshot> SnapshotStore::cache(const QString& name, const QByteArray& data) {
    auto image = std::make_shared<Snapshot>(data);
    cache(name, image);
    return image;
}

void SnapshotStore::cache(const QString& name, std::shared_ptr<Snapshot> image) {
    const std::lock_guard lock(_mutex);
    Record& record = cached(name, std::move(image));
    record.ticket = ++_lastTicket;
    record.fileSize = -1;
}

std::shared_ptr<Snapshot> SnapshotStore::cacheFileContents(const QString& name, const QByteArray& data) {
    auto image = std::make_shared<Snapshot>(data);
    const std::lock_guard lock(_mutex);
    cached(name, image);
    return image;
}

SnapshotStore::Record& SnapshotStore::cached(const QString& name, std::shared_ptr<Snapshot> image) {
    Record& record = _records[name];
    record.held = std::move(image);
    if (record.place == 0) {
        record.formerPlace = 0;
    }
    enter(record, name);
    return record;
}

// In the place it has, or had.
void SnapshotStore::enter(Record& record, const QString& name) {
    if (record.place == 0) {
        record.place = record.formerPlace != 0 ? record.formerPlace : ++_lastPlace;
    }
    _order.emplace(record.place, name);
    if (record.held->step().isNull()) {
        _images.emplace(record.place, name);
    } else {
        _images.erase(record.place);
    }
}

void SnapshotStore::uncache(Record& record) {
    _order.erase(record.place);
    _images.erase(record.place);
    record.formerPlace = std::exchange(record.place, 0);
}

QStringList SnapshotStore::cachedNames(bool withSteps) const {
    const std::lock_guard lock(_mutex);
    QStringList names;
    for (const auto& [place, name] : withSteps ? _order : _images) {
        names.append(name);
    }
    return names;
}

StepPicture SnapshotStore::step(const QString& name) const {
    const Record record = find(name);
    return record.held ? record.held->step() : StepPicture();
}

int SnapshotStore::cachedCount() const {
    const std::lock_guard lock(_mutex);
    return static_cast<int>(_order.size());
}

qint64 SnapshotStore::cachedBytes() const {
    const std::lock_guard lock(_mutex);
    qint64 bytes = 0;
    for (const auto& [place, name] : _images) {
        bytes += _records.constFind(name)->held->heldBytes();
    }
    return bytes;
}

qint64 SnapshotStore::cachedBytesOf(const QString& name) const {
    const std::lock_guard lock(_mutex);
    const auto record = _records.constFind(name);
    return record == _records.cend() || record->place == 0 ? 0 : record->held->heldBytes();
}

// ---- Another folder ----

void SnapshotStore::moveFiles(const QString& toFolder) {
    const std::lock_guard disk(_disk);
    const std::lock_guard lock(_mutex);
    for (auto record = _records.begin(); record != _records.end(); ++record) {
        if (record->path == record.key()) {
            continue;  // somebody's own file
        }
        const QString path = toFolder + QLatin1Char('/') + QFileInfo(record->path).fileName();
        const bool ours = record->fileSize >= 0 && _isOurs(record->path);
        if (ours && QFile::rename(record->path, path)) {
            record->path = path;
            continue;
        }
        if (record->fileSize >= 0 && !record->held) {
            bool whole = false;
            const QByteArray data = ours ? contentsOf(record->path, record->fileSize, &whole) : QByteArray();
            if (whole) {
                cached(record.key(), std::make_shared<Snapshot>(data));
            } else {
                qCWarning(lcHistory, "%ls cannot be moved: this undo step is lost",
                          qUtf16Printable(record->path));
            }
        }
        record->fileSize = -1;
        record->path.clear();
    }
}

// ---- Reading ----

SnapshotStore::Read SnapshotStore::read(const QString& name, const QString& fallback) const {
    const Record record = find(name);
    if (record.held) {
        return {record.held->data(), false, {}};
    }
    const QString path = record.path.isNull() ? fallback : record.path;
    const bool there = !path.isNull() && _isOurs(path) && QFileInfo(path).isFile();
    if (!there && record.fileSize < 0) {
        return {};
    }
    bool whole = false;
    Read read{there ? contentsOf(path, record.fileSize, &whole) : QByteArray(), true, {}};
    if (!whole) {
        read.problem = (has(name, fallback) ? QStringLiteral("%1 cannot be read")
                                            : QStringLiteral("%1 is gone or damaged: this undo step is lost"))
                           .arg(path);
    }
    return read;
}

bool SnapshotStore::has(const QString& name, const QString& fallback) const {
    const Record record = find(name);
    const QString path = record.path.isNull() ? fallback : record.path;
    const QFileInfo file(path);
    return record.held || (!path.isNull() && _isOurs(path) && file.isFile() && file.isReadable() &&
                           (record.fileSize < 0 || file.size() == record.fileSize));
}

QString SnapshotStore::fileOf(const QString& name) const {
    const std::lock_guard lock(_mutex);
    const auto record = _records.constFind(name);
    return record != _records.cend() && record->fileSize >= 0 ? record->path : QString();
}

QStringList SnapshotStore::names() const {
    const std::lock_guard lock(_mutex);
    QStringList names;
    for (auto record = _records.cbegin(); record != _records.cend(); ++record) {
        if (record->path != record.key()) {
            names.append(record.key());
        }
    }
    return names;
}

}  // namespace dabcanvas
