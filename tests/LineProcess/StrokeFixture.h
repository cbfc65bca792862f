// SPDX-License-Identifier: MIT
// A stroke on a record of its own, and what tests ask of dabs in general.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <memory>
#include <vector>

#include "LineProcess/LPLineProcess.h"

using Dabs = std::vector<LPPoint>;

inline LPPoint dabAt(float x, float y, float radius = 10.0f, LPControlParams params = {1.0f, 0.5f, 1.0f}) {
    return {{x, y}, radius, params};
}

inline double gapBetween(const LPPoint& a, const LPPoint& b) {
    return std::hypot(static_cast<double>(b.position.x) - a.position.x,
                      static_cast<double>(b.position.y) - a.position.y);
}

inline bool isUsable(const LPPoint& dab) {
    const float sum =
        dab.position.x + dab.position.y + dab.params.pressure + dab.params.altitude + dab.params.speed;
    return std::isfinite(sum) && std::isfinite(dab.radius) && dab.radius > 0.0f;
}

class StrokeTest : public ::testing::Test {
protected:
    void SetUp() override {
        _line.startRadius = 1.0f;
        _line.endRadius = 0.0f;
        _before = lpSetParaObj(&_line);
        _shared = lpSharedState();
    }
    // The selected record and the stroke's globals are process-wide.
    void TearDown() override {
        lpFreeTrace(&_lpTrace);
        lpSetSharedState(_shared);
        lpSetParaObj(_before);
        SetDebugModel(0);
    }

    Dabs append(LPPosition at, float pressure, float altitude, bool end) {
        const std::int32_t count = lpAppendingLineWithParams(at, pressure, altitude, end);
        if (count == 0) {
            EXPECT_EQ(lpGetLastLineSegmentPoints1V(nullptr), 0);
            return {};
        }
        LPPoint* raw = nullptr;
        EXPECT_EQ(lpGetLastLineSegmentPoints1V(&raw), count);
        const std::unique_ptr<LPPoint[], decltype(&std::free)> dabs(raw, &std::free);
        return Dabs(dabs.get(), dabs.get() + count);
    }
    Dabs move(float x, float y) { return append({x, y}, 1.0f, 0.0f, false); }
    Dabs finish(float x, float y) { return append({x, y}, 1.0f, 0.0f, true); }

    // A whole stroke through the places, the last one ending it.
    Dabs draw(const std::vector<LPPosition>& places, float pressure = 1.0f, float altitude = 0.0f) {
        Dabs all;
        lpStartLineWithParams(places.front(), pressure, altitude);
        for (std::size_t i = 1; i < places.size(); ++i) {
            const Dabs more = append(places[i], pressure, altitude, i + 1 == places.size());
            all.insert(all.end(), more.begin(), more.end());
        }
        return all;
    }

    LPLineParams _line = _lpDefaultParaObj;

private:
    LPLineParams* _before = nullptr;
    LPSharedState _shared;
};
