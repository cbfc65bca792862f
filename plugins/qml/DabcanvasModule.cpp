// SPDX-License-Identifier: MIT
#include <QQmlExtensionPlugin>
#include <QtQml>

#include "Brushes/BrushKinds.h"
#include "Quick/CanvasItem.h"

// Canvas, and the enumerations of BrushKinds.h as those of Brush: Brush.Multiply, or Brush.BlendKind.Multiply.
class DabcanvasModule : public QQmlExtensionPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QQmlExtensionInterface_iid)

public:
    void registerTypes(const char* uri) override {
        qmlRegisterType<dabcanvas::CanvasItem>(uri, 1, 0, "Canvas");
        qmlRegisterUncreatableMetaObject(dabcanvas::staticMetaObject, uri, 1, 0, "Brush",
                                         QStringLiteral("Brush has nothing but enumerations"));
    }
};

#include "DabcanvasModule.moc"
