// SPDX-License-Identifier: MIT
#include "ESRender/Utilities/ESShaderTools.h"

#include <QFile>

#include "ESRender/Utilities/ESResource.h"

QString ESShaderTools::readFile(const QString& name) {
    return readFileWithPath(dabcanvas::resourcePath(name));
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
