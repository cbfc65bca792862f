// SPDX-License-Identifier: MIT
// Guesses which name was meant by one that is not known.
#pragma once

#include <QString>
#include <QStringList>

#include "Maths/Export.h"

namespace dabcanvas {

// The names most like `wrong`, best first, at most three; none when nothing is like it. Letters count the
// same in either case, and two that changed places count as one slip.
DABCANVAS_RECORDING_API QStringList closeNames(const QString& wrong, const QStringList& names);

// "; did you mean radius or flow?", or nothing when no name is close.
DABCANVAS_RECORDING_API QString closeNamesHint(const QString& wrong, const QStringList& names);

}  // namespace dabcanvas
