// SPDX-License-Identifier: MIT
#pragma once

#include <epoxy/gl.h>

#include <array>

namespace dabcanvas {

/// One uniform of a program: GL hears of a value only when it differs from the last one. Holds for as long as the
/// program stays the same and nobody else sets it; start anew, by locate(), when it is switched or was another's
/// meanwhile. Set with the program in use.
template <typename Value, std::size_t size>
class CachedUniform {
public:
    void locate(GLint location) {
        _location = location;
        _known = false;
    }

    template <typename... Component>
    void set(Component... components) {
        static_assert(sizeof...(components) == size);
        const std::array<Value, size> value{static_cast<Value>(components)...};
        if (_known && value == _value) {
            return;
        }
        _value = value;
        _known = true;
        upload();
    }

private:
    void upload() const;

    GLint _location = -1;
    bool _known = false;
    std::array<Value, size> _value{};
};

template <>
inline void CachedUniform<GLint, 1>::upload() const {
    glUniform1i(_location, _value[0]);
}
template <>
inline void CachedUniform<GLfloat, 1>::upload() const {
    glUniform1f(_location, _value[0]);
}
template <>
inline void CachedUniform<GLfloat, 2>::upload() const {
    glUniform2f(_location, _value[0], _value[1]);
}
template <>
inline void CachedUniform<GLfloat, 4>::upload() const {
    glUniform4f(_location, _value[0], _value[1], _value[2], _value[3]);
}

using UniformInt = CachedUniform<GLint, 1>;
using UniformFloat = CachedUniform<GLfloat, 1>;
using UniformVec2 = CachedUniform<GLfloat, 2>;
using UniformVec4 = CachedUniform<GLfloat, 4>;

}  // namespace dabcanvas
