// SPDX-License-Identifier: MIT
// What it costs to put a shape in a stroke's place.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <memory>

#include "QDEAGLView/QDDrawCanvas.h"
#include "support/Measuring.h"

using namespace dabcanvas::bench;

namespace {

std::unique_ptr<QDDrawCanvas> makeCanvas(int width, int height) {
    auto canvas = QDDrawCanvas::initWithFrame(QRectF(0, 0, width, height));
    if (!canvas) {
        std::fprintf(stderr, "a canvas cannot be made\n");
        std::exit(1);
    }
    canvas->clearWithColor(ESColor::grey(1), false);
    canvas->setRenderColor(ESColor::rgba(0.1f, 0.3f, 0.7f));
    return canvas;
}

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

}  // namespace

BENCHMARK_MAIN();
