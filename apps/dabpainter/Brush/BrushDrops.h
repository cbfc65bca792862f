// SPDX-License-Identifier: MIT
// Which files that are dropped become brushes.
#pragma once

#include <QStringList>

class QMimeData;

namespace dabcanvas::dabpainter {

// Brushes of this and of other programs.
QStringList brushFilesOf(const QMimeData& data);
// And pictures, which may become tips.
QStringList brushAndPictureFilesOf(const QMimeData& data);

// "*.gbr *.gih ...", of other programs' brushes.
QString foreignBrushPatterns();
// Whether it is imported rather than copied: a brush of another program, or a picture.
bool isForeignBrush(const QString& path);

}  // namespace dabcanvas::dabpainter
