// SPDX-License-Identifier: MIT
#pragma once

namespace dabcanvas {

// Whether something was done since a moment, and whether it would be so without the stroke in progress.
struct SinceThen {
    bool now = false, withoutStroke = false;

    // What the stroke has drawn so far is beyond the reach of withdrawing.
    void keepStroke() { withoutStroke = now; }
    void withdrawStroke() { now = withoutStroke; }
};

// Whether the canvas holds what no undo step does, and what was not saved.
struct EditFlag {
    SinceThen unrecorded, unsaved;

    void drawn() { unrecorded.now = unsaved.now = true; }
    // Something that withdrawing a stroke does not take back.
    void changed() { unrecorded = unsaved = {true, true}; }
    void keepStroke() {
        unrecorded.keepStroke();
        unsaved.keepStroke();
    }
    void withdrawStroke() {
        unrecorded.withdrawStroke();
        unsaved.withdrawStroke();
    }
};

}  // namespace dabcanvas
