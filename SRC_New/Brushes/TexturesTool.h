// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPointF>
#include <cstdint>
#include <memory>

#include "Maths/Export.h"

/// Makes the brush tip: the n x n mask that every dab of a stroke stamps, with n = max(size, 3) pixels.
///
/// Pixels   4 bytes each, red, green, blue, alpha, rows top to bottom. Colour is always 0 and alpha carries
///          the shape, so the bytes are premultiplied as they stand.
/// Values   stored as given and read when a tip is drawn: a hardness that is negative or not a number counts
///          as 0, a control value that is not a number as 1, and alpha ends at 255 however large they are.
/// Owns     its stored image and nothing else; tips and buffers handed out are the caller's.
/// Thread   any one at a time. Needs no QGuiApplication.
/// Errors   never throws. A tip above kMaxSize or beyond the memory at hand is logged and refused:
///          textureImageWithSize() then answers with the stored image, textureDataWithSize() with null.
class DABCANVAS_BRUSHES_API TexturesTool {
public:
    /// What textureType() names. Any other value draws a fully transparent tip.
    enum TextureType : std::int32_t { kStoredImage = 0, kSoftDisc = 1, kRing = 2, kRoundedRectangle = 3 };

    /// Largest tip side: 1 GiB of pixels, far above any brush radius and still within QImage's reach.
    static constexpr int kMaxSize = 16384;

    std::int32_t textureType() const { return _textureType; }
    void setTextureType(std::int32_t type) { _textureType = type; }

    /// From 0, soft, to 1, hard.
    float hardness() const { return _hardness; }
    void setHardness(float hardness) { _hardness = hardness; }

    /// Ring: thickness in pixels, at least 2. Rounded rectangle: above 1 flatter, below 1 narrower, 1 square.
    float textureControlValue() const { return _textureControlValue; }
    void setTextureControlValue(float value) { _textureControlValue = value; }

    /// The tip of type 0, and the answer when a drawn tip cannot be made.
    const QImage& image() const { return _image; }
    void setImage(const QImage& image) { _image = image; }

    /// Type 0: the stored image unchanged, whatever the size. Otherwise a new tip in
    /// Format_RGBA8888_Premultiplied. A negative size, like 0, 1 and 2, gives the 3 x 3 tip.
    QImage textureImageWithSize(int size) const;

    /// The same pixels as n * n * 4 bytes without padding; fully transparent for type 0.
    std::unique_ptr<std::uint8_t[]> textureDataWithSize(int size) const;

    /// Draws the shape over the whole of `buffer`, n * n * 4 bytes; what it held before does not show.
    /// Does nothing when buffer is null or n is below 1.
    void processTextureData(std::uint8_t* buffer, int n) const;

    static float distanceOfPoint(const QPointF& point, const QPointF& toPoint);

    /// 1 - value / refValue within 0..1; 0 when that is not a number.
    static float alphaOfValue(float value, float refValue);

private:
    void drawRing(std::uint8_t* buffer, int n) const;
    void drawSoftDisc(std::uint8_t* buffer, int n) const;
    void drawRoundedRectangle(std::uint8_t* buffer, int n) const;
    float shownHardness() const;
    float shownControlValue() const;

    std::int32_t _textureType = kStoredImage;
    float _hardness = 0.0f;
    float _textureControlValue = 1.0f;
    QImage _image;
};
