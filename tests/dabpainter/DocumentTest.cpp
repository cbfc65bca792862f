// SPDX-License-Identifier: MIT
// What the painter keeps of a picture, without its window.
#include "Documents/Document.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <cstdlib>

#include "Canvas/CanvasLayers.h"
#include "Canvas/QDDrawCanvas.h"
#include "Documents/Autosave.h"
#include "History/UndoRecovery.h"
#include "PainterTest.h"
#ifdef Q_OS_UNIX
#include "support/Limits.h"
#endif

namespace dabcanvas::dabpainter {
namespace {

constexpr const char* kHow = "DABPAINTER_TEST_HOW";

class DocumentTest : public ::testing::Test {
protected:
    void SetUp() override { UndoRecovery::setFolder(path("recovery")); }
    void TearDown() override { UndoRecovery::setFolder({}); }

    QString path(const QString& name) const {
        return qEnvironmentVariable(kFolderVariable, _folder.path()) + QLatin1Char('/') + name;
    }
    void begin(const Document::Origin& origin) {
        auto next = QDDrawCanvas::initWithFrame(QRectF(0, 0, 60, 40), {.kind = SurfaceKind::processor});
        next->clearWithColor(ESColor::grey(1), false);
        document.begin(*next, origin);
        canvas = std::move(next);
    }
    void paint() {
        canvas->drawingWithBeginPoint({10, 20});
        canvas->drawingWithMoveToPoint({30, 20});
        canvas->drawingWithEndPoint({50, 20});
        document.noteChange();
    }

    QTemporaryDir _folder;
    Document document;
    std::unique_ptr<QDDrawCanvas> canvas;
};

TEST_F(DocumentTest, SavingGoesOnWhereNothingGetsPoorer) {
    const struct {
        const char *opened, *saved;  // null: not yet
        bool hasFile;
        const char* suggested;
    } rows[] = {{nullptr, nullptr, false, "Untitled.png"}, {"a.png", nullptr, true, "a.png"},
                {"a.b.jpg", nullptr, true, "a.b.jpg"},     {"a.GIF", nullptr, false, "a.png"},
                {"a.jpg", "b.WEBP", true, "b.WEBP"},       {nullptr, "c.ora", true, "c.ora"},
                {"a.webp", "plain", true, "plain"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.suggested);
        begin({.path = row.opened ? path(row.opened) : QString(), .plan = {}, .copy = {}});
        paint();
        if (row.saved) {
            EXPECT_EQ(document.saveTo(path(row.saved)), QString());
            EXPECT_EQ(document.path(), path(row.saved));
        }
        EXPECT_EQ(document.hasFile(), row.hasFile);
        EXPECT_EQ(document.suggestedPath(), row.opened || row.saved ? path(row.suggested) : row.suggested);
    }
}

TEST_F(DocumentTest, WhatIsUndoneToTheSavedPictureIsSaved) {
    begin({});
    EXPECT_FALSE(document.isModified());
    paint();
    paint();
    EXPECT_TRUE(document.isModified());
    EXPECT_EQ(document.saveTo(path("a.png")), QString());
    EXPECT_FALSE(document.isModified());
    for (const bool saved : {false, true, false}) {
        saved ? canvas->redo() : canvas->undo();
        EXPECT_EQ(document.isModified(), !saved);
    }
    EXPECT_NE(document.saveTo(path("no such folder/a.png")), QString());
    EXPECT_TRUE(document.isModified());
    EXPECT_EQ(document.path(), path("a.png"));
}

// ---- Copies

TEST_F(DocumentTest, ACopyIsThereWhileSomethingIsUnsaved) {
    Autosave autosave(document, path("copies"));
    autosave.setDelays(0, 0);
    const auto settle = [&] {
        for (int i = 0; i < 3; ++i) {
            QCoreApplication::processEvents();
            autosave.wait();
        }
    };
    const QString copy = autosave.takeName();
    begin({.path = {}, .plan = {}, .copy = copy});
    settle();
    EXPECT_FALSE(QFile::exists(copy)) << "nothing was painted";
    paint();
    settle();
    EXPECT_EQ(QImage(copy).convertToFormat(QImage::Format_RGB32),
              canvas->image().convertToFormat(QImage::Format_RGB32));
    EXPECT_TRUE(LeftPictures(path("copies")).list().isEmpty()) << "it is nobody else's";
    const QByteArray before = contentOf(copy);
#ifdef Q_OS_UNIX
    {
        int failed = 0;
        QObject::connect(&autosave, &Autosave::failed, [&] { ++failed; });
        const FullDisk full;
        for (int i = 0; i < 2; ++i) {
            paint();
            settle();
        }
        EXPECT_EQ(contentOf(copy), before);
        EXPECT_EQ(failed, 1) << "which is said once";
    }
#endif
    canvas->undo();
    canvas->undo();
    canvas->undo();
    document.noteChange();
    settle();
    EXPECT_FALSE(QFile::exists(copy)) << "undone to what is saved";
    for (const bool saves : {true, false}) {
        paint();
        settle();
        ASSERT_TRUE(QFile::exists(copy));
        saves ? static_cast<void>(document.saveTo(path("a.png")))
              : begin({.path = {}, .plan = {}, .copy = autosave.takeName()});
        settle();
        EXPECT_FALSE(QFile::exists(copy));
    }
}

// Ends without cleaning up.
TEST_F(DocumentTest, DISABLED_Dying) {
    const QString how = qEnvironmentVariable(kHow);
    Autosave autosave(document, path("copies"));
    autosave.setDelays(0, how == "copied" ? 0 : 60000);
    begin({.path = path(how + ".png"), .plan = {{60, 40}, Qt::white}, .copy = autosave.takeName()});
    if (how == "layered")
        canvas->layers().add(1, {.name = "Paint", .opacity = 0.5f});
    if (how != "blank")
        paint();
    QThread::msleep(500);  // the history is written in the background
    if (how == "copied") {
        QCoreApplication::processEvents();
        autosave.wait();
    }
    std::_Exit(0);
}

TEST_F(DocumentTest, WhatDeadRunsLeftIsListedUntilSomebodyTakesItOrDeletesIt) {
    const LeftPictures left(path("copies"));
    const auto die = [&](const char* how) {
        QProcess dying;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(kFolderVariable, _folder.path());
        environment.insert(kHow, how);
        dying.setProcessEnvironment(environment);
        dying.start(QCoreApplication::applicationFilePath(),
                    {"--gtest_also_run_disabled_tests", "--gtest_filter=*DISABLED_Dying"});
        EXPECT_TRUE(dying.waitForFinished());
    };
    die("blank");
    EXPECT_TRUE(left.list().isEmpty()) << "there is nothing but what it began with";
    die("copied");
    die("painted");
    auto found = left.list();
    ASSERT_EQ(found.size(), 2);
    EXPECT_EQ(found[0].path, path("painted.png")) << "the last one first";
    EXPECT_EQ(found[1].path, path("copied.png"));
    EXPECT_EQ(found[1].background, QColor(Qt::white));
    EXPECT_LT(found[1].thumbnail.pixelColor(30, 20).lightness(), 128);
    EXPECT_EQ(found[1].steps, 1);

    // Without its history the copy is there.
    ASSERT_TRUE(UndoRecovery::discard(found[1].history));
    const auto byCopy = left.list().last();
    EXPECT_TRUE(byCopy.history.isEmpty());
    EXPECT_EQ(byCopy.path, path("copied.png"));
    EXPECT_LT(byCopy.thumbnail.pixelColor(30, 20).lightness(), 128);
    left.makeRoom(qint64{1} << 20);
    EXPECT_EQ(left.list().size(), 2);
    {
        const auto taken = LeftPictures::claim(byCopy.copy);
        EXPECT_EQ(left.list().size(), 1);
    }
    die("blank");
    ASSERT_TRUE(UndoRecovery::discard(UndoRecovery::list().first().id));
    left.makeRoom(0);
    EXPECT_EQ(left.list().size(), 1) << "of copies beyond the bound, those with a history stay";
    EXPECT_TRUE(left.discard(byCopy));
    EXPECT_TRUE(left.discard(found[0]));
    EXPECT_TRUE(left.list().isEmpty());
    EXPECT_TRUE(QDir(path("copies")).isEmpty());

    die("layered");
    const auto next = QDDrawCanvas::initWithFrame(QRectF(0, 0, 60, 40), {.kind = SurfaceKind::processor});
    ASSERT_TRUE(next->recoverHistory(left.list().value(0).history));
    EXPECT_EQ(next->layers().settings(1), (LayerSettings{.name = "Paint", .opacity = 0.5f}));
    EXPECT_EQ(next->layers().image(0).pixelColor(30, 20), QColor(Qt::white));
    EXPECT_GT(next->layers().image(1).pixelColor(30, 20).alpha(), 128);
}

}  // namespace
}  // namespace dabcanvas::dabpainter
