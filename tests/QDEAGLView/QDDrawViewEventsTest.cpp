// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QMouseEvent>
#include <QPointingDevice>
#include <QTabletEvent>
#include <QTouchEvent>

#include "QDEAGLView/QDDrawView.h"
#include "support/CanvasTest.h"

namespace {

using Finger = QEventPoint::State;
const Qt::MouseEventSource kFromDevice = Qt::MouseEventNotSynthesized;

constexpr qint64 kTilting = 71;

const QPointingDevice* deviceOf(QInputDevice::DeviceType type, qint64 id) {
    const bool isPen = type == QInputDevice::DeviceType::Stylus;
    QInputDevice::Capabilities can = QInputDevice::Capability::Position;
    can.setFlag(QInputDevice::Capability::Pressure, isPen);
    can.setFlag(QInputDevice::Capability::XTilt, id == kTilting);
    return new QPointingDevice(
        "test", id, type, isPen ? QPointingDevice::PointerType::Pen : QPointingDevice::PointerType::Finger,
        can, 10, 3, "seat", QPointingDeviceUniqueId::fromNumericId(id), QCoreApplication::instance());
}

// A view in a corner of its window, so that view and window positions differ.
class DrawViewEventsTest : public CanvasTest {
protected:
    void SetUp() override {
        CanvasTest::SetUp();
        view = QDDrawView::initWithFrame(QRectF(40, 30, 200, 150), &window).release();
        ASSERT_NE(view, nullptr);
        view->setHardness(1);
        view->setRadiusControl({1, 0, 0});
        window.resize(300, 220);
        window.show();
    }

    // Straight to the view: on the way the application drops or accepts some of what the view is to decide on.
    void deliver(QEvent& event) { static_cast<QObject*>(view)->event(&event); }

    bool mouse(QEvent::Type type, QPointF at, Qt::MouseButton button = Qt::LeftButton,
               Qt::MouseEventSource source = kFromDevice) {
        const bool move = type == QEvent::MouseMove;
        const Qt::MouseButtons held =
            type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(button);
        QMouseEvent event(type, at, at, view->mapToGlobal(at), move ? Qt::NoButton : button, held,
                          Qt::NoModifier, source);
        deliver(event);
        return event.isAccepted();
    }
    void mouseStroke(double y, int drags = 12, Qt::MouseEventSource source = kFromDevice) {
        mouse(QEvent::MouseButtonPress, {20, y}, Qt::LeftButton, source);
        for (int i = 1; i <= drags; ++i) {
            mouse(QEvent::MouseMove, {20.0 + i * 12, y}, Qt::LeftButton, source);
        }
        mouse(QEvent::MouseButtonRelease, {20.0 + drags * 12, y}, Qt::LeftButton, source);
    }
    bool tablet(QEvent::Type type, QPointF at, double pressure, const QPointingDevice* device,
                Qt::MouseButton button = Qt::LeftButton) {
        const bool move = type == QEvent::TabletMove;
        const Qt::MouseButtons held = type == QEvent::TabletRelease ? Qt::NoButton : Qt::MouseButtons(button);
        QTabletEvent event(type, device, at, view->mapToGlobal(at), pressure, tilt, 0, 0, 0, 0,
                           Qt::NoModifier, move ? Qt::NoButton : button, held);
        deliver(event);
        return event.isAccepted();
    }
    void touch(QEvent::Type type, std::vector<std::pair<QPointF, Finger>> fingers,
               const QPointingDevice* device = nullptr) {
        QList<QEventPoint> points;
        int id = 1;
        for (const auto& [at, state] : fingers) {
            points.append(QEventPoint(id++, state, at, view->mapToGlobal(at)));
        }
        QTouchEvent event(type, device != nullptr ? device : touchScreen, Qt::NoModifier, points);
        event.setTimestamp(_time += 16);
        QApplication::sendEvent(view, &event);
    }
    QRect mark() { return painted(view->image()); }
    void expectIdle() {
        EXPECT_FALSE(view->isDrawing());
        EXPECT_FALSE(view->normalMoing());
        EXPECT_FALSE(view->digitPenMoving());
    }

    int tilt = 0;  // of pens to the right, degrees
    QWidget window;
    QDDrawView* view = nullptr;
    using Type = QInputDevice::DeviceType;
    const QPointingDevice* const pen = deviceOf(Type::Stylus, kTilting);
    const QPointingDevice* const otherPen = deviceOf(Type::Stylus, 72);
    const QPointingDevice* const touchScreen = deviceOf(Type::TouchScreen, 73);
    const QPointingDevice* const touchPad = deviceOf(Type::TouchPad, 74);

private:
    quint64 _time = 1000;
};

TEST_F(DrawViewEventsTest, TheLeftMouseButtonPaintsWithFullPressure) {
    mouseStroke(75);
    const QRect stroke = mark();
    EXPECT_NEAR(stroke.center().y(), 75, 1) << "in the view, not in the window";
    EXPECT_NEAR(stroke.height(), 32, 2);
    expectIdle();

    view->clear();
    EXPECT_FALSE(mouse(QEvent::MouseButtonPress, {20, 75}, Qt::RightButton));
    EXPECT_FALSE(mouse(QEvent::MouseMove, {150, 75}, Qt::RightButton));
    for (const Qt::MouseEventSource source :
         {Qt::MouseEventSynthesizedBySystem, Qt::MouseEventSynthesizedByQt,
          Qt::MouseEventSynthesizedByApplication}) {
        mouseStroke(75, 12, source);
    }
    EXPECT_TRUE(mark().isEmpty());
    expectIdle();
}

TEST_F(DrawViewEventsTest, APenPaintsOnceAndAlone) {
    view->setAttribute(Qt::WA_TabletTracking);
    EXPECT_FALSE(tablet(QEvent::TabletMove, {10, 75}, 0, pen, Qt::NoButton)) << "hovering is the parent's";
    EXPECT_TRUE(tablet(QEvent::TabletPress, {20, 75}, 0.3, pen));
    for (int i = 1; i <= 12; ++i) {
        EXPECT_TRUE(tablet(QEvent::TabletMove, {20.0 + i * 12, 75}, 0.3, pen));
        mouse(QEvent::MouseMove, {20.0 + i * 12, 20});  // somebody else's mouse
        tablet(QEvent::TabletMove, {20.0 + i * 12, 130}, 1, otherPen);
    }
    mouse(QEvent::MouseButtonPress, {20, 20});
    mouse(QEvent::MouseButtonRelease, {20, 20});
    tablet(QEvent::TabletPress, {20, 130}, 1, otherPen);
    tablet(QEvent::TabletRelease, {20, 130}, 0, otherPen);
    EXPECT_TRUE(view->isDrawing());
    EXPECT_TRUE(tablet(QEvent::TabletRelease, {164, 75}, 0.3, pen));
    const QRect stroke = mark();
    EXPECT_NEAR(stroke.center().y(), 75, 1);
    EXPECT_GT(stroke.height(), 4);
    EXPECT_LT(stroke.height(), 26) << "pressure makes it thinner than the mouse's";
    expectIdle();
}

TEST_F(DrawViewEventsTest, TiltReachesTheStrokeWhereItIsAskedForAndKnown) {
    view->setRadiusControl({0, 1, 0});
    tilt = 60;
    for (const auto& [device, uses, height] :
         {std::tuple(pen, false, 20), std::tuple(otherPen, true, 20), std::tuple(pen, true, 52)}) {
        view->clear();
        view->setUsesPenTilt(uses);
        tablet(QEvent::TabletPress, {20, 75}, 1, device);
        for (int i = 1; i <= 12; ++i) {
            tablet(QEvent::TabletMove, {20.0 + i * 12, 75}, 1, device);
        }
        tablet(QEvent::TabletRelease, {164, 75}, 1, device);
        EXPECT_NEAR(mark().height(), height, 3) << (device == pen) << uses;
    }
}

TEST_F(DrawViewEventsTest, NoMarkFromTheFirstFingerOfAPinch) {
    // Moves of the first finger before the second comes; a long line stays.
    for (const auto& [moves, stays] : {std::pair{0, false}, {6, false}, {20, false}, {40, true}}) {
        SCOPED_TRACE(moves);
        view->clear();
        touch(QEvent::TouchBegin, {{{20, 30}, Finger::Pressed}});
        QPointF first(20, 30);
        for (int i = 1; i <= moves; ++i) {
            first += QPointF(4, 0);
            touch(QEvent::TouchUpdate, {{first, Finger::Updated}});
        }
        touch(QEvent::TouchUpdate, {{first, Finger::Stationary}, {{150, 120}, Finger::Pressed}});
        for (int i = 1; i <= 12; ++i) {
            touch(QEvent::TouchUpdate, {{first, Finger::Updated}, {{150.0, 120.0 - i * 4}, Finger::Updated}});
        }
        touch(QEvent::TouchUpdate, {{first, Finger::Released}, {{150, 60}, Finger::Stationary}});
        touch(QEvent::TouchUpdate, {{{100, 100}, Finger::Updated}});
        touch(QEvent::TouchEnd, {{{100, 100}, Finger::Released}});
        EXPECT_EQ(!mark().isEmpty(), stays);
        EXPECT_LT(mark().bottom(), 60) << "nor from the second";
        expectIdle();
    }
    // One finger alone paints, with full pressure where none is measured; a touch pad does not.
    for (const QPointingDevice* device : {touchPad, touchScreen}) {
        view->clear();
        touch(QEvent::TouchBegin, {{{20, 75}, Finger::Pressed}}, device);
        touch(QEvent::TouchUpdate, {{{90, 75}, Finger::Updated}}, device);
        touch(QEvent::TouchUpdate, {{{150, 75}, Finger::Updated}}, device);
        touch(QEvent::TouchEnd, {{{160, 75}, Finger::Released}}, device);
        EXPECT_EQ(mark().isEmpty(), device == touchPad);
    }
    EXPECT_NEAR(mark().height(), 32, 2);
    touch(QEvent::TouchBegin, {{{20, 20}, Finger::Pressed}});
    touch(QEvent::TouchUpdate, {{{90, 20}, Finger::Updated}});
    const QImage withBoth = view->image();
    touch(QEvent::TouchCancel, {});
    EXPECT_GT(mark().top(), 50);
    EXPECT_NE(view->image(), withBoth);
    expectIdle();
}

TEST_F(DrawViewEventsTest, AStrokeEndsWithItsWindow) {
    const auto press = [&] {
        mouse(QEvent::MouseButtonPress, {20, 75});
        for (int i = 1; i <= 12; ++i) {
            mouse(QEvent::MouseMove, {20.0 + i * 8, 75});
        }
        EXPECT_TRUE(view->isDrawing());
    };
    const std::pair<const char*, std::function<void()>> ends[] = {
        {"deactivated",
         [&] {
             QEvent event(QEvent::WindowDeactivate);
             QApplication::sendEvent(view, &event);
         }},
        {"hidden",
         [&] {
             window.hide();
             window.show();
         }},
        {"no room",
         [&] {
             view->resize(0, 0);
             mouse(QEvent::MouseButtonPress, {20, 20});  // on nothing
             view->resize(200, 150);
         }},
        {"release lost", [&] {
             mouse(QEvent::MouseMove, {180, 120}, Qt::NoButton);
         }}};
    for (const auto& [name, end] : ends) {
        SCOPED_TRACE(name);
        view->clear();
        press();
        end();
        expectIdle();
        const QImage after = view->image();
        EXPECT_NEAR(mark().center().y(), 75, 1);
        mouse(QEvent::MouseMove, {180, 20});
        mouse(QEvent::MouseButtonRelease, {180, 20});
        EXPECT_TRUE(imagesMatch(view->image(), after));
    }
    press();
    delete view;  // quietly
}

TEST_F(DrawViewEventsTest, ALostEndBlocksNoOtherPointer) {
    touch(QEvent::TouchBegin, {{{20, 30}, Finger::Pressed}, {{120, 30}, Finger::Pressed}});
    window.hide();  // and the end of the pinch goes elsewhere
    window.show();
    touch(QEvent::TouchBegin, {{{20, 110}, Finger::Pressed}});
    touch(QEvent::TouchUpdate, {{{80, 110}, Finger::Updated}});
    touch(QEvent::TouchUpdate, {{{150, 110}, Finger::Updated}});
    view->setEnabled(false);
    view->setEnabled(true);
    expectIdle();
    touch(QEvent::TouchBegin, {{{20, 110}, Finger::Pressed}});
    touch(QEvent::TouchUpdate, {{{80, 110}, Finger::Updated}});
    touch(QEvent::TouchEnd, {{{150, 110}, Finger::Released}});
    EXPECT_GT(mark().top(), 80);
    touch(QEvent::TouchBegin, {{{20, 110}, Finger::Pressed}});
    view->setEnabled(false);
    view->setEnabled(true);
    mouseStroke(40);
    EXPECT_LT(mark().top(), 40);
}

}  // namespace
