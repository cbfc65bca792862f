// SPDX-License-Identifier: MIT
// Keys, and what the keyboard and the pointer do together.
#include "Window/Commands.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QKeyEvent>
#include <QKeySequenceEdit>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QTreeWidget>
#include <set>

#include "PainterTest.h"
#include "Window/ShortcutsDialog.h"

namespace dabcanvas::dabpainter {

namespace {

class CommandsTest : public PainterTest {
protected:
    Commands& commands() { return _window->commands(); }
    QString keys(const char* name) {
        return QKeySequence::listToString(commands().find(name)->action->shortcuts(),
                                          QKeySequence::PortableText);
    }
    void mouse(QEvent::Type type, QPointF at, Qt::KeyboardModifiers held = {}) {
        QDDrawView* view = _window->view();
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        const Qt::MouseButtons down = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, at, view->mapToGlobal(at), button, down, held);
        QApplication::sendEvent(view, &event);
    }
    void press(int key, QEvent::Type type = QEvent::KeyPress) {
        QKeyEvent event(type, key, Qt::NoModifier);
        QApplication::sendEvent(&_window->viewport(), &event);
    }
    QPointF inView(double x, double y) { return _window->viewport().pointOfBuffer({x, y}); }
};

TEST_F(CommandsTest, EveryKeyCallsOneCommandAndChosenOnesStay) {
    std::set<QString> used;
    for (const Commands::Command& command : commands().all()) {
        EXPECT_FALSE(command.group.isEmpty() || command.action->text().isEmpty()) << qPrintable(command.name);
        for (const QKeySequence& key : command.usual)
            EXPECT_TRUE(used.insert(key.toString()).second)
                << qPrintable(command.name + " and another have " + key.toString());
    }

    ShortcutsDialog dialog(commands());
    auto* list = dialog.findChild<QTreeWidget*>();
    const auto assign = [&](const char* text, const char* key) {
        list->setCurrentItem(list->findItems(QString(text), Qt::MatchExactly | Qt::MatchRecursive).first());
        dialog.findChild<QKeySequenceEdit*>()->setKeySequence(QKeySequence(QLatin1String(key)));
        for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
            if (button->text() == "&Take It" || button->text() == "&Assign")
                button->click();
        }
    };
    assign("Save", "Ctrl+Y");  // which redo has, too
    assign("Clear", "Ctrl+L");
    EXPECT_EQ(keys("file.save"), "Ctrl+Y");
    EXPECT_EQ(keys("edit.redo"), "Ctrl+Shift+Z");
    EXPECT_EQ(keys("canvas.clear"), "Ctrl+L");

    _window->settings().write();
    makeWindow();
    EXPECT_EQ(keys("file.save"), "Ctrl+Y");
    EXPECT_EQ(keys("edit.redo"), "Ctrl+Shift+Z");
    commands().resetKeys();
    EXPECT_EQ(keys("file.save"), "Ctrl+S");
    _window->settings().write();
    EXPECT_FALSE(_settings->childGroups().contains("keys"));
}

TEST_F(CommandsTest, KeysAreChangedByTheKeyboardAlone) {
    ShortcutsDialog dialog(commands());
    dialog.show();
    auto* search = dialog.findChild<QLineEdit*>();
    auto* list = dialog.findChild<QTreeWidget*>();
    auto* key = dialog.findChild<QKeySequenceEdit*>();
    search->setText("Crop");
    sendKey(*search, Qt::Key_Down);
    ASSERT_TRUE(dialog.focusWidget() == list && list->currentItem());
    EXPECT_EQ(list->currentItem()->text(0), "Crop to Drawn");
    sendKey(*list, Qt::Key_Return);
    ASSERT_EQ(dialog.focusWidget(), key);
    sendKey(*key, Qt::Key_K, Qt::ControlModifier);
    EXPECT_EQ(key->keySequence(), QKeySequence("Ctrl+K"));
    sendKey(*key, Qt::Key_Escape);
    EXPECT_TRUE(dialog.focusWidget() == list && dialog.isVisible());
    EXPECT_EQ(key->keySequence(), QKeySequence()) << "it is no key, and takes back what was typed";
}

TEST_F(CommandsTest, AHeldKeyAndTheWayOfThePointerSizeTheBrush) {
    BrushModel& brush = _window->brush();
    brush.setValue(BrushKey::radius, 20.0f);
    const QImage before = _window->view()->image();
    _window->viewport().setFocus();
    press(Qt::Key_F);
    for (const auto& [x, radius] : {std::pair(100, 20.0f), {220, 40.0f}, {-20, 10.0f}, {340, 80.0f}}) {
        mouse(QEvent::MouseMove, {double(x), 50});
        EXPECT_FLOAT_EQ(brush.value(BrushKey::radius).toFloat(), radius) << x;
    }
    press(Qt::Key_F, QEvent::KeyRelease);
    mouse(QEvent::MouseMove, {100, 50});
    EXPECT_FLOAT_EQ(brush.value(BrushKey::radius).toFloat(), 80);
    EXPECT_EQ(_window->view()->image(), before);
}

TEST_F(CommandsTest, ShiftDrawsALineFromWhereTheLastStrokeEnded) {
    BrushModel& brush = _window->brush();
    brush.setValue(BrushKey::radius, 6.0f);
    brush.setValue(BrushKey::hardness, 1.0f);
    brush.setValue(BrushKey::renderColor, QVariant::fromValue(ESColor::rgba(0, 0, 0)));
    paint();  // along y 75, up to x 160
    const auto isInked = [this](int x, int y) {
        return _window->view()->image().pixelColor(x, y).lightness() < 128;
    };
    mouse(QEvent::MouseButtonPress, inView(20, 20), Qt::ShiftModifier);
    mouse(QEvent::MouseMove, inView(160, 15), Qt::ShiftModifier);
    press(Qt::Key_Escape);
    mouse(QEvent::MouseButtonRelease, inView(160, 15), Qt::ShiftModifier);
    settle();
    EXPECT_FALSE(isInked(160, 45)) << "it was given up";

    for (const QPointF end : {QPointF(160, 15), QPointF(40, 15)}) {
        mouse(QEvent::MouseButtonPress, inView(20, 20), Qt::ShiftModifier);
        mouse(QEvent::MouseMove, inView(end.x(), end.y()), Qt::ShiftModifier);
        mouse(QEvent::MouseButtonRelease, inView(end.x(), end.y()), Qt::ShiftModifier);
        settle();
    }
    EXPECT_TRUE(isInked(160, 45)) << "from the stroke's end";
    EXPECT_TRUE(isInked(100, 15)) << "and on from the line's";
    EXPECT_FALSE(isInked(20, 20));
}

}  // namespace
}  // namespace dabcanvas::dabpainter
