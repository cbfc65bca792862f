// SPDX-License-Identifier: MIT
// The smudge layer: it shows the canvas at half its resolution, smudge dabs are drawn into it, and what they changed
// is put onto the canvas. How much of a canvas pixel they exchanged stands in the line layer, at full resolution:
// what no dab covered is never touched.
#include <algorithm>
#include <iterator>
#include <utility>

#include "QDEAGLView/CanvasRects.h"
#include "QDEAGLView/QDDrawCanvasScopes.h"

using dabcanvas::dabOf;
using dabcanvas::isZero;
using dabcanvas::mergeRect;

namespace {

// Filtering between the two resolutions reaches this far, in buffer pixels.
constexpr double kReach = 4;
// The dabs of so many points, up to 64 each, are kept until what they cover is drawn.
constexpr std::size_t kMostPoints = 1024;

QRectF widened(const QRectF& rect, const QRectF& whole) {
    return rect.adjusted(-kReach, -kReach, kReach, kReach) & whole;
}

}  // namespace

void QDDrawCanvas::updateSmudgeBGTexture() {
    const ESCurrentScope current(*_esContext);
    if (!current) {
        return;
    }
    settleLayers();
    const QRectF whole(QPointF(0, 0), bufferSize());
    _smudgeRenderRect = whole;
    if (isZero(_smudgeStale)) {
        return;
    }
    const QRectF rect = widened(_smudgeStale, whole).toAlignedRect();
    _smudgeStale = QRectF();
    _esContext->beginRenderForType(ESRenderTypeSmudge);
    _esContext->setBlendWithSCFactor(GL_ONE, GL_ZERO, GL_ONE, GL_ZERO);
    _smudgeRender->setRoundness(static_cast<float>(rect.height() / rect.width()));
    const LPPoint dab = dabOf(rect);
    _smudgeRender->drawPoints(&dab, 1, ESSmudgeDrawShow, [&] {
        glActiveTexture(GL_TEXTURE7);
        glBindTexture(GL_TEXTURE_2D, _esRender->backgroundTexture());
        return bufferSize();
    });
    _smudgeRender->setRoundness(_brush.roundness);
    _smudgeRender->keepLayer(rect);
    _esContext->finishRender();
}

// As warmUp() does for the others, when a smudge brush is first chosen: two dabs without flow, the second of which picks
// up, and a look at where no dab was.
void QDDrawCanvas::warmUpSmudging() {
    if (std::exchange(_smudgeIsWarm, true)) {
        return;
    }
    const ESCurrentScope current(*_esContext);
    if (!current) {
        return;
    }
    const LPPoint dabs[] = {{{2, 2}, 4, {1, 1, 1}}, {{3, 2}, 4, {1, 1, 1}}};
    _esContext->beginRenderForType(ESRenderTypeSmudge);
    _smudgeRender->resetLineProporty();
    _smudgeRender->setFlow(0);
    _smudgeRender->drawPoints(dabs, std::size(dabs));
    _smudgeRender->setFlow(_brush.flow);
    _smudgeRender->resetLineProporty();
    _smudgeRender->takeCoverage();
    if (isZero(_layerContent[ESRenderTypeLine])) {
        _esContext->beginRenderForType(ESRenderTypeCanvas);
        compositeSmudge(QRectF(0, 0, 1, 1));
    }
    _esContext->finishRender();
}

// Draws a run of smudge dabs and returns the whole pixels that it may change on the canvas.
QRectF QDDrawCanvas::drawSmudges(const LPPoint* points, std::size_t count) {
    if (isZero(_layerContent[ESRenderTypeLine])) {
        updateSmudgeBGTexture();  // the first of a stroke
    }
    const std::uint64_t before = _smudgeRender->dabsDrawn();
    QRectF touched;
    for (std::size_t first = 0; first < count; first += kMostPoints) {
        _esContext->beginRenderForType(ESRenderTypeSmudge);
        _esContext->setBlendModelForType(ESRenderTypeLine);
        touched |= _smudgeRender->drawPoints(points + first, std::min(kMostPoints, count - first));
        _esContext->finishRender();

        _esContext->beginRenderForType(ESRenderTypeLine);
        _esContext->setBlendModelForType(ESRenderTypeLine);
        _extenRender->drawDabs(_smudgeRender->takeCoverage());
        _esContext->finishRender();
    }
    _stats.dabs += _smudgeRender->dabsDrawn() - before;
    if (touched.isEmpty()) {
        return {};
    }
    mergeRect(_layerContent[ESRenderTypeLine], touched.toAlignedRect());
    return widened(touched, QRectF(QPointF(0, 0), bufferSize())).toAlignedRect();
}

// Puts one rectangle of the smudge layer onto the canvas target, which is current.
void QDDrawCanvas::compositeSmudge(const QRectF& rect) {
    _esContext->setBlendWithSCFactor(GL_ONE, GL_ZERO, GL_ONE, GL_ZERO);
    _smudgeRender->setShowSources(_esContext->lineTexture(), _esRender->backgroundTexture());
    _smudgeRender->setRoundness(static_cast<float>(rect.height() / rect.width()));
    const LPPoint dab = dabOf(rect);
    _smudgeRender->drawPoints(&dab, 1, ESSmudgeDrawShow);
    _smudgeRender->setRoundness(_brush.roundness);
}
