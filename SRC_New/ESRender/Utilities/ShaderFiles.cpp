// SPDX-License-Identifier: MIT
#include "ESRender/Utilities/ShaderFiles.h"

#include <epoxy/gl.h>

#include <QFile>
#include <QHash>
#include <QMutex>

#include "ESContext/ESHostContext.h"
#include "ESRender/Utilities/ESGLErrors.h"
#include "ESRender/Utilities/ESResource.h"
#include "ESRender/Utilities/ESShaderTools.h"

namespace dabcanvas {
namespace {

bool isContextCurrent() {
    const ESHostContext host = ESHostContext::capture();
    return host.hasEGL() || host.hasGLX();
}

// Linked alone, as a text without main() compiles.
bool works(const QString& path) {
    const QByteArray source = ESShaderTools::withBool(ESShaderTools::readFileWithPath(path)).toUtf8();
    const GLchar* const text = source.constData();
    const GLuint shader =
        glCreateShader(path.endsWith(QLatin1String(".vsh")) ? GL_VERTEX_SHADER : GL_FRAGMENT_SHADER);
    glShaderSource(shader, 1, &text, nullptr);
    glCompileShader(shader);
    GLint done = GL_FALSE;
    glGetShaderiv(shader, GL_COMPILE_STATUS, &done);
    if (done == GL_TRUE) {
        const GLuint program = glCreateProgram();
        glAttachShader(program, shader);
        glLinkProgram(program);
        glGetProgramiv(program, GL_LINK_STATUS, &done);
        glDeleteProgram(program);
    }
    glDeleteShader(shader);
    return done == GL_TRUE;
}

bool isUsable(const QString& path, const QString& embedded) {
    static QMutex mutex;
    static QHash<QString, bool> known;
    const QMutexLocker lock(&mutex);
    if (const auto found = known.constFind(path); found != known.cend()) {
        return *found;
    }
    const bool same = ESShaderTools::readFileWithPath(path) == ESShaderTools::readFileWithPath(embedded);
    if (!same && !isContextCurrent()) {
        return true;  // asked again later
    }
    const bool usable = same || works(path);
    if (!usable) {
        qCWarning(lcDabcanvasGL,
                  "The shader file %s does not compile; the library's own copy is used instead",
                  qUtf8Printable(path));
    }
    known.insert(path, usable);
    return usable;
}

}  // namespace

QString shaderPathIn(const QString& folder, const QString& name) {
    const QString path = resourcePathIn(folder, name);
    if (path.isEmpty() || path.startsWith(QLatin1Char(':'))) {
        return path;
    }
    const QString embedded = resourcePathIn(QString(), name);
    return embedded.isEmpty() || isUsable(path, embedded) ? path : embedded;
}

QString shaderPath(const QString& name) {
    return shaderPathIn(libraryFolder(), name);
}

}  // namespace dabcanvas
