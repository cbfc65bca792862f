// SPDX-License-Identifier: MIT
// Nothing for embedders.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

namespace dabcanvas {

// Decodes the images of one preset. A few bytes can claim a picture of a hundred megabytes, and a file may hold
// thousands of them; so together they may only have as many pixels as the largest canvas, and no more than so many
// bytes can hold.
class PresetImages {
public:
    static constexpr qint64 kMostPixels = qint64{1} << 28;
    // What deflate makes of one byte at most, 1032 bytes, holds this many pixels of a bit; other formats pack tighter,
    // which is why some pixels are free.
    static constexpr qint64 kPixelsPerByte = 1032 * 8, kFreePixels = qint64{1} << 22;

    explicit PresetImages(qint64 mostPixels = kMostPixels) : _most(mostPixels) {}

    // Null for no data, and, with a problem, for data that is no image or one too many. Logs nothing.
    QImage read(const QByteArray& data);
    // What was wrong with the last one, as "is not ..."; else empty.
    const QString& problem() const { return _problem; }

private:
    bool take(const QSize& size);

    qint64 _most, _held = kFreePixels, _taken = 0;  // pixels
    QString _problem;
};

}  // namespace dabcanvas
