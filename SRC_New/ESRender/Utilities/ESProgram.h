// SPDX-License-Identifier: MIT
#pragma once

#include <epoxy/gl.h>

#include <QAnyStringView>
#include <QByteArray>
#include <QHash>
#include <QString>
#include <memory>
#include <utility>

#include "Maths/Export.h"

/// One GLSL program with the vertex array and the array buffer it is drawn with.
///
/// Life     made unlinked, link() makes it usable; never rebuilt. Renderers may share one, see ProgramPool.
/// Owns     program, shaders, vertex array and buffer. The context must be current to make, use and destroy
///          it.
/// Errors   compile and link failures are logged and make link() return false.
class DABCANVAS_RENDER_API ESProgram {
public:
    /// Compiles and attaches both sources; the vertex array and the buffer stay bound. Never null: a failure
    /// shows in link(). A null text (not an empty one) means that there is no source.
    static std::unique_ptr<ESProgram> initWithVertexShaderString(const QString& vertexShaderString,
                                                                 const QString& fragmentShaderString);
    /// Sources by resource name without extension; "vsh" and "fsh" are added.
    static std::unique_ptr<ESProgram> initWithVertexShaderStringFragmentShaderFilename(
        const QString& vertexShaderString, const QString& fragmentShaderFilename);
    static std::unique_ptr<ESProgram> initWithVertexShaderFilename(const QString& vertexShaderFilename,
                                                                   const QString& fragmentShaderFilename);
    ~ESProgram();
    ESProgram(const ESProgram&) = delete;
    ESProgram& operator=(const ESProgram&) = delete;

    /// An empty hook: locations are whatever the linker assigns.
    void addAttribute(QAnyStringView attributeName);
    /// Links and, on success, lets go of the shaders; true at once when linked already. GL errors found are
    /// logged either way (a shader that failed to compile leaves one). False when a stage has no shader.
    bool link();
    /// Whether it is linked.
    bool initialized() const { return _initialized; }

    /// glUseProgram only; the vertex array is bound by bind().
    void use() const;
    /// Uses the program with its vertex array and its array buffer bound: ready to upload and draw.
    void bind() const;
    /// As glValidateProgram(): the log is to be asked for.
    void validate() const;

    /// For those who share it: whether somebody else was the last to draw with it, so that uniform values and vertices
    /// are another's. The caller is the last one from now on.
    bool passTo(const void* renderer) { return std::exchange(_lastRenderer, renderer) != renderer; }

    /// Locations, -1 when the linked program has no such name. GL is asked once a name; renderers keep what
    /// they get here and look nothing up per dab.
    GLint attributeIndex(QAnyStringView name);
    GLint uniformIndex(QAnyStringView name);

    /// Null texts when there is no log.
    /// Deliberate: the two shader logs query the program log of a shader's name and so normally give nothing;
    /// the compile log is printed when compiling.
    QString vertexShaderLog() const;
    QString fragmentShaderLog() const;
    QString programLog() const;

    GLuint programAddr() const { return _programAddr; }
    GLuint vertShaderAddr() const { return _vertShaderAddr; }  ///< 0 once linked
    GLuint fragShaderAddr() const { return _fragShaderAddr; }  ///< 0 once linked
    GLuint vertexArrayObject() const { return _vertexArrayObject; }
    GLuint vertexBuffer() const { return _vertexBuffer; }

private:
    using InfoFunction = void (*)(GLuint object, GLenum parameter, GLint* value);
    using LogFunction = void (*)(GLuint object, GLsizei maxLength, GLsizei* length, GLchar* log);

    ESProgram(const QString& vertexShaderString, const QString& fragmentShaderString);
    static bool compileShader(GLuint* shader, GLenum type, const QString& string);
    static QString logForOpenGLObject(GLuint object, InfoFunction infoCallback, LogFunction logFunc);

    QHash<QByteArray, GLint> _attributes;
    GLuint _vertexArrayObject = 0;
    GLuint _vertexBuffer = 0;
    QHash<QByteArray, GLint> _uniforms;
    GLuint _programAddr = 0;
    GLuint _vertShaderAddr = 0;
    GLuint _fragShaderAddr = 0;
    bool _initialized = false;
    const void* _lastRenderer = nullptr;  // to compare
};
