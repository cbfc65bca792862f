// SPDX-License-Identifier: MIT
// Strokes and shapes without Qt. The library's variables are the program's too: what one sets, the other sees.
#include <cmath>
#include <cstdio>
#include <vector>

#include "LineProcess/LPLineProcess.h"
#include "Recognition/Unitily.h"

namespace {

int failed(const char* what) {
    std::fprintf(stderr, "stroke: %s\n", what);
    return 1;
}

}  // namespace

int main() {
    LPLineParams line = _lpDefaultParaObj;
    if (lpSetParaObj(&line) != &_lpDefaultParaObj || _lpParaObj != &line) {
        return failed("the current record is another in the library");
    }
    minRadius = 0.5f;
    if (lpSharedState().minRadius != minRadius) {
        return failed("a variable is another in the library");
    }
    lpStartLine({0, 0});
    const std::int32_t dabs = lpAppendingLine({100, 0}, true);
    if (dabs < 2 || _lpNumberOfPoints != dabs) {
        return failed("a stroke has no dabs");
    }
    if (PreRandD(3) != FloatValue[3] || radianBlock({0, 0}, {1, 0}) != Radian({0, 0}, {1, 0})) {
        return failed("tables or blocks differ");
    }
    std::vector<ShapePoint> drawn;
    for (int i = 0; i <= 64; ++i) {
        drawn.push_back({200 + 100 * std::cos(i * 0.098175), 200 + 100 * std::sin(i * 0.098175)});
    }
    return Unitily::recogniseWithPoints(drawn).kind == ShapeKind::ellipse ? 0 : failed("a circle is none");
}
