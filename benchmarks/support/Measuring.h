// SPDX-License-Identifier: MIT
// Small things that every benchmark measures with.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdlib>
#include <ctime>
#include <vector>

namespace dabcanvas::bench {

// The time something takes, or, with DABCANVAS_BENCH_PROCESSOR_TIME set, that this process works on it: on a
// machine that others use too, and with one thread each (LP_NUM_THREADS=0), it is the steadier measure.
inline double now() {
    static const bool processor = std::getenv("DABCANVAS_BENCH_PROCESSOR_TIME") != nullptr;
    if (processor) {
        return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
    }
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

template <typename Work>
double secondsOf(Work&& work) {
    const double start = now();
    work();
    return now() - start;
}

// What one contestant took, round by round. Contestants of one benchmark take turns, so that a slow moment
// of the machine hits them alike, and are compared by their medians, which such a moment hardly moves.
class Rounds {
public:
    // Runs the work once and returns its seconds, for benchmark::State::SetIterationTime().
    template <typename Work>
    double time(Work&& work) {
        _seconds.push_back(secondsOf(work));
        return _seconds.back();
    }

    double median() const {
        if (_seconds.empty()) {
            return 0;
        }
        std::vector<double> sorted = _seconds;
        const auto middle = sorted.begin() + static_cast<std::ptrdiff_t>(sorted.size() / 2);
        std::nth_element(sorted.begin(), middle, sorted.end());
        return *middle;
    }

    double medianMicros() const { return median() * 1e6; }

private:
    std::vector<double> _seconds;
};

}  // namespace dabcanvas::bench
