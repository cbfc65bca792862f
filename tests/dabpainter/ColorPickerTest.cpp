// SPDX-License-Identifier: MIT
#include "Viewport/ColorPicker.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPointingDevice>
#include <QTouchEvent>

#include "Canvas/CanvasLayers.h"
#include "Colour/ColorPanel.h"
#include "PainterTest.h"
#include "Viewport/CanvasPointer.h"
#include "Viewport/ShownColor.h"

namespace dabcanvas::dabpainter {

namespace {

TEST(ShownColorTest, IsTheAverageOfWhatPaintThereIs) {
    QImage image(9, 9, QImage::Format_RGBA8888_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.fillRect(0, 0, 3, 9, QColor(200, 0, 0));
    painter.fillRect(3, 0, 3, 9, QColor(0, 100, 0));
    painter.end();
    struct Case {
        QPoint pixel;
        int side;
        QColor expected;
    };
    const Case cases[] = {
        {{1, 4}, 1, QColor(200, 0, 0)},  {{1, 4}, 3, QColor(200, 0, 0)},
        {{2, 4}, 3, QColor(133, 33, 0)}, {{0, 0}, 3, QColor(200, 0, 0)},    // what there is beside the edge
        {{6, 4}, 5, QColor(0, 100, 0)},  {{4, 4}, 11, QColor(100, 50, 0)},  // nothing does not darken
        {{8, 4}, 1, QColor()},           {{9, 4}, 11, QColor()},
    };
    for (const auto& [pixel, side, expected] : cases)
        EXPECT_EQ(shownColor(image, pixel, side), expected) << pixel.x() << ", " << pixel.y() << ": " << side;
    image.fill(QColor(200, 100, 40, 128));
    const QColor thin = shownColor(image, {4, 4}, 3);
    EXPECT_NEAR(thin.red(), 200, 1);
    EXPECT_EQ(thin.alpha(), 255);
}

class ColorPickerTest : public PainterTest {
protected:
    void SetUp() override {
        PainterTest::SetUp();
        QImage halves(200, 150, QImage::Format_RGBA8888_Premultiplied);
        halves.fill(Qt::transparent);
        QPainter(&halves).fillRect(100, 0, 100, 150, QColor(0, 60, 200));
        auto layers = _window->view()->layers();
        layers.add(1, {}, halves);
        layers.setActive(0);  // which is white all over
        set(Qt::red);
    }
    ColorPicker& picker() { return _window->pointer().picker(); }
    void set(const QColor& color) {
        _window->brush().setValue(BrushKey::renderColor, QVariant::fromValue(ESColor(color)));
    }
    QColor color() { return _window->brush().value(BrushKey::renderColor).value<ESColor>().toQColor(); }
    void send(QEvent::Type type, QPointF pixel, Qt::KeyboardModifiers modifiers, bool held) {
        const bool isMove = type == QEvent::MouseMove;
        const QPointF at = _window->viewport().pointOfBuffer(pixel);
        QMouseEvent event(type, at, _window->view()->mapToGlobal(at), isMove ? Qt::NoButton : Qt::LeftButton,
                          held ? Qt::LeftButton : Qt::NoButton, modifiers);
        QApplication::sendEvent(_window->view(), &event);
    }
};

TEST_F(ColorPickerTest, CtrlPicksWhatIsShownByAPressAlone) {
    const QImage before = _window->view()->displayImage().copy();
    QEvent left(QEvent::Leave);
    QApplication::sendEvent(_window->view(), &left);
    send(QEvent::MouseMove, {150, 75}, Qt::ControlModifier, false);
    ASSERT_TRUE(picker().isVisible());
    const QImage ring = picker().grab().toImage();
    const QPointF middle = _window->viewport().pointOfBuffer({150, 75}) * ring.devicePixelRatio();
    const QPoint up(0, qRound(33 * ring.devicePixelRatio()));
    EXPECT_EQ(ring.pixel(middle.toPoint() - up), qRgb(0, 60, 200));
    EXPECT_EQ(ring.pixel(middle.toPoint() + up), QColor(Qt::red).rgb()) << "the present one";
    send(QEvent::MouseMove, {150, 75}, Qt::NoModifier, false);
    EXPECT_FALSE(picker().isVisible());
    EXPECT_EQ(color().rgb(), QColor(Qt::red).rgb()) << "looking takes nothing";
    send(QEvent::MouseMove, {150, 75}, Qt::ControlModifier | Qt::ShiftModifier, false);
    EXPECT_FALSE(picker().isActive()) << "which means something else";

    send(QEvent::MouseButtonPress, {150, 75}, Qt::ControlModifier, true);
    EXPECT_EQ(color().rgb(), qRgb(0, 60, 200)) << "of the upper layer, though the lower one is active";
    send(QEvent::MouseMove, {50, 75}, Qt::NoModifier, true);  // Ctrl may be let go of first
    EXPECT_EQ(color().rgb(), qRgb(255, 255, 255));
    send(QEvent::MouseButtonRelease, {50, 75}, Qt::NoModifier, false);
    EXPECT_FALSE(picker().isActive());
    EXPECT_EQ(_window->view()->displayImage(), before) << "nothing was painted";

    _window->colours().setPickSide(11);
    send(QEvent::MouseButtonPress, {100, 75}, Qt::ControlModifier, true);
    send(QEvent::MouseButtonRelease, {100, 75}, Qt::ControlModifier, false);
    EXPECT_NEAR(color().red(), 255 * 5 / 11, 1);
    send(QEvent::MouseMove, {100, 75}, Qt::NoModifier, false);
    paint();
    EXPECT_NE(_window->view()->displayImage(), before);
}

TEST_F(ColorPickerTest, TurnedOnItTakesOneColour) {
    picker().setOn(true);
    send(QEvent::MouseMove, {150, 75}, Qt::NoModifier, false);
    EXPECT_TRUE(picker().isVisible());
    send(QEvent::MouseMove, {-500, 75}, Qt::NoModifier, false);
    EXPECT_FALSE(picker().isVisible()) << "there is nothing";
    send(QEvent::MouseButtonPress, {150, 75}, Qt::NoModifier, true);
    send(QEvent::MouseButtonRelease, {150, 75}, Qt::NoModifier, false);
    EXPECT_EQ(color().rgb(), qRgb(0, 60, 200));
    EXPECT_FALSE(picker().isActive());
    EXPECT_FALSE(picker().isVisible());
}

TEST_F(ColorPickerTest, FingersPickAsTheyMayPaintOrByATap) {
    using Type = QInputDevice::DeviceType;
    const QPointingDevice screen("screen", 31, Type::TouchScreen, QPointingDevice::PointerType::Finger,
                                 QInputDevice::Capability::Position, 10, 0);
    QDDrawView& view = *_window->view();
    const auto touch = [&](QEvent::Type type, const QList<QPointF>& pixels) {
        const auto state = type == QEvent::TouchBegin    ? QEventPoint::State::Pressed
                           : type == QEvent::TouchUpdate ? QEventPoint::State::Updated
                                                         : QEventPoint::State::Released;
        QList<QEventPoint> points;
        for (const QPointF& pixel : pixels) {
            const QPointF at = _window->viewport().pointOfBuffer(pixel);
            points << QEventPoint(int(points.size()) + 1, state, at, view.mapToGlobal(at));
        }
        QTouchEvent event(type, &screen, Qt::NoModifier, points);
        QApplication::sendEvent(&view, &event);
    };
    const auto picks = [&](const QList<QPointF>& way) {
        set(Qt::red);
        picker().setOn(true);
        touch(QEvent::TouchBegin, {way.first()});
        for (const QPointF& to : way.mid(1))
            touch(QEvent::TouchUpdate, {to});
        touch(QEvent::TouchEnd, {way.last()});
        return std::pair(color().rgb(), picker().isOn());
    };
    const auto before = view.displayImage();
    const QRgb blue = qRgb(0, 60, 200), red = QColor(Qt::red).rgb();
    EXPECT_EQ(picks({{50, 75}, {100, 75}, {150, 75}}), std::pair(blue, false));
    picker().setOn(true);
    set(Qt::red);
    touch(QEvent::TouchBegin, {{150, 75}});
    touch(QEvent::TouchUpdate, {{150, 75}, {60, 75}});
    touch(QEvent::TouchEnd, {{150, 75}, {60, 75}});
    EXPECT_EQ(std::pair(color().rgb(), picker().isOn()), std::pair(red, true)) << "a pinch picks nothing";
    _window->settings().setTouch(TouchPolicy::pensOnly);
    EXPECT_EQ(picks({{50, 75}, {100, 75}, {150, 75}}), std::pair(red, true)) << "it moves the canvas";
    EXPECT_EQ(picks({{150, 75}}), std::pair(blue, false));
    EXPECT_EQ(view.displayImage(), before) << "nothing was painted";
}

}  // namespace

}  // namespace dabcanvas::dabpainter
