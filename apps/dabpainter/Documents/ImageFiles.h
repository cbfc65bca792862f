// SPDX-License-Identifier: MIT
// Pictures from and to files, in words for the user when it fails.
#pragma once

#include <QIODevice>
#include <QImage>
#include <QString>
#include <functional>

namespace dabcanvas::dabpainter {

// What a canvas may have: the layers behind it take about five times its own pixels' memory.
inline constexpr int kMostSide = 16384;
inline constexpr qint64 kMostPixels = qint64(1) << 27;

// Empty when a canvas of this size, in pixels, may be asked for; else why not.
QString sizeRefusal(qint64 width, qint64 height);

struct ReadImage {
    QImage image;   // upright as the file says, premultiplied RGBA; null on failure
    QString fault;  // why, naming the file
};

// The size is looked at before anything is decoded.
ReadImage readImageFile(const QString& path);

// Whether no pixel of it lets anything through.
bool isOpaque(const QImage& image);

// Of the kind that the suffix says; the file appears, or is replaced, only once it is whole. The fault, or nothing.
QString writeImageFile(const QString& path, const QImage& image);

}  // namespace dabcanvas::dabpainter
