// SPDX-License-Identifier: MIT
#include <string>
#include <utility>

#include "Canvas/ShapeSketch.h"
#include "History/ImagesUndoManager.h"
#include "Recognition/ShapePlaces.h"
#include "support/CanvasTest.h"
#include "support/Hearer.h"
#include "support/LogCapture.h"

namespace {

using namespace dabcanvas;
using K = BrushKey;
using Settings = std::vector<std::pair<BrushKey, QVariant>>;

void set(QDDrawCanvas& canvas, const Settings& settings) {
    for (const auto& [key, value] : settings) {
        EXPECT_TRUE(canvas.setBrushValue(brushProperty(key), value));
    }
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
    static ShapeRecord line(ShapePoint from, ShapePoint to) {
        ShapeRecord shape;
        shape.kind = ShapeKind::line;
        shape.corners = {from, to};
        return shape;
    }
    // The part of a stroke before its last point, from (20, 40) rightwards.
    static void sketchLine(QDDrawCanvas& canvas) {
        canvas.drawingWithBeginPoint({20, 40});
        for (int i = 1; i < 15; ++i) {
            canvas.drawingWithMoveToPoint({20.0 + i * 10, 40});
        }
    }
    static void endLine(QDDrawCanvas& canvas) { canvas.drawingWithEndPoint({170, 40}); }
    // Goes on as a spiral, which is no shape, and ends.
    static void endTangled(QDDrawCanvas& canvas) {
        const QPointF middle(canvas.bufferSize().width() / 2, canvas.bufferSize().height() / 2);
        for (int i = 0; i < 60; ++i) {
            canvas.drawingWithMoveToPoint(middle +
                                          QPointF(std::cos(i * 0.5), std::sin(i * 0.5)) * (5 + i * 0.7));
        }
        canvas.drawingWithEndPoint(middle);
    }
    static void scribble(QDDrawCanvas& canvas) {
        canvas.drawingWithBeginPoint({20, 70});
        endTangled(canvas);
    }
};

// ---- Sketches that are no shapes

TEST_F(CanvasRecognitionTest, AnUnrecognisedStrokeLeavesNoTrace) {
    const std::pair<const char*, Settings> rows[] = {
        {"plain", {}},
        {"second line", {{K::repeatedlyRenderEnabled, true}, {K::slRadius, 30.0f}}},
        {"erasing", {{K::blendType, 5}}},
        {"replacing, faint", {{K::blendType, 2}, {K::opacity, 0.3f}}},
        {"smudge brush", {{K::brushType, 3}}},
        {"preview brush", {{K::brushType, 4}}},
    };
    for (const auto& [name, settings] : rows) {
        for (const QSize size : {QSize(200, 150), QSize(333, 127), QSize(71, 93)}) {
            SCOPED_TRACE(testing::Message() << name << ", " << size.width() << " x " << size.height());
            auto canvas = makePatterned(size.width(), size.height());
            set(*canvas, settings);
            canvas->setAutoMark(size.width() == 333);
            canvas->setEnableRecogition(true);
            const QImage before = canvas->image();
            scribble(*canvas);
            sketchLine(*canvas);
            EXPECT_NE(canvas->image(), before);
            endTangled(*canvas);
            canvas->drawingWithBeginPoint({20, 20});
            canvas->drawingWithMoveToPoint({60, 20});
            canvas->drawingWithEndPoint({90, 20});  // 3 points are too few for the straightest line
            EXPECT_TRUE(imagesMatch(canvas->image(), before));
            EXPECT_EQ(canvas->curImageData(), bytesOf(*canvas));
            EXPECT_FALSE(canvas->edited() || canvas->canUndo());
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
    const auto drag = [&](int moves) { dragMouse(*canvas, {20, 75}, {10, 0}, moves); };
    drag(5);
    canvas->mouseUp({{80, 75}});  // too short to be meant
    EXPECT_TRUE(imagesMatch(canvas->image(), before));
    // The host smudges meanwhile, which begins with the canvas as it is without the sketch.
    for (const bool smudges : {false, true}) {
        drag(12);
        if (smudges) {
            canvas->clearExtenBuffer();
            const LPPoint dab{{100, 20}, 20, {1, 1, 1}};
            canvas->drawPoints(&dab, 1, ESRenderTypeSmudge);
        }
        canvas->withdrawPointerStroke();
        EXPECT_TRUE(imagesMatch(canvas->image(), before)) << smudges;
    }
    sketchLine(*canvas);
    canvas->drawingWithBeginPoint({20, 100});  // without an end before
    EXPECT_TRUE(imagesMatch(canvas->image(), before));
    canvas->drawingWithEndPoint({20, 100});
    EXPECT_FALSE(canvas->edited());
}

// ---- Sketches that are

TEST_F(CanvasRecognitionTest, ALineReplacesItsSketchWhereItWas) {
    for (const float unit : {1.0f, 2.5f, 0.0f}) {  // 0 divides by nothing
        SCOPED_TRACE(unit);
        const double divisor = unit > 0 ? static_cast<double>(unit) : 1.0;
        auto expected = makeCanvas(201, 151);
        set(*expected, {{K::radius, 9.0f}, {K::recogPointScale, unit}});
        EXPECT_TRUE(expected->drawShape(line({20 / divisor, 40 / divisor}, {170 / divisor, 40 / divisor})));
        ShownCanvas canvas({201, 151}, {402, 453});
        set(canvas, {{K::radius, 9.0f}, {K::recogPointScale, unit}, {K::enableRecogition, true}});
        for (int i = 0; i <= 15; ++i) {
            const QPointF at(40.0 + i * 20, 120);
            i == 0 ? canvas.drawingWithBeginPoint(at) : canvas.drawingWithMoveToPoint(at);
        }
        canvas.drawingWithEndPoint({340, 120});
        // Rounding may move the recognised ends by a hair.
        EXPECT_TRUE(imagesMatch(canvas.image(), expected->image(), 2));
        EXPECT_EQ(canvas.curImageData(), bytesOf(canvas));
    }
}

TEST_F(CanvasRecognitionTest, AShapeIsOneStepAndTheEndIsToldOfLast) {
    Hearer hearer;
    std::string told;
    QByteArray shownAtEnd;
    auto canvas = makePatterned();
    canvas->setAutoMark(true);
    canvas->setEnableRecogition(true);
    const QByteArray before = bytesOf(*canvas);
    sketchLine(*canvas);
    hearer.hear = [&](const char* what, QPointF&) {
        told += std::string(what) + ", ";
        if (told.ends_with("did end, ")) {
            shownAtEnd = bytesOf(*canvas);
        }
    };
    canvas->setDelegate(&hearer);
    endLine(*canvas);
    canvas->setDelegate(nullptr);
    EXPECT_EQ(told, "should end, will end, undo, did end, ");
    const QByteArray shape = bytesOf(*canvas);
    EXPECT_EQ(shownAtEnd, shape);
    scribble(*canvas);
    canvas->undoManager().waitForWrites();
    EXPECT_EQ(canvas->undo(), before);
    EXPECT_FALSE(canvas->canUndo());
    canvas->undoManager().waitForWrites();
    EXPECT_EQ(canvas->redo(), shape);
    scribble(*canvas);
    EXPECT_EQ(bytesOf(*canvas), shape);
}

// ---- The recorded canvas

TEST_F(CanvasRecognitionTest, TheRecordedCanvasFollowsTheCanvas) {
    auto canvas = makePatterned();
    canvas->setCurImageData({});
    canvas->setAutoMark(true);
    canvas->setEnableRecogition(true);
    EXPECT_TRUE(canvas->curImageData().isEmpty());  // the next step brings it
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
    canvas->clearWithColor(ESColor::grey(0.5f), true);
    EXPECT_TRUE(isCanvas()) << "after a clear";
    canvas->drawPoint({100, 80}, 40);  // in a layer as yet
    canvas->updateImage(true);
    const QByteArray picture = canvas->markAction();
    canvas->drawPoint({100, 100}, 40);  // in a layer until undo finishes it
    canvas->updateImage(true);
    canvas->undoManager().waitForWrites();
    EXPECT_EQ(canvas->undo(), picture);
    EXPECT_TRUE(isCanvas()) << "after a step back";
    canvas->setCurImageData(QByteArray(7, '\0'));  // which is no canvas
    EXPECT_TRUE(imagesMatch(canvas->currentImage(), canvas->image()));
    scribble(*canvas);
    EXPECT_EQ(bytesOf(*canvas), picture);
    // What the host records is what a sketch is taken back to.
    canvas->setCurImageData(QByteArray(picture.size(), '\0'));
    scribble(*canvas);
    EXPECT_TRUE(painted(canvas->image()).isEmpty()) << "as a whole";
    canvas->updateBGImage();
    EXPECT_TRUE(isCanvas()) << "recorded again";
}

TEST_F(CanvasRecognitionTest, AHistoryMadeLateKeepsThePicture) {
    for (const bool inStroke : {false, true}) {
        auto canvas = makeCanvas(201, 151);
        canvas->setImage(patternImage({201, 151}), QRectF(0, 0, 201, 151));
        canvas->setEnableRecogition(true);
        const QByteArray picture = bytesOf(*canvas);
        if (inStroke) {
            sketchLine(*canvas);
        }
        canvas->loadUndoManager();  // which begins with the canvas as it was made
        inStroke ? endTangled(*canvas) : scribble(*canvas);
        EXPECT_EQ(bytesOf(*canvas), picture);
    }
}

// ---- In mid-stroke

TEST_F(CanvasRecognitionTest, WhatHappensInMidStrokeHappensToTheCanvasWithoutTheSketch) {
    const QRectF under(50.5, 20.5, 60, 60);
    const QImage square = solidImage({60, 60}, QColor(0, 90, 0, 128));
    const std::pair<const char*, std::function<void(QDDrawCanvas&)>> rows[] = {
        {"image", [&](QDDrawCanvas& c) { c.drawImage(square, under); }},
        {"image in its place", [&](QDDrawCanvas& c) { c.setImage(square, under.translated(0.5, 0.5)); }},
        {"clear", [](QDDrawCanvas& c) { c.clearWithColor(ESColor::grey(1), true); }},
        {"clear but for layers", [](QDDrawCanvas& c) { c.clearESBufferWithColor(ESColor::grey(1), true); }},
        {"step", [](QDDrawCanvas& c) { c.markAction(); }},
        {"first step", [](QDDrawCanvas& c) { c.resetUndoManager(); }},
        {"new background", [](QDDrawCanvas& c) { c.updateBGImage(); }},
        {"second line", [](QDDrawCanvas& c) { c.setRepeatedlyRenderEnabled(true); }},
        {"other brush", [](QDDrawCanvas& c) { c.setBrushType(3); }},
        {"on again", [](QDDrawCanvas& c) { c.setEnableRecogition(true); }},
    };
    for (const bool marks : {false, true}) {
        for (const auto& [name, act] : rows) {
            SCOPED_TRACE(testing::Message() << name << (marks ? ", steps by themselves" : ""));
            auto expected = makePatterned();
            auto canvas = makePatterned();
            expected->setAutoMark(marks);
            canvas->setAutoMark(marks);
            canvas->setEnableRecogition(true);
            sketchLine(*canvas);
            act(*expected);
            act(*canvas);
            EXPECT_EQ(canvas->curImageData(), bytesOf(*expected));
            endTangled(*canvas);
            EXPECT_TRUE(imagesMatch(canvas->image(), expected->image()));
            EXPECT_EQ(canvas->edited(), expected->edited());
        }
    }
}

TEST_F(CanvasRecognitionTest, SwitchingInMidStrokeLeavesWhatWasDrawn) {
    QImage pictures[3];
    for (int before = 0; before < 3; ++before) {  // off all the time, on at first, off at first
        auto canvas = makePatterned();
        canvas->setEnableRecogition(before == 1);
        sketchLine(*canvas);
        const QImage sketched = canvas->image();
        canvas->setEnableRecogition(before == 2);
        endTangled(*canvas);
        pictures[before] = canvas->image();
        EXPECT_EQ(pictures[before] == sketched, before == 2);
        EXPECT_TRUE(canvas->edited());
    }
    EXPECT_TRUE(imagesMatch(pictures[1], pictures[0]));
}

// ---- Shapes drawn

TEST_F(CanvasRecognitionTest, EveryKindIsDrawnAlongItsWholeOutlineAndNowhereElse) {
    const LPControlParams pressure{1, 0, 0};
    const Settings hard = {{K::hardness, 1.0f}, {K::radius, 8.0f}};
    const std::pair<const char*, Settings> rows[] = {
        {"hard", {}},
        {"soft", {{K::hardness, 0.0f}, {K::flow, 0.2f}, {K::radius, 18.0f}}},
        {"tapered", {{K::startRadius, 0.05f}, {K::strokeControlValue, 60.0f}, {K::endRadius, 0.05f}}},
        {"sized by pressure", {{K::radiusControl, QVariant::fromValue(pressure)}, {K::minRadius, 0.01f}}},
        {"second line", {{K::repeatedlyRenderEnabled, true}, {K::slRadius, 6.0f}}},
        {"smudge brush", {{K::brushType, 3}, {K::enableRecogition, true}}},
        {"one dab a sample", {{K::pointsDistanceEnabled, false}}},
        {"in larger units", {{K::recogPointScale, 2.5f}}},
    };
    ShapeRecord shape;
    shape.centre = {100, 75};
    shape.a = 70;
    shape.b = 30;
    shape.startAngle = 5.5;
    shape.endAngle = 9;
    for (const auto& [name, settings] : rows) {
        auto canvas = makeCanvas();
        set(*canvas, hard);
        set(*canvas, settings);
        const int reach = static_cast<int>(canvas->radius() / 2) + 1;
        for (const auto& [kind, corners] : {std::pair{ShapeKind::line, 2},
                                            {ShapeKind::triangle, 3},
                                            {ShapeKind::arrow, 4},
                                            {ShapeKind::ellipse, 0},
                                            {ShapeKind::arc, 0}}) {
            SCOPED_TRACE(std::string(name) + ", " + std::string(nameOfShapeKind(kind)));
            shape.kind = kind;
            shape.corners = {{40, 30}, {150, 34}, {160, 110}, {50, 120}};
            shape.corners.resize(static_cast<std::size_t>(corners));
            canvas->clear();
            EXPECT_TRUE(canvas->drawShape(scaled(shape, 1 / double{canvas->recogPointScale()})));
            const QImage image = canvas->image();
            QImage elsewhere = image;
            int least = 255, most = 0;
            for (const auto& stroke : placesOnShape(shape, 1)) {
                for (const LPPosition& place : stroke) {
                    const QPoint at(static_cast<int>(place.x), static_cast<int>(place.y));
                    least = std::min(least, image.pixelColor(at).alpha());
                    most = std::max(most, image.pixelColor(at).alpha());
                    fillRect(elsewhere, QRect(at.x() - reach, at.y() - reach, 2 * reach + 1, 2 * reach + 1),
                             Qt::transparent);
                }
            }
            EXPECT_GT(2 * least, most - 64) << "a gap, or a place drawn twice";
            EXPECT_TRUE(painted(elsewhere).isEmpty());
        }
    }
}

TEST_F(CanvasRecognitionTest, WhatCannotBeDrawnIsRefused) {
    auto canvas = makePatterned();
    canvas->setAutoMark(true);
    canvas->setEnableRecogition(true);
    const LogCapture log;
    EXPECT_FALSE(canvas->drawShape({}));
    EXPECT_TRUE(log.lines().isEmpty());
    EXPECT_FALSE(canvas->drawShape(line({1, 1}, {1e12, 1})));
    EXPECT_TRUE(log.has("no line can be drawn"));
    ShapeRecord unknown = line({1, 1}, {50, 1});
    unknown.kind = static_cast<ShapeKind>(200);
    unknown.a = unknown.b = 20;
    EXPECT_FALSE(canvas->drawShape(unknown));
    EXPECT_TRUE(log.has("no unknown shape can be drawn"));
    canvas->drawingWithBeginPoint({20, 20});
    EXPECT_FALSE(canvas->drawShape(line({1, 1}, {50, 1})));
    EXPECT_TRUE(log.has("stroke is in progress"));
    canvas->drawingWithEndPoint({20, 20});
    EXPECT_EQ(log.lines().size(), 3);
    EXPECT_FALSE(canvas->canUndo());
    EXPECT_TRUE(canvas->drawShape(line({1, 1}, {50, 1})));
    EXPECT_TRUE(canvas->canUndo());
}

}  // namespace
