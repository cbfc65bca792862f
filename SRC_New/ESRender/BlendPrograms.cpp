// SPDX-License-Identifier: MIT
#include "ESRender/BlendPrograms.h"

#include "ESRender/ESImageRender.h"
#include "ESRender/Utilities/ESShaderTools.h"

namespace dabcanvas {

std::uint32_t blendTypeOfProgram(const QString& fragmentText) {
    return ESImageRender::blendTypeOfFragmentShaderString(ESShaderTools::withBool(fragmentText));
}

QString programOfBlendType(std::uint32_t blendType) {
    return ESImageRender::fragmentShaderStringForBlendType(blendType);
}

}  // namespace dabcanvas
