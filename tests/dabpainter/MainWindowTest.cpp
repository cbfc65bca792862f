// SPDX-License-Identifier: MIT
#include "Window/MainWindow.h"

#include <QAccessible>
#include <QFileInfo>
#include <QImageReader>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointingDevice>
#include <QStatusBar>
#include <QTabletEvent>
#include <QWheelEvent>
#include <cerrno>
#include <cstring>
#include <string>

#include "Canvas/CanvasLayers.h"
#include "Documents/ImageFiles.h"
#include "ESRender/ESImageRender.h"
#include "History/ImagesUndoManager.h"
#include "PainterTest.h"
#include "Preset/QDBrushManager.h"
#include "Selection/SelectionEditor.h"
#include "Viewport/BrushCursor.h"
#include "Viewport/CanvasPointer.h"
#include "Viewport/ColorPicker.h"
#include "support/FailingDriver.h"
#include "support/LogCapture.h"
#ifdef Q_OS_UNIX
#include "support/DyingProcess.h"
#include "support/Limits.h"
#endif

namespace dabcanvas::dabpainter {

namespace {

class MainWindowTest : public PainterTest {
protected:
    void send(QEvent::Type type, QPointF at, Qt::MouseButtons buttons, QWidget* given = nullptr) {
        QWidget* const to = given != nullptr ? given : _window->view();
        QMouseEvent event(type, at, to->mapToGlobal(at),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, buttons, Qt::NoModifier);
        QApplication::sendEvent(to, &event);
    }
    void drag(const QList<QPointF>& way) {
        send(QEvent::MouseButtonPress, way.first(), Qt::LeftButton);
        for (const QPointF& to : way.mid(1))
            send(QEvent::MouseMove, to, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, way.last(), Qt::NoButton);
        settle();
    }
    void pen(QEvent::Type type, QPointF at, double pressure, const QPointingDevice& device,
             Qt::MouseButton button = Qt::LeftButton) {
        QDDrawView* view = _window->view();
        QTabletEvent event(type, &device, at, view->mapToGlobal(at), pressure, 0, 0, 0, 0, 0, Qt::NoModifier,
                           type == QEvent::TabletMove ? Qt::NoButton : button,
                           type == QEvent::TabletRelease ? Qt::NoButton : Qt::MouseButtons(button));
        QApplication::sendEvent(view, &event);
    }
    // Where a buffer pixel is in the view.
    QPointF inView(double x, double y) { return _window->viewport().pointOfBuffer({x, y}); }
    QRectF shownCanvas() {
        const QDDrawView& view = *_window->view();
        return view.bufferToView().mapRect(QRectF(QPointF(), view.bufferSize()));
    }
    QAction* action(const char* text) {
        const auto actions = _window->findChildren<QAction*>();
        const auto found = std::find_if(actions.begin(), actions.end(), [&](QAction* one) {
            return one->text() == QString::fromUtf8(text) ||
                   one->shortcut() == QKeySequence(QLatin1String(text));
        });
        EXPECT_NE(found, actions.end()) << text;
        return *found;
    }
    QColor pixel(int x, int y) { return _window->view()->image().pixelColor(x, y); }
};

// ---- The pointer

TEST_F(MainWindowTest, WhatIsPointedAtIsPaintedAtEveryZoom) {
    BrushModel& brush = _window->brush();
    brush.setValue(BrushKey::hardness, 1.0f);
    brush.setValue(BrushKey::radius, 16.0f);
    CanvasViewport& viewport = _window->viewport();
    for (const double zoom : {2.0, 1.0, 0.5, 3.3}) {
        SCOPED_TRACE(zoom);
        viewport.setZoom(zoom);
        brush.setValue(BrushKey::radiusControl,
                       QVariant::fromValue(LPControlParams{zoom < 2 ? 1.0f : 0, 0, 0}));
        EXPECT_NEAR(shownCanvas().width() * viewport.devicePixelRatioF(), 200 * zoom, 1);
        // A click leaves a dab, at the pixel below the pointer and nowhere else.
        drag({inView(120.5, 60.5)});
        EXPECT_LT(pixel(120, 60).lightness(), 60);
        EXPECT_EQ(pixel(132, 60), QColor(Qt::white));
        EXPECT_EQ(pixel(108, 60), QColor(Qt::white));
        EXPECT_EQ(pixel(120, 72), QColor(Qt::white));
        EXPECT_TRUE(_window->view()->pointsDistanceEnabled()) << "the brush is what it was";
        _window->clearCanvas();
    }
}

// As far as one sees it, which for a soft tip is not all of it.
TEST_F(MainWindowTest, TheOutlineIsAsWideAsTheMark) {
    ASSERT_TRUE(_window->startCanvas({QSize(600, 500), Qt::transparent}));
    BrushModel& brush = _window->brush();
    brush.setValue(BrushKey::radius, 400.0f);
    brush.setValue(BrushKey::radiusControl, QVariant::fromValue(LPControlParams{1, 0, 0}));
    brush.setValue(BrushKey::startRadius, 0.0f);
    brush.setValue(BrushKey::endRadius, 0.0f);
    const auto* cursor = _window->viewport().findChild<BrushCursor*>();
    for (const int tip : {1, 2, 3}) {
        for (const float hardness : {0.0f, 0.5f, 1.0f}) {
            SCOPED_TRACE(std::to_string(tip) + " " + std::to_string(hardness));
            brush.setValue(BrushKey::textureType, tip);
            brush.setValue(BrushKey::hardness, hardness);
            _window->clearCanvas();
            QDDrawView& view = *_window->view();
            view.drawingWithBeginPoint({100, 250}, 1);
            view.drawingWithMoveToPoint({300, 250}, 1);
            view.drawingWithEndPoint({500, 250}, 1);
            const QImage mark = view.image();
            int first = 0, last = 499, most = 0;
            for (int y = 0; y < 500; ++y)
                most = std::max(most, mark.pixelColor(300, y).alpha());
            while (first < 499 && mark.pixelColor(300, first).alpha() < most / 10)
                ++first;
            while (last > first && mark.pixelColor(300, last).alpha() < most / 10)
                --last;
            EXPECT_NEAR(cursor->outlineSize() / _window->viewport().scale(), last - first + 1, 0.03 * 400);
        }
    }
}

TEST_F(MainWindowTest, TheCanvasStaysFittedUntilItIsZoomed) {
    CanvasViewport& viewport = _window->viewport();
    for (const bool fits : {true, false}) {
        if (!fits)
            viewport.setZoom(11.7);
        _window->resize(340, 390);
        settle();
        EXPECT_EQ(QRectF(viewport.rect()).contains(shownCanvas()), fits);
        _window->resize(940, 690);
        settle();
        EXPECT_EQ(viewport.zoom(), fits ? 1 : 11.7);
    }
}

TEST_F(MainWindowTest, KeysAndTheWheelZoomAboutThePointerAndTwoFingersOnAPadPan) {
    const QPointingDevice pad("pad", 21, QInputDevice::DeviceType::TouchPad,
                              QPointingDevice::PointerType::Finger, QInputDevice::Capability::Scroll, 2, 0);
    CanvasViewport& viewport = _window->viewport();
    viewport.setZoom(8);
    const QPointF at(310, 260);
    const auto scroll = [&](const QPointingDevice& device, QPoint pixels, QPoint angle,
                            Qt::KeyboardModifiers keys) {
        QWheelEvent event(at, viewport.mapToGlobal(at), pixels, angle, Qt::NoButton, keys,
                          pixels.isNull() ? Qt::NoScrollPhase : Qt::ScrollUpdate, false,
                          Qt::MouseEventNotSynthesized, &device);
        QApplication::sendEvent(_window->view(), &event);
    };
    const auto& mouse = *QPointingDevice::primaryPointingDevice();
    const std::tuple<const char*, std::function<void()>, bool> rows[] = {
        {"key", [&] { action("Zoom &In")->trigger(); }, true},
        {"wheel",
         [&] {
             scroll(mouse, {}, {0, 120}, Qt::NoModifier);
         },
         true},
        {"pad with Ctrl",
         [&] {
             scroll(pad, {0, 20}, {0, 40}, Qt::ControlModifier);
         },
         true},
        {"pad",
         [&] {
             scroll(pad, {15, -20}, {30, -40}, Qt::NoModifier);
         },
         false}};
    send(QEvent::MouseMove, at, Qt::NoButton);
    for (const auto& [name, act, zooms] : rows) {
        SCOPED_TRACE(name);
        const QPointF before = viewport.bufferPoint(at), corner = shownCanvas().topLeft();
        const double zoom = viewport.zoom();
        act();
        EXPECT_EQ(viewport.zoom() > zoom, zooms);
        if (zooms) {
            EXPECT_LT((viewport.bufferPoint(at) - before).manhattanLength(), 0.6);
        } else {
            EXPECT_EQ((shownCanvas().topLeft() - corner).toPoint(), QPoint(15, -20));
        }
    }
}

// Whoever cannot see them is told where the keyboard is.
TEST_F(MainWindowTest, EveryTabStopHasAName) {
    QStringList nameless;
    int stops = 0;
    for (const QWidget* one = _window->nextInFocusChain(); one != _window.get();
         one = one->nextInFocusChain()) {
        if ((one->focusPolicy() & Qt::TabFocus) == 0 || one->focusProxy())
            continue;
        ++stops;
        QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(one));
        if (!spoken || spoken->text(QAccessible::Name).trimmed().isEmpty())
            nameless << QLatin1String(one->metaObject()->className()) + one->objectName();
    }
    EXPECT_GT(stops, 60);
    EXPECT_TRUE(nameless.isEmpty()) << nameless.size() << " of " << stops << ":\n"
                                    << qPrintable(nameless.join(QLatin1Char('\n')));
}

TEST_F(MainWindowTest, TheSpaceBarPansUntilTheProgramIsLeft) {
    CanvasViewport& viewport = _window->viewport();
    viewport.setZoom(8);
    viewport.setFocus();
    const QImage blank = _window->view()->image();
    QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
    QApplication::sendEvent(&viewport, &space);
    for (const bool pans : {true, false}) {
        const QPointF before = shownCanvas().topLeft();
        drag({{300, 300}, {340, 280}});
        EXPECT_EQ((shownCanvas().topLeft() - before).toPoint(), pans ? QPoint(40, -20) : QPoint());
        EXPECT_EQ(_window->view()->image() == blank, pans);
        QEvent left(QEvent::ApplicationDeactivate);
        QApplication::sendEvent(qApp, &left);
    }
    // A release that is lost ends both, as the move after it tells.
    for (const bool picks : {false, true}) {
        if (picks)
            action("&Eyedropper")->trigger();
        else
            QApplication::sendEvent(&viewport, &space);
        send(QEvent::MouseButtonPress, {300, 300}, Qt::LeftButton);
        send(QEvent::MouseMove, {310, 300}, Qt::NoButton);
        const QPointF before = shownCanvas().topLeft();
        send(QEvent::MouseMove, {340, 330}, Qt::NoButton);
        EXPECT_EQ(shownCanvas().topLeft(), before);
        EXPECT_FALSE(_window->pointer().picker().isOn());
        QEvent left(QEvent::ApplicationDeactivate);
        QApplication::sendEvent(qApp, &left);
    }
}

TEST_F(MainWindowTest, WhatIsPickedIsThePixelBelowThePointer) {
    QImage dot(200, 150, QImage::Format_ARGB32);
    dot.fill(Qt::transparent);
    dot.setPixelColor(60, 40, QColor(0, 200, 100));
    ASSERT_TRUE(dot.save(path("dot.png")) && _window->openImage(path("dot.png")));
    _window->viewport().setZoom(8);
    for (const QPointF at : {QPointF(60.9, 40.8), QPointF(61.3, 40.5), QPointF(59.6, 39.6)}) {
        action("&Eyedropper")->trigger();
        send(QEvent::MouseButtonPress, inView(at.x(), at.y()), Qt::LeftButton);
        send(QEvent::MouseButtonRelease, inView(at.x(), at.y()), Qt::NoButton);
        const auto color = _window->brush().value(BrushKey::renderColor).value<ESColor>().toQColor();
        EXPECT_EQ(color.rgb(), qRgb(0, 200, 100)) << "and nothing is picked where nothing is";
    }
}

// By its tip alone; the right button is for something else.
TEST_F(MainWindowTest, APensTapIsAsStrongAsItBecame) {
    const QPointingDevice device("pen", 9, QInputDevice::DeviceType::Stylus,
                                 QPointingDevice::PointerType::Pen, QInputDevice::Capability::Pressure, 1, 2);
    _window->viewport().setZoom(1);
    _window->brush().setValue(BrushKey::radius, 40.0f);
    _window->brush().setValue(BrushKey::hardness, 1.0f);
    _window->brush().setValue(BrushKey::radiusControl, QVariant::fromValue(LPControlParams{1, 0, 0}));
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::LeftButton}) {
        pen(QEvent::TabletPress, inView(100, 75), 0.1, device, button);
        pen(QEvent::TabletMove, inView(100, 75), 1, device, button);
        pen(QEvent::TabletRelease, inView(100, 75), 0, device, button);
        settle();
        EXPECT_EQ(pixel(115, 75).lightness() < 60, button == Qt::LeftButton);
        EXPECT_EQ(pixel(100, 75).lightness() < 60, button == Qt::LeftButton);
    }
}

// On an opaque canvas down to the paper, on another one through it; by the pen's other end as by a brush that erases.
TEST_F(MainWindowTest, ErasingLeavesNoHolesInAnOpaquePicture) {
    const QPointingDevice eraser("eraser", 7, QInputDevice::DeviceType::Stylus,
                                 QPointingDevice::PointerType::Eraser, QInputDevice::Capability::Pressure, 1,
                                 1);
    const auto byPen = [&] {
        pen(QEvent::TabletPress, inView(40, 75), 1, eraser);
        for (int x = 50; x <= 160; x += 10)
            pen(QEvent::TabletMove, inView(x, 75), 1, eraser);
        pen(QEvent::TabletRelease, inView(160, 75), 1, eraser);
        settle();
    };
    BrushModel& brush = _window->brush();
    const QColor paper(250, 240, 200);
    const QString grey = savedImage("grey.png", Qt::gray, {200, 150});
    const struct {
        const char* name;
        QColor ground;  // none: the picture
        QColor erased;  // none: a hole
    } rows[] = {{"paper", paper, paper}, {"a picture", {}, Qt::white}, {"no paper", Qt::transparent, {}}};
    brush.setValue(BrushKey::hardness, 1.0f);
    brush.setValue(BrushKey::hueTingle, 0.5f);
    const QVariant ink = QVariant::fromValue(ESColor::rgba(0.8f, 0.1f, 0.1f));
    brush.setValue(BrushKey::renderColor, ink);
    for (const auto& row : rows) {
        for (const bool isPen : {true, false}) {
            SCOPED_TRACE(std::string(row.name) + (isPen ? ", pen" : ", brush"));
            ASSERT_TRUE(row.ground.isValid() ? _window->startCanvas({QSize(200, 150), row.ground})
                                             : _window->openImage(grey));
            _window->viewport().setZoom(1);
            paint();
            const QColor painted = pixel(100, 75);
            if (isPen) {
                byPen();
            } else {
                brush.setValue(BrushKey::blendType, int(ESBlendTypeErase));
                const auto params = brush.params();
                ASSERT_TRUE(params);
                EXPECT_EQ(BrushRecords::paramValueForKey(*params, 0x1002), QVariant(int(ESBlendTypeErase)));
                EXPECT_EQ(BrushRecords::paramValueForKey(*params, 0x1003), ink);
                brush.setValue(BrushKey::brushType, 3);
                EXPECT_EQ(_window->view()->renderColor(), ink.value<ESColor>()) << "smudging knows no modes";
                brush.setValue(BrushKey::brushType, 0);
                paint();
            }
            EXPECT_NE(painted, row.erased);
            EXPECT_EQ(pixel(100, 75).alpha(), row.erased.isValid() ? 255 : 0);
            if (row.erased.isValid()) {
                EXPECT_EQ(pixel(100, 75), row.erased);
            }
            brush.setValue(BrushKey::blendType, int(ESBlendTypeNormal));
            EXPECT_EQ(_window->view()->blendType(), int(ESBlendTypeNormal));
            EXPECT_EQ(_window->view()->renderColor(), ink.value<ESColor>());
            EXPECT_EQ(_window->view()->hueTingle(), 0.5f);
        }
    }
}

// Whatever the user wants besides: it comes after the stroke, which ends where it got to.
TEST_F(MainWindowTest, EveryCommandEndsAStrokeFirst) {
    _answer = UnsavedAnswer::cancel;
    for (const char* text : {"&Undo", "&Redo", "&Open…", "&Place Image…", "&Save", "Save &As…", "&Clear",
                             "Zoom &In", "Zoom &Out", "&Actual Pixels", "&Whole Canvas", "Reco&gnise Shapes",
                             "Reco&gnise Shapes", "&Quit"}) {
        SCOPED_TRACE(text);
        const std::string command(text);
        _saveName = path("b.png");
        QFile::remove(_saveName);
        _images = {savedImage("a.png", Qt::red)};
        ASSERT_TRUE(_window->startCanvas({QSize(200, 150), Qt::white}));
        paint();  // with something to undo and to redo, but for this stroke
        paint();
        _window->view()->undo();
        send(QEvent::MouseButtonPress, inView(30, 40), Qt::LeftButton);
        for (int x = 40; x <= 90; x += 10)
            send(QEvent::MouseMove, inView(x, 40), Qt::LeftButton);
        EXPECT_LT(pixel(60, 40).lightness(), 128);
        action(text)->trigger();
        _window->selection().settle();
        settle();
        EXPECT_FALSE(_window->view()->isDrawing());
        const bool isGone = command == "&Undo" || command == "&Clear";
        EXPECT_EQ(pixel(60, 40).lightness() < 128, !isGone);
        EXPECT_EQ(QFile::exists(_saveName), command == "&Save" || command == "Save &As…");
        if (QFile::exists(_saveName)) {
            EXPECT_EQ(QImage(_saveName).pixelColor(60, 40), pixel(60, 40));
        }
        EXPECT_EQ(pixel(100, 75) == QColor(Qt::red), command == "&Place Image…");
        const QImage after = _window->view()->image();
        send(QEvent::MouseMove, inView(90, 120), Qt::LeftButton);
        send(QEvent::MouseButtonRelease, inView(90, 120), Qt::NoButton);
        EXPECT_EQ(_window->view()->image(), after);
        EXPECT_TRUE(_window->isVisible());
    }
}

// ---- What is unsaved

TEST_F(MainWindowTest, NothingIsLostUnasked) {
    EXPECT_TRUE(_window->mayDiscard());
    EXPECT_EQ(_asked, 0) << "there was nothing to save";
    paint();
    EXPECT_TRUE(_window->isUnsaved());
    EXPECT_FALSE(_window->close());  // cancelled
    EXPECT_EQ(_asked, 1);
    EXPECT_TRUE(_window->isVisible());

    _answer = UnsavedAnswer::save;
    EXPECT_FALSE(_window->mayDiscard()) << "no name was given";
    _saveName = path("no such folder/a.png");
    EXPECT_FALSE(_window->mayDiscard());
    EXPECT_EQ(_told.size(), 1);
    EXPECT_TRUE(_window->isUnsaved());

    _saveName = path("a.png");
    EXPECT_TRUE(_window->mayDiscard());
    EXPECT_FALSE(_window->isUnsaved());
    const QImage saved(_saveName);
    ASSERT_EQ(saved.size(), QSize(200, 150));
    EXPECT_EQ(saved.pixelColor(100, 75), pixel(100, 75));

    _window->clearCanvas();
    EXPECT_TRUE(_window->isUnsaved());
    EXPECT_EQ(pixel(100, 75), QColor(Qt::white)) << "cleared to what it began with";
    _answer = UnsavedAnswer::discard;
    EXPECT_TRUE(_window->close());
    EXPECT_EQ(QImage(_saveName).pixelColor(100, 75), saved.pixelColor(100, 75));
}

#ifdef Q_OS_UNIX
TEST_F(MainWindowTest, AFullDiskLeavesTheOldFiles) {
    paint();
    const QString picture = savedImage("a.png", Qt::red);
    const QString brush = path("b.xbf");
    ASSERT_TRUE(QDBrushManager::saveParamsWithDrawView(_window->view(), "B", brush));
    {
        const FullDisk full;
        EXPECT_FALSE(_window->saveTo(picture));
        EXPECT_FALSE(_window->presets().importFiles({brush}));
    }
    EXPECT_EQ(_told.filter(QString::fromLocal8Bit(std::strerror(EFBIG))).size(), 2)
        << qPrintable(_told.join(QLatin1Char('\n')));
    EXPECT_TRUE(_window->isUnsaved());
    EXPECT_EQ(QImage(picture).size(), QSize(24, 16));
    const auto every = QDir::Files | QDir::Hidden;
    EXPECT_EQ(QDir(path("brushes")).entryList(every).size(), 0);
}
#endif

// ---- From run to run

TEST_F(MainWindowTest, WhatPaintsIsChosenForTheNextPictureAndForGood) {
    const auto isProcessor = [this] { return _window->view()->rendererName().startsWith("processor"); };
    for (const bool processor : {true, false, true}) {
        const bool before = isProcessor();
        action(processor ? "&Processor" : "&Graphics Card")->trigger();
        EXPECT_EQ(isProcessor(), before) << "of the present picture";
        ASSERT_TRUE(_window->startCanvas({QSize(40, 30), Qt::white}));
        EXPECT_EQ(isProcessor(), processor);
    }
    makeWindow();
    EXPECT_TRUE(isProcessor() && action("&Processor")->isChecked());
}

TEST_F(MainWindowTest, WhatCannotBeHadFromItsHistoryComesFromItsCopy) {
    QDir().mkpath(path("copies"));
    for (const char* history : {"", "History000999"}) {
        LeftPicture left;
        left.history = QLatin1String(history);
        left.copy = savedImage(QLatin1String("copies/left") + history + ".png", Qt::blue, QSize(80, 50));
        left.path = path("mine.jpg");
        left.size = QSize(80, 50);
        const LogCapture quiet;
        EXPECT_TRUE(_window->recover(left));
        EXPECT_EQ(pixel(20, 20), QColor(Qt::blue));
        EXPECT_TRUE(_window->isUnsaved());
        EXPECT_EQ(_window->document().suggestedPath(), path("mine.jpg"));
        ASSERT_TRUE(QFile::exists(left.copy)) << "until there is a newer one";
        ASSERT_TRUE(_window->saveTo(path("mine.png")));
        EXPECT_FALSE(QFile::exists(left.copy));
        EXPECT_FALSE(_window->recover(left)) << "it is nowhere any more";
        EXPECT_EQ(_told.size(), 1);
        _told.clear();
    }
}

TEST_F(MainWindowTest, APictureOutlivesItsGraphicsCard) {
    _window->settings().setSurface(SurfaceKind::gpu);
    ASSERT_TRUE(
        _window->startCanvas({.size = QSize(200, 150), .background = Qt::white, .paintsApart = true}));
    paint();
    const QImage painted = _window->view()->image();
    const SelectionEditor& editor = *_window->findChild<SelectionEditor*>();
    action("Ctrl+A")->trigger();
    action("Ctrl+C")->trigger();
    action("Ctrl+V")->trigger();
    settle();  // which shows it
    {
        const FailingDriver driver(FailingDriver::Fault::lostContext);
        const LogCapture quiet;
        _window->clearCanvas();
        settle();
    }
    EXPECT_FALSE(_window->view()->isContextLost());
    EXPECT_NE(editor.floating(), nullptr) << "what is not put down yet is not lost either";
    EXPECT_EQ(_window->view()->image(), painted);
    EXPECT_EQ(_window->view()->layers().count(), 2);
    EXPECT_TRUE(_window->isUnsaved());
    EXPECT_TRUE(_window->saveTo(path("rescued.png")));
}

// ---- Image files

TEST_F(MainWindowTest, AnOpenedImageIsTheCanvas) {
    const QString file = savedImage("green.png", QColor(0, 255, 0, 128));
    ASSERT_TRUE(_window->openImage(file));
    EXPECT_EQ(_window->view()->bufferSize(), QSizeF(24, 16));
    EXPECT_EQ(pixel(5, 5).alpha(), 128);
    EXPECT_FALSE(_window->isUnsaved());
    EXPECT_TRUE(_window->saveTo(file));
    EXPECT_TRUE(_window->saveTo(path("p.jpg")));
    EXPECT_EQ(QImageReader::imageFormat(path("p.jpg")), "jpeg");
    // As a camera that was held upright says.
    writtenTo(
        path("p@2x.jpg"),
        contentOf(path("p.jpg"))
            .insert(2, QByteArray::fromHex(
                           "ffe100224578696600004d4d002a00000008000101120003000000010006000000000000")));
    EXPECT_TRUE(_window->openImage(path("p@2x.jpg")));
    EXPECT_EQ(_window->view()->bufferSize(), QSizeF(16, 24));
    EXPECT_FALSE(_window->saveTo(path("p.gif")));
    EXPECT_TRUE(_told.value(0).contains("no picture is written as .gif"));
}

TEST_F(MainWindowTest, PaintHasALayerOfItsOwnAbovePaper) {
    ASSERT_TRUE(_window->startCanvas({QSize(200, 150), Qt::yellow, true}));
    const QImage blank = _window->view()->displayImage();
    ASSERT_EQ(_window->view()->layers().count(), 2);
    EXPECT_EQ(_window->view()->layers().active(), 1);
    EXPECT_FALSE(_window->view()->canUndo() || _window->isUnsaved());
    paint();
    _window->clearCanvas();
    EXPECT_EQ(pixel(100, 75).alpha(), 0) << "it is the paint that was cleared";
    EXPECT_EQ(_window->view()->displayImage(), blank);
    _window->view()->layers().setActive(0);
    paint();
    _window->clearCanvas();
    EXPECT_EQ(pixel(100, 75), QColor(Qt::yellow));
    ASSERT_TRUE(_window->startCanvas({QSize(200, 150), Qt::transparent, true}));
    EXPECT_EQ(_window->view()->layers().count(), 1);
}

TEST_F(MainWindowTest, WhatAFileCannotKeepIsAskedForOnce) {
    _window->view()->layers().add(1, {.name = "Ink", .opacity = 0.5f});
    paint();
    const QImage seen = _window->view()->displayImage(), ink = _window->view()->layers().image(1);
    EXPECT_TRUE(_window->document().suggestedPath().endsWith(".ora"));
    _saveName = path("flat.png");
    _lossAnswer = LossAnswer::cancel;
    action("&Save")->trigger();
    EXPECT_FALSE(QFile::exists(_saveName));
    _lossAnswer = LossAnswer::lose;
    for (int i = 0; i < 2; ++i)
        action("&Save")->trigger();
    EXPECT_EQ(_losses, std::vector(2, Document::Loss::layers)) << "and not when it was known";
    EXPECT_EQ(QImage(_saveName).pixelColor(100, 75), seen.pixelColor(100, 75));
    _saveName = path("layered.ora");
    action("Save &As…")->trigger();
    ASSERT_TRUE(_window->openImage(_saveName));
    EXPECT_EQ(_window->view()->layers().image(1), ink);
    EXPECT_EQ(_window->view()->layers().settings(1).name, "Ink");
    EXPECT_FALSE(_window->isUnsaved() || _window->view()->canUndo());
    paint();
    action("&Save")->trigger();
    EXPECT_EQ(_losses.size(), 2u) << "it goes on with its layers";
    EXPECT_EQ(readPictureFile(_saveName).picture.layers.size(), 2u);

    ASSERT_TRUE(_window->startCanvas({QSize(200, 150), Qt::transparent}));
    _saveName = path("filled.jpg");
    action("&Save")->trigger();
    EXPECT_EQ(_losses.back(), Document::Loss::transparency);
    EXPECT_TRUE(_told.isEmpty());
}

TEST_F(MainWindowTest, APlacedImageIsInTheMiddleAndFits) {
    _window->viewport().setZoom(1.37);
    ASSERT_TRUE(_window->placeImage(savedImage("small.png", Qt::red)));
    _window->selection().settle();
    EXPECT_EQ(pixel(100, 75), QColor(Qt::red));
    EXPECT_EQ(pixel(88, 67), QColor(Qt::red));
    EXPECT_EQ(pixel(87, 75), QColor(Qt::white));
    EXPECT_EQ(pixel(112, 75), QColor(Qt::white));
    EXPECT_TRUE(_window->isUnsaved());
    ASSERT_TRUE(_window->placeImage(savedImage("tall.png", Qt::blue, QSize(100, 600))));
    _window->selection().settle();
    EXPECT_EQ(pixel(100, 0), QColor(Qt::blue));
    EXPECT_EQ(pixel(100, 149), QColor(Qt::blue));
    EXPECT_EQ(pixel(80, 75), QColor(Qt::white));
}

TEST_F(MainWindowTest, ABadImageIsRefusedInWordsAndChangesNothing) {
    const QByteArray png = contentOf(savedImage("good.png", Qt::green, QSize(300, 300)));
    const std::pair<const char*, QByteArray> kBad[] = {{"empty.png", ""},
                                                       {"text.png", "this is no picture"},
                                                       {"cut.png", png.left(png.size() / 2)},
                                                       {"cut.ora", QByteArray("PK\3\4") + png},
                                                       {"huge.ppm", "P6\n200000 200000\n255\nabc"},
                                                       {"area.ppm", "P6\n16000 16000\n255\nabc"}};
    paint();
    const QDDrawView* before = _window->view();
    const QImage painted = _window->view()->image();
    QStringList paths{path("missing.png"), _folder.path()};
    for (const auto& [name, bytes] : kBad) {
        paths << writtenTo(path(name), bytes);
    }
    const LogCapture quiet;
    for (const QString& name : paths) {
        SCOPED_TRACE(qPrintable(name));
        _told.clear();
        EXPECT_FALSE(_window->openImage(name));
        EXPECT_FALSE(_window->placeImage(name));
        EXPECT_EQ(_told.size(), 2);
        EXPECT_TRUE(_told.value(0).contains(QFileInfo(name).fileName()));
        EXPECT_EQ(_window->view(), before);
        EXPECT_TRUE(_window->isUnsaved());
    }
    EXPECT_EQ(_window->view()->image(), painted);
}

TEST_F(MainWindowTest, UndoAndRedoFollowTheCanvas) {
    QAction *undo = action("&Undo"), *redo = action("&Redo");
    EXPECT_FALSE(undo->isEnabled());
    const QImage blank = _window->view()->image();
    drag({inView(-90, 20), inView(-90, 60), inView(-90, 90)});
    drag({inView(-90, 20)});
    EXPECT_FALSE(undo->isEnabled() || _window->isUnsaved()) << "a drag and a click beside the canvas";
    paint();
    const QImage stroke = _window->view()->image();
    _window->clearCanvas();
    undo->trigger();
    EXPECT_EQ(_window->view()->image(), stroke);
    EXPECT_TRUE(redo->isEnabled());
    undo->trigger();
    EXPECT_EQ(_window->view()->image(), blank) << "the background that it was made with";
    EXPECT_FALSE(undo->isEnabled());
    ASSERT_TRUE(_window->saveTo(path("blank.png")));
    redo->trigger();
    EXPECT_EQ(_window->view()->image(), stroke);
    EXPECT_TRUE(_window->isUnsaved());
    paint();
    EXPECT_FALSE(redo->isEnabled());
}

// ---- Shapes

TEST_F(MainWindowTest, StrokesBecomeShapesWhileTheSwitchIsOn) {
    QAction* shapes = action("Shift+R");
    shapes->trigger();
    ASSERT_TRUE(_window->startCanvas({QSize(200, 150), Qt::white}));  // on every canvas
    EXPECT_TRUE(_window->view()->enableRecogition());
    _window->brush().setValue(BrushKey::radius, 8.0f);
    const QImage blank = _window->view()->image();
    QList<QPointF> spiral;
    for (int i = 0; i < 60; ++i)
        spiral << inView(100 + i * std::cos(i * 0.5), 75 + i * std::sin(i * 0.5));
    drag(spiral);
    EXPECT_EQ(_window->view()->image(), blank);
    EXPECT_FALSE(_window->isUnsaved());
    EXPECT_EQ(_window->statusBar()->currentMessage(), "No shape was recognised");
    EXPECT_FALSE(_window->view()->canUndo());
    paint();
    EXPECT_EQ(_window->statusBar()->currentMessage(), "");
    EXPECT_TRUE(_window->isUnsaved());
    EXPECT_LT(pixel(100, 75).lightness(), 200);
    shapes->trigger();
    EXPECT_FALSE(_window->view()->enableRecogition());
    // It is no part of the brush.
    shapes->trigger();
    _window->brush().resetAll();
    EXPECT_TRUE(_window->view()->enableRecogition());
}

}  // namespace

}  // namespace dabcanvas::dabpainter
