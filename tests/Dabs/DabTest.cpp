// SPDX-License-Identifier: MIT
#include "Dabs/Dab.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <functional>
#include <vector>

#include "LineProcess/SystemRandom.h"

using namespace dabcanvas;

namespace {

LPPoint pointAt(float x, float y, float size = 10, LPControlParams params = {1, 0, 1}) {
    return {{x, y}, size, params};
}

std::vector<Dab> dabsOf(DabMaker& maker, const std::vector<LPPoint>& points) {
    std::vector<Dab> dabs;
    maker.make(points.data(), points.size(), [&](const Dab& dab) { dabs.push_back(dab); });
    return dabs;
}

DabMaker makerWith(const std::function<void(DabSettings&)>& change) {
    DabMaker maker;
    maker.settings.isDebug = true;
    change(maker.settings);
    maker.updateFlags();
    maker.reset();
    return maker;
}

TEST(DabTest, DirectionFollowsTheStrokeFromItsFirstDab) {
    DabMaker maker = makerWith([](DabSettings& s) { s.moveRadianEnable = true; });
    for (const Dab& dab : dabsOf(maker, {pointAt(100, 100), pointAt(105, 105), pointAt(110, 110)})) {
        EXPECT_NEAR(dab.radian, -0.7853982f, 1e-5);
    }
    maker.reset();
    maker.comeFrom({95, 95});  // a point that was left out
    EXPECT_NEAR(dabsOf(maker, {pointAt(100, 100)}).front().radian, -0.7853982f, 1e-5);
}

// Jitter

void everyJitter(DabSettings& s) {
    s.radius = 20;
    s.minRadius = 0.1f;
    s.radiusTingle = 0;  // draws from drand48() even in debug mode
    s.distribution = 1;
    s.distributionCount = 3;
    s.distributionCountTingle = 0.5f;
    s.moveRadianEnable = true;
    s.radianTingle = 0.6f;
    s.startRadianEnable = true;
    s.roundness = 0.6f;
    s.roundnessTingle = 0.7f;
    s.flipXTingle = s.flipYTingle = true;
    s.maxFlow = 1;
    s.flowTingle = 0.5f;
    s.flowControl = {1, 0, 0};
    s.textureTingleEnabled = true;
    s.numberOfTips = 9;
    s.tipCells = 4;
    s.colorTingle = 0.6f;
    s.color = {0.9f, 0.2f, 0.1f};
    s.backColor = {0, 0.3f, 0.9f};
}

TEST(DabTest, EveryJitterStaysInRange) {
    seedSystemUniform(3);
    for (const bool debug : {true, false}) {
        DabMaker maker = makerWith([&](DabSettings& s) {
            everyJitter(s);
            s.isDebug = debug;
            s.radiusTingle = 1;
            s.hueTingle = s.saturationTingle = s.brightnessTingle = 1;
        });
        bool tips[4] = {};
        for (int i = 0; i < 300; ++i) {
            for (const Dab& dab : dabsOf(maker, {pointAt(30 + 5.0f * static_cast<float>(i), 60, 12)})) {
                EXPECT_TRUE(dab.flow >= 0 && dab.flow <= 1) << dab.flow;
                EXPECT_TRUE(dab.roundness >= 0 && dab.roundness <= 1) << dab.roundness;
                EXPECT_TRUE(dab.halfSize > 0 && dab.halfSize <= 6) << dab.halfSize;
                EXPECT_LE(std::hypot(dab.x - 30 - 5.0f * static_cast<float>(i), dab.y - 60), 12.001f);
                ASSERT_LT(dab.tip, 4u);
                tips[dab.tip] = true;
                for (const float part : {dab.color.r, dab.color.g, dab.color.b}) {
                    EXPECT_TRUE(part >= 0 && part <= 1) << part;
                }
            }
        }
        for (const bool used : tips) {
            EXPECT_TRUE(used) << "a tip is never drawn";
        }
    }
}

}  // namespace
