// SPDX-License-Identifier: MIT
// The painter in a window of a real window system.
#include <QScreen>
#include <QTest>
#include <QWindow>

#include "dabpainter/PainterTest.h"
#include "support/Images.h"

namespace dabcanvas::dabpainter {
namespace {

class PainterWindowTest : public PainterTest {
protected:
    void SetUp() override {
        PainterTest::SetUp();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(_window.get()));
    }
    // In the window, of a place in the view from 0 to 1.
    QPoint at(double x, double y) {
        QDDrawView& view = *_window->view();
        const QPointF inView =
            view.bufferToView().map(QPointF(x * view.bufferSize().width(), y * view.bufferSize().height()));
        return view.mapTo(_window.get(), inView).toPoint();
    }
    void mouseStroke(double y) {
        QWindow* handle = _window->windowHandle();
        QTest::mousePress(handle, Qt::LeftButton, {}, at(0.1, y));
        for (int i = 1; i <= 12; ++i) {
            QTest::mouseMove(handle, at(0.1 + i * 0.06, y + (i % 3) * 0.08));
        }
        QTest::mouseRelease(handle, Qt::LeftButton, {}, at(0.8, y));
    }
};

TEST_F(PainterWindowTest, AMouseStrokeIsOnTheScreenAsItIsOnTheCanvas) {
    QDDrawView& view = *_window->view();
    QWindow* handle = _window->windowHandle();
    mouseStroke(0.5);
    EXPECT_TRUE(_window->isWindowModified()) << "there is something to save";

    QTest::mouseMove(handle, QPoint(2, 2));  // the outline of the brush goes along
    for (int i = 0; i < 3; ++i) {
        settle();
        QTest::qWait(20);
    }
    const double dots = view.devicePixelRatioF();  // a canvas may lie on half points
    const QPointF corner = view.bufferToView().map(QPointF(0, 0)) * dots;
    const QPoint from = view.mapTo(_window.get(), QPoint(0, 0));
    QImage shown = handle->screen()
                       ->grabWindow(_window->winId(), from.x(), from.y(), view.width(), view.height())
                       .toImage();
    shown.setDevicePixelRatio(1);
    shown = shown.copy(
        QRect(corner.toPoint(),
              (view.bufferToView().mapRect(QRectF(QPointF(), view.bufferSize())).size() * dots).toSize()));
    ASSERT_EQ(shown.size(), view.image().size()) << "at 100 %, a canvas pixel is a screen pixel";
    EXPECT_TRUE(imagesMatch(shown.convertToFormat(QImage::Format_RGBA8888_Premultiplied), view.image()));
}

}  // namespace
}  // namespace dabcanvas::dabpainter
