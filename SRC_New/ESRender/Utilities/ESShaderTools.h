// SPDX-License-Identifier: MIT
// Reads shader source files as UTF-8 text. Null (not merely empty) when there is no such file.
#pragma once

#include <QString>

class ESShaderTools {
public:
    // A resource by its name with extension, see ESResource.h.
    static QString readFile(const QString& name);
    static QString readFileWithPath(const QString& path);
};
