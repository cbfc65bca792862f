// SPDX-License-Identifier: MIT
#include <string>
#include <vector>

#include "History/ImagesUndoManager.h"
#include "QDEAGLView/QDDrawCanvas.h"
#include "support/CanvasTest.h"

namespace {

class Statuses : public QDDrawViewDelegate {
public:
    std::vector<std::string> told;
    void drawViewDidUpdateUndoStatus(QDDrawCanvas&, bool can) override {
        told.push_back(can ? "undo" : "no undo");
    }
    void drawViewDidUpdateRedoStatus(QDDrawCanvas&, bool can) override {
        told.push_back(can ? "redo" : "no redo");
    }
    std::vector<std::string> take() { return std::exchange(told, {}); }
};

class CanvasUndoTest : public CanvasTest {
protected:
    using Told = std::vector<std::string>;

    void SetUp() override {
        CanvasTest::SetUp();
        canvas = makeCanvas(120, 90);
        canvas->setAutoMark(true);
        canvas->setDelegate(&statuses);
    }
    void TearDown() override {
        canvas.reset();
        CanvasTest::TearDown();
    }
    QImage paint(double y) {
        paintWave(*canvas, y, 12);
        return canvas->image();
    }

    std::unique_ptr<QDDrawCanvas> canvas;
    Statuses statuses;
};

TEST_F(CanvasUndoTest, EveryFinishedStrokeComesBackByteForByte) {
    std::vector<QImage> pictures{canvas->image()};
    for (const std::int32_t brush : {0, 3, 4, 0}) {
        canvas->setBrushType(brush);
        canvas->setRenderColor(ESColor::rgba(0.2f, 0.3f * static_cast<float>(brush), 0.7f));
        pictures.push_back(paint(20 + 18 * brush));
    }
    const auto expectShown = [&](std::size_t i) {
        EXPECT_TRUE(imagesMatch(canvas->image(), pictures[i])) << "step " << i;
        EXPECT_TRUE(imagesMatch(canvas->displayImage(), pictures[i])) << "step " << i;
        EXPECT_TRUE(imagesMatch(canvas->currentImage(), pictures[i])) << "step " << i;
    };
    for (int round = 0; round < 2; ++round) {
        for (std::size_t i = pictures.size() - 1; i > 0; --i) {
            EXPECT_FALSE(canvas->undo().isNull());
            expectShown(i - 1);
        }
        EXPECT_TRUE(canvas->undo().isNull());
        for (std::size_t i = 1; i < pictures.size(); ++i) {
            EXPECT_FALSE(canvas->redo().isNull());
            expectShown(i);
        }
        EXPECT_TRUE(canvas->redo().isNull());
    }
    // A stroke after an undo is drawn on what is shown, and drops what was undone.
    canvas->undo();
    canvas->undo();
    const QImage after = paint(70);
    EXPECT_FALSE(canvas->canRedo());
    canvas->undo();
    expectShown(2);
    canvas->redo();
    EXPECT_TRUE(imagesMatch(canvas->image(), after));
}

TEST_F(CanvasUndoTest, ImagesAndClearsAreSteps) {
    const QImage stroke = paint(40);
    canvas->setImage(patternImage({120, 90}), QRectF(0, 0, 120, 90));
    canvas->clearWithColor(ESColor::grey(0.5f), true);
    EXPECT_FALSE(canvas->undo().isNull());
    EXPECT_TRUE(imagesMatch(canvas->image(), patternImage({120, 90})));
    EXPECT_FALSE(canvas->undo().isNull());
    EXPECT_TRUE(imagesMatch(canvas->image(), stroke));
    // Undo puts back what a mouse stroke is withdrawn to, too.
    canvas->mouseDown({{20, 20}});
    canvas->mouseDragged({{60, 60}});
    canvas->mouseUp({{60, 60}});
    EXPECT_TRUE(imagesMatch(canvas->image(), stroke));
    EXPECT_TRUE(canvas->canRedo()) << "a withdrawn stroke is no step";
}

TEST_F(CanvasUndoTest, TheDelegateHearsOfChangesOnly) {
    EXPECT_FALSE(canvas->canUndo());
    paint(20);
    EXPECT_EQ(statuses.take(), Told{"undo"});
    paint(40);
    EXPECT_EQ(statuses.take(), Told{});
    canvas->undo();
    EXPECT_EQ(statuses.take(), Told{"redo"});
    canvas->undo();
    EXPECT_EQ(statuses.take(), Told{"no undo"});
    canvas->redo();
    EXPECT_EQ(statuses.take(), Told{"undo"});
    paint(60);
    EXPECT_EQ(statuses.take(), Told{"no redo"});
    const QImage present = canvas->image();
    EXPECT_FALSE(canvas->resetUndoManager().isNull());
    EXPECT_EQ(statuses.take(), Told{"no undo"});
    EXPECT_FALSE(canvas->canUndo());
    EXPECT_TRUE(imagesMatch(canvas->image(), present));
}

TEST_F(CanvasUndoTest, MarksOnlyWhatWasDrawnAndNotTooOften) {
    canvas->setAutoMark(false);
    EXPECT_TRUE(canvas->markAction().isNull()) << "nothing was drawn";
    paint(20);
    EXPECT_FALSE(canvas->canUndo());
    EXPECT_FALSE(canvas->markAction().isNull());
    EXPECT_TRUE(canvas->markAction().isNull());
    EXPECT_TRUE(canvas->canUndo());
    canvas->setAutoMark(true);
    canvas->setMarkTimeInterval(3600);
    paint(40);
    paint(60);
    canvas->undo();
    EXPECT_FALSE(canvas->canUndo()) << "two quick strokes are no step of their own";
    canvas->redo();
    canvas->setMarkTimeInterval(0);
    paint(75);
    canvas->undo();
    EXPECT_FALSE(painted(canvas->image()).isEmpty());

    // Not in the middle of a stroke.
    const QImage before = canvas->image();
    canvas->drawingWithBeginPoint({10, 10});
    canvas->drawingWithMoveToPoint({60, 10});
    EXPECT_TRUE(canvas->undo().isNull());
    EXPECT_TRUE(canvas->redo().isNull());
    canvas->drawingWithEndPoint({100, 10});
    canvas->undo();
    EXPECT_TRUE(imagesMatch(canvas->image(), before));
}

TEST_F(CanvasUndoTest, TheStepLimitDropsTheOldest) {
    canvas->undoManager().setUndoStepCount(3);
    std::vector<QImage> pictures;
    for (int i = 0; i < 8; ++i) {
        pictures.push_back(paint(10 + i * 9));
    }
    canvas->undoManager().waitForWrites();
    int undone = 0;
    while (!canvas->undo().isNull()) {
        canvas->undoManager().waitForWrites();
        ++undone;
        EXPECT_TRUE(imagesMatch(canvas->image(), pictures[static_cast<std::size_t>(7 - undone)]));
    }
    EXPECT_EQ(undone, 3);
}

}  // namespace
