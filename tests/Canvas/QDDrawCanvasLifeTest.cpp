// SPDX-License-Identifier: MIT
// A canvas that goes while it calls its host, and one whose OpenGL context goes.
#include <QApplication>
#include <QMouseEvent>
#include <algorithm>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

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
using Steps = std::vector<Step>;

Step begin(double x) {
    return [x](QDDrawCanvas& c) { c.drawingWithBeginPoint({x, 30}); };
}
Step move(double x) {
    return [x](QDDrawCanvas& c) { c.drawingWithMoveToPoint({x, 30}); };
}
Step end(double x) {
    return [x](QDDrawCanvas& c) { c.drawingWithEndPoint({x, 30}); };
}
Step brush(std::int32_t type) {
    return [type](QDDrawCanvas& c) { c.setBrushType(type); };
}
Step call(void (QDDrawCanvas::*event)(const QDDrawTouch&), double x) {
    return [event, x](QDDrawCanvas& c) { (c.*event)(at(x)); };
}
Step mouse(QEvent::Type type, double x) {
    return [type, x](QDDrawCanvas& c) {
        QMouseEvent event(type, QPointF(x, 40), QPointF(x, 40), QPointF(x, 40), Qt::LeftButton,
                          Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(dynamic_cast<QDDrawView*>(&c), &event);
    };
}

Steps operator+(Steps steps, const Steps& more) {
    steps.insert(steps.end(), more.begin(), more.end());
    return steps;
}
Steps stroke() {
    return {begin(10), move(30), move(50), end(70)};
}
Steps mouseMoves(int count) {
    Steps steps{call(&QDDrawCanvas::mouseDown, 10)};
    for (int i = 1; i <= count; ++i) {
        steps.push_back(call(&QDDrawCanvas::mouseDragged, 10 + i * 5));
    }
    return steps;
}

struct Session {
    const char* name;
    bool inView;
    Steps steps;
};

std::vector<Session> sessions() {
    using C = QDDrawCanvas;
    const Step endPointer = [](C& c) { c.endPointerStroke(); };
    const Step withdraw = [](C& c) { c.withdrawPointerStroke(); };
    const Step undo = [](C& c) { c.undo(); };
    const Step redo = [](C& c) { c.redo(); };
    const Step whole = [](C& c) { c.setImage(patternImage({80, 60}), QRectF(0, 0, 80, 60)); };
    const Step complention = [](C& c) {
        c.leafDrawView().setComplention([hearer = static_cast<Hearer*>(c.delegate())](const QImage&, QSizeF) {
            hearer->say("complention");
        });
    };
    const Steps pressed{mouse(QEvent::MouseButtonPress, 10), mouse(QEvent::MouseMove, 30),
                        mouse(QEvent::MouseMove, 50)};
    return {
        {"a stroke, back and forth", false, stroke() + Steps{undo, redo, undo} + stroke()},
        {"never ended", false, {begin(10), move(30), begin(20), move(60), end(70)}},
        {"no steps of themselves", false,
         Steps{[](C& c) { c.setAutoMark(false); }} + stroke() +
             Steps{undo, whole, [](C& c) { c.markAction(); }, [](C& c) { c.resetUndoManager(); }}},
        {"pictures and clears",
         false,
         {whole, [](C& c) { c.clearWithColor(ESColor::grey(0.5f), true); },
          [](C& c) { c.clearESBufferOnline(true); },
          [](C& c) {
              c.drawPoint({20, 20}, 9), c.updateImage(true);
          },
          [](C& c) { c.resetWithRenderRect(QRectF(0, 0, 30, 30)); }}},
        {"smudging", false, Steps{whole, brush(3)} + stroke()},
        {"a preview", false, Steps{brush(4)} + stroke() + Steps{begin(20), [](C& c) { c.clear(); }, end(40)}},
        {"a preview's own way", false,
         Steps{brush(4), complention} + stroke() + stroke() + Steps{[](C& c) { c.image(); }}},
        {"a shape", false,
         Steps{[](C& c) { c.setEnableRecogition(true); }, begin(10), move(20), move(30), move(40), move(50),
               end(70)}},
        {"brushes in mid-stroke",
         false,
         {begin(10), move(30), brush(4), begin(10), move(20), [](C& c) { c.setEnableRecogition(true); },
          move(40), [](C& c) { c.resetParams(); }, begin(10), move(20),
          [](C& c) { c.setRepeatedlyRenderEnabled(true); }}},
        {"a short mouse stroke", false, mouseMoves(3) + Steps{call(&C::mouseUp, 25)}},
        {"a long mouse stroke", false, mouseMoves(11) + Steps{call(&C::mouseUp, 70)}},
        {"a finger",
         false,
         {call(&C::touchesBeganWithEvent, 10), call(&C::touchesMovedWithEvent, 30),
          call(&C::touchesEndedWithEvent, 50)}},
        {"a finger that slid",
         false,
         {call(&C::touchesBeganWithEvent, 10), call(&C::touchesEndedWithEvent, 20)}},
        {"a finger too many",
         false,
         {call(&C::touchesBeganWithEvent, 10), call(&C::touchesMovedWithEvent, 30),
          call(&C::touchesCancelledWithEvent, 50)}},
        {"a pointer that leaves", false,
         mouseMoves(11) + Steps{endPointer} + mouseMoves(2) + Steps{withdraw}},
        {"a view's mouse", true, pressed + Steps{mouse(QEvent::MouseButtonRelease, 60)}},
        {"a view's window", true, pressed + Steps{[](C& c) {
                                      QEvent left(QEvent::WindowDeactivate);
                                      QApplication::sendEvent(dynamic_cast<QDDrawView*>(&c), &left);
                                  }}},
        {"a disabled view", true,
         pressed + Steps{[](C& c) { dynamic_cast<QDDrawView&>(c).setEnabled(false); }}},
    };
}

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
    for (const Step& step : session.steps) {
        if (canvas) {
            step(*canvas);
        }
    }
    EXPECT_EQ(canvas == nullptr, fatal > 0);
    return told;
}

using CanvasLifeTest = CanvasTest;

TEST_F(CanvasLifeTest, TheHostMayDestroyTheCanvasWhateverItHears) {
    std::set<std::string> heard;
    for (const Session& session : sessions()) {
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
    using C = QDDrawCanvas;
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

// In another context, whatever becomes of the lost one.
TEST_F(CanvasLifeTest, ACanvasCanBeMadeBesideALostOneOfItsThread) {
    auto lost = makeCanvas(80, 60, SurfaceKind::gpu);
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
