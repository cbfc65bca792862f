// SPDX-License-Identifier: MIT
#include "Selection/SelectionEditor.h"

#include <QPainter>
#include <utility>

#include "Canvas/CanvasLayers.h"
#include "Canvas/QDDrawCanvas.h"

namespace dabcanvas::dabpainter {

SelectionEditor::SelectionEditor(QObject* parent) : QObject(parent) {}

SelectionEditor::~SelectionEditor() = default;

void SelectionEditor::setCanvas(QDDrawCanvas* canvas) {
    _area = {};
    end();
    _canvas = canvas;
    tellChanged();
}

void SelectionEditor::tellChanged() {
    if (_canvas && !_float)
        _canvas->setSelection(_area);
    emit changed();
}

QRect SelectionEditor::canvasRect() const {
    return _canvas ? QRect(QPoint(), _canvas->bufferSize().toSize()) : QRect();
}

// ---- The area

QPainterPath SelectionEditor::shownArea() const {
    return _float && _float->isLifted() ? _float->moved().map(_area) : _area;
}

void SelectionEditor::select(const QPainterPath& area, AreaMode mode) {
    settle();
    _area = joinedArea(_area, area, mode, canvasRect().size());
    tellChanged();
}

void SelectionEditor::selectAll() {
    select(rectangleArea(QPointF(), QPointF(canvasRect().width(), canvasRect().height())), AreaMode::replace);
}

void SelectionEditor::selectNone() {
    select({}, AreaMode::replace);
}

void SelectionEditor::invert() {
    settle();
    const QPainterPath selected = std::exchange(_area, {});
    selectAll();
    if (!selected.isEmpty())
        select(selected, AreaMode::takeAway);
}

// ---- The picture that floats

bool SelectionEditor::mayChange() {
    if (!_canvas || _canvas->isContextLost())
        return false;
    const CanvasLayers layers = _canvas->layers();
    if (!layers.settings(layers.active()).isVisible)
        emit refused(tr("The layer is hidden"));
    return layers.settings(layers.active()).isVisible;
}

void SelectionEditor::begin(std::unique_ptr<LayerFloat> made) {
    _float = std::move(made);
    _look = std::make_unique<FloatLook>(*_canvas, *_float);
    emit floats(true);
    emit changed();
}

void SelectionEditor::end() {
    const bool was = _look != nullptr;
    _look.reset();
    _float.reset();
    if (was)
        emit floats(false);
}

// Null, and the user is told why, where that cannot be.
std::unique_ptr<LayerFloat> SelectionEditor::lifted() {
    if (_area.isEmpty() || !mayChange())
        return nullptr;
    auto lifted = LayerFloat::lifted(*_canvas, _area, _paper);
    if (!lifted)
        emit refused(tr("Nothing of this layer is selected"));
    return lifted;
}

bool SelectionEditor::lift() {
    if (!_float) {
        if (auto made = lifted())
            begin(std::move(made));
    }
    return _float != nullptr;
}

bool SelectionEditor::place(const QImage& picture, const QRectF& part) {
    settle();
    if (picture.isNull() || !mayChange())
        return false;
    QSizeF size = picture.size();
    const QSizeF most = canvasRect().size();
    if (size.width() > most.width() || size.height() > most.height())
        size.scale(most, Qt::KeepAspectRatio);
    const QSize whole = size.toSize().expandedTo(QSize(1, 1));
    const QPointF corner = part.center() - QPointF(whole.width(), whole.height()) / 2;
    auto placed = LayerFloat::placed(*_canvas, picture, corner.toPoint());
    if (!placed)
        return false;
    if (whole != picture.size()) {
        const QPointF end = corner.toPoint() + QPointF(whole.width(), whole.height());
        placed->picture().stretch({1, 1}, end, {});
    }
    _area = {};
    begin(std::move(placed));
    return true;
}

void SelectionEditor::change(const FloatingPicture& to) {
    if (!_float)
        return;
    _float->picture() = to;
    emit changed();
}

void SelectionEditor::nudge(QPoint by) {
    if (!lift())
        return;
    FloatingPicture to = _float->picture();
    to.moveBy(by);
    change(to);
}

void SelectionEditor::settle() {
    if (!_float)
        return;
    if (!_float->putDown()) {
        emit refused(tr("The canvas takes no picture now; the log says why."));
        return;  // it stays where it is
    }
    _area = joinedArea({}, shownArea(), AreaMode::replace, canvasRect().size());
    end();
    tellChanged();
}

void SelectionEditor::giveUp() {
    end();
    tellChanged();
}

// ---- Of what floats, or is selected, or all of the layer

QImage SelectionEditor::cut(const QImage& picture) const {
    if (_area.isEmpty() || picture.isNull())
        return picture;
    const QRect pixels = pixelsOf(_area) & picture.rect();
    QImage part = picture.copy(pixels);
    QPainter painter(&part);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.drawImage(0, 0, coverageOf(_area, pixels));
    return part;
}

QImage SelectionEditor::copied() const {
    if (_float)
        return _float->picture().drawn(_float->picture().bounds());
    return _canvas ? cut(_canvas->image()) : QImage();
}

QImage SelectionEditor::copiedOfAll() const {
    return _canvas ? cut(_canvas->layers().flattened()) : QImage();
}

bool SelectionEditor::remove() {
    if (!_float && _area.isEmpty())
        return false;
    const auto gone = _float ? std::move(_float) : lifted();
    if (gone && gone->isCopy())
        emit refused(tr("The layer's alpha is locked"));
    else if (gone)
        gone->drop();
    end();
    tellChanged();
    return true;
}

QRegion SelectionEditor::seenRegion() const {
    return _float ? _float->changes() : QRegion();
}

QImage SelectionEditor::seenIn(QImage picture) {
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    for (const QRect& rect : seenRegion())
        painter.drawImage(rect.topLeft(), _look->look(rect));
    return picture;
}

}  // namespace dabcanvas::dabpainter
