// SPDX-License-Identifier: MIT
#include "QDEAGLView/LeafDrawView.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

#include "support/LogCapture.h"

namespace {

TEST(LeafDrawViewTest, ShowsTheStrokeUntilItIsHandedOver) {
    QWidget window;
    window.setStyleSheet("background: blue");
    window.resize(200, 100);
    LeafDrawView* leaf = LeafDrawView::initWithFrame(QRectF(0, 0, 100, 50), &window).release();
    leaf->setGeometry(window.rect());
    leaf->setRenderColor(QColor(Qt::red));
    window.show();
    const auto shownAt = [&](int x, int y) { return window.grab().toImage().pixelColor(x, y); };
    EXPECT_EQ(shownAt(40, 50), QColor(Qt::blue));
    EXPECT_EQ(window.childAt(40, 50), nullptr);  // the pointer meets what lies below

    leaf->drawWithBegin({0, 0});
    for (const QPointF& point : {QPointF(50, 0), QPointF(50, 0), QPointF(50, 50), QPointF(50, 50)}) {
        leaf->drawWithMove(point);
    }
    leaf->drawWithEnd({0, 50});  // the left half
    EXPECT_EQ(shownAt(40, 50), QColor(Qt::red));
    EXPECT_EQ(shownAt(110, 50), QColor(Qt::blue));
    QCoreApplication::processEvents();
    EXPECT_EQ(shownAt(40, 50), QColor(Qt::blue));
}

TEST(LeafDrawViewTest, RefusesWhatNoWidgetCanHave) {
    const LogCapture log;
    EXPECT_TRUE(LeafDrawView::initWithFrame(QRectF()));
    EXPECT_FALSE(LeafDrawView::initWithFrame(QRectF(0, 0, 1e9, 10)));
    EXPECT_FALSE(LeafDrawView::initWithFrame(QRectF(qQNaN(), 0, 10, 10)));
    EXPECT_EQ(log.lines().size(), 2);
}

}  // namespace
