// SPDX-License-Identifier: MIT
// The texts of the blend programs, for those who know nothing of OpenGL.
#pragma once

#include <QString>
#include <cstdint>

namespace dabcanvas {

// The mode whose fragment text this is, with "_Bool" or "bool"; 0 for none.
std::uint32_t blendTypeOfProgram(const QString& fragmentText);
// The fragment text of a mode, with "bool".
QString programOfBlendType(std::uint32_t blendType);

}  // namespace dabcanvas
