// SPDX-License-Identifier: MIT
// Brush presets: saving and opening one with four 256 px tips, capturing it from a canvas and applying it to one, and
// the names of a thousand.
#include <benchmark/benchmark.h>
#include <epoxy/gl.h>

#include <QFile>
#include <QImage>
#include <QSaveFile>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "Brushes/ImageData.h"
#include "Canvas/QDDrawCanvas.h"
#include "Preset/BrushParamValues.h"
#include "Preset/QDBrushManager.h"
#include "Surface/PaintSurface.h"
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

// A canvas whose brush is a preset of four tips of its own, by `seed`.
std::unique_ptr<QDDrawCanvas> canvasWithTips(unsigned seed) {
    auto canvas = QDDrawCanvas::initWithFrame(QRectF(0, 0, 512, 512));
    require(canvas != nullptr, "making a canvas");
    QList<QImage> tips;
    for (unsigned i = 0; i < kTips; ++i) {
        tips.append(imageWithData(tipData(seed + i)));
    }
    canvas->setTextureType(0);
    canvas->setTextureImages(tips);
    return canvas;
}

// Up to where the driver has done what it was told: what is drawn next need not wait for it.
void finish(QDDrawCanvas& canvas) {
    const dabcanvas::SurfaceScope current(canvas.surface());
    glFinish();
}

// Against encoding the tips as PNG, which is most of it.
void capturePreset(benchmark::State& state) {
    const auto canvas = canvasWithTips(1);
    Rounds own, encoding;
    for (auto _ : state) {
        state.SetIterationTime(own.time([&] {
            const auto params = QDBrushManager::paramsOfDrawView(canvas.get());
            require(params && params->size() > kTips, "capturing");
        }));
        encoding.time([&] {
            for (const QImage& tip : canvas->textureImages()) {
                require(!dataOfPNGFile(tip).isEmpty(), "encoding");
            }
        });
    }
    state.counters["own_us"] = own.medianMicros();
    state.counters["own/encoding"] = own.median() / encoding.median();
}

// Two presets in turn, each until the GPU has it. Against decoding the tips of one, and against that and handing them
// to the canvas.
void applyPreset(benchmark::State& state) {
    const auto canvas = canvasWithTips(1);
    const BrushParams presets[] = {*QDBrushManager::paramsOfDrawView(canvas.get()),
                                   *QDBrushManager::paramsOfDrawView(canvasWithTips(9).get())};
    std::size_t turn = 0;
    Rounds own, decoding, setting;
    for (auto _ : state) {
        const BrushParams& preset = presets[++turn % 2];
        state.SetIterationTime(own.time([&] {
            require(canvas->resetWithParams(preset, QDBrushManager::kVersion), "applying");
            finish(*canvas);
        }));
        QList<QImage> tips;
        decoding.time([&] {
            tips = BrushParamValues(preset).textureImages();
            require(tips.size() == kTips, "decoding");
        });
        setting.time([&] {
            canvas->setTextureImages(tips);
            finish(*canvas);
        });
    }
    state.counters["own_us"] = own.medianMicros();
    state.counters["own/decoding"] = own.median() / decoding.median();
    state.counters["own/least"] = own.median() / (decoding.median() + setting.median());
}

BENCHMARK(savePreset)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(100);
BENCHMARK(openPreset)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(200);
BENCHMARK(capturePreset)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(50);
BENCHMARK(applyPreset)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(100);
BENCHMARK(listPresets)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(10);

}  // namespace

BENCHMARK_MAIN();
