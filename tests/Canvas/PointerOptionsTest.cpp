// SPDX-License-Identifier: MIT
#include "Canvas/PointerOptions.h"

#include <gtest/gtest.h>

#include <cmath>

#include "Canvas/Stabiliser.h"

using namespace dabcanvas;

namespace {

TEST(PressureCurveTest, GoesThroughItsPointsAndNeverFalls) {
    for (const std::vector<QPointF>& points : {std::vector<QPointF>{{0, 0}, {1, 1}},
                                               {{0, 0.2}, {0.3, 0.2}, {0.31, 0.9}, {1, 1}},
                                               {{0.1, 0}, {0.5, 0.8}, {0.6, 0.8}, {0.9, 0.95}},
                                               {{0, 0}, {0.5, 0.02}, {1, 1}}}) {
        const auto curve = PressureCurve::through(points);
        ASSERT_TRUE(curve);
        for (const QPointF& point : points) {
            EXPECT_NEAR(curve->at(static_cast<float>(point.x())), point.y(), 1e-6);
        }
        float last = 0;
        for (int i = 0; i <= 1000; ++i) {
            const float value = curve->at(static_cast<float>(i) / 1000);
            EXPECT_GE(value, last - 1e-6f) << i;
            last = value;
        }
        EXPECT_EQ(curve->at(-1), -1);
    }
    EXPECT_FLOAT_EQ(PressureCurve::through({{0, 0}, {1, 1}})->at(0.37f), 0.37f);
    EXPECT_FLOAT_EQ(PressureCurve().at(0.37f), 0.37f);
    for (const std::vector<QPointF>& wrong : {std::vector<QPointF>{},
                                              {{0, 0}},
                                              {{0, 0}, {0, 1}},
                                              {{0, 0.5}, {1, 0.4}},
                                              {{0, 0}, {1, 1.1}},
                                              {{0, 0}, {NAN, 1}}}) {
        EXPECT_FALSE(PressureCurve::through(wrong));
    }
}

struct Steadied {
    const char* name;
    StabiliserOptions options;
    double lag;     // points behind a pointer at 200 points a second, in the end
    double wobble;  // of a hand that trembles by 4 points, at most
};

// A hand that goes right at 200 points a second and trembles, heard of `rate` times a second.
std::vector<PointerSample> follow(const StabiliserOptions& options, double rate, double trembles) {
    Stabiliser stabiliser;
    std::vector<PointerSample> all;
    const auto at = [&](double time) {
        return PointerSample{{200 * time, trembles * std::sin(time * 60)}, 0.5f, -1, time};
    };
    stabiliser.begin(options, 1, at(0));
    for (double time = 1 / rate; time <= 2; time += 1 / rate) {
        const auto& steps = stabiliser.move(at(time));
        all.insert(all.end(), steps.begin(), steps.end());
    }
    return all;
}

TEST(StabiliserTest, SteadiesAHandWhateverTheRateOfEvents) {
    for (const Steadied& way : {Steadied{"average", {.kind = Stabilising::average, .seconds = 0.1}, 20, 1.0},
                                Steadied{"string", {.kind = Stabilising::string, .length = 30}, 30, 1.0}}) {
        std::vector<PointerSample> slow;
        for (const double rate : {60.0, 125.0, 1000.0}) {
            const auto straight = follow(way.options, rate, 0);
            EXPECT_NEAR(400 - straight.back().point.x(), way.lag, 4.1) << way.name << rate;
            EXPECT_NEAR(straight.back().pressure, 0.5, 1e-5);
            double most = 0;
            for (const PointerSample& sample : follow(way.options, rate, 4)) {
                most = sample.point.x() > 200 ? std::max(most, std::abs(sample.point.y())) : most;
            }
            EXPECT_LT(most, way.wobble) << way.name << rate;
        }
        const auto coarse = follow(way.options, 125, 0), fine = follow(way.options, 1000, 0);
        EXPECT_NEAR(coarse.back().point.x(), fine.back().point.x(), 2) << way.name;
    }
    Stabiliser off;
    off.begin({}, 1, {});
    EXPECT_EQ(off.move({{5, 6}, 1, -1, 1}).back().point, QPointF(5, 6));
}

TEST(StabiliserTest, ALineIsFinishedOrNot) {
    for (const bool finishes : {true, false}) {
        Stabiliser stabiliser;
        const StabiliserOptions options{.kind = Stabilising::string, .length = 20, .finishesLine = finishes};
        stabiliser.begin(options, 2, {});
        const PointerSample pointer{{100, 0}, 1, -1, 1};
        EXPECT_NEAR(stabiliser.move(pointer).back().point.x(), 60, 1e-6)
            << "the string is as long as it is seen";
        EXPECT_NEAR(stabiliser.end(pointer).point.x(), finishes ? 100 : 60, 1e-6);
    }
}

}  // namespace
