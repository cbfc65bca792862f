// SPDX-License-Identifier: MIT
// Pictures on the clipboard and dragged in, as this and other programs hand them over.
#pragma once

#include <QImage>
#include <QMimeData>
#include <memory>

#include "Documents/ImageFiles.h"

namespace dabcanvas::dabpainter {

// Whether there is a picture in it, or the name of a file that can be one; nothing is read.
bool hasPicture(const QMimeData& data);
// The first; without image and fault where there is none.
ReadImage pictureOf(const QMimeData& data);
// The caller's.
std::unique_ptr<QMimeData> mimeOf(const QImage& picture);

}  // namespace dabcanvas::dabpainter
