// SPDX-License-Identifier: MIT
#include "History/TileJournal.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QTemporaryDir>

#include "History/JournalModel.h"
#include "support/DyingProcess.h"
#include "support/Files.h"
#include "support/Limits.h"

namespace dabcanvas {

namespace {

class TileJournalTest : public ::testing::Test {
protected:
    using Files = std::map<QString, QByteArray>;

    static Files filesIn(const QString& folder) {
        Files files;
        for (const QString& name : QDir(folder).entryList(QDir::Files, QDir::Name)) {
            files[name] = contentOf(folder + '/' + name);
        }
        return files;
    }
    // In place: a disk waits where files are emptied or made anew.
    static void write(const QString& folder, const Files& files) {
        for (const auto& [name, bytes] : files) {
            QFile file(folder + '/' + name);
            EXPECT_TRUE(file.open(QIODevice::ReadWrite) && file.write(bytes) == bytes.size() &&
                        file.resize(bytes.size()));
        }
    }
    // These files in a folder by themselves, until the next.
    QString folderOf(const Files& files) {
        const QString folder = made("copy");
        for (const QString& name : QDir(folder).entryList(QDir::Files)) {
            if (files.count(name) == 0) {
                QFile::remove(folder + '/' + name);
            }
        }
        Files others = files;
        for (const auto& [name, bytes] : _copied) {
            if (files.count(name) != 0 && files.at(name) == bytes) {
                others.erase(name);
            }
        }
        write(folder, others);
        _copied = files;
        return folder;
    }
    QString made(const char* name) {
        QDir(_root.path()).mkdir(name);
        return _root.filePath(name);
    }
    static std::optional<JournalContents> read(const QString& folder) {
        QString problem;
        auto contents = readJournal(folder, TileCheck::whole, &problem);
        EXPECT_EQ(contents.has_value(), problem.isEmpty());
        return contents;
    }

    QTemporaryDir _root;
    Files _copied;
};

// Every picture that there ever was, by the name of its step; the canvas has none.
class EverySeen {
public:
    void note(const HistoryState& state) {
        const auto add = [this](const HistoryState::Step& step) { _seen.insert(step); };
        std::for_each(state.undo.begin(), state.undo.end(), add);
        std::for_each(state.redo.begin(), state.redo.end(), add);
        add(state.current);
        _canvases.insert(state.canvas);
        _canvases.insert(state.current.second);
    }
    void expectNothingElse(const HistoryState& state) const {
        const auto check = [this](const HistoryState::Step& step) {
            EXPECT_TRUE(step.first.isEmpty() ? _canvases.count(step.second) : _seen.count(step))
                << step.first.toStdString();
        };
        std::for_each(state.undo.begin(), state.undo.end(), check);
        std::for_each(state.redo.begin(), state.redo.end(), check);
        check(state.current);
        EXPECT_TRUE(_canvases.count(state.canvas));
    }

private:
    std::set<HistoryState::Step> _seen;
    std::set<Picture> _canvases{{}};
};

}  // namespace

// Crashes

TEST_F(TileJournalTest, ComesBackAsItWasAfterEveryRecordAndAnyPartOfTheNext) {
    for (const std::int64_t segmentBytes : {std::int64_t{1} << 20, std::int64_t{1500}}) {
        SCOPED_TRACE(segmentBytes);
        const QString folder = made(qPrintable(QString::number(segmentBytes)));
        JournalModel model(folder, segmentBytes, 1);
        std::mt19937 random(2);
        HistoryState before;
        Files former;
        int cuts = 0;
        model.appended = [&](const HistoryState& state) {
            const Files files = filesIn(folder);
            ASSERT_EQ(stateOf(*read(folderOf(files))), state);
            // Killed in the middle of it.
            const auto& [name, bytes] = *files.rbegin();
            const qsizetype from = former.count(name) ? former[name].size() : 0;
            for (int i = 0; i < 5; ++i, ++cuts) {
                Files cut = former;  // what a checkpoint removes is there until it is written
                cut[name] = bytes;
                cut[name].truncate(
                    from + static_cast<qsizetype>(random() % static_cast<unsigned>(bytes.size() - from)));
                const auto contents = readJournal(folderOf(cut), TileCheck::whole, &model.problem);
                ASSERT_TRUE(contents || former.empty());
                ASSERT_TRUE(!contents || stateOf(*contents) == before);
            }
            before = state;
            former = files;
        };
        for (int i = 0; i < 100 && !HasFatalFailure(); ++i) {
            model.act();
        }
        EXPECT_GT(cuts, 1000);
        EXPECT_EQ(filesIn(folder).size() > 1, segmentBytes < 10000);
    }
}

TEST_F(TileJournalTest, DamageLosesWhatItHitsAndShowsNothingElse) {
    JournalModel model(made("flips"), 2500, 3);
    EverySeen seen;
    model.appended = [&](const HistoryState& state) { seen.note(state); };
    for (int i = 0; i < 150; ++i) {
        model.act();
    }
    const QString folder = _root.filePath("flips");
    const Files files = filesIn(folder);
    ASSERT_GT(files.size(), 2u);
    std::mt19937 random(4);
    int asBefore = 0;
    for (int round = 0; round < 1000 && !HasFailure(); ++round) {
        Files damaged;
        for (unsigned i = random() % 3; i < 3; ++i) {
            const auto file = std::next(files.begin(), random() % files.size());
            QByteArray& bytes = damaged.insert(*file).first->second;
            const auto at = static_cast<qsizetype>(random() % static_cast<unsigned>(bytes.size()));
            if (round % 10 == 9) {
                bytes.replace(at, 40, QByteArray(static_cast<qsizetype>(random() % 80), '\0'));
            } else {
                bytes[at] = static_cast<char>(bytes[at] ^ (1 << random() % 8));
            }
        }
        write(folder, damaged);
        QString problem;
        if (const auto contents = readJournal(folder, TileCheck::whole, &problem)) {
            const HistoryState state = stateOf(*contents);
            seen.expectNothingElse(state);
            asBefore += state == model.written();
        }
        for (auto& [name, bytes] : damaged) {
            bytes = files.at(name);
        }
        write(folder, damaged);
    }
    EXPECT_GT(asBefore, 100) << "old records and released tiles matter to nobody";
}

TEST_F(TileJournalTest, ADamagedTileTakesItsPicturesAlong) {
    const QString folder = made("one");
    TileJournal journal(
        {[&] { return folder; }, JournalModel::kFormat, 1 << 20, [] { return JournalState(); }});
    QString problem;
    std::vector<TilePlace> places;
    for (std::uint64_t id = 1; id <= 4; ++id) {
        places.push_back(*journal.appendTile(id, tileBytes(id), 100, &problem));
    }
    const QString odd = QString(QChar(0xD800)) + QChar(0) + "/\n";
    const JournalStep steps[] = {
        {"first", {}, {{0, 1}, {1, 2}}}, {odd, "first", {{0, 3}}}, {"third", odd, {{1, 4}}}};
    const JournalPresent present{"third", {{2, 1}}};
    const StackChange<QString> none, undone{0, 0, {"none", "first"}}, redone{0, 0, {"third"}}, kept{1, 2, {}};
    ASSERT_TRUE(journal.appendState({{steps[0]}, none, none, "first", {}}, &problem));
    ASSERT_TRUE(journal.appendState({{steps[1], steps[2]}, undone, redone, odd, present}, &problem));
    for (const JournalState& wrong : {JournalState{{{"x", "none", {}}}, none, none, "x", {}},
                                      JournalState{{{"", "", {}}}, none, none, "", {}},
                                      JournalState{{}, none, none, odd, JournalPresent{"none", {}}},
                                      JournalState{{}, kept, none, odd, {}}}) {
        EXPECT_FALSE(journal.appendState(wrong, &problem));
    }
    const HistoryState::Step first{"first", {{0, 1}, {1, 2}}}, second{odd, {{0, 3}, {1, 2}}},
        third{"third", {{0, 3}, {1, 4}}};
    const Picture canvas{{0, 3}, {1, 4}, {2, 1}};
    const struct {
        std::uint64_t lost;
        HistoryState left;
    } rows[] = {
        {0, {{first}, {third}, second, canvas}},
        {1, {{}, {third}, second, second.second}},
        {2, {{}, {}, third, canvas}},  // the present one stays
        {3, {{}, {}, first, first.second}},
        {4, {{first}, {}, second, second.second}},
    };
    for (const auto& row : rows) {
        for (const std::uint32_t byte : {2u, 15u, 40u}) {  // of head, sum and payload
            SCOPED_TRACE(::testing::Message() << row.lost << " at " << byte);
            Files files = filesIn(folder);
            if (row.lost != 0) {
                QByteArray& bytes = files.begin()->second;
                bytes[places[row.lost - 1].offset + byte] ^= 1;
            }
            EXPECT_EQ(stateOf(*read(folderOf(files))), row.left);
        }
    }
}

TEST_F(TileJournalTest, OneOfThousandsOfStepsTellsWhatChangedAndAFewRecordsMayBeLost) {
    constexpr int kSteps = 3000, kLostFrom = kSteps - 20;
    const QString folder = made("journal");
    TileJournal journal(
        {[&] { return folder; }, JournalModel::kFormat, 64 << 20, [] { return std::nullopt; }});
    QString problem;
    std::vector<qint64> ends;
    JournalState state;
    for (int i = 0; i < kSteps; ++i) {
        const QString name = QString::number(i);
        state.steps = {{name, state.current, {}}};
        if (i > 0) {
            state.undo = {0, static_cast<std::size_t>(i - 1), {state.current}};
        }
        state.current = name;
        ASSERT_TRUE(journal.appendState(state, &problem)) << problem.toStdString();
        ends.push_back(journal.bytesOnDisk());
    }
    EXPECT_LT(ends.back() - ends[kSteps / 2], kSteps / 2 * 800);
    for (const int lost : {0, 7, 8}) {
        SCOPED_TRACE(lost);
        Files files = filesIn(folder);
        for (int i = kLostFrom; i < kLostFrom + lost; ++i) {
            files.begin()->second[ends[static_cast<std::size_t>(i)] - 1] ^= 1;
        }
        const HistoryState told = stateOf(*read(folderOf(files)));
        EXPECT_EQ(told.current.first, state.current);
        EXPECT_EQ(told.undo.size() == kSteps - 1, lost < 8);
        EXPECT_GT(told.undo.size(), 10u) << "what is above is known";
        for (std::size_t i = 1; i <= told.undo.size(); ++i) {
            ASSERT_EQ(told.undo[told.undo.size() - i].first, QString::number(kSteps - 1 - i));
        }
    }
}

TEST_F(TileJournalTest, ForeignFilesAreNoneOfIt) {
    const QString folder = made("journal"), other = made("other");
    JournalModel model(folder, 1500, 5), foreign(other, 1500, 6);
    for (int i = 0; i < 40; ++i) {
        model.act();
        foreign.act();
    }
    const QStringList theirs = QDir(other).entryList(QDir::Files);
    ASSERT_TRUE(QFile::copy(other + '/' + theirs.front(), folder + "/tiles-00009999.journal"));
    ASSERT_TRUE(QFile::copy(folder + '/' + segmentName(model.places().begin()->second.segment),
                            folder + "/tiles-00009998.journal"));
    writtenTo(folder + "/tiles-00009997.journal", QByteArray(3000, '\x7b'));
    writtenTo(folder + "/tiles-1.journal", "x");
    QFile::link("/etc/passwd", folder + "/tiles-00009996.journal");
    ASSERT_EQ(::mkfifo(QFile::encodeName(folder + "/tiles-00009995.journal").constData(), 0600), 0);
    ASSERT_TRUE(QDir(folder).mkdir("tiles-00009994.journal"));
    EXPECT_EQ(stateOf(*read(folder)), model.written());
    {
        const Limited few(RLIMIT_NOFILE, 8);
        EXPECT_FALSE(readJournal(folder, TileCheck::whole, &model.problem)) << "a part is not the whole";
    }
    EXPECT_FALSE(readJournal(made("empty"), TileCheck::whole, &model.problem));
    EXPECT_FALSE(readJournal(_root.filePath("nowhere"), TileCheck::whole, &model.problem));
}

TEST_F(TileJournalTest, AnotherProcessGoesOn) {
    const QString folder = made("journal");
    JournalModel model(folder, 1500, 7);
    for (int life = 0; life < 8; ++life) {
        for (int i = 0; i < 30; ++i) {
            model.act();
        }
        model.moveSparse(1.1);
        ASSERT_EQ(stateOf(*read(folder)), model.written());
        model.goOn();
        model.checkpointHolds = life % 3 != 1;
        for (const auto& [id, place] : model.places()) {
            EXPECT_EQ(model.journal->readTile(place, id, &model.problem), tileBytes(id));
        }
    }
    EXPECT_LT(filesIn(folder).size(), 12u) << "what is needed no more has gone";
}

// Disks

TEST_F(TileJournalTest, ADiskThatTakesNothingCostsNothingThatWasWritten) {
    const struct {
        const char* claim;
        rlim_t most;
    } rows[] = {{"not even a head", 30}, {"not a tile", 61}, {"a tile or two", 200}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.claim);
        const QString folder = made(row.claim);
        JournalModel model(folder, 1 << 20, 8);
        {
            const FullDisk disk(row.most);
            for (int i = 0; i < 30; ++i) {
                model.problem.clear();
                model.journal->appendTile(1000, QByteArray(90, 'x'), 100, &model.problem);
                model.act();
                EXPECT_FALSE(model.problem.isEmpty());
            }
            EXPECT_LT(filesIn(folder).size(), 60u);
        }
        for (int i = 0; i < 30; ++i) {
            model.act();
        }
        EXPECT_EQ(stateOf(*read(folder)), model.written()) << "now that it can";
    }
}

TEST_F(TileJournalTest, AFileThatMayNotGrowIsFollowedByAnother) {
    const QString folder = made("spilled");
    TileJournal journal({[&] { return folder; }, JournalModel::kFormat, 1 << 20, {}});
    const FullDisk disk(300);
    QString problem;
    for (std::uint64_t id = 1; id <= 10; ++id) {
        const auto place = journal.appendTile(id, tileBytes(id), 100, &problem);
        ASSERT_TRUE(place) << problem.toStdString();
        EXPECT_EQ(journal.readTile(*place, id, &problem), tileBytes(id));
    }
}

TEST_F(TileJournalTest, WithoutItsFolderItReadsOnAndWritesAnew) {
    QString problem;
    for (const bool kept : {false, true}) {
        SCOPED_TRACE(kept);
        const QString folder = made("gone");
        JournalModel model(folder, 1500, 9, kept);
        for (int i = 0; i < 40; ++i) {
            model.act();
        }
        ASSERT_TRUE(QDir(folder).removeRecursively());
        for (int i = 0; i < 40; ++i) {
            model.act();
        }
        EXPECT_FALSE(model.problem.isEmpty()) << "no new file can be had";
        for (const auto& [id, place] : model.places()) {
            EXPECT_EQ(model.journal->readTile(place, id, &problem), tileBytes(id)) << problem.toStdString();
        }
        made("gone");
        model.act();
        model.moveSparse(0.0);
        for (int i = 0; i < 10; ++i) {
            model.act();
        }
        if (kept) {
            EXPECT_EQ(stateOf(*read(folder)), model.written());
        }
        QDir(folder).removeRecursively();
    }
}

TEST_F(TileJournalTest, AReadOnlyFolderCostsNothingThatWasWritten) {
    const auto all = static_cast<QFile::Permissions>(0x7777), readOnly = QFile::ReadOwner | QFile::ExeOwner;
    ASSERT_TRUE(QFile::setPermissions(_root.path(), all));
    inDyingProcess([&] {
        const bool mayWriteAnywhere = geteuid() == 0 && setuid(12345) != 0;
        const QString folder = made("journal");
        JournalModel model(folder, 1500, 14);
        for (const auto permissions : {all, readOnly, all}) {
            model.problem.clear();
            const bool set = QFile::setPermissions(folder, permissions);
            for (int i = 0; i < 40; ++i) {
                model.act();
            }
            const bool isRefused = !model.problem.isEmpty();
            const bool isThere = permissions == readOnly || stateOf(*read(folder)) == model.written();
            if (mayWriteAnywhere || !set || isRefused != (permissions == readOnly) || !isThere) {
                _exit(1);
            }
        }
    });
}

TEST_F(TileJournalTest, CanBeKeptLaterAndElsewhere) {
    const QString spilled = made("spilled"), kept = made("kept");
    JournalModel model(spilled, 1500, 13, false);
    for (const QString& folder : {kept, made("moved")}) {
        for (int i = 0; i < 40; ++i) {
            model.act();
        }
        model.keepIn(folder);
        EXPECT_EQ(stateOf(*read(folder)), model.written());
    }
    EXPECT_TRUE(filesIn(spilled).empty() && filesIn(kept).empty()) << "nothing is needed there";
    model.journal->keep(nullptr);
    model.journal.reset();
    EXPECT_TRUE(filesIn(_root.filePath("moved")).empty());
}

TEST_F(TileJournalTest, FilesGoWithTheirLastTileAndOnlyOnesOwn) {
    const QString folder = made("spilled");
    writtenTo(folder + '/' + segmentName(2), "somebody's");
    QString problem;
    {
        TileJournal journal({[&] { return folder; }, JournalModel::kFormat, 1000, {}});
        std::vector<TilePlace> places;
        for (std::uint64_t id = 0; id < 100; ++id) {
            places.push_back(*journal.appendTile(id + 1, tileBytes(id + 1), 100, &problem));
        }
        ASSERT_GT(filesIn(folder).size(), 6u);
        EXPECT_EQ(QFile(folder + '/' + segmentName(1)).permissions() & 0x77, 0);
        EXPECT_EQ(journal.tilesInSparseSegments(0.5).size(), 0u);
        for (std::size_t i = 0; i < places.size(); ++i) {
            if (i % 4 != 0 || i > 60) {
                journal.release(places[i]);
                journal.release(places[i]);
            }
        }
        EXPECT_EQ(journal.bytesOnDisk(), [&] {
            qint64 sum = 0;
            for (const auto& [name, bytes] : filesIn(folder)) {
                sum += name == segmentName(2) ? 0 : bytes.size();
            }
            return sum;
        }());
        for (const std::uint64_t id : journal.tilesInSparseSegments(0.5)) {
            const TilePlace old = places[id - 1];
            places[id - 1] = *journal.appendTile(id, tileBytes(id), 100, &problem);
            journal.release(old);
        }
        EXPECT_LE(filesIn(folder).size(), 4u);
        EXPECT_LT(journal.bytesOnDisk(), journal.liveBytes() + 1500);
        for (std::size_t i = 0; i <= 60; i += 4) {
            EXPECT_EQ(journal.readTile(places[i], i + 1, &problem), tileBytes(i + 1));
        }
        EXPECT_TRUE(journal.readTile(places[0], 2, &problem).isNull()) << "another tile's";
        EXPECT_TRUE(journal.readTile(places[1], 2, &problem).isNull()) << "gone";
        EXPECT_FALSE(journal.appendTile(1, QByteArray(64 * 64 * 4 + 1, 'x'), 64 * 64 * 4 + 1, &problem));
        EXPECT_TRUE(journal.sync(&problem)) << problem.toStdString();
    }
    EXPECT_EQ(filesIn(folder).size(), 1u) << "but for somebody's";
}

TEST_F(TileJournalTest, WithoutACheckpointStepsThatHaveNoTilesStayToo) {
    const QString folder = made("journal");
    QString problem;
    JournalState state;
    for (int life = 0; life < 2; ++life) {
        TileJournal journal(
            {[&] { return folder; }, JournalModel::kFormat, 200, [] { return std::nullopt; }});
        ASSERT_TRUE(life == 0 || journal.adopt(*read(folder)));
        for (int i = life * 10; i < life * 10 + 10; ++i) {
            state.steps = {{QString::number(i), state.current, {}}};
            if (i > 0) {
                state.undo.added.push_back(state.current);
            }
            state.current = QString::number(i);
            ASSERT_TRUE(journal.appendState(state, &problem)) << problem.toStdString();
        }
    }
    const HistoryState told = stateOf(*read(folder));
    ASSERT_EQ(told.undo.size(), 19u);
    for (int i = 0; i < 19; ++i) {
        EXPECT_EQ(told.undo[static_cast<std::size_t>(i)].first, QString::number(i));
    }
}

TEST_F(TileJournalTest, PixelsThatLookLikeARecordAreNone) {
    const QString folder = made("journal");
    TileJournal journal(
        {[&] { return folder; }, JournalModel::kFormat, 1 << 20, [] { return JournalState(); }});
    QString problem;
    ASSERT_TRUE(journal.appendState({{{"old", {}, {}}}, {}, {}, "old", {}}, &problem));
    const qint64 before = journal.bytesOnDisk();
    ASSERT_TRUE(journal.appendState({{}, {}, {}, "old", {}}, &problem));
    const QByteArray record = filesIn(folder).begin()->second.mid(before);
    ASSERT_TRUE(journal.appendState({{{"new", {}, {}}}, {0, 0, {"old"}}, {}, "new", {}}, &problem));
    const auto tile = journal.appendTile(1, record, 1000, &problem);
    Files files = filesIn(folder);
    files.begin()->second[tile->offset] ^= 1;
    EXPECT_EQ(stateOf(*read(folderOf(files))).current.first, "new");
}

}  // namespace dabcanvas
