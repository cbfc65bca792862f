// SPDX-License-Identifier: MIT
// Pictures within a text: PNG of the very bytes that a canvas takes of them.
#pragma once

#include <QByteArray>
#include <QImage>

#include "Recording/Problem.h"

namespace dabcanvas {

// Premultiplied pixels are written as if they were straight, which loses none of them: 16 bits a channel of
// RGBA64_Premultiplied, 8 of all else. Empty without the memory.
QByteArray embeddedPicture(const QImage& image);

// What was embedded, as such premultiplied pixels. Refused are pictures of more than `most` pixels, before anything is
// decoded.
Result<QImage> pictureEmbedded(const QByteArray& png, qint64 most);

}  // namespace dabcanvas
