// SPDX-License-Identifier: MIT
// What the painter records, and what it makes of it.
#include "Recording/SessionRecorder.h"

#include <QAction>
#include <QDir>
#include <QEventLoop>
#include <QTimer>

#include "Canvas/CanvasLayers.h"
#include "PainterTest.h"
#include "Recording/RecordingPlayer.h"
#include "Recording/RecordingReader.h"
#include "Recording/RecordingSign.h"
#include "Recording/TimelapseExport.h"
#include "WebpPicture.h"
#include "Window/Commands.h"
#include "support/Files.h"
#include "support/Images.h"
#include "support/Limits.h"

namespace dabcanvas::dabpainter {
namespace {

class SessionRecorderTest : public PainterTest {
protected:
    void trigger(const char* name) { _window->commands().find(QString::fromLatin1(name))->action->trigger(); }
    CanvasLayers layers() { return _window->view()->layers(); }
    static std::vector<QImage> picturesOf(QDDrawCanvas& canvas) {
        std::vector<QImage> pictures;
        for (int i = 0; i < canvas.layers().count(); ++i)
            pictures.push_back(canvas.layers().image(i));
        return pictures;
    }
    Recording exported() {
        _saveName = path("session.jsonl");
        trigger("recording.export");
        const auto recording = readRecording(contentOf(_saveName));
        EXPECT_TRUE(recording) << recording.problem().text("R").toStdString();
        return recording ? *recording : Recording();
    }
};

TEST_F(SessionRecorderTest, AnExportedSessionPlaysToTheSameBytes) {
    trigger("recording.export");
    EXPECT_EQ(_told.size(), 1) << "nothing was recorded";
    const auto isSignShown = [this] { return _window->findChild<RecordingSign*>()->isVisible(); };
    EXPECT_FALSE(isSignShown());
    trigger("recording.record");
    EXPECT_TRUE(isSignShown());
    for (const SurfaceKind kind : {SurfaceKind::processor, SurfaceKind::gpu}) {
        _window->settings().setSurface(kind);
        ASSERT_TRUE(_window->startCanvas({QSize(200, 150), Qt::yellow, true}));
        paint();
        _window->brush().setValue(BrushKey::radius, 44.0f);
        layers().add(2, {.name = "Ink", .opacity = 0.5f});
        paint();
        paint();
        _window->view()->undo();
        layers().setActive(0);
        _window->clearCanvas();
        paint();
        const Recording recording = exported();
        const auto canvas = QDDrawCanvas::initWithFrame(QRectF(0, 0, 200, 150), {.kind = kind});
        RecordingPlayer player(recording, *canvas);
        EXPECT_TRUE(player.playAll()) << player.problem().toStdString();
        EXPECT_TRUE(picturesOf(*canvas) == picturesOf(*_window->view()));
        EXPECT_EQ(canvas->layers().settings(2), layers().settings(2));
        paint();
        EXPECT_GT(exported().events.size(), recording.events.size()) << "it goes on";
    }
    EXPECT_EQ(_told.size(), 1);
    makeWindow();
    EXPECT_TRUE(_window->commands().find("recording.record")->action->isChecked()) << "it is remembered";
    EXPECT_FALSE(exported().events.empty());
    EXPECT_TRUE(isSignShown());
    trigger("recording.record");
    EXPECT_FALSE(isSignShown());
}

TEST_F(SessionRecorderTest, ATimelapseIsNamedAfterThePicture) {
    const QString suffix = hasWebp() ? ".webp" : "";
    EXPECT_EQ(TimelapseExport::suggestedPath({}), "session" + suffix);
    EXPECT_EQ(TimelapseExport::suggestedPath(path("a.b.ora")), path("a.b") + suffix);
    EXPECT_EQ(TimelapseExport::suggestedPath(path("a") + suffix), path("a-timelapse") + suffix)
        << "not onto the picture itself";
}

TEST_F(SessionRecorderTest, ATimelapseShowsEachStrokeUnlessItIsCancelled) {
    const auto canvas = QDDrawCanvas::initWithFrame(QRectF(0, 0, 200, 150), {.kind = SurfaceKind::processor});
    SessionRecorder session;
    ASSERT_EQ(session.start(*canvas), QString());
    for (const double y : {30.0, 70.0, 110.0}) {
        canvas->drawingWithBeginPoint({20, y});
        canvas->drawingWithMoveToPoint({90, y + 9});
        canvas->drawingWithEndPoint({160, y});
    }
    session.stop();
    ASSERT_TRUE(QDir().mkdir(path("others")));
    writtenTo(path("others/notes.txt"), "of another's");
    for (const auto& [name, left] :
         {std::pair("frames", 4), {"made/for/it", 0}, {"others", 1}, {"frames", 4}}) {
        const QString folder = path(name);
        const bool cancels = left != 4, isTaken = QFileInfo::exists(folder + "/000001.png");
        TimelapseExport timelapse(session.recorded(), folder);
        QString fault = "never";
        QEventLoop loop;
        QObject::connect(&timelapse, &TimelapseExport::finished, &loop, [&](const QString& what) {
            fault = what;
            loop.quit();
        });
        QTimer::singleShot(30000, &loop, &QEventLoop::quit);
        if (cancels)  // with a frame written already
            QObject::connect(&timelapse, &TimelapseExport::progressed, &timelapse, &TimelapseExport::cancel,
                             Qt::DirectConnection);
        timelapse.start();
        loop.exec();
        EXPECT_TRUE(isTaken ? fault.contains("frames in this folder already") : fault.isEmpty());
        EXPECT_EQ(QDir(folder).entryList(QDir::Files).size(), left) << "one a stroke, and the end";
    }
    EXPECT_FALSE(QFileInfo::exists(path("made")));
    EXPECT_EQ(QImage(path("frames/000004.png")).convertToFormat(QImage::Format_RGBA8888_Premultiplied),
              canvas->image());
    EXPECT_FALSE(painted(QImage(path("frames/000001.png"))).contains(20, 110));
#ifdef Q_OS_UNIX
    const QString old = writtenTo(path("old.jsonl"), "old");
    const FullDisk full;
    EXPECT_TRUE(session.exportTo(old).contains("cannot be saved"));
    EXPECT_EQ(contentOf(old), "old");
#endif
}

}  // namespace
}  // namespace dabcanvas::dabpainter
