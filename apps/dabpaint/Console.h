// SPDX-License-Identifier: MIT
// What the tool says, and how it ends.
#pragma once

#include <QString>
#include <cstdio>
#include <string_view>

namespace dabcanvas::dabpaint {

inline constexpr int kDone = 0;
inline constexpr int kFailed = 1;  // the work failed
inline constexpr int kUsage = 2;   // the command line is wrong

// One line "dabpaint: ..." on standard error; give back the exit status.
int fail(const QString& message);
int refuse(const QString& message);

// Write to standard output; false, once and for all, when it cannot take it.
bool printOut(std::string_view text);
bool flushOut();
// Fails with a line when what was printed did not arrive.
int finishOut();

}  // namespace dabcanvas::dabpaint
