// SPDX-License-Identifier: MIT
// The state of one stroke: which of begin, move and end is due, which samples count, and what the host is told. Knows
// nothing of layers or brushes: what it decides goes to the listener, in order, once.
//
// Units    points come in as view points and go to the listener as buffer pixels, by ViewScale; the host hears of the
//          first in "should" and "will", of the second in "did".
// Life     the host may destroy the canvas, and this with it, in any callback.
#pragma once

#include <QPointF>
#include <QSizeF>
#include <cstdint>

#include "Canvas/Life.h"
#include "Canvas/StrokePainter.h"

namespace dabcanvas {

enum class StrokeStage : std::uint8_t { begin, move, end };

// What a host is told in the course of a stroke. False when the canvas is gone.
class StrokeHost {
public:
    // Asks where the point should be, and tells that the stage comes. A place that is not finite is not followed.
    [[nodiscard]] virtual bool announce(StrokeStage stage, QPointF& point) = 0;
    // Tells that the stage is done.
    [[nodiscard]] virtual bool tellDone(StrokeStage stage, QPointF point) = 0;

protected:
    ~StrokeHost() = default;
};

// View points per buffer pixel.
struct ViewScale {
    QSizeF perPixel{1, 1};

    QPointF toBuffer(QPointF point) const {
        return {point.x() / perPixel.width(), point.y() / perPixel.height()};
    }
    QPointF toView(QPointF point) const {
        return {point.x() * perPixel.width(), point.y() * perPixel.height()};
    }
};

class StrokeEntry {
public:
    struct Listener {
        // A stroke is about to begin; one that was never ended is over, as it stands. False when none can begin.
        // The host may be called back; the entry may be gone then.
        [[nodiscard]] virtual bool strokeIsDue(bool unended) = 0;
        virtual void strokeBegan(const StrokeSample& sample) = 0;
        // Moves nearer than a buffer pixel to the last one do not count.
        virtual bool ignoresNearMoves() const = 0;
        virtual void strokeMoved(const StrokeSample& sample, bool online) = 0;
        // The end of a stroke that is still in progress.
        virtual void strokeEnded(const StrokeSample& sample, bool online) = 0;
        // Nothing of the stroke stays; or what it drew stays, without an end.
        virtual void strokeWithdrawn(QPointF place) = 0;
        virtual void strokeDropped() = 0;

    protected:
        ~Listener() = default;
    };

    StrokeEntry(Listener& listener, StrokeHost& host, const ViewScale& scale)
        : _listener(listener), _host(host), _scale(scale) {}

    void begin(QPointF point, float pressure, float altitude);
    void move(QPointF point, float pressure, float altitude, bool online);
    void end(QPointF point, float pressure, float altitude, bool online);
    // Nothing of it stays; it was told of by tellEnd().
    void withdraw(QPointF point);
    // What it drew stays, without a word to the host.
    void drop();
    // The host's callbacks of an end alone. Between "will" and "did", `meanwhile` is done.
    template <typename Meanwhile>
    void tellEnd(QPointF point, Meanwhile&& meanwhile);

    // A stroke has begun and not ended yet. While its begin was refused and a good move is awaited, it has not.
    bool isDrawing() const { return _state == State::drawing; }
    // Buffer pixels.
    const StrokeSample& lastSample() const { return _last; }

    // Whether the numbers are finite, in single precision too; else says so, once a stroke.
    bool accepts(QPointF point, float pressure, float altitude);

private:
    enum class State : std::uint8_t { none, awaited, drawing };

    Listener& _listener;
    StrokeHost& _host;
    const ViewScale& _scale;
    const Life _life;
    State _state = State::none;
    bool _refused = false;  // and said so
    StrokeSample _last;
};

template <typename Meanwhile>
void StrokeEntry::tellEnd(QPointF point, Meanwhile&& meanwhile) {
    const Alive alive(_life);
    if (!_host.announce(StrokeStage::end, point)) {
        return;
    }
    meanwhile(point);
    if (alive) {
        static_cast<void>(_host.tellDone(StrokeStage::end, point));
    }
}

}  // namespace dabcanvas
