// SPDX-License-Identifier: MIT
#include "Tools/FloodFill.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <random>
#include <vector>

#include "Canvas/CanvasLayers.h"
#include "Canvas/QDDrawCanvas.h"
#include "Tools/CanvasFill.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr auto kFormat = QImage::Format_RGBA8888_Premultiplied;

std::uint32_t pixelOf(const QImage& picture, QPoint at) {
    return reinterpret_cast<const std::uint32_t*>(picture.constScanLine(at.y()))[at.x()];
}

// Pixel by pixel, by its four neighbours.
std::vector<bool> slowFlood(const QImage& picture, QPoint seed, int tolerance) {
    std::vector<bool> flooded(std::size_t(picture.width() * picture.height()));
    std::vector<QPoint> todo{seed};
    while (!todo.empty()) {
        const QPoint at = todo.back();
        todo.pop_back();
        const std::size_t i = std::size_t(at.y() * picture.width() + at.x());
        if (!picture.rect().contains(at) || flooded[i] ||
            pixelDifference(pixelOf(picture, at), pixelOf(picture, seed)) > tolerance)
            continue;
        flooded[i] = true;
        for (const QPoint step : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)})
            todo.push_back(at + step);
    }
    return flooded;
}

TEST(FloodFillTest, CoversWhatHangsTogether) {
    std::mt19937 random(7);
    for (int round = 0; round < 60; ++round) {
        QImage picture(1 + int(random() % 40), 1 + int(random() % 40), kFormat);
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                picture.setPixel(x, y,
                                 random() % 3 ? qRgb(200, 200, 200) : qRgb(int(random() % 256), 90, 20));
        }
        const QPoint seed(int(random() % unsigned(picture.width())),
                          int(random() % unsigned(picture.height())));
        const int tolerance = int(random() % 160);
        const FloodMask mask = floodMask(picture, seed, tolerance);
        const std::vector<bool> expected = slowFlood(picture, seed, tolerance);
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const bool covered = mask.rect.contains(x, y) && mask.row(y)[x - mask.rect.left()] == 255;
                ASSERT_EQ(covered, expected[std::size_t(y * picture.width() + x)]) << x << ", " << y;
            }
        }
    }
    EXPECT_TRUE(floodMask(QImage(4, 4, kFormat), {4, 0}, 0).rect.isEmpty());
}

class CanvasFillTest : public ::testing::TestWithParam<SurfaceKind> {
protected:
    void SetUp() override {
        _canvas = QDDrawCanvas::initWithFrame(QRectF(0, 0, 120, 90), {.kind = GetParam()});
        if (!_canvas)
            GTEST_SKIP() << "no such surface here";
        _canvas->setAutoMark(true);
    }
    // A smooth ring, on paper or on nothing.
    static QImage ring(const QColor& ground) {
        QImage picture(120, 90, kFormat);
        picture.fill(ground);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(Qt::black, 4));
        painter.drawEllipse(QPointF(60, 45), 33.3, 30.7);
        return picture;
    }
    void put(const QImage& picture) {
        ASSERT_TRUE(_canvas->setImageInBufferRect(picture, QRectF(0, 0, 120, 90)));
    }

    std::unique_ptr<QDDrawCanvas> _canvas;
};

// Inside the ring nothing but the colour, the line, and what lies between the two by parts.
TEST_P(CanvasFillTest, LeavesNoFringeAndTheLineIsAsSmooth) {
    for (const QColor& ground : {QColor(Qt::white), QColor(0, 0, 0, 0)}) {
        put(ring(ground));
        ASSERT_EQ(fillCanvas(*_canvas, {60, 45}, QColor(250, 40, 40), 0), FillOutcome::filled);
        const QImage filled = _canvas->image(), before = ring(ground);
        QImage wanted(120, 90, kFormat);
        wanted.fill(QColor(250, 40, 40));
        QPainter(&wanted).drawImage(0, 0, ring(Qt::transparent));
        int rim = 0;
        for (int x = 20; x < 100; ++x) {
            const QColor is = filled.pixelColor(x, 45), was = before.pixelColor(x, 45);
            const bool isInside = std::abs(x + 0.5 - 60) < 33.3;
            const QColor should = isInside ? wanted.pixelColor(x, 45) : was;
            EXPECT_LT(pixelDifference(is.rgba(), should.rgba()), 30) << x;
            rim += isInside && is != QColor(250, 40, 40) && is != Qt::black;
        }
        EXPECT_GT(rim, 0);
        EXPECT_EQ(filled.pixelColor(2, 2), before.pixelColor(2, 2));
    }
}

TEST_P(CanvasFillTest, FillsBelowALineOfAnotherLayerInOneStep) {
    put(ring(Qt::white));
    CanvasLayers layers = _canvas->layers();
    const QImage line = ring(Qt::transparent);
    _canvas->clearWithColor(ESColor(QColor(Qt::white)), false);
    ASSERT_TRUE(layers.add(1, {}, line));
    ASSERT_TRUE(layers.setActive(0));
    const QImage before = _canvas->displayImage().copy();
    ASSERT_EQ(fillCanvas(*_canvas, {60, 45}, Qt::green, 0), FillOutcome::filled);
    EXPECT_EQ(layers.image(1), line);
    const QImage seen = _canvas->displayImage();
    for (int x = 60; seen.pixelColor(x, 45) != Qt::black; ++x)
        EXPECT_EQ(seen.pixelColor(x, 45).red(), 0) << x << ": paper shows";
    _canvas->undo();
    EXPECT_EQ(_canvas->displayImage(), before);
    // Of a layer that keeps its alpha only what is there takes the colour.
    ASSERT_TRUE(layers.setActive(1));
    ASSERT_TRUE(layers.setSettings(1, {.name = {}, .locksAlpha = true}));
    ASSERT_EQ(fillCanvas(*_canvas, {60, 45}, Qt::green, 255), FillOutcome::filled);
    EXPECT_EQ(_canvas->image().convertToFormat(QImage::Format_Alpha8),
              line.convertToFormat(QImage::Format_Alpha8));
    EXPECT_EQ(_canvas->image().pixelColor(60 + 33, 45).green(), 255);
    QPainterPath selected;
    selected.addRect(0, 0, 60.5, 90);
    EXPECT_EQ(fillCanvas(*_canvas, {61, 45}, Qt::red, 255, selected), FillOutcome::nothingToFill);
    ASSERT_EQ(fillCanvas(*_canvas, {6, 45}, Qt::red, 255, selected), FillOutcome::filled);
    EXPECT_EQ(_canvas->image().pixelColor(60 - 33, 45).red(), 255);
    EXPECT_EQ(_canvas->image().pixelColor(60 + 33, 45).red(), 0);
    ASSERT_TRUE(layers.setSettings(1, {.name = {}, .isVisible = false}));
    EXPECT_EQ(fillCanvas(*_canvas, {60, 45}, Qt::green, 0), FillOutcome::layerHidden);
}

TEST_P(CanvasFillTest, WhatIsNotFilledKeepsAllOfItsBits) {
    _canvas = QDDrawCanvas::initWithFrame(QRectF(0, 0, 192, 192), {.kind = GetParam(), .canvasDepth = 16});
    _canvas->setAutoMark(true);
    QImage before(192, 192, QImage::Format_RGBA64_Premultiplied);
    const QRect square(60, 60, 72, 72);
    for (int y = 0; y < 192; ++y) {
        for (int x = 0; x < 192; ++x) {
            const auto value = quint16((square.contains(x, y) ? 20000 : 40000) + 37 * x + 11 * y);
            reinterpret_cast<QRgba64*>(before.scanLine(y))[x] = qRgba64(value, value, value, 65535);
        }
    }
    ASSERT_TRUE(_canvas->setImageInBufferRect(before, QRectF(before.rect())));
    CanvasLayers layers = _canvas->layers();
    EXPECT_EQ(layers.deepImage(0), before);
    EXPECT_EQ(layers.deepImage(0, {10, 20, 30, 40}), before.copy(10, 20, 30, 40));
    EXPECT_TRUE(layers.deepImage(0, {180, 20, 30, 40}).isNull());
    ASSERT_EQ(fillCanvas(*_canvas, {2, 2}, Qt::red, 40), FillOutcome::filled);
    const QImage filled = layers.deepImage(0);
    EXPECT_EQ(filled.copy(square.adjusted(1, 1, -1, -1)), before.copy(square.adjusted(1, 1, -1, -1)));
    EXPECT_EQ(filled.pixelColor(2, 2), QColor(Qt::red));
}

INSTANTIATE_TEST_SUITE_P(All, CanvasFillTest, ::testing::Values(SurfaceKind::processor, SurfaceKind::gpu));

}  // namespace

}  // namespace dabcanvas::dabpainter
