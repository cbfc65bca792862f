// SPDX-License-Identifier: MIT
// A few threads of the process's own that share out work in pieces: tiles, say. They start when first needed, and sleep
// in between.
//
// Thread   any number at a time; while one's work is shared out, another's is done by its own thread alone.
// Errors   whatever a piece throws, once the others are done; the first one where it is several.
#pragma once

#include <cstddef>
#include <functional>

namespace dabcanvas {

class Workers {
public:
    // Calls piece(i) for every i below count, each once, on this thread and up to `most` - 1 others.
    static void share(std::size_t count, const std::function<void(std::size_t)>& piece);

    // How many threads work at most, the calling one included; as many as the processor has by itself.
    static void setMost(std::size_t most);
    static std::size_t most();
};

}  // namespace dabcanvas
