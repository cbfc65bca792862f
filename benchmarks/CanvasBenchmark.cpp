// SPDX-License-Identifier: MIT
// What canvases cost beside the first one of a thread, and how much memory a large picture takes.
#include <benchmark/benchmark.h>
#include <sys/resource.h>
#include <unistd.h>

#include <fstream>
#include <memory>
#include <vector>

#include "support/Canvas.h"
#include "support/Measuring.h"

using namespace dabcanvas::bench;

namespace {

// Of the process so far.
double peakMiB() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024;  // Linux counts KiB
}

// Of the process now; 0 where Linux's files of processes are not.
double residentMiB() {
    long all = 0, resident = 0;
    std::ifstream("/proc/self/statm") >> all >> resident;
    return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1 << 20);
}

void paintStroke(QDDrawCanvas& on) {
    on.drawingWithBeginPoint({40, 60}, 0.5f);
    for (int x = 80; x <= 400; x += 40) {
        on.drawingWithMoveToPoint({double(x), 60.0 + x % 80}, 0.5f);
    }
    on.drawingWithEndPoint({440, 60}, 0.5f);
}

// Each with a stroke, up to its first pixel read back.
std::unique_ptr<QDDrawCanvas> paintedCanvas(int side) {
    auto canvas = makeCanvas(side, side);
    paintStroke(*canvas);
    unsigned char pixel[4];
    canvas->readDataBufferRect(pixel, QRectF(100, 100, 1, 1));
    return canvas;
}

// First: what it counts is the most that the process ever took.
void largePicture(benchmark::State& state) {
    Rounds all;
    for (auto _ : state) {
        state.SetIterationTime(all.time([&] {
            const auto canvas = paintedCanvas(8192);
            benchmark::DoNotOptimize(canvas->image());
        }));
    }
    state.counters["peak_MiB"] = peakMiB();
}
BENCHMARK(largePicture)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(1);

void secondCanvas(benchmark::State& state) {
    const auto first = paintedCanvas(512);
    Rounds making, painting;
    for (auto _ : state) {
        std::unique_ptr<QDDrawCanvas> second;
        making.time([&] { second = makeCanvas(512, 512); });
        second.reset();
        painting.time([&] { second = paintedCanvas(512); });
        state.SetIterationTime(making.median());
    }
    state.counters["made_ms"] = making.median() * 1e3;
    state.counters["painted_ms"] = painting.median() * 1e3;
}
BENCHMARK(secondCanvas)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(20);

void manyCanvases(benchmark::State& state) {
    const auto first = paintedCanvas(512);
    const double before = residentMiB();
    std::vector<std::unique_ptr<QDDrawCanvas>> canvases;
    Rounds all;
    for (auto _ : state) {
        state.SetIterationTime(all.time([&] {
            for (int i = 0; i < 64; ++i) {
                canvases.push_back(paintedCanvas(512));
            }
        }));
    }
    state.counters["seconds"] = all.median();
    state.counters["more_MiB"] = residentMiB() - before;
}
BENCHMARK(manyCanvases)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace

BENCHMARK_MAIN();
