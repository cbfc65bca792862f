// SPDX-License-Identifier: MIT
#include "History/UndoRecovery.h"

#include <unistd.h>

#include <QTemporaryDir>

#include "History/JournalModel.h"
#include "History/KeptHistories.h"
#include "History/Packing.h"
#include "History/TempFolder.h"
#include "support/DyingProcess.h"
#include "support/Files.h"

namespace dabcanvas {

namespace {

class UndoRecoveryTest : public ::testing::Test {
protected:
    void SetUp() override { UndoRecovery::setFolder(_root.filePath("recovery")); }
    void TearDown() override {
        UndoRecovery::setFolder({});
        UndoRecovery::setByteLimit(qint64{8} << 30);
    }
    // A history of so many steps, of one tile each that says which, left by a process that was killed.
    static void leave(int steps, JournalFormat format = JournalModel::kFormat) {
        inDyingProcess([&] { write(startKeptHistory(&problem()).release()->path(), steps, format); });
    }
    static void write(const QString& folder, int steps, JournalFormat format) {
        TileJournal journal({[&] { return folder; }, format, 1 << 20, [] { return JournalState(); }});
        JournalState state;
        for (int i = 1; i <= steps; ++i) {
            const auto tile = static_cast<std::uint64_t>(i);
            const QByteArray pixels(static_cast<qsizetype>(format.mostTileBytes()), static_cast<char>(i));
            const QByteArray stored = i % 2 == 0 && canPack() ? packed(pixels) : pixels;
            state.steps = {{QString::number(i),
                            state.current,
                            {{static_cast<std::uint32_t>(i) % format.tiles(), tile}}}};
            if (!state.current.isEmpty()) {
                state.undo.added.push_back(state.current);
            }
            state.current = QString::number(i);
            if (!journal.appendTile(tile, stored, static_cast<int>(pixels.size()), &problem()) ||
                !journal.appendState(state, &problem())) {
                _exit(1);
            }
        }
    }
    static QString& problem() {
        static QString text;
        return text;
    }
    static QList<int> stepsOf(const QList<RecoverableHistory>& histories) {
        QList<int> steps;
        for (const RecoverableHistory& history : histories) {
            steps.append(history.steps);
        }
        return steps;
    }
    static QStringList entries() {
        return QDir(UndoRecovery::folder()).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    }

    QTemporaryDir _root;
};

}  // namespace

TEST_F(UndoRecoveryTest, TellsWhatTheDeadLeft) {
    EXPECT_TRUE(UndoRecovery::list().isEmpty());
    const auto before = QDateTime::currentDateTime().addSecs(-1);
    leave(3);
    leave(5, {{100, 64}, 8});
    auto alive = startKeptHistory(&problem());
    ASSERT_TRUE(alive) << problem().toStdString();
    write(alive->path(), 2, JournalModel::kFormat);

    const auto histories = UndoRecovery::list();
    ASSERT_EQ(stepsOf(histories), QList<int>({5, 3}));
    const RecoverableHistory& last = histories.front();
    EXPECT_EQ(last.size, QSize(100, 64));
    EXPECT_EQ(last.thumbnail.size(), QSize(100, 64)) << "never enlarged";
    EXPECT_TRUE(last.lastChange > before && last.lastChange < before.addSecs(60));
    EXPECT_GT(last.bytes, 5 * 1000);
    EXPECT_EQ(QFile::permissions(last.path) & 0x77, 0);
    alive.reset();
    EXPECT_EQ(entries().size(), 4) << "who lets go of it in order leaves nothing";

    UndoRecovery::setFolder({});
    EXPECT_TRUE(UndoRecovery::folder().endsWith("/recovery"));
}

TEST_F(UndoRecoveryTest, ThumbnailsAreAverages) {
    const struct {
        JournalFormat format;
        QSize size;
        int steps;
        QPoint place;  // in a tile of the last step's number
    } rows[] = {
        {{{640, 400}, 4}, {256, 160}, 7, {7 * 64 * 256 / 640 + 5, 5}},
        {{{1000, 3000}, 4}, {85, 256}, 16, {1, 8}},  // the first one of the second row
        {{{640, 400}, 8}, {256, 160}, 40, {5, 4 * 64 * 256 / 640 + 5}},
        {{{1, 900}, 4}, {1, 256}, 14, {0, 255}},  // of the last one a part alone
    };
    for (const auto& row : rows) {
        leave(row.steps, row.format);
        const QImage image = UndoRecovery::list().front().thumbnail;
        EXPECT_EQ(image.size(), row.size);
        EXPECT_EQ(image.format(), QImage::Format_RGBA8888_Premultiplied);
        EXPECT_EQ(image.constScanLine(row.place.y())[row.place.x() * 4], row.steps) << row.steps;
    }
}

TEST_F(UndoRecoveryTest, WhoClaimsAHistoryHasItAlone) {
    leave(3);
    leave(4);
    const QString id = UndoRecovery::list().back().id;
    const auto claimed = claimKeptHistory(id, &problem());
    ASSERT_TRUE(claimed) << problem().toStdString();
    const QString now = QFileInfo(claimed->path()).fileName();
    EXPECT_EQ(stepsOf(UndoRecovery::list()), QList<int>({4}));
    for (const QString& one :
         {id, now, QString(".."), QString("../recovery/") + now, QString(), QString("x")}) {
        EXPECT_FALSE(claimKeptHistory(one, &problem()) || UndoRecovery::discard(one)) << one.toStdString();
        EXPECT_FALSE(problem().isEmpty());
    }
    EXPECT_TRUE(readJournal(claimed->path(), TileCheck::whole, &problem()));
    EXPECT_TRUE(claimed->isOurs() && claimed->restore());
    claimed->leave();
}

TEST_F(UndoRecoveryTest, WhatWasUsedLongestAgoMakesRoom) {
    for (int steps = 1; steps <= 4; ++steps) {
        leave(steps);
    }
    // The first one is used again, and left, though by the clock it is the oldest.
    inDyingProcess([] { claimKeptHistory("History000001", &problem()).release()->renumber(); });
    auto histories = UndoRecovery::list();
    ASSERT_EQ(stepsOf(histories), QList<int>({1, 4, 3, 2}));
    UndoRecovery::setByteLimit(histories[0].bytes + histories[1].bytes);
    QList<int> heard;
    const auto hear = [&](const RecoverableHistory& history) {
        heard.append(history.steps);
        return history.steps != 3;
    };
    EXPECT_EQ(UndoRecovery::makeRoom(hear), 2);
    EXPECT_EQ(heard, QList<int>({2, 3, 4}));
    EXPECT_EQ(stepsOf(UndoRecovery::list()), QList<int>({1, 3}));
    UndoRecovery::setByteLimit(histories[0].bytes);
    EXPECT_EQ(UndoRecovery::makeRoom(), 1);
    EXPECT_TRUE(UndoRecovery::discard(UndoRecovery::list().front().id, &problem()));
    EXPECT_EQ(entries(), QStringList());
}

TEST_F(UndoRecoveryTest, OnlyTheDeadsOwnFoldersAreTouched) {
    const QString folder = UndoRecovery::folder();
    for (int steps = 1; steps <= 5; ++steps) {
        leave(steps);
    }
    const auto path = [&](const char* name) { return folder + "/History00000" + name; };
    writtenTo(path("1.lock"), "kept another-machine host\n");
    if (geteuid() == 0) {
        ASSERT_EQ(::chown(QFile::encodeName(path("2.lock")).constData(), 12345, 12345), 0);
    } else {
        QFile::remove(path("2.lock"));
    }
    QFile::remove(path("3.lock"));
    ASSERT_TRUE(QDir().rename(path("4"), _root.filePath("elsewhere")) &&
                QFile::link(_root.filePath("elsewhere"), path("4")));
    writtenTo(path("5") + "/notes.txt", "mine");
    QDir(folder).mkdir("History7");
    writtenTo(folder + "/History.lock", "");
    writtenTo(path("8.lock"), "kept another-machine host\n");  // of a folder about to be made
    UndoRecovery::setByteLimit(0);
    EXPECT_EQ(stepsOf(UndoRecovery::list()), QList<int>({5}));
    const QStringList all = entries();
    EXPECT_EQ(UndoRecovery::makeRoom(), 1);
    EXPECT_EQ(all.size() - entries().size(), 2);
    EXPECT_TRUE(QFile::exists(_root.filePath("elsewhere/") + segmentName(1)));
    QString why;
    EXPECT_EQ(QFileInfo(startKeptHistory(&why)->path()).fileName(), "History000009");
    EXPECT_FALSE(TempFolder::claim(path("1"), &why));
}

TEST_F(UndoRecoveryTest, WhatHoldsNothingGoesWithTheNextToMakeRoom) {
    for (int steps = 1; steps <= 5; ++steps) {
        leave(steps);
    }
    const auto path = [](int number) {
        return UndoRecovery::folder() + "/History00000" + QString::number(number) + '/' + segmentName(1);
    };
    QFile::remove(path(2));
    QFile::resize(path(3), kSegmentHeadBytes);
    QByteArray damaged = contentOf(path(4));
    damaged[5] ^= 1;
    writtenTo(path(4), damaged);
    RecordWriter later(RecordType::segment, 4);  // of a version that is none yet
    later.put(kJournalVersion + 1);
    writtenTo(path(5), later.sealed(kSegmentHead));
    EXPECT_EQ(stepsOf(UndoRecovery::list()), QList<int>({1}));
    EXPECT_EQ(UndoRecovery::makeRoom(), 0) << "of whom somebody could hear";
    EXPECT_EQ(entries(),
              QStringList({"History000001", "History000001.lock", "History000005", "History000005.lock"}));
}

TEST_F(UndoRecoveryTest, OtherFoldersOfHistoriesAreCleanedUpAsBefore) {
    leave(2);
    inDyingProcess([] { TempFolder::claimNumbered(UndoRecovery::folder(), 1, &problem()).release(); });
    TempFolder::removeAbandoned(UndoRecovery::folder());
    EXPECT_EQ(entries(), QStringList({"History000001", "History000001.lock"}));
    EXPECT_FALSE(TempFolder::claim(UndoRecovery::folder() + "/History000001", &problem()));
    EXPECT_EQ(stepsOf(UndoRecovery::list()), QList<int>({2}));
}

TEST_F(UndoRecoveryTest, ProcessesThatComeAtOnceShareNothing) {
    for (int steps = 1; steps <= 8; ++steps) {
        leave(steps);
    }
    std::vector<pid_t> children;
    for (int i = 0; i < 4; ++i) {
        children.push_back(fork());
        if (children.back() == 0) {
            int taken = 0;
            for (int round = 0; round < 20; ++round) {
                for (const RecoverableHistory& history : UndoRecovery::list()) {
                    if (auto folder = claimKeptHistory(history.id, &problem())) {
                        const auto contents = readJournal(folder->path(), TileCheck::whole, &problem());
                        taken += contents && contents->stepCount() == history.steps ? 1 : 100;
                    }
                }
            }
            _exit(taken);  // who claims one lets go of it in order
        }
    }
    int taken = 0;
    for (const pid_t child : children) {
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFEXITED(status));
        taken += WEXITSTATUS(status);
    }
    EXPECT_EQ(taken, 8);
    UndoRecovery::list();
    EXPECT_EQ(entries(), QStringList());
}

}  // namespace dabcanvas
