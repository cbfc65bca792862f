// SPDX-License-Identifier: MIT
#include "Quick/TopmostItem.h"

#include <algorithm>

namespace dabcanvas {
namespace {

bool takesPresses(const QQuickItem& item) {
    const auto isHandler = [](const QObject* child) { return child->inherits("QQuickPointerHandler"); };
    const QObjectList& children = item.children();
    return (item.acceptedMouseButtons() & Qt::LeftButton) != 0 || item.acceptTouchEvents() ||
           std::any_of(children.begin(), children.end(), isHandler);
}

// In the order in which Qt Quick paints them.
const QQuickItem* topmostAt(QQuickItem& root, QPointF place) {
    const bool isInside = root.contains(root.mapFromScene(place));
    if (!root.isVisible() || !root.isEnabled() || (root.clip() && !isInside)) {
        return nullptr;
    }
    QList<QQuickItem*> children = root.childItems();
    std::stable_sort(children.begin(), children.end(),
                     [](const QQuickItem* a, const QQuickItem* b) { return a->z() < b->z(); });
    const auto below = std::partition_point(children.begin(), children.end(),
                                            [](const QQuickItem* child) { return child->z() < 0; });
    const auto search = [&](auto from, auto to) -> const QQuickItem* {
        for (auto child = to; child != from;) {
            if (const QQuickItem* found = topmostAt(**--child, place)) {
                return found;
            }
        }
        return nullptr;
    };
    if (const QQuickItem* found = search(below, children.end())) {
        return found;
    }
    if (isInside && takesPresses(root)) {
        return &root;
    }
    return search(children.begin(), below);
}

}  // namespace

bool isTopmostAt(const QQuickItem& item, QQuickItem& root, QPointF place) {
    return topmostAt(root, place) == &item;
}

}  // namespace dabcanvas
