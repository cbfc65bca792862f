// SPDX-License-Identifier: MIT
// Names of several outputs in one: %n is the recording's name without folder and suffix, %i its number from 1, %s how many
// strokes are painted, %% a percent sign. Any other percent sign is one.
#pragma once

#include <QString>

namespace dabcanvas::dabpaint {

// Whether it has a name for each recording.
bool namesEach(const QString& pattern);
bool namesStrokes(const QString& pattern);

// With the name and number of one recording in it; %s stays.
QString outputOf(const QString& pattern, const QString& recording, qsizetype number);
// With the number of strokes in it, of five digits or more.
QString outputAfter(const QString& pattern, qint64 strokes);

}  // namespace dabcanvas::dabpaint
