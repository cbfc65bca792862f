// SPDX-License-Identifier: MIT
// Tips and papers that the samples of brush properties are painted with.
#pragma once

#include <QImage>
#include <QString>

namespace dabcanvas::dabpaint {

// A tip: flag, leaf, star, disc or square; or a paper: grain, linen or stripes. Null for any other name.
QImage referenceImage(const QString& name);

}  // namespace dabcanvas::dabpaint
