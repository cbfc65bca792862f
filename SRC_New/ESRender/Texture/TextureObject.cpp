// SPDX-License-Identifier: MIT
#include "ESRender/Texture/TextureObject.h"

#include <algorithm>
#include <bit>
#include <cstring>

#include "ESRender/Utilities/ESGLErrors.h"
#include "ESRender/Utilities/ESGLTexture.h"
#include "Maths/Rounding.h"

namespace {

constexpr char kFile[] = "SRC_New/ESRender/Texture/TextureObject";
constexpr int kMaxImageTextureSide = TextureObject::kMaxImageSide;
constexpr QImage::Format kFormat = QImage::Format_RGBA8888_Premultiplied;

// Steps named by the fixed lines of their messages.
constexpr int kKeptBlockLine = 45;
constexpr int kImagesBlockLine = 203;
constexpr int kDataBlockLine = 277;

void logNoMemory(int line) {
    qCWarning(lcDabcanvasGL, "创建数据失败(%s:%d)!", kFile, line);
}

int gridSide(unsigned cells) {
    return cells == 16 ? 4 : cells == 4 ? 2 : 1;
}

QSizeF sizeInPoints(const QImage& image) {
    return QSizeF(image.size()) / image.devicePixelRatio();
}

// (s0, t0) to (s1, t1) of a rectangle counted in texels from the texture's bottom left.
TextureObject::Cell cellOf(const QRect& rect, int width, int height) {
    const auto part = [](int value, int whole) {
        return static_cast<float>(value) / static_cast<float>(whole);
    };
    const float s0 = part(rect.x(), width);
    const float s1 = part(rect.x() + rect.width(), width);
    const float t0 = part(rect.y(), height);
    const float t1 = part(rect.y() + rect.height(), height);
    return {s0, t0, s0, t1, s1, t1, s1, t0, s0, t0};
}

// The same rectangle counted from the other end of the rows.
QRect flipped(const QRect& rect, int height) {
    return {rect.x(), height - rect.y() - rect.height(), rect.width(), rect.height()};
}

}  // namespace

TextureObject::TextureObject(int width, int height)
    : _pixWidth(static_cast<unsigned>(std::max(width, 0))),
      _pixHeight(static_cast<unsigned>(std::max(height, 0))) {}

std::unique_ptr<TextureObject> TextureObject::initWithImage(const QImage& image) {
    const QSizeF points = sizeInPoints(image);
    const auto side = [](double length) {
        return ExponentialWithInter(std::min(dabcanvas::truncatedInt(length), kMaxImageTextureSide));
    };
    std::unique_ptr<TextureObject> texture(new TextureObject(side(points.width()), side(points.height())));
    texture->loadTextureWithImages({image});
    return texture;
}

std::unique_ptr<TextureObject> TextureObject::initWithImage(const QImage& image, int qualityType) {
    return initWithImages({image}, qualityType);
}

std::unique_ptr<TextureObject> TextureObject::initWithImages(const QList<QImage>& images, int qualityType) {
    std::unique_ptr<TextureObject> texture(new TextureObject(qualityType, qualityType));
    texture->loadTextureWithImages(images);
    return texture;
}

std::unique_ptr<TextureObject> TextureObject::initWithData(const unsigned char* data, const QSize& size) {
    const int limit = dabcanvas::maxTextureSize();
    if (!data || size.width() < 1 || size.height() < 1 || size.width() > limit || size.height() > limit) {
        return nullptr;
    }
    std::unique_ptr<TextureObject> texture(
        new TextureObject(ExponentialWithInter(size.width()), ExponentialWithInter(size.height())));
    texture->loadTextureWithData(data, size);
    return texture;
}

std::unique_ptr<TextureObject> TextureObject::initWithPicture(const QImage& picture) {
    if (picture.isNull()) {
        return nullptr;
    }
    const int limit = dabcanvas::maxTextureSize();
    const QSize fitting = picture.size().boundedTo(QSize(limit, limit));
    QImage pixels = picture;
    if (fitting != picture.size()) {
        pixels = picture.scaled(fitting, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    pixels = std::move(pixels).convertToFormat(kFormat);
    if (pixels.isNull()) {
        return nullptr;
    }
    std::unique_ptr<TextureObject> texture(new TextureObject(fitting.width(), fitting.height()));
    texture->upload(pixels);
    return texture->isEnabled() ? std::move(texture) : nullptr;
}

std::unique_ptr<TextureObject> TextureObject::initWithQualityType(int qualityType) {
    std::unique_ptr<TextureObject> texture(new TextureObject(qualityType, qualityType));
    texture->_dataBuffer = QImage(qualityType, qualityType, kFormat);
    if (texture->_dataBuffer.isNull()) {
        logNoMemory(kKeptBlockLine);
        return nullptr;
    }
    texture->_keepsBuffer = true;
    return texture;
}

TextureObject::~TextureObject() {
    destoryTexture();
}

bool TextureObject::loadTextureWithImages(const QList<QImage>& images) {
    return load(createTextureDataWithImages(images));
}

bool TextureObject::loadTextureWithData(const unsigned char* data, const QSize& size) {
    const QSize whole = pixSize();
    if (!data || size.isEmpty() || size.width() > whole.width() || size.height() > whole.height()) {
        return false;
    }
    return load(createTextureDataWithImageData(data, size));
}

bool TextureObject::useAtPosition(GLenum unit) const {
    if (!isEnabled()) {
        return false;
    }
    glActiveTexture(unit);
    glBindTexture(GL_TEXTURE_2D, _textureID);
    return true;
}

const float* TextureObject::vertiesOfTextureIndex(unsigned index) const {
    return _verties[index < _vertiesCount ? index : 0].data();
}

int TextureObject::cellMaxLevel() const {
    const unsigned side = static_cast<unsigned>(qualityType());
    const unsigned grid = static_cast<unsigned>(gridSide(_vertiesCount));
    if (grid == 1) {
        return side == 0 ? 0 : static_cast<int>(std::bit_width(side)) - 1;
    }
    // Halving keeps the cells apart for as long as their side is even.
    const unsigned cell = side / grid;
    return cell == 0 ? 0 : std::countr_zero(cell);
}

GLuint TextureObject::bindTexture(const unsigned char* pixels, GLuint textureID) {
    const QSize size = pixSize();
    const int limit = dabcanvas::maxTextureSize();
    if (!pixels || size.isEmpty() || size.width() > limit || size.height() > limit) {
        return 0;
    }
    drainGLErrors(kFile, __LINE__);  // what is found below must be this texture's
    GLuint name = textureID;
    if (name == 0) {
        glGenTextures(1, &name);
    }
    glBindTexture(GL_TEXTURE_2D, name);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR_MIPMAP_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAX_LEVEL, cellMaxLevel());
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, size.width(), size.height(), 0, GL_RGBA, GL_UNSIGNED_BYTE,
                 pixels);
    glGenerateMipmap(GL_TEXTURE_2D);
    glBindTexture(GL_TEXTURE_2D, 0);
    if (drainGLErrors(kFile, __LINE__) > 0) {
        if (textureID == 0) {
            glDeleteTextures(1, &name);
        }
        return 0;
    }
    return name;
}

void TextureObject::destoryTexture() {
    if (_textureID) {
        glBindTexture(GL_TEXTURE_2D, 0);
        glDeleteTextures(1, &_textureID);
        _textureID = 0;
    }
    _dataBuffer = QImage();
    _keepsBuffer = false;
}

// The kept block, or a new one, transparent all over; null (logged) when memory is short. load() gives a
// kept block back: as long as it is taken out, nobody shares it and writing to it copies nothing.
QImage TextureObject::takeClearedPixels(int line) {
    QImage pixels = _keepsBuffer ? std::move(_dataBuffer) : QImage(pixSize(), kFormat);
    if (pixels.isNull()) {
        logNoMemory(line);
    } else {
        pixels.fill(0);
    }
    return pixels;
}

QImage TextureObject::createTextureDataWithImages(const QList<QImage>& images) {
    QImage pixels = takeClearedPixels(kImagesBlockLine);
    if (pixels.isNull()) {
        return pixels;
    }
    const auto count = static_cast<int>(std::min<qsizetype>(images.size(), kMaxImages));
    _vertiesCount = count <= 1 ? 1 : count <= 4 ? 4 : 16;
    const int grid = gridSide(_vertiesCount);
    const QSize cell(pixels.width() / grid, pixels.height() / grid);
    for (int i = 0; i < static_cast<int>(_vertiesCount); ++i) {
        const QPoint origin(i % grid * cell.width(), i / grid * cell.height());
        // Until an image is drawn the cell stands for all of its transparent texels.
        _verties[static_cast<std::size_t>(i)] =
            cellOf(flipped(QRect(origin, cell), pixels.height()), pixels.width(), pixels.height());
        if (i >= count || images[i].isNull()) {
            continue;
        }
        // Deliberate: each axis is squeezed by itself.
        const QSizeF points = sizeInPoints(images[i]);
        const QSize drawn(dabcanvas::truncatedInt(std::min<double>(cell.width(), points.width())),
                          dabcanvas::truncatedInt(std::min<double>(cell.height(), points.height())));
        bindTextureData(pixels, images[i], QRect(origin, drawn), i);
    }
    return pixels;
}

QImage TextureObject::createTextureDataWithImageData(const unsigned char* data, const QSize& size) {
    QImage pixels = takeClearedPixels(kDataBlockLine);
    if (pixels.isNull()) {
        return pixels;
    }
    _vertiesCount = 1;
    bindTextureData(pixels, data, QRect(QPoint(0, 0), size), 0);
    return pixels;
}

// `rect` counts from the top of the texture, whose last row of memory is its top.
void TextureObject::bindTextureData(QImage& context, const QImage& image, const QRect& rect, int index) {
    _verties[static_cast<std::size_t>(index)] =
        cellOf(flipped(rect, context.height()), context.width(), context.height());
    QImage source = image.convertToFormat(kFormat);
    if (source.size() != rect.size() && !rect.isEmpty()) {
        source = source.scaled(rect.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                     .convertToFormat(kFormat);
    }
    if (source.isNull() || rect.isEmpty()) {
        return;  // an image that cannot be drawn leaves its place transparent
    }
    for (int row = 0; row < rect.height(); ++row) {
        unsigned char* const to = context.scanLine(context.height() - 1 - rect.y() - row) + rect.x() * 4;
        std::memcpy(to, source.constScanLine(row), static_cast<std::size_t>(rect.width()) * 4);
    }
}

void TextureObject::bindTextureData(QImage& context, const unsigned char* imageData, const QRect& rect,
                                    int index) {
    const auto rowBytes = static_cast<std::size_t>(rect.width()) * 4;
    for (int row = 0; row < rect.height(); ++row) {
        std::memcpy(context.scanLine(rect.y() + row) + rect.x() * 4,
                    imageData + static_cast<std::size_t>(rect.height() - 1 - row) * rowBytes, rowBytes);
    }
    _verties[static_cast<std::size_t>(index)] = cellOf(rect, context.width(), context.height());
}

bool TextureObject::load(QImage pixels) {
    if (!pixels.isNull()) {
        const GLuint name = buildTexture(pixels.constBits());
        if (name == 0 && _textureID) {
            glDeleteTextures(1, &_textureID);
        }
        _textureID = name;
    }
    if (_keepsBuffer) {
        _dataBuffer = std::move(pixels);
    }
    _didInit = _textureID != 0;
    return _didInit;
}

void TextureObject::upload(const QImage& picture) {
    drainGLErrors(kFile, __LINE__);  // what is found below must be this texture's
    glGenTextures(1, &_textureID);
    glBindTexture(GL_TEXTURE_2D, _textureID);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA8, picture.width(), picture.height(), 0, GL_RGBA, GL_UNSIGNED_BYTE,
                 nullptr);
    dabcanvas::copyRowsToTexture(picture, {0, 0});
    glBindTexture(GL_TEXTURE_2D, 0);
    if (dabcanvas::takeGLErrors() > 0) {  // what places the picture says that there is no memory
        destoryTexture();
    }
    // The picture's top row came first.
    _verties[0] = {0, 1, 0, 0, 1, 0, 1, 1, 0, 1};
    _didInit = _textureID != 0;
}
