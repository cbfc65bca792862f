// SPDX-License-Identifier: MIT
// A picture of the canvas as bytes: what strokes that are to be recognised are taken back to, and what undo steps are
// made of. Only the tiles that were touched are read anew.
//
// Bytes    premultiplied RGBA, bottom row first, rows without gaps; of as many bits as the surface's picture has. A host
//          may give 8 bits a channel.
#pragma once

#include <QByteArray>

#include "Canvas/PaintLayers.h"

namespace dabcanvas {

// Of the fixed message: where a sketch's canvas is recorded.
inline constexpr int kRecognitionLine = 699;

class RecordedCanvas {
public:
    explicit RecordedCanvas(PaintLayers& layers) : _layers(layers) {}

    // Empty for none; any bytes when a host gave them.
    const QByteArray& data() const { return _data; }
    qsizetype bytesOfCanvas() const { return pixels() * _layers.surface().pixelBytes(); }
    bool hasCanvasSize() const { return !rowsOf(_data).isNull(); }
    // A picture of the canvas, as bytes; null for any others.
    PixelView rowsOf(const QByteArray& data) const;
    // The same bytes, or such of 8 bits a channel in place of 16: what hosts are given.
    QByteArray inBytes(const QByteArray& data) const;

    // The canvas as it is.
    void take(const QByteArray& data);
    // Any other picture, as a host does; sketches are taken back to it, all of it, until it is read anew.
    void give(const QByteArray& data);
    // What was given is the canvas from now on: sketches are taken back where they drew.
    bool takeGiven();
    bool isGiven() const { return _given; }

    // Makes it the present canvas. Empty, after the fixed message of that line, without the memory.
    void refresh(int line);
    // The present canvas; null, after the fixed message of that line, without the memory, and without when the surface
    // is lost.
    QByteArray snapshot(int line);
    // Canvas and background become it there. False when it is none.
    bool restore(const Rect& area);

private:
    qsizetype pixels() const { return qsizetype{_layers.size().width} * _layers.size().height; }
    MutablePixelView rowsOfCanvas(QByteArray& data) const;
    bool refreshTiles();

    PaintLayers& _layers;
    QByteArray _data;
    bool _isCanvas = false;  // but for touched tiles it is the canvas's picture
    bool _given = false;
};

// A block of zeros; null when memory is short.
QByteArray bytesOf(qsizetype size);
void tellNoMemory(int line);

}  // namespace dabcanvas
