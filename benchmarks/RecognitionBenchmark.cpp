// SPDX-License-Identifier: MIT
// What it costs to tell a stroke's shape, and to put it in the stroke's place.
#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

#include "Canvas/QDDrawCanvas.h"
#include "Recognition/Unitily.h"
#include "support/Canvas.h"
#include "support/Measuring.h"

using namespace dabcanvas::bench;

namespace {

// An ellipse 600 x 400 large and a freehand stroke along it, each up to the pixels to show.
void drawShape(benchmark::State& state) {
    const auto canvas = makeCanvas(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    canvas->setRadius(static_cast<float>(state.range(2)));
    canvas->setEnableRecogition(true);
    ShapeRecord shape;
    shape.kind = ShapeKind::ellipse;
    shape.centre = {400, 300};
    shape.a = 300;
    shape.b = 200;
    const auto outline = outlineOfShape(shape, 5);
    canvas->displayImage();
    Rounds shapes, strokes;
    std::uint64_t dabs = 0;
    for (auto _ : state) {
        const std::uint64_t before = canvas->strokeStats().dabs;
        state.SetIterationTime(shapes.time([&] {
            canvas->drawShape(shape);
            canvas->displayImage();
        }));
        dabs = canvas->strokeStats().dabs - before;
        canvas->setEnableRecogition(false);
        strokes.time([&] {
            canvas->drawingWithBeginPoint({outline[0].x, outline[0].y});
            for (const ShapePoint& at : outline) {
                canvas->drawingWithMoveToPoint({at.x, at.y});
            }
            canvas->drawingWithEndPoint({outline[0].x, outline[0].y});
            canvas->displayImage();
        });
        canvas->setEnableRecogition(true);
    }
    state.SetLabel(canvas->rendererName().toStdString());
    state.counters["us/dab"] = shapes.medianMicros() / static_cast<double>(dabs);
    state.counters["shape/stroke"] = shapes.median() / strokes.median();
}
BENCHMARK(drawShape)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(9)
    ->ArgNames({"w", "h", "px"})
    ->Args({1024, 768, 16})
    ->Args({1024, 768, 128})
    ->Args({3840, 2160, 16});

// A shaky rectangle, circle and question mark of so many points; one of each a round.
void recognise(benchmark::State& state) {
    const auto count = static_cast<int>(state.range(0));
    const ShapeRecord circle{
        .kind = ShapeKind::ellipse, .corners = {}, .centre = {300, 300}, .a = 150, .b = 145};
    const ShapeRecord box{
        .kind = ShapeKind::rectangle, .corners = {{0, 0}, {300, 10}, {295, 200}, {5, 190}}, .centre = {}};
    std::vector<std::vector<ShapePoint>> strokes = {outlineOfShape(box), outlineOfShape(circle),
                                                    outlineOfShape(circle)};
    strokes[2].resize(strokes[2].size() * 2 / 3);
    strokes[2].push_back({strokes[2].back().x, strokes[2].back().y - 300});
    for (std::vector<ShapePoint>& stroke : strokes) {
        std::vector<ShapePoint> sampled;
        const auto pieces = static_cast<double>(stroke.size() - 1);
        for (int i = 0; i < count; ++i) {
            const double place = i * pieces / count;
            const auto corner = static_cast<std::size_t>(place);
            const double part = place - std::floor(place);
            const ShapePoint& from = stroke[corner];
            const ShapePoint& to = stroke[corner + 1];
            sampled.push_back({from.x + part * (to.x - from.x) + 2 * std::sin(i * 40.0 / count),
                               from.y + part * (to.y - from.y) + std::cos(i * 0.9)});
        }
        stroke = std::move(sampled);
    }
    Rounds rounds;
    for (auto _ : state) {
        state.SetIterationTime(rounds.time([&] {
            for (const std::vector<ShapePoint>& stroke : strokes) {
                benchmark::DoNotOptimize(Unitily::recogniseWithPoints(stroke));
            }
        }));
    }
    state.counters["us/stroke"] = rounds.medianMicros() / static_cast<double>(strokes.size());
}
BENCHMARK(recognise)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond)
    ->Iterations(99)
    ->ArgName("points")
    ->Arg(50)
    ->Arg(200)
    ->Arg(10000)
    ->Arg(1000000);

}  // namespace

BENCHMARK_MAIN();
