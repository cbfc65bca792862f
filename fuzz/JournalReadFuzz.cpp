// SPDX-License-Identifier: MIT
// Any bytes, read as a journal of tiles: as a segment as they are, or as records whose sums are made right (JournalFrames.h).
// What is read holds together, every tile of it can be had, and who goes on from there finds it again.
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "History/JournalReader.h"
#include "History/TileJournal.h"
#include "JournalFrames.h"

using namespace dabcanvas;

namespace {

[[noreturn]] void fail(const char* what) {
    std::fprintf(stderr, "JournalReadFuzz: %s\n", what);
    std::abort();
}

// In memory where that can be had.
const QString& folder() {
    static const QTemporaryDir made((QDir("/dev/shm").exists() ? "/dev/shm" : QDir::tempPath()) +
                                    "/journal-fuzz-XXXXXX");
    static const QString path = made.path();
    return path;
}

void emptyFolder() {
    for (const QString& name : QDir(folder()).entryList(QDir::Files)) {
        QFile::remove(folder() + '/' + name);
    }
}

void checkStep(const JournalContents& contents, int step) {
    if (step < -1 || step >= static_cast<int>(contents.steps.size())) {
        fail("a step that is none");
    }
    for (const TileChange& tile : contents.pictureOf(step)) {
        QString problem;
        if (tile.index >= contents.format.tiles() || contents.readTile(tile.tile, &problem).isEmpty()) {
            fail("a picture without one of its tiles");
        }
    }
}

void check(const JournalContents& contents) {
    for (std::size_t i = 0; i < contents.steps.size(); ++i) {
        if (contents.steps[i].base < -1 || contents.steps[i].base >= static_cast<int>(i)) {
            fail("a step before its base");
        }
    }
    const auto of = [&](int step) { checkStep(contents, step); };
    constexpr std::size_t kEnough = 50;  // as one may be named ever so often
    std::for_each_n(contents.undo.begin(), std::min(contents.undo.size(), kEnough), of);
    std::for_each_n(contents.redo.begin(), std::min(contents.redo.size(), kEnough), of);
    of(contents.current);
    of(contents.present);
    if ((contents.current < 0) != (contents.present < 0) ||
        (contents.current < 0 && contents.stepCount() > 0)) {
        fail("steps, but none that is current");
    }
}

std::optional<JournalContents> readBack() {
    QString problem;
    auto contents = readJournal(folder(), TileCheck::whole, &problem);
    if (contents.has_value() != problem.isEmpty()) {
        fail("refused without a reason");
    }
    if (contents) {
        check(*contents);
    }
    return contents;
}

void goOn(const JournalContents& found) {
    const JournalStep step{QStringLiteral("new"), {}, {{0, found.lastTile + 1}}};
    const JournalState state{{step}, {}, {}, step.name, {}};
    QString problem;
    TileJournal journal({folder, found.format, 1 << 20, [&] { return std::optional(state); }});
    if (!journal.adopt(found) ||
        (found.lastTile != UINT64_MAX && (!journal.appendTile(found.lastTile + 1, "tile", 4, &problem) ||
                                          !journal.appendState(state, &problem)))) {
        fail("it cannot go on");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    emptyFolder();
    for (const auto& [number, bytes] : segmentsOf(data, size)) {
        QFile file(folder() + '/' + segmentName(number));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
            return 0;
        }
    }
    QString problem;
    const auto heads = readJournal(folder(), TileCheck::heads, &problem);
    const auto contents = readBack();
    if (heads.has_value() != contents.has_value()) {
        fail("a glance finds another journal");
    }
    if (contents && contents->lastTile != UINT64_MAX && contents->segments.back().number < 1000) {
        goOn(*contents);
        const auto after = readBack();
        if (!after || after->stepCount() != 1 || after->pictureOf(after->present).size() != 1) {
            fail("what comes after is not found");
        }
    }
    return 0;
}
