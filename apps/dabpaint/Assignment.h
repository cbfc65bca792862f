// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace dabcanvas::dabpaint {

// A --set PROPERTY=VALUE as written.
struct Assignment {
    QString property;
    QString value;
};

}  // namespace dabcanvas::dabpaint
