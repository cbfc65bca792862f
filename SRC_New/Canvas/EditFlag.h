// SPDX-License-Identifier: MIT
#pragma once

namespace dabcanvas {

// Whether the canvas holds what no undo step does, and whether it would without the stroke in progress.
struct EditFlag {
    bool edited = false, withoutStroke = false;

    void setBoth(bool value) { edited = withoutStroke = value; }
    // What the stroke has drawn so far is beyond the reach of withdrawing.
    void keepStroke() { withoutStroke = edited; }
    void withdrawStroke() { edited = withoutStroke; }
};

}  // namespace dabcanvas
