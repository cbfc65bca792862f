// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <cstdint>
#include <memory>

#include "ESRender/Utilities/ESProgram.h"
#include "Maths/Export.h"

/// One entry of a renderer's program cache: a linked program and the sources it was built from.
/// The context must be current when an entry goes.
class DABCANVAS_RENDER_API ESProgromObject {
public:
    ESProgromObject() = default;
    /// Deliberate: validates the program one last time before letting go of it.
    ~ESProgromObject();
    ESProgromObject(const ESProgromObject&) = delete;
    ESProgromObject& operator=(const ESProgromObject&) = delete;

    std::shared_ptr<ESProgram> program() const { return _program; }
    void setProgram(std::shared_ptr<ESProgram> program) { _program = std::move(program); }
    const QString& vertexShaderString() const { return _vertexShaderString; }
    void setVertexShaderString(const QString& text) { _vertexShaderString = text; }
    const QString& fragmentShaderString() const { return _fragmentShaderString; }
    void setFragmentShaderString(const QString& text) { _fragmentShaderString = text; }

    /// Free for the owner's use; the cache reads neither.
    std::int32_t blendType() const { return _blendType; }
    void setBlendType(std::int32_t blendType) { _blendType = blendType; }
    const QString& key() const { return _key; }
    void setKey(const QString& key) { _key = key; }

private:
    std::int32_t _blendType = 0;
    std::shared_ptr<ESProgram> _program;
    QString _vertexShaderString;
    QString _fragmentShaderString;
    QString _key;
};
