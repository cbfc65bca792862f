// SPDX-License-Identifier: MIT
#include "Selection/LayerFloat.h"

#include <QPainter>
#include <algorithm>
#include <array>
#include <cstdint>

#include "Canvas/CanvasLayers.h"
#include "Canvas/QDDrawCanvas.h"
#include "Documents/ChangedPixels.h"
#include "Selection/SelectedArea.h"

namespace dabcanvas::dabpainter {

namespace {

// Premultiplied red, green, blue and alpha.
using Paper = std::array<int, 4>;

int times(int value, int part) {
    return (value * part + 127) / 255;
}

// Takes what is covered out of one into the other, row by row; both premultiplied RGBA.
void takeOut(QImage& from, QPoint corner, const QImage& coverage, const Paper& paper, bool keeps,
             QImage& into) {
    for (int y = 0; y < coverage.height(); ++y) {
        const std::uint8_t* cover = coverage.constScanLine(y);
        std::uint8_t* row = from.scanLine(corner.y() + y) + 4 * corner.x();
        std::uint8_t* out = into.scanLine(y);
        for (int x = 0; x < coverage.width(); ++x, ++cover, row += 4, out += 4) {
            const int alpha = times(row[3], *cover);
            for (std::size_t i = 0; i < 4; ++i) {
                out[i] = std::uint8_t(times(row[i], *cover));
                if (!keeps)
                    row[i] = std::uint8_t(std::clamp(row[i] - out[i] + times(paper[i], alpha), 0, 255));
            }
        }
    }
}

// What of it has paint; null for none.
QRect paintedPart(const QImage& image) {
    int left = image.width(), right = -1, top = image.height(), bottom = -1;
    for (int y = 0; y < image.height(); ++y) {
        const std::uint8_t* row = image.constScanLine(y);
        for (int x = 0; x < image.width(); ++x) {
            if (row[4 * x + 3] == 0)
                continue;
            left = std::min(left, x);
            right = std::max(right, x);
            top = std::min(top, y);
            bottom = y;
        }
    }
    return right < 0 ? QRect() : QRect(QPoint(left, top), QPoint(right, bottom));
}

}  // namespace

LayerFloat::LayerFloat(QDDrawCanvas& canvas, const FloatingPicture& picture)
    : _canvas(canvas),
      _picture(picture),
      _start(picture),
      _locksAlpha(canvas.layers().settings(canvas.layers().active()).locksAlpha),
      _layer(canvas.image()),
      _below(_layer) {}

std::unique_ptr<LayerFloat> LayerFloat::lifted(QDDrawCanvas& canvas, const QPainterPath& area,
                                               const QColor& paper) {
    const QRect pixels = pixelsOf(area) & QRect(QPoint(), canvas.bufferSize().toSize());
    if (pixels.isEmpty())
        return nullptr;
    QImage picture(pixels.size(), QImage::Format_RGBA8888_Premultiplied);
    auto made = std::unique_ptr<LayerFloat>(new LayerFloat(canvas, {picture, pixels.topLeft()}));
    if (made->_layer.isNull() || picture.isNull())
        return nullptr;
    const bool hasPaper = paper.isValid();
    const Paper leaves = hasPaper ? Paper{paper.red(), paper.green(), paper.blue(), 255} : Paper{};
    made->_keeps = made->_locksAlpha && !hasPaper;
    takeOut(made->_below, pixels.topLeft(), coverageOf(area, pixels), leaves, made->_keeps, picture);
    const QRect painted = paintedPart(picture);
    if (painted.isNull())
        return nullptr;
    // Handles stand around what there is.
    made->_picture = made->_start =
        FloatingPicture(picture.copy(painted), pixels.topLeft() + painted.topLeft());
    made->_hole = pixels;
    return made;
}

std::unique_ptr<LayerFloat> LayerFloat::placed(QDDrawCanvas& canvas, const QImage& picture, QPoint corner) {
    auto made = std::unique_ptr<LayerFloat>(
        picture.isNull() ? nullptr : new LayerFloat(canvas, FloatingPicture(picture, corner)));
    return made && !made->_layer.isNull() ? std::move(made) : nullptr;
}

QRegion LayerFloat::changes() const {
    const QRect hole = _hole & whole();
    const QRect over = _isDropped ? QRect() : _picture.bounds() & whole();
    return hole.intersects(over) ? QRegion(hole | over) : QRegion(hole) | over;
}

QPainter::CompositionMode LayerFloat::mode() const {
    return _locksAlpha ? QPainter::CompositionMode_SourceAtop : QPainter::CompositionMode_SourceOver;
}

QImage LayerFloat::layer(const QRect& area) const {
    if (isUnmoved() && !_isDropped)
        return _layer.copy(area);
    QImage image = _below.copy(area);
    const QRect over = _picture.bounds() & area;
    if (!over.isEmpty() && !_isDropped) {
        QPainter painter(&image);
        painter.setCompositionMode(mode());
        painter.drawImage(over.topLeft() - area.topLeft(), _picture.drawn(over));
    }
    return image;
}

bool LayerFloat::putDown() {
    return isUnmoved() || write();
}

bool LayerFloat::drop() {
    _isDropped = true;
    return write();
}

// As one step, however many places there are.
bool LayerFloat::write() {
    const QRegion region = changes();
    const bool marks = _canvas.autoMark();
    if (marks)
        _canvas.markAction();  // of what was drawn before
    _canvas.setAutoMark(false);
    bool isWritten = true;
    for (const QRect& rect : region)
        isWritten = isWritten && putChanged(_canvas, rect, _layer.copy(rect), layer(rect));
    _canvas.setAutoMark(marks);
    if (marks && !region.isEmpty())
        _canvas.markAction();
    return isWritten;
}

}  // namespace dabcanvas::dabpainter
