// SPDX-License-Identifier: MIT
// A canvas that goes while it calls its host, and one whose OpenGL context goes.
#include <QApplication>
#include <QMouseEvent>
#include <map>
#include <set>
#include <string>

#include "Canvas/CanvasLayers.h"
#include "History/ImagesUndoManager.h"
#include "Preview/LeafDrawing.h"
#include "QDEAGLView/QDDrawView.h"
#include "support/CanvasTest.h"
#include "support/FailingDriver.h"
#include "support/Hearer.h"
#include "support/LogCapture.h"

namespace {

// Whose display hooks are heard, too.
template <typename Base>
class Displayed : public Base {
public:
    template <typename... Arguments>
    explicit Displayed(Hearer& hearer, Arguments... arguments) : Base(arguments...), _hearer(hearer) {}
    bool make() { return Base::initCanvas(); }
    std::function<void()> atFrame;

protected:
    void redisplayRect(const QRectF&) override { _hearer.say("redisplay"); }
    void showLeafDrawView(bool) override { _hearer.say("show preview"); }
    QRectF displayFrame() const override {
        if (atFrame) {
            atFrame();
        }
        return Base::displayFrame();
    }

private:
    Hearer& _hearer;
};

QDDrawTouch at(double x, double y = 40) {
    return {{x, y}, 1};
}

using Step = std::function<void(QDDrawCanvas&)>;

// What a host may do, a letter each; the place is for those that need one.
using C = QDDrawCanvas;
const std::map<char, void (*)(C&, QPointF)> kSteps = {
    {'(', [](C& c, QPointF at) { c.drawingWithBeginPoint(at); }},
    {'.', [](C& c, QPointF at) { c.drawingWithMoveToPoint(at); }},
    {')', [](C& c, QPointF at) { c.drawingWithEndPoint(at); }},
    {'d', [](C& c, QPointF at) { c.mouseDown({at}); }},
    {'m', [](C& c, QPointF at) { c.mouseDragged({at}); }},
    {'u', [](C& c, QPointF at) { c.mouseUp({at}); }},
    {'D', [](C& c, QPointF at) { c.touchesBeganWithEvent({at}); }},
    {'M', [](C& c, QPointF at) { c.touchesMovedWithEvent({at}); }},
    {'U', [](C& c, QPointF at) { c.touchesEndedWithEvent({at}); }},
    {'C', [](C& c, QPointF at) { c.touchesCancelledWithEvent({at}); }},
    {'x', [](C& c, QPointF) { c.endPointerStroke(); }},
    {'w', [](C& c, QPointF) { c.withdrawPointerStroke(); }},
    {'p', [](C& c, QPointF at) { c.drawPoint(at, 9), c.updateImage(true); }},
    {'I',
     [](C& c, QPointF) {
         c.setImage(patternImage({80, 60}), QRectF(0, 0, 80, 60));
     }},
    {'c', [](C& c, QPointF) { c.clear(); }},
    {'G', [](C& c, QPointF) { c.clearWithColor(ESColor::grey(0.5f), true); }},
    {'L', [](C& c, QPointF) { c.clearESBufferOnline(true); }},
    {'R', [](C& c, QPointF) { c.resetWithRenderRect(QRectF(0, 0, 30, 30)); }},
    {'i', [](C& c, QPointF) { c.image(); }},
    {'<', [](C& c, QPointF) { c.undo(); }},
    {'>', [](C& c, QPointF) { c.redo(); }},
    {'a', [](C& c, QPointF) { c.setAutoMark(false); }},
    {'k', [](C& c, QPointF) { c.markAction(); }},
    {'K', [](C& c, QPointF) { c.resetUndoManager(); }},
    {'3', [](C& c, QPointF) { c.setBrushType(3); }},
    {'4', [](C& c, QPointF) { c.setBrushType(4); }},
    {'S', [](C& c, QPointF) { c.setEnableRecogition(true); }},
    {'2', [](C& c, QPointF) { c.setRepeatedlyRenderEnabled(true); }},
    {'P', [](C& c, QPointF) { c.resetParams(); }},
    {'h', [](C& c, QPointF) {
         auto* const hearer = static_cast<Hearer*>(c.delegate());
         c.leafDrawView().setComplention([hearer](const QImage&, QSizeF) { hearer->say("complention"); });
     }}};

// What happens to a view, b m e the mouse.
void happen(QDDrawView& view, char what, QPointF at) {
    if (what == 'X') {
        view.setEnabled(false);
    } else if (what == 'W') {
        QEvent left(QEvent::WindowDeactivate);
        QApplication::sendEvent(&view, &left);
    } else {
        const auto type = what == 'b'   ? QEvent::MouseButtonPress
                          : what == 'm' ? QEvent::MouseMove
                                        : QEvent::MouseButtonRelease;
        QMouseEvent event(type, at, at, at, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&view, &event);
    }
}

struct Session {
    const char *name, *steps;
    bool inView = false;
};
const Session kSessions[] = {
    {"a stroke, back and forth", "(..)<><(..)"},
    {"never ended", "(.(.)"},
    {"no steps of themselves", "a(..)<IkK"},
    {"pictures and clears", "IGLpR"},
    {"smudging", "I3(..)"},
    {"a preview", "4(..)(c)"},
    {"a preview's own way", "4h(..)(..)i"},
    {"a shape", "S(....)"},
    {"brushes in mid-stroke", "(.4(.S.P(.2"},
    {"a short mouse stroke", "dmmmu"},
    {"a long mouse stroke", "dmmmmmmmmmmmu"},
    {"a finger", "DMU"},
    {"a finger that slid", "DU"},
    {"a finger too many", "DMC"},
    {"a pointer that leaves", "dmmmmmmmmmmmxdmmw"},
    {"a view's mouse", "bmme", true},
    {"a view's window", "bmmW", true},
    {"a disabled view", "bmmX", true},
};

// The canvas goes at the call of that number; what it told.
std::vector<std::string> paint(const Session& session, std::size_t fatal) {
    Hearer hearer;
    std::unique_ptr<QDDrawCanvas> canvas;
    std::vector<std::string> told;
    hearer.hear = [&](const char* what, QPointF&) {
        if (canvas) {
            told.emplace_back(what);
            if (told.size() == fatal) {
                canvas.reset();
            }
        }
    };
    const auto make = [&](auto made) {
        EXPECT_TRUE(made->make());
        canvas = std::move(made);
    };
    const QRectF frame(0, 0, 80, 60);
    if (session.inView) {
        make(std::make_unique<Displayed<QDDrawView>>(hearer, frame));
    } else {
        make(std::make_unique<Displayed<QDDrawCanvas>>(hearer, frame));
    }
    canvas->setDelegate(&hearer);
    canvas->setAutoMark(true);
    double x = 10;
    for (const char* step = session.steps; *step != 0 && canvas; ++step, x += x < 55 ? 12 : -43) {
        if (session.inView) {
            happen(dynamic_cast<QDDrawView&>(*canvas), *step, {x, 40});
        } else {
            kSteps.at (*step)(*canvas, {x, 40});
        }
    }
    EXPECT_EQ(canvas == nullptr, fatal > 0);
    return told;
}

using CanvasLifeTest = CanvasTest;

TEST_F(CanvasLifeTest, TheHostMayDestroyTheCanvasWhateverItHears) {
    std::set<std::string> heard;
    for (const Session& session : kSessions) {
        const std::vector<std::string> told = paint(session, 0);
        std::map<std::string, std::size_t> last;  // earlier ones are like it
        for (std::size_t i = 0; i < told.size(); ++i) {
            last[told[i]] = i + 1;
        }
        for (const auto& [what, fatal] : last) {
            SCOPED_TRACE(std::string(session.name) + ": " + what);
            heard.insert(what);
            EXPECT_EQ(paint(session, fatal).size(), fatal) << "told after its end";
        }
    }
    EXPECT_EQ(heard,
              (std::set<std::string>{"should begin", "will begin", "did begin", "should move", "will move",
                                     "did move", "should end", "will end", "did end", "undo", "no undo",
                                     "redo", "no redo", "redisplay", "show preview", "complention"}));
}

TEST_F(CanvasLifeTest, WhereTheCanvasIsNeededItsEndIsTheProcesss) {
    ::testing::FLAGS_gtest_death_test_style = "threadsafe";
    Hearer deaf;
    deaf.hear = [](const char*, QPointF&) {};
    EXPECT_DEATH(
        {
            auto canvas = std::make_unique<Displayed<QDDrawCanvas>>(deaf, QRectF(0, 0, 80, 60));
            canvas->make();
            canvas->atFrame = [&] { canvas.reset(); };
            canvas->mouseDown(at(10));
        },
        "cannot do without it");
    EXPECT_DEATH(
        {
            Hearer hearer;
            auto view = QDDrawView::initWithFrame(QRectF(0, 0, 80, 60));
            hearer.hear = [&](const char* what, QPointF&) {
                std::string(what) == "will end" ? view.reset() : void();
            };
            view->setDelegate(&hearer);
            view->show();
            view->mouseDown(at(10));
            view->mouseDragged(at(40));
            view->hide();
        },
        "cannot do without it");
    struct Leaf : LeafDrawing {
        Leaf() : LeafDrawing(QSizeF(80, 60)) {}
        void redisplayRect(const QRectF&) override { delete this; }
    };
    EXPECT_DEATH(
        {
            auto* leaf = new Leaf;
            leaf->drawWithBegin({10, 10});
            leaf->drawWithMove({30, 30});
        },
        "display hook");
}

// ---- A lost context

struct Finder {
    const char* name;
    Step find;
    bool unrecorded;  // something waits to be recorded
    bool told;
};

TEST_F(CanvasLifeTest, ALostContextIsToldOnceAndLeavesTheHistoryAsItIs) {
    const Step acrossCanvas = [](C& c) { paintWave(c, 40, 12); };
    const Step fill = [](C& c) { c.clearWithColor(ESColor::grey(1), true); };
    const Step mark = [](C& c) { EXPECT_TRUE(c.markAction().isNull()); };
    const Step undo = [](C& c) { EXPECT_TRUE(c.undo().isNull()); };
    const Step reset = [](C& c) { EXPECT_TRUE(c.resetUndoManager().isNull()); };
    const Step place = [](C& c) { EXPECT_FALSE(c.setImage(patternImage({80, 60}), QRectF(0, 0, 80, 60))); };
    const Step draw = [](C& c) { EXPECT_FALSE(c.drawImage(patternImage({90, 70}), QRectF(0, 0, 30, 60))); };
    const Step read = [](C& c) { EXPECT_TRUE(c.image().isNull()); };
    const Step dab = [](C& c) { c.drawPoint({20, 20}, 9), c.updateImage(true); };
    const Step show = [](C& c) { c.displayImage(); };
    const Step base = [](C& c) { c.setEnableRecogition(true), c.updateBGImage(); };
    const Step click = [](C& c) { c.mouseDown(at(10)), c.mouseDragged(at(40)), c.mouseUp(at(40)); };
    for (const Finder& finder :
         {Finder{"a stroke", acrossCanvas, false, true}, Finder{"a clear", fill, false, true},
          Finder{"a mark", mark, true, true}, Finder{"undo", undo, false, true},
          Finder{"undo of what is unrecorded", undo, true, true}, Finder{"a reset", reset, false, true},
          Finder{"an image set", place, false, true}, Finder{"an image drawn", draw, false, true},
          Finder{"reading", read, false, true}, Finder{"showing", show, true, false}}) {
        SCOPED_TRACE(finder.name);
        auto canvas = makeCanvas(80, 60, SurfaceKind::gpu);
        Hearer hearer;
        std::vector<std::string> told;
        hearer.hear = [&](const char* what, QPointF&) { told.emplace_back(what); };
        canvas->setAutoMark(true);
        paintWave(*canvas, 20, 12);
        paintWave(*canvas, 40, 12);
        const QImage shown = canvas->displayImage();
        const QByteArray last = canvas->undoManager().currentImageDataOfItem();
        canvas->setAutoMark(!finder.unrecorded);
        if (finder.unrecorded) {
            dab(*canvas);
        }
        canvas->setDelegate(&hearer);
        const FailingDriver driver(FailingDriver::Fault::lostContext);
        const LogCapture log;
        finder.find(*canvas);
        EXPECT_TRUE(canvas->isContextLost());
        EXPECT_EQ(std::count(told.begin(), told.end(), "lost"), finder.told ? 1 : 0);
        told.clear();
        canvas->setAutoMark(true);
        for (const Step& step :
             {acrossCanvas, fill, mark, undo, reset, place, draw, read, dab, show, base, click}) {
            step(*canvas);
        }
        EXPECT_EQ(told,
                  finder.told ? std::vector<std::string>{} : (std::vector<std::string>{"lost", "no undo"}));
        EXPECT_EQ(log.lines().size(), 1) << qPrintable(log.lines().join('\n'));
        EXPECT_FALSE(canvas->canUndo() || canvas->isDrawing());
        EXPECT_EQ(canvas->undoManager().undoItems().size(), 2);
        EXPECT_EQ(canvas->undoManager().currentImageDataOfItem(), last);
        EXPECT_EQ(canvas->curImageData(), last);
        EXPECT_TRUE(imagesMatch(canvas->displayImage(), shown));
    }
}

// In another surface, be it of a context that is made anew.
TEST_F(CanvasLifeTest, ALostCanvasRecoversWithItsLayersDepthAndHistory) {
    for (const SurfaceKind kind : {SurfaceKind::processor, SurfaceKind::gpu}) {
        for (const int depth : {8, 16}) {
            SCOPED_TRACE(::testing::Message() << int(kind) << " with " << depth);
            auto canvas = makeCanvas(150, 100, SurfaceKind::gpu, depth);
            canvas->setAutoMark(true);
            canvas->setOpacity(0.3f);
            paintWave(*canvas, 20, 12);
            const QImage first = canvas->layers().deepImage(0);
            canvas->layers().add(1, {.name = "Ink", .opacity = 0.5f, .blendType = ESBlendTypeMultiply});
            paintWave(*canvas, 50, 30);
            canvas->layers().setActive(0);
            canvas->setModified(false);
            paintWave(*canvas, 70, 12);
            const QImage below = canvas->layers().deepImage(0), above = canvas->layers().deepImage(1),
                         shown = canvas->displayImage();
            {
                const FailingDriver driver(FailingDriver::Fault::lostContext);
                const LogCapture quiet;
                canvas->drawingWithBeginPoint({10, 10});
                canvas->drawingWithMoveToPoint({60, 60});
                EXPECT_TRUE(canvas->image().isNull() && canvas->isContextLost() && canvas->undo().isNull());
                ASSERT_TRUE(canvas->recoverFromLoss(kind));
            }
            EXPECT_FALSE(canvas->isContextLost() || canvas->isDrawing());
            EXPECT_EQ(canvas->surfaceOptions().kind, kind);
            EXPECT_EQ(canvas->layers().deepImage(0), below);
            EXPECT_EQ(canvas->layers().deepImage(1), above);
            EXPECT_EQ(canvas->displayImage(), shown);
            EXPECT_EQ(canvas->layers().active(), 0);
            EXPECT_EQ(canvas->layers().settings(1).name, "Ink");
            EXPECT_TRUE(canvas->canUndo() && canvas->isModified() && !canvas->edited());
            canvas->undo();
            EXPECT_FALSE(canvas->isModified());
            canvas->undo(), canvas->undo();
            EXPECT_EQ(canvas->layers().count(), 1);
            EXPECT_EQ(canvas->layers().deepImage(0), first);
            canvas->redo(), canvas->redo(), canvas->redo();
            EXPECT_EQ(canvas->displayImage(), shown);
            paintWave(*canvas, 80, 12);
            EXPECT_NE(canvas->image(), below.convertToFormat(canvas->image().format()));
        }
    }
}

// Which no step holds; of one that holds most of it, what was not drawn since keeps all of its bits.
TEST_F(CanvasLifeTest, ALostCanvasBecomesWhatItShowed) {
    enum class Known { nothing, shown, stepAndShown };
    for (const Known known : {Known::nothing, Known::shown, Known::stepAndShown}) {
        SCOPED_TRACE(int(known));
        auto canvas = makeCanvas(150, 100, SurfaceKind::gpu, 16);
        canvas->setOpacity(0.3f);
        paintWave(*canvas, 20, 12);
        if (known == Known::stepAndShown) {
            canvas->markAction();
        }
        paintWave(*canvas, 90, 12);
        const QImage deep = canvas->layers().deepImage(0);
        const QImage shown = known == Known::nothing ? QImage() : canvas->displayImage();
        const FailingDriver driver(FailingDriver::Fault::lostContext);
        const LogCapture log;
        EXPECT_TRUE(canvas->image().isNull());
        EXPECT_EQ(canvas->recoverFromLoss(), known != Known::nothing);
        EXPECT_EQ(log.lines().size(), known == Known::nothing ? 2 : 1);
        if (known == Known::nothing) {
            continue;
        }
        EXPECT_EQ(canvas->displayImage(), shown);
        const QRect untouched(0, 0, 150, 64);
        EXPECT_EQ(canvas->layers().deepImage(0).copy(untouched) == deep.copy(untouched),
                  known == Known::stepAndShown);
        EXPECT_TRUE(canvas->edited());
    }
}

// In another context, whatever becomes of the lost one.
TEST_F(CanvasLifeTest, ACanvasCanBeMadeBesideALostOneOfItsThread) {
    auto lost = makeCanvas(80, 60, SurfaceKind::gpu);
    EXPECT_FALSE(lost->image().isNull());
    const FailingDriver driver(FailingDriver::Fault::lostContext);
    EXPECT_TRUE(lost->image().isNull());
    auto fresh = makeCanvas(80, 60, SurfaceKind::gpu);
    for (const bool beside : {true, false}) {
        fresh->clear();
        paintWave(*fresh, 20, 12);
        EXPECT_FALSE(fresh->isContextLost());
        EXPECT_FALSE(painted(fresh->image()).isEmpty()) << beside;
        EXPECT_TRUE(!lost || lost->image().isNull());
        lost.reset();
    }
}

}  // namespace
