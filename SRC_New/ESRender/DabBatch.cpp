// SPDX-License-Identifier: MIT
#include "ESRender/DabBatch.h"

#include "ESRender/VertexAttribute.h"

namespace dabcanvas {
namespace {

// Of the square's two triangles.
constexpr GLushort kOrder[] = {0, 1, 2, 0, 2, 3};

GLuint makeIndices(std::size_t squares, std::size_t corners) {
    std::vector<GLushort> indices;
    for (std::size_t square = 0; square < squares; ++square) {
        for (const GLushort corner : kOrder) {
            indices.push_back(static_cast<GLushort>(square * corners + corner));
        }
    }
    GLuint name = 0;
    glGenBuffers(1, &name);
    glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, name);
    glBufferData(GL_ELEMENT_ARRAY_BUFFER, static_cast<GLsizeiptr>(indices.size() * sizeof(GLushort)),
                 indices.data(), GL_STATIC_DRAW);
    return name;
}

}  // namespace

DabBatch::~DabBatch() {
    if (_indices != 0) {
        glDeleteBuffers(1, &_indices);
    }
}

void DabBatch::draw(const Locations& fields) {
    if (_vertices.empty()) {
        return;
    }
    if (_indices == 0) {
        _indices = makeIndices(kMostDabs, kCorners);
    }
    glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, _indices);  // the vertex array is shared with other batches
    for (std::size_t field = 0; field < kFields; ++field) {
        setVertexAttribute(fields[field], 4, sizeof(DabRecord), field * 4 * sizeof(float));
    }
    glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(_vertices.size() * sizeof(DabRecord)),
                 _vertices.data(), GL_STREAM_DRAW);
    glDrawElements(GL_TRIANGLES, static_cast<GLsizei>(_vertices.size() / kCorners * std::size(kOrder)),
                   GL_UNSIGNED_SHORT, nullptr);
}

}  // namespace dabcanvas
