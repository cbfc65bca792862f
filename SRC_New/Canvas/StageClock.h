// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>

#include "Surface/PaintSurface.h"

namespace dabcanvas {

/// What strokes have cost so far; the seconds are only measured while profiling is on.
struct StrokeStats {
    std::uint64_t samples = 0;  ///< points that reached the line process
    std::uint64_t dabs = 0;     ///< made and drawn
    double geometrySeconds = 0;
    double drawingSeconds = 0;
    double compositingSeconds = 0;
};

/// Gathers StrokeStats. While it is on, each stage waits for the surface to finish, or reading back would be charged
/// for all.
struct StageClock {
    StrokeStats stats;
    bool isOn = false;

    /// Adds the time that a scope takes. Costs one branch while the clock is off.
    class Stage {
    public:
        Stage(StageClock& clock, double StrokeStats::*seconds, PaintSurface* surface = nullptr)
            : _clock(clock), _seconds(seconds), _surface(surface) {
            if (_clock.isOn) {
                _start = std::chrono::steady_clock::now();
            }
        }
        ~Stage() {
            if (!_clock.isOn) {
                return;
            }
            if (_surface != nullptr) {
                _surface->finish();
            }
            const std::chrono::duration<double> spent = std::chrono::steady_clock::now() - _start;
            _clock.stats.*_seconds += spent.count();
        }
        Stage(const Stage&) = delete;
        Stage& operator=(const Stage&) = delete;

    private:
        StageClock& _clock;
        double StrokeStats::*_seconds;
        PaintSurface* _surface;
        std::chrono::steady_clock::time_point _start;
    };
};

}  // namespace dabcanvas
