// SPDX-License-Identifier: MIT
#include "support/MyPaint.h"

#include <mypaint-fixed-tiled-surface.h>
#include <mypaint-tiled-surface.h>
#include <omp.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace dabcanvas::bench {

void setPeerThreads(int threads) {
    omp_set_num_threads(threads);
}

CountingSurface::CountingSurface() {
    mypaint_surface_init(&_surface.base);
    _surface.base.draw_dab = &CountingSurface::drawDab;
}

int CountingSurface::drawDab(MyPaintSurface* self, float, float, float, float, float, float, float opaque,
                             float, float, float, float, float, float) {
    reinterpret_cast<Counted*>(self)->dabs += opaque > 0 ? 1 : 0;
    return 1;
}

std::size_t CountingSurface::takeDabs() {
    return std::exchange(_surface.dabs, 0);
}

PaintedSurface::PaintedSurface(int width, int height)
    : _width(width),
      _height(height),
      _rows(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 4),
      _surface(mypaint_fixed_tiled_surface_interface(mypaint_fixed_tiled_surface_new(width, height)),
               &mypaint_surface_unref) {
    // All tiles are in memory, so asking for them from several threads is safe.
    reinterpret_cast<MyPaintTiledSurface*>(_surface.get())->threadsafe_tile_requests = TRUE;
}

void PaintedSurface::finish() {
    MyPaintRectangle changed;
    mypaint_surface_end_atomic(_surface.get(), &changed);
}

void PaintedSurface::fetch(const MyPaintRectangle& rect) {
    auto* const tiled = reinterpret_cast<MyPaintTiledSurface*>(_surface.get());
    constexpr int kTile = MYPAINT_TILE_SIZE;
    const int left = std::max(rect.x, 0), top = std::max(rect.y, 0);
    const int right = std::min(rect.x + rect.width, _width), bottom = std::min(rect.y + rect.height, _height);
    for (int ty = top / kTile; ty * kTile < bottom; ++ty) {
        for (int tx = left / kTile; tx * kTile < right; ++tx) {
            MyPaintTileRequest request;
            mypaint_tile_request_init(&request, 0, tx, ty, TRUE);
            mypaint_tiled_surface_tile_request_start(tiled, &request);
            const int first = std::max(left, tx * kTile), end = std::min(right, (tx + 1) * kTile);
            for (int y = std::max(top, ty * kTile); y < std::min(bottom, (ty + 1) * kTile); ++y) {
                const std::uint16_t* from = request.buffer + ((y % kTile) * kTile + first % kTile) * 4;
                std::uint8_t* to =
                    _rows.data() + (static_cast<std::size_t>(y) * static_cast<std::size_t>(_width) +
                                    static_cast<std::size_t>(first)) *
                                       4;
                for (int i = 0; i < (end - first) * 4; ++i) {
                    to[i] = static_cast<std::uint8_t>((from[i] * 255u + (1u << 14)) >> 15);
                }
            }
            mypaint_tiled_surface_tile_request_end(tiled, &request);
        }
    }
}

PeerBrush::PeerBrush(float spacing) : _brush(mypaint_brush_new(), &mypaint_brush_unref) {
    MyPaintBrush* const brush = _brush.get();
    mypaint_brush_from_defaults(brush);
    mypaint_brush_set_base_value(brush, MYPAINT_BRUSH_SETTING_HARDNESS, kPeerHardness);
    mypaint_brush_set_base_value(brush, MYPAINT_BRUSH_SETTING_DABS_PER_BASIC_RADIUS, 0);
    mypaint_brush_set_base_value(brush, MYPAINT_BRUSH_SETTING_DABS_PER_ACTUAL_RADIUS, 0.5f / spacing);
}

PeerBrush::PeerBrush(float width, float spacing) : PeerBrush(spacing) {
    MyPaintBrush* const brush = _brush.get();
    mypaint_brush_set_base_value(brush, MYPAINT_BRUSH_SETTING_RADIUS_LOGARITHMIC, std::log(width / 2));
    mypaint_brush_set_base_value(brush, MYPAINT_BRUSH_SETTING_OPAQUE_MULTIPLY, 0);
    const auto point = [brush](int index, float x, float y) {
        mypaint_brush_set_mapping_point(brush, MYPAINT_BRUSH_SETTING_OPAQUE_MULTIPLY,
                                        MYPAINT_BRUSH_INPUT_PRESSURE, index, x, y);
    };
    mypaint_brush_set_mapping_n(brush, MYPAINT_BRUSH_SETTING_OPAQUE_MULTIPLY, MYPAINT_BRUSH_INPUT_PRESSURE,
                                2);
    point(0, 0, 0);
    point(1, 1, 1);
}

PeerBrush::PeerBrush(const std::function<float(float)>& widthAt, float spacing) : PeerBrush(spacing) {
    constexpr int kPoints = 17;
    MyPaintBrush* const brush = _brush.get();
    mypaint_brush_set_mapping_n(brush, MYPAINT_BRUSH_SETTING_OPAQUE_MULTIPLY, MYPAINT_BRUSH_INPUT_PRESSURE,
                                0);
    mypaint_brush_set_base_value(brush, MYPAINT_BRUSH_SETTING_OPAQUE_MULTIPLY, 1);
    mypaint_brush_set_base_value(brush, MYPAINT_BRUSH_SETTING_RADIUS_LOGARITHMIC, 0);
    mypaint_brush_set_mapping_n(brush, MYPAINT_BRUSH_SETTING_RADIUS_LOGARITHMIC, MYPAINT_BRUSH_INPUT_PRESSURE,
                                kPoints);
    for (int i = 0; i < kPoints; ++i) {
        const float pressure = static_cast<float>(i) / (kPoints - 1);
        mypaint_brush_set_mapping_point(brush, MYPAINT_BRUSH_SETTING_RADIUS_LOGARITHMIC,
                                        MYPAINT_BRUSH_INPUT_PRESSURE, i, pressure,
                                        std::log(widthAt(pressure) / 2));
    }
}

void PeerBrush::smudge() {
    mypaint_brush_set_base_value(_brush.get(), MYPAINT_BRUSH_SETTING_SMUDGE, 0.9f);
    mypaint_brush_set_base_value(_brush.get(), MYPAINT_BRUSH_SETTING_SMUDGE_LENGTH, 0.5f);
}

void PeerBrush::replay(const Recording& recording, MyPaintSurface* surface,
                       const std::function<void(const MyPaintRectangle&)>& changed) {
    MyPaintBrush* const brush = _brush.get();
    for (const Stroke& stroke : recording.strokes) {
        mypaint_brush_reset(brush);  // the first sample then only sets the position
        mypaint_brush_new_stroke(brush);
        for (const Sample& sample : stroke) {
            if (surface->begin_atomic != nullptr) {
                mypaint_surface_begin_atomic(surface);
            }
            mypaint_brush_stroke_to(brush, surface, sample.x, sample.y, sample.pressure, 0, 0,
                                    sample.interval);
            if (surface->end_atomic != nullptr) {
                MyPaintRectangle rect;
                mypaint_surface_end_atomic(surface, &rect);
                if (changed) {
                    changed(rect);
                }
            }
        }
    }
}

}  // namespace dabcanvas::bench
