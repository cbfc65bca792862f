// SPDX-License-Identifier: MIT
#include "Documents/CanvasArea.h"

#include <QRegion>
#include <algorithm>

#include "Canvas/CanvasLayers.h"
#include "Canvas/QDDrawCanvas.h"
#include "Documents/ImageFiles.h"
#include "Window/Translations.h"

namespace dabcanvas::dabpainter {

namespace {

// Where the old canvas begins in the new one.
int offsetOf(int now, int wanted, int anchor) {
    return (wanted - now) * anchor / 2;
}

// What is added to the lowest layer is paper.
bool addPaper(QDDrawCanvas& canvas, const QRegion& added, const QColor& paper) {
    QImage pixel(1, 1, QImage::Format_RGBA8888_Premultiplied);
    pixel.fill(paper);
    const int active = canvas.layers().active();
    bool isDone = canvas.layers().setActive(0);
    for (const QRect& part : added)
        isDone = isDone && canvas.setImageInBufferRect(pixel, part);
    return canvas.layers().setActive(active) && isDone;
}

QString couldNotBeHad(const QSize& size) {
    return tr("A canvas of %1 × %2 pixels cannot be had here.").arg(size.width()).arg(size.height());
}

}  // namespace

QRect areaOfSize(QSize now, QSize wanted, Anchor anchor) {
    const QPoint offset(offsetOf(now.width(), wanted.width(), anchor.column),
                        offsetOf(now.height(), wanted.height(), anchor.row));
    return QRect(-offset, wanted);
}

QRect drawnArea(const QImage& picture, const QColor& paper) {
    const QImage rows = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const bool isBare = !paper.isValid() || paper.alpha() == 0;
    const QRgb ground = isBare ? 0 : qPremultiply(paper.rgba());
    QRect drawn;
    for (int y = 0; y < rows.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(rows.constScanLine(y));
        const QRgb* const end = row + rows.width();
        const QRgb* const first = std::find_if(row, end, [ground](QRgb pixel) { return pixel != ground; });
        if (first == end)
            continue;
        const QRgb* last = end - 1;
        while (*last == ground)
            --last;
        drawn |= QRect(QPoint(int(first - row), y), QPoint(int(last - row), y));
    }
    return drawn;
}

QString takeArea(QDDrawCanvas& canvas, const QRect& area, const QColor& paper) {
    if (const QString refusal = sizeRefusal(area.width(), area.height()); !refusal.isEmpty())
        return refusal.left(1).toUpper() + refusal.mid(1) + QLatin1Char('.');
    const QRect old(QPoint(), canvas.bufferSize().toSize());
    if (area == old)
        return {};
    const bool marks = canvas.autoMark();
    canvas.setAutoMark(false);
    const QRegion added = QRegion(QRect(QPoint(), area.size())) - old.translated(-area.topLeft());
    const bool hasArea = canvas.setCanvasArea(area);
    const bool hasPaper =
        !hasArea || !paper.isValid() || paper.alpha() == 0 || addPaper(canvas, added, paper);
    if (hasArea)
        canvas.markAction();
    canvas.setAutoMark(marks);
    if (hasArea && !hasPaper)
        canvas.undo();
    return hasArea && hasPaper ? QString() : couldNotBeHad(area.size());
}

}  // namespace dabcanvas::dabpainter
