// SPDX-License-Identifier: MIT
// Paintings that are killed at any moment, and what is left of them.
#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <random>
#include <tuple>

#include "History/ImagesUndoManager.h"
#include "History/UndoRecovery.h"
#include "support/CanvasTest.h"

using dabcanvas::UndoRecovery;

namespace {

constexpr const char* kFolder = "DABCANVAS_TEST_RECOVERY";
constexpr const char* kWords = "{\"file\": \"/home/somebody/Übung.png\"}";
constexpr const char* kActs = "DABCANVAS_TEST_ACTS";  // after which the painter rests; none: he goes on

constexpr int kInStroke = -1;

// Nothing of it can be compressed.
QImage noise(int seed) {
    std::minstd_rand random(static_cast<unsigned>(seed + 1));
    QImage image(200, 150, QImage::Format_RGBA8888_Premultiplied);
    for (qsizetype i = 0; i < image.sizeInBytes(); ++i) {
        image.bits()[i] = static_cast<uchar>(i % 4 == 3 ? 255 : random() >> 8);
    }
    return image;
}

bool isUndo(int act) {
    return act % 8 == 4;
}

// One act of many: a stroke, of which every fifth is no step, a picture, or a step back.
void paint(QDDrawCanvas& canvas, int i) {
    if (i % 8 == 6) {
        canvas.setAutoMark(true);
        canvas.setImage(noise(i), QRectF(0, 0, 200, 150));
        return;
    }
    if (isUndo(i)) {
        canvas.undo();
        return;
    }
    canvas.setAutoMark(i % 5 != 4);
    canvas.setRenderColor(QColor::fromHsv(i * 37 % 360, 255, 200));
    paintWave(canvas, 20 + i * 31 % 120, 12);
}

class CanvasRecoveryTest : public CanvasTest {
protected:
    void SetUp() override {
        CanvasTest::SetUp();
        UndoRecovery::setFolder(qEnvironmentVariable(kFolder, folder.path()));
    }
    void TearDown() override {
        UndoRecovery::setFolder({});
        CanvasTest::TearDown();
    }
    // How many acts a painting had said to be done when it was killed.
    int killed(int afterActs, int andMillis, int restsAfter = 0) {
        QProcess painting;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(kFolder, folder.path());
        environment.insert(kActs, restsAfter != 0 ? QString::number(restsAfter) : QString());
        painting.setProcessEnvironment(environment);
        painting.setReadChannel(QProcess::StandardError);
        painting.start(QCoreApplication::applicationFilePath(),
                       {"--gtest_also_run_disabled_tests", "--gtest_filter=*DISABLED_Painting"});
        int acts = 0;
        const auto count = [&] { acts += static_cast<int>(painting.readAllStandardError().count('.')); };
        while (acts < afterActs && painting.waitForReadyRead(60'000)) {
            count();
        }
        QThread::msleep(static_cast<unsigned long>(andMillis));
        painting.kill();
        painting.waitForFinished();
        count();
        return acts;
    }

    QTemporaryDir folder;
};

TEST_F(CanvasRecoveryTest, DISABLED_Painting) {
    auto canvas = makeCanvas();
    canvas->undoManager().setDiskByteBudget(128 << 20);  // so that files are begun while it paints
    EXPECT_FALSE(canvas->setRecoveryWords("of nothing that is kept"));
    ASSERT_TRUE(canvas->setKeepsForRecovery(true));
    ASSERT_TRUE(canvas->setRecoveryWords(kWords));
    if (qEnvironmentVariableIntValue(kActs) == kInStroke) {
        canvas->drawingWithBeginPoint({10, 75});
        for (int i = 0; i < 25; ++i) {
            canvas->drawingWithMoveToPoint({10.0 + i * 7, 75});
            QThread::msleep(100);
        }
        std::fputc('.', stderr);
        QThread::sleep(60);
    }
    for (int i = 0;; ++i) {
        paint(*canvas, i);
        std::fputc('.', stderr);
        if (i + 1 == qEnvironmentVariableIntValue(kActs)) {
            QThread::sleep(60);
        }
    }
}

TEST_F(CanvasRecoveryTest, APaintingThatIsKilledComesBackWithItsSteps) {
    std::mt19937 random(3);
    const int rounds = qEnvironmentVariableIntValue("DABCANVAS_TEST_ROUNDS");
    for (int round = 0; round < std::max(rounds, 4); ++round) {
        SCOPED_TRACE(round);
        const bool rests = round % 2 == 1;
        const int acts = 1 + static_cast<int>(random() % 60);
        const int told = killed(acts, rests ? 1500 : static_cast<int>(random() % 30), rests ? acts : 0);
        const auto left = UndoRecovery::list();
        if (left.isEmpty() && !rests) {
            continue;  // it died before its first moment was written
        }
        ASSERT_EQ(left.size(), 1);
        EXPECT_EQ(left[0].size, QSize(200, 150));
        EXPECT_FALSE(left[0].thumbnail.isNull());
        EXPECT_EQ(left[0].words, QString::fromUtf8(kWords));
        EXPECT_TRUE(left[0].isChanged);

        auto canvas = makeCanvas();
        QString problem;
        EXPECT_EQ(left[0].canvasDepth, 8);
        ASSERT_TRUE(canvas->recoverHistory(left[0].id, &problem)) << qPrintable(problem);
        EXPECT_TRUE(UndoRecovery::list().isEmpty());
        EXPECT_EQ(canvas->recoveryWords(), QString::fromUtf8(kWords));
        EXPECT_FALSE(makeCanvas()->recoverHistory(left[0].id)) << "it is taken";
        // It is what it was after some act, the last one of a painter who rests, and so is all before it.
        const auto looks = [](QDDrawCanvas& c) {
            return std::tuple(c.undoManager().undoItems().size(), c.canRedo(), c.image());
        };
        const auto found = looks(*canvas);
        auto expected = makeCanvas();
        int done = 0;
        while (done < told + 20 && (done < (rests ? told : 1) || looks(*expected) != found)) {
            // Before a step back, what is no step yet becomes one.
            if (isUndo(done) && !rests && !expected->markAction().isNull() && looks(*expected) == found) {
                break;
            }
            paint(*expected, done++);
        }
        ASSERT_TRUE(imagesMatch(canvas->image(), expected->image())) << done << " of " << told;
        EXPECT_TRUE(!rests || done == told) << done << " of " << told;
        for (bool more = true; more;) {
            more = !expected->undo().isNull();
            EXPECT_EQ(!canvas->undo().isNull(), more);
            ASSERT_TRUE(imagesMatch(canvas->image(), expected->image()));
        }
        while (!expected->redo().isNull()) {
            EXPECT_FALSE(canvas->redo().isNull());
            ASSERT_TRUE(imagesMatch(canvas->image(), expected->image()));
        }
        canvas.reset();
        EXPECT_TRUE(UndoRecovery::list().isEmpty());
    }
}

// But for its last second, as one may go on for minutes.
TEST_F(CanvasRecoveryTest, AStrokeThatIsKilledComesBackToo) {
    ASSERT_EQ(killed(1, 500, kInStroke), 1);
    ASSERT_EQ(UndoRecovery::list().size(), 1);
    EXPECT_TRUE(UndoRecovery::list()[0].isChanged);
    auto canvas = makeCanvas();
    ASSERT_TRUE(canvas->recoverHistory(UndoRecovery::list()[0].id));
    EXPECT_GT(painted(canvas->image()).right(), 10 + 25 * 7 - 90);
    EXPECT_FALSE(canvas->undo().isNull());
    EXPECT_TRUE(painted(canvas->image()).isEmpty());
}

TEST_F(CanvasRecoveryTest, WhatCannotBeOpenedChangesNothing) {
    killed(10, 1500, 10);  // so that it has been written, whatever else the machine does
    ASSERT_EQ(UndoRecovery::list().size(), 1);
    const QString id = UndoRecovery::list().at(0).id;
    auto other = makeCanvas(100, 100);
    paintWave(*other);
    const QImage before = other->image();
    for (const QString& wrong : {id, QString("none"), QString("../") + id, QString()}) {
        QString problem;
        EXPECT_FALSE(other->recoverHistory(wrong, &problem));
        EXPECT_FALSE(problem.isEmpty());
        EXPECT_TRUE(imagesMatch(other->image(), before));
    }
    EXPECT_EQ(UndoRecovery::list().size(), 1) << "it can be opened still";
    EXPECT_TRUE(UndoRecovery::discard(UndoRecovery::list().at(0).id));
}

}  // namespace
