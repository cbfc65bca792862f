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

}  // namespace
