// SPDX-License-Identifier: MIT
// What an item hands from the main thread to the one that renders.
#pragma once

#include "Quick/CanvasItem.h"
#include "Quick/PictureTiles.h"

namespace dabcanvas {

struct CanvasItem::Scene {
    bool inView = false;  // the picture is of the view's pixels, not of the canvas's
    PictureTiles picture, preview;
    TilesNode::Look pictureLook, previewLook;
};

}  // namespace dabcanvas
