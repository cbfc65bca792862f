// SPDX-License-Identifier: MIT
// The recordings in the test data, and how samples compare.
#pragma once

#include <gmock/gmock.h>

#include <cmath>

#include "Recording/StrokesFile.h"
#include "TestFolders.h"

namespace dabcanvas {

inline const QString kRecordings = QStringLiteral(DABCANVAS_TEST_DATA "/recordings/");

inline Result<RecordedStrokes> readNamed(const QString& name) {
    const auto bytes = readFile(kRecordings + name);
    return bytes ? readStrokes(*bytes) : bytes.problem();
}

// To a millionth: units and ranges go through a few divisions.
MATCHER_P4(IsSample, x, y, pressure, altitude, "") {
    *result_listener << arg.x << ' ' << arg.y << ' ' << arg.pressure << ' ' << arg.altitude;
    return std::abs(arg.x - x) < 1e-6 && std::abs(arg.y - y) < 1e-6 &&
           std::abs(arg.pressure - pressure) < 1e-6 && std::abs(arg.altitude - altitude) < 1e-6;
}

}  // namespace dabcanvas
