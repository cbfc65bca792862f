// SPDX-License-Identifier: MIT
// Putting a picture as large as the canvas onto it and reading the canvas back, beside copying as many bytes.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

#include "Canvas/QDDrawCanvas.h"
#include "support/Measuring.h"

using namespace dabcanvas::bench;

namespace {

// A canvas, a picture for it and room for its pixels.
struct Bench {
    explicit Bench(const benchmark::State& state)
        : size(static_cast<int>(state.range(0)), static_cast<int>(state.range(1))),
          whole(QPointF(0, 0), size),
          picture(size, QImage::Format_RGBA8888_Premultiplied),
          canvas(QDDrawCanvas::initWithFrame(whole)) {
        if (!canvas) {
            std::fprintf(stderr, "a canvas of %d x %d pixels cannot be made\n", size.width(), size.height());
            std::exit(1);
        }
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x) {
                picture.setPixel(x, y, qRgb(x % 251, y % 241, (x + y) % 239));
            }
        }
        from.assign(static_cast<std::size_t>(picture.sizeInBytes()), 1);
        to.assign(from.size(), 0);
    }

    QSize size;
    QRectF whole;
    QImage picture;
    std::unique_ptr<QDDrawCanvas> canvas;
    std::vector<unsigned char> from, to;
};

// One byte read back waits for the drawing before.
void finish(QDDrawCanvas& canvas) {
    unsigned char pixel[4];
    canvas.readDataBufferRect(pixel, QRectF(0, 0, 1, 1));
}

// Times the work and the copy in turn.
template <typename Work>
void compare(benchmark::State& state, const Work& work) {
    Bench bench(state);
    Rounds own;
    Rounds copy;
    work(bench);
    for (auto _ : state) {
        state.SetIterationTime(own.time([&] { work(bench); }));
        copy.time([&] {
            std::memcpy(bench.to.data(), bench.from.data(), bench.from.size());
            benchmark::DoNotOptimize(bench.to.data());
            benchmark::ClobberMemory();
        });
    }
    state.SetLabel(bench.canvas->rendererName().toStdString());
    state.counters["own_us"] = own.medianMicros();
    state.counters["copy_us"] = copy.medianMicros();
    state.counters["own/copy"] = own.median() / copy.median();
}

// The picture replaces the canvas, from the bytes in memory until the pixels are there.
void setPicture(benchmark::State& state) {
    compare(state, [](Bench& bench) {
        bench.canvas->setImage(bench.picture, bench.whole);
        finish(*bench.canvas);
    });
}

// The same of raw pixels, as undo puts them back.
void setBytes(benchmark::State& state) {
    const QByteArray recorded(state.range(0) * state.range(1) * 4, '\x7f');
    compare(state, [&](Bench& bench) {
        bench.canvas->setData(recorded, bench.size, bench.whole, true);
        finish(*bench.canvas);
    });
}

// The picture drawn half a pixel off, so that all of it is interpolated and blended.
void drawPicture(benchmark::State& state) {
    compare(state, [](Bench& bench) {
        bench.canvas->drawImage(bench.picture, bench.whole.translated(0.5, 0.5));
        finish(*bench.canvas);
    });
}

void readImage(benchmark::State& state) {
    compare(state, [](Bench& bench) { benchmark::DoNotOptimize(bench.canvas->image().constBits()); });
}

void readBytes(benchmark::State& state) {
    compare(state, [](Bench& bench) { bench.canvas->readData(bench.to.data(), bench.whole); });
}

void onBothSizes(benchmark::internal::Benchmark* row) {
    row->Args({1024, 768})
        ->Args({3840, 2160})
        ->UseManualTime()
        ->Unit(benchmark::kMicrosecond)
        ->Iterations(40);
}
BENCHMARK(setPicture)->Apply(onBothSizes);
BENCHMARK(setBytes)->Apply(onBothSizes);
BENCHMARK(drawPicture)->Apply(onBothSizes);
BENCHMARK(readImage)->Apply(onBothSizes);
BENCHMARK(readBytes)->Apply(onBothSizes);

}  // namespace

BENCHMARK_MAIN();
