// SPDX-License-Identifier: MIT
// OpenRaster pictures, .ora: a ZIP archive of a PNG file for each layer, and of what all of them look like together.
//
// Pixels   8 bits a channel, or 16; those of our own files come back as they were.
// Thread   any; pictures are values.
// Errors   in words for the user, empty for none; nothing is thrown.
#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>

#include "Documents/LayeredPicture.h"

namespace dabcanvas::dabpainter {

struct ReadRaster {
    LayeredPicture picture;
    QString fault;    // why it is not read: a part of it is missing, damaged or beyond reason
    QString warning;  // what looks another way than where it was made
};

// A device that can seek. Not with `merged`, which readMerged() reads.
ReadRaster readOpenRaster(QIODevice& device);
// What all of its layers look like together; null where it is not in there.
QImage readMerged(QIODevice& device);

QString writeOpenRaster(const LayeredPicture& picture, QByteArray& bytes);

}  // namespace dabcanvas::dabpainter
