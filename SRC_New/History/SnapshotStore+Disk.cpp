// SPDX-License-Identifier: MIT
// What becomes of a history's files, in tasks that may end in any order.
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <filesystem>
#include <utility>
#include <vector>

#include "History/HistoryLog.h"
#include "History/SnapshotStore.h"

namespace dabcanvas {

namespace {

bool renameOver(const QString& from, const QString& to) {
    std::error_code error;
    std::filesystem::rename(from.toStdU16String(), to.toStdU16String(), error);
    return !error;
}

}  // namespace

// Not forced onto the disk: after a crash of the machine the history is of no use.
bool writeWholeFile(const QString& path, const QByteArray& data) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered) &&
           file.write(data.constData(), data.size()) == data.size() && file.flush();
}

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

}  // namespace dabcanvas
