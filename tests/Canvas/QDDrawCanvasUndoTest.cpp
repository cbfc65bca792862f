// SPDX-License-Identifier: MIT
#include <QFile>
#include <string>
#include <vector>

#include "Canvas/QDDrawCanvas.h"
#include "History/ImagesUndoManager.h"
#include "History/Packing.h"
#include "support/CanvasTest.h"
#include "support/Hearer.h"
#include "support/Limits.h"
#include "support/LogCapture.h"

using namespace dabcanvas;

namespace {

class CanvasUndoTest : public CanvasTest {
protected:
    using Told = std::vector<std::string>;

    void SetUp() override {
        CanvasTest::SetUp();
        canvas = makeCanvas(120, 90);
        canvas->setAutoMark(true);
        statuses.hear = [this](const char* what, QPointF&) {
            if (std::string_view(what).ends_with("do")) {
                told.emplace_back(what);
            }
        };
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
    Hearer statuses;
    Told told;
};

// A parameter: bits a channel of the picture.
class CanvasUndoOfDepthTest : public CanvasUndoTest, public ::testing::WithParamInterface<int> {};
INSTANTIATE_TEST_SUITE_P(Each, CanvasUndoOfDepthTest, ::testing::Values(8, 16));

TEST_P(CanvasUndoOfDepthTest, EveryFinishedStrokeComesBackByteForByte) {
    canvas = makeCanvas(120, 90, SurfaceKind::automatic, GetParam());
    canvas->setAutoMark(true);
    std::vector<QImage> pictures{canvas->image()};
    std::vector<std::vector<std::uint8_t>> whole{bitsOf(*canvas)};
    for (const std::int32_t brush : {0, 3, 4, 0}) {
        canvas->setBrushType(brush);
        canvas->setRenderColor(ESColor::rgba(0.2f, 0.3f * static_cast<float>(brush), 0.7f));
        pictures.push_back(paint(20 + 18 * brush));
        whole.push_back(bitsOf(*canvas));
    }
    const auto expectShown = [&](std::size_t i) {
        EXPECT_EQ(bitsOf(*canvas), whole[i]) << "step " << i;
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
    canvas->undo();
    EXPECT_TRUE(imagesMatch(paint(40), stroke)) << "as if there had been none before, down to the rounding";
    canvas->setImage(patternImage({120, 90}), QRectF(0, 0, 120, 90));
    canvas->clearWithColor(ESColor::grey(0.5f), true);
    EXPECT_FALSE(canvas->undo().isNull());
    EXPECT_TRUE(imagesMatch(canvas->image(), patternImage({120, 90})));
    EXPECT_FALSE(canvas->undo().isNull());
    EXPECT_TRUE(imagesMatch(canvas->image(), stroke));
    // Undo puts back what a mouse stroke is withdrawn to, too.
    dragMouse(*canvas, {20, 20}, {40, 40}, 1);
    canvas->mouseUp({{60, 60}});
    EXPECT_TRUE(imagesMatch(canvas->image(), stroke));
    EXPECT_TRUE(canvas->canRedo()) << "a withdrawn stroke is no step";
    // What is recorded in the middle of one stays a step; the canvas without it is another.
    dragMouse(*canvas, {20, 20}, {40, 40}, 1);
    EXPECT_FALSE(canvas->markAction().isNull());
    canvas->mouseUp({{60, 60}});
    EXPECT_FALSE(canvas->markAction().isNull());
    EXPECT_TRUE(imagesMatch(canvas->currentImage(), stroke));
    // What withdrawing leaves on the canvas is an edit: dabs of the host's, and smudges whose layer it emptied.
    for (const bool smudges : {false, true}) {
        canvas->setBrushType(smudges ? 3 : 0);
        canvas->mouseDown({{20, 20}});
        canvas->mouseDragged({{60, 60}});
        const LPPoint dab{{100, 20}, 20, {1, 1, 1}};
        smudges ? canvas->clearExtenBuffer()
                : static_cast<void>(canvas->drawPoints(&dab, 1, ESRenderTypeCanvas));
        canvas->mouseDragged({{60, 20}});
        canvas->mouseUp({{60, 20}});
        EXPECT_NE(canvas->image(), stroke);
        EXPECT_TRUE(canvas->edited()) << smudges;
        canvas->undo();
        EXPECT_TRUE(imagesMatch(canvas->image(), stroke));
    }
    canvas->setBrushType(0);
    // A stroke without an end is one of its own.
    beginThrough(*canvas, {{20, 60}, {50, 60}, {80, 60}});
    const QImage unended = canvas->image();
    paint(20);
    canvas->undo();
    EXPECT_TRUE(imagesMatch(canvas->image(), unended));
}

TEST_F(CanvasUndoTest, TheDelegateHearsOfChangesOnly) {
    EXPECT_FALSE(canvas->canUndo());
    const auto stroke = [](QDDrawCanvas& c) { paintWave(c, 40, 12); };
    const auto undo = [](QDDrawCanvas& c) { c.undo(); };
    const auto redo = [](QDDrawCanvas& c) { c.redo(); };
    const auto reset = [](QDDrawCanvas& c) { EXPECT_FALSE(c.resetUndoManager().isNull()); };
    int number = 0;
    for (const auto& [act, news] :
         std::vector<std::pair<void (*)(QDDrawCanvas&), Told>>{{stroke, {"undo"}},
                                                               {stroke, {}},
                                                               {undo, {"redo"}},
                                                               {undo, {"no undo"}},
                                                               {redo, {"undo"}},
                                                               {stroke, {"no redo"}},
                                                               {reset, {"no undo"}}}) {
        act(*canvas);
        EXPECT_EQ(std::exchange(told, {}), news) << "act " << ++number;
    }
    EXPECT_FALSE(canvas->canUndo());
    canvas->setAutoMark(false);
    const QImage drawn = paint(75);
    canvas->resetUndoManager();
    EXPECT_TRUE(canvas->markAction().isNull()) << "nothing was drawn since";
    EXPECT_TRUE(imagesMatch(canvas->image(), drawn));
}

TEST_F(CanvasUndoTest, MarksOnlyWhatWasDrawnAndNotTooOften) {
    canvas->setAutoMark(false);
    EXPECT_TRUE(canvas->markAction().isNull()) << "nothing was drawn";
    paint(20);
    EXPECT_FALSE(canvas->markAction().isNull());
    EXPECT_TRUE(canvas->markAction().isNull());
    EXPECT_TRUE(canvas->canUndo());
    canvas->setAutoMark(true);
    canvas->setMarkTimeInterval(3600);
    paint(40);
    paint(60);
    EXPECT_EQ(canvas->undoManager().undoItems().size(), 1) << "two quick strokes are no steps of their own";

    // The interval holds from when it is set, before the first step too.
    for (const bool loaded : {false, true}) {
        auto fresh = makeCanvas(120, 90);
        fresh->setAutoMark(true);
        fresh->setMarkTimeInterval(1e9f);
        paintWave(*fresh, 20, 12);
        paintWave(*fresh, 40, 12);
        EXPECT_EQ(fresh->undoManager().undoItems().size(), 1);
        if (loaded) {
            fresh->setMarkTimeInterval(3600);
            EXPECT_FALSE(fresh->loadUndoManager().isNull());
            EXPECT_EQ(fresh->markTimeInterval(), 0);
        }
        paintWave(*fresh, 60, 12);
        EXPECT_EQ(fresh->undoManager().undoItems().size(), loaded ? 2 : 1);
    }

    // Not in the middle of a stroke.
    canvas->setMarkTimeInterval(0);
    paint(75);
    const QImage before = canvas->image();
    beginThrough(*canvas, {{10, 10}, {60, 10}});
    EXPECT_TRUE(canvas->undo().isNull());
    EXPECT_TRUE(canvas->redo().isNull());
    canvas->drawingWithEndPoint({100, 10});
    canvas->undo();
    EXPECT_TRUE(imagesMatch(canvas->image(), before));
}

TEST_F(CanvasUndoTest, AStrokeBesideTheCanvasIsNone) {
    const QImage before = paint(40);
    canvas->setModified(false);
    for (const std::int32_t brush : {0, 3}) {
        canvas->setBrushType(brush);
        canvas->setRadius(12);
        paintThrough(*canvas, {{-30, 20}, {-30, 50}, {-30, 80}});
        paintThrough(*canvas, {{-90, 40}, {-25, -25}, {40, -90}});  // about the corner
        EXPECT_FALSE(canvas->isModified()) << brush;
        EXPECT_EQ(canvas->undoManager().undoItems().size(), 1) << brush;
        EXPECT_TRUE(imagesMatch(canvas->image(), before)) << brush;
    }
    canvas->setBrushType(0);
    canvas->setSymmetry({.kind = SymmetryKind::vertical, .centreX = 0, .centreY = 0});
    paintThrough(*canvas, {{-30, 20}, {-30, 50}, {-30, 80}});
    EXPECT_EQ(canvas->undoManager().undoItems().size(), 2) << "by its copy";
}

// What no step holds yet is neither lost to undo nor to redo.
TEST_F(CanvasUndoTest, UndoRecordsFirstWhatNoStepHolds) {
    struct Edit {
        const char* name;
        void (*make)(QDDrawCanvas&);
        bool marks = false;  // but not so soon
    };
    const auto stroke = [](QDDrawCanvas& c) { paintWave(c, 40, 12); };
    const auto preview = [](QDDrawCanvas& c) { c.setBrushType(4), paintWave(c, 40, 12); };
    const auto place = [](QDDrawCanvas& c) { c.drawImage(patternImage({30, 30}), QRectF(5, 5, 30, 30)); };
    const auto dab = [](QDDrawCanvas& c) { c.drawPoint({60, 40}, 30), c.updateImage(true); };
    for (const Edit& edit : {Edit{"a stroke so soon", stroke, true},
                             {"a stroke", stroke},
                             {"a preview", preview},
                             {"an image", place},
                             {"a clear", [](QDDrawCanvas& c) { c.clear(); }},
                             {"a dab", dab}}) {
        for (const bool hasSteps : {false, true}) {
            SCOPED_TRACE(std::string(edit.name) + (hasSteps ? " after a step" : ""));
            canvas = makeCanvas(120, 90);
            canvas->setDelegate(&statuses);
            paintWave(*canvas, 20, 12);
            hasSteps ? canvas->markAction() : canvas->resetUndoManager();
            canvas->setAutoMark(edit.marks);
            canvas->setMarkTimeInterval(3600);
            if (!hasSteps && edit.marks) {
                paintWave(*canvas, 20, 12);  // the first is never too soon
                canvas->resetUndoManager();
            }
            const QImage clean = canvas->image();
            told.clear();
            edit.make(*canvas);
            EXPECT_TRUE(canvas->canUndo());
            EXPECT_FALSE(canvas->canRedo());
            EXPECT_EQ(std::exchange(told, {}), hasSteps ? Told{} : Told{"undo"});
            const QImage after = canvas->image();
            EXPECT_FALSE(canvas->undo().isNull());
            EXPECT_TRUE(imagesMatch(canvas->image(), clean));
            EXPECT_EQ(std::exchange(told, {}), hasSteps ? Told{"redo"} : (Told{"no undo", "redo"}));
            EXPECT_FALSE(canvas->redo().isNull());
            EXPECT_TRUE(imagesMatch(canvas->image(), after));
            // After an unrecorded edit there is nothing to redo, and undo takes that edit back.
            canvas->undo();
            const QImage undone = canvas->image();
            told.clear();
            edit.make(*canvas);
            const QImage edited = canvas->image();
            EXPECT_TRUE(canvas->redo().isNull());
            EXPECT_TRUE(imagesMatch(canvas->image(), edited));
            EXPECT_EQ(std::exchange(told, {}).back(), "no redo");
            EXPECT_FALSE(canvas->undo().isNull());
            EXPECT_TRUE(imagesMatch(canvas->image(), undone));
        }
    }
}

TEST_F(CanvasUndoTest, ALostStepClearsTheCanvasAndNothingElse) {
    paint(20);
    const QImage last = paint(60);
    ImagesUndoManager& steps = canvas->undoManager();
    told.clear();
    steps.removeOneObjectFromCache();
    steps.removeOneObjectFromCache();
    steps.waitForWrites();
    ASSERT_TRUE(QFile::remove(steps.pathWithName(steps.undoItems().last())));
    {
        const LogCapture log;
        canvas->undo();
        EXPECT_EQ(log.lines().size(), 1) << qPrintable(log.lines().join('\n'));
    }
    EXPECT_TRUE(painted(canvas->image()).isEmpty() && canvas->autoMark());
    EXPECT_EQ(std::exchange(told, {}), Told{"redo"});
    EXPECT_FALSE(canvas->redo().isNull());
    EXPECT_TRUE(imagesMatch(canvas->image(), last));
}

TEST_F(CanvasUndoTest, WithoutMemoryTheCanvasKeepsItsPicture) {
    if (!kMemoryIsLimited) {
        return;
    }
    // Pictures larger than what a thread's heap sets aside, which the limit does not take away.
    auto large = makeCanvas(5000, 3600);
    large->setAutoMark(true);
    large->setDelegate(&statuses);
    for (const int shift : {0, 100}) {
        large->setImage(patternImage({50, 36}).copy(shift / 10, 0, 40, 36), QRectF(0, 0, 5000, 3600));
    }
    large->undoManager().waitForCompression();
    const auto withoutMemory = [](auto what) {
        const FullMemory memory;
        return !what().isNull();
    };
    told.clear();
    const QImage shown = large->image();
    if (canPack()) {
        const LogCapture log;
        EXPECT_FALSE(withoutMemory([&] { return large->undo(); }));
        EXPECT_EQ(log.lines().size(), 1) << qPrintable(log.lines().join('\n'));
        EXPECT_FALSE(withoutMemory([&] { return large->curImageData().bytes(); }));
    }
    EXPECT_TRUE(imagesMatch(large->image(), shown));
    EXPECT_TRUE(imagesMatch(large->currentImage(), shown));
    EXPECT_FALSE(large->canRedo());
    EXPECT_EQ(std::exchange(told, {}), Told{});
    EXPECT_FALSE(large->undo().isNull());
    EXPECT_FALSE(large->redo().isNull());
    EXPECT_TRUE(imagesMatch(large->image(), shown));

    large = makeCanvas(5000, 3600);
    paintWave(*large, 300, 12);
    const QImage painted = large->image();
    large->setEnableRecogition(true);
    const QByteArray kept = large->curImageData();  // so that it is not given back
    beginThrough(*large, {{100, 300}, {2000, 300}});
    withoutMemory([&] { return large->markAction(); });
    large->drawingWithMoveToPoint({100, 320});
    large->drawingWithEndPoint({2000, 100});
    EXPECT_TRUE(imagesMatch(large->image(), painted)) << "the canvas with the sketch taken back";
}

}  // namespace
