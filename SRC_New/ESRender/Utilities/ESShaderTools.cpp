// SPDX-License-Identifier: MIT
#include "ESRender/Utilities/ESShaderTools.h"

#include <QFile>

#include "ESRender/Utilities/ShaderFiles.h"

QString ESShaderTools::readFile(const QString& name) {
    return readFileWithPath(dabcanvas::shaderPath(name));
}

QString ESShaderTools::readFileWithPath(const QString& path) {
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return QLatin1String("") + QString::fromUtf8(file.readAll());  // not null, even of an empty file
}

QString ESShaderTools::withBool(QString source) {
    return source.replace(QLatin1String("_Bool"), QLatin1String("bool"));
}

QString ESShaderTools::withDefines(const QString& source, const QString& defines) {
    const qsizetype version = source.indexOf(QLatin1String("#version"));
    const qsizetype lineEnd = version < 0 ? -1 : source.indexOf(QLatin1Char('\n'), version);
    return source.left(lineEnd + 1) + defines + source.mid(lineEnd + 1);
}
