// SPDX-License-Identifier: MIT
#include "QDEAGLView/LeafDrawView.h"

#include <gtest/gtest.h>

#include "support/LogCapture.h"

namespace {

TEST(LeafDrawViewTest, RefusesWhatNoWidgetCanHave) {
    const LogCapture log;
    EXPECT_TRUE(LeafDrawView::initWithFrame(QRectF()));
    EXPECT_FALSE(LeafDrawView::initWithFrame(QRectF(0, 0, 1e9, 10)));
    EXPECT_FALSE(LeafDrawView::initWithFrame(QRectF(qQNaN(), 0, 10, 10)));
    EXPECT_EQ(log.lines().size(), 2);
}

TEST(LeafDrawViewTest, ShowsWhatIsSelected) {
    const auto leaf = LeafDrawView::initWithFrame(QRectF(0, 0, 100, 100));
    QPainterPath left;
    left.addRect(0, 0, 50, 100);
    leaf->setShownArea(left);
    leaf->setRenderColor(ESColor::rgba(1, 0, 0));
    leaf->drawWithBegin({5, 5});
    for (const QPointF to : {QPointF(95, 5), QPointF(95, 95), QPointF(5, 95)}) {
        leaf->drawWithMove(to);
    }
    QImage shown(100, 100, QImage::Format_RGB32);
    shown.fill(Qt::white);
    leaf->render(&shown, {}, {}, {});
    EXPECT_EQ(shown.pixelColor(40, 40), QColor(Qt::red));
    EXPECT_EQ(shown.pixelColor(60, 40), QColor(Qt::white));
}

}  // namespace
