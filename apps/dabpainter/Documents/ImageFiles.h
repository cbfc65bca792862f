// SPDX-License-Identifier: MIT
// Pictures from and to files, in words for the user when it fails.
#pragma once

#include <QIODevice>
#include <QImage>
#include <QString>
#include <functional>

#include "Documents/LayeredPicture.h"

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
// The size is looked at before anything is decoded. Of a picture with layers, what all of them look like together.
ReadImage readImageFile(const QString& path);

struct ReadPicture {
    LayeredPicture picture;  // without `merged`
    QString fault;           // why there is none, naming the file
    QString warning;         // what looks another way than where it was made
    bool isPart = false;     // the file has more, such as the frames of an animation
};
// The same, with its layers.
ReadPicture readPictureFile(const QString& path);

// Whether a picture of that name keeps its layers.
bool keepsLayers(const QString& path);
// "ora", "png" and so on, those that lose least first.
QStringList savedSuffixes();

// Whether no pixel of it lets anything through.
bool isOpaque(const QImage& image);

// As the kind that the suffix says, whatever the path's own is; the file appears, or is replaced, only once it is whole. Of a
// kind without layers, `merged` is all that counts; on the paper where that kind is never transparent. The fault, or nothing.
QString writePictureFile(const QString& path, const QString& suffix, const LayeredPicture& picture);

}  // namespace dabcanvas::dabpainter
