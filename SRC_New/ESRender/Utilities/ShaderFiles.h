// SPDX-License-Identifier: MIT
/// \file
/// Nothing for embedders.
#pragma once

#include <QString>

namespace dabcanvas {

/// The path to read a shader source from, as resourcePath() tells it. A file beside the library that does not compile
/// is named in one log line, and the embedded copy takes its place from then on. Only files that differ from that copy
/// are tried, once each, and only while some OpenGL context is current; without one every file is believed.
QString shaderPath(const QString& name);

/// The same with another folder in place of the library's.
QString shaderPathIn(const QString& folder, const QString& name);

}  // namespace dabcanvas
