// SPDX-License-Identifier: MIT
// The folder of a history, and what happens to the files in it.
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QThread>
#include <algorithm>
#include <cstdlib>
#include <utility>

#include "History/BackgroundQueue.h"
#include "History/HistoryLog.h"
#include "History/ImagesUndoManager.h"
#include "History/TempFolder.h"
#include "History/TileStore.h"
#include "Maths/Tools.h"

using namespace dabcanvas;

void ImagesUndoManager::startFolder() {
    const QString caches = QStandardPaths::writableLocation(QStandardPaths::CacheLocation);
    QString problem;
    _folder = TempFolder::claimNumbered(caches, std::abs(Tools::randInteger() % 10000), &problem);
    if (!_folder) {
        qCWarning(lcHistory, "There is no folder for undo steps in \"%ls\" (%ls): they stay in memory",
                  qUtf16Printable(caches), qUtf16Printable(problem));
        return;
    }
    asynOperator([caches] { TempFolder::removeAbandoned(caches); });
}

QString ImagesUndoManager::tempDirectory() const {
    const std::lock_guard lock(_operation);
    return _folder ? _folder->path() : QString();
}

bool ImagesUndoManager::setTempDirectory(const QString& path) {
    const std::lock_guard lock(_operation);
    const QString present = _folder ? _folder->path() : QString();
    const QString wanted = path.isEmpty() ? path : QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    if (wanted == present) {
        return true;
    }
    QString problem = QStringLiteral("it goes with the folder it is in");
    std::unique_ptr<TempFolder> folder;
    if (!_folder || !wanted.startsWith(present + QLatin1Char('/'))) {
        folder = TempFolder::claim(path, &problem);
    }
    if (!folder) {
        qCWarning(lcHistory, "Undo steps cannot be kept in \"%ls\": %ls", qUtf16Printable(path),
                  qUtf16Printable(problem));
        return false;
    }
    _files->wait();
    _store.moveFiles(folder->path());
    _folder = std::move(folder);
    return true;
}

QString ImagesUndoManager::filePathExtension() const {
    const std::lock_guard lock(_operation);
    return _pathExtension;
}

void ImagesUndoManager::setFilePathExtension(const QString& extension) {
    const std::lock_guard lock(_operation);
    if (extension.contains(QLatin1Char('/')) || extension.contains(QChar(0))) {
        qCWarning(lcHistory, "\"%ls\" is no file extension", qUtf16Printable(extension));
        return;
    }
    _pathExtension = extension;
}

QString ImagesUndoManager::pathWithName(const QString& name) const {
    const std::lock_guard lock(_operation);
    if (!_folder || name.isEmpty() || name.contains(QLatin1Char('/')) || name.contains(QChar(0)) ||
        name == QLatin1String(".") || name == QLatin1String("..")) {
        return {};
    }
    const QString path = _folder->path() + QLatin1Char('/') + name;
    return _pathExtension.isNull() ? path : path + QLatin1Char('.') + _pathExtension;
}

// The name whose file this path is, so that all that happens to the file is known in one place.
QString ImagesUndoManager::nameOfPath(const QString& path) const {
    QString name = QFileInfo(path).fileName();
    if (!_pathExtension.isNull()) {
        name.chop(_pathExtension.size() + 1);
    }
    return pathWithName(name) == path ? name : path;
}

void ImagesUndoManager::writeData(const QByteArray& data, const QString& path) {
    const std::lock_guard lock(_operation);
    if (path.isNull()) {
        return;
    }
    const QString name = nameOfPath(path);
    if (data.isNull()) {
        replaced(name);
        SnapshotStore::Task task = _store.replaceFile(name, path, nullptr);
        startWrite(task ? std::move(task) : _store.remove({name}, [path](const QString&) { return path; }));
        return;
    }
    const QByteArray owned = ownedData(data);
    if (owned.isNull()) {
        qCWarning(lcHistory, "There is no memory to write %ls", qUtf16Printable(path));
        return;
    }
    putIntoFile(name, path, std::make_shared<Snapshot>(owned));
}

void ImagesUndoManager::writeImage(const QImage& image, const QString& path) {
    const std::lock_guard lock(_operation);
    if (image.isNull()) {
        writeData({}, path);
    } else if (!path.isNull()) {
        putIntoFile(nameOfPath(path), path, std::make_shared<Snapshot>(image));
    }
}

void ImagesUndoManager::putIntoFile(const QString& name, const QString& path,
                                    const std::shared_ptr<Snapshot>& image) {
    replaced(name);
    SnapshotStore::Task task = _store.replaceFile(name, path, image);
    startWrite(task ? std::move(task) : _store.write(name, path, image));
}

void ImagesUndoManager::removeImageWithNames(const QStringList& names) {
    const std::lock_guard lock(_operation);
    if (!names.isEmpty()) {
        std::for_each(names.begin(), names.end(), [this](const QString& name) { replaced(name); });
        asynOperator(_store.remove(names, [this](const QString& name) { return pathWithName(name); }));
    }
}

void ImagesUndoManager::clearAllTempFiles() {
    const std::lock_guard lock(_operation);
    if (_folder) {
        auto empty = _store.empty(_folder->path(), !_folder->madeHere());
        asynOperator([empty = std::move(empty), folder = _folder.get()] {
            empty();
            folder->restore();
        });
    }
    endWritingDown();  // what is kept is not to be emptied when the application ends
    reset();
}

// What is outside the folder is the caller's business.
bool ImagesUndoManager::isOurs(const QString& path) const {
    return !_folder || !path.startsWith(_folder->path() + QLatin1Char('/')) || _folder->isOurs();
}

// The folder may have been cleared away under the history's feet: what is written from now on need not be
// lost.
bool ImagesUndoManager::writeIntoFolder(const QString& path, const QByteArray& data) const {
    const unsigned before = _folder ? _folder->timesMade() : 0;
    return (isOurs(path) && _writer(path, data)) ||
           (_folder && path.startsWith(_folder->path() + QLatin1Char('/')) && _folder->restore() &&
            _folder->timesMade() != before && _writer(path, data));
}

void ImagesUndoManager::startWrite(SnapshotStore::Task write) {
    asynOperator([this, ticket = beginProcess(), write = std::move(write)] {
        write();
        endProcess(ticket);
    });
}

void ImagesUndoManager::waitForWrites() {
    {
        const std::lock_guard lock(_operation);  // another thread may be writing itself
    }
    _files->wait();
    if (_tiles) {
        _tiles->waitForWrites();
    }
}

void ImagesUndoManager::waitForCompression() {
    _packing->wait();
    if (_tiles) {
        _tiles->waitForCompression();
    }
}

bool ImagesUndoManager::isMainThread() const {
    const auto* application = QCoreApplication::instance();
    return application ? application->thread() == QThread::currentThread()
                       : std::this_thread::get_id() == _maker;
}

void ImagesUndoManager::asynOperator(std::function<void()> task) {
    if (isMainThread()) {
        _files->run(std::move(task));
    } else {
        task();
    }
}
