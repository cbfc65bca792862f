// SPDX-License-Identifier: MIT
// What Qt Designer loads, and what becomes of a form that it saved.
#include <gtest/gtest.h>

#include <QPluginLoader>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include "QDEAGLView/QDDrawView.h"
#include "ui_Form.h"

namespace {

TEST(DesignerTest, ThePluginMakesTheWidget) {
    QPluginLoader loader(QCoreApplication::applicationDirPath() +
                         "/../plugins/designer/libdabcanvasdesigner.so");
    auto* plugin = qobject_cast<QDesignerCustomWidgetInterface*>(loader.instance());
    ASSERT_NE(plugin, nullptr) << qPrintable(loader.errorString());
    EXPECT_FALSE(plugin->icon().isNull() || plugin->icon().availableSizes().isEmpty());
    EXPECT_FALSE(plugin->toolTip().isEmpty());
    EXPECT_TRUE(plugin->domXml().contains("class=\"" + plugin->name() + "\""));
    QWidget parent;
    QWidget* widget = plugin->createWidget(&parent);
    EXPECT_EQ(widget->parentWidget(), &parent);
    EXPECT_EQ(plugin->name(), widget->metaObject()->className());
    EXPECT_TRUE(widget->property("problem").toString().isEmpty());
}

TEST(DesignerTest, AFormSetsTheBrush) {
    QWidget widget;
    Ui::Form form;
    form.setupUi(&widget);
    const QDDrawView& canvas = *form.canvas;
    EXPECT_EQ(canvas.blendType(), 8);
    EXPECT_EQ(canvas.renderColorValue(), QColor(51, 102, 153));
    EXPECT_EQ(canvas.radius(), 40.5f);
    EXPECT_EQ(canvas.trackNum(), 3);
    EXPECT_TRUE(canvas.flipX());
    EXPECT_EQ(canvas.radiusControl().altitude, -0.25f);
    EXPECT_EQ(canvas.fitKind(), QDDrawView::Fit::Whole);
}

}  // namespace
