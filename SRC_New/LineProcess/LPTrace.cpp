// SPDX-License-Identifier: MIT
#include "LineProcess/LPTrace.h"

#include <cstdio>
#include <cstdlib>
#include <limits>

namespace {

constexpr std::uint32_t kFirstCapacity = 10;
constexpr std::uint32_t kSmallCapacity = 16;
constexpr std::uint32_t kSmallGrowth = 16;
constexpr std::uint32_t kGrowth = 30;

// A thread may end in the middle of a stroke.
struct EndOfThread {
    ~EndOfThread() { lpFreeTrace(&_lpTrace); }
};

void freeAtEndOfThread(const LPTrace* trace) {
    if (trace == &_lpTrace) {
        [[maybe_unused]] thread_local const EndOfThread end;
    }
}

}  // namespace

constinit thread_local LPTrace _lpTrace = {nullptr, 0, 0};

void lpInitTrace(LPTrace* trace) {
    freeAtEndOfThread(trace);
    if (trace->capacity != 0) {
        std::free(trace->points);
    }
    trace->count = 0;
    trace->capacity = kFirstCapacity;
    trace->points = static_cast<LPPoint*>(std::malloc(kFirstCapacity * sizeof(LPPoint)));
    if (trace->points == nullptr) {
        // Deliberate: capacity still reads 10; lpAddPointInTrace() looks at points as well.
        std::printf("为 t->points 分配空间失败！");
    }
}

void lpClrTrace(LPTrace* trace) {
    trace->count = 0;
}

std::int32_t lpFreeTrace(LPTrace* trace) {
    if (trace->capacity != 0) {
        std::free(trace->points);
    }
    *trace = {nullptr, 0, 0};
    return 0;
}

bool lpReAllocTrace(LPTrace* trace) {
    freeAtEndOfThread(trace);
    const std::uint32_t growth = trace->capacity < kSmallCapacity ? kSmallGrowth : kGrowth;
    LPPoint* grown = nullptr;
    if (trace->capacity <= std::numeric_limits<std::uint32_t>::max() - growth) {
        // realloc extends in place or remaps, which keeps small steps cheap on long segments.
        const std::size_t bytes = (std::size_t{trace->capacity} + growth) * sizeof(LPPoint);
        LPPoint* const owned = trace->capacity != 0 ? trace->points : nullptr;
        grown = static_cast<LPPoint*>(std::realloc(owned, bytes));
    }
    if (grown == nullptr) {
        std::printf("为 t->points 分配空间失败！采用旧空间！");
        return false;
    }
    trace->points = grown;
    trace->capacity += growth;
    return true;
}

bool lpAddPointInTrace(LPTrace* trace, const LPPoint* point) {
    if (trace->count == trace->capacity || trace->points == nullptr) {
        if (!lpReAllocTrace(trace)) {
            return false;
        }
    }
    trace->points[trace->count] = *point;
    trace->count += 1;
    return true;
}
