// SPDX-License-Identifier: MIT
#include <QIcon>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include "QDEAGLView/QDDrawView.h"

class DrawViewPlugin : public QObject, public QDesignerCustomWidgetInterface {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetInterface_iid)
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    QString name() const override { return QStringLiteral("QDDrawView"); }
    QString group() const override { return QStringLiteral("Display Widgets"); }
    QString toolTip() const override {
        return QStringLiteral("A canvas to paint on with natural-media brushes");
    }
    QString whatsThis() const override {
        return QStringLiteral("Mouse, pen and fingers paint with the brush that its properties say.");
    }
    QString includeFile() const override { return QStringLiteral("QDEAGLView/QDDrawView.h"); }
    QIcon icon() const override { return QIcon(QStringLiteral(":/dabcanvas/designer/icon.png")); }
    bool isContainer() const override { return false; }
    QWidget* createWidget(QWidget* parent) override { return new QDDrawView(parent); }
    QString domXml() const override {
        return QStringLiteral(
            "<ui language=\"c++\"><widget class=\"QDDrawView\" name=\"canvas\"><property name=\"geometry\">"
            "<rect><x>0</x><y>0</y><width>320</width><height>240</height></rect></property></widget></ui>");
    }
};

#include "DrawViewPlugin.moc"
