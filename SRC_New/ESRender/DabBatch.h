// SPDX-License-Identifier: MIT
// Dabs collected to be drawn by one call: four copies of each record, the corners of a square whose places the vertex
// program works out.
//
// Owns     an index buffer, made with the first call. The context must be current to draw and to destroy it.
#pragma once

#include <epoxy/gl.h>

#include <array>
#include <vector>

#include "ESRender/DabRecord.h"

namespace dabcanvas {

class DabBatch {
public:
    static constexpr std::size_t kMostDabs = 256;
    static constexpr std::size_t kFields = 7;  // four floats each
    using Locations = std::array<GLint, kFields>;

    DabBatch() = default;
    ~DabBatch();
    DabBatch(const DabBatch&) = delete;
    DabBatch& operator=(const DabBatch&) = delete;

    void add(const DabRecord& record) {
        _vertices.insert(_vertices.end(), kCorners, record);
        _mixesLevels |= record.more[0] > 0;
    }
    void clear() {
        _vertices.clear();
        _mixesLevels = false;
    }
    bool isEmpty() const { return _vertices.empty(); }
    // Some dab's tip is read at two levels.
    bool mixesLevels() const { return _mixesLevels; }
    bool isFull() const { return _vertices.size() >= kMostDabs * kCorners; }
    // Draws what was added, in its order, with the program, vertex array and array buffer that are bound.
    void draw(const Locations& fields);

private:
    static constexpr std::size_t kCorners = 4;

    std::vector<DabRecord> _vertices;
    bool _mixesLevels = false;
    GLuint _indices = 0;
};

}  // namespace dabcanvas
