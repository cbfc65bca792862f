// SPDX-License-Identifier: MIT
// How long a painter waits for dabpainter as a program, its libraries and all: from its start until its window is painted, with the brushes that come with it and
// settings of its own. Offscreen unless QT_QPA_PLATFORM says otherwise.
#include <benchmark/benchmark.h>

#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <vector>

namespace {

QProcessEnvironment ownFolders(const QString& folder) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
        environment.insert(QLatin1String(name), folder);
    if (!environment.contains(QStringLiteral("QT_QPA_PLATFORM")))
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    return environment;
}

void start(benchmark::State& state) {
    const QTemporaryDir folder;
    std::vector<double> seconds;
    for (auto _ : state) {
        QProcess painter;
        painter.setProcessEnvironment(ownFolders(folder.path()));
        QElapsedTimer timer;
        timer.start();
        painter.start(QStringLiteral(DABPAINTER_PROGRAM), {QStringLiteral("--start-only")});
        if (!painter.waitForReadyRead(30000)) {
            state.SkipWithError("dabpainter showed nothing");
            return;
        }
        seconds.push_back(double(timer.nsecsElapsed()) * 1e-9);
        state.SetIterationTime(seconds.back());
        painter.waitForFinished();
    }
    std::nth_element(seconds.begin(), seconds.begin() + std::ptrdiff_t(seconds.size() / 2), seconds.end());
    state.counters["shown_ms"] = 1000 * seconds[seconds.size() / 2];
}
BENCHMARK(start)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(3);

}  // namespace

BENCHMARK_MAIN();
