// SPDX-License-Identifier: MIT
#include "QDEAGLView/QDDrawView.h"

#include <QPixmap>

#include "support/CanvasTest.h"

namespace {

using DrawViewTest = CanvasTest;

TEST_F(DrawViewTest, ShowsTheCanvasPixelForPixel) {
    auto view = QDDrawView::initWithFrame(QRectF(0, 0, 160, 120));
    ASSERT_TRUE(view);
    view->clearWithColor(ESColor::rgba(1, 1, 1), true);
    paintWave(*view, 60);
    const QImage shown = view->grab().toImage().convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    EXPECT_TRUE(imagesMatch(shown, view->image()));
}

TEST_F(DrawViewTest, AResizedViewKeepsItsBufferAndScales) {
    auto view = QDDrawView::initWithFrame(QRectF(0, 0, 160, 120));
    ASSERT_TRUE(view);
    view->show();
    view->resize(320, 180);
    EXPECT_EQ(view->bufferSize(), QSizeF(160, 120));
    EXPECT_EQ(view->scale(), QSizeF(2, 1.5));
    view->setHardness(1);
    view->drawingWithBeginPoint({40, 90});
    view->drawingWithMoveToPoint({160, 90});
    view->drawingWithMoveToPoint({240, 90});
    view->drawingWithEndPoint({300, 90});
    EXPECT_EQ(view->image().pixelColor(80, 60).alpha(), 255);
    const QImage shown = view->grab().toImage();
    EXPECT_EQ(shown.size(), QSize(320, 180));
    EXPECT_EQ(shown.pixelColor(160, 90), QColor(Qt::black));
}

}  // namespace
