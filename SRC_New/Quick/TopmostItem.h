// SPDX-License-Identifier: MIT
#pragma once

#include <QQuickItem>

namespace dabcanvas {

// Whether a press in the scene is an item's, which takes presses, and no other's above it. Root: what the scene stands on.
bool isTopmostAt(const QQuickItem& item, QQuickItem& root, QPointF place);

}  // namespace dabcanvas
