// SPDX-License-Identifier: MIT
// A view in a window of a real window system: devices as the platform reports them, and what is on the screen.
#include <qpa/qwindowsysteminterface.h>

#include <QApplication>
#include <QPainter>
#include <QPointingDevice>
#include <QScreen>
#include <QTest>
#include <QWindow>
#include <functional>
#include <string>

#include "QDEAGLView/QDDrawView.h"
#include "support/Images.h"

namespace {

constexpr QSize kBuffer(300, 150);  // whole at every scale factor that the tests run with

class ViewWindowTest : public ::testing::Test {
protected:
    void SetUp() override {
        window.move(40, 30);
        window.resize(480, 260);
        QPalette palette = window.palette();
        palette.setColor(QPalette::Window, QColor(200, 190, 180));
        window.setPalette(palette);
        view = QDDrawView::initWithFrame(QRectF(QPointF(50, 20), QSizeF(kBuffer)), &window).release();
        ASSERT_NE(view, nullptr);
        view->setHardness(0.8f);
        view->setRadiusControl({1, 0, 0});
        view->setRenderColor(ESColor::rgba(0.1f, 0.3f, 0.7f));
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

    double ratio() const { return view->devicePixelRatioF(); }
    // As many device pixels as the buffer has, so that nothing is interpolated.
    void showOneToOne() { view->resize((QSizeF(kBuffer) / ratio()).toSize()); }

    // The pixels of the view that are on the screen now.
    QImage onScreen() {
        for (int i = 0; i < 3; ++i) {  // asked for, painted, put on the screen
            QApplication::processEvents();
            QTest::qWait(20);
        }
        QScreen* screen = window.windowHandle()->screen();
        const QPoint at = view->mapTo(&window, QPoint(0, 0));
        QImage image =
            screen->grabWindow(window.winId(), at.x(), at.y(), view->width(), view->height()).toImage();
        image.setDevicePixelRatio(1);
        return image.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    }
    // What they should be.
    QImage expected() {
        QImage image((QSizeF(view->size()) * ratio()).toSize(), QImage::Format_RGBA8888_Premultiplied);
        image.fill(window.palette().window().color());
        QPainter painter(&image);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QRectF(QPointF(0, 0), QSizeF(view->size()) * ratio()), view->image());
        return image;
    }

    QPointF inWindow(double x, double y) const {  // of a point of the view
        return view->mapTo(&window, QPointF(x, y));
    }
    void mouseStroke(double y) {
        QWindow* handle = window.windowHandle();
        QTest::mousePress(handle, Qt::LeftButton, {}, inWindow(20, y).toPoint());
        for (int i = 1; i <= 12; ++i) {
            QTest::mouseMove(handle, inWindow(20 + i * 8, y).toPoint());
        }
        QTest::mouseRelease(handle, Qt::LeftButton, {}, inWindow(116, y).toPoint());
    }
    void penStroke(double y) {
        static const QPointingDevice pen(
            "pen", 81, QInputDevice::DeviceType::Stylus, QPointingDevice::PointerType::Pen,
            QInputDevice::Capability::Position | QInputDevice::Capability::Pressure, 1, 2);
        [[maybe_unused]] static const bool registered =
            (QWindowSystemInterface::registerInputDevice(&pen), true);
        const auto report = [&](double x, Qt::MouseButtons buttons, double pressure) {
            const QPointF at = inWindow(x, y);
            // In pixels of the device, as platforms report them.
            QWindowSystemInterface::handleTabletEvent(window.windowHandle(), &pen, at * ratio(),
                                                      window.mapToGlobal(at) * ratio(), buttons, pressure, 0,
                                                      0, 0, 0, 0);
            QApplication::processEvents();
        };
        report(15, Qt::NoButton, 0);  // hovers
        report(20, Qt::LeftButton, 0.5);
        for (int i = 1; i <= 12; ++i) {
            report(20 + i * 8, Qt::LeftButton, 0.5);
        }
        report(116, Qt::NoButton, 0.5);
    }
    void fingerStroke(double y) {
        static QPointingDevice* const screen = QTest::createTouchDevice();
        const auto at = [&](double x) { return inWindow(x, y).toPoint(); };
        QWindow* handle = window.windowHandle();
        QTest::touchEvent(handle, screen).press(0, at(20), handle);
        for (int i = 1; i <= 12; ++i) {
            QTest::touchEvent(handle, screen).move(0, at(20 + i * 8), handle);
        }
        QTest::touchEvent(handle, screen).release(0, at(116), handle);
    }
    // The same by direct calls on another canvas.
    QImage byCalls(double y, float pressure) {
        auto canvas = QDDrawCanvas::initWithFrame(QRectF(QPointF(0, 0), QSizeF(kBuffer)));
        canvas->setHardness(0.8f);
        canvas->setRadiusControl({1, 0, 0});
        canvas->setRenderColor(ESColor::rgba(0.1f, 0.3f, 0.7f));
        canvas->drawingWithBeginPoint({20, y}, pressure);
        for (int i = 1; i <= 12; ++i) {
            canvas->drawingWithMoveToPoint({20.0 + i * 8, y}, pressure);
        }
        canvas->drawingWithEndPoint({116, y}, pressure);
        return canvas->image();
    }

    QWidget window;
    QDDrawView* view = nullptr;
};

TEST_F(ViewWindowTest, EveryDevicePaintsOnce) {
    struct Device {
        const char* name;
        std::function<void()> stroke;
        float pressure;
    };
    for (const Device& device :
         {Device{"mouse", [&] { mouseStroke(60); }, 1}, Device{"pen", [&] { penStroke(60); }, 0.5f},
          Device{"finger", [&] { fingerStroke(60); }, 1}}) {
        SCOPED_TRACE(device.name);
        view->clear();
        device.stroke();
        QApplication::processEvents();
        EXPECT_FALSE(view->isDrawing());
        // Positions are rounded on their way when the display is scaled.
        EXPECT_TRUE(imagesMatch(view->image(), byCalls(60, device.pressure), ratio() == 1 ? 0 : 1));
    }
}

TEST_F(ViewWindowTest, TheScreenShowsTheCanvasPixelForPixel) {
    showOneToOne();
    view->clearWithColor(ESColor::grey(1), true);
    EXPECT_TRUE(imagesMatch(onScreen(), view->image()));
    mouseStroke(40 / ratio());
    penStroke(90 / ratio());
    EXPECT_FALSE(painted(view->image()).isEmpty());
    EXPECT_TRUE(imagesMatch(onScreen(), view->image()));
    view->clear();  // transparent: the window shows through
    fingerStroke(60 / ratio());
    EXPECT_TRUE(imagesMatch(onScreen(), expected(), 1));
}

TEST_F(ViewWindowTest, StretchedItIsRepaintedWithoutSeams) {
    for (const QSizeF stretch : {QSizeF(1.33, 1.2), QSizeF(0.63, 0.5), QSizeF(1, 1)}) {
        SCOPED_TRACE(std::to_string(stretch.width()));
        view->resize(QSizeF(kBuffer.width() * stretch.width(), kBuffer.height() * stretch.height()).toSize());
        view->clearWithColor(ESColor::rgba(0.9f, 0.95f, 0.8f), true);
        onScreen();
        // Segment by segment, each painted on its own.
        view->drawingWithBeginPoint({10, 20});
        for (int i = 1; i < 24; ++i) {
            view->drawingWithMoveToPoint(
                {10 + i * view->width() / 26.0, 20 + (i % 4) * view->height() / 6.0});
            QApplication::processEvents();
        }
        view->drawingWithEndPoint({view->width() - 10.0, view->height() - 10.0});
        QImage atOnce = view->grab().toImage();  // where it is reduced, from a halved copy
        atOnce.setDevicePixelRatio(1);
        atOnce = atOnce.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
        EXPECT_TRUE(imagesMatch(onScreen(), stretch.width() < 1 ? atOnce : expected(), 2));
    }
}

}  // namespace
