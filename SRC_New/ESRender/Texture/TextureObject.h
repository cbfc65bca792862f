// SPDX-License-Identifier: MIT
#pragma once

#include <epoxy/gl.h>

#include <QImage>
#include <QList>
#include <QRectF>
#include <QSize>
#include <array>
#include <memory>

#include "Maths/Export.h"

/// One power-of-two RGBA texture with mipmaps, made from one image, an atlas of up to sixteen images, or raw
/// pixels; remembers which rectangle of it each image occupies. A picture to be placed has its own size.
///
/// Pixels   premultiplied RGBA, 8 bits each. Every texel outside an image is transparent.
/// Layout   GL row 0 (t = 0) is the bottom of the picture: an image's top row lies at its t1. Images stand at
///          the texture's top (t1 of the first row of cells is 1), raw pixels at its bottom (t0 is 0).
/// Atlas    one cell, or 2 x 2 cells for 2 to 4 images, 4 x 4 for more; image i is in column i mod g and row i
///          / g, counted from the top, at its cell's top left. A larger image is squeezed to its cell on each
///          axis by itself, a smaller one keeps its size. Mip levels stop where a cell is one texel, so no
///          texel mixes two cells; bilinear reads within half a texel of a cell's rim still touch the
///          neighbour's rim texels.
/// Owns     the texture. The context must be current to make, use and destroy it.
/// Errors   never throws. Short memory is logged and leaves the object without a texture: isEnabled() is false
///          and using it binds nothing.
class DABCANVAS_RENDER_API TextureObject {
public:
    static constexpr int kMaxImages = 16;
    static constexpr int kMaxImageSide = 2048;
    using Cell = std::array<float, 10>;  ///< (s0, t0), (s0, t1), (s1, t1), (s1, t0), (s0, t0)

    // ---- Make; each uploads on the active unit and leaves GL_TEXTURE_2D at 0 there

    /// Sides are the image's in points (pixels over its device pixel ratio), rounded up to a power of two,
    /// 2048 at most; a larger image is squeezed.
    static std::unique_ptr<TextureObject> initWithImage(const QImage& image);
    /// A texture of qualityType x qualityType pixels.
    static std::unique_ptr<TextureObject> initWithImage(const QImage& image, int qualityType);
    /// At most the first 16 images; null images keep their index and a transparent cell.
    static std::unique_ptr<TextureObject> initWithImages(const QList<QImage>& images, int qualityType);
    /// Raw pixels, top row first, rows without gaps, sides rounded up to a power of two. Null when there are
    /// no bytes, a side is not above 0 or one is above what the driver takes.
    static std::unique_ptr<TextureObject> initWithData(const unsigned char* data, const QSize& size);
    /// A picture to be placed: as large in texels as it is in pixels, nothing around it, no mip levels yet,
    /// uploaded from where it lies. Its top row is GL row 0, which verties() allows for. Scaled down only
    /// where the driver takes no such size; null when memory is short.
    static std::unique_ptr<TextureObject> initWithPicture(const QImage& picture);
    /// No texture yet: keeps a pixel block of qualityType x qualityType that every later load draws into.
    static std::unique_ptr<TextureObject> initWithQualityType(int qualityType);
    ~TextureObject();
    TextureObject(const TextureObject&) = delete;
    TextureObject& operator=(const TextureObject&) = delete;

    /// Replace the texture's content, at its present size; return didInit().
    bool loadTextureWithImages(const QList<QImage>& images);
    bool loadTextureWithData(const unsigned char* data, const QSize& size);

    // ---- Use

    bool isEnabled() const { return _textureID != 0; }
    /// Makes the unit active and binds the texture there, and leaves both so. False, touching nothing,
    /// without a texture.
    bool use() const { return useAtPosition(GL_TEXTURE0); }
    bool useAtPosition(GLenum unit) const;

    // ---- Read

    /// The cell of an image, ten floats; cell 0 when index is not below vertiesCount().
    const float* vertiesOfTextureIndex(unsigned index) const;
    const float* verties() const { return _verties[0].data(); }
    unsigned vertiesCount() const { return _vertiesCount; }  ///< 1, 4 or 16
    QSize pixSize() const { return {static_cast<int>(_pixWidth), static_cast<int>(_pixHeight)}; }
    int qualityType() const { return static_cast<int>(_pixWidth > _pixHeight ? _pixWidth : _pixHeight); }
    /// The last mip level: where a cell is a single texel (of a texture of one cell: the whole chain).
    int cellMaxLevel() const;
    /// 0 without a texture.
    GLuint textureID() const { return _textureID; }
    /// Whether it was filled, at the last time that it was to be.
    bool didInit() const { return _didInit; }
    void setDidInit(bool didInit) { _didInit = didInit; }

    // ---- Helpers: public as they make up other textures of the same kind

    /// Uploads pixSize() pixels, bottom row first, into this object's texture; returns the name used, 0 on
    /// failure.
    GLuint buildTexture(const unsigned char* pixels) { return bindTexture(pixels, _textureID); }
    /// The same into a texture of the caller's; 0 generates one.
    GLuint bindTexture(const unsigned char* pixels, GLuint textureID);
    /// Deletes the texture and the kept block; safe to call again.
    void destoryTexture();

private:
    TextureObject() = default;
    TextureObject(int width, int height);

    QImage takeClearedPixels(int line);
    QImage createTextureDataWithImages(const QList<QImage>& images);
    QImage createTextureDataWithImageData(const unsigned char* data, const QSize& size);
    void bindTextureData(QImage& context, const QImage& image, const QRect& rect, int index);
    void bindTextureData(QImage& context, const unsigned char* imageData, const QRect& rect, int index);
    bool load(QImage pixels);
    void upload(const QImage& picture);

    bool _keepsBuffer = false;
    QImage _dataBuffer;  // kept pixel block, of initWithQualityType() only
    GLuint _textureID = 0;
    std::array<Cell, kMaxImages> _verties{};
    unsigned _vertiesCount = 1;
    unsigned _pixWidth = 0;
    unsigned _pixHeight = 0;
    bool _didInit = false;
};
