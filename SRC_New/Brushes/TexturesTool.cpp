// SPDX-License-Identifier: MIT
#include "Brushes/TexturesTool.h"

#include <QLoggingCategory>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <limits>
#include <new>

namespace {

Q_LOGGING_CATEGORY(lcTextures, "dabcanvas.brushes.textures")

constexpr float kNoFade = 0.001f;  // a fade narrower than this is a hard edge
constexpr std::size_t kPixelBytes = 4;

void logDataFailure(int line) {
    qCWarning(lcTextures, "创建数据失败(%s:%d)!", "SRC_New/Brushes/TexturesTool", line);
}

float length(float dx, float dy) {
    return std::sqrt(dx * dx + dy * dy);
}

// Written so that not-a-number ends at 0.
float unit(float value) {
    return value > 0.0f ? std::min(value, 1.0f) : 0.0f;
}

// Truncated, as a plain conversion does, once the value is known to fit.
std::uint8_t alphaByte(float value) {
    return static_cast<std::uint8_t>(value > 0.0f ? std::min(value, 255.0f) : 0.0f);
}

// 1 within the core, falling to 0 over the fade; `edge` ends a shape whose fade is too narrow to draw.
float coverage(float distance, float core, float fade, float edge) {
    if (fade > kNoFade)
        return TexturesTool::alphaOfValue(distance - core, fade);
    return distance <= edge ? 1.0f : 0.0f;
}

std::uint8_t* pixelAt(std::uint8_t* buffer, int n, int x, int y) {
    return buffer +
           (static_cast<std::size_t>(y) * static_cast<std::size_t>(n) + static_cast<std::size_t>(x)) *
               kPixelBytes;
}

void putAlpha(std::uint8_t* pixel, std::uint8_t alpha) {
    const std::array<std::uint8_t, kPixelBytes> rgba{0, 0, 0, alpha};
    std::memcpy(pixel, rgba.data(), kPixelBytes);
}

enum class Centre { mirrored, writtenOnce };

// Computes the top-left quadrant, 0..n/2 both ways, and mirrors it to the other three.
// Deliberate: for even n the two middle rows and columns are written twice and the later write stands, so
// both carry the values of the axis; a centre written once then differs from its three neighbours.
template <typename AlphaAt>
void drawQuadrants(std::uint8_t* buffer, int n, Centre centre, AlphaAt alphaAt) {
    const int half = n / 2;
    for (int y = 0; y <= half; ++y) {
        const bool centreApart = y == half && centre == Centre::writtenOnce;
        const int columns = centreApart ? half : half + 1;
        std::uint8_t* const row = pixelAt(buffer, n, 0, y);
        std::uint8_t* left = row;
        std::uint8_t* right = pixelAt(buffer, n, n - 1, y);
        for (int x = 0; x < columns; ++x, left += kPixelBytes, right -= kPixelBytes) {
            const std::uint8_t alpha = alphaAt(x, y);
            putAlpha(left, alpha);
            putAlpha(right, alpha);
        }
        if (y != n - 1 - y)
            std::memcpy(pixelAt(buffer, n, 0, n - 1 - y), row, static_cast<std::size_t>(n) * kPixelBytes);
        if (centreApart)
            putAlpha(pixelAt(buffer, n, half, half), alphaAt(half, half));
    }
}

// One axis of the rounded rectangle, from the distance to the centre line.
float sideAlpha(float distance, float outer, float inner, float fade) {
    if (distance > outer)
        return 0.0f;
    if (distance <= inner)
        return 1.0f;
    return 1.0f - (distance - inner) / fade;
}

}  // namespace

QImage TexturesTool::textureImageWithSize(int size) const {
    if (_textureType == kStoredImage)
        return _image;
    const int n = std::max(size, 3);
    QImage tip;
    if (n <= kMaxSize)
        tip = QImage(n, n, QImage::Format_RGBA8888_Premultiplied);
    // Rows of 4n bytes need no padding, so the image's memory is the buffer itself.
    std::uint8_t* const pixels = tip.isNull() ? nullptr : tip.bits();
    if (!pixels) {
        logDataFailure(__LINE__);
        return _image;
    }
    processTextureData(pixels, n);
    return tip;
}

std::unique_ptr<std::uint8_t[]> TexturesTool::textureDataWithSize(int size) const {
    const int n = std::max(size, 3);
    std::unique_ptr<std::uint8_t[]> data;
    if (n <= kMaxSize) {
        const auto side = static_cast<std::size_t>(n);
        data.reset(new (std::nothrow) std::uint8_t[side * side * kPixelBytes]);
    }
    if (!data) {
        logDataFailure(__LINE__);
        return nullptr;
    }
    processTextureData(data.get(), n);
    return data;
}

void TexturesTool::processTextureData(std::uint8_t* buffer, int n) const {
    if (!buffer || n < 1)
        return;
    // Each shape writes every pixel, so only the types without a shape need the clearing.
    switch (_textureType) {
        case kSoftDisc:
            return drawSoftDisc(buffer, n);
        case kRing:
            return drawRing(buffer, n);
        case kRoundedRectangle:
            return drawRoundedRectangle(buffer, n);
        default:
            std::memset(buffer, 0, static_cast<std::size_t>(n) * static_cast<std::size_t>(n) * kPixelBytes);
    }
}

float TexturesTool::distanceOfPoint(const QPointF& point, const QPointF& toPoint) {
    return length(static_cast<float>(point.x()) - static_cast<float>(toPoint.x()),
                  static_cast<float>(point.y()) - static_cast<float>(toPoint.y()));
}

float TexturesTool::alphaOfValue(float value, float refValue) {
    return unit(1.0f - value / refValue);
}

void TexturesTool::drawSoftDisc(std::uint8_t* buffer, int n) const {
    const float half = static_cast<float>(n / 2);
    const float core = shownHardness() * 0.95f * half;
    const float fade = half - core;
    drawQuadrants(buffer, n, Centre::writtenOnce, [=](int x, int y) {
        const float distance = length(half - static_cast<float>(x), half - static_cast<float>(y));
        const float alpha = coverage(distance, core, fade, half);
        return alphaByte(alpha * alpha * 255.0f);
    });
}

void TexturesTool::drawRing(std::uint8_t* buffer, int n) const {
    const float half = static_cast<float>(n / 2);
    const float hardness = shownHardness();
    const float thickness = std::max(shownControlValue(), 2.0f) * 0.5f;  // half of the ring's own
    const float fade = (1.0f - 0.85f * hardness) * thickness;
    const float core = std::max(thickness - fade, 0.0f);
    const float radius = half - thickness;
    const float strength = 0.7f * hardness + 0.3f;
    drawQuadrants(buffer, n, Centre::writtenOnce, [=](int x, int y) {
        const float toCentre = length(half - static_cast<float>(x), half - static_cast<float>(y));
        const float alpha = coverage(std::fabs(toCentre - radius), core, fade, core);
        return alphaByte(alpha * strength * 255.0f);
    });
}

void TexturesTool::drawRoundedRectangle(std::uint8_t* buffer, int n) const {
    const float half = static_cast<float>(n / 2);
    const float control = std::max(shownControlValue(), 0.01f);
    const float outerX = control <= 1.0f ? control * half : half;
    const float outerY = control >= 1.0f ? half / control : half;
    const float fade = (1.0f - 0.95f * shownHardness()) * std::min(outerX, outerY);
    const float innerX = outerX - fade;
    const float innerY = outerY - fade;
    drawQuadrants(buffer, n, Centre::mirrored, [=](int x, int y) {
        const float dx = half - static_cast<float>(x);
        const float dy = half - static_cast<float>(y);
        if (dx > innerX && dy > innerY) {
            const float fromCorner = length(dx - innerX, dy - innerY);
            return alphaByte(fromCorner > fade ? 0.0f : (1.0f - fromCorner / fade) * 255.0f);
        }
        const float alpha =
            std::min(sideAlpha(dy, outerY, innerY, fade), sideAlpha(dx, outerX, innerX, fade));
        return alphaByte(alpha * 255.0f);
    });
}

float TexturesTool::shownHardness() const {
    return _hardness > 0.0f ? _hardness : 0.0f;
}

float TexturesTool::shownControlValue() const {
    if (std::isnan(_textureControlValue))
        return 1.0f;
    // An infinite thickness would leave differences of infinities.
    return std::min(_textureControlValue, std::numeric_limits<float>::max());
}
