// SPDX-License-Identifier: MIT
// libmypaint as the peer: its brush engine and its tiled surface, set up to do what our own benchmarks do.
#pragma once

#include <mypaint-brush.h>
#include <mypaint-surface.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "support/Recording.h"

namespace dabcanvas::bench {

inline constexpr float kPeerHardness = 0.5f;

// How many threads libmypaint may work with from here on.
void setPeerThreads(int threads);

// A surface that takes dabs and draws nothing: what is left is the engine's own work.
class CountingSurface {
public:
    CountingSurface();
    MyPaintSurface* interface() { return &_surface.base; }
    // Dabs that would have left something, since the surface was made or last asked.
    std::size_t takeDabs();

private:
    struct Counted {
        MyPaintSurface base;  // first: the engine hands this back to drawDab()
        std::size_t dabs;
    };
    static int drawDab(MyPaintSurface* self, float x, float y, float radius, float r, float g, float b,
                       float opaque, float hardness, float eraser, float aspect, float angle, float lockAlpha,
                       float colorize);
    Counted _surface{};
};

// libmypaint's own surface of a fixed size, transparent at first. Its tiles may be drawn by several threads.
class PaintedSurface {
public:
    PaintedSurface(int width, int height);
    MyPaintSurface* interface() { return _surface.get(); }
    // Ends a transaction: draws the dabs gathered since mypaint_surface_begin_atomic().
    void finish();
    // The pixels of a rectangle as rows of 8 bits a channel, to show them.
    void fetch(const MyPaintRectangle& rect);

private:
    int _width, _height;
    std::vector<std::uint8_t> _rows;
    std::unique_ptr<MyPaintSurface, decltype(&mypaint_surface_unref)> _surface;
};

// A round brush of constant spacing.
class PeerBrush {
public:
    // Spacing is a fraction of the dab's width, as in our line record. Pressure acts on opacity.
    PeerBrush(float width, float spacing);
    // Pressure acts on the width instead, which the function gives in pixels for a pressure of 0..1.
    PeerBrush(const std::function<float(float)>& widthAt, float spacing);

    // Takes up colour and carries it along, at full opacity.
    void smudge();
    // Every stroke of the recording, a transaction a sample; the surface's begin and end may be null. `changed` is called
    // after each with the rectangle that it drew in.
    void replay(const Recording& recording, MyPaintSurface* surface,
                const std::function<void(const MyPaintRectangle&)>& changed = {});

private:
    explicit PeerBrush(float spacing);
    std::unique_ptr<MyPaintBrush, decltype(&mypaint_brush_unref)> _brush;
};

}  // namespace dabcanvas::bench
