// SPDX-License-Identifier: MIT
#include "Preview/LeafDrawing.h"

#include <QCoreApplication>
#include <QPainter>
#include <cmath>
#include <limits>
#include <vector>

#include "support/Images.h"
#include "support/LogCapture.h"

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

// Over a canvas of 100 x 100 buffer pixels, which is a bitmap of 60 x 60, shown as 200 x 200 view points.
struct Leaf : LeafDrawing {
    explicit Leaf(const QSizeF& frame = QSizeF(100, 100)) : LeafDrawing(frame) {
        setRenderColor(QColor(40, 160, 20, 200));
        setComplention([this](const QImage& image, QSizeF) { handed.push_back(image); });
    }
    void stroke(const std::vector<QPointF>& points) {
        drawWithBegin(points.front());
        for (const QPointF& point : points) {
            drawWithMove(point);
            drawWithMove(point);  // twice, so that the curves touch their corners
        }
        drawWithEnd(points.back());
    }
    QSizeF frameSize() const override { return {200, 200}; }
    void redisplayRect(const QRectF& rect) override { redisplayed |= rect; }
    QRectF redisplayed;
    std::vector<QImage> handed;
};

const std::vector<QPointF> kTriangle = {{10, 10}, {90, 10}, {50, 90}};

TEST(LeafDrawingTest, BitmapIsSixTenthsOfTheFrame) {
    const std::pair<QSizeF, QSizeF> rows[] = {{{1000, 500}, {600, 300}}, {{1001, 999}, {601, 599}},
                                              {{1, 2}, {1, 1}},          {{0, 0}, {1, 1}},
                                              {{-5, kNan}, {1, 1}},      {{HUGE_VAL, 10}, {1, 6}}};
    for (const auto& [frame, graph] : rows) {
        SCOPED_TRACE(frame.width());
        Leaf leaf(frame);
        EXPECT_EQ(leaf.graphSize(), graph);
        leaf.stroke({{0, 0}, {1e300, -1e300}, {-1e300, 1e300}});
        EXPECT_EQ(leaf.cgImage().size(), graph.toSize());
    }
    Leaf huge(QSizeF(1e9, 1e9));
    const LogCapture log;
    huge.stroke(kTriangle);
    EXPECT_EQ(log.lines().size(), 1);
    EXPECT_FALSE(huge.isPending());
}

TEST(LeafDrawingTest, FillsWhatTheStrokeEncloses) {
    const struct {
        const char* name;
        std::vector<QPointF> corners;
        QPoint inside, outside;
    } rows[] = {
        // Buffer pixels 20..80 are 12..48 of the bitmap.
        {"square", {{20, 20}, {80, 20}, {80, 80}, {20, 80}}, {13, 46}, {50, 30}},
        {"twice around", {{9, 9}, {90, 9}, {50, 90}, {9, 9}, {90, 9}, {50, 90}}, {30, 30}, {2, 30}},
        // Its middle is wound around twice.
        {"star", {{50, 5}, {76, 86}, {7, 36}, {93, 36}, {24, 86}}, {30, 32}, {30, 50}},
        {"eight", {{10, 10}, {90, 90}, {90, 10}, {10, 90}}, {50, 30}, {30, 10}},
        {"beyond the canvas", {{-300, -300}, {900, -300}, {400, 50}, {-300, 60}}, {0, 0}, {30, 50}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        Leaf leaf;
        leaf.stroke(row.corners);
        EXPECT_EQ(leaf.cgImage().pixelColor(row.inside).alpha(), 200);
        EXPECT_EQ(leaf.cgImage().pixelColor(row.outside).alpha(), 0);
        // A painter's edges are within 1/8 pixel of the curve.
        QImage image = solidImage(QSize(60, 60));
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillPath(leaf.path(), leaf.renderColor().toQColor());
        EXPECT_TRUE(imagesMatch(leaf.cgImage(), image, 200 / 8));
    }
}

TEST(LeafDrawingTest, BitByBitIsTheSameAsAtOnceAndAllIsRedisplayed) {
    Leaf often, once;
    often.drawWithBegin({50, 50});
    once.drawWithBegin({50, 50});
    for (int i = 1; i <= 150; ++i) {
        const QPointF point(50 + 70 * std::sin(i * 0.9) * std::cos(i * 0.31), 50 + 60 * std::sin(i * 1.7));
        const QImage before = often.cgImage();
        often.redisplayed = QRectF();
        for (Leaf* leaf : {&often, &once}) {
            leaf->drawWithMove(point);
            if (i == 100) {
                leaf->setRenderColor(QColor(Qt::red));
            }
        }
        for (int x = 0, y = 0; y < 60; y += ++x / 60, x %= 60) {
            if (often.cgImage().pixel(x, y) != before.pixel(x, y)) {
                ASSERT_TRUE(often.redisplayed.contains(QPointF(x + 0.5, y + 0.5) / 0.3)) << x << ", " << y;
            }
        }
    }
    EXPECT_EQ(painted(once.bitmap()), QRect());  // nobody has looked
    EXPECT_TRUE(imagesMatch(often.cgImage(), once.cgImage()));
}

TEST(LeafDrawingTest, TheEndComesOnceByTheEventLoopOrByHand) {
    for (const bool byHand : {false, true}) {
        SCOPED_TRACE(byHand);
        Leaf leaf;
        leaf.drawWithBegin({0, 0});
        EXPECT_TRUE(leaf.isClear());
        leaf.stroke(kTriangle);  // the one before was never ended
        EXPECT_TRUE(leaf.isClear() && leaf.isPending() && leaf.showsImage());
        const QImage image = leaf.cgImage();
        leaf.setRenderColor(QColor(Qt::blue));
        leaf.setGaussianRadius(20);
        leaf.drawWithMove({0, 0});
        leaf.drawWithCanceled({0, 0});
        EXPECT_TRUE(leaf.handed.empty());
        if (byHand) {
            leaf.finishPending();
        }
        QCoreApplication::processEvents();
        ASSERT_EQ(leaf.handed.size(), 1u);
        EXPECT_TRUE(imagesMatch(leaf.handed[0], LeafDrawing::boxblurImage(image, 1)));
        EXPECT_FALSE(leaf.isPending() || leaf.showsImage());
        EXPECT_EQ(painted(leaf.cgImage()), QRect());
    }
}

TEST(LeafDrawingTest, DroppedStrokesCallNothing) {
    Leaf leaf;
    leaf.drawWithMove({10, 10});
    leaf.drawWithEnd({20, 20});  // neither had a begin
    leaf.drawWithBegin({10, 10});
    leaf.drawWithMove({90, 10});
    leaf.drawWithMove({90, 90});
    EXPECT_NE(painted(leaf.cgImage()), QRect());
    leaf.redisplayed = QRectF();
    leaf.drawWithCanceled({90, 90});
    EXPECT_EQ(leaf.redisplayed, QRectF(0, 0, 200, 200));
    EXPECT_FALSE(leaf.showsImage());
    EXPECT_EQ(painted(leaf.cgImage()), QRect());
    QCoreApplication::processEvents();
    EXPECT_TRUE(leaf.handed.empty());
}

TEST(LeafDrawingTest, IgnoresWhatIsNotFinite) {
    Leaf good, bad;
    const LogCapture log;
    bad.stroke({{kNan, 0}, {5, 5}});
    EXPECT_FALSE(bad.isPending());
    good.stroke({{10, 10}, {90, 10}, {50, 90}});
    bad.stroke({{10, 10}, {90, 10}, {HUGE_VAL, 3}, {50, 90}, {0, kNan}});
    bad.setGaussianRadius(std::numeric_limits<float>::infinity());
    EXPECT_EQ(bad.gaussianRadius(), 1);
    EXPECT_TRUE(imagesMatch(bad.cgImage(), good.cgImage()));
    EXPECT_EQ(log.lines().size(), 3);  // one a stroke, and the radius
}

}  // namespace
