// SPDX-License-Identifier: MIT
// Selecting through the window: what mouse and keys do, and that whatever comes next puts down what floats.
#include "Selection/SelectionTool.h"

#include <QAction>
#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QStatusBar>

#include "History/ImagesUndoManager.h"
#include "PainterTest.h"
#include "Selection/SelectionEditor.h"
#include "Window/Commands.h"
#include "support/Images.h"

namespace dabcanvas::dabpainter {

namespace {

class SelectionToolTest : public PainterTest {
protected:
    void SetUp() override {
        PainterTest::SetUp();
        QDDrawView& view = *_window->view();
        view.setImageInBufferRect(solidImage({30, 20}, Qt::red), QRectF(40, 50, 30, 20));
        view.resetUndoManager();
        view.setModified(false);
        view.setViewRotation(0.5);
        view.setViewMirrored(true);
        red = _window->view()->image();
    }
    void send(QEvent::Type type, QPointF buffer, Qt::KeyboardModifiers held = {}) {
        QDDrawView* view = _window->view();
        const QPointF at = _window->viewport().pointOfBuffer(buffer);
        const bool isMove = type == QEvent::MouseMove;
        QMouseEvent event(type, at, view->mapToGlobal(at), isMove ? Qt::NoButton : Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, held);
        QApplication::sendEvent(view, &event);
    }
    void drag(const QList<QPointF>& way, Qt::KeyboardModifiers held = {}) {
        send(QEvent::MouseButtonPress, way.first(), held);
        for (const QPointF& to : way.mid(1))
            send(QEvent::MouseMove, to, held);
        send(QEvent::MouseButtonRelease, way.last(), held);
        settle();
    }
    void key(int key, Qt::KeyboardModifiers held = {}) {
        QKeyEvent press(QEvent::KeyPress, key, held);
        QApplication::sendEvent(&_window->viewport(), &press);
    }
    void run(const char* command) {
        _window->commands().find(QLatin1String(command))->action->trigger();
        settle();
    }
    // Of red, in a picture where there is no other.
    QRect where(const QImage& image) {
        QImage mask = image;
        for (int y = 0; y < mask.height(); ++y)
            for (int x = 0; x < mask.width(); ++x)
                mask.setPixelColor(x, y, mask.pixelColor(x, y).green() < 128 ? Qt::red : Qt::transparent);
        return painted(mask);
    }
    QRect where() { return where(_window->view()->image()); }
    void selectRed() {
        run("select.rectangle");
        drag({{38.3, 48.9}, {60, 60}, {71.7, 71.2}});
    }

    QImage red;
};

TEST_F(SelectionToolTest, AreaIsDrawnJoinedAndDropped) {
    SelectionEditor& editor = _window->selection();
    drag({{150, 20}, {160, 30}, {170, 20}});  // with Shift a line would go on from here
    run("edit.undo");
    selectRed();
    EXPECT_EQ(editor.area().boundingRect(), QRectF(38, 48, 34, 24));
    drag({{70, 60}, {90, 65}, {100, 68}}, Qt::ShiftModifier);
    EXPECT_EQ(editor.area().boundingRect(), QRectF(38, 48, 62, 24));
    drag({{-20, 40}, {60, 60}, {60, 90}}, Qt::ControlModifier);
    EXPECT_EQ(editor.area().boundingRect(), QRectF(60, 48, 40, 24));
    run("select.lasso");
    drag({{10, 10}, {60, 12}, {30, 60}});
    EXPECT_TRUE(editor.area().contains(QPointF(30, 30)));
    EXPECT_FALSE(editor.area().contains(QPointF(55, 50)));
    key(Qt::Key_Escape);
    EXPECT_TRUE(editor.area().isEmpty());
    run("select.all");
    EXPECT_EQ(editor.area().boundingRect(), QRectF(0, 0, 200, 150));
    drag({{150, 20}});
    EXPECT_TRUE(editor.area().isEmpty()) << "a click";
    EXPECT_TRUE(imagesMatch(_window->view()->image(), red));
}

TEST_F(SelectionToolTest, StrokesKeepToIt) {
    SelectionEditor& editor = _window->selection();
    const auto changed = [&] {
        QImage now = _window->view()->image();
        for (int y = 0; y < now.height(); ++y)
            for (int x = 0; x < now.width(); ++x)
                now.setPixelColor(x, y, now.pixel(x, y) == red.pixel(x, y) ? Qt::transparent : Qt::red);
        return painted(now);
    };
    editor.select(rectangleArea({0, 0}, {100, 150}), AreaMode::replace);
    drag({{160, 20}, {170, 60}, {160, 120}});
    EXPECT_FALSE(_window->view()->canUndo()) << "nothing was painted";
    drag({{150, 120}, {120, 120}, {60, 120}});
    EXPECT_EQ(changed().right(), 99);
    run("edit.undo");
    run("select.invert");
    drag({{150, 120}, {120, 120}, {60, 120}});
    EXPECT_EQ(changed().left(), 100);
    EXPECT_EQ(editor.area().boundingRect(), QRectF(100, 0, 100, 150));
    run("edit.undo");
    key(Qt::Key_Escape);
    drag({{150, 120}, {120, 120}, {60, 120}});
    EXPECT_LT(changed().left(), 70);
}

TEST_F(SelectionToolTest, WhatIsSelectedIsDraggedNudgedAndGivenUp) {
    const auto steps = [&] { return _window->view()->undoManager().undoItems().size(); };
    selectRed();
    drag({{50, 60}, {60, 65}, {80.2, 80.1}});
    EXPECT_TRUE(imagesMatch(_window->view()->image(), red));
    key(Qt::Key_Right);
    key(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_TRUE(_window->statusBar()->currentMessage().contains("Escape"));
    key(Qt::Key_Return);
    EXPECT_EQ(_window->statusBar()->currentMessage(), "") << "Escape does no such thing any more";
    EXPECT_EQ(where(), QRect(71, 60, 30, 20)) << "and paper where it was";
    EXPECT_EQ(steps(), 1);
    drag({{75, 65}, {20, 20}, {30, 30}});
    key(Qt::Key_Escape);
    EXPECT_EQ(where(), QRect(71, 60, 30, 20));
    drag({{75, 65}, {60, 60}, {65, 65}});
    send(QEvent::MouseButtonDblClick, {70, 70});
    EXPECT_EQ(where(), QRect(61, 60, 30, 20));
    run("canvas.clear");  // which is the key that deletes
    EXPECT_TRUE(where().isEmpty());
    run("edit.undo");
    drag({{65, 65}, {80, 60}, {95, 65}});
    run("edit.undo");
    EXPECT_EQ(where(), QRect(61, 60, 30, 20));
    run("edit.redo");
    EXPECT_EQ(where(), QRect(91, 60, 30, 20)) << "nothing was lost";
}

TEST_F(SelectionToolTest, WhateverComesNextPutsItDown) {
    const QRect moved(90, 60, 30, 20);
    struct Row {
        const char* what;
        std::function<void()> next;
    };
    _saveName = path("saved.png");
    _answer = UnsavedAnswer::save;
    selectRed();
    drag({{50, 60}, {60, 65}, {100, 70}});
    run("canvas.crop");
    EXPECT_EQ(_window->view()->bufferSize(), QSizeF(moved.size()));
    run("edit.undo");
    run("select.rectangle");
    for (const Row& row :
         {Row{"another tool", [&] { run("select.lasso"); }},
          Row{"a press beside it",
              [&] {
                  send(QEvent::MouseButtonPress, {20, 130});
              }},
          Row{"opening", [&] { EXPECT_TRUE(_window->mayDiscard()); }},
          Row{"saving", [&] { run("file.save"); }}, Row{"closing", [&] { _window->close(); }}}) {
        SCOPED_TRACE(row.what);
        _window->clearCanvas();
        _window->view()->setImageInBufferRect(red, QRectF(red.rect()));
        selectRed();
        drag({{50, 60}, {60, 65}, {100, 70}});
        row.next();
        EXPECT_EQ(where(), moved);
        run("select.rectangle");
        if (_window->findChild<SelectionTool*>()->kind() != SelectionTool::Kind::none)
            run("select.rectangle");
    }
    EXPECT_EQ(where(QImage(_saveName).convertToFormat(QImage::Format_RGBA8888_Premultiplied)), moved);
}

// The brush is the tool all the while.
TEST_F(SelectionToolTest, PicturesComeInAndFloat) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(savedImage("dropped.png", Qt::blue, {24, 16}))});
    run("select.all");
    run("edit.cut");
    EXPECT_TRUE(where().isEmpty());
    QDragEnterEvent enter(QPoint(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(_window.get(), &enter);
    QDropEvent drop(QPointF(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(_window.get(), &drop);
    const FloatingPicture* floating = _window->selection().floating();
    ASSERT_TRUE(floating);
    EXPECT_EQ(floating->bounds(), QRect(88, 67, 24, 16));
    drag({{100, 75}, {90, 60}, {80, 55}});  // moves it, and paints nothing
    EXPECT_EQ(_window->selection().floating()->bounds(), QRect(68, 47, 24, 16));
    run("edit.paste");
    EXPECT_EQ(_window->selection().floating()->picture(), red) << "as it was cut";
    key(Qt::Key_Enter);
    EXPECT_TRUE(imagesMatch(_window->view()->image(), red)) << "opaque, over what was dropped";
    for (int i = 0; i < 3; ++i)
        run("edit.undo");
    EXPECT_TRUE(imagesMatch(_window->view()->image(), red));
    QGuiApplication::clipboard()->setImage(solidImage({400, 100}, Qt::red));  // another program's
    run("edit.paste");
    EXPECT_EQ(_window->selection().floating()->bounds(), QRect(0, 50, 200, 50));
    drag({{150, 15}, {140, 20}, {130, 15}});  // which paints
    EXPECT_FALSE(_window->selection().floating());
    EXPECT_TRUE(where().contains(QRect(0, 50, 200, 50)));
    EXPECT_LT(where().top(), 40);
}

}  // namespace

}  // namespace dabcanvas::dabpainter
