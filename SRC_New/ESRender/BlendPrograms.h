// SPDX-License-Identifier: MIT
/// \file
/// The texts of the blend programs, for those who know nothing of OpenGL.
#pragma once

#include <QString>
#include <cstdint>

#include "Maths/Export.h"

namespace dabcanvas {

/// The mode whose fragment text this is, with "_Bool" or "bool"; 0 for none.
DABCANVAS_RENDER_API std::uint32_t blendTypeOfProgram(const QString& fragmentText);
/// The fragment text of a mode, with "bool".
DABCANVAS_RENDER_API QString programOfBlendType(std::uint32_t blendType);

}  // namespace dabcanvas
