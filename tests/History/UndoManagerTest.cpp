// SPDX-License-Identifier: MIT
#include "History/UndoManager.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

#include "History/UndoContainer.h"
#include "support/LogCapture.h"

namespace {

std::unique_ptr<UndoManager> withSteps(unsigned count, const QStringList& items) {
    auto manager = UndoManager::init();
    manager->setUndoStepCount(count);
    for (const QString& item : items) {
        manager->addItemWithString(item);
    }
    return manager;
}

}  // namespace

TEST(UndoManagerTest, StartsWithOneItemAndKeepsItWhenGivenNone) {
    auto manager = UndoManager::init();
    EXPECT_FALSE(manager->canUndo() || manager->canRedo() || manager->undo() || manager->redo());
    manager->setCurrentItem(QString());
    EXPECT_FALSE(manager->addItemWithString(QString()));
    EXPECT_EQ(manager->currentStringItem(), "InitString");
    EXPECT_TRUE(manager->addItemWithString(""));
    EXPECT_EQ(UndoManager::initWithCurrentItem("x")->currentStringItem(), "x");
}

TEST(UndoManagerTest, AddsDropTheOldestAndWhatCouldBeRedone) {
    const struct {
        unsigned count;
        QStringList items, undo;
    } rows[] = {
        {10, {"a", "b"}, {"InitString", "a"}},
        {2, {"a", "b", "c"}, {"a", "b"}},
        {1, {"a", "b", "c"}, {"b"}},
        {0, {"a", "b", "c"}, {"b"}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.count);
        EXPECT_EQ(withSteps(row.count, row.items)->undoItems(), row.undo);
    }
    auto manager = withSteps(10, {"a", "b", "x"});
    EXPECT_TRUE(manager->undo() && manager->undo());
    EXPECT_EQ(manager->redoItems(), (QStringList{"x", "b"}));
    EXPECT_TRUE(manager->redo() && manager->undo());
    EXPECT_EQ(manager->currentStringItem(), "a");
    manager->addItemWithString("c");
    EXPECT_FALSE(manager->canRedo());
    EXPECT_EQ(manager->undoItems(), (QStringList{"InitString", "a"}));
}

TEST(UndoManagerTest, RunningProcessesHoldStepsBackAndResetsForgetThem) {
    auto manager = withSteps(10, {"a", "b"});
    const auto first = manager->beginProcess();
    EXPECT_FALSE(manager->undo());
    EXPECT_EQ(manager->currentStringItem(), "b");
    manager->resetWithCurrentItem("r");
    EXPECT_EQ(manager->processCount(), 0u);
    EXPECT_FALSE(manager->canUndo());
    EXPECT_EQ(manager->currentStringItem(), "r");
    const auto second = manager->beginProcess();
    manager->endProcess(first);  // begun before the reset
    EXPECT_EQ(manager->processCount(), 1u);
    manager->endProcess(second);
    manager->endProcess(second);
    EXPECT_EQ(manager->processCount(), 0u);
}

TEST(UndoManagerTest, ThreadsNeitherLoseNorDoubleItems) {
    constexpr int kThreads = 4, kItems = 200;
    auto manager = withSteps(100000, {});
    std::vector<std::thread> threads;
    for (int thread = 0; thread < kThreads; ++thread) {
        threads.emplace_back([&, thread] {
            for (int i = 0; i < kItems; ++i) {
                manager->addItemWithString(QString::number(thread * kItems + i));
                manager->canRedo();
                manager->endProcess(manager->beginProcess());
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    QStringList all = manager->undoItems() + QStringList(manager->currentStringItem());
    EXPECT_EQ(all.removeDuplicates(), 0);
    EXPECT_EQ(all.size(), kThreads * kItems + 1);
    EXPECT_EQ(manager->processCount(), 0u);
}

TEST(UndoContainerTest, KeepsManagersByKeyAndLetsThemGo) {
    UndoContainer container;
    const std::shared_ptr<UndoManager> a = UndoManager::init(), b = UndoManager::init();
    container.setUndoManager(a, "one");
    container.setUndoManager(b, "two");
    EXPECT_EQ(container.undoManagerForKey("one"), a);
    container.setUndoManager(nullptr, "two");
    EXPECT_EQ(b.use_count(), 1);
    const LogCapture log;
    container.setUndoManager(b, QString());
    EXPECT_EQ(log.lines().size(), 1);
}
