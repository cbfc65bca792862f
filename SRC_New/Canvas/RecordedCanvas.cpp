// SPDX-License-Identifier: MIT
#include "Canvas/RecordedCanvas.h"

#include <cstdio>
#include <new>
#include <utility>

#include "Surface/DepthRows.h"

namespace dabcanvas {
namespace {

constexpr PictureId kPicture = PictureId::first;

// Beyond this share of the canvas everything is read at once.
constexpr std::int64_t kMostTiles = 2;

}  // namespace

QByteArray bytesOf(qsizetype size) {
    try {
        return QByteArray(size, '\0');
    } catch (const std::bad_alloc&) {
        return {};
    }
}

void tellNoMemory(int line) {
    std::printf("创建数据失败(%s:%d)!", "SRC_New/QDEAGLView/QDDrawView", line);
}

PixelView RecordedCanvas::rowsOf(const QByteArray& data) const {
    const auto* const bytes = reinterpret_cast<const std::uint8_t*>(data.constData());
    for (const int pixelBytes : {4, _layers.surface().pixelBytes()}) {
        if (data.size() == pixels() * pixelBytes) {
            return PixelView::bottomRowFirst(bytes, _layers.size(), pixelBytes);
        }
    }
    return {};
}

QByteArray RecordedCanvas::inBytes(const QByteArray& data) const {
    const PixelView rows = rowsOf(data);
    if (rows.isNull() || rows.pixelBytes == 4) {
        return data;
    }
    QByteArray bytes = bytesOf(pixels() * 4);
    if (!bytes.isNull()) {
        auto* const to = reinterpret_cast<std::uint8_t*>(bytes.data());
        roundRows(rows, MutablePixelView::bottomRowFirst(to, rows.size), 0, 0);
    }
    return bytes;
}

MutablePixelView RecordedCanvas::rowsOfCanvas(QByteArray& data) const {
    return MutablePixelView::bottomRowFirst(reinterpret_cast<std::uint8_t*>(data.data()), _layers.size(),
                                            _layers.surface().pixelBytes());
}

void RecordedCanvas::take(const QByteArray& data) {
    _data = data;
    _isCanvas = true;
    _given = false;
    _layers.surface().forgetTouched(kPicture);
}

void RecordedCanvas::give(const QByteArray& data) {
    _data = data;
    _isCanvas = false;
    _given = hasCanvasSize();
}

bool RecordedCanvas::takeGiven() {
    return std::exchange(_given, false);
}

QByteArray RecordedCanvas::snapshot(int line) {
    QByteArray data = bytesOf(bytesOfCanvas());
    if (data.isNull()) {
        tellNoMemory(line);
        return {};
    }
    return _layers.read(_layers.whole(), rowsOfCanvas(data)) ? data : QByteArray();
}

void RecordedCanvas::refresh(int line) {
    if (_isCanvas && _data.size() == bytesOfCanvas() && refreshTiles()) {
        _given = false;
        return;
    }
    if (_layers.isLost()) {
        return;  // what was last recorded is all there is
    }
    _data = {};  // before there is a second one
    const QByteArray data = snapshot(line);
    take(data);
    _isCanvas = !data.isNull();
}

bool RecordedCanvas::refreshTiles() {
    _layers.flush();
    std::int64_t area = 0;
    const TileSet& touched = _layers.surface().touched(kPicture);
    touched.forEachRun([&](const Rect& run) { area += run.area(); });
    if (area == 0) {
        return true;
    }
    if (area * kMostTiles > _layers.whole().area()) {
        return false;
    }
    try {
        _data.detach();  // from the history, which keeps it as a step
    } catch (const std::bad_alloc&) {
        return false;
    }
    const MutablePixelView rows = rowsOfCanvas(_data);
    bool all = true;
    touched.forEachRun([&](const Rect& run) { all = _layers.read(run, rows.part(run)) && all; });
    if (all) {
        _layers.surface().forgetTouched(kPicture);
    }
    return all;
}

bool RecordedCanvas::restore(const Rect& area) {
    const PixelView rows = rowsOf(_data);
    return !rows.isNull() && (area.isEmpty() || _layers.restore(area, rows.part(area)));
}

}  // namespace dabcanvas
