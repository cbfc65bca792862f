// SPDX-License-Identifier: MIT
#include "History/ImagesUndoManager.h"

#include <QCoreApplication>
#include <future>
#include <thread>
#include <vector>

#include "History/Farthest.h"
#include "History/HistoryTest.h"
#include "History/Packing.h"
#include "support/Images.h"

namespace {

class ImagesUndoManagerTest : public HistoryTest {
protected:
    // Adds sketches from..to as steps, every other one in bytes that are somebody else's.
    void add(ImagesUndoManager& history, int from, int to) {
        for (int i = from; i <= to; ++i) {
            QByteArray pixels = sketch(i);
            const auto data =
                i % 2 ? QByteArray::fromRawData(pixels.constData(), pixels.size()) : QByteArray(pixels);
            ASSERT_TRUE(history.addItemWithImageData(data));
            pixels.fill('x');
        }
    }
    // Undoes and redoes everything and looks at each image; the current one is sketch(last).
    void expectSteps(ImagesUndoManager& history, int first, int last) {
        for (int i = last; i >= first; --i) {
            EXPECT_TRUE(history.currentImageDataOfItem() == sketch(i)) << "back at " << i;
            history.waitForWrites();
            EXPECT_EQ(history.undo(), i > first) << i;
        }
        for (int i = first; i <= last; ++i) {
            EXPECT_TRUE(history.currentImageDataOfItem() == sketch(i)) << "forth at " << i;
            history.waitForWrites();
            EXPECT_EQ(history.redo(), i < last) << i;
        }
    }
};

}  // namespace

// What is kept where

TEST(FarthestTest, FollowsItsRules) {
    const QStringList undo{"u1", "u2", "u3"}, redo{"r1", "r2"};
    const struct {
        const char* claim;
        QStringList cached;
        QString chosen;
    } rows[] = {
        {"the oldest undo name", {"u3", "u1", "u2", "now"}, "u1"},
        {"the deepest redo name", {"now", "r2", "r1"}, "r1"},
        {"undo lies farther than redo", {"u1", "r1"}, "u1"},
        {"a redo name ends the search among undo names", {"u3", "r1", "u1"}, "r1"},
        {"of equals, the one cached first", {"u2", "r1", "u3"}, "u2"},
        {"the current name only when it comes first", {"now"}, "now"},
        {"anything else replaces the current name", {"now", "u3"}, "u3"},
        {"unknown names never", {"x"}, QString()},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(farthestFrom(row.cached, undo, redo, "now"), row.chosen) << row.claim;
    }
}

TEST_F(ImagesUndoManagerTest, SixtyStepsLeaveTheOldestNineOnDisk) {
    auto history = ImagesUndoManager::init();
    add(*history, 1, 60);
    history->waitForWrites();
    EXPECT_EQ(history->curCacheCount(), 51);
    QStringList oldest;
    for (const QString& name : history->undoItems().mid(1, 9)) {
        oldest.append(name + ".png");
    }
    EXPECT_EQ(entries(history->tempDirectory()), oldest);
    history->waitForCompression();
    EXPECT_LT(history->cachedBytes(), 51 * sketch(0).size() / (canPack() ? 10 : 1) + 1);
}

TEST_F(ImagesUndoManagerTest, EveryStepComesBackAtEveryLimit) {
    const struct {
        unsigned steps, cached;
        qint64 budget;
    } rows[] = {{20, 10, 0}, {20, 1, 0}, {20, 0, 0}, {20, 10, 100000}, {20, 10, 1}};
    for (const auto& row : rows) {
        SCOPED_TRACE(::testing::Message() << row.cached << " cached, " << row.budget << " bytes");
        auto history = ImagesUndoManager::initWithCurrentImageOfData(sketch(0));
        history->setUndoStepCount(row.steps);
        history->setMaxCacheCount(row.cached);
        history->setCacheByteBudget(row.budget);
        history->setFilePathExtension(QString());
        for (int i = 1; i <= 8; ++i) {
            add(*history, i, i);
            EXPECT_LE(history->curCacheCount(), static_cast<int>(row.cached) + 1);
            EXPECT_TRUE(row.budget == 0 || history->cachedBytes() <= std::max(row.budget, qint64{1} << 16));
            history->waitForCompression();
        }
        expectSteps(*history, 0, 8);
    }
}

TEST_F(ImagesUndoManagerTest, StepCountAndMemoryWarningsSetTheCachesLimit) {
    const unsigned rows[][3] = {{0, 1, 1}, {1, 1, 1}, {7, 7, 3}, {100, 100, 50}};
    auto history = ImagesUndoManager::initWithCurrentImageOfData(sketch(0));
    for (const auto& [given, steps, cached] : rows) {
        history->setUndoStepCount(given);
        EXPECT_EQ(history->undoStepCount(), steps);
        EXPECT_EQ(history->maxCacheCount(), cached);
    }
    add(*history, 1, 7);
    history->didReceiveMemoryWarning();
    EXPECT_EQ(history->curCacheCount(), 6);
    EXPECT_EQ(history->maxCacheCount(), 4u);
    for (int i = 0; i < 2; ++i) {
        history->removeOneObjectFromCache();
    }
    history->didReceiveMemoryWarning();
    history->didReceiveMemoryWarning();
    EXPECT_EQ(history->curCacheCount(), 0);
    EXPECT_EQ(history->maxCacheCount(), 1u);
    expectSteps(*history, 0, 7);
}

// What is dropped

TEST_F(ImagesUndoManagerTest, NothingIsKeptThatNoStepNames) {
    auto history = ImagesUndoManager::initWithCurrentImageOfData(sketch(0));
    history->setUndoStepCount(10);
    for (int round = 0; round < 300; ++round) {
        add(*history, 2 * round, 2 * round + 1);
        history->waitForWrites();
        EXPECT_EQ(history->processCount(), 0u);
        ASSERT_TRUE(history->undo());
    }
    history->waitForWrites();
    const QStringList named =
        history->undoItems() + history->redoItems() + QStringList(history->currentStringItem());
    for (const QString& file : entries(history->tempDirectory())) {
        EXPECT_TRUE(named.contains(file.chopped(4))) << qPrintable(file);
    }
    EXPECT_LE(history->curCacheCount() + entries(history->tempDirectory()).size(), named.size());
    history->reset();
    history->waitForWrites();
    EXPECT_LE(history->curCacheCount() + entries(history->tempDirectory()).size(), 1);
}

TEST_F(ImagesUndoManagerTest, TheOldestStepGoesWithItsImage) {
    auto history = ImagesUndoManager::initWithCurrentImageOfData(sketch(0));
    history->setUndoStepCount(4);
    add(*history, 1, 4);
    history->waitForWrites();
    const QString second = history->undoItems().at(1);
    EXPECT_TRUE(QFile::exists(history->pathWithName("InitString")));
    add(*history, 5, 5);
    history->waitForWrites();
    EXPECT_FALSE(QFile::exists(history->pathWithName("InitString")));
    EXPECT_EQ(history->undoItems().first(), second);
    expectSteps(*history, 1, 5);
    // Deliberate: when the limit was lowered, two go with each step until it is kept.
    history->setUndoStepCount(1);
    for (const int left : {3, 2, 1, 1}) {
        add(*history, 6, 6);
        EXPECT_EQ(history->undoItems().size(), left);
    }
    history->waitForWrites();
    EXPECT_EQ(history->curCacheCount() + entries(history->tempDirectory()).size(), 2);
}

// Writes in progress

TEST_F(ImagesUndoManagerTest, AWriteThatIsOvertakenLeavesNoFile) {
    for (const auto& [stepGoes, full] : {std::pair{true, false}, {true, true}, {false, false}}) {
        SCOPED_TRACE(full       ? "its step is dropped and the disk is full"
                     : stepGoes ? "its step is dropped"
                                : "the folder is emptied");
        WriteGate gate;
        GatedHistory history(gate);
        if (full) {
            gate.setDiskFull();
        }
        history.setMaxCacheCount(0);
        history.addItemWithImageData(sketch(1));
        gate.awaitWrites();
        EXPECT_EQ(history.processCount(), 1u);
        EXPECT_FALSE(history.undo()) << "before the write has ended";
        if (stepGoes) {
            history.addItemWithString("other");
            history.reset();
        } else {
            history.clearAllTempFiles();
        }
        EXPECT_EQ(history.processCount(), 0u);
        std::promise<void> deleted;  // in vain: the file comes only now
        history.asynOperator([&] { deleted.set_value(); });
        deleted.get_future().wait();
        gate.open();
        history.waitForWrites();
        EXPECT_EQ(history.processCount(), 0u);
        EXPECT_EQ(entries(history.tempDirectory()), QStringList());
        EXPECT_EQ(history.currentImageDataOfItem().isNull(), stepGoes);
        EXPECT_EQ(history.curCacheCount(), stepGoes ? 0 : 1);
    }
}

TEST_F(ImagesUndoManagerTest, EndsWhileWritesRun) {
    WriteGate gate;
    QString folder;
    {
        GatedHistory history(gate);
        history.setMaxCacheCount(0);
        folder = history.tempDirectory();
        add(history, 1, 5);
        gate.open();
    }
    EXPECT_FALSE(QFile::exists(folder));
    EXPECT_FALSE(QFile::exists(folder + ".lock"));
}

TEST_F(ImagesUndoManagerTest, ThreadsMayShareOne) {
    auto history = ImagesUndoManager::initWithCurrentImageOfData(sketch(0));
    history->setUndoStepCount(4);
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 3; ++thread) {
        threads.emplace_back([&, thread] {
            for (int i = 0; i < 20; ++i) {
                history->addItemWithImageData(sketch(thread));
                history->undo();
                history->currentImageDataOfItem();
                if (i % 8 == 7) {
                    history->reset();
                }
            }
        });
    }
    for (int i = 0; i < 20; ++i) {
        history->addItemWithImageData(sketch(3));
        history->cachedBytes();
        history->canUndo();
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    history->waitForWrites();
    EXPECT_EQ(history->processCount(), 0u);
    add(*history, 4, 4);
    EXPECT_TRUE(history->currentImageDataOfItem() == sketch(4));
}

// Images, paths and folders

TEST_F(ImagesUndoManagerTest, ImagesGoThroughPNG) {
    const QImage image = solidImage({7, 5});
    auto history = ImagesUndoManager::initWithCurrentImageOfItem(image);
    history->waitForWrites();
    EXPECT_EQ(history->curCacheCount(), 0);
    EXPECT_EQ(history->currentImageItem().size(), image.size());
    EXPECT_TRUE(history->addItemWithImage(image));
    EXPECT_TRUE(history->currentImageItem().isNull()) << "only in memory";
    EXPECT_EQ(QImage::fromData(history->currentImageDataOfItem()).size(), image.size());
    const LogCapture log;
    EXPECT_FALSE(history->addItemWithImageData(QByteArray()));
    EXPECT_FALSE(history->setCurrentItemWithImage(QImage()));
    EXPECT_EQ(log.lines().size(), 2);
    EXPECT_EQ(history->undoItems().size(), 1);
}

TEST_F(ImagesUndoManagerTest, WritesAndDeletesFilesOfAnyPath) {
    auto history = ImagesUndoManager::init();
    const QString file = inCache("file"), folder = inCache("folder");
    QDir().mkpath(folder);
    history->writeData(sketch(1), file);
    history->reset();  // which is about steps only
    history->waitForWrites();
    EXPECT_EQ(QFileInfo(file).size(), sketch(1).size());
    for (const QString& path : {file, folder, QString()}) {
        history->writeData(QByteArray(), path);
    }
    history->waitForWrites();
    EXPECT_FALSE(QFile::exists(file));
    EXPECT_TRUE(QFile::exists(folder));
    history->writeImage(solidImage({3, 2}), file);
    history->waitForWrites();
    EXPECT_EQ(QImage(file).size(), QSize(3, 2));
}

TEST_F(ImagesUndoManagerTest, FilesWrittenByHandDoNotReplaceWhatIsInMemory) {
    auto history = ImagesUndoManager::initWithCurrentImageOfData(sketch(1));
    const QString file = history->currentPathOfItem();
    history->removeOneObjectFromCache();
    history->waitForWrites();
    EXPECT_TRUE(history->currentImageDataOfItem() == sketch(1)) << "in memory and in its file";
    for (const QByteArray& data : {sketch(2), QByteArray()}) {
        history->writeData(data, file);
        history->waitForWrites();
        EXPECT_EQ(QFile::exists(file), !data.isNull());
        EXPECT_EQ(history->curCacheCount(), 1);
        EXPECT_TRUE(history->currentImageDataOfItem() == sketch(1));
    }
    for (int i = 0; i < 2; ++i) {
        history->writeData(sketch(2), file);
        history->removeOneObjectFromCache();
        history->waitForWrites();
        EXPECT_TRUE(history->currentImageDataOfItem() == sketch(1));
    }
    history->removeOneObjectFromCache();
    history->writeData(sketch(2), file);
    history->waitForWrites();
    EXPECT_TRUE(history->currentImageDataOfItem() == sketch(2)) << "in its file only";
}

TEST_F(ImagesUndoManagerTest, NamesThatAreNoFileNamesStayInMemory) {
    auto history = ImagesUndoManager::init();
    history->setMaxCacheCount(0);
    for (const QString& name : QStringList{"../out", "/out", "..", ""}) {
        history->addItemWithString(name);
        EXPECT_TRUE(history->pathWithName(name).isNull());
        history->setCurrentItemWithImageData(sketch(1));
        EXPECT_TRUE(history->currentImageDataOfItem() == sketch(1)) << qPrintable(name);
    }
    history->waitForWrites();
    EXPECT_EQ(entries(history->tempDirectory()), QStringList());
}

TEST_F(ImagesUndoManagerTest, MovesToAnotherFolderWithItsSteps) {
    auto history = ImagesUndoManager::initWithCurrentImageOfData(sketch(0));
    history->setUndoStepCount(2);
    add(*history, 1, 2);
    const QString old = history->tempDirectory();
    QDir().mkpath(inCache("mine"));
    ASSERT_TRUE(writeWholeFile(inCache("mine/letter"), "dear"));
    ASSERT_TRUE(history->setTempDirectory(inCache("mine")));
    EXPECT_FALSE(QFile::exists(old) || QFile::exists(old + ".lock"));
    history->setFilePathExtension("raw");  // files written before keep their names
    expectSteps(*history, 0, 2);

    auto other = ImagesUndoManager::init();
    EXPECT_TRUE(other->setTempDirectory(other->tempDirectory() + "/"));
    ASSERT_TRUE(QFile::link(inCache("mine"), inCache("link")));
    LogCapture log;
    EXPECT_FALSE(other->setTempDirectory(inCache("mine")));
    EXPECT_FALSE(other->setTempDirectory(inCache("link")));
    EXPECT_FALSE(other->setTempDirectory(inCache("mine/letter")));
    EXPECT_FALSE(other->setTempDirectory(other->tempDirectory() + "/inside"));
    EXPECT_EQ(log.lines().size(), 4);
    history->clearAllTempFiles();
    history.reset();
    EXPECT_EQ(entries(inCache("mine")), QStringList("letter")) << "what was there stays, and nothing else";

    // A file that cannot be moved costs no step.
    other->setFilePathExtension(QString());
    other->setCurrentItemWithImageData(sketch(0));
    other->removeOneObjectFromCache();
    other->waitForWrites();
    ASSERT_TRUE(QDir().mkpath(inCache("mine/InitString")));
    EXPECT_TRUE(other->setTempDirectory(inCache("mine")));
    EXPECT_TRUE(other->currentImageDataOfItem() == sketch(0));
}

TEST_F(ImagesUndoManagerTest, MovesOnlyWhenWritesHaveEnded) {
    WriteGate gate;
    GatedHistory history(gate);
    history.setMaxCacheCount(0);
    history.addItemWithImageData(sketch(1));
    gate.awaitWrites();
    const QString other = inCache("other");
    std::thread opener([&] {
        while (!QFile::exists(other)) {
            std::this_thread::yield();
        }
        gate.open();
    });
    EXPECT_TRUE(history.setTempDirectory(other));
    opener.join();
    EXPECT_EQ(entries(other).size(), 1);
    EXPECT_TRUE(history.currentImageDataOfItem() == sketch(1));
}

TEST_F(ImagesUndoManagerTest, TheApplicationsEndEmptiesTheFolder) {
    auto history = ImagesUndoManager::initWithCurrentImageOfData(sketch(0));
    history->setUndoStepCount(2);
    add(*history, 1, 4);
    history->waitForWrites();
    ASSERT_TRUE(writeWholeFile(history->tempDirectory() + "/stray", "x"));
    QMetaObject::invokeMethod(QCoreApplication::instance(), "aboutToQuit", Qt::DirectConnection);
    history->waitForWrites();
    EXPECT_EQ(entries(history->tempDirectory()), QStringList());
    EXPECT_FALSE(history->canUndo());
    EXPECT_TRUE(history->currentImageDataOfItem() == sketch(4));
    history->didReceiveMemoryWarning();
    history->waitForWrites();
    EXPECT_TRUE(history->currentImageDataOfItem() == sketch(4)) << "and it goes on";
}
