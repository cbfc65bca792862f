// SPDX-License-Identifier: MIT
// How the item is drawn: as textures of the canvas's own pixels, which the scene graph zooms and turns, and as textures of
// what a QPainter makes of them where there is more to draw than the canvas, or no shaders to draw it with.
#include <QPainter>
#include <QSGClipNode>
#include <QSGRendererInterface>
#include <cmath>

#include "Quick/ItemDisplay.h"
#include "Quick/PictureTiles.h"
#include "Quick/ScenePart.h"

namespace dabcanvas {
namespace {

class CanvasNode : public QSGClipNode {
public:
    CanvasNode() : _corners(QSGGeometry::defaultAttributes_Point2D(), 4) {
        setIsRectangular(true);
        setGeometry(&_corners);
        for (TilesNode* part : {&picture, &preview}) {
            part->setFlag(QSGNode::OwnedByParent, false);
            appendChildNode(part);
        }
    }
    void clipTo(const QRectF& rect) {
        if (clipRect() != rect) {
            QSGGeometry::updateRectGeometry(&_corners, rect);
            setClipRect(rect);
            markDirty(DirtyGeometry);
        }
    }
    TilesNode picture, preview;

private:
    QSGGeometry _corners;
};

}  // namespace

bool CanvasItem::paintsInView() const {
    return !QSGRendererInterface::isApiRhiBased(window()->rendererInterface()->graphicsApi()) ||
           _display->hasGround() || !problem().isEmpty();
}

void CanvasItem::showAgain() {
    polish();
    update();
}

void CanvasItem::paintView(QPainter& painter) {
    const QRectF all(QPointF(), size());
    _display->paintCanvas(painter, all);
    if (LeafDrawing* preview = _display->preview()) {
        painter.save();
        painter.setClipRect(all);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.setTransform(_display->bufferToView(), true);
        if (!preview->shownArea().isEmpty()) {
            painter.setClipPath(preview->shownArea(), Qt::IntersectClip);
        }
        painter.drawImage(QRectF(QPointF(), _display->bufferSize()), preview->cgImage());
        painter.restore();
    }
    if (!_problems.isEmpty()) {
        const QString words = _problems.values().join(QLatin1Char('\n'));
        const QRectF least = all.adjusted(8, 8, -8, -8);
        constexpr int kLaidOut = Qt::AlignLeft | Qt::AlignBottom | Qt::TextWrapAnywhere;
        painter.fillRect(painter.boundingRect(least, kLaidOut, words).adjusted(-8, -4, 8, 4),
                         QColor(40, 40, 40, 200));
        painter.setPen(Qt::white);
        painter.drawText(least, kLaidOut, words);
    }
}

// Here rather than where nodes are made, as a canvas is not to be read on the thread that renders.
void CanvasItem::updatePolish() {
    takeViewSize();
    if (std::exchange(_scene->inView, paintsInView()) != _scene->inView) {
        _scene->picture.changeAll();
    }
    const double ratio = _display->viewPixelRatio();
    const auto inPicture = [](const QRect& area) { return QTransform::fromTranslate(-area.x(), -area.y()); };
    if (_scene->inView) {
        const QTransform dots = QTransform::fromScale(ratio, ratio);
        const bool isMoved = itemTransform(nullptr, nullptr).type() > QTransform::TxTranslate;
        _scene->pictureLook = {dots.inverted(), smooth() && isMoved, false};
        const QSizeF points = size() * ratio;
        const QSize pixels(int(std::ceil(points.width())), int(std::ceil(points.height())));
        _scene->picture.take(pixels, [&](const QRect& area) {
            QImage tile(area.size(), QImage::Format_ARGB32_Premultiplied);
            tile.fill(Qt::transparent);
            QPainter painter(&tile);
            painter.setTransform(dots * inPicture(area));
            paintView(painter);
            return tile;
        });
        _scene->preview.take({}, {});
        return;
    }
    const ItemDisplay::ShownPicture shown = _display->shownPicture();
    _scene->pictureLook = {shown.toView, shown.isSmooth, shown.isTurned};
    _scene->picture.take(shown.image.size(), [&](const QRect& area) { return shown.image.copy(area); });
    takePreview();
}

void CanvasItem::takePreview() {
    LeafDrawing* preview = _display->preview();
    if (preview == nullptr) {
        return _scene->preview.take({}, {});
    }
    const QImage& image = preview->cgImage();
    const QSizeF canvas = _display->bufferSize();
    const QTransform enlarged =
        QTransform::fromScale(canvas.width() / image.width(), canvas.height() / image.height());
    _scene->previewLook = {enlarged * _display->bufferToView(), true, false};
    _scene->preview.take(image.size(), [&](const QRect& area) {
        const QPainterPath& shown = preview->shownArea();
        if (shown.isEmpty()) {
            return image.copy(area);
        }
        QImage tile(area.size(), image.format());
        tile.fill(Qt::transparent);
        QPainter painter(&tile);
        painter.translate(-area.topLeft());
        painter.setClipPath(enlarged.inverted().map(shown));
        painter.drawImage(0, 0, image);
        return tile;
    });
}

QSGNode* CanvasItem::updatePaintNode(QSGNode* before, UpdatePaintNodeData*) {
    auto* node = before != nullptr ? static_cast<CanvasNode*>(before) : new CanvasNode;
    node->clipTo(QRectF(QPointF(), size()));
    const bool shows = node->picture.show(_scene->picture, _scene->pictureLook, *window());
    if (!node->preview.show(_scene->preview, _scene->previewLook, *window()) || !shows) {
        // The nodes of before went with their window.
        QMetaObject::invokeMethod(
            this,
            [this] {
                _scene->picture.changeAll();
                _scene->preview.changeAll();
                showAgain();
            },
            Qt::QueuedConnection);
    }
    return node;
}

// ---- What of it is to be made anew

void CanvasItem::viewIsStale(const QRectF& viewRect) {
    if (_scene->inView) {
        const double ratio = _display->viewPixelRatio();
        _scene->picture.change(QRectF(viewRect.topLeft() * ratio, viewRect.size() * ratio).toAlignedRect());
    }
    showAgain();
}

void CanvasItem::canvasIsStale(const QRect& pixels) {
    if (!_scene->inView && !_scene->picture.size().isEmpty()) {
        const double side = std::round(_display->bufferSize().width() / _scene->picture.size().width());
        _scene->picture.change(
            QRectF(pixels.x() / side, pixels.y() / side, pixels.width() / side, pixels.height() / side)
                .toAlignedRect());
    }
    showAgain();
}

void CanvasItem::previewIsStale(const QRectF& canvasPixels) {
    const QSize size = _scene->preview.size();
    if (_scene->inView) {
        return viewIsStale(_display->bufferToView().mapRect(canvasPixels).adjusted(-1, -1, 1, 1));
    }
    if (!size.isEmpty()) {
        const QSizeF canvas = _display->bufferSize();
        const QTransform reduced =
            QTransform::fromScale(size.width() / canvas.width(), size.height() / canvas.height());
        _scene->preview.change(reduced.mapRect(canvasPixels).toAlignedRect().adjusted(-1, -1, 1, 1));
    }
    showAgain();
}

}  // namespace dabcanvas
