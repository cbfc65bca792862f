// SPDX-License-Identifier: MIT
#include <string>
#include <vector>

#include "History/ImagesUndoManager.h"
#include "QDEAGLView/QDDrawCanvas.h"
#include "support/CanvasTest.h"
#include "support/LogCapture.h"

namespace {

QByteArray bytesOf(QDDrawCanvas& canvas) {
    const QSizeF size = canvas.bufferSize();
    QByteArray bytes(static_cast<qsizetype>(size.width() * size.height()) * 4, '\0');
    EXPECT_TRUE(canvas.readDataBufferRect(reinterpret_cast<unsigned char*>(bytes.data()),
                                          QRectF(QPointF(0, 0), size)));
    return bytes;
}

class CanvasRecognitionTest : public CanvasTest {
protected:
    // A canvas with something on it to lose.
    static std::unique_ptr<QDDrawCanvas> makePatterned(int width = 201, int height = 151) {
        auto canvas = makeCanvas(width, height);
        canvas->setImage(patternImage({width, height}), QRectF(0, 0, width, height));
        canvas->resetUndoManager();
        canvas->setRadius(12);
        return canvas;
    }
    // The part of a stroke before its last point, from (20, 40) rightwards.
    static void sketchLine(QDDrawCanvas& canvas) {
        canvas.drawingWithBeginPoint({20, 40});
        for (int i = 1; i < 15; ++i) {
            canvas.drawingWithMoveToPoint({20.0 + i * 10, 40.0 + i % 2});
        }
    }
    static void endLine(QDDrawCanvas& canvas) { canvas.drawingWithEndPoint({170, 40}); }
    // What becomes of it.
    static ShapeRecord line(double unit = 1) {
        ShapeRecord shape;
        shape.kind = ShapeKind::line;
        shape.corners = {{20 / unit, 40 / unit}, {170 / unit, 40 / unit}};
        return shape;
    }
    // Goes on as a spiral, which is no shape, and ends.
    static void endTangled(QDDrawCanvas& canvas) {
        const QPointF middle(canvas.bufferSize().width() / 2, canvas.bufferSize().height() / 2);
        const auto at = [&](int i) {
            return middle + QPointF(std::cos(i * 0.5), std::sin(i * 0.5)) * (5 + i * 0.7);
        };
        for (int i = 0; i < 60; ++i) {
            canvas.drawingWithMoveToPoint(at(i));
        }
        canvas.drawingWithEndPoint(at(60));
    }
    static void scribble(QDDrawCanvas& canvas) {
        canvas.drawingWithBeginPoint({20, 70});
        endTangled(canvas);
    }
};

// ---- Sketches that are no shapes

TEST_F(CanvasRecognitionTest, AnUnrecognisedStrokeLeavesNoTrace) {
    struct Row {
        const char* name;
        void (*set)(QDDrawCanvas&);
    };
    const Row rows[] = {
        {"plain", [](QDDrawCanvas&) {}},
        {"second line",
         [](QDDrawCanvas& c) {
             c.setRepeatedlyRenderEnabled(true);
             c.setSlRadius(30);
         }},
        {"erasing", [](QDDrawCanvas& c) { c.setBlendType(5); }},
        {"replacing, faint",
         [](QDDrawCanvas& c) {
             c.setBlendType(2);
             c.setOpacity(0.3f);
         }},
        {"smudge brush", [](QDDrawCanvas& c) { c.setBrushType(3); }},
        {"preview brush", [](QDDrawCanvas& c) { c.setBrushType(4); }},
        {"steps by themselves", [](QDDrawCanvas& c) { c.setAutoMark(true); }},
    };
    for (const Row& row : rows) {
        for (const QSize size : {QSize(200, 150), QSize(333, 127), QSize(71, 93)}) {
            SCOPED_TRACE(testing::Message() << row.name << ", " << size.width() << " x " << size.height());
            auto canvas = makePatterned(size.width(), size.height());
            row.set(*canvas);
            canvas->setEnableRecogition(true);
            const QImage before = canvas->image();
            scribble(*canvas);
            EXPECT_TRUE(imagesMatch(canvas->image(), before));
            EXPECT_FALSE(canvas->edited());
            sketchLine(*canvas);
            EXPECT_NE(canvas->image(), before);
            endTangled(*canvas);
            EXPECT_TRUE(imagesMatch(canvas->image(), before));
            canvas->drawingWithBeginPoint({20, 20});
            canvas->drawingWithMoveToPoint({60, 20});
            canvas->drawingWithEndPoint({90, 20});  // 3 points are too few for the straightest line
            EXPECT_TRUE(imagesMatch(canvas->image(), before));
            EXPECT_EQ(canvas->curImageData(), bytesOf(*canvas));
            EXPECT_FALSE(canvas->canUndo());
            canvas->setEnableRecogition(false);
            scribble(*canvas);
            EXPECT_NE(canvas->image(), before);
        }
    }
}

TEST_F(CanvasRecognitionTest, WithdrawnAndAbandonedSketchesLeaveNoTrace) {
    auto canvas = makePatterned();
    canvas->setEnableRecogition(true);
    const QImage before = canvas->image();
    const auto at = [](double x) { return QDDrawTouch{QPointF(x, 75), 1}; };
    const auto drag = [&](int moves) {
        canvas->mouseDown(at(20));
        for (int i = 1; i <= moves; ++i) {
            canvas->mouseDragged(at(20 + i * 10));
        }
    };
    drag(5);
    canvas->mouseUp(at(80));  // too short to be meant
    EXPECT_TRUE(imagesMatch(canvas->image(), before));
    drag(12);
    canvas->withdrawPointerStroke();
    EXPECT_TRUE(imagesMatch(canvas->image(), before));
    sketchLine(*canvas);
    canvas->drawingWithBeginPoint({20, 100});  // without an end before
    EXPECT_TRUE(imagesMatch(canvas->image(), before));
    canvas->drawingWithEndPoint({20, 100});
    EXPECT_FALSE(canvas->edited());
    drag(12);
    canvas->mouseUp(at(150));
    EXPECT_TRUE(canvas->edited());
    EXPECT_NE(canvas->image(), before);
}

// ---- Sketches that are

TEST_F(CanvasRecognitionTest, ALineReplacesItsSketchWhereItWas) {
    struct Scaled : QDDrawCanvas {
        explicit Scaled(const QRectF& frame) : QDDrawCanvas(frame), shown(frame) {}
        bool make() { return initCanvas(); }
        QRectF displayFrame() const override { return shown; }
        QRectF shown;
    };
    for (const float unit : {1.0f, 2.5f, 0.0f}) {
        SCOPED_TRACE(unit);
        const auto prepare = [&](QDDrawCanvas& canvas) {
            canvas.setImage(patternImage({200, 150}), QRectF(0, 0, 200, 150));
            canvas.setRadius(9);
            canvas.setRecogPointScale(unit);
        };
        auto expected = makeCanvas();
        prepare(*expected);
        EXPECT_TRUE(expected->drawShape(line(unit > 0 ? static_cast<double>(unit) : 1)));
        Scaled canvas(QRectF(0, 0, 200, 150));
        ASSERT_TRUE(canvas.make());
        prepare(canvas);
        canvas.shown = QRectF(0, 0, 400, 450);
        canvas.updateScaleInfo();
        canvas.setEnableRecogition(true);
        canvas.drawingWithBeginPoint({40, 120});
        for (int i = 1; i < 15; ++i) {
            canvas.drawingWithMoveToPoint({40.0 + i * 20, 120});
        }
        canvas.drawingWithEndPoint({340, 120});
        // Rounding may move the recognised ends by a hair.
        EXPECT_TRUE(imagesMatch(canvas.image(), expected->image(), 2));
        EXPECT_EQ(canvas.curImageData(), bytesOf(canvas));
    }
}

TEST_F(CanvasRecognitionTest, AShapeIsOneStepAndTheEndIsToldOfLast) {
    class Recorder : public QDDrawViewDelegate {
    public:
        std::vector<std::string> calls;
        QByteArray shownAtEnd;
        QPointF drawViewShouldDrawEnd(QDDrawCanvas&, QPointF p) override {
            calls.emplace_back("should end");
            return p;
        }
        void drawViewWillDrawEnd(QDDrawCanvas&, QPointF) override { calls.emplace_back("will end"); }
        void drawViewDidDrawEnd(QDDrawCanvas& canvas, QPointF) override {
            calls.emplace_back("did end");
            shownAtEnd = bytesOf(canvas);
        }
        void drawViewDidUpdateUndoStatus(QDDrawCanvas&, bool can) override {
            calls.emplace_back(can ? "can undo" : "cannot undo");
        }
    } recorder;
    auto canvas = makePatterned();
    canvas->setAutoMark(true);
    canvas->setEnableRecogition(true);
    canvas->setDelegate(&recorder);
    const QImage before = canvas->image();
    sketchLine(*canvas);
    EXPECT_TRUE(canvas->undo().isNull());
    endLine(*canvas);
    EXPECT_EQ(recorder.calls, (std::vector<std::string>{"should end", "will end", "can undo", "did end"}));
    const QImage shape = canvas->image();
    EXPECT_EQ(recorder.shownAtEnd, bytesOf(*canvas));
    scribble(*canvas);
    canvas->undoManager().waitForWrites();
    EXPECT_FALSE(canvas->undo().isNull());
    EXPECT_TRUE(imagesMatch(canvas->image(), before));
    EXPECT_FALSE(canvas->canUndo());
    canvas->undoManager().waitForWrites();
    EXPECT_FALSE(canvas->redo().isNull());
    EXPECT_TRUE(imagesMatch(canvas->image(), shape));
    // The step that a sketch came after is what it is taken back to.
    scribble(*canvas);
    EXPECT_TRUE(imagesMatch(canvas->image(), shape));
}

// ---- The recorded canvas

TEST_F(CanvasRecognitionTest, TheRecordedCanvasFollowsTheCanvas) {
    auto canvas = makePatterned();
    canvas->setCurImageData({});
    canvas->setAutoMark(true);
    canvas->setEnableRecogition(true);
    EXPECT_TRUE(canvas->curImageData().isEmpty());
    canvas->setEnableRecogition(false);
    canvas->setAutoMark(false);
    canvas->setEnableRecogition(true);
    const auto isCanvas = [&] { return canvas->curImageData() == bytesOf(*canvas); };
    EXPECT_TRUE(isCanvas());
    canvas->drawImage(solidImage({33, 21}, Qt::red), QRectF(17, 90, 33, 21));
    EXPECT_TRUE(isCanvas()) << "after an image";
    sketchLine(*canvas);
    endLine(*canvas);
    EXPECT_TRUE(isCanvas()) << "after a line";
    canvas->drawPoint({150, 120}, 30);
    canvas->updateImage(true);
    canvas->updateBGImage();
    EXPECT_TRUE(isCanvas()) << "after a dab";
    canvas->clearWithColor(ESColor::grey(0.5f), true);
    EXPECT_TRUE(isCanvas()) << "after a clear";
    // What the host records is what a sketch is taken back to.
    const QByteArray blank(canvas->curImageData().size(), '\0');
    canvas->setCurImageData(blank);
    scribble(*canvas);
    EXPECT_EQ(canvas->image().pixelColor(100, 75).alpha(), 0);
    EXPECT_EQ(canvas->image().pixelColor(5, 5).alpha(), 255);
    canvas->setCurImageData(QByteArray(7, '\0'));  // which is no canvas
    const QImage before = canvas->image();
    scribble(*canvas);
    EXPECT_TRUE(imagesMatch(canvas->image(), before));
}

TEST_F(CanvasRecognitionTest, AHistoryMadeLateKeepsThePicture) {
    auto canvas = makeCanvas(200, 151);
    canvas->setImage(patternImage({200, 151}), QRectF(0, 0, 200, 151));
    canvas->setEnableRecogition(true);
    const QImage before = canvas->image();
    canvas->loadUndoManager();  // which begins with the canvas as it was made
    scribble(*canvas);
    EXPECT_TRUE(imagesMatch(canvas->image(), before));
    // Also in mid-stroke.
    auto other = makeCanvas(200, 151);
    other->setImage(patternImage({200, 151}), QRectF(0, 0, 200, 151));
    other->setEnableRecogition(true);
    sketchLine(*other);
    other->loadUndoManager();
    endTangled(*other);
    EXPECT_TRUE(imagesMatch(other->image(), before));
}

TEST_F(CanvasRecognitionTest, UndoGivesTheStepWhateverIsFinishedOnTheWay) {
    auto canvas = makePatterned();
    canvas->setEnableRecogition(true);
    const QByteArray first = bytesOf(*canvas);
    sketchLine(*canvas);
    endLine(*canvas);
    canvas->markAction();
    canvas->drawPoint({100, 100}, 40);  // in a layer until undo finishes it
    canvas->updateImage(true);
    canvas->undoManager().waitForWrites();
    EXPECT_EQ(canvas->undo(), first);
    EXPECT_EQ(canvas->curImageData(), first);
    EXPECT_EQ(bytesOf(*canvas), first);
    scribble(*canvas);
    EXPECT_EQ(bytesOf(*canvas), first);
    canvas->undoManager().waitForWrites();
    EXPECT_FALSE(canvas->redo().isNull());
    EXPECT_EQ(canvas->curImageData(), bytesOf(*canvas));
}

// ---- In mid-stroke

TEST_F(CanvasRecognitionTest, WhatHappensInMidStrokeHappensToTheCanvasWithoutTheSketch) {
    struct Row {
        const char* name;
        void (*act)(QDDrawCanvas&);
    };
    const Row rows[] = {
        {"image",
         [](QDDrawCanvas& c) {
             c.drawImage(solidImage({60, 60}, QColor(0, 90, 0, 128)), QRectF(50, 20, 60, 60));
         }},
        {"image put over it",
         [](QDDrawCanvas& c) {
             c.setImage(solidImage({60, 60}, Qt::blue), QRectF(50.5, 20.5, 60, 60));
         }},
        {"clear", [](QDDrawCanvas& c) { c.clearWithColor(ESColor::grey(1), true); }},
        {"clear of the canvas alone",
         [](QDDrawCanvas& c) { c.clearESBufferWithColor(ESColor::grey(1), true); }},
        {"step", [](QDDrawCanvas& c) { c.markAction(); }},
        {"first step", [](QDDrawCanvas& c) { c.resetUndoManager(); }},
        {"second line", [](QDDrawCanvas& c) { c.setRepeatedlyRenderEnabled(true); }},
        {"other brush", [](QDDrawCanvas& c) { c.setBrushType(3); }},
        {"other blending", [](QDDrawCanvas& c) { c.setBlendType(5); }},
        {"on again", [](QDDrawCanvas& c) { c.setEnableRecogition(true); }},
    };
    for (const bool marks : {false, true}) {
        for (const Row& row : rows) {
            SCOPED_TRACE(testing::Message() << row.name << (marks ? ", steps by themselves" : ""));
            auto expected = makePatterned();
            expected->setAutoMark(marks);
            row.act(*expected);
            auto canvas = makePatterned();
            canvas->setAutoMark(marks);
            canvas->setEnableRecogition(true);
            sketchLine(*canvas);
            row.act(*canvas);
            EXPECT_EQ(canvas->curImageData(), bytesOf(*expected));
            EXPECT_TRUE(canvas->currentImage() == expected->image());
            endTangled(*canvas);
            EXPECT_TRUE(imagesMatch(canvas->image(), expected->image()));
            EXPECT_EQ(canvas->edited(), expected->edited());
        }
    }
}

TEST_F(CanvasRecognitionTest, SwitchingInMidStrokeLeavesWhatWasDrawn) {
    auto off = makePatterned();
    auto plain = makePatterned();
    off->setEnableRecogition(true);
    for (QDDrawCanvas* canvas : {off.get(), plain.get()}) {
        sketchLine(*canvas);
        canvas->setEnableRecogition(false);
        endTangled(*canvas);
    }
    EXPECT_TRUE(imagesMatch(off->image(), plain->image()));
    auto on = makePatterned();
    sketchLine(*on);
    const QImage sketched = on->image();
    on->setEnableRecogition(true);
    endTangled(*on);
    EXPECT_TRUE(imagesMatch(on->image(), sketched));
    EXPECT_TRUE(on->edited());
}

// ---- Shapes drawn

TEST_F(CanvasRecognitionTest, EveryKindIsDrawnAlongItsWholeOutlineAndNowhereElse) {
    struct Row {
        const char* name;
        void (*set)(QDDrawCanvas&);
        int reach;  // of a dab, in pixels
    };
    const Row rows[] = {
        {"small",
         [](QDDrawCanvas& c) {
             c.setRadius(6);
             c.setHardness(1);
         },
         4},
        {"soft",
         [](QDDrawCanvas& c) {
             c.setRadius(20);
             c.setFlow(0.2f);
         },
         11},
        {"hard, sized by pressure, tapered",
         [](QDDrawCanvas& c) {
             c.setRadius(14);
             c.setHardness(1);
             c.setRadiusControl({1, 0, 0});
             c.setMinRadius(0.01f);
             c.setStartRadius(0.05f);
             c.setStrokeControlValue(60);
             c.setEndRadius(0.05f);
         },
         8},
        {"second line",
         [](QDDrawCanvas& c) {
             c.setRadius(14);
             c.setRepeatedlyRenderEnabled(true);
             c.setSlRadius(6);
         },
         8},
        {"smudge brush",
         [](QDDrawCanvas& c) {
             c.setRadius(8);
             c.setBrushType(3);
             c.setEnableRecogition(true);
         },
         5},
        {"one dab a sample",
         [](QDDrawCanvas& c) {
             c.setRadius(8);
             c.setPointsDistanceEnabled(false);
         },
         5},
    };
    ShapeRecord shape;
    shape.corners = {{40, 30}, {150, 34}, {160, 110}, {50, 120}};
    shape.centre = {100, 75};
    shape.a = 70;
    shape.b = 30;
    shape.startAngle = 5.5;
    shape.endAngle = 9;
    for (const Row& row : rows) {
        auto canvas = makeCanvas();
        row.set(*canvas);
        for (int kind = 1; kind <= static_cast<int>(ShapeKind::arrow); ++kind) {
            shape.kind = static_cast<ShapeKind>(kind);
            SCOPED_TRACE(std::string(row.name) + ", " + std::string(nameOfShapeKind(shape.kind)));
            ShapeRecord drawn = shape;
            drawn.corners.resize(shape.kind == ShapeKind::line       ? 2
                                 : shape.kind == ShapeKind::triangle ? 3
                                                                     : 4);
            canvas->clear();
            EXPECT_TRUE(canvas->drawShape(drawn));
            const QImage image = canvas->image();
            // Every corner, then as many points between as lie about a pixel apart.
            std::vector<ShapePoint> outline = outlineOfShape(drawn);
            for (std::size_t i = 1; i < outline.size() && !drawn.isRound(); ++i) {
                const ShapePoint from = outline[i - 1];
                const ShapePoint to = outline[i];
                const double pieces = std::ceil(std::hypot(to.x - from.x, to.y - from.y));
                for (int j = static_cast<int>(pieces) - 1; j > 0; --j) {
                    outline.insert(
                        outline.begin() + static_cast<std::ptrdiff_t>(i),
                        {from.x + (to.x - from.x) * j / pieces, from.y + (to.y - from.y) * j / pieces});
                }
                i += static_cast<std::size_t>(pieces) - 1;
            }
            QImage allowed = solidImage({200, 150});
            int least = 255, most = 0;
            for (const ShapePoint& at : outline) {
                const QPoint pixel(static_cast<int>(at.x), static_cast<int>(at.y));
                const int alpha = image.pixelColor(pixel).alpha();
                least = std::min(least, alpha);
                most = std::max(most, alpha);
                const int reach = row.reach + 1;
                fillRect(allowed, QRect(pixel.x() - reach, pixel.y() - reach, 2 * reach + 1, 2 * reach + 1),
                         Qt::black);
            }
            EXPECT_GT(least, 0) << "a gap";
            EXPECT_GT(2 * least, most - 64) << "uneven";
            for (int y = 0; y < 150; ++y) {
                for (int x = 0; x < 200; ++x) {
                    ASSERT_TRUE(image.pixelColor(x, y).alpha() == 0 || allowed.pixelColor(x, y).alpha() > 0)
                        << x << ", " << y;
                }
            }
        }
    }
}

TEST_F(CanvasRecognitionTest, WhatCannotBeDrawnIsRefused) {
    auto canvas = makePatterned();
    canvas->setAutoMark(true);
    canvas->setEnableRecogition(true);
    const QImage before = canvas->image();
    const LogCapture log;
    EXPECT_FALSE(canvas->drawShape({}));
    EXPECT_TRUE(log.lines().isEmpty());
    ShapeRecord shape;
    shape.kind = ShapeKind::triangle;
    shape.corners = {{1, 1}, {50, 1}};
    EXPECT_FALSE(canvas->drawShape(shape));
    EXPECT_TRUE(log.has(QStringLiteral("a triangle of these points")));
    canvas->drawingWithBeginPoint({20, 20});
    EXPECT_FALSE(canvas->drawShape(line()));
    EXPECT_TRUE(log.has(QStringLiteral("stroke is in progress")));
    canvas->drawingWithEndPoint({20, 20});
    EXPECT_EQ(log.lines().size(), 2);
    EXPECT_FALSE(canvas->canUndo());
    EXPECT_TRUE(canvas->drawShape(line()));
    EXPECT_TRUE(canvas->canUndo());
    EXPECT_NE(canvas->image(), before);
}

}  // namespace
