// SPDX-License-Identifier: MIT
// What stands between the hand and the canvas: pressure, a steady hand, symmetry, and how the canvas lies.
#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QTabletEvent>
#include <numbers>

#include "Input/PressureCurveEditor.h"
#include "Input/PressureDialog.h"
#include "Input/PressureTester.h"
#include "Input/StabiliserControl.h"
#include "PainterTest.h"
#include "Viewport/SymmetryGuide.h"
#include "Window/Commands.h"

namespace dabcanvas::dabpainter {

namespace {

class InputTest : public PainterTest {
protected:
    void call(const char* name) { _window->commands().find(QLatin1String(name))->action->trigger(); }
    void mouse(QEvent::Type type, QPointF at) {
        QDDrawView* view = _window->view();
        QMouseEvent event(type, at, view->mapToGlobal(at),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view, &event);
    }
    void drag(QPointF from, QPointF to) {
        mouse(QEvent::MouseButtonPress, from);
        mouse(QEvent::MouseMove, (from + to) / 2);
        mouse(QEvent::MouseMove, to);
        mouse(QEvent::MouseButtonRelease, to);
    }
    void key(QEvent::Type type, int which) {
        QKeyEvent event(type, which, Qt::NoModifier);
        QApplication::sendEvent(&_window->viewport(), &event);
    }
    double degrees() { return _window->view()->viewRotation() * 180 / std::numbers::pi; }
    QPointF inView(double x, double y) { return _window->viewport().pointOfBuffer({x, y}); }
};

// ---- Pressure

void press(QWidget& widget, int key, Qt::KeyboardModifiers held = Qt::NoModifier) {
    QKeyEvent event(QEvent::KeyPress, key, held);
    QApplication::sendEvent(&widget, &event);
}

TEST(PressurePointsTest, RiseWhateverIsDoneToThem) {
    PressurePoints points;
    EXPECT_EQ(points.curve(), PressureCurve());
    EXPECT_EQ(points.add({0.5, 0.2}), 1);
    EXPECT_EQ(points.add({0.51, 0.2}), -1) << "too near";
    EXPECT_EQ(points.add({0.7, 0.1}), 2) << "no lower than the one before";
    EXPECT_EQ(points.all()[2], QPointF(0.7, 0.2));
    for (const QPointF& to : {QPointF(-3, 9), QPointF(9, -3), QPointF(0.2, 0.1), QPointF(0.6, 0.5)}) {
        for (int i = 0; i < points.count(); ++i) {
            points.move(i, to);
            EXPECT_TRUE(PressureCurve::through(points.all())) << i << ' ' << to.x();
        }
    }
    EXPECT_EQ(PressurePoints::ofText(points.text()).curve().points().size(), 4u);
    EXPECT_TRUE(points.remove(3) && points.remove(0));
    EXPECT_FALSE(points.remove(0)) << "two stay";
    for (const char* text : {"", "1 2 3", "0 0;0.5 0.9;1 0.2", "0.2 0.2", "a b;c d"})
        EXPECT_EQ(PressurePoints::ofText(QLatin1String(text)).curve(), PressureCurve()) << text;
}

TEST(PressureCurveEditorTest, GoesByTheKeyboardAndThePointer) {
    PressureCurveEditor editor;
    editor.resize(224, 224);
    press(editor, Qt::Key_Insert);
    EXPECT_EQ(editor.points().all()[1], QPointF(0.5, 0.5));
    EXPECT_EQ(editor.chosen(), 1);
    press(editor, Qt::Key_Down, Qt::ShiftModifier);
    press(editor, Qt::Key_Right);
    EXPECT_LT(QLineF(editor.points().all()[1], {0.51, 0.45}).length(), 1e-9);
    press(editor, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(editor.chosen(), 2);
    press(editor, Qt::Key_Left, Qt::ControlModifier);
    press(editor, Qt::Key_Delete);
    EXPECT_EQ(editor.points().count(), 2);

    const auto mouse = [&](QEvent::Type type, QPointF at) {
        QMouseEvent event(type, at, at, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&editor, &event);
    };
    mouse(QEvent::MouseButtonPress, {112, 62});
    EXPECT_EQ(editor.points().all()[1], QPointF(0.5, 0.75));
    mouse(QEvent::MouseMove, {62, 112});
    EXPECT_EQ(editor.points().all()[1], QPointF(0.25, 0.5));
    mouse(QEvent::MouseMove, {62, -60});
    EXPECT_EQ(editor.points().count(), 2) << "dragged out";
}

TEST_F(InputTest, TheTesterDrawsByTheCurveWhichAllCanvasesTake) {
    _window->brush().setValue(BrushKey::renderColor, QVariant::fromValue(ESColor::grey(0)));
    _window->brush().setValue(BrushKey::radiusControl, QVariant::fromValue(LPControlParams{1, 0, 0}));
    PressureDialog dialog({}, _window->brush());
    PressureTester& tester = dialog.tester();
    dialog.resize(700, 420);
    dialog.show();
    settle();
    const auto drawn = [&](const char* preset) {
        for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
            if (button->text() == QLatin1String(preset))
                button->click();
        }
        tester.clear();
        const QPointingDevice pen;
        const auto send = [&](QEvent::Type type, QPointF at) {
            QTabletEvent event(type, &pen, at, at, 0.5, 0, 0, 0, 0, 0, Qt::NoModifier,
                               type == QEvent::TabletMove ? Qt::NoButton : Qt::LeftButton,
                               type == QEvent::TabletRelease ? Qt::NoButton : Qt::LeftButton);
            QApplication::sendEvent(tester.view(), &event);
        };
        send(QEvent::TabletPress, {30, 60});
        for (int x = 40; x < 200; x += 10)
            send(QEvent::TabletMove, {double(x), 60});
        send(QEvent::TabletRelease, {200, 60});
        const QImage image = tester.view()->image();
        int dark = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                dark += 255 - qRed(image.pixel(x, y));
        }
        return dark;
    };
    const int linear = drawn("&Linear"), soft = drawn("So&ft"), firm = drawn("Fir&m");
    EXPECT_GT(soft, linear * 1.1);
    EXPECT_LT(firm, linear * 0.9);

    _window->settings().setPressure(dialog.curve());
    EXPECT_EQ(_window->view()->pointerOptions().pressure, dialog.curve());
    makeWindow();
    EXPECT_EQ(_window->view()->pointerOptions().pressure, dialog.curve());
}

// ---- A steady hand

TEST_F(InputTest, EachBrushRemembersWhatSteadiesIt) {
    const auto control = [&] { return _window->findChild<StabiliserControl*>(); };
    const auto onCanvas = [&] { return _window->view()->pointerOptions().stabiliser; };
    _name = "Ink";
    ASSERT_TRUE(_window->presets().saveNew());
    const PresetId ink = _window->presets().chosen();
    control()->findChild<QComboBox*>()->setCurrentIndex(int(Stabilising::string));
    control()->findChild<QSlider*>()->setValue(30);
    EXPECT_EQ(onCanvas(), (StabiliserOptions{.kind = Stabilising::string, .length = 60}));
    ASSERT_TRUE(_window->presets().choose({}));
    EXPECT_EQ(onCanvas(), StabiliserOptions());
    EXPECT_FALSE(control()->findChild<QSlider*>()->isEnabled());
    ASSERT_TRUE(_window->presets().choose(ink));
    EXPECT_EQ(onCanvas().length, 60);
    _name = "India ink";
    ASSERT_TRUE(_window->presets().rename(ink));
    EXPECT_EQ(onCanvas().length, 60);
    _window->settings().write();
    makeWindow();
    EXPECT_EQ(onCanvas(), (StabiliserOptions{.kind = Stabilising::string, .length = 60}));
    EXPECT_EQ(control()->options(), onCanvas());
}

// ---- How the canvas lies

TEST_F(InputTest, TheViewTurnsAndMirrorsUntilAllOfItIsShown) {
    const QImage blank = _window->view()->image();
    call("view.turnLeft");
    call("view.turnLeft");
    EXPECT_NEAR(degrees(), 30, 1e-9);
    call("view.turnRight");
    call("view.mirror");
    EXPECT_TRUE(_window->view()->isViewMirrored());
    const auto labels = _window->findChildren<QLabel*>();
    EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [](const QLabel* label) {
        return label->text() == QString::fromUtf8("Mirrored, 15°");
    }));
    call("view.turnUpright");
    EXPECT_EQ(degrees(), 0);

    // By hand, a quarter about the middle; nothing is painted meanwhile.
    const QPointF middle = QRectF(_window->viewport().rect()).center();
    _window->viewport().setFocus();
    key(QEvent::KeyPress, Qt::Key_Q);
    drag(middle + QPointF(100, 0), middle + QPointF(0, -100));
    key(QEvent::KeyRelease, Qt::Key_Q);
    EXPECT_NEAR(degrees(), 90, 1e-9);
    EXPECT_EQ(_window->view()->image(), blank);
    call("view.wholeCanvas");
    EXPECT_EQ(degrees(), 0);
    drag(inView(50, 50), inView(150, 60));
    EXPECT_NE(_window->view()->image(), blank);
}

TEST_F(InputTest, ACroppedCanvasIsWholeInTheView) {
    call("canvas.crop");
    EXPECT_EQ(_window->view()->bufferSize(), QSizeF(200, 150)) << "nothing is drawn";
    paint();
    call("canvas.crop");
    const QSizeF cropped = _window->view()->bufferSize();
    EXPECT_LT(cropped.height(), 60);
    EXPECT_GT(cropped.width(), 110);
    call("edit.undo");
    EXPECT_EQ(_window->view()->bufferSize(), QSizeF(200, 150));
    EXPECT_EQ(_window->view()->viewCentre(), QPointF(100, 75));
}

// ---- Symmetry

TEST_F(InputTest, SymmetryIsOfEveryCanvasAndItsCentreIsDragged) {
    const auto now = [&] { return _window->view()->symmetry(); };
    call("symmetry.both");
    EXPECT_EQ(now(), (Symmetry{SymmetryKind::both, 100, 75}));
    ASSERT_TRUE(_window->startCanvas({QSize(90, 61), Qt::white}));
    EXPECT_EQ(now(), (Symmetry{SymmetryKind::both, 45, 30.5}));
    call("symmetry.moveCentre");
    const QImage blank = _window->view()->image();
    drag(inView(10, 10), inView(60.2, 20.6));
    EXPECT_EQ(now(), (Symmetry{SymmetryKind::both, 60, 20.5}));
    EXPECT_EQ(_window->view()->image(), blank);
    EXPECT_FALSE(_window->commands().find("symmetry.moveCentre")->action->isChecked());
    call("symmetry.centreInTheMiddle");
    drag(inView(20, 10), inView(30, 20));
    const QImage drawn = _window->view()->image();
    EXPECT_NE(drawn, blank);
    EXPECT_LT(qRed(drawn.pixel(89 - 28, 60 - 18)), 250) << "its copy on the other side of both axes";
    call("symmetry.none");
    EXPECT_FALSE(_window->findChild<SymmetryGuide*>()->isVisible());
}

}  // namespace
}  // namespace dabcanvas::dabpainter
