// SPDX-License-Identifier: MIT
// Strokes that are meant as shapes: a sketch is drawn like any stroke, taken
// back at its end, and the shape that is recognised in it drawn in its place.
#include <utility>
#include <vector>

#include "QDEAGLView/CanvasRects.h"
#include "QDEAGLView/LeafDrawing.h"
#include "QDEAGLView/QDDrawCanvasScopes.h"
#include "Recognition/ShapeDabs.h"
#include "Recognition/Unitily.h"

using dabcanvas::mergeRect;

namespace {

constexpr std::size_t kTooFewPoints = 4;

// One recognition at a time, and the drawing of its shape with it.
class Turn {
public:
    explicit Turn(std::binary_semaphore& semaphore) : _semaphore(semaphore) { _semaphore.acquire(); }
    ~Turn() { _semaphore.release(); }
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;

private:
    std::binary_semaphore& _semaphore;
};

ShapeRecord scaled(ShapeRecord shape, double factor) {
    for (ShapePoint& corner : shape.corners) {
        corner = {corner.x * factor, corner.y * factor};
    }
    shape.centre = {shape.centre.x * factor, shape.centre.y * factor};
    shape.a *= factor;
    shape.b *= factor;
    return shape;
}

}  // namespace

void QDDrawCanvas::setEnableRecogition(bool value) {
    const Call call(*this);
    if (!finishPreview()) {
        return;
    }
    const bool switched = value != _brush.enableRecogition;
    if (switched) {
        // What a stroke in progress has drawn stays, whatever it was to become.
        _isSketch = false;
        const bool changes = settleStrokeKind(_brush.brushType, _brush.isDebug, value);
        if (value && !changes && _stroke == Stroke::drawing) {
            finishLayers();
        }
        assign(BrushKey::enableRecogition, value);
        if (changes && isSmudgeType()) {
            updateSmudgeBGTexture();
        }
    }
    if (value && !_autoMark && !_isSketch) {
        refreshImageData(kRecognitionLine);
    }
    if (value && switched && _stroke == Stroke::drawing) {
        beginSketch(_lastRenderObject);
    }
}

// The points are kept in buffer pixels: recogPointScale may change before they are recognised.
void QDDrawCanvas::beginSketch(QPointF point) {
    if (!_imageIsGiven) {
        refreshImageData(kRecognitionLine);
    }
    _editedBefore = _edited;
    _points.assign(1, {point.x(), point.y()});
    _isSketch = true;
}

// Before anything else changes the canvas or looks at it for good.
void QDDrawCanvas::settleSketch() {
    if (_isSketch) {
        takeBackSketch();
    }
}

// What was drawn of the sketch so far goes; it may go on.
void QDDrawCanvas::takeBackSketch() {
    const ESCurrentScope current(*_esContext);
    if (!current) {
        return;
    }
    _pending.clear();  // all of it lies within what is repainted
    emptyLineLayers();
    _edited = _editedBefore;
    _mayMergePending = true;
    const QSize buffer = bufferSize().toSize();
    const QRect area = std::exchange(_strokeRect, QRectF()).toAlignedRect() & QRect(QPoint(0, 0), buffer);
    if (area.isEmpty()) {
        return;
    }
    QImage rows;
    if (_curImageData.size() == snapshotBytes()) {
        const QImage all(reinterpret_cast<const uchar*>(_curImageData.constData()), buffer.width(),
                         buffer.height(), qsizetype{buffer.width()} * 4,
                         QImage::Format_RGBA8888_Premultiplied);
        const int bottom = buffer.height() - area.y() - area.height();
        rows = all.copy(area.x(), bottom, area.width(), area.height());
    }
    if (!rows.isNull()) {
        // The same bytes for the canvas and its background.
        _esContext->beginRenderForType(ESRenderTypeCanvas);
        _esRender->copyToBG(rows, area);
        _esContext->finishRender();
        noteChanged(area);
        redisplayBufferRect(area);
    } else {
        resetWithRenderRect(area);  // there was no memory for it
    }
    // Nothing differs there any more.
    for (QRectF* const rect : {&_updateRect, &_imageStale}) {
        if (QRectF(area).contains(*rect)) {
            *rect = QRectF();
        }
    }
}

// The stroke's last point; what it was meant as takes its place.
void QDDrawCanvas::endSketch(QPointF point, bool online) {
    takeBackSketch();
    _isSketch = false;
    std::vector<ShapePoint> points;
    points.swap(_points);
    points.push_back({point.x(), point.y()});
    if (points.size() <= kTooFewPoints) {
        return;
    }
    const double unit = recognitionScale();
    for (ShapePoint& at : points) {
        at = {at.x / unit, at.y / unit};
    }
    bool drawn = false;
    {
        const Turn turn(_recognizeSemaphore);
        drawn = drawOutline(Unitily::recogniseWithPoints(points), online);
    }
    if (drawn) {
        finishLayers(true);
    }
}

double QDDrawCanvas::recognitionScale() const {
    return _brush.recogPointScale > 0 ? static_cast<double>(_brush.recogPointScale) : 1.0;
}

bool QDDrawCanvas::drawShape(const ShapeRecord& shape) {
    if (isDrawing()) {
        qCWarning(lcDabcanvas, "a shape cannot be drawn while a stroke is in progress");
        return false;
    }
    const Call call(*this);
    if (!finishPreview() || isContextLost()) {
        return false;
    }
    settleLayers();
    _strokeRect = QRectF();
    if (!drawOutline(shape, true)) {
        return false;
    }
    finishLayers(true);
    return true;
}

// Into the layers and onto the canvas, as a stroke's segments.
bool QDDrawCanvas::drawOutline(const ShapeRecord& shape, bool online) {
    if (!shape) {
        return false;
    }
    const ShapeRecord onBuffer = scaled(shape, recognitionScale());
    const auto mainRuns = dabsOnShape(onBuffer, *_lineParaObj);
    if (mainRuns.empty()) {
        const std::string_view kind = nameOfShapeKind(shape.kind);
        qCWarning(lcDabcanvas, "a %.*s of these points and sizes cannot be drawn",
                  static_cast<int>(kind.size()), kind.data());
        return false;
    }
    const StrokeScope scope(*this);
    if (!scope) {
        return false;
    }
    _lineRenderRect = _subLineRenderRect = _tempRect = QRectF();
    if (needRepeatedlyRender()) {
        _subLineRenderRect = drawRuns(dabsOnShape(onBuffer, *_subLineParaObj), ESRenderTypeSubLine);
        _tempRect = _subLineRenderRect;
    }
    const QRectF drawn = drawRuns(mainRuns, mainLayer());
    mergeRect(mainRect(), drawn);
    mergeRect(_tempRect, drawn);
    updateImage(online);
    return true;
}

QRectF QDDrawCanvas::drawRuns(const std::vector<std::vector<LPPoint>>& runs, ESRenderType layer) {
    ESLineRender& render = layer == ESRenderTypeSubLine  ? *_subRender
                           : layer == ESRenderTypeSmudge ? *_smudgeRender
                                                         : *_extenRender;
    QRectF touched;
    for (const std::vector<LPPoint>& run : runs) {
        render.resetLineProporty();  // each is a stroke of its own: no direction leads from one to the next
        mergeRect(touched, drawRun(run.data(), run.size(), layer));
    }
    return touched;
}
