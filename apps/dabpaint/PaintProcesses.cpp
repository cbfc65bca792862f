// SPDX-License-Identifier: MIT
#include "PaintProcesses.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <algorithm>
#include <atomic>
#include <mutex>
#include <thread>

#include "Console.h"
#include "Recording/PropertyValue.h"

namespace dabcanvas::dabpaint {

namespace {

QString ownProgram() {
    const QString running = QFileInfo(QStringLiteral("/proc/self/exe")).symLinkTarget();
    return running.isEmpty() ? QStandardPaths::findExecutable(QStringLiteral("dabpaint")) : running;
}

// The name of a file is none of an option.
QString asFile(const QString& name) {
    return name.startsWith(QLatin1Char('-')) && name.size() > 1 ? QStringLiteral("./") + name : name;
}

int runOne(const QString& program, const PaintOptions& options, std::mutex& speaks) {
    QProcess process;
    process.setInputChannelMode(QProcess::ForwardedInputChannel);
    process.start(program, argumentsOf(options));
    const bool ended = process.waitForFinished(-1) && process.exitStatus() == QProcess::NormalExit;
    const std::lock_guard lock(speaks);
    const QByteArray out = process.readAllStandardOutput(), told = process.readAllStandardError();
    printOut(std::string_view(out.constData(), std::size_t(out.size())));
    flushOut();
    std::fwrite(told.constData(), 1, std::size_t(told.size()), stderr);
    return ended ? process.exitCode()
                 : fail(QStringLiteral("%1: its process failed: %2")
                            .arg(options.recordings.first(), process.errorString()));
}

}  // namespace

QStringList argumentsOf(const PaintOptions& options) {
    QStringList words{QStringLiteral("paint")};
    const auto add = [&words](const char* option, const QString& value) {
        words << QLatin1String(option) + QLatin1Char('=') + value;
    };
    add("--output", options.output);
    if (options.size.isValid())
        add("--size", QStringLiteral("%1x%2").arg(options.size.width()).arg(options.size.height()));
    if (!options.brush.isEmpty())
        add("--brush", options.brush);
    for (const Assignment& setting : options.settings)
        add("--set", setting.property + QLatin1Char('=') + setting.value);
    if (options.background)
        add("--background", colorText(*options.background));
    add("--most-dabs", QString::number(options.mostDabs));
    if (options.undo > 0)
        add("--undo", QString::number(options.undo));
    for (const auto& [given, option] : {std::pair(options.recognise, "--recognise"),
                                        {options.repeatable, "--repeatable"},
                                        {options.stats, "--stats"}}) {
        if (given)
            words << QLatin1String(option);
    }
    constexpr const char* kKinds[] = {"auto", "gpu", "processor"};
    add("--surface", QLatin1String(kKinds[std::size_t(options.surface.kind)]));
    add("--canvas-depth", QString::number(options.surface.canvasDepth));
    add("--layer-depth", QString::number(options.surface.layerDepth));
    if (options.seed)
        add("--seed", QString::number(*options.seed));
    if (options.every > 0)
        add("--every", QString::number(options.every));
    if (!options.timelapse.isEmpty())
        add("--timelapse", options.timelapse);
    for (const QString& recording : options.recordings)
        words << asFile(recording);
    return words;
}

int paintByProcesses(const std::vector<PaintOptions>& all, int most) {
    const QString program = ownProgram();
    std::atomic<std::size_t> next = 0;
    std::atomic<int> status = kDone;
    std::mutex speaks;
    const auto work = [&] {
        for (std::size_t i = next++; i < all.size(); i = next++) {
            if (const int ended = runOne(program, all[i], speaks); ended != kDone)
                status = std::max(status.load(), ended);
        }
    };
    std::vector<std::thread> workers(std::min(all.size(), std::size_t(most)));
    for (std::thread& worker : workers)
        worker = std::thread(work);
    for (std::thread& worker : workers)
        worker.join();
    return status;
}

}  // namespace dabcanvas::dabpaint
