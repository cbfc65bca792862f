// SPDX-License-Identifier: MIT
#include "QDEAGLView/QDDrawView.h"

#include <QMetaProperty>

#include "support/CanvasTest.h"
#include "support/LogCapture.h"

using namespace dabcanvas;

namespace {

// Of 255, over all pixels.
double meanDifference(const QImage& one, const QImage& other) {
    double sum = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            sum += std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y)));
        }
    }
    return sum / one.width() / one.height();
}

class DrawViewTest : public CanvasTest {
protected:
    void SetUp() override {
        CanvasTest::SetUp();
        view.resize(200, 150);
        view.show();
        view.setTextureType(3);
        view.setHardness(1);
        view.setAutoMark(true);
        view.undoManager();
    }
    void stroke(double y, QPointF step = {10, 0}) {
        view.drawingWithBeginPoint({20, y}, 1);
        for (int i = 1; i < 12; ++i) {
            view.drawingWithMoveToPoint(QPointF(20, y) + i * step, 1);
        }
        view.drawingWithEndPoint(QPointF(20, y) + 12 * step, 1);
    }
    QDDrawView view;
};

TEST_F(DrawViewTest, IsMadeAsDesignerMakesItAndTakesTheSizeItIsShownWith) {
    EXPECT_EQ(view.bufferSize(), QSizeF(200, 150) * view.devicePixelRatioF());
    EXPECT_FALSE(view.isModified());
    EXPECT_TRUE(view.problem().isEmpty());
    QDDrawView painted;
    painted.drawImage(solidImage({9, 9}, Qt::red), QRectF(0, 0, 9, 9));
    painted.resize(50, 50);
    painted.show();
    EXPECT_EQ(painted.bufferSize(), QSizeF(640, 480)) << "what was painted stays";

    const LogCapture log;
    QDDrawView none(nullptr, SurfaceOptions{.canvasDepth = 7});
    none.resize(300, 100);
    none.show();
    stroke(75);
    none.drawingWithBeginPoint({1, 1});
    none.drawingWithEndPoint({90, 90});
    EXPECT_FALSE(none.problem().isEmpty());
    EXPECT_NE(none.grab().toImage().pixelColor(2, 2), QDDrawView().grab().toImage().pixelColor(2, 2))
        << "and it is to be read in the view";
    EXPECT_EQ(log.lines().size(), 1);
}

TEST_F(DrawViewTest, SignalsTellWhatBecomesOfTheCanvas) {
    QStringList heard;
    const auto hear = [&](const char* what) { return [&heard, what] { heard << what; }; };
    QObject::connect(&view, &QDDrawView::strokeBegan, hear("began"));
    QObject::connect(&view, &QDDrawView::strokeEnded, hear("ended"));
    QObject::connect(&view, &QDDrawView::strokeWithdrawn, hear("withdrawn"));
    QObject::connect(&view, &QDDrawView::canUndoChanged,
                     [&](bool can) { heard << (can ? "undo" : "no undo"); });
    QObject::connect(&view, &QDDrawView::canRedoChanged,
                     [&](bool can) { heard << (can ? "redo" : "no redo"); });
    QObject::connect(&view, &QDDrawView::modifiedChanged,
                     [&](bool is) { heard << (is ? "modified" : "saved"); });
    QObject::connect(&view, &QDDrawView::brushChanged, hear("brush"));
    QRect area;
    QObject::connect(&view, &QDDrawView::canvasChanged, [&](const QRect& changed) { area |= changed; });
    const auto expect = [&](const char* what, const QString& wanted) {
        EXPECT_EQ(heard.join(u' ').toStdString(), wanted.toStdString()) << what;
        heard.clear();
    };
    stroke(75);
    expect("a stroke", "began modified undo ended");
    EXPECT_TRUE(area.contains(painted(view.image())));
    view.setModified(false);
    expect("saved", "saved");
    stroke(40);
    expect("another", "began modified ended");
    view.undo();
    expect("undone to what was saved", "redo saved");
    view.undo();
    expect("and further", "no undo modified");
    view.redo();
    expect("and forth", "undo saved");
    while (view.canUndo()) {
        view.undo();
    }
    view.setModified(false);
    heard.clear();
    view.setRadius(33);
    view.setRadius(33);
    view.setProperty("renderColor", "#00ff00");
    expect("the brush", "brush brush");
    for (const bool touch : {false, true}) {  // a slip is taken back; a click and a slide leave nothing
        const QDDrawTouch from{{50, 50}}, to{{90, 50}};
        touch ? view.touchesBeganWithEvent(from) : view.mouseDown(from);
        if (!touch) {
            view.mouseDragged(to);
        }
        touch ? view.touchesEndedWithEvent(to) : view.mouseUp(to);
        heard.removeAll("modified"), heard.removeAll("saved");
        heard.removeAll("undo"), heard.removeAll("no undo"), heard.removeAll("redo"),
            heard.removeAll("no redo");
        expect("nothing stays", "began withdrawn");
    }
    EXPECT_FALSE(view.isModified());
    view.setCanvasArea(QRect(0, 0, 100, 100));
    EXPECT_TRUE(view.isModified());
}

TEST_F(DrawViewTest, PropertiesTakeWhatDesignerStyleSheetsAndQmlHandIn) {
    struct Given {
        const char* name;
        QVariant value;
        QVariant wanted;
    };
    for (const Given& given : {
             Given{"renderColor", "#ff8000", QColor(255, 128, 0)},
             Given{"renderColor", QColor(Qt::blue), QColor(Qt::blue)},
             Given{"blendType", "Multiply", QVariant::fromValue(BlendKind::Multiply)},
             Given{"blendType", 5, QVariant::fromValue(BlendKind::Erase)},
             Given{"brushType", "Smudge", QVariant::fromValue(BrushKind::Smudge)},
             Given{"radius", "24.5", 24.5},
             Given{"fit", "Whole", QVariant::fromValue(QDDrawView::Fit::Whole)},
         }) {
        EXPECT_TRUE(view.setProperty(given.name, given.value)) << given.name;
        EXPECT_EQ(view.property(given.name), given.wanted) << given.name;
    }
    for (const QVariant& value : {QVariant("0.5, 0.25 -1"), QVariant(QVariantList{0.5, 0.25, -1}),
                                  QVariant(QStringList{"0.5", "0.25", "-1"})}) {
        view.setFlowControl({});
        EXPECT_TRUE(view.setProperty("flowControl", value));
        EXPECT_EQ(view.flowControl(), (LPControlParams{0.5f, 0.25f, -1})) << value.typeName();
    }
    const QMetaObject& meta = *view.metaObject();
    EXPECT_TRUE(meta.property(meta.indexOfProperty("radius")).reset(&view));
    EXPECT_EQ(view.radius(), 32);
    view.setStyleSheet("QDDrawView { qproperty-textureType: Ring; qproperty-slRadius: 12; }");
    view.ensurePolished();
    EXPECT_EQ(view.slRadius(), 12);
}

TEST_F(DrawViewTest, ACanvasIsCroppedAndExtendedWithWhatIsThere) {
    view.setFit(ViewFit::free);
    stroke(75);
    const QImage before = view.image();
    ASSERT_TRUE(view.setCanvasArea(QRect(-10, 30, 150, 200)));
    QImage wanted(150, 200, before.format());
    wanted.fill(Qt::transparent);
    for (int y = 30; y < before.height(); ++y) {
        for (int x = 0; x < 140; ++x) {
            wanted.setPixelColor(x + 10, y - 30, before.pixelColor(x, y));
        }
    }
    EXPECT_TRUE(imagesMatch(view.image(), wanted));
    EXPECT_TRUE(imagesMatch(view.displayImage(), wanted));
    stroke(190, {10, -1});
    EXPECT_FALSE(imagesMatch(view.image(), wanted));
    view.undo();
    EXPECT_TRUE(imagesMatch(view.image(), wanted));
    // Steps of either size follow each other.
    view.undo();
    EXPECT_TRUE(imagesMatch(view.image(), before));
    EXPECT_EQ(view.sizeHint(), before.size());
    view.undo();
    EXPECT_TRUE(painted(view.image()).isEmpty());
    view.redo();
    EXPECT_TRUE(imagesMatch(view.displayImage(), before));
    view.redo();
    EXPECT_TRUE(imagesMatch(view.displayImage(), wanted));
    // Grown and shrunk before anybody looks.
    EXPECT_TRUE(view.setCanvasArea(QRect(0, 0, 400, 200)));
    view.undo();
    stroke(100);
    EXPECT_TRUE(imagesMatch(view.displayImage(), view.image()));
    view.undo();
    const LogCapture log;
    EXPECT_FALSE(view.setCanvasArea(QRect(0, 0, 0, 10)));
    EXPECT_FALSE(view.setCanvasArea(QRect(0, 0, 1 << 30, 1 << 30)));
    view.drawingWithBeginPoint({20, 20}, 1);
    EXPECT_FALSE(view.setCanvasArea(QRect(0, 0, 20, 10)));
    EXPECT_EQ(log.lines().size(), 3);
    EXPECT_EQ(view.bufferSize(), QSizeF(150, 200));
}

// A nib drawn on a canvas that is turned and mirrored looks as one on a canvas that is not.
TEST_F(DrawViewTest, TipsKeepTheAngleThatTheyAreSeenAt) {
    view.setCanvasArea(QRect(0, 0, 201, 201));
    view.resize(201, 201);
    view.setFit(ViewFit::free);
    view.setZoom(1);
    view.setGround(Qt::white, Qt::white);
    view.setRadius(60);
    view.setMinRadius(1);
    view.setRoundness(0.2f);
    const auto dab = [&](bool along) {
        view.clear();
        view.setMoveRadianEnable(along);
        view.setRadian(0.5f);
        // From left to right, as seen.
        const QPointF from = view.viewToBuffer().map(QPointF(96, 100.5)),
                      to = view.viewToBuffer().map(QPointF(106, 100.5));
        view.drawingWithBeginPoint(from, 1);
        view.drawingWithMoveToPoint(to, 1);
        view.drawingWithEndPoint(to, 1);
        return view.grab().toImage();
    };
    const QImage plain = dab(false), along = dab(true);
    for (const double turn : {0.0, 0.7, 2.0, -M_PI_2}) {
        for (const bool mirrored : {false, true}) {
            view.setViewRotation(turn);
            view.setViewMirrored(mirrored);
            EXPECT_LT(meanDifference(dab(false), plain), 2) << turn << mirrored;
            EXPECT_LT(meanDifference(dab(true), along), 2) << turn << mirrored;
        }
    }
}

}  // namespace
