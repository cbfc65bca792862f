// SPDX-License-Identifier: MIT
// The whole painter under mouse, pen and fingers as the window system reports them: in every order of arrival, with
// releases that are lost and devices that vanish.
#include <qpa/qwindowsysteminterface.h>

#include <QLineF>
#include <QPointingDevice>
#include <QTest>
#include <QWindow>
#include <QtMath>
#include <array>
#include <map>
#include <string>

#include "Selection/SelectionEditor.h"
#include "Selection/SelectionTool.h"
#include "Viewport/CanvasPointer.h"
#include "dabpainter/PainterTest.h"

namespace dabcanvas::dabpainter {
namespace {

using Type = QInputDevice::DeviceType;
using Tip = QPointingDevice::PointerType;

enum class Hand { mouse, pen, eraser, finger };
constexpr std::array kHands{Hand::mouse, Hand::pen, Hand::eraser, Hand::finger};
constexpr std::array kNames{"mouse", "pen", "eraser", "finger"};

const char* nameOf(Hand hand) {
    return kNames[std::size_t(hand)];
}

enum class End {
    released,  // as it should
    lost,      // the release goes elsewhere; the device is heard of again when it paints next
    vanished   // unplugged in mid-stroke
};
constexpr std::array kEnds{End::released, End::lost, End::vanished};

class PainterInputTest : public PainterTest {
protected:
    void SetUp() override {
        PainterTest::SetUp();
        prepare();
    }
    void TearDown() override {
        for (const Hand hand : kHands) {
            release(hand);
        }
        PainterTest::TearDown();
    }

    void prepare() {
        ASSERT_TRUE(QTest::qWaitForWindowExposed(_window.get()));
        _window->settings().setTouch(TouchPolicy::fingersPaint);
        _window->brush().setValue(BrushKey::hardness, 1.0f);
        _window->brush().setValue(BrushKey::radius, 12.0f);
        blank();
    }

    // Grey: what is erased of it gets white, what is painted black.
    void blank() { _window->view()->clearWithColor(ESColor::grey(0.5f), true); }

    const QPointingDevice& device(Hand hand) {
        auto& made = _devices[hand];
        if (!made) {
            ++_lastId;
            const bool isFinger = hand == Hand::finger;
            QInputDevice::Capabilities can = QInputDevice::Capability::Position;
            can.setFlag(QInputDevice::Capability::Pressure, !isFinger);
            made = std::make_unique<QPointingDevice>(QLatin1String(nameOf(hand)), _lastId,
                                                     isFinger ? Type::TouchScreen : Type::Stylus,
                                                     isFinger               ? Tip::Finger
                                                     : hand == Hand::eraser ? Tip::Eraser
                                                                            : Tip::Pen,
                                                     can, isFinger ? 10 : 1, 3, QStringLiteral("seat"),
                                                     QPointingDeviceUniqueId::fromNumericId(_lastId));
            QWindowSystemInterface::registerInputDevice(made.get());
        }
        return *made;
    }

    // In the window's points; x from 0 to 1, and of each hand a row of its own.
    QPointF placeOf(Hand hand, double x) {
        QDDrawView& view = *_window->view();
        const QPointF inBuffer(view.bufferSize().width() * x, view.bufferSize().height() * rowOf(hand));
        return view.mapTo(_window.get(), view.bufferToView().map(inBuffer));
    }
    static double rowOf(Hand hand) { return 0.2 + 0.2 * int(hand); }

    void report(Hand hand, double x, bool down, QEvent::Type mouse, QEventPoint::State touch) {
        QWindow* const window = _window->windowHandle();
        const double dots = _window->devicePixelRatioF();
        const QPointF at = placeOf(hand, x) * dots;
        const QPointF global = QPointF(_window->mapToGlobal(placeOf(hand, x).toPoint())) * dots;
        const Qt::MouseButtons buttons = down ? Qt::LeftButton : Qt::NoButton;
        switch (hand) {
            case Hand::mouse:
                QWindowSystemInterface::handleMouseEvent(
                    window, at, global, buttons, mouse == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                    mouse);
                break;
            case Hand::pen:
            case Hand::eraser:
                QWindowSystemInterface::handleTabletEvent(window, &device(hand), at, global, buttons,
                                                          down ? 0.8 : 0, 0, 0, 0, 0, 0);
                break;
            case Hand::finger: {
                QWindowSystemInterface::TouchPoint point;
                point.id = 1;
                point.state = touch;
                point.area = QRectF(global - QPointF(2, 2), QSizeF(4, 4));
                point.pressure = down ? 1 : 0;
                QWindowSystemInterface::handleTouchEvent(window, &device(hand), {point});
                break;
            }
        }
        settle();
    }
    // Of one hand that comes and goes at once; in the window's points.
    void fingers(QEventPoint::State state, const QList<QPointF>& places) {
        QList<QWindowSystemInterface::TouchPoint> points;
        for (const QPointF& place : places) {
            QWindowSystemInterface::TouchPoint point;
            point.id = 1 + int(points.size());
            point.state = state;
            point.pressure = state == QEventPoint::State::Released ? 0 : 1;
            const QPointF global =
                QPointF(_window->mapToGlobal(place.toPoint())) * _window->devicePixelRatioF();
            point.area = QRectF(global - QPointF(2, 2), QSizeF(4, 4));
            points << point;
        }
        QWindowSystemInterface::handleTouchEvent(_window->windowHandle(), &device(Hand::finger), points);
        settle();
    }
    QPointF placeOfStart() {
        const QDDrawView& view = *_window->view();
        return view.mapTo(_window.get(), QPointF(view.width() / 2.0 - 30, view.height() / 2.0));
    }

    void press(Hand hand) {
        if (hand == Hand::pen || hand == Hand::eraser) {  // it hovers before
            report(hand, 0.1, false, QEvent::MouseMove, QEventPoint::State::Stationary);
        }
        _down[hand] = true;
        report(hand, 0.1, true, QEvent::MouseButtonPress, QEventPoint::State::Pressed);
    }
    void move(Hand hand, double x) { report(hand, x, true, QEvent::MouseMove, QEventPoint::State::Updated); }
    void release(Hand hand, double x = 0.9) {
        if (std::exchange(_down[hand], false)) {
            report(hand, x, false, QEvent::MouseButtonRelease, QEventPoint::State::Released);
        }
    }
    void end(Hand hand, End how) {
        if (how == End::released) {
            release(hand, 0.5);
        } else if (how == End::vanished && hand != Hand::mouse) {
            _devices.erase(hand);
            settle();
        }
        _down[hand] = false;
    }
    void leaveProximity(Hand hand) {
        QWindowSystemInterface::handleTabletEnterLeaveProximityEvent(_window->windowHandle(), &device(hand),
                                                                     false);
        settle();
    }
    void drag(Hand hand, double from, double to) {
        for (int i = 0; i <= 6; ++i) {
            move(hand, from + (to - from) * i / 6);
        }
    }
    QColor inTheMiddle(Hand hand) {
        const QImage image = _window->view()->image();
        return image.pixelColor(image.width() / 2, int(image.height() * rowOf(hand)));
    }
    // Whether it paints as if nothing had been before.
    bool paints(Hand hand) {
        blank();
        press(hand);
        drag(hand, 0.2, 0.8);
        release(hand);
        const int light = inTheMiddle(hand).lightness();
        return !_window->view()->isDrawing() && (hand == Hand::eraser ? light > 200 : light < 60);
    }

    std::map<Hand, std::unique_ptr<QPointingDevice>> _devices;
    std::map<Hand, bool> _down;
    qint64 _lastId = 7000;
};

// Two hands of which the second comes while the first one paints, each of them ended as may be, in either order.
TEST_F(PainterInputTest, WhateverCameBeforeEveryDevicePaintsSavesAndCloses) {
    const QString file = path(QStringLiteral("a.png"));
    for (const Hand first : kHands) {
        for (const Hand second : kHands) {
            for (int way = 0; way < 18; ++way) {
                const End firstEnd = kEnds[std::size_t(way % 3)], secondEnd = kEnds[std::size_t(way / 3 % 3)];
                const bool inOrder = way < 9;
                SCOPED_TRACE(std::string(nameOf(first)) + " " + std::to_string(int(firstEnd)) + ", " +
                             nameOf(second) + " " + std::to_string(int(secondEnd)) +
                             (inOrder ? "" : ", the second ends first"));
                press(first);
                drag(first, 0.2, 0.4);
                if (second != first) {
                    press(second);
                    drag(second, 0.2, 0.4);
                }
                inOrder ? end(first, firstEnd) : end(second, secondEnd);
                inOrder ? end(second, secondEnd) : end(first, firstEnd);
                EXPECT_TRUE(_window->saveTo(file));
                EXPECT_FALSE(_window->view()->isDrawing());
                EXPECT_EQ(QImage(file).pixelColor(100, 30), _window->view()->image().pixelColor(100, 30));
                for (const Hand next : kHands) {
                    EXPECT_TRUE(paints(next)) << nameOf(next);
                }
            }
        }
    }
}

// A device that goes does not keep others from painting, nor, for longer than a second, one that nobody hears of.
TEST_F(PainterInputTest, WhoIsGoneKeepsNobodyWaiting) {
    for (std::size_t i = 0; i < kHands.size(); ++i) {
        const Hand first = kHands[i], next = kHands[(i + 1) % kHands.size()];
        SCOPED_TRACE(nameOf(first));
        if (first != Hand::mouse) {
            press(first);
            drag(first, 0.2, 0.4);
            end(first, End::vanished);
            EXPECT_TRUE(paints(next)) << "after it has vanished";
        }
        press(first);
        drag(first, 0.2, 0.4);
        EXPECT_FALSE(paints(next)) << "while it paints";
        end(next, End::lost);
        end(first, End::lost);
        if (first == Hand::pen || first == Hand::eraser) {
            leaveProximity(first);
        } else {
            QTest::qWait(1100);
        }
        EXPECT_TRUE(paints(next)) << "after its release was lost";
    }
}

TEST_F(PainterInputTest, ClosingInTheMiddleOfAStrokeSavesIt) {
    _answer = UnsavedAnswer::save;
    for (const Hand hand : kHands) {
        SCOPED_TRACE(nameOf(hand));
        _saveName = path(QLatin1String(nameOf(hand)) + QStringLiteral(".png"));
        press(hand);
        drag(hand, 0.2, 0.8);
        EXPECT_TRUE(_window->close());
        EXPECT_EQ(QImage(_saveName).pixelColor(100, int(150 * rowOf(hand))), inTheMiddle(hand));
        _down[hand] = false;
        makeWindow();
        prepare();
    }
}

// Some pens are told to be down before they touch, and some only ever hover so.
TEST_F(PainterInputTest, APenWithoutPressureLeavesNothing) {
    const auto stroke = [&](double pressure) {
        QWindow* const window = _window->windowHandle();
        for (int i = 0; i <= 10; ++i) {
            const QPointF at = placeOf(Hand::pen, 0.1 + 0.08 * i) * _window->devicePixelRatioF();
            QWindowSystemInterface::handleTabletEvent(
                window, &device(Hand::pen), at, QPointF(window->position()) + at,
                i < 10 ? Qt::LeftButton : Qt::NoButton, i == 0 ? 0 : pressure, 0, 0, 0, 0, 0);
            settle();
        }
    };
    const QImage before = _window->view()->image();
    stroke(0);
    EXPECT_EQ(_window->view()->image(), before);
    EXPECT_FALSE(_window->view()->isDrawing());
    stroke(0.7);
    EXPECT_LT(inTheMiddle(Hand::pen).lightness(), 60);
    EXPECT_TRUE(paints(Hand::mouse));
}

// By the policy that is set, for every canvas to come.
TEST_F(PainterInputTest, FingersPaintOrMoveTheCanvasAsTheUserLikes) {
    const struct {
        TouchPolicy policy;
        bool penSeen, paints;
    } rows[] = {{TouchPolicy::pensOnceSeen, false, true},
                {TouchPolicy::pensOnceSeen, true, false},
                {TouchPolicy::pensOnly, false, false},
                {TouchPolicy::fingersPaint, true, true}};
    for (const auto& row : rows) {
        SCOPED_TRACE(std::to_string(int(row.policy)) + (row.penSeen ? ", a pen was seen" : ""));
        _window->settings().setTouch(row.policy);
        ASSERT_TRUE(_window->startCanvas({QSize(200, 150), Qt::white}));
        if (row.penSeen) {
            report(Hand::pen, 0.5, false, QEvent::MouseMove, QEventPoint::State::Stationary);
        }
        const QImage blank = _window->view()->image();
        _window->viewport().setZoom(8);
        fingers(QEventPoint::State::Pressed, {placeOfStart()});
        fingers(QEventPoint::State::Released, {placeOfStart()});
        EXPECT_EQ(_window->view()->image() != blank, row.paints) << "a tap leaves a dab";
        const QImage before = _window->view()->image();
        const QPointF corner = _window->view()->bufferToView().map(QPointF());
        fingers(QEventPoint::State::Pressed, {placeOfStart()});
        for (int i = 1; i <= 6; ++i) {
            fingers(QEventPoint::State::Updated, {placeOfStart() + QPointF(10 * i, 0)});
        }
        fingers(QEventPoint::State::Released, {placeOfStart() + QPointF(60, 0)});
        EXPECT_EQ(_window->view()->image() != before, row.paints);
        EXPECT_EQ(_window->view()->bufferToView().map(QPointF()) != corner, !row.paints);
    }
}

TEST_F(PainterInputTest, TwoFingersThatTapUndoThreeRedoAndATwistTurns) {
    const QImage before = _window->view()->image();
    ASSERT_TRUE(paints(Hand::mouse));
    const QImage after = _window->view()->image();
    const QPointF at = placeOfStart();
    const auto tap = [&](const QList<QPointF>& places) {
        fingers(QEventPoint::State::Pressed, places);
        fingers(QEventPoint::State::Released, places);
    };
    tap({at, at + QPointF(50, 0)});
    EXPECT_EQ(_window->view()->image(), before);
    tap({at, at + QPointF(50, 0), at + QPointF(25, 30)});
    EXPECT_EQ(_window->view()->image(), after);

    // From one to the other they get twice as far apart.
    const auto turned = [&](double degrees) {
        QLineF between(at + QPointF(50, 0), at + QPointF(90 + degrees * 2 / 3, 0));
        between.setAngle(degrees);
        return QList<QPointF>{between.p1(), between.p2()};
    };
    const double zoom = _window->viewport().zoom();
    fingers(QEventPoint::State::Pressed, turned(0));
    for (int degrees = 10; degrees <= 60; degrees += 10) {
        fingers(QEventPoint::State::Updated, turned(degrees));
    }
    fingers(QEventPoint::State::Released, turned(60));
    EXPECT_NEAR(qRadiansToDegrees(_window->view()->viewRotation()), 60, 2);
    EXPECT_NEAR(_window->viewport().zoom(), 2 * zoom, 0.1 * zoom);
    EXPECT_EQ(_window->view()->image(), after);
    _window->viewport().fit();
    EXPECT_EQ(_window->view()->viewRotation(), 0);
}

// A drag moves what is selected, by whatever hand; none paints meanwhile, and each paints once it was put down.
TEST_F(PainterInputTest, EveryHandSelects) {
    SelectionEditor& editor = _window->selection();
    SelectionTool& tool = *_window->findChild<SelectionTool*>();
    for (const Hand hand : kHands) {
        for (const End how : {End::released, End::lost}) {
            SCOPED_TRACE(nameOf(hand));
            blank();
            const QImage before = _window->view()->image();
            tool.setKind(SelectionTool::Kind::lasso);
            editor.selectAll();
            press(hand);
            drag(hand, 0.1, 0.5);
            end(hand, how);
            ASSERT_TRUE(editor.floating());
            EXPECT_NEAR(editor.floating()->bounds().left(), 0.4 * before.width(), 1);
            EXPECT_EQ(_window->view()->image(), before);
            editor.giveUp();
            tool.setKind(SelectionTool::Kind::none);
            EXPECT_EQ(_window->view()->image(), before);
            EXPECT_TRUE(paints(hand));
        }
    }
}

}  // namespace
}  // namespace dabcanvas::dabpainter
