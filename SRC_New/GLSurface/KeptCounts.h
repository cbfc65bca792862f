// SPDX-License-Identifier: MIT
// How often paint that was blended onto a tile of a picture was kept, for programs that round by it: composites of one
// stroke round alike, the next stroke's otherwise, and strokes elsewhere change nothing.
//
// Owns     a texture, made when it is first needed. The context must be current to use and destroy it.
#pragma once

#include <epoxy/gl.h>

#include <cstdint>
#include <vector>

#include "Maths/Rect.h"

namespace dabcanvas {

class KeptCounts {
public:
    explicit KeptCounts(const Size& picture);
    ~KeptCounts();
    KeptCounts(const KeptCounts&) = delete;
    KeptCounts& operator=(const KeptCounts&) = delete;

    void blended(const Rect& rect);
    // Counts the tiles of which something was blended onto since they were last.
    void kept(const Rect& rect);
    // Of tiles that lie in the rectangle with all their pixels.
    void forget(const Rect& rect);

    // One texel a tile, the top row first, its red the count over 255. On the unit, which is active then.
    GLuint textureOn(GLenum unit);

private:
    struct Tile {
        std::uint8_t times = 0;
        bool isBlended = false;
    };
    template <typename Visit>
    void forEachTile(const Rect& rect, Visit&& visit);

    Size _picture;
    int _columns, _rows;
    std::vector<Tile> _tiles;
    GLuint _texture = 0;
    bool _isSent = false;
};

}  // namespace dabcanvas
