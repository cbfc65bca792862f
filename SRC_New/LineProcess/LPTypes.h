// SPDX-License-Identifier: MIT
/// \file
/// The plain records that samples, brush settings and dabs are made of.
///
/// Units    positions and radii are in the caller's drawing unit; the canvas passes buffer pixels.
/// Layout   floats without gaps, so that arrays of LPPoint go to the renderers as they are.
#pragma once

/// A place in the plane.
struct LPPosition {
    float x;
    float y;
};

/// Pressure, altitude and speed. In a dab: its pressure (0..1, or exactly -1 when the device gives none), altitude
/// (0..1) and speed (0..1, where 1 is slow or at rest). In a brush setting: the signed strength with which each of them
/// acts on that setting, 0 meaning not at all.
struct LPControlParams {
    float pressure;
    float altitude;
    float speed;

    friend bool operator==(const LPControlParams&, const LPControlParams&) = default;
};

/// One dab. A stored dab's radius is above 0.
struct LPPoint {
    LPPosition position;
    float radius;
    LPControlParams params;
};

static_assert(sizeof(LPPosition) == 8 && sizeof(LPControlParams) == 12 && sizeof(LPPoint) == 24,
              "dabs are handed to the renderers as six floats without gaps");
