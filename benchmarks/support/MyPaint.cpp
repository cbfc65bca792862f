// SPDX-License-Identifier: MIT
#include "support/MyPaint.h"

#include <mypaint-fixed-tiled-surface.h>
#include <mypaint-tiled-surface.h>
#include <omp.h>

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
    : _surface(mypaint_fixed_tiled_surface_interface(mypaint_fixed_tiled_surface_new(width, height)),
               &mypaint_surface_unref) {
    // All tiles are in memory, so asking for them from several threads is safe.
    reinterpret_cast<MyPaintTiledSurface*>(_surface.get())->threadsafe_tile_requests = TRUE;
}

void PaintedSurface::finish() {
    MyPaintRectangle changed;
    mypaint_surface_end_atomic(_surface.get(), &changed);
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

void PeerBrush::replay(const Recording& recording, MyPaintSurface* surface) {
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
                MyPaintRectangle changed;
                mypaint_surface_end_atomic(surface, &changed);
            }
        }
    }
}

}  // namespace dabcanvas::bench
