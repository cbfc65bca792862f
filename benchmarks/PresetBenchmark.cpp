// SPDX-License-Identifier: MIT
// Brush presets on the disk: saving and opening one with four 256 px tips, and the names of a thousand.
#include <benchmark/benchmark.h>

#include <QFile>
#include <QImage>
#include <QSaveFile>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "Brushes/ImageData.h"
#include "Preset/QDBrushManager.h"
#include "support/Measuring.h"

using namespace dabcanvas::bench;

namespace {

constexpr int kTip = 256, kTips = 4, kFiles = 1000;

// A failure would otherwise be measured as something very fast.
void require(bool done, const char* what) {
    if (!done) {
        std::fprintf(stderr, "PresetBenchmark: %s failed\n", what);
        std::exit(1);
    }
}

// A round tip with grain, so that its PNG is as large as a real one's.
QByteArray tipData(unsigned seed) {
    QImage tip(kTip, kTip, QImage::Format_RGBA8888_Premultiplied);
    tip.fill(Qt::transparent);
    for (int y = 0; y < kTip; ++y) {
        uchar* row = tip.scanLine(y);
        for (int x = 0; x < kTip; ++x) {
            const int dx = x - kTip / 2, dy = y - kTip / 2;
            seed = seed * 1664525u + 1013904223u;
            row[4 * x + 3] =
                static_cast<uchar>(std::max(0, 255 - (dx * dx + dy * dy) / 64) * (seed >> 24) / 255);
        }
    }
    return dataOfPNGFile(tip);
}

BrushParams preset() {
    BrushParams params;
    for (int i = 0; i < 80; ++i) {
        params.append(
            QDBrushManager::paramWithID(0x3001 + i, QStringLiteral("setRadiusTingle:"), 0.5f, kXBFFloat));
    }
    for (unsigned i = 0; i < kTips; ++i) {
        params.append(
            QDBrushManager::paramWithID(0x2001, QStringLiteral("setTextureImages:"), tipData(i), kXBFData));
    }
    return params;
}

// The preset, and a folder to keep it in.
struct Bench {
    Bench() { require(save(), "saving"); }
    bool save() const { return QDBrushManager::saveParams(params, 200, QStringLiteral("Ink"), path); }
    QByteArray bytes() const {
        QFile file(path);
        require(file.open(QIODevice::ReadOnly), "reading");
        return file.readAll();
    }

    BrushParams params = preset();
    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("ink.xbf"));
};

void report(benchmark::State& state, const Rounds& own, const Rounds& file) {
    state.counters["own_us"] = own.medianMicros();
    state.counters["file_us"] = file.medianMicros();
    state.counters["own/file"] = own.median() / file.median();
}

// Against QFile writing the same bytes over the old ones, and QSaveFile, which as saveParams() does waits for
// the disk and then replaces the old file.
void savePreset(benchmark::State& state) {
    const Bench bench;
    const QByteArray bytes = bench.bytes();
    const auto write = [&bytes](auto&& file) {
        require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), "writing");
    };
    Rounds own, file, safeFile;
    for (auto _ : state) {
        state.SetIterationTime(own.time([&] { require(bench.save(), "saving"); }));
        file.time([&] { write(QFile(bench.folder.filePath(QStringLiteral("plain")))); });
        safeFile.time([&] {
            QSaveFile replaced(bench.folder.filePath(QStringLiteral("safe")));
            write(replaced);
            require(replaced.commit(), "committing");
        });
    }
    report(state, own, file);
    state.counters["own/safe"] = own.median() / safeFile.median();
    state.counters["KiB"] = static_cast<double>(bytes.size()) / 1024;
}

// Against QFile reading the same bytes.
void openPreset(benchmark::State& state) {
    const Bench bench;
    Rounds own, file;
    for (auto _ : state) {
        state.SetIterationTime(own.time([&] {
            const auto brushes = QDBrushManager::brushesWithXBFPath(bench.path);
            require(brushes && brushes->size() == 1, "opening");
        }));
        file.time([&] { require(!bench.bytes().isEmpty(), "reading"); });
    }
    report(state, own, file);
}

// Against QFile opening each and reading 64 bytes.
void listPresets(benchmark::State& state) {
    const Bench bench;
    QStringList paths;
    for (int i = 0; i < kFiles; ++i) {
        paths += bench.folder.filePath(QStringLiteral("%1.xbf").arg(i));
        require(QFile::copy(bench.path, paths.back()), "copying");
    }
    Rounds own, file;
    for (auto _ : state) {
        state.SetIterationTime(own.time([&] {
            for (const QString& path : paths) {
                const auto names = QDBrushManager::brushNamesWithXBFPath(path);
                require(names && names->size() == 1, "listing");
            }
        }));
        file.time([&] {
            for (const QString& path : paths) {
                QFile plain(path);
                require(plain.open(QIODevice::ReadOnly) && plain.read(64).size() == 64, "reading");
            }
        });
    }
    report(state, own, file);
}

BENCHMARK(savePreset)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(100);
BENCHMARK(openPreset)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(200);
BENCHMARK(listPresets)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(10);

}  // namespace

BENCHMARK_MAIN();
