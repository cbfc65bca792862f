// SPDX-License-Identifier: MIT
#include "History/SnapshotStore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <filesystem>
#include <new>
#include <utility>
#include <vector>

#include "History/HistoryLog.h"

namespace dabcanvas {

namespace {

bool renameOver(const QString& from, const QString& to) {
    std::error_code error;
    std::filesystem::rename(from.toStdU16String(), to.toStdU16String(), error);
    return !error;
}

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

// Not forced onto the disk: after a crash of the machine the history is of no use.
bool writeWholeFile(const QString& path, const QByteArray& data) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered) &&
           file.write(data.constData(), data.size()) == data.size() && file.flush();
}

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

// ---- Disk ----

SnapshotStore::Task SnapshotStore::evict(const QString& name, const QString& path) {
    const std::lock_guard lock(_mutex);
    const auto record = _records.find(name);
    if (record == _records.end() || record->place == 0) {
        return {};
    }
    if (record->fileSize >= 0 && _isOurs(record->path) &&
        QFileInfo(record->path).size() == record->fileSize) {
        uncache(*record);
        record->held.reset();
        return {};
    }
    if (record->path.isNull()) {
        record->path = path;
    }
    if (record->path.isNull()) {
        return {};  // there is nowhere to write it to
    }
    uncache(*record);
    return writing(name, *record, true);
}

SnapshotStore::Task SnapshotStore::write(const QString& name, const QString& path,
                                         std::shared_ptr<Snapshot> image) {
    const std::lock_guard lock(_mutex);
    Record& record = _records[name];
    if (record.place != 0) {
        uncache(record);
    }
    record.held = std::move(image);
    record.fileSize = -1;
    const QString former = std::exchange(record.path, path);
    Task write = writing(name, record, name != path);
    if (former.isNull() || former == path) {
        return write;
    }
    return [this, write = std::move(write), name, former] {
        write();
        const std::lock_guard disk(_disk);
        if (find(name).path != former && _isOurs(former)) {
            QFile::remove(former);  // which names nothing any more
        }
    };
}

SnapshotStore::Task SnapshotStore::replaceFile(const QString& name, const QString& path,
                                               std::shared_ptr<Snapshot> image) {
    const std::lock_guard lock(_mutex);
    const auto record = _records.find(name);
    if (record == _records.end() || record->place == 0) {
        return {};
    }
    record->fileSize = -1;
    record->ticket = ++_lastTicket;
    return [this, name, path, ticket = record->ticket, image = std::move(image)] {
        if (!image) {
            removeFile(name, ticket, path);
        } else if (!writeFile(name, ticket, path, image->data()) && isLatest(name, ticket)) {
            qCWarning(lcHistory, "%ls cannot be written", qUtf16Printable(path));
        }
    };
}

SnapshotStore::Task SnapshotStore::writing(const QString& name, Record& record, bool mayReturn) {
    record.ticket = ++_lastTicket;
    return [this, name, ticket = record.ticket, mayReturn] { runWrite(name, ticket, mayReturn); };
}

bool SnapshotStore::isCurrent(const QString& name, std::uint64_t ticket) const {
    const auto record = _records.constFind(name);
    return record != _records.cend() && record->ticket == ticket;
}

bool SnapshotStore::isLatest(const QString& name, std::uint64_t ticket) const {
    const std::lock_guard lock(_mutex);
    return isCurrent(name, ticket);
}

SnapshotStore::Record SnapshotStore::find(const QString& name) const {
    const std::lock_guard lock(_mutex);
    return _records.value(name);
}

// The file grows under another name and takes its own only while nobody has asked for anything newer.
bool SnapshotStore::writeFile(const QString& name, std::uint64_t ticket, const QString& path,
                              const QByteArray& data) {
    const QString part = QStringLiteral("%1.%2.part").arg(path).arg(ticket);
    const bool written = !data.isNull() && _writer(part, data);
    const std::lock_guard disk(_disk);
    if (written && isLatest(name, ticket) && renameOver(part, path)) {
        return true;
    }
    if (_isOurs(part)) {
        QFile::remove(part);
    }
    return false;
}

void SnapshotStore::removeFile(const QString& name, std::uint64_t ticket, const QString& path) {
    const std::lock_guard disk(_disk);
    if (isLatest(name, ticket) && !path.isNull() && _isOurs(path) && !QFileInfo(path).isDir()) {
        QFile::remove(path);
    }
}

void SnapshotStore::runWrite(const QString& name, std::uint64_t ticket, bool mayReturn) {
    std::shared_ptr<Snapshot> image;
    QString path;
    {
        const std::lock_guard lock(_mutex);
        if (!isCurrent(name, ticket)) {
            return;
        }
        const Record& record = *_records.constFind(name);
        image = record.held;
        path = record.path;
    }
    const QByteArray data = image->data();
    const bool done = writeFile(name, ticket, path, data);

    const std::lock_guard lock(_mutex);
    if (!isCurrent(name, ticket)) {
        return;  // whoever asked for something newer sees to the file
    }
    if (!done) {
        failed(name, path, mayReturn);
    } else if (mayReturn) {
        Record& record = _records[name];
        record.fileSize = data.size();
        record.held.reset();
        _saidFull = false;
    } else {
        _records.remove(name);
    }
}

void SnapshotStore::failed(const QString& name, const QString& path, bool mayReturn) {
    if (!mayReturn) {
        qCWarning(lcHistory, "%ls cannot be written", qUtf16Printable(path));
        _records.remove(name);
        return;
    }
    if (!std::exchange(_saidFull, true)) {
        qCWarning(lcHistory, "%ls cannot be written; undo steps stay in memory until it can",
                  qUtf16Printable(path));
    }
    enter(_records[name], name);
}

SnapshotStore::Task SnapshotStore::remove(const QStringList& names,
                                          const std::function<QString(const QString&)>& pathOf) {
    struct Gone {
        QString name, path;
        std::uint64_t ticket;
    };
    std::vector<Gone> all;
    {
        const std::lock_guard lock(_mutex);
        for (const QString& name : names) {
            Record& record = _records[name];
            if (record.place != 0) {
                uncache(record);
            }
            const QString path = record.path.isNull() ? pathOf(name) : record.path;
            record = Record();
            record.path = path;  // kept until the file has gone, as the name may come back before
            record.ticket = ++_lastTicket;
            all.push_back({name, path, record.ticket});
        }
    }
    return [this, all = std::move(all)] {
        for (const Gone& gone : all) {
            removeFile(gone.name, gone.ticket, gone.path);
            const std::lock_guard lock(_mutex);
            if (isCurrent(gone.name, gone.ticket)) {
                _records.remove(gone.name);
            }
        }
    };
}

SnapshotStore::Task SnapshotStore::empty(const QString& folder, bool onlyOwn) {
    QStringList paths;
    std::uint64_t before = 0;
    {
        const std::lock_guard lock(_mutex);
        before = ++_lastTicket;
        for (auto record = _records.begin(); record != _records.end(); ++record) {
            if (record->path == record.key()) {
                continue;  // somebody's own file
            }
            if (!record->path.isNull()) {
                paths.append(record->path);
            }
            if (record->held && record->place == 0) {  // on its way to the disk: turn back
                enter(*record, record.key());
            }
            record->ticket = before;
            record->fileSize = -1;
        }
        _records.removeIf([](const auto& record) { return !record.value().held; });
    }
    if (!onlyOwn) {
        const auto all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
        for (const QFileInfo& entry : QDir(folder).entryInfoList(all)) {
            paths.append(entry.filePath());
        }
    }
    return [this, paths, before] {
        const std::lock_guard disk(_disk);
        QStringList newer;
        {
            const std::lock_guard lock(_mutex);
            for (const Record& record : std::as_const(_records)) {
                if (record.ticket > before && record.fileSize >= 0) {
                    newer.append(record.path);
                }
            }
        }
        for (const QString& path : paths) {
            if (newer.contains(path) || !_isOurs(path)) {
                continue;
            }
            const QFileInfo info(path);
            if (info.isDir() && !info.isSymLink()) {
                QDir(path).removeRecursively();
            } else {
                QFile::remove(path);
            }
        }
    };
}

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
