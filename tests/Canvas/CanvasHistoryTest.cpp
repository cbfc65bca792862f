// SPDX-License-Identifier: MIT
// Random sketches whose every step is known, under budgets that hold few of them, while disks fail.
#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <deque>
#include <random>

#include "History/ImagesUndoManager.h"
#include "History/JournalReader.h"
#include "History/UndoRecovery.h"
#include "support/CanvasTest.h"
#include "support/Hearer.h"
#include "support/Limits.h"
#include "support/LogCapture.h"

using dabcanvas::UndoRecovery;

namespace {

constexpr QSize kSize(300, 200);
constexpr qint64 kMemory = 300'000, kDisk = 3'000'000;

class CanvasHistoryTest : public CanvasTest {
protected:
    void SetUp() override {
        CanvasTest::SetUp();
        canvas = makeCanvas(kSize.width(), kSize.height());
        canvas->setAutoMark(true);
        hearer.hear = [this](const char* what, QPointF& count) {
            if (std::string_view(what) == "dropped") {
                dropped += static_cast<std::size_t>(count.x());
                left = static_cast<std::size_t>(count.y());
            }
        };
        canvas->setDelegate(&hearer);
        pictures = {canvas->image()};
        history = &canvas->undoManager();
        history->setTempDirectory(folder.filePath("steps"));
        history->setCacheByteBudget(kMemory);
        history->setDiskByteBudget(kDisk);
    }
    void TearDown() override {
        canvas.reset();
        UndoRecovery::setFolder({});
        UndoRecovery::setSyncs(false);
        CanvasTest::TearDown();
    }

    // Kept, in this folder.
    QDir kept() {
        UndoRecovery::setFolder(folder.filePath("kept"));
        EXPECT_TRUE(canvas->setKeepsForRecovery(true));
        return QDir(UndoRecovery::folder());
    }
    int below(int most) { return static_cast<int>(random() % static_cast<unsigned>(most)); }
    // Nothing of this can be compressed.
    QImage noise(const QSize& size) {
        QImage image(size, QImage::Format_RGBA8888_Premultiplied);
        for (qsizetype i = 0; i < image.sizeInBytes(); ++i) {
            image.bits()[i] = static_cast<uchar>(i % 4 == 3 ? 255 : random());
        }
        return image;
    }
    void paint() {
        switch (below(8)) {
            case 0:
                canvas->clearWithColor(ESColor::grey(static_cast<float>(below(100)) / 100), true);
                break;
            case 1:
                canvas->setImage(noise(kSize), QRectF(QPointF(), kSize));
                break;
            case 2:
                canvas->setImage(noise({90, 70}), QRectF(below(250), below(150), 90, 70));
                break;
            default:
                canvas->setRenderColor(QColor::fromHsv(below(360), 255, 255));
                paintWave(*canvas, 30 + below(140), 4 + below(30));
        }
        pictures.resize(present + 1);
        pictures.push_back(canvas->image());
        ++present;
    }
    void step(bool back) {
        const bool can = back ? present > 0 : present + 1 < pictures.size();
        EXPECT_EQ((back ? canvas->undo() : canvas->redo()).isNull(), !can);
        present = can ? (back ? present - 1 : present + 1) : present;
    }
    void forgetDropped() {
        ASSERT_LE(dropped, present);
        if (dropped > 0) {
            pictures.erase(pictures.begin(), pictures.begin() + static_cast<std::ptrdiff_t>(dropped));
            present -= std::exchange(dropped, 0);
            EXPECT_EQ(left, present);
        }
        if (history->undoItems().isEmpty()) {  // what was undone first goes last
            pictures.resize(std::min(pictures.size(),
                                     present + 1 + static_cast<std::size_t>(history->redoItems().size())));
        }
    }
    void sketch(int acts) {
        for (int i = 0; i < acts; ++i) {
            const int act = below(10);
            act < 5 ? paint() : step(act < 8);
            forgetDropped();
            ASSERT_LT(present, pictures.size()) << "act " << i;
            ASSERT_TRUE(imagesMatch(canvas->image(), pictures[present])) << "act " << i;
            ASSERT_TRUE(imagesMatch(canvas->displayImage(), pictures[present])) << "act " << i;
            EXPECT_LE(history->cachedBytes(), kMemory);
            if (below(6) == 0) {
                history->waitForCompression();
                history->waitForWrites();
                EXPECT_LE(history->bytesOnDisk(), kDisk);
            }
        }
    }

    std::mt19937 random{7};
    QTemporaryDir folder;
    std::unique_ptr<QDDrawCanvas> canvas;
    ImagesUndoManager* history = nullptr;
    Hearer hearer;
    std::deque<QImage> pictures;
    std::size_t present = 0, dropped = 0, left = 0;
};

TEST_F(CanvasHistoryTest, EveryStepThatIsKeptComesBackWhateverTheDiskDoes) {
    const QString steps = history->tempDirectory();
    LogCapture log;
    sketch(150);
    EXPECT_GT(history->bytesOnDisk(), 0);
    EXPECT_EQ(log.lines().size(), 0);
    ASSERT_TRUE(QDir(steps).removeRecursively());
    sketch(60);
    EXPECT_EQ(log.lines().size(), 0) << "what is on disk is open";
    {
        const FullDisk disk(0);
        sketch(60);
    }
    EXPECT_EQ(log.lines().size(), 1) << qPrintable(log.lines().join('\n'));
    sketch(60);
    canvas->resetUndoManager();
    history->waitForWrites();
    EXPECT_EQ(history->cachedBytes(), 0);
    pictures = {canvas->image()};
    present = 0;
    canvas.reset();
    EXPECT_FALSE(QDir(steps).exists());
}

TEST_F(CanvasHistoryTest, WhatIsWrittenDownMeanwhileChangesNothing) {
    const QDir folders = kept();
    for (const bool keeps : {true, false, true}) {
        ASSERT_TRUE(canvas->setKeepsForRecovery(keeps));
        sketch(50);
    }
    EXPECT_EQ(folders.entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 1);
    canvas.reset();
    EXPECT_TRUE(folders.isEmpty());
}

TEST_F(CanvasHistoryTest, AKeptFolderThatIsLostIsHadAnew) {
    const QString first = "History000001", second = "History000002";
    QDir folders = kept();
    ASSERT_TRUE(QFile::remove(folders.filePath(first + ".lock")));
    sketch(5);
    EXPECT_TRUE(folders.exists(first + ".lock"));
    ASSERT_TRUE(folders.removeRecursively());
    auto other = makeCanvas();
    ASSERT_TRUE(other->setKeepsForRecovery(true)) << "by the same name";
    other->undoManager().waitForWrites();
    const QStringList files = QDir(folders.filePath(first)).entryList(QDir::Files);
    sketch(20);
    history->waitForWrites();
    EXPECT_EQ(folders.entryList(),
              QStringList({".", "..", first, first + ".lock", second, second + ".lock"}));
    EXPECT_EQ(QDir(folders.filePath(first)).entryList(QDir::Files), files);
    canvas.reset();
    folders.refresh();
    EXPECT_EQ(folders.entryList(), QStringList({".", "..", first, first + ".lock"}));
}

TEST_F(CanvasHistoryTest, WhatAHostDoesByItselfIsWrittenDown) {
    const QDir folders = kept();
    history->setCacheByteBudget(0);
    constexpr std::size_t kCount = 6;
    for (std::size_t i = 0; i < kCount; ++i) {
        paint();
    }
    history->waitForWrites();
    UndoRecovery::setSyncs(true);
    ASSERT_TRUE(folders.mkdir("History000002"));  // somebody's
    for (const bool keeps : {false, true}) {      // what is on disk moves along
        ASSERT_TRUE(canvas->setKeepsForRecovery(keeps));
    }
    const auto atEnd = [](ImagesUndoManager&) {
        QMetaObject::invokeMethod(QCoreApplication::instance(), "aboutToQuit", Qt::DirectConnection);
    };
    const struct {
        void (*act)(ImagesUndoManager&);
        std::size_t fewer, redo;
    } rows[] = {
        {[](ImagesUndoManager& steps) { steps.undoAtOnce(), steps.undo(); }, 2, 2},
        {[](ImagesUndoManager& steps) { steps.redo(); }, 1, 1},
        {[](ImagesUndoManager& steps) { steps.clearRedoItems(); }, 1, 0},
        {[](ImagesUndoManager& steps) { steps.removeImageWithNames({steps.undoItems()[1]}), steps.undo(); },
         3, 1},
        {[](ImagesUndoManager& steps) { steps.addItemWithString(QString(1 << 17, 'x')); }, 3, 0},
        {atEnd, 3, 0},
    };
    for (const auto& row : rows) {
        history->waitForWrites();
        row.act(*history);
        history->waitForWrites();
        QString problem;
        const auto contents =
            dabcanvas::readJournal(folders.filePath("History000003"), dabcanvas::TileCheck::whole, &problem);
        ASSERT_TRUE(contents) << problem.toStdString();
        EXPECT_EQ(contents->undo.size(), kCount - row.fewer);
        EXPECT_EQ(contents->redo.size(), row.redo);
    }
    EXPECT_FALSE(canvas->canUndo()) << "but not what the application's end takes";
}

TEST_F(CanvasHistoryTest, AColourThatComesBackIsOneTile) {
    constexpr int kSide = 4096;
    const auto large =
        QDDrawCanvas::initWithFrame(QRectF(0, 0, kSide, kSide), {.kind = dabcanvas::SurfaceKind::processor});
    ASSERT_TRUE(large);
    large->setAutoMark(true);
    large->clearWithColor(ESColor::grey(0.2f), true);
    large->clearWithColor(ESColor::grey(0.8f), true);
    large->undoManager().waitForCompression();
    if (kMemoryIsLimited) {
        auto room = std::make_unique<char[]>(24 << 20);
        const FullMemory memory;
        room.reset();  // 4096 tiles are 64 MiB
        EXPECT_FALSE(large->undo().isNull());
    }
}

TEST_F(CanvasHistoryTest, AStepThatTheDiskHasLostIsRefusedAndTheNextOnesAreNot) {
    history->setCacheByteBudget(1 << 20);
    for (int i = 0; i < 3; ++i) {
        canvas->setImage(noise(kSize), QRectF(QPointF(), kSize));
    }
    while (history->cachedBytes() > 0) {
        history->didReceiveMemoryWarning();
        history->waitForWrites();
    }
    const QDir files(history->tempDirectory());
    ASSERT_FALSE(files.entryList(QDir::Files).isEmpty());
    for (const QString& file : files.entryList(QDir::Files)) {
        ASSERT_TRUE(QFile::resize(files.filePath(file), 100));
    }
    const QImage last = canvas->image();
    LogCapture log;
    EXPECT_TRUE(canvas->undo().isNull());
    EXPECT_EQ(canvas->undoRefusal(), dabcanvas::UndoRefusal::unreadable);
    EXPECT_EQ(log.lines().size(), 1) << qPrintable(log.lines().join('\n'));
    EXPECT_TRUE(imagesMatch(canvas->image(), last));
    EXPECT_TRUE(canvas->canUndo() && !canvas->canRedo());
    paintWave(*canvas);
    EXPECT_FALSE(canvas->undo().isNull());
    EXPECT_TRUE(imagesMatch(canvas->image(), last));
}

TEST_F(CanvasHistoryTest, TenThousandStepsAreTenThousand) {
    constexpr int kSteps = 10'000;
    history->setUndoStepCount(kSteps);
    history->setCacheByteBudget(0);
    for (int i = 0; i < kSteps; ++i) {
        canvas->setImage(patternImage({2, 2}, i % 256), QRectF(i % 100, i / 100, 2, 2));
    }
    const QImage last = canvas->image();
    for (const bool back : {true, false}) {
        for (int i = 0; i < kSteps; ++i) {
            ASSERT_FALSE((back ? canvas->undo() : canvas->redo()).isNull());
        }
        EXPECT_EQ(canvas->undoRefusal(), dabcanvas::UndoRefusal::none);
        EXPECT_TRUE((back ? canvas->undo() : canvas->redo()).isNull());
        EXPECT_EQ(canvas->undoRefusal(), dabcanvas::UndoRefusal::noStep);
        EXPECT_TRUE(imagesMatch(canvas->image(), back ? pictures[0] : last));
    }
}

}  // namespace
