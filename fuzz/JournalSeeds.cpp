// SPDX-License-Identifier: MIT
// Writes the seeds of JournalReadFuzz, from journals as a history makes them: JournalSeeds folder
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <random>

#include "History/JournalReader.h"
#include "History/JournalScan.h"
#include "History/SegmentFile.h"
#include "History/TileJournal.h"
#include "JournalFrames.h"

using namespace dabcanvas;

namespace {

// Steps of a few tiles each, of which the last ones can be undone and redone, and a canvas that is none of them.
void paint(const QString& folder, unsigned seed, int steps) {
    std::mt19937 random(seed);
    JournalState state;  // all of it
    const auto all = [&] { return std::optional(state); };
    TileJournal journal({[&] { return folder; }, kFramesFormat, 400, all});
    QString problem;
    std::uint64_t tile = 0;
    for (int i = 0; i < steps; ++i) {
        JournalStep step{QString::number(i), state.current, {}};
        for (unsigned count = random() % 4; count > 0; --count) {
            journal.appendTile(++tile, QByteArray(static_cast<int>(random() % 20 + 1), 'x'), 64, &problem);
            step.changes.push_back({static_cast<std::uint32_t>(random() % kFramesFormat.tiles()), tile});
        }
        const auto keep = [](const StackChange<QString>& stack) {
            return StackChange<QString>{0, stack.added.size(), {}};
        };
        JournalState now{{}, keep(state.undo), keep(state.redo), state.current, {}};
        if (random() % 4 == 0 && !state.current.isEmpty()) {
            now.present = {state.current, step.changes};
            journal.appendState(now, &problem);
            continue;
        }
        if (!state.current.isEmpty()) {
            const auto stack = random() % 3 == 0 ? &JournalState::redo : &JournalState::undo;
            (state.*stack).added.push_back(state.current);
            (now.*stack).added.push_back(state.current);
        }
        now.steps = {step};
        now.current = step.name;
        if (journal.appendState(now, &problem)) {
            state.current = step.name;
            state.steps.push_back(step);
        }
    }
}

QByteArray framesOf(const QString& folder) {
    QByteArray frames(1, '\1');
    const auto put = [&](std::uint8_t op, const QByteArray& payload) {
        char length[2];
        qToLittleEndian(static_cast<std::uint16_t>(payload.size()), length);
        frames.append(static_cast<char>(op)).append(length, 2).append(payload);
    };
    QString problem;
    const auto contents = readJournal(folder, TileCheck::whole, &problem);
    for (const JournalSegment& segment : contents->segments) {
        if (frames.size() > 1) {
            put(kNextSegment, {});
        }
        JournalScan scan(segment, contents->journal);
        std::vector<char> payload;
        while (const auto found = scan.next()) {
            scan.readPayload(*found, &payload);
            put(static_cast<std::uint8_t>(found->head.type),
                QByteArray(payload.data(), static_cast<qsizetype>(payload.size())));
        }
    }
    return frames;
}

bool save(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

}  // namespace

int main(int argc, char** argv) {
    const QString out = argc == 2 ? QString::fromLocal8Bit(argv[1]) : QString();
    bool saved = !out.isEmpty() && QDir().mkpath(out);
    for (unsigned seed = 1; saved && seed <= 8; ++seed) {
        const QTemporaryDir folder;
        paint(folder.path(), seed, static_cast<int>(seed) * 4);
        const QString name = out + "/" + QString::number(seed);
        QFile first(folder.filePath(QDir(folder.path()).entryList(QDir::Files, QDir::Name).front()));
        saved = first.open(QIODevice::ReadOnly) &&
                save(name + ".segment", QByteArray(1, '\0') + first.readAll()) &&
                save(name + ".frames", framesOf(folder.path()));
    }
    return saved ? 0 : 1;
}
