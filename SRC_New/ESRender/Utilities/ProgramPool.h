// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <map>
#include <memory>
#include <utility>

#include "ESRender/Utilities/ESProgram.h"

namespace dabcanvas {

/// Programs that the renderers of one context share, each compiled once. Uniform values and vertices lie in a program:
/// a renderer that draws with one asks ESProgram::passTo() whether they still are its own.
///
/// The context must be current for everything, the destructor included.
class ProgramPool {
public:
    /// The linked program of two sources; null, with the lines that ESProgram logs, when it does not build.
    std::shared_ptr<ESProgram> program(const QString& vertexShader, const QString& fragmentShader) {
        std::shared_ptr<ESProgram>& known = _programs[{vertexShader, fragmentShader}];
        if (!known) {
            std::shared_ptr<ESProgram> built =
                ESProgram::initWithVertexShaderString(vertexShader, fragmentShader);
            if (built->link()) {
                known = std::move(built);
            }
        }
        return known;
    }

private:
    std::map<std::pair<QString, QString>, std::shared_ptr<ESProgram>> _programs;
};

}  // namespace dabcanvas
