// SPDX-License-Identifier: MIT
#include <QAction>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QMouseEvent>
#include <QToolBar>
#include <cmath>

#include "PainterTest.h"
#include "Tools/BrushBar.h"
#include "Tools/Tools.h"
#include "Tools/ValueSlider.h"
#include "Window/Commands.h"

namespace dabcanvas::dabpainter {

namespace {

class ToolBarsTest : public PainterTest {
protected:
    QAction* command(const char* name) { return _window->commands().find(QLatin1String(name))->action; }
    void click(double x, double y) {
        const QPointF at = _window->viewport().pointOfBuffer({x, y});
        QDDrawView* view = _window->view();
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, at, view->mapToGlobal(at), Qt::LeftButton,
                              type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                              Qt::NoModifier);
            QApplication::sendEvent(view, &event);
        }
        settle();
    }
    QColor pixel(int x, int y) { return _window->view()->image().pixelColor(x, y); }
};

TEST_F(ToolBarsTest, AClickFillsInOneStepAndNothingIsDrawn) {
    _window->brush().setValue(BrushKey::renderColor, QVariant::fromValue(ESColor(QColor(0, 0, 255))));
    paint();
    const QImage before = _window->view()->image();
    command("tool.fill")->trigger();
    settle();
    EXPECT_FALSE(_window->brushBar().size()->isVisible());
    EXPECT_TRUE(_window->brushBar().tolerance()->isVisible());
    click(20, 20);
    EXPECT_EQ(pixel(190, 140), QColor(0, 0, 255));
    command("edit.undo")->trigger();
    EXPECT_EQ(_window->view()->image(), before);
    command("tool.brush")->trigger();
    click(20, 20);
    EXPECT_EQ(pixel(190, 140), QColor(Qt::white)) << "painted again";
}

TEST_F(ToolBarsTest, TheCheckedToolIsTheOneInHand) {
    const char* const names[] = {"tool.brush", "tool.eraser", "tool.smudge",
                                 "tool.fill",  "brush.pick",  "select.lasso"};
    constexpr int kTools = int(std::size(names));
    for (int i = 0; i < kTools; ++i) {
        // A second time takes no check off; the eraser and a selection give back what was before.
        for (int times = 0; times < 2; ++times) {
            command(names[i])->trigger();
            const int expected = times == 0 ? i : i == 1 ? 0 : i == 5 ? 3 : i;
            for (int j = 0; j < kTools; ++j)
                EXPECT_EQ(command(names[j])->isChecked(), j == expected) << names[i] << ", " << names[j];
        }
    }
    command("brush.pick")->trigger();
    click(20, 20);
    EXPECT_EQ(_window->tools().tool(), Tool::fill) << "one colour was picked";
}

TEST_F(ToolBarsTest, SlidersFollowTheBrushAndMoveIt) {
    ValueSlider& size = *_window->brushBar().size();
    const double step = std::pow(size.numberAt(size.maximum()) / size.numberAt(0), 20.0 / size.maximum());
    for (const float radius : {2.0f, 7.5f, 60.0f, 333.0f}) {
        _window->brush().setValue(BrushKey::radius, radius);
        EXPECT_EQ(size.stored(), radius);
        const int before = size.value();
        size.setValue(before + 20);
        const float larger = _window->brush().value(BrushKey::radius).toFloat();
        EXPECT_NEAR(larger / radius, step, 0.06) << "by the same part of it, whatever it is";
        size.setValue(before);
        EXPECT_NEAR(_window->brush().value(BrushKey::radius).toFloat(), radius, 0.012 * radius + 0.05);
    }
}

TEST_F(ToolBarsTest, NumbersAreTyped) {
    ValueSlider& size = *_window->brushBar().size();
    size.setLocale(QLocale(QLocale::German));
    const auto radius = [this] { return _window->brush().value(BrushKey::radius).toFloat(); };
    const auto type = [&](const QString& text, int end) {
        auto* field = size.findChild<QDoubleSpinBox*>();
        ASSERT_TRUE(field);
        field->findChild<QLineEdit*>()->setText(text);
        sendKey(*field, end);
        settle();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    _window->brush().setValue(BrushKey::radius, 20.0f);
    for (const auto press :
         {QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick})
        sendMouse(size, press, {5, 8});
    EXPECT_EQ(radius(), 20) << "the first of two clicks is no value";
    type("12,5", Qt::Key_Return);
    EXPECT_EQ(radius(), 12.5f);
    for (const int opens : {Qt::Key_F2, Qt::Key_Enter}) {
        sendKey(size, opens);
        type("77", Qt::Key_Escape);
        EXPECT_EQ(radius(), 12.5f);
    }
    sendKey(size, Qt::Key_F2);
    type("1200 px", Qt::Key_Enter);
    EXPECT_EQ(radius(), 1200) << "beyond the slider's end";
    EXPECT_FALSE(size.findChild<QDoubleSpinBox*>());
}

TEST_F(ToolBarsTest, TipsTellTheKeysThatTheUserChose) {
    EXPECT_EQ(command("tool.fill")->toolTip(), "Fill (G)");
    _window->commands().setKeys(*_window->commands().find("tool.fill"), {QKeySequence("Ctrl+F")});
    EXPECT_EQ(command("tool.fill")->toolTip(), "Fill (Ctrl+F)");
}

// Also where the words are long: of a screen of 1920 x 1080 at 1.5 there are 1280 x 720 points, less what the desktop takes.
TEST_F(ToolBarsTest, TheWindowFitsASmallScreen) {
    const QSize least = _window->minimumSizeHint();
    EXPECT_LE(least.width(), 900);
    EXPECT_LE(least.height(), 560);
    _window->resize(900, 560);
    settle();
    EXPECT_EQ(_window->size(), QSize(900, 560));
    EXPECT_GE(_window->viewport().width(), 400);
}

}  // namespace

}  // namespace dabcanvas::dabpainter
