// SPDX-License-Identifier: MIT
// What fits are made to is what a line does.
#include <gtest/gtest.h>

#include "Import/EngineCurves.h"
#include "LineProcess/LPLineProcess.h"

namespace dabcanvas {
namespace {

TEST(EngineCurvesTest, SizesAreThoseOfTheLineProcess) {
    LPLineParams line = _lpDefaultParaObj;
    LPLineParams* const before = lpSetParaObj(&line);
    line.radius = 100;
    line.maxRadius = 1;
    line.radiusTingle = line.startRadius = line.endRadius = 0;
    for (const float least : {0.0f, 0.2f, 0.7f, 1.0f}) {
        for (const LPControlParams& control : {LPControlParams{0, 0, 0},
                                               {0.6f, 0, 0},
                                               {-0.4f, 0, 0.5f},
                                               {1, 0.5f, -1},
                                               {-1, -0.5f, 0},
                                               {0, 1, 0.3f}}) {
            for (const LPControlParams& inputs :
                 {LPControlParams{0.1f, 0, 1}, {0.5f, 0.8f, 0.4f}, {0.9f, 0.3f, 0}, {1, 1, 0.7f}}) {
                line.minRadius = least;
                line.radiusControl = control;
                lpStartLineWithParams({0, 0}, inputs.pressure, inputs.altitude);
                line.segSpeed = inputs.speed;
                newSegPressure = inputs.pressure;
                newSegAltitude = inputs.altitude;
                newSegSpeed = inputs.speed;
                const LPPosition at{5, 5};
                EXPECT_NEAR(100 * shareOfSize(inputs, least, control), lpDoStroke(1, 1, &at, &_lpTrace),
                            0.01f)
                    << least << ' ' << control.pressure << ' ' << control.altitude << ' ' << control.speed
                    << ", " << inputs.pressure;
            }
        }
    }
    lpFreeTrace(&_lpTrace);
    lpSetParaObj(before);
}

}  // namespace
}  // namespace dabcanvas
