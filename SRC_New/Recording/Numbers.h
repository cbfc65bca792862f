// SPDX-License-Identifier: MIT
// Numbers to and from text, the same under every locale: the decimal sign is a point, nothing groups digits.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <optional>
#include <string>

#include "Maths/Export.h"

namespace dabcanvas {

// Reads the longest number that starts exactly at `at` (a minus sign, digits, ".5", "1e-3"; no plus sign, no
// blanks, no "inf" or "nan") and stores where it ended. False, with `ended` at `at`, when there is none;
// `value` is infinite when the number does not fit a double.
bool scanNumber(const char* at, const char* end, double& value, const char*& ended);

// The whole text as one finite number; none otherwise.
DABCANVAS_RECORDING_API std::optional<double> numberFromText(QByteArrayView text);

// Appends what printf's "%.9g" writes, enough to tell every float from its neighbours.
DABCANVAS_RECORDING_API void appendNumber(std::string& out, float value);
DABCANVAS_RECORDING_API void appendNumber(std::string& out, double value);

// The shortest text that reads back as the same float.
DABCANVAS_RECORDING_API QString shortestText(float value);

}  // namespace dabcanvas
