// SPDX-License-Identifier: MIT
#include "Import/MypaintTip.h"

#include <cmath>
#include <limits>

#include "Import/EngineCurves.h"

namespace dabcanvas {
namespace {

// A dab of MyPaint's at a distance from its centre, its radius being 1.
float mypaintProfile(float distance, float hardness) {
    const float square = distance * distance;
    if (square > 1) {
        return 0;
    }
    return square <= hardness ? 1 - square * (1 / hardness - 1) : hardness / (1 - hardness) * (1 - square);
}

}  // namespace

float hardnessLike(float hardness) {
    float best = hardness;
    double least = std::numeric_limits<double>::infinity();
    for (int step = 0; step <= 50; ++step) {
        const float drawn = static_cast<float>(step) / 50;
        const std::vector<float> profile = discProfile(drawn);
        double error = 0;
        for (std::size_t i = 0; i < profile.size(); ++i) {
            const float distance = static_cast<float>(i) / static_cast<float>(profile.size());
            const float off = profile[i] - mypaintProfile(distance, hardness);
            error += static_cast<double>(off * off * distance);
        }
        if (error < least) {
            least = error;
            best = drawn;
        }
    }
    return best;
}

QImage tipLike(const std::vector<float>& hardnesses, int side) {
    QImage tip(side, side, QImage::Format_Alpha8);
    const float half = static_cast<float>(side) / 2;
    for (int y = 0; y < tip.height(); ++y) {
        for (int x = 0; x < tip.width(); ++x) {
            const float distance =
                std::hypot(static_cast<float>(x) + 0.5f - half, static_cast<float>(y) + 0.5f - half) / half;
            float sum = 0;
            for (const float hardness : hardnesses) {
                sum += mypaintProfile(distance, hardness);
            }
            tip.scanLine(y)[x] = static_cast<uchar>(sum / static_cast<float>(hardnesses.size()) * 255 + 0.5f);
        }
    }
    return tip.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
}

}  // namespace dabcanvas
