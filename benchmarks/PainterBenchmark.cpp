// SPDX-License-Identifier: MIT
// What the painter's user waits for: from a pen's event to the window's rows, and from the start to the first paint.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPainter>
#include <QPointingDevice>
#include <QSettings>
#include <QTabletEvent>
#include <QTemporaryDir>
#include <algorithm>
#include <vector>

#include "Canvas/CanvasLayers.h"
#include "QDEAGLView/QDDrawView.h"
#include "Tools/CanvasFill.h"
#include "Viewport/CanvasViewport.h"
#include "Window/MainWindow.h"
#include "support/Measuring.h"
#include "support/Recording.h"

using namespace dabcanvas::bench;
using namespace dabcanvas::dabpainter;

namespace {

struct Painter {
    Painter()
        : settings(folder.filePath("settings.ini"), QSettings::IniFormat),
          window(settings, standardPrompts(), standardPresetFolders(), folder.filePath("copies")) {}

    QTemporaryDir folder;
    QSettings settings;
    MainWindow window;
};

double percentile(std::vector<double>& values, double part) {
    std::sort(values.begin(), values.end());
    return values[static_cast<std::size_t>(part * static_cast<double>(values.size() - 1))];
}

// The pen session on a canvas of three layers that the window shows whole (zoom 0) or pixel by pixel (1); each event with
// the repaint that follows.
void penToRows(benchmark::State& state) {
    Painter painter;
    MainWindow& window = painter.window;
    const QSize size(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    window.resize(size);
    if (!window.startCanvas({size, Qt::white})) {
        return state.SkipWithError("there is no canvas");
    }
    window.show();
    QDDrawView& view = *window.view();
    while (view.layers().count() < 3) {
        view.layers().add(view.layers().count());
    }
    view.layers().setActive(1);
    if (state.range(3) == 1) {
        window.viewport().setZoom(1);
    }
    window.brush().setValue(dabcanvas::BrushKey::radius, static_cast<float>(state.range(2)));
    QApplication::processEvents();

    const QPointingDevice pen("pen", 1, QInputDevice::DeviceType::Stylus, QPointingDevice::PointerType::Pen,
                              QInputDevice::Capability::Position | QInputDevice::Capability::Pressure, 1, 1);
    const double scale = std::min(view.width() / 1024.0, view.height() / 800.0);
    const auto send = [&](QEvent::Type type, const Sample& sample) {
        const QPointF at(sample.x * scale, sample.y * scale);
        QTabletEvent event(type, &pen, at, view.mapToGlobal(at), sample.pressure, 0, 0, 0, 0, 0, {},
                           type == QEvent::TabletMove ? Qt::NoButton : Qt::LeftButton,
                           type == QEvent::TabletRelease ? Qt::NoButton : Qt::LeftButton);
        QApplication::sendEvent(&view, &event);
        QApplication::processEvents();
    };
    std::vector<double> moves, ends;
    const QImage blank = window.grab().toImage();
    for (auto _ : state) {
        double whole = 0;
        for (const Stroke& stroke : penSession().strokes) {
            ends.push_back(secondsOf([&] { send(QEvent::TabletPress, stroke.front()); }));
            for (std::size_t i = 1; i + 1 < stroke.size(); ++i) {
                moves.push_back(secondsOf([&] { send(QEvent::TabletMove, stroke[i]); }));
                whole += moves.back();
            }
            ends.push_back(secondsOf([&] { send(QEvent::TabletRelease, stroke.back()); }));
        }
        state.SetIterationTime(whole);
    }
    if (window.grab().toImage() == blank) {
        return state.SkipWithError("nothing was painted");
    }
    state.SetLabel(penSession().label + ", " + view.rendererName().toStdString());
    state.counters["p50_ms"] = percentile(moves, 0.5) * 1e3;
    state.counters["p99_ms"] = percentile(moves, 0.99) * 1e3;
    state.counters["max_ms"] = moves.back() * 1e3;  // they are in order now
    state.counters["end_max_ms"] = percentile(ends, 1) * 1e3;
}
BENCHMARK(penToRows)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(2)
    ->ArgNames({"w", "h", "px", "zoom"})
    ->Args({3840, 2160, 64, 0})
    ->Args({3840, 2160, 64, 1})
    ->Args({1920, 1080, 64, 1});

// From nothing to a window that has been painted, in a process that has loaded its libraries.
void startUp(benchmark::State& state) {
    Rounds rounds;
    for (auto _ : state) {
        state.SetIterationTime(rounds.time([] {
            Painter painter;
            painter.window.startCanvas({});
            painter.window.show();
            QApplication::processEvents();
        }));
    }
}
BENCHMARK(startUp)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

// A click of the fill tool on a large picture that lines go all over, with the step for undo.
void fill(benchmark::State& state) {
    const int side = static_cast<int>(state.range(0));
    const auto canvas = QDDrawCanvas::initWithFrame(QRectF(0, 0, side, side));
    QImage picture(side, side, QImage::Format_RGBA8888_Premultiplied);
    picture.fill(Qt::white);
    {
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(Qt::black, 3));
        for (int i = 0; i < side; i += 64) {
            painter.drawLine(i, i % 128 ? 0 : 40, i + 20, side - (i % 128 ? 40 : 0));
        }
    }
    canvas->setImageInBufferRect(picture, picture.rect());
    canvas->displayImage();
    Rounds rounds;
    bool red = false;
    for (auto _ : state) {
        red = !red;
        state.SetIterationTime(rounds.time([&] {
            fillCanvas(*canvas, {30, side / 2}, red ? Qt::red : Qt::white, 32);
            canvas->displayImage();
        }));
    }
    if (canvas->image().pixelColor(side - 3, 3) != QColor(red ? Qt::red : Qt::white)) {
        state.SkipWithError("the other end was not filled");
    }
    state.SetLabel(canvas->rendererName().toStdString());
}
BENCHMARK(fill)->UseManualTime()->Unit(benchmark::kMillisecond)->Arg(4096)->Iterations(6);

}  // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");  // a window of any size, on any machine
    }
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
