// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "ESContext/ESHostContext.h"
#include "Maths/Export.h"

class ESContext;
class ESOpenGLView;

/// Makes one canvas's OpenGL context current for a scope and then puts back exactly what the host had:
/// another context with its surfaces, or none. Every public entry of the library stands in one.
///
/// Cost     next to nothing when the context is already current, as in nested scopes: only the outermost
///          switches, and only the outermost restores. Scopes of two contexts may nest in any order.
/// Thread   destroyed on the thread that made it, before the ESContext it was given.
///
///     ESCurrentScope current(*context);
///     if (!current) return false;   // the platform refused; nothing changed
class DABCANVAS_RENDER_API ESCurrentScope {
public:
    explicit ESCurrentScope(ESContext& context);  ///< false, too, once the context is lost
    explicit ESCurrentScope(ESOpenGLView* view);  ///< null: the scope is false and does nothing
    ~ESCurrentScope();
    ESCurrentScope(const ESCurrentScope&) = delete;
    ESCurrentScope& operator=(const ESCurrentScope&) = delete;

    /// Whether the context is current.
    explicit operator bool() const { return _current; }

private:
    ESOpenGLView* _view;
    std::optional<ESHostContext> _host;  // none: ours was current already, nothing to put back
    bool _current = false;
};
