// SPDX-License-Identifier: MIT
// Which kinds of pictures are written: those that Qt can write here, and WebP, told apart by the suffix of a file's name.
#pragma once

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QString>
#include <QStringList>

namespace dabcanvas {

// "bmp", "jpg", "png" and so on, in this order.
QStringList writtenPictureSuffixes();

// The message for a name whose suffix is of no kind that is written, naming those that are; else nothing. A name
// without a suffix means PNG, as does "-".
QString pictureKindRefusal(const QString& path);

// Whether a picture of that name keeps what can be seen through.
bool keepsAlpha(const QString& path);

// Encodes as the suffix says; the message when it cannot be done. Of a kind that may keep no transparency, on `ground`.
// WebP is lossless; JPEG's quality is Qt's own, or 0..100.
QString encodePicture(const QImage& image, const QString& path, QByteArray& bytes,
                      const QColor& ground = Qt::white, int jpegQuality = -1);

}  // namespace dabcanvas
