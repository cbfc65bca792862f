// SPDX-License-Identifier: MIT
// A small image of a step that lies in a journal; nothing for embedders.
//
// Errors   throws std::bad_alloc, nothing else.
#pragma once

#include <QImage>

#include "History/JournalReader.h"

namespace dabcanvas {

// Premultiplied RGBA, the longer side up to `side` pixels, each the average of those below it. Null when a tile is lost.
QImage thumbnailOf(const JournalContents& contents, int step, int side);

}  // namespace dabcanvas
