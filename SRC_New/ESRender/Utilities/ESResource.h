// SPDX-License-Identifier: MIT
/// \file
/// Finds the library's resource files: shader sources and brush images.
///
/// A name carries its bundle folder and extension, as in "Shaders.bundle/Line_Mac.vsh". A file beside the
/// library wins (for a static build: beside the program), so that an application may replace one; then the
/// copy embedded in the library. Names that are absolute or climb out of the folder are not found.
#pragma once

#include <QImage>
#include <QString>

#include "Maths/Export.h"

namespace dabcanvas {

/// A path QFile can open: on disk or in the library (":/dabcanvas/…"). Empty when there is no such resource.
DABCANVAS_RENDER_API QString resourcePath(const QString& name);

/// The same with another folder in place of the library's.
DABCANVAS_RENDER_API QString resourcePathIn(const QString& folder, const QString& name);

/// The folder that holds the library, found once.
DABCANVAS_RENDER_API QString libraryFolder();

/// The image resource of that name; null when it is missing or cannot be decoded.
DABCANVAS_RENDER_API QImage imageNamed(const QString& name);

}  // namespace dabcanvas
