// SPDX-License-Identifier: MIT
// What steadies the hand, brush by brush, as the painter's settings keep it.
#pragma once

#include <QSettings>
#include <QString>

#include "Canvas/PointerOptions.h"

namespace dabcanvas::dabpainter {

// By the brush's name, empty for the one that is no preset's. Nothing steadies one that nobody chose anything for.
StabiliserOptions stabiliserOf(const QSettings& settings, const QString& brush);
void keepStabiliser(QSettings& settings, const QString& brush, const StabiliserOptions& options);

}  // namespace dabcanvas::dabpainter
