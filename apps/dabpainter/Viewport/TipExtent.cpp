// SPDX-License-Identifier: MIT
#include "Viewport/TipExtent.h"

#include <algorithm>

#include "Canvas/QDDrawCanvas.h"

namespace dabcanvas::dabpainter {

namespace {

constexpr int kSize = 128;     // pixels, of the dabs
constexpr double kSeen = 0.1;  // of the strongest alpha across the stroke
const std::vector<BrushKey> kKeys{BrushKey::textureType,    BrushKey::textureImages,
                                  BrushKey::hardness,       BrushKey::textureControlValue,
                                  BrushKey::pointsDistance, BrushKey::pointsDistanceEnabled};

}  // namespace

bool isOfTipExtent(BrushKey key) {
    return std::find(kKeys.begin(), kKeys.end(), key) != kKeys.end();
}

double tipExtent(const BrushModel& model) {
    const QRectF frame(0, 0, 3 * kSize, 3 * kSize / 2);
    const auto canvas = QDDrawCanvas::initWithFrame(frame, {.kind = SurfaceKind::processor});
    if (!canvas)
        return 1;
    model.apply(*canvas, kKeys);
    canvas->setRadius(kSize);
    canvas->setRadiusControl({1, 0, 0});
    canvas->setStartRadius(0);
    canvas->setEndRadius(0);
    const QPointF middle = frame.center();
    canvas->drawingWithBeginPoint(middle - QPointF(kSize, 0), 1);
    canvas->drawingWithMoveToPoint(middle, 1);
    canvas->drawingWithEndPoint(middle + QPointF(kSize, 0), 1);
    const QImage image = canvas->image();
    std::vector<int> alphas;
    for (int y = 0; y < image.height(); ++y)
        alphas.push_back(qAlpha(image.pixel(int(middle.x()), y)));
    const double least = kSeen * *std::max_element(alphas.begin(), alphas.end());
    const auto isSeen = [least](int alpha) { return alpha > least; };
    const auto first = std::find_if(alphas.begin(), alphas.end(), isSeen);
    const auto last = std::find_if(alphas.rbegin(), alphas.rend(), isSeen);
    const auto across = std::distance(first, alphas.end()) - std::distance(alphas.rbegin(), last);
    return across > 0 ? std::min(1.0, double(across) / kSize) : 1;
}

}  // namespace dabcanvas::dabpainter
