// SPDX-License-Identifier: MIT
#include "PictureKinds.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageWriter>
#include <QPainter>

#include "WebpPicture.h"

namespace dabcanvas {

namespace {

QString suffixOf(const QString& path) {
    const QString suffix = QFileInfo(path).suffix().toLower();
    return suffix.isEmpty() ? QStringLiteral("png") : suffix;
}

QImage onGround(const QImage& image, const QColor& ground) {
    QImage paper(image.size(), QImage::Format_RGB32);
    if (paper.isNull())
        return paper;
    paper.fill(ground);
    QPainter(&paper).drawImage(paper.rect(), image, image.rect());
    return paper;
}

// Zlib's fourth level, where Qt takes the sixth: a painting is a twentieth larger in a third of the time.
constexpr int kPngQuality = 50;

QString refused(const QString& why) {
    return QStringLiteral("cannot encode the picture: %1").arg(why);
}

QString encodeByQt(const QImage& image, const QString& suffix, int quality, QByteArray& bytes) {
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, suffix.toLatin1());
    writer.setQuality(quality);
    return writer.write(image) && !bytes.isEmpty() ? QString() : refused(writer.errorString());
}

}  // namespace

QStringList writtenPictureSuffixes() {
    QStringList suffixes;
    for (const QByteArray& format : QImageWriter::supportedImageFormats())
        suffixes << QString::fromLatin1(format).toLower();
    const QString webp = QStringLiteral("webp");
    if (hasWebp() && !suffixes.contains(webp))
        suffixes << webp;
    suffixes.sort();
    return suffixes;
}

QString pictureKindRefusal(const QString& path) {
    const QString suffix = suffixOf(path);
    const QStringList known = writtenPictureSuffixes();
    return known.contains(suffix) ? QString()
                                  : QStringLiteral("no picture is written as .%1; the kinds are %2")
                                        .arg(suffix, known.join(QStringLiteral(", ")));
}

bool keepsAlpha(const QString& path) {
    static const QStringList kinds{QStringLiteral("png"), QStringLiteral("webp"), QStringLiteral("tif"),
                                   QStringLiteral("tiff")};
    return kinds.contains(suffixOf(path));
}

QString encodePicture(const QImage& image, const QString& path, QByteArray& bytes, const QColor& ground,
                      int jpegQuality) {
    const QString suffix = suffixOf(path);
    if (suffix == QLatin1String("webp") && hasWebp()) {
        bytes = encodeWebp(image);
        return bytes.isEmpty() ? refused(QStringLiteral("its sides have at most 16383 pixels")) : QString();
    }
    const bool flat = image.hasAlphaChannel() && !keepsAlpha(path);
    const bool isJpeg = suffix == QLatin1String("jpg") || suffix == QLatin1String("jpeg");
    const int quality = suffix == QLatin1String("png")    ? kPngQuality
                        : suffix == QLatin1String("webp") ? 100
                        : isJpeg                          ? jpegQuality
                                                          : -1;
    return encodeByQt(flat ? onGround(image, ground) : image, suffix, quality, bytes);
}

}  // namespace dabcanvas
