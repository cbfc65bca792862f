// SPDX-License-Identifier: MIT
#include "ESRender/Utilities/ESProgram.h"

#include <string>

#include "ESRender/Utilities/ESGLErrors.h"
#include "ESRender/Utilities/ESShaderTools.h"

namespace {
constexpr char kFile[] = "SRC_New/ESRender/Utilities/ESProgram";
constexpr int kLinkLine = 222;  // fixed: messages name the step, not the line it happens to stand on
}  // namespace

std::unique_ptr<ESProgram> ESProgram::initWithVertexShaderString(const QString& vertexShaderString,
                                                                 const QString& fragmentShaderString) {
    return std::unique_ptr<ESProgram>(new ESProgram(vertexShaderString, fragmentShaderString));
}

std::unique_ptr<ESProgram> ESProgram::initWithVertexShaderStringFragmentShaderFilename(
    const QString& vertexShaderString, const QString& fragmentShaderFilename) {
    return initWithVertexShaderString(
        vertexShaderString, ESShaderTools::readFile(fragmentShaderFilename + QLatin1String(".fsh")));
}

std::unique_ptr<ESProgram> ESProgram::initWithVertexShaderFilename(const QString& vertexShaderFilename,
                                                                   const QString& fragmentShaderFilename) {
    return initWithVertexShaderStringFragmentShaderFilename(
        ESShaderTools::readFile(vertexShaderFilename + QLatin1String(".vsh")), fragmentShaderFilename);
}

ESProgram::ESProgram(const QString& vertexShaderString, const QString& fragmentShaderString) {
    _programAddr = glCreateProgram();
    if (!compileShader(&_vertShaderAddr, GL_VERTEX_SHADER, vertexShaderString)) {
        qCWarning(lcDabcanvasGL, "Failed to compile vertex shader:\n%s", qUtf8Printable(vertexShaderLog()));
    }
    if (!compileShader(&_fragShaderAddr, GL_FRAGMENT_SHADER, fragmentShaderString)) {
        qCWarning(lcDabcanvasGL, "Failed to compile fragment shader:\n%s",
                  qUtf8Printable(fragmentShaderLog()));
    }
    // A stage without a source has no shader to attach; linking tells.
    if (_vertShaderAddr) {
        glAttachShader(_programAddr, _vertShaderAddr);
    }
    if (_fragShaderAddr) {
        glAttachShader(_programAddr, _fragShaderAddr);
    }
    glGenVertexArrays(1, &_vertexArrayObject);
    glBindVertexArray(_vertexArrayObject);
    glGenBuffers(1, &_vertexBuffer);
    glBindBuffer(GL_ARRAY_BUFFER, _vertexBuffer);
    glBindFragDataLocation(_programAddr, 0, "fragColor");
}

ESProgram::~ESProgram() {
    if (_vertShaderAddr) {
        glDeleteShader(_vertShaderAddr);
    }
    if (_fragShaderAddr) {
        glDeleteShader(_fragShaderAddr);
    }
    if (_programAddr) {
        glDeleteProgram(_programAddr);
    }
    glDeleteVertexArrays(1, &_vertexArrayObject);
    glDeleteBuffers(1, &_vertexBuffer);
}

bool ESProgram::compileShader(GLuint* shader, GLenum type, const QString& string) {
    if (string.isNull()) {
        // Deliberate: the same words for either stage.
        qCWarning(lcDabcanvasGL, "Failed to load vertex shader");
        return false;
    }
    const QByteArray utf8 = string.toUtf8();
    const GLchar* const source = utf8.constData();
    *shader = glCreateShader(type);
    glShaderSource(*shader, 1, &source, nullptr);
    glCompileShader(*shader);
    GLint status = 0;
    glGetShaderiv(*shader, GL_COMPILE_STATUS, &status);
    if (status != GL_TRUE) {
        GLint length = 0;
        glGetShaderiv(*shader, GL_INFO_LOG_LENGTH, &length);
        if (length > 0) {
            std::string log(static_cast<std::size_t>(length), '\0');
            glGetShaderInfoLog(*shader, length, nullptr, log.data());
            qCWarning(lcDabcanvasGL, "Shader compile log:\n%s", log.c_str());
        }
    }
    return status == GL_TRUE;
}

void ESProgram::addAttribute(QAnyStringView) {}

bool ESProgram::link() {
    if (_initialized) {
        return true;
    }
    glLinkProgram(_programAddr);
    GLint status = 0;
    glGetProgramiv(_programAddr, GL_LINK_STATUS, &status);
    // A shader that did not compile leaves an error of the log query here, see vertexShaderLog().
    drainGLErrors(kFile, kLinkLine);
    // Desktop OpenGL links a program that lacks a stage, but what it draws is undefined.
    if (status == 0 || !_vertShaderAddr || !_fragShaderAddr) {
        return false;
    }
    // Detached first, as an attached shader is only marked for deletion and lives as long as the program.
    for (GLuint* const shader : {&_vertShaderAddr, &_fragShaderAddr}) {
        glDetachShader(_programAddr, *shader);
        glDeleteShader(*shader);
        *shader = 0;
    }
    _initialized = true;
    return true;
}

void ESProgram::use() const {
    glUseProgram(_programAddr);
}

void ESProgram::bind() const {
    use();
    glBindVertexArray(_vertexArrayObject);
    glBindBuffer(GL_ARRAY_BUFFER, _vertexBuffer);
}

void ESProgram::validate() const {
    glValidateProgram(_programAddr);
}

GLint ESProgram::attributeIndex(QAnyStringView name) {
    const QByteArray utf8 = name.toString().toUtf8();
    const auto known = _attributes.constFind(utf8);
    return known != _attributes.cend()
               ? *known
               : *_attributes.insert(utf8, glGetAttribLocation(_programAddr, utf8.constData()));
}

GLint ESProgram::uniformIndex(QAnyStringView name) {
    const QByteArray utf8 = name.toString().toUtf8();
    const auto known = _uniforms.constFind(utf8);
    return known != _uniforms.cend()
               ? *known
               : *_uniforms.insert(utf8, glGetUniformLocation(_programAddr, utf8.constData()));
}

QString ESProgram::logForOpenGLObject(GLuint object, InfoFunction infoCallback, LogFunction logFunc) {
    GLint length = 0;
    infoCallback(object, GL_INFO_LOG_LENGTH, &length);
    if (length <= 0) {
        return {};
    }
    std::string log(static_cast<std::size_t>(length), '\0');
    GLsizei returned = 0;
    logFunc(object, length, &returned, log.data());
    return QString::fromUtf8(log.data(), returned);
}

namespace {

// epoxy's entry points are function pointers filled on first use, so their addresses cannot be handed on.
void programInfo(GLuint object, GLenum parameter, GLint* value) {
    glGetProgramiv(object, parameter, value);
}
void programInfoLog(GLuint object, GLsizei maxLength, GLsizei* length, GLchar* log) {
    glGetProgramInfoLog(object, maxLength, length, log);
}

}  // namespace

QString ESProgram::vertexShaderLog() const {
    return logForOpenGLObject(_vertShaderAddr, programInfo, programInfoLog);
}

QString ESProgram::fragmentShaderLog() const {
    return logForOpenGLObject(_fragShaderAddr, programInfo, programInfoLog);
}

QString ESProgram::programLog() const {
    return logForOpenGLObject(_programAddr, programInfo, programInfoLog);
}
