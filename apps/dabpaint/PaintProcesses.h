// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "PaintCommand.h"

namespace dabcanvas::dabpaint {

// Paints each in a process of its own, at most `most` at once; what they say is said when they end. The exit status: the
// worst of theirs.
int paintByProcesses(const std::vector<PaintOptions>& all, int most);

// The command line that says the same, without jobs.
QStringList argumentsOf(const PaintOptions& options);

}  // namespace dabcanvas::dabpaint
