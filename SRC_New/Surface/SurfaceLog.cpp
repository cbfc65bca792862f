// SPDX-License-Identifier: MIT
#include "Surface/SurfaceLog.h"

#include <atomic>
#include <cstdio>

namespace dabcanvas {
namespace {

void toStandardError(const char* line) {
    std::fprintf(stderr, "dabcanvas: %s\n", line);
}

std::atomic<SurfaceLog> present = &toStandardError;

}  // namespace

void setSurfaceLog(SurfaceLog log) {
    present = log;
}

void logSurfaceProblem(const char* line) {
    present.load()(line);
}

}  // namespace dabcanvas
