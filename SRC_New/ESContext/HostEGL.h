// SPDX-License-Identifier: MIT
// What is current in EGL on this thread. Nothing ever is where this was built without EGL, as on Windows and macOS, or where
// the machine has none.
#pragma once

namespace dabcanvas {

struct HostEGL {
    void* display = nullptr;
    void* context = nullptr;  // null: none is current
    void* draw = nullptr;
    void* read = nullptr;

    static HostEGL current();
    // False where EGL refuses.
    bool makeCurrent() const;
    // Lets go of the one that is current, if any.
    static void release();
};

}  // namespace dabcanvas
