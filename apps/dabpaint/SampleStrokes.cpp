// SPDX-License-Identifier: MIT
#include "SampleStrokes.h"

#include <QPointF>
#include <algorithm>
#include <cmath>
#include <functional>
#include <numbers>

namespace dabcanvas::dabpaint {

namespace {

constexpr double kPace = 9;  // mean distance between samples, in pixels
constexpr double kFastPace = 34;

using Samples = std::vector<RecordedSample>;
using std::numbers::pi;

double marginOf(const QSize& size) {
    return std::min(size.width(), size.height()) * 0.3;
}

// Entered slowly at both ends.
Samples wave(const QSize& size) {
    const double width = size.width(), height = size.height(), margin = marginOf(size);
    const int last = std::max(12, int(width / kPace));
    Samples samples;
    for (int i = 0; i <= last; ++i) {
        const double time = double(i) / last;
        const double share = time - 0.6 * std::sin(time * 2 * pi) / (2 * pi);
        // The pen lifts a little before the end, as pressure arrives with a lag.
        const double pressure = std::sin(std::min(time * 1.06, 1.0) * pi);
        samples.push_back({margin + share * (width - 2 * margin),
                           height * (0.5 - 0.2 * std::sin(share * 2 * pi)), float(pressure), -1});
    }
    return samples;
}

Samples outline(const QSize& size) {
    const double width = size.width(), height = size.height();
    const int last = std::max(24, int(2 * width / kPace));
    Samples samples;
    for (int i = 0; i <= last; ++i) {
        const double turn = double(i) / last * 2 * pi;
        const double across = std::sin(turn) * std::abs(std::sin(turn));
        samples.push_back({width * (0.5 - 0.4 * std::cos(turn)),
                           height * (0.5 - 0.1 * std::cos(turn) - 0.34 * across), 0.7f, -1});
    }
    return samples;
}

// Zigzags that lean, then loops; a curve all along, as a hand has no corners.
Samples scribble(const QSize& size) {
    const double width = size.width(), height = size.height(), margin = marginOf(size) * 0.8;
    constexpr double kTurns = 7;
    const double length = kTurns * 2 * 0.6 * height;
    const int last = std::max(60, int(length / kFastPace));
    Samples samples;
    for (int i = 0; i <= last; ++i) {
        const double time = double(i) / last, turn = time * kTurns * 2 * pi;
        const double looping = std::clamp(time * 3 - 1.2, 0.0, 1.0), swing = height * (0.3 - 0.06 * looping);
        const double x = margin + time * (width - 2 * margin) +
                         swing * (0.35 * (1 - looping) * std::cos(turn) + 0.75 * looping * std::sin(turn));
        samples.push_back(
            {x, height * 0.5 - swing * std::cos(turn), float(0.65 + 0.15 * std::sin(turn)), -1});
    }
    return samples;
}

Samples rows(double left, double right, double top, double bottom, double apart) {
    const int count = std::max(2, int(std::lround((bottom - top) / apart)) + 1);
    const int last = std::max(3, int((right - left) / kPace));
    Samples samples;
    for (int row = 0; row < count; ++row) {
        for (int i = 0; i <= last; ++i) {
            const double share = double(i) / last, across = row % 2 == 0 ? share : 1 - share;
            samples.push_back({left + across * (right - left),
                               top + (bottom - top) * (row + share * 0.5) / (count - 0.5), 0.6f, -1});
        }
    }
    return samples;
}

std::vector<Samples> patch(const QSize& size, double brush) {
    const double width = size.width(), height = size.height();
    const double edge = std::min(0.08 * height + brush * 0.45, 0.4 * height);
    const double apart = std::max(1.5, brush * 0.3);
    const double left = std::min(edge, width * 0.25), right = width - left;
    return {rows(left, right, edge, height - edge, apart),
            rows(left + (right - left) * 0.62, right, edge, height - edge, apart)};
}

// A level line whose pressure or altitude goes from 0 to 1.
Samples ramp(const QSize& size, bool tilts) {
    const double margin = marginOf(size) * 0.75, length = size.width() - 2 * margin;
    const int last = std::max(24, int(length / kPace * 2));
    Samples samples;
    for (int i = 0; i <= last; ++i) {
        const double share = double(i) / last;
        samples.push_back({margin + share * length, size.height() * (0.5 - 0.06 * std::sin(share * 2 * pi)),
                           tilts ? 0.6f : float(share), tilts ? float(share) : -1});
    }
    return samples;
}

// Samples for shares of the way from 0 to 1; at full pressure.
Samples along(int last, const std::function<QPointF(double share)>& place) {
    Samples samples;
    for (int i = 0; i <= last; ++i) {
        const QPointF at = place(double(i) / last);
        samples.push_back({at.x(), at.y(), 1, -1});
    }
    return samples;
}

// All at once, a third of the way along.
Samples speedUp(const QSize& size) {
    const double margin = marginOf(size), length = size.width() - 2 * margin;
    return along(16, [&](double share) {
        const double way = share < 0.75 ? share * 0.48 : 1 - (1 - share) * 2.56;
        return QPointF(margin + way * length, size.height() * 0.5);
    });
}

Samples loop(const QSize& size) {
    const double width = size.width(), height = size.height(), margin = marginOf(size);
    return along(60, [&](double share) {
        const double turn = share * 3 * pi;
        return QPointF(margin + share * (width - 2 * margin) - 0.16 * width * std::sin(turn),
                       height * (0.5 - 0.24 * std::cos(turn)));
    });
}

Samples zigzag(const QSize& size) {
    const double margin = marginOf(size), length = size.width() - 2 * margin;
    constexpr int kLegs = 6, kStops = 3;
    return along(kLegs * kStops, [&](double share) {
        const double leg = share * kLegs, across = std::abs(leg - 2 * std::round(leg / 2));
        return QPointF(margin + share * length, size.height() * (0.25 + 0.5 * across));
    });
}

// The same numbers on every run and machine.
double tremble(int i) {
    return std::sin(i * 2.3) + std::sin(i * 5.1 + 1);
}

Samples shaky(const QSize& size) {
    const double margin = marginOf(size), length = size.width() - 2 * margin;
    int i = 0;
    return along(30, [&](double share) {
        return QPointF(margin + share * length, size.height() * (0.5 + 0.09 * tremble(i++)));
    });
}

Samples ring(const QSize& size) {
    int i = 0;
    return along(48, [&](double share) {
        const double reach = size.height() * (0.36 + 0.008 * tremble(i++)), turn = share * 2 * pi;
        return QPointF(size.width() * 0.5 + 1.5 * reach * std::cos(turn),
                       size.height() * 0.5 + reach * std::sin(turn));
    });
}

std::vector<Samples> threeLines(const QSize& size) {
    std::vector<Samples> lines;
    for (const double height : {0.2, 0.5, 0.8})
        lines.push_back(along(20, [&](double share) {
            return QPointF(size.width() * (0.15 + 0.7 * share), size.height() * height);
        }));
    return lines;
}

}  // namespace

std::vector<Samples> sampleStrokes(SampleKind kind, const QSize& size, double width) {
    switch (kind) {
        case SampleKind::outline:
            return {outline(size)};
        case SampleKind::scribble:
            return {scribble(size)};
        case SampleKind::patch:
            return patch(size, width);
        case SampleKind::pressure:
        case SampleKind::tilt:
            return {ramp(size, kind == SampleKind::tilt)};
        case SampleKind::speed:
            return {speedUp(size)};
        case SampleKind::loop:
            return {loop(size)};
        case SampleKind::zigzag:
            return {zigzag(size)};
        case SampleKind::shaky:
            return {shaky(size)};
        case SampleKind::ring:
            return {ring(size)};
        case SampleKind::threeLines:
            return threeLines(size);
        case SampleKind::wave:
            break;
    }
    return {wave(size)};
}

}  // namespace dabcanvas::dabpaint
