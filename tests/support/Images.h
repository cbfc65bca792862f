// SPDX-License-Identifier: MIT
// Pictures that tests draw by hand, and what they ask of pictures. Format_RGBA8888_Premultiplied throughout.
#pragma once

#include <gtest/gtest.h>

#include <QColor>
#include <QImage>
#include <QRect>

QImage solidImage(const QSize& size, const QColor& color = Qt::transparent);
// Sets every pixel of a rectangle, which may reach beyond the image.
void fillRect(QImage& image, const QRect& rect, const QColor& color);
// An opaque image whose every pixel differs from its neighbours; the seed is its blue.
QImage patternImage(const QSize& size, int seed = 0);
// The smallest rectangle around every pixel that is not fully transparent.
QRect painted(const QImage& image);

// Whether two images have the same size and, channel by channel, differ by at most the tolerance. A failure
// names the first pixel and writes both images out.
::testing::AssertionResult imagesMatch(const QImage& actual, const QImage& expected, int tolerance = 0);
