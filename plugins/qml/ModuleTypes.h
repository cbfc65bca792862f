// SPDX-License-Identifier: MIT
// The module's types, for its plugins.qmltypes alone; DabcanvasModule.cpp registers them.
#pragma once

#include <QtQml/qqmlregistration.h>

#include "Brushes/BrushKinds.h"
#include "Quick/CanvasItem.h"

struct CanvasOfModule {
    Q_GADGET
    QML_FOREIGN(dabcanvas::CanvasItem)
    QML_NAMED_ELEMENT(Canvas)
};

namespace BrushOfModule {
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(dabcanvas)
QML_NAMED_ELEMENT(Brush)
}  // namespace BrushOfModule
