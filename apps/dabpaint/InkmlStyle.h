// SPDX-License-Identifier: MIT
#pragma once

#include "InkmlDocument.h"

namespace dabcanvas::dabpaint {

// What a trace's references come to: how to read its numbers and how to paint it.
struct TraceStyle {
    std::shared_ptr<InkFormat> format;
    InkResolutions resolutions;
    std::shared_ptr<InkBrush> brush;
};

// Looks the references up that reach a trace, the nearest first: its own, those of its groups from the inside
// out, the context that was current where it stands. X and Y as decimals when none of them has a format.
// Gives the message when a reference leads nowhere.
QString findStyle(const InkDocument& document, const RawTrace& trace, TraceStyle& style);

}  // namespace dabcanvas::dabpaint
