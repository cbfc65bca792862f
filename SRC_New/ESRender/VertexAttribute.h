// SPDX-License-Identifier: MIT
#pragma once

#include <epoxy/gl.h>

#include <cstddef>

namespace dabcanvas {

// Points a float attribute at its place in the bound array buffer's vertices of `stride` bytes and enables it. An
// attribute that a program has not, its location -1, is left alone.
inline void setVertexAttribute(GLint location, GLint components, std::size_t stride, std::size_t offset) {
    if (location >= 0) {
        const auto index = static_cast<GLuint>(location);
        glVertexAttribPointer(index, components, GL_FLOAT, GL_FALSE, static_cast<GLsizei>(stride),
                              reinterpret_cast<const void*>(offset));
        glEnableVertexAttribArray(index);
    }
}

}  // namespace dabcanvas
