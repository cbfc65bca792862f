// SPDX-License-Identifier: MIT
// The three stages of a stroke: pointer positions in, dabs of the line process into the layers.
#include <cmath>
#include <cstdlib>
#include <memory>
#include <utility>

#include "LineProcess/LPProperties.h"
#include "LineProcess/LPStroke.h"
#include "QDEAGLView/CanvasRects.h"
#include "QDEAGLView/LeafDrawing.h"
#include "QDEAGLView/QDDrawCanvasScopes.h"

using dabcanvas::isZero;
using dabcanvas::mergeRect;

namespace {

constexpr double kClosest = 1.0;  // buffer pixels; nearer moves are dropped

// The line process takes 0 where the device gives no tilt; -1 stands for that within a rounding error.
float lineAltitude(float altitude) {
    return std::fabs(altitude + 1) < 0.0001f ? 0.0f : altitude;
}

LPPosition linePosition(QPointF point) {
    return {static_cast<float>(point.x()), static_cast<float>(point.y())};
}

float distanceOf(QPointF a, QPointF b) {
    const auto dx = static_cast<float>(a.x() - b.x());
    const auto dy = static_cast<float>(a.y() - b.y());
    return std::sqrt(dx * dx + dy * dy);
}

bool isNear(QPointF a, QPointF b) {
    return std::fabs(a.x() - b.x()) < kClosest && std::fabs(a.y() - b.y()) < kClosest;
}

}  // namespace

// The dabs of one append call, owned.
struct QDDrawCanvas::Run {
    std::unique_ptr<LPPoint, decltype(&std::free)> points{nullptr, &std::free};
    std::size_t count = 0;
};

bool QDDrawCanvas::acceptsSample(QPointF point, float pressure, float altitude) {
    // The line process calculates in single precision; what is infinite there is as good as not finite here.
    if (std::isfinite(static_cast<float>(point.x())) && std::isfinite(static_cast<float>(point.y())) &&
        std::isfinite(pressure) && std::isfinite(altitude)) {
        return true;
    }
    if (!std::exchange(_refusedSample, true)) {  // once a stroke: a broken device sends many
        qCWarning(lcDabcanvas, "a sample that is not finite was refused: (%g, %g), pressure %g, altitude %g",
                  point.x(), point.y(), static_cast<double>(pressure), static_cast<double>(altitude));
    }
    return false;
}

QPointF QDDrawCanvas::bufferPoint(QPointF point) const {
    return QPointF(point.x() / scale().width(), point.y() / scale().height());
}

QPointF QDDrawCanvas::viewPoint(QPointF point) const {
    return QPointF(point.x() * scale().width(), point.y() * scale().height());
}

void QDDrawCanvas::drawingWithBeginPoint(QPointF point, float pressure, float altitude, bool) {
    const Alive alive(*this);
    {
        const Call call(*this);
        _refusedSample = false;
        if (!finishPreview()) {  // strokes come onto the canvas in their order
            return;
        }
        if (_stroke == Stroke::drawing) {
            finishLayers();  // a stroke that was never ended stays as it is
            _isSketch = false;
        }
        _stroke = isContextLost() ? Stroke::none : Stroke::awaited;
    }
    if (!alive || _stroke != Stroke::awaited || !acceptsSample(point, pressure, altitude)) {
        return;  // the first sample that can be used begins instead
    }
    // Begun only after the callbacks: a brush that these choose is the one that the stroke begins with.
    if (!announce(&QDDrawViewDelegate::drawViewShouldDrawBegin, &QDDrawViewDelegate::drawViewWillDrawBegin,
                  point) ||
        _stroke != Stroke::awaited) {
        return;  // a callback had it ended, as a dialogue that it opens does, or the canvas is gone
    }
    point = bufferPoint(point);
    beginStroke(point, pressure, altitude);
    if (alive) {
        static_cast<void>(tell(&QDDrawViewDelegate::drawViewDidDrawBegin, point));
    }
}

void QDDrawCanvas::drawingWithMoveToPoint(QPointF point, float pressure, float altitude, bool online) {
    if (_stroke == Stroke::none || !acceptsSample(point, pressure, altitude)) {
        return;
    }
    if (_stroke == Stroke::awaited) {
        drawingWithBeginPoint(point, pressure, altitude, online);
        return;
    }
    if (!announce(&QDDrawViewDelegate::drawViewShouldDrawMove, &QDDrawViewDelegate::drawViewWillDrawMove,
                  point) ||
        _stroke != Stroke::drawing) {
        return;
    }
    point = bufferPoint(point);
    const Alive alive(*this);
    if (moveStroke(point, pressure, altitude, online) && alive) {
        static_cast<void>(tell(&QDDrawViewDelegate::drawViewDidDrawMove, point));
    }
}

void QDDrawCanvas::drawingWithEndPoint(QPointF point, float pressure, float altitude, bool online) {
    if (_stroke != Stroke::drawing) {
        _stroke = Stroke::none;
        return;
    }
    if (!acceptsSample(point, pressure, altitude)) {
        // The stroke ends all the same, where it got to.
        point = viewPoint(_lastRenderObject);
        pressure = _lastPressure;
        altitude = _lastAltitude;
    }
    if (!announce(&QDDrawViewDelegate::drawViewShouldDrawEnd, &QDDrawViewDelegate::drawViewWillDrawEnd,
                  point)) {
        return;
    }
    point = bufferPoint(point);
    const Alive alive(*this);
    endStroke(point, pressure, altitude, online);
    if (alive) {
        static_cast<void>(tell(&QDDrawViewDelegate::drawViewDidDrawEnd, point));
    }
}

void QDDrawCanvas::beginStroke(QPointF point, float pressure, float altitude) {
    const Call call(*this);
    _stroke = Stroke::drawing;
    _editedBefore = _edited;
    if (_brush.enableRecogition) {
        beginSketch(point);
    }
    _lineRenderRect = QRectF();
    _subLineRenderRect = QRectF();
    _strokeRect = QRectF();
    _isAppendLine = false;
    takeSample(point, pressure, altitude);
    if (usesPreview()) {
        _leafDrawView->drawWithBegin(point);
        return;
    }
    if (needRepeatedlyRender()) {
        startSubLine();
    }
    const StrokeScope scope(*this);
    (isSmudgeType() ? *_smudgeRender : *_extenRender).resetLineProporty();
    startLine(*_lineParaObj, point, pressure, altitude);
}

// False for a move that lies too near to be followed.
bool QDDrawCanvas::moveStroke(QPointF point, float pressure, float altitude, bool online) {
    const Call call(*this);
    if (usesPreview()) {
        takeSample(point, pressure, altitude);
        _leafDrawView->drawWithMove(point);
        return true;
    }
    if (distanceOf(point, _lastRenderObject) <= static_cast<float>(kClosest)) {
        return false;
    }
    const bool firstMove = !std::exchange(_isAppendLine, true);
    takeSample(point, pressure, altitude);
    drawSegment(point, pressure, altitude, false, firstMove, online);
    if (_isSketch) {
        _points.push_back({point.x(), point.y()});
    }
    return true;
}

void QDDrawCanvas::endStroke(QPointF point, float pressure, float altitude, bool online) {
    const Call call(*this);
    _isAppendLine = true;
    if (_stroke != Stroke::drawing) {
        // A callback ended it, and is told of the end all the same.
    } else if (_isSketch) {
        endSketch(point, online);
    } else if (usesPreview()) {
        _leafDrawView->drawWithEnd(point);  // which places the stroke, later
    } else {
        drawSegment(point, pressure, altitude, true, false, online);
        finishLayers(true);
    }
    _stroke = Stroke::none;
}

// At the last sample, in mid-stroke too: what the line process keeps for all lines stays the main line's.
void QDDrawCanvas::startSubLine() {
    const LPSharedState mainLine = _strokeState;
    {
        const StrokeScope scope(*this);
        _subRender->resetLineProporty();
        startLine(*_subLineParaObj, _lastRenderObject, _lastPressure, _lastAltitude);
    }
    _strokeState = mainLine;
}

// The point that the distance filter measures from, and where a stroke whose end is unusable ends.
void QDDrawCanvas::takeSample(QPointF point, float pressure, float altitude) {
    _lastRenderObject = point;
    _lastPressure = pressure;
    _lastAltitude = altitude;
}

// Between strokes the layers are empty and the background is the canvas. A sketch stays on neither.
void QDDrawCanvas::finishLayers(bool asStep) {
    settleSketch();
    emptyLineLayers();
    updateBGImage(asStep ? autoMarked() : QByteArray());
}

// The background is to be the canvas with all that was drawn so far; the layers must not be composited once
// more over what comes next.
void QDDrawCanvas::settleLayers() {
    if (!isZero(_updateRect) || !isZero(_layerContent[ESRenderTypeLine]) ||
        !isZero(_layerContent[ESRenderTypeSubLine])) {
        finishLayers();
    }
}

// Nothing of the stroke stays, as if it had never been begun.
void QDDrawCanvas::withdrawStroke(QPointF point) {
    const Call call(*this);
    _stroke = Stroke::none;
    if (usesPreview()) {
        _leafDrawView->drawWithCanceled(point);
        return;
    }
    const ESCurrentScope current(*_esContext);
    if (!current) {
        return;
    }
    if (_isSketch) {
        takeBackSketch();
        _isSketch = false;
        return;
    }
    _pending.clear();  // all of it lies within what is repainted
    emptyLineLayers();
    resetWithRenderRect(_strokeRect);
    _edited = _editedBefore;
    if (isSmudgeType()) {
        updateSmudgeBGTexture();
    }
}

// A stroke is over without an end. What it may have drawn stays; a preview never reaches the canvas.
void QDDrawCanvas::dropStroke() {
    const Call call(*this);
    if (std::exchange(_stroke, Stroke::none) != Stroke::drawing) {
        return;
    }
    if (usesPreview()) {
        _leafDrawView->drawWithCanceled(_lastRenderObject);
    } else {
        finishLayers();
        _isSketch = false;
    }
}

void QDDrawCanvas::startLine(LPLineParams& record, QPointF point, float pressure, float altitude) {
    const StageTimer timer(*this, Stage::geometry);
    lpSetParaObj(&record);
    lpStartLineWithParams(linePosition(point), pressure, lineAltitude(altitude));
}

QDDrawCanvas::Run QDDrawCanvas::appendToLine(LPLineParams& record, QPointF point, float pressure,
                                             float altitude, bool end) {
    const StageTimer timer(*this, Stage::geometry);
    lpSetParaObj(&record);
    const std::int32_t appended =
        lpAppendingLineWithParams(linePosition(point), pressure, lineAltitude(altitude), end);
    Run run;
    // Without new dabs the handed-out pointer still is an earlier, freed array.
    if (appended > 0) {
        LPPoint* points = nullptr;
        const std::int32_t count = lpGetLastLineSegmentPoints1V(&points);
        run.points.reset(points);
        run.count = points != nullptr && count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    return run;
}

// Extends the line, and the sub-line when there is one, by one sample; draws what they gave and composites
// it.
void QDDrawCanvas::drawSegment(QPointF point, float pressure, float altitude, bool end, bool dropFirst,
                               bool online) {
    const StrokeScope scope(*this);
    if (!scope) {
        return;
    }
    ++_stats.samples;
    QRectF segmentRect;
    bool drewSub = false;
    if (needRepeatedlyRender()) {
        const Run run = appendToLine(*_subLineParaObj, point, pressure, altitude, end);
        // Deliberate: a final sub-line run too close to the last point is left out; the main line's never is.
        if (run.count > 0 && !(end && isNear(point, _lastRenderObject))) {
            segmentRect = drawRun(run.points.get(), run.count, ESRenderTypeSubLine);
            mergeRect(_subLineRenderRect, segmentRect);
            drewSub = true;
        }
    }
    const Run run = appendToLine(*_lineParaObj, point, pressure, altitude, end);
    // Deliberate: the first accepted move leaves out the main line's first dab; the sub-line never drops one.
    const std::size_t first = dropFirst && run.count > 0 ? 1 : 0;
    const std::size_t count = run.count - first;
    if (count > 0) {
        QRectF mainSegment = drawRun(run.points.get() + first, count, mainLayer());
        if (drewSub) {
            mergeRect(mainSegment, segmentRect);
        }
        segmentRect = mainSegment;
        mergeRect(mainRect(), segmentRect);
    }
    if (count > 0 || drewSub) {
        _tempRect = segmentRect;
        updateImage(online);
    }
}
