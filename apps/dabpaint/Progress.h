// SPDX-License-Identifier: MIT
// A share on standard error while somebody watches and the work takes long.
#pragma once

#include <QElapsedTimer>
#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace dabcanvas::dabpaint {

// A thread of its own writes, so that time goes by on the line also while one piece of work takes long.
class Progress {
public:
    // `whole` in any unit of work, above 0. Silent when standard error is no terminal.
    explicit Progress(double whole);
    ~Progress();  // takes the line back
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void advance(double work) { _done.store(_done.load() + work); }  // from one thread only
    double done() const { return _done.load(); }

private:
    void watch();

    QElapsedTimer _clock;
    const double _whole;
    std::atomic<double> _done{0};
    bool _ended = false;
    std::mutex _mutex;
    std::condition_variable _end;
    std::thread _watch;
};

}  // namespace dabcanvas::dabpaint
