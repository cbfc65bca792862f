// SPDX-License-Identifier: MIT
// The part of ESContext that reads pixels back.
#include <epoxy/gl.h>

#include <algorithm>
#include <cstring>
#include <new>

#include "ESContext/ESBufferAccess.h"
#include "ESContext/ESContext.h"
#include "ESRender/Utilities/ESGLErrors.h"
#include "Maths/Rounding.h"

using dabcanvas::nearestInt;
using dabcanvas::truncatedInt;

namespace {

constexpr char kFile[] = "SRC_New/ESContext/ESContext";
constexpr QImage::Format kFormat = QImage::Format_RGBA8888_Premultiplied;

// Steps of the message about images, by their fixed line numbers.
constexpr int kLayerStoreLine = 730;
constexpr int kLayerImageLine = 772;
constexpr int kRectStoreLine = 832;
constexpr int kDataImageLine = 1097;

void logNoImage(int line) {
    qCWarning(lcDabcanvasGL, "创建数据失败(%s:%d)!", kFile, line);
}

// A copy of rows that arrive bottom row first; null (logged) when memory is short.
QImage flippedImage(const unsigned char* bytes, const QSize& size, int line) {
    QImage image(size, kFormat);
    if (image.isNull()) {
        logNoImage(line);
        return image;
    }
    const auto rowBytes = static_cast<std::size_t>(size.width()) * 4;
    for (int row = 0; row < size.height(); ++row) {
        std::memcpy(image.scanLine(size.height() - 1 - row), bytes + static_cast<std::size_t>(row) * rowBytes,
                    rowBytes);
    }
    return image;
}

}  // namespace

bool ESContext::isEnableRect(const QRectF& rect) const {
    return rect.width() >= 1 && rect.height() >= 1 && rect.left() >= 0 && rect.top() >= 0 &&
           rect.right() <= _backingWidth && rect.bottom() <= _backingHeight;
}

QRectF ESContext::gRectWithVRect(const QRectF& rect) const {
    const int left = truncatedInt(rect.left());
    const int bottom = truncatedInt(_backingHeight - rect.bottom());
    return QRectF(left, bottom, truncatedInt(rect.right()) - left,
                  truncatedInt(_backingHeight - rect.top()) - bottom);
}

void ESContext::readData(unsigned char* bytes, const QRectF& rect) {
    readData(bytes, rect, 8);
}

void ESContext::readData(unsigned char* bytes, const QRectF& rect, int depth) {
    if (!bytes) {
        return;
    }
    const ESBufferAccess access(_bufferAccess);
    if (!isEnableRect(rect) || !makeCurrent()) {
        return;
    }
    glBindFramebuffer(GL_FRAMEBUFFER, _frameBuffer[ESRenderTypeCanvas]);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    const QRectF rows = gRectWithVRect(rect);
    const int x = std::clamp(nearestInt(rows.left()), 0, _backingWidth);
    const int y = std::clamp(nearestInt(rows.top()), 0, _backingHeight);
    const int width = std::clamp(nearestInt(rows.right()) - x, 0, _backingWidth);
    const int height = std::clamp(nearestInt(rows.bottom()) - y, 0, _backingHeight);
    glReadPixels(x, y, width, height, GL_RGBA, depth > 8 ? GL_UNSIGNED_SHORT : GL_UNSIGNED_BYTE, bytes);
    checkLost();
}

QImage ESContext::image() {
    return imageWithRect(QRectF(0, 0, _backingWidth, _backingHeight));
}

QImage ESContext::imageWithRect(const QRectF& rect) {
    return newCGImageWithRect(rect);
}

QImage ESContext::newCGImageWithRect(const QRectF& rect) {
    if (!isEnableRect(rect) || !makeCurrent()) {
        return {};
    }
    // As many pixels as the read covers, which for edges between pixels need not be the rectangle's own size.
    QImage image(gRectWithVRect(rect).size().toSize(), kFormat);
    if (image.isNull()) {
        logNoImage(kRectStoreLine);
        return {};
    }
    readData(image.bits(), rect);
    if (_isLost) {
        return {};
    }
    return std::move(image).mirrored(false, true);  // in place
}

QImage ESContext::imageForType(ESRenderType type) {
    return newCGImageForType(type);
}

QImage ESContext::newCGImageForType(ESRenderType type) {
    if (type < 0 || type >= dabcanvas::kRenderTypeCount || !makeCurrent() || !_frameBuffer[type]) {
        return {};
    }
    const QSize size = sizeForType(type);
    const qsizetype needed = qsizetype{size.width()} * size.height() * 4;
    if (_data.size() < needed) {
        try {
            _data = QByteArray(needed, '\0');
        } catch (const std::bad_alloc&) {
            logNoImage(kLayerStoreLine);
            return {};
        }
    }
    const QPoint origin = _openGLView->frame().topLeft().toPoint();
    if (!origin.isNull()) {
        _data.fill('\0');  // a read that leaves the target does not write there
    }
    glBindFramebuffer(GL_FRAMEBUFFER, _frameBuffer[type]);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    glReadPixels(origin.x(), origin.y(), size.width(), size.height(), GL_RGBA, GL_UNSIGNED_BYTE,
                 _data.data());
    if (checkLost()) {
        return {};
    }
    return flippedImage(reinterpret_cast<const unsigned char*>(_data.constData()), size, kLayerImageLine);
}

QImage ESContext::imageWithData(const unsigned char* bytes, const QSizeF& size) {
    return newCGImageWithData(bytes, size);
}

QImage ESContext::newCGImageWithData(const unsigned char* bytes, const QSizeF& size) {
    const QSize pixels(truncatedInt(size.width()), truncatedInt(size.height()));
    if (!bytes || pixels.isEmpty()) {
        logNoImage(kDataImageLine);
        return {};
    }
    return flippedImage(bytes, pixels, kDataImageLine);
}

bool ESContext::updateImage(QImage& image, const QRect& rect) {
    const ESBufferAccess access(_bufferAccess);
    const QRect part = rect.intersected(QRect(0, 0, _backingWidth, _backingHeight));
    if (rect.isEmpty() || part.isEmpty() || image.format() != kFormat ||
        image.size() != QSize(_backingWidth, _backingHeight) || !makeCurrent()) {
        return false;
    }
    const auto rowBytes = static_cast<std::size_t>(part.width()) * 4;
    const std::size_t needed = rowBytes * static_cast<std::size_t>(part.height());
    if (_scratch.size() < needed) {
        try {
            _scratch.resize(needed);
        } catch (const std::bad_alloc&) {
            return false;
        }
    }
    unsigned char* const bits = image.bits();  // detaches once, should the image be shared
    if (!bits) {
        return false;
    }
    glBindFramebuffer(GL_READ_FRAMEBUFFER, _frameBuffer[ESRenderTypeCanvas]);
    glReadPixels(part.x(), _backingHeight - part.y() - part.height(), part.width(), part.height(), GL_RGBA,
                 GL_UNSIGNED_BYTE, _scratch.data());
    glBindFramebuffer(GL_READ_FRAMEBUFFER, _frameBuffer[_currentRenderType]);
    if (checkLost()) {
        return false;
    }
    const qsizetype stride = image.bytesPerLine();
    for (int row = 0; row < part.height(); ++row) {
        std::memcpy(bits + (part.bottom() - row) * stride + part.x() * 4,
                    _scratch.data() + static_cast<std::size_t>(row) * rowBytes, rowBytes);
    }
    return true;
}
