// SPDX-License-Identifier: MIT
// The step from pointer samples to dabs, without drawing any: ours and libmypaint's, on a real pen session.
#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdlib>
#include <memory>
#include <vector>

#include "LineProcess/LPLineProcess.h"
#include "support/Measuring.h"
#include "support/Recording.h"
#ifdef DABCANVAS_HAVE_MYPAINT
#include "support/MyPaint.h"
#endif

using namespace dabcanvas::bench;

namespace {

// One dab width, no tapers: what libmypaint's brush does.
LPLineParams plainLine(float width, float spacing) {
    LPLineParams line = _lpDefaultParaObj;
    line.radius = width;
    line.pointsDistance = spacing;
    line.minRadius = line.maxRadius = 1;
    line.endRadius = 0;
    line.strokeControlValue = 0;
    return line;
}

// Every influence on the radius at once.
LPLineParams livelyLine(float width, float spacing) {
    LPLineParams line = plainLine(width, spacing);
    line.minRadius = 0.3f;
    line.radiusTingle = 0.2f;
    line.radiusControl = {0.6f, 0.2f, 0.3f};
    line.startRadius = 0.3f;
    line.strokeControlValue = 50;
    line.endRadius = 0.2f;
    return line;
}

// Takes the dabs of the last append call as the canvas does, and frees them.
std::size_t takeDabs(std::int32_t appended) {
    if (appended <= 0) {
        return 0;
    }
    LPPoint* raw = nullptr;
    const std::int32_t count = lpGetLastLineSegmentPoints1V(&raw);
    const std::unique_ptr<LPPoint, decltype(&std::free)> dabs(raw, &std::free);
    benchmark::DoNotOptimize(raw);
    return static_cast<std::size_t>(count);
}

std::size_t replay(const Recording& recording, LPLineParams& line) {
    LPLineParams* const before = lpSetParaObj(&line);
    std::size_t dabs = 0;
    for (const Stroke& stroke : recording.strokes) {
        lpStartLineWithParams({stroke[0].x, stroke[0].y}, stroke[0].pressure, 0);
        for (std::size_t i = 1; i < stroke.size(); ++i) {
            const Sample& sample = stroke[i];
            dabs += takeDabs(
                lpAppendingLineWithParams({sample.x, sample.y}, sample.pressure, 0, i + 1 == stroke.size()));
        }
    }
    lpSetParaObj(before);
    return dabs;
}

void report(benchmark::State& state, const Rounds& own, std::size_t dabs) {
    const Recording& recording = penSession();
    state.SetLabel(recording.label);
    state.counters["dabs"] = static_cast<double>(dabs);
    state.counters["us/sample"] = own.medianMicros() / static_cast<double>(recording.samples);
    state.counters["us/dab"] = own.medianMicros() / static_cast<double>(dabs);
}

// Arguments: dab width in pixels, spacing in thousandths of the width. libmypaint draws dabs of the same
// width, equally far apart, from the same samples.
void plainStroke(benchmark::State& state) {
    const Recording& recording = penSession();
    const auto width = static_cast<float>(state.range(0));
    const float spacing = static_cast<float>(state.range(1)) / 1000;
    LPLineParams line = plainLine(width, spacing);
    Rounds own;
    std::size_t dabs = 0;
#ifdef DABCANVAS_HAVE_MYPAINT
    PeerBrush brush(width, spacing);
    CountingSurface surface;
    Rounds peer;
#endif
    for (auto _ : state) {
        state.SetIterationTime(own.time([&] { dabs = replay(recording, line); }));
#ifdef DABCANVAS_HAVE_MYPAINT
        surface.takeDabs();
        peer.time([&] { brush.replay(recording, surface.interface()); });
#endif
    }
    report(state, own, dabs);
#ifdef DABCANVAS_HAVE_MYPAINT
    const auto peerDabs = static_cast<double>(surface.takeDabs());
    state.counters["peer_dabs"] = peerDabs;
    state.counters["peer_us/sample"] = peer.medianMicros() / static_cast<double>(recording.samples);
    state.counters["peer_us/dab"] = peer.medianMicros() / peerDabs;
    state.counters["peer/own"] = peer.median() / own.median();
#endif
}
BENCHMARK(plainStroke)
    ->ArgsProduct({{8, 32, 128, 512}, {75, 150}})
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

void livelyStroke(benchmark::State& state) {
    LPLineParams line = livelyLine(static_cast<float>(state.range(0)), 0.15f);
    lpRandom();  // its first call seeds from the clock
    Rounds own;
    std::size_t dabs = 0;
    for (auto _ : state) {
        std::srand(1);
        state.SetIterationTime(own.time([&] { dabs = replay(penSession(), line); }));
    }
    report(state, own, dabs);
}
BENCHMARK(livelyStroke)->ArgsProduct({{8, 32, 128, 512}})->UseManualTime()->Unit(benchmark::kMicrosecond);

// A stroke of 100,000 samples on a closed path, so that each thousand has the same work to do: the last one
// must not take longer than the first.
void longStroke(benchmark::State& state) {
    constexpr int kSamples = 100000;
    constexpr int kPart = 1000;
    LPLineParams line = livelyLine(32, 0.15f);
    const auto at = [](int i) {
        const double turn = 2 * 3.14159265358979 * (i % kPart) / kPart;
        return LPPosition{static_cast<float>(500 + 400 * std::sin(3 * turn)),
                          static_cast<float>(400 + 300 * std::cos(2 * turn))};
    };
    LPLineParams* const before = lpSetParaObj(&line);
    Rounds first;
    Rounds last;
    Rounds whole;
    for (auto _ : state) {
        lpStartLineWithParams(at(0), 0.5f, 0);
        const auto part = [&](int begin) {
            for (int i = begin; i < begin + kPart; ++i) {
                takeDabs(lpAppendingLineWithParams(at(i + 1), 0.5f, 0, i + 1 == kSamples));
            }
        };
        state.SetIterationTime(whole.time([&] {
            for (int i = 0; i < kSamples; i += kPart) {
                if (i == kPart) {  // the very first thousand runs with cold caches
                    first.time([&] { part(i); });
                } else if (i + 2 * kPart == kSamples) {  // the very last one ends the stroke
                    last.time([&] { part(i); });
                } else {
                    part(i);
                }
            }
        }));
    }
    lpSetParaObj(before);
    state.counters["us/sample"] = whole.medianMicros() / kSamples;
    state.counters["first_us/sample"] = first.medianMicros() / kPart;
    state.counters["last_us/sample"] = last.medianMicros() / kPart;
    state.counters["last/first"] = last.median() / first.median();
}
BENCHMARK(longStroke)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(60);

}  // namespace

BENCHMARK_MAIN();
