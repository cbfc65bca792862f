// SPDX-License-Identifier: MIT
#include "ESContext/ESCurrentScope.h"

#include "ESContext/ESContext.h"
#include "ESContext/ESOpenGLView.h"

ESCurrentScope::ESCurrentScope(ESContext& context)
    : ESCurrentScope(context.isLost() ? nullptr : context.openGLView()) {
    if (_view && !_current && _view->isLost()) {
        context.noteLost();
    }
}

ESCurrentScope::ESCurrentScope(ESOpenGLView* view) : _view(view) {
    if (!view) {
        return;
    }
    if (view->isCurrent()) {
        _current = true;
        return;
    }
    const ESHostContext host = view->saveHost();
    _current = view->makeCurrent();
    if (_current) {
        _host = host;
    }
}

ESCurrentScope::~ESCurrentScope() {
    if (_host) {
        _view->restoreHost(*_host);
    }
}
