// SPDX-License-Identifier: MIT
#include "Progress.h"

#include <QByteArray>
#include <algorithm>
#include <cstdio>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace dabcanvas::dabpaint {

namespace {

using std::chrono::milliseconds;
constexpr milliseconds kPatience(1000), kBetween(200);

bool isWatched() {
#ifdef Q_OS_UNIX
    return isatty(STDERR_FILENO) == 1;
#else
    return false;
#endif
}

void write(const QByteArray& text) {
    std::fwrite(text.constData(), 1, std::size_t(text.size()), stderr);
}

}  // namespace

Progress::Progress(double whole) : _whole(whole) {
    _clock.start();
    if (isWatched())
        _watch = std::thread([this] { watch(); });
}

Progress::~Progress() {
    if (!_watch.joinable())
        return;
    {
        const std::lock_guard lock(_mutex);
        _ended = true;
    }
    _end.notify_one();
    _watch.join();
}

void Progress::watch() {
    std::unique_lock lock(_mutex);
    const auto ended = [this] { return _ended; };
    if (_end.wait_for(lock, kPatience, ended))
        return;
    do {
        // What was estimated may be less than there is.
        const int share = int(std::min(99.0, _done.load() * 100 / _whole));
        write("\rdabpaint: painting, " + QByteArray::number(share) + " %, " +
              QByteArray::number(_clock.elapsed() / 1000) + " s");
    } while (!_end.wait_for(lock, kBetween, ended));
    write("\r\x1B[K");
}

}  // namespace dabcanvas::dabpaint
