// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPointF>
#include <QRect>
#include <QSize>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <span>

#include "Brushes/ESColor.h"

/// An area that grows curve by curve, filled with antialiasing by the winding rule: the live preview's
/// outline.
///
/// Why      a painter fills a path anew for every picture of it, which takes longer with every move. This
///          keeps the outline's edges added up, pixel by pixel, so that a curve costs what it crosses, however
///          long the stroke.
/// Exact    edges are whole numbers of 1/256 pixel and add up in whole numbers: the order of curves and
///          pictures changes no pixel.
/// Units    pixels of the picture, origin top left; points may lie outside, up to 32768 pixels away.
/// Owns     four bytes for every pixel of rows that the outline crosses, given back by clear().
class LeafFill {
public:
    /// Forgets everything; a new outline begins in a picture of this size. False: no memory for it.
    bool begin(const QSize& size, QPointF point);
    /// The outline goes on by a quadratic curve.
    void quadTo(QPointF control, QPointF end);
    /// Forgets everything and gives the memory back.
    void clear();

    /// Draws the rectangle, which must lie within an image of Format_RGBA8888_Premultiplied and this size: the
    /// colour with its alpha inside of any of the outlines, each closed by a straight line, and transparent elsewhere.
    static void draw(std::span<LeafFill* const> outlines, QImage& image, const QRect& area,
                     const ESColor& color);

private:
    // In 1/256 pixel.
    struct Point {
        int x = 0, y = 0;
        bool operator==(const Point&) const = default;
    };
    static Point fixed(QPointF point);
    void addLine(Point from, Point to, int factor);
    void addInRow(std::uint32_t* row, Point from, Point to, int factor);
    void close();
    void cover(int y, const QRect& area, std::uint8_t* levels) const;

    int _width = 0, _height = 0;
    // Per row width + 1 steps, whose sum from the left up to a pixel is how much of it is covered, times
    // windings; kCovered for a whole pixel wound around once. Steps are signed and wrap, so that it holds up
    // to 16383 windings. Of calloc(), whose pages are there when they are first written.
    std::unique_ptr<std::uint32_t, decltype(&std::free)> _steps{nullptr, &std::free};
    QPointF _last;
    Point _begin, _end, _closedFrom;
};
