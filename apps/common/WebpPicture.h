// SPDX-License-Identifier: MIT
// Still pictures as WebP, by libwebp, so that they need no plug-in of Qt's.
//
// Errors   null or empty: where it was not there to build with, for what is none, and for animations.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

namespace dabcanvas {

bool hasWebp();

// Every pixel as it is; but sides of more than 16383 pixels are none of WebP's.
QByteArray encodeWebp(const QImage& image);

// Of what the bytes begin with; invalid for any other kind.
QSize webpSize(const QByteArray& bytes);
QImage decodeWebp(const QByteArray& bytes);

}  // namespace dabcanvas
