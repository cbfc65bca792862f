// SPDX-License-Identifier: MIT
// A whole pen session painted without a display, and the same painted by libmypaint.
#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>

#ifdef __unix__
#include <sys/resource.h>
#endif

#include "Canvas/QDDrawCanvas.h"
#include "LineProcess/LPProperties.h"
#include "LineProcess/LPStroke.h"
#include "LineProcess/LPTrace.h"
#include "support/Measuring.h"
#include "support/Recording.h"
#ifdef DABCANVAS_HAVE_MYPAINT
#include "support/MyPaint.h"
#endif

using namespace dabcanvas::bench;

namespace {

constexpr int kWidth = 1024;
constexpr int kHeight = 768;
constexpr float kLeast = 0.23f;
constexpr float kSpacing = 0.15f;
constexpr LPControlParams kPressureOnly{1, 0, 0};

std::unique_ptr<QDDrawCanvas> makeCanvas(float radius) {
    auto canvas = QDDrawCanvas::initWithFrame(QRectF(0, 0, kWidth, kHeight));
    if (!canvas) {
        std::fprintf(stderr, "a canvas cannot be made\n");
        std::exit(1);
    }
    canvas->setRadius(radius);
    canvas->setMinRadius(kLeast);
    canvas->setPointsDistance(kSpacing);
    canvas->setRadiusControl(kPressureOnly);
    canvas->setHardness(0.5f);
    return canvas;
}

// The session up to the finished pixels, which are read back; with a look, after every event.
void paint(QDDrawCanvas& canvas, const Recording& recording, bool looks = false) {
    const auto look = [&] {
        if (looks) {
            benchmark::DoNotOptimize(canvas.displayImage().constBits());
        }
    };
    for (const Stroke& stroke : recording.strokes) {
        const auto at = [&](std::size_t i) { return QPointF(stroke[i].x, stroke[i].y); };
        const std::size_t last = stroke.size() - 1;
        canvas.drawingWithBeginPoint(at(0), stroke[0].pressure, -1, false);
        for (std::size_t i = 1; i < last; ++i) {
            canvas.drawingWithMoveToPoint(at(i), stroke[i].pressure, -1, false);
            look();
        }
        canvas.drawingWithEndPoint(at(last), stroke[last].pressure, -1, false);
        look();
    }
    benchmark::DoNotOptimize(canvas.displayImage().constBits());
}

double peakMiB() {
#ifdef __unix__
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
#ifdef __APPLE__
    return static_cast<double>(usage.ru_maxrss) / (1024 * 1024);
#else
    return static_cast<double>(usage.ru_maxrss) / 1024;
#endif
#else
    return 0;
#endif
}

#ifdef DABCANVAS_HAVE_MYPAINT
// The width our line process gives a dab under steady pressure.
float widthAtPressure(float radius, float pressure) {
    LPLineParams line = _lpDefaultParaObj;
    line.radius = radius;
    line.minRadius = kLeast;
    line.maxRadius = 1;
    line.radiusControl = kPressureOnly;
    line.strokeControlValue = 0;
    LPLineParams* const before = lpSetParaObj(&line);
    float width = 0;
    lpStartLineWithParams({0, 0}, pressure, 0);
    for (int i = 1; i <= 10; ++i) {
        LPPoint* dabs = nullptr;
        if (lpAppendingLineWithParams({50.0f * static_cast<float>(i), 0}, pressure, 0, false) > 0) {
            const std::int32_t count = lpGetLastLineSegmentPoints1V(&dabs);
            width = dabs[count - 1].radius;
            std::free(dabs);
        }
    }
    lpFreeTrace(&_lpTrace);
    lpSetParaObj(before);
    return width;
}
#endif

// How a session is gone through.
enum Going : std::int64_t { readOnce, lookAtEvents, smudgeAndLook };

void session(benchmark::State& state) {
    const Recording& recording = penSession();
    const auto radius = static_cast<float>(state.range(0));
    const auto going = static_cast<Going>(state.range(1));
    const bool looks = going != readOnce;
    const std::unique_ptr<QDDrawCanvas> canvas = makeCanvas(radius);
    paint(*canvas, recording);
    canvas->setBrushType(going == smudgeAndLook ? 3 : 0);
    const double peak = peakMiB();  // before libmypaint takes its own
    Rounds own;
#ifdef DABCANVAS_HAVE_MYPAINT
    PeerBrush brush([radius](float pressure) { return widthAtPressure(radius, pressure); }, kSpacing);
    CountingSurface counting;
    brush.replay(recording, counting.interface());
    setPeerThreads(1);
    PaintedSurface painted(kWidth, kHeight);
    if (going == smudgeAndLook) {
        brush.replay(recording, painted.interface());  // there must be something to smudge
        brush.smudge();
    }
    Rounds peer;
#endif
    const std::uint64_t before = canvas->strokeStats().dabs;
    for (auto _ : state) {
        if (going != smudgeAndLook) {
            canvas->clear();
        }
        canvas->displayImage();
        state.SetIterationTime(own.time([&] { paint(*canvas, recording, looks); }));
#ifdef DABCANVAS_HAVE_MYPAINT
        PaintedSurface fresh(kWidth, kHeight);
        PaintedSurface& surface = going == smudgeAndLook ? painted : fresh;
        const auto look = [&](const MyPaintRectangle& rect) { surface.fetch(rect); };
        peer.time([&] {
            looks ? brush.replay(recording, surface.interface(), look)
                  : brush.replay(recording, surface.interface());
        });
#endif
    }
    const auto dabs =
        static_cast<double>(canvas->strokeStats().dabs - before) / static_cast<double>(state.iterations());
    state.SetLabel(recording.label + ", " + canvas->rendererName().toStdString());
    state.counters["ms"] = own.median() * 1e3;
    state.counters["dabs"] = dabs;
    state.counters["us/dab"] = own.medianMicros() / dabs;
    state.counters["peak_MiB"] = peak;
#ifdef DABCANVAS_HAVE_MYPAINT
    state.counters["peer_ms"] = peer.median() * 1e3;
    state.counters["peer_dabs"] = static_cast<double>(counting.takeDabs());
    state.counters["peer/own"] = peer.median() / own.median();
#endif
}
BENCHMARK(session)
    ->ArgsProduct({{20, 100}, {readOnce, lookAtEvents, smudgeAndLook}})
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(15);

// Each stage waits for its own GL work here, so the sum is more than a session takes; the shares are what
// counts. What no stage is charged for is waiting for strokes to begin, clearing layers and reading back.
void stages(benchmark::State& state) {
    const Recording& recording = penSession();
    const std::unique_ptr<QDDrawCanvas> canvas = makeCanvas(20);
    paint(*canvas, recording);
    canvas->setProfiling(true);
    const dabcanvas::StrokeStats before = canvas->strokeStats();
    double whole = 0;
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();  // the clock that the stages are timed by
        paint(*canvas, recording);
        const std::chrono::duration<double> spent = std::chrono::steady_clock::now() - start;
        whole += spent.count();
        state.SetIterationTime(spent.count());
    }
    const dabcanvas::StrokeStats after = canvas->strokeStats();
    state.SetLabel(recording.label);
    state.counters["ms"] = whole * 1e3 / static_cast<double>(state.iterations());
    const auto share = [&](const char* name, double spent) { state.counters[name] = 100 * spent / whole; };
    share("geometry_%", after.geometrySeconds - before.geometrySeconds);
    share("drawing_%", after.drawingSeconds - before.drawingSeconds);
    share("compositing_%", after.compositingSeconds - before.compositingSeconds);
}
BENCHMARK(stages)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(10);

}  // namespace

BENCHMARK_MAIN();
