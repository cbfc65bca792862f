// SPDX-License-Identifier: MIT
// What goes wrong outside: disks, memory, other processes, the own death.
#include <unistd.h>

#include <cstdlib>

#include "History/HistoryTest.h"
#include "History/Packing.h"
#include "History/TempFolder.h"
#include "support/DyingProcess.h"
#include "support/Limits.h"

namespace {

class HistoryFaultTest : public HistoryTest {
protected:
    // A history whose first two steps, sketches 0 and 1, are in files.
    static std::unique_ptr<ImagesUndoManager> spilled() {
        auto history = ImagesUndoManager::initWithCurrentImageOfData(sketch(0));
        history->setUndoStepCount(2);
        for (int i = 1; i <= 2; ++i) {
            history->addItemWithImageData(sketch(i));
        }
        history->removeOneObjectFromCache();
        history->waitForWrites();
        return history;
    }
};

}  // namespace

TEST_F(HistoryFaultTest, ADiskThatTakesNothingCostsNoStep) {
    for (const bool full : {true, false}) {
        SCOPED_TRACE(full ? "the disk is full" : "the folder is none any more");
        auto history = ImagesUndoManager::initWithCurrentImageOfData(sketch(0));
        history->setUndoStepCount(4);
        history->waitForWrites();
        const QString folder = history->tempDirectory();
        {
            LogCapture log;
            const FullDisk disk(full ? 1000 : RLIM_INFINITY);
            if (!full) {
                QDir().rmdir(folder);
                ASSERT_TRUE(writeWholeFile(folder, "in the way"));
            }
            for (int i = 1; i <= 6; ++i) {
                history->addItemWithImageData(sketch(i));
                history->waitForWrites();
            }
            EXPECT_EQ(log.lines().size(), 1) << qPrintable(log.lines().join('\n'));
            EXPECT_EQ(history->curCacheCount(), 5);
            EXPECT_EQ(entries(folder), QStringList());
        }
        QFile::remove(folder);
        history->didReceiveMemoryWarning();
        history->waitForWrites();
        EXPECT_EQ(entries(folder).size(), 2) << "now that it can";
        for (int i = 6; i >= 2; --i) {
            EXPECT_TRUE(history->currentImageDataOfItem() == sketch(i)) << i;
            history->waitForWrites();
            EXPECT_EQ(history->undo(), i > 2);
        }
    }
}

TEST_F(HistoryFaultTest, LateTasksUndoNothingNewer) {
    SnapshotStore store(writeWholeFile);
    const QString one = inCache("step.png"), two = inCache("step");
    const auto write = [&](const QString& path, int number) {
        return store.write("step", path, std::make_shared<Snapshot>(sketch(number)));
    };
    write(one, 1)();
    const auto second = write(two, 2), third = write(one, 3);
    third();
    second();
    EXPECT_TRUE(store.read("step", one).data == sketch(3));
    EXPECT_FALSE(QFile::exists(two));
    const auto emptied = store.empty(inCache(QString()), true);
    write(one, 4)();
    emptied();
    EXPECT_TRUE(store.read("step", one).data == sketch(4));
    const auto removed = store.remove({"step"}, [](const QString&) { return QString(); });
    write(one, 5)();
    removed();
    EXPECT_TRUE(store.read("step", one).data == sketch(5));
}

TEST_F(HistoryFaultTest, ALostOrDamagedFileReadsAsNothing) {
    const struct {
        const char* claim;
        void (*damage)(const QString& path);
    } rows[] = {
        {"cut short", [](const QString& path) { QFile::resize(path, 100); }},
        {"grown", [](const QString& path) { QFile::resize(path, 1 << 20); }},
        {"deleted", [](const QString& path) { QFile::remove(path); }},
        {"folder removed", [](const QString& path) { QDir(QFileInfo(path).path()).removeRecursively(); }},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.claim);
        auto history = spilled();
        row.damage(history->pathWithName("InitString"));
        history->undo();
        history->undo();
        LogCapture log;
        EXPECT_TRUE(history->currentImageDataOfItem().isNull());
        EXPECT_EQ(log.lines().size(), 1);
        EXPECT_TRUE(history->redo());
        history->addItemWithImageData(sketch(3));
        history->removeOneObjectFromCache();
        history->removeOneObjectFromCache();
        history->waitForWrites();
        EXPECT_TRUE(history->currentImageDataOfItem() == sketch(3)) << "what comes after is safe";
        EXPECT_EQ(log.lines().size(), 1);
    }
}

TEST_F(HistoryFaultTest, AStepThatWasReadBackSurvivesItsFile) {
    auto history = spilled();
    EXPECT_TRUE(history->undo() && history->undo());
    EXPECT_TRUE(history->currentImageDataOfItem() == sketch(0));
    ASSERT_TRUE(QFile::remove(history->currentPathOfItem()));
    while (history->curCacheCount() > 0) {
        history->removeOneObjectFromCache();
    }
    history->waitForWrites();
    EXPECT_TRUE(history->currentImageDataOfItem() == sketch(0));
}

TEST_F(HistoryFaultTest, AFolderThatGoesWhileWritesRunComesBackForAll) {
    for (int round = 0; round < 20; ++round) {
        WriteGate gate;
        GatedHistory history(gate);
        history.setMaxCacheCount(0);
        history.addItemWithImageData(sketch(1));
        history.addItemWithImageData(sketch(2));
        gate.awaitWrites(2);
        ASSERT_TRUE(QDir(history.tempDirectory()).removeRecursively());
        gate.open();
        history.waitForWrites();
        EXPECT_EQ(entries(history.tempDirectory()).size(), 2);
        EXPECT_EQ(history.curCacheCount(), 0);
    }
}

TEST_F(HistoryFaultTest, WithoutAFolderStepsStayInMemory) {
    ASSERT_TRUE(writeWholeFile(inCache("file"), "in the way"));
    qputenv("XDG_CACHE_HOME", QFile::encodeName(inCache("file")));
    LogCapture log;
    auto history = ImagesUndoManager::initWithCurrentImageOfData(sketch(0));
    EXPECT_EQ(log.lines().size(), 1);
    EXPECT_TRUE(history->tempDirectory().isNull());
    history->setUndoStepCount(3);
    for (int i = 1; i <= 3; ++i) {
        history->addItemWithImageData(sketch(i));
    }
    while (history->undo()) {
    }
    EXPECT_TRUE(history->currentImageDataOfItem() == sketch(0));
    EXPECT_EQ(log.lines().size(), 1);
}

TEST_F(HistoryFaultTest, AStepThatMemoryCannotHoldReadsAsNothing) {
    if (!kMemoryIsLimited) {
        return;
    }
    constexpr qsizetype kLarge = 96 << 20;
    auto history = ImagesUndoManager::initWithCurrentImageOfData(sketch(0, kLarge));
    for (const bool inMemory : {true, false}) {
        SCOPED_TRACE(inMemory ? "compressed in memory" : "in its file");
        history->waitForCompression();
        if (inMemory && !canPack()) {
            continue;  // nothing is needed then
        }
        if (!inMemory) {
            history->removeOneObjectFromCache();
            history->waitForWrites();
        }
        {
            LogCapture log;
            const ShortMemory memory(kLarge / 2);
            EXPECT_TRUE(history->currentImageDataOfItem().isNull());
            EXPECT_EQ(log.lines().size(), 1);
        }
        EXPECT_TRUE(history->currentImageDataOfItem() == sketch(0, kLarge)) << "it is still there";
    }
}

TEST_F(HistoryFaultTest, AProcessKilledWhileWritingLeavesNoHalfFile) {
    QString folder, file;
    QString problem;
    const QString parent = inCache("killed");
    folder = parent + "/TempDirectory0007";
    file = folder + "/step";
    inDyingProcess([&] {
        auto claimed = TempFolder::claimNumbered(parent, 7, &problem);
        SnapshotStore store([](const QString& path, const QByteArray& data) -> bool {
            writeWholeFile(path, data.left(1000));
            raise(SIGKILL);
            return false;
        });
        store.write("step", file, std::make_shared<Snapshot>(sketch(1)))();
    });
    EXPECT_EQ(entries(folder).size(), 1) << "what there was of it";
    EXPECT_FALSE(QFile::exists(file));
    TempFolder::removeAbandoned(parent);
    EXPECT_EQ(entries(parent), QStringList());
}

// Folders

TEST_F(HistoryFaultTest, NoTwoHistoriesShareAFolder) {
    std::srand(1);
    auto first = ImagesUndoManager::init();
    std::srand(1);
    auto second = ImagesUndoManager::init();
    std::srand(1);
    const QString wanted = QString("TempDirectory%1").arg(std::rand() % 10000, 4, 10, QLatin1Char('0'));
    EXPECT_EQ(QFileInfo(first->tempDirectory()).fileName(), wanted);
    EXPECT_NE(first->tempDirectory(), second->tempDirectory());
    EXPECT_TRUE(QFileInfo(second->tempDirectory()).isDir());
    EXPECT_EQ(QFileInfo(first->tempDirectory()).path(), caches());
}

// All caches are cleared away, and whoever starts next gets the number that has become free.
TEST_F(HistoryFaultTest, AFolderLostToAnotherHistoryIsLeftAlone) {
    for (const bool inMemory : {false, true}) {
        SCOPED_TRACE(inMemory ? "its step was read before" : "its step is in a file");
        std::srand(1);
        auto loser = spilled();
        if (inMemory) {
            EXPECT_TRUE(loser->undo() && loser->undo());
            EXPECT_TRUE(loser->currentImageDataOfItem() == sketch(0));
        }
        const QString folder = loser->tempDirectory();
        ASSERT_TRUE(QDir(caches()).removeRecursively());
        std::srand(1);
        auto other = ImagesUndoManager::initWithCurrentImageOfData(sketch(10));
        ASSERT_EQ(other->tempDirectory(), folder);
        other->addItemWithImageData(sketch(11));
        other->removeOneObjectFromCache();
        other->waitForWrites();
        const QStringList files = entries(folder);
        EXPECT_EQ(files.size(), 1);

        LogCapture log;
        while (loser->undo()) {
        }
        loser->clearRedoItems();
        loser->removeOneObjectFromCache();  // in vain: it cannot be written now
        loser->waitForWrites();
        const QByteArray first = loser->currentImageDataOfItem();
        EXPECT_TRUE(inMemory ? first == sketch(0) : first.isNull()) << "the other's has this name and size";
        EXPECT_TRUE(loser->currentImageItem().isNull());
        EXPECT_EQ(log.lines().size(), 1) << qPrintable(log.lines().join('\n'));
        for (const bool ended : {false, true}) {
            if (ended) {
                loser.reset();
            } else {
                loser->removeImageWithNames({"InitString"});
                loser->waitForWrites();
                loser->clearAllTempFiles();
                loser->waitForWrites();
            }
            EXPECT_EQ(entries(folder), files);
        }
        EXPECT_TRUE(other->undo());
        EXPECT_TRUE(other->currentImageDataOfItem() == sketch(10));
    }
}

TEST_F(HistoryFaultTest, ReadOnlyFoldersAreRemovedNowOrAtTheNextStart) {
    const QString parent = inCache("parent");
    QDir().mkpath(parent);
    const auto any = static_cast<QFile::Permissions>(0x7777);
    ASSERT_TRUE(QFile::setPermissions(inCache(QString()), any) && QFile::setPermissions(parent, any));
    inDyingProcess([&] {
        if (geteuid() == 0 && setuid(12345) != 0) {  // root may write anywhere
            _exit(1);
        }
        const auto readOnly = QFile::ReadOwner | QFile::ExeOwner;
        for (const bool within : {false, true}) {
            QString problem;
            auto folder = TempFolder::claimNumbered(parent, 1, &problem);
            const QString locked = within ? folder->path() + "/sub" : folder->path();
            QDir().mkpath(locked);
            writeWholeFile(locked + "/step", sketch(1));
            QFile::setPermissions(locked, readOnly);
            folder.reset();
            QFile::setPermissions(locked, readOnly | QFile::WriteOwner);
        }
        if (entries(parent).size() == 2) {
            TempFolder::removeAbandoned(parent);
        }
    });
    EXPECT_EQ(entries(parent), QStringList());
}

TEST_F(HistoryFaultTest, OnlyTheDeadsOwnFoldersAreRemoved) {
    const QString parent = caches();
    QString problem;
    auto alive = TempFolder::claimNumbered(parent, 1, &problem);
    ASSERT_TRUE(alive) << qPrintable(problem);
    for (int number = 2; number <= 5; ++number) {
        inDyingProcess([&] {
            auto dead = TempFolder::claimNumbered(parent, number, &problem).release();
            writeWholeFile(dead->path() + "/step", sketch(number));
        });
    }
    const auto path = [&](const char* name) { return parent + "/TempDirectory000" + name; };
    // Another machine's; another user's, which only root can try; and one without a lock, of whoever it may
    // be.
    ASSERT_TRUE(writeWholeFile(path("3.lock"), "made another-machine host\n"));
    const bool root = geteuid() == 0;
    ASSERT_TRUE(!root || ::chown(QFile::encodeName(path("4.lock")).constData(), 12345, 12345) == 0);
    QFile::remove(path("5.lock"));
    QDir().mkpath(parent + "/Pictures");

    EXPECT_FALSE(TempFolder::claim(path("3"), &problem));
    auto history = ImagesUndoManager::init();
    history->waitForWrites();
    EXPECT_TRUE(QFile::exists(alive->path()));
    EXPECT_FALSE(QFile::exists(path("2")) || QFile::exists(path("2.lock")));
    EXPECT_TRUE(QFile::exists(path("3/step")));
    EXPECT_EQ(QFile::exists(path("4/step")), root);
    EXPECT_TRUE(QFile::exists(path("5/step")));
    EXPECT_TRUE(QFile::exists(parent + "/Pictures"));
}

TEST_F(HistoryFaultTest, AFolderOnesOwnIsNotRemovedWithItsDeadUser) {
    const QString mine = inCache("mine"), made = inCache("made");
    QDir().mkpath(mine);
    QString problem;
    inDyingProcess([&] {
        for (const QString& path : {mine, made}) {
            auto folder = TempFolder::claim(path, &problem).release();
            writeWholeFile(folder->path() + "/step", "x");
        }
    });
    for (const QString& path : {mine, made}) {
        const auto folder = TempFolder::claim(path, &problem);
        ASSERT_TRUE(folder) << qPrintable(problem);
        EXPECT_EQ(QFile::exists(path + "/step"), path == mine);
    }
}
