// SPDX-License-Identifier: MIT
// What undo steps cost: keeping a snapshot of the canvas and getting it back, beside copying as many bytes,
// and the memory and disk that a sketch's steps take.
#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <memory>
#include <vector>

#include "Canvas/QDDrawCanvas.h"
#include "History/ImagesUndoManager.h"
#include "support/Measuring.h"
#include "support/Recording.h"

using namespace dabcanvas::bench;

namespace {

constexpr double kSketchWidth = 1024;

// Ends the program where there is no memory for it.
std::unique_ptr<QDDrawCanvas> canvasOf(const QSize& size) {
    auto canvas = QDDrawCanvas::initWithFrame(QRectF(QPointF(0, 0), size));
    if (!canvas) {
        std::fprintf(stderr, "a canvas of %d x %d pixels cannot be made\n", size.width(), size.height());
        std::exit(1);
    }
    return canvas;
}

// Somebody sketches on white paper: stroke by stroke of the pen session, as large as the canvas, each time
// round in another colour.
class Sketch {
public:
    explicit Sketch(const benchmark::State& state)
        : _size(static_cast<int>(state.range(0)), static_cast<int>(state.range(1))),
          _canvas(canvasOf(_size)) {
        _canvas->clearWithColor(ESColor::grey(1), false);
        _canvas->setRadius(static_cast<float>(6 * scale()));
        _canvas->setRadiusControl({1, 0, 0});
    }

    // The canvas's bytes after one more stroke.
    QByteArray nextStep() {
        const auto& strokes = penSession().strokes;
        const Stroke& stroke = strokes[_steps % strokes.size()];
        _canvas->setRenderColor(
            QColor::fromHsv(static_cast<int>(_steps / strokes.size() * 70 % 360), 255, 90));
        ++_steps;
        const auto at = [&](const Sample& sample) { return QPointF(sample.x, sample.y) * scale(); };
        _canvas->drawingWithBeginPoint(at(stroke.front()), stroke.front().pressure, -1, false);
        for (const Sample& sample : stroke) {
            _canvas->drawingWithMoveToPoint(at(sample), sample.pressure, -1, false);
        }
        _canvas->drawingWithEndPoint(at(stroke.back()), stroke.back().pressure, -1, false);
        QByteArray pixels(qsizetype{4} * _size.width() * _size.height(), Qt::Uninitialized);
        _canvas->readData(reinterpret_cast<unsigned char*>(pixels.data()), QRectF(QPointF(0, 0), _size));
        return pixels;
    }

    QDDrawCanvas& canvas() { return *_canvas; }

private:
    double scale() const { return _size.width() / kSketchWidth; }

    QSize _size;
    std::unique_ptr<QDDrawCanvas> _canvas;
    std::size_t _steps = 0;
};

std::unique_ptr<ImagesUndoManager> historyOf(const QByteArray& first) {
    auto history = ImagesUndoManager::initWithCurrentImageOfData(first);
    history->setFilePathExtension(QString());
    return history;
}

void settle(ImagesUndoManager& history) {
    history.waitForWrites();
    history.waitForCompression();
}

// What this thread has worked, whatever others did meanwhile.
double threadSeconds() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

// Times the work and a copy of a snapshot in turn; `prepare` comes before each turn and is not timed.
template <typename Prepare, typename Work>
void compare(benchmark::State& state, const Prepare& prepare, const Work& work) {
    const std::vector<char> from(static_cast<std::size_t>(state.range(0) * state.range(1) * 4), 1);
    std::vector<char> to(from);
    Rounds own;
    Rounds copy;
    std::vector<double> worked;
    for (auto _ : state) {
        prepare();
        const double before = threadSeconds();
        state.SetIterationTime(own.time(work));
        worked.push_back(threadSeconds() - before);
        copy.time([&] {
            std::memcpy(to.data(), from.data(), from.size());
            benchmark::DoNotOptimize(to.data());
            benchmark::ClobberMemory();
        });
    }
    std::sort(worked.begin(), worked.end());
    state.counters["own_us"] = own.medianMicros();
    state.counters["thread_us"] = worked[worked.size() / 2] * 1e6;
    state.counters["copy_us"] = copy.medianMicros();
    state.counters["own/copy"] = own.median() / copy.median();
}

// What the painter waits for after a stroke, while an older step leaves the cache each time.
void addStep(benchmark::State& state) {
    Sketch sketch(state);
    auto history = historyOf(sketch.nextStep());
    history->setMaxCacheCount(2);
    for (int i = 0; i < 3; ++i) {
        history->addItemWithImageData(sketch.nextStep());
    }
    QByteArray pixels;
    compare(
        state,
        [&] {
            settle(*history);
            pixels = sketch.nextStep();
        },
        [&] { history->addItemWithImageData(pixels); });
}

void readCachedStep(benchmark::State& state) {
    Sketch sketch(state);
    auto history = historyOf(sketch.nextStep());
    settle(*history);
    compare(
        state, [] {}, [&] { benchmark::DoNotOptimize(history->currentImageDataOfItem().constData()); });
}

void readSpilledStep(benchmark::State& state) {
    Sketch sketch(state);
    auto history = historyOf(sketch.nextStep());
    compare(
        state,
        [&] {
            settle(*history);
            history->removeOneObjectFromCache();
            settle(*history);
        },
        [&] { benchmark::DoNotOptimize(history->currentImageDataOfItem().constData()); });
}

// Noise as a photograph has it, which compresses badly.
QImage noise(const QSize& size) {
    QImage image(size, QImage::Format_RGBA8888_Premultiplied);
    std::uint32_t state = 1;
    for (qsizetype i = 0; i < image.sizeInBytes(); ++i) {
        state = state * 1664525 + 1013904223;
        image.bits()[i] = i % 4 == 3 ? 255 : static_cast<uchar>(state >> 24);
    }
    return image;
}

// A canvas over such noise, and strokes across it.
class Photo {
public:
    Photo(const benchmark::State& state, double radius)
        : _size(static_cast<int>(state.range(0)), static_cast<int>(state.range(1))), canvas(canvasOf(_size)) {
        canvas->setImage(noise(_size), QRectF(QPointF(0, 0), _size));
        canvas->setRadius(static_cast<float>(radius));
        canvas->resetUndoManager();
    }
    void stroke(int length) {
        begin(length);
        end();
    }
    void begin(int length) {
        const int room = _size.height() - 200, number = _strokes++;
        const QPointF from(100 + number * 331 % (_size.width() - length - 200), 100 + number * 157 % room);
        canvas->setRenderColor(QColor::fromHsv(number * 70 % 360, 255, 90));
        canvas->drawingWithBeginPoint(from, 1, -1, false);
        for (int x = 0; x < length; x += 20) {
            canvas->drawingWithMoveToPoint(from + QPointF(x, 20 * std::sin(x / 60.0)), 1, -1, false);
        }
        _end = from + QPointF(length, 0);
    }
    void end() { canvas->drawingWithEndPoint(_end, 1, -1, false); }
    void settle() { ::settle(canvas->undoManager()); }

private:
    QSize _size;
    int _strokes = 0;
    QPointF _end;

public:
    std::unique_ptr<QDDrawCanvas> canvas;
};

// What a stroke's end, 600 pixels long, waits for where it is marked.
void markStroke(benchmark::State& state) {
    Photo photo(state, 20);
    compare(
        state,
        [&] {
            photo.stroke(600);
            photo.settle();
        },
        [&] { photo.canvas->markAction(); });
}

// The end of a stroke 600 pixels long, 0 or 1: with a step, up to the pixels to show.
void strokeEnd(benchmark::State& state) {
    Photo photo(state, 20);
    photo.canvas->setAutoMark(state.range(2) != 0);
    compare(
        state,
        [&] {
            photo.begin(600);
            photo.canvas->displayImage();
            photo.settle();
        },
        [&] {
            photo.end();
            benchmark::DoNotOptimize(photo.canvas->displayImage().constBits());
        });
}

// Undo of it, up to the pixels to show, from where `prepare` has brought the step.
template <typename Prepare>
void timeUndo(benchmark::State& state, const Prepare& prepare) {
    Photo photo(state, 20);
    photo.stroke(600);
    photo.canvas->markAction();
    compare(
        state,
        [&] {
            photo.canvas->redo();
            photo.canvas->displayImage();
            prepare(photo);
        },
        [&] {
            photo.canvas->undo();
            benchmark::DoNotOptimize(photo.canvas->displayImage().constBits());
        });
}

void undoStroke(benchmark::State& state) {
    timeUndo(state, [](Photo& photo) { photo.settle(); });
}

// Of a step that only the disk has.
void undoSpilledStroke(benchmark::State& state) {
    timeUndo(state, [](Photo& photo) {
        while (photo.canvas->undoManager().cachedBytes() > 0) {
            photo.canvas->undoManager().didReceiveMemoryWarning();
            photo.settle();
        }
    });
}

// Resident memory of the process, in MiB.
double residentMiB() {
    QFile status(QStringLiteral("/proc/self/statm"));
    return status.open(QIODevice::ReadOnly)
               ? status.readAll().split(' ').value(1).toDouble() * 4096 / (1 << 20)
               : 0;
}

// So many marked strokes over noise, 800 pixels long, of a brush 64 pixels wide: what they take beyond the picture.
void strokesOverNoise(benchmark::State& state) {
    for (auto _ : state) {
        Photo photo(state, 32);
        photo.settle();
        const double before = residentMiB();
        Rounds adding;
        for (int i = 0; i < state.range(2); ++i) {
            photo.stroke(800);
            adding.time([&] { photo.canvas->markAction(); });
        }
        photo.settle();
        const auto& history = photo.canvas->undoManager();
        state.SetIterationTime(adding.median());
        state.counters["more_MiB"] = residentMiB() - before;
        state.counters["memory_MiB"] = static_cast<double>(history.cachedBytes()) / (1 << 20);
        state.counters["disk_MiB"] = static_cast<double>(history.bytesOnDisk()) / (1 << 20);
        state.counters["dropped"] = history.stepsDropped();
    }
}

// A hundred strokes of the pen session, as the canvas keeps them.
void hundredStrokes(benchmark::State& state) {
    for (auto _ : state) {
        Sketch sketch(state);
        sketch.canvas().resetUndoManager();
        Rounds adding;
        for (int i = 0; i < 100; ++i) {
            sketch.nextStep();
            adding.time([&] { sketch.canvas().markAction(); });
        }
        settle(sketch.canvas().undoManager());
        const auto& history = sketch.canvas().undoManager();
        state.SetIterationTime(adding.median());
        state.counters["memory_MiB"] = static_cast<double>(history.cachedBytes()) / (1 << 20);
        state.counters["disk_MiB"] = static_cast<double>(history.bytesOnDisk()) / (1 << 20);
        state.counters["dropped"] = history.stepsDropped();
    }
    state.SetLabel(penSession().label);
}

// The same, handed in as whole pictures, with the limits as they are at first.
void hundredSteps(benchmark::State& state) {
    constexpr int kSteps = 100;
    for (auto _ : state) {
        Sketch sketch(state);
        auto history = historyOf(sketch.nextStep());
        Rounds adding;
        for (int i = 0; i < kSteps; ++i) {
            const QByteArray pixels = sketch.nextStep();
            adding.time([&] { history->addItemWithImageData(pixels); });
        }
        settle(*history);
        double disk = 0;
        for (const QFileInfo& file : QDir(history->tempDirectory()).entryInfoList(QDir::Files)) {
            disk += static_cast<double>(file.size());
        }
        const double raw = static_cast<double>(state.range(0) * state.range(1) * 4);
        const double memory = static_cast<double>(history->cachedBytes());
        state.SetIterationTime(adding.median());
        state.counters["memory_MiB"] = memory / (1 << 20);
        state.counters["memory/raw"] = memory / raw / history->curCacheCount();
        state.counters["disk_MiB"] = disk / (1 << 20);
    }
    state.SetLabel(penSession().label);
}

void onBothSizes(benchmark::internal::Benchmark* row) {
    row->Args({1024, 768})->Args({3840, 2160})->UseManualTime()->Unit(benchmark::kMicrosecond);
}
BENCHMARK(addStep)->Apply(onBothSizes)->Iterations(40);
BENCHMARK(markStroke)->Apply(onBothSizes)->Iterations(40);
BENCHMARK(strokeEnd)
    ->Args({3840, 2160, 0})
    ->Args({3840, 2160, 1})
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond)
    ->Iterations(40);
BENCHMARK(undoStroke)->Apply(onBothSizes)->Args({8000, 8000})->Iterations(40);
BENCHMARK(undoSpilledStroke)->Apply(onBothSizes)->Args({8000, 8000})->Iterations(20);
BENCHMARK(strokesOverNoise)
    ->Args({3840, 2160, 70})
    ->Args({8192, 8192, 8})
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond)
    ->Iterations(1);
BENCHMARK(hundredStrokes)->Apply(onBothSizes)->Iterations(1);
BENCHMARK(readCachedStep)->Apply(onBothSizes)->Iterations(40);
BENCHMARK(readSpilledStep)->Apply(onBothSizes)->Iterations(40);
BENCHMARK(hundredSteps)->Apply(onBothSizes)->Iterations(1);

}  // namespace

// Steps are written in the background for the main thread of an application only.
int main(int argc, char** argv) {
    const QTemporaryDir caches;
    qputenv("XDG_CACHE_HOME", QFile::encodeName(caches.path()));
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
