// SPDX-License-Identifier: MIT
#include "Canvas/ImagePlacing.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "Canvas/CanvasLog.h"

namespace dabcanvas {
namespace {

// Sides in buffer pixels between which single precision tells pixels apart.
constexpr double kSmallest = 1e-6, kLargest = 1e6;
constexpr QImage::Format kFormat = QImage::Format_RGBA8888_Premultiplied;
constexpr QImage::Format kDeepFormat = QImage::Format_RGBA64_Premultiplied;

bool isLength(double side) {
    return side >= kSmallest && side <= kLargest;
}

// Rows in the order of the picture, whatever their order in memory.
PixelView viewOf(const QImage& rows, bool topRowFirst) {
    const Size size{rows.width(), rows.height()};
    const std::ptrdiff_t stride = rows.bytesPerLine();
    const int pixelBytes = rows.depth() / 8;
    return topRowFirst ? PixelView{rows.constBits(), size, stride, pixelBytes}
                       : PixelView{rows.constBits() + stride * (size.height - 1), size, -stride, pixelBytes};
}

// Halves go away from zero.
int nearest(double value) {
    return static_cast<int>(std::round(value));
}

}  // namespace

bool Spot::isUsable() const {
    if (isLength(width) && isLength(height) && std::isfinite(centre.x) && std::isfinite(centre.y) &&
        std::isfinite(radian)) {
        return true;
    }
    qCWarning(lcDabcanvas, "no image can be placed %g x %g buffer pixels large at (%g, %g), turned by %g",
              width, height, centre.x, centre.y, radian);
    return false;
}

// The pixels that placing may touch. Cut to the buffer in doubles: a host may give any numbers that are finite.
Rect ImagePlacing::clip() const {
    const Rect whole = _layers.whole();
    if (!rules.scissors) {
        return whole;
    }
    const auto within = [](double edge, int size) {
        return nearest(std::clamp(edge, -1.0, static_cast<double>(size) + 1));
    };
    const int left = within(scissor.x, whole.width);
    const int right = within(std::round(scissor.x) + std::round(scissor.width), whole.width);
    // Whole pixels are counted from the bottom, where halves go the other way.
    const double bottomUp = std::round(whole.height - (scissor.y + scissor.height));
    const int bottom = within(whole.height - bottomUp, whole.height);
    const int top = within(whole.height - bottomUp - std::round(scissor.height), whole.height);
    return Rect::between(left, top, right, bottom).intersected(whole);
}

bool ImagePlacing::put(const PlacedImage& image, const Spot& spot) {
    // The surface calculates in single precision.
    const Spot rounded{
        static_cast<float>(spot.width),
        static_cast<double>(static_cast<float>(spot.width)) * static_cast<float>(spot.height / spot.width),
        {static_cast<float>(spot.centre.x), static_cast<float>(spot.centre.y)},
        spot.radian};
    const Placement placement(rounded.centre, rounded.width, rounded.height,
                              static_cast<float>(std::remainder(spot.radian, 2 * std::numbers::pi)));
    const Rect placed = placement.touched();
    const Rect touched = placed.intersected(clip());
    if (touched.isEmpty()) {
        return false;
    }
    const bool copies =
        image.replaces && !rules.neglects && !placement.isTurned() &&
        placement.readingOf({image.image.width(), image.image.height()}) == Placement::Reading::texelOnPixel;
    if (copies ? copy(image, placed, touched) : draw(image, spot, touched)) {
        return true;
    }
    if (!_layers.isLost()) {
        qCWarning(lcDabcanvas, "there is no memory to place an image of %d x %d pixels", image.image.width(),
                  image.image.height());
    }
    return false;
}

// What replaces the canvas pixel by pixel. The background takes it along.
bool ImagePlacing::copy(const PlacedImage& image, const Rect& placed, const Rect& touched) {
    QRect part(touched.x - placed.x, touched.y - placed.y, touched.width, touched.height);
    if (!image.topRowFirst) {
        part.moveTop(placed.height - part.y() - part.height());
    }
    const bool isDeep =
        image.image.format() == kDeepFormat && _layers.surface().pixelBytes() * 8 == image.image.depth();
    const QImage rows = (part == image.image.rect() ? image.image : image.image.copy(part))
                            .convertToFormat(isDeep ? kDeepFormat : kFormat);
    if (rows.isNull()) {
        return false;
    }
    _settle();
    return _layers.paint(touched, viewOf(rows, image.topRowFirst));
}

bool ImagePlacing::draw(const PlacedImage& image, const Spot& spot, const Rect& touched) {
    const QImage rows = image.image.convertToFormat(kFormat);
    if (rows.isNull()) {
        return false;
    }
    if (rules.neglects) {
        _layers.drawnIsBelow();  // what lies between later rectangles may be the image
    } else {
        _settle();
    }
    const bool isPlaced = _layers.place({.pixels = viewOf(rows, image.topRowFirst),
                                         .width = spot.width,
                                         .height = spot.height,
                                         .centreX = spot.centre.x,
                                         .centreY = spot.centre.y,
                                         .radian = spot.radian,
                                         .replaces = image.replaces,
                                         .clip = clip()},
                                        touched);
    if (isPlaced && image.ofStroke) {
        _layers.confine(touched);
    }
    return isPlaced;
}

}  // namespace dabcanvas
