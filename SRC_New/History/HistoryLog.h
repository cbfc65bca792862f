// SPDX-License-Identifier: MIT
// The log category of this room's sources; nothing for embedders.
#pragma once

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(lcHistory)  // "dabcanvas.history"
