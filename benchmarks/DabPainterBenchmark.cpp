// SPDX-License-Identifier: MIT
// What a dab costs on the processor, beside libmypaint's draw_dab: both put 256 dabs along an ellipse into layers of 16
// bits a channel, in turn, on one thread. Times are the calling thread's own.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <ctime>
#include <memory>
#include <vector>

#include "Processor/DabPainter.h"
#include "Processor/Workers.h"
#ifdef DABCANVAS_HAVE_MYPAINT
#include "support/MyPaint.h"
#endif

using namespace dabcanvas;

namespace {

constexpr Size kLayer{2048, 1536};
constexpr std::size_t kDabs = 256;
constexpr float kSpacing = 0.075f;
constexpr float kFlow = 0.5f;

double threadSeconds() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

// A contestant's times, of turns that are long enough to measure.
class Turns {
public:
    template <typename Work>
    void take(Work&& work) {
        constexpr double kLeast = 0.01;  // seconds
        work();                          // brings its pixels back into the caches
        int times = 0;
        const double start = threadSeconds();
        double spent = 0;
        do {
            work();
            ++times;
            spent = threadSeconds() - start;
        } while (spent < kLeast);
        _seconds.push_back(spent / times);
    }
    // The shortest: what others do on the machine only ever adds.
    double best() const { return *std::min_element(_seconds.begin(), _seconds.end()); }

private:
    std::vector<double> _seconds;
};

// Dabs along an ellipse that keeps the largest of them inside the layer.
std::vector<Dab> stroke(float width, bool turned) {
    constexpr float kAcross = kLayer.width / 2.0f - 270, kUp = kLayer.height / 2.0f - 270;
    std::vector<Dab> dabs;
    float angle = 0.3f;
    for (std::size_t i = 0; i < kDabs; ++i) {
        const float x = kAcross * std::cos(angle), y = kUp * std::sin(angle);
        dabs.push_back({kLayer.width / 2.0f + x,
                        kLayer.height / 2.0f + y,
                        width / 2,
                        turned ? static_cast<float>(i) * 0.37f : 0,
                        1,
                        1,
                        1,
                        kFlow,
                        {0.16f, 0.24f, 0.47f},
                        0,
                        0});
        angle += kSpacing * width / std::hypot(kAcross * std::sin(angle), kUp * std::cos(angle));
    }
    return dabs;
}

Picture pictureOf(const Size& size, double rim) {
    const auto bytes = std::make_shared<std::vector<std::uint8_t>>();
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            const double distance =
                std::hypot((2 * x + 1.0) / size.width - 1, (2 * y + 1.0) / size.height - 1);
            const double grain = 0.85 + 0.15 * std::sin(x * 0.9) * std::cos(y * 0.7);
            const auto value =
                static_cast<std::uint8_t>(255 * grain * std::clamp(2 * (rim - distance), 0.0, 1.0));
            bytes->insert(bytes->end(), {value, value, value, value});
        }
    }
    return {PixelView::topRowFirst(bytes->data(), size), 1, bytes};
}

enum class Kind { upright, betweenLevels, paper, relief };

DabStyle styleOf(Kind kind, int width) {
    // Levels of detail are as large as powers of two: on a tip of unequal sides, turned dabs lie between two of them.
    const int side = width > 256 ? 1024 : 256;
    const Size size = kind == Kind::betweenLevels ? Size{side * 3 / 4, side * 5 / 8} : Size{side, side};
    DabStyle style;
    style.tips = std::make_shared<const TipSet>(TipSet{pictureOf(size, 1)});
    if (kind == Kind::paper || kind == Kind::relief) {
        style.paper = std::make_shared<const Picture>(pictureOf({200, 200}, 2));
        style.paperStyle.lifts = kind == Kind::relief;
    }
    return style;
}

#ifdef DABCANVAS_HAVE_MYPAINT
void drawPeer(const std::vector<Dab>& dabs, bench::PaintedSurface& painted) {
    MyPaintSurface* const surface = painted.interface();
    mypaint_surface_begin_atomic(surface);
    for (const Dab& dab : dabs) {
        mypaint_surface_draw_dab(surface, dab.x, dab.y, dab.halfSize, dab.color.r, dab.color.g, dab.color.b,
                                 dab.flow, bench::kPeerHardness, 1, 1, 0, 0, 0);
    }
    painted.finish();
}
#endif

void processorDabs(benchmark::State& state, Kind kind) {
    const int width = static_cast<int>(state.range(0));
    const std::vector<Dab> dabs = stroke(static_cast<float>(width), kind != Kind::upright);
    const DabStyle style = styleOf(kind, width);
    TileGrid<std::uint16_t> layer(kLayer);
    DabPainter painter;
    Workers::setMost(1);
    std::uint64_t count = 0;
    Turns own;
#ifdef DABCANVAS_HAVE_MYPAINT
    bench::PaintedSurface surface(kLayer.width, kLayer.height);
    bench::setPeerThreads(1);
    Turns peer;
#endif
    for (auto _ : state) {
        const double start = threadSeconds();
        own.take([&] {
            painter.draw(layer, dabs, style, count);
            count += dabs.size();
        });
        state.SetIterationTime(threadSeconds() - start);
#ifdef DABCANVAS_HAVE_MYPAINT
        peer.take([&] { drawPeer(dabs, surface); });
#endif
    }
    state.counters["us/dab"] = own.best() * 1e6 / kDabs;
#ifdef DABCANVAS_HAVE_MYPAINT
    state.counters["peer_us/dab"] = peer.best() * 1e6 / kDabs;
    state.counters["peer/own"] = peer.best() / own.best();
#endif
}
#define DABS(kind)                                     \
    BENCHMARK_CAPTURE(processorDabs, kind, Kind::kind) \
        ->Arg(8)                                       \
        ->Arg(32)                                      \
        ->Arg(128)                                     \
        ->Arg(512)                                     \
        ->UseManualTime()                              \
        ->MinTime(0.4)
DABS(upright);
DABS(betweenLevels);
DABS(paper);
DABS(relief);

}  // namespace

BENCHMARK_MAIN();
