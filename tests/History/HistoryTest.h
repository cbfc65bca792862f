// SPDX-License-Identifier: MIT
// A caches folder of the test's own, and images to remember.
#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <condition_variable>
#include <mutex>

#include "History/ImagesUndoManager.h"
#include "support/LogCapture.h"

using namespace dabcanvas;

class HistoryTest : public ::testing::Test {
protected:
    void SetUp() override {
        _former = qgetenv("XDG_CACHE_HOME");
        qputenv("XDG_CACHE_HOME", QFile::encodeName(_cache.path()));
    }
    void TearDown() override {
        if (_former.isNull()) {
            qunsetenv("XDG_CACHE_HOME");
        } else {
            qputenv("XDG_CACHE_HOME", _former);
        }
    }
    static QString caches() { return QStandardPaths::writableLocation(QStandardPaths::CacheLocation); }
    static QStringList entries(const QString& folder) {
        return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    QString inCache(const QString& name) const { return _cache.filePath(name); }

private:
    QTemporaryDir _cache;
    QByteArray _former;
};

// Like a sketch: mostly one colour, with something of the number's own.
inline QByteArray sketch(int number, qsizetype size = 64 * 1024) {
    QByteArray pixels(size, '\xff');
    for (qsizetype i = 0; i < 64; ++i) {
        pixels[i * (size / 64)] = static_cast<char>(number * 31 + i);
    }
    return pixels;
}

// Lets writes begin but go on only when it is opened; told that the disk is full, it writes a part only.
class WriteGate {
public:
    void open() {
        const std::lock_guard lock(_mutex);
        _open = true;
        _changed.notify_all();
    }
    void setDiskFull() { _full = true; }
    FileWriter writer() {
        return [this](const QString& path, const QByteArray& data) {
            std::unique_lock lock(_mutex);
            ++_begun;
            _changed.notify_all();
            _changed.wait(lock, [this] { return _open; });
            return writeWholeFile(path, _full ? data.left(data.size() / 2) : data) && !_full;
        };
    }
    void awaitWrites(int count = 1) {
        std::unique_lock lock(_mutex);
        _changed.wait(lock, [&] { return _begun >= count; });
    }

private:
    std::mutex _mutex;
    std::condition_variable _changed;
    bool _open = false;
    int _begun = 0;
    std::atomic<bool> _full{false};
};

// A history whose files go through a gate.
class GatedHistory : public ImagesUndoManager {
public:
    explicit GatedHistory(WriteGate& gate) : ImagesUndoManager(gate.writer()) {}
};
