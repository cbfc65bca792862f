// SPDX-License-Identifier: MIT
// The three stages of a stroke: pointer positions in, dabs of the line process into the layers.
#include <cmath>
#include <cstdlib>
#include <memory>
#include <utility>

#include "LineProcess/LPProperties.h"
#include "LineProcess/LPStroke.h"
#include "QDEAGLView/CanvasRects.h"
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

// A filter that makes the point unusable is not followed.
QPointF QDDrawCanvas::filteredPoint(QPointF (QDDrawViewDelegate::*filter)(QDDrawCanvas&, QPointF),
                                    QPointF point) {
    const QPointF filtered = (_delegate->*filter)(*this, point);
    return acceptsSample(filtered, 0, 0) ? filtered : point;
}

QPointF QDDrawCanvas::bufferPoint(QPointF point) const {
    return _needScale ? QPointF(point.x() / _scale.width(), point.y() / _scale.height()) : point;
}

void QDDrawCanvas::drawingWithBeginPoint(QPointF point, float pressure, float altitude, bool) {
    _refusedSample = false;
    if (!acceptsSample(point, pressure, altitude)) {
        return;
    }
    const StrokeScope scope(*this);
    _lineRenderRect = QRectF();
    _subLineRenderRect = QRectF();
    _isAppendLine = false;
    if (_delegate != nullptr) {
        point = filteredPoint(&QDDrawViewDelegate::drawViewShouldDrawBegin, point);
        _delegate->drawViewWillDrawBegin(*this, point);
    }
    point = bufferPoint(point);
    _lastRenderObject = point;
    if (_brush.brushType != kPreviewBrush) {
        if (needRepeatedlyRender()) {
            _subRender->resetLineProporty();
            startLine(*_subLineParaObj, point, pressure, altitude);
        }
        if (ESLineRender* render = mainRender()) {
            render->resetLineProporty();
        }
        startLine(*_lineParaObj, point, pressure, altitude);
    }
    if (_delegate != nullptr) {
        _delegate->drawViewDidDrawBegin(*this, point);
    }
}

void QDDrawCanvas::drawingWithMoveToPoint(QPointF point, float pressure, float altitude, bool online) {
    if (!acceptsSample(point, pressure, altitude)) {
        return;
    }
    const StrokeScope scope(*this);
    if (_delegate != nullptr) {
        point = filteredPoint(&QDDrawViewDelegate::drawViewShouldDrawMove, point);
        _delegate->drawViewWillDrawMove(*this, point);
    }
    point = bufferPoint(point);
    if (_brush.brushType != kPreviewBrush) {
        if (distanceOf(point, _lastRenderObject) <= static_cast<float>(kClosest)) {
            return;
        }
        _lastRenderObject = point;
        const bool firstMove = !_isAppendLine;
        _isAppendLine = true;
        drawSegment(point, pressure, altitude, false, firstMove, online);
    }
    if (_delegate != nullptr) {
        _delegate->drawViewDidDrawMove(*this, point);
    }
}

void QDDrawCanvas::drawingWithEndPoint(QPointF point, float pressure, float altitude, bool online) {
    if (!acceptsSample(point, pressure, altitude)) {
        return;
    }
    const StrokeScope scope(*this);
    if (_delegate != nullptr) {
        point = filteredPoint(&QDDrawViewDelegate::drawViewShouldDrawEnd, point);
        _delegate->drawViewWillDrawEnd(*this, point);
    }
    point = bufferPoint(point);
    _isAppendLine = true;
    if (_brush.brushType != kPreviewBrush) {
        drawSegment(point, pressure, altitude, true, false, online);
        clearExtenBuffer();
        if (needRepeatedlyRender()) {
            clearSubBuffer();
        }
        updateBGImage();
    }
    if (_delegate != nullptr) {
        _delegate->drawViewDidDrawEnd(*this, point);
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
    ++_stats.samples;
    QRectF segmentRect;
    bool drewSub = false;
    if (needRepeatedlyRender()) {
        const Run run = appendToLine(*_subLineParaObj, point, pressure, altitude, end);
        // Deliberate: a final sub-line run too close to the last point is left out; the main line's never is.
        if (run.count > 0 && !(end && isNear(point, _lastRenderObject))) {
            segmentRect = drawPoints(run.points.get(), run.count, ESRenderTypeSubLine);
            mergeRect(_subLineRenderRect, segmentRect);
            drewSub = true;
        }
    }
    const Run run = appendToLine(*_lineParaObj, point, pressure, altitude, end);
    // Deliberate: the first accepted move leaves out the main line's first dab; the sub-line never drops one.
    const std::size_t first = dropFirst && run.count > 0 ? 1 : 0;
    const std::size_t count = run.count - first;
    if (count > 0) {
        QRectF mainSegment = drawPoints(run.points.get() + first, count, mainLayer());
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
