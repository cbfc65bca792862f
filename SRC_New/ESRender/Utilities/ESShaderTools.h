// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include "Maths/Export.h"

/// Reads shader source files as UTF-8 text, null (not merely empty) when there is no such file, and prepares sources.
class DABCANVAS_RENDER_API ESShaderTools {
public:
    /// A resource by its name with extension, see ESResource.h.
    static QString readFile(const QString& name);
    static QString readFileWithPath(const QString& path);

    /// Sources may spell their booleans "_Bool"; what goes to the program cache, which compares texts, has "bool".
    static QString withBool(QString source);
    /// The source with preprocessor lines put in at its start, after its #version line.
    static QString withDefines(const QString& source, const QString& defines);
};
