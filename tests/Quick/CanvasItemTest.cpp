// SPDX-License-Identifier: MIT
// The item beside the widget: what one shows and does, the other does. Runs under each renderer of Qt Quick and at several
// scale factors.
#include <qpa/qwindowsysteminterface.h>

#include <QApplication>
#include <QPointingDevice>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QSGRendererInterface>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <functional>
#include <string>

#include "QDEAGLView/QDDrawView.h"
#include "Quick/CanvasItem.h"
#include "support/Images.h"
#include "support/LogCapture.h"

using dabcanvas::CanvasItem;

namespace {

constexpr QSize kCanvas(600, 300);  // more than a tile
constexpr QRect kPlace(40, 20, 300, 150);

const QPointingDevice& pen() {
    static const QPointingDevice device(
        "pen", 81, QInputDevice::DeviceType::Stylus, QPointingDevice::PointerType::Pen,
        QInputDevice::Capability::Position | QInputDevice::Capability::Pressure |
            QInputDevice::Capability::XTilt,
        1, 2);
    [[maybe_unused]] static const bool registered =
        (QWindowSystemInterface::registerInputDevice(&device), true);
    return device;
}

enum class Device { mouse, pen, finger };

// Of points of the view; from begin to end in mid-stroke when it is not to end.
void stroke(QWindow& window, Device device, double y, bool ends = true) {
    static QPointingDevice* const screen = QTest::createTouchDevice();
    for (int i = 0; i <= (ends ? 13 : 12); ++i) {
        const QPoint at = kPlace.topLeft() + QPoint(20 + std::min(i, 12) * 20, int(y) + i % 3 * 8);
        const double ratio = window.devicePixelRatio();
        auto touch = QTest::touchEvent(&window, screen, false);
        switch (device) {
            case Device::mouse:
                i == 0    ? QTest::mousePress(&window, Qt::LeftButton, {}, at)
                : i <= 12 ? QTest::mouseMove(&window, at)
                          : QTest::mouseRelease(&window, Qt::LeftButton, {}, at);
                break;
            case Device::finger:
                i == 0    ? touch.press(0, at, &window)
                : i <= 12 ? touch.move(0, at, &window)
                          : touch.release(0, at, &window);
                touch.commit();
                break;
            case Device::pen:
                QWindowSystemInterface::handleTabletEvent(
                    &window, &pen(), QPointF(at) * ratio, QPointF(window.mapToGlobal(at)) * ratio,
                    i <= 12 ? Qt::LeftButton : Qt::NoButton, 0.5, 30, 0, 0, 0, 0);
                QApplication::processEvents();
                break;
        }
    }
}

class CanvasItemTest : public ::testing::Test {
protected:
    void SetUp() override {
        widgets.setGeometry(30, 30, 420, 260);
        view = QDDrawView::initWithFrame(QRectF(QPointF(), kCanvas), &widgets).release();
        ASSERT_NE(view, nullptr);
        view->setGeometry(kPlace);
        widgets.show();
        engine.addImportPath(QCoreApplication::applicationDirPath() + "/../qml");
        make(R"(Canvas { canvasSize: Qt.size(600, 300); x: 40; y: 20; width: 300; height: 150 })");
        for (QDDrawCanvas* canvas :
             {static_cast<QDDrawCanvas*>(view), static_cast<QDDrawCanvas*>(&item->canvas())}) {
            canvas->setRadiusControl({0.8f, 0.4f, 0});
            canvas->setRenderColor(ESColor::rgba(0.1f, 0.3f, 0.7f));
            canvas->setRepeatableRandom(true);
        }
    }
    // A window with something in it; the first Canvas becomes the item.
    void make(const QByteArray& content) {
        QQmlComponent component(&engine);
        component.setData(
            "import QtQuick\nimport Dabcanvas\nWindow { x: 30; y: 30; width: 420; height: 260\n"
            "visible: true; color: '#c8beb4'\n" +
                content + "}",
            QUrl::fromLocalFile(folder.path() + "/Test.qml"));
        window.reset(qobject_cast<QQuickWindow*>(component.create()));
        ASSERT_TRUE(window) << qPrintable(component.errorString());
        item = window->findChild<CanvasItem*>();
        ASSERT_NE(item, nullptr);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    }
    QImage itemShown() {
        QApplication::processEvents();
        QImage image = window->grabWindow();
        image.setDevicePixelRatio(1);
        const double ratio = window->effectiveDevicePixelRatio();
        return image.copy(QRectF(kPlace.topLeft() * ratio, QSizeF(kPlace.size()) * ratio).toRect())
            .convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    }
    QImage viewShown() {
        QImage image(kPlace.size() * view->devicePixelRatioF(), QImage::Format_RGBA8888_Premultiplied);
        image.fill(QColor("#c8beb4"));
        image.setDevicePixelRatio(view->devicePixelRatioF());
        view->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
        image.setDevicePixelRatio(1);
        return image;
    }
    bool isSoftware() const {
        return window->rendererInterface()->graphicsApi() == QSGRendererInterface::Software;
    }

    QTemporaryDir folder;
    QWidget widgets;
    QDDrawView* view = nullptr;
    QQmlEngine engine;
    std::unique_ptr<QQuickWindow> window;
    CanvasItem* item = nullptr;
};

QVariantList brushOf(const QDDrawCanvas& canvas) {
    QVariantList values;
    for (const dabcanvas::BrushProperty& row : dabcanvas::brushProperties()) {
        values.append(canvas.brushValue(row));
    }
    return values;
}

// How many of 1000 pixels differ by more than the tolerance.
double differing(const QImage& a, const QImage& b, int tolerance) {
    EXPECT_EQ(a.size(), b.size());
    int count = 0;
    for (int y = 0; y < a.height() && a.size() == b.size(); ++y) {
        for (int x = 0; x < a.width() * 4; ++x) {
            count += std::abs(a.constScanLine(y)[x] - b.constScanLine(y)[x]) > tolerance ? 1 : 0;
        }
    }
    return 250.0 * count / (a.width() * a.height());
}

TEST_F(CanvasItemTest, DevicesPaintWhatTheyPaintInTheWidget) {
    for (const Device device : {Device::mouse, Device::pen, Device::finger}) {
        view->clear();
        item->clear();
        stroke(*widgets.windowHandle(), device, 50);
        stroke(*window, device, 50);
        QApplication::processEvents();
        EXPECT_FALSE(item->canvas().isDrawing());
        EXPECT_FALSE(painted(view->image()).isEmpty());
        EXPECT_TRUE(imagesMatch(item->image(), view->image())) << int(device);
        EXPECT_EQ(item->property("canUndo"), view->canUndo());
    }
    const QSignalSpy began(item, &CanvasItem::strokeBegan);
    QTest::mouseDClick(window.get(), Qt::LeftButton, {}, kPlace.center());
    EXPECT_EQ(began.size(), 2);
}

TEST_F(CanvasItemTest, ItIsShownAsTheWidgetIs) {
    struct Look {
        const char* name;
        std::function<void(dabcanvas::CanvasDisplay&)> set;
    };
    using Fit = dabcanvas::ViewFit;
    const Look looks[] = {
        {"stretched", [](auto& canvas) { canvas.setFit(Fit::stretch); }},
        {"pixel for pixel", [](auto& canvas) { canvas.setZoom(1); }},
        {"zoomed",
         [](auto& canvas) {
             canvas.zoomAbout(3, {100, 80});
         }},
        {"turned", [](auto& canvas) { canvas.setViewRotation(0.4); }},
        {"mirrored", [](auto& canvas) { canvas.setViewMirrored(true); }},
        {"reduced", [](auto& canvas) { canvas.setZoom(0.3); }},
    };
    item->clear(Qt::white);
    view->clearWithColor(ESColor(QColor(Qt::white)), true);
    double y = 20;
    for (const Look& look : looks) {
        itemShown();  // from here on only what changes is brought up to date
        y += 16;
        const auto shown = [&](dabcanvas::CanvasDisplay& canvas, QWindow& of, auto picture) {
            look.set(canvas);
            canvas.setBrushType(y > 100 ? 4 : 0);  // the preview, too, and what is selected of it
            QPainterPath selected;
            selected.addRect(40, 0, y > 100 ? 150 : 999, 999);
            canvas.setSelection(selected);
            stroke(of, Device::mouse, y, false);
            const QImage image = picture();
            QTest::mouseRelease(&of, Qt::LeftButton, {}, kPlace.topLeft() + QPoint(260, 100));
            return image;
        };
        const QImage ofItem = shown(item->canvas(), *window, [&] { return itemShown(); });
        const QImage ofView = shown(*view, *widgets.windowHandle(), [&] { return viewShown(); });
        // Turned pictures are interpolated in fixed steps, from where a tile begins; shaders interpolate edges, too.
        EXPECT_LE(differing(ofItem, ofView, isSoftware() ? 2 : 6), isSoftware() ? 0 : 8) << look.name;
        if (const QString to = qEnvironmentVariable("DABCANVAS_PICTURES"); !to.isEmpty()) {
            ofItem.save(to + "/item " + look.name + ".png");
            ofView.save(to + "/view " + look.name + ".png");
        }
    }
}

TEST_F(CanvasItemTest, ABrushIsSetInQml) {
    EXPECT_TRUE(patternImage({20, 10}).save(folder.path() + "/paper.png"));
    make(R"(Canvas {
        property int told: 0
        onBrushChanged: ++told
        opacity: 0.5; brushOpacity: 0.25; radius: 40.5; blendType: Brush.Multiply; textureType: Brush.Ring
        trackNum: 3; flipX: true; renderColor: "#336699"; radiusControl: [0.5, -0.25]
        maskImage: "paper.png"; textureImages: ["paper.png", Qt.resolvedUrl("paper.png")]
        fit: Canvas.Whole; navigable: true; canvasSize: Qt.size(64, 48)
        property var read: [brushOpacity, blendType === Brush.BlendKind.Multiply, radiusControl[1], textureImages.length]
    })");
    const dabcanvas::CanvasDisplay& canvas = item->canvas();
    EXPECT_EQ(item->opacity(), 0.5);
    EXPECT_EQ(canvas.opacity(), 0.25f);
    EXPECT_EQ(canvas.radius(), 40.5f);
    EXPECT_EQ(canvas.blendType(), 8);
    EXPECT_EQ(canvas.trackNum(), 3);
    EXPECT_TRUE(canvas.flipX());
    EXPECT_EQ(canvas.renderColor(), ESColor(QColor("#336699")));
    EXPECT_EQ(canvas.radiusControl().altitude, -0.25f);
    EXPECT_EQ(canvas.maskImage().size(), QSize(20, 10));
    EXPECT_EQ(canvas.textureImages().size(), 2);
    EXPECT_EQ(canvas.fit(), dabcanvas::ViewFit::whole);
    EXPECT_EQ(canvas.bufferSize(), QSizeF(64, 48));
    EXPECT_EQ(item->property("read").toList(), (QVariantList{0.25, true, -0.25, 2}));
    const int told = item->property("told").toInt();
    item->setProperty("brushOpacity", 0.75);
    EXPECT_EQ(item->property("told").toInt(), told + 1);
    EXPECT_EQ(item->property("read").toList().first(), 0.75);
    EXPECT_TRUE(item->problem().isEmpty()) << qPrintable(item->problem());
    for (const dabcanvas::BrushProperty& row : dabcanvas::brushProperties()) {
        const bool isRenamed = row.key == dabcanvas::BrushKey::opacity;
        EXPECT_TRUE(item->property(isRenamed ? "brushOpacity" : row.name).isValid()) << row.name;
    }
}

// What a line of QML does to a canvas that is well: it says what is wrong and keeps its brush, until that is put right.
TEST_F(CanvasItemTest, BadInputIsToldInTheItem) {
    struct Row {
        const char *bad, *problem, *good;
    };
    for (const Row& row :
         {Row{"maskImage = 'none.png'", "maskImage: .*none.png", "maskImage = ''"},
          Row{"textureImages = ['https://example.org/a.png']", "textureImages: .*no local file",
              "textureImages = []"},
          Row{"radius = NaN", "radius: .*number", "radius = 32"},
          Row{"radiusControl = [NaN]", "radiusControl: .*number", "radiusControl = [1]"},
          Row{"canvasSize = Qt.size(1e8, 1e8)", "canvasSize: .*100000000", "canvasSize = Qt.size(600, 300)"},
          Row{"loadBrush('none.xbf')", "loadBrush: .*none.xbf", nullptr},
          Row{"placeImage('Test.qml')", "placeImage: .*Test.qml", nullptr},
          Row{"save('no/folder.png')", "save: .*folder.png", "save('picture.png')"}}) {
        SCOPED_TRACE(row.bad);
        make(
            "Canvas { canvasSize: Qt.size(600, 300); x: 40; y: 20; width: 300; height: 150; function bad() "
            "{ " +
            QByteArray(row.bad) + " }\n function good() { " + (row.good != nullptr ? row.good : "") + " } }");
        const QVariantList brush = brushOf(item->canvas());
        const QImage before = itemShown();
        const LogCapture log;
        QMetaObject::invokeMethod(item, "bad");
        EXPECT_TRUE(QRegularExpression(row.problem).match(item->problem()).hasMatch())
            << qPrintable(item->problem());
        EXPECT_TRUE(log.has(item->problem())) << "with the file and line of QML";
        EXPECT_EQ(brushOf(item->canvas()), brush);
        EXPECT_NE(itemShown(), before) << "it is in sight";
        QMetaObject::invokeMethod(item, "good");
        if (row.good != nullptr) {
            EXPECT_TRUE(item->problem().isEmpty()) << qPrintable(item->problem());
            EXPECT_EQ(itemShown(), before);
        }
    }
}

// Whatever becomes of an item in mid-stroke, another one is not touched, and Qt goes on.
TEST_F(CanvasItemTest, ItemsGoInMidStroke) {
    for (const char* end :
         {"visible = false", "enabled = false", "destroy()", "parent = null", "width = 0", ""}) {
        SCOPED_TRACE(end);
        make(
            "Canvas { objectName: 'first'; x: 40; y: 20; width: 300; height: 150; adjustCancelLine: false\n"
            "property int moves: 0; onStrokeMoved: if (++moves == 8) { " +
            QByteArray(end) +
            " } }\n"
            "Canvas { objectName: 'other'; y: 180; width: 300; height: 60 }");
        QPointer<CanvasItem> first(window->findChild<CanvasItem*>("first"));
        const auto* other = window->findChild<CanvasItem*>("other");
        stroke(*window, Device::mouse, 50, false);
        QApplication::processEvents();
        if (*end == 0) {
            window->hide();
        }
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(first == nullptr, QByteArray(end) == "destroy()");
        if (first != nullptr) {
            EXPECT_FALSE(first->canvas().isDrawing());
            EXPECT_FALSE(painted(first->image()).isEmpty());
        }
        EXPECT_TRUE(painted(other->image()).isEmpty());
        QTest::mouseRelease(window.get(), Qt::LeftButton, {}, {60, 60});
        QApplication::processEvents();
    }
}

TEST_F(CanvasItemTest, ItIsShownAsBeforeInAnotherWindowAndAnew) {
    stroke(*window, Device::mouse, 50);
    const QImage before = itemShown();
    const std::unique_ptr<QQuickWindow> first = std::move(window);
    make("Item { objectName: 'place'; Canvas { visible: false } }");
    QQuickItem* place = window->findChild<QQuickItem*>("place");
    item = first->findChild<CanvasItem*>();
    item->setParentItem(place);
    EXPECT_EQ(itemShown(), before);
    window->setPersistentSceneGraph(false);
    window->setPersistentGraphics(false);
    window->hide();
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    itemShown();
    EXPECT_EQ(itemShown(), before);
    item->setParentItem(nullptr);
}

TEST_F(CanvasItemTest, WhatLiesAboveItTakesThePen) {
    make(R"(Canvas { x: 40; y: 20; width: 300; height: 150; canvasSize: Qt.size(600, 300) }
            Rectangle { anchors.fill: parent; color: 'transparent' }
            MouseArea { objectName: 'above'; width: 400; height: 200; visible: false })");
    stroke(*window, Device::pen, 50);
    EXPECT_FALSE(painted(item->image()).isEmpty()) << "what takes no press is not in the way";
    item->clear();
    window->findChild<QQuickItem*>("above")->setVisible(true);
    stroke(*window, Device::pen, 50);
    EXPECT_TRUE(painted(item->image()).isEmpty());
}

}  // namespace
