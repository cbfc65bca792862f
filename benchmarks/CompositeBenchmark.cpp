// SPDX-License-Identifier: MIT
// What a segment of a stroke costs on a small and on a large canvas. Its work covers the same few pixels on
// both, so it should take equally long.
#include <benchmark/benchmark.h>
#include <epoxy/gl.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>

#include "Canvas/QDDrawCanvas.h"
#include "ESContext/ESContext.h"
#include "ESContext/ESCurrentScope.h"
#include "support/Measuring.h"

using namespace dabcanvas::bench;

namespace {

constexpr int kSmall = 512;
constexpr int kLarge = 8192;
constexpr float kDab = 64;

// Made when first asked for and gone before main() returns, as Qt is by the time that statics are destroyed.
std::unique_ptr<QDDrawCanvas> smallCanvas;
std::unique_ptr<QDDrawCanvas> largeCanvas;

QDDrawCanvas& canvas(int side) {
    std::unique_ptr<QDDrawCanvas>& made = side == kLarge ? largeCanvas : smallCanvas;
    if (!made) {
        made = QDDrawCanvas::initWithFrame(QRectF(0, 0, side, side));
        if (!made) {
            std::fprintf(stderr, "a canvas of %d x %d pixels cannot be made\n", side, side);
            std::exit(1);
        }
        made->setRadius(kDab);
        made->displayImage();  // the first look reads the whole canvas
    }
    return *made;
}

// Places on a small circle, in the middle of the small canvas.
QPointF place(int i) {
    return {256 + 40 * std::cos(0.2 * i), 256 + 40 * std::sin(0.2 * i)};
}

void drawSegment(QDDrawCanvas& on, int i) {
    on.drawPoint(place(i), kDab);
    on.updateImage(false);
}

void report(benchmark::State& state, const Rounds& onSmall, const Rounds& onLarge, int times) {
    state.SetLabel(canvas(kSmall).rendererName().toStdString());
    state.counters["small_us"] = onSmall.medianMicros() / times;
    state.counters["large_us"] = onLarge.medianMicros() / times;
    state.counters["large/small"] = onLarge.median() / onSmall.median();
}

// Runs the work on both canvases in turn; it comes to `times` of what is counted.
void compare(benchmark::State& state, int times, const std::function<void(QDDrawCanvas&)>& work) {
    QDDrawCanvas& first = canvas(kSmall);
    QDDrawCanvas& second = canvas(kLarge);
    Rounds onSmall;
    Rounds onLarge;
    work(first);
    work(second);
    for (auto _ : state) {
        const double seconds = onSmall.time([&] { work(first); });
        state.SetIterationTime(seconds + onLarge.time([&] { work(second); }));
    }
    report(state, onSmall, onLarge, times);
}

// 64 segments, each composited and made the background of the next; one look at the end waits for them all.
void segments(benchmark::State& state) {
    constexpr int kSegments = 64;
    compare(state, kSegments, [](QDDrawCanvas& on) {
        for (int i = 0; i < kSegments; ++i) {
            drawSegment(on, i);
            on.updateBGImage();
        }
        on.displayImage();
    });
}
BENCHMARK(segments)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(40);

// A segment and a look at it, as while a stroke is shown.
void shownSegment(benchmark::State& state) {
    int i = 0;
    compare(state, 1, [&i](QDDrawCanvas& on) {
        drawSegment(on, ++i);
        on.displayImage();
    });
}
BENCHMARK(shownSegment)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(1000);

// The least that drawing can cost on targets of the two sizes: a small rectangle in one target of a bare
// context, and waiting for it. What grows here is the driver's.
void smallestDraw(benchmark::State& state) {
    const auto rounds = [](int side, Rounds& into, std::unique_ptr<ESContext>& context) {
        if (!context) {
            context = ESContext::init();
            if (!context || !context->createBufferWithSize(QSizeF(side, side))) {
                std::fprintf(stderr, "targets of %d x %d pixels cannot be made\n", side, side);
                std::exit(1);
            }
        }
        const ESCurrentScope current(*context);
        context->beginRenderForType(ESRenderTypeLine);
        glEnable(GL_SCISSOR_TEST);
        glScissor(220, side - 290, 64, 64);
        return into.time([] {
            glClearColor(0.2f, 0.1f, 0.3f, 0.5f);
            glClear(GL_COLOR_BUFFER_BIT);
            glFinish();
        });
    };
    std::unique_ptr<ESContext> contexts[2];
    Rounds onSmall;
    Rounds onLarge;
    for (auto _ : state) {
        const double seconds = rounds(kSmall, onSmall, contexts[0]);
        state.SetIterationTime(seconds + rounds(kLarge, onLarge, contexts[1]));
    }
    report(state, onSmall, onLarge, 1);
}
BENCHMARK(smallestDraw)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(1000);

// A look at the canvas after a segment that was drawn and composited before: the read-back alone.
void look(benchmark::State& state) {
    QDDrawCanvas* const canvases[] = {&canvas(kSmall), &canvas(kLarge)};
    Rounds rounds[2];
    int i = 0;
    for (auto _ : state) {
        double seconds = 0;
        for (int which = 0; which < 2; ++which) {
            QDDrawCanvas& on = *canvases[which];
            on.setProfiling(true);  // waits for the work of each stage
            drawSegment(on, ++i);
            on.updateBGImage();
            on.setProfiling(false);
            seconds += rounds[which].time([&] { on.displayImage(); });
        }
        state.SetIterationTime(seconds);
    }
    report(state, rounds[0], rounds[1], 1);
}
BENCHMARK(look)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(1000);

// A whole short stroke of eight samples and a look at it: its end clears the layer it was drawn in.
void shortStroke(benchmark::State& state) {
    constexpr int kSamples = 8;
    compare(state, 1, [](QDDrawCanvas& on) {
        on.drawingWithBeginPoint(place(0), 0.5f, 0, false);
        for (int i = 1; i + 1 < kSamples; ++i) {
            on.drawingWithMoveToPoint(place(i), 0.5f, 0, false);
        }
        on.drawingWithEndPoint(place(kSamples - 1), 0.5f, 0, false);
        on.displayImage();
    });
}
BENCHMARK(shortStroke)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(1000);

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    smallCanvas.reset();
    largeCanvas.reset();
    return 0;
}
