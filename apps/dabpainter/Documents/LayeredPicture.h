// SPDX-License-Identifier: MIT
// A picture of layers as a value: what files of such pictures hold, and a canvas can show.
#pragma once

#include <QColor>
#include <QImage>
#include <QPoint>
#include <QSize>
#include <vector>

#include "History/LayerSettings.h"

class QDDrawCanvas;

namespace dabcanvas::dabpainter {

struct PictureLayer {
    LayerSettings settings;
    QPoint at;     // where its picture lies, from the top left corner, in pixels
    QImage image;  // null: nothing is on it
};

struct LayeredPicture {
    QSize size;
    std::vector<PictureLayer> layers;  // the lowest one first
    int active = 0;
    QColor paper;   // what the lowest layer is erased to; transparent: to nothing; invalid: not told
    QImage merged;  // what all of them look like together; null where nobody has put them together
};

// Of the canvas that it takes, in bits a channel.
int depthOf(const LayeredPicture& picture);
// False where a layer cannot be read, for want of memory.
bool readLayers(QDDrawCanvas& canvas, LayeredPicture& picture);
// The canvas's layers become these. False where there is no memory for them.
bool showLayers(const LayeredPicture& picture, QDDrawCanvas& canvas);

}  // namespace dabcanvas::dabpainter
