// SPDX-License-Identifier: MIT
// With Qt's "offscreen" platform only the refusal can be seen. Under a platform with OpenGL the rest runs
// too:
//     QT_QPA_PLATFORM=xcb xvfb-run -a render_tests --gtest_filter=QtOffscreenViewTest.*
#include "ESContext/QtOffscreenView.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QSurfaceFormat>

#include "ESContext/EGLSurfacelessView.h"
#include "ESContext/ESContext.h"
#include "ESContext/ESCurrentScope.h"

TEST(QtOffscreenViewTest, LeavesQtsStateAndItsCurrentContextAlone) {
    QString reason;
    EXPECT_EQ(QtOffscreenView::create(&reason), nullptr);
    EXPECT_FALSE(reason.isEmpty()) << "it must say that there is no application object";

    char name[] = "render_tests";
    char* arguments[] = {name, nullptr};
    int count = 1;
    const QGuiApplication application(count, arguments);
    const QSurfaceFormat formatBefore = QSurfaceFormat::defaultFormat();
    reason.clear();
    std::unique_ptr<ESOpenGLView> view = QtOffscreenView::create(&reason);
    if (!view) {
        EXPECT_TRUE(reason.contains(QGuiApplication::platformName())) << qPrintable(reason);
        EXPECT_FALSE(qEnvironmentVariableIsSet("DABCANVAS_REQUIRE_GL") &&
                     QGuiApplication::platformName() == QLatin1String("xcb"))
            << "an X server has OpenGL: " << qPrintable(reason);
        return;
    }
    QOffscreenSurface surface;
    surface.create();
    QOpenGLContext host;
    ASSERT_TRUE(host.create() && host.makeCurrent(&surface));
    const ESHostContext before = ESHostContext::capture();
    const auto expectHost = [&](const char* when) {
        const ESHostContext now = ESHostContext::capture();
        EXPECT_EQ(QOpenGLContext::currentContext(), &host) << when;
        EXPECT_TRUE(now.sameNativeContext(before)) << when;
        EXPECT_EQ(now.eglDraw, before.eglDraw) << when;
        EXPECT_EQ(now.glxDraw, before.glxDraw) << when;
    };
    auto overQt = ESContext::init(std::move(view));
    ASSERT_TRUE(overQt);
    expectHost("after making a context");
    auto overEGL = ESContext::init(EGLSurfacelessView::create());
    {
        const ESCurrentScope a(*overQt);
        ASSERT_TRUE(a && overQt->createBufferWithSize({9, 5}));
        if (overEGL) {
            const ESCurrentScope b(*overEGL);
            EXPECT_TRUE(b && overEGL->createBufferWithSize({6, 6}));
            EXPECT_FALSE(overQt->openGLView()->isCurrent());
            const ESCurrentScope again(*overQt);
            EXPECT_TRUE(again && overQt->openGLView()->isCurrent());
            EXPECT_EQ(overQt->image().size(), QSize(9, 5));
        }
        EXPECT_TRUE(overQt->openGLView()->isCurrent());
    }
    expectHost("after nested scopes of both kinds");
    overEGL.reset();
    expectHost("after destroying the context over EGL");
    overQt.reset();
    expectHost("after destroying the context over Qt");
    EXPECT_EQ(QSurfaceFormat::defaultFormat(), formatBefore);
}
