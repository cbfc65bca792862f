// SPDX-License-Identifier: MIT
// The layers: drawing into them, putting them onto the canvas, clearing, and reading the canvas back.
#include <algorithm>
#include <utility>

#include "QDEAGLView/CanvasRects.h"
#include "QDEAGLView/LeafDrawing.h"
#include "QDEAGLView/QDDrawCanvasScopes.h"

using dabcanvas::dabOf;
using dabcanvas::isZero;
using dabcanvas::mergeRect;

namespace {

// Rectangles that wait where nobody looks at the canvas and they cannot be merged.
constexpr std::size_t kMostPending = 1024;

double areaOf(const QRectF& rect) {
    return rect.width() * rect.height();
}

}  // namespace

// ---- Drawing into a layer

QRectF QDDrawCanvas::drawPoints(const LPPoint* points, std::size_t count, ESRenderType layer) {
    const Call call(*this);
    if (!finishPreview()) {
        return {};
    }
    return dabcanvas::roundedRect(drawRun(points, count, layer));
}

// Returns the whole pixels that the run touched.
QRectF QDDrawCanvas::drawRun(const LPPoint* points, std::size_t count, ESRenderType layer) {
    if (points == nullptr || layer < ESRenderTypeCanvas || layer >= kRenderTypeCount) {
        return {};
    }
    const ESCurrentScope current(*_esContext);
    if (!current) {
        return {};
    }
    const StageTimer timer(*this, Stage::drawing);
    if (layer == ESRenderTypeSmudge) {
        return drawSmudges(points, count);
    }
    ESLineRender* render = layer == ESRenderTypeLine ? _extenRender.get() : _subRender.get();
    const std::uint64_t before = render->dabsDrawn();
    if (layer == ESRenderTypeCanvas) {
        compositePending();  // which lies below
    }
    _esContext->beginRenderForType(layer);
    _esContext->setBlendModelForType(ESRenderTypeLine);
    const QRectF touched = render->drawPoints(points, count);
    _esContext->finishRender();
    _stats.dabs += render->dabsDrawn() - before;
    const QRectF covered = touched.toAlignedRect();
    if (layer == ESRenderTypeCanvas) {
        _edited = true;
        mergeRect(_drawRect, covered);
        mergeRect(_updateRect, covered);
        noteChanged(covered);
    } else {
        mergeRect(_layerContent[layer], covered);
    }
    return covered;
}

QRectF QDDrawCanvas::drawPoints(const LPPoint* points, std::size_t count) {
    const Call call(*this);
    if (!finishPreview()) {
        return {};
    }
    _tempRect = drawRun(points, count, ESRenderTypeLine);
    mergeRect(_lineRenderRect, _tempRect);
    return _tempRect;
}

QRectF QDDrawCanvas::drawPoint(QPointF point, float size) {
    const LPPoint dab{
        {static_cast<float>(point.x()), static_cast<float>(point.y())}, size, {1.0f, 1.0f, 1.0f}};
    return drawPoints(&dab, 1);
}

// ---- Putting a layer onto the canvas

void QDDrawCanvas::updateImage(bool online) {
    updateImage(online, isSmudgeType());
}

void QDDrawCanvas::updateImage(bool online, bool smudge) {
    const Call call(*this);
    if (isContextLost()) {
        return;
    }
    _edited = true;
    if (_tempRect.width() <= 0 || _tempRect.height() <= 0) {
        return;
    }
    mergeRect(_drawRect, _tempRect);
    if (smudge != _pendingSmudge) {
        compositePending();
        _pendingSmudge = smudge;
    }
    if (_pending.size() >= kMostPending) {
        compositePending();
    }
    mergeRect(_strokeRect, _tempRect);
    mergeRect(_updateRect, _tempRect);
    // The composite itself waits until the canvas is looked at: its pixels depend on the layer alone, and
    // every change of target makes the driver draw what it had gathered. Rectangles that overlap become one,
    // which composites the same pixels, except where replacing would clear what lies between them.
    if (!_pending.empty() && _mayMergePending && _esRender->blendType() != ESBlendTypeReplace) {
        QRectF& last = _pending.back();
        const QRectF both = last.united(_tempRect);
        if (areaOf(both) <= areaOf(last) + areaOf(_tempRect)) {
            last = both;
        } else {
            _pending.push_back(_tempRect);
        }
    } else {
        _pending.push_back(_tempRect);
    }
    noteChanged(_tempRect);
    if (online) {
        redisplayBufferRect(_tempRect);
    }
}

// Before a setting that composites depend on changes: what was drawn so far shows the old value, and what
// follows may no longer touch more than it drew.
void QDDrawCanvas::settleDrawn() {
    compositePending();
    if (!isZero(_layerContent[ESRenderTypeLine]) || !isZero(_layerContent[ESRenderTypeSubLine])) {
        _mayMergePending = false;
    }
}

void QDDrawCanvas::compositePending() {
    if (_pending.empty()) {
        return;
    }
    const ESCurrentScope current(*_esContext);
    if (!current) {
        return;
    }
    const StageTimer timer(*this, Stage::compositing);
    _esContext->beginRenderForType(ESRenderTypeCanvas);
    for (const QRectF& rect : _pending) {
        _pendingSmudge ? compositeSmudge(rect) : compositeRect(rect);
    }
    _esContext->finishRender();
    _pending.clear();
}

// Draws one rectangle in the present blend mode into the canvas target, which is current.
void QDDrawCanvas::compositeRect(const QRectF& rect) {
    // The program has mixed source and background already: its result replaces what is there.
    _esContext->setBlendWithSCFactor(GL_ONE, GL_ZERO, GL_ONE, GL_ZERO);
    ESImageRender& render = *_esRender;
    render.setFlipX(false);
    render.setFlipY(true);
    render.setUseLargeTexture(false);
    render.setRadian(0);
    render.setOpacity(_brush.opacity);
    render.setFlow(_brush.flow);
    render.setRoundness(static_cast<float>(rect.height() / rect.width()));
    const LPPoint dab = dabOf(rect);
    render.drawPoints(&dab, 1);
}

void QDDrawCanvas::resetWithRenderRect(const QRectF& area) {
    const Call call(*this);
    const QRectF rect = area & QRectF(QPointF(0, 0), bufferSize());
    if (!(rect.width() > 0 && rect.height() > 0)) {
        return;  // nothing of it is on the canvas
    }
    const ESCurrentScope current(*_esContext);
    if (!current) {
        return;
    }
    compositePending();
    _esContext->beginRenderForType(ESRenderTypeCanvas);
    const std::uint32_t blendType = _esRender->blendType();
    if (blendType != ESBlendTypeReset) {
        _esRender->setBlendType(ESBlendTypeReset);
    }
    compositeRect(rect);
    if (blendType != ESBlendTypeReset) {
        _esRender->setBlendType(blendType);
    }
    _esContext->finishRender();
    noteChanged(rect);
    redisplayBufferRect(rect);
}

void QDDrawCanvas::updateBGImage(const QByteArray& mark) {
    const Call call(*this);
    const ESCurrentScope current(*_esContext);
    if (!current) {
        return;
    }
    settleSketch();
    compositePending();
    const StageTimer timer(*this, Stage::compositing);
    _esContext->beginRenderForType(ESRenderTypeCanvas);
    if (!isZero(_updateRect)) {
        _esRender->updateBGTextureAtOrigin(_updateRect.topLeft(), _updateRect.size(), GL_TEXTURE3);
    }
    _updateRect = QRectF();
    _mayMergePending = true;
    if (mark.isNull() && _brush.enableRecogition) {
        refreshImageData(kBackgroundLine);  // a step that was recorded has the picture already
    }
}

// ---- Clearing

void QDDrawCanvas::clearLayer(ESRenderType layer, QRectF& rect) {
    if (isZero(rect)) {
        return;  // nothing was drawn there
    }
    const ESCurrentScope current(*_esContext);
    if (!current) {
        return;
    }
    compositePending();
    _esContext->beginRenderForType(layer);
    rect = QRectF();
    if (layer == ESRenderTypeSmudge) {
        mergeRect(_smudgeStale, QRectF(QPointF(0, 0), bufferSize()));
    } else {
        // Only where something was drawn, so that ending a stroke costs the same on any canvas.
        _esContext->scissorRect(std::exchange(_layerContent[layer], QRectF()));
    }
    _esRender->clear();
    _esContext->finishRender();
}

void QDDrawCanvas::clearExtenBuffer() {
    clearLayer(ESRenderTypeLine, _lineRenderRect);
}

void QDDrawCanvas::clearSubBuffer() {
    clearLayer(ESRenderTypeSubLine, _subLineRenderRect);
}

// All that they hold, not just what the present stroke's lines drew there: a sub-line may have been switched off in the
// middle of the stroke.
void QDDrawCanvas::emptyLineLayers() {
    mergeRect(_lineRenderRect, _layerContent[ESRenderTypeLine]);
    mergeRect(_subLineRenderRect, _layerContent[ESRenderTypeSubLine]);
    clearExtenBuffer();
    clearSubBuffer();
}

void QDDrawCanvas::clearSmudgeBuffer() {
    clearLayer(ESRenderTypeSmudge, _smudgeRenderRect);
}

void QDDrawCanvas::clear() {
    if (isContextLost()) {
        return;
    }
    const QSizeF frame = shownFrame().size();
    const QRectF whole(0, 0, frame.width() / scale().width(), frame.height() / scale().height());
    _lineRenderRect = _subLineRenderRect = _smudgeRenderRect = whole;
    std::fill(std::begin(_layerContent), std::end(_layerContent), QRectF(QPointF(0, 0), bufferSize()));
    clearOnline(true);
}

void QDDrawCanvas::clearOnline(bool online) {
    clearWithColor({}, online);
}

void QDDrawCanvas::clearWithColor(const ESColor& color, bool online) {
    const Call call(*this);
    if (!finishPreview() || isContextLost()) {
        return;
    }
    setEdited(true);
    _pending.clear();  // it would be cleared at once
    emptyLineLayers();
    clearSmudgeBuffer();
    clearESBufferWithColor(color, online);
}

void QDDrawCanvas::clearESBufferOnline(bool online) {
    clearESBufferWithColor({}, online);
}

void QDDrawCanvas::clearESBufferWithColor(const ESColor& color, bool online) {
    const Call call(*this);
    {
        const ESCurrentScope current(*_esContext);
        if (!current) {
            return;
        }
        settleSketch();
        _pending.clear();
        _esContext->beginRenderForType(ESRenderTypeCanvas);
        const QRectF whole(QPointF(0, 0), bufferSize());
        mergeRect(_updateRect, whole);
        _drawRect = QRectF();
        if (color.componentCount() == 0) {
            _esRender->clear();
        } else {
            // Targets hold premultiplied colours.
            const float alpha = color.alpha();
            _esRender->clearWithRed(color.red() * alpha, color.green() * alpha, color.blue() * alpha, alpha);
        }
        if (online) {
            _esContext->finishRender();
        }
        noteChanged(whole);
    }
    redisplayAll();
    updateBGImage(autoMarked());
}

// ---- Reading and showing

QImage QDDrawCanvas::image() {
    const Call call(*this);
    if (!finishPreview()) {
        return {};
    }
    const ESCurrentScope current(*_esContext);
    if (!current) {
        return {};
    }
    compositePending();
    return _esContext->image();
}

const QImage& QDDrawCanvas::displayImage() {
    const QSize size = bufferSize().toSize();
    if (_displayImage.size() != size) {
        _displayImage = QImage(size, QImage::Format_RGBA8888_Premultiplied);
        _staleRect = QRect(QPoint(0, 0), size);
    }
    if (!_staleRect.isEmpty() && !_displayImage.isNull()) {
        const ESCurrentScope current(*_esContext);
        if (current) {
            compositePending();
            if (_esContext->updateImage(_displayImage, _staleRect)) {
                _staleRect = QRect();
            }
        }
    }
    return _displayImage;
}

void QDDrawCanvas::noteChanged(const QRectF& rect) {
    const QRect changed = rect.toAlignedRect() & QRect(QPoint(0, 0), bufferSize().toSize());
    _staleRect = _staleRect.united(changed);
    mergeRect(_smudgeStale, changed);
    mergeRect(_imageStale, changed);
}

void QDDrawCanvas::updateScaleInfo() {
    const QSizeF frame = shownFrame().size();
    const QSizeF buffer = bufferSize();
    if (!(frame.width() > 0 && frame.height() > 0)) {
        return;  // nothing is shown, and nothing could be scaled to it
    }
    _needScale = frame != buffer;
    _outScale = QSizeF(frame.width() / buffer.width(), frame.height() / buffer.height());
    if (_needScale) {
        _scale = _outScale;
    }
    _esContext->setViewSize(QSizeF(buffer.width() * scale().width(), buffer.height() * scale().height()));
}
