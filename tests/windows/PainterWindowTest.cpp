// SPDX-License-Identifier: MIT
// The painter in a window of a real window system.
#include <QScreen>
#include <QTest>
#include <QWindow>

#include "dabpainter/PainterTest.h"
#include "support/Images.h"

namespace dabcanvas::dabpainter {
namespace {

class PainterWindowTest : public PainterTest {};

TEST_F(PainterWindowTest, AMouseStrokeIsOnTheScreenAsItIsOnTheCanvas) {
    ASSERT_TRUE(QTest::qWaitForWindowExposed(_window.get()));
    QDDrawView& view = *_window->view();
    QWindow* handle = _window->windowHandle();
    const auto at = [&](double x, double y) {  // of the view, 0..1
        return view.mapTo(_window.get(), QPointF(x * view.width(), y * view.height())).toPoint();
    };
    const QImage before = view.image();
    QTest::mousePress(handle, Qt::LeftButton, {}, at(0.1, 0.5));
    for (int i = 1; i <= 12; ++i) {
        QTest::mouseMove(handle, at(0.1 + i * 0.06, 0.5 + (i % 3) * 0.08));
    }
    QTest::mouseRelease(handle, Qt::LeftButton, {}, at(0.8, 0.5));
    EXPECT_FALSE(imagesMatch(view.image(), before));
    EXPECT_TRUE(_window->isWindowModified()) << "there is something to save";

    QTest::mouseMove(handle, QPoint(2, 2));  // the outline of the brush goes along
    for (int i = 0; i < 3; ++i) {
        settle();
        QTest::qWait(20);
    }
    const QPoint corner = view.mapTo(_window.get(), QPoint(0, 0));
    QImage shown = handle->screen()
                       ->grabWindow(_window->winId(), corner.x(), corner.y(), view.width(), view.height())
                       .toImage();
    shown.setDevicePixelRatio(1);
    ASSERT_EQ(shown.size(), view.image().size()) << "at 100 %, a canvas pixel is a screen pixel";
    EXPECT_TRUE(imagesMatch(shown.convertToFormat(QImage::Format_RGBA8888_Premultiplied), view.image()));
}

}  // namespace
}  // namespace dabcanvas::dabpainter
