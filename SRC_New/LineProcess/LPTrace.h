// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "LineProcess/LPTypes.h"
#include "Maths/Export.h"

/// A growable array of dabs, and the one instance a thread that a stroke's segments are built into.
///
/// Owns     its points, from malloc; capacity 0 means that it owns nothing. What a thread's instance still owns
///          at the thread's end goes with it.
/// Errors   a message on standard output, without a line end, and a false result.
struct LPTrace {
    LPPoint* points;
    std::uint32_t count;
    std::uint32_t capacity;
};

DABCANVAS_STROKE_API extern constinit thread_local LPTrace _lpTrace;

/// Drops what the trace owns and makes room for 10 points. When that fails, points is null though
/// capacity reads 10; the trace stays safe to use.
DABCANVAS_STROKE_API void lpInitTrace(LPTrace* trace);

/// Forgets the points and keeps the room.
DABCANVAS_STROKE_API void lpClrTrace(LPTrace* trace);

/// Frees the points and leaves the trace empty. Always returns 0.
DABCANVAS_STROKE_API std::int32_t lpFreeTrace(LPTrace* trace);

/// Makes room for 16 more points, or 30 more from a capacity of 16 on. On failure the old points stay.
DABCANVAS_STROKE_API bool lpReAllocTrace(LPTrace* trace);

/// Appends a copy of the point, growing first when full. False: no room, the point is dropped.
DABCANVAS_STROKE_API bool lpAddPointInTrace(LPTrace* trace, const LPPoint* point);
