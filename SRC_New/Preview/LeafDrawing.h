// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QObject>
#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <QRegion>
#include <QSizeF>
#include <functional>
#include <optional>
#include <vector>

#include "Brushes/ESColor.h"
#include "Dabs/Symmetry.h"
#include "Maths/Export.h"
#include "Preview/LeafFill.h"

/// The live preview brush: while the pointer moves, the area that it encloses is shown as one filled, smoothed
/// path, drawn on the CPU; at the end of the stroke it is softened and handed over, to be placed on the
/// canvas. This is the whole logic without a widget; a canvas has one, QDDrawCanvas::leafDrawView().
///
///     LeafDrawing leaf(QSizeF(1000, 500));
///     leaf.setRenderColor(ESColor::rgba(0.2f, 0.6f, 0.1f, 0.8f));
///     leaf.setComplention([&](const QImage& image, QSizeF) { place(image); });  // stretched over the canvas
///     leaf.drawWithBegin({100, 100});
///     leaf.drawWithMove({300, 180});
///     leaf.drawWithEnd({200, 400});
///     leaf.finishPending();  // where no event loop runs
///
/// Units    points come in as buffer pixels of the canvas, origin top left. The bitmap is 0.6 times as large
///          each way: bitmap pixels are buffer pixels times 0.6, and paths, kept points and updateRect() are
///          in these. Only frameSize() and redisplayRect() are in view points.
/// Drawing  a move notes which part of the bitmap it made stale; the part is drawn when somebody looks. The
///          pixels are those of drawing everything anew.
/// Owns     the bitmap, made at the first stroke and then kept: width x height x 4 bytes; as much again during
///          a stroke.
/// Thread   the one that made it; the end of a stroke comes through that thread's event loop.
/// Errors   never throws. A point that is not finite is ignored, with one log line a stroke. A bitmap beyond
///          the memory at hand is logged at the beginning of a stroke, which then draws nothing.
class DABCANVAS_CANVAS_API LeafDrawing {
public:
    /// Frame: the size of the canvas in buffer pixels. A side that is no number or 0 or less gives a bitmap of
    /// 1 pixel.
    explicit LeafDrawing(const QSizeF& frame);
    /// Drops a pending stroke without a call.
    virtual ~LeafDrawing();
    LeafDrawing(const LeafDrawing&) = delete;
    LeafDrawing& operator=(const LeafDrawing&) = delete;

    // ---- A stroke: a begin, any number of moves, an end or a cancel; points may lie anywhere

    /// Finishes a pending stroke first, and drops one that was never ended. Nothing is shown before the first
    /// move; a begin that is not finite begins nothing.
    void drawWithBegin(QPointF point);
    /// The outline goes on to the point.
    void drawWithMove(QPointF point);
    /// Returns at once: the stroke is pending until the event loop, or finishPending(), finishes it. An end
    /// that is not finite ends at the last point.
    void drawWithEnd(QPointF point);
    /// Nothing is shown any more and nothing handed over. A stroke that has ended is not cancelled by this.
    void drawWithCanceled(QPointF point);

    /// Whether a stroke has ended and not been handed over yet.
    bool isPending() const { return _pending.has_value(); }
    /// Blurs the pending stroke and hands it to complention() now; nothing without one. To be called where no
    /// event loop runs, and before the canvas's pixels are used.
    void finishPending();

    /// Called once for every stroke that ended, with the blurred picture as premultiplied RGBA, graphSize()
    /// large, and graphSize(). The preview has let go of the stroke by then: a new one may begin, or the
    /// preview be destroyed.
    using Complention = std::function<void(const QImage& image, QSizeF graphSize)>;
    const Complention& complention() const { return _complention; }
    void setComplention(Complention complention) { _complention = std::move(complention); }

    // ---- Brush; a stroke that has ended keeps what it ended with

    /// Colour of the fill, with its alpha. A stroke in progress changes as a whole. No colour draws nothing.
    const ESColor& renderColor() const { return _renderColor; }
    void setRenderColor(const ESColor& color);
    /// In bitmap pixels, at least 1; one that is not finite is logged and refused.
    float gaussianRadius() const { return _gaussianRadius; }
    void setGaussianRadius(float radius);

    /// In buffer pixels of the canvas: the strokes to come fill their copies as well. Where areas overlap they are one.
    void setSymmetry(const dabcanvas::Symmetry& symmetry);

    // ---- What is shown

    /// In bitmap pixels, whole numbers from 1 on: the frame's size times 0.6, rounded, at creation.
    QSizeF graphSize() const { return _graphSize; }
    /// Nothing is being drawn: before the first move, and from the end or cancel on.
    bool isClear() const { return _isClear; }
    /// What a display goes by: isClear() turns true at the end, but the picture stays on screen while it is
    /// pending. Without that it would vanish until the canvas has placed it.
    bool showsImage() const { return !_isClear || isPending(); }
    /// The bitmap brought up to date, premultiplied RGBA; null before the first stroke, transparent between
    /// strokes. Valid until the next call of any member; a copy keeps its pixels.
    const QImage& cgImage();
    /// The same as last drawn, which may be behind the path.
    const QImage& bitmap() const { return _bitmap; }

    /// The open outline in bitmap pixels, filled by the winding rule, without copies; empty between strokes.
    const QPainterPath& path() const { return _path; }
    /// Of the stroke, in bitmap pixels.
    QPointF beginPoint() const { return _beginPoint; }
    QPointF lastPoint() const { return _lastPoint; }
    QPointF lastRenderPoint() const { return _lastRenderPoint; }  ///< where the path ends
    /// What displays show of it, in buffer pixels; empty: all. bitmap() and what complention() gets are whole.
    const QPainterPath& shownArea() const { return _shownArea; }
    void setShownArea(const QPainterPath& area) { _shownArea = area; }
    /// What the latest stage changed, but for copies, in bitmap pixels within graphSize().
    QRectF updateRect() const { return _updateRect; }

    /// Notes updateRect() as stale and, when online, asks for its redisplay. The stages call it.
    void updateDrawView() { updateDrawViewForOnline(true); }
    void updateDrawViewForOnline(bool online);

    /// Blurs with the radius in pixels of the picture, whose edges go on beyond it. The first, the mean of a square,
    /// softens strokes; the second, a Gaussian, stands by for callers.
    static QImage boxblurImage(const QImage& image, float blurNumber);
    static QImage coreBlurImage(const QImage& image, float blurNumber);

protected:
    // ---- Display hooks; they may not destroy the preview, which ends the process with a log line

    /// How large the preview is shown, in view points.
    virtual QSizeF frameSize() const { return _frame; }
    /// Show this area, in view points with a top-left origin, again soon. To note it, not to draw at once.
    virtual void redisplayRect(const QRectF&) {}

private:
    // What a stroke that has ended is finished with, whatever the brush is set to in the meantime.
    struct Pending {
        ESColor color;
        float radius;
    };

    // Of the stroke, mirrored or turned.
    struct Copy {
        dabcanvas::SymmetryMap map;
        LeafFill fill;
        QPointF begin, last, end;  // of the stroke so far, as its own points

        void curveTo(QPointF middle, QPointF next);
    };

    QPointF placeOf(const Copy& copy, QPointF point) const;
    bool beginCopies(QPointF point);
    bool isDrawing() const { return _path.elementCount() > 0 && !isPending(); }
    bool acceptsPoint(QPointF point);
    bool makeBitmap(QPointF begin);
    QRectF wholeRect() const { return QRectF(QPointF(), _graphSize); }
    void redisplay(const QRectF& bitmapRect);
    void letGo();

    QSizeF _frame;
    QSizeF _graphSize;
    QImage _bitmap;
    QRegion _stale;  // of the bitmap, behind the path
    QRect _inked;    // of the bitmap, all that may not be transparent

    QPainterPath _path;  // without elements when no stroke has begun
    LeafFill _fill;      // the same, as far as it lies in the bitmap
    QPainterPath _shownArea;
    dabcanvas::Symmetry _symmetry;
    std::vector<Copy> _copies;  // of the present stroke
    QRegion _copiesUpdate;      // what the latest stage changed of them
    QPointF _beginPoint, _lastPoint, _lastRenderPoint;
    QRectF _updateRect;
    bool _isClear = true;
    bool _refusedPoint = false;  // and said so
    bool _inHook = false;

    ESColor _renderColor;
    float _gaussianRadius = 1;
    Complention _complention;
    std::optional<Pending> _pending;
    QObject _calls;  // takes queued calls, which go with it
};
