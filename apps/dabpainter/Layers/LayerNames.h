// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace dabcanvas::dabpainter {

// What a copy of a layer is called: "Ink copy", or "Ink copy 2" where that is taken; a copy's copy counts on.
QString copyName(const QString& name, const QStringList& taken);

}  // namespace dabcanvas::dabpainter
