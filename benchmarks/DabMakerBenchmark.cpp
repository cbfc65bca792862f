// SPDX-License-Identifier: MIT
// The part of a dab that is arithmetic: from a stroke's points to dabs, before any GL call.
#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdlib>
#include <vector>

#include "Dabs/Dab.h"
#include "LineProcess/LPRandom.h"

using namespace dabcanvas;

namespace {

constexpr std::size_t kRun = 16;  // points handed over at a time, as a segment of a stroke has them

DabSettings everyJitter() {
    DabSettings settings;
    settings.radius = 32;
    settings.minRadius = 0.2f;
    settings.radiusTingle = settings.distribution = settings.radianTingle = settings.roundnessTingle = 0.4f;
    settings.distributionCount = 3;
    settings.distributionCountTingle = 0.3f;
    settings.flowTingle = settings.colorTingle = settings.hueTingle = settings.saturationTingle =
        settings.brightnessTingle = 0.3f;
    settings.maxFlow = 1;
    settings.backColor = RgbTypeMake(0.9f, 0.1f, 0.2f);
    settings.startRadianEnable = settings.moveRadianEnable = settings.flipXTingle = settings.flipYTingle =
        settings.textureTingleEnabled = settings.colorFul = true;
    settings.numberOfTips = settings.tipCells = 4;
    return settings;
}

// Argument: 0 no jitter, 1 every jitter.
void dabsMade(benchmark::State& state) {
    std::vector<LPPoint> points;
    for (int i = 0; i < 256; ++i) {
        const auto along = static_cast<float>(i);
        points.push_back({{100 + 2 * along, 300 + 40 * std::sin(along / 20)}, 32, {0.5f, 0, 1}});
    }
    lpRandom();  // its first call seeds from the clock
    std::srand(1);
    srand48(1);
    DabMaker maker;
    if (state.range(0) != 0) {
        maker.settings = everyJitter();
    }
    maker.updateFlags();
    maker.reset();
    std::size_t made = 0;
    for (auto _ : state) {
        for (std::size_t i = 0; i < points.size(); i += kRun) {
            maker.make(&points[i], kRun, [&](const Dab& dab) {
                benchmark::DoNotOptimize(dab.x);
                ++made;
            });
        }
    }
    state.SetLabel(state.range(0) != 0 ? "every jitter" : "no jitter");
    state.counters["dabs"] = benchmark::Counter(static_cast<double>(made), benchmark::Counter::kIsRate);
    state.counters["s/dab"] = benchmark::Counter(static_cast<double>(made),
                                                 benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}
BENCHMARK(dabsMade)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

}  // namespace
