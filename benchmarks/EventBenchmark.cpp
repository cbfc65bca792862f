// SPDX-License-Identifier: MIT
// What one pointer event costs the main thread while a pen session is drawn, and what smudging and wet edges cost.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>
#include <vector>

#include "Canvas/QDDrawCanvas.h"
#include "support/Canvas.h"
#include "support/Measuring.h"
#include "support/Recording.h"

using namespace dabcanvas::bench;

namespace {

constexpr std::int32_t kPaint = 0, kSmudge = 3;

double percentile(std::vector<double>& values, double part) {
    const auto at =
        values.begin() + static_cast<std::ptrdiff_t>(part * static_cast<double>(values.size() - 1));
    std::nth_element(values.begin(), at, values.end());
    return *at;
}

// Every move of the session as its own event: until the redisplay is asked for, and until the pixels to show are there,
// as if each event had a frame of its own.
void pointerEvent(benchmark::State& state) {
    const Recording& recording = penSession();
    const auto canvas = makeCanvas(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    canvas->setRadius(static_cast<float>(state.range(2)));
    canvas->setRadiusControl({1, 0, 0});
    canvas->setBrushType(static_cast<std::int32_t>(state.range(3)));
    const double scale = static_cast<double>(state.range(0)) / 1024;
    std::vector<double> asked, shown;
    for (auto _ : state) {
        double whole = 0;
        for (const Stroke& stroke : recording.strokes) {
            const auto touch = [&](const Sample& sample) {
                return QDDrawTouch{QPointF(sample.x, sample.y) * scale, sample.pressure};
            };
            canvas->mouseDown(touch(stroke.front()));
            for (std::size_t i = 1; i < stroke.size(); ++i) {
                const double start = now();
                canvas->mouseDragged(touch(stroke[i]));
                asked.push_back(now() - start);
                canvas->displayImage();
                shown.push_back(now() - start);
                whole += shown.back();
            }
            const double start = now();
            canvas->mouseUp(touch(stroke.back()));
            canvas->displayImage();
            shown.push_back(now() - start);
            whole += shown.back();
        }
        state.SetIterationTime(whole);
    }
    state.SetLabel(recording.label + ", " + canvas->rendererName().toStdString());
    state.counters["asked_p50_us"] = percentile(asked, 0.5) * 1e6;
    state.counters["asked_p99_us"] = percentile(asked, 0.99) * 1e6;
    state.counters["shown_p50_us"] = percentile(shown, 0.5) * 1e6;
    state.counters["shown_p99_us"] = percentile(shown, 0.99) * 1e6;
    state.counters["shown_max_ms"] = percentile(shown, 1) * 1e3;
}
BENCHMARK(pointerEvent)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3)
    ->ArgNames({"w", "h", "px", "brush"})
    ->Args({1024, 768, 32, kPaint})
    ->Args({1024, 768, 64, kPaint})
    ->Args({1024, 768, 256, kPaint})
    ->Args({3840, 2160, 32, kPaint})
    ->Args({3840, 2160, 256, kPaint})
    ->Args({1024, 768, 64, kSmudge})
    ->Args({3840, 2160, 64, kSmudge});

// The session drawn by a smudge brush and by a plain one, up to the pixels.
void smudging(benchmark::State& state) {
    const Recording& recording = penSession();
    const auto canvas = makeCanvas(1024, 768);
    canvas->setRadius(static_cast<float>(state.range(0)));
    const auto draw = [&](std::int32_t brushType) {
        canvas->setBrushType(brushType);
        for (const Stroke& stroke : recording.strokes) {
            canvas->drawingWithBeginPoint({stroke[0].x, stroke[0].y}, stroke[0].pressure, -1, false);
            for (const Sample& sample : stroke) {
                canvas->drawingWithMoveToPoint({sample.x, sample.y}, sample.pressure, -1, false);
            }
            canvas->drawingWithEndPoint({stroke.back().x, stroke.back().y}, stroke.back().pressure, -1,
                                        false);
        }
        canvas->displayImage();
    };
    Rounds smudged, plain;
    std::uint64_t dabs = 0;
    for (auto _ : state) {
        plain.time([&] { draw(kPaint); });
        const std::uint64_t before = canvas->strokeStats().dabs;
        state.SetIterationTime(smudged.time([&] { draw(kSmudge); }));
        dabs = canvas->strokeStats().dabs - before;
    }
    state.SetLabel(recording.label + ", " + canvas->rendererName().toStdString());
    state.counters["dabs/s"] = static_cast<double>(dabs) / smudged.median();
    state.counters["us/dab"] = smudged.medianMicros() / static_cast<double>(dabs);
    state.counters["smudge/plain"] = smudged.median() / plain.median();
}
BENCHMARK(smudging)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(5)
    ->Arg(32)
    ->Arg(64)
    ->Arg(256);

// The session at this tilt, with a look at every event or one after each stroke.
void drawSession(QDDrawCanvas& canvas, float altitude, bool looks) {
    for (const Stroke& stroke : penSession().strokes) {
        const auto& [first, last] = std::pair(stroke.front(), stroke.back());
        canvas.drawingWithBeginPoint({first.x, first.y}, first.pressure, altitude, true);
        for (const Sample& sample : stroke) {
            canvas.drawingWithMoveToPoint({sample.x, sample.y}, sample.pressure, altitude, true);
            if (looks) {
                canvas.displayImage();
            }
        }
        canvas.drawingWithEndPoint({last.x, last.y}, last.pressure, altitude, true);
        canvas.displayImage();
    }
}

// Times the session drawn in its special way, draw(true), against the plain one.
template <typename Draw>
void compare(benchmark::State& state, QDDrawCanvas& canvas, const char* ratio, const Draw& draw) {
    Rounds special, plain;
    for (auto _ : state) {
        plain.time([&] { draw(false); });
        state.SetIterationTime(special.time([&] { draw(true); }));
    }
    state.SetLabel(penSession().label + ", " + canvas.rendererName().toStdString());
    state.counters["us/event"] = special.medianMicros() / static_cast<double>(penSession().samples);
    state.counters[ratio] = special.median() / plain.median();
}

// By a brush with wet edges and by the same without.
void wetEdges(benchmark::State& state) {
    const auto canvas = makeCanvas(1024, 768);
    canvas->setRadius(static_cast<float>(state.range(0)));
    canvas->setWetEdgeWidth(static_cast<float>(state.range(1)));
    canvas->setPointsDistance(static_cast<float>(state.range(2)) / 100);
    compare(state, *canvas, "wet/plain", [&](bool wet) {
        canvas->setWetEdge(wet ? 0.6f : 0);
        drawSession(*canvas, -1, true);
    });
}
BENCHMARK(wetEdges)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(5)
    ->ArgNames({"px", "width", "spacing"})
    ->Args({20, 8, 25})
    ->Args({20, 8, 5})
    ->Args({100, 8, 25})
    ->Args({100, 8, 5})
    ->Args({100, 64, 5});

// By a brush with paper of depth, wet edges and tilt in its flow, and by the same without them.
void naturalMedia(benchmark::State& state) {
    const auto canvas = makeCanvas(1024, 768);
    canvas->setRadius(static_cast<float>(state.range(0)));
    canvas->setPointsDistance(0.1f);
    QImage paper(512, 512, QImage::Format_Grayscale8);
    std::mt19937 random(1);
    std::generate_n(paper.bits(), paper.sizeInBytes(), [&] { return static_cast<uchar>(random()); });
    canvas->setMaskImage(paper);
    canvas->setMaskDepthControl({1, 0, 0});
    canvas->setMaskContrast(1.5f);
    compare(state, *canvas, "natural/plain", [&](bool natural) {
        canvas->setNeedMaskTexture(natural);
        canvas->setMaskDepth(natural ? 0.5f : 0);
        canvas->setWetEdge(natural ? 0.6f : 0);
        canvas->setFlowControl({0, natural ? 0.5f : 0, 0});
        drawSession(*canvas, 0.9f, state.range(1) != 0);
    });
}
BENCHMARK(naturalMedia)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(5)
    ->ArgNames({"px", "looks"})
    ->Args({8, 0})
    ->Args({20, 0})
    ->Args({100, 0})
    ->Args({20, 1})
    ->Args({100, 1});

}  // namespace

BENCHMARK_MAIN();
