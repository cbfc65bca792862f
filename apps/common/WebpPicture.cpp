// SPDX-License-Identifier: MIT
#include "WebpPicture.h"

#ifdef DABCANVAS_HAVE_WEBP
#include <webp/decode.h>
#include <webp/encode.h>
#endif

namespace dabcanvas {

#ifdef DABCANVAS_HAVE_WEBP

namespace {

const std::uint8_t* dataOf(const QByteArray& bytes) {
    return reinterpret_cast<const std::uint8_t*>(bytes.constData());
}

}  // namespace

bool hasWebp() {
    return true;
}

QByteArray encodeWebp(const QImage& image) {
    const QImage rows = image.convertToFormat(QImage::Format_RGBA8888);
    std::uint8_t* encoded = nullptr;
    const std::size_t size = rows.isNull()
                                 ? 0
                                 : WebPEncodeLosslessRGBA(rows.constBits(), rows.width(), rows.height(),
                                                          int(rows.bytesPerLine()), &encoded);
    const QByteArray bytes(reinterpret_cast<const char*>(encoded), qsizetype(size));
    WebPFree(encoded);
    return bytes;
}

QSize webpSize(const QByteArray& bytes) {
    WebPBitstreamFeatures features;
    const bool isOne = WebPGetFeatures(dataOf(bytes), std::size_t(bytes.size()), &features) == VP8_STATUS_OK;
    return isOne && !features.has_animation ? QSize(features.width, features.height) : QSize();
}

QImage decodeWebp(const QByteArray& bytes) {
    QImage image(webpSize(bytes), QImage::Format_RGBA8888);
    const bool isRead = !image.isNull() && WebPDecodeRGBAInto(dataOf(bytes), std::size_t(bytes.size()),
                                                              image.bits(), std::size_t(image.sizeInBytes()),
                                                              int(image.bytesPerLine())) != nullptr;
    return isRead ? image : QImage();
}

#else

bool hasWebp() {
    return false;
}
QByteArray encodeWebp(const QImage&) {
    return {};
}
QSize webpSize(const QByteArray&) {
    return {};
}
QImage decodeWebp(const QByteArray&) {
    return {};
}

#endif

}  // namespace dabcanvas
