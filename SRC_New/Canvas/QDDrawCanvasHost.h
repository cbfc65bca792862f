// SPDX-License-Identifier: MIT
// What a canvas asks and tells its host: the delegate and the display hooks. The one part that knows the canvas itself.
// Whatever the host does meanwhile, be it destroying the canvas, nothing here touches a member of one that is gone.
#pragma once

#include <atomic>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

#include "Canvas/Life.h"
#include "Canvas/QDDrawCanvas.h"
#include "Canvas/StrokeEntry.h"

class QDDrawCanvas::Host final : public dabcanvas::StrokeHost {
public:
    // What the host hears of when it has changed in a call.
    struct Watched {
        virtual bool canUndo() const = 0;
        virtual bool canRedo() const = 0;
        virtual bool isLost() const = 0;
        virtual bool isModified() const = 0;
        // What changed of the picture since this was asked last.
        virtual dabcanvas::Rect takeChanged() = 0;
        // Whether what an undo was refused for has passed; once.
        virtual bool canUndoAgain() = 0;
        // Steps that went since this was asked last, and how many are left to undo.
        virtual std::pair<int, int> stepsDropped() = 0;
        // Says so, once a stroke, when the numbers are not finite.
        virtual bool acceptsPoint(QPointF point) = 0;

    protected:
        ~Watched() = default;
    };

    Host(QDDrawCanvas& canvas, const QRectF& made) : frame(made), _canvas(canvas) {}
    dabcanvas::CanvasLayers layersOfCanvas() const;
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    const QRectF frame;  // as it was made
    QDDrawViewDelegate* delegate = nullptr;
    bool wantsDevicePress = true;  // kept for hosts
    float normalPress = 0.9f;
    const dabcanvas::Life life;
    mutable int neededBy = 0;  // how many scopes cannot do without the canvas

    // Ends the process, with a log line, when one is open: the canvas is being destroyed.
    void mustNotBeNeeded() const;
    void watch(Watched& watched) { _watched = &watched; }

    // What a host hears of when it is another after a call.
    struct Before {
        bool canUndo = false, canRedo = false, isModified = false;
    };

    // One call of the host's: the first local of every function that may change what the host is to hear of. That waits
    // for the end of the outermost one, when none of the canvas's scopes is open and no member is needed any more:
    // hearing it, the host may destroy the canvas. Ends debug builds when another thread is in one: members are no
    // matter of two.
    class Call {
    public:
        explicit Call(Host& host);
        ~Call();
        Call(const Call&) = delete;
        Call& operator=(const Call&) = delete;

    private:
        Host& _host;
        dabcanvas::Alive _alive;
        bool _isOutermost;  // until what waited for its end was told
        Before _before;
    };

    // ---- questions, whose answer is waited for

    QRectF shownFrame() const;
    QPointF pointOf(const QDDrawTouch& touch) const;
    double pointScale() const;
    std::unique_ptr<LeafDrawing> makePreview(const QRectF& buffer) const;

    // ---- callbacks of a stroke

    bool announce(dabcanvas::StrokeStage stage, QPointF& point) override;
    bool tellDone(dabcanvas::StrokeStage stage, QPointF point) override;

    // ---- what is told when a call is done

    void redisplay(const QRectF& viewRect);
    void redisplayAll();
    void showPreview(bool shown);
    void brushChanged();
    void canvasSizeChanged();
    void layersChanged();
    // A stroke's end is on its way: it stays, or nothing of it does.
    void strokeEnds(bool stays) { _strokeStays = stays; }
    // The same of an end that no delegate hears of.
    void strokeWasLeft(bool stays);
    bool isLossTold() const { return _lossTold; }
    void lossIsOver() { _lossTold = _lossIsNew = false; }

private:
    bool takeThread();
    Before present() const;
    void tellAll(const Before& before);
    void tellDelegate(const Before& before);
    void tellDisplay(const Before& before);
    void tellStroke(dabcanvas::StrokeStage stage, QPointF point);
    void tellStrokeEnd();

    QDDrawCanvas& _canvas;
    Watched* _watched = nullptr;           // null until the canvas is made
    std::atomic<std::thread::id> _user{};  // the thread that is in a call
    int _calls = 0;
    std::vector<QRectF> _toShow;
    std::optional<bool> _showsPreview;
    bool _lossTold = false, _lossIsNew = false;
    bool _brushChanged = false, _sizeChanged = false, _layersChanged = false;
    bool _strokeBegan = false;    // and its end was not told of yet
    bool _strokeWasLeft = false;  // as it is to be when the call is done
    bool _strokeStays = false;
    QPointF _strokeAt;  // buffer pixels
};
