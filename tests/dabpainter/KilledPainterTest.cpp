// SPDX-License-Identifier: MIT
// The whole painter, killed at any moment of a painting: what the next start finds of it.
#include <QDateTime>
#include <QMouseEvent>
#include <QProcess>
#include <QThread>
#include <algorithm>
#include <cstdio>
#include <random>

#include "PainterTest.h"

namespace dabcanvas::dabpainter {
namespace {

constexpr const char* kSeed = "DABCANVAS_TEST_SEED";
constexpr int kWidth = 400, kHeight = 300, kRow = 12, kEdge = 10;
constexpr int kStep = 2, kPause = 12;  // buffer pixels and milliseconds from one sample to the next
#ifdef __SANITIZE_ADDRESS__
constexpr qint64 kMostMissing = 10'000;  // where all of it takes several times as long
#else
constexpr qint64 kMostMissing = 2000;  // milliseconds of painting
#endif
constexpr int kBehind = 3 * kStep + 4;  // pixels by which a stroke's paint is behind its pointer

qint64 now() {
    return QDateTime::currentMSecsSinceEpoch();
}

// Along one row after another, so that how far it got is how much was painted.
QPoint placeAt(int way) {
    const int row = way / (kWidth - 2 * kEdge), x = way % (kWidth - 2 * kEdge);
    return {kEdge + x, kEdge + row * kRow};
}

class KilledPainterTest : public PainterTest {
protected:
    void paintOn() {
        std::minstd_rand random(unsigned(qEnvironmentVariableIntValue(kSeed)));
        const auto upTo = [&](int most) { return int(random() % unsigned(most)); };
        BrushModel& brush = _window->brush();
        brush.setValue(BrushKey::hardness, 1.0f);
        brush.setValue(BrushKey::radius, 8.0f);
        for (int way = 0, stroke = 1;; ++stroke) {
            const int samples = 10 + upTo(400);
            for (int i = 0; i <= samples && placeAt(way).y() < kHeight; ++i) {
                send(i == 0        ? QEvent::MouseButtonPress
                     : i < samples ? QEvent::MouseMove
                                   : QEvent::MouseButtonRelease,
                     placeAt(way));
                std::fprintf(stderr, "painted %d %lld\n", way, now());
                way += i < samples ? kStep : 0;
                QThread::msleep(kPause);
                settle();
            }
            brush.setValue(BrushKey::hueTingle, float(stroke) / 1000);
            std::fprintf(stderr, "set %d %lld\n", stroke, now());
            const qint64 until = now() + upTo(800);
            while (now() < until) {
                QThread::msleep(5);
                settle();
            }
        }
    }
    void send(QEvent::Type type, QPoint bufferPoint) {
        QDDrawView* view = _window->view();
        const QPointF at = _window->viewport().pointOfBuffer(QPointF(bufferPoint) + QPointF(0.5, 0.5));
        QMouseEvent event(type, at, view->mapToGlobal(at),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view, &event);
    }

    struct Told {
        int value = 0;
        qint64 at = 0;  // milliseconds
    };
    struct Killed {
        QList<Told> painted, set;
        qint64 at = 0;
    };
    Killed killAfter(unsigned milliseconds, unsigned seed) {
        QProcess painter;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(kFolderVariable, _folder.path());
        environment.insert(kSeed, QString::number(seed));
        painter.setProcessEnvironment(environment);
        painter.setReadChannel(QProcess::StandardError);
        painter.start(QCoreApplication::applicationFilePath(),
                      {"--gtest_also_run_disabled_tests", "--gtest_filter=*DISABLED_Painting"});
        QByteArray told;
        while (!told.contains("painted") && painter.waitForReadyRead(60000))
            told += painter.readAllStandardError();
        QThread::msleep(milliseconds);
        Killed killed;
        killed.at = now();
        painter.kill();
        painter.waitForFinished();
        told += painter.readAllStandardError();
        for (const QByteArray& line : told.split('\n')) {
            const QList<QByteArray> words = line.split(' ');
            if (words.size() == 3 && (words[0] == "painted" || words[0] == "set"))
                (words[0] == "set" ? killed.set : killed.painted)
                    << Told{words[1].toInt(), words[2].toLongLong()};
        }
        return killed;
    }
    // What of it came so long before the end that it must be there; -1 for nothing.
    static int mustBeThere(const QList<Told>& told, qint64 end) {
        int value = -1;
        for (const Told& one : told)
            value = one.at <= end - kMostMissing ? one.value : value;
        return value;
    }
    int paintedWay() {
        const QImage image = _window->view()->image();
        int way = 0;
        for (int at = 0; placeAt(at).y() < kHeight; ++at) {
            if (image.pixelColor(placeAt(at)).lightness() < 128)
                way = at;
        }
        return way;
    }
};

TEST_F(KilledPainterTest, DISABLED_Painting) {
    ASSERT_TRUE(_window->startCanvas({QSize(kWidth, kHeight), Qt::white}));
    paintOn();
}

// DABCANVAS_TEST_ROUNDS says how often.
TEST_F(KilledPainterTest, LosesTwoSecondsAtMost) {
    const int rounds = std::max(qEnvironmentVariableIntValue("DABCANVAS_TEST_ROUNDS"), 3);
    std::mt19937 random(rounds > 3 ? std::random_device()() : 7);
    _answer = UnsavedAnswer::discard;
    qint64 mostMissing = 0;
    for (int round = 0; round < rounds; ++round) {
        const unsigned after = 100 + random() % 6000, seed = unsigned(random() % 10000) + 1;
        SCOPED_TRACE(std::to_string(after) + " ms, seed " + std::to_string(seed));
        const Killed killed = killAfter(after, seed);
        ASSERT_FALSE(killed.painted.isEmpty());
        const int must = mustBeThere(killed.painted, killed.at);
        _offered = 0;
        _window->offerLeftPictures();
        ASSERT_TRUE(_offered == 1 || (_offered == 0 && must < 0)) << _offered;
        if (_offered == 1) {
            EXPECT_TRUE(_window->isUnsaved());
            const int way = paintedWay();
            EXPECT_GE(way, must - kBehind);
            const auto missed = std::find_if(killed.painted.begin(), killed.painted.end(),
                                             [&](const Told& one) { return one.value - kBehind > way; });
            if (missed != killed.painted.end())
                mostMissing = std::max(mostMissing, killed.at - missed->at);
            for (int steps = 0; _window->view()->canUndo(); ++steps) {
                ASSERT_LT(steps, 100);
                ASSERT_FALSE(_window->view()->undo().isNull());
            }
            EXPECT_EQ(paintedWay(), 0) << "each stroke can be undone still";
        }
        const QSettings settings(_settings->fileName(), QSettings::IniFormat);
        const int set = int(std::lround(settings.value("brush/hueTingle").toDouble() * 1000));
        EXPECT_GE(set, std::max(0, mustBeThere(killed.set, killed.at)));
        ASSERT_TRUE(_window->startCanvas({QSize(20, 20), Qt::white}));
        QFile::remove(_settings->fileName());
    }
    std::printf("%d rounds: at most %lld ms of painting missing\n", rounds, mostMissing);
}

}  // namespace
}  // namespace dabcanvas::dabpainter
