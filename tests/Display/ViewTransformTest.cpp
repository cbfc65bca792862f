// SPDX-License-Identifier: MIT
#include "Display/ViewTransform.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "Display/HalvedCopies.h"

using namespace dabcanvas;

namespace {

constexpr double kQuarter = std::numbers::pi / 2;

void expectNear(QPointF point, QPointF wanted, const char* what) {
    EXPECT_NEAR(point.x(), wanted.x(), 1e-6) << what;
    EXPECT_NEAR(point.y(), wanted.y(), 1e-6) << what;
}

struct Way {
    const char* name;
    ViewFit fit;
    double rotation;
    bool mirrored;
    QPointF topLeft, right,
        below;  // where the canvas's corner is seen, and a step of 10 pixels to the right and down
};

// A canvas of 400 x 200 in a view of 300 x 300 points, two dots each.
TEST(ViewTransformTest, ShowsTheCanvasAsItIsToLie) {
    const double half = 10 * std::sqrt(0.5) * 0.5;
    for (const Way& way : {
             Way{"stretched", ViewFit::stretch, 1, true, {0, 0}, {7.5, 0}, {0, 15}},
             Way{"whole", ViewFit::whole, 0, false, {0, 75}, {7.5, 0}, {0, 7.5}},
             Way{"whole, mirrored", ViewFit::whole, 0, true, {300, 75}, {-7.5, 0}, {0, 7.5}},
             Way{"whole, a quarter", ViewFit::whole, kQuarter, false, {75, 300}, {0, -7.5}, {7.5, 0}},
             Way{"whole, mirrored, a quarter", ViewFit::whole, kQuarter, true, {75, 0}, {0, 7.5}, {7.5, 0}},
             Way{"free, pixel by pixel", ViewFit::free, 0, false, {50, 100}, {5, 0}, {0, 5}},
             Way{"free, an eighth",
                 ViewFit::free,
                 kQuarter / 2,
                 false,
                 {150 - 30 * half, 150 + 10 * half},
                 {half, -half},
                 {half, half}},
         }) {
        ViewTransform transform;
        transform.setSizes({400, 200}, {300, 300}, 2);
        transform.setFit(way.fit);
        if (way.fit == ViewFit::free) {
            transform.zoomAbout(1, {150, 150});
        }
        transform.turnAbout(way.rotation, {150, 150});
        transform.setMirrored(way.mirrored, {150, 150});
        const QTransform& map = transform.toView();
        expectNear(map.map(QPointF(0, 0)), way.topLeft, way.name);
        expectNear(map.map(QPointF(10, 0)) - map.map(QPointF(0, 0)), way.right, way.name);
        expectNear(map.map(QPointF(0, 10)) - map.map(QPointF(0, 0)), way.below, way.name);
        expectNear(transform.toCanvas().map(map.map(QPointF(37, 91))), {37, 91}, way.name);
    }
}

TEST(ViewTransformTest, WhatIsHeldStaysAndTheCanvasStaysInSight) {
    ViewTransform transform;
    transform.setSizes({4000, 3000}, {800, 600}, 1);
    const QPointF anchor(123.25, 456.5);
    const auto held = [&] { return transform.toCanvas().map(anchor); };
    transform.zoomAbout(1, anchor);
    for (const double zoom : {0.5, 3.0, 17.3, 1.0}) {
        const QPointF before = held();
        transform.zoomAbout(zoom, anchor);
        EXPECT_NEAR(std::hypot(held().x() - before.x(), held().y() - before.y()) * zoom, 0, 1) << zoom;
    }
    const QPointF before = held();
    transform.turnAbout(0.7, anchor);
    transform.setMirrored(true, anchor);
    expectNear(held(), before, "turned and mirrored");
    transform.panBy({1e6, -1e6});
    const QRectF shown = transform.toView().mapRect(QRectF(0, 0, 4000, 3000));
    EXPECT_TRUE(shown.intersects(QRectF(0, 0, 800, 600))) << "pushed away";
    transform.turnAbout(0, anchor);
    transform.zoomAbout(1e9, anchor);
    EXPECT_EQ(transform.zoom(), ViewTransform::kMostZoom);
    const QTransform good = transform.toView();
    transform.zoomAbout(NAN, anchor);
    transform.turnAbout(INFINITY, anchor);
    transform.panBy({NAN, 0});
    transform.setCentre({0, INFINITY});
    EXPECT_EQ(transform.toView(), good);
    // What is smaller than the view lies in its middle, on whole dots.
    transform.setMirrored(false, anchor);
    transform.setSizes({101, 51}, {800, 600}, 1.5);
    transform.zoomAbout(1, {0, 0});
    const QPointF corner = transform.toView().map(QPointF(0, 0)) * 1.5;
    expectNear(corner, {std::round(corner.x()), std::round(corner.y())}, "on whole dots");
    EXPECT_NEAR(corner.x(), (1200 - 101) / 2.0, 1);
}

TEST(HalvedCopiesTest, EveryPixelCountsAlikeAndWhatChangedIsMadeAnew) {
    QImage picture(517, 301, QImage::Format_RGBA8888_Premultiplied);
    picture.fill(Qt::transparent);
    for (int x = 0; x < picture.width(); x += 3) {
        picture.setPixelColor(x, x % 301, QColor(0, 0, 0, 255));
    }
    const auto ink = [](const QImage& image) {
        double sum = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                sum += image.pixelColor(x, y).alphaF();
            }
        }
        return sum;
    };
    HalvedCopies copies;
    const QImage& quarter = copies.at(2, picture);
    EXPECT_EQ(quarter.size(), QSize(130, 76));
    EXPECT_NEAR(ink(quarter) * 16 / ink(picture), 1, 0.05);
    picture.setPixelColor(516, 300, QColor(255, 255, 255));
    copies.change(QRect(516, 300, 1, 1));
    EXPECT_EQ(copies.at(2, picture).pixelColor(129, 75), QColor(255, 255, 255))
        << "the corner is all of its pixel";
    EXPECT_EQ(copies.at(0, picture).size(), picture.size());
    EXPECT_GE(copies.at(9, picture).height(), 32) << "no smaller than it need be";
}

}  // namespace
